// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "tiletest.h"

#include <QTest>

#include <array>

// Several tiles in one window. Their contexts have the texture in common into which the U plane goes:
// none may show another one's colours.
class TestManyTiles final : public QObject
{
    Q_OBJECT

private slots:
    void eachTileHasItsOwnColours();
    void coloursStayAfterAnExpose();
    void coloursStayAfterAResize();
    void coloursStayWhenOneTileGetsNewPictures();
    void coloursStayWhenAllTilesGetNewPictures();
    void picturesOfManySizesStandSideBySide();
    void pictureWithoutColourSamplesLeavesTheOthersAlone();
    void coloursStayWhenATileGoes();
    void pictureOfOneTilePaintsNoOther();
};

namespace {

// Alike in brightness and redness.
Yuv colourOf(int number)
{
    return {128, 40 + 11 * (number % 16), 128};
}

void decodeAll(TileTest& t, int tiles, QSize size)
{
    for (int i = 0; i < tiles; ++i)
        t.decode(Picture(size, colourOf(i)), i);
}

QString differencesOnScreen(const TileTest& t, int tiles, int shift = 0)
{
    const QImage screen = t.screen();
    for (int i = 0; i < tiles; ++i) {
        const QRect area = t.visible(i).translated(t.tile(i)->pos());
        const QString text = differences(screen, area, rgbOf(colourOf(i + shift)));
        if (!text.isEmpty())
            return QStringLiteral("tile %1: %2").arg(i).arg(text);
    }
    return {};
}

} // namespace

void TestManyTiles::eachTileHasItsOwnColours()
{
    TileTest t(4);
    QVERIFY(t.show());
    decodeAll(t, 4, QSize(320, 180));
    QTRY_COMPARE(differencesOnScreen(t, 4), QString());
    for (int i = 3; i >= 0; --i)
        QCOMPARE(differences(t.painted(i), t.inner(i), rgbOf(colourOf(i))), QString());
}

void TestManyTiles::coloursStayAfterAnExpose()
{
    TileTest t(4);
    QVERIFY(t.show());
    decodeAll(t, 4, QSize(320, 180));
    QTRY_COMPARE(differencesOnScreen(t, 4), QString());
    for (int i = 0; i < 8; ++i) {
        PaintCount paints(t.tile(i % 4));
        t.tile(i % 4)->update();
        if (i >= 4)
            t.window.update();
        QTRY_VERIFY(paints.count > 0);
        QTRY_COMPARE(differencesOnScreen(t, 4), QString());
    }
    QWidget above;
    above.setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    above.setGeometry(50, 50, 300, 200);
    above.show();
    QVERIFY(QTest::qWaitForWindowExposed(&above));
    above.hide();
    QTRY_COMPARE(differencesOnScreen(t, 4), QString());
    t.window.hide();
    QVERIFY(t.show());
    QTRY_COMPARE(differencesOnScreen(t, 4), QString());
}

void TestManyTiles::coloursStayAfterAResize()
{
    TileTest t(4);
    QVERIFY(t.show());
    decodeAll(t, 4, QSize(320, 180));
    QTRY_COMPARE(differencesOnScreen(t, 4), QString());
    t.tile(1)->resize(150, 100, 200, 0);
    QTRY_COMPARE(differencesOnScreen(t, 4), QString());
    for (int i = 0; i < 4; ++i)
        t.tile(i)->resize(180, 110, i % 2 * 190, i / 2 * 115);
    QTRY_COMPARE(differencesOnScreen(t, 4), QString());
}

void TestManyTiles::coloursStayWhenOneTileGetsNewPictures()
{
    TileTest t(4);
    QVERIFY(t.show());
    decodeAll(t, 4, QSize(320, 180));
    QTRY_COMPARE(differencesOnScreen(t, 4), QString());
    for (int i = 0; i < 20; ++i) {
        const Yuv colour = {128, 30 + 10 * i, 128};
        t.decode(Picture(QSize(320, 180), colour), 2);
        QTRY_COMPARE(differences(t.screen(2), t.visible(2), rgbOf(colour)), QString());
        QCOMPARE(differences(t.screen(0), t.visible(0), rgbOf(colourOf(0))), QString());
        QCOMPARE(differences(t.screen(1), t.visible(1), rgbOf(colourOf(1))), QString());
        QCOMPARE(differences(t.screen(3), t.visible(3), rgbOf(colourOf(3))), QString());
    }
}

void TestManyTiles::coloursStayWhenAllTilesGetNewPictures()
{
    constexpr int tiles = 16;
    TileTest t(tiles, QSize(240, 135));
    QVERIFY(t.show());
    for (int round = 0; round < 30; ++round) {
        for (int i = 0; i < tiles; ++i)
            t.decode(Picture(QSize(640, 360), colourOf(i + round)), i);
        QTRY_COMPARE(differencesOnScreen(t, tiles, round), QString());
    }
}

void TestManyTiles::picturesOfManySizesStandSideBySide()
{
    const std::array<QSize, 4> sizes{
        QSize(854, 480), QSize(426, 240), QSize(427, 241), QSize(3, 5)};
    TileTest t(4, QSize(302, 202));
    QVERIFY(t.show());
    for (int round = 0; round < 4; ++round) {
        std::vector<Picture> pictures;
        for (int i = 0; i < 4; ++i) {
            pictures.push_back(Picture::slopes(sizes.at(std::size_t(i + round) % 4)));
            t.decode(pictures.back(), i);
        }
        for (int i = 0; i < 4; ++i)
            QCOMPARE(differences(t.painted(i), t.inner(i), pictures.at(std::size_t(i))), QString());
    }
}

void TestManyTiles::pictureWithoutColourSamplesLeavesTheOthersAlone()
{
    TileTest t(2);
    QVERIFY(t.show());
    t.decode(Picture(QSize(320, 180), colourOf(0)), 0);
    const Picture dot(QSize(1, 1), {200, 0, 0});
    t.decode(dot, 1);
    QCOMPARE(differences(t.painted(1), t.inner(1), dot), QString());
    QCOMPARE(differences(t.painted(0), t.inner(0), rgbOf(colourOf(0))), QString());
    QTRY_COMPARE(differences(t.screen(0), t.visible(0), rgbOf(colourOf(0))), QString());
    QCOMPARE(differences(t.screen(1), t.visible(1), dot.colourAt(0, 0)), QString());
}

void TestManyTiles::coloursStayWhenATileGoes()
{
    TileTest t(4);
    QVERIFY(t.show());
    decodeAll(t, 4, QSize(320, 180));
    QTRY_COMPARE(differencesOnScreen(t, 4), QString());
    t.remove(3);
    QTRY_COMPARE(differencesOnScreen(t, 3), QString());
    decodeAll(t, 3, QSize(322, 182));
    QTRY_COMPARE(differencesOnScreen(t, 3), QString());
}

void TestManyTiles::pictureOfOneTilePaintsNoOther()
{
    TileTest t(2);
    QVERIFY(t.show());
    decodeAll(t, 2, QSize(320, 180));
    QTRY_COMPARE(differencesOnScreen(t, 2), QString());
    QTest::qWait(200); // until nothing waits any more
    PaintCount first(t.tile(0));
    PaintCount second(t.tile(1));
    t.decode(Picture(QSize(320, 180), colourOf(5)), 0);
    QTRY_COMPARE(differences(t.screen(0), t.visible(0), rgbOf(colourOf(5))), QString());
    QTest::qWait(100);
    QCOMPARE(first.count, 1);
    QCOMPARE(second.count, 0);
}

ORVA_TEST(TestManyTiles)
#include "tst_manytiles.moc"

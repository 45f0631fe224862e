// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "tiletest.h"

#include <QTest>

Q_DECLARE_METATYPE(Yuv)

// The colours of a picture, in the tile's own frame buffer and on the screen.
class TestTileColours final : public QObject
{
    Q_OBJECT

private slots:
    void flatColour_data();
    void flatColour();
    void eachPlaneAloneChangesItsOwnShare();
    void pictureIsTheRightWayUp();
    void rowsAreReadWithoutPadding_data();
    void rowsAreReadWithoutPadding();
    void smallestPictures_data();
    void smallestPictures();
    void pictureIsScaledSmoothlyToTheTile();
    void newSizeIsShownWithTheNextPicture();
    void secondPaintWithoutCompositionShowsThePicture();
};

void TestTileColours::flatColour_data()
{
    QTest::addColumn<Yuv>("yuv");
    QTest::newRow("black") << Yuv{0, 128, 128};
    QTest::newRow("grey") << Yuv{128, 128, 128};
    QTest::newRow("white") << Yuv{255, 128, 128};
    QTest::newRow("red") << Yuv{76, 85, 240};
    QTest::newRow("green") << Yuv{150, 44, 21};
    QTest::newRow("blue") << Yuv{29, 240, 107};
    QTest::newRow("skin") << Yuv{170, 105, 150};
    QTest::newRow("limits below") << Yuv{0, 0, 0};
    QTest::newRow("limits above") << Yuv{255, 255, 255};
    QTest::newRow("video black") << Yuv{16, 128, 128}; // full range: shown as it is
}

void TestTileColours::flatColour()
{
    QFETCH(Yuv, yuv);
    TileTest t;
    QVERIFY(t.show());
    t.decode(Picture(QSize(320, 180), yuv));
    QCOMPARE(differences(t.painted(), t.inner(), rgbOf(yuv)), QString());
    QTRY_COMPARE(differences(t.screen(0), t.visible(), rgbOf(yuv)), QString());
}

void TestTileColours::eachPlaneAloneChangesItsOwnShare()
{
    TileTest t;
    QVERIFY(t.show());
    const auto shown = [&t](Yuv yuv) {
        t.decode(Picture(QSize(64, 64), yuv));
        return t.painted().pixel(100, 60);
    };
    const QRgb grey = shown({120, 128, 128});
    const QRgb bright = shown({180, 128, 128});
    QVERIFY(qAbs(qRed(bright) - qRed(grey) - 60) <= 2);
    QVERIFY(qAbs(qGreen(bright) - qGreen(grey) - 60) <= 2);
    QVERIFY(qAbs(qBlue(bright) - qBlue(grey) - 60) <= 2);

    const QRgb blue = shown({120, 168, 128});
    QCOMPARE(qRed(blue), qRed(grey));
    QVERIFY(qAbs(qGreen(blue) - qGreen(grey) + 16) <= 2); // 0.39465 * 40
    QVERIFY(qAbs(qBlue(blue) - qBlue(grey) - 81) <= 2); // 2.03211 * 40

    const QRgb red = shown({120, 128, 168});
    QVERIFY(qAbs(qRed(red) - qRed(grey) - 46) <= 2); // 1.13983 * 40
    QVERIFY(qAbs(qGreen(red) - qGreen(grey) + 23) <= 2); // 0.58060 * 40
    QCOMPARE(qBlue(red), qBlue(grey));
}

void TestTileColours::pictureIsTheRightWayUp()
{
    const std::vector<Yuv> colours{{200, 128, 128}, {76, 85, 240}, {150, 44, 21}, {60, 200, 107}};
    TileTest t(1, QSize(202, 122));
    QVERIFY(t.show());
    t.decode(Picture::quarters(QSize(200, 120), colours));
    const QRect quarters[] = {
        QRect(1, 1, 98, 58), QRect(103, 1, 98, 58), QRect(1, 63, 98, 58), QRect(103, 63, 98, 58)};
    const QImage painted = t.painted();
    for (std::size_t i = 0; i < colours.size(); ++i)
        QCOMPARE(differences(painted, quarters[i], rgbOf(colours[i])), QString());
    for (std::size_t i = 0; i < colours.size(); ++i)
        QTRY_COMPARE(
            differences(t.screen(0), quarters[i] & t.visible(), rgbOf(colours[i])), QString());
}

void TestTileColours::rowsAreReadWithoutPadding_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize& size : {QSize(854, 480), QSize(426, 240), QSize(427, 241), QSize(430, 242),
             QSize(1280, 720), QSize(101, 63), QSize(6, 6)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

void TestTileColours::rowsAreReadWithoutPadding()
{
    QFETCH(QSize, size);
    const Picture picture = Picture::slopes(size);
    TileTest t(1, size + QSize(2, 2));
    QVERIFY(t.show());
    t.decode(picture);
    QCOMPARE(differences(t.painted(), QRect(QPoint(1, 1), size), picture), QString());
}

void TestTileColours::smallestPictures_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize& size : {QSize(1, 1), QSize(2, 2), QSize(3, 5), QSize(1, 4), QSize(5, 1)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

// A picture with a side of one has no colour samples at all.
void TestTileColours::smallestPictures()
{
    QFETCH(QSize, size);
    const Picture picture(size, {150, 100, 160});
    TileTest t;
    QVERIFY(t.show());
    t.decode(picture);
    QCOMPARE(differences(t.painted(), t.inner(), picture), QString());
}

void TestTileColours::pictureIsScaledSmoothlyToTheTile()
{
    TileTest t(1, QSize(402, 302));
    QVERIFY(t.show());
    const Picture smaller = Picture::slopes(QSize(100, 75));
    t.decode(smaller);
    QCOMPARE(differences(t.painted(), t.inner(), smaller), QString());
    const Picture larger = Picture::slopes(QSize(1600, 1200));
    t.decode(larger);
    QCOMPARE(differences(t.painted(), t.inner(), larger), QString());
}

void TestTileColours::newSizeIsShownWithTheNextPicture()
{
    TileTest t(1, QSize(322, 182));
    QVERIFY(t.show());
    for (const QSize& size : {QSize(320, 180), QSize(854, 480), QSize(427, 241), QSize(64, 48)}) {
        const Picture picture = Picture::slopes(size);
        t.decode(picture);
        QCOMPARE(differences(t.painted(), t.inner(), picture), QString());
        QTRY_COMPARE(differences(t.screen(0), t.visible(),
                         [&](QPoint at) {
                             return picture.colourAt((at.x() - 0.5) / 320, (at.y() - 0.5) / 180);
                         }),
            QString());
    }
}

void TestTileColours::secondPaintWithoutCompositionShowsThePicture()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(Picture(QSize(320, 180), {128, 90, 200}));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(
            differences(t.tile()->grabFramebuffer(), t.inner(), rgbOf({128, 90, 200})), QString());
}

ORVA_TEST(TestTileColours)
#include "tst_tilecolours.moc"

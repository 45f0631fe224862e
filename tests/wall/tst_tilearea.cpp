// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "tiletest.h"

#include <QTest>

// The part of a tile that the picture takes in each scale mode.
class TestTileArea final : public QObject
{
    Q_OBJECT

private slots:
    void pictureTakesItsAreaWithinTheFrame_data();
    void pictureTakesItsAreaWithinTheFrame();
    void tileTooNarrowForTheModeDoesNoHarm_data();
    void tileTooNarrowForTheModeDoesNoHarm();
    void tileTakesTheScaleModeOfItsTime();
    void scaleChangeShowsWithTheNextPicture();
};

namespace {

constexpr Yuv colour{170, 90, 180};
constexpr QRgb beside = 0xff000000;

// The picture in `area`, and black around it.
QString differencesAround(const QImage& image, const QRect& area)
{
    return differences(
        image, image.rect(), [&](QPoint at) { return area.contains(at) ? rgbOf(colour) : beside; });
}

} // namespace

void TestTileArea::pictureTakesItsAreaWithinTheFrame_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QSize>("tile");
    QTest::addColumn<QSize>("area");
    QTest::addColumn<QRect>("pixels");
    const auto add = [](const char* name, int mode, QSize tile, QSize area, QRect pixels) {
        QTest::newRow(name) << mode << tile << area << pixels;
    };
    add("fill", 0, {200, 120}, {200, 120}, {1, 1, 198, 118});
    add("fill, odd", 0, {203, 121}, {203, 121}, {1, 1, 201, 119});
    add("fill, tall", 0, {100, 240}, {100, 240}, {1, 1, 98, 238});
    add("unknown mode fills", 3, {200, 120}, {200, 120}, {1, 1, 198, 118});
    add("negative mode fills", -1, {200, 120}, {200, 120}, {1, 1, 198, 118});
    add("4:3, wide", 1, {200, 120}, {160, 120}, {21, 1, 158, 118});
    add("4:3, wide, height not by 3", 1, {203, 122}, {160, 122}, {22, 1, 158, 120});
    add("4:3, exact", 1, {200, 150}, {200, 150}, {1, 1, 198, 148});
    add("4:3, one row too low", 1, {200, 149}, {196, 149}, {3, 1, 194, 147});
    add("4:3, width not by 4", 1, {203, 300}, {203, 150}, {1, 76, 201, 148});
    // An odd rest of rows: the row more is above the picture.
    add("4:3, tall, odd rest", 1, {200, 301}, {200, 150}, {1, 77, 198, 148});
    add("16:9, wide", 2, {400, 100}, {176, 100}, {113, 1, 174, 98});
    add("16:9, tall, odd rest", 2, {320, 361}, {320, 180}, {1, 92, 318, 178});
    add("16:9, exact", 2, {320, 180}, {320, 180}, {1, 1, 318, 178});
    add("16:9, width not by 16", 2, {335, 180}, {335, 180}, {1, 1, 333, 178});
    add("16:9, height not by 9", 2, {600, 188}, {320, 188}, {141, 1, 318, 186});
    add("16:9, narrowest", 2, {16, 100}, {16, 9}, {1, 47, 14, 7});
}

void TestTileArea::pictureTakesItsAreaWithinTheFrame()
{
    QFETCH(int, mode);
    QFETCH(QSize, tile);
    QFETCH(QSize, area);
    QFETCH(QRect, pixels);
    QCOMPARE(GlWidgetViewWindow::pictureArea(tile, mode), area);
    TileTest t(1, tile);
    t.viewControl.setScale(mode);
    QVERIFY(t.show());
    t.decode(Picture(QSize(320, 180), colour));
    QCOMPARE(differencesAround(t.painted(), pixels), QString());
    const QRect seen = pixels & t.visible();
    QTRY_COMPARE(differences(t.screen(0), seen, rgbOf(colour)), QString());
    QCOMPARE(differences(t.screen(0), t.visible(),
                 [&](QPoint at) { return seen.contains(at) ? rgbOf(colour) : beside; }),
        QString());
}

void TestTileArea::tileTooNarrowForTheModeDoesNoHarm_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QSize>("tile");
    QTest::newRow("16:9") << 2 << QSize(15, 100);
    QTest::newRow("16:9, low") << 2 << QSize(200, 8);
    QTest::newRow("4:3") << 1 << QSize(3, 100);
    QTest::newRow("fill") << 0 << QSize(1, 1);
}

// What stands on such a tile is nothing sensible; a larger one shows the picture again.
void TestTileArea::tileTooNarrowForTheModeDoesNoHarm()
{
    QFETCH(int, mode);
    QFETCH(QSize, tile);
    TileTest t(2, QSize(200, 200));
    t.viewControl.setScale(mode);
    QVERIFY(t.show());
    t.decode(Picture(QSize(320, 180), {128, 128, 128}), 1);
    t.tile()->resize(tile.width(), tile.height(), 0, 0);
    t.decode(Picture(QSize(320, 180), colour));
    QCOMPARE(t.painted().size(), tile);
    const QImage neighbour = t.painted(1);
    QCOMPARE(neighbour.pixel(100, 100), rgbOf({128, 128, 128}));

    t.tile()->resize(200, 200, 0, 0);
    const QSize area = GlWidgetViewWindow::pictureArea(QSize(200, 200), mode);
    QRect pixels(QPoint(1, 1), area - QSize(2, 2));
    pixels.moveCenter(QRect(0, 0, 200, 200).center());
    t.decode(Picture(QSize(320, 180), colour));
    QTRY_COMPARE(differences(t.screen(0), pixels.adjusted(2, 2, -2, -2), rgbOf(colour)), QString());
}

void TestTileArea::tileTakesTheScaleModeOfItsTime()
{
    TileTest t;
    QVERIFY(t.show());
    t.viewControl.setScale(1);
    GlWidgetViewWindow later(&t.window);
    later.setChannel(t.device.get(), t.channel());
    later.resize(200, 120, 0, 0);
    later.show();
    t.decode(Picture(QSize(320, 180), colour));
    QCOMPARE(differencesAround(paintedOf(&later), QRect(21, 1, 158, 118)), QString());
}

void TestTileArea::scaleChangeShowsWithTheNextPicture()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(Picture(QSize(320, 180), colour));
    QTRY_COMPARE(differences(t.screen(0), t.visible(), rgbOf(colour)), QString());
    PaintCount paints(t.tile());
    t.viewControl.setScale(1);
    QTest::qWait(100);
    QCOMPARE(paints.count, 0);
    QCOMPARE(differences(t.screen(0), t.visible(), rgbOf(colour)), QString());

    t.decode(Picture(QSize(320, 180), colour));
    QTRY_COMPARE(t.screen(0).pixel(10, 60), beside);
    QCOMPARE(differencesAround(t.painted(), QRect(21, 1, 158, 118)), QString());
}

ORVA_TEST(TestTileArea)
#include "tst_tilearea.moc"

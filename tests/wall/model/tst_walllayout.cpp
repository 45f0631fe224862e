// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "wall/walllayout.h"

#include <QRegion>
#include <QTest>

#include <algorithm>
#include <functional>
#include <limits>

// The twelve layouts: how many tiles, and where they stand.
class TestWallLayout final : public QObject
{
    Q_OBJECT

private slots:
    void layoutHasItsTilesAndItsCapacity_data();
    void layoutHasItsTilesAndItsCapacity();
    void unknownLayoutHasNothing_data();
    void unknownLayoutHasNothing();

    void tilesStandWhereTheShapeSays_data();
    void tilesStandWhereTheShapeSays();
    void tilesStandAtThesePixels_data();
    void tilesStandAtThesePixels();
    void tilesCoverTheWallWithoutOverlap_data();
    void tilesCoverTheWallWithoutOverlap();
    void lastColumnAndRowRunPastTheEdge();
    void wallWithoutASizeStillHasTiles();
};

namespace {

using Rects = std::vector<QRect>;
using Shape = std::function<QRect(int tile, int width, int height)>;

QRect cellRect(int column, int row, const QSize& cell)
{
    return {QPoint(column * cell.width(), row * cell.height()), cell};
}

QRect gridTile(int tile, int columns, int rows, int width, int height)
{
    const QSize cell(width / columns + 1, height / rows + 1);
    return cellRect(tile % columns, tile / columns, cell);
}

QRect cornerTile(int tile, int columns, int side, int width, int height)
{
    const QSize cell(width / columns + 1, height / (side + 1) + 1);
    if (tile == 0)
        return {0, 0, (columns - 1) * cell.width(), side * cell.height()};
    if (tile <= columns)
        return cellRect(tile - 1, side, cell);
    return cellRect(columns - 1, tile - columns - 1, cell);
}

QRect centreTile(int tile, int width, int height)
{
    const QSize cell(width / 4 + 1, height / 4 + 1);
    if (tile == 0)
        return {QPoint(cell.width(), cell.height()), 2 * cell};
    if (tile <= 4)
        return cellRect(tile - 1, 0, cell);
    if (tile <= 8)
        return cellRect(tile - 5, 3, cell);
    return tile <= 10 ? cellRect(0, tile - 8, cell) : cellRect(3, tile - 10, cell);
}

Shape grid(int columns, int rows)
{
    return [=](int tile, int width, int height) {
        return gridTile(tile, columns, rows, width, height);
    };
}

Shape corner(int columns, int side)
{
    return [=](int tile, int width, int height) {
        return cornerTile(tile, columns, side, width, height);
    };
}

struct Expected
{
    int value;
    int tiles;
    int capacity;
    bool mirror;
    Shape shape;
};

const Expected expectedLayouts[] = {
    {0, 1, 1, false, grid(1, 1)},
    {1, 4, 4, false, grid(2, 2)},
    {2, 6, 5, true, corner(3, 2)},
    {3, 6, 6, false, grid(3, 2)},
    {4, 8, 7, true, corner(4, 3)},
    {5, 9, 9, false, grid(3, 3)},
    {6, 13, 12, true, centreTile},
    {7, 16, 16, false, grid(4, 4)},
    {8, 25, 25, false, grid(5, 5)},
    {9, 36, 36, false, grid(6, 6)},
    {10, 49, 49, false, grid(7, 7)},
    {11, 64, 64, false, grid(8, 8)},
};

const QSize wallSizes[] = {
    QSize(1, 1), QSize(17, 17), QSize(639, 359), QSize(1280, 720), QSize(3840, 2160)};

void addLayoutsOfAllSizes()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QSize>("wall");
    for (const Expected& layout : expectedLayouts) {
        for (const QSize& wall : wallSizes)
            QTest::addRow("%d at %dx%d", layout.value, wall.width(), wall.height())
                << layout.value << wall;
    }
}

} // namespace

Q_DECLARE_METATYPE(Rects)

void TestWallLayout::layoutHasItsTilesAndItsCapacity_data()
{
    QTest::addColumn<int>("value");
    for (const Expected& layout : expectedLayouts)
        QTest::addRow("%d", layout.value) << layout.value;
}

void TestWallLayout::layoutHasItsTilesAndItsCapacity()
{
    QFETCH(int, value);
    const Expected& expected = expectedLayouts[value];
    const auto mod = static_cast<WINDOW_MOD>(value);
    QVERIFY(isWindowMod(value));
    QCOMPARE(windowTiles(mod), expected.tiles);
    QCOMPARE(windowCapacity(mod), expected.capacity);
    QCOMPARE(hasMirrorTile(mod), expected.mirror);
    QCOMPARE(static_cast<int>(windowRects(mod, QSize(640, 360)).size()), expected.tiles);
}

void TestWallLayout::unknownLayoutHasNothing_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("one too many") << 12;
    QTest::newRow("negative") << -1;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void TestWallLayout::unknownLayoutHasNothing()
{
    QFETCH(int, value);
    const auto mod = static_cast<WINDOW_MOD>(value);
    QVERIFY(!isWindowMod(value));
    QCOMPARE(windowTiles(mod), 0);
    QCOMPARE(windowCapacity(mod), 0);
    QVERIFY(!hasMirrorTile(mod));
    QVERIFY(windowRects(mod, QSize(640, 360)).empty());
}

void TestWallLayout::tilesStandWhereTheShapeSays_data()
{
    addLayoutsOfAllSizes();
}

void TestWallLayout::tilesStandWhereTheShapeSays()
{
    QFETCH(int, value);
    QFETCH(QSize, wall);
    const Rects rects = windowRects(static_cast<WINDOW_MOD>(value), wall);
    QCOMPARE(static_cast<int>(rects.size()), expectedLayouts[value].tiles);
    for (int tile = 0; tile < expectedLayouts[value].tiles; ++tile)
        QCOMPARE(rects[static_cast<std::size_t>(tile)],
            expectedLayouts[value].shape(tile, wall.width(), wall.height()));
}

void TestWallLayout::tilesStandAtThesePixels_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QSize>("wall");
    QTest::addColumn<Rects>("rects"); // from the first tile on, as many as are given
    QTest::newRow("0") << 0 << QSize(639, 359) << Rects{{0, 0, 640, 360}};
    QTest::newRow("1 on a single pixel")
        << 1 << QSize(1, 1) << Rects{{0, 0, 1, 1}, {1, 0, 1, 1}, {0, 1, 1, 1}, {1, 1, 1, 1}};
    QTest::newRow("2") << 2 << QSize(17, 17)
                       << Rects{{0, 0, 12, 12}, {0, 12, 6, 6}, {6, 12, 6, 6}, {12, 12, 6, 6},
                              {12, 0, 6, 6}, {12, 6, 6, 6}};
    QTest::newRow("3") << 3 << QSize(1280, 720)
                       << Rects{{0, 0, 427, 361}, {427, 0, 427, 361}, {854, 0, 427, 361},
                              {0, 361, 427, 361}, {427, 361, 427, 361}, {854, 361, 427, 361}};
    QTest::newRow("4") << 4 << QSize(639, 359)
                       << Rects{{0, 0, 480, 270}, {0, 270, 160, 90}, {160, 270, 160, 90},
                              {320, 270, 160, 90}, {480, 270, 160, 90}, {480, 0, 160, 90},
                              {480, 90, 160, 90}, {480, 180, 160, 90}};
    QTest::newRow("6") << 6 << QSize(1280, 720)
                       << Rects{{321, 181, 642, 362}, {0, 0, 321, 181}, {321, 0, 321, 181},
                              {642, 0, 321, 181}, {963, 0, 321, 181}, {0, 543, 321, 181},
                              {321, 543, 321, 181}, {642, 543, 321, 181}, {963, 543, 321, 181},
                              {0, 181, 321, 181}, {0, 362, 321, 181}, {963, 181, 321, 181},
                              {963, 362, 321, 181}};
    QTest::newRow("8, second row first") << 8 << QSize(17, 17)
                                         << Rects{{0, 0, 4, 4}, {4, 0, 4, 4}, {8, 0, 4, 4},
                                                {12, 0, 4, 4}, {16, 0, 4, 4}, {0, 4, 4, 4}};
}

void TestWallLayout::tilesStandAtThesePixels()
{
    QFETCH(int, value);
    QFETCH(QSize, wall);
    QFETCH(Rects, rects);
    const Rects all = windowRects(static_cast<WINDOW_MOD>(value), wall);
    QVERIFY(all.size() >= rects.size());
    for (std::size_t tile = 0; tile < rects.size(); ++tile)
        QCOMPARE(all[tile], rects[tile]);
}

void TestWallLayout::tilesCoverTheWallWithoutOverlap_data()
{
    addLayoutsOfAllSizes();
}

void TestWallLayout::tilesCoverTheWallWithoutOverlap()
{
    QFETCH(int, value);
    QFETCH(QSize, wall);
    QRegion covered;
    for (const QRect& rect : windowRects(static_cast<WINDOW_MOD>(value), wall)) {
        QVERIFY(!rect.isEmpty());
        QVERIFY(!covered.intersects(rect));
        covered += rect;
    }
    QVERIFY(QRegion(QRect(QPoint(0, 0), wall)).subtracted(covered).isEmpty());
}

void TestWallLayout::lastColumnAndRowRunPastTheEdge()
{
    // 1280 and 720 can be divided by 4, and a cell is a pixel larger all the same.
    const QRect last = windowRects(WINDOW_MOD_16, QSize(1280, 720)).back();
    QCOMPARE(last, QRect(963, 543, 321, 181));
    QCOMPARE(last.right(), 1283);
    QCOMPARE(last.bottom(), 723);
    QCOMPARE(
        windowRects(WINDOW_MOD_64, QSize(3840, 2160)).back(), QRect(7 * 481, 7 * 271, 481, 271));
}

void TestWallLayout::wallWithoutASizeStillHasTiles()
{
    QCOMPARE(windowRects(WINDOW_MOD_4, QSize(0, 0)),
        (Rects{{0, 0, 1, 1}, {1, 0, 1, 1}, {0, 1, 1, 1}, {1, 1, 1, 1}}));
}

ORVA_TEST(TestWallLayout)
#include "tst_walllayout.moc"

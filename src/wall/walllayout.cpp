// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/walllayout.h"

#include <array>

namespace {

enum class Shape { Grid, BigCorner, BigCentre };

struct Layout
{
    int tiles;
    int capacity;
    Shape shape;
    int columns; // of the field of cells
    int rows;
};

constexpr std::array<Layout, windowModCount> layouts{{
    {1, 1, Shape::Grid, 1, 1},
    {4, 4, Shape::Grid, 2, 2},
    {6, 5, Shape::BigCorner, 3, 3},
    {6, 6, Shape::Grid, 3, 2},
    {8, 7, Shape::BigCorner, 4, 4},
    {9, 9, Shape::Grid, 3, 3},
    {13, 12, Shape::BigCentre, 4, 4},
    {16, 16, Shape::Grid, 4, 4},
    {25, 25, Shape::Grid, 5, 5},
    {36, 36, Shape::Grid, 6, 6},
    {49, 49, Shape::Grid, 7, 7},
    {64, 64, Shape::Grid, 8, 8},
}};

// Counted in cells of the field.
using Cells = std::vector<QRect>;

void addRow(Cells& cells, int row, int columns)
{
    for (int column = 0; column < columns; ++column)
        cells.emplace_back(column, row, 1, 1);
}

void addColumn(Cells& cells, int column, int firstRow, int count)
{
    for (int i = 0; i < count; ++i)
        cells.emplace_back(column, firstRow + i, 1, 1);
}

Cells gridCells(int columns, int rows)
{
    Cells cells;
    for (int row = 0; row < rows; ++row)
        addRow(cells, row, columns);
    return cells;
}

// The big tile at the top left, the bottom row, then what is left of the right column.
Cells bigCornerCells(int columns, int rows)
{
    Cells cells{QRect(0, 0, columns - 1, rows - 1)};
    addRow(cells, rows - 1, columns);
    addColumn(cells, columns - 1, 0, rows - 1);
    return cells;
}

// The big tile in the middle, top row, bottom row, then what is left of the left and right column.
Cells bigCentreCells(int columns, int rows)
{
    Cells cells{QRect(1, 1, columns - 2, rows - 2)};
    addRow(cells, 0, columns);
    addRow(cells, rows - 1, columns);
    addColumn(cells, 0, 1, rows - 2);
    addColumn(cells, columns - 1, 1, rows - 2);
    return cells;
}

Cells cellsOf(const Layout& layout)
{
    switch (layout.shape) {
    case Shape::Grid:
        return gridCells(layout.columns, layout.rows);
    case Shape::BigCorner:
        return bigCornerCells(layout.columns, layout.rows);
    case Shape::BigCentre:
        return bigCentreCells(layout.columns, layout.rows);
    }
    return {};
}

const Layout& layoutOf(WINDOW_MOD mod)
{
    return layouts[static_cast<std::size_t>(mod)];
}

} // namespace

bool isWindowMod(int value)
{
    return value >= 0 && value < windowModCount;
}

int windowTiles(WINDOW_MOD mod)
{
    return isWindowMod(mod) ? layoutOf(mod).tiles : 0;
}

int windowCapacity(WINDOW_MOD mod)
{
    return isWindowMod(mod) ? layoutOf(mod).capacity : 0;
}

bool hasMirrorTile(WINDOW_MOD mod)
{
    return isWindowMod(mod) && layoutOf(mod).shape != Shape::Grid;
}

std::vector<QRect> windowRects(WINDOW_MOD mod, const QSize& wall)
{
    if (!isWindowMod(mod))
        return {};
    const Layout& layout = layoutOf(mod);
    const int width = wall.width() / layout.columns + 1;
    const int height = wall.height() / layout.rows + 1;
    std::vector<QRect> rects = cellsOf(layout);
    for (QRect& rect : rects)
        rect = QRect(
            rect.x() * width, rect.y() * height, rect.width() * width, rect.height() * height);
    return rects;
}

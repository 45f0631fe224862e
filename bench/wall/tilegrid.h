// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QSize>

constexpr QSize wallSize(1920, 1080);

// Tile `number` of `count` in the smallest square grid that holds them, row by row.
inline QRect tileRect(int number, int count)
{
    int columns = 1;
    while (columns * columns < count)
        ++columns;
    const QSize cell = wallSize / columns;
    return {QPoint(number % columns * cell.width(), number / columns * cell.height()), cell};
}

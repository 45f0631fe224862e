// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QRect>
#include <QSize>

#include <vector>

// The twelve layouts of the wall, as they are stored in the settings. In a MIRROR layout tile 0 is a
// big one that shows the selected channel once more, so it does not count.
enum WINDOW_MOD : int {
    WINDOW_MOD_1,
    WINDOW_MOD_4,
    WINDOW_MOD_6_MIRROR,
    WINDOW_MOD_6,
    WINDOW_MOD_8_MIRROR,
    WINDOW_MOD_9,
    WINDOW_MOD_13_MIRROR,
    WINDOW_MOD_16,
    WINDOW_MOD_25,
    WINDOW_MOD_36,
    WINDOW_MOD_49,
    WINDOW_MOD_64,
};

Q_DECLARE_METATYPE(WINDOW_MOD)

constexpr int windowModCount = WINDOW_MOD_64 + 1;

bool isWindowMod(int value);

// How many tiles a layout has, and how many channels go on one page of it. 0 where `mod` is none of
// the twelve.
int windowTiles(WINDOW_MOD mod);
int windowCapacity(WINDOW_MOD mod);
bool hasMirrorTile(WINDOW_MOD mod);

// Where the tiles stand on a wall of that size, by tile; pixels. A cell is one pixel larger than the
// division gives, so the last column and row may run past the edge, where the wall clips them.
std::vector<QRect> windowRects(WINDOW_MOD mod, const QSize& wall);

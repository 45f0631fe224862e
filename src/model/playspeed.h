// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>

// How fast a device plays a recording; travels as one byte.
enum PLAY_SPEED {
    PLAY_SPEED_1_32,
    PLAY_SPEED_1_16,
    PLAY_SPEED_1_8,
    PLAY_SPEED_1_4,
    PLAY_SPEED_1_2,
    PLAY_SPEED_X1,
    PLAY_SPEED_X2,
    PLAY_SPEED_X4,
    PLAY_SPEED_X8,
    PLAY_SPEED_X16,
    PLAY_SPEED_X32,
};

Q_DECLARE_METATYPE(PLAY_SPEED)

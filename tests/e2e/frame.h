// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>

// Where the parts of the program stand on a screen of 1920 x 1080, whose middle its windows take, in
// live view and with the device list open. Points of the screen; pure.

constexpr QSize gateSize(860, 540);
constexpr QSize frameSize(1080, 720);

QPoint onGate(int x, int y);
QPoint onFrame(int x, int y);

QPoint localLoginKey();
QPoint closeKey();
QPoint layoutKey();
QPoint fullScreenKey();
QPoint nextPageKey();
QPoint previousPageKey();
// Where nothing of a tile is seen: under the page keys, in the frame and in full screen, and past the
// right edge of the screen, where full screen has its last tiles end.
QVector<QRect> hiddenAreas();

// The wall in the frame, and its tiles in a grid; `index` from 0, row by row.
QRect wallArea();
QRect tileArea(int columns, int rows, int index);
// The same in full screen.
QRect fullTileArea(int columns, int rows, int index);

// The device list, not scrolled; a title below an unfolded one stands elsewhere.
QPoint foldKey(int row);
QPoint titlePlace(int row);
QRect nameArea(int row);
// Cards of the first device, unfolded.
QPoint cardPlace(int channel);

// Some of the layouts, by their place in the menu.
enum class Layout { Four = 1, Nine = 5, SixtyFour = 11 };
QPoint layoutMenuKey(Layout layout);

// Rows of the menus of a device and of a channel in live view.
enum class MenuRow {
    PlayAll,
    StopAll,
    Play,
    Stop,
    Hd,
    Sd,
    AudioGet,
    Mute,
    SendVoice,
    EditDevice,
    ResetConnect,
    RecordFolder,
    ScreenshotFolder,
    DeleteDevice,
};

// The middle of a row of the menu that a right click at `mouse` has opened.
QPoint deviceMenuRow(MenuRow row, const QPoint& mouse);
QPoint channelMenuRow(MenuRow row, const QPoint& mouse);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QRect>
#include <QVector>

#include <optional>

// What of the program a user sees: read from the screen, each time anew.

// The stamp of the test picture on the tile, with zeros where it is hidden; nothing where none can be
// read.
std::optional<quint32> stampIn(const QRect& tile);
// Each of these tiles shows pictures that move on, within `ms`.
bool picturesCome(const QVector<QRect>& tiles, int ms = 30000);
// No channel is on the tile.
bool isEmpty(const QRect& tile);
// The channel on the tile waits for pictures.
bool isWaiting(const QRect& tile);

enum class NameColour { Idle, Playing, Failed };
// Of the text in an area of the device list. Idle too where there is no text.
NameColour nameColour(const QRect& area);
bool hasName(const QRect& area);

// In the middle of the wall: the alert of a failure, or the one that asks whether to delete a device;
// and the offer to open channels again.
bool isAlertOpen();
bool isOfferOpen();
// Keys of what stands there.
QPoint confirmKey();
QPoint cancelKey();
QPoint alertCloseKey();

// What the test pictures numbered by frame have shown on a tile for a while.
struct Watched
{
    int sent = 0; // by their own numbers
    int seen = 0;
    bool isInOrder = true;
    double seconds = 0;
};

QVector<Watched> watch(const QVector<QRect>& tiles, int ms);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QPoint>
#include <QSize>
#include <QString>

// What a user does, through the window system: the mouse and the keys go to whatever stands there. Each
// returns once the window system has been told.

void click(const QPoint& place);
void doubleClick(const QPoint& place);
void rightClick(const QPoint& place);
void moveMouse(const QPoint& place);
void pressKey(const QByteArray& name);

// Whether the process shows a window of this size.
bool hasWindow(qint64 process, const QSize& size);

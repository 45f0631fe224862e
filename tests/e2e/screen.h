// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

// What a user sees. Each call reads the screen anew; what lies beyond its edge is black.

QImage seen(const QRect& area);
QColor colourAt(const QPoint& place);
// How many points of the area are of that colour, each channel within `tolerance`.
int pointsOf(const QColor& colour, const QRect& area, int tolerance = 0);

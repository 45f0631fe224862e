// SPDX-License-Identifier: GPL-3.0-or-later
#include "screen.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

#include <cstdlib>

QImage seen(const QRect& area)
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, area.x(), area.y(), area.width(), area.height())
        .toImage()
        .copy(0, 0, area.width(), area.height())
        .convertToFormat(QImage::Format_RGB32);
}

QColor colourAt(const QPoint& place)
{
    return seen(QRect(place, QSize(1, 1))).pixelColor(0, 0);
}

int pointsOf(const QColor& colour, const QRect& area, int tolerance)
{
    const QImage image = seen(area);
    int points = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor other = image.pixelColor(x, y);
            points += std::abs(other.red() - colour.red()) <= tolerance
                && std::abs(other.green() - colour.green()) <= tolerance
                && std::abs(other.blue() - colour.blue()) <= tolerance;
        }
    }
    return points;
}

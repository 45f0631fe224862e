// SPDX-License-Identifier: GPL-3.0-or-later
#include "sights.h"

#include "frame.h"
#include "screen.h"
#include "stampreader.h"

#include <QElapsedTimer>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <cstring>

namespace {

constexpr QColor dangerBar(0xC2, 0x2F, 0x3D);
constexpr QColor accentBar(0x64, 0x95, 0xED);
constexpr QColor discPlate(23, 28, 37);
constexpr QColor emptyMiddle(45, 54, 68);
constexpr QSize alertSize(400, 0);

// In the bar at the left edge of an alert.
QPoint alertBar()
{
    return wallArea().center() - QPoint(alertSize.width() / 2 - 2, 0);
}

// Where the bar ends, downwards or upwards.
int barEnd(int step)
{
    QPoint place = alertBar();
    const QColor bar = colourAt(place);
    while (wallArea().contains(place) && colourAt(place) == bar)
        place += QPoint(0, step);
    return place.y();
}

// The stamp's columns between two points, as those of zeros: its rows are black, then white.
void writeZeros(QImage& stamp, int left, int right)
{
    constexpr int columns = 24;
    const int first = left * columns / stamp.width() * stamp.width() / columns;
    const int last = (right * columns / stamp.width() + 1) * stamp.width() / columns;
    for (int y = 0; y < stamp.height(); ++y)
        std::memset(stamp.scanLine(y) + first, y < stamp.height() / 2 ? 16 : 235,
            static_cast<std::size_t>(std::min(last, stamp.width()) - first));
}

} // namespace

std::optional<quint32> stampIn(const QRect& tile)
{
    constexpr int share = 6; // of the picture's height; the rest need not be fetched
    const QRect area(tile.topLeft(), QSize(tile.width(), tile.height() / share + 1));
    QImage stamp = seen(area).convertToFormat(QImage::Format_Grayscale8);
    for (const QRect& hidden : hiddenAreas()) {
        const QRect covered = hidden & area;
        if (!covered.isEmpty())
            writeZeros(stamp, covered.left() - area.left(), covered.right() - area.left());
    }
    return readStamp(stamp.constBits(), stamp.bytesPerLine(), tile.width(), tile.height());
}

bool picturesCome(const QVector<QRect>& tiles, int ms)
{
    constexpr int enough = 3;
    QVector<QSet<quint32>> stamps(tiles.size());
    return QTest::qWaitFor(
        [&] {
            bool all = true;
            for (int i = 0; i < tiles.size(); ++i) {
                if (stamps[i].size() >= enough)
                    continue;
                if (const auto stamp = stampIn(tiles[i]))
                    stamps[i].insert(*stamp);
                all = false;
            }
            return all;
        },
        ms);
}

bool isEmpty(const QRect& tile)
{
    constexpr int tolerance = 8;
    return !stampIn(tile) && pointsOf(emptyMiddle, {tile.center(), QSize(1, 1)}, tolerance) == 1;
}

bool isWaiting(const QRect& tile)
{
    QRect disc(0, 0, 64, 64);
    disc.moveCenter(tile.center());
    return !stampIn(tile) && pointsOf(discPlate, disc) > 1000;
}

NameColour nameColour(const QRect& area)
{
    constexpr int tolerance = 70; // the text is thin
    constexpr int enough = 8;
    if (pointsOf(QColor(0x00, 0x80, 0x00), area, tolerance) > enough)
        return NameColour::Playing;
    if (pointsOf(QColor(0xFF, 0x00, 0x00), area, tolerance) > enough)
        return NameColour::Failed;
    return NameColour::Idle;
}

bool hasName(const QRect& area)
{
    constexpr QColor text(0x4E, 0x52, 0x5A);
    return nameColour(area) != NameColour::Idle || pointsOf(text, area, 30) > 0;
}

bool isAlertOpen()
{
    return colourAt(alertBar()) == dangerBar;
}

bool isOfferOpen()
{
    return colourAt(alertBar()) == accentBar;
}

QPoint confirmKey()
{
    constexpr QPoint fromCorner(70, 35);
    return QPoint(alertBar().x() + alertSize.width(), barEnd(1)) - fromCorner;
}

QPoint cancelKey()
{
    return confirmKey() - QPoint(106, 0);
}

QPoint alertCloseKey()
{
    return {alertBar().x() + alertSize.width() - 24, barEnd(-1) + 22};
}

QVector<Watched> watch(const QVector<QRect>& tiles, int ms)
{
    constexpr int wrap = 500; // of the pictures' numbers
    QVector<Watched> watched(tiles.size());
    QVector<int> last(tiles.size(), -1);
    QElapsedTimer timer;
    timer.start();
    const auto look = [&](int tile) {
        const int number = static_cast<int>(stampIn(tiles[tile]).value_or(wrap));
        if (number >= wrap || number == last[tile])
            return;
        const int step = (number - last[tile] + wrap) % wrap;
        if (last[tile] >= 0) {
            watched[tile].sent += step;
            ++watched[tile].seen;
            watched[tile].isInOrder &= step < wrap / 2;
        }
        last[tile] = number;
    };
    const auto lookAtAll = [&] {
        for (int i = 0; i < tiles.size(); ++i)
            look(i);
        return false; // until the time is over
    };
    static_cast<void>(QTest::qWaitFor(lookAtAll, ms));
    for (Watched& one : watched)
        one.seconds = double(timer.elapsed()) / 1000;
    return watched;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/repaintpacer.h"

#include "store/deployment.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

// At 25 pictures a second.
constexpr std::chrono::milliseconds frameTime = 40ms;
// A tile without a picture for so long plays no more, and nobody waits for it.
constexpr std::chrono::milliseconds playing = 3 * frameTime;

std::chrono::milliseconds longestWait()
{
    constexpr std::chrono::milliseconds shortWait = 8ms;
    return Deployment::instance().decoder == Deployment::Decoder::LowDelay ? shortWait : frameTime;
}

} // namespace

RepaintPacer* RepaintPacer::of(QWidget* window)
{
    auto* pacer = window->findChild<RepaintPacer*>(QString(), Qt::FindDirectChildrenOnly);
    return pacer != nullptr ? pacer : new RepaintPacer(window);
}

RepaintPacer::RepaintPacer(QWidget* window)
    : QObject(window)
{
    clock_.start();
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setInterval(longestWait());
    connect(&timer_, &QTimer::timeout, this, &RepaintPacer::repaintAll);
}

void RepaintPacer::pictureCame(QWidget* tile)
{
    Tile& entry = entryOf(tile);
    entry.lastPicture = clock_.elapsed();
    entry.waiting = true;
    if (allHavePictures())
        repaintAll();
    else if (!timer_.isActive())
        timer_.start();
}

void RepaintPacer::pictureGoes(const QWidget* tile)
{
    const auto entry = std::find_if(
        tiles_.begin(), tiles_.end(), [tile](const Tile& known) { return known.widget == tile; });
    if (entry == tiles_.end() || !entry->waiting)
        return;
    const QPointer<QWidget> widget = entry->widget;
    repaintAll();
    widget->repaint(); // and with it all that wait for the event loop
}

RepaintPacer::Tile& RepaintPacer::entryOf(QWidget* tile)
{
    tiles_.erase(std::remove_if(tiles_.begin(), tiles_.end(),
                     [](const Tile& known) { return known.widget.isNull(); }),
        tiles_.end());
    const auto entry = std::find_if(
        tiles_.begin(), tiles_.end(), [tile](const Tile& known) { return known.widget == tile; });
    return entry != tiles_.end() ? *entry : tiles_.emplace_back(Tile{tile});
}

bool RepaintPacer::allHavePictures() const
{
    const qint64 now = clock_.elapsed();
    return std::all_of(tiles_.begin(), tiles_.end(), [now](const Tile& tile) {
        return tile.waiting || tile.widget.isNull() || !tile.widget->isVisible()
            || now - tile.lastPicture > playing.count();
    });
}

void RepaintPacer::repaintAll()
{
    timer_.stop();
    for (Tile& tile : tiles_) {
        if (tile.waiting && tile.widget)
            tile.widget->update();
        tile.waiting = false;
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/repaintpacer.h"

#include "store/deployment.h"

#include <QCoreApplication>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

// At 25 pictures a second.
constexpr std::chrono::milliseconds frameTime = 40ms;
// A tile without a picture for so long plays no more, and nobody waits for it.
constexpr std::chrono::milliseconds playing = 3 * frameTime;

// What follows a repaint before the next one may come, as a part of the time that it took: frames
// must be fetched, and users be heard, also where painting alone could fill the main thread.
constexpr int shareOfOthers = 4;

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
    connect(&timer_, &QTimer::timeout, this, &RepaintPacer::repaintAll);
}

void RepaintPacer::pictureCame(QWidget* tile)
{
    const qint64 now = clock_.elapsed();
    Tile& entry = entryOf(tile);
    entry.lastPicture = now;
    entry.waiting = true;
    const qint64 wait = allHavePictures(now) ? 0 : longestWait().count();
    const auto due = static_cast<int>(std::max(wait, nextRepaint_ - now));
    if (!timer_.isActive() || timer_.remainingTime() > due)
        timer_.start(due);
}

void RepaintPacer::pictureGoes(const QWidget* tile)
{
    const bool waits = std::any_of(tiles_.begin(), tiles_.end(),
        [tile](const Tile& known) { return known.widget == tile && known.waiting; });
    if (waits && clock_.elapsed() >= nextRepaint_)
        repaintAll();
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

bool RepaintPacer::allHavePictures(qint64 now) const
{
    return std::all_of(tiles_.begin(), tiles_.end(), [now](const Tile& tile) {
        return tile.waiting || tile.widget.isNull() || !tile.widget->isVisible()
            || now - tile.lastPicture > playing.count();
    });
}

void RepaintPacer::repaintAll()
{
    timer_.stop();
    const qint64 start = clock_.elapsed();
    for (Tile& tile : tiles_) {
        if (tile.waiting && tile.widget)
            tile.widget->update();
        tile.waiting = false;
    }
    // Now, and not once the event loop comes to it: so it is known how long it took.
    QCoreApplication::sendPostedEvents(parent(), QEvent::UpdateRequest);
    const qint64 end = clock_.elapsed();
    nextRepaint_ = end + (end - start) / shareOfOthers;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/repaintpacer.h"

#include <algorithm>
#include <utility>

RepaintPacer* RepaintPacer::of(QWidget* window)
{
    auto* pacer = window->findChild<RepaintPacer*>(QString(), Qt::FindDirectChildrenOnly);
    return pacer != nullptr ? pacer : new RepaintPacer(window);
}

RepaintPacer::RepaintPacer(QWidget* window)
    : QObject(window)
{
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &RepaintPacer::repaintAll);
}

void RepaintPacer::repaint(QWidget* tile)
{
    if (!waiting_.contains(tile))
        waiting_.append(tile);
    if (timer_.isActive())
        return;
    const qint64 passed = sinceLast_.isValid() ? sinceLast_.elapsed() : frameTime.count();
    timer_.start(static_cast<int>(std::max<qint64>(0, frameTime.count() - passed)));
}

void RepaintPacer::repaintAll()
{
    sinceLast_.start();
    const auto tiles = std::exchange(waiting_, {});
    for (const QPointer<QWidget>& tile : tiles) {
        if (tile)
            tile->update();
    }
}

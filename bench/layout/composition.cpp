// SPDX-License-Identifier: GPL-3.0-or-later
#include "composition.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QSet>
#include <QTimer>

namespace {

constexpr std::chrono::seconds patience{60};

class Watch final : public QObject
{
public:
    explicit Watch(const QList<QOpenGLWidget*>& tiles)
        : unpainted_(tiles.begin(), tiles.end())
    {
        for (QOpenGLWidget* tile : tiles)
            tile->installEventFilter(this);
        connect(tiles.last(), &QOpenGLWidget::frameSwapped, this, [this] {
            if (unpainted_.isEmpty())
                loop_.quit();
        });
    }

    void wait()
    {
        QTimer::singleShot(patience, this, [] { qFatal("a tile is not painted"); });
        loop_.exec();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            unpainted_.remove(watched);
        return false;
    }

private:
    QSet<QObject*> unpainted_;
    QEventLoop loop_;
};

void drain()
{
    QEventLoop loop;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
        &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

Span Meter::elapsed() const
{
    const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - wall_;
    return {wall.count(), processorMs() - cpu_};
}

double Meter::processorMs()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

void awaitComposition(const QList<QOpenGLWidget*>& tiles)
{
    if (!tiles.isEmpty())
        Watch(tiles).wait();
    else
        drain();
}

int countCompositions(QOpenGLWidget* tile, std::chrono::milliseconds time)
{
    int count = 0;
    QEventLoop loop;
    QObject::connect(tile, &QOpenGLWidget::frameSwapped, &loop, [&count] { ++count; });
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    return count;
}

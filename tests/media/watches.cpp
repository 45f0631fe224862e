// SPDX-License-Identifier: GPL-3.0-or-later
#include "watches.h"

#include "model/task.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>
#include <mutex>

namespace {

std::mutex logMutex;
QStringList logLines; // guarded by logMutex

void keepLine(QtMsgType, const QMessageLogContext&, const QString& line)
{
    const std::lock_guard lock(logMutex);
    logLines.append(line);
}

} // namespace

ResultWatch::ResultWatch()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool ResultWatch::eventFilter(QObject* receiver, QEvent* event)
{
    switch (static_cast<int>(event->type())) {
    case DecodeEvent_getVideo::number: {
        const auto& got = eventCast<DecodeEvent_getVideo>(event);
        video.push_back({receiver, got.result, got.buffer != nullptr, got.info});
        break;
    }
    case DecodeEvent_getAudio::number: {
        const auto& got = eventCast<DecodeEvent_getAudio>(event);
        sound.push_back({receiver, got.result, got.buffer != nullptr, got.info});
        break;
    }
    case VideoEvent_decoede::number: {
        const auto& got = eventCast<VideoEvent_decoede>(event);
        pictures.push_back({got.result, got.width, got.height, got.timestamp});
        break;
    }
    default:
        break;
    }
    return false;
}

std::vector<int> ResultWatch::pictureResults() const
{
    std::vector<int> results(pictures.size());
    std::transform(pictures.begin(), pictures.end(), results.begin(),
        [](const Picture& picture) { return picture.result; });
    return results;
}

PauseWatch::PauseWatch()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool PauseWatch::eventFilter(QObject* receiver, QEvent* event)
{
    const auto* timer = qobject_cast<QTimer*>(receiver);
    if (event->type() == QEvent::Timer && timer != nullptr && timer->isSingleShot())
        pauses.push_back(timer->interval());
    return false;
}

struct PoolBlock::State
{
    QSemaphore arrived;
    QSemaphore mayGo;
    int tasks = 0;
};

PoolBlock::PoolBlock()
    : state_(std::make_shared<State>())
{
    QThreadPool::globalInstance()->waitForDone();
    state_->tasks = QThreadPool::globalInstance()->maxThreadCount();
    for (int i = 0; i < state_->tasks; ++i) {
        runTask(nullptr, [state = state_] {
            state->arrived.release();
            state->mayGo.acquire();
        });
    }
    state_->arrived.acquire(state_->tasks);
}

void PoolBlock::release()
{
    state_->mayGo.release(state_->tasks);
    state_->tasks = 0;
}

PoolSize::PoolSize(int threads)
    : before_(QThreadPool::globalInstance()->maxThreadCount())
{
    QThreadPool::globalInstance()->setMaxThreadCount(threads);
}

PoolSize::~PoolSize()
{
    QThreadPool::globalInstance()->waitForDone();
    QThreadPool::globalInstance()->setMaxThreadCount(before_);
}

LogWatch::LogWatch()
    : before_(qInstallMessageHandler(keepLine))
{
    const std::lock_guard lock(logMutex);
    logLines.clear();
}

LogWatch::~LogWatch()
{
    qInstallMessageHandler(before_);
}

QStringList LogWatch::lines()
{
    const std::lock_guard lock(logMutex);
    return logLines;
}

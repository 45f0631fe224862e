// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/channelhold.h"

#include <QCoreApplication>
#include <QtConcurrent>

#include <utility>

#if defined(__SANITIZE_THREAD__)
#include <sanitizer/tsan_interface.h>
#endif

// The one pattern for work that may block. A task is a short function on the global thread pool;
// it does one blocking thing and posts the result as an event to the object that started it, whose
// event() turns it into state and signals on the main thread. Nothing cancels a
// task. The receiver must outlive its tasks: receivers are singletons, or children of one that are
// not deleted before it, or wait for their last task.
//
//     runTask(channel, [this, channel, avIndex, request] {
//         const int result = avSendIOCtrl(avIndex, ...);
//         postResult(this, new ProgressEvent_setWifi(channel, result));
//     });

// The thread sanitizer cannot look into Qt's thread pool and event queue, so both hand-overs are
// told to it, by an address that both sides know.
class HandOver
{
public:
    static void give([[maybe_unused]] void* address)
    {
#if defined(__SANITIZE_THREAD__)
        __tsan_release(address);
#endif
    }
    static void take([[maybe_unused]] void* address)
    {
#if defined(__SANITIZE_THREAD__)
        __tsan_acquire(address);
#endif
    }
    static inline char poolQueue = 0; // stands for the pool's queue
};

// The stored call: what QtConcurrent copies into its own object, and runs there.
template <typename Work>
class StoredTask
{
public:
    StoredTask(Channel* channel, Work work)
        : hold_(channel)
        , work_(std::move(work))
    {
    }
    StoredTask(const StoredTask& other)
        : hold_(other.hold_)
        , work_(other.work_)
    {
        HandOver::give(&HandOver::poolQueue);
    }
    StoredTask& operator=(const StoredTask&) = delete;
    ~StoredTask() = default;

    void operator()()
    {
        HandOver::take(&HandOver::poolQueue);
        work_();
    }

private:
    ChannelHold hold_; // first, so that it outlives what the work has captured
    Work work_;
};

// Runs `work`, a copyable function object, on the global pool. Main thread, or a task that holds the
// channel itself. `channel` may be null; its device is kept alive until `work` has returned and its
// captures are gone.
template <typename Work>
void runTask(Channel* channel, Work work)
{
    QtConcurrent::run(StoredTask<Work>(channel, std::move(work)));
}

// Hands `event` to `receiver`, whose event() runs on the main thread. Any thread.
inline void postResult(QObject* receiver, QEvent* event)
{
    HandOver::give(event);
    QCoreApplication::postEvent(receiver, event, Qt::NormalEventPriority);
}

// The event as the class whose number it has; for use in event(), after a look at type().
template <class Event>
Event& eventCast(QEvent* event)
{
    HandOver::take(event);
    Q_ASSERT(event->type() == Event::number);
    return static_cast<Event&>(*event);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/task.h"

#include <QMutex>
#include <QMutexLocker>

#include <deque>
#include <functional>
#include <mutex>

// Runs tasks one after the other, in the order in which they were given. Each has a thread of the
// pool and waits its turn there, behind one mutex, which it holds from its first line to its last. A
// mutex alone would keep no order: the stop of a moving camera must not be overtaken.
//
// Waiting tasks are not bounded, as those of the pool are not: each is something that a user asked
// for. Main thread; must outlive its tasks.
class TaskLine final
{
public:
    using Work = std::function<void()>;

    TaskLine() = default;
    Q_DISABLE_COPY_MOVE(TaskLine)

    // `channel` may be null; its device is kept alive until `work` has returned.
    void run(Channel* channel, Work work)
    {
        {
            const std::lock_guard lock(waitingMutex_);
            waiting_.push_back({ChannelHold(channel), std::move(work)});
        }
        runTask(nullptr, [this] { runFirst(); }); // the task in the line holds the channel
    }

private:
    struct Task
    {
        ChannelHold channel;
        Work work;
    };

    // Whichever thread gets the mutex runs the task that has waited longest.
    void runFirst()
    {
        const QMutexLocker lock(&mutex_);
        takeFirst().work();
    }
    Task takeFirst()
    {
        const std::lock_guard lock(waitingMutex_);
        Task first = std::move(waiting_.front());
        waiting_.pop_front();
        return first;
    }

    QMutex mutex_; // across the blocking call of a task
    std::mutex waitingMutex_;
    std::deque<Task> waiting_; // guarded by waitingMutex_
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/task.h"

#include <memory>
#include <mutex>

// Where threads of the device library post to. A report may come after its receiver has gone, since
// the library is taken down by a task that nobody waits for; it is dropped then.
class ReportAddress final
{
public:
    explicit ReportAddress(QObject* receiver)
        : receiver_(receiver)
    {
    }
    Q_DISABLE_COPY_MOVE(ReportAddress)

    // Any thread.
    void post(std::unique_ptr<QEvent> event)
    {
        const std::lock_guard lock(mutex_);
        if (receiver_ != nullptr)
            postResult(receiver_, event.release());
    }
    // From now on nothing is posted. Called by the receiver's destructor.
    void close()
    {
        const std::lock_guard lock(mutex_);
        receiver_ = nullptr;
    }

private:
    std::mutex mutex_;
    QObject* receiver_; // guarded by mutex_
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <mutex>
#include <utility>

// How many tasks of an object are under way. Each captures a Hold, which counts until the task has
// returned and its captures are gone; then the object may be destroyed. Any thread.
class TaskCount final
{
public:
    class Hold
    {
    public:
        explicit Hold(TaskCount& count)
            : count_(&count)
        {
            count_->add();
        }
        Hold(const Hold& other)
            : Hold(*other.count_)
        {
        }
        Hold& operator=(const Hold&) = delete;
        ~Hold() { count_->remove(); }

    private:
        TaskCount* count_;
    };

    TaskCount() = default;
    TaskCount(const TaskCount&) = delete;
    TaskCount& operator=(const TaskCount&) = delete;
    ~TaskCount() = default;

    Hold hold() { return Hold(*this); }

    bool isNone() const
    {
        const std::lock_guard lock(mutex_);
        return count_ == 0;
    }

    // Blocks. Only once nothing starts a task any more.
    void waitForNone()
    {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return count_ == 0; });
    }

private:
    void add()
    {
        const std::lock_guard lock(mutex_);
        ++count_;
    }
    void remove()
    {
        // Told under the lock: whoever waits may destroy this as soon as it is free.
        const std::lock_guard lock(mutex_);
        if (--count_ == 0)
            changed_.notify_all();
    }

    mutable std::mutex mutex_;
    std::condition_variable changed_;
    int count_ = 0; // guarded by mutex_
};

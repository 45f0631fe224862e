// SPDX-License-Identifier: GPL-3.0-or-later
#include "jobqueue.h"

JobQueue::JobQueue()
    : thread_([this] { run(); })
{
}

JobQueue::~JobQueue()
{
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_one();
    thread_.join();
}

bool JobQueue::post(std::function<void()> job)
{
    {
        const std::lock_guard lock(mutex_);
        if (jobs_.size() >= maxJobs)
            return false;
        jobs_.push_back(std::move(job));
    }
    changed_.notify_one();
    return true;
}

void JobQueue::run()
{
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return ending_ || !jobs_.empty(); });
        if (jobs_.empty())
            return;
        const auto job = std::move(jobs_.front());
        jobs_.pop_front();
        lock.unlock();
        job();
        lock.lock();
    }
}

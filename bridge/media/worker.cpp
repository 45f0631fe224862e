// SPDX-License-Identifier: GPL-3.0-or-later
#include "worker.h"

#include "log.h"

#include <string>
#include <system_error>

Worker::Worker(std::function<void()> body)
    : body_(std::move(body))
{
}

Worker::~Worker()
{
    stop();
}

void Worker::wake()
{
    const std::lock_guard lock(mutex_);
    if (!stopping_ && !thread_.joinable()) {
        try {
            thread_ = std::thread(body_);
        } catch (const std::system_error& error) {
            // The next wake() tries again.
            logEvent(LogLevel::Error, {}, -1, std::string("no thread: ") + error.what());
        }
    }
    changed_.notify_all();
}

void Worker::stop()
{
    std::thread ending;
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
        ending.swap(thread_);
        changed_.notify_all();
    }
    if (ending.joinable())
        ending.join();
}

bool Worker::stopping() const
{
    const std::lock_guard lock(mutex_);
    return stopping_;
}

bool Worker::sleepUntil(Clock::time_point time)
{
    std::unique_lock lock(mutex_);
    return !changed_.wait_until(lock, time, [this] { return stopping_; });
}

bool Worker::waitFor(const std::function<bool()>& condition)
{
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return stopping_ || condition(); });
    return !stopping_;
}

bool Worker::waitFor(const std::function<bool()>& condition, Clock::time_point time)
{
    std::unique_lock lock(mutex_);
    changed_.wait_until(lock, time, [&] { return stopping_ || condition(); });
    return !stopping_;
}

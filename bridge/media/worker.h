// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

// A thread that is started by the first wake() and lives until stop(). The body waits with
// waitFor() and sleepUntil() and returns when one of them, or stopping(), says so.
// Threads: wake() and stop() any; stop() not from the body; the rest from the body.
class Worker
{
public:
    using Clock = std::chrono::steady_clock;

    explicit Worker(std::function<void()> body);
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;
    ~Worker();

    // Starts the body, or lets it look at its condition again.
    void wake();
    // Returns when the body has returned. Later calls of wake() do nothing.
    void stop();

    bool stopping() const;
    // False when stop() has been called.
    bool sleepUntil(Clock::time_point time);
    // Until `condition` holds, which is asked after each wake(); false when stop() has been called.
    bool waitFor(const std::function<bool()>& condition);
    // The same, but not past `time`.
    bool waitFor(const std::function<bool()>& condition, Clock::time_point time);

private:
    const std::function<void()> body_;
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    // guarded by mutex_
    std::thread thread_;
    bool stopping_ = false;
};

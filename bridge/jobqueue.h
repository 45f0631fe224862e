// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

// One thread that does jobs in the order they were posted: what waits for a disk must not wait on
// the thread that answers clients. Threads: any.
class JobQueue
{
public:
    // A job is a speech frame, a change of a password, or the saving of a device, of which one at
    // a time waits per device. 64 devices with a talker each, over a disk that stands still for
    // half a second, come to 800 frames.
    static constexpr std::size_t maxJobs = 1024;

    JobQueue();
    JobQueue(const JobQueue&) = delete;
    JobQueue& operator=(const JobQueue&) = delete;
    // Does the jobs that wait, then ends the thread.
    ~JobQueue();

    // False when maxJobs wait; the job is dropped then.
    bool post(std::function<void()> job);

private:
    void run();

    std::mutex mutex_;
    // guarded by mutex_
    std::condition_variable changed_;
    std::deque<std::function<void()>> jobs_;
    bool ending_ = false;

    std::thread thread_;
};

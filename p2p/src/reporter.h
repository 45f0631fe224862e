// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

// Makes reports to the client, one at a time and in order, on a thread of its own, so that a
// report may take its time and may call any function of the layer.
// Threads: any.
class Reporter
{
public:
    Reporter();
    Reporter(const Reporter&) = delete;
    Reporter& operator=(const Reporter&) = delete;
    ~Reporter();

    // False when the system gave no thread.
    bool ready() const { return thread_.joinable(); }
    void add(std::function<void()> report);
    // Makes what waits, then ends. Once. From within a report, the rest is made on the spot.
    void finish();

private:
    struct State
    {
        std::mutex mutex;
        std::condition_variable changed;
        std::deque<std::function<void()>> waiting;
        bool finishing = false;
    };

    static void run(State& state);
    static bool runNext(State& state, std::unique_lock<std::mutex>& lock);

    const std::shared_ptr<State> state_; // the thread's, too, which may end last
    std::thread thread_;
};

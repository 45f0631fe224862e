// SPDX-License-Identifier: GPL-3.0-or-later
#include "src/reporter.h"

#include <system_error>
#include <utility>

Reporter::Reporter()
    : state_(std::make_shared<State>())
{
    try {
        thread_ = std::thread([state = state_] { run(*state); });
    } catch (const std::system_error&) {
        // ready() tells.
    }
}

Reporter::~Reporter()
{
    finish();
}

void Reporter::add(std::function<void()> report)
{
    const std::lock_guard lock(state_->mutex);
    state_->waiting.push_back(std::move(report));
    state_->changed.notify_all();
}

void Reporter::finish()
{
    if (!thread_.joinable())
        return;
    std::unique_lock lock(state_->mutex);
    state_->finishing = true;
    state_->changed.notify_all();
    if (std::this_thread::get_id() == thread_.get_id()) {
        while (runNext(*state_, lock)) { }
        thread_.detach();
        return;
    }
    lock.unlock();
    thread_.join();
}

void Reporter::run(State& state)
{
    std::unique_lock lock(state.mutex);
    for (;;) {
        state.changed.wait(lock, [&] { return !state.waiting.empty() || state.finishing; });
        if (!runNext(state, lock))
            return;
    }
}

bool Reporter::runNext(State& state, std::unique_lock<std::mutex>& lock)
{
    if (state.waiting.empty())
        return false;
    const std::function<void()> report = std::move(state.waiting.front());
    state.waiting.pop_front();
    lock.unlock();
    report();
    lock.lock();
    return true;
}

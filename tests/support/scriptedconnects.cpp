// SPDX-License-Identifier: GPL-3.0-or-later
#include "scriptedconnects.h"

#include "scriptedengine.h"

#include <algorithm>
#include <utility>

ScriptedConnects::ScriptedConnects(ScriptedLayer& layer, std::condition_variable& changed)
    : layer_(layer)
    , changed_(changed)
{
}

void ScriptedConnects::start(Lock& lock, Attempt attempt)
{
    if (thread_ == std::thread::id()) {
        std::thread thread([this, mutex = lock.mutex()] { run(*mutex); });
        thread_ = thread.get_id();
        thread.detach();
    }
    pending_.push_back({std::move(attempt), nextSerial_++, std::chrono::steady_clock::now()});
    changed_.notify_all();
}

bool ScriptedConnects::report(int sessionId, const ConnectStep& step)
{
    const auto owners = ownersOf(sessionId);
    for (Pending* pending : owners)
        pending->attempt.steps.push_back(step);
    changed_.notify_all();
    return !owners.empty();
}

void ScriptedConnects::stop(int sessionId, int result)
{
    for (Pending* pending : ownersOf(sessionId))
        replaceSteps(*pending, ConnectStep::failed(result));
}

void ScriptedConnects::disown(int sessionId)
{
    for (Pending* pending : ownersOf(sessionId))
        pending->attempt.ownsSession = false;
}

void ScriptedConnects::stopAll(int result)
{
    for (Pending& pending : pending_) {
        pending.attempt.ownsSession = false;
        replaceSteps(pending, ConnectStep::failed(result));
    }
}

void ScriptedConnects::drain(Lock& lock)
{
    if (std::this_thread::get_id() == thread_) {
        for (Entry entry = earliest(); entry != pending_.end(); entry = earliest())
            makeReport(lock, entry);
        return;
    }
    changed_.wait(lock, [this, serial = nextSerial_] { return drained(serial); });
}

bool ScriptedConnects::drained(int serial) const
{
    if (reporting() && reportedSerial_ < serial)
        return false;
    return std::none_of(pending_.begin(), pending_.end(),
        [serial](const Pending& pending) { return pending.serial < serial; });
}

void ScriptedConnects::dropAll()
{
    pending_.clear();
}

void ScriptedConnects::run(std::mutex& mutex)
{
    Lock lock(mutex);
    for (;;) {
        const Entry entry = earliest();
        if (entry == pending_.end())
            changed_.wait(lock);
        else if (const auto due = entry->due(); due > std::chrono::steady_clock::now())
            changed_.wait_until(lock, due);
        else
            makeReport(lock, entry);
    }
}

ScriptedConnects::Entry ScriptedConnects::earliest()
{
    const auto sooner = [](const Pending& one, const Pending& other) {
        return one.ready() && (!other.ready() || one.due() < other.due());
    };
    const Entry entry = std::min_element(pending_.begin(), pending_.end(), sooner);
    return entry != pending_.end() && entry->ready() ? entry : pending_.end();
}

void ScriptedConnects::makeReport(Lock& lock, Entry entry)
{
    const Attempt attempt = entry->attempt;
    const int serial = entry->serial;
    const ConnectStep step = attempt.steps.front();
    const int result = step.result.value_or(attempt.sessionId);
    entry->attempt.steps.pop_front();
    entry->lastReport = std::chrono::steady_clock::now();
    if (step.isFinal()) {
        settle(attempt, step.state, result);
        pending_.erase(entry);
    }

    const int outerSerial = std::exchange(reportedSerial_, serial);
    ++depth_;
    {
        const InsideLayer inside;
        const Unlocked unlocked(lock);
        attempt.callback(step.state, result, attempt.userData);
    }
    --depth_;
    reportedSerial_ = outerSerial;
    changed_.notify_all();
}

void ScriptedConnects::settle(const Attempt& attempt, int state, int result)
{
    if (!attempt.ownsSession)
        return;
    if (state == 2 && result >= 0)
        layer_.sessions.insert_or_assign(attempt.sessionId, ScriptedLayer::Session::Connected);
    else
        layer_.sessions.erase(attempt.sessionId);
}

std::list<ScriptedConnects::Pending*> ScriptedConnects::ownersOf(int sessionId)
{
    std::list<Pending*> owners;
    for (Pending& pending : pending_) {
        if (pending.attempt.ownsSession && pending.attempt.sessionId == sessionId)
            owners.push_back(&pending);
    }
    return owners;
}

void ScriptedConnects::replaceSteps(Pending& pending, const ConnectStep& step)
{
    pending.attempt.steps.assign(1, step);
    changed_.notify_all();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "scriptedconnects.h"

#include "scriptedengine.h"

#include <algorithm>
#include <utility>

ScriptedConnects::ScriptedConnects(ScriptedLayer& layer, std::condition_variable& changed)
    : m_layer(layer)
    , m_changed(changed)
{
}

void ScriptedConnects::start(Lock& lock, Attempt attempt)
{
    if (m_thread == std::thread::id()) {
        std::thread thread([this, mutex = lock.mutex()] { run(*mutex); });
        m_thread = thread.get_id();
        thread.detach();
    }
    m_pending.push_back({std::move(attempt), m_nextSerial++, std::chrono::steady_clock::now()});
    m_changed.notify_all();
}

bool ScriptedConnects::report(int sessionId, const ConnectStep& step)
{
    const auto owners = ownersOf(sessionId);
    for (Pending* pending : owners)
        pending->attempt.steps.push_back(step);
    m_changed.notify_all();
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
    for (Pending& pending : m_pending) {
        pending.attempt.ownsSession = false;
        replaceSteps(pending, ConnectStep::failed(result));
    }
}

void ScriptedConnects::drain(Lock& lock)
{
    if (std::this_thread::get_id() == m_thread) {
        for (Entry entry = earliest(); entry != m_pending.end(); entry = earliest())
            makeReport(lock, entry);
        return;
    }
    m_changed.wait(lock, [this, serial = m_nextSerial] { return drained(serial); });
}

bool ScriptedConnects::drained(int serial) const
{
    if (reporting() && m_reportedSerial < serial)
        return false;
    return std::none_of(m_pending.begin(), m_pending.end(),
        [serial](const Pending& pending) { return pending.serial < serial; });
}

void ScriptedConnects::dropAll()
{
    m_pending.clear();
}

void ScriptedConnects::run(std::mutex& mutex)
{
    Lock lock(mutex);
    for (;;) {
        const Entry entry = earliest();
        if (entry == m_pending.end())
            m_changed.wait(lock);
        else if (const auto due = entry->due(); due > std::chrono::steady_clock::now())
            m_changed.wait_until(lock, due);
        else
            makeReport(lock, entry);
    }
}

ScriptedConnects::Entry ScriptedConnects::earliest()
{
    const auto sooner = [](const Pending& one, const Pending& other) {
        return one.ready() && (!other.ready() || one.due() < other.due());
    };
    const Entry entry = std::min_element(m_pending.begin(), m_pending.end(), sooner);
    return entry != m_pending.end() && entry->ready() ? entry : m_pending.end();
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
        m_pending.erase(entry);
    }

    const int outerSerial = std::exchange(m_reportedSerial, serial);
    ++m_depth;
    {
        const InsideLayer inside;
        const Unlocked unlocked(lock);
        attempt.callback(step.state, result, attempt.userData);
    }
    --m_depth;
    m_reportedSerial = outerSerial;
    m_changed.notify_all();
}

void ScriptedConnects::settle(const Attempt& attempt, int state, int result)
{
    if (!attempt.ownsSession)
        return;
    if (state == 2 && result >= 0)
        m_layer.sessions.insert_or_assign(attempt.sessionId, ScriptedLayer::Session::Connected);
    else
        m_layer.sessions.erase(attempt.sessionId);
}

std::list<ScriptedConnects::Pending*> ScriptedConnects::ownersOf(int sessionId)
{
    std::list<Pending*> owners;
    for (Pending& pending : m_pending) {
        if (pending.attempt.ownsSession && pending.attempt.sessionId == sessionId)
            owners.push_back(&pending);
    }
    return owners;
}

void ScriptedConnects::replaceSteps(Pending& pending, const ConnectStep& step)
{
    pending.attempt.steps.assign(1, step);
    m_changed.notify_all();
}

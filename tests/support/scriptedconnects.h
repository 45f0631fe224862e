// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scriptedlayer.h"
#include "scriptedrule.h"

#include <condition_variable>
#include <list>
#include <mutex>

// Makes the reports of scripted connects, one at a time, on a thread of its own that starts with
// the first connect and lives as long as the process. Owned by ScriptedEngine, whose mutex guards
// everything here; callbacks run with it given up.
class ScriptedConnects final
{
public:
    using Lock = std::unique_lock<std::mutex>;

    struct Attempt
    {
        int sessionId;
        bool ownsSession; // gives the id back when it fails
        IOTC_ConnectCallback callback;
        void* userData;
        std::deque<ConnectStep> steps; // up to the first final one
    };

    ScriptedConnects(ScriptedLayer& layer, std::condition_variable& changed);

    void start(Lock& lock, Attempt attempt);
    bool report(int sessionId, const ConnectStep& step); // false without a pending attempt
    void stop(int sessionId, int result);
    void disown(int sessionId); // the id is given back already and may have a new owner
    void stopAll(int result); // and disowns
    // Returns when no report is pending or under way of the connects started so far. On the
    // reporting thread itself, which has a report under way, makes the pending ones on the spot.
    void drain(Lock& lock);

    void dropAll(); // no further reports of the connects started so far
    bool reporting() const { return depth_ > 0; }

private:
    Q_DISABLE_COPY_MOVE(ScriptedConnects)

    struct Pending
    {
        Attempt attempt;
        int serial;
        std::chrono::steady_clock::time_point lastReport;

        bool ready() const { return !attempt.steps.empty(); }
        auto due() const { return lastReport + attempt.steps.front().after; }
    };
    using Entry = std::list<Pending>::iterator;

    [[noreturn]] void run(std::mutex& mutex);
    bool drained(int serial) const;
    Entry earliest(); // end() when no report is to be made
    void makeReport(Lock& lock, Entry entry);
    void settle(const Attempt& attempt, int state, int result);
    std::list<Pending*> ownersOf(int sessionId);
    void replaceSteps(Pending& pending, const ConnectStep& step);

    ScriptedLayer& layer_;
    std::condition_variable& changed_;
    std::list<Pending> pending_;
    std::thread::id thread_; // that of nobody before the first connect
    int nextSerial_ = 0;
    int reportedSerial_ = 0; // of the report under way
    int depth_ = 0; // reports under way; above 1 only by drain() inside one
};

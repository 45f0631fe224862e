// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scriptedconnects.h"

// Gives a lock up for a scope.
class Unlocked final
{
public:
    explicit Unlocked(std::unique_lock<std::mutex>& lock)
        : lock_(lock)
    {
        lock_.unlock();
    }
    ~Unlocked() { lock_.lock(); }

private:
    Q_DISABLE_COPY_MOVE(Unlocked)

    std::unique_lock<std::mutex>& lock_;
};

// Marks that this thread is inside a call or report for a scope: calls from there are let in while
// a reset waits for it.
class InsideLayer final
{
public:
    InsideLayer();
    ~InsideLayer();
    static bool here();

private:
    Q_DISABLE_COPY_MOVE(InsideLayer)
};

// One call while it is inside the layer: what its answer works with. Lives on the caller's stack
// for the length of the call, with the engine's mutex held but for the waits and unlocked parts.
class CallTurn final
{
public:
    using Lock = std::unique_lock<std::mutex>;

    CallTurn(Lock held, LinkCall& record);

    // Waits until `done`, the deadline (none: forever), or another call ends this one; the result
    // is then the one it ends with.
    std::optional<int> waitUntil(const std::function<bool()>& done,
        std::optional<std::chrono::steady_clock::time_point> deadline = std::nullopt);

    LinkCall& call; // the record, whose result is written as the call returns
    std::shared_ptr<const LinkRule> rule; // null: nothing scripted; goes after the lock has gone
    Lock lock;
    ScriptedLayer& layer;
    ScriptedConnects& connects;
    std::optional<int> ended; // another call has ended this one
};

// How a function answers. `own` is the well-behaved layer's answer; `adopt` brings the state in
// line with a result that came from the script or from an end.
struct CallBody
{
    std::function<int(CallTurn&)> own;
    std::function<void(CallTurn&, int)> adopt;
    bool hasResult = true;
};

// The inside of the scripted layer: records calls, finds the rule of each, lets calls wait and
// ends them. The one object lives to the end of the process, since client threads may call the
// layer up to then. One mutex guards everything and one condition tells of every change: what
// matters here is that tests are deterministic, not that they are fast.
class ScriptedEngine final
{
public:
    using Lock = std::unique_lock<std::mutex>;

    static ScriptedEngine& instance();

    // For the functions of the layer.
    int run(LinkFn function, std::vector<LinkArgument> arguments, const CallBody& body);
    void end(const std::function<bool(const LinkCall&)>& which, int result);
    void endChannel(int avIndex, int result);
    void endSession(int sessionId, int result);
    void endAll();

    // For the test's side.
    Lock lock() { return Lock(mutex_); }
    void change(const std::function<void()>& change); // with the mutex held; wakes who waits
    bool waitFor(const std::function<bool()>& condition, std::chrono::milliseconds patience);
    void addRule(LinkRule rule);
    void reset();

    // The caller holds lock().
    const std::deque<LinkCall>& calls() const { return calls_; }
    ScriptedLayer& layer() { return layer_; }
    ScriptedConnects& connects() { return connects_; }

private:
    friend class CallTurn;
    Q_DISABLE_COPY_MOVE(ScriptedEngine)

    ScriptedEngine();
    void enter(Lock& lock);
    LinkCall& note(LinkFn function, std::vector<LinkArgument> arguments);
    std::shared_ptr<const LinkRule> takeRule(const LinkCall& call);
    int resultOf(CallTurn& turn, const CallBody& body);
    std::optional<int> pause(CallTurn& turn);
    std::optional<int> passGate(CallTurn& turn, LinkGate::State& gate);
    void followUp(CallTurn& turn, std::optional<int> result);
    void finish(CallTurn& turn, std::optional<int> result);
    void awaitQuiet(Lock& lock);

    std::mutex mutex_;
    std::condition_variable changed_;
    // All below is guarded by mutex_.
    std::deque<LinkCall> calls_; // a deque: calls in flight keep references to their records
    std::vector<CallTurn*> turns_;
    bool resetting_ = false; // calls of threads that come from outside wait meanwhile
    std::vector<std::shared_ptr<const LinkRule>> rules_; // in the order of the script
    ScriptedLayer layer_;
    ScriptedConnects connects_;
};

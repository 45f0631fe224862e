// SPDX-License-Identifier: GPL-3.0-or-later
#include "scriptedengine.h"

#include "AVAPIs.h"

#include <algorithm>

namespace {

constexpr std::chrono::seconds resetPatience{10};

thread_local int depthInLayer = 0;

bool isChannelCall(LinkFn function)
{
    return function >= LinkFn::avInitialize;
}

int notInitialized(LinkFn function)
{
    if (isChannelCall(function))
        return AV_NOT_INITIALIZED;
    return IOTC_NOT_INITIALIZED;
}

bool isUp(const ScriptedLayer& layer, LinkFn function)
{
    if (function == LinkFn::IOTC_Initialize2 || function == LinkFn::avInitialize)
        return true;
    return isChannelCall(function) ? layer.maxChannels > 0 : layer.sessionsUp;
}

} // namespace

InsideLayer::InsideLayer()
{
    ++depthInLayer;
}

InsideLayer::~InsideLayer()
{
    --depthInLayer;
}

bool InsideLayer::here()
{
    return depthInLayer > 0;
}

CallTurn::CallTurn(Lock held, LinkCall& record)
    : call(record)
    , lock(std::move(held))
    , layer(ScriptedEngine::instance().layer_)
    , connects(ScriptedEngine::instance().connects_)
{
}

std::optional<int> CallTurn::waitUntil(const std::function<bool()>& done,
    std::optional<std::chrono::steady_clock::time_point> deadline)
{
    auto& changed = ScriptedEngine::instance().changed_;
    const auto over = [this, &done] { return ended.has_value() || done(); };
    if (deadline)
        changed.wait_until(lock, *deadline, over);
    else
        changed.wait(lock, over);
    return ended;
}

ScriptedEngine& ScriptedEngine::instance()
{
    static auto* const engine = new ScriptedEngine;
    return *engine;
}

ScriptedEngine::ScriptedEngine()
    : connects_(layer_, changed_)
{
}

int ScriptedEngine::run(LinkFn function, std::vector<LinkArgument> arguments, const CallBody& body)
{
    Lock held = lock();
    enter(held);
    const InsideLayer inside;
    CallTurn turn(std::move(held), note(function, std::move(arguments)));
    turns_.push_back(&turn);
    changed_.notify_all();

    turn.rule = takeRule(turn.call);
    const int result = resultOf(turn, body);
    const auto told = body.hasResult ? std::optional<int>(result) : std::nullopt;
    followUp(turn, told);
    finish(turn, told);
    return result;
}

void ScriptedEngine::enter(Lock& lock)
{
    if (!InsideLayer::here())
        changed_.wait(lock, [this] { return !resetting_; });
}

LinkCall& ScriptedEngine::note(LinkFn function, std::vector<LinkArgument> arguments)
{
    LinkCall& call = calls_.emplace_back();
    call.function = function;
    call.sequence = static_cast<int>(calls_.size());
    call.thread = std::this_thread::get_id();
    call.start = std::chrono::steady_clock::now();
    call.arguments = std::move(arguments);
    return call;
}

// One-time rules come first, oldest first; of the lasting ones the newest holds.
std::shared_ptr<const LinkRule> ScriptedEngine::takeRule(const LinkCall& call)
{
    const auto once = std::find_if(rules_.begin(), rules_.end(),
        [&call](const auto& rule) { return rule->once && rule->appliesTo(call); });
    if (once != rules_.end()) {
        auto rule = *once;
        rules_.erase(once);
        return rule;
    }
    const auto lasting = std::find_if(rules_.rbegin(), rules_.rend(),
        [&call](const auto& rule) { return !rule->once && rule->appliesTo(call); });
    return lasting == rules_.rend() ? nullptr : *lasting;
}

int ScriptedEngine::resultOf(CallTurn& turn, const CallBody& body)
{
    std::optional<int> result = pause(turn);
    if (!result && turn.rule && turn.rule->answer) {
        const Unlocked unlocked(turn.lock);
        result = turn.rule->answer(turn.call);
    }
    if (result) {
        if (body.adopt)
            body.adopt(turn, *result);
        return *result;
    }
    return isUp(layer_, turn.call.function) ? body.own(turn) : notInitialized(turn.call.function);
}

std::optional<int> ScriptedEngine::pause(CallTurn& turn)
{
    const auto never = [] { return false; };
    if (!turn.rule)
        return std::nullopt;
    if (turn.rule->gate) {
        if (const auto result = passGate(turn, *turn.rule->gate))
            return result;
    }
    if (turn.rule->hangs)
        return turn.waitUntil(never);
    if (turn.rule->delay > std::chrono::milliseconds::zero())
        return turn.waitUntil(never, std::chrono::steady_clock::now() + turn.rule->delay);
    return std::nullopt;
}

std::optional<int> ScriptedEngine::passGate(CallTurn& turn, LinkGate::State& gate)
{
    ++gate.reached;
    ++gate.waiting;
    changed_.notify_all();
    const auto result = turn.waitUntil([&gate] { return gate.open; });
    --gate.waiting;
    changed_.notify_all();
    return result;
}

void ScriptedEngine::followUp(CallTurn& turn, std::optional<int> result)
{
    if (!turn.rule || turn.rule->followUps.empty())
        return;
    LinkCall answered = turn.call;
    answered.result = result;
    const Unlocked unlocked(turn.lock);
    for (const auto& follow : turn.rule->followUps)
        follow(answered);
}

void ScriptedEngine::finish(CallTurn& turn, std::optional<int> result)
{
    turn.call.returned = true;
    turn.call.duration = std::chrono::steady_clock::now() - turn.call.start;
    turn.call.result = result;
    turns_.erase(std::find(turns_.begin(), turns_.end(), &turn));
    changed_.notify_all();
}

void ScriptedEngine::end(const std::function<bool(const LinkCall&)>& which, int result)
{
    for (CallTurn* turn : turns_) {
        if (!turn->ended && which(turn->call))
            turn->ended = result;
    }
    changed_.notify_all();
}

void ScriptedEngine::endChannel(int avIndex, int result)
{
    end([avIndex](
            const LinkCall& call) { return call.has("avIndex") && call.avIndex() == avIndex; },
        result);
}

void ScriptedEngine::endSession(int sessionId, int result)
{
    for (const int avIndex : layer_.channelsOf(sessionId))
        endChannel(avIndex, result);
    const auto startsChannel = [sessionId](const LinkCall& call) {
        return isChannelCall(call.function) && call.has("sessionId")
            && call.sessionId() == sessionId;
    };
    end(startsChannel, result);
}

void ScriptedEngine::endAll()
{
    end([](const LinkCall& call) { return isChannelCall(call.function); }, AV_TAKEN_DOWN);
    end([](const LinkCall&) { return true; }, IOTC_NOT_INITIALIZED);
}

void ScriptedEngine::change(const std::function<void()>& change)
{
    const Lock held = lock();
    change();
    changed_.notify_all();
}

bool ScriptedEngine::waitFor(
    const std::function<bool()>& condition, std::chrono::milliseconds patience)
{
    Lock held = lock();
    const auto deadline = std::chrono::steady_clock::now() + patience;
    return changed_.wait_until(held, deadline, condition);
}

void ScriptedEngine::addRule(LinkRule rule)
{
    const Lock held = lock();
    rules_.push_back(std::make_shared<const LinkRule>(std::move(rule)));
}

void ScriptedEngine::reset()
{
    decltype(rules_) rules; // what the test's functions own goes after the lock has gone
    if (InsideLayer::here())
        qFatal("reset() is called from inside a call or a connect callback");
    Lock held = lock();
    resetting_ = true;
    rules.swap(rules_);
    layer_ = {};
    connects_.dropAll();
    endAll();
    awaitQuiet(held);
    connects_.dropAll();
    layer_ = {};
    calls_.clear();
    resetting_ = false;
    changed_.notify_all();
}

// A call or report that does not come back is stuck in the test's own function; going on would
// let it run into the next test.
void ScriptedEngine::awaitQuiet(Lock& lock)
{
    const auto quiet = [this] { return turns_.empty() && !connects_.reporting(); };
    const auto deadline = std::chrono::steady_clock::now() + resetPatience;
    if (changed_.wait_until(lock, deadline, quiet))
        return;
    const bool inCall = !turns_.empty();
    qFatal("reset() waits for %s, which does not return",
        inCall ? functionName(turns_.front()->call.function) : "a connect callback");
}

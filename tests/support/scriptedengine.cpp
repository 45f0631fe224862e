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
    , layer(ScriptedEngine::instance().m_layer)
    , connects(ScriptedEngine::instance().m_connects)
{
}

std::optional<int> CallTurn::waitUntil(const std::function<bool()>& done,
    std::optional<std::chrono::steady_clock::time_point> deadline)
{
    auto& changed = ScriptedEngine::instance().m_changed;
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
    : m_connects(m_layer, m_changed)
{
}

int ScriptedEngine::run(LinkFn function, std::vector<LinkArgument> arguments, const CallBody& body)
{
    Lock held = lock();
    enter(held);
    const InsideLayer inside;
    CallTurn turn(std::move(held), note(function, std::move(arguments)));
    m_turns.push_back(&turn);
    m_changed.notify_all();

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
        m_changed.wait(lock, [this] { return !m_resetting; });
}

LinkCall& ScriptedEngine::note(LinkFn function, std::vector<LinkArgument> arguments)
{
    LinkCall& call = m_calls.emplace_back();
    call.function = function;
    call.sequence = static_cast<int>(m_calls.size());
    call.thread = std::this_thread::get_id();
    call.start = std::chrono::steady_clock::now();
    call.arguments = std::move(arguments);
    return call;
}

// One-time rules come first, oldest first; of the lasting ones the newest holds.
std::shared_ptr<const LinkRule> ScriptedEngine::takeRule(const LinkCall& call)
{
    const auto once = std::find_if(m_rules.begin(), m_rules.end(),
        [&call](const auto& rule) { return rule->once && rule->appliesTo(call); });
    if (once != m_rules.end()) {
        auto rule = *once;
        m_rules.erase(once);
        return rule;
    }
    const auto lasting = std::find_if(m_rules.rbegin(), m_rules.rend(),
        [&call](const auto& rule) { return !rule->once && rule->appliesTo(call); });
    return lasting == m_rules.rend() ? nullptr : *lasting;
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
    return isUp(m_layer, turn.call.function) ? body.own(turn) : notInitialized(turn.call.function);
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
    m_changed.notify_all();
    const auto result = turn.waitUntil([&gate] { return gate.open; });
    --gate.waiting;
    m_changed.notify_all();
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
    m_turns.erase(std::find(m_turns.begin(), m_turns.end(), &turn));
    m_changed.notify_all();
}

void ScriptedEngine::end(const std::function<bool(const LinkCall&)>& which, int result)
{
    for (CallTurn* turn : m_turns) {
        if (!turn->ended && which(turn->call))
            turn->ended = result;
    }
    m_changed.notify_all();
}

void ScriptedEngine::endChannel(int avIndex, int result)
{
    end([avIndex](
            const LinkCall& call) { return call.has("avIndex") && call.avIndex() == avIndex; },
        result);
}

void ScriptedEngine::endSession(int sessionId, int result)
{
    for (const int avIndex : m_layer.channelsOf(sessionId))
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
    m_changed.notify_all();
}

bool ScriptedEngine::waitFor(
    const std::function<bool()>& condition, std::chrono::milliseconds patience)
{
    Lock held = lock();
    const auto deadline = std::chrono::steady_clock::now() + patience;
    return m_changed.wait_until(held, deadline, condition);
}

void ScriptedEngine::addRule(LinkRule rule)
{
    const Lock held = lock();
    m_rules.push_back(std::make_shared<const LinkRule>(std::move(rule)));
}

void ScriptedEngine::reset()
{
    decltype(m_rules) rules; // what the test's functions own goes after the lock has gone
    if (InsideLayer::here())
        qFatal("reset() is called from inside a call or a connect callback");
    Lock held = lock();
    m_resetting = true;
    rules.swap(m_rules);
    m_layer = {};
    m_connects.dropAll();
    endAll();
    awaitQuiet(held);
    m_connects.dropAll();
    m_layer = {};
    m_calls.clear();
    m_resetting = false;
    m_changed.notify_all();
}

// A call or report that does not come back is stuck in the test's own function; going on would
// let it run into the next test.
void ScriptedEngine::awaitQuiet(Lock& lock)
{
    const auto quiet = [this] { return m_turns.empty() && !m_connects.reporting(); };
    const auto deadline = std::chrono::steady_clock::now() + resetPatience;
    if (m_changed.wait_until(lock, deadline, quiet))
        return;
    const bool inCall = !m_turns.empty();
    qFatal("reset() waits for %s, which does not return",
        inCall ? functionName(m_turns.front()->call.function) : "a connect callback");
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "scriptedrule.h"

#include "scriptedengine.h"
#include "scriptedlink.h"

LinkGate::LinkGate(std::shared_ptr<State> state)
    : m_state(std::move(state))
{
}

LinkGate::~LinkGate()
{
    if (m_state)
        release();
}

bool LinkGate::waitUntilReached(int calls, std::chrono::milliseconds patience) const
{
    return ScriptedEngine::instance().waitFor(
        [this, calls] { return m_state->reached >= calls; }, patience);
}

int LinkGate::waiting() const
{
    const auto lock = ScriptedEngine::instance().lock();
    return m_state->waiting;
}

void LinkGate::release()
{
    ScriptedEngine::instance().change([this] { m_state->open = true; });
}

bool LinkRule::appliesTo(const LinkCall& call) const
{
    return function == call.function && (!matches || matches(call));
}

LinkRuleBuilder::LinkRuleBuilder(LinkRule rule)
    : m_rule(std::move(rule))
{
}

LinkRuleBuilder::~LinkRuleBuilder()
{
    ScriptedEngine::instance().addRule(std::move(m_rule));
}

LinkRuleBuilder& LinkRuleBuilder::answers(int result)
{
    return answers([result](const LinkCall&) { return result; });
}

LinkRuleBuilder& LinkRuleBuilder::answers(std::function<int(const LinkCall&)> answer)
{
    m_rule.answer = std::move(answer);
    return *this;
}

LinkRuleBuilder& LinkRuleBuilder::after(std::chrono::milliseconds delay)
{
    m_rule.delay = delay;
    return *this;
}

LinkRuleBuilder& LinkRuleBuilder::hangs()
{
    m_rule.hangs = true;
    return *this;
}

LinkGate LinkRuleBuilder::holds()
{
    m_rule.gate = std::make_shared<LinkGate::State>();
    return LinkGate(m_rule.gate);
}

LinkRuleBuilder& LinkRuleBuilder::then(std::function<void(const LinkCall&)> followUp)
{
    m_rule.followUps.push_back(std::move(followUp));
    return *this;
}

LinkRuleBuilder& LinkRuleBuilder::replies(unsigned type, const QByteArray& payload)
{
    return then([type, payload](const LinkCall& call) {
        if (call.result.value_or(0) >= 0)
            ScriptedLink::instance().queueMessage(call.avIndex(), type, payload);
    });
}

LinkRuleBuilder& LinkRuleBuilder::reports(std::vector<ConnectStep> steps)
{
    m_rule.reports = std::move(steps);
    return *this;
}

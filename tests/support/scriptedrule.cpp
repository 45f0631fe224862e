// SPDX-License-Identifier: GPL-3.0-or-later
#include "scriptedrule.h"

#include "scriptedengine.h"
#include "scriptedlink.h"

LinkGate::LinkGate(std::shared_ptr<State> state)
    : state_(std::move(state))
{
}

LinkGate::~LinkGate()
{
    if (state_)
        release();
}

bool LinkGate::waitUntilReached(int calls, std::chrono::milliseconds patience) const
{
    return ScriptedEngine::instance().waitFor(
        [this, calls] { return state_->reached >= calls; }, patience);
}

int LinkGate::waiting() const
{
    const auto lock = ScriptedEngine::instance().lock();
    return state_->waiting;
}

void LinkGate::release()
{
    ScriptedEngine::instance().change([this] { state_->open = true; });
}

bool LinkRule::appliesTo(const LinkCall& call) const
{
    return function == call.function && (!matches || matches(call));
}

LinkRuleBuilder::LinkRuleBuilder(LinkRule rule)
    : rule_(std::move(rule))
{
}

LinkRuleBuilder::~LinkRuleBuilder()
{
    ScriptedEngine::instance().addRule(std::move(rule_));
}

LinkRuleBuilder& LinkRuleBuilder::answers(int result)
{
    return answers([result](const LinkCall&) { return result; });
}

LinkRuleBuilder& LinkRuleBuilder::answers(std::function<int(const LinkCall&)> answer)
{
    rule_.answer = std::move(answer);
    return *this;
}

LinkRuleBuilder& LinkRuleBuilder::after(std::chrono::milliseconds delay)
{
    rule_.delay = delay;
    return *this;
}

LinkRuleBuilder& LinkRuleBuilder::hangs()
{
    rule_.hangs = true;
    return *this;
}

LinkGate LinkRuleBuilder::holds()
{
    rule_.gate = std::make_shared<LinkGate::State>();
    return LinkGate(rule_.gate);
}

LinkRuleBuilder& LinkRuleBuilder::then(std::function<void(const LinkCall&)> followUp)
{
    rule_.followUps.push_back(std::move(followUp));
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
    rule_.reports = std::move(steps);
    return *this;
}

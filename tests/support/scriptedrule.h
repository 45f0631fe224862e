// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scriptedcall.h"

#include <QtGlobal>

#include <memory>

constexpr std::chrono::milliseconds linkPatience{5000}; // how long a test waits before it gives up

// One report of a scripted connect, made `after` the one before it.
struct ConnectStep
{
    int state;
    std::optional<int> result; // empty: the session id
    std::chrono::milliseconds after{0};

    using Ms = std::chrono::milliseconds;
    static ConnectStep progress(int state, Ms after = Ms{0}) { return {state, 0, after}; }
    static ConnectStep connected(Ms after = Ms{0}) { return {2, std::nullopt, after}; }
    static ConnectStep failed(int result, Ms after = Ms{0}) { return {-1, result, after}; }
    bool isFinal() const { return state == 2 || state == -1; }
};

// Calls stop at a gate until the test lets them go. The test owns it; its end releases it, so
// that a failing test leaves nobody hanging. A call that the layer ends (avSendIOCtrlExit,
// IOTC_Session_Close, IOTC_Connect_Stop_BySID, reset) leaves the gate with that result instead.
// Used from any thread.
class LinkGate final
{
public:
    struct State // guarded by the layer's mutex
    {
        int reached = 0;
        int waiting = 0;
        bool open = false;
    };

    explicit LinkGate(std::shared_ptr<State> state);
    LinkGate(LinkGate&&) = default;
    LinkGate& operator=(LinkGate&& other) = delete;
    ~LinkGate();

    // Blocks without a Qt event loop until `calls` calls have come; false when they did not.
    [[nodiscard]] bool waitUntilReached(
        int calls = 1, std::chrono::milliseconds patience = linkPatience) const;
    int waiting() const; // calls that stand at the gate now
    void release(); // for good: later calls pass

private:
    Q_DISABLE_COPY(LinkGate)

    std::shared_ptr<State> state_;
};

// What the script says about some calls of one function. Immutable once it is in the script.
struct LinkRule
{
    LinkFn function{};
    CallMatcher matches; // empty: every call
    bool once = true;

    std::shared_ptr<LinkGate::State> gate;
    bool hangs = false;
    std::chrono::milliseconds delay{0};
    std::function<int(const LinkCall&)> answer; // empty: the layer's own answer
    std::optional<std::vector<ConnectStep>> reports; // empty: connected at once
    std::vector<std::function<void(const LinkCall&)>> followUps;

    bool appliesTo(const LinkCall& call) const;
};

// Words one rule, which enters the script at the end of the statement:
//     link.next(LinkFn::avSendIOCtrl, ofType(255)).after(20ms).answers(-20016);
// The parts combine; a call first waits (gate, hang, delay), then is answered, then followed up.
class LinkRuleBuilder final
{
public:
    explicit LinkRuleBuilder(LinkRule rule);
    ~LinkRuleBuilder();

    // This result in place of the layer's own answer; outputs stay untouched. A result of 0 or
    // above also takes effect: the session id is reserved, the AV index open, the library up.
    LinkRuleBuilder& answers(int result);
    // The function runs on the calling thread, with nothing locked, and may use the script.
    LinkRuleBuilder& answers(std::function<int(const LinkCall&)> answer);

    LinkRuleBuilder& after(std::chrono::milliseconds delay);
    LinkRuleBuilder& hangs(); // until the layer ends the call
    [[nodiscard]] LinkGate holds(); // until the test releases it or the layer ends the call

    // Runs on the calling thread once the result is known, before the caller gets it.
    LinkRuleBuilder& then(std::function<void(const LinkCall&)> followUp);
    // The device answers on the same AV index, if the call succeeds.
    LinkRuleBuilder& replies(unsigned type, const QByteArray& payload);

    // For IOTC_Connect_ByUID_ParallelNB: what the callback is told, up to the first final step.
    // Without a final step the connect stays pending until it is stopped or told otherwise.
    LinkRuleBuilder& reports(std::vector<ConnectStep> steps);

private:
    Q_DISABLE_COPY_MOVE(LinkRuleBuilder)

    LinkRule rule_;
};

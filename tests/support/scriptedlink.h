// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scriptedrule.h"

#include <QStringList>

// The 16 bytes that travel with a frame, as the device sends them.
struct LinkFrameInfo
{
    quint16 codec = 78; // video: 78 H.264, 80 H.265; sound: 138 A-law
    quint8 flags = 1; // video: 0 predicted, 1 key frame, from 2 on no picture
    quint32 timestamp = 0; // replay: seconds since 1970

    QByteArray bytes() const;
};

// The scripted link layer: stands in the place of both device libraries, records every call, and
// answers from a script. Without a script it is a layer whose devices behave well: connects
// succeed, sends are taken, nothing arrives by itself.
//
//     ScriptedLink& link = ScriptedLink::instance();
//     const int av = link.openChannel(link.openSession());
//     link.next(LinkFn::avSendIOCtrl, ofType(800)).replies(801, QByteArray(4, '\0'));
//     link.next(LinkFn::avSendIOCtrl, ofType(255)).answers(-20016);
//     ...                                                   // drive the client
//     QTRY_COMPARE(link.count(LinkFn::avSendIOCtrl), 2);    // or link.waitForCalls(...)
//     QCOMPARE(link.last(LinkFn::avSendIOCtrl).type(), 255);
//
// One object per process; every function may be called from any thread and returns at once
// unless it says otherwise. Call reset() between tests (init() and cleanup()).
class ScriptedLink final
{
public:
    using Ms = std::chrono::milliseconds;

    static ScriptedLink& instance();

    // Back to the state of a new process: script, record, sessions and queues are empty and the
    // layer is not initialised. Calls that wait inside the layer return, connects that are
    // pending make no report, and when this returns no thread of the test's is in the layer.
    // Not to be called from a callback, an answer or a follow-up.
    void reset();

    // The record. Calls stand in the order in which they came in.
    std::vector<LinkCall> calls() const;
    std::vector<LinkCall> calls(LinkFn function, const CallMatcher& matches = {}) const;
    int count(LinkFn function, const CallMatcher& matches = {}) const;
    int inFlight(LinkFn function, const CallMatcher& matches = {}) const;
    LinkCall last(LinkFn function, const CallMatcher& matches = {}) const; // there must be one
    QStringList order(const std::vector<LinkFn>& only = {}) const; // names; empty: of every call
    // Block the calling thread, without a Qt event loop, until so many calls have come in, or
    // have returned; false when `patience` ran out first.
    [[nodiscard]] bool waitForCalls(int calls, LinkFn function, const CallMatcher& matches = {},
        Ms patience = linkPatience) const;
    [[nodiscard]] bool waitForReturns(int calls, LinkFn function, const CallMatcher& matches = {},
        Ms patience = linkPatience) const;

    // The script. A rule for the next matching call goes before one for all; several rules for
    // next calls are used up in the order of the script; of several for all, the newest holds.
    LinkRuleBuilder next(LinkFn function, CallMatcher matches = {});
    LinkRuleBuilder always(LinkFn function, CallMatcher matches = {});
    void nextResults(LinkFn function, const std::vector<int>& results);

    // One more report for the pending connect of this session; false when there is none.
    bool report(int sessionId, const ConnectStep& step);

    // Shortcuts past the connect, none of them recorded.
    void initialize(); // both halves, 4096 channels
    int openSession(); // connected; initialises first where needed
    int openChannel(int sessionId, int channelId = 0); // AV index; the session must be connected
    void loseDevice(int sessionId); // it is gone: calls on its channels answer -20016 from now on
    std::vector<int> openSessions() const; // reserved ones too
    std::vector<int> openIndices() const;

    // What waits to be received on an AV index, which may open later. Frame numbers count up by
    // one per frame and per reported result, unless a number is given.
    void queueMessage(int avIndex, unsigned type, const QByteArray& payload);
    void queueVideo(int avIndex, const QByteArray& frame, const LinkFrameInfo& info = {},
        std::optional<unsigned> number = std::nullopt);
    void queueSound(int avIndex, const QByteArray& frame, const LinkFrameInfo& info = {138, 0, 0},
        std::optional<unsigned> number = std::nullopt);
    void queueVideoResult(int avIndex, int result); // told once in a frame's place, as -20014
    void queueSoundResult(int avIndex, int result);
    int waitingMessages(int avIndex) const;
    int waitingVideo(int avIndex) const;
    int waitingSound(int avIndex) const;

    // LAN search: what every search finds. Texts are cut to what the record holds.
    void addDevice(
        const QByteArray& uid, const QByteArray& ip, quint16 port, const QByteArray& versionText);

    // Talk-back: what the device presents to avServStart3, and what avServGetResendSize tells.
    void setSpeaker(const QByteArray& account, const QByteArray& password);
    void setUnconfirmedBytes(unsigned bytes);

private:
    ScriptedLink() = default;
    ~ScriptedLink() = default;
    Q_DISABLE_COPY_MOVE(ScriptedLink)
};

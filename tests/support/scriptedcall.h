// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>
#include <thread>
#include <variant>
#include <vector>

// The functions of the link layer, under their own names.
enum class LinkFn {
    IOTC_Initialize2,
    IOTC_DeInitialize,
    IOTC_Get_SessionID,
    IOTC_Connect_ByUID_ParallelNB,
    IOTC_Connect_Stop_BySID,
    IOTC_Session_Close,
    IOTC_Search_Device_Start,
    IOTC_Search_Device_Result,
    IOTC_Search_Device_Stop,
    avInitialize,
    avClientStart2,
    avClientStop,
    avClientCleanBuf,
    avClientCleanAudioBuf,
    avSendIOCtrl,
    avSendIOCtrlExit,
    avRecvIOCtrl,
    avRecvFrameData2,
    avCheckAudioBuf,
    avRecvAudioData,
    avSendAudioData,
    avServStart3,
    avServStop,
    avServGetResendSize,
};

const char* functionName(LinkFn function);

// Lets QCOMPARE print the function.
char* toString(LinkFn function);

// An argument under the name it has in the C header: a number, bytes or a text (null for a null
// pointer), or a pointer that only the client understands.
struct LinkArgument
{
    using Value = std::variant<int, QByteArray, const void*>;
    const char* name;
    Value value;
};

// One call as the scripted layer saw it: a plain copy, safe to keep, owned by whoever asked.
// Asking for an argument that the function does not have ends the program with a message, since
// the test itself is wrong then. Unsigned arguments are given as int for QCOMPARE's sake.
struct LinkCall
{
    LinkFn function{};
    int sequence = 0; // 1 for the first call after reset(), then counting up
    std::thread::id thread;
    std::chrono::steady_clock::time_point start;
    std::vector<LinkArgument> arguments;

    bool returned = false; // the two below count once this is set
    std::chrono::nanoseconds duration{0};
    std::optional<int> result; // empty for a function without a result

    bool has(const char* name) const;
    int number(const char* name) const;
    QByteArray bytes(const char* name) const;
    QString text(const char* name) const; // in the local encoding, which the client sends
    const void* pointer(const char* name) const;

    int avIndex() const { return number("avIndex"); }
    int sessionId() const { return number("sessionId"); }
    int type() const { return number("type"); }
    QByteArray payload() const { return bytes("data"); }
};

// Picks calls. Runs with the layer locked, so it reads the call and asks the layer nothing.
using CallMatcher = std::function<bool(const LinkCall&)>;

CallMatcher ofType(int type);
CallMatcher onIndex(int avIndex);
CallMatcher onSession(int sessionId);
CallMatcher forUid(const QByteArray& uid);
CallMatcher allOf(std::vector<CallMatcher> matchers);

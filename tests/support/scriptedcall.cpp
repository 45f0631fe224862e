// SPDX-License-Identifier: GPL-3.0-or-later
#include "scriptedcall.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

constexpr std::array names{
    "IOTC_Initialize2",
    "IOTC_DeInitialize",
    "IOTC_Get_SessionID",
    "IOTC_Connect_ByUID_ParallelNB",
    "IOTC_Connect_Stop_BySID",
    "IOTC_Session_Close",
    "IOTC_Search_Device_Start",
    "IOTC_Search_Device_Result",
    "IOTC_Search_Device_Stop",
    "avInitialize",
    "avClientStart2",
    "avClientStop",
    "avClientCleanBuf",
    "avClientCleanAudioBuf",
    "avSendIOCtrl",
    "avSendIOCtrlExit",
    "avRecvIOCtrl",
    "avRecvFrameData2",
    "avCheckAudioBuf",
    "avRecvAudioData",
    "avSendAudioData",
    "avServStart3",
    "avServStop",
    "avServGetResendSize",
};
static_assert(names.size() == static_cast<std::size_t>(LinkFn::avServGetResendSize) + 1);

const LinkArgument* find(const LinkCall& call, const char* name)
{
    const auto found = std::find_if(call.arguments.begin(), call.arguments.end(),
        [name](const LinkArgument& argument) { return std::strcmp(argument.name, name) == 0; });
    return found == call.arguments.end() ? nullptr : &*found;
}

template <typename T>
const T& value(const LinkCall& call, const char* name)
{
    const LinkArgument* argument = find(call, name);
    const T* held = argument ? std::get_if<T>(&argument->value) : nullptr;
    if (!held)
        qFatal("%s has no argument '%s' of this kind", functionName(call.function), name);
    return *held;
}

} // namespace

const char* functionName(LinkFn function)
{
    return names.at(static_cast<std::size_t>(function));
}

char* toString(LinkFn function)
{
    return qstrdup(functionName(function));
}

bool LinkCall::has(const char* name) const
{
    return find(*this, name) != nullptr;
}

int LinkCall::number(const char* name) const
{
    return value<int>(*this, name);
}

QByteArray LinkCall::bytes(const char* name) const
{
    return value<QByteArray>(*this, name);
}

QString LinkCall::text(const char* name) const
{
    return QString::fromLocal8Bit(bytes(name));
}

const void* LinkCall::pointer(const char* name) const
{
    return value<const void*>(*this, name);
}

CallMatcher ofType(int type)
{
    return [type](const LinkCall& call) { return call.type() == type; };
}

CallMatcher onIndex(int avIndex)
{
    return [avIndex](const LinkCall& call) { return call.avIndex() == avIndex; };
}

CallMatcher onSession(int sessionId)
{
    return [sessionId](const LinkCall& call) { return call.sessionId() == sessionId; };
}

CallMatcher forUid(const QByteArray& uid)
{
    return [uid](const LinkCall& call) { return call.bytes("uid") == uid; };
}

CallMatcher allOf(std::vector<CallMatcher> matchers)
{
    return [matchers = std::move(matchers)](const LinkCall& call) {
        return std::all_of(matchers.begin(), matchers.end(),
            [&call](const CallMatcher& matches) { return matches(call); });
    };
}

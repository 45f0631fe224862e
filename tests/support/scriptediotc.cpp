// SPDX-License-Identifier: GPL-3.0-or-later
// The session half of the layer: each function records the call and says what a well-behaved
// layer answers.
#include "IOTCAPIs.h"

#include "AVAPIs.h"
#include "scriptedarguments.h"
#include "scriptedengine.h"

#include <algorithm>

namespace {

using Session = ScriptedLayer::Session;

ScriptedEngine& engine()
{
    return ScriptedEngine::instance();
}

bool isUid(const char* uid)
{
    constexpr std::size_t uidLength = 20;
    const auto isUidCharacter = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    };
    return uid && strnlen(uid, uidLength + 1) == uidLength
        && std::all_of(uid, uid + uidLength, isUidCharacter);
}

int initialize(CallTurn& turn)
{
    if (turn.layer.sessionsUp)
        return IOTC_ALREADY_INITIALIZED;
    turn.layer.sessionsUp = true;
    return 0;
}

int takeDown(CallTurn& turn)
{
    engine().endAll();
    turn.layer.takeDown();
    turn.connects.stopAll(IOTC_CONNECT_STOPPED);
    turn.connects.drain(turn.lock);
    return 0;
}

struct ConnectArguments
{
    const char* uid;
    int sessionId;
    IOTC_ConnectCallback callback;
    void* userData;
};

int connectRefusal(const ScriptedLayer& layer, const ConnectArguments& arguments)
{
    if (!isUid(arguments.uid) || !arguments.callback)
        return IOTC_BAD_ARGUMENT;
    if (layer.sessionState(arguments.sessionId, Session::Connecting) == 0)
        return IOTC_CONNECT_PENDING;
    return layer.sessionState(arguments.sessionId, Session::Reserved);
}

// The reports of a connect whose call has this result: every call leads to one final report.
void startReports(CallTurn& turn, const ConnectArguments& arguments, int result)
{
    if (!turn.layer.sessionsUp || !arguments.callback)
        return;
    const int id = arguments.sessionId;
    const bool owns = turn.layer.sessionState(id, Session::Reserved) == 0;
    std::vector<ConnectStep> steps{ConnectStep::connected()};
    if (result < 0)
        steps = {ConnectStep::failed(result)};
    else if (turn.rule && turn.rule->reports)
        steps = *turn.rule->reports;
    if (owns)
        turn.layer.sessions[id] = Session::Connecting;
    turn.connects.start(turn.lock,
        {id, owns, arguments.callback, arguments.userData, {steps.begin(), steps.end()}});
}

int connect(CallTurn& turn, const ConnectArguments& arguments)
{
    const int result = connectRefusal(turn.layer, arguments);
    startReports(turn, arguments, result);
    return result;
}

int stopConnect(CallTurn& turn, int sessionId)
{
    if (turn.layer.sessions.count(sessionId) == 0)
        return IOTC_BAD_SESSION;
    const auto isConnect = [sessionId](const LinkCall& call) {
        return call.function == LinkFn::IOTC_Connect_ByUID_ParallelNB
            && call.sessionId() == sessionId;
    };
    engine().end(isConnect, IOTC_CONNECT_STOPPED);
    turn.connects.stop(sessionId, IOTC_CONNECT_STOPPED);
    return 0;
}

int closeSession(CallTurn& turn, int sessionId)
{
    if (stopConnect(turn, sessionId) < 0)
        return 0;
    turn.connects.disown(sessionId);
    engine().endSession(sessionId, AV_SESSION_CLOSED);
    turn.layer.closeSession(sessionId);
    return 0;
}

int startSearch(CallTurn& turn, int waitMs, int intervalMs)
{
    if (waitMs < 1 || intervalMs < 1)
        return IOTC_BAD_ARGUMENT;
    if (turn.layer.searching)
        return IOTC_SEARCH_RUNNING;
    turn.layer.searching = true;
    return 0;
}

int searchResult(CallTurn& turn, IOTC_SearchRecord* records, int capacity)
{
    if (!records || capacity < 1)
        return IOTC_BAD_ARGUMENT;
    if (!turn.layer.searching)
        return IOTC_NO_SEARCH;
    const auto& found = turn.layer.found;
    const int count = std::min(capacity, static_cast<int>(found.size()));
    std::copy_n(found.begin(), count, records);
    return count;
}

int stopSearch(CallTurn& turn)
{
    turn.layer.searching = false;
    return 0;
}

} // namespace

int IOTC_Initialize2(unsigned short udpPort)
{
    const auto adopt = [](CallTurn& turn, int result) {
        if (result >= 0)
            turn.layer.sessionsUp = true;
    };
    return engine().run(LinkFn::IOTC_Initialize2, {{"udpPort", udpPort}}, {initialize, adopt});
}

int IOTC_DeInitialize(void)
{
    return engine().run(LinkFn::IOTC_DeInitialize, {}, {takeDown, {}});
}

int IOTC_Get_SessionID(void)
{
    const auto reserve = [](CallTurn& turn) { return turn.layer.reserveSession(); };
    const auto adopt = [](CallTurn& turn, int result) {
        if (result >= 0)
            turn.layer.sessions.emplace(result, Session::Reserved);
    };
    return engine().run(LinkFn::IOTC_Get_SessionID, {}, {reserve, adopt});
}

int IOTC_Connect_ByUID_ParallelNB(
    const char* uid, int sessionId, IOTC_ConnectCallback callback, void* userData)
{
    const ConnectArguments arguments{uid, sessionId, callback, userData};
    const auto own = [&](CallTurn& turn) { return connect(turn, arguments); };
    const auto adopt = [&](CallTurn& turn, int result) { startReports(turn, arguments, result); };
    return engine().run(LinkFn::IOTC_Connect_ByUID_ParallelNB,
        {{"uid", textArgument(uid)}, {"sessionId", sessionId},
            {"userData", static_cast<const void*>(userData)}},
        {own, adopt});
}

int IOTC_Connect_Stop_BySID(int sessionId)
{
    const auto own = [=](CallTurn& turn) { return stopConnect(turn, sessionId); };
    return engine().run(LinkFn::IOTC_Connect_Stop_BySID, {{"sessionId", sessionId}}, {own, {}});
}

void IOTC_Session_Close(int sessionId)
{
    const auto own = [=](CallTurn& turn) { return closeSession(turn, sessionId); };
    engine().run(LinkFn::IOTC_Session_Close, {{"sessionId", sessionId}}, {own, {}, false});
}

int IOTC_Search_Device_Start(int waitMs, int intervalMs)
{
    const auto own = [=](CallTurn& turn) { return startSearch(turn, waitMs, intervalMs); };
    const auto adopt = [](CallTurn& turn, int result) {
        if (result >= 0)
            turn.layer.searching = true;
    };
    return engine().run(LinkFn::IOTC_Search_Device_Start,
        {{"waitMs", waitMs}, {"intervalMs", intervalMs}}, {own, adopt});
}

int IOTC_Search_Device_Result(IOTC_SearchRecord* records, int capacity, int flag)
{
    const auto own = [=](CallTurn& turn) { return searchResult(turn, records, capacity); };
    return engine().run(
        LinkFn::IOTC_Search_Device_Result, {{"capacity", capacity}, {"flag", flag}}, {own, {}});
}

int IOTC_Search_Device_Stop(void)
{
    return engine().run(LinkFn::IOTC_Search_Device_Stop, {}, {stopSearch, {}});
}

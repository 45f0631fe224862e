// SPDX-License-Identifier: GPL-3.0-or-later
// The channel half of the layer: opening and closing, messages, talk-back. Frames are received in
// scriptedframes.cpp.
#include "AVAPIs.h"

#include "scriptedarguments.h"
#include "scriptedengine.h"

namespace {

constexpr int soundRecordLimit = 64 * 1024; // bytes of a sound frame that the record keeps

ScriptedEngine& engine()
{
    return ScriptedEngine::instance();
}

// A pair of outputs that callers may leave out.
template <typename T>
void give(T* output, T value)
{
    if (output)
        *output = value;
}

int initialize(CallTurn& turn, int maxChannels)
{
    if (!turn.layer.sessionsUp)
        return AV_NOT_INITIALIZED;
    if (turn.layer.maxChannels > 0)
        return AV_ALREADY_INITIALIZED;
    if (maxChannels < 1)
        return AV_BAD_ARGUMENT;
    turn.layer.maxChannels = maxChannels;
    return maxChannels;
}

// A scripted AV index counts as open.
auto opensAt(const ScriptedLayer::Channel& channel)
{
    return [channel](CallTurn& turn, int result) {
        if (result >= 0)
            turn.layer.openChannelAt(result, channel);
    };
}

int closeChannel(CallTurn& turn, int avIndex, bool server)
{
    const auto channel = turn.layer.channels.find(avIndex);
    if (channel == turn.layer.channels.end() || channel->second.server != server)
        return 0;
    engine().endChannel(avIndex, server ? AV_SERVER_STOPPED : AV_CLIENT_STOPPED);
    turn.layer.closeChannel(avIndex);
    return 0;
}

int sendMessage(CallTurn& turn, int avIndex, const char* data, int size)
{
    if (!data)
        return AV_BAD_ARGUMENT;
    if (size < 1 || size > AV_IO_CONTROL_MAX_BYTES)
        return AV_BAD_SIZE;
    if (const int state = turn.layer.channelState(avIndex); state < 0)
        return state;
    return turn.layer.channels.at(avIndex).server ? AV_BAD_INDEX : 0;
}

int endSends(CallTurn& turn, int avIndex)
{
    const auto isSend = [avIndex](const LinkCall& call) {
        return call.function == LinkFn::avSendIOCtrl && call.avIndex() == avIndex;
    };
    const int state = turn.layer.channelState(avIndex);
    if (state == 0)
        engine().end(isSend, AV_SEND_ENDED);
    return state;
}

int receiveMessage(CallTurn& turn, int avIndex, unsigned int* type, char* buffer, int capacity,
    std::chrono::milliseconds timeout)
{
    if (!type || !buffer || capacity < 1)
        return AV_BAD_ARGUMENT;
    if (const int state = turn.layer.channelState(avIndex); state < 0)
        return state;
    const auto arrived = [&] { return turn.layer.nextMessage(avIndex) != nullptr; };
    if (const auto ended = turn.waitUntil(arrived, std::chrono::steady_clock::now() + timeout))
        return *ended;
    if (!arrived())
        return AV_NO_ANSWER;

    auto& messages = turn.layer.queues(avIndex).messages;
    const ScriptedLayer::Message message = std::move(messages.front());
    messages.pop_front();
    if (message.payload.size() > capacity)
        return AV_TOO_LARGE;
    std::copy(message.payload.begin(), message.payload.end(), buffer);
    *type = message.type;
    return message.payload.size();
}

int startServer(CallTurn& turn, const ScriptedLayer::Channel& channel, AV_AuthCallback auth)
{
    if (!auth)
        return AV_BAD_ARGUMENT;
    if (const int refusal = turn.layer.mayOpen(channel); refusal < 0)
        return refusal;
    const QByteArray account = turn.layer.speakerAccount;
    const QByteArray password = turn.layer.speakerPassword;
    int accepted = 0;
    {
        const Unlocked unlocked(turn.lock);
        accepted = auth(account.constData(), password.constData());
    }
    if (turn.ended)
        return *turn.ended;
    return accepted == 1 ? turn.layer.openChannel(channel) : AV_NO_ANSWER;
}

int sendSound(CallTurn& turn, int avIndex, int size, bool complete)
{
    if (!complete)
        return AV_BAD_ARGUMENT;
    if (const int state = turn.layer.channelState(avIndex); state < 0)
        return state;
    if (!turn.layer.channels.at(avIndex).server)
        return AV_NOT_A_SENDER;
    return size > AV_SOUND_MAX_BYTES ? AV_BAD_SIZE : 0;
}

int resendSize(CallTurn& turn, int avIndex, unsigned int* size)
{
    if (!size)
        return AV_BAD_ARGUMENT;
    const int state = turn.layer.channelState(avIndex);
    if (state == 0)
        *size = turn.layer.unconfirmedBytes;
    return state;
}

} // namespace

int avInitialize(int maxChannels)
{
    const auto own = [=](CallTurn& turn) { return initialize(turn, maxChannels); };
    const auto adopt = [=](CallTurn& turn, int result) {
        if (result >= 0)
            turn.layer.maxChannels = std::max(maxChannels, 1);
    };
    return engine().run(LinkFn::avInitialize, {{"maxChannels", maxChannels}}, {own, adopt});
}

int avClientStart2(int sessionId, const char* account, const char* password,
    unsigned int timeoutSec, unsigned int* serviceType, unsigned char channelId, int* resend)
{
    const ScriptedLayer::Channel channel{sessionId, channelId, false};
    const auto own = [&](CallTurn& turn) {
        if (!account || !password)
            return static_cast<int>(AV_BAD_ARGUMENT);
        give(serviceType, 0U);
        give(resend, 0);
        return turn.layer.openChannel(channel);
    };
    return engine().run(LinkFn::avClientStart2,
        {{"sessionId", sessionId}, {"account", textArgument(account)},
            {"password", textArgument(password)}, {"timeoutSec", static_cast<int>(timeoutSec)},
            {"channelId", channelId},
            {"serviceType", serviceType ? static_cast<int>(*serviceType) : -1},
            {"resend", resend ? *resend : -1}},
        {own, opensAt(channel)});
}

void avClientStop(int avIndex)
{
    const auto own = [=](CallTurn& turn) { return closeChannel(turn, avIndex, false); };
    engine().run(LinkFn::avClientStop, {{"avIndex", avIndex}}, {own, {}, false});
}

int avSendIOCtrl(int avIndex, unsigned int type, const char* data, int size)
{
    const auto own = [=](CallTurn& turn) { return sendMessage(turn, avIndex, data, size); };
    return engine().run(LinkFn::avSendIOCtrl,
        {{"avIndex", avIndex}, {"type", static_cast<int>(type)},
            {"data", bytesArgument(data, size, AV_IO_CONTROL_MAX_BYTES)}, {"size", size}},
        {own, {}});
}

int avSendIOCtrlExit(int avIndex)
{
    const auto own = [=](CallTurn& turn) { return endSends(turn, avIndex); };
    return engine().run(LinkFn::avSendIOCtrlExit, {{"avIndex", avIndex}}, {own, {}});
}

int avRecvIOCtrl(
    int avIndex, unsigned int* type, char* buffer, int capacity, unsigned int timeoutMs)
{
    const std::chrono::milliseconds timeout(timeoutMs);
    const auto own = [&](CallTurn& turn) {
        return receiveMessage(turn, avIndex, type, buffer, capacity, timeout);
    };
    return engine().run(LinkFn::avRecvIOCtrl,
        {{"avIndex", avIndex}, {"capacity", capacity}, {"timeoutMs", static_cast<int>(timeoutMs)}},
        {own, {}});
}

int avSendAudioData(
    int avIndex, const char* data, int size, const void* frameInfo, int frameInfoSize)
{
    const bool complete = data && size > 0 && frameInfo && frameInfoSize == AV_FRAME_INFO_BYTES;
    const auto own = [=](CallTurn& turn) { return sendSound(turn, avIndex, size, complete); };
    return engine().run(LinkFn::avSendAudioData,
        {{"avIndex", avIndex}, {"data", bytesArgument(data, size, soundRecordLimit)},
            {"size", size}, {"frameInfoSize", frameInfoSize},
            {"frameInfo", bytesArgument(frameInfo, frameInfoSize, AV_FRAME_INFO_BYTES)}},
        {own, {}});
}

int avServStart3(int sessionId, AV_AuthCallback auth, unsigned int timeoutSec,
    unsigned int serviceType, unsigned char channelId, int* resend)
{
    const ScriptedLayer::Channel channel{sessionId, channelId, true};
    const auto own = [&](CallTurn& turn) {
        give(resend, 0);
        return startServer(turn, channel, auth);
    };
    return engine().run(LinkFn::avServStart3,
        {{"sessionId", sessionId}, {"timeoutSec", static_cast<int>(timeoutSec)},
            {"serviceType", static_cast<int>(serviceType)}, {"channelId", channelId},
            {"resend", resend ? *resend : -1}},
        {own, opensAt(channel)});
}

void avServStop(int avIndex)
{
    const auto own = [=](CallTurn& turn) { return closeChannel(turn, avIndex, true); };
    engine().run(LinkFn::avServStop, {{"avIndex", avIndex}}, {own, {}, false});
}

int avServGetResendSize(int avIndex, unsigned int* size)
{
    const auto own = [=](CallTurn& turn) { return resendSize(turn, avIndex, size); };
    return engine().run(LinkFn::avServGetResendSize, {{"avIndex", avIndex}}, {own, {}});
}

// SPDX-License-Identifier: GPL-3.0-or-later
// The C functions of the channel half: check the arguments and find the layer and the channel.
#define AV_BUILDING
#include "AVAPIs.h"

#include "src/layer.h"

namespace {

// Null before avInitialize, too.
std::shared_ptr<Layer> readyLayer()
{
    auto layer = Layer::current();
    return layer && layer->maxChannels() > 0 ? layer : nullptr;
}

// What a function does with its channel, when there is one.
template <typename Use>
int withChannel(int avIndex, Use use)
{
    const auto layer = readyLayer();
    if (!layer)
        return AV_NOT_INITIALIZED;
    const auto channel = layer->channel(avIndex);
    return channel ? use(*channel) : static_cast<int>(AV_BAD_INDEX);
}

// As withChannel(), for calls whose arguments may be bad: the layer is asked for first.
template <typename Use>
int withChannel(int avIndex, bool sound, int otherwise, Use use)
{
    if (!sound && readyLayer())
        return otherwise;
    return withChannel(avIndex, use);
}

void giveNoService(unsigned int* serviceType, int* resend)
{
    constexpr int repaired = 1; // what is lost on the way is sent again
    if (serviceType != nullptr)
        *serviceType = 0;
    if (resend != nullptr)
        *resend = repaired;
}

int receiveFrame(int avIndex, Media media, const FrameTarget& target, int infoCapacity)
{
    const bool sound = target.buffer != nullptr && target.capacity > 0 && target.info != nullptr
        && infoCapacity >= AV_FRAME_INFO_BYTES && target.number != nullptr;
    return withChannel(avIndex, sound, AV_BAD_ARGUMENT,
        [&](AvChannel& channel) { return channel.receiveFrame(media, target); });
}

} // namespace

int avInitialize(int maxChannels)
{
    const auto layer = Layer::current();
    if (!layer)
        return AV_NOT_INITIALIZED;
    if (layer->maxChannels() > 0)
        return AV_ALREADY_INITIALIZED;
    return maxChannels < 1 ? static_cast<int>(AV_BAD_ARGUMENT) : layer->setMaxChannels(maxChannels);
}

int avClientStart2(int sessionId, const char* account, const char* password,
    unsigned int timeoutSec, unsigned int* serviceType, unsigned char channelId, int* resend)
{
    const auto layer = readyLayer();
    if (!layer)
        return AV_NOT_INITIALIZED;
    if (account == nullptr || password == nullptr)
        return AV_BAD_ARGUMENT;
    giveNoService(serviceType, resend);
    return layer->startClient(
        sessionId, account, password, std::chrono::seconds(timeoutSec), channelId);
}

void avClientStop(int avIndex)
{
    if (const auto layer = readyLayer())
        layer->stopChannel(avIndex, AvChannel::Kind::Client);
}

int avClientCleanBuf(int avIndex)
{
    return withChannel(avIndex, [](AvChannel& channel) {
        channel.dropFrames(true);
        return channel.ended();
    });
}

int avClientCleanAudioBuf(int avIndex)
{
    return withChannel(avIndex, [](AvChannel& channel) {
        channel.dropFrames(false);
        return channel.ended();
    });
}

int avSendIOCtrl(int avIndex, unsigned int type, const char* data, int size)
{
    if (data != nullptr && (size < 1 || size > AV_IO_CONTROL_MAX_BYTES) && readyLayer())
        return AV_BAD_SIZE;
    return withChannel(avIndex, data != nullptr, AV_BAD_ARGUMENT, [&](AvChannel& channel) {
        // A server's channel carries sound only.
        return channel.kind() == AvChannel::Kind::Client
            ? channel.sendControl(type, {data, static_cast<std::size_t>(size)})
            : static_cast<int>(AV_BAD_INDEX);
    });
}

int avSendIOCtrlExit(int avIndex)
{
    return withChannel(avIndex, [](AvChannel& channel) {
        channel.exitSends();
        return channel.ended();
    });
}

int avRecvIOCtrl(
    int avIndex, unsigned int* type, char* buffer, int capacity, unsigned int timeoutMs)
{
    const bool sound = type != nullptr && buffer != nullptr && capacity > 0;
    return withChannel(avIndex, sound, AV_BAD_ARGUMENT, [&](AvChannel& channel) {
        return channel.receiveControl(
            type, buffer, static_cast<std::size_t>(capacity), std::chrono::milliseconds(timeoutMs));
    });
}

int avRecvFrameData2(int avIndex, char* buffer, int capacity, int* actualSize, int* expectedSize,
    char* frameInfo, int frameInfoCapacity, int* actualInfoSize, unsigned int* frameNumber)
{
    return receiveFrame(avIndex, Media::Video,
        {buffer, capacity, frameInfo, frameNumber, actualSize, expectedSize, actualInfoSize},
        frameInfoCapacity);
}

int avCheckAudioBuf(int avIndex)
{
    return withChannel(avIndex, [](AvChannel& channel) { return channel.waitingSounds(); });
}

int avRecvAudioData(int avIndex, char* buffer, int capacity, char* frameInfo, int frameInfoCapacity,
    unsigned int* frameNumber)
{
    return receiveFrame(
        avIndex, Media::Audio, {buffer, capacity, frameInfo, frameNumber}, frameInfoCapacity);
}

int avSendAudioData(
    int avIndex, const char* data, int size, const void* frameInfo, int frameInfoSize)
{
    const bool sound =
        data != nullptr && size > 0 && frameInfo != nullptr && frameInfoSize == AV_FRAME_INFO_BYTES;
    return withChannel(avIndex, sound, AV_BAD_ARGUMENT, [&](AvChannel& channel) {
        if (channel.kind() != AvChannel::Kind::Server)
            return static_cast<int>(AV_NOT_A_SENDER);
        if (size > AV_SOUND_MAX_BYTES)
            return static_cast<int>(AV_BAD_SIZE);
        return channel.sendSound(
            {static_cast<const char*>(frameInfo), static_cast<std::size_t>(frameInfoSize)},
            {data, static_cast<std::size_t>(size)});
    });
}

int avServStart3(int sessionId, AV_AuthCallback auth, unsigned int timeoutSec,
    unsigned int /*serviceType*/, unsigned char channelId, int* resend)
{
    const auto layer = readyLayer();
    if (!layer)
        return AV_NOT_INITIALIZED;
    if (auth == nullptr)
        return AV_BAD_ARGUMENT;
    giveNoService(nullptr, resend);
    return layer->startServer(sessionId, auth, std::chrono::seconds(timeoutSec), channelId);
}

void avServStop(int avIndex)
{
    if (const auto layer = readyLayer())
        layer->stopChannel(avIndex, AvChannel::Kind::Server);
}

int avServGetResendSize(int avIndex, unsigned int* size)
{
    return withChannel(avIndex, size != nullptr, AV_BAD_ARGUMENT, [&](AvChannel& channel) {
        *size = channel.unconfirmedBytes();
        return channel.ended();
    });
}

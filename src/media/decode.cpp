// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/decode.h"

#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "media/stream.h"
#include "model/channel.h"
#include "wall/viewcontrol.h"

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

Decode* theDecode = nullptr;

} // namespace

Decode* Decode::instance()
{
    if (theDecode == nullptr)
        new Decode; // stores itself
    return theDecode;
}

Decode::Decode()
{
    if (theDecode != nullptr)
        return;
    theDecode = this;
    const IoConnect* io = IoConnect::instance();
    connect(io, &IoConnect::videoRequestSuccessMsg, this, &Decode::createLiveStream);
    connect(io, &IoConnect::startReplaySuccessMsg, this, &Decode::createReplayStream);
    connect(ViewControl::instance(), &ViewControl::quitMsg, this, &Decode::stopAllStream);
    connect(Dev::instance(), &Dev::deleteDevMsg, this, &Decode::removeDevice);
    connect(&countTimer_, &QTimer::timeout, this, &Decode::reset);
    countTimer_.start(1s);
}

Decode::~Decode()
{
    if (theDecode != this)
        return;
    stopAllStream();
    theDecode = nullptr;
}

void Decode::createLiveStream(Channel* channel)
{
    createStream(channel, true);
}

void Decode::createReplayStream(Channel* channel)
{
    createStream(channel, false);
}

void Decode::createStream(Channel* channel, bool isLive)
{
    const auto known = std::find_if(streams_.cbegin(), streams_.cend(), [=](const Stream* stream) {
        return stream->channel() == channel && stream->isLive() == isLive;
    });
    if (known != streams_.cend()) {
        (*known)->start();
        (*known)->silentSeconds = 0;
        return;
    }
    auto* stream = new Stream(channel, isLive, this);
    stream->start();
    streams_.append(stream);
}

void Decode::stopStream(Stream* stream)
{
    stream->stop();
}

void Decode::stopAllStream()
{
    while (!streams_.isEmpty())
        removeAt(0);
}

void Decode::removeStream(Channel* channel, bool isLive)
{
    for (int i = 0; i < streams_.size(); ++i) {
        if (streams_[i]->channel() == channel && streams_[i]->isLive() == isLive) {
            removeAt(i);
            return;
        }
    }
}

// Its channels are about to go, and a stopped stream would still tell counts of one.
void Decode::removeDevice(const Device* device)
{
    for (int i = streams_.size(); i-- > 0;) {
        const Channel* channel = streams_[i]->channel();
        if (channel != nullptr && channel->device() == device)
            removeAt(i);
    }
}

void Decode::removeAt(int index)
{
    Stream* stream = streams_.takeAt(index);
    stream->stop();
    left_.append(stream);
}

void Decode::destroyLeft()
{
    for (int i = left_.size(); i-- > 0;) {
        if (left_[i]->isIdle())
            delete left_.takeAt(i);
    }
}

void Decode::setVolume(int volume)
{
    volume_ = volume;
    for (Stream* stream : qAsConst(streams_))
        stream->setVolume(volume);
}

void Decode::reset()
{
    destroyLeft();
    const QList<Stream*> streams = streams_; // whoever listens may end one
    for (Stream* stream : streams) {
        if (!streams_.contains(stream))
            continue;
        stream->setFrameRate(stream->videoCount);
        emit decodeCountMsg(stream->channel(), stream->videoCount, stream->audioCount,
            stream->videoDecodedCount(), stream->audioPlayedCount());
        watch(stream);
        stream->videoCount = 0;
        stream->audioCount = 0;
        stream->resetDecodedCounts();
    }
}

// No result of the layer is looked at for this: a device that is gone and a camera that has frozen
// look the same to whoever watches them. A replay may be silent because it is paused.
void Decode::watch(Stream* stream)
{
    constexpr int patience = 6; // seconds; a slow stream is not a dead one
    if (!stream->isLive() || !stream->isRunning() || stream->channel() == nullptr)
        return;
    const int before = stream->silentSeconds;
    stream->silentSeconds = stream->videoCount > 0 ? 0 : before + 1;
    if (stream->silentSeconds == patience)
        emit streamSilentMsg(stream->channel());
    else if (stream->silentSeconds == 0 && before >= patience)
        emit streamBackMsg(stream->channel());
}

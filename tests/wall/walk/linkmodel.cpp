// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkmodel.h"

#include <algorithm>

namespace {

enum MessageType : int {
    VideoPrepare = 255,
    VideoStart = 511,
    VideoStop = 767,
    PlayControl = 794,
    GetQuality = 802,
    SpeakerStop = 849,
    GetPtz = 4353,
    GetVersion = 13083,
};

enum PlayCommand : int { Pause = 0, Stop = 1, Forward = 4, Backward = 5, Start = 16 };

} // namespace

ChannelName nameOf(const ModelChannel* channel)
{
    return channel == nullptr ? ChannelName{} : ChannelName{channel->device->id, channel->number};
}

void LinkModel::settle()
{
    while (!results_.empty()) {
        const std::function<void()> result = std::move(results_.front());
        results_.pop_front();
        result();
    }
}

void LinkModel::forget(ModelDevice* device)
{
    const auto ofDevice = [device](
                              const ModelChannel* waiting) { return waiting->device == device; };
    waiting_.erase(std::remove_if(waiting_.begin(), waiting_.end(), ofDevice), waiting_.end());
    waitingDevices_.erase(
        std::remove(waitingDevices_.begin(), waitingDevices_.end(), device), waitingDevices_.end());
}

bool LinkModel::send(ModelChannel* channel, int type, int command)
{
    const WalkMessage message{nameOf(channel), type, command};
    sent.push_back({channel->live.connected ? message.channel : ChannelName{}, type, command});
    if (channel->live.connected && faults.unsent.count(message) != 0)
        ++failures["unsent " + std::to_string(type) + ' ' + std::to_string(command)];
    return channel->live.connected && faults.unsent.count(message) == 0;
}

void LinkModel::connect(ModelChannel* channel)
{
    if (channel->live.connected)
        channelConnected(channel, true);
    else if (std::find(waiting_.begin(), waiting_.end(), channel) == waiting_.end())
        waiting_.push_back(channel);
    auto& devices = waitingDevices_;
    if (channel->device->hasSession)
        sessionDone();
    else if (std::find(devices.begin(), devices.end(), channel->device) == devices.end())
        devices.push_back(channel->device);
    connectNext();
}

// The first one leaves, whichever that is.
void LinkModel::sessionDone()
{
    if (!waitingDevices_.empty())
        waitingDevices_.pop_front();
    connectNext();
}

void LinkModel::connectNext()
{
    const std::vector<ModelChannel*> waiting = waiting_;
    for (ModelChannel* channel : waiting) {
        if (!channel->device->hasSession || channel->connecting)
            continue;
        channel->connecting = true;
        openAv(channel, true);
    }
    if (waitingDevices_.empty())
        return;
    ModelDevice* device = waitingDevices_.front();
    if (!device->hasSession && !device->connecting)
        openSession(device);
}

void LinkModel::openSession(ModelDevice* device)
{
    device->connecting = true;
    const bool isReached = faults.withoutSession.count(device->id) == 0;
    if (device != slow)
        later([this, device, isReached] { endAttempt(device, isReached); });
}

void LinkModel::endAttempt(ModelDevice* device, bool isReached)
{
    device->connecting = false;
    device->hasSession = isReached;
    if (!isReached) {
        ++failures["no session"];
        wall_->connectDevFail(&device->channels[0]);
    }
    sessionDone();
}

void LinkModel::openAv(ModelChannel* channel, bool isLive)
{
    ModelHalf& half = channel->half(isLive);
    const bool isOpen = !half.taken && faults.withoutAv.count({nameOf(channel), isLive}) == 0;
    if (isOpen)
        half.taken = true;
    later([=] { takeAv(channel, isLive, isOpen); });
}

void LinkModel::takeAv(ModelChannel* channel, bool isLive, bool isOpen)
{
    channel->connecting = false;
    if (isOpen) {
        channel->half(isLive).connected = true;
        channelConnected(channel, isLive);
        return;
    }
    waiting_.erase(std::remove(waiting_.begin(), waiting_.end(), channel), waiting_.end());
    ++failures[isLive ? "no AV channel" : "no AV channel of a replay"];
    if (isLive)
        wall_->connectChannelFail(channel);
    else
        wall_->startReplayFail(channel);
}

void LinkModel::channelConnected(ModelChannel* channel, bool isLive)
{
    waiting_.erase(std::remove(waiting_.begin(), waiting_.end(), channel), waiting_.end());
    if (!isLive) {
        channel->replay.playing = true;
        wall_->startReplaySuccess(channel);
        return;
    }
    send(channel, GetVersion);
    later([=] { tellConnected(channel); });
    send(channel, GetQuality);
    if (channel->live.connected)
        send(channel, GetPtz);
}

void LinkModel::tellConnected(ModelChannel* channel)
{
    wall_->connectChannelSuccess(channel);
    if (wall_->isLive)
        return;
    if (faults.emptyDays.count(nameOf(channel)) == 0) {
        wall_->autoPlayReplay(channel);
        return;
    }
    ++failures["empty day"];
    wall_->connectChannelFail(channel);
}

void LinkModel::startLive(ModelChannel* channel)
{
    channel->live.waiting = true;
    const bool wentOut = send(channel, VideoPrepare) && send(channel, VideoStart);
    later([=] {
        if (wentOut)
            channel->live.playing = true;
        else
            wall_->startLiveFail(channel);
    });
}

void LinkModel::stopLive(ModelChannel* channel)
{
    const bool wentOut = send(channel, VideoStop);
    later([=] {
        if (!wentOut)
            return;
        channel->live.playing = false;
        if (!channel->live.open)
            send(channel, SpeakerStop);
        wall_->streamEnded(channel);
    });
}

void LinkModel::pauseReplay(ModelChannel* channel, bool isModeChange)
{
    if (!isModeChange)
        channel->userPaused = true;
    const bool wentOut = send(channel, PlayControl, Pause);
    later([=] {
        if (!wentOut)
            return;
        channel->replay.playing = false;
        if (isModeChange)
            wall_->streamEnded(channel);
    });
}

void LinkModel::resumeReplay(ModelChannel* channel, bool isModeChange)
{
    if (!isModeChange)
        channel->userPaused = false;
    channel->replay.waiting = true;
    const bool wentOut = send(channel, PlayControl, Pause); // a second one resumes
    later([=] {
        if (wentOut) {
            channel->replay.playing = true;
            wall_->startReplaySuccess(channel);
        } else {
            wall_->startReplayFail(channel);
        }
    });
}

void LinkModel::playReplay(ModelChannel* channel, bool forward)
{
    channel->replay.waiting = true;
    int command = Start;
    if (channel->replay.playing)
        command = forward ? Forward : Backward;
    if (send(channel, PlayControl, command) && command == Start)
        later([=] { takeStart(channel); });
}

void LinkModel::takeStart(ModelChannel* channel)
{
    if (faults.refusedReplays.count(nameOf(channel)) != 0) {
        ++failures["refused replay"];
        wall_->startReplayFail(channel);
    } else if (faults.silentReplays.count(nameOf(channel)) != 0) {
        ++failures["replay without an answer"];
    } else {
        openAv(channel, false);
    }
}

void LinkModel::stopReplay(ModelChannel* channel)
{
    const bool wentOut = send(channel, PlayControl, Stop);
    later([=] {
        if (!wentOut)
            return;
        channel->replay.connected = channel->replay.taken = false;
        channel->replay.playing = false;
        wall_->streamEnded(channel);
    });
}

void LinkModel::disconnect(ModelDevice* device)
{
    if (!device->hasSession)
        return;
    device->hasSession = false;
    for (ModelChannel& channel : device->channels) {
        channel.live.connected = channel.live.taken = false;
        channel.replay.connected = channel.replay.taken = false;
    }
    for (ModelChannel& channel : device->channels) {
        channel.live.open = channel.live.playing = false;
        wall_->streamEnded(&channel);
        channel.replay.open = channel.replay.playing = false;
        wall_->streamEnded(&channel);
    }
}

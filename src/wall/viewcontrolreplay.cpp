// SPDX-License-Identifier: GPL-3.0-or-later
// Remote playback on the wall, and the timeline that steers it.
#include "wall/viewcontrol.h"

#include "link/ioconnect.h"
#include "model/device.h"

#include <QDebug>

#include <cstdlib>

void ViewControl::setDate(const QDate& date)
{
    date_ = date;
    emit dateChangeMsg();
}

void ViewControl::setSpeed(PLAY_SPEED speed, bool back)
{
    PLAY_SPEED& kept = back ? backSpeed_ : speed_;
    if (speed == kept)
        return;
    kept = speed;
    if (back)
        emit speedBackChangeMsg(speed);
    else
        emit speedChangeMsg(speed);
}

QDateTime ViewControl::getPlayStart(int* offset) const
{
    const QDateTime point = getDateTime();
    QDateTime start = blocks_.playStart(point);
    *offset = start < point ? static_cast<int>(start.secsTo(point)) : 0;
    return start;
}

bool ViewControl::getNextBlock(QDateTime* out) const
{
    const std::optional<QDateTime> start = blocks_.nextStart(getDateTime());
    if (start)
        *out = *start;
    return start.has_value();
}

void ViewControl::openReplayChannel(Channel* channel)
{
    if (channel == nullptr)
        return;
    channel->mode(false).open = true;
    connectChannel(channel, true, true);
}

void ViewControl::playAllReplay(Device* device)
{
    playAllDevice_ = device;
    if (device != nullptr)
        openReplayChannel(device->channel(0));
}

// Two channels of a device never start at the same moment: the next one follows when this one has
// started or failed.
void ViewControl::advancePlayAll(Channel* channel)
{
    Device* device = channel->device();
    if (playAllDevice_ != device)
        return;
    const int next = channel->number() + 1;
    if (next < device->channelCount())
        openReplayChannel(device->channel(next));
    else
        playAllDevice_ = nullptr;
}

// The list of the day's recordings has come.
void ViewControl::autoPlayReplay(Channel* channel)
{
    const ChannelMode& replay = channel->mode(false);
    if (isLive_ || !replay.open || replay.playing)
        return;
    int offset = 0;
    const QDateTime start = getPlayStart(&offset);
    playReplay(channel, start, offset, true, PLAY_SPEED_X1);
}

void ViewControl::playReplay(
    Channel* channel, const QDateTime& start, int offset, bool forward, PLAY_SPEED speed)
{
    if (channel->device()->sid < 0 || channel->mode(true).avIndex < 0 || isLive_)
        return;
    channel->mode(false).open = true;
    channel->replayTime = start;
    IoConnect::instance()->playReplay(channel, start, offset, forward, speed);
}

void ViewControl::startReplaySuccess(Channel* channel)
{
    const bool isOpen = channel->mode(false).open;
    qDebug().noquote().nospace() << "startReplaySuccess:" << (isOpen ? "true" : "false");
    if (isLive_ || !isOpen)
        return;
    showChannel(channel);
    emitPage();
    advancePlayAll(channel);
}

void ViewControl::startReplayFail(Channel* channel)
{
    channel->mode(false).open = false;
    if (!isLive_)
        advancePlayAll(channel);
}

// Backwards too the device gets a positive offset: the sign is dropped, by design of this release.
void ViewControl::seekChannel(Channel* channel, const QTime& time)
{
    if (channel == nullptr || !channel->mode(false).playing)
        return;
    const int seconds = channel->replayTime.time().secsTo(time);
    IoConnect::instance()->changeReplayTime(channel, std::abs(seconds));
}

void ViewControl::synchronizeChannel(Channel* channel)
{
    seekChannel(channel, getDateTime().time());
}

void ViewControl::synchronizeDevice(Device* device)
{
    for (int i = 0; i < device->channelCount(); ++i) {
        if (device->channel(i)->mode(false).open)
            synchronizeChannel(device->channel(i));
    }
}

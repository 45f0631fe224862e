// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of remote playback. They go out on the live AV channel; the pictures come back on a
// second one, which the device names in its answer to a start.
#include "AVAPIs.h"
#include "link/firmware.h"
#include "link/ioconnect.h"
#include "link/messagecodec.h"
#include "media/decode.h"
#include "model/progressevents.h"
#include "wall/viewcontrol.h"

#include <QDebug>

namespace {

ReplayRequest replayRequest(const QByteArray& message)
{
    ReplayRequest request{};
    std::copy(message.begin(), message.end(), request.begin());
    return request;
}

RecordPlayCommand playCommand(const Channel& channel, bool forward)
{
    if (!channel.mode(false).playing)
        return AVIOCTRL_RECORD_PLAY_START;
    return forward ? AVIOCTRL_RECORD_PLAY_FORWARD : AVIOCTRL_RECORD_PLAY_BACKWARD;
}

void endReplayStream(Channel* channel)
{
    ViewControl::instance()->setRecord(channel, false);
    Decode::instance()->removeStream(channel, false);
}

} // namespace

void IoConnect::getReplayVideoTime(Channel* channel, const QDate& date)
{
    qDebug().noquote().nospace() << "send getReplayVideoTime:" << date.toString(Qt::ISODate);
    if (channel->videoTimeLoaded && channel->videoTimeDate == date) {
        repeatVideoTimes(channel);
        return;
    }
    armIoTimer(channel);
    channel->clearVideoTimes();
    channel->videoTimeDate = date;
    channel->replayPending = true;
    send<ProgressEvent_getReplayVideoTime>(
        channel, IOCTRL_LIST_RECORDS, bytesOf(listRecordsRequest(channel->number(), date)));
}

void IoConnect::repeatVideoTimes(Channel* channel)
{
    const QList<QList<int>> blocks = channel->videoTimes(); // a slot may ask for another day
    if (blocks.isEmpty()) {
        emit receiveVideoTimeEmptyMsg(channel, 0, tr("no record has been found"));
        return;
    }
    for (const QList<int>& block : blocks)
        emit receiveVideoTimeMsg(channel, block);
    emit finishVideoTimeMsg(channel);
}

void IoConnect::playReplay(
    Channel* channel, const QDateTime& dateTime, int offset, bool forward, PLAY_SPEED speed)
{
    armIoTimer(channel);
    channel->mode(false).waiting = true;
    channel->replayOffset = offset;
    qDebug().noquote().nospace() << "playReplay:" << dateTime.toString(Qt::ISODate);
    const IOCONNECT_REPLAY_DATA data{dateTime, forward, speed};
    commands_.run(channel, [this, channel, data] {
        const QByteArray message = bytesOf(playControlRequest(
            channel->number(), playCommand(*channel, data.forward), data.dateTime, data.speed));
        const int result = sendMessage(channel, IOCTRL_PLAY_CONTROL, message);
        postResult(this, new ProgressEvent_playReplay(channel, result, replayRequest(message)));
    });
}

void IoConnect::pauseReplay(Channel* channel, bool isModeChange)
{
    armIoTimer(channel);
    endReplayStream(channel);
    if (!isModeChange)
        channel->replayPaused = true;
    send<ProgressEvent_pauseReplay>(channel, IOCTRL_PLAY_CONTROL,
        bytesOf(playControlRequest(channel->number(), AVIOCTRL_RECORD_PLAY_PAUSE)), isModeChange);
}

void IoConnect::stopPauseReplay(Channel* channel, bool isModeChange)
{
    armIoTimer(channel);
    if (!isModeChange)
        channel->replayPaused = false;
    channel->mode(false).waiting = true;
    commands_.run(channel, [this, channel] {
        const RecordPlayCommand command = firmwareResumesByStart(channel)
            ? AVIOCTRL_RECORD_PLAY_START
            : AVIOCTRL_RECORD_PLAY_PAUSE;
        const int result = sendMessage(
            channel, IOCTRL_PLAY_CONTROL, bytesOf(playControlRequest(channel->number(), command)));
        postResult(this, new ProgressEvent_stopPauseReplay(channel, result));
    });
}

void IoConnect::stopReplay(Channel* channel, bool restart, const QDateTime& dateTime)
{
    armIoTimer(channel);
    endReplayStream(channel);
    send<ProgressEvent_stopReplay>(channel, IOCTRL_PLAY_CONTROL,
        bytesOf(playControlRequest(channel->number(), AVIOCTRL_RECORD_PLAY_STOP)), restart,
        dateTime);
}

void IoConnect::changeReplayTime(Channel* channel, int seconds)
{
    if (!firmwareCanSeek(channel) || seconds == 0) {
        qDebug().nospace() << "no changeReplayTime:" << seconds;
        return;
    }
    armIoTimer(channel);
    qDebug().nospace() << "changeReplayTime:" << seconds;
    send<ProgressEvent_changeReplayTime>(channel, IOCTRL_SET_REPLAY_TIME,
        bytesOf(setReplayTimeRequest(channel->number(), channel->replayTime, seconds)));
}

void IoConnect::closeReplayStream(Channel* channel)
{
    ChannelMode& replay = channel->mode(false);
    if (replay.avIndex >= 0) {
        avClientStop(replay.avIndex);
        replay.avIndex = -1;
    }
    replay.playing = false;
    channel->replayPending = false;
    emit stopReplaySuccessMsg(channel);
}

// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of live view.
#include "AVAPIs.h"
#include "link/ioconnect.h"
#include "link/messagecodec.h"
#include "media/decode.h"
#include "model/progressevents.h"
#include "wall/viewcontrol.h"

void IoConnect::startLive(Channel* channel)
{
    armIoTimer(channel);
    channel->mode(true).waiting = true;
    emit waitingStreamMsg(channel);
    commands_.run(channel, [this, channel] {
        // Index 0, whichever channel is started: the frames that wait there are dropped.
        avClientCleanBuf(0);
        int result = sendMessage(channel, IOCTRL_VIDEO_PREPARE, QByteArray(2, '\0'));
        if (result >= 0)
            result = sendMessage(
                channel, IOCTRL_VIDEO_START, bytesOf(channelRequest(channel->number())));
        postResult(this, new ProgressEvent_StartStream(channel, result));
    });
}

void IoConnect::stopLife(Channel* channel, bool restart)
{
    armIoTimer(channel);
    // Before the device is asked, so that no frame is processed after the request.
    ViewControl::instance()->setRecord(channel, false);
    Decode::instance()->removeStream(channel, true);
    send<ProgressEvent_StopStream>(
        channel, IOCTRL_VIDEO_STOP, bytesOf(channelRequest(channel->number())), restart);
}

void IoConnect::getQuality(Channel* channel)
{
    send<ProgressEvent_getQuality>(
        channel, IOCTRL_GET_QUALITY, bytesOf(channelRequest(channel->number())));
}

void IoConnect::setQuality(Channel* channel, bool quality)
{
    armIoTimer(channel);
    send<ProgressEvent_changeQuality>(channel, IOCTRL_SET_QUALITY,
        bytesOf(setQualityRequest(channel->number(), quality)), quality);
}

void IoConnect::audioControl(Channel* channel, bool on)
{
    send<ProgressEvent_audioControl>(
        channel, on ? IOCTRL_AUDIO_START : IOCTRL_AUDIO_STOP, QByteArray(4, '\0'), on);
}

void IoConnect::getPtz(Channel* channel)
{
    commands_.run(channel, [channel] {
        if (channel->mode(true).avIndex >= 0)
            sendMessage(channel, IOCTRL_GET_PTZ, QByteArray(8, '\0'));
    });
}

void IoConnect::ptzIPC(const IOCONNECT_PTZ_DATA& data, const SMsgAVIoctrlIPCPtzCmd& message)
{
    sendPtz(data, bytesOf(message));
}

void IoConnect::ptzDVR(const IOCONNECT_PTZ_DATA& data, const SMsgAVIoctrlPtzCmd& message)
{
    sendPtz(data, bytesOf(message));
}

void IoConnect::sendPtz(const IOCONNECT_PTZ_DATA& data, const QByteArray& message)
{
    send<ProgressEvent_ptz>(data.channel, data.type, message.left(data.size), data.command);
}

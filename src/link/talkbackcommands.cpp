// SPDX-License-Identifier: GPL-3.0-or-later
// Talk-back turns the roles round: the device is told to listen, then this end runs a server on one
// more channel of the session, and the device joins it as a client.
#include "AVAPIs.h"
#include "cloud/errormsg.h"
#include "link/ioconnect.h"
#include "link/messagecodec.h"
#include "media/audiosend.h"
#include "model/progressevents.h"

#include <QDebug>

namespace {

// The session is the device's own already.
int acceptEveryone(const char*, const char*)
{
    return 1;
}

int startServer(const Channel& channel)
{
    constexpr unsigned joinTimeoutSec = 20;
    constexpr unsigned serviceType = 16;
    int resend = 0;
    return avServStart3(channel.device()->sid, acceptEveryone, joinTimeoutSec, serviceType,
        static_cast<unsigned char>(channel.speechChannel), &resend);
}

} // namespace

void IoConnect::audioSendControl(Channel* channel, bool on)
{
    armIoTimer(channel);
    commands_.run(channel, [this, channel, on] {
        channel->speechChannel = speechChannelId;
        const int result = sendMessage(channel, on ? IOCTRL_SPEAKER_START : IOCTRL_SPEAKER_STOP,
            bytesOf(channelRequest(speechChannelId)));
        postResult(this, new ProgressEvent_audioSendControl(channel, result, on));
    });
}

void IoConnect::audioSendControlResult(Channel* channel, int result, bool on)
{
    if (result < 0) {
        emit audioSendControlFailMsg(channel, result, ErrorMsg::p2pError(result));
    } else if (!on) {
        audioSendServiceStop(channel);
    } else {
        commands_.run(channel, [this, channel] {
            postResult(
                this, new ProgressEvent_audioSendServiceStart(channel, startServer(*channel)));
        });
    }
}

void IoConnect::audioSendServiceStartResult(Channel* channel, int result)
{
    // The server has gone with a session that was ended while this result was on its way, and its
    // index may be another's by now.
    if (result >= 0 && channel->device()->sid < 0)
        result = AV_SESSION_CLOSED;
    if (result < 0) {
        channel->speaking = false;
        emit audioSendControlFailMsg(channel, result, ErrorMsg::p2pError(result));
        return;
    }
    channel->talkIndex = result;
    commands_.run(channel, [this, channel, talkIndex = result] {
        const int cleaned = avClientCleanAudioBuf(talkIndex);
        qDebug().nospace() << "talk start bRet:" << cleaned << " speech channel:" << talkIndex;
        unsigned size = 0;
        const int sized = avServGetResendSize(talkIndex, &size);
        qDebug().nospace() << "talk start get resend size:" << sized << " resendsize " << size;
        postResult(this, new ProgressEvent_audioSendSpeechStart(channel, cleaned));
    });
}

void IoConnect::audioSendServiceStop(Channel* channel)
{
    commands_.run(channel, [channel, microphone = audioSend_] {
        avServStop(channel->talkIndex);
        channel->talkIndex = -1;
        channel->speaking = false;
        // The microphone belongs to the main thread. By name, since the thread sanitizer cannot
        // look into the hand-over of a function pointer.
        QMetaObject::invokeMethod(microphone, "stop", Qt::QueuedConnection);
    });
}

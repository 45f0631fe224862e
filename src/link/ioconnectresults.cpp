// SPDX-License-Identifier: GPL-3.0-or-later
// What becomes of the result of each command.
#include "AVAPIs.h"
#include "cloud/errormsg.h"
#include "link/ioconnect.h"
#include "media/audiosend.h"
#include "model/events.h"
#include "wall/viewcontrol.h"

#include <QDebug>

struct IoConnect::Results
{
    using FailSignal = void (IoConnect::*)(Channel* channel, int result, const QString& text);

    struct Row
    {
        QEvent::Type number;
        void (*take)(IoConnect* link, QEvent* event);
    };

    static const Row rows[];

    // The common row: a failure has its signal and leads to nothing else; of a message that went out
    // `success` makes what is to be made. Without one the device's answer tells the outcome.
    template <class Event, FailSignal fail, void (*success)(IoConnect*, const Event&)>
    static void take(IoConnect* link, QEvent* event)
    {
        const auto& sent = eventCast<Event>(event);
        sent.channel->stopIoTimer();
        if (sent.result < 0)
            emit(link->*fail)(sent.channel, sent.result, ErrorMsg::p2pError(sent.result));
        else
            success(link, sent);
    }

    template <class Event>
    static void nothing(IoConnect*, const Event&)
    {
    }

    template <class Event, FailSignal fail,
        void (*success)(IoConnect*, const Event&) = nothing<Event>>
    static constexpr Row row()
    {
        return {Event::number, take<Event, fail, success>};
    }

    // A row with a meaning of its own for failures too.
    template <class Event, void (*act)(IoConnect*, const Event&)>
    static constexpr Row row()
    {
        return {Event::number, [](IoConnect* link, QEvent* event) {
                    const auto& sent = eventCast<Event>(event);
                    sent.channel->stopIoTimer();
                    act(link, sent);
                }};
    }

    // What was started may have ended with its session while the result was on its way, and its AV
    // index may be another channel's by now. The failure is told as if the send had met it.
    static bool endedMeanwhile(IoConnect* link, FailSignal fail, Channel* channel)
    {
        const bool ended = channel->device()->sid < 0;
        if (ended)
            emit(link->*fail)(channel, AV_SESSION_CLOSED, ErrorMsg::p2pError(AV_SESSION_CLOSED));
        return ended;
    }

    // Live view.

    static void streamStopped(IoConnect* link, const ProgressEvent_StopStream& sent)
    {
        Channel* channel = sent.channel;
        channel->mode(true).playing = false;
        if (!channel->mode(true).open)
            link->audioSendControl(channel, false);
        emit link->videoRequestStopSuccessMsg(channel);
        if (sent.value)
            link->startLive(channel);
    }

    static void streamStarted(IoConnect* link, const ProgressEvent_StartStream& sent)
    {
        Channel* channel = sent.channel;
        if (endedMeanwhile(link, &IoConnect::videoRequestFailMsg, channel))
            return;
        channel->mode(true).playing = true;
        emit link->videoRequestSuccessMsg(channel);
        if (channel->mode(true).audioOn)
            link->audioControl(channel, true);
    }

    static void qualityChanged(IoConnect* link, const ProgressEvent_changeQuality& sent)
    {
        link->stopLife(sent.channel, true);
    }

    static void qualityAsked(IoConnect*, const ProgressEvent_getQuality& sent)
    {
        qDebug().nospace() << "send get quality success:" << sent.channel->number();
    }

    // The mode is that of the wall by now, which need not be that of the request.
    static void audioChanged(IoConnect* link, const ProgressEvent_audioControl& sent)
    {
        sent.channel->mode(ViewControl::instance()->getIsLive()).audioOn = sent.value;
        emit link->audioControlSuccessMsg(sent.channel);
    }

    static void ptzMoved(IoConnect* link, const ProgressEvent_ptz& sent)
    {
        emit link->ptzSuccessMsg(sent.channel, sent.value);
    }

    // The channel is connected whether or not it could be asked for its version.
    static void versionAsked(IoConnect* link, const ProgressEvent_getChannelVersion& sent)
    {
        emit link->connectChannelSuccessMsg(sent.channel);
    }

    static void timeSet(IoConnect* link, const ProgressEvent_setTime& sent)
    {
        emit link->setTimeSuccessMsg(sent.channel);
    }

    // Replay.

    // Success follows a failure too, so that whoever waits for the list always stops waiting.
    static void videoTimeAsked(IoConnect* link, const ProgressEvent_getReplayVideoTime& sent)
    {
        if (sent.result < 0)
            emit link->requestReplayVideoTimeFailMsg(
                sent.channel, sent.result, ErrorMsg::p2pError(sent.result));
        emit link->requestReplayVideoTimeSuccessMsg(sent.channel);
    }

    static void replayStopped(IoConnect* link, const ProgressEvent_stopReplay& sent)
    {
        link->closeReplayStream(sent.channel);
        if (sent.restart)
            link->playReplay(sent.channel, sent.time, 0, true, PLAY_SPEED_X1);
    }

    static void replayPaused(IoConnect* link, const ProgressEvent_pauseReplay& sent)
    {
        sent.channel->mode(false).playing = false;
        emit link->pauseReplaySuccessMsg(sent.channel);
        // For the wall the channel has left the mode.
        if (sent.value)
            emit link->stopReplaySuccessMsg(sent.channel);
    }

    static void replayResumed(IoConnect* link, const ProgressEvent_stopPauseReplay& sent)
    {
        if (endedMeanwhile(link, &IoConnect::startReplayFailMsg, sent.channel))
            return;
        sent.channel->mode(false).playing = true;
        emit link->startReplaySuccessMsg(sent.channel);
    }

    // Talk-back.

    static void speakerTold(IoConnect* link, const ProgressEvent_audioSendControl& sent)
    {
        link->audioSendControlResult(sent.channel, sent.result, sent.value);
    }

    static void speechServed(IoConnect* link, const ProgressEvent_audioSendServiceStart& sent)
    {
        link->audioSendServiceStartResult(sent.channel, sent.result);
    }

    static void speechStarted(IoConnect* link, const ProgressEvent_audioSendSpeechStart& sent)
    {
        Channel* channel = sent.channel;
        if (sent.result < 0) {
            link->audioSendServiceStop(channel);
            link->audioSendControl(channel, false);
            emit link->audioSendControlFailMsg(channel, 0, tr("Not Found Input Device."));
            return;
        }
        if (endedMeanwhile(link, &IoConnect::audioSendControlFailMsg, channel))
            return;
        // Switched off again before it was on.
        if (channel->talkIndex < 0)
            return;
        channel->speaking = true;
        link->audioSend_->start();
        emit link->audioSendControlSuccessMsg(channel);
    }

    // The search on the local network, which has no channel.

    static void searchStarted(IoConnect* link, QEvent* event)
    {
        link->takeSearchStart(eventCast<ProgressEvent_LanSearchStart>(event).result);
    }

    static void searchDone(IoConnect* link, QEvent* event)
    {
        const auto& found = eventCast<ProgressEvent_LanSearch>(event);
        link->takeSearchResult(found.count, found.records.get());
    }
};

const IoConnect::Results::Row IoConnect::Results::rows[] = {
    {ProgressEvent_LanSearch::number, searchDone},
    {ProgressEvent_LanSearchStart::number, searchStarted},
    row<ProgressEvent_StopStream, &IoConnect::videoRequestStopFailMsg, streamStopped>(),
    row<ProgressEvent_StartStream, &IoConnect::videoRequestFailMsg, streamStarted>(),
    row<ProgressEvent_getReplayVideoTime, videoTimeAsked>(),
    row<ProgressEvent_playReplay, &IoConnect::startReplayControlFailMsg>(),
    row<ProgressEvent_playReplayIo, nothing<ProgressEvent_playReplayIo>>(),
    row<ProgressEvent_stopReplay, &IoConnect::stopReplayFailMsg, replayStopped>(),
    row<ProgressEvent_changeQuality, &IoConnect::setQualityFailMsg, qualityChanged>(),
    row<ProgressEvent_audioControl, &IoConnect::audioControlFailMsg, audioChanged>(),
    row<ProgressEvent_ptz, &IoConnect::ptzFailMsg, ptzMoved>(),
    row<ProgressEvent_audioSendControl, speakerTold>(),
    row<ProgressEvent_audioSendServiceStart, speechServed>(),
    row<ProgressEvent_audioSendSpeechStart, speechStarted>(),
    row<ProgressEvent_getChannelVersion, versionAsked>(),
    row<ProgressEvent_pauseReplay, &IoConnect::pauseReplayFailMsg, replayPaused>(),
    row<ProgressEvent_stopPauseReplay, &IoConnect::startReplayFailMsg, replayResumed>(),
    row<ProgressEvent_setTime, &IoConnect::setTimeFailMsg, timeSet>(),
    row<ProgressEvent_setTimeZone, &IoConnect::setTimeZoneFailMsg>(),
    row<ProgressEvent_changeReplayTime, &IoConnect::changeReplayTimeFailMsg>(),
    row<ProgressEvent_setWifi, &IoConnect::setWifiFailMsg>(),
    row<ProgressEvent_getWifiList, &IoConnect::getWifiListFailMsg>(),
    row<ProgressEvent_setPassword, &IoConnect::setPasswordFailMsg>(),
    row<ProgressEvent_getWifiConfig, &IoConnect::getWifiConfigFailMsg>(),
    row<ProgressEvent_getSmartSensitivity, &IoConnect::getSmartSensitivityFailMsg>(),
    row<ProgressEvent_getSmartMode, &IoConnect::getSmartModeFailMsg>(),
    row<ProgressEvent_getRotateMode, &IoConnect::getRotateModeFailMsg>(),
    row<ProgressEvent_getRecordMode, &IoConnect::getRecordModeFailMsg>(),
    row<ProgressEvent_setSmartSensitivity, &IoConnect::setSmartSensitivityFailMsg>(),
    row<ProgressEvent_sendSmartMode, &IoConnect::setSmartModeFailMsg>(),
    row<ProgressEvent_sendRotateMode, &IoConnect::setRotateModeFailMsg>(),
    row<ProgressEvent_sendRecordMode, &IoConnect::sendRecordModeFailMsg>(),
    row<ProgressEvent_getQuality, &IoConnect::getQualityFailMsg, qualityAsked>(),
};

bool IoConnect::event(QEvent* event)
{
    for (const Results::Row& row : Results::rows) {
        if (event->type() == row.number) {
            row.take(this, event);
            return true;
        }
    }
    return QObject::event(event);
}

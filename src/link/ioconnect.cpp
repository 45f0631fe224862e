// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/ioconnect.h"

#include "cloud/errormsg.h"
#include "model/events.h"

#include <QDebug>

namespace {

using FailSignal = void (IoConnect::*)(Channel* channel, int result, const QString& text);

struct Row
{
    QEvent::Type number;
    void (*take)(IoConnect* link, QEvent* event);
};

void emitFailure(IoConnect* link, FailSignal fail, Channel* channel, int result)
{
    emit(link->*fail)(channel, result, ErrorMsg::p2pError(result));
}

// The common row: a failure has its signal; of a message that went out the device's answer tells
// the outcome, so success alone says nothing yet.
template <class Event, FailSignal fail>
void takeSent(IoConnect* link, QEvent* event)
{
    const auto& sent = eventCast<Event>(event);
    sent.channel->stopIoTimer();
    if (sent.result < 0)
        emitFailure(link, fail, sent.channel, sent.result);
}

template <class Event, FailSignal fail>
constexpr Row sent()
{
    return {Event::number, takeSent<Event, fail>};
}

void takeReplayIo(IoConnect*, QEvent* event)
{
    eventCast<ProgressEvent_playReplayIo>(event).channel->stopIoTimer();
}

// Success follows a failure too, so that whoever waits for the list always stops waiting.
void takeReplayVideoTime(IoConnect* link, QEvent* event)
{
    takeSent<ProgressEvent_getReplayVideoTime, &IoConnect::requestReplayVideoTimeFailMsg>(
        link, event);
    const auto& sent = eventCast<ProgressEvent_getReplayVideoTime>(event);
    emit link->requestReplayVideoTimeSuccessMsg(sent.channel);
}

// The channel is connected whether or not it could be asked for its version.
void takeChannelVersion(IoConnect* link, QEvent* event)
{
    const auto& sent = eventCast<ProgressEvent_getChannelVersion>(event);
    sent.channel->stopIoTimer();
    emit link->connectChannelSuccessMsg(sent.channel);
}

void takePtz(IoConnect* link, QEvent* event)
{
    takeSent<ProgressEvent_ptz, &IoConnect::ptzFailMsg>(link, event);
    const auto& sent = eventCast<ProgressEvent_ptz>(event);
    if (sent.result >= 0)
        emit link->ptzSuccessMsg(sent.channel, sent.value);
}

void takeSetTime(IoConnect* link, QEvent* event)
{
    takeSent<ProgressEvent_setTime, &IoConnect::setTimeFailMsg>(link, event);
    const auto& sent = eventCast<ProgressEvent_setTime>(event);
    if (sent.result >= 0)
        emit link->setTimeSuccessMsg(sent.channel);
}

void takeQuality(IoConnect* link, QEvent* event)
{
    takeSent<ProgressEvent_getQuality, &IoConnect::getQualityFailMsg>(link, event);
    const auto& sent = eventCast<ProgressEvent_getQuality>(event);
    if (sent.result >= 0)
        qDebug().nospace() << "send get quality success:" << sent.channel->number();
}

void emitSearchFailure(IoConnect* link, int result)
{
    if (result < 0)
        emit link->startLANSearchFailMsg(result, ErrorMsg::p2pError(result));
}

void takeLanSearch(IoConnect* link, QEvent* event)
{
    emitSearchFailure(link, eventCast<ProgressEvent_LanSearch>(event).count);
}

void takeLanSearchStart(IoConnect* link, QEvent* event)
{
    emitSearchFailure(link, eventCast<ProgressEvent_LanSearchStart>(event).result);
}

const Row rows[] = {
    {ProgressEvent_LanSearch::number, takeLanSearch},
    {ProgressEvent_LanSearchStart::number, takeLanSearchStart},
    sent<ProgressEvent_StopStream, &IoConnect::videoRequestStopFailMsg>(),
    sent<ProgressEvent_StartStream, &IoConnect::videoRequestFailMsg>(),
    {ProgressEvent_getReplayVideoTime::number, takeReplayVideoTime},
    sent<ProgressEvent_playReplay, &IoConnect::startReplayControlFailMsg>(),
    {ProgressEvent_playReplayIo::number, takeReplayIo},
    sent<ProgressEvent_stopReplay, &IoConnect::stopReplayFailMsg>(),
    sent<ProgressEvent_changeQuality, &IoConnect::setQualityFailMsg>(),
    sent<ProgressEvent_audioControl, &IoConnect::audioControlFailMsg>(),
    {ProgressEvent_ptz::number, takePtz},
    {ProgressEvent_getChannelVersion::number, takeChannelVersion},
    sent<ProgressEvent_pauseReplay, &IoConnect::pauseReplayFailMsg>(),
    sent<ProgressEvent_stopPauseReplay, &IoConnect::startReplayFailMsg>(),
    {ProgressEvent_setTime::number, takeSetTime},
    sent<ProgressEvent_setTimeZone, &IoConnect::setTimeZoneFailMsg>(),
    sent<ProgressEvent_changeReplayTime, &IoConnect::changeReplayTimeFailMsg>(),
    sent<ProgressEvent_setWifi, &IoConnect::setWifiFailMsg>(),
    sent<ProgressEvent_getWifiList, &IoConnect::getWifiListFailMsg>(),
    sent<ProgressEvent_setPassword, &IoConnect::setPasswordFailMsg>(),
    sent<ProgressEvent_getWifiConfig, &IoConnect::getWifiConfigFailMsg>(),
    sent<ProgressEvent_getSmartSensitivity, &IoConnect::getSmartSensitivityFailMsg>(),
    sent<ProgressEvent_getSmartMode, &IoConnect::getSmartModeFailMsg>(),
    sent<ProgressEvent_getRotateMode, &IoConnect::getRotateModeFailMsg>(),
    sent<ProgressEvent_getRecordMode, &IoConnect::getRecordModeFailMsg>(),
    sent<ProgressEvent_setSmartSensitivity, &IoConnect::setSmartSensitivityFailMsg>(),
    sent<ProgressEvent_sendSmartMode, &IoConnect::setSmartModeFailMsg>(),
    sent<ProgressEvent_sendRotateMode, &IoConnect::setRotateModeFailMsg>(),
    sent<ProgressEvent_sendRecordMode, &IoConnect::sendRecordModeFailMsg>(),
    {ProgressEvent_getQuality::number, takeQuality},
};

IoConnect* theIoConnect = nullptr;

} // namespace

IoConnect* IoConnect::instance()
{
    if (theIoConnect == nullptr)
        new IoConnect; // stores itself
    return theIoConnect;
}

IoConnect::IoConnect()
{
    if (theIoConnect != nullptr)
        return;
    theIoConnect = this;
}

bool IoConnect::event(QEvent* event)
{
    for (const Row& row : rows) {
        if (event->type() == row.number) {
            row.take(this, event);
            return true;
        }
    }
    return QObject::event(event);
}

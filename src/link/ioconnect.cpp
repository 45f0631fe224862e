// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/ioconnect.h"

#include "AVAPIs.h"
#include "IOTCAPIs.h"
#include "cloud/dev.h"
#include "link/connect.h"
#include "link/getmsg.h"
#include "media/audiosend.h"
#include "media/decode.h"
#include "wall/viewcontrol.h"

#include <QDebug>

namespace {

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
    audioSend_ = AudioSend::instance();
    lanTimer_.setSingleShot(true);
    QObject::connect(&lanTimer_, &QTimer::timeout, this, &IoConnect::getLanSearchResult);

    // Before Connect and every receiver: when those forget the device, it must have ended.
    QObject::connect(Dev::instance(), &Dev::deleteDevMsg, this,
        [this](Device* device) { disConnectDevice(device); });
    connect_ = std::make_unique<Connect>();
    const Connect* sessions = connect_.get();
    QObject::connect(sessions, &Connect::tutkInitSuccessMsg, this, &IoConnect::tutkInitSuccessMsg);
    QObject::connect(sessions, &Connect::tutkInitFailMsg, this, &IoConnect::tutkInitFailMsg);
    QObject::connect(
        sessions, &Connect::connectChannelFailMsg, this, &IoConnect::connectChannelFail);
    QObject::connect(
        sessions, &Connect::connectChannelSuccessMsg, this, &IoConnect::connectChannelSuccess);
    QObject::connect(sessions, &Connect::connectDevFailMsg, this, &IoConnect::connectDevFailMsg);
    QObject::connect(
        sessions, &Connect::connectDevSuccessMsg, this, &IoConnect::connectDevSuccessMsg);
}

IoConnect::~IoConnect()
{
    if (theIoConnect == this)
        theIoConnect = nullptr;
}

void IoConnect::connect(Channel* channel)
{
    connect_->connect(channel);
}

void IoConnect::connectChannel(Channel* channel, unsigned char channelId, bool isLive)
{
    connect_->connectChannel(channel, channelId, isLive);
}

void IoConnect::connectChannelFail(Channel* channel, bool isLive, int result, const QString& text)
{
    if (isLive)
        emit connectChannelFailMsg(channel, result, text);
    else
        emit startReplayFailMsg(channel, result, text);
}

void IoConnect::connectChannelSuccess(Channel* channel, bool isLive)
{
    if (isLive) {
        receiveMessages(channel);
        getChannelVersion(channel);
        getQuality(channel);
        getPtz(channel);
    } else {
        channel->mode(false).playing = true;
        if (channel->replayPending)
            changeReplayTime(channel, channel->replayOffset);
        emit startReplaySuccessMsg(channel);
    }
}

void IoConnect::disConnectDevice(Device* device)
{
    if (device->sid < 0)
        return;
    for (int i = 0; i < device->channelListSize(); ++i) {
        const int avIndex = device->channel(i)->mode(true).avIndex;
        if (avIndex >= 0)
            avSendIOCtrlExit(avIndex);
    }
    IOTC_Session_Close(device->sid); // and with it its AV channels
    device->sid = -1;
    // Of all there are, not only of those that count by now, and before anybody hears of it: an
    // index that stays behind would soon be another channel's.
    for (int i = 0; i < device->channelListSize(); ++i) {
        device->channel(i)->mode(true).avIndex = -1;
        device->channel(i)->mode(false).avIndex = -1;
    }
    for (int i = 0; i < device->channelCount(); ++i) {
        Channel* channel = device->channel(i);
        endTalkBack(channel);
        endStream(channel, true);
        emit videoRequestStopSuccessMsg(channel);
        endStream(channel, false);
        emit stopReplaySuccessMsg(channel);
    }
    qDebug("disConnectDevice");
}

void IoConnect::disConnectDevice(Channel* channel)
{
    disConnectDevice(channel->device());
}

void IoConnect::endStream(Channel* channel, bool isLive)
{
    ChannelMode& mode = channel->mode(isLive);
    mode.open = false;
    mode.playing = false;
    ViewControl::instance()->setRecord(channel, false);
    Decode::instance()->removeStream(channel, isLive);
}

// The speech server has ended with the session, and its index may soon be another channel's, which
// must not hear what is said here.
void IoConnect::endTalkBack(Channel* channel)
{
    channel->talkIndex = -1;
    if (!channel->speaking)
        return;
    channel->speaking = false;
    audioSend_->stop();
}

// A channel has one receiver: one that still asks goes on, with the new AV channel. Those that have
// ended make room here.
void IoConnect::receiveMessages(Channel* channel)
{
    const QList<GetMsg*> receivers = findChildren<GetMsg*>(QString(), Qt::FindDirectChildrenOnly);
    for (GetMsg* receiver : receivers) {
        if (!receiver->isPolling())
            delete receiver;
        else if (receiver->channel() == channel)
            return;
    }
    auto* receiver = new GetMsg(this);
    receiver->setChannel(channel);
    relay(receiver);
}

void IoConnect::relay(GetMsg* receiver)
{
    const auto pass = [this, receiver](auto from, auto to) {
        QObject::connect(receiver, from, this, to, Qt::DirectConnection);
    };
    pass(&GetMsg::receiveVideoTimeMsg, &IoConnect::receiveVideoTimeMsg);
    pass(&GetMsg::finishVideoTimeMsg, &IoConnect::finishVideoTimeMsg);
    pass(&GetMsg::receiveVideoTimeEmptyMsg, &IoConnect::receiveVideoTimeEmptyMsg);
    pass(&GetMsg::changeQualitySuccessMsg, &IoConnect::changeQualitySuccessMsg);
    pass(&GetMsg::getChannelInfoMsg, &IoConnect::getChannelInfoMsg);
    pass(&GetMsg::setTimeZoneSuccessMsg, &IoConnect::setTimeZoneSuccessMsg);
    pass(&GetMsg::setTimeZoneFailMsg, &IoConnect::setTimeZoneFailMsg);
    pass(&GetMsg::changeReplayTimeSuccessMsg, &IoConnect::changeReplayTimeSuccessMsg);
    pass(&GetMsg::changeReplayTimeFailMsg, &IoConnect::changeReplayTimeFailMsg);
    pass(&GetMsg::startReplayFailMsg, &IoConnect::startReplayFailMsg);
    pass(&GetMsg::setWifiSuccessMsg, &IoConnect::setWifiSuccessMsg);
    pass(&GetMsg::setWifiFailMsg, &IoConnect::setWifiFailMsg);
    pass(&GetMsg::setPasswordSuccessMsg, &IoConnect::setPasswordSuccessMsg);
    pass(&GetMsg::setPasswordFailMsg, &IoConnect::setPasswordFailMsg);
    pass(&GetMsg::getWifiListSuccessMsg, &IoConnect::getWifiListSuccessMsg);
    pass(&GetMsg::getWifiConfigSuccessMsg, &IoConnect::getWifiConfigSuccessMsg);
    pass(&GetMsg::getSmartSensitivitySuccessMsg, &IoConnect::getSmartSensitivitySuccessMsg);
    pass(&GetMsg::getSmartModeSuccessMsg, &IoConnect::getSmartModeSuccessMsg);
    pass(&GetMsg::getRotateModeSuccessMsg, &IoConnect::getRotateModeSuccessMsg);
    pass(&GetMsg::getRecordModeSuccessMsg, &IoConnect::getRecordModeSuccessMsg);
    pass(&GetMsg::setSmartSensitivitySuccessMsg, &IoConnect::setSmartSensitivitySuccessMsg);
    pass(&GetMsg::setSmartSensitivityFailMsg, &IoConnect::setSmartSensitivityFailMsg);
    pass(&GetMsg::setSmartModeSuccessMsg, &IoConnect::setSmartModeSuccessMsg);
    pass(&GetMsg::setSmartModeFailMsg, &IoConnect::setSmartModeFailMsg);
    pass(&GetMsg::setRecordModeSuccessMsg, &IoConnect::setRecordModeSuccessMsg);
    pass(&GetMsg::getPtzMsg, &IoConnect::getPtzMsg);
}

void IoConnect::armIoTimer(Channel* channel)
{
    QObject::connect(channel->ioTimer(), &ChannelSaveTimeout::timeout, this,
        &IoConnect::ioControlTimeout, Qt::UniqueConnection);
    channel->startIoTimer();
}

void IoConnect::ioControlTimeout(Channel* channel)
{
    avSendIOCtrlExit(channel->mode(true).avIndex);
}

int IoConnect::sendMessage(Channel* channel, unsigned type, const QByteArray& message)
{
    return avSendIOCtrl(channel->mode(true).avIndex, type, message.constData(), message.size());
}

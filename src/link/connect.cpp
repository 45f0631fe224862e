// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/connect.h"

#include "AVAPIs.h"
#include "IOTCAPIs.h"
#include "cloud/dev.h"
#include "cloud/errormsg.h"
#include "link/reportaddress.h"
#include "model/events.h"

#include <QDebug>

#include <algorithm>

namespace {

constexpr int connectTimeoutMs = 8000;
constexpr unsigned channelTimeoutSec = 5;

// The user data of one attempt: owned by the library until its final report.
struct ConnectRequest
{
    ChannelHold channel; // channel 0 of the device
    int sid;
    std::shared_ptr<ReportAddress> address;
};

template <typename Predicate>
void removeIf(QList<ChannelHold>& queue, Predicate predicate)
{
    queue.erase(std::remove_if(queue.begin(), queue.end(), predicate), queue.end());
}

// On a thread of the library.
void reportConnect(int state, int result, void* userData)
{
    if (state != IOTC_STATE_CONNECTED && state != IOTC_STATE_FAILED)
        return;
    const std::unique_ptr<ConnectRequest> request(static_cast<ConnectRequest*>(userData));
    request->address->post(
        std::make_unique<ProgressEvent_Connect>(request->channel, result, request->sid));
}

const char* boolText(bool value)
{
    return value ? "true" : "false";
}

} // namespace

Connect::Connect(QObject* parent)
    : QObject(parent)
    , reportAddress_(std::make_shared<ReportAddress>(this))
{
    timer_.setSingleShot(true);
    timer_.setInterval(connectTimeoutMs);
    QObject::connect(&timer_, &QTimer::timeout, this, &Connect::stopConnect);
    QObject::connect(Dev::instance(), &Dev::deleteDevMsg, this, &Connect::deleteDev);
    init();
}

Connect::~Connect()
{
    reportAddress_->close();
    deInit();
}

void Connect::init()
{
    runTask(nullptr, [this] {
        int result = IOTC_Initialize2(0);
        if (result == 0)
            result = avInitialize(maxAvChannels);
        postResult(this, new ProgressEvent_initTutk(result));
    });
}

void Connect::deInit()
{
    initialized_ = false;
    runTask(nullptr, [] { IOTC_DeInitialize(); });
}

void Connect::connect(Channel* channel)
{
    // A slot may still know a device that has left; nobody would end its session.
    if (channel->device()->isRetired())
        return;
    if (channel->mode(true).avIndex >= 0)
        channelConnected(channel, true);
    else if (!channelQueue_.contains(ChannelHold(channel)))
        channelQueue_.append(ChannelHold(channel));

    const ChannelHold first(channel->device()->channel(0));
    if (channel->device()->sid >= 0)
        deviceConnected(channel);
    else if (!deviceQueue_.contains(first))
        deviceQueue_.append(first);
    if (initialized_)
        connectNext();
}

void Connect::connectNext()
{
    forgetRetired();
    const QList<ChannelHold> waiting = channelQueue_;
    for (const ChannelHold& channel : waiting) {
        if (channel->device()->sid >= 0 && !channel->connectingChannel) {
            channel->connectingChannel = true;
            connectChannel(channel, static_cast<unsigned char>(channel->number()), true);
        }
    }
    // The head stays in the queue until its attempt has ended.
    if (deviceQueue_.isEmpty())
        return;
    Device* device = deviceQueue_.first()->device();
    if (device->sid < 0 && !device->connecting)
        connectDev(device);
}

void Connect::connectDev(Device* device)
{
    device->connecting = true;
    currentSid_ = IOTC_Get_SessionID();
    timer_.start();
    const ChannelHold channel(device->channel(0));
    const QByteArray uid = device->uid().toLatin1();
    deviceTasks_.run(channel, [this, channel, uid, sid = currentSid_] {
        auto request = std::make_unique<ConnectRequest>();
        request->channel = channel;
        request->sid = sid;
        request->address = reportAddress_;
        ConnectRequest* userData = request.release();
        const int result =
            IOTC_Connect_ByUID_ParallelNB(uid.constData(), sid, reportConnect, userData);
        // The one failure after which nobody reports: there is no library.
        if (result == IOTC_NOT_INITIALIZED)
            reportConnect(IOTC_STATE_FAILED, result, userData);
    });
}

void Connect::connectChannel(Channel* channel, unsigned char channelId, bool isLive)
{
    qDebug().nospace() << "connectChannel:" << boolText(isLive);
    const Device* device = channel->device();
    const QByteArray account = device->viewAccount().toLocal8Bit();
    const QByteArray password = device->viewPassword().toLocal8Bit();
    channelTasks_.run(channel, [this, channel, account, password, channelId, isLive] {
        unsigned serviceType = 0;
        int resend = 0;
        const int avIndex = avClientStart2(channel->device()->sid, account.constData(),
            password.constData(), channelTimeoutSec, &serviceType, channelId, &resend);
        postResult(this, new ProgressEvent_GetAvIndex(channel, avIndex, isLive));
    });
}

bool Connect::event(QEvent* event)
{
    if (event->type() == ProgressEvent_Connect::number) {
        const auto& report = eventCast<ProgressEvent_Connect>(event);
        takeSession(report.channel, report.result, report.value);
    } else if (event->type() == ProgressEvent_GetAvIndex::number) {
        const auto& started = eventCast<ProgressEvent_GetAvIndex>(event);
        takeAvIndex(started.channel, started.avIndex, started.isLive);
    } else if (event->type() == ProgressEvent_initTutk::number) {
        takeInit(eventCast<ProgressEvent_initTutk>(event).result);
    } else {
        return QObject::event(event);
    }
    return true;
}

void Connect::takeInit(int result)
{
    if (result < 0) {
        emit tutkInitFailMsg(result, ErrorMsg::p2pError(result));
        return;
    }
    initialized_ = true;
    emit tutkInitSuccessMsg();
    connectNext();
}

void Connect::takeSession(Channel* channel, int result, int sid)
{
    Device* device = channel->device();
    device->connecting = false;
    timer_.stop();
    if (result < 0 || sid < 0) {
        device->sid = -1;
        deviceFailed(channel, result);
        return;
    }
    device->sid = sid;
    deviceConnected(channel);
    // Nobody else would end the session of a device that has left the registry. A slot may have, and
    // the next device has the id by now.
    if (device->isRetired() && device->sid == sid) {
        device->sid = -1;
        IOTC_Session_Close(sid);
    }
}

void Connect::takeAvIndex(Channel* channel, int avIndex, bool isLive)
{
    channel->connectingChannel = false;
    // The session may have been ended while this event was on its way, and the AV channel with it:
    // another channel may have got the number by now.
    const int result = channel->device()->sid < 0 && avIndex >= 0 ? AV_SESSION_CLOSED : avIndex;
    if (result < 0) {
        channelFailed(channel, result, isLive);
        return;
    }
    channel->mode(isLive).avIndex = result;
    channelConnected(channel, isLive);
}

void Connect::stopConnect()
{
    qDebug("connect dev timeout");
    IOTC_Connect_Stop_BySID(currentSid_);
}

void Connect::deviceConnected(Channel* channel)
{
    qDebug().noquote().nospace() << "connect device success:" << channel->device()->uid();
    emit connectDevSuccessMsg(channel);
    // The head, whichever device that is; an attempt of it that is under way goes on by itself.
    if (!deviceQueue_.isEmpty())
        deviceQueue_.removeFirst();
    connectNext();
}

void Connect::deviceFailed(Channel* channel, int result)
{
    qDebug().noquote().nospace() << "connect device error:" << channel->device()->uid()
                                 << ",error:" << result;
    emit connectDevFailMsg(channel, result, ErrorMsg::p2pError(result));
    if (!deviceQueue_.isEmpty())
        deviceQueue_.removeFirst();
    connectNext();
}

void Connect::channelConnected(Channel* channel, bool isLive)
{
    qDebug().nospace() << "connect channel success:" << channel->number()
                       << ",isLive:" << boolText(isLive);
    channelQueue_.removeAll(ChannelHold(channel));
    emit connectChannelSuccessMsg(channel, isLive);
}

void Connect::channelFailed(Channel* channel, int result, bool isLive)
{
    const QString text = ErrorMsg::p2pError(result);
    qDebug().noquote().nospace() << "connect channel error:" << channel->number()
                                 << ",error:" << result << "(" << text << ")";
    channelQueue_.removeAll(ChannelHold(channel));
    emit connectChannelFailMsg(channel, isLive, result, text);
}

void Connect::deleteDev(Device* device)
{
    const auto ofDevice = [device](
                              const ChannelHold& channel) { return channel->device() == device; };
    removeIf(deviceQueue_, ofDevice);
    removeIf(channelQueue_, ofDevice);
}

// Asked for by a slot that heard of the leaving only later.
void Connect::forgetRetired()
{
    const auto retired = [](const ChannelHold& channel) { return channel->device()->isRetired(); };
    removeIf(deviceQueue_, retired);
    removeIf(channelQueue_, retired);
}

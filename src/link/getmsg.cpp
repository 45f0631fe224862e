// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/getmsg.h"

#include "AVAPIs.h"
#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "link/messagecodec.h"
#include "link/recordlist.h"
#include "model/events.h"
#include "wall/viewcontrol.h"

#include <QDebug>

namespace {

// A message on its way to its handler; `buffer` is as messagecodec.h wants it.
struct Message
{
    GetMsg* receiver;
    Channel* channel;
    const char* buffer;
    int size;
};

using SuccessSignal = void (GetMsg::*)(Channel* channel);
using FailSignal = void (GetMsg::*)(Channel* channel, int result, const QString& text);

// The device gives no number with a refusal.
void refuse(const Message& message, FailSignal fail, const char* text)
{
    emit(message.receiver->*fail)(message.channel, 0, GetMsg::tr(text));
}

struct Texts
{
    static constexpr char noRecord[] = QT_TRANSLATE_NOOP("GetMsg", "no record has been found");
    static constexpr char sensitivity[] =
        QT_TRANSLATE_NOOP("GetMsg", "Failed to configure the senitivity of smart detection");
    static constexpr char password[] = QT_TRANSLATE_NOOP("GetMsg", "Failed to configure password");
    static constexpr char replayTime[] =
        QT_TRANSLATE_NOOP("GetMsg", "Playback video data does not exist.");
    static constexpr char wifi[] =
        QT_TRANSLATE_NOOP("GetMsg", "Failed to configure wireless network");
    static constexpr char secondReplay[] =
        QT_TRANSLATE_NOOP("GetMsg", "Does not support simultaneous remote playback.");
    static constexpr char timeZone[] =
        QT_TRANSLATE_NOOP("GetMsg", "Device cannot modify time zone");
    static constexpr char smartMode[] =
        QT_TRANSLATE_NOOP("GetMsg", "Failed to configure the mode of smart detection");
};

// An answer that is a status word, with the value that means success.
template <SuccessSignal success, FailSignal fail, const char* text, int successStatus = 0>
void takeStatus(const Message& message)
{
    if (statusWord(message.buffer) == successStatus)
        emit(message.receiver->*success)(message.channel);
    else
        refuse(message, fail, text);
}

void takeRecordModeSet(const Message& message)
{
    if (statusWord(message.buffer) == 0)
        emit message.receiver->setRecordModeSuccessMsg(message.channel);
}

void takeRecordMode(const Message& message)
{
    auto answer = bodyOf<SMsgAVIoctrlGetRecordResq>(message.buffer);
    emit message.receiver->getRecordModeSuccessMsg(message.channel, &answer);
}

void takeRecordList(const Message& message)
{
    Channel* channel = message.channel;
    channel->videoTimeLoaded = true;
    const RecordList list =
        decodeRecordList(message.buffer, message.size, QDateTime::currentDateTime());
    if (list.none) {
        refuse(message, &GetMsg::receiveVideoTimeEmptyMsg, Texts::noRecord);
        return;
    }
    for (const QList<int>& block : list.blocks) {
        channel->addVideoTime(block);
        emit message.receiver->receiveVideoTimeMsg(channel, block);
    }
    if (list.last)
        emit message.receiver->finishVideoTimeMsg(channel);
}

void takeRecordingEnd(Channel* channel)
{
    qDebug("AVIOCTRL_RECORD_PLAY_END");
    QDateTime next;
    if (ViewControl::instance()->getNextBlock(&next))
        IoConnect::instance()->stopReplay(channel, true, next);
}

void takePlayControl(const Message& message)
{
    const auto answer = bodyOf<PlayControlAnswer>(message.buffer);
    switch (answer.command) {
    case AVIOCTRL_RECORD_PLAY_START:
        IoConnect::instance()->connectChannel(message.channel, answer.channelId, false);
        break;
    case AVIOCTRL_RECORD_PLAY_END:
        takeRecordingEnd(message.channel);
        break;
    case AVIOCTRL_RECORD_PLAY_STOP:
        qDebug("AVIOCTRL_RECORD_PLAY_STOP");
        IoConnect::instance()->closeReplayStream(message.channel);
        break;
    case AVIOCTRL_RECORD_PLAY_PAUSE:
        break;
    default:
        qDebug().nospace() << "command:" << static_cast<unsigned>(answer.command);
    }
}

void takeQualitySet(const Message& message)
{
    if (statusWord(message.buffer) == 0)
        IoConnect::instance()->getQuality(message.channel);
}

void takeQuality(const Message& message)
{
    message.channel->mode(true).highQuality = bodyOf<GetQualityAnswer>(message.buffer).quality != 0;
    emit message.receiver->changeQualitySuccessMsg(message.channel);
}

void takeSensitivity(const Message& message)
{
    auto answer = bodyOf<SMsgAVIoctrlGetMotionDetectResp>(message.buffer);
    emit message.receiver->getSmartSensitivitySuccessMsg(message.channel, &answer);
}

// The session runs under the old password.
void takePasswordSet(const Message& message)
{
    if (statusWord(message.buffer) == 0)
        ViewControl::instance()->closeDevice(message.channel->device());
    takeStatus<&GetMsg::setPasswordSuccessMsg, &GetMsg::setPasswordFailMsg, Texts::password>(
        message);
}

void takeReplayTimeSet(const Message& message)
{
    if (message.buffer[0] == 0)
        emit message.receiver->changeReplayTimeSuccessMsg(message.channel);
    else
        refuse(message, &GetMsg::changeReplayTimeFailMsg, Texts::replayTime);
}

void takeWifiList(const Message& message)
{
    SMsgAVIoctrlListWifiApResp list = decodeWifiList(message.buffer, message.size);
    emit message.receiver->getWifiListSuccessMsg(message.channel, &list);
}

void takeWifi(const Message& message)
{
    auto config = bodyOf<SMsgAVIoctrlGetWifiResp>(message.buffer);
    emit message.receiver->getWifiConfigSuccessMsg(message.channel, &config);
}

void takeReplayBusy(const Message& message)
{
    if (bodyOf<ReplayBusyNotice>(message.buffer).reason == 1)
        refuse(message, &GetMsg::startReplayFailMsg, Texts::secondReplay);
}

void takePtz(const Message& message)
{
    message.channel->ptzState = statusWord(message.buffer);
    emit message.receiver->getPtzMsg(message.channel);
}

void takeVersion(const Message& message)
{
    message.channel->setVersion(message.buffer);
    emit message.receiver->getChannelInfoMsg(message.channel);
}

void takeRotateMode(const Message& message)
{
    int mode = statusWord(message.buffer);
    emit message.receiver->getRotateModeSuccessMsg(message.channel, &mode);
}

void takeSmartMode(const Message& message)
{
    auto answer = bodyOf<DMS_NET_MOTION_CFG>(message.buffer);
    emit message.receiver->getSmartModeSuccessMsg(message.channel, &answer);
}

struct Handler
{
    unsigned type;
    void (*take)(const Message& message);
};

constexpr Handler handlers[] = {
    {IOCTRL_SET_RECORD_MODE_RESP, takeRecordModeSet},
    {IOCTRL_GET_RECORD_MODE_RESP, takeRecordMode},
    {IOCTRL_LIST_RECORDS_RESP, takeRecordList},
    {IOCTRL_PLAY_CONTROL_RESP, takePlayControl},
    {IOCTRL_SET_QUALITY_RESP, takeQualitySet},
    {IOCTRL_GET_QUALITY_RESP, takeQuality},
    {IOCTRL_SET_SENSITIVITY_RESP,
        takeStatus<&GetMsg::setSmartSensitivitySuccessMsg, &GetMsg::setSmartSensitivityFailMsg,
            Texts::sensitivity>},
    {IOCTRL_GET_SENSITIVITY_RESP, takeSensitivity},
    {IOCTRL_SET_PASSWORD_RESP, takePasswordSet},
    {IOCTRL_SET_REPLAY_TIME_RESP, takeReplayTimeSet},
    {IOCTRL_LIST_WIFI_RESP, takeWifiList},
    {IOCTRL_SET_WIFI_RESP,
        takeStatus<&GetMsg::setWifiSuccessMsg, &GetMsg::setWifiFailMsg, Texts::wifi>},
    {IOCTRL_GET_WIFI_RESP, takeWifi},
    {IOCTRL_REPLAY_BUSY, takeReplayBusy},
    {IOCTRL_GET_PTZ_RESP, takePtz},
    {IOCTRL_GET_VERSION_RESP, takeVersion},
    {IOCTRL_ROTATE_RESP, takeRotateMode},
    {IOCTRL_SET_TIME_ZONE_RESP,
        takeStatus<&GetMsg::setTimeZoneSuccessMsg, &GetMsg::setTimeZoneFailMsg, Texts::timeZone,
            1>},
    {IOCTRL_SMART_MODE,
        takeStatus<&GetMsg::setSmartModeSuccessMsg, &GetMsg::setSmartModeFailMsg,
            Texts::smartMode>},
    {IOCTRL_GET_SMART_MODE_RESP, takeSmartMode},
};

void dispatch(unsigned type, const Message& message)
{
    for (const Handler& handler : handlers) {
        if (handler.type == type) {
            handler.take(message);
            return;
        }
    }
    qDebug().nospace() << "msgTask:" << type;
}

} // namespace

GetMsg::GetMsg(QObject* parent)
    : QObject(parent)
{
    constexpr int pauseMs = 100;
    timer_.setSingleShot(true);
    timer_.setInterval(pauseMs);
    connect(&timer_, &QTimer::timeout, this, &GetMsg::getMsg);
    connect(Dev::instance(), &Dev::deleteDevMsg, this, &GetMsg::deleteDev);
}

void GetMsg::setChannel(Channel* channel)
{
    channel_ = channel;
    getMsg();
}

void GetMsg::getMsg()
{
    polling_ = channel_ != nullptr && channel_->device()->sid >= 0;
    if (!polling_)
        return;
    runTask(channel_, [this, channel = channel_, avIndex = int(channel_->mode(true).avIndex)] {
        auto buffer = std::make_unique<char[]>(ioctrlBufferBytes); // zero filled
        unsigned type = 0;
        const int result = avRecvIOCtrl(avIndex, &type, buffer.get(), ioctrlBufferBytes, 0);
        postResult(this, new ProgressEvent_getMsg(channel, result, type, std::move(buffer), true));
    });
}

void GetMsg::deleteDev(Device* device)
{
    if (channel_ != nullptr && channel_->device() == device)
        channel_ = nullptr;
}

bool GetMsg::event(QEvent* event)
{
    if (event->type() != ProgressEvent_getMsg::number)
        return QObject::event(event);
    const auto& message = eventCast<ProgressEvent_getMsg>(event);
    if (message.result < 0) {
        timer_.start();
    } else {
        dispatch(message.ioType, {this, message.channel, message.buffer.get(), message.result});
        getMsg();
    }
    return true;
}

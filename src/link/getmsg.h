// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/messages.h"
#include "model/channel.h"

#include <QObject>
#include <QTimer>

class QEvent;

// Takes in what a device says on the control channel of one live AV channel: answers to commands,
// and notices of a replay. Asks the library by short tasks, at once after a message and 100 ms after
// none, changes the Channel, and tells by signals; IoConnect relays each under the same name.
//
// Child of IoConnect; main thread. Ends by itself once the device's session has ended or the device
// leaves the registry, and is not started again: a channel that connects again gets a new one, unless
// the old one has not noticed the end and goes on.
// A pointer to a message is good only while the signal is delivered: connect directly.
class GetMsg final : public QObject
{
    Q_OBJECT

public:
    explicit GetMsg(QObject* parent = nullptr);
    Q_DISABLE_COPY_MOVE(GetMsg)

    Channel* channel() const { return channel_; }
    // False before setChannel and after the end; nothing is under way then.
    bool isPolling() const { return polling_; }

    // Starts to ask.
    void setChannel(Channel* channel);

    bool event(QEvent* event) override;

signals:
    void receiveVideoTimeMsg(Channel* channel, const QList<int>& block);
    void finishVideoTimeMsg(Channel* channel);
    void receiveVideoTimeEmptyMsg(Channel* channel, int result, const QString& text);
    void changeQualitySuccessMsg(Channel* channel);
    void getChannelInfoMsg(Channel* channel);
    void setTimeZoneSuccessMsg(Channel* channel);
    void setTimeZoneFailMsg(Channel* channel, int result, const QString& text);
    void changeReplayTimeSuccessMsg(Channel* channel);
    void changeReplayTimeFailMsg(Channel* channel, int result, const QString& text);
    void startReplayFailMsg(Channel* channel, int result, const QString& text);
    void setWifiSuccessMsg(Channel* channel);
    void setWifiFailMsg(Channel* channel, int result, const QString& text);
    void setPasswordSuccessMsg(Channel* channel);
    void setPasswordFailMsg(Channel* channel, int result, const QString& text);
    void getWifiListSuccessMsg(Channel* channel, SMsgAVIoctrlListWifiApResp* list);
    void getWifiConfigSuccessMsg(Channel* channel, SMsgAVIoctrlGetWifiResp* config);
    void getSmartSensitivitySuccessMsg(Channel* channel, SMsgAVIoctrlGetMotionDetectResp* answer);
    void getSmartModeSuccessMsg(Channel* channel, DMS_NET_MOTION_CFG* answer);
    void getRotateModeSuccessMsg(Channel* channel, int* mode);
    void getRecordModeSuccessMsg(Channel* channel, SMsgAVIoctrlGetRecordResq* answer);
    void setSmartSensitivitySuccessMsg(Channel* channel);
    void setSmartSensitivityFailMsg(Channel* channel, int result, const QString& text);
    void setSmartModeSuccessMsg(Channel* channel);
    void setSmartModeFailMsg(Channel* channel, int result, const QString& text);
    void setRecordModeSuccessMsg(Channel* channel);
    void getPtzMsg(Channel* channel);

private slots:
    void getMsg();
    void deleteDev(Device* device);

private:
    Channel* channel_ = nullptr;
    QTimer timer_; // to the next question
    bool polling_ = false;
};

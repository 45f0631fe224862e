// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/taskline.h"

#include <QList>
#include <QObject>
#include <QTimer>

#include <memory>

class QEvent;
class ReportAddress;

// Brings devices and channels up: initialises the two device libraries, opens a session per device,
// one device at a time, and an AV channel per channel, one channel at a time. When it is done, a
// Device has its `sid` and a Channel its `avIndex`. Sends no command and knows no stream.
//
// Built and owned by IoConnect, which relays its signals; nobody else talks to it. Main thread.
// Failures are told by signals, with the library's result and its text; nothing is tried again by
// itself.
class Connect final : public QObject
{
    Q_OBJECT

public:
    static constexpr int maxAvChannels = 4096; // of all devices

    explicit Connect(QObject* parent = nullptr);
    ~Connect() override;
    Q_DISABLE_COPY_MOVE(Connect)

    // Opens the channel for live view, with its device's session where there is none. Requests that
    // come before the libraries are up wait.
    void connect(Channel* channel);
    // Opens an AV channel on the device's session now: `channelId` is the channel's number for live
    // view, and what the device has named for a replay.
    void connectChannel(Channel* channel, unsigned char channelId, bool isLive);

    bool event(QEvent* event) override;

signals:
    void tutkInitSuccessMsg();
    void tutkInitFailMsg(int result, const QString& text);
    void connectChannelFailMsg(Channel* channel, bool isLive, int result, const QString& text);
    void connectChannelSuccessMsg(Channel* channel, bool isLive);
    // The channel of these two stands for its device: often channel 0.
    void connectDevFailMsg(Channel* channel, int result, const QString& text);
    void connectDevSuccessMsg(Channel* channel);

private slots:
    void stopConnect();
    void deleteDev(Device* device);

private:
    void init();
    void deInit();
    void connectNext();
    void forgetRetired();
    void connectDev(Device* device);
    void takeInit(int result);
    void takeSession(Channel* channel, int result, int sid);
    void takeAvIndex(Channel* channel, int avIndex, bool isLive);
    void deviceConnected(Channel* channel);
    void deviceFailed(Channel* channel, int result);
    void channelConnected(Channel* channel, bool isLive);
    void channelFailed(Channel* channel, int result, bool isLive);

    TaskLine channelTasks_;
    TaskLine deviceTasks_;

    // Main thread only.
    QTimer timer_; // of the attempt under way
    bool initialized_ = false; // both libraries are up
    QList<ChannelHold>
        deviceQueue_; // channels 0 of devices that wait for a session, the head first
    QList<ChannelHold> channelQueue_; // wait for their AV channel
    int currentSid_ = -1; // of the attempt under way
    const std::shared_ptr<ReportAddress> reportAddress_; // shared with the attempts
};

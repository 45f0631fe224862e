// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/channel.h"

#include <QObject>

class QEvent;

// The one façade to devices: commands go out as tasks, their results come back as events to this
// object, and views learn from its signals, and from nowhere else, what a device did. Singleton,
// main thread; lives to the end of the process.
//
// This version holds the returning half: every result event becomes state and a signal. A fail
// signal carries the library's result and its text; a negative result leads to nothing else.
class IoConnect final : public QObject
{
    Q_OBJECT

public:
    static IoConnect* instance();

    IoConnect();
    Q_DISABLE_COPY_MOVE(IoConnect)

    // Takes the result events of the commands; any other goes to QObject.
    bool event(QEvent* event) override;

signals:
    void startLANSearchFailMsg(int result, const QString& text);
    void connectChannelSuccessMsg(Channel* channel);
    void requestReplayVideoTimeSuccessMsg(Channel* channel);
    void ptzSuccessMsg(Channel* channel, int command);
    void setTimeSuccessMsg(Channel* channel);

    void videoRequestFailMsg(Channel* channel, int result, const QString& text);
    void videoRequestStopFailMsg(Channel* channel, int result, const QString& text);
    void requestReplayVideoTimeFailMsg(Channel* channel, int result, const QString& text);
    void startReplayControlFailMsg(Channel* channel, int result, const QString& text);
    void startReplayFailMsg(Channel* channel, int result, const QString& text);
    void stopReplayFailMsg(Channel* channel, int result, const QString& text);
    void pauseReplayFailMsg(Channel* channel, int result, const QString& text);
    void changeReplayTimeFailMsg(Channel* channel, int result, const QString& text);
    void setQualityFailMsg(Channel* channel, int result, const QString& text);
    void getQualityFailMsg(Channel* channel, int result, const QString& text);
    void audioControlFailMsg(Channel* channel, int result, const QString& text);
    void ptzFailMsg(Channel* channel, int result, const QString& text);
    void setTimeFailMsg(Channel* channel, int result, const QString& text);
    void setTimeZoneFailMsg(Channel* channel, int result, const QString& text);
    void setWifiFailMsg(Channel* channel, int result, const QString& text);
    void setPasswordFailMsg(Channel* channel, int result, const QString& text);
    void setSmartSensitivityFailMsg(Channel* channel, int result, const QString& text);
    void setSmartModeFailMsg(Channel* channel, int result, const QString& text);
    void setRotateModeFailMsg(Channel* channel, int result, const QString& text);
    void sendRecordModeFailMsg(Channel* channel, int result, const QString& text);
    void getWifiListFailMsg(Channel* channel, int result, const QString& text);
    void getWifiConfigFailMsg(Channel* channel, int result, const QString& text);
    void getSmartSensitivityFailMsg(Channel* channel, int result, const QString& text);
    void getSmartModeFailMsg(Channel* channel, int result, const QString& text);
    void getRotateModeFailMsg(Channel* channel, int result, const QString& text);
    void getRecordModeFailMsg(Channel* channel, int result, const QString& text);
};

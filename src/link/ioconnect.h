// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/lansearchresult.h"
#include "link/messages.h"
#include "link/taskline.h"
#include "model/playspeed.h"

#include <QDateTime>
#include <QObject>
#include <QTimer>

#include <memory>

class AudioSend;
class Connect;
class GetMsg;
class QEvent;

// What a playReplay task carries.
struct IOCONNECT_REPLAY_DATA
{
    QDateTime dateTime; // where the replay starts
    bool forward = true;
    PLAY_SPEED speed = PLAY_SPEED_X1;
};

// What a PTZ task carries beside the message.
struct IOCONNECT_PTZ_DATA
{
    Channel* channel = nullptr;
    unsigned type = 0; // IOCTRL_PTZ_IPC or IOCTRL_PTZ_DVR
    int command = 0; // for ptzSuccessMsg
    int size = 0; // of the message
};

// The one façade to devices. Views call its operations with a Channel*, and learn from its signals,
// and from nowhere else, what a device did.
//
// An operation starts a task that sends one message; its result comes back as an event. A message
// that could not be sent leads to the operation's fail signal with the library's result and its
// text, and, where nothing else is said below, to nothing else. For most a sent message says nothing
// yet: the device's answer comes by itself, through a GetMsg for each connected channel, and is
// matched by its type alone; a refusal carries 0 and a fixed text. No answer, no signal.
//
// At any moment one command of the whole program is in flight, in the order in which they were
// asked for; the others wait on pool threads. Some commands arm the channel's IO timer: 20 s later it
// ends the message of the channel that hangs then, whichever that is. Any result of the channel stops
// the timer. A message without it may hang as long as the library lets it.
//
// Channels are those of devices in the registry. A device that leaves it is disconnected.
//
// Singleton, lives to the end of the process; main thread. A pointer to a message is good only
// while its signal is delivered: connect directly.
class IoConnect final : public QObject
{
    Q_OBJECT

public:
    static IoConnect* instance();

    // Brings the device libraries up. A second object does nothing.
    IoConnect();
    ~IoConnect() override;
    Q_DISABLE_COPY_MOVE(IoConnect)

    // Sessions. `connect` leads to connectDevSuccessMsg, if need be, then to
    // connectChannelSuccessMsg or connectChannelFailMsg; or to connectDevFailMsg, once for a device,
    // with its channel 0, while its other channels wait for the next `connect`. Success of a
    // channel that is connected is told inside the call. Devices wait for each other, and while the
    // libraries do not come up all wait.
    void connect(Channel* channel);
    // For GetMsg: opens the AV channel that the device has named for a replay.
    void connectChannel(Channel* channel, unsigned char channelId, bool isLive);
    // Ends the session with all that runs on it, at once; does nothing where there is none.
    void disConnectDevice(Device* device);
    void disConnectDevice(Channel* channel);

    // Live view.
    void startLive(Channel* channel); // arms
    void stopLife(Channel* channel, bool restart); // arms; ends talk-back of a closed channel
    void getQuality(Channel* channel);
    void setQuality(Channel* channel, bool quality); // arms; true: high; restarts the stream
    void audioControl(Channel* channel, bool on);
    void getPtz(Channel* channel); // no signal on failure; asks nothing where not connected
    void ptzIPC(const IOCONNECT_PTZ_DATA& data, const SMsgAVIoctrlIPCPtzCmd& message);
    void ptzDVR(const IOCONNECT_PTZ_DATA& data, const SMsgAVIoctrlPtzCmd& message);

    // Settings of a device, through one of its channels. Texts are sent as Latin-1.
    void getChannelVersion(Channel* channel); // arms; connectChannelSuccessMsg, sent or not
    void getWifiList(Channel* channel);
    void getWifiConfig(Channel* channel);
    void setWifi(Channel* channel, const QString& ssid, const QString& password);
    // Accepted: the device is disconnected before its signal.
    void setPassword(Channel* channel, const QString& oldPassword, const QString& newPassword);
    // As it stands, whatever its zone. Success is told once sent.
    void setTime(Channel* channel, const QDateTime& time);
    void setTimeZone(Channel* channel, const QString& zone); // arms
    void getSmartSensitivity(Channel* channel);
    void sendSmartSensitivity(Channel* channel, int value); // 25, 50, 75 or 100
    void getSmartMode(Channel* channel);
    void sendSmartMode(Channel* channel, int mode); // one digit
    void getRotateMode(Channel* channel);
    void sendRotateMode(Channel* channel, int mode); // 0 to 3; answered by getRotateModeSuccessMsg
    void getRecordMode(Channel* channel);
    void sendRecordMode(Channel* channel, int type); // 0 to 2; no signal of a refusal

    // Replay. The channel must be connected; its pictures come on a second AV channel. All arm.
    // `isModeChange`: the wall leaves the mode or comes back, and what the user paused stays so.
    //
    // The blocks of a day, then finishVideoTimeMsg, or receiveVideoTimeEmptyMsg; inside the call for
    // the day that was asked for last, once any list has come. Otherwise
    // requestReplayVideoTimeSuccessMsg follows, after the fail signal too.
    void getReplayVideoTime(Channel* channel, const QDate& date);
    // Seeks by `offset` seconds once it runs. Not sent: startReplayControlFailMsg.
    void playReplay(
        Channel* channel, const QDateTime& dateTime, int offset, bool forward, PLAY_SPEED speed);
    void pauseReplay(Channel* channel, bool isModeChange);
    void stopPauseReplay(Channel* channel, bool isModeChange); // not sent: startReplayFailMsg
    // Restart: plays from `dateTime` on, forward at x1.
    void stopReplay(Channel* channel, bool restart, const QDateTime& dateTime);
    // To Channel::replayTime and so many seconds. Does nothing for 0, nor where the firmware cannot.
    void changeReplayTime(Channel* channel, int seconds);
    // Closes the AV channel of the replay. May be called again.
    void closeReplayStream(Channel* channel);

    // Talk-back. On: audioSendControlSuccessMsg once the device has joined and the microphone runs.
    // Off: no signal, but for an off that is not sent. The other three are its further steps, with
    // the result of the step before.
    void audioSendControl(Channel* channel, bool on); // arms
    void audioSendControlResult(Channel* channel, int result, bool on);
    void audioSendServiceStartResult(Channel* channel, int result);
    void audioSendServiceStop(Channel* channel);

    // Search on the local network: takes 5 s and ends in startLANSearchSuccessMsg or
    // startLANSearchFailMsg. The results stay until those of the next search are there.
    void startLANSearch();
    const QList<LanSearchResult>& lanResults() const { return lanResults_; }

    // Takes the result events of the commands; any other goes to QObject.
    bool event(QEvent* event) override;

signals:
    void connectDevSuccessMsg(Channel* channel);
    void connectChannelSuccessMsg(Channel* channel);
    void videoRequestSuccessMsg(Channel* channel);
    void videoRequestStopSuccessMsg(Channel* channel);
    void startLANSearchSuccessMsg();
    void tutkInitSuccessMsg();
    void requestReplayVideoTimeSuccessMsg(Channel* channel);
    void startReplaySuccessMsg(Channel* channel);
    void stopReplaySuccessMsg(Channel* channel);
    void pauseReplaySuccessMsg(Channel* channel);
    void changeQualitySuccessMsg(Channel* channel);
    void audioControlSuccessMsg(Channel* channel);
    void audioSendControlSuccessMsg(Channel* channel);
    void waitingStreamMsg(Channel* channel);
    void ptzSuccessMsg(Channel* channel, int command);
    void setTimeSuccessMsg(Channel* channel);
    void setTimeZoneSuccessMsg(Channel* channel);
    void changeReplayTimeSuccessMsg(Channel* channel);
    void setWifiSuccessMsg(Channel* channel);
    void setPasswordSuccessMsg(Channel* channel);
    void setSmartSensitivitySuccessMsg(Channel* channel);
    void setSmartModeSuccessMsg(Channel* channel);
    void setRecordModeSuccessMsg(Channel* channel);
    void getPtzMsg(Channel* channel);
    void getWifiListSuccessMsg(Channel* channel, SMsgAVIoctrlListWifiApResp* list);
    void getWifiConfigSuccessMsg(Channel* channel, SMsgAVIoctrlGetWifiResp* config);
    void getSmartSensitivitySuccessMsg(Channel* channel, SMsgAVIoctrlGetMotionDetectResp* answer);
    void getSmartModeSuccessMsg(Channel* channel, DMS_NET_MOTION_CFG* answer);
    void getRotateModeSuccessMsg(Channel* channel, int* mode);
    void getRecordModeSuccessMsg(Channel* channel, SMsgAVIoctrlGetRecordResq* answer);
    void receiveVideoTimeEmptyMsg(Channel* channel, int result, const QString& text);
    void startLANSearchFailMsg(int result, const QString& text);
    void tutkInitFailMsg(int result, const QString& text);
    void connectDevFailMsg(Channel* channel, int result, const QString& text);
    void connectChannelFailMsg(Channel* channel, int result, const QString& text);
    void videoRequestFailMsg(Channel* channel, int result, const QString& text);
    void videoRequestStopFailMsg(Channel* channel, int result, const QString& text);
    void requestReplayVideoTimeFailMsg(Channel* channel, int result, const QString& text);
    void startReplayControlFailMsg(Channel* channel, int result, const QString& text);
    void startReplayFailMsg(Channel* channel, int result, const QString& text);
    void stopReplayFailMsg(Channel* channel, int result, const QString& text);
    void pauseReplayFailMsg(Channel* channel, int result, const QString& text);
    void setQualityFailMsg(Channel* channel, int result, const QString& text);
    void getQualityFailMsg(Channel* channel, int result, const QString& text);
    void audioControlFailMsg(Channel* channel, int result, const QString& text);
    void audioSendControlFailMsg(Channel* channel, int result, const QString& text);
    void setTimeFailMsg(Channel* channel, int result, const QString& text);
    void setTimeZoneFailMsg(Channel* channel, int result, const QString& text);
    void changeReplayTimeFailMsg(Channel* channel, int result, const QString& text);
    void ptzFailMsg(Channel* channel, int result, const QString& text);
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
    void receiveVideoTimeMsg(Channel* channel, const QList<int>& block);
    void finishVideoTimeMsg(Channel* channel);
    void getChannelInfoMsg(Channel* channel);

private slots:
    void ioControlTimeout(Channel* channel);
    void connectChannelFail(Channel* channel, bool isLive, int result, const QString& text);
    void connectChannelSuccess(Channel* channel, bool isLive);
    void getLanSearchResult();

private:
    struct Results; // what becomes of each result event

    void armIoTimer(Channel* channel);
    static int sendMessage(Channel* channel, unsigned type, const QByteArray& message);
    // Sends one message and posts Event(channel, result, values...).
    template <class Event, typename... Values>
    void send(Channel* channel, unsigned type, const QByteArray& message, Values... values);

    void sendPtz(const IOCONNECT_PTZ_DATA& data, const QByteArray& message);
    void repeatVideoTimes(Channel* channel);
    void receiveMessages(Channel* channel);
    void relay(GetMsg* receiver);
    void endStream(Channel* channel, bool isLive);
    void endTalkBack(Channel* channel);
    void takeSearchStart(int result);
    void takeSearchResult(int count, const IOTC_SearchRecord* records);

    TaskLine commands_; // one send of the whole program at a time

    // Main thread only.
    AudioSend* audioSend_ = nullptr;
    std::unique_ptr<Connect> connect_; // null in a second object
    QList<LanSearchResult> lanResults_;
    QTimer lanTimer_;
    bool searchInitialized_ = false; // the search under way has brought the libraries up itself
};

template <class Event, typename... Values>
void IoConnect::send(Channel* channel, unsigned type, const QByteArray& message, Values... values)
{
    commands_.run(channel, [=] {
        const int result = sendMessage(channel, type, message);
        postResult(this, new Event(channel, result, values...));
    });
}

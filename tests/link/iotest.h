// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/ioconnect.h"
#include "media/audiosend.h"
#include "media/decode.h"
#include "model/device.h"
#include "scriptedlink.h"
#include "wall/viewcontrol.h"

#include <QStringList>

#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

// What happens around IoConnect, in one order: its signals, the calls it makes into its neighbours,
// and the calls into the layer, one line each:
//
//     waitingStreamMsg 0                         a signal, the channel by its number
//     videoRequestFailMsg 0 -20009 The text      with the rest of its arguments
//     receiveVideoTimeMsg 0 [0,600,1710000000,1] pointers to messages are left out
//     Decode::removeStream 0 live                or replay
//     ViewControl::setRecord 0 off
//     AudioSend::stop                            and " on a wrong thread" where it is not the main one
//     send 511                                   a message, by its type
//     avClientCleanBuf 0                         any other call, with its first argument
//
// The polls for messages are left out. Any thread.
class HappeningRecord final : public QObject
{
public:
    void watch(QObject* sender); // notes its signals
    void note(const QString& line); // and complains where it is not on the main thread
    void clear(); // forgets all that was before, calls into the layer too
    QStringList lines() const;
    std::vector<LinkCall> sends() const; // the messages that were sent
    QList<int> sentTypes() const;

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

private:
    using Clock = std::chrono::steady_clock;
    using Line = std::pair<Clock::time_point, QString>;

    std::vector<Line> layerLines() const; // the caller holds mutex_

    mutable std::mutex mutex_;
    std::vector<Line> noted_;
    Clock::time_point from_;
};

class SpyDecode final : public Decode
{
public:
    explicit SpyDecode(HappeningRecord& record)
        : record_(record)
    {
    }
    void removeStream(Channel* channel, bool isLive) override;

private:
    HappeningRecord& record_;
};

class SpyAudioSend final : public AudioSend
{
public:
    explicit SpyAudioSend(HappeningRecord& record)
        : record_(record)
    {
    }
    void start() override { record_.note(QStringLiteral("AudioSend::start")); }
    void stop() override { record_.note(QStringLiteral("AudioSend::stop")); }

private:
    HappeningRecord& record_;
};

// Does what the wall does, and notes it.
class SpyViewControl final : public ViewControl
{
public:
    explicit SpyViewControl(HappeningRecord& record)
        : record_(record)
    {
    }
    bool getIsLive() const override { return isLive; }
    void setRecord(Channel* channel, bool isRecord) override;
    bool getNextBlock(QDateTime* out) const override;
    void closeDevice(Device* device) override;

    bool isLive = true;
    std::optional<QDateTime> nextBlock; // of the timeline

private:
    HappeningRecord& record_;
};

// IoConnect between spies and the scripted layer, and a device whose channels are connected. Lives
// within one test function. The first session and the first AV channel of the layer are another
// device's, so that neither number of ours is 0.
//
//     IoTest t;
//     t.io->startLive(t.channel());
//     QVERIFY(t.settle());
//     QCOMPARE(t.record.sentTypes(), QList<int>({255, 511}));
class IoTest final
{
public:
    explicit IoTest(int channelCount = 1);
    ~IoTest(); // lets calls that hang in the layer go
    Q_DISABLE_COPY_MOVE(IoTest)

    Channel* channel(int number = 0) const { return device->channel(number); }
    int avIndex(int number = 0) const { return channel(number)->mode(true).avIndex; }

    // Runs tasks and delivers their results until nothing is left to do but what a timer starts, or
    // what the layer reports on a thread of its own: a new session. False where a task hangs.
    [[nodiscard]] bool settle();
    // Connects the channel, where it is not; its message receiver starts, and the record is cleared.
    [[nodiscard]] bool startReceiving(int number = 0);
    // The device sends a message: true once its receiver has dealt with it.
    [[nodiscard]] bool receive(int type, const QByteArray& message, int number = 0);

    // The IO timer of a channel: whether it runs its 20 seconds, and how it runs out now.
    static bool isArmed(Channel* channel);
    static void runOut(Channel* channel);

    ScriptedLink& link;
    HappeningRecord record;
    // The microphone first: whoever builds IoConnect has it take the one there is.
    SpyAudioSend audioSend;
    SpyViewControl viewControl;
    SpyDecode decode;
    std::unique_ptr<IoConnect> io;
    DeviceOwner device;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/messages.h"
#include "localzone.h"
#include "wallwatch.h"

#include <QByteArray>
#include <QDateTime>

// The wall in playback on 9 March 2024, in UTC, beside what stands for the timeline: it asks for the
// day's list of each channel that has connected, and puts the blocks into the pool.
//
//     ReplayWall t;
//     Device* device = t.addDevice(2);
//     t.record(device, {nineToTen});                        // what the device has of the day
//     t.wall.openReplayChannel(device->channel(0));
//     QVERIFY(t.settle());                                  // it is asked to play
//     QVERIFY(t.start(device->channel(0)));                 // and it plays
class ReplayWall final : public QObject
{
public:
    ReplayWall()
    {
        wall.changeMod(false);
        wall.setDate(day());
        connect(t.io.get(), &IoConnect::connectChannelSuccessMsg, this, [this](Channel* channel) {
            if (!wall.getIsLive())
                t.io->getReplayVideoTime(channel, wall.getDate());
        });
        connect(t.io.get(), &IoConnect::receiveVideoTimeMsg, this,
            [this](Channel*, const QList<int>& block) { wall.appendVideoTime(block); });
    }

    static QDate day() { return {2024, 3, 9}; }
    // A block of the day, from a second of it on.
    static QList<int> block(int second, int length = 3600)
    {
        constexpr int midnight = 1709942400;
        return {second, length, midnight + second, 1};
    }

    // A connected device whose recordings of the day are known, which are none at first.
    Device* addDevice(int channelCount)
    {
        Device* device = t.addDevice(channelCount);
        record(device, {});
        for (int i = 0; i < channelCount; ++i)
            device->channel(i)->setVersion(QByteArray("3.5.1").leftJustified(64, '\0').constData());
        return device;
    }
    static void record(Device* device, const QList<QList<int>>& blocks)
    {
        for (int i = 0; i < device->channelCount(); ++i)
            record(device->channel(i), blocks);
    }
    static void record(Channel* channel, const QList<QList<int>>& blocks)
    {
        channel->clearVideoTimes();
        for (const QList<int>& block : blocks)
            channel->addVideoTime(block);
        channel->videoTimeDate = day();
        channel->videoTimeLoaded = true;
    }

    // The device accepts the start of the replay, and names an AV channel for it.
    [[nodiscard]] bool start(Channel* channel)
    {
        const int named = 100 + channel->number();
        t.io->connectChannel(channel, static_cast<unsigned char>(named), false);
        return t.settle() && channel->mode(false).playing;
    }
    // That AV channel does not open.
    [[nodiscard]] bool failToStart(Channel* channel)
    {
        t.link.next(LinkFn::avClientStart2).answers(-20009);
        t.io->connectChannel(channel, 100, false);
        return t.settle();
    }
    // Opens the channel, and has it play.
    [[nodiscard]] bool play(Channel* channel)
    {
        wall.openReplayChannel(channel);
        return t.settle() && start(channel);
    }

    [[nodiscard]] bool settle() const { return t.settle(); }

    const LocalZone zone{"UTC"};
    WallTest t;
    ViewControl& wall = t.viewControl;
};

// A message by its hex digits; the blanks between its fields are for the reader.
inline QByteArray wire(const char* digits)
{
    return QByteArray::fromHex(digits);
}

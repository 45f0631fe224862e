// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "iotest.h"
#include "replaytest.h"

// 22:05:02 of the day before, in UTC.
inline QDateTime morning()
{
    return localTime(2024, 3, 9, 7, 5, 2);
}

// 11:30:00 of the same day, in UTC.
inline QDateTime evening()
{
    return localTime(2024, 3, 9, 20, 30, 0);
}

// The last of the four connected channels of a device, on a machine in Tokyo. The replay may be
// moved, and its offsets count from `morning`.
class ReplayCase final
{
public:
    ReplayCase()
    {
        setVersion(channel, "3.5.1");
        channel->replayTime = morning();
    }

    // The replay runs on an AV channel of its own.
    void open()
    {
        replayIndex = link().openChannel(t.device->sid, 9);
        replay().avIndex = replayIndex;
        replay().playing = true;
    }
    // The next message of this type is not taken: the device is gone.
    void refuse(int type) { link().next(LinkFn::avSendIOCtrl, ofType(type)).answers(-20016); }

    // The message that went out last, or one by its place.
    LinkCall sent() const { return t.record.sends().back(); }
    LinkCall sent(std::size_t place) const { return t.record.sends().at(place); }

    [[nodiscard]] bool settle() { return t.settle(); }
    QStringList lines() const { return t.record.lines(); }
    ScriptedLink& link() const { return t.link; }
    ChannelMode& replay() const { return channel->mode(false); }

    const LocalZone zone{"Asia/Tokyo"};
    IoTest t{4};
    IoConnect* const io = t.io.get();
    Channel* const channel = t.channel(3);
    const int liveIndex = t.avIndex(3);
    int replayIndex = -1;
};

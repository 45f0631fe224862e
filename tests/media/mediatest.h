// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/ioconnect.h"
#include "media/audiosend.h"
#include "media/decode.h"
#include "media/stream.h"
#include "media/video.h"
#include "model/device.h"
#include "scriptedlink.h"
#include "wall/viewcontrol.h"

#include <QByteArray>
#include <QPointer>

#include <memory>
#include <optional>
#include <vector>

// One signal decodeSuccess.
struct Shown
{
    Channel* channel;
    bool isLive;
    int width;
    int height;
    uint timestamp;
};

// One signal decodeCountMsg.
struct Counted
{
    Channel* channel;
    int videoReceived;
    int audioReceived;
    int videoDecoded;
    int audioPlayed;
};

// The streams between IoConnect and the scripted layer, and a device whose channels are connected for
// both modes. Lives within one test function. The first session and the first AV channel of the
// layer are another device's, so that neither number of ours is 0.
//
//     MediaTest t;
//     t.queue(clip);
//     t.start();
//     QVERIFY(t.settle());
//     QCOMPARE(t.link.count(LinkFn::avRecvFrameData2), 26);
class MediaTest final
{
public:
    explicit MediaTest(int channelCount = 1);
    ~MediaTest(); // lets calls that hang in the layer go
    Q_DISABLE_COPY_MOVE(MediaTest)

    Channel* channel(int number = 0) const { return device->channel(number); }
    int avIndex(bool isLive = true, int number = 0) const
    {
        return channel(number)->mode(isLive).avIndex;
    }

    // The link tells that the device has agreed to send. The stream that runs then.
    Stream* start(bool isLive = true, int number = 0) const;
    Stream* stream(bool isLive = true, int number = 0) const; // null where there is none

    // What the layer has for the channel.
    void queueVideo(const QByteArray& frame, const LinkFrameInfo& info, bool isLive = true) const;
    void queueSound(const QByteArray& frame, quint16 codec = 138, bool isLive = true) const;

    // Runs tasks and delivers their results until nothing is left to do but what a timer starts. No
    // timer runs out meanwhile. False where a task hangs.
    [[nodiscard]] bool settle() const;
    // The same, after a fetch that does not wait for the pause to end.
    [[nodiscard]] bool fetch(bool isLive = true) const;

    // Fetches from the layer that have come in until now.
    int videoFetches() const { return link.count(LinkFn::avRecvFrameData2); }
    int soundChecks() const { return link.count(LinkFn::avCheckAudioBuf); }

    // The device leaves the registry, and is destroyed once nothing holds it.
    void removeDevice();

    ScriptedLink& link;
    AudioSend audioSend; // first: whoever builds IoConnect has it take the one there is
    ViewControl viewControl;
    std::unique_ptr<IoConnect> io;
    std::unique_ptr<Decode> decode;
    DeviceOwner device;
    std::vector<Shown> shown;
    std::vector<Counted> counted;
};

// Delivers results until there are none, without a look at timers. False where a task hangs.
[[nodiscard]] bool settleTasks(Channel* channel);

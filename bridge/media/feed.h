// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/linkframe.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

// What the settings and commands of a device change in the test picture of one channel. Written
// by the device's thread, read by the drawing thread at each frame: each value by itself, so a
// picture may show a change of two values one after the other.
struct SceneState
{
    std::atomic<float> pan{0}; // -1 (left) to 1 (right)
    std::atomic<float> tilt{0}; // -1 (down) to 1 (up)
    std::atomic<float> zoom{0}; // 0 (wide) to 1 (near)
    std::atomic<float> focus{0.5F}; // 0 to 1
    std::atomic<float> iris{0.5F}; // 0 to 1
    std::atomic<int> cruise{0}; // 0 none, 1 auto cruise, 2 cruise
    std::atomic<int> rotation{0}; // 0 upright, 1 turned by 180 degrees, 2 mirrored, 3 flipped
    std::atomic<std::int64_t> clockOffsetSeconds{0}; // added to the wall clock that is shown
    std::atomic<int> zoneOffsetSeconds{0}; // of the zone whose time is shown, east of UTC
};

enum class StampKind { Time, Frame, Off };
enum class VideoCodec { H264, H265 };
enum class Quality { High, Low };

// One source of a channel, as the configuration names it.
struct SourceSettings
{
    // "test:", "file:PATH" or "rtsp://..."
    std::string url;

    // for test: only
    int scene = -1; // 0 street, 1 gate, 2 yard, 3 corridor; -1 by the channel's number
    int width = 1280;
    int height = 720;
    int framesPerSecond = 25;
    int kilobitsPerSecond = 2000;
    int keyInterval = 50; // frames from one key frame to the next
    VideoCodec codec = VideoCodec::H264;
    StampKind stamp = StampKind::Time;
    bool sound = true;
    // Channels with the same text and the same values above show one picture, drawn and encoded
    // once: with the number and the scene state of the first of them. Empty: its own.
    std::string shared;

    // for rtsp: only
    bool overUdp = false;
};

struct FeedSettings
{
    std::string name; // "UID/channel", for the log
    int channel = 0; // from 0 on; the test picture shows it counted from 1, as clients do
    SourceSettings main;
    std::shared_ptr<const SourceSettings> sub; // null: low quality is made from the main source
};

// Takes the frames of a feed. Called on the feed's threads, pictures and sound at the same time,
// but one picture and one sound frame after the other; must not wait. From within a call a sink may
// watch, unwatch, listen and unlisten itself, no other sink.
class FrameSink
{
public:
    virtual ~FrameSink() = default;
    virtual void videoFrame(const std::shared_ptr<const LinkFrame>& frame) = 0;
    virtual void audioFrame(const std::shared_ptr<const LinkFrame>& frame) = 0;
};

// The pictures and the sound of one channel: owns its sources and gives their frames to any
// number of sinks. A source runs while somebody watches or listens and, so that a start has
// pictures at once, main sources from files and cameras run always.
// Threads: any; calls of one sink from one thread at a time.
class Feed
{
public:
    static std::unique_ptr<Feed> create(
        const FeedSettings& settings, const std::shared_ptr<SceneState>& state);

    Feed() = default;
    Feed(const Feed&) = delete;
    Feed& operator=(const Feed&) = delete;
    // Stops the sources and waits for their threads; no sink is called after the return.
    virtual ~Feed() = default;

    // Pictures from a key frame on: the running group of pictures at once, on the calling thread,
    // then each frame as it comes. Watching again restarts, also at another quality.
    virtual void watch(const std::shared_ptr<FrameSink>& sink, Quality quality) = 0;
    // No videoFrame() of this sink after the return. Waits for one that runs on another thread:
    // the caller must not hold a lock that the sink takes. The same goes for watch(), for
    // unlisten() and listen(), and for the destructor.
    virtual void unwatch(const FrameSink* sink) = 0;
    // Sound: A-law 8 kHz mono in frames of 40 ms.
    virtual void listen(const std::shared_ptr<FrameSink>& sink) = 0;
    virtual void unlisten(const FrameSink* sink) = 0;
};

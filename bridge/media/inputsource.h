// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "audiopass.h"
#include "inputstream.h"
#include "lowquality.h"
#include "source.h"
#include "timeline.h"
#include "videopass.h"
#include "worker.h"

#include <string>

// Pictures and sound of a file, looped at its own pace, or of a camera. What fails is logged and
// tried again, ever later (backoff.h); a connection that gave pictures starts the row anew.
class InputSource final : public Source
{
public:
    // `always`: it runs also while nobody watches, so that a start has pictures at once.
    InputSource(const FeedSettings& feed, const SourceSettings& settings, bool always);

    FrameHub& video() override { return video_; }
    FrameHub& audio() override { return audio_; }
    FrameHub& lowVideo() override { return low_.hub(); }

private:
    bool wanted() const { return always_ || video_.watched() || audio_.watched(); }
    bool isFile() const { return !path_.empty(); }
    void run();
    std::unique_ptr<InputStream> open(std::string& error);
    std::string play();
    std::string playRounds(InputStream& input);
    void put(AVPacket& packet, const InputStream& input);
    bool pace(const AVPacket& packet, const InputStream& input);
    bool nextRound(InputStream& input);

    const std::string name_;
    const SourceSettings settings_;
    const std::string path_; // of a file; empty for a camera
    const bool always_;
    FrameHub video_;
    FrameHub audio_;
    // worker's thread only
    std::unique_ptr<VideoPass> videoPass_;
    std::unique_ptr<AudioPass> audioPass_;
    Timeline timeline_;
    Worker::Clock::time_point start_; // of the time line
    bool started_ = false;
    bool delivered_ = false; // a picture in this connection, for a file in this round

    // After what their threads use, so that these end first.
    Worker worker_;
    LowQuality low_{video_};
};

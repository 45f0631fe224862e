// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "beepsource.h"
#include "lowquality.h"
#include "source.h"
#include "testpicture.h"
#include "videoencoder.h"
#include "worker.h"

#include <string>

// The test picture of one channel, or of many that share it: drawn and encoded while somebody
// watches. Pictures come at fixed moments of the monotonic clock; one that would be late is left
// out, never drawn in a hurry.
class TestSource final : public Source
{
public:
    TestSource(const FeedSettings& feed, const SourceSettings& settings,
        std::shared_ptr<SceneState> state);

    FrameHub& video() override { return video_; }
    FrameHub& audio() override { return settings_.sound ? beep_.hub() : silence_; }
    FrameHub& lowVideo() override { return low_.hub(); }

    // Encoded so far; the tests see by it what is shared.
    std::uint64_t encodedFrames() const { return encoded_; }

private:
    void run();
    void showWhileWatched();
    bool showPictures();
    bool show(TestPicture& picture);
    bool openEncoder();

    const std::string name_;
    const int channel_;
    const SourceSettings settings_;
    const std::shared_ptr<SceneState> state_;
    FrameHub video_;
    FrameHub silence_{FrameHub::Kind::Audio, [] {}};
    BeepSource beep_;
    std::atomic<std::uint64_t> encoded_{0}; // also the frame number that is shown
    std::unique_ptr<VideoEncoder> encoder_; // worker's thread only
    // After what their threads use, so that these end first.
    Worker worker_;
    LowQuality low_{video_};
};

// The test source for these settings: one of its own, or the one that all feeds with the same
// `shared` text and the same settings have together. Threads: any.
std::shared_ptr<TestSource> testSourceFor(
    const FeedSettings& feed, const SourceSettings& settings, std::shared_ptr<SceneState> state);

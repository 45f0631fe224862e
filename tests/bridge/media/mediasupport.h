// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/feed.h"
#include "media/ffmpeg.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

using SharedFrame = std::shared_ptr<const LinkFrame>;

// Keeps what it is given. Threads: any.
class RecordingSink : public FrameSink
{
public:
    void videoFrame(const SharedFrame& frame) override;
    void audioFrame(const SharedFrame& frame) override;

    std::vector<SharedFrame> video() const;
    std::vector<SharedFrame> audio() const;
    std::size_t videoCount() const { return video().size(); }
    std::size_t audioCount() const { return audio().size(); }
    // Called at the end of each videoFrame(); set before the sink is used.
    std::function<void()> onVideo;

private:
    mutable std::mutex mutex_;
    std::vector<SharedFrame> video_; // guarded by mutex_
    std::vector<SharedFrame> audio_; // guarded by mutex_
};

struct DecodedPicture
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> luma; // rows without padding
};

int codecOf(const LinkFrame& frame);
std::uint32_t secondsOf(const LinkFrame& frame);
// All pictures of frames of one codec, decoded.
std::vector<DecodedPicture> decode(const std::vector<SharedFrame>& frames);
DecodedPicture copyLuma(const AVFrame& frame);
DecodedPicture scaled(const DecodedPicture& picture, int width, int height);
std::optional<std::uint32_t> stampOf(const DecodedPicture& picture);
// Their stamps; empty when one of them cannot be read.
std::vector<std::uint32_t> stampsOf(const std::vector<SharedFrame>& frames);
// Whether each is the one before plus 1, with `modulus` - 1 followed by 0.
bool countByOne(const std::vector<std::uint32_t>& stamps, std::uint32_t modulus);

FeedSettings testFeed(int channel = 0);
FeedSettings urlFeed(const QString& url);

struct SampleFile
{
    AVCodecID video = AV_CODEC_ID_H264; // H264, HEVC, MPEG4 or MJPEG
    AVCodecID audio = AV_CODEC_ID_NONE; // or AAC, PCM_ALAW, PCM_MULAW
    int frames = 40; // 25 a second, with stamps from 0 on
    int width = 320;
    int height = 180;
    int bFrames = 0; // H264 only
};
// Form by the path's extension. False when something failed.
bool writeSample(const QString& path, const SampleFile& sample);

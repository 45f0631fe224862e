// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ffmpeg.h"
#include "media/feed.h"

#include <memory>
#include <string>

struct EncoderSettings
{
    VideoCodec codec = VideoCodec::H264;
    int width = 0; // even
    int height = 0; // even
    int framesPerSecond = 25;
    int kilobitsPerSecond = 2000;
    int keyInterval = 50; // frames
};

// Pictures to H.264 or H.265 in Annex B form, parameter sets before each key frame, no frame that
// refers to a later one: each picture comes out at once. One thread at a time.
class VideoEncoder
{
public:
    // Null when the encoder refuses; `error` tells why.
    static std::unique_ptr<VideoEncoder> open(const EncoderSettings& settings, std::string& error);

    // `picture`: planar 4:2:0 of the size opened for; its time stamp and type are written to.
    // Null when the encoder gives nothing for it.
    std::shared_ptr<const LinkFrame> encode(AVFrame& picture, bool key);

    int width() const { return codec_->width; }
    int height() const { return codec_->height; }

private:
    VideoEncoder(CodecPtr codec, LinkCodec kind);

    const CodecPtr codec_;
    const PacketPtr packet_;
    const LinkCodec kind_;
    std::int64_t count_ = 0;
};

// Planar 4:2:0 with memory of its own; null when there is none.
FramePtr makePicture(int width, int height);

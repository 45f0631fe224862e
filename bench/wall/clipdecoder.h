// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/ffmpegowners.h"

#include <cstdint>
#include <memory>
#include <string>

// A clip without end, picture by picture, by nothing but libavcodec: frame threading with 4
// threads. One thread at a time.
class ClipDecoder
{
public:
    // Null: `error` tells why.
    static std::unique_ptr<ClipDecoder> open(const std::string& path, std::string& error);

    // The next picture, planar 4:2:0; null when the clip cannot be read. It counts until the next
    // call. The first call decodes ahead for as many pictures as there are threads.
    const AVFrame* next();

private:
    ClipDecoder() = default;
    bool openStream();
    bool send();

    InputPtr input_;
    CodecPtr codec_;
    const PacketPtr packet_{av_packet_alloc()};
    const FramePtr frame_{av_frame_alloc()};
};

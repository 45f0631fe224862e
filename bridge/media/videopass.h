// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framehub.h"
#include "reencoder.h"

// Pictures of an input to the frames of a hub: H.264 and H.265 as they are, in Annex B form with
// parameter sets before each key frame; other codecs re-encoded to H.264 while somebody watches.
// One thread at a time.
class VideoPass
{
public:
    // Null when nothing can be made of the stream; `error` tells why.
    static std::unique_ptr<VideoPass> open(
        const AVStream& stream, int framesPerSecond, FrameHub& hub, std::string& error);

    // Takes the packet's content. False when a frame was refused, being too large.
    bool put(AVPacket& packet);
    // The stream begins again.
    void restart();

private:
    explicit VideoPass(FrameHub& hub);
    bool openFilter(const AVStream& stream, std::string& error);
    bool publish(const AVPacket& packet);

    FrameHub& hub_;
    FilterPtr filter_; // null when re-encoding
    VideoCodec codec_ = VideoCodec::H264;
    std::unique_ptr<Reencoder> reencoder_;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "alawencoder.h"
#include "framehub.h"

// Sound of an input to the frames of a hub, while somebody listens. One thread at a time.
class AudioPass
{
public:
    // Null when there is no decoder for it.
    static std::unique_ptr<AudioPass> open(const AVStream& stream, FrameHub& hub);

    // What cannot be decoded is left out.
    void put(const AVPacket& packet);
    // The stream begins again.
    void restart();

private:
    AudioPass(CodecPtr decoder, FrameHub& hub);

    const CodecPtr decoder_;
    const FramePtr sound_;
    FrameHub& hub_;
    AlawEncoder encoder_;
};

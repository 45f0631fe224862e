// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ffmpeg.h"
#include "media/feed.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

constexpr int alawRate = 8000; // samples a second, one byte each
constexpr int alawFrameSamples = 320; // 40 ms

// Linear samples to A-law, one byte each (ITU-T G.711).
std::uint8_t alawFromLinear(std::int16_t sample);

// `samples`: alawFrameSamples of them.
std::shared_ptr<const LinkFrame> makeSoundFrame(const std::int16_t* samples);

// Sound of any format to A-law 8 kHz mono in frames of 40 ms. One thread at a time.
class AlawEncoder
{
public:
    using Take = std::function<void(const std::shared_ptr<const LinkFrame>&)>;

    // Gives the frames that this sound completes. Sound in a form that cannot be converted is
    // left out; a change of its form begins anew.
    void encode(const AVFrame& sound, const Take& take);

private:
    bool prepare(const AVFrame& sound);

    ResamplerPtr resampler_;
    int rate_ = 0;
    int channels_ = 0;
    int format_ = -1;
    std::vector<std::int16_t> waiting_; // less than one frame between the calls
};

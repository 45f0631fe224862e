// SPDX-License-Identifier: GPL-3.0-or-later
#include "alawencoder.h"

#include "frametime.h"

#include <algorithm>

std::uint8_t alawFromLinear(std::int16_t sample)
{
    // 12 bits and sign; the even bits of the result are inverted.
    const bool positive = sample >= 0;
    const int magnitude = (positive ? sample : -1 - sample) >> 3;
    int exponent = 0;
    while (exponent < 7 && magnitude >> (exponent + 5) != 0)
        ++exponent;
    const int mantissa = (exponent < 2 ? magnitude >> 1 : magnitude >> exponent) & 0x0f;
    const int code = exponent << 4 | mantissa;
    return static_cast<std::uint8_t>((positive ? code | 0x80 : code) ^ 0x55);
}

std::shared_ptr<const LinkFrame> makeSoundFrame(const std::int16_t* samples)
{
    auto frame = std::make_shared<LinkFrame>();
    frame->bytes.resize(alawFrameSamples);
    std::transform(samples, samples + alawFrameSamples, frame->bytes.begin(), alawFromLinear);
    describe(*frame, LinkCodecALaw, false, frameSeconds());
    return frame;
}

bool AlawEncoder::prepare(const AVFrame& sound)
{
    const int channels = sound.ch_layout.nb_channels;
    if (resampler_ && rate_ == sound.sample_rate && channels_ == channels
        && format_ == sound.format)
        return true;
    resampler_.reset();
    waiting_.clear();
    if (channels < 1 || sound.sample_rate < 1)
        return false;
    AVChannelLayout mono;
    AVChannelLayout from;
    av_channel_layout_default(&mono, 1);
    av_channel_layout_default(&from, channels);
    SwrContext* made = nullptr;
    swr_alloc_set_opts2(&made, &mono, AV_SAMPLE_FMT_S16, alawRate, &from,
        static_cast<AVSampleFormat>(sound.format), sound.sample_rate, 0, nullptr);
    resampler_.reset(made);
    if (made == nullptr || swr_init(made) < 0) {
        resampler_.reset();
        return false;
    }
    rate_ = sound.sample_rate;
    channels_ = channels;
    format_ = sound.format;
    return true;
}

void AlawEncoder::encode(const AVFrame& sound, const Take& take)
{
    if (!prepare(sound))
        return;
    const int room = swr_get_out_samples(resampler_.get(), sound.nb_samples);
    if (room <= 0)
        return;
    const std::size_t before = waiting_.size();
    waiting_.resize(before + static_cast<std::size_t>(room));
    auto* out = reinterpret_cast<std::uint8_t*>(waiting_.data() + before);
    const int made = swr_convert(resampler_.get(), &out, room,
        const_cast<const std::uint8_t**>(sound.extended_data), sound.nb_samples);
    waiting_.resize(before + static_cast<std::size_t>(std::max(0, made)));
    std::size_t given = 0;
    for (; waiting_.size() - given >= alawFrameSamples; given += alawFrameSamples)
        take(makeSoundFrame(waiting_.data() + given));
    waiting_.erase(waiting_.begin(), waiting_.begin() + static_cast<std::ptrdiff_t>(given));
}

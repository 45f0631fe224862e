// SPDX-License-Identifier: GPL-3.0-or-later
#include "audiopass.h"

std::unique_ptr<AudioPass> AudioPass::open(const AVStream& stream, FrameHub& hub)
{
    const AVCodec* kind = avcodec_find_decoder(stream.codecpar->codec_id);
    CodecPtr decoder(kind != nullptr ? avcodec_alloc_context3(kind) : nullptr);
    if (!decoder || avcodec_parameters_to_context(decoder.get(), stream.codecpar) < 0)
        return nullptr;
    decoder->thread_count = 1;
    if (avcodec_open2(decoder.get(), kind, nullptr) < 0)
        return nullptr;
    return std::unique_ptr<AudioPass>(new AudioPass(std::move(decoder), hub));
}

AudioPass::AudioPass(CodecPtr decoder, FrameHub& hub)
    : decoder_(std::move(decoder))
    , sound_(av_frame_alloc())
    , hub_(hub)
{
}

void AudioPass::put(const AVPacket& packet)
{
    if (!hub_.watched() || avcodec_send_packet(decoder_.get(), &packet) < 0)
        return;
    while (avcodec_receive_frame(decoder_.get(), sound_.get()) >= 0)
        encoder_.encode(*sound_, [this](const auto& frame) { hub_.publish(frame); });
}

void AudioPass::restart()
{
    avcodec_flush_buffers(decoder_.get());
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "stamps.h"

#include "framemark.h"
#include "media/ffmpegowners.h"
#include "media/stamp.h"
#include "stampreader.h"

#include <cstring>
#include <optional>

using namespace std::chrono;
using Clock = steady_clock;

namespace {

CodecPtr openDecoder()
{
    const AVCodec* kind = avcodec_find_decoder(AV_CODEC_ID_H264);
    CodecPtr codec(kind != nullptr ? avcodec_alloc_context3(kind) : nullptr);
    if (!codec)
        return nullptr;
    codec->thread_count = 1;
    codec->flags |= AV_CODEC_FLAG_LOW_DELAY;
    return avcodec_open2(codec.get(), kind, nullptr) < 0 ? nullptr : std::move(codec);
}

std::optional<std::uint32_t> stampOf(AVCodecContext& codec, const LinkFrame& frame)
{
    const PacketPtr packet(av_packet_alloc());
    const FramePtr picture(av_frame_alloc());
    const int size = static_cast<int>(frame.bytes.size());
    if (!packet || !picture || av_new_packet(packet.get(), size) < 0)
        return std::nullopt;
    std::memcpy(packet->data, frame.bytes.data(), frame.bytes.size());
    if (avcodec_send_packet(&codec, packet.get()) < 0
        || avcodec_receive_frame(&codec, picture.get()) < 0)
        return std::nullopt;
    return readStamp(picture->data[0], picture->linesize[0], picture->width, picture->height);
}

// The last moment before `later` that the stamp may name.
Clock::time_point timeOf(std::uint32_t stamp, Clock::time_point later)
{
    constexpr std::uint32_t stampMask = 0xffffff;
    const std::uint32_t age = (timeStampValue(later) - stamp) & stampMask;
    return Clock::time_point(floor<milliseconds>(later.time_since_epoch()) - milliseconds(age));
}

} // namespace

std::vector<SentPicture> readStamps(const std::vector<SentFrame>& frames)
{
    const CodecPtr codec = openDecoder();
    std::vector<SentPicture> pictures;
    for (const auto& [published, frame] : frames) {
        const auto stamp = codec ? stampOf(*codec, *frame) : std::nullopt;
        if (stamp)
            pictures.push_back({*stamp, frameMark(frame->bytes.data(), frame->bytes.size()),
                timeOf(*stamp, published), published});
    }
    return pictures;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediasupport.h"

#include "stampreader.h"

#include <algorithm>

void RecordingSink::videoFrame(const SharedFrame& frame)
{
    {
        const std::lock_guard lock(mutex_);
        video_.push_back(frame);
    }
    if (onVideo)
        onVideo();
}

void RecordingSink::audioFrame(const SharedFrame& frame)
{
    const std::lock_guard lock(mutex_);
    audio_.push_back(frame);
}

std::vector<SharedFrame> RecordingSink::video() const
{
    const std::lock_guard lock(mutex_);
    return video_;
}

std::vector<SharedFrame> RecordingSink::audio() const
{
    const std::lock_guard lock(mutex_);
    return audio_;
}

int codecOf(const LinkFrame& frame)
{
    return frame.info[0] | frame.info[1] << 8;
}

std::uint32_t secondsOf(const LinkFrame& frame)
{
    std::uint32_t seconds = 0;
    for (std::size_t i = 0; i < 4; ++i)
        seconds |= std::uint32_t{frame.info[12 + i]} << (8 * i);
    return seconds;
}

DecodedPicture copyLuma(const AVFrame& frame)
{
    DecodedPicture picture{frame.width, frame.height, {}};
    for (int y = 0; y < frame.height; ++y) {
        const std::uint8_t* row = frame.data[0] + std::ptrdiff_t{frame.linesize[0]} * y;
        picture.luma.insert(picture.luma.end(), row, row + frame.width);
    }
    return picture;
}

std::vector<DecodedPicture> decode(const std::vector<SharedFrame>& frames)
{
    std::vector<DecodedPicture> pictures;
    if (frames.empty())
        return pictures;
    const AVCodec* kind = avcodec_find_decoder(
        codecOf(*frames[0]) == LinkCodecH265 ? AV_CODEC_ID_HEVC : AV_CODEC_ID_H264);
    const CodecPtr decoder(avcodec_alloc_context3(kind));
    decoder->thread_count = 1;
    avcodec_open2(decoder.get(), kind, nullptr);
    const PacketPtr packet(av_packet_alloc());
    const FramePtr decoded(av_frame_alloc());
    const auto drain = [&] {
        while (avcodec_receive_frame(decoder.get(), decoded.get()) >= 0)
            pictures.push_back(copyLuma(*decoded));
    };
    for (const SharedFrame& frame : frames) {
        av_new_packet(packet.get(), static_cast<int>(frame->bytes.size()));
        std::copy(frame->bytes.begin(), frame->bytes.end(), packet->data);
        avcodec_send_packet(decoder.get(), packet.get());
        av_packet_unref(packet.get());
        drain();
    }
    avcodec_send_packet(decoder.get(), nullptr);
    drain();
    return pictures;
}

DecodedPicture scaled(const DecodedPicture& picture, int width, int height)
{
    const ScalerPtr scaler(sws_getContext(picture.width, picture.height, AV_PIX_FMT_GRAY8, width,
        height, AV_PIX_FMT_GRAY8, SWS_BICUBIC, nullptr, nullptr, nullptr));
    // Room for what the scaler writes past a row's end.
    const int stride = (width + 63) / 64 * 64;
    std::vector<std::uint8_t> luma(static_cast<std::size_t>(stride * height));
    const std::uint8_t* const from[]{picture.luma.data()};
    const int fromStride[]{picture.width};
    std::uint8_t* const to[]{luma.data()};
    const int toStride[]{stride};
    sws_scale(scaler.get(), from, fromStride, 0, picture.height, to, toStride);
    DecodedPicture result{width, height, {}};
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* row = luma.data() + std::ptrdiff_t{stride} * y;
        result.luma.insert(result.luma.end(), row, row + width);
    }
    return result;
}

std::optional<std::uint32_t> stampOf(const DecodedPicture& picture)
{
    return readStamp(picture.luma.data(), picture.width, picture.width, picture.height);
}

std::vector<std::uint32_t> stampsOf(const std::vector<SharedFrame>& frames)
{
    std::vector<std::uint32_t> stamps;
    for (const DecodedPicture& picture : decode(frames)) {
        const auto stamp = stampOf(picture);
        if (!stamp)
            return {};
        stamps.push_back(*stamp);
    }
    return stamps;
}

bool countByOne(const std::vector<std::uint32_t>& stamps, std::uint32_t modulus)
{
    const auto gap = std::adjacent_find(stamps.begin(), stamps.end(),
        [&](std::uint32_t a, std::uint32_t b) { return (a + 1) % modulus != b; });
    return !stamps.empty() && gap == stamps.end();
}

FeedSettings testFeed(int channel)
{
    FeedSettings settings;
    settings.name = "TESTFEED000000000000/" + std::to_string(channel);
    settings.channel = channel;
    settings.main.url = "test:";
    settings.main.width = 320;
    settings.main.height = 180;
    settings.main.stamp = StampKind::Frame;
    return settings;
}

FeedSettings urlFeed(const QString& url)
{
    FeedSettings settings;
    settings.name = "TESTFEED000000000000/0";
    settings.main.url = url.toStdString();
    return settings;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "videotest.h"

#include "media/ffmpegowners.h"
#include "stampreader.h"

#include <QtGlobal>

#include <algorithm>
#include <cstring>

namespace {

// One sample, its most significant 8 bits, wherever and however the format keeps it.
std::uint8_t sampleOf(
    const AVFrame& frame, const AVPixFmtDescriptor& format, int part, int x, int y)
{
    const AVComponentDescriptor& place = format.comp[part];
    const std::uint8_t* at = frame.data[place.plane]
        + std::ptrdiff_t{frame.linesize[place.plane]} * y + std::ptrdiff_t{place.step} * x
        + place.offset;
    if (place.depth + place.shift <= 8)
        return static_cast<std::uint8_t>(*at >> place.shift);
    const bool bigEndian = (format.flags & AV_PIX_FMT_FLAG_BE) != 0;
    const unsigned word = bigEndian ? at[0] * 256U + at[1] : at[1] * 256U + at[0];
    return static_cast<std::uint8_t>(word >> place.shift >> (place.depth - 8));
}

CodecPtr openDecoder(quint16 codec)
{
    const AVCodecID id = codec == clipH264 ? AV_CODEC_ID_H264 : AV_CODEC_ID_HEVC;
    const AVCodec* kind = avcodec_find_decoder(id);
    CodecPtr context(avcodec_alloc_context3(kind));
    context->thread_count = 4;
    context->thread_type = FF_THREAD_FRAME;
    if (avcodec_open2(context.get(), kind, nullptr) < 0)
        qFatal("the decoder does not open");
    return context;
}

DecodedFrame decodeOne(AVCodecContext& codec, const ClipFrame& clipFrame)
{
    const PacketPtr packet = packetOf(clipFrame.bytes);
    if (avcodec_send_packet(&codec, packet.get()) < 0)
        return {-9, {}, {}};
    const FramePtr frame(av_frame_alloc());
    const int result = avcodec_receive_frame(&codec, frame.get());
    if (result == AVERROR(EAGAIN))
        return {-2, {}, {}};
    if (result < 0)
        return {-10, {}, {}};
    return {0, {frame->width, frame->height}, tightPicture(*frame)};
}

} // namespace

QByteArray tightPicture(const AVFrame& frame)
{
    const auto& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    QByteArray picture;
    for (int part = 0; part < 3; ++part) {
        const int step = part == 0 ? 1 : 2;
        for (int y = 0; y < frame.height / step; ++y) {
            for (int x = 0; x < frame.width / step; ++x) {
                const int across = part == 0 ? 0 : format.log2_chroma_w;
                const int down = part == 0 ? 0 : format.log2_chroma_h;
                const bool hasPart = part == 0 || format.nb_components > 2;
                const int sample = hasPart
                    ? sampleOf(frame, format, part, x * step >> across, y * step >> down)
                    : 128;
                picture.append(static_cast<char>(sample));
            }
        }
    }
    return picture;
}

std::vector<DecodedFrame> decodeByItself(const std::vector<ClipFrame>& frames)
{
    const CodecPtr codec = openDecoder(frames.front().codec);
    std::vector<DecodedFrame> decoded(frames.size());
    std::transform(frames.begin(), frames.end(), decoded.begin(),
        [&codec](const ClipFrame& frame) { return decodeOne(*codec, frame); });
    return decoded;
}

const DecodedFrame& lastPicture(const std::vector<DecodedFrame>& frames)
{
    const auto last = std::find_if(frames.rbegin(), frames.rend(),
        [](const DecodedFrame& frame) { return frame.result == 0; });
    if (last == frames.rend())
        qFatal("there is no picture");
    return *last;
}

QByteArray pictureIn(const ChannelMode& mode)
{
    const std::uint8_t* buffer = mode.yuvBuffer;
    const QSize size = mode.pictureSize;
    if (buffer == nullptr)
        return {};
    const int chroma = (size.width() / 2) * (size.height() / 2);
    const int bytes = size.width() * size.height() + 2 * chroma;
    return {reinterpret_cast<const char*>(buffer), bytes};
}

std::optional<std::uint32_t> stampIn(const ChannelMode& mode)
{
    const std::uint8_t* buffer = mode.yuvBuffer;
    const QSize size = mode.pictureSize;
    if (buffer == nullptr)
        return std::nullopt;
    return readStamp(buffer, size.width(), size.width(), size.height());
}

MyFrameInfo_t infoOf(const ClipFrame& frame)
{
    MyFrameInfo_t info{};
    info.codecId = frame.codec;
    info.flags = frame.isKey ? 1 : 0;
    info.timestamp = static_cast<std::uint32_t>(frame.index);
    return info;
}

PacketPtr packetOf(const QByteArray& bytes)
{
    PacketPtr packet(av_packet_alloc());
    if (av_new_packet(packet.get(), bytes.size()) < 0)
        qFatal("no memory");
    std::memcpy(packet->data, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return packet;
}

ClipSettings smallClip(quint16 codec, int count, int keyInterval)
{
    ClipSettings settings;
    settings.codec = codec;
    settings.width = 96;
    settings.height = 64;
    settings.count = count;
    settings.keyInterval = keyInterval;
    return settings;
}

VideoTest::VideoTest(bool isLive)
    : isLive(isLive)
    , video(std::make_unique<Video>(media.channel(), isLive, nullptr))
{
}

VideoTest::~VideoTest()
{
    video->stop();
    if (!settle())
        qFatal("a task does not end");
}

int VideoTest::openFor(const ClipFrame& frame) const
{
    return video->openDecoder(infoOf(frame), 352, 288, 4);
}

void VideoTest::push(const ClipFrame& frame) const
{
    video->pushPacket(packetOf(frame.bytes), infoOf(frame));
}

void VideoTest::push(const std::vector<ClipFrame>& frames) const
{
    for (const ClipFrame& frame : frames)
        push(frame);
}

bool VideoTest::show(const std::vector<ClipFrame>& frames) const
{
    return std::all_of(frames.begin(), frames.end(), [this](const ClipFrame& frame) {
        push(frame);
        return settle();
    });
}

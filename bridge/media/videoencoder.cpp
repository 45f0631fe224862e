// SPDX-License-Identifier: GPL-3.0-or-later
#include "videoencoder.h"

#include "frametime.h"

#include <algorithm>

namespace {

// One thread encodes pictures up to full HD at 60 a second; 64 channels shall not start hundreds.
int encoderThreads(const EncoderSettings& settings)
{
    return settings.width * settings.height > 1920 * 1088 ? 4 : 1;
}

std::string x265Parameters(const EncoderSettings& settings)
{
    const int threads = encoderThreads(settings);
    const std::string pool = threads > 1 ? std::to_string(threads) : "none:wpp=0";
    const std::string interval = std::to_string(settings.keyInterval);
    return "repeat-headers=1:annexb=1:bframes=0:scenecut=0:open-gop=0:log-level=none"
           ":frame-threads=1:pools="
        + pool + ":keyint=" + interval + ":min-keyint=" + interval;
}

FfmpegOptions& fillOptions(FfmpegOptions& options, const EncoderSettings& settings)
{
    options.set("preset", "ultrafast");
    options.set("tune", "zerolatency");
    options.set("forced-idr", "1");
    if (settings.codec == VideoCodec::H265)
        options.set("x265-params", x265Parameters(settings));
    else
        options.set("sc_threshold", "0");
    return options;
}

void describePicture(AVCodecContext& codec, const EncoderSettings& settings)
{
    codec.width = settings.width;
    codec.height = settings.height;
    codec.pix_fmt = AV_PIX_FMT_YUV420P;
    codec.color_range = AVCOL_RANGE_MPEG;
    codec.colorspace = AVCOL_SPC_SMPTE170M;
    codec.time_base = {1, settings.framesPerSecond};
    codec.framerate = {settings.framesPerSecond, 1};
}

void describeRate(AVCodecContext& codec, const EncoderSettings& settings)
{
    const std::int64_t bits = std::int64_t{settings.kilobitsPerSecond} * 1000;
    codec.bit_rate = bits;
    codec.rc_max_rate = bits;
    // One second's worth, but no more than one frame of the link can hold, since a picture may
    // empty the whole buffer.
    codec.rc_buffer_size = static_cast<int>(std::min<std::int64_t>(bits, 12'000'000));
    codec.gop_size = settings.keyInterval;
    codec.max_b_frames = 0;
    codec.thread_count = encoderThreads(settings);
}

} // namespace

std::unique_ptr<VideoEncoder> VideoEncoder::open(
    const EncoderSettings& settings, std::string& error)
{
    const bool h265 = settings.codec == VideoCodec::H265;
    const AVCodec* kind = avcodec_find_encoder_by_name(h265 ? "libx265" : "libx264");
    CodecPtr codec(kind != nullptr ? avcodec_alloc_context3(kind) : nullptr);
    if (!codec) {
        error = "no encoder";
        return nullptr;
    }
    describePicture(*codec, settings);
    describeRate(*codec, settings);
    FfmpegOptions options;
    const int result = avcodec_open2(codec.get(), kind, fillOptions(options, settings).get());
    if (result < 0) {
        error = "cannot open the encoder: " + ffmpegError(result);
        return nullptr;
    }
    return std::unique_ptr<VideoEncoder>(
        new VideoEncoder(std::move(codec), h265 ? LinkCodecH265 : LinkCodecH264));
}

VideoEncoder::VideoEncoder(CodecPtr codec, LinkCodec kind)
    : codec_(std::move(codec))
    , packet_(av_packet_alloc())
    , kind_(kind)
{
}

std::shared_ptr<const LinkFrame> VideoEncoder::encode(AVFrame& picture, bool key)
{
    picture.pts = count_++;
    picture.pict_type = key ? AV_PICTURE_TYPE_I : AV_PICTURE_TYPE_NONE;
    if (avcodec_send_frame(codec_.get(), &picture) < 0)
        return nullptr;
    if (avcodec_receive_packet(codec_.get(), packet_.get()) < 0)
        return nullptr;
    auto frame = std::make_shared<LinkFrame>();
    frame->bytes.assign(packet_->data, packet_->data + packet_->size);
    describe(*frame, kind_, (packet_->flags & AV_PKT_FLAG_KEY) != 0, frameSeconds());
    av_packet_unref(packet_.get());
    return frame;
}

FramePtr makePicture(int width, int height)
{
    FramePtr picture(av_frame_alloc());
    if (!picture)
        return nullptr;
    picture->format = AV_PIX_FMT_YUV420P;
    picture->width = width;
    picture->height = height;
    if (av_frame_get_buffer(picture.get(), 0) < 0)
        return nullptr;
    return picture;
}

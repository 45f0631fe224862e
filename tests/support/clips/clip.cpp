// SPDX-License-Identifier: GPL-3.0-or-later
#include "clip.h"

#include "clippicture.h"
#include "media/ffmpegowners.h"

#include <QtGlobal>

#include <cstddef>

namespace {

AVPixelFormat pixelFormat(ClipForm form)
{
    switch (form) {
    case ClipForm::Yuv420Of10Bits:
        return AV_PIX_FMT_YUV420P10LE;
    case ClipForm::Yuv422:
        return AV_PIX_FMT_YUV422P;
    case ClipForm::Yuv444:
        return AV_PIX_FMT_YUV444P;
    case ClipForm::Grey:
        return AV_PIX_FMT_GRAY8;
    case ClipForm::Yuv420:
        break;
    }
    return AV_PIX_FMT_YUV420P;
}

const char* profileName(ClipProfile profile)
{
    switch (profile) {
    case ClipProfile::Baseline:
        return "baseline";
    case ClipProfile::Main:
        return "main";
    case ClipProfile::High:
        break;
    }
    return "high";
}

void check(int result, const char* what)
{
    if (result < 0)
        qFatal("makeClip: %s: %s", what, ffmpegError(result).c_str());
}

void setOption(AVCodecContext& codec, const char* name, const std::string& value)
{
    check(av_opt_set(codec.priv_data, name, value.c_str(), 0), name);
}

void describeH264(AVCodecContext& codec, const ClipSettings& settings)
{
    setOption(codec, "preset", "veryfast");
    setOption(codec, "sc_threshold", "0");
    setOption(codec, "b_strategy", "0"); // so that the clip has as many as were asked for
    if (settings.form == ClipForm::Yuv420)
        setOption(codec, "profile", profileName(settings.profile));
    if (settings.interlaced)
        setOption(codec, "x264-params", "tff=1");
}

void describeH265(AVCodecContext& codec, const ClipSettings& settings)
{
    const std::string interval = std::to_string(settings.keyInterval);
    setOption(codec, "preset", "superfast");
    setOption(codec, "x265-params",
        "repeat-headers=1:annexb=1:scenecut=0:open-gop=0:b-adapt=0:log-level=none"
        ":frame-threads=1:pools=none:wpp=0:bframes="
            + std::to_string(settings.bFrames) + ":keyint=" + interval + ":min-keyint=" + interval);
}

void describe(AVCodecContext& codec, const ClipSettings& settings)
{
    codec.width = settings.width;
    codec.height = settings.height;
    codec.pix_fmt = pixelFormat(settings.form);
    codec.color_range = AVCOL_RANGE_MPEG;
    codec.colorspace = AVCOL_SPC_SMPTE170M;
    codec.time_base = {1, settings.framesPerSecond};
    codec.framerate = {settings.framesPerSecond, 1};
    codec.bit_rate = std::int64_t{settings.kilobitsPerSecond} * 1000;
    codec.rc_max_rate = codec.bit_rate;
    codec.rc_buffer_size = settings.kilobitsPerSecond * 1000; // a second's worth
    codec.gop_size = settings.keyInterval;
    codec.keyint_min = settings.keyInterval;
    codec.max_b_frames = settings.bFrames;
    codec.thread_count = 1; // several would share the work by what the clock says
    codec.log_level_offset = AV_LOG_TRACE; // nothing it has to say is of interest
    if (settings.codec == clipH264)
        describeH264(codec, settings);
    else
        describeH265(codec, settings);
}

CodecPtr openEncoder(const ClipSettings& settings)
{
    if (settings.codec != clipH264 && settings.codec != clipH265)
        qFatal("makeClip: no codec has the number %d", settings.codec);
    const AVCodec* kind =
        avcodec_find_encoder_by_name(settings.codec == clipH264 ? "libx264" : "libx265");
    CodecPtr codec(kind != nullptr ? avcodec_alloc_context3(kind) : nullptr);
    if (!codec)
        qFatal("makeClip: there is no encoder");
    describe(*codec, settings);
    check(avcodec_open2(codec.get(), kind, nullptr), "the encoder does not open");
    return codec;
}

// Where a plane of the encoder's picture comes from, and how much finer it is.
struct PlaneSource
{
    const std::vector<std::uint8_t>& samples;
    int width;
    int acrossShift;
    int downShift;
    int depthShift;
};

template <typename Sample>
void fillPlane(AVFrame& frame, int plane, int width, int height, const PlaneSource& source)
{
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* from =
            source.samples.data() + std::size_t(source.width) * std::size_t(y >> source.downShift);
        auto* to = reinterpret_cast<Sample*>(
            frame.data[plane] + std::ptrdiff_t{frame.linesize[plane]} * y);
        for (int x = 0; x < width; ++x)
            to[x] = static_cast<Sample>(from[x >> source.acrossShift] << source.depthShift);
    }
}

class ClipEncoder
{
public:
    explicit ClipEncoder(const ClipSettings& settings)
        : settings_(settings)
        , codec_(openEncoder(settings))
        , form_(*av_pix_fmt_desc_get(codec_->pix_fmt))
        , packet_(av_packet_alloc())
    {
    }

    void encode(const ClipPicture& picture, int index)
    {
        const FramePtr frame = frameOf(picture);
        frame->pts = index;
        check(avcodec_send_frame(codec_.get(), frame.get()), "the encoder takes no picture");
        takeFrames();
    }

    std::vector<ClipFrame> finish()
    {
        check(avcodec_send_frame(codec_.get(), nullptr), "the encoder does not end");
        takeFrames();
        return std::move(frames_);
    }

private:
    FramePtr frameOf(const ClipPicture& picture) const
    {
        FramePtr frame(av_frame_alloc());
        frame->format = codec_->pix_fmt;
        frame->width = picture.width;
        frame->height = picture.height;
        frame->interlaced_frame = settings_.interlaced ? 1 : 0;
        frame->top_field_first = frame->interlaced_frame;
        check(av_frame_get_buffer(frame.get(), 0), "no memory for a picture");
        for (int plane = 0; plane < form_.nb_components; ++plane)
            fill(*frame, plane, picture);
        return frame;
    }

    void fill(AVFrame& frame, int plane, const ClipPicture& picture) const
    {
        const bool chroma = plane > 0;
        const int across = chroma ? form_.log2_chroma_w : 0;
        const int down = chroma ? form_.log2_chroma_h : 0;
        const int width = AV_CEIL_RSHIFT(picture.width, across);
        const int height = AV_CEIL_RSHIFT(picture.height, down);
        const auto& samples = !chroma ? picture.luma : plane == 1 ? picture.u : picture.v;
        const int depthShift = form_.comp[0].depth - 8;
        const PlaneSource source{samples, chroma ? (picture.width + 1) / 2 : picture.width,
            chroma ? 1 - across : 0, chroma ? 1 - down : 0, depthShift};
        if (depthShift == 0)
            fillPlane<std::uint8_t>(frame, plane, width, height, source);
        else
            fillPlane<std::uint16_t>(frame, plane, width, height, source);
    }

    void takeFrames()
    {
        while (avcodec_receive_packet(codec_.get(), packet_.get()) >= 0) {
            const auto* bytes = reinterpret_cast<const char*>(packet_->data);
            frames_.push_back({QByteArray(bytes, packet_->size), settings_.codec,
                (packet_->flags & AV_PKT_FLAG_KEY) != 0, static_cast<int>(packet_->pts)});
            av_packet_unref(packet_.get());
        }
    }

    const ClipSettings& settings_;
    const CodecPtr codec_;
    const AVPixFmtDescriptor& form_;
    const PacketPtr packet_;
    std::vector<ClipFrame> frames_;
};

} // namespace

std::vector<ClipFrame> makeClip(const ClipSettings& settings)
{
    ClipEncoder encoder(settings);
    const ClipScene scene(settings.width, settings.height);
    ClipPicture picture(settings.width, settings.height);
    for (int index = 0; index < settings.count; ++index) {
        if (settings.flat)
            fillPicture(picture, settings.flat(index));
        else
            scene.draw(picture, index);
        if (settings.stamped)
            stampPicture(picture, settings.firstStamp + static_cast<std::uint32_t>(index));
        encoder.encode(picture, index);
    }
    auto frames = encoder.finish();
    if (frames.size() != static_cast<std::size_t>(settings.count))
        qFatal("makeClip: the encoder gave %d frames for %d pictures",
            static_cast<int>(frames.size()), settings.count);
    return frames;
}

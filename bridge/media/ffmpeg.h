// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavcodec/bsf.h>
#include <libavformat/avformat.h>
#include <libavutil/avutil.h>
#include <libavutil/channel_layout.h>
#include <libavutil/dict.h>
#include <libavutil/error.h>
#include <libavutil/frame.h>
#include <libavutil/imgutils.h>
#include <libavutil/log.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

#include <array>
#include <memory>
#include <string>

// Owners of FFmpeg's objects: nothing else in the program frees one.

struct FfmpegDelete
{
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
    void operator()(AVFormatContext* input) const { avformat_close_input(&input); }
    void operator()(AVBSFContext* filter) const { av_bsf_free(&filter); }
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
    void operator()(SwrContext* resampler) const { swr_free(&resampler); }
};

using PacketPtr = std::unique_ptr<AVPacket, FfmpegDelete>;
using FramePtr = std::unique_ptr<AVFrame, FfmpegDelete>;
using CodecPtr = std::unique_ptr<AVCodecContext, FfmpegDelete>;
using InputPtr = std::unique_ptr<AVFormatContext, FfmpegDelete>;
using FilterPtr = std::unique_ptr<AVBSFContext, FfmpegDelete>;
using ScalerPtr = std::unique_ptr<SwsContext, FfmpegDelete>;
using ResamplerPtr = std::unique_ptr<SwrContext, FfmpegDelete>;

// The options of one open call: what the call leaves in them was not understood by it.
class FfmpegOptions
{
public:
    FfmpegOptions() = default;
    FfmpegOptions(const FfmpegOptions&) = delete;
    FfmpegOptions& operator=(const FfmpegOptions&) = delete;
    ~FfmpegOptions() { av_dict_free(&options_); }

    void set(const char* key, const std::string& value)
    {
        av_dict_set(&options_, key, value.c_str(), 0);
    }
    AVDictionary** get() { return &options_; }

private:
    AVDictionary* options_ = nullptr;
};

inline std::string ffmpegError(int code)
{
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    av_strerror(code, text.data(), text.size());
    return text.data();
}

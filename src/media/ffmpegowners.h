// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/avutil.h>
#include <libavutil/error.h>
#include <libavutil/frame.h>
#include <libavutil/opt.h>
#include <libavutil/pixdesc.h>
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
};

using PacketPtr = std::unique_ptr<AVPacket, FfmpegDelete>;
using FramePtr = std::unique_ptr<AVFrame, FfmpegDelete>;
using CodecPtr = std::unique_ptr<AVCodecContext, FfmpegDelete>;
using InputPtr = std::unique_ptr<AVFormatContext, FfmpegDelete>;

inline std::string ffmpegError(int code)
{
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    av_strerror(code, text.data(), text.size());
    return text.data();
}

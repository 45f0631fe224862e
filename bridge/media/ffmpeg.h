// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/ffmpegowners.h"

extern "C" {
#include <libavcodec/bsf.h>
#include <libavutil/channel_layout.h>
#include <libavutil/dict.h>
#include <libavutil/imgutils.h>
#include <libavutil/log.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

#include <memory>
#include <string>

// Owners of those of FFmpeg's objects that the client has no use for.

struct FfmpegToolDelete
{
    void operator()(AVBSFContext* filter) const { av_bsf_free(&filter); }
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
    void operator()(SwrContext* resampler) const { swr_free(&resampler); }
};

using FilterPtr = std::unique_ptr<AVBSFContext, FfmpegToolDelete>;
using ScalerPtr = std::unique_ptr<SwsContext, FfmpegToolDelete>;
using ResamplerPtr = std::unique_ptr<SwrContext, FfmpegToolDelete>;

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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "clipdecoder.h"

std::unique_ptr<ClipDecoder> ClipDecoder::open(const std::string& path, std::string& error)
{
    std::unique_ptr<ClipDecoder> decoder(new ClipDecoder);
    AVFormatContext* input = nullptr;
    avformat_open_input(&input, path.c_str(), nullptr, nullptr);
    decoder->input_.reset(input);
    if (input == nullptr || !decoder->openStream()) {
        error = "cannot play " + path;
        return nullptr;
    }
    return decoder;
}

bool ClipDecoder::openStream()
{
    if (avformat_find_stream_info(input_.get(), nullptr) < 0)
        return false;
    const AVCodecParameters& about = *input_->streams[0]->codecpar;
    const AVCodec* kind = avcodec_find_decoder(about.codec_id);
    codec_.reset(avcodec_alloc_context3(kind));
    if (!codec_ || avcodec_parameters_to_context(codec_.get(), &about) < 0)
        return false;
    codec_->thread_count = 4;
    codec_->thread_type = FF_THREAD_FRAME;
    return avcodec_open2(codec_.get(), kind, nullptr) >= 0;
}

const AVFrame* ClipDecoder::next()
{
    while (true) {
        const int result = avcodec_receive_frame(codec_.get(), frame_.get());
        if (result >= 0)
            return frame_.get();
        if (result != AVERROR(EAGAIN) || !send())
            return nullptr;
    }
}

// The clip begins with a key picture, so that the decoder goes on over its end.
bool ClipDecoder::send()
{
    int result = av_read_frame(input_.get(), packet_.get());
    if (result == AVERROR_EOF && avformat_seek_file(input_.get(), 0, INT64_MIN, 0, 0, 0) >= 0)
        result = av_read_frame(input_.get(), packet_.get());
    if (result < 0)
        return false;
    result = avcodec_send_packet(codec_.get(), packet_.get());
    av_packet_unref(packet_.get());
    return result >= 0;
}

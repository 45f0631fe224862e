// SPDX-License-Identifier: GPL-3.0-or-later
#include "videopass.h"

#include "annexb.h"
#include "frametime.h"

std::unique_ptr<VideoPass> VideoPass::open(
    const AVStream& stream, int framesPerSecond, FrameHub& hub, std::string& error)
{
    std::unique_ptr<VideoPass> pass(new VideoPass(hub));
    const AVCodecID codec = stream.codecpar->codec_id;
    if (codec == AV_CODEC_ID_H264 || codec == AV_CODEC_ID_HEVC)
        return pass->openFilter(stream, error) ? std::move(pass) : nullptr;
    ReencodeTarget target;
    target.framesPerSecond = framesPerSecond;
    pass->reencoder_ = Reencoder::open(*stream.codecpar, target, error);
    return pass->reencoder_ ? std::move(pass) : nullptr;
}

VideoPass::VideoPass(FrameHub& hub)
    : hub_(hub)
{
}

bool VideoPass::openFilter(const AVStream& stream, std::string& error)
{
    const bool h265 = stream.codecpar->codec_id == AV_CODEC_ID_HEVC;
    codec_ = h265 ? VideoCodec::H265 : VideoCodec::H264;
    const AVBitStreamFilter* kind =
        av_bsf_get_by_name(h265 ? "hevc_mp4toannexb" : "h264_mp4toannexb");
    AVBSFContext* filter = nullptr;
    int result = kind != nullptr ? av_bsf_alloc(kind, &filter) : AVERROR_BSF_NOT_FOUND;
    filter_.reset(filter);
    if (result >= 0)
        result = avcodec_parameters_copy(filter->par_in, stream.codecpar);
    if (result >= 0) {
        filter->time_base_in = stream.time_base;
        result = av_bsf_init(filter);
    }
    if (result < 0)
        error = "its pictures cannot be read: " + ffmpegError(result);
    return result >= 0;
}

bool VideoPass::put(AVPacket& packet)
{
    if (reencoder_) {
        const bool encode = !hub_.resetIfUnwatched();
        reencoder_->put(&packet, encode, encode && hub_.takeKeyWish(),
            [this](const auto& frame) { hub_.publish(frame); });
        av_packet_unref(&packet);
        return true;
    }
    if (av_bsf_send_packet(filter_.get(), &packet) < 0) {
        av_packet_unref(&packet);
        return true;
    }
    bool taken = true;
    while (av_bsf_receive_packet(filter_.get(), &packet) >= 0) {
        taken = publish(packet) && taken;
        av_packet_unref(&packet);
    }
    return taken;
}

bool VideoPass::publish(const AVPacket& packet)
{
    auto frame = std::make_shared<LinkFrame>();
    const bool key = (packet.flags & AV_PKT_FLAG_KEY) != 0;
    const auto size = static_cast<std::size_t>(packet.size);
    if (key && !startsWithParameterSets(packet.data, size, codec_)) {
        const AVCodecParameters& known = *filter_->par_out;
        frame->bytes.assign(known.extradata, known.extradata + known.extradata_size);
    }
    frame->bytes.insert(frame->bytes.end(), packet.data, packet.data + packet.size);
    describe(
        *frame, codec_ == VideoCodec::H265 ? LinkCodecH265 : LinkCodecH264, key, frameSeconds());
    return hub_.publish(frame);
}

void VideoPass::restart()
{
    if (filter_)
        av_bsf_flush(filter_.get());
    if (reencoder_)
        reencoder_->put(nullptr, true, false, [this](const auto& frame) { hub_.publish(frame); });
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "reencoder.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int maxWidth = 3840;
constexpr int maxHeight = 2160;
constexpr double bitsPerPoint = 0.09; // of a picture in motion, at ultrafast
constexpr int keySeconds = 2;

int even(double value)
{
    return std::max(16, static_cast<int>(std::lround(value / 2)) * 2);
}

EncoderSettings encoderSettings(const ReencodeTarget& target, PictureSize size)
{
    EncoderSettings settings;
    settings.width = size.width;
    settings.height = size.height;
    settings.framesPerSecond = target.framesPerSecond;
    settings.keyInterval = target.framesPerSecond * keySeconds;
    const double byPoints =
        size.width * double(size.height) * target.framesPerSecond * bitsPerPoint;
    settings.kilobitsPerSecond = target.kilobitsPerSecond > 0
        ? target.kilobitsPerSecond
        : std::max(256, static_cast<int>(byPoints / 1000));
    return settings;
}

} // namespace

std::optional<PictureSize> reencodedSize(const ReencodeTarget& target, int width, int height)
{
    if (width < 1 || height < 1)
        return std::nullopt;
    double scale = target.width > 0 ? double(target.width) / width : 1;
    scale = std::min({scale, double(maxWidth) / width, double(maxHeight) / height});
    return PictureSize{even(width * scale), even(height * scale)};
}

std::unique_ptr<Reencoder> Reencoder::open(
    const AVCodecParameters& coded, const ReencodeTarget& target, std::string& error)
{
    const AVCodec* kind = avcodec_find_decoder(coded.codec_id);
    CodecPtr decoder(kind != nullptr ? avcodec_alloc_context3(kind) : nullptr);
    if (!decoder) {
        error = "no decoder";
        return nullptr;
    }
    int result = avcodec_parameters_to_context(decoder.get(), &coded);
    decoder->thread_count = 1;
    // The largest pictures there are; a camera that claims more would take the memory.
    decoder->max_pixels = std::int64_t{8192} * 4320;
    if (result >= 0)
        result = avcodec_open2(decoder.get(), kind, nullptr);
    if (result < 0) {
        error = "cannot open the decoder: " + ffmpegError(result);
        return nullptr;
    }
    return std::unique_ptr<Reencoder>(new Reencoder(std::move(decoder), target));
}

Reencoder::Reencoder(CodecPtr decoder, const ReencodeTarget& target)
    : decoder_(std::move(decoder))
    , target_(target)
    , decoded_(av_frame_alloc())
{
}

void Reencoder::put(const AVPacket* packet, bool encode, bool key, const Take& take)
{
    if (avcodec_send_packet(decoder_.get(), packet) < 0)
        return;
    while (avcodec_receive_frame(decoder_.get(), decoded_.get()) >= 0) {
        if (encode)
            this->encode(*decoded_, key, take);
        key = false;
    }
    if (packet == nullptr)
        avcodec_flush_buffers(decoder_.get());
}

bool Reencoder::prepare(const AVFrame& decoded)
{
    const auto size = reencodedSize(target_, decoded.width, decoded.height);
    if (!size)
        return false;
    if (!encoder_ || encoder_->width() != size->width || encoder_->height() != size->height) {
        std::string error;
        encoder_ = VideoEncoder::open(encoderSettings(target_, *size), error);
        scaled_ = makePicture(size->width, size->height);
    }
    scaler_.reset(sws_getCachedContext(scaler_.release(), decoded.width, decoded.height,
        static_cast<AVPixelFormat>(decoded.format), size->width, size->height, AV_PIX_FMT_YUV420P,
        SWS_BILINEAR, nullptr, nullptr, nullptr));
    return encoder_ && scaler_ && scaled_ && av_frame_make_writable(scaled_.get()) >= 0;
}

void Reencoder::encode(AVFrame& decoded, bool key, const Take& take)
{
    if (!prepare(decoded))
        return;
    if (sws_scale(scaler_.get(), decoded.data, decoded.linesize, 0, decoded.height, scaled_->data,
            scaled_->linesize)
        <= 0)
        return;
    if (const auto frame = encoder_->encode(*scaled_, key))
        take(frame);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures.h"

#include "device/linkframe.h"
#include "stampreader.h"

#include <cstring>

namespace {

constexpr std::uint32_t timeModulus = 1U << 24;
constexpr std::uint32_t frameModulus = 500;

std::int64_t microsecondsOf(std::chrono::steady_clock::time_point time)
{
    return std::chrono::duration_cast<std::chrono::microseconds>(time.time_since_epoch()).count();
}

} // namespace

bool Pictures::open(int codec)
{
    if (codec == codec_)
        return decoder_ != nullptr;
    codec_ = codec;
    const AVCodec* decoder =
        avcodec_find_decoder(codec == LinkCodecH265 ? AV_CODEC_ID_HEVC : AV_CODEC_ID_H264);
    decoder_.reset(avcodec_alloc_context3(decoder));
    if (!decoder_)
        return false;
    // Many channels share the processors, and each picture is wanted at once.
    decoder_->thread_count = 1;
    decoder_->flags |= AV_CODEC_FLAG_LOW_DELAY;
    if (avcodec_open2(decoder_.get(), decoder, nullptr) < 0)
        decoder_.reset();
    return decoder_ != nullptr;
}

void Pictures::take(
    int codec, std::string_view bytes, std::chrono::steady_clock::time_point received)
{
    if (!open(codec) || av_new_packet(packet_.get(), static_cast<int>(bytes.size())) < 0) {
        ++undecodable_;
        return;
    }
    std::memcpy(packet_->data, bytes.data(), bytes.size());
    packet_->pts = microsecondsOf(received);
    const int taken = avcodec_send_packet(decoder_.get(), packet_.get());
    av_packet_unref(packet_.get());
    undecodable_ += taken < 0 ? 1 : 0;
    while (avcodec_receive_frame(decoder_.get(), frame_.get()) >= 0)
        read(*frame_);
}

void Pictures::read(const AVFrame& picture)
{
    ++decoded_;
    const auto stamp =
        readStamp(picture.data[0], picture.linesize[0], picture.width, picture.height);
    if (stamp)
        follow(*stamp, picture.pts);
    else
        ++unreadable_;
}

void Pictures::follow(std::uint32_t stamp, std::int64_t receivedUs)
{
    const std::uint32_t modulus = check_ == StampCheck::Time ? timeModulus : frameModulus;
    if (last_) {
        const std::uint32_t step = (stamp + modulus - *last_) % modulus;
        const bool follows =
            check_ == StampCheck::Time ? step > 0 && step < timeModulus / 2 : step == 1;
        breaks_ += follows ? 0 : 1;
    }
    last_ = stamp;
    if (check_ != StampCheck::Time)
        return;
    const std::int64_t modulusUs = std::int64_t{timeModulus} * 1000;
    const std::int64_t age =
        (receivedUs % modulusUs + modulusUs - std::int64_t{stamp} * 1000) % modulusUs;
    delays_.push_back(static_cast<double>(age) / 1000);
}

nlohmann::json Pictures::json() const
{
    return {{"decoded", decoded_}, {"undecodable", undecodable_}, {"unreadable", unreadable_},
        {"breaks", breaks_}};
}

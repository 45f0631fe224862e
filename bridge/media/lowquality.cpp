// SPDX-License-Identifier: GPL-3.0-or-later
#include "lowquality.h"

#include "log.h"

namespace {

constexpr int lowWidth = 640;
constexpr int lowKilobits = 512;
// Pictures that wait while one is encoded show that it is late. At the begin, when the running
// group comes at once, this finds the present picture; later it keeps a slow machine in time.
constexpr std::size_t lateFrames = 4;

int codecOf(const LinkFrame& frame)
{
    return frame.info[0] | frame.info[1] << 8;
}

} // namespace

LowQuality::LowQuality(FrameHub& full)
    : full_(full)
    , hub_(FrameHub::Kind::Video, [this] { worker_.wake(); })
    , packet_(av_packet_alloc())
    , worker_([this] { run(); })
{
}

void LowQuality::run()
{
    while (worker_.waitFor([this] { return hub_.watched(); })) {
        const auto queue = std::make_shared<FrameQueue>([this] { worker_.wake(); });
        const auto watcher = std::make_shared<HubWatcher>(queue);
        full_.add(watcher);
        convertWhileWatched(*queue);
        full_.remove(watcher);
        reencoder_.reset();
        codec_ = 0;
    }
}

void LowQuality::convertWhileWatched(FrameQueue& queue)
{
    while (worker_.waitFor([&] { return queue.size() > 0 || !hub_.watched(); })) {
        if (hub_.resetIfUnwatched())
            return;
        if (const auto frame = queue.take())
            convert(*frame, queue.size() < lateFrames);
    }
}

void LowQuality::convert(const LinkFrame& frame, bool encode)
{
    if (!prepare(frame) || av_new_packet(packet_.get(), static_cast<int>(frame.bytes.size())) < 0)
        return;
    std::copy(frame.bytes.begin(), frame.bytes.end(), packet_->data);
    const bool key = encode && hub_.takeKeyWish();
    reencoder_->put(packet_.get(), encode, key, [this](const auto& made) { hub_.publish(made); });
    av_packet_unref(packet_.get());
}

bool LowQuality::prepare(const LinkFrame& frame)
{
    if (codec_ == codecOf(frame))
        return reencoder_ != nullptr;
    codec_ = codecOf(frame);
    AVCodecParameters coded{};
    coded.codec_type = AVMEDIA_TYPE_VIDEO;
    coded.codec_id = codec_ == LinkCodecH265 ? AV_CODEC_ID_HEVC : AV_CODEC_ID_H264;
    std::string error;
    reencoder_ = Reencoder::open(coded, {lowWidth, lowKilobits, full_.framesPerSecond}, error);
    if (!reencoder_)
        logEvent(LogLevel::Warning, {}, -1, "no low quality: " + error);
    return reencoder_ != nullptr;
}

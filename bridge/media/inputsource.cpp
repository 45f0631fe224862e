// SPDX-License-Identifier: GPL-3.0-or-later
#include "inputsource.h"

#include "backoff.h"
#include "medialog.h"

namespace {

// Past these a file's time stamps are taken for a jump: it goes on from the present moment.
constexpr std::chrono::seconds lateLimit{1};
constexpr std::chrono::seconds earlyLimit{5};

std::string filePath(const std::string& url)
{
    constexpr std::string_view scheme = "file:";
    return url.compare(0, scheme.size(), scheme) == 0 ? url.substr(scheme.size()) : std::string();
}

std::chrono::microseconds toMicroseconds(std::int64_t value, AVRational base)
{
    return std::chrono::microseconds(av_rescale_q(value, base, {1, 1'000'000}));
}

std::optional<std::chrono::microseconds> stampOf(const AVPacket& packet, AVRational base)
{
    const std::int64_t stamp = packet.dts != AV_NOPTS_VALUE ? packet.dts : packet.pts;
    if (stamp == AV_NOPTS_VALUE)
        return std::nullopt;
    return toMicroseconds(stamp, base);
}

} // namespace

InputSource::InputSource(const FeedSettings& feed, const SourceSettings& settings, bool always)
    : name_(feed.name)
    , settings_(settings)
    , path_(filePath(settings.url))
    , always_(always)
    , video_(FrameHub::Kind::Video, [this] { worker_.wake(); })
    , audio_(FrameHub::Kind::Audio, [this] { worker_.wake(); })
    , worker_([this] { run(); })
{
    if (always_)
        worker_.wake();
}

void InputSource::run()
{
    int failures = 0;
    while (worker_.waitFor([this] { return wanted(); })) {
        delivered_ = false;
        const std::string error = play();
        video_.reset();
        if (worker_.stopping() || error.empty())
            continue;
        failures = delivered_ ? 1 : failures + 1;
        const auto delay = reconnectDelay(failures);
        logMedia(LogLevel::Warning, name_,
            settings_.url + ": " + error + "; again in " + std::to_string(delay.count()) + " s");
        worker_.sleepUntil(Worker::Clock::now() + delay);
    }
}

std::unique_ptr<InputStream> InputSource::open(std::string& error)
{
    const auto stopping = [this] { return worker_.stopping() || !wanted(); };
    return isFile() ? InputStream::openFile(path_, stopping, error)
                    : InputStream::openCamera(settings_.url, settings_.overUdp, stopping, error);
}

// One connection. Returns why it ended; empty when it is not wanted any more.
std::string InputSource::play()
{
    std::string error = "out of memory";
    const auto input = open(error);
    if (!input)
        return wanted() ? error : std::string();
    video_.framesPerSecond = input->framesPerSecond();
    videoPass_ = VideoPass::open(input->video(), input->framesPerSecond(), video_, error);
    if (!videoPass_)
        return error;
    audioPass_ = input->audio() != nullptr ? AudioPass::open(*input->audio(), audio_) : nullptr;
    logMedia(LogLevel::Info, name_,
        settings_.url + ": " + avcodec_get_name(input->video().codecpar->codec_id) + " "
            + std::to_string(input->video().codecpar->width) + "x"
            + std::to_string(input->video().codecpar->height) + (audioPass_ ? ", sound" : ""));
    timeline_ = {};
    started_ = false;
    return playRounds(*input);
}

std::string InputSource::playRounds(InputStream& input)
{
    const PacketPtr packet(av_packet_alloc());
    while (packet) {
        const int result = input.read(*packet);
        if (!wanted() || worker_.stopping())
            return {};
        if (result >= 0) {
            if (isFile() && !pace(*packet, input))
                return {};
            put(*packet, input);
            continue;
        }
        if (!isFile() || result != AVERROR_EOF)
            return result == AVERROR_EXIT ? "it sends no more pictures" : ffmpegError(result);
        if (!delivered_ || !nextRound(input))
            return "it cannot be played again";
    }
    return "out of memory";
}

void InputSource::put(AVPacket& packet, const InputStream& input)
{
    if (packet.stream_index == input.video().index) {
        delivered_ = true;
        if (!videoPass_->put(packet))
            logMedia(LogLevel::Warning, name_, "a frame was too large");
        return;
    }
    if (audioPass_)
        audioPass_->put(packet);
    av_packet_unref(&packet);
}

// Waits until the packet is due; false at stop.
bool InputSource::pace(const AVPacket& packet, const InputStream& input)
{
    const bool picture = packet.stream_index == input.video().index;
    const AVStream* stream = picture ? &input.video() : input.audio();
    if (stream == nullptr)
        return true;
    const AVRational base = stream->time_base;
    const auto stamp = stampOf(packet, base);
    const auto frameTime = std::chrono::microseconds(1'000'000 / video_.framesPerSecond);
    const auto duration = packet.duration > 0 ? toMicroseconds(packet.duration, base) : frameTime;
    const auto place = picture ? std::optional(timeline_.placePicture(stamp, duration))
        : stamp                ? timeline_.placeSound(*stamp)
                               : std::nullopt;
    if (!place)
        return true;
    const auto now = Worker::Clock::now();
    const auto due = start_ + *place;
    if (!started_ || due < now - lateLimit || due > now + earlyLimit) {
        start_ = now - *place;
        started_ = true;
    }
    return worker_.sleepUntil(start_ + *place);
}

bool InputSource::nextRound(InputStream& input)
{
    if (!input.rewind())
        return false;
    videoPass_->restart();
    if (audioPass_)
        audioPass_->restart();
    timeline_.nextRound();
    delivered_ = false;
    return true;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "inputstream.h"

#include <sys/stat.h>

#include <algorithm>
#include <cmath>

std::unique_ptr<InputStream> InputStream::openFile(
    const std::string& path, std::function<bool()> stopping, std::string& error)
{
    struct stat about
    {
    };
    // A read from a pipe or a device could not be interrupted.
    if (stat(path.c_str(), &about) != 0 || !S_ISREG(about.st_mode)) {
        error = "no such file";
        return nullptr;
    }
    FfmpegOptions options;
    // A play list must not lead the program into the network.
    options.set("protocol_whitelist", "file");
    std::unique_ptr<InputStream> stream(new InputStream(std::move(stopping)));
    return stream->open("file:" + path, options, error) ? std::move(stream) : nullptr;
}

std::unique_ptr<InputStream> InputStream::openCamera(
    const std::string& url, bool overUdp, std::function<bool()> stopping, std::string& error)
{
    FfmpegOptions options;
    options.set("protocol_whitelist", "rtsp,rtp,tcp,udp");
    options.set("rtsp_transport", overUdp ? "udp" : "tcp");
    options.set("allowed_media_types", "video+audio");
    // Enough for a key frame of each camera's usual interval.
    options.set("analyzeduration", "5000000");
    options.set("probesize", "8000000");
    std::unique_ptr<InputStream> stream(new InputStream(std::move(stopping)));
    stream->silenceCounts_ = true;
    return stream->open(url, options, error) ? std::move(stream) : nullptr;
}

InputStream::InputStream(std::function<bool()> stopping)
    : stopping_(std::move(stopping))
    , lastPicture_(std::chrono::steady_clock::now())
{
}

bool InputStream::open(const std::string& url, FfmpegOptions& options, std::string& error)
{
    AVFormatContext* input = avformat_alloc_context();
    if (input == nullptr)
        return false;
    input->interrupt_callback = {&InputStream::interrupted, this};
    // Frees the context when it fails.
    int result = avformat_open_input(&input, url.c_str(), nullptr, options.get());
    if (result >= 0) {
        input_.reset(input);
        result = avformat_find_stream_info(input, nullptr);
    }
    if (result < 0) {
        error = ffmpegError(result);
        return false;
    }
    return chooseStreams(error);
}

bool InputStream::chooseStreams(std::string& error)
{
    video_ = av_find_best_stream(input_.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    audio_ = av_find_best_stream(input_.get(), AVMEDIA_TYPE_AUDIO, -1, video_, nullptr, 0);
    if (video_ < 0) {
        error = "it has no pictures";
        return false;
    }
    for (unsigned i = 0; i < input_->nb_streams; ++i)
        if (static_cast<int>(i) != video_ && static_cast<int>(i) != audio_)
            input_->streams[i]->discard = AVDISCARD_ALL;
    return true;
}

int InputStream::interrupted(void* self)
{
    const auto* stream = static_cast<const InputStream*>(self);
    if (stream->stopping_())
        return 1;
    const auto silent = std::chrono::steady_clock::now() - stream->lastPicture_;
    return stream->silenceCounts_ && silent > silenceLimit ? 1 : 0;
}

int InputStream::framesPerSecond() const
{
    const AVRational rate = av_guess_frame_rate(input_.get(), input_->streams[video_], nullptr);
    const double value = rate.num > 0 && rate.den > 0 ? av_q2d(rate) : 25;
    return static_cast<int>(std::lround(std::clamp(value, 1.0, 60.0)));
}

int InputStream::read(AVPacket& packet)
{
    while (true) {
        const int result = av_read_frame(input_.get(), &packet);
        // FFmpeg does not ask between packets that are already there.
        if (result >= 0 && interrupted(this) != 0) {
            av_packet_unref(&packet);
            return AVERROR_EXIT;
        }
        if (result < 0)
            return result;
        if (packet.stream_index == video_)
            lastPicture_ = std::chrono::steady_clock::now();
        if (packet.stream_index == video_ || packet.stream_index == audio_)
            return 0;
        av_packet_unref(&packet);
    }
}

bool InputStream::rewind()
{
    const std::int64_t start = input_->start_time == AV_NOPTS_VALUE ? 0 : input_->start_time;
    return avformat_seek_file(input_.get(), -1, INT64_MIN, start, start, 0) >= 0
        || av_seek_frame(input_.get(), -1, 0, AVSEEK_FLAG_BYTE) >= 0;
}

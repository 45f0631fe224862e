// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ffmpeg.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

// An opened file or camera: packets of its best picture stream and its best sound stream.
// One thread at a time. open() and read() return with an error within a tenth of a second when
// `stopping` says so, and when a camera has given nothing for silenceLimit.
class InputStream
{
public:
    static constexpr std::chrono::seconds silenceLimit{10};

    // A regular file of this machine. Null: `error` tells why.
    static std::unique_ptr<InputStream> openFile(
        const std::string& path, std::function<bool()> stopping, std::string& error);
    static std::unique_ptr<InputStream> openCamera(
        const std::string& url, bool overUdp, std::function<bool()> stopping, std::string& error);

    InputStream(const InputStream&) = delete;
    InputStream& operator=(const InputStream&) = delete;

    const AVStream& video() const { return *input_->streams[video_]; }
    // Null without sound.
    const AVStream* audio() const { return audio_ < 0 ? nullptr : input_->streams[audio_]; }
    // About; 1 to 60.
    int framesPerSecond() const;

    // The next packet of one of the two streams; below 0 an FFmpeg error, AVERROR_EOF at the end.
    int read(AVPacket& packet);
    // To the begin; false where the file's form does not allow it.
    bool rewind();

private:
    explicit InputStream(std::function<bool()> stopping);
    bool open(const std::string& url, FfmpegOptions& options, std::string& error);
    bool chooseStreams(std::string& error);
    static int interrupted(void* self);

    const std::function<bool()> stopping_;
    bool silenceCounts_ = false;
    std::chrono::steady_clock::time_point lastPicture_;
    InputPtr input_;
    int video_ = -1;
    int audio_ = -1;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/ffmpeg.h"
#include "options.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// Decodes the pictures of one channel and follows the stamps in them. One thread at a time.
class Pictures
{
public:
    explicit Pictures(StampCheck check)
        : check_(check)
    {
    }

    // One received frame. `codec`: of the frame information. `received`: when it was ready.
    void take(int codec, std::string_view bytes, std::chrono::steady_clock::time_point received);

    // Pictures, stamps and breaks; with StampCheck::Time also the delays.
    nlohmann::json json() const;
    const std::vector<double>& delaysMs() const { return delays_; }

private:
    bool open(int codec);
    void read(const AVFrame& picture);
    void follow(std::uint32_t stamp, std::int64_t receivedUs);

    const StampCheck check_;
    std::vector<double> delays_;
    int codec_ = 0;
    CodecPtr decoder_;
    PacketPtr packet_{av_packet_alloc()};
    FramePtr frame_{av_frame_alloc()};
    long decoded_ = 0;
    long undecodable_ = 0;
    long unreadable_ = 0;
    long breaks_ = 0;
    std::optional<std::uint32_t> last_;
};

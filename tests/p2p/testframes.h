// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/linkframe.h"

#include <algorithm>
#include <string>

constexpr std::uint32_t frameSeconds = 1700000000;

// A frame whose bytes tell its size and `seed`.
inline LinkFrame pictureOf(std::size_t size, bool key, std::uint8_t seed = 0)
{
    LinkFrame frame;
    frame.bytes.resize(size);
    for (std::size_t i = 0; i < size; ++i)
        frame.bytes[i] = static_cast<std::uint8_t>(i * 7 + size + seed);
    describe(frame, LinkCodecH264, key, frameSeconds);
    return frame;
}

inline LinkFrame soundOf(std::size_t size, std::uint8_t seed = 0)
{
    LinkFrame frame = pictureOf(size, false, seed);
    describe(frame, LinkCodecALaw, false, frameSeconds);
    return frame;
}

inline std::string textOf(const LinkFrame& frame)
{
    return {frame.bytes.begin(), frame.bytes.end()};
}

inline std::string infoOf(const LinkFrame& frame)
{
    return {frame.info.begin(), frame.info.end()};
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

// What codecs the frame information can name.
enum LinkCodec : std::uint16_t {
    LinkCodecH264 = 78,
    LinkCodecH265 = 80,
    LinkCodecALaw = 138, // 8000 Hz, mono
};

// One encoded frame of picture or sound, as a device sends it. Frames are made once and shared by
// all viewers of a channel, so they are const from the moment they are sent.
struct LinkFrame
{
    // The frame information: codec (2 bytes, little endian), flags (0 a predicted picture or
    // sound, 1 a key frame), 9 bytes that nobody reads, seconds since 1970 (4 bytes, UTC).
    std::array<std::uint8_t, 16> info{};
    std::vector<std::uint8_t> bytes; // 1 to maxBytes; H.264 and H.265 in Annex B form
    bool key = false; // a decoder can start here; the same as info[2] == 1

    static constexpr std::size_t maxBytes = 2304000; // what a client's receive buffer holds
};

// Fills in `info` and `key`. `seconds`: since 1970, UTC.
inline void describe(LinkFrame& frame, LinkCodec codec, bool key, std::uint32_t seconds)
{
    frame.key = key;
    frame.info = {};
    frame.info[0] = static_cast<std::uint8_t>(codec & 0xff);
    frame.info[1] = static_cast<std::uint8_t>(codec >> 8);
    frame.info[2] = key ? 1 : 0;
    for (std::size_t i = 0; i < 4; ++i)
        frame.info[12 + i] = static_cast<std::uint8_t>(seconds >> (8 * i));
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "annexb.h"

namespace {

// Bit 0: video, 1: sequence, 2: picture parameter set; `slice` for a part of a picture.
constexpr unsigned slice = 8;

unsigned unitKind(std::uint8_t header, VideoCodec codec)
{
    if (codec == VideoCodec::H264) {
        const unsigned type = header & 0x1fU;
        return type == 7 ? 2 : type == 8 ? 4 : type >= 1 && type <= 5 ? slice : 0;
    }
    const unsigned type = header >> 1 & 0x3fU;
    return type >= 32 && type <= 34 ? 1U << (type - 32) : type < 32 ? slice : 0;
}

} // namespace

bool startsWithParameterSets(const std::uint8_t* bytes, std::size_t size, VideoCodec codec)
{
    const unsigned needed = codec == VideoCodec::H264 ? 6 : 7;
    unsigned found = 0;
    for (std::size_t i = 0; i + 3 < size; ++i) {
        if (bytes[i] != 0 || bytes[i + 1] != 0 || bytes[i + 2] != 1)
            continue;
        const unsigned kind = unitKind(bytes[i + 3], codec);
        if (kind == slice)
            break;
        found |= kind;
    }
    return (found & needed) == needed;
}

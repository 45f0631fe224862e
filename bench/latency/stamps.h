// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "benchcamera.h"

#include <cstdint>

// A picture that was sent, by its two names.
struct SentPicture
{
    std::uint32_t stamp;
    std::uint64_t mark; // frameMark()
    std::chrono::steady_clock::time_point drawn; // the drawing began; in whole milliseconds
    std::chrono::steady_clock::time_point published;
};

// Decodes H.264 frames, which begin with a key picture and do not refer to later ones, and reads
// their stamps. A picture that cannot be read is left out.
std::vector<SentPicture> readStamps(const std::vector<SentFrame>& frames);

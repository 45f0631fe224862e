// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ffmpeg.h"

#include <chrono>
#include <cstdint>

// The stamp that a machine reads from a test picture: over the top sixth of the picture 24 columns
// by 2 rows of blocks, neutral in colour. The first row is 24 bits, most significant first, white
// (235) for 1 and black (16) for 0; the second row the same bits inverted, as the check.

constexpr int stampColumns = 24;

// `picture`: planar 4:2:0, writable.
void drawStamp(AVFrame& picture, std::uint32_t value);

// What a time stamp says: milliseconds of the monotonic clock, modulo 2^24.
std::uint32_t timeStampValue(std::chrono::steady_clock::time_point time);

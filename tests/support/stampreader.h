// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

// Reads the stamp of a test picture: over the top sixth of the picture 24 columns by 2 rows of
// blocks, the first row 24 bits (white 1, black 0, most significant first), the second row the
// same bits inverted.
//
// `luma`: 8 bits a sample, `height` rows of `width` samples, each row `stride` bytes after the one
// before. It may be scaled, lossily coded, or read back from a screen: each block is judged by the
// mean of its middle half, and needs only be clearly brighter or darker than grey. Nothing when a
// block is unclear, when the rows contradict each other, or when the picture is too small (less
// than 2 samples for a block). Pure; any thread.
std::optional<std::uint32_t> readStamp(
    const std::uint8_t* luma, std::ptrdiff_t stride, int width, int height);

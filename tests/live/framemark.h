// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

// Tells encoded frames of one stream apart, in any process: FNV-1a of their bytes.
inline std::uint64_t frameMark(const void* bytes, std::size_t size)
{
    const auto* at = static_cast<const unsigned char*>(bytes);
    std::uint64_t mark = 14695981039346656037U;
    for (std::size_t i = 0; i < size; ++i)
        mark = (mark ^ at[i]) * 1099511628211U;
    return mark;
}

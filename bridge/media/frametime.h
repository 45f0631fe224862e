// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>

// Seconds since 1970, UTC, as frames carry them.
inline std::uint32_t frameSeconds()
{
    using namespace std::chrono;
    const auto now = system_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(duration_cast<seconds>(now).count());
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>

// How long to wait before the next attempt after `failures` (1 or more) that followed each other:
// 1, 2, 4, 8, 16 and then always 30 seconds.
constexpr std::chrono::seconds reconnectDelay(int failures)
{
    return failures > 5 ? std::chrono::seconds(30)
                        : std::chrono::seconds(1 << std::max(0, failures - 1));
}

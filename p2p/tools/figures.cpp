// SPDX-License-Identifier: GPL-3.0-or-later
#include "figures.h"

#include <algorithm>
#include <cmath>

nlohmann::json percentiles(std::vector<double> milliseconds)
{
    if (milliseconds.empty())
        return nullptr;
    std::sort(milliseconds.begin(), milliseconds.end());
    const auto at = [&milliseconds](double share) {
        const auto rank =
            static_cast<std::size_t>(share * static_cast<double>(milliseconds.size()));
        const double value = milliseconds[std::min(rank, milliseconds.size() - 1)];
        return std::round(value * 100) / 100;
    };
    return {{"p50", at(0.5)}, {"p95", at(0.95)}, {"p99", at(0.99)}, {"max", at(1)}};
}

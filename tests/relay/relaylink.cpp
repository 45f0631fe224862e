// SPDX-License-Identifier: GPL-3.0-or-later
#include "relaylink.h"

#include <algorithm>

RelayLink::RelayLink(std::uint64_t seed)
    : random_(seed)
{
}

std::variant<RelayDeparture, RelayFate> RelayLink::admit(
    const RelayConditions& conditions, std::chrono::steady_clock::time_point now, std::size_t bytes)
{
    // Always three draws, so that a change of one condition leaves the other fates as they were.
    std::uniform_real_distribution<double> share(0, 1);
    const bool lost = share(random_) < conditions.loss;
    const bool heldBack = share(random_) < conditions.reorder;
    const double swing = 2 * share(random_) - 1;

    if (conditions.blackhole)
        return RelayFate::Blackholed;
    if (lost)
        return RelayFate::Lost;

    auto sent = now;
    if (conditions.bitsPerSecond > 0) {
        const auto begin = std::max(now, lineFree_);
        if (begin - now > conditions.queue)
            return RelayFate::QueueFull;
        sent = begin
            + std::chrono::nanoseconds(
                static_cast<std::int64_t>(bytes) * 8 * 1000000000 / conditions.bitsPerSecond);
        lineFree_ = sent;
    }

    const auto jitter = std::chrono::nanoseconds(static_cast<std::int64_t>(
        swing * static_cast<double>(std::chrono::nanoseconds(conditions.jitter).count())));
    const auto due = std::max(sent, sent + conditions.delay + jitter);
    if (heldBack)
        return RelayDeparture{std::max(due, lastDue_) + conditions.reorderBy, true};
    lastDue_ = std::max(due, lastDue_);
    return RelayDeparture{lastDue_, false};
}

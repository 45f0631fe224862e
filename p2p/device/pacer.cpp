// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/pacer.h"

#include <algorithm>

namespace {

// A line that loses three packets in a hundred makes one in eight be sent twice; one that is too
// narrow, more than half.
constexpr std::int64_t judgeFrom = 50; // packets
constexpr std::int64_t crowded = 3; // one packet in this many was repeated

constexpr std::int64_t lowest = std::int64_t{16} << 10; // bytes per second: a picture now and then
constexpr std::int64_t wide = std::int64_t{16} << 20; // no need to hold back any more

} // namespace

std::int64_t Pacer::next(const Figures& figures)
{
    const std::int64_t arrived = figures.bytesConfirmed;
    carried_ = std::max(arrived, carried_ - carried_ / 20);
    // A second in which nothing came through was an outage, and says nothing of the line's width.
    if (figures.packetsSent >= judgeFrom && figures.packetsRepeated > figures.packetsSent / crowded
        && arrived > 0)
        limit_ = std::max(lowest, arrived + arrived / 4);
    else if (limit_ != unlimited)
        limit_ += limit_ < carried_ ? limit_ : limit_ / 10;
    if (limit_ > wide)
        limit_ = unlimited;
    return limit_;
}

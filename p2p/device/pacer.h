// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

// Holds a sender back to what a narrow line carries. SRT's live sender hands each frame out at once;
// a line whose queue is shorter than a frame then loses most of it, and most of what is repeated.
// So when much had to be repeated, the rate is brought down to a little more than what arrived, and
// goes up again while all is well: fast to what the line carried before, slowly beyond. One thread at a time.
class Pacer
{
public:
    static constexpr std::int64_t unlimited = -1;

    // What one interval has shown.
    struct Figures
    {
        std::int64_t packetsSent = 0; // repeated ones included
        std::int64_t packetsRepeated = 0;
        std::int64_t bytesConfirmed = 0;
    };

    // Takes the figures of the last second and gives the limit for the next, in bytes per second.
    std::int64_t next(const Figures& figures);
    std::int64_t limit() const { return limit_; }

private:
    std::int64_t limit_ = unlimited;
    std::int64_t carried_ = 0; // the most that came through in a second, lately
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <optional>

// Lays the rounds of a looped file end to end on one line of time that begins at 0: the first
// picture of a round comes where the last one of the round before ends, whatever the file's own
// time stamps begin with.
class Timeline
{
public:
    using Time = std::chrono::microseconds;

    // Place of a picture; `stamp`: as the file has it, nothing for right after the last one.
    Time placePicture(std::optional<Time> stamp, Time duration)
    {
        if (!offset_ && stamp)
            offset_ = end_ - *stamp;
        const Time place = stamp ? *stamp + *offset_ : end_;
        end_ = std::max(end_, place + duration);
        return place;
    }

    // Place of sound, which follows the pictures; nothing before the round's first picture.
    std::optional<Time> placeSound(Time stamp) const
    {
        return offset_ ? std::optional<Time>(stamp + *offset_) : std::nullopt;
    }

    void nextRound() { offset_.reset(); }

private:
    std::optional<Time> offset_; // from the file's time to this one, in the round
    Time end_{0};
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>

// How far a client is behind: from the packets that were sent and those that are not confirmed
// yet, tells since when the oldest of them waits. One thread at a time.
class Backlog
{
public:
    using Clock = std::chrono::steady_clock;

    // `unconfirmed`: of all that was sent before.
    void sent(std::size_t packets, std::size_t unconfirmed, Clock::time_point now)
    {
        forget(unconfirmed);
        total_ += packets;
        if (packets > 0)
            marks_.push_back({total_, now});
    }

    // Of the oldest packet of the `unconfirmed` last ones; zero when there is none.
    Clock::duration age(std::size_t unconfirmed, Clock::time_point now)
    {
        forget(unconfirmed);
        return marks_.empty() ? Clock::duration::zero() : now - marks_.front().time;
    }

    // Packets that were sent and are confirmed.
    std::uint64_t confirmed(std::size_t unconfirmed) const
    {
        return total_ - std::min<std::uint64_t>(unconfirmed, total_);
    }

    // What is remembered: never more than there are packets unconfirmed at a send, and one.
    std::size_t marks() const { return marks_.size(); }

private:
    void forget(std::size_t unconfirmed)
    {
        const std::uint64_t upTo = confirmed(unconfirmed);
        while (!marks_.empty() && marks_.front().total <= upTo)
            marks_.pop_front();
    }

    struct Mark
    {
        std::uint64_t total; // packets sent up to here
        Clock::time_point time;
    };

    std::uint64_t total_ = 0;
    std::deque<Mark> marks_; // one per send with packets unconfirmed, so at most as many as these
};

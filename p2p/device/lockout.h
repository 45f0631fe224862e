// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <map>
#include <string>

// Counts wrong passwords by source address: ten within 60 s shut the address out for 60 s. One
// thread at a time.
class Lockout
{
public:
    using Clock = std::chrono::steady_clock;

    static constexpr std::size_t tries = 10;
    static constexpr std::chrono::seconds window{60};
    static constexpr std::chrono::seconds duration{60};
    // A guesser may have many addresses; past this number those heard of longest ago are forgotten.
    static constexpr std::size_t maxAddresses = 4096;

    bool isLocked(const std::string& address, Clock::time_point now) const;
    // True when this one shuts the address out.
    bool wrongPassword(const std::string& address, Clock::time_point now);

private:
    struct Entry
    {
        std::deque<Clock::time_point> wrong;
        Clock::time_point lockedUntil{};
        Clock::time_point last{};
    };

    void forgetOldest();

    std::map<std::string, Entry> entries_;
};

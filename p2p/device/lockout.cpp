// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/lockout.h"

#include <algorithm>

bool Lockout::isLocked(const std::string& address, Clock::time_point now) const
{
    const auto found = entries_.find(address);
    return found != entries_.end() && now < found->second.lockedUntil;
}

bool Lockout::wrongPassword(const std::string& address, Clock::time_point now)
{
    if (entries_.size() >= maxAddresses && entries_.count(address) == 0)
        forgetOldest();
    Entry& entry = entries_[address];
    entry.last = now;
    entry.wrong.push_back(now);
    while (now - entry.wrong.front() > window)
        entry.wrong.pop_front();
    if (entry.wrong.size() < tries)
        return false;
    entry.wrong.clear();
    entry.lockedUntil = now + duration;
    return true;
}

void Lockout::forgetOldest()
{
    entries_.erase(std::min_element(entries_.begin(), entries_.end(),
        [](const auto& a, const auto& b) { return a.second.last < b.second.last; }));
}

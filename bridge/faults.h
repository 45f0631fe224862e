// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

// Faults that a device shows on demand, so that clients can be tried against them. One line names
// one fault, in the configuration and on the control socket alike:
//   refuse N          refuses the next N sessions
//   silent on|off     answers nothing any more
//   drop N            leaves out every Nth picture; 0 ends it
//   hold on|off       takes no control messages: the client's sends wait
//   mute on|off       takes them and answers none
//   answer TYPE S     puts S into the status of each answer of this type; "off" ends it
//   truncated N       cuts the next N answers to half their bytes
//   oversized N       sends datagrams with 1400 bytes of message instead of the next N answers
//   broken N          sends half a datagram instead of the next N answers
//   die               ends the program on the spot
struct Fault
{
    enum class Kind { Refuse, Silent, Drop, Hold, Mute, Answer, Truncated, Oversized, Broken, Die };

    Kind kind = Kind::Die;
    int count = 0; // N, or 1 and 0 for on and off
    unsigned type = 0;
    std::optional<int> status; // nothing for "off"
};

// Pure. A text that tells what is wrong instead of a fault.
std::variant<Fault, std::string> parseFault(std::string_view line);

// What the faults do to one device's messages and frames. Threads: any.
class Faults
{
public:
    enum class Damage { None, Truncated, Oversized, Broken };

    // All but Silent and Die, which are not about messages.
    void apply(const Fault& fault);

    bool refuseSession() { return takeOne(refuse_); }
    bool holdsControl() const { return hold_; }
    bool isMute() const { return mute_; }
    bool dropsPicture(unsigned number) const;
    std::optional<int> statusFor(unsigned type) const;
    Damage damageNext();

private:
    static bool takeOne(std::atomic<int>& count);

    std::atomic<int> refuse_{0};
    std::atomic<bool> hold_{false};
    std::atomic<bool> mute_{false};
    std::atomic<int> dropEvery_{0};
    std::atomic<int> truncated_{0};
    std::atomic<int> oversized_{0};
    std::atomic<int> broken_{0};

    mutable std::mutex mutex_;
    std::map<unsigned, int> statuses_; // by type; guarded by mutex_
};

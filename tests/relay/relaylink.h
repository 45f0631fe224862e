// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <random>
#include <variant>

// What a relay does to the datagrams of one direction; the same for both.
struct RelayConditions
{
    std::chrono::microseconds delay{0}; // one way
    std::chrono::microseconds jitter{0}; // the delay varies by up to this, either way; keeps order
    double loss = 0; // share of datagrams that vanish, 0 to 1
    double reorder = 0; // share of datagrams that are held back, so that later ones overtake
    std::chrono::microseconds reorderBy{5000}; // for how long
    std::int64_t bitsPerSecond = 0; // of payload; 0: no limit
    // How long a datagram may wait for the line; one that would wait longer is dropped.
    std::chrono::microseconds queue{200000};
    bool blackhole = false; // nothing passes
};

enum class RelayFate { Lost, QueueFull, Blackholed };

// When a datagram leaves, or why it never does.
struct RelayDeparture
{
    std::chrono::steady_clock::time_point due;
    bool heldBack = false;
};

// One direction of a line: decides the fate of each datagram. Pure but for its own state: the
// same seed, conditions and arrivals give the same fates. Threads: one at a time.
class RelayLink
{
public:
    explicit RelayLink(std::uint64_t seed);

    std::variant<RelayDeparture, RelayFate> admit(const RelayConditions& conditions,
        std::chrono::steady_clock::time_point now, std::size_t bytes);

private:
    // When the line has sent all that it has taken so far.
    std::chrono::steady_clock::time_point lineFree_;
    // Departure of the last datagram that was not held back.
    std::chrono::steady_clock::time_point lastDue_;
    std::mt19937_64 random_;
};

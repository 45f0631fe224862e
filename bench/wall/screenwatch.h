// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

// A stamp on the screen and when it was seen first.
struct Sight
{
    std::uint32_t stamp = 0;
    std::chrono::steady_clock::time_point seen;
};

// Reads the stamps of test pictures from an X11 screen, again and again, on a thread of its own.
//
// A rectangle is a tile that a whole test picture fills, scaled or not; up to 3 points at each edge
// may show something else. Only the middle line of either row of stamp blocks is fetched, through
// shared memory and for all rectangles in one go, so that watching takes little from who is watched.
// What cannot be read (no picture there, or two of them mixed) is passed over.
//
// Threads: any for sights(); the rest by the owner.
class ScreenWatch
{
public:
    // Looks every `interval` until it is destroyed; a picture that is shown for less may be missed.
    // `rectangles`: in points of the screen that DISPLAY names, each at least 48 by 24 and within
    // the screen. Null: `error` tells why.
    static std::unique_ptr<ScreenWatch> start(const std::vector<QRect>& rectangles,
        std::chrono::milliseconds interval, std::string& error);

    ScreenWatch(const ScreenWatch&) = delete;
    ScreenWatch& operator=(const ScreenWatch&) = delete;
    ~ScreenWatch();

    // For each rectangle what has been seen so far, in its order: an entry whenever the stamp was
    // another one than before. Kept to the end, so a watch is for minutes.
    std::vector<std::vector<Sight>> sights() const;

private:
    class Screen;

    ScreenWatch(std::unique_ptr<Screen> screen, std::chrono::milliseconds interval);
    void run();
    void note(const std::vector<std::optional<std::uint32_t>>& stamps);

    const std::unique_ptr<Screen> screen_; // the thread's only
    const std::chrono::milliseconds interval_;
    mutable std::mutex mutex_;
    std::vector<std::vector<Sight>> sights_; // guarded by mutex_
    std::atomic<bool> stopping_{false};
    std::thread thread_; // after what it uses
};

// What one rectangle showed in a span of time.
struct Showing
{
    int shown = 0; // different pictures
    int passed = 0; // pictures sent from the first to the last one shown, both counted
    std::chrono::microseconds longestStall{0}; // without a new picture, ends of the span included
};

// `period`: stamps run from 0 to below it and begin anew; a step back by less than half of it is a
// picture out of order and not counted.
Showing summarise(const std::vector<Sight>& sights, std::uint32_t period,
    std::chrono::steady_clock::time_point from, std::chrono::steady_clock::time_point to);

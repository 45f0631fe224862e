// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>

// A field that worker threads and the main thread share without a lock. Reads and writes are
// relaxed: no torn values and no data race, but also no order between fields. The order that
// matters comes from the event queue, which every result passes on its way to the main thread.
template <typename T>
class Relaxed
{
public:
    Relaxed() = default;
    Relaxed(T value)
        : value_(value)
    {
    }
    Relaxed(const Relaxed&) = delete;
    Relaxed& operator=(const Relaxed&) = delete;

    operator T() const { return value_.load(std::memory_order_relaxed); }
    T operator=(T value)
    {
        value_.store(value, std::memory_order_relaxed);
        return value;
    }

private:
    std::atomic<T> value_{};
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/feed.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

// One sink's place at a hub. Made by whoever adds it, for one stay: not added again.
struct HubWatcher
{
    explicit HubWatcher(std::shared_ptr<FrameSink> taker)
        : sink(std::move(taker))
    {
    }

    const std::shared_ptr<FrameSink> sink;
    // Held during a call of the sink; recursive, so that the sink may remove itself from it.
    std::recursive_mutex delivering;
    // guarded by delivering
    bool gone = false;
    bool started = false;
    std::uint64_t next = 0; // frames before this one are known to the sink
};

// Gives the frames of one source to its watchers. A hub of pictures keeps the running group of
// pictures, so that a new watcher begins with a key frame at once: it gets the group on its own
// thread while the source's thread waits with that watcher's next frame; none is lost or doubled.
// Threads: publish(), reset() and resetIfUnwatched() from the source's thread; the rest any.
// No lock of the hub is held while a sink is called but that watcher's own.
class FrameHub
{
public:
    enum class Kind { Video, Audio };

    // A client takes 256 pictures before it drops some, and a sender holds 2048 packets of 1456
    // bytes: a longer group could not be given at once. It is then not kept, and new watchers wait
    // for the next key.
    static constexpr std::size_t maxGroupFrames = 250;
    static constexpr std::size_t maxGroupBytes = 2400000;

    // `wanted` is called after each add(), on its thread.
    FrameHub(Kind kind, std::function<void()> wanted);
    FrameHub(const FrameHub&) = delete;
    FrameHub& operator=(const FrameHub&) = delete;

    void add(const std::shared_ptr<HubWatcher>& watcher);
    // No call of its sink after the return. Waits for a call in progress on another thread.
    void remove(const std::shared_ptr<HubWatcher>& watcher);
    bool watched() const { return watchers_ != 0; }

    // A frame without bytes or above LinkFrame::maxBytes is refused with false; then pictures go
    // on with the next key frame.
    bool publish(const std::shared_ptr<const LinkFrame>& frame);
    // The next frame does not follow the ones before.
    void reset();
    // Resets and tells true when nobody watches.
    bool resetIfUnwatched();
    // Whether a watcher came that waits for a key frame, since the last call.
    bool takeKeyWish() { return keyWish_.exchange(false); }

    // About how many frames a second come; written by the source, for who re-encodes them.
    std::atomic<int> framesPerSecond{25};

private:
    bool keep(const std::shared_ptr<const LinkFrame>& frame);
    void clearGroup();
    void give(HubWatcher& watcher, std::uint64_t number,
        const std::shared_ptr<const LinkFrame>& frame) const;

    const Kind kind_;
    const std::function<void()> wanted_;
    std::atomic<int> watchers_{0};
    std::atomic<bool> keyWish_{false};

    std::mutex mutex_;
    // guarded by mutex_
    std::vector<std::shared_ptr<HubWatcher>> list_;
    std::vector<std::shared_ptr<const LinkFrame>> group_; // ends with frame next_ - 1
    std::size_t groupBytes_ = 0;
    std::uint64_t next_ = 0;
    bool waitingForKey_ = true;
};

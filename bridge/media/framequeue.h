// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/feed.h"

#include <atomic>
#include <deque>
#include <functional>
#include <mutex>

// Hands the pictures of a hub to another thread.
// Threads: any.
class FrameQueue final : public FrameSink
{
public:
    // A running group of pictures as a hub keeps it comes at once; then two seconds at 25 a second
    // may wait. What comes to a full queue is dropped, and what follows it up to a key frame.
    static constexpr std::size_t maxFrames = 300;

    // `changed` is called after each picture, on the thread that brings it.
    explicit FrameQueue(std::function<void()> changed)
        : changed_(std::move(changed))
    {
    }

    void videoFrame(const std::shared_ptr<const LinkFrame>& frame) override;
    void audioFrame(const std::shared_ptr<const LinkFrame>&) override { }

    // The oldest; null when there is none.
    std::shared_ptr<const LinkFrame> take();
    std::size_t size() const { return size_; }
    // Pictures dropped so far.
    std::uint64_t dropped() const { return dropped_; }

private:
    const std::function<void()> changed_;
    std::atomic<std::size_t> size_{0};
    std::atomic<std::uint64_t> dropped_{0};
    std::mutex mutex_;
    // guarded by mutex_
    std::deque<std::shared_ptr<const LinkFrame>> frames_;
    bool waitingForKey_ = true;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wire/assembler.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>

// The frames of one medium that wait for the client, in order, with one mark for each run of lost
// frames: lost on the way, as their numbers show, or here, when the client takes them too slowly.
// Two marks never follow each other, also when the client takes the first while the run goes on.
// One thread at a time.
class FrameQueue
{
public:
    struct Limits
    {
        std::size_t frames;
        std::size_t bytes;
        // Past a limit: frames are dropped up to the next whole key frame, or else one by one.
        bool byKeyFrame;
    };

    // A frame, whole or in part, or nothing in it: a run of lost frames.
    using Item = std::optional<AssembledFrame>;

    explicit FrameQueue(const Limits& limits)
        : limits_(limits)
    {
    }

    void put(AssembledFrame&& frame);
    // The next item; nothing when none waits.
    std::optional<Item> take();
    void clear();
    // Items, runs of lost frames included.
    std::size_t size() const { return items_.size(); }

private:
    bool isFull() const { return frames_ > limits_.frames || bytes_ > limits_.bytes; }
    Item removeFirst();
    void noteLoss();
    void makeRoom();
    bool canStartWithFirst() const;

    const Limits limits_;
    std::deque<Item> items_;
    std::size_t frames_ = 0; // items that are frames
    std::size_t bytes_ = 0; // of these
    std::optional<std::uint32_t> lastNumber_; // of the last frame that came in
    bool waitingForKey_ = false;
    bool lossTaken_ = false; // the item taken last was a mark
};

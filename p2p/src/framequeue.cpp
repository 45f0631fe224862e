// SPDX-License-Identifier: GPL-3.0-or-later
#include "src/framequeue.h"

#include <utility>

void FrameQueue::put(AssembledFrame&& frame)
{
    if (lastNumber_ && frame.number != *lastNumber_ + 1)
        noteLoss();
    lastNumber_ = frame.number;
    if (waitingForKey_ && !frame.key()) {
        noteLoss();
        return;
    }
    waitingForKey_ = false;
    ++frames_;
    bytes_ += frame.bytes.size();
    items_.emplace_back(std::move(frame));
    if (isFull())
        makeRoom();
}

std::optional<FrameQueue::Item> FrameQueue::take()
{
    if (items_.empty())
        return std::nullopt;
    Item item = std::move(items_.front());
    items_.pop_front();
    if (item) {
        --frames_;
        bytes_ -= item->bytes.size();
    }
    return item;
}

void FrameQueue::clear()
{
    items_.clear();
    frames_ = 0;
    bytes_ = 0;
}

void FrameQueue::noteLoss()
{
    if (items_.empty() || items_.back())
        items_.emplace_back();
}

void FrameQueue::makeRoom()
{
    do
        take();
    while (!items_.empty() && (isFull() || (limits_.byKeyFrame && !startsWithKeyFrame())));
    waitingForKey_ = limits_.byKeyFrame && items_.empty();
    if (items_.empty() || items_.front())
        items_.emplace_front();
}

bool FrameQueue::startsWithKeyFrame() const
{
    return items_.front() && items_.front()->key();
}

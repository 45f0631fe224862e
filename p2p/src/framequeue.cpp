// SPDX-License-Identifier: GPL-3.0-or-later
#include "src/framequeue.h"

#include <utility>

namespace {

bool canStart(const AssembledFrame& frame)
{
    return frame.key() && frame.whole();
}

} // namespace

void FrameQueue::put(AssembledFrame&& frame)
{
    if (lastNumber_ && frame.number != *lastNumber_ + 1)
        noteLoss();
    lastNumber_ = frame.number;
    if (waitingForKey_ && !canStart(frame)) {
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
    Item item = removeFirst();
    lossTaken_ = !item;
    return item;
}

void FrameQueue::clear()
{
    items_.clear();
    frames_ = 0;
    bytes_ = 0;
    lossTaken_ = false;
}

FrameQueue::Item FrameQueue::removeFirst()
{
    Item item = std::move(items_.front());
    items_.pop_front();
    if (item) {
        --frames_;
        bytes_ -= item->bytes.size();
    }
    return item;
}

void FrameQueue::noteLoss()
{
    if (items_.empty() ? !lossTaken_ : items_.back().has_value())
        items_.emplace_back();
}

void FrameQueue::makeRoom()
{
    do
        removeFirst();
    while (!items_.empty() && (isFull() || !canStartWithFirst()));
    waitingForKey_ = limits_.byKeyFrame && items_.empty();
    if (!lossTaken_)
        items_.emplace_front();
}

bool FrameQueue::canStartWithFirst() const
{
    return items_.front() && (!limits_.byKeyFrame || canStart(*items_.front()));
}

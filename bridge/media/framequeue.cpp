// SPDX-License-Identifier: GPL-3.0-or-later
#include "framequeue.h"

void FrameQueue::videoFrame(const std::shared_ptr<const LinkFrame>& frame)
{
    {
        const std::lock_guard lock(mutex_);
        if (frames_.size() >= maxFrames || (waitingForKey_ && !frame->key)) {
            waitingForKey_ = true;
            ++dropped_;
            return;
        }
        waitingForKey_ = false;
        frames_.push_back(frame);
        size_ = frames_.size();
    }
    changed_();
}

std::shared_ptr<const LinkFrame> FrameQueue::take()
{
    const std::lock_guard lock(mutex_);
    if (frames_.empty())
        return nullptr;
    auto frame = frames_.front();
    frames_.pop_front();
    size_ = frames_.size();
    return frame;
}

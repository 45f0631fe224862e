// SPDX-License-Identifier: GPL-3.0-or-later
#include "framehub.h"

#include <algorithm>

FrameHub::FrameHub(Kind kind, std::function<void()> wanted)
    : kind_(kind)
    , wanted_(std::move(wanted))
{
}

void FrameHub::add(const std::shared_ptr<HubWatcher>& watcher)
{
    const std::lock_guard delivering(watcher->delivering);
    std::vector<std::shared_ptr<const LinkFrame>> group;
    std::uint64_t first = 0;
    {
        const std::lock_guard lock(mutex_);
        list_.push_back(watcher);
        ++watchers_;
        group = group_;
        first = next_ - group.size();
        watcher->next = first;
        if (group.empty())
            keyWish_ = true;
    }
    wanted_();
    for (const auto& frame : group)
        give(*watcher, first++, frame);
}

void FrameHub::remove(const std::shared_ptr<HubWatcher>& watcher)
{
    {
        const std::lock_guard lock(mutex_);
        const auto place = std::find(list_.begin(), list_.end(), watcher);
        if (place != list_.end()) {
            list_.erase(place);
            --watchers_;
        }
    }
    const std::lock_guard delivering(watcher->delivering);
    watcher->gone = true;
}

bool FrameHub::publish(const std::shared_ptr<const LinkFrame>& frame)
{
    std::vector<std::shared_ptr<HubWatcher>> takers;
    std::uint64_t number = 0;
    {
        const std::lock_guard lock(mutex_);
        if (frame->bytes.empty() || frame->bytes.size() > LinkFrame::maxBytes) {
            clearGroup();
            waitingForKey_ = true;
            return false;
        }
        if (kind_ == Kind::Video && !keep(frame))
            return true;
        number = next_++;
        takers = list_;
    }
    for (const auto& taker : takers) {
        const std::lock_guard delivering(taker->delivering);
        give(*taker, number, frame);
    }
    return true;
}

// False for a picture that nobody can decode, since it follows one that is missing.
bool FrameHub::keep(const std::shared_ptr<const LinkFrame>& frame)
{
    if (frame->key) {
        clearGroup();
        waitingForKey_ = false;
    } else if (waitingForKey_) {
        return false;
    } else if (group_.empty()) {
        return true;
    }
    group_.push_back(frame);
    groupBytes_ += frame->bytes.size();
    if (group_.size() > maxGroupFrames || groupBytes_ > maxGroupBytes)
        clearGroup();
    return true;
}

void FrameHub::clearGroup()
{
    group_.clear();
    groupBytes_ = 0;
}

void FrameHub::reset()
{
    const std::lock_guard lock(mutex_);
    clearGroup();
    waitingForKey_ = true;
}

bool FrameHub::resetIfUnwatched()
{
    const std::lock_guard lock(mutex_);
    if (!list_.empty())
        return false;
    clearGroup();
    waitingForKey_ = true;
    return true;
}

void FrameHub::give(
    HubWatcher& watcher, std::uint64_t number, const std::shared_ptr<const LinkFrame>& frame) const
{
    if (watcher.gone || number < watcher.next)
        return;
    watcher.next = number + 1;
    if (kind_ == Kind::Audio) {
        watcher.sink->audioFrame(frame);
        return;
    }
    watcher.started = watcher.started || frame->key;
    if (watcher.started)
        watcher.sink->videoFrame(frame);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/device.h"

#include <utility>

// A borrowed Channel* on its way through a task or an event: while it exists, the channel's device
// is not destroyed, even if the registry has retired it. Behaves as the pointer; may be null.
// Made from a plain pointer on the main thread, while the device is in the registry, or anywhere
// while another hold exists; copied, moved and destroyed on any thread.
class ChannelHold
{
public:
    ChannelHold() = default;
    explicit ChannelHold(Channel* channel)
        : channel_(channel)
    {
        if (channel_ != nullptr)
            channel_->device()->retain();
    }
    ChannelHold(const ChannelHold& other)
        : ChannelHold(other.channel_)
    {
    }
    ChannelHold(ChannelHold&& other) noexcept
        : channel_(std::exchange(other.channel_, nullptr))
    {
    }
    ChannelHold& operator=(ChannelHold other) noexcept
    {
        std::swap(channel_, other.channel_);
        return *this;
    }
    ~ChannelHold()
    {
        if (channel_ != nullptr)
            channel_->device()->release();
    }

    operator Channel*() const { return channel_; }
    Channel* operator->() const { return channel_; }

private:
    Channel* channel_ = nullptr;
};

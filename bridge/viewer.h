// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/linkhost.h"
#include "faults.h"
#include "media/feed.h"

#include <atomic>
#include <cstdint>
#include <string_view>

// A client on one AV channel: passes frames of the feed on to its link, and knows what it has
// asked for. It keeps no frame; what a slow client does not take, the link drops.
class Viewer final : public FrameSink
{
public:
    // `faults` must outlive the viewer.
    Viewer(LinkChannelPtr link, Faults& faults)
        : link_(std::move(link))
        , faults_(faults)
    {
    }

    LinkChannel& link() const { return *link_; }
    const LinkChannelPtr& linkPtr() const { return link_; }
    int channel() const { return link_->number(); }

    void videoFrame(const std::shared_ptr<const LinkFrame>& frame) override;
    void audioFrame(const std::shared_ptr<const LinkFrame>& frame) override;

    // One message, with the faults that are asked for. Any thread.
    void answer(std::uint32_t type, std::string bytes);

    // Written by the event thread, read by any.
    std::atomic<bool> watching{false};
    std::atomic<bool> listening{false};

    unsigned refusals = 0; // messages refused so far; event thread only

private:
    const LinkChannelPtr link_;
    Faults& faults_;
    std::atomic<unsigned> pictures_{0};
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framehub.h"
#include "framequeue.h"
#include "reencoder.h"
#include "worker.h"

// The pictures of another hub made small: 640 wide at 512 kb/s, H.264, while somebody watches.
class LowQuality
{
public:
    // `full` must outlive this.
    explicit LowQuality(FrameHub& full);
    LowQuality(const LowQuality&) = delete;
    LowQuality& operator=(const LowQuality&) = delete;

    FrameHub& hub() { return hub_; }

private:
    void run();
    void convertWhileWatched(FrameQueue& queue);
    void convert(const LinkFrame& frame, bool encode);
    bool prepare(const LinkFrame& frame);

    FrameHub& full_;
    FrameHub hub_;
    // worker's thread only
    PacketPtr packet_;
    std::unique_ptr<Reencoder> reencoder_;
    int codec_ = 0; // that the reencoder decodes, as frames name it

    Worker worker_;
};

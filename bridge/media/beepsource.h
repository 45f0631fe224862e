// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framehub.h"
#include "worker.h"

// The sound of a test picture: a short tone at the begin of each second of the wall clock, made
// while somebody listens.
class BeepSource
{
public:
    BeepSource();

    FrameHub& hub() { return hub_; }

private:
    void run();
    void beepWhileWatched();

    FrameHub hub_;
    Worker worker_;
};

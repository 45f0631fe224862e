// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framehub.h"

// What a channel shows comes from one or two sources. A source makes frames on threads of its own
// while its hubs are watched, or always; destroying it ends the threads. The hubs live as long.
class Source
{
public:
    Source() = default;
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;
    virtual ~Source() = default;

    virtual FrameHub& video() = 0;
    virtual FrameHub& audio() = 0;
    // The same pictures made small.
    virtual FrameHub& lowVideo() = 0;
};

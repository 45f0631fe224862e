// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/feed.h"

#include <cstddef>
#include <cstdint>

// Whether a frame in Annex B form has the parameter sets that a decoder needs to start (H.264:
// sequence and picture; H.265: video, too) before its first slice. Pure: any bytes will do.
bool startsWithParameterSets(const std::uint8_t* bytes, std::size_t size, VideoCodec codec);

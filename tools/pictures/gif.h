// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

#include <vector>

// An endless GIF of frames of one size. A pixel that is less than half opaque is transparent,
// any other is opaque in its own colour. Throws std::runtime_error when giflib fails.
QByteArray encodeGif(const std::vector<QImage>& frames, int frameMs);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "manifest.h"

#include <QImage>

#include <vector>

// The picture in `scale` times its size. Throws Problem, as loadSvg does.
QImage render(const Picture& picture, int scale);

// The frames of one turn, the first as drawn.
std::vector<QImage> render(const Animation& animation);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cairo.h"
#include "testpicture.h"

#include <string>

// The texts at the foot of a test picture, and the flash of each second.
struct Caption
{
    std::string clock;
    std::string place;
    std::string position;
    std::string state;
    std::string frame;
    bool flash = false;
};

Caption makeCaption(
    const SceneState& state, const PictureMoment& moment, int channel, const char* scene);
void drawCaption(cairo_t* cairo, int width, int height, const Caption& caption);

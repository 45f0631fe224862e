// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clip.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// A picture of 8-bit 4:2:0; colour differences of odd sizes are rounded up. Rows without padding.
struct ClipPicture
{
    ClipPicture(int width, int height);

    std::uint8_t* row(int y) { return luma.data() + std::size_t(width) * std::size_t(y); }

    int width;
    int height;
    std::vector<std::uint8_t> luma;
    std::vector<std::uint8_t> u;
    std::vector<std::uint8_t> v;
};

// What a fixed camera sees: a background of much detail, a few things that move over it, and noise.
// The same size and index always give the same picture.
class ClipScene final
{
public:
    ClipScene(int width, int height);

    // `picture` is of the scene's size.
    void draw(ClipPicture& picture, int index) const;

private:
    void drawThing(ClipPicture& picture, int thing, int index) const;
    void addNoise(ClipPicture& picture, int index) const;

    ClipPicture background_;
    std::vector<std::int8_t> noise_; // longer than a row, so that rows begin at different places
};

void fillPicture(ClipPicture& picture, const ClipColour& colour);

// Over the top sixth: 24 columns by 2 rows of blocks without colour, the first row the bits of
// `value` from the most significant, white 235 and black 16, the second the same bits inverted.
void stampPicture(ClipPicture& picture, std::uint32_t value);

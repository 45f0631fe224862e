// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

struct AVFrame;

// A picture in a channel's YUV buffer: planar 4:2:0, 8 bits a sample. Width times height samples of Y,
// then width/2 times height/2 of U, then as many of V, divisions truncating, every row without
// padding.

// What a buffer holds: a picture of 3840 by 2160.
constexpr std::size_t yuvBufferBytes = 12441600;

struct YuvLayout
{
    int width;
    int height;

    int chromaWidth() const { return width / 2; }
    int chromaHeight() const { return height / 2; }
    std::size_t lumaBytes() const { return std::size_t(width) * std::size_t(height); }
    std::size_t chromaBytes() const
    {
        return std::size_t(chromaWidth()) * std::size_t(chromaHeight());
    }
    std::size_t offsetOfU() const { return lumaBytes(); }
    std::size_t offsetOfV() const { return lumaBytes() + chromaBytes(); }
    bool fitsBuffer() const
    {
        return width > 0 && height > 0 && lumaBytes() + 2 * chromaBytes() <= yuvBufferBytes;
    }
};

enum class PictureCopy {
    Done,
    TooLarge, // for the buffer
    NoPlanes, // not a picture of brightness and colour differences: RGB, palettes
};

// Copies the picture of a decoded frame into a buffer of yuvBufferBytes, which stays as it was where
// that is not possible. 8-bit 4:2:0 is copied row by row. Other depths lose their low bits, other
// forms of 4:x:x the surplus samples, and grey gets neutral colour. Any thread.
PictureCopy copyPicture(const AVFrame& frame, std::uint8_t* buffer);

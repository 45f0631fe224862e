// SPDX-License-Identifier: GPL-3.0-or-later
#include "stamp.h"

#include <cstring>

namespace {

// Rows `top` to `bottom` of one plane, a quarter of whose blocks' edges fall between two samples.
void drawRow(AVFrame& picture, int top, int bottom, std::uint32_t bits)
{
    for (int column = 0; column < stampColumns; ++column) {
        const int left = picture.width * column / stampColumns;
        const int right = picture.width * (column + 1) / stampColumns;
        const bool one = (bits >> (stampColumns - 1 - column) & 1U) != 0;
        for (int y = top; y < bottom; ++y)
            std::memset(picture.data[0] + std::ptrdiff_t{picture.linesize[0]} * y + left,
                one ? 235 : 16, static_cast<std::size_t>(right - left));
    }
}

} // namespace

void drawStamp(AVFrame& picture, std::uint32_t value)
{
    const int height = picture.height / 6;
    drawRow(picture, 0, height / 2, value);
    drawRow(picture, height / 2, height, ~value);
    for (const int plane : {1, 2})
        for (int y = 0; y < (height + 1) / 2; ++y)
            std::memset(picture.data[plane] + std::ptrdiff_t{picture.linesize[plane]} * y, 128,
                static_cast<std::size_t>((picture.width + 1) / 2));
}

std::uint32_t timeStampValue(std::chrono::steady_clock::time_point time)
{
    using namespace std::chrono;
    const auto passed = duration_cast<milliseconds>(time.time_since_epoch());
    return static_cast<std::uint32_t>(passed.count()) & 0xffffffU;
}

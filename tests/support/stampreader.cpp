// SPDX-License-Identifier: GPL-3.0-or-later
#include "stampreader.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int columns = 24;
constexpr int rows = 2;
// Half way between the stamp's two levels, and the width of what is called unclear around it.
constexpr double middle = 125.5;
constexpr double unclear = 40;

struct Span
{
    int begin;
    int end;
};

// The samples in the middle half of block `index` of `count` over `length`: half a sample of
// displacement leaves them within the block.
Span middleHalf(double length, int count, int index)
{
    const double block = length / count;
    const double centre = block * (index + 0.5);
    const int begin = static_cast<int>(std::floor(centre - block / 4));
    return {begin, std::max(begin + 1, static_cast<int>(std::ceil(centre + block / 4)))};
}

double mean(const std::uint8_t* luma, std::ptrdiff_t stride, Span across, Span down)
{
    double sum = 0;
    for (int y = down.begin; y < down.end; ++y)
        for (int x = across.begin; x < across.end; ++x)
            sum += luma[stride * y + x];
    return sum / ((across.end - across.begin) * (down.end - down.begin));
}

} // namespace

std::optional<std::uint32_t> readStamp(
    const std::uint8_t* luma, std::ptrdiff_t stride, int width, int height)
{
    if (luma == nullptr || width < 2 * columns || height < 2 * rows * 6)
        return std::nullopt;
    std::uint32_t value = 0;
    for (int column = 0; column < columns; ++column) {
        const Span across = middleHalf(width, columns, column);
        const double bit = mean(luma, stride, across, middleHalf(height / 6.0, rows, 0)) - middle;
        const double check = mean(luma, stride, across, middleHalf(height / 6.0, rows, 1)) - middle;
        if (std::abs(bit) < unclear || std::abs(check) < unclear || (bit > 0) == (check > 0))
            return std::nullopt;
        value = value << 1 | (bit > 0 ? 1U : 0U);
    }
    return value;
}

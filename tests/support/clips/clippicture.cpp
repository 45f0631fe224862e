// SPDX-License-Identifier: GPL-3.0-or-later
#include "clippicture.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int things = 5;
constexpr int noiseRoom = 4096;

std::uint32_t hash(std::uint32_t a, std::uint32_t b)
{
    std::uint32_t value = a * 0x9e3779b1U ^ b * 0x85ebca77U;
    value = (value ^ value >> 15) * 0x2c1b3c6dU;
    value = (value ^ value >> 12) * 0x297a2d39U;
    return value ^ value >> 15;
}

// 0 to 255, smooth between the points of a lattice of `step` samples.
int smooth(int x, int y, int step)
{
    const auto at = [step](int column, int row) {
        const auto salt = static_cast<std::uint32_t>(step) << 24;
        return static_cast<int>(
            hash(static_cast<std::uint32_t>(column) | salt, static_cast<std::uint32_t>(row))
            & 255U);
    };
    const int column = x / step;
    const int row = y / step;
    const int across = x % step;
    const int down = y % step;
    const int above = at(column, row) * (step - across) + at(column + 1, row) * across;
    const int below = at(column, row + 1) * (step - across) + at(column + 1, row + 1) * across;
    return (above * (step - down) + below * down) / (step * step);
}

std::uint8_t brightness(int x, int y)
{
    const int coarse = smooth(x, y, 64);
    const int middle = smooth(x, y, 16);
    const int fine = smooth(x, y, 3);
    return static_cast<std::uint8_t>(30 + (coarse * 4 + middle * 2 + fine) / 10);
}

std::uint8_t tint(int x, int y, int step)
{
    return static_cast<std::uint8_t>(128 + (smooth(x, y, step) - 128) / 4);
}

// Back and forth over 0 to `range`, `speed` samples at a time.
int toAndFro(int time, int speed, int range)
{
    return range <= 0 ? 0 : std::abs((time * speed) % (2 * range) - range);
}

struct Block
{
    int left;
    int top;
    int right;
    int bottom;
};

void fillBlock(ClipPicture& picture, const Block& block, std::uint8_t value)
{
    for (int y = block.top; y < block.bottom; ++y)
        std::fill(picture.row(y) + block.left, picture.row(y) + block.right, value);
}

void stampRow(ClipPicture& picture, int top, int bottom, std::uint32_t bits)
{
    constexpr int columns = 24;
    for (int column = 0; column < columns; ++column) {
        const int left = picture.width * column / columns;
        const int right = picture.width * (column + 1) / columns;
        const bool one = (bits >> (columns - 1 - column) & 1U) != 0;
        fillBlock(picture, {left, top, right, bottom}, one ? 235 : 16);
    }
}

std::size_t area(int width, int height)
{
    return std::size_t(width) * std::size_t(height);
}

} // namespace

ClipPicture::ClipPicture(int width, int height)
    : width(width)
    , height(height)
    , luma(area(width, height))
    , u(area((width + 1) / 2, (height + 1) / 2), 128)
    , v(u)
{
}

ClipScene::ClipScene(int width, int height)
    : background_(width, height)
    , noise_(static_cast<std::size_t>(width + noiseRoom))
{
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            background_.row(y)[x] = brightness(x, y);
    const int chromaWidth = (width + 1) / 2;
    for (int y = 0; y < (height + 1) / 2; ++y) {
        for (int x = 0; x < chromaWidth; ++x) {
            const std::size_t at = area(chromaWidth, y) + std::size_t(x);
            background_.u[at] = tint(x, y, 40);
            background_.v[at] = tint(x, y, 56);
        }
    }
    for (std::size_t i = 0; i < noise_.size(); ++i)
        noise_[i] = static_cast<std::int8_t>(
            static_cast<int>(hash(static_cast<std::uint32_t>(i), 77) % 7) - 3);
}

void ClipScene::draw(ClipPicture& picture, int index) const
{
    picture = background_;
    for (int thing = 0; thing < things; ++thing)
        drawThing(picture, thing, index);
    addNoise(picture, index);
}

// A piece of the background, negative, so that it has detail of its own.
void ClipScene::drawThing(ClipPicture& picture, int thing, int index) const
{
    const int width = picture.width / 8;
    const int height = picture.height / 6;
    const int time = index + 37 * thing;
    const int left = toAndFro(time, 1 + picture.width / (160 + 60 * thing), picture.width - width);
    const int top =
        toAndFro(time, 1 + picture.height / (200 + 50 * thing), picture.height - height);
    for (int y = 0; y < height; ++y) {
        const auto source =
            background_.luma.begin() + static_cast<std::ptrdiff_t>(area(picture.width, y));
        std::transform(source, source + width, picture.row(top + y) + left,
            [](std::uint8_t value) { return static_cast<std::uint8_t>(250 - value); });
    }
}

void ClipScene::addNoise(ClipPicture& picture, int index) const
{
    for (int y = 0; y < picture.height; ++y) {
        const std::uint32_t begin =
            hash(static_cast<std::uint32_t>(index), static_cast<std::uint32_t>(y)) % noiseRoom;
        std::uint8_t* row = picture.row(y);
        std::transform(row, row + picture.width, noise_.begin() + begin, row,
            [](std::uint8_t value, std::int8_t noise) {
                return static_cast<std::uint8_t>(value + noise);
            });
    }
}

void fillPicture(ClipPicture& picture, const ClipColour& colour)
{
    std::fill(picture.luma.begin(), picture.luma.end(), colour.y);
    std::fill(picture.u.begin(), picture.u.end(), colour.u);
    std::fill(picture.v.begin(), picture.v.end(), colour.v);
}

void stampPicture(ClipPicture& picture, std::uint32_t value)
{
    const int height = picture.height / 6;
    stampRow(picture, 0, height / 2, value);
    stampRow(picture, height / 2, height, ~value);
    const std::size_t without = area((picture.width + 1) / 2, (height + 1) / 2);
    std::fill_n(picture.u.begin(), without, std::uint8_t{128});
    std::fill_n(picture.v.begin(), without, std::uint8_t{128});
}

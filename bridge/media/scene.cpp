// SPDX-License-Identifier: GPL-3.0-or-later
#include "scene.h"

#include <algorithm>

namespace {

constexpr std::array<Colour, 4> townWalls{
    rgb(0xd9cfc0), rgb(0xb98d76), rgb(0xc9ced3), rgb(0xe2d6b5)};
constexpr std::array<Colour, 4> coolWalls{
    rgb(0xc8cdd4), rgb(0x9fadb8), rgb(0xb0a294), rgb(0xd8d6cf)};
constexpr std::array<Colour, 4> brickWalls{
    rgb(0xa9705a), rgb(0xd8cbb8), rgb(0x8f9aa3), rgb(0xc08e66)};
constexpr std::array<Colour, 5> brightPaint{
    rgb(0xc8504b), rgb(0xe6e8ea), rgb(0x3f6ea8), rgb(0x57606b), rgb(0x4f8a72)};
constexpr std::array<Colour, 5> calmPaint{
    rgb(0x4a7bb5), rgb(0xdadde0), rgb(0x8a3f42), rgb(0x2f3a46), rgb(0xd2a548)};

Look day()
{
    Look look;
    look.skyTop = rgb(0x7fb0dc);
    look.skyBottom = rgb(0xdbe8f0);
    look.cloudiness = 0.85;
    look.asphalt = rgb(0x8d9198);
    look.pavement = rgb(0xc7c3ba);
    look.lawn = rgb(0x8fae72);
    look.leaves = rgb(0x6f9f58);
    look.walls = townWalls;
    look.paint = brightPaint;
    look.light = {
        unit({-0.55, -0.45, 0.8}), {0.52, 0.49, 0.42}, {0.58, 0.6, 0.65}, rgb(0xd6e3ec), 210, 0.3};
    return look;
}

Look evening()
{
    Look look = day();
    look.skyTop = rgb(0x4d6491);
    look.skyBottom = rgb(0xf4b98a);
    look.cloudiness = 0.4;
    look.lamps = 1;
    look.walls = brickWalls;
    look.paint = calmPaint;
    look.light = {
        unit({0.75, 0.3, 0.4}), {0.42, 0.26, 0.14}, {0.44, 0.43, 0.54}, rgb(0xd9a98f), 170, 0.3};
    return look;
}

Look overcast()
{
    Look look = day();
    look.skyTop = rgb(0xaeb9c4);
    look.skyBottom = rgb(0xe4e8ea);
    look.cloudiness = 0.6;
    look.walls = coolWalls;
    look.paint = calmPaint;
    look.leaves = rgb(0x7c9464);
    look.light = {
        unit({-0.2, -0.4, 0.9}), {0.2, 0.2, 0.2}, {0.76, 0.78, 0.8}, rgb(0xd9dee2), 110, 0.16};
    return look;
}

Look autumn()
{
    Look look = day();
    look.skyTop = rgb(0x8fb6d6);
    look.skyBottom = rgb(0xf3e6cf);
    look.leaves = rgb(0xc98f45);
    look.lawn = rgb(0xa9a868);
    look.walls = brickWalls;
    look.light.sun = unit({0.6, -0.5, 0.6});
    look.light.direct = {0.58, 0.48, 0.34};
    look.light.haze = rgb(0xeadfcd);
    return look;
}

Look night()
{
    Look look = day();
    look.skyTop = rgb(0x10192b);
    look.skyBottom = rgb(0x33466a);
    look.cloudiness = 0.1;
    look.lamps = 1;
    look.walls = coolWalls;
    look.light = {
        unit({-0.3, -0.5, 0.8}), {0.08, 0.1, 0.15}, {0.3, 0.34, 0.44}, rgb(0x2c3c5a), 140, 0.35};
    return look;
}

} // namespace

Look makeLook(int variant)
{
    switch (static_cast<unsigned>(variant) % 5) {
    case 0:
        return day();
    case 1:
        return evening();
    case 2:
        return overcast();
    case 3:
        return autumn();
    default:
        return night();
    }
}

std::unique_ptr<Scene> makeScene(int kind, int variant)
{
    switch (kind) {
    case 0:
        return makeStreet(variant);
    case 1:
        return makeGate(variant);
    case 2:
        return makeYard(variant);
    default:
        return makeCorridor(variant);
    }
}

double phase(double seconds, double period, double offset)
{
    const double turns = seconds / period + offset;
    return turns - std::floor(turns);
}

double ease(double x, double from, double to)
{
    const double share = std::clamp((x - from) / (to - from), 0.0, 1.0);
    return share * share * (3 - 2 * share);
}

double scatter(int a, int b)
{
    const double wave = std::sin(a * 12.9898 + b * 78.233) * 43758.5453;
    return wave - std::floor(wave);
}

std::vector<double> places(double from, double end, double step)
{
    const double count = std::max(0.0, std::ceil((end - from) / step));
    std::vector<double> all(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = from + static_cast<double>(i) * step;
    return all;
}

Clothes makeClothes(const Look& look, int number)
{
    constexpr std::array<Colour, 4> trousers{
        rgb(0x35404d), rgb(0x5b5148), rgb(0x2b3140), rgb(0x6b7178)};
    const auto at = static_cast<std::size_t>(number);
    return {look.paint[at % look.paint.size()], trousers[(at * 3 + 1) % trousers.size()]};
}

void drawWindows(Painter& painter, Vec3 left, Vec3 right, double height, int floors, int columns,
    const Look& look, int seed)
{
    const Vec3 step = (right - left) * (1.0 / columns);
    const double storey = height / floors;
    for (int floor = 0; floor < floors; ++floor) {
        for (int column = 0; column < columns; ++column) {
            const Vec3 a = left + step * (column + 0.26) + Vec3{0, 0, storey * (floor + 0.32)};
            const Vec3 b = a + step * 0.48;
            const Vec3 up{0, 0, storey * 0.46};
            const bool on = look.lamps > 0 && scatter(seed + floor * 31, column) > 0.55;
            if (on)
                painter.glow({a, b, b + up, a + up},
                    mix(rgb(0xffd9a0), rgb(0xf4b36a), scatter(column, seed)));
            else
                painter.face({a, b, b + up, a + up}, mix(rgb(0x4c5c6d), look.skyBottom, 0.22));
            painter.face({a, b, b + up * 0.06, a + up * 0.06}, rgb(0xe9e6df));
        }
    }
}

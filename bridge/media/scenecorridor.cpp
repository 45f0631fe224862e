// SPDX-License-Identifier: GPL-3.0-or-later
#include "scene.h"

#include <algorithm>

// A corridor in an office: doors, ceiling lamps, people who come and go, a small cleaning robot.

namespace {

constexpr double half = 1.9; // metres from the middle to a wall
constexpr double ceiling = 2.9;
constexpr double depth = 34;

struct Interior
{
    Colour wall;
    Colour band; // the lower part of the wall
    Colour floor;
    Colour door;
};

Interior makeInterior(int variant)
{
    constexpr std::array<Interior, 4> all{{
        {rgb(0xe4e0d8), rgb(0x8b9db3), rgb(0xb9b6ae), rgb(0xa27650)},
        {rgb(0xdfe4e6), rgb(0x7fa097), rgb(0xa9b0b3), rgb(0xc2a173)},
        {rgb(0xeae2d0), rgb(0xb98f73), rgb(0xb3a48f), rgb(0x6f7f93)},
        {rgb(0xd9dbe3), rgb(0x7d86a8), rgb(0x9da1aa), rgb(0x8c5f4c)},
    }};
    return all[static_cast<std::size_t>(variant) % all.size()];
}

class Corridor final : public Scene
{
public:
    explicit Corridor(int variant)
        : look_(makeLook(0))
        , inside_(makeInterior(variant))
        , seed_(variant)
    {
        look_.light = {unit({-0.25, -0.4, 0.88}), {0.2, 0.2, 0.19}, {0.92, 0.92, 0.92},
            rgb(0xe9edf0), 95, 0.22};
    }

    const char* name() const override { return "Corridor"; }
    const Light& light() const override { return look_.light; }
    Camera home() const override { return {{-0.95, -0.6, 2.45}, 0.085, -0.135, 0.86}; }
    void drawStill(Painter& painter, double seconds) const override;
    void drawMoving(Painter& painter, double seconds) const override;

private:
    void drawShell(Painter& painter) const;
    void drawLamps(Painter& painter) const;
    void drawEnd(Painter& painter) const;
    void drawDoor(Painter& painter, double x, double y, double open) const;
    void drawRobot(Painter& painter, double seconds) const;

    Look look_;
    const Interior inside_;
    const int seed_;
};

void Corridor::drawStill(Painter& painter, double) const
{
    cairo_set_source_rgb(painter.cairo(), 0.82, 0.83, 0.84);
    cairo_paint(painter.cairo());
    drawEnd(painter);
    drawShell(painter);
    drawLamps(painter);
    for (int i = 4; i >= 0; --i) {
        drawDoor(painter, -half, 5.5 + i * 6.0, 0);
        if (i != 1)
            drawDoor(painter, half, 3.0 + i * 6.0, 0);
    }
}

void Corridor::drawShell(Painter& painter) const
{
    for (const double y : places(-1, depth, 2.5)) {
        const double to = std::min(depth, y + 2.5);
        painter.face({{-half, y, 0}, {half, y, 0}, {half, to, 0}, {-half, to, 0}}, inside_.floor);
        painter.face(
            {{-half, y, ceiling}, {half, y, ceiling}, {half, to, ceiling}, {-half, to, ceiling}},
            rgb(0xf2f1ee));
        for (const double x : {-half, half}) {
            painter.face(
                {{x, y, 1.05}, {x, to, 1.05}, {x, to, ceiling}, {x, y, ceiling}}, inside_.wall);
            painter.face({{x, y, 0.1}, {x, to, 0.1}, {x, to, 1.05}, {x, y, 1.05}}, inside_.band);
            painter.face({{x, y, 0}, {x, to, 0}, {x, to, 0.1}, {x, y, 0.1}}, inside_.band * 0.6);
        }
    }
    for (const double y : places(-1, depth, 1.25))
        painter.glow({{-half, y, 0}, {half, y, 0}, {half, y + 0.02, 0}, {-half, y + 0.02, 0}},
            inside_.floor * 0.75, 0.5);
    for (const double x : {-0.63, 0.63})
        painter.glow({{x, -1, 0}, {x + 0.02, -1, 0}, {x + 0.02, depth, 0}, {x, depth, 0}},
            inside_.floor * 0.75, 0.5);
}

void Corridor::drawLamps(Painter& painter) const
{
    for (const double y : places(2.5, depth - 1, 4.5)) {
        painter.glow({{-0.7, y, ceiling - 0.01}, {0.7, y, ceiling - 0.01},
                         {0.7, y + 1.3, ceiling - 0.01}, {-0.7, y + 1.3, ceiling - 0.01}},
            rgb(0xffffff));
        painter.halo({0, y + 0.6, ceiling}, 1.7, rgb(0xffffff), 0.35);
        // Its mirror image in the polished floor.
        painter.glow({{-0.6, y + 0.2, 0}, {0.6, y + 0.2, 0}, {0.6, y + 1.6, 0}, {-0.6, y + 1.6, 0}},
            rgb(0xffffff), 0.13);
        painter.halo({0, y + 0.9, 0}, 1.5, rgb(0xffffff), 0.14);
    }
}

void Corridor::drawEnd(Painter& painter) const
{
    painter.face(
        {{-half, depth, 0}, {half, depth, 0}, {half, depth, ceiling}, {-half, depth, ceiling}},
        inside_.wall * 1.02);
    painter.glow({{-0.95, depth - 0.05, 0}, {0.95, depth - 0.05, 0}, {0.95, depth - 0.05, 2.15},
                     {-0.95, depth - 0.05, 2.15}},
        rgb(0xd5e8f5));
    for (const double x : {-0.97, -0.03, 0.9})
        painter.face({{x, depth - 0.06, 0}, {x + 0.08, depth - 0.06, 0},
                         {x + 0.08, depth - 0.06, 2.15}, {x, depth - 0.06, 2.15}},
            rgb(0x566270));
    painter.glow({{-0.5, depth - 1, 2.45}, {0.5, depth - 1, 2.45}, {0.5, depth - 1, 2.75},
                     {-0.5, depth - 1, 2.75}},
        rgb(0x2fae72));
}

// `open` swings the leaf into the room behind, which shows lit.
void Corridor::drawDoor(Painter& painter, double x, double y, double open) const
{
    const double in = x < 0 ? 0.02 : -0.02;
    const auto panel = [&](double y0, double y1, double z0, double z1, double out) {
        return Polygon{{x + in * out, y0, z0}, {x + in * out, y1, z0}, {x + in * out, y1, z1},
            {x + in * out, y0, z1}};
    };
    painter.face(panel(y - 0.1, y + 1.1, 0, 2.22, 1), rgb(0xf1efea));
    if (open > 0.01) {
        painter.glow(panel(y, y + 1, 0, 2.12, 1.5), rgb(0xfff0cf));
        const double shut = 1 - open * 0.85;
        painter.face(panel(y, y + shut, 0, 2.12, 2), inside_.door * 0.9);
        return;
    }
    painter.face(panel(y, y + 1, 0, 2.12, 2), inside_.door);
    painter.face(panel(y + 0.12, y + 0.2, 0.98, 1.04, 3), rgb(0xd9dcde));
    painter.face(panel(y + 1.25, y + 1.55, 1.5, 1.66, 2), rgb(0xf7f8f8));
}

void Corridor::drawMoving(Painter& painter, double seconds) const
{
    const double swing = phase(seconds, 16);
    drawDoor(painter, half, 9, ease(swing, 0.1, 0.2) - ease(swing, 0.45, 0.55));
    for (int i = 0; i < 3; ++i) {
        const double length = 30;
        const double way = std::fmod(seconds * (1.1 + 0.15 * i) + 21.0 * i + seed_ * 5, 2 * length);
        const bool away = way < length;
        const double x = -0.75 + 0.75 * i;
        const Pose pose{{away ? x + 0.2 : x, away ? 2.2 + way : 2.2 + 2 * length - way, 0},
            away ? M_PI / 2 : -M_PI / 2};
        painter.later(pose.at, [this, &painter, pose, i, way] {
            drawPerson(painter, pose, makeClothes(look_, i * 2 + seed_), way);
        });
    }
    painter.later({1.5, 6.4, 0}, [this, &painter] {
        painter.box({}, {1.3, 6.2, 0}, {1.75, 6.65, 0.5}, rgb(0x59616b));
        drawBush(painter, {1.52, 6.4, 0.45}, 0.36, look_.leaves);
    });
    const Vec3 bench{-1.6, 13, 0};
    painter.later(bench, [&painter] {
        painter.box({}, {-1.85, 12.4, 0.4}, {-1.35, 14.2, 0.48}, rgb(0x8d6b4c));
        for (const double y : {12.6, 13.9})
            painter.box({}, {-1.8, y, 0}, {-1.4, y + 0.08, 0.4}, rgb(0x4b535c));
    });
    drawRobot(painter, seconds);
    painter.finish();
}

void Corridor::drawRobot(Painter& painter, double seconds) const
{
    const double way = std::abs(2 * phase(seconds, 40, 0.3) - 1);
    const Vec3 at{1.1 + 0.2 * std::sin(seconds * 0.5), 3.6 + 15 * way, 0};
    painter.later(at, [&painter, at, seconds] {
        const Pose pose{at, std::sin(seconds * 0.5) * 0.4 + M_PI / 2};
        painter.box(pose, {-0.3, -0.26, 0.03}, {0.3, 0.26, 0.3}, rgb(0xe8ebee));
        painter.box(pose, {-0.2, -0.16, 0.3}, {0.2, 0.16, 0.38}, rgb(0x3f6ea8));
        painter.halo(at + Vec3{0, 0, 0.44}, 0.3, rgb(0x6fd0ff), 0.4 + 0.4 * std::sin(seconds * 4));
    });
}

} // namespace

std::unique_ptr<Scene> makeCorridor(int variant)
{
    return std::make_unique<Corridor>(variant);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "scene.h"

#include <algorithm>

// The drive of a house with a wall and a sliding gate, which lets a car in and another one out.

namespace {

constexpr double wallY = 17;
constexpr double gateHalf = 3.4;
constexpr double cycleSeconds = 28;

// Where everything is at one moment of the cycle.
struct GateMoment
{
    double open; // 0 to 1
    bool moving;
    double in; // the car's way in, metres; outside its range it is not there
    double out;
};

GateMoment momentAt(double seconds)
{
    const double t = cycleSeconds * phase(seconds, cycleSeconds);
    const double open =
        std::max(ease(t, 1, 4) - ease(t, 10, 13), ease(t, 15, 18) - ease(t, 24, 27));
    return {open, open > 0.001 && open < 0.999, (t - 3.4) * 8.5 - 8, 46 - (t - 17) * 8.5};
}

class Gate final : public Scene
{
public:
    explicit Gate(int variant)
        : look_(makeLook(variant))
        , seed_(variant * 5)
    {
    }

    const char* name() const override { return "Gate"; }
    const Light& light() const override { return look_.light; }
    Camera home() const override { return {{-2.6, -2, 5}, 0.14, -0.185, 1.08}; }
    void drawStill(Painter& painter, double seconds) const override;
    void drawMoving(Painter& painter, double seconds) const override;

private:
    void drawHouse(Painter& painter) const;
    void drawDrive(Painter& painter) const;
    void drawWall(Painter& painter, double from, double to) const;
    void drawBars(Painter& painter, double open) const;
    void drawPosts(Painter& painter, double seconds, bool moving) const;
    void drawBooth(Painter& painter) const;
    void laterCar(Painter& painter, double y, bool away, int number) const;

    const Look look_;
    const int seed_;
};

void Gate::drawStill(Painter& painter, double seconds) const
{
    drawSky(painter, look_.skyTop, look_.skyBottom, seconds, look_.cloudiness);
    drawGround(painter, -400, -6, 400, 300, look_.lawn);
    drawDrive(painter);
    for (int i = 0; i < 9; ++i) {
        const Vec3 at{-34 + i * 8.6 + 2 * scatter(i, seed_), 58 + 10 * scatter(i, 2), 0};
        painter.later(at, [this, &painter, at, i] {
            drawTree(painter, at, 8 + 3 * scatter(i, seed_ + 1), look_.leaves * 0.88, i);
        });
    }
    painter.finish();
    drawHouse(painter);
    for (int i = 0; i < 5; ++i)
        drawBush(painter, {4.6 + i * 2.3, 36, 0}, 1.0, look_.leaves);
}

void Gate::drawHouse(Painter& painter) const
{
    const Colour wall = look_.walls[(seed_ + 3) % look_.walls.size()];
    painter.box({}, {-21, 38, 0}, {-5, 50, 6.2}, wall);
    drawWindows(painter, {-21, 37.95, 0.2}, {-5, 37.95, 0.2}, 6, 2, 6, look_, seed_);
    const Colour tiles = rgb(0x9b5f4a);
    painter.face({{-21.8, 37.4, 6.1}, {-4.2, 37.4, 6.1}, {-6, 44, 9.4}, {-20, 44, 9.4}}, tiles);
    painter.face({{-4.2, 37.4, 6.1}, {-4.2, 50.6, 6.1}, {-6, 44, 9.4}}, tiles * 0.85);
    painter.box({}, {-12, 42, 8}, {-11, 43, 10.6}, rgb(0x8a6a5c));
    painter.box({}, {6, 42, 0}, {15, 50, 3.3}, wall * 0.94);
    painter.box({}, {5.6, 41.6, 3.3}, {15.4, 50.4, 3.7}, rgb(0x5f6670));
    for (const double x : {6.8, 11.0})
        painter.face({{x, 41.95, 0}, {x + 3.3, 41.95, 0}, {x + 3.3, 41.95, 2.5}, {x, 41.95, 2.5}},
            rgb(0xd7d9da));
}

void Gate::drawDrive(Painter& painter) const
{
    drawGround(painter, -60, -6, 60, 9, look_.asphalt);
    drawGround(painter, -60, 9, 60, 12.4, look_.pavement);
    drawGround(painter, -60, 8.85, 60, 9.1, rgb(0xdedbd3));
    drawGround(
        painter, -gateHalf + 0.2, 9, gateHalf - 0.2, 41, mix(look_.pavement, look_.asphalt, 0.45));
    for (const double y : places(10, 40, 1.5))
        painter.glow({{-gateHalf + 0.2, y, 0}, {gateHalf - 0.2, y, 0},
                         {gateHalf - 0.2, y + 0.06, 0}, {-gateHalf + 0.2, y + 0.06, 0}},
            look_.asphalt * 0.7, 0.5);
    for (const double x : places(-58, 58, 4))
        painter.glow({{x, 3.2, 0}, {x + 2, 3.2, 0}, {x + 2, 3.35, 0}, {x, 3.35, 0}}, rgb(0xe8ebec),
            look_.lamps > 0 ? 0.4 : 0.8);
}

void Gate::drawMoving(Painter& painter, double seconds) const
{
    const GateMoment now = momentAt(seconds);
    for (const bool beyond : {true, false}) {
        if (now.in > -9 && now.in < 38 && (now.in > wallY) == beyond)
            laterCar(painter, now.in, true, 0);
        if (now.out < 47 && now.out > -9 && (now.out > wallY) == beyond)
            laterCar(painter, now.out, false, 2);
        if (!beyond)
            break;
        painter.finish();
        drawWall(painter, -40, -gateHalf);
        drawWall(painter, gateHalf, 40);
        drawBars(painter, now.open);
        drawPosts(painter, seconds, now.moving);
    }
    for (int i = 0; i < 3; ++i) {
        const bool right = i != 1;
        const double way = std::fmod(seconds * (1.2 + 0.2 * i) + 17.0 * i, 44);
        const Pose pose{{right ? way - 22 : 22 - way, 10.2 + 0.7 * i, 0}, right ? 0 : M_PI};
        painter.later(pose.at, [this, &painter, pose, i, way] {
            drawPerson(painter, pose, makeClothes(look_, i + seed_ + 1), way);
        });
    }
    painter.later({9, 13.4, 0}, [this, &painter] { drawBooth(painter); });
    painter.later({-6, 14, 0}, [this, &painter, seconds] {
        drawTree(painter, {-9.4, 14.2, 0}, 5.6, look_.leaves, seconds);
    });
    painter.finish();
}

void Gate::laterCar(Painter& painter, double y, bool away, int number) const
{
    const Pose pose{{away ? 0.9 : -0.9, y, 0}, away ? M_PI / 2 : -M_PI / 2};
    const Colour colour = look_.paint[(number + seed_) % look_.paint.size()];
    painter.later(
        pose.at, [this, &painter, pose, colour] { drawCar(painter, pose, colour, look_.lamps); });
}

void Gate::drawWall(Painter& painter, double from, double to) const
{
    const Colour brick = look_.walls[(seed_ + 1) % look_.walls.size()];
    painter.box({}, {from, wallY, 0}, {to, wallY + 0.35, 2.1}, brick);
    for (int row = 1; row < 7; ++row)
        painter.glow(
            {{from, wallY - 0.01, row * 0.3}, {to, wallY - 0.01, row * 0.3},
                {to, wallY - 0.01, row * 0.3 + 0.035}, {from, wallY - 0.01, row * 0.3 + 0.035}},
            brick * 0.72, 0.4);
    painter.box(
        {}, {from - 0.05, wallY - 0.1, 2.1}, {to + 0.05, wallY + 0.45, 2.28}, rgb(0xd6d3cb));
}

void Gate::drawBars(Painter& painter, double open) const
{
    const double shift = open * (2 * gateHalf - 0.3);
    const Colour iron = rgb(0x46515e);
    const double y = wallY - 0.25;
    const double left = -gateHalf + shift;
    const double right = gateHalf + shift;
    for (const double x : places(left + 0.15, right, 0.34))
        painter.rod({x, y, 0.25}, {x, y, 1.95}, 0.06, iron);
    for (const double z : {0.25, 1.15, 1.95})
        painter.rod({left, y, z}, {right, y, z}, 0.11, iron);
    painter.rod({left + 0.05, y, 0.15}, {left + 0.05, y, 2.05}, 0.13, iron);
}

void Gate::drawPosts(Painter& painter, double seconds, bool moving) const
{
    for (const double x : {-gateHalf - 0.4, gateHalf + 0.4}) {
        painter.box({}, {x - 0.4, wallY - 0.55, 0}, {x + 0.4, wallY + 0.45, 2.6}, rgb(0xcfc8bb));
        painter.box({}, {x - 0.5, wallY - 0.65, 2.6}, {x + 0.5, wallY + 0.55, 2.8}, rgb(0xe3dfd6));
        const Vec3 lamp{x, wallY, 3.05};
        painter.ball(lamp, 0.24, mix(rgb(0xe9e4d8), rgb(0xffffff), look_.lamps));
        if (look_.lamps > 0)
            painter.halo(lamp, 2.4, rgb(0xffdfa0), 0.7);
    }
    const Vec3 beacon{gateHalf + 0.4, wallY - 0.6, 2.35};
    const bool flash = moving && phase(seconds, 0.8) < 0.5;
    painter.ball(beacon, 0.14, flash ? rgb(0xffb43c) : rgb(0x8a6a35));
    if (flash)
        painter.halo(beacon, 1.1, rgb(0xffb43c), 0.8);
}

void Gate::drawBooth(Painter& painter) const
{
    painter.box({}, {7.2, 12.8, 0}, {9.8, 15.2, 1.05}, rgb(0xd9dcdf));
    painter.box({}, {7.25, 12.85, 1.05}, {9.75, 15.15, 2.15},
        look_.lamps > 0 ? rgb(0xffe3b0) : rgb(0x50606f));
    for (const double x : {7.25, 8.5, 9.75})
        painter.rod({x, 12.82, 1.05}, {x, 12.82, 2.15}, 0.1, rgb(0xeceef0));
    painter.box({}, {6.9, 12.4, 2.15}, {10.1, 15.6, 2.4}, rgb(0x3f6ea8));
}

} // namespace

std::unique_ptr<Scene> makeGate(int variant)
{
    return std::make_unique<Gate>(variant);
}

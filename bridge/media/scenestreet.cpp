// SPDX-License-Identifier: GPL-3.0-or-later
#include "scene.h"

// A street in a town: two lanes, a row of parked cars, houses and trees on both sides.

namespace {

constexpr double farEnd = 130;
constexpr double leftKerb = -4.4;
constexpr double rightKerb = 6.6;

class Street final : public Scene
{
public:
    explicit Street(int variant)
        : look_(makeLook(variant))
        , seed_(variant * 7)
    {
    }

    const char* name() const override { return "Street"; }
    const Light& light() const override { return look_.light; }
    Camera home() const override { return {{-6.4, -7, 6.6}, 0.235, -0.235, 1.02}; }
    void drawStill(Painter& painter, double seconds) const override;
    void drawMoving(Painter& painter, double seconds) const override;

private:
    void drawRoad(Painter& painter) const;
    void drawCrossing(Painter& painter) const;
    void drawHouses(Painter& painter, double wall, double back) const;
    void drawTraffic(Painter& painter, double seconds) const;
    void drawWalkers(Painter& painter, double seconds) const;
    void drawTrees(Painter& painter, double seconds) const;
    Colour paint(int number) const { return look_.paint[(number + seed_) % look_.paint.size()]; }

    const Look look_;
    const int seed_;
};

void Street::drawStill(Painter& painter, double seconds) const
{
    drawSky(painter, look_.skyTop, look_.skyBottom, seconds, look_.cloudiness);
    drawGround(painter, -300, -8, 300, farEnd + 200, look_.pavement * 0.96);
    drawRoad(painter);
    drawHouses(painter, -11, -24);
    drawHouses(painter, 11, 26);
    for (int i = 0; i < 7; ++i) {
        if (i == 2)
            continue;
        const Pose pose{{5.5, 12 + i * 7.4 + 1.2 * scatter(i, seed_), 0}, M_PI / 2};
        painter.later(pose.at, [this, &painter, pose, i] {
            if (i % 4 == 3)
                drawVan(painter, pose, paint(i + 1), 0);
            else
                drawCar(painter, pose, paint(i), 0);
        });
    }
    painter.finish();
}

void Street::drawRoad(Painter& painter) const
{
    drawGround(painter, leftKerb, -8, rightKerb, farEnd, look_.asphalt);
    for (const double kerb : {leftKerb, rightKerb}) {
        drawGround(painter, kerb - 0.16, -8, kerb + 0.16, farEnd, rgb(0xdedbd3));
    }
    for (const double y : places(-6, farEnd, 6))
        painter.glow({{-0.08, y, 0}, {0.08, y, 0}, {0.08, y + 3, 0}, {-0.08, y + 3, 0}},
            mix(look_.asphalt, rgb(0xffffff), look_.lamps > 0 ? 0.35 : 0.75));
    drawCrossing(painter);
    for (const double y : places(9, 64, 7.4))
        painter.glow({{4.4, y, 0}, {rightKerb, y, 0}, {rightKerb, y + 0.12, 0}, {4.4, y + 0.12, 0}},
            rgb(0xdfe3e6), 0.6);
}

void Street::drawCrossing(Painter& painter) const
{
    for (const double x : places(leftKerb + 0.5, rightKerb - 0.5, 1.05))
        painter.glow({{x, 24.6, 0}, {x + 0.55, 24.6, 0}, {x + 0.55, 28, 0}, {x, 28, 0}},
            rgb(0xe8ebec), look_.lamps > 0 ? 0.45 : 0.85);
}

void Street::drawHouses(Painter& painter, double wall, double back) const
{
    const int side = wall < 0 ? 0 : 1;
    for (int i = 8; i >= 0; --i) {
        const double y = 4 + i * 15.0;
        const double height = 9 + 6 * scatter(i + 3, side + seed_);
        const Colour colour = look_.walls[(i + side * 2 + seed_) % look_.walls.size()];
        const double low = std::min(wall, back);
        const double high = std::max(wall, back);
        painter.box({{0, 0, 0}, 0}, {low, y, 0}, {high, y + 14.6, height}, colour);
        painter.box({{0, 0, 0}, 0}, {low - 0.3, y - 0.2, height},
            {high + 0.3, y + 14.8, height + 0.4}, colour * 0.8);
        drawWindows(painter, {wall * 0.998, y, 3.2}, {wall * 0.998, y + 14.6, 3.2}, height - 3.4,
            height > 12 ? 3 : 2, 5, look_, i + side * 11 + seed_);
        for (int shop = 0; shop < 3; ++shop) {
            const double from = y + 0.8 + shop * 4.7;
            const Polygon window{{wall * 0.997, from, 0.4}, {wall * 0.997, from + 3.6, 0.4},
                {wall * 0.997, from + 3.6, 2.6}, {wall * 0.997, from, 2.6}};
            if (look_.lamps > 0 && scatter(i + shop, side + 5) > 0.35)
                painter.glow(window, rgb(0xffdfae));
            else
                painter.face(window, rgb(0x556474));
            const double out = wall < 0 ? 1.1 : -1.1;
            painter.face({{wall, from - 0.1, 3.1}, {wall, from + 3.7, 3.1},
                             {wall + out, from + 3.7, 2.7}, {wall + out, from - 0.1, 2.7}},
                paint(i + shop + side));
        }
    }
}

void Street::drawMoving(Painter& painter, double seconds) const
{
    drawTraffic(painter, seconds);
    drawWalkers(painter, seconds);
    drawTrees(painter, seconds);
    painter.finish();
}

void Street::drawTraffic(Painter& painter, double seconds) const
{
    constexpr int count = 4;
    for (int i = 0; i < 2 * count; ++i) {
        const bool away = i < count;
        const double offset = (i % count + 0.3 * scatter(i, seed_)) / count;
        const double way = 150 * phase(seconds, away ? 17 : 15, offset);
        const Pose pose{
            {away ? 2.2 : -2.2, away ? way - 14 : 136 - way, 0}, away ? M_PI / 2 : -M_PI / 2};
        painter.later(pose.at, [this, &painter, pose, i] {
            if (i % count == 2)
                drawVan(painter, pose, paint(i + 3), look_.lamps);
            else
                drawCar(painter, pose, paint(i * 2 + 1), look_.lamps);
        });
    }
}

void Street::drawWalkers(Painter& painter, double seconds) const
{
    for (int i = 0; i < 6; ++i) {
        const bool away = i % 2 == 0;
        const double pace = 1.15 + 0.4 * scatter(i, seed_);
        const double way = std::fmod(seconds * pace + 70 * scatter(i + 9, seed_), 70);
        const double x = (i < 3 ? -7.6 : 8.3) + 1.6 * scatter(i, 3);
        const Pose pose{{x, away ? way - 2 : 68 - way, 0}, away ? M_PI / 2 : -M_PI / 2};
        painter.later(pose.at, [this, &painter, pose, i, way] {
            drawPerson(painter, pose, makeClothes(look_, i + seed_), way);
        });
    }
}

void Street::drawTrees(Painter& painter, double seconds) const
{
    for (int i = 0; i < 6; ++i) {
        for (const double x : {-5.6, 7.7}) {
            if (x < 0 && i == 0)
                continue;
            const Vec3 at{x, 6 + i * 14.5 + (x > 0 ? 5 : 2), 0};
            painter.later(at, [this, &painter, at, seconds, i] {
                drawTree(painter, at, 5.4 + scatter(i, seed_), look_.leaves, seconds * 0.9 + i);
            });
            const Vec3 foot{x, at.y + 7, 0};
            painter.later(foot, [this, &painter, foot] {
                drawLamp(painter, foot, 6.2, foot.x < 0 ? 1.8 : -1.8, look_.lamps);
            });
        }
    }
}

} // namespace

std::unique_ptr<Scene> makeStreet(int variant)
{
    return std::make_unique<Street>(variant);
}

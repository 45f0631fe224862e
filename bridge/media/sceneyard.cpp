// SPDX-License-Identifier: GPL-3.0-or-later
#include "scene.h"

#include <algorithm>

// The loading yard of a warehouse: roll doors, a truck that comes and goes, a forklift at work.

namespace {

constexpr double hallY = 30;
constexpr double truckCycle = 40;

class Yard final : public Scene
{
public:
    explicit Yard(int variant)
        : look_(makeLook(variant))
        , seed_(variant * 3)
    {
    }

    const char* name() const override { return "Yard"; }
    const Light& light() const override { return look_.light; }
    Camera home() const override { return {{-9, 0, 7}, 0.3, -0.2, 1.05}; }
    void drawStill(Painter& painter, double seconds) const override;
    void drawMoving(Painter& painter, double seconds) const override;

private:
    void drawHall(Painter& painter) const;
    void drawDoor(Painter& painter, double x, double open) const;
    void drawMarkings(Painter& painter) const;
    void drawContainers(Painter& painter) const;
    void laterTruck(Painter& painter, double seconds) const;
    void laterForklift(Painter& painter, double seconds) const;
    void laterPeople(Painter& painter, double seconds) const;
    Colour paint(int number) const { return look_.paint[(number + seed_) % look_.paint.size()]; }

    const Look look_;
    const int seed_;
};

void Yard::drawStill(Painter& painter, double seconds) const
{
    drawSky(painter, look_.skyTop, look_.skyBottom, seconds, look_.cloudiness);
    drawGround(painter, -400, -4, 400, 320, mix(look_.asphalt, look_.pavement, 0.35));
    for (int i = 0; i < 8; ++i)
        drawTree(painter, {28 + i * 5.5, 62 + 6 * scatter(i, seed_), 0}, 8, look_.leaves * 0.9, i);
    drawHall(painter);
    drawMarkings(painter);
    drawContainers(painter);
}

void Yard::drawHall(Painter& painter) const
{
    const Colour sheet = mix(look_.walls[(seed_ + 2) % look_.walls.size()], rgb(0xc4ccd3), 0.6);
    painter.box({}, {-36, hallY, 0}, {22, hallY + 30, 8.6}, sheet);
    for (const double x : places(-35.5, 22, 1.1))
        painter.glow({{x, hallY - 0.02, 1}, {x + 0.1, hallY - 0.02, 1},
                         {x + 0.1, hallY - 0.02, 8.5}, {x, hallY - 0.02, 8.5}},
            sheet * 0.62, 0.35);
    painter.box({}, {-36, hallY - 0.1, 0}, {22, hallY, 1}, rgb(0x7d858d));
    painter.box({}, {-36.2, hallY - 0.3, 8.2}, {22.3, hallY + 30, 8.9}, paint(2));
    for (const double x : {-22.0, -14.0, -6.0, 2.0, 10.0})
        drawDoor(painter, x, x == 2.0 ? 1 : 0);
}

void Yard::drawDoor(Painter& painter, double x, double open) const
{
    const auto panel = [&](double x0, double x1, double z0, double z1, double y) {
        return Polygon{{x0, y, z0}, {x1, y, z0}, {x1, y, z1}, {x0, y, z1}};
    };
    painter.face(panel(x - 0.35, x + 4.35, 0, 4.9, hallY - 0.12), rgb(0x4a525b));
    if (open > 0) {
        painter.face(panel(x, x + 4, 0, 4.5, hallY - 0.14), rgb(0x2a2f36));
        painter.glow(panel(x + 0.4, x + 3.6, 0.1, 3.4, hallY - 0.15), rgb(0xffe0a8), 0.5);
    } else {
        for (int slat = 0; slat < 7; ++slat)
            painter.face(
                panel(x, x + 4, slat * 0.64, slat * 0.64 + 0.58, hallY - 0.14), rgb(0xe4e6e7));
    }
    const Vec3 lamp{x + 2, hallY - 0.5, 5.6};
    painter.box({}, {x + 1.6, hallY - 0.7, 5.5}, {x + 2.4, hallY, 5.7}, rgb(0x59626c));
    if (look_.lamps > 0) {
        painter.halo(lamp, 1.8, rgb(0xffe2a6), 0.7);
        painter.halo({x + 2, hallY - 2.5, 0}, 5, rgb(0xffd894), 0.16);
    }
}

void Yard::drawMarkings(Painter& painter) const
{
    const Colour yellow = rgb(0xe0b64c);
    for (const double x : {-23.0, -15.0, -7.0, 1.0, 7.2, 15.2}) {
        painter.glow(
            {{x, 17, 0}, {x + 0.22, 17, 0}, {x + 0.22, hallY - 0.3, 0}, {x, hallY - 0.3, 0}},
            yellow, look_.lamps > 0 ? 0.5 : 0.85);
    }
    for (const double x : places(-30, 40, 3))
        painter.glow({{x, 8.2, 0}, {x + 1.6, 8.2, 0}, {x + 1.6, 8.4, 0}, {x, 8.4, 0}},
            rgb(0xeef0f1), look_.lamps > 0 ? 0.35 : 0.7);
}

void Yard::drawContainers(Painter& painter) const
{
    constexpr std::array<Colour, 4> colours{
        rgb(0x3f6f93), rgb(0xb5573f), rgb(0x6d8a5a), rgb(0xc79a46)};
    const auto stack = [&](double x, double y, int level, int number) {
        const Colour colour = colours[(number + seed_) % colours.size()];
        painter.box({}, {x, y, level * 2.6}, {x + 6.1, y + 2.5, level * 2.6 + 2.55}, colour);
        for (const double rib : places(0.4, 6, 0.55))
            painter.glow({{x + rib, y - 0.01, level * 2.6 + 0.2},
                             {x + rib + 0.14, y - 0.01, level * 2.6 + 0.2},
                             {x + rib + 0.14, y - 0.01, level * 2.6 + 2.35},
                             {x + rib, y - 0.01, level * 2.6 + 2.35}},
                colour * 0.6, 0.5);
    };
    stack(24, 42, 0, 3);
    stack(17.5, 33, 0, 0);
    stack(24, 33, 0, 1);
    stack(17.5, 33, 1, 2);
    stack(19, 25, 0, 1);
}

void Yard::drawMoving(Painter& painter, double seconds) const
{
    laterTruck(painter, seconds);
    laterForklift(painter, seconds);
    laterPeople(painter, seconds);
    const double way = 110 * phase(seconds, 23, 0.4);
    const Pose van{{-50 + way, 9.9, 0}, 0};
    painter.later(van.at, [this, &painter, van] { drawVan(painter, van, paint(1), look_.lamps); });
    painter.later({15.4, 21, 0}, [this, &painter] {
        drawLamp(painter, {15.8, 20.6, 0}, 8, -2.2, look_.lamps);
    });
    painter.finish();
}

// Backs into the bay of the second door, stands, and leaves again.
void Yard::laterTruck(Painter& painter, double seconds) const
{
    const double t = truckCycle * phase(seconds, truckCycle, 0.45);
    const double away = 1 - ease(t, 0, 9) + ease(t, 30, 38);
    const double turn = std::clamp(away * 2 - 0.6, 0.0, 1.0);
    const Pose pose{{-4 + 34 * turn * turn, 23.6 - 11 * std::min(1.0, away * 1.6), 0},
        -M_PI / 2 + M_PI / 2 * ease(away, 0.1, 0.6)};
    painter.later(pose.at, [this, &painter, pose, away] {
        drawTruck(
            painter, pose, paint(0), rgb(0xe9ebec), std::max(look_.lamps, away > 0 ? 0.6 : 0));
    });
}

void Yard::laterForklift(Painter& painter, double seconds) const
{
    const double t = 18 * phase(seconds, 18);
    const double there = ease(t, 1, 7) - ease(t, 10, 16);
    const bool back = t > 9 && t < 17;
    const Pose pose{{12.5 - 9 * there, 18.5 + 7.5 * there, 0}, (back ? 0 : M_PI) - 0.7};
    const double lift = 0.1 + 0.9 * (ease(t, 7.5, 8.5) - ease(t, 9, 10));
    painter.later(
        pose.at, [&painter, pose, lift] { drawForklift(painter, pose, rgb(0xe8a33a), lift); });
    for (int i = 0; i < 3; ++i) {
        const Vec3 at{13.2 + i * 1.5, 16.5 + 0.4 * i, 0};
        painter.later(at, [&painter, at, i] {
            const Pose pallet{at, 0.1 * i};
            painter.box(pallet, {-0.6, -0.5, 0}, {0.6, 0.5, 0.14}, rgb(0xa77f4e));
            painter.box(
                pallet, {-0.55, -0.45, 0.14}, {0.55, 0.45, 0.9 + 0.3 * (i % 2)}, rgb(0xc79d69));
        });
    }
}

void Yard::laterPeople(Painter& painter, double seconds) const
{
    const Clothes vest{rgb(0xf08a2c), rgb(0x2f3b4b)};
    const double way = 22 * std::abs(2 * phase(seconds, 34) - 1);
    const bool left = phase(seconds, 34) < 0.5;
    const Pose walker{{-14 + way, 14.4, 0}, left ? M_PI : 0};
    painter.later(
        walker.at, [&painter, walker, vest, way] { drawPerson(painter, walker, vest, way); });
    const Pose guide{{0.6, 20.5, 0}, -M_PI / 2 + 0.3 * std::sin(seconds)};
    painter.later(guide.at, [this, &painter, guide] {
        drawPerson(painter, guide, makeClothes(look_, 2 + seed_), 0.3);
    });
}

} // namespace

std::unique_ptr<Scene> makeYard(int variant)
{
    return std::make_unique<Yard>(variant);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "painter.h"
#include "props.h"

#include <array>
#include <memory>
#include <vector>

// Colours and light of a scene: the same place looks different on another channel.
struct Look
{
    Colour skyTop;
    Colour skyBottom;
    double cloudiness = 0.8;
    double lamps = 0; // 0 day to 1 night
    Colour asphalt;
    Colour pavement;
    Colour lawn;
    Colour leaves;
    std::array<Colour, 4> walls;
    std::array<Colour, 5> paint; // of cars, doors and coats
    Light light;
};

// One of a few, by number; any number is taken.
Look makeLook(int variant);

// A place with things that move, seen by a virtual camera. Stateless: a picture follows from the
// time alone, so frames can be left out. One thread at a time for each painter.
class Scene
{
public:
    Scene() = default;
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;
    virtual ~Scene() = default;

    virtual const char* name() const = 0;
    virtual const Light& light() const = 0;
    // Where the camera looks with pan, tilt and zoom at rest.
    virtual Camera home() const = 0;
    // What moves slowly or not at all; kept for a second.
    virtual void drawStill(Painter& painter, double seconds) const = 0;
    // The rest, over it.
    virtual void drawMoving(Painter& painter, double seconds) const = 0;
};

constexpr int sceneKinds = 4;

std::unique_ptr<Scene> makeStreet(int variant);
std::unique_ptr<Scene> makeGate(int variant);
std::unique_ptr<Scene> makeYard(int variant);
std::unique_ptr<Scene> makeCorridor(int variant);
// `kind`: 0 street, 1 gate, 2 yard, 3 corridor.
std::unique_ptr<Scene> makeScene(int kind, int variant);

// 0 to 1 and again from 0, once in `period`.
double phase(double seconds, double period, double offset = 0);
// Rises smoothly from 0 to 1 while `x` goes from `from` to `to`.
double ease(double x, double from, double to);
// The same for the same numbers, 0 to 1, and without visible pattern.
double scatter(int a, int b = 0);
// `from`, `from + step` and so on, as far as they lie before `end`.
std::vector<double> places(double from, double end, double step);
Clothes makeClothes(const Look& look, int number);
// Rows of windows on an upright wall from `left` to `right`, whose foot these are.
void drawWindows(Painter& painter, Vec3 left, Vec3 right, double height, int floors, int columns,
    const Look& look, int seed);

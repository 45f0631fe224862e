// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "painter.h"

// What stands and moves in the scenes. Each draws itself and its shadow at once; who wants it
// sorted by distance calls it through Painter::later().

void drawSky(Painter& painter, Colour top, Colour bottom, double seconds, double cloudiness);

// A ground face of `colour` from (x0, y0) to (x1, y1), cut into bands so that it fades with the
// distance.
void drawGround(Painter& painter, double x0, double y0, double x1, double y1, Colour colour);

// `lights`: 0 off to 1 on.
void drawCar(Painter& painter, const Pose& pose, Colour colour, double lights);
void drawVan(Painter& painter, const Pose& pose, Colour colour, double lights);
void drawTruck(Painter& painter, const Pose& pose, Colour cab, Colour load, double lights);
void drawForklift(Painter& painter, const Pose& pose, Colour colour, double lift);

struct Clothes
{
    Colour coat;
    Colour trousers;
};

// `stride`: where in its walk the person is, in metres walked; standing when it does not change.
void drawPerson(Painter& painter, const Pose& pose, const Clothes& clothes, double stride);
void drawTree(Painter& painter, Vec3 at, double height, Colour leaves, double sway);
void drawBush(Painter& painter, Vec3 at, double radius, Colour leaves);
// A street lamp; `lit` 0 to 1. `arm`: how far its head stands out, to +x or -x.
void drawLamp(Painter& painter, Vec3 at, double height, double arm, double lit);

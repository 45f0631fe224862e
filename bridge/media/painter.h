// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cairo.h"
#include "geometry.h"

#include <functional>
#include <vector>

// Where the picture is taken from. `focal`: distance of the picture's plane in picture heights.
struct Camera
{
    Vec3 eye{0, 0, 4};
    double yaw = 0; // radians to the right of +y
    double pitch = 0; // radians above the horizon
    double focal = 1;
};

// Light and air of a scene.
struct Light
{
    Vec3 sun{-0.4, -0.5, 0.8}; // direction to it, unit length
    Colour direct{0.5, 0.48, 0.44};
    Colour ambient{0.56, 0.58, 0.62};
    Colour haze{0.8, 0.84, 0.88}; // what far things fade into
    double hazeDistance = 120; // metres to two thirds of haze
    double shadow = 0.25; // darkness of shadows on the ground
};

using Polygon = std::vector<Vec3>;

// Draws a scene of flat-shaded solids with cairo, anti-aliased. What is drawn later covers what
// was drawn before; things that may hide each other go through later() and are drawn from far to
// near by finish().
class Painter
{
public:
    Painter(cairo_t* cairo, int width, int height, const Camera& camera, const Light& light);

    cairo_t* cairo() const { return cairo_; }
    int width() const { return width_; }
    int height() const { return height_; }
    const Light& light() const { return light_; }
    // Row of the horizon in the picture; may lie outside.
    double horizon() const;
    // Picture size of one metre at `place`; 0 behind the camera.
    double scaleAt(Vec3 place) const;

    // A flat face, lit by its own direction, seen from both sides.
    void face(const Polygon& corners, Colour colour);
    // A flat face with this very colour but for the haze; for what shines, and for markings.
    void glow(const Polygon& corners, Colour colour, double alpha = 1);
    // A convex solid between two polygons of equal count, counterclockwise seen from above.
    void solid(const Polygon& bottom, const Polygon& top, Colour side, Colour cap);
    // Box on the ground of a thing: from (ahead0, left0, up0) to (ahead1, left1, up1).
    void box(const Pose& pose, Vec3 low, Vec3 high, Colour colour);
    void ball(Vec3 centre, double radius, Colour colour);
    void rod(Vec3 from, Vec3 to, double thickness, Colour colour);
    // A soft spot of light around a lamp, `radius` in metres.
    void halo(Vec3 centre, double radius, Colour colour, double alpha);
    // A shadow on the ground.
    void shade(const Polygon& corners, double strength = 1);

    void later(Vec3 anchor, std::function<void()> draw);
    void finish();

private:
    struct Item
    {
        double distance;
        std::function<void()> draw;
    };

    Vec3 toCamera(Vec3 place) const;
    bool trace(const Polygon& corners) const;
    void fill(const Polygon& corners, Colour colour, double alpha, bool seal) const;
    Colour lit(Colour colour, Vec3 normal) const;
    Colour faded(Colour colour, Vec3 place) const;

    cairo_t* const cairo_;
    const int width_;
    const int height_;
    const Camera camera_;
    const Light light_;
    Vec3 right_;
    Vec3 ahead_;
    Vec3 up_;
    std::vector<Item> items_;
};

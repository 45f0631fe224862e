// SPDX-License-Identifier: GPL-3.0-or-later
#include "painter.h"

#include <algorithm>

namespace {

constexpr double nearest = 0.2; // metres before the camera where faces are cut off

void setColour(cairo_t* cairo, Colour colour, double alpha)
{
    cairo_set_source_rgba(cairo, colour.red, colour.green, colour.blue, alpha);
}

Vec3 middle(const Polygon& corners)
{
    Vec3 sum;
    for (const Vec3& corner : corners)
        sum = sum + corner;
    return sum * (1.0 / static_cast<double>(corners.size()));
}

Vec3 normalOf(const Polygon& corners)
{
    const Vec3 normal = cross(corners[1] - corners[0], corners[2] - corners[1]);
    const double size = length(normal);
    return size > 1e-9 ? normal * (1 / size) : Vec3{0, 0, 1};
}

// The part of a polygon in camera axes (y ahead) that lies before the camera.
Polygon cutAtCamera(const Polygon& corners)
{
    Polygon cut;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Vec3 a = corners[i];
        const Vec3 b = corners[(i + 1) % corners.size()];
        if (a.y >= nearest)
            cut.push_back(a);
        if ((a.y >= nearest) != (b.y >= nearest))
            cut.push_back(a + (b - a) * ((nearest - a.y) / (b.y - a.y)));
    }
    return cut;
}

} // namespace

Painter::Painter(cairo_t* cairo, int width, int height, const Camera& camera, const Light& light)
    : cairo_(cairo)
    , width_(width)
    , height_(height)
    , camera_(camera)
    , light_(light)
    , right_{std::cos(camera.yaw), -std::sin(camera.yaw), 0}
    , ahead_{std::sin(camera.yaw) * std::cos(camera.pitch),
          std::cos(camera.yaw) * std::cos(camera.pitch), std::sin(camera.pitch)}
    , up_(cross(right_, ahead_))
{
}

double Painter::horizon() const
{
    return height_ * (0.5 + camera_.focal * std::tan(camera_.pitch));
}

Vec3 Painter::toCamera(Vec3 place) const
{
    const Vec3 from = place - camera_.eye;
    return {dot(from, right_), dot(from, ahead_), dot(from, up_)};
}

double Painter::scaleAt(Vec3 place) const
{
    const double distance = toCamera(place).y;
    return distance > nearest ? height_ * camera_.focal / distance : 0;
}

// Makes the polygon cairo's path; false when nothing of it is before the camera.
bool Painter::trace(const Polygon& corners) const
{
    Polygon seen;
    seen.reserve(corners.size());
    for (const Vec3& corner : corners)
        seen.push_back(toCamera(corner));
    seen = cutAtCamera(seen);
    if (seen.size() < 3)
        return false;
    const double scale = height_ * camera_.focal;
    cairo_new_path(cairo_);
    for (const Vec3& corner : seen)
        cairo_line_to(cairo_, width_ / 2.0 + scale * corner.x / corner.y,
            height_ / 2.0 - scale * corner.z / corner.y);
    cairo_close_path(cairo_);
    return true;
}

// `seal` widens the face by a hair, which closes the seam to the face beside it.
void Painter::fill(const Polygon& corners, Colour colour, double alpha, bool seal) const
{
    if (!trace(corners))
        return;
    setColour(cairo_, faded(colour, middle(corners)), alpha);
    if (!seal) {
        cairo_fill(cairo_);
        return;
    }
    cairo_fill_preserve(cairo_);
    cairo_set_line_width(cairo_, 0.5);
    cairo_stroke(cairo_);
}

Colour Painter::lit(Colour colour, Vec3 normal) const
{
    const double direct = std::max(0.0, dot(normal, light_.sun));
    // What faces the sky gets more of its light than what faces the ground.
    const double sky = 0.88 + 0.12 * normal.z;
    const Colour light = light_.ambient * sky;
    return colour
        * Colour{light.red + light_.direct.red * direct, light.green + light_.direct.green * direct,
            light.blue + light_.direct.blue * direct};
}

Colour Painter::faded(Colour colour, Vec3 place) const
{
    const double distance = length(place - camera_.eye);
    return mix(colour, light_.haze, 1 - std::exp(-distance / light_.hazeDistance));
}

void Painter::face(const Polygon& corners, Colour colour)
{
    Vec3 normal = normalOf(corners);
    if (dot(normal, camera_.eye - corners[0]) < 0)
        normal = normal * -1;
    fill(corners, lit(colour, normal), 1, true);
}

void Painter::glow(const Polygon& corners, Colour colour, double alpha)
{
    fill(corners, colour, alpha, false);
}

void Painter::shade(const Polygon& corners, double strength)
{
    if (!trace(corners))
        return;
    const double scale = scaleAt(middle(corners));
    if (scale <= 0)
        return;
    cairo_set_source_rgba(cairo_, 0.05, 0.07, 0.12, light_.shadow * strength);
    cairo_fill(cairo_);
}

void Painter::solid(const Polygon& bottom, const Polygon& top, Colour side, Colour cap)
{
    const std::size_t count = bottom.size();
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t next = (i + 1) % count;
        const Polygon wall{bottom[i], bottom[next], top[next], top[i]};
        const Vec3 normal = normalOf(wall);
        if (dot(normal, camera_.eye - bottom[i]) > 0)
            fill(wall, lit(side, normal), 1, true);
    }
    const Vec3 normal = normalOf(top);
    if (dot(normal, camera_.eye - top[0]) > 0)
        fill(top, lit(cap, normal), 1, true);
}

void Painter::box(const Pose& pose, Vec3 low, Vec3 high, Colour colour)
{
    const auto ring = [&](double up) {
        return Polygon{pose(low.x, low.y, up), pose(high.x, low.y, up), pose(high.x, high.y, up),
            pose(low.x, high.y, up)};
    };
    solid(ring(low.z), ring(high.z), colour, colour);
}

void Painter::ball(Vec3 centre, double radius, Colour colour)
{
    const Vec3 seen = toCamera(centre);
    if (seen.y < nearest + radius)
        return;
    const double scale = height_ * camera_.focal / seen.y;
    const double x = width_ / 2.0 + scale * seen.x;
    const double y = height_ / 2.0 - scale * seen.z;
    const double r = radius * scale;
    const Vec3 sun{dot(light_.sun, right_), dot(light_.sun, ahead_), dot(light_.sun, up_)};
    const Colour bright = faded(lit(colour, light_.sun), centre);
    const Colour dark = faded(lit(colour, light_.sun * -1) * 0.82, centre);
    const PatternPtr pattern(cairo_pattern_create_radial(
        x + sun.x * r * 0.45, y - sun.z * r * 0.45, r * 0.1, x, y, r * 1.05));
    cairo_pattern_add_color_stop_rgb(pattern.get(), 0, bright.red, bright.green, bright.blue);
    cairo_pattern_add_color_stop_rgb(pattern.get(), 1, dark.red, dark.green, dark.blue);
    cairo_set_source(cairo_, pattern.get());
    cairo_new_path(cairo_);
    cairo_arc(cairo_, x, y, r, 0, 2 * M_PI);
    cairo_fill(cairo_);
}

void Painter::rod(Vec3 from, Vec3 to, double thickness, Colour colour)
{
    Vec3 a = toCamera(from);
    Vec3 b = toCamera(to);
    if (a.y < nearest && b.y < nearest)
        return;
    if (a.y < nearest)
        a = b + (a - b) * ((b.y - nearest) / (b.y - a.y));
    if (b.y < nearest)
        b = a + (b - a) * ((a.y - nearest) / (a.y - b.y));
    const double scale = height_ * camera_.focal;
    setColour(cairo_, faded(lit(colour, {0.3, -0.7, 0.6}), (from + to) * 0.5), 1);
    cairo_set_line_width(cairo_, std::max(0.6, thickness * scale * 2 / (a.y + b.y)));
    cairo_new_path(cairo_);
    cairo_move_to(cairo_, width_ / 2.0 + scale * a.x / a.y, height_ / 2.0 - scale * a.z / a.y);
    cairo_line_to(cairo_, width_ / 2.0 + scale * b.x / b.y, height_ / 2.0 - scale * b.z / b.y);
    cairo_stroke(cairo_);
}

void Painter::halo(Vec3 centre, double radius, Colour colour, double alpha)
{
    const Vec3 seen = toCamera(centre);
    if (seen.y < nearest)
        return;
    const double scale = height_ * camera_.focal / seen.y;
    const double x = width_ / 2.0 + scale * seen.x;
    const double y = height_ / 2.0 - scale * seen.z;
    const double r = radius * scale;
    const PatternPtr pattern(cairo_pattern_create_radial(x, y, 0, x, y, r));
    cairo_pattern_add_color_stop_rgba(
        pattern.get(), 0, colour.red, colour.green, colour.blue, alpha);
    cairo_pattern_add_color_stop_rgba(
        pattern.get(), 0.35, colour.red, colour.green, colour.blue, alpha * 0.35);
    cairo_pattern_add_color_stop_rgba(pattern.get(), 1, colour.red, colour.green, colour.blue, 0);
    cairo_set_source(cairo_, pattern.get());
    cairo_new_path(cairo_);
    cairo_arc(cairo_, x, y, r, 0, 2 * M_PI);
    cairo_fill(cairo_);
}

void Painter::later(Vec3 anchor, std::function<void()> draw)
{
    items_.push_back({length(anchor - camera_.eye), std::move(draw)});
}

void Painter::finish()
{
    std::stable_sort(items_.begin(), items_.end(),
        [](const Item& a, const Item& b) { return a.distance > b.distance; });
    for (const Item& item : items_)
        item.draw();
    items_.clear();
}

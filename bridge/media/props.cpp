// SPDX-License-Identifier: GPL-3.0-or-later
#include "props.h"

#include <algorithm>

namespace {

constexpr Colour glass = rgb(0x2b3541);
constexpr Colour rubber = rgb(0x23262b);

void drawCloud(Painter& painter, double x, double y, double size, double alpha)
{
    cairo_t* cairo = painter.cairo();
    constexpr double parts[][3]{
        {-0.9, 0.12, 0.5}, {-0.3, -0.1, 0.75}, {0.35, -0.02, 0.66}, {0.95, 0.16, 0.45}};
    for (const auto& part : parts) {
        const double cx = x + part[0] * size;
        const double cy = y + part[1] * size * 0.6;
        const double r = part[2] * size;
        const PatternPtr pattern(cairo_pattern_create_radial(cx, cy, 0, cx, cy, r));
        cairo_pattern_add_color_stop_rgba(pattern.get(), 0, 1, 1, 1, alpha);
        cairo_pattern_add_color_stop_rgba(pattern.get(), 0.55, 1, 1, 1, alpha * 0.7);
        cairo_pattern_add_color_stop_rgba(pattern.get(), 1, 1, 1, 1, 0);
        cairo_save(cairo);
        cairo_translate(cairo, 0, cy * 0.5);
        cairo_scale(cairo, 1, 0.5);
        cairo_set_source(cairo, pattern.get());
        cairo_new_path(cairo);
        cairo_arc(cairo, cx, cy, r, 0, 2 * M_PI);
        cairo_fill(cairo);
        cairo_restore(cairo);
    }
}

Polygon ring(const Pose& pose, Vec3 low, Vec3 high, double up)
{
    return {pose(low.x, low.y, up), pose(high.x, low.y, up), pose(high.x, high.y, up),
        pose(low.x, high.y, up)};
}

// The convex outline of places on the ground.
Polygon outline(Polygon places)
{
    std::sort(places.begin(), places.end(),
        [](Vec3 a, Vec3 b) { return a.x != b.x ? a.x < b.x : a.y < b.y; });
    Polygon hull;
    const auto add = [&hull](Vec3 place, std::size_t keep) {
        while (hull.size() >= keep + 2
            && cross(hull.back() - hull[hull.size() - 2], place - hull.back()).z <= 0)
            hull.pop_back();
        hull.push_back(place);
    };
    for (const Vec3& place : places)
        add(place, 0);
    const std::size_t lower = hull.size() - 1;
    for (auto place = places.rbegin() + 1; place != places.rend(); ++place)
        add(*place, lower);
    hull.pop_back();
    return hull;
}

// The shadow of a box on the ground; a low sun would make it too long to look well.
void shadeBox(Painter& painter, const Pose& pose, Vec3 low, Vec3 high)
{
    const Vec3 sun = painter.light().sun;
    const Vec3 push = Vec3{-sun.x, -sun.y, 0} * (high.z / std::max(0.7, sun.z));
    Polygon ground = ring(pose, low, high, 0.01);
    for (std::size_t i = 0; i < 4; ++i)
        ground.push_back(ground[i] + push);
    painter.shade(outline(ground));
}

void drawWheel(Painter& painter, const Pose& pose, double ahead, double left, double radius)
{
    Polygon tyre;
    Polygon rim;
    for (int i = 0; i < 14; ++i) {
        const double angle = 2 * M_PI * i / 14;
        const double c = std::cos(angle);
        const double s = std::sin(angle);
        tyre.push_back(pose(ahead + radius * c, left, radius + radius * s));
        rim.push_back(pose(ahead + radius * c * 0.55, left * 1.01, radius + radius * s * 0.55));
    }
    painter.face(tyre, rubber);
    painter.face(rim, rgb(0x9aa3ad));
}

// Only the wheels of the side that is seen: those of the other would shine through the body.
void drawWheels(
    Painter& painter, const Pose& pose, double front, double rear, double half, double r)
{
    const double near =
        painter.scaleAt(pose(0, half, 0)) > painter.scaleAt(pose(0, -half, 0)) ? 1 : -1;
    for (const double ahead : {front, rear})
        drawWheel(painter, pose, ahead, near * (half + 0.01), r);
}

void drawLightPair(
    Painter& painter, const Pose& pose, double ahead, double half, double up, Colour colour)
{
    for (const double left : {half - 0.42, -half + 0.06})
        painter.glow({pose(ahead, left, up), pose(ahead, left + 0.36, up),
                         pose(ahead, left + 0.36, up + 0.16), pose(ahead, left, up + 0.16)},
            colour);
}

// Head lamps or tail lamps, whichever end faces the camera.
void drawCarLights(
    Painter& painter, const Pose& pose, double front, double rear, double half, double lights)
{
    const bool fromAhead =
        painter.scaleAt(pose(front, 0, 0.6)) > painter.scaleAt(pose(rear, 0, 0.6));
    if (!fromAhead) {
        drawLightPair(
            painter, pose, rear - 0.01, half, 0.62, mix(rgb(0x8a2a2c), rgb(0xff5a4e), lights));
        return;
    }
    drawLightPair(
        painter, pose, front + 0.01, half, 0.56, mix(rgb(0xd5dbe0), rgb(0xfff4d8), lights));
    if (lights <= 0)
        return;
    for (const double left : {half - 0.25, -half + 0.25})
        painter.halo(pose(front + 0.05, left, 0.62), 1.1, rgb(0xffeec4), 0.55 * lights);
    painter.halo(pose(front + 2.2, 0, 0.05), 2.2, rgb(0xffe9b8), 0.18 * lights);
}

void drawCabin(Painter& painter, const Pose& pose, Vec3 low, Vec3 high, double slope, Colour roof)
{
    const Polygon bottom = ring(pose, low, high, low.z);
    const Polygon top = ring(
        pose, {low.x + slope * 0.7, low.y + 0.12, 0}, {high.x - slope, high.y - 0.12, 0}, high.z);
    painter.solid(bottom, top, glass, roof);
    painter.box(pose, {low.x + slope * 0.7, low.y + 0.1, high.z},
        {high.x - slope, high.y - 0.1, high.z + 0.06}, roof);
}

} // namespace

void drawSky(Painter& painter, Colour top, Colour bottom, double seconds, double cloudiness)
{
    cairo_t* cairo = painter.cairo();
    const double horizon = painter.horizon();
    const double reach = painter.height() * 0.75;
    const PatternPtr pattern(cairo_pattern_create_linear(0, horizon - reach, 0, horizon));
    cairo_pattern_add_color_stop_rgb(pattern.get(), 0, top.red, top.green, top.blue);
    cairo_pattern_add_color_stop_rgb(pattern.get(), 1, bottom.red, bottom.green, bottom.blue);
    cairo_set_source(cairo, pattern.get());
    cairo_paint(cairo);
    const double width = painter.width();
    for (int i = 0; i < 5; ++i) {
        const double size = reach * (0.13 + 0.04 * (i % 3));
        const double span = width + 5 * size;
        const double x = std::fmod(seconds * (3 + i) * width / 1280 + i * 0.37 * span, span);
        drawCloud(painter, x - 2.5 * size, horizon - reach * (0.14 + 0.085 * ((i * 3) % 5)), size,
            cloudiness);
    }
}

void drawGround(Painter& painter, double x0, double y0, double x1, double y1, Colour colour)
{
    double from = y0;
    while (from < y1) {
        const double to = std::min(y1, from + std::max(4.0, std::abs(from) * 0.5));
        painter.face({{x0, from, 0}, {x1, from, 0}, {x1, to, 0}, {x0, to, 0}}, colour);
        from = to;
    }
}

void drawCar(Painter& painter, const Pose& pose, Colour colour, double lights)
{
    shadeBox(painter, pose, {-2.15, -0.9, 0}, {2.15, 0.9, 1.0});
    painter.box(pose, {-2.0, -0.8, 0.18}, {2.0, 0.8, 0.4}, colour * 0.5);
    const Polygon sill = ring(pose, {-2.15, -0.9, 0}, {2.15, 0.9, 0}, 0.32);
    const Polygon belt = ring(pose, {-2.1, -0.86, 0}, {2.05, 0.86, 0}, 0.88);
    painter.solid(sill, belt, colour, colour);
    drawWheels(painter, pose, 1.35, -1.35, 0.9, 0.33);
    drawCabin(painter, pose, {-1.75, -0.8, 0.88}, {1.05, 0.8, 1.42}, 0.62, colour);
    drawCarLights(painter, pose, 2.1, -2.13, 0.88, lights);
}

void drawVan(Painter& painter, const Pose& pose, Colour colour, double lights)
{
    shadeBox(painter, pose, {-2.6, -1, 0}, {2.6, 1, 1.9});
    const auto drawLoad = [&] { painter.box(pose, {-2.6, -1, 0.3}, {1.3, 1, 2.3}, colour); };
    const auto drawFront = [&] {
        const Polygon sill = ring(pose, {1.3, -1, 0}, {2.6, 1, 0}, 0.3);
        const Polygon belt = ring(pose, {1.3, -1, 0}, {2.55, 1, 0}, 1.15);
        painter.solid(sill, belt, colour, colour);
        const Polygon roof = ring(pose, {1.3, -0.94, 0}, {1.75, 0.94, 0}, 2.24);
        painter.solid(belt, roof, glass, colour);
    };
    const bool frontNear = painter.scaleAt(pose(2, 0, 1)) > painter.scaleAt(pose(0.6, 0, 1));
    if (!frontNear)
        drawFront();
    drawLoad();
    if (frontNear)
        drawFront();
    drawWheels(painter, pose, 1.75, -1.7, 1, 0.36);
    drawCarLights(painter, pose, 2.6, -2.61, 0.95, lights);
}

void drawTruck(Painter& painter, const Pose& pose, Colour cab, Colour load, double lights)
{
    shadeBox(painter, pose, {-5.2, -1.25, 0}, {4.4, 1.25, 3});
    painter.box(pose, {-5, -1, 0.45}, {4.2, 1, 0.95}, rgb(0x343a42));
    const auto drawLoad = [&] { painter.box(pose, {-5.2, -1.25, 0.95}, {2.1, 1.25, 3.7}, load); };
    const auto drawCab = [&] {
        painter.box(pose, {2.4, -1.2, 0.4}, {4.4, 1.2, 1.7}, cab);
        painter.solid(ring(pose, {2.4, -1.2, 0}, {4.4, 1.2, 0}, 1.7),
            ring(pose, {2.4, -1.15, 0}, {4.2, 1.15, 0}, 2.6), glass, cab);
        painter.box(pose, {2.4, -1.15, 2.6}, {4.2, 1.15, 2.85}, cab);
        drawCarLights(painter, pose, 4.41, -5.21, 1.15, lights);
    };
    const bool cabNear = painter.scaleAt(pose(3.4, 0, 1)) > painter.scaleAt(pose(-1.5, 0, 1));
    if (!cabNear)
        drawCab();
    drawLoad();
    if (cabNear)
        drawCab();
    drawWheels(painter, pose, 3.3, -3.6, 1.24, 0.5);
    drawWheels(painter, pose, -2.4, -2.4, 1.24, 0.5);
}

void drawForklift(Painter& painter, const Pose& pose, Colour colour, double lift)
{
    shadeBox(painter, pose, {-1.1, -0.55, 0}, {1.1, 0.55, 1.6});
    const auto drawMast = [&] {
        for (const double left : {-0.35, 0.35})
            painter.rod(pose(1.05, left, 0.1), pose(1.05, left, 2.5), 0.1, rgb(0x3a4048));
        painter.box(pose, {1.15, -0.5, lift + 0.08}, {2.15, 0.5, lift + 0.2}, rgb(0xa77f4e));
        painter.box(pose, {1.2, -0.45, lift + 0.2}, {2.1, 0.45, lift + 1.05}, rgb(0xc79d69));
    };
    const auto drawBody = [&] {
        painter.box(pose, {-1.1, -0.52, 0.2}, {0.9, 0.52, 0.85}, colour);
        painter.box(pose, {-1.1, -0.5, 0.85}, {-0.5, 0.5, 1.15}, rgb(0x343a42));
        painter.box(pose, {-0.45, -0.2, 0.85}, {-0.1, 0.2, 1.5}, rgb(0x2f5d8a));
        painter.ball(pose(-0.25, 0, 1.66), 0.15, rgb(0xe0b896));
        for (const double ahead : {-0.6, 0.75})
            for (const double left : {-0.48, 0.48})
                painter.rod(
                    pose(ahead, left, 0.85), pose(ahead * 0.8, left, 2.05), 0.06, rgb(0x343a42));
        painter.box(pose, {-0.55, -0.5, 2.05}, {0.65, 0.5, 2.1}, rgb(0x343a42));
        drawWheels(painter, pose, 0.55, -0.7, 0.53, 0.28);
    };
    if (painter.scaleAt(pose(1.6, 0, 1)) > painter.scaleAt(pose(-0.5, 0, 1))) {
        drawBody();
        drawMast();
    } else {
        drawMast();
        drawBody();
    }
}

void drawPerson(Painter& painter, const Pose& pose, const Clothes& clothes, double stride)
{
    const double swing = std::sin(stride * 4.2);
    shadeBox(painter, pose, {-0.18, -0.22, 0}, {0.18, 0.22, 1.5});
    for (const double side : {-1.0, 1.0}) {
        const double foot = 0.3 * swing * side;
        painter.rod(
            pose(0, 0.09 * side, 0.85), pose(foot, 0.1 * side, 0.03), 0.17, clothes.trousers);
        painter.rod(pose(foot - 0.05, 0.1 * side, 0.04), pose(foot + 0.14, 0.1 * side, 0.04), 0.09,
            rgb(0x2a2c30));
    }
    const auto arm = [&](double side) {
        painter.rod(pose(0, 0.26 * side, 1.4), pose(-0.22 * swing * side, 0.29 * side, 0.9), 0.12,
            clothes.coat * 0.86);
    };
    const double near =
        painter.scaleAt(pose(0, 0.3, 1)) > painter.scaleAt(pose(0, -0.3, 1)) ? 1 : -1;
    arm(-near);
    painter.solid(ring(pose, {-0.12, -0.17, 0}, {0.12, 0.17, 0}, 0.8),
        ring(pose, {-0.13, -0.24, 0}, {0.13, 0.24, 0}, 1.46), clothes.coat, clothes.coat);
    arm(near);
    painter.ball(pose(0.02, 0, 1.63), 0.135, rgb(0xe2b998));
    painter.ball(pose(-0.03, 0, 1.68), 0.12, rgb(0x4a3a2f));
}

void drawTree(Painter& painter, Vec3 at, double height, Colour leaves, double sway)
{
    const Vec3 sun = painter.light().sun;
    Polygon spot;
    for (int i = 0; i < 16; ++i)
        spot.push_back({at.x - sun.x * height * 0.3 + height * 0.3 * std::cos(i * M_PI / 8),
            at.y - sun.y * height * 0.3 + height * 0.26 * std::sin(i * M_PI / 8), 0.01});
    painter.shade(spot);
    painter.rod(at, at + Vec3{0, 0, height * 0.6}, height * 0.05, rgb(0x6f5a48));
    const double r = height * 0.22;
    const double dx = std::sin(sway) * r * 0.12;
    painter.ball(at + Vec3{dx - r * 0.7, 0.1, height * 0.6}, r * 0.85, leaves * 0.9);
    painter.ball(at + Vec3{dx + r * 0.75, 0, height * 0.64}, r * 0.8, leaves * 0.94);
    painter.ball(at + Vec3{dx * 1.4, -0.2, height * 0.76}, r, leaves);
    painter.ball(at + Vec3{dx * 1.8 + r * 0.2, 0, height * 0.9}, r * 0.66, leaves * 1.08);
}

void drawBush(Painter& painter, Vec3 at, double radius, Colour leaves)
{
    painter.ball(at + Vec3{-radius * 0.6, 0, radius * 0.7}, radius * 0.75, leaves * 0.9);
    painter.ball(at + Vec3{radius * 0.55, 0, radius * 0.75}, radius * 0.78, leaves * 0.95);
    painter.ball(at + Vec3{0, -0.05, radius}, radius * 0.9, leaves);
}

void drawLamp(Painter& painter, Vec3 at, double height, double arm, double lit)
{
    const Vec3 top = at + Vec3{0, 0, height};
    const Vec3 head = top + Vec3{arm, 0, 0.15};
    painter.rod(at, top, 0.14, rgb(0x5a636d));
    painter.rod(top, head, 0.1, rgb(0x5a636d));
    painter.rod(head - Vec3{arm * 0.3, 0, 0.02}, head, 0.2, mix(rgb(0x79838e), rgb(0xfff1cc), lit));
    if (lit <= 0)
        return;
    painter.halo(head, 1.6, rgb(0xffe2a6), 0.75 * lit);
    painter.halo({head.x, head.y, 0.1}, height * 0.55, rgb(0xffd894), 0.16 * lit);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>

// Places in a scene, in metres: x to the right, y away from the camera's home, z up.
struct Vec3
{
    double x = 0;
    double y = 0;
    double z = 0;
};

inline Vec3 operator+(Vec3 a, Vec3 b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

inline Vec3 operator-(Vec3 a, Vec3 b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

inline Vec3 operator*(Vec3 a, double factor)
{
    return {a.x * factor, a.y * factor, a.z * factor};
}

inline double dot(Vec3 a, Vec3 b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline Vec3 cross(Vec3 a, Vec3 b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline double length(Vec3 a)
{
    return std::sqrt(dot(a, a));
}

inline Vec3 unit(Vec3 a)
{
    return a * (1 / length(a));
}

// A place on the ground and the direction something there faces: 0 is along +x, counterclockwise
// seen from above, radians.
struct Pose
{
    Vec3 at;
    double heading = 0;

    // From the thing's own axes (x ahead, y to its left, z up) to the scene's.
    Vec3 operator()(double ahead, double left, double up) const
    {
        const double c = std::cos(heading);
        const double s = std::sin(heading);
        return at + Vec3{ahead * c - left * s, ahead * s + left * c, up};
    }
};

// Colour, each part 0 to 1.
struct Colour
{
    double red = 0;
    double green = 0;
    double blue = 0;
};

constexpr Colour rgb(unsigned hex)
{
    return {(hex >> 16 & 0xff) / 255.0, (hex >> 8 & 0xff) / 255.0, (hex & 0xff) / 255.0};
}

inline Colour mix(Colour a, Colour b, double share)
{
    return {a.red + (b.red - a.red) * share, a.green + (b.green - a.green) * share,
        a.blue + (b.blue - a.blue) * share};
}

inline Colour operator*(Colour a, Colour b)
{
    return {a.red * b.red, a.green * b.green, a.blue * b.blue};
}

inline Colour operator*(Colour a, double factor)
{
    return {a.red * factor, a.green * factor, a.blue * factor};
}

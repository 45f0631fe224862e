// SPDX-License-Identifier: GPL-3.0-or-later
#include "picture.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

int byteOf(double value)
{
    return std::clamp(static_cast<int>(std::lround(value * 255)), 0, 255);
}

bool isNear(QRgb a, QRgb b)
{
    constexpr int tolerance = 2;
    const auto near = [](int x, int y) { return std::abs(x - y) <= tolerance; };
    return near(qRed(a), qRed(b)) && near(qGreen(a), qGreen(b)) && near(qBlue(a), qBlue(b))
        && near(qAlpha(a), qAlpha(b));
}

QString hex(QRgb colour)
{
    return QStringLiteral("%1").arg(colour, 8, 16, QLatin1Char('0'));
}

} // namespace

QRgb rgbOf(double y, double u, double v)
{
    const double luma = y / 255;
    const double blueness = u / 255 - 0.5;
    const double redness = v / 255 - 0.5;
    return qRgb(byteOf(luma + 1.13983 * redness),
        byteOf(luma - 0.39465 * blueness - 0.58060 * redness), byteOf(luma + 2.03211 * blueness));
}

Picture::Picture(QSize size, Yuv flat)
    : layout_{size.width(), size.height()}
    , bytes_(layout_.lumaBytes() + 2 * layout_.chromaBytes())
{
    fill(0, [=](int, int) { return flat.y; });
    fill(1, [=](int, int) { return flat.u; });
    fill(2, [=](int, int) { return flat.v; });
}

Picture Picture::slopes(QSize size)
{
    Picture picture(size, {});
    const YuvLayout& layout = picture.layout_;
    const int diagonal = layout.width + layout.height;
    picture.fill(0, [=](int x, int y) { return 40 + 150 * (x + y) / diagonal; });
    picture.fill(1, [&](int x, int) { return 80 + 96 * x / layout.chromaWidth(); });
    picture.fill(2, [&](int, int y) { return 80 + 96 * y / layout.chromaHeight(); });
    return picture;
}

Picture Picture::quarters(QSize size, const std::vector<Yuv>& colours)
{
    Picture picture(size, {});
    for (int which = 0; which < 3; ++which) {
        const Plane plane = picture.plane(which);
        picture.fill(which, [&](int x, int y) {
            const bool right = x >= plane.width / 2;
            const bool low = y >= plane.height / 2;
            const Yuv& yuv = colours.at(std::size_t(low) * 2 + std::size_t(right));
            return which == 0 ? yuv.y : which == 1 ? yuv.u : yuv.v;
        });
    }
    return picture;
}

Picture::Plane Picture::plane(int which) const
{
    if (which == 0)
        return {layout_.width, layout_.height, 0};
    return {layout_.chromaWidth(), layout_.chromaHeight(),
        which == 1 ? layout_.offsetOfU() : layout_.offsetOfV()};
}

void Picture::fill(int which, const std::function<int(int x, int y)>& sample)
{
    const Plane to = plane(which);
    std::size_t at = to.offset;
    for (int y = 0; y < to.height; ++y) {
        for (int x = 0; x < to.width; ++x)
            bytes_.at(at++) = static_cast<std::uint8_t>(sample(x, y));
    }
}

double Picture::sampleAt(int which, double across, double down) const
{
    const Plane from = plane(which);
    if (from.width == 0 || from.height == 0)
        return 0; // a texture without samples is black
    const auto sample = [&](double x, double y) {
        const int column = std::clamp(static_cast<int>(x), 0, from.width - 1);
        const int row = std::clamp(static_cast<int>(y), 0, from.height - 1);
        return double(bytes_.at(from.offset + std::size_t(row * from.width + column)));
    };
    const double x = across * from.width - 0.5;
    const double y = down * from.height - 0.5;
    const double left = std::floor(x);
    const double top = std::floor(y);
    const auto alongRow = [&](double row) {
        return sample(left, row) + (x - left) * (sample(left + 1, row) - sample(left, row));
    };
    return alongRow(top) + (y - top) * (alongRow(top + 1) - alongRow(top));
}

QRgb Picture::colourAt(double across, double down) const
{
    return rgbOf(sampleAt(0, across, down), sampleAt(1, across, down), sampleAt(2, across, down));
}

QString differences(
    const QImage& image, const QRect& area, const std::function<QRgb(QPoint)>& expected)
{
    if (!image.rect().contains(area))
        return QStringLiteral("an image of only %1x%2").arg(image.width()).arg(image.height());
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb is = image.pixel(x, y);
            const QRgb must = expected(QPoint(x, y));
            if (!isNear(is, must))
                return QStringLiteral("%1 instead of %2 at %3,%4")
                    .arg(hex(is), hex(must))
                    .arg(x)
                    .arg(y);
        }
    }
    return {};
}

QString differences(const QImage& image, const QRect& area, QRgb flat)
{
    return differences(image, area, [flat](QPoint) { return flat; });
}

QString differences(const QImage& image, const QRect& area, const Picture& picture)
{
    return differences(image, area, [&](QPoint at) {
        return picture.colourAt(
            (at.x() - area.x() + 0.5) / area.width(), (at.y() - area.y() + 0.5) / area.height());
    });
}

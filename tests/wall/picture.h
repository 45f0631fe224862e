// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/yuvpicture.h"

#include <QImage>
#include <QRect>
#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

struct Yuv
{
    int y;
    int u;
    int v;
};

// The colour that a tile shows for one sample of each plane, opaque.
QRgb rgbOf(double y, double u, double v);
inline QRgb rgbOf(Yuv yuv)
{
    return rgbOf(yuv.y, yuv.u, yuv.v);
}

// A picture as it stands in a channel's YUV buffer, and the colours that it must have on a screen.
class Picture final
{
public:
    Picture(QSize size, Yuv flat);
    // Each plane rises evenly along a way of its own, so that a row that starts at the wrong byte, a
    // turned or a mirrored plane shows everywhere.
    static Picture slopes(QSize size);
    // Left and right half of the upper, then of the lower half.
    static Picture quarters(QSize size, const std::vector<Yuv>& colours);

    QSize size() const { return QSize(layout_.width, layout_.height); }
    const std::vector<std::uint8_t>& bytes() const { return bytes_; }
    // At a point of the picture from 0,0, left and top, to 1,1: interpolated between the centres of
    // the samples, and the outermost ones beyond these.
    QRgb colourAt(double across, double down) const;

private:
    struct Plane
    {
        int width;
        int height;
        std::size_t offset;
    };

    Plane plane(int which) const;
    void fill(int which, const std::function<int(int x, int y)>& sample);
    double sampleAt(int which, double across, double down) const;

    YuvLayout layout_;
    std::vector<std::uint8_t> bytes_;
};

// Where pixels of `area` are more than 2 of 255 off what they must be: the first such pixel, in words;
// empty where there is none.
QString differences(
    const QImage& image, const QRect& area, const std::function<QRgb(QPoint)>& expected);
QString differences(const QImage& image, const QRect& area, QRgb flat);
// The picture, scaled to fill `area`.
QString differences(const QImage& image, const QRect& area, const Picture& picture);

// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/yuvpicture.h"

#include "media/ffmpegowners.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

constexpr std::uint8_t neutral = 128; // a colour difference of none

// One plane of a picture, as the buffer has it.
struct Plane
{
    int component; // 0 to 2: Y, U, V
    int width;
    int height;
    std::uint8_t* target;
};

std::array<Plane, 3> planesOf(const YuvLayout& layout, std::uint8_t* buffer)
{
    const int width = layout.chromaWidth();
    const int height = layout.chromaHeight();
    return {Plane{0, layout.width, layout.height, buffer},
        Plane{1, width, height, buffer + layout.offsetOfU()},
        Plane{2, width, height, buffer + layout.offsetOfV()}};
}

bool isPlain(int format)
{
    return format == AV_PIX_FMT_YUV420P || format == AV_PIX_FMT_YUVJ420P;
}

void copyRows(const AVFrame& frame, const Plane& plane)
{
    const std::uint8_t* source = frame.data[plane.component];
    const std::ptrdiff_t stride = frame.linesize[plane.component];
    const auto width = static_cast<std::size_t>(plane.width);
    for (int row = 0; row < plane.height; ++row)
        std::memcpy(plane.target + width * std::size_t(row), source + stride * row, width);
}

// Reads any form of sample, and takes every `step`th of a row.
void convertRows(const AVFrame& frame, const AVPixFmtDescriptor& format, const Plane& plane)
{
    const bool chroma = plane.component > 0;
    const int acrossShift = chroma ? 1 - format.log2_chroma_w : 0;
    const int downShift = chroma ? 1 - format.log2_chroma_h : 0;
    const int depthShift = format.comp[plane.component].depth - 8;
    const int sourceWidth = plane.width << std::max(acrossShift, 0);
    const int shrink = std::max(-acrossShift, 0); // 4:1:1 and 4:1:0 have fewer samples than we
    const int sourceSamples = std::max(1, (sourceWidth + shrink) >> shrink);
    std::vector<std::uint16_t> samples(static_cast<std::size_t>(sourceSamples));
    std::array<const std::uint8_t*, 4> data{};
    std::copy_n(frame.data, data.size(), data.begin());
    for (int row = 0; row < plane.height; ++row) {
        const int sourceRow = downShift >= 0 ? row << downShift : row >> -downShift;
        av_read_image_line2(samples.data(), data.data(), frame.linesize, &format, 0, sourceRow,
            plane.component, sourceSamples, 0, sizeof(std::uint16_t));
        std::uint8_t* target = plane.target + std::size_t(plane.width) * std::size_t(row);
        for (int column = 0; column < plane.width; ++column) {
            const int at = std::min(
                acrossShift >= 0 ? column << acrossShift : column >> shrink, sourceSamples - 1);
            target[column] = static_cast<std::uint8_t>(samples[std::size_t(at)] >> depthShift);
        }
    }
}

bool isGrey(const AVPixFmtDescriptor& format)
{
    return format.nb_components <= 2;
}

// Of what av_read_image_line2 reads and what is brightness and colour differences.
bool canConvert(const AVPixFmtDescriptor* format)
{
    constexpr unsigned foreign = AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL | AV_PIX_FMT_FLAG_HWACCEL
        | AV_PIX_FMT_FLAG_BITSTREAM | AV_PIX_FMT_FLAG_FLOAT | AV_PIX_FMT_FLAG_BAYER;
    return format != nullptr && (format->flags & foreign) == 0 && format->nb_components >= 1
        && format->comp[0].depth >= 8;
}

void convertPlane(const AVFrame& frame, const AVPixFmtDescriptor& format, const Plane& plane)
{
    if (plane.component > 0 && isGrey(format))
        std::memset(plane.target, neutral, std::size_t(plane.width) * std::size_t(plane.height));
    else
        convertRows(frame, format, plane);
}

} // namespace

PictureCopy copyPicture(const AVFrame& frame, std::uint8_t* buffer)
{
    const YuvLayout layout{frame.width, frame.height};
    if (!layout.fitsBuffer())
        return PictureCopy::TooLarge;
    const bool plain = isPlain(frame.format);
    const auto* format = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    if (!plain && !canConvert(format))
        return PictureCopy::NoPlanes;
    for (const Plane& plane : planesOf(layout, buffer)) {
        if (plain)
            copyRows(frame, plane);
        else
            convertPlane(frame, *format, plane);
    }
    return PictureCopy::Done;
}

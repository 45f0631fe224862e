// SPDX-License-Identifier: GPL-3.0-or-later
#include "palette.h"

#include <algorithm>

namespace {

bool isTransparent(QRgb pixel)
{
    return qAlpha(pixel) < 128;
}

QHash<QRgb, int> countColours(const std::vector<QImage>& frames)
{
    QHash<QRgb, int> counts;
    for (const QImage& frame : frames) {
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x) {
                const QRgb pixel = frame.pixel(x, y);
                if (!isTransparent(pixel))
                    ++counts[pixel | 0xFF000000];
            }
        }
    }
    return counts;
}

// Equally frequent colours go by value, so that each build makes the same file.
std::vector<QRgb> sortByFrequency(const QHash<QRgb, int>& counts)
{
    std::vector<QRgb> colours(counts.keyBegin(), counts.keyEnd());
    std::sort(colours.begin(), colours.end(), [&](QRgb one, QRgb other) {
        const int ones = counts.value(one);
        const int others = counts.value(other);
        return ones != others ? ones > others : one < other;
    });
    return colours;
}

} // namespace

Palette::Palette(const std::vector<QImage>& frames)
{
    const auto colours = sortByFrequency(countColours(frames));
    while (!fill(colours))
        step_ *= 2;
}

bool Palette::fill(const std::vector<QRgb>& byFrequency)
{
    colours_ = {qRgb(0, 0, 0)};
    indices_.clear();
    for (const QRgb colour : byFrequency) {
        if (indices_.contains(similar(colour)))
            continue;
        if (colours_.size() == 256)
            return false;
        indices_.insert(similar(colour), static_cast<int>(colours_.size()));
        colours_.push_back(colour);
    }
    return true;
}

QRgb Palette::similar(QRgb colour) const
{
    const auto floor = [this](int value) { return value / step_ * step_; };
    return qRgb(floor(qRed(colour)), floor(qGreen(colour)), floor(qBlue(colour)));
}

int Palette::index(QRgb pixel) const
{
    return isTransparent(pixel) ? transparent : indices_.value(similar(pixel), transparent);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QImage>

#include <vector>

// The common colours of a GIF's frames, at most 256 with the transparent one. When the frames
// have more, similar ones are taken together, as few as is enough, and the most frequent of them
// stands for all: so the flat areas keep their exact colours.
class Palette
{
public:
    static constexpr int transparent = 0;

    explicit Palette(const std::vector<QImage>& frames);

    // By index; that of `transparent` is black.
    const std::vector<QRgb>& colours() const { return colours_; }
    int index(QRgb pixel) const;

private:
    bool fill(const std::vector<QRgb>& byFrequency);
    QRgb similar(QRgb colour) const;

    int step_ = 1; // components that differ by less are similar
    std::vector<QRgb> colours_;
    QHash<QRgb, int> indices_;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/wallboard.h"

#include <algorithm>

int WallBoard::tileOf(const Channel* channel) const
{
    const auto at = std::find(channels_.begin() + (hasMirror_ ? 1 : 0), channels_.end(), channel);
    return at == channels_.end() ? -1 : static_cast<int>(at - channels_.begin());
}

void WallBoard::setTiles(int count, bool hasMirror)
{
    channels_.resize(static_cast<std::size_t>(count), nullptr);
    hasMirror_ = hasMirror && count > 0;
}

void WallBoard::clear()
{
    std::fill(channels_.begin(), channels_.end(), nullptr);
}

void WallBoard::show(Channel* channel)
{
    if (tileOf(channel) >= 0)
        return;
    for (int tile = 0; tile < count(); ++tile) {
        if (at(tile) != nullptr)
            continue;
        channels_[static_cast<std::size_t>(tile)] = channel;
        if (tile > 0 || !hasMirror_)
            return;
    }
}

void WallBoard::showFirst(Channel* channel)
{
    if (!channels_.empty())
        channels_.front() = channel;
}

void WallBoard::remove(Channel* channel)
{
    std::replace(channels_.begin(), channels_.end(), channel, static_cast<Channel*>(nullptr));
}

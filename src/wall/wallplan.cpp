// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/wallplan.h"

#include <QtGlobal>

#include <algorithm>

namespace {

bool isOpen(const WallChannel& channel)
{
    return channel.isOpen;
}

int mirrorChannel(const std::vector<WallChannel>& channels, int selected)
{
    if (selected != noChannel && channels.at(static_cast<std::size_t>(selected)).isOpen)
        return selected;
    const auto last = std::find_if(channels.rbegin(), channels.rend(), isOpen);
    if (last == channels.rend())
        return noChannel;
    const auto first =
        std::find_if(channels.begin(), channels.end(), [last](const WallChannel& channel) {
            return channel.isOpen && channel.device == last->device;
        });
    return static_cast<int>(first - channels.begin());
}

} // namespace

int openCount(const std::vector<WallChannel>& channels)
{
    return static_cast<int>(std::count_if(channels.begin(), channels.end(), isOpen));
}

int ordinalOf(const std::vector<WallChannel>& channels, int channel)
{
    return static_cast<int>(std::count_if(channels.begin(), channels.begin() + channel, isOpen));
}

int channelAt(const std::vector<WallChannel>& channels, int ordinal)
{
    int before = 0;
    for (std::size_t i = 0; i < channels.size(); ++i) {
        if (channels[i].isOpen && before++ == ordinal)
            return static_cast<int>(i);
    }
    return noChannel;
}

int pageCountFor(int openChannels, int capacity)
{
    return (openChannels + capacity - 1) / capacity;
}

int pageAfterLayoutChange(int page, int oldCapacity, int newCapacity)
{
    return static_cast<int>(qint64(oldCapacity) * page / newCapacity);
}

std::vector<int> fillTiles(const std::vector<WallChannel>& channels, int selected,
    const WallTiles& tiles, int page, int capacity)
{
    std::vector<int> filled(static_cast<std::size_t>(tiles.count), noChannel);
    std::size_t tile = 0;
    if (tiles.hasMirror && tiles.count > 0)
        filled[tile++] = mirrorChannel(channels, selected);

    const qint64 first = qint64(page) * capacity;
    qint64 ordinal = 0;
    for (std::size_t i = 0; i < channels.size() && tile < filled.size(); ++i) {
        if (!channels[i].isOpen)
            continue;
        if (ordinal >= first && ordinal < first + capacity)
            filled[tile++] = static_cast<int>(i);
        ++ordinal;
    }
    return filled;
}

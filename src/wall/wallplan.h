// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

// What the wall decides by, without a tile and without a channel: a channel is here its index in the
// wall's order, which is the order of the device list, and inside a device that of its channels. An
// open channel's ordinal is the number of open ones before it; its page follows from that.

struct WallChannel
{
    int device = 0; // the same for all channels of a device
    bool isOpen = false;
};

struct WallTiles
{
    int count = 0;
    bool hasMirror = false; // tile 0 is the mirror tile
};

constexpr int noChannel = -1;

int openCount(const std::vector<WallChannel>& channels);
// Of the open channels before this one.
int ordinalOf(const std::vector<WallChannel>& channels, int channel);
// The open channel with this ordinal, or noChannel.
int channelAt(const std::vector<WallChannel>& channels, int ordinal);

// 0 where nothing is open. `capacity` is at least 1.
int pageCountFor(int openChannels, int capacity);
// The page on which the first channel of `page` stands in a layout of another capacity.
int pageAfterLayoutChange(int page, int oldCapacity, int newCapacity);

// The channel of each tile, noChannel for one that stays empty. The page goes onto the ordinary tiles
// in order. The mirror tile shows `selected`, where that is open, else the first open channel of the
// last device that has one, by design of this wall.
std::vector<int> fillTiles(const std::vector<WallChannel>& channels, int selected,
    const WallTiles& tiles, int page, int capacity);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>
#include <vector>

class Channel;

// Which channel stands on which tile: the wall without its widgets. A channel stands on one ordinary
// tile at most; tile 0 may be the mirror tile, which shows one of them once more. Plain data; channels
// are never looked into.
class WallBoard final
{
public:
    int count() const { return static_cast<int>(channels_.size()); }
    bool hasMirror() const { return hasMirror_; }
    Channel* at(int tile) const { return channels_.at(static_cast<std::size_t>(tile)); }
    // The ordinary tile of a channel, or -1.
    int tileOf(const Channel* channel) const;

    // Tiles that go let their channels go. `hasMirror` is of tile 0.
    void setTiles(int count, bool hasMirror);
    // One entry for each tile, null for an empty one.
    void fill(std::vector<Channel*> channels) { channels_ = std::move(channels); }
    void clear();
    // Onto the first free tile, unless it has one; onto an empty mirror tile too.
    void show(Channel* channel);
    // Onto tile 0 in the place of what is there.
    void showFirst(Channel* channel);
    // Off every tile.
    void remove(Channel* channel);

private:
    std::vector<Channel*> channels_; // by tile
    bool hasMirror_ = false;
};

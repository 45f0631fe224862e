// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>

#include <array>
#include <optional>
#include <vector>

// The pool of recorded blocks that devices have named in this session, of all days and channels. A
// block is four ints: start in seconds since local midnight, length in seconds, start in seconds
// since the epoch, event type. Main thread.
//
// It is never cleared. Each look at a channel adds its day once more, so the memory is bounded by
// `most` blocks: when they are reached, the older half is forgotten.
class RecordedBlocks final
{
public:
    static constexpr int most = 1 << 20; // 16 MiB

    // What a shorter list lacks counts as 0; a longer one is cut.
    void append(const QList<int>& block);
    int count() const { return static_cast<int>(blocks_.size()); }
    QList<int> at(int index) const; // empty where there is none

    // The start of the earliest block at or after `point`.
    std::optional<QDateTime> nextStart(const QDateTime& point) const;
    // Where to start a playback that is to show `point`: the start of the latest block that starts
    // at or before it, else of the earliest after it, else the point itself.
    QDateTime playStart(const QDateTime& point) const;

private:
    using Block = std::array<int, 4>;

    std::vector<Block> blocks_;
};

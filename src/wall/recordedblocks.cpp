// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/recordedblocks.h"

#include <algorithm>

namespace {

constexpr std::size_t epochStart = 2;

} // namespace

void RecordedBlocks::append(const QList<int>& block)
{
    if (count() == most)
        blocks_.erase(blocks_.begin(), blocks_.begin() + most / 2);
    Block kept{};
    std::copy_n(block.begin(), std::min(block.size(), static_cast<int>(kept.size())), kept.begin());
    blocks_.push_back(kept);
}

QList<int> RecordedBlocks::at(int index) const
{
    if (index < 0 || index >= count())
        return {};
    const Block& block = blocks_[static_cast<std::size_t>(index)];
    return QList<int>(block.begin(), block.end());
}

std::optional<QDateTime> RecordedBlocks::nextStart(const QDateTime& point) const
{
    const qint64 from = point.toSecsSinceEpoch();
    std::optional<int> next;
    for (const Block& block : blocks_) {
        const int start = block[epochStart];
        if (start >= from && (!next || start < *next))
            next = start;
    }
    return next ? std::optional(QDateTime::fromSecsSinceEpoch(*next)) : std::nullopt;
}

QDateTime RecordedBlocks::playStart(const QDateTime& point) const
{
    const qint64 until = point.toSecsSinceEpoch();
    std::optional<int> latest;
    for (const Block& block : blocks_) {
        const int start = block[epochStart];
        if (start <= until && (!latest || start > *latest))
            latest = start;
    }
    return latest ? QDateTime::fromSecsSinceEpoch(*latest) : nextStart(point).value_or(point);
}

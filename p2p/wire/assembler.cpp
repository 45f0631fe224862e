// SPDX-License-Identifier: GPL-3.0-or-later
#include "wire/assembler.h"

#include <algorithm>
#include <utility>

bool Assembler::continues(const Fragment& fragment) const
{
    return fragment.index == nextIndex_ && fragment.frameNumber == frame_->number
        && fragment.frameSize == frame_->announcedSize
        && fragment.payload.size() <= frame_->announcedSize - frame_->bytes.size();
}

// A frame in part must not keep the memory that was taken for the whole of it.
AssembledFrame Assembler::end()
{
    AssembledFrame frame = *std::move(frame_);
    frame_.reset();
    if (!frame.whole())
        frame.bytes.shrink_to_fit();
    return frame;
}

void Assembler::begin(const Fragment& fragment)
{
    frame_.emplace();
    frame_->number = fragment.frameNumber;
    frame_->announcedSize = fragment.frameSize;
    std::copy(fragment.info.begin(), fragment.info.end(), frame_->info.begin());
    frame_->bytes.reserve(fragment.frameSize);
    nextIndex_ = 0;
}

std::vector<AssembledFrame> Assembler::take(const Fragment& fragment)
{
    std::vector<AssembledFrame> ended;
    if (frame_ && !continues(fragment))
        ended.push_back(end());
    if (!frame_) {
        if (fragment.index != 0)
            return ended;
        begin(fragment);
    }
    frame_->bytes.insert(frame_->bytes.end(), fragment.payload.begin(), fragment.payload.end());
    ++nextIndex_;
    if (fragment.last || frame_->whole())
        ended.push_back(end());
    return ended;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wire/framing.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

// A frame put together from its fragments.
struct AssembledFrame
{
    std::uint32_t number = 0;
    std::uint32_t announcedSize = 0; // bytes.size() of a whole frame
    std::array<char, frameInfoBytes> info{};
    std::vector<char> bytes;

    bool whole() const { return bytes.size() == announcedSize; }
    // As the frame information says.
    bool key() const { return info[2] == 1; }
};

// Puts the frames of one medium together again. Fragments of a frame come one after the other; of
// a frame that misses some, what came before the gap comes out as a frame in part.
class Assembler
{
public:
    // Takes the next fragment and gives the frames that it ends: none; one, whole or in part; or
    // two, when it shows that the one under way breaks off and is a whole frame itself. Fragments
    // behind a gap are dropped up to the next frame.
    std::vector<AssembledFrame> take(const Fragment& fragment);

private:
    bool continues(const Fragment& fragment) const;
    void begin(const Fragment& fragment);
    AssembledFrame end();

    std::optional<AssembledFrame> frame_; // the one under way
    std::uint16_t nextIndex_ = 0;
};

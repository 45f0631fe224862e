// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wire/limits.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

// The packets of an AV channel, one SRT message each, at most packetBytes long. Frames travel in
// fragments; control messages and their acknowledgements in one packet each.

enum class Media : std::uint8_t { Video = 1, Audio = 2 };

// Views point into the packet that was decoded.
struct Fragment
{
    Media media = Media::Video;
    bool last = false;
    std::uint16_t index = 0; // 0 for the first, which carries the frame information
    std::uint32_t frameNumber = 0; // counts up by one per frame of this medium
    std::uint32_t frameSize = 0; // of the whole frame, 1 to maxFrameBytes
    std::string_view info; // frameInfoBytes in the first fragment, otherwise empty
    std::string_view payload;
};

struct Control
{
    std::uint32_t sequence = 0; // counts up by one per message of this direction, from 1 on
    std::uint32_t type = 0;
    std::string_view bytes; // 1 to maxControlBytes
};

// Every message up to this one is taken.
struct ControlAck
{
    std::uint32_t sequence = 0;
};

using Packet = std::variant<Fragment, Control, ControlAck>;

// Pure. Nothing for bytes that are no packet of this version.
std::optional<Packet> decodePacket(std::string_view bytes);

std::string encode(const Control& control);
std::string encode(const ControlAck& ack);

// Cuts one frame into packets.
class FragmentWriter
{
public:
    // `info`: frameInfoBytes; `frame`: 1 to maxFrameBytes. Both must outlive the writer.
    FragmentWriter(
        Media media, std::uint32_t frameNumber, std::string_view info, std::string_view frame);

    static std::size_t packetsFor(std::size_t frameBytes);

    bool done() const { return index_ > 0 && offset_ == frame_.size(); }
    // The next packet; valid until the call after it.
    std::string_view next();

private:
    const Media media_;
    const std::uint32_t frameNumber_;
    const std::string_view info_;
    const std::string_view frame_;
    std::size_t offset_ = 0;
    std::uint16_t index_ = 0;
    std::array<char, packetBytes> packet_{};
};

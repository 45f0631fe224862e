// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wire/assembler.h"
#include "wirebytes.h"

#include <string>
#include <vector>

// A frame that tells itself apart: its bytes depend on size and number.
inline std::string frameBytes(std::size_t size, std::uint32_t number)
{
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<char>(i * 7 + i / 251 + number);
    return bytes;
}

inline std::string frameInfo(bool key)
{
    return bytesOf("\x4e\0") + (key ? '\x01' : '\0')
        + bytesOf("\0\0\0\0\0\0\0\0\0\x01\x02\x03\x04");
}

// The packets of a whole frame.
inline std::vector<std::string> packetsOf(std::uint32_t number, std::size_t size, bool key = false)
{
    const std::string info = frameInfo(key);
    const std::string bytes = frameBytes(size, number);
    FragmentWriter writer(Media::Video, number, info, bytes);
    std::vector<std::string> packets;
    while (!writer.done())
        packets.emplace_back(writer.next());
    return packets;
}

inline std::vector<AssembledFrame> give(Assembler& assembler, const std::string& packet)
{
    const auto decoded = decodePacket(packet);
    const auto* fragment = decoded ? std::get_if<Fragment>(&*decoded) : nullptr;
    return fragment != nullptr ? assembler.take(*fragment) : std::vector<AssembledFrame>();
}

inline bool isWhole(const AssembledFrame& frame, std::uint32_t number, std::size_t size)
{
    return frame.whole() && frame.number == number && frame.announcedSize == size
        && std::string(frame.bytes.begin(), frame.bytes.end()) == frameBytes(size, number);
}

// The first `got` bytes of a frame of `size`.
inline bool isInPart(
    const AssembledFrame& frame, std::uint32_t number, std::size_t size, std::size_t got)
{
    return !frame.whole() && frame.number == number && frame.announcedSize == size
        && std::string(frame.bytes.begin(), frame.bytes.end())
        == frameBytes(size, number).substr(0, got);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wire/framing.h"

#include "wire/bytes.h"

#include <algorithm>
#include <cstring>

namespace {

enum Type : std::uint8_t {
    videoType = static_cast<std::uint8_t>(Media::Video),
    audioType = static_cast<std::uint8_t>(Media::Audio),
    controlType = 3,
    controlAckType = 4,
};

constexpr std::uint8_t lastFlag = 1;
constexpr std::size_t fragmentHeaderBytes = 12;
constexpr std::size_t fragmentPayloadBytes = packetBytes - fragmentHeaderBytes;

std::optional<Packet> readFragment(Media media, std::uint8_t flags, ByteReader& reader)
{
    Fragment fragment;
    fragment.media = media;
    fragment.last = (flags & lastFlag) != 0;
    fragment.index = reader.u16();
    fragment.frameNumber = reader.u32();
    fragment.frameSize = reader.u32();
    if (fragment.index == 0)
        fragment.info = reader.take(frameInfoBytes);
    fragment.payload = reader.rest();
    const bool sound = reader.ok() && (flags & ~lastFlag) == 0 && fragment.frameSize >= 1
        && fragment.frameSize <= maxFrameBytes && !fragment.payload.empty()
        && fragment.payload.size() <= fragment.frameSize;
    return sound ? std::optional<Packet>(fragment) : std::nullopt;
}

std::optional<Packet> readControl(ByteReader& reader)
{
    Control control;
    control.sequence = reader.u32();
    control.type = reader.u32();
    control.bytes = reader.rest();
    const bool sound =
        reader.ok() && !control.bytes.empty() && control.bytes.size() <= maxControlBytes;
    return sound ? std::optional<Packet>(control) : std::nullopt;
}

std::optional<Packet> readControlAck(ByteReader& reader)
{
    const ControlAck ack{reader.u32()};
    return reader.ok() && reader.rest().empty() ? std::optional<Packet>(ack) : std::nullopt;
}

void putLittleEndian(char* at, std::uint32_t value, std::size_t bytes)
{
    for (std::size_t i = 0; i < bytes; ++i)
        at[i] = static_cast<char>(value >> (8 * i));
}

} // namespace

std::optional<Packet> decodePacket(std::string_view bytes)
{
    if (bytes.size() > packetBytes)
        return std::nullopt;
    ByteReader reader(bytes);
    const std::uint8_t type = reader.u8();
    const std::uint8_t flags = reader.u8();
    if (type == videoType || type == audioType)
        return readFragment(static_cast<Media>(type), flags, reader);
    if (flags != 0 || reader.u16() != 0)
        return std::nullopt;
    if (type == controlType)
        return readControl(reader);
    return type == controlAckType ? readControlAck(reader) : std::nullopt;
}

std::string encode(const Control& control)
{
    std::string out;
    putNumber(out, std::uint32_t{controlType});
    putNumber(out, control.sequence);
    putNumber(out, control.type);
    out += control.bytes;
    return out;
}

std::string encode(const ControlAck& ack)
{
    std::string out;
    putNumber(out, std::uint32_t{controlAckType});
    putNumber(out, ack.sequence);
    return out;
}

FragmentWriter::FragmentWriter(
    Media media, std::uint32_t frameNumber, std::string_view info, std::string_view frame)
    : media_(media)
    , frameNumber_(frameNumber)
    , info_(info)
    , frame_(frame)
{
}

std::size_t FragmentWriter::packetsFor(std::size_t frameBytes)
{
    return (frameBytes + frameInfoBytes + fragmentPayloadBytes - 1) / fragmentPayloadBytes;
}

std::string_view FragmentWriter::next()
{
    char* at = packet_.data() + fragmentHeaderBytes;
    if (index_ == 0)
        at = std::copy(info_.begin(), info_.end(), at);
    const std::size_t room = packetBytes - static_cast<std::size_t>(at - packet_.data());
    const std::size_t count = std::min(room, frame_.size() - offset_);
    std::memcpy(at, frame_.data() + offset_, count);
    offset_ += count;

    packet_[0] = static_cast<char>(media_);
    packet_[1] = static_cast<char>(offset_ == frame_.size() ? lastFlag : 0);
    putLittleEndian(&packet_[2], index_++, 2);
    putLittleEndian(&packet_[4], frameNumber_, 4);
    putLittleEndian(&packet_[8], static_cast<std::uint32_t>(frame_.size()), 4);
    return {packet_.data(), static_cast<std::size_t>(at - packet_.data()) + count};
}

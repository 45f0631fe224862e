// SPDX-License-Identifier: GPL-3.0-or-later
// The packets of an AV channel and what becomes of them, up to the queue that the client takes its
// frames from. An input is one byte that sets the queue's limits and then packets, each behind its
// length in two bytes, little endian. Length 0 takes an item from the queue, 65535 clears it.
#include "require.h"
#include "src/framequeue.h"
#include "wire/assembler.h"
#include "wire/bytes.h"
#include "wire/framing.h"

#include <algorithm>

namespace {

constexpr std::uint16_t takeItem = 0;
constexpr std::uint16_t clearQueue = 65535;

FrameQueue::Limits limitsOf(std::uint8_t setting)
{
    return {std::size_t{1} + (setting & 7U), std::size_t{256} << (setting >> 4 & 7U),
        (setting & 8U) != 0};
}

std::string headerOf(const Fragment& fragment)
{
    std::string out;
    putNumber(out, static_cast<std::uint8_t>(fragment.media));
    putNumber(out, static_cast<std::uint8_t>(fragment.last ? 1 : 0));
    putNumber(out, fragment.index);
    putNumber(out, fragment.frameNumber);
    putNumber(out, fragment.frameSize);
    return out;
}

void checkFragment(const Fragment& fragment, std::string_view packet)
{
    REQUIRE(fragment.frameSize >= 1 && fragment.frameSize <= maxFrameBytes);
    REQUIRE(!fragment.payload.empty() && fragment.payload.size() <= fragment.frameSize);
    REQUIRE(fragment.info.size() == (fragment.index == 0 ? frameInfoBytes : 0));
    REQUIRE(
        headerOf(fragment) + std::string(fragment.info) + std::string(fragment.payload) == packet);
}

// One medium's way from fragments to the client, watched.
class Lane
{
public:
    explicit Lane(const FrameQueue::Limits& limits)
        : limits_(limits)
        , queue_(limits)
    {
    }

    void take(const Fragment& fragment)
    {
        const std::string before = payloads_;
        if (fragment.index == 0)
            payloads_.clear();
        payloads_ += fragment.payload;
        std::vector<AssembledFrame> frames = assembler_.take(fragment);
        REQUIRE(frames.size() <= 2);
        for (AssembledFrame& frame : frames) {
            checkFrame(frame, before);
            queue_.put(std::move(frame));
            REQUIRE(queue_.size() <= 2 * limits_.frames + 1);
        }
    }

    void takeItem()
    {
        const auto item = queue_.take();
        if (!item)
            return;
        REQUIRE(*item || !markTaken_);
        markTaken_ = !*item;
    }

    void clear()
    {
        queue_.clear();
        REQUIRE(queue_.size() == 0);
        markTaken_ = false;
    }

    // What waits keeps within the limits.
    void drain()
    {
        std::size_t frames = 0;
        std::size_t bytes = 0;
        while (queue_.size() > 0) {
            auto item = queue_.take();
            REQUIRE(item);
            REQUIRE(*item || !markTaken_);
            markTaken_ = !*item;
            frames += *item ? 1 : 0;
            bytes += *item ? (*item)->bytes.size() : 0;
        }
        REQUIRE(frames <= limits_.frames && bytes <= limits_.bytes);
        REQUIRE(!queue_.take());
    }

private:
    // A frame is all that came of it in a row since its first fragment: it ends with the newest
    // fragment or broke off `before` it.
    void checkFrame(const AssembledFrame& frame, const std::string& before) const
    {
        REQUIRE(!frame.bytes.empty() && frame.bytes.size() <= frame.announcedSize);
        REQUIRE(frame.announcedSize <= maxFrameBytes);
        REQUIRE(frame.whole() || frame.bytes.capacity() == frame.bytes.size());
        const std::string_view bytes(frame.bytes.data(), frame.bytes.size());
        REQUIRE(bytes == payloads_ || bytes == before);
    }

    const FrameQueue::Limits limits_;
    Assembler assembler_;
    FrameQueue queue_;
    std::string payloads_; // since the last first fragment
    bool markTaken_ = false;
};

class Channel
{
public:
    explicit Channel(const FrameQueue::Limits& limits)
        : video_(limits)
        , sound_(limits)
    {
    }

    void command(std::uint16_t length)
    {
        for (Lane* lane : {&video_, &sound_}) {
            if (length == takeItem)
                lane->takeItem();
            else
                lane->clear();
        }
    }

    void packet(std::string_view bytes)
    {
        const auto packet = decodePacket(bytes);
        if (!packet)
            return;
        REQUIRE(bytes.size() <= packetBytes);
        if (const auto* control = std::get_if<Control>(&*packet)) {
            REQUIRE(!control->bytes.empty() && control->bytes.size() <= maxControlBytes);
            REQUIRE(encode(*control) == bytes);
        } else if (const auto* ack = std::get_if<ControlAck>(&*packet)) {
            REQUIRE(encode(*ack) == bytes);
        } else {
            const auto& fragment = std::get<Fragment>(*packet);
            checkFragment(fragment, bytes);
            (fragment.media == Media::Video ? video_ : sound_).take(fragment);
        }
    }

    void drain()
    {
        video_.drain();
        sound_.drain();
    }

private:
    Lane video_;
    Lane sound_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ByteReader reader(viewOf(data, size));
    Channel channel(limitsOf(reader.u8()));
    while (reader.ok() && !reader.rest().empty()) {
        const std::uint16_t length = reader.u16();
        if (length == takeItem || length == clearQueue)
            channel.command(length);
        else
            channel.packet(reader.take(std::min<std::size_t>(length, reader.rest().size())));
    }
    channel.drain();
    return 0;
}

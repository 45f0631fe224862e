// SPDX-License-Identifier: GPL-3.0-or-later
#include "src/avchannel.h"

#include "AVAPIs.h"

#include <algorithm>
#include <array>

namespace {

// What a client may leave waiting: 256 pictures are 10 s at 25 a second, 64 sounds 2.5 s.
constexpr FrameQueue::Limits videoLimits{256, std::size_t{8} << 20, true};
constexpr FrameQueue::Limits soundLimits{64, std::size_t{1} << 20, false};

// Sound that the device does not take: as much as it may leave waiting itself.
constexpr std::size_t maxUnconfirmedSounds = 64;

// How long to wait before a full send buffer is tried again.
constexpr std::chrono::milliseconds retryInterval{5};

template <typename Value>
void give(Value* output, Value value)
{
    if (output != nullptr)
        *output = value;
}

} // namespace

AvChannel::AvChannel(Kind kind, int session, std::uint8_t number)
    : kind_(kind)
    , session_(session)
    , number_(number)
    , video_(videoLimits)
    , sound_(soundLimits)
{
}

SRTSOCKET AvChannel::socket()
{
    const std::lock_guard lock(mutex_);
    return socket_.id();
}

bool AvChannel::isOpen()
{
    const std::lock_guard lock(mutex_);
    return open_;
}

bool AvChannel::adopt(SrtSocket socket)
{
    const std::lock_guard lock(mutex_);
    if (ended_ != 0)
        return false;
    socket_ = std::move(socket);
    return true;
}

bool AvChannel::connect(
    const Address& address, const std::string& streamId, std::chrono::milliseconds limit)
{
    return socket_.connect(address, streamId, limit);
}

int AvChannel::waitUntilOpen(Clock::time_point deadline)
{
    Lock lock(mutex_);
    changed_.wait_until(lock, deadline, [this] { return open_ || ended_ != 0; });
    if (ended_ != 0)
        return ended_;
    return open_ ? 0 : static_cast<int>(AV_NO_ANSWER);
}

void AvChannel::end(int result)
{
    {
        const std::lock_guard lock(mutex_);
        if (ended_ != 0)
            return;
        ended_ = result;
        video_.clear();
        sound_.clear();
        messages_.clear();
    }
    changed_.notify_all();
    socket_.close();
}

int AvChannel::ended()
{
    const std::lock_guard lock(mutex_);
    return ended_;
}

int AvChannel::sendControl(std::uint32_t type, std::string_view bytes)
{
    Lock lock(mutex_);
    const unsigned int exits = exits_;
    return transmit(lock, type, bytes, exits);
}

int AvChannel::transmit(Lock& lock, std::uint32_t type, std::string_view bytes, unsigned int exits)
{
    for (;;) {
        if (ended_ != 0)
            return ended_;
        if (exits_ != exits)
            return AV_SEND_ENDED;
        if (sent_ - acknowledged_ < controlWindow
            && socket_.send(encode(Control{sent_ + 1, type, bytes})) == SrtSocket::Io::Done)
            return awaitAck(lock, ++sent_, exits);
        changed_.wait_for(lock, retryInterval);
    }
}

int AvChannel::awaitAck(Lock& lock, std::uint32_t sequence, unsigned int exits)
{
    const auto taken = [&] { return static_cast<std::int32_t>(acknowledged_ - sequence) >= 0; };
    changed_.wait(lock, [&] { return taken() || ended_ != 0 || exits_ != exits; });
    if (taken())
        return 0;
    return ended_ != 0 ? ended_ : static_cast<int>(AV_SEND_ENDED);
}

void AvChannel::exitSends()
{
    {
        const std::lock_guard lock(mutex_);
        ++exits_;
    }
    changed_.notify_all();
}

int AvChannel::receiveControl(
    unsigned int* type, char* buffer, std::size_t capacity, std::chrono::milliseconds limit)
{
    Lock lock(mutex_);
    changed_.wait_for(lock, limit, [this] { return !messages_.empty() || ended_ != 0; });
    if (ended_ != 0)
        return ended_;
    if (messages_.empty())
        return AV_NO_ANSWER;
    const Message message = std::move(messages_.front());
    messages_.pop_front();
    // Only now the device may send another in its place. A burst is confirmed in few steps.
    confirm(messages_.empty() ? 1 : controlWindow / 4);
    if (message.bytes.size() > capacity)
        return AV_TOO_LARGE;
    std::copy(message.bytes.begin(), message.bytes.end(), buffer);
    *type = message.type;
    return static_cast<int>(message.bytes.size());
}

void AvChannel::confirm(std::uint32_t step)
{
    const std::uint32_t taken = received_ - static_cast<std::uint32_t>(messages_.size());
    if (taken - confirmed_ >= step
        && socket_.send(encode(ControlAck{taken})) == SrtSocket::Io::Done)
        confirmed_ = taken;
}

void AvChannel::flush()
{
    const std::lock_guard lock(mutex_);
    if (open_ && ended_ == 0)
        confirm(1);
}

int AvChannel::receiveFrame(Media media, const FrameTarget& target)
{
    const std::lock_guard lock(mutex_);
    if (ended_ != 0)
        return ended_;
    const auto item = (media == Media::Video ? video_ : sound_).take();
    if (!item)
        return AV_NOTHING_READY;
    return *item ? deliver(**item, target) : static_cast<int>(AV_FRAMES_LOST);
}

int AvChannel::deliver(const AssembledFrame& frame, const FrameTarget& target)
{
    give(target.expectedSize, static_cast<int>(frame.announcedSize));
    give(target.actualSize, static_cast<int>(frame.bytes.size()));
    if (!frame.whole())
        return AV_FRAME_IN_PART;
    if (frame.bytes.size() > static_cast<std::size_t>(target.capacity))
        return AV_TOO_LARGE;
    std::copy(frame.bytes.begin(), frame.bytes.end(), target.buffer);
    std::copy(frame.info.begin(), frame.info.end(), target.info);
    *target.number = frame.number;
    give(target.infoSize, static_cast<int>(frame.info.size()));
    return static_cast<int>(frame.bytes.size());
}

int AvChannel::waitingSounds()
{
    const std::lock_guard lock(mutex_);
    return ended_ != 0 ? ended_ : static_cast<int>(sound_.size());
}

void AvChannel::dropFrames(bool videoToo)
{
    const std::lock_guard lock(mutex_);
    sound_.clear();
    if (videoToo)
        video_.clear();
}

int AvChannel::sendSound(std::string_view info, std::string_view bytes)
{
    const std::lock_guard lock(mutex_);
    if (ended_ != 0)
        return ended_;
    const std::size_t packets = FragmentWriter::packetsFor(bytes.size());
    const std::size_t unconfirmed = socket_.unconfirmed().first;
    if (unconfirmed + packets > maxUnconfirmedSounds)
        return AV_QUEUE_FULL;
    FragmentWriter writer(Media::Audio, ++soundNumber_, info, bytes);
    while (!writer.done()) {
        if (socket_.send(writer.next()) != SrtSocket::Io::Done)
            return AV_QUEUE_FULL;
    }
    return 0;
}

unsigned int AvChannel::unconfirmedBytes()
{
    return static_cast<unsigned int>(socket_.unconfirmed().second);
}

void AvChannel::opened()
{
    {
        const std::lock_guard lock(mutex_);
        open_ = ended_ == 0;
    }
    changed_.notify_all();
}

SrtSocket::Io AvChannel::receive(char* buffer, std::string_view& packet)
{
    return socket_.receive(buffer, packet);
}

bool AvChannel::take(const Packet& packet)
{
    if (const auto* control = std::get_if<Control>(&packet))
        return take(*control);
    if (const auto* ack = std::get_if<ControlAck>(&packet))
        take(*ack);
    else
        take(std::get<Fragment>(packet));
    return true;
}

void AvChannel::take(const Fragment& fragment)
{
    const bool video = fragment.media == Media::Video;
    for (AssembledFrame& frame : (video ? videoAssembler_ : soundAssembler_).take(fragment)) {
        const std::lock_guard lock(mutex_);
        if (ended_ == 0)
            (video ? video_ : sound_).put(std::move(frame));
    }
}

bool AvChannel::take(const Control& control)
{
    {
        const std::lock_guard lock(mutex_);
        if (control.sequence != received_ + 1 || messages_.size() >= controlWindow)
            return false;
        received_ = control.sequence;
        if (ended_ == 0)
            messages_.push_back({control.type, std::string(control.bytes)});
    }
    changed_.notify_all();
    return true;
}

void AvChannel::take(const ControlAck& ack)
{
    {
        const std::lock_guard lock(mutex_);
        if (ack.sequence - acknowledged_ <= sent_ - acknowledged_)
            acknowledged_ = ack.sequence;
    }
    changed_.notify_all();
}

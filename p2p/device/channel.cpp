// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/channel.h"

#include <utility>

namespace {

// A client that takes no messages would let them pile up without end.
constexpr std::size_t maxWaitingControls = 1024;

// Live pictures older than this help nobody: rather skip to the next key frame.
constexpr std::chrono::seconds maxAge{2};

// Sound still fits when pictures do not any more, and control messages when sound does not.
constexpr std::size_t videoReserve = 64;
constexpr std::size_t audioReserve = 32;

std::string_view viewOf(const std::vector<std::uint8_t>& bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace

Channel::Channel(std::weak_ptr<ChannelHost> host, SrtSocket socket, int number,
    std::uint64_t session, std::string peer)
    : host_(std::move(host))
    , number_(number)
    , session_(session)
    , peer_(std::move(peer))
    , id_(socket.id())
    , socket_(std::move(socket))
{
}

Channel::Sent Channel::sendVideo(const LinkFrame& frame)
{
    const std::lock_guard lock(mutex_);
    // The number counts also what is dropped: by the gap the client sees the loss.
    ++videoNumber_;
    if (waitingForKey_ && !frame.key)
        return socket_ ? Sent::Dropped : Sent::Closed;
    const Sent sent = send(Media::Video, frame, videoReserve);
    waitingForKey_ = sent != Sent::Queued;
    return sent;
}

Channel::Sent Channel::sendAudio(const LinkFrame& frame)
{
    const std::lock_guard lock(mutex_);
    ++audioNumber_;
    return send(Media::Audio, frame, audioReserve);
}

Channel::Sent Channel::send(Media media, const LinkFrame& frame, std::size_t reserve)
{
    if (!socket_)
        return Sent::Closed;
    const std::size_t packets = FragmentWriter::packetsFor(frame.bytes.size());
    if (silent_ || frame.bytes.empty() || frame.bytes.size() > maxFrameBytes
        || !hasRoom(packets, reserve))
        return Sent::Dropped;
    return write(media, media == Media::Video ? videoNumber_ : audioNumber_, frame);
}

bool Channel::hasRoom(std::size_t packets, std::size_t reserve)
{
    const std::size_t unconfirmed = socket_.unconfirmed().first;
    return unconfirmed + packets + reserve <= senderPackets
        && backlog_.age(unconfirmed, Backlog::Clock::now()) <= maxAge;
}

Channel::Sent Channel::write(Media media, std::uint32_t number, const LinkFrame& frame)
{
    const std::string_view info(
        reinterpret_cast<const char*>(frame.info.data()), frame.info.size());
    FragmentWriter writer(media, number, info, viewOf(frame.bytes));
    const std::size_t unconfirmed = socket_.unconfirmed().first;
    std::size_t written = 0;
    while (!writer.done() && socket_.send(writer.next()) == SrtSocket::Io::Done)
        ++written;
    backlog_.sent(written, unconfirmed, Backlog::Clock::now());
    return writer.done() && written == FragmentWriter::packetsFor(frame.bytes.size())
        ? Sent::Queued
        : Sent::Dropped;
}

bool Channel::sendControl(std::uint32_t type, std::string_view bytes)
{
    if (bytes.empty() || bytes.size() > maxControlBytes)
        return false;
    std::unique_lock lock(mutex_);
    if (!socket_)
        return false;
    if (controls_.size() >= maxWaitingControls) {
        lock.unlock();
        closeSession();
        return false;
    }
    controls_.push_back(encode(Control{++controlNumber_, type, bytes}));
    flush();
    return true;
}

// Sends what may be sent of acknowledgements and messages; comes back later for the rest.
void Channel::flush()
{
    while (flushOne()) { }
    const bool blocked =
        ackToSend_ || (!controls_.empty() && controlSent_ - controlAcknowledged_ < controlWindow);
    if (!blocked || silent_ || !socket_ || flushing_)
        return;
    const auto host = host_.lock();
    if (!host)
        return;
    flushing_ = true;
    host->later([self = shared_from_this()] {
        const std::lock_guard lock(self->mutex_);
        self->flushing_ = false;
        self->flush();
    });
}

bool Channel::flushOne()
{
    if (!socket_ || silent_)
        return false;
    const std::size_t unconfirmed = socket_.unconfirmed().first;
    if (ackToSend_) {
        if (socket_.send(encode(ControlAck{*ackToSend_})) != SrtSocket::Io::Done)
            return false;
        backlog_.sent(1, unconfirmed, Backlog::Clock::now());
        ackToSend_.reset();
        return true;
    }
    if (controls_.empty() || controlSent_ - controlAcknowledged_ >= controlWindow
        || socket_.send(controls_.front()) != SrtSocket::Io::Done)
        return false;
    backlog_.sent(1, unconfirmed, Backlog::Clock::now());
    controls_.pop_front();
    ++controlSent_;
    return true;
}

SrtSocket::Io Channel::receive(char* buffer, std::string_view& packet)
{
    // Only the event thread closes the socket, so that no lock is needed to read from it.
    return socket_.receive(buffer, packet);
}

bool Channel::isNextControl(std::uint32_t sequence)
{
    return sequence == ++lastReceived_;
}

void Channel::acknowledge(std::uint32_t sequence)
{
    const std::lock_guard lock(mutex_);
    ackToSend_ = sequence;
    flush();
}

bool Channel::acknowledged(std::uint32_t sequence)
{
    const std::lock_guard lock(mutex_);
    if (sequence - controlAcknowledged_ > controlSent_ - controlAcknowledged_)
        return false;
    controlAcknowledged_ = sequence;
    flush();
    return true;
}

void Channel::joinSpeech(int speechNumber)
{
    if (const auto host = host_.lock())
        host->joinSpeech(session_, id_, static_cast<std::uint8_t>(speechNumber));
}

void Channel::leaveSpeech()
{
    if (const auto host = host_.lock())
        host->leaveSpeech(session_);
}

int Channel::offerChannel()
{
    const auto host = host_.lock();
    return host ? host->offerChannel(session_) : -1;
}

void Channel::takeBackChannel(int number)
{
    if (const auto host = host_.lock())
        host->takeBackChannel(session_, number);
}

void Channel::close()
{
    if (const auto host = host_.lock())
        host->endChannel(id_);
}

void Channel::closeSession()
{
    if (const auto host = host_.lock())
        host->endSession(session_);
}

void Channel::sendRaw(std::string_view datagram)
{
    const std::lock_guard lock(mutex_);
    if (socket_)
        socket_.send(datagram);
}

void Channel::loseVideo()
{
    const std::lock_guard lock(mutex_);
    ++videoNumber_;
}

void Channel::setSilent(bool silent)
{
    const std::lock_guard lock(mutex_);
    silent_ = silent;
    flush();
}

void Channel::pace()
{
    const std::lock_guard lock(mutex_);
    if (!socket_)
        return;
    const auto [sent, repeated] = socket_.takeSent();
    const std::uint64_t confirmed = backlog_.confirmed(socket_.unconfirmed().first);
    const auto arrived = static_cast<std::int64_t>(confirmed - confirmed_);
    confirmed_ = confirmed;
    const std::int64_t before = pacer_.limit();
    const std::int64_t limit =
        pacer_.next({sent, repeated, arrived * static_cast<std::int64_t>(packetBytes)});
    if (limit != before)
        socket_.limitRate(limit);
}

void Channel::shut()
{
    const std::lock_guard lock(mutex_);
    socket_ = SrtSocket();
    controls_.clear();
    ackToSend_.reset();
}

// SPDX-License-Identifier: GPL-3.0-or-later
// The layer's one thread: waits for every socket and moves on what has a time.
#include "src/layer.h"

#include "wire/limits.h"

#include <array>
#include <utility>

namespace {

// How late a time limit may be noticed.
constexpr std::chrono::milliseconds tick{10};
constexpr std::chrono::milliseconds keepAliveTick{100};

int openingResult(int rejectReason)
{
    switch (rejectReason) {
    case SRT_REJ_BADSECRET:
    case SRT_REJ_UNSECURE: // the device says that it cannot read us
        return AV_WRONG_PASSWORD;
    case static_cast<int>(Refusal::LockedOut):
        return AV_LOCKED_OUT;
    case static_cast<int>(Refusal::Full):
        return AV_NO_FREE_CHANNEL;
    case static_cast<int>(Refusal::UnknownDevice):
    case static_cast<int>(Refusal::UnknownSession):
        return AV_DEVICE_GONE;
    default:
        return AV_NO_ANSWER;
    }
}

} // namespace

void Layer::run()
{
    while (!stopping_) {
        for (const SrtPoll::Event& event : poll_.wait(tick))
            dispatch(event);
        const auto now = Clock::now();
        lookAround(now);
        keepAlive(now);
    }
}

void Layer::dispatch(const SrtPoll::Event& event)
{
    Lock lock(mutex_);
    const auto owner = owners_.find(event.socket);
    if (owner == owners_.end()) {
        poll_.remove(event.socket);
        return;
    }
    if (const ChannelPtr channel = owner->second.channel) {
        lock.unlock();
        channelEvent(channel, event);
        return;
    }
    const int id = owner->second.session;
    ClientSession* session = sessionWith(id);
    if (session->attempt && session->attempt->phase == Attempt::Phase::Shaking)
        shaken(id, *session, event);
    else
        readSession(id, *session);
}

void Layer::channelEvent(const ChannelPtr& channel, const SrtPoll::Event& event)
{
    if (!channel->isOpen()) {
        if (event.broken) {
            channel->end(openingResult(channel->rejectReason()));
            return;
        }
        if (!event.writable)
            return;
        poll_.watchReadOnly(event.socket);
        poll_.expectData(event.socket);
        channel->opened();
    }
    readChannel(channel);
}

void Layer::readSession(int id, ClientSession& session)
{
    std::array<char, packetBytes> buffer{};
    std::string_view message;
    for (int i = 0; i < readsInARow; ++i) {
        const auto io = session.socket.receive(buffer.data(), message);
        if (io == SrtSocket::Io::Later)
            return;
        if (io == SrtSocket::Io::Done && handle(id, session, message)) {
            session.heard = Clock::now();
            poll_.expectData(session.socket.id());
            continue;
        }
        if (session.attempt)
            fail(id, session, IOTC_NOT_CONNECTED);
        else
            loseSession(id, session);
        return;
    }
}

bool Layer::handle(int id, ClientSession& session, std::string_view bytes)
{
    const auto message = decodeSessionMessage(bytes);
    if (!message)
        return false;
    if (const auto* hello = std::get_if<Hello>(&*message)) {
        if (!session.attempt)
            return false;
        session.hello = *hello;
        succeed(id, session);
    } else if (const auto* join = std::get_if<JoinSpeech>(&*message)) {
        session.joins.insert(join->number);
        joined_.notify_all();
    } else if (const auto* leave = std::get_if<LeaveSpeech>(&*message)) {
        session.joins.erase(leave->number);
    }
    return true;
}

void Layer::readChannel(const ChannelPtr& channel)
{
    std::array<char, packetBytes> buffer{};
    std::string_view bytes;
    for (int i = 0; i < readsInARow; ++i) {
        const auto io = channel->receive(buffer.data(), bytes);
        if (io == SrtSocket::Io::Later)
            return;
        if (io == SrtSocket::Io::Broken) {
            channel->end(AV_DEVICE_GONE);
            return;
        }
        if (i == 0)
            heardFrom(channel->session(), channel->socket());
        const auto packet = decodePacket(bytes);
        if (packet && channel->take(*packet))
            continue;
        const Lock lock(mutex_);
        // Once the channel has ended, the id may be another session's.
        ClientSession* session = sessionWith(channel->session());
        if (channel->ended() == 0 && session != nullptr)
            loseSession(channel->session(), *session);
        return;
    }
}

void Layer::heardFrom(int id, SRTSOCKET socket)
{
    poll_.expectData(socket);
    const Lock lock(mutex_);
    if (ClientSession* session = sessionWith(id))
        session->heard = Clock::now();
}

void Layer::keepAlive(Clock::time_point now)
{
    const Lock lock(mutex_);
    if (now - lastKeepAlive_ < keepAliveTick)
        return;
    lastKeepAlive_ = now;
    for (const auto& [index, channel] : channels_)
        channel->flush();
    for (auto& [id, session] : sessions_) {
        if (session.state != State::Connected)
            continue;
        if (now - session.heard > silenceLimit) {
            loseSession(id, session);
        } else if (now - session.told >= aliveInterval) {
            session.told = now;
            session.socket.send(encode(Alive{}));
        }
    }
}

void Layer::lookAround(Clock::time_point now)
{
    const auto answers = searcher_->answers();
    const Lock lock(mutex_);
    for (const Searcher::Found& answer : answers)
        found(answer);
    if (search_)
        search_->asking.askIfDue(*searcher_, now);
    for (auto& [id, session] : sessions_) {
        if (session.attempt)
            advance(id, session, now);
    }
}

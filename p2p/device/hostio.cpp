// SPDX-License-Identifier: GPL-3.0-or-later
// The host's connections: whom it lets in, and what it does with what they send.
#include "device/host.h"

#include "wire/keys.h"
#include "wire/limits.h"

#include <array>
#include <cstring>
#include <utility>
#include <variant>

namespace {

std::optional<Address> addressOf(const sockaddr* peer)
{
    if (peer == nullptr || peer->sa_family != AF_INET)
        return std::nullopt;
    sockaddr_in address{};
    std::memcpy(&address, peer, sizeof address);
    return Address(address);
}

LinkFrame frameFrom(AssembledFrame&& assembled)
{
    LinkFrame frame;
    std::copy(assembled.info.begin(), assembled.info.end(), frame.info.begin());
    frame.bytes.assign(assembled.bytes.begin(), assembled.bytes.end());
    frame.key = assembled.key();
    return frame;
}

} // namespace

// Runs on SRT's receiving thread, before the connection exists.
int Host::admit(
    void* context, SRTSOCKET socket, int /*version*/, const sockaddr* peer, const char* streamId)
{
    auto& host = *static_cast<Host*>(context);
    const auto address = addressOf(peer);
    std::variant<std::string, Refusal> decision = Refusal::Malformed;
    const auto id = decodeStreamId(streamId != nullptr ? streamId : "");
    if (address) {
        if (const auto* known = std::get_if<StreamId>(&id))
            decision = host.directory_.decide(*known, address->ip());
        else
            decision = std::get<Refusal>(id);
    }
    if (const auto* refusal = std::get_if<Refusal>(&decision)) {
        srt_setrejectreason(socket, static_cast<int>(*refusal));
        return -1;
    }
    auto& passphrase = std::get<std::string>(decision);
    // A caller with another key is let in as far as accept(), so that it can be told from one
    // whose connection breaks.
    const bool enforced = false;
    const bool ready = srt_setsockflag(socket, SRTO_PASSPHRASE, passphrase.data(),
                           static_cast<int>(passphrase.size()))
            == 0
        && srt_setsockflag(socket, SRTO_ENFORCEDENCRYPTION, &enforced, sizeof enforced) == 0;
    wipe(passphrase);
    if (!ready)
        return -1;
    const std::lock_guard lock(host.callersMutex_);
    host.callers_[socket] = {std::get<StreamId>(id).uid, *address};
    return 0;
}

// A wrong key shows in the state of the connection, which may be over before it is accepted. SRT is
// asked without the mutex, which its own thread takes with its locks held.
void Host::checkCallers()
{
    std::unique_lock lock(callersMutex_);
    const std::map<SRTSOCKET, Caller> callers = callers_;
    lock.unlock();
    for (const auto& [socket, caller] : callers) {
        const auto key = SrtSocket::keyOf(socket);
        if (key == SrtSocket::Key::Unknown)
            continue;
        lock.lock();
        const bool forgotten = callers_.erase(socket) != 0;
        lock.unlock();
        if (key != SrtSocket::Key::Wrong || !forgotten)
            continue;
        const bool locked = directory_.wrongPassword(caller.uid, caller.peer.ip());
        if (Handler* handler = directory_.handlerOf(caller.uid))
            handler->wrongPassword(caller.peer.text(), locked);
    }
}

void Host::dispatch(const SrtPoll::Event& event)
{
    if (event.socket == listener_.id()) {
        acceptAll();
        return;
    }
    Session* session = sessionOf(event.socket);
    if (session == nullptr) {
        poll_.remove(event.socket);
        return;
    }
    const auto channel = session->channels.find(event.socket);
    if (channel != session->channels.end())
        readChannel(*session, channel->second);
    else if (event.socket == session->socket.id())
        readSession(*session);
    else
        readSpeech(*session);
}

void Host::acceptAll()
{
    // Before accept() closes those whose key is wrong.
    checkCallers();
    while (auto socket = listener_.accept())
        accept(std::move(*socket));
}

void Host::accept(SrtSocket socket)
{
    const auto peer = socket.peer();
    const auto decoded = decodeStreamId(socket.streamId());
    const auto* id = std::get_if<StreamId>(&decoded);
    if (!peer || id == nullptr)
        return;
    if (!socket.secured())
        return; // checkCallers() counts it
    {
        const std::lock_guard lock(callersMutex_);
        callers_.erase(socket.id());
    }
    if (id->kind == StreamId::Kind::Session)
        acceptSession(std::move(socket), *id, *peer);
    else
        acceptChannel(std::move(socket), *id, *peer);
}

void Host::acceptSession(SrtSocket socket, const StreamId& id, const Address& peer)
{
    Handler* handler = directory_.handlerOf(id.uid);
    if (handler == nullptr || !handler->admit(peer.text())
        || !directory_.openSession(id.token, id.uid, peer.ip()))
        return;
    Session session;
    session.id = ++lastSession_;
    session.uid = id.uid;
    session.token = id.token;
    session.heard = session.told = Clock::now();
    session.socket = std::move(socket);
    session.socket.send(encode(directory_.helloOf(id.uid)));
    owners_[session.socket.id()] = session.id;
    poll_.add(session.socket.id(), false);
    {
        const std::lock_guard lock(handOverMutex_);
        tokens_[session.id] = session.token;
    }
    sessions_.emplace(session.id, std::move(session));
}

void Host::acceptChannel(SrtSocket socket, const StreamId& id, const Address& peer)
{
    Session* session = sessionWith(id.token);
    Handler* handler = directory_.handlerOf(id.uid);
    // The session may be another one by now than the one that the connection was let in for.
    if (session == nullptr || handler == nullptr || session->uid != id.uid)
        return;
    if (id.kind == StreamId::Kind::Speech) {
        acceptSpeech(std::move(socket), *session, id);
        return;
    }
    // A client that starts a channel again may be faster than the end of the old connection.
    for (const auto& [name, old] : session->channels) {
        if (old->number() == id.number) {
            closeChannel(*session, old, Number::StaysOpen);
            break;
        }
    }
    directory_.channelOpened(id.token);
    auto channel = std::make_shared<Channel>(
        weak_from_this(), std::move(socket), id.number, session->id, peer.text());
    session->channels.emplace(channel->id(), channel);
    owners_[channel->id()] = session->id;
    poll_.add(channel->id(), false);
    handler->channelOpened(channel);
}

void Host::acceptSpeech(SrtSocket socket, Session& session, const StreamId& id)
{
    if (!session.speech || session.speech->number != id.number || session.speech->socket)
        return;
    owners_[socket.id()] = session.id;
    poll_.add(socket.id(), false);
    session.speech->socket = std::move(socket);
}

void Host::heardFrom(Session& session, SRTSOCKET socket)
{
    session.heard = Clock::now();
    poll_.expectData(socket);
}

void Host::readSession(Session& session)
{
    std::array<char, packetBytes> buffer{};
    std::string_view message;
    for (int i = 0; i < readsInARow; ++i) {
        const auto io = session.socket.receive(buffer.data(), message);
        if (io == SrtSocket::Io::Later)
            return;
        if (i == 0)
            heardFrom(session, session.socket.id());
        if (io == SrtSocket::Io::Broken || !handle(session, message)) {
            closeSession(session.id);
            return;
        }
    }
}

bool Host::handle(Session& session, std::string_view bytes)
{
    const auto message = decodeSessionMessage(bytes);
    if (!message)
        return false;
    if (const auto* refuse = std::get_if<RefuseSpeech>(&*message)) {
        if (session.speech && session.speech->number == refuse->number)
            closeSpeech(session);
        return true;
    }
    return std::holds_alternative<Alive>(*message);
}

void Host::readChannel(Session& session, const std::shared_ptr<Channel>& held)
{
    const std::shared_ptr<Channel> channel = held->shared_from_this(); // a handler may close it
    const std::uint64_t sessionId = session.id;
    std::array<char, packetBytes> buffer{};
    std::string_view packet;
    for (int i = 0; i < readsInARow; ++i) {
        const auto io = channel->receive(buffer.data(), packet);
        if (io == SrtSocket::Io::Later)
            return;
        if (io == SrtSocket::Io::Broken) {
            closeChannel(session, channel, Number::GoesBack);
            return;
        }
        if (i == 0)
            heardFrom(session, channel->id());
        if (!handle(channel, packet)) {
            closeSession(sessionId);
            return;
        }
    }
}

bool Host::handle(const std::shared_ptr<Channel>& channel, std::string_view bytes)
{
    const auto packet = decodePacket(bytes);
    if (!packet)
        return false;
    if (const auto* ack = std::get_if<ControlAck>(&*packet))
        return channel->acknowledged(ack->sequence);
    const auto* control = std::get_if<Control>(&*packet);
    if (control == nullptr || !channel->isNextControl(control->sequence))
        return false;
    const Session* session = sessionOf(channel->id());
    Handler* handler = session == nullptr ? nullptr : directory_.handlerOf(session->uid);
    if (handler != nullptr && handler->controlReceived(channel, control->type, control->bytes))
        channel->acknowledge(control->sequence);
    return true;
}

void Host::readSpeech(Session& session)
{
    std::array<char, packetBytes> buffer{};
    std::string_view bytes;
    for (int i = 0; i < readsInARow && session.speech; ++i) {
        const auto io = session.speech->socket.receive(buffer.data(), bytes);
        if (io == SrtSocket::Io::Later)
            return;
        if (io == SrtSocket::Io::Broken) {
            closeSpeech(session);
            return;
        }
        if (i == 0)
            heardFrom(session, session.speech->socket.id());
        const auto packet = decodePacket(bytes);
        const auto* fragment = packet ? std::get_if<Fragment>(&*packet) : nullptr;
        if (fragment == nullptr || fragment->media != Media::Audio) {
            closeSession(session.id);
            return;
        }
        for (AssembledFrame& frame : session.speech->assembler.take(*fragment)) {
            if (Handler* handler = frame.whole() ? directory_.handlerOf(session.uid) : nullptr)
                handler->speechReceived(session.speech->listener, frameFrom(std::move(frame)));
        }
    }
}

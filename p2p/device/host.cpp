// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/host.h"

#include "wire/limits.h"

#include <array>
#include <future>
#include <system_error>
#include <utility>

namespace {

// How long a hand-over or a search may wait for the event thread.
constexpr std::chrono::milliseconds tick{10};
constexpr std::chrono::milliseconds keepAliveTick{100};

} // namespace

bool Host::start(const LinkHostSettings& settings, std::string& error)
{
    if (!poll_ || !listen(settings, error) || !openSearch(settings, error)) {
        if (error.empty())
            error = "no poll to wait with";
        return false;
    }
    poll_.add(listener_.id(), false);
    try {
        thread_ = std::thread([this] { run(); });
    } catch (const std::system_error&) {
        error = "the system gives no thread";
        return false;
    }
    return true;
}

bool Host::listen(const LinkHostSettings& settings, std::string& error)
{
    const auto address = Address::parse(settings.address, settings.port);
    if (!address) {
        error = "not an IPv4 address: " + settings.address;
        return false;
    }
    loopbackOnly_ = settings.loopbackOnly || address->isLoopback();
    listener_ = SrtSocket::make(SrtUse::FrameSender, {});
    if (!listener_ || !listener_.bind(*address) || !listener_.listen(&Host::admit, this)) {
        error = "cannot listen on UDP " + address->text() + ": " + srt_getlasterror_str();
        return false;
    }
    port_ = listener_.boundTo().value_or(Address()).port();
    return true;
}

bool Host::openSearch(const LinkHostSettings& settings, std::string& error)
{
    if (!settings.answerSearch)
        return true;
    search_ = UdpSocket::bound(Address::any(searchPort), true);
    if (!search_)
        error = "cannot listen for searches on UDP port " + std::to_string(searchPort);
    return static_cast<bool>(search_);
}

void Host::stop()
{
    stopping_ = true;
    if (thread_.joinable())
        thread_.join();
    listener_ = SrtSocket();
    while (!sessions_.empty())
        closeSession(sessions_.begin()->first);
}

void Host::withdraw(const std::string& uid)
{
    const auto end = [this, uid] {
        closeSessionsOf(uid);
        directory_.withdraw(uid);
    };
    if (std::this_thread::get_id() == thread_.get_id()) {
        // The handler that calls is inside one of these sessions.
        later(end);
        return;
    }
    std::promise<void> done;
    later([&] {
        end();
        done.set_value();
    });
    done.get_future().wait();
}

void Host::setSilent(const std::string& uid, bool silent)
{
    directory_.setSilent(uid, silent);
    later([this, uid, silent] { silence(uid, silent); });
}

void Host::later(std::function<void()> work)
{
    const std::lock_guard lock(handOverMutex_);
    handedOver_.push_back(std::move(work));
}

void Host::endChannel(SRTSOCKET channel)
{
    later([this, channel] {
        Session* session = sessionOf(channel);
        if (session != nullptr && session->channels.count(channel) != 0)
            closeChannel(*session, session->channels[channel], Number::GoesBack);
    });
}

void Host::endSession(std::uint64_t session)
{
    later([this, session] { closeSession(session); });
}

void Host::joinSpeech(std::uint64_t sessionId, SRTSOCKET channel, std::uint8_t number)
{
    later([=] {
        Session* session = sessionWith(sessionId);
        if (session == nullptr || session->channels.count(channel) == 0)
            return;
        closeSpeech(*session);
        session->speech.emplace();
        session->speech->number = number;
        session->speech->listener = session->channels[channel];
        directory_.expectSpeech(session->token, number);
        session->socket.send(encode(JoinSpeech{number}));
    });
}

void Host::leaveSpeech(std::uint64_t sessionId)
{
    later([=] {
        Session* session = sessionWith(sessionId);
        if (session == nullptr || !session->speech)
            return;
        session->socket.send(encode(LeaveSpeech{session->speech->number}));
        closeSpeech(*session);
    });
}

int Host::offerChannel(std::uint64_t session)
{
    const std::lock_guard lock(handOverMutex_);
    const auto token = tokens_.find(session);
    return token == tokens_.end() ? -1 : directory_.offerChannel(token->second);
}

void Host::takeBackChannel(std::uint64_t session, int number)
{
    const std::lock_guard lock(handOverMutex_);
    const auto token = tokens_.find(session);
    if (token != tokens_.end())
        directory_.takeBackChannel(token->second, number);
}

void Host::run()
{
    while (!stopping_) {
        for (const SrtPoll::Event& event : poll_.wait(tick))
            dispatch(event);
        checkCallers();
        runHandedOver();
        answerSearches();
        keepAlive();
    }
    // Whoever waits for a withdrawal must not wait for ever.
    runHandedOver();
}

void Host::runHandedOver()
{
    std::vector<std::function<void()>> work;
    {
        const std::lock_guard lock(handOverMutex_);
        work.swap(handedOver_);
    }
    for (const auto& piece : work)
        piece();
}

void Host::answerSearches()
{
    if (!search_)
        return;
    std::array<char, searchDatagramBytes + 1> buffer{};
    std::string_view datagram;
    for (int i = 0; i < readsInARow; ++i) {
        const auto from = search_.receive(buffer.data(), buffer.size(), datagram);
        if (!from)
            return;
        const auto query = decodeSearchQuery(datagram);
        if (!query || (loopbackOnly_ && !from->isLoopback()))
            continue;
        for (const SearchAnswer& answer : directory_.answersTo(*query, port_)) {
            const SearchDatagram bytes = encode(answer);
            search_.send(*from, {bytes.data(), bytes.size()});
        }
    }
}

void Host::keepAlive()
{
    const auto now = Clock::now();
    if (now - lastKeepAlive_ < keepAliveTick)
        return;
    lastKeepAlive_ = now;
    std::vector<std::uint64_t> dead;
    for (auto& [id, session] : sessions_) {
        if (directory_.isSilent(session.uid))
            continue;
        if (now - session.heard > silenceLimit) {
            dead.push_back(id);
        } else if (now - session.told >= aliveInterval) {
            session.told = now;
            session.socket.send(encode(Alive{}));
            for (const auto& [socket, channel] : session.channels)
                channel->pace();
        }
    }
    for (const std::uint64_t id : dead)
        closeSession(id);
}

void Host::closeChannel(Session& session, const std::shared_ptr<Channel>& held, Number number)
{
    const std::shared_ptr<Channel> channel =
        held->shared_from_this(); // `held` may be what is erased
    poll_.remove(channel->id());
    owners_.erase(channel->id());
    session.channels.erase(channel->id());
    if (number == Number::GoesBack)
        directory_.takeBackChannel(session.token, channel->number());
    if (session.speech && session.speech->listener == channel)
        closeSpeech(session);
    channel->shut();
    if (Handler* handler = directory_.handlerOf(session.uid))
        handler->channelClosed(channel);
}

void Host::closeSpeech(Session& session)
{
    if (!session.speech)
        return;
    if (session.speech->socket) {
        poll_.remove(session.speech->socket.id());
        owners_.erase(session.speech->socket.id());
    }
    directory_.expectSpeech(session.token, std::nullopt);
    session.speech.reset();
}

void Host::closeSession(std::uint64_t id)
{
    const auto found = sessions_.find(id);
    if (found == sessions_.end())
        return;
    Session& session = found->second;
    while (!session.channels.empty())
        closeChannel(session, session.channels.begin()->second, Number::GoesBack);
    closeSpeech(session);
    poll_.remove(session.socket.id());
    owners_.erase(session.socket.id());
    directory_.closeSession(session.token);
    {
        const std::lock_guard lock(handOverMutex_);
        tokens_.erase(id);
    }
    sessions_.erase(found);
}

void Host::closeSessionsOf(const std::string& uid)
{
    std::vector<std::uint64_t> ids;
    for (const auto& [id, session] : sessions_) {
        if (session.uid == uid)
            ids.push_back(id);
    }
    for (const std::uint64_t id : ids)
        closeSession(id);
}

void Host::silence(const std::string& uid, bool silent)
{
    for (auto& [id, session] : sessions_) {
        if (session.uid != uid)
            continue;
        session.heard = Clock::now();
        for (const auto& [socket, channel] : session.channels)
            channel->setSilent(silent);
        for (const auto& [socket, owner] : owners_) {
            if (owner != id)
                continue;
            if (silent)
                poll_.remove(socket);
            else
                poll_.add(socket, false);
        }
    }
}

Session* Host::sessionOf(SRTSOCKET socket)
{
    const auto owner = owners_.find(socket);
    return owner == owners_.end() ? nullptr : sessionWith(owner->second);
}

Session* Host::sessionWith(std::uint64_t id)
{
    const auto found = sessions_.find(id);
    return found == sessions_.end() ? nullptr : &found->second;
}

Session* Host::sessionWith(const SessionToken& token)
{
    for (auto& [id, session] : sessions_) {
        if (session.token == token)
            return &session;
    }
    return nullptr;
}

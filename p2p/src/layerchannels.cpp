// SPDX-License-Identifier: GPL-3.0-or-later
// How the layer opens and closes AV channels.
#include "src/layer.h"

#include "wire/keys.h"

#include <utility>

int Layer::setMaxChannels(int count)
{
    int none = 0;
    return maxChannels_.compare_exchange_strong(none, count)
        ? count
        : static_cast<int>(AV_ALREADY_INITIALIZED);
}

std::shared_ptr<AvChannel> Layer::channel(int avIndex)
{
    const Lock lock(mutex_);
    const auto found = channels_.find(avIndex);
    return found != channels_.end() && found->second->isOpen() ? found->second : nullptr;
}

int Layer::reserve(const ChannelPtr& channel, int& avIndex)
{
    const Lock lock(mutex_);
    if (stopping_)
        return AV_NOT_INITIALIZED;
    if (const int state = stateOf(channel->session()); state < 0)
        return state;
    avIndex = 0;
    for (const auto& [taken, other] : channels_) {
        if (other->session() == channel->session() && other->number() == channel->number()
            && other->kind() == channel->kind())
            return AV_CHANNEL_OPEN;
        if (taken == avIndex)
            ++avIndex;
    }
    if (avIndex >= maxChannels_)
        return AV_NO_FREE_CHANNEL;
    channels_[avIndex] = channel;
    return 0;
}

int Layer::settle(int avIndex, const ChannelPtr& channel, int result)
{
    if (result == 0)
        return avIndex;
    const Lock lock(mutex_);
    owners_.erase(channel->socket());
    const auto found = channels_.find(avIndex);
    if (found != channels_.end() && found->second == channel)
        channels_.erase(found);
    // Whatever has ended it before tells more.
    channel->end(result);
    return channel->ended();
}

int Layer::startClient(int id, const char* account, const char* password,
    std::chrono::seconds limit, std::uint8_t number)
{
    const auto deadline = Clock::now() + limit;
    const auto channel = std::make_shared<AvChannel>(AvChannel::Kind::Client, id, number);
    int avIndex = 0;
    if (const int refusal = reserve(channel, avIndex); refusal < 0)
        return refusal;
    std::string key = keyFor(id, account, password);
    const int result = link(channel, StreamId::Kind::Channel, key, deadline);
    if (result == 0)
        remember(channel, account, password, key);
    wipe(key);
    return settle(avIndex, channel, result);
}

int Layer::startServer(
    int id, AV_AuthCallback auth, std::chrono::seconds limit, std::uint8_t number)
{
    const auto deadline = Clock::now() + limit;
    const auto channel = std::make_shared<AvChannel>(AvChannel::Kind::Server, id, number);
    int avIndex = 0;
    if (const int refusal = reserve(channel, avIndex); refusal < 0)
        return refusal;
    int result = awaitJoin(channel, auth, deadline);
    if (result == 0) {
        std::unique_lock lock(mutex_);
        const ClientSession* session = sessionWith(id);
        std::string key = session == nullptr ? std::string() : session->key;
        lock.unlock();
        result = link(channel, StreamId::Kind::Speech, key, deadline);
        wipe(key);
    }
    return settle(avIndex, channel, result);
}

std::string Layer::keyFor(int id, const std::string& account, const std::string& password)
{
    std::unique_lock lock(mutex_);
    const ClientSession* session = sessionWith(id);
    if (session == nullptr)
        return {};
    if (!session->key.empty() && session->account == account && session->password == password)
        return session->key;
    const std::string uid = session->uid;
    const Hello hello = session->hello;
    lock.unlock();
    return accountPassphrase(uid, account, password, hello.salt, hello.keyRounds);
}

// The next channel rarely has another account, and the key of a speech channel is that of the one
// that was opened last.
void Layer::remember(
    const ChannelPtr& channel, const char* account, const char* password, const std::string& key)
{
    const Lock lock(mutex_);
    ClientSession* session = sessionWith(channel->session());
    if (session == nullptr || channel->ended() != 0)
        return;
    wipe(session->password);
    wipe(session->key);
    session->account = account;
    session->password = password;
    session->key = key;
}

int Layer::link(const ChannelPtr& channel, StreamId::Kind kind, const std::string& key,
    Clock::time_point deadline)
{
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    if (left.count() <= 0)
        return AV_NO_ANSWER;
    SrtSocket socket = SrtSocket::make(SrtUse::FrameReceiver, key);
    if (key.empty() || !socket || !socket.bind(local_))
        return AV_NO_MEMORY;
    {
        const Lock lock(mutex_);
        const ClientSession* session = sessionWith(channel->session());
        const SRTSOCKET id = socket.id();
        if (session == nullptr || !channel->adopt(std::move(socket)))
            return channel->waitUntilOpen(deadline);
        owners_[id] = {channel->session(), channel};
        poll_.add(id, true);
        const StreamId name{kind, session->uid, session->token, channel->number()};
        if (!channel->connect(session->address, encode(name), left))
            return AV_NO_ANSWER;
    }
    return channel->waitUntilOpen(deadline);
}

int Layer::awaitJoin(const ChannelPtr& channel, AV_AuthCallback auth, Clock::time_point deadline)
{
    Lock lock(mutex_);
    const auto wanted = [&] {
        const ClientSession* session = sessionWith(channel->session());
        return channel->ended() != 0
            || (session != nullptr && session->joins.count(channel->number()) != 0);
    };
    while (joined_.wait_until(lock, deadline, wanted)) {
        if (const int ended = channel->ended(); ended != 0)
            return ended;
        if (acceptJoin(lock, channel, auth))
            return 0;
    }
    return AV_NO_ANSWER;
}

// Asks with the account and password that open our own channels: the device gets no further
// without knowing them, since they make the key of the speech channel, too.
bool Layer::acceptJoin(Lock& lock, const ChannelPtr& channel, AV_AuthCallback auth)
{
    ClientSession* session = sessionWith(channel->session());
    session->joins.erase(channel->number());
    const std::string account = session->account;
    std::string password = session->password;
    const bool known = !session->key.empty();
    lock.unlock();
    const bool accepted = known && auth(account.c_str(), password.c_str()) == 1;
    wipe(password);
    lock.lock();
    session = sessionWith(channel->session());
    if (!accepted && session != nullptr)
        session->socket.send(encode(RefuseSpeech{channel->number()}));
    return accepted;
}

void Layer::stopChannel(int avIndex, AvChannel::Kind kind)
{
    const Lock lock(mutex_);
    const auto found = channels_.find(avIndex);
    if (found == channels_.end() || found->second->kind() != kind || !found->second->isOpen())
        return;
    owners_.erase(found->second->socket());
    found->second->end(kind == AvChannel::Kind::Client ? AV_CLIENT_STOPPED : AV_SERVER_STOPPED);
    channels_.erase(found);
}

// SPDX-License-Identifier: GPL-3.0-or-later
// The layer's life, its session ids and the search.
#include "src/layer.h"

#include "wire/keys.h"
#include "wire/limits.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>
#include <utility>

namespace {

constexpr int maxSessions = 1024;
constexpr std::size_t maxRecords = 4096; // whoever forges answers must not fill the memory

// The layer of the process. Never destroyed: other threads may still call while the process ends.
struct Current
{
    std::mutex mutex;
    std::shared_ptr<Layer> layer;
};

Current& currentLayer()
{
    static auto* const current = new Current;
    return *current;
}

IOTC_SearchRecord recordOf(const Searcher::Found& found)
{
    IOTC_SearchRecord record{};
    const std::string ip = found.from.ip();
    std::copy(found.answer.uid.begin(), found.answer.uid.end(), record.uid);
    std::copy_n(ip.begin(), std::min(ip.size(), sizeof record.ip - 1), record.ip);
    record.port = found.answer.port;
    std::copy(found.answer.name.begin(), found.answer.name.end(), record.name);
    return record;
}

} // namespace

std::shared_ptr<Layer> Layer::current()
{
    const std::lock_guard lock(currentLayer().mutex);
    return currentLayer().layer;
}

int Layer::bringUp(std::uint16_t udpPort)
{
    const std::lock_guard lock(currentLayer().mutex);
    if (currentLayer().layer)
        return IOTC_ALREADY_INITIALIZED;
    auto layer = std::make_shared<Layer>();
    const int result = layer->start(udpPort);
    if (result != 0)
        return result;
    // A program that ends without taking the layer down must not leave its thread inside SRT, whose
    // own objects go at the end of the process. They exist by now, so this is done before.
    static const bool registered = std::atexit(&Layer::abandon) == 0;
    if (!registered)
        return IOTC_NO_MEMORY;
    currentLayer().layer = std::move(layer);
    return 0;
}

int Layer::takeDown()
{
    std::unique_lock lock(currentLayer().mutex);
    const std::shared_ptr<Layer> layer = std::exchange(currentLayer().layer, nullptr);
    lock.unlock();
    if (!layer)
        return IOTC_NOT_INITIALIZED;
    layer->end();
    return 0;
}

void Layer::abandon()
{
    if (const auto layer = current())
        layer->stopLoop();
}

Layer::~Layer()
{
    stopLoop();
    if (reporter_)
        reporter_->finish();
}

int Layer::start(std::uint16_t udpPort)
{
    deployment_ = DeploymentLink::load();
    searcher_ = std::make_unique<Searcher>(deployment_.loopbackOnly);
    anchor_ = SrtSocket::make(SrtUse::Session, {});
    if (!poll_ || !anchor_ || !*searcher_)
        return IOTC_NO_SOCKET;
    if (!anchor_.bind(Address::any(udpPort)))
        return IOTC_PORT_NOT_FREE;
    local_ = Address::any(anchor_.boundTo().value_or(Address()).port());
    reporter_ = std::make_unique<Reporter>();
    if (!reporter_->ready())
        return IOTC_NO_THREAD;
    try {
        loop_ = std::thread([this] { run(); });
    } catch (const std::system_error&) {
        return IOTC_NO_THREAD;
    }
    return 0;
}

void Layer::stopLoop()
{
    stopping_ = true;
    if (loop_.joinable())
        loop_.join();
}

void Layer::end()
{
    stopLoop();
    {
        const Lock lock(mutex_);
        for (auto& [index, channel] : channels_)
            channel->end(AV_TAKEN_DOWN);
        channels_.clear();
        for (auto& [id, session] : sessions_) {
            if (session.state == State::Connecting)
                fail(id, session, IOTC_CONNECT_STOPPED);
            session.socket.close();
        }
        joined_.notify_all();
    }
    reporter_->finish();
    anchor_.close();
}

int Layer::reserveSession()
{
    const Lock lock(mutex_);
    if (stopping_)
        return IOTC_NOT_INITIALIZED;
    int id = 0;
    for (const auto& [taken, session] : sessions_) {
        if (taken != id)
            break;
        ++id;
    }
    if (id >= maxSessions)
        return IOTC_NO_FREE_SESSION;
    sessions_[id].serial = ++lastSerial_;
    return id;
}

ClientSession* Layer::sessionWith(int id)
{
    const auto found = sessions_.find(id);
    return found == sessions_.end() ? nullptr : &found->second;
}

// For the channels: whether the session can have them.
int Layer::stateOf(int id)
{
    const ClientSession* session = sessionWith(id);
    if (session != nullptr && session->state == State::Gone)
        return AV_DEVICE_GONE;
    return session != nullptr && session->state == State::Connected
        ? 0
        : static_cast<int>(AV_BAD_INDEX);
}

void Layer::closeSession(int id)
{
    const Lock lock(mutex_);
    ClientSession* session = sessionWith(id);
    if (session == nullptr)
        return;
    if (session->state == State::Connecting)
        fail(id, *session, IOTC_CONNECT_STOPPED);
    endChannels(id, AV_SESSION_CLOSED);
    forget(session->socket);
    wipe(session->password);
    wipe(session->key);
    sessions_.erase(id);
}

void Layer::endChannels(int id, int result)
{
    for (auto it = channels_.begin(); it != channels_.end();) {
        if (it->second->session() != id) {
            ++it;
            continue;
        }
        owners_.erase(it->second->socket());
        it->second->end(result);
        // A device that has gone leaves its indexes to the client, which is still to learn of it.
        it = result == AV_SESSION_CLOSED ? channels_.erase(it) : std::next(it);
    }
    joined_.notify_all();
}

void Layer::loseSession(int id, ClientSession& session)
{
    session.state = State::Gone;
    endChannels(id, AV_DEVICE_GONE);
    forget(session.socket);
}

void Layer::forget(const SrtSocket& socket)
{
    if (!socket)
        return;
    owners_.erase(socket.id());
    socket.close();
}

int Layer::startSearch(std::chrono::milliseconds wait, std::chrono::milliseconds interval)
{
    const Lock lock(mutex_);
    if (stopping_)
        return IOTC_NOT_INITIALIZED;
    if (search_)
        return IOTC_SEARCH_RUNNING;
    NetworkSearch search;
    const auto now = Clock::now();
    search.asking = {{}, now + wait, interval, now + interval};
    if (!fillRandom(&search.asking.query.nonce, sizeof search.asking.query.nonce))
        return IOTC_NO_MEMORY;
    if (!searcher_->ask(search.asking.query))
        return IOTC_NO_INTERFACE;
    search_ = std::move(search);
    return 0;
}

int Layer::searchResult(IOTC_SearchRecord* records, int capacity)
{
    const Lock lock(mutex_);
    if (!search_)
        return IOTC_NO_SEARCH;
    const auto count = std::min(static_cast<std::size_t>(capacity), search_->records.size());
    std::copy_n(search_->records.begin(), count, records);
    return static_cast<int>(count);
}

void Layer::stopSearch()
{
    const Lock lock(mutex_);
    search_.reset();
}

void Layer::found(const Searcher::Found& found)
{
    if (search_ && found.answer.nonce == search_->asking.query.nonce) {
        auto& records = search_->records;
        const bool known = std::any_of(records.begin(), records.end(),
            [&](const IOTC_SearchRecord& record) { return found.answer.uid == record.uid; });
        if (!known && records.size() < maxRecords)
            records.push_back(recordOf(found));
        return;
    }
    for (auto& [id, session] : sessions_) {
        if (session.attempt && session.attempt->phase == Attempt::Phase::Searching
            && found.answer.nonce == session.attempt->asking.query.nonce
            && found.answer.uid == session.uid) {
            const auto at = Address::parse(found.from.ip(), found.answer.port);
            shakeHands(id, session, at.value_or(found.from));
            return;
        }
    }
}

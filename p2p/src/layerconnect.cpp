// SPDX-License-Identifier: GPL-3.0-or-later
// How the layer connects a session: find the device, ask for the connection, wait for its greeting.
#include "src/layer.h"

#include "wire/keys.h"
#include "wire/limits.h"
#include "wire/uid.h"

#include <utility>

namespace {

using Phase = Attempt::Phase;

constexpr std::chrono::milliseconds findLimit{3000};
constexpr std::chrono::milliseconds sessionLimit{5000};
constexpr std::chrono::milliseconds askInterval{200};
// How long the local network is asked alone before the address book is believed.
constexpr std::chrono::milliseconds bookDelay{500};

int resultOf(int rejectReason, bool byBook)
{
    if (rejectReason == static_cast<int>(Refusal::LockedOut))
        return IOTC_LOCKED_OUT;
    // Nobody has been heard of at an address from the book, unlike one from the network.
    if (byBook && rejectReason == SRT_REJ_TIMEOUT)
        return IOTC_DEVICE_OFFLINE;
    return IOTC_NOT_CONNECTED;
}

} // namespace

int Layer::refusalOf(const char* uid, int id, IOTC_ConnectCallback callback)
{
    if (uid == nullptr || !isUid(uid) || callback == nullptr)
        return IOTC_BAD_ARGUMENT;
    const ClientSession* session = sessionWith(id);
    if (session == nullptr)
        return IOTC_BAD_SESSION;
    if (session->state == State::Connecting || session->state == State::Settling)
        return IOTC_CONNECT_PENDING;
    return session->state == State::Reserved ? 0 : static_cast<int>(IOTC_BAD_SESSION);
}

int Layer::connect(const char* uid, int id, IOTC_ConnectCallback callback, void* userData)
{
    const Lock lock(mutex_);
    // Going down makes the last reports; nobody would make this one.
    if (stopping_)
        return IOTC_NOT_INITIALIZED;
    int refusal = refusalOf(uid, id, callback);
    Attempt attempt;
    attempt.callback = callback;
    attempt.userData = userData;
    ClientSession* session = sessionWith(id);
    if (refusal == 0
        && !(fillRandom(&attempt.asking.query.nonce, sizeof attempt.asking.query.nonce)
            && fillRandom(session->token.data(), session->token.size())))
        refusal = IOTC_NO_MEMORY;
    if (refusal == 0) {
        beginAttempt(*session, uid, attempt);
    } else if (callback != nullptr && session != nullptr && session->state == State::Reserved) {
        session->attempt = attempt;
        fail(id, *session, refusal);
    } else if (callback != nullptr) {
        report(attempt, IOTC_STATE_FAILED, refusal);
    }
    return refusal;
}

void Layer::beginAttempt(ClientSession& session, const char* uid, const Attempt& attempt)
{
    session.state = State::Connecting;
    session.uid = uid;
    session.attempt = attempt;
    Attempt& begun = *session.attempt;
    begun.started = Clock::now();
    begun.deadline = begun.started + findLimit;
    begun.asking = {
        {attempt.asking.query.nonce, session.uid}, begun.deadline, askInterval, begun.started};
    report(begun, IOTC_STATE_SEARCHING, 0);
}

int Layer::stopConnect(int id)
{
    const Lock lock(mutex_);
    ClientSession* session = sessionWith(id);
    if (session == nullptr)
        return IOTC_BAD_SESSION;
    if (session->state == State::Connecting)
        fail(id, *session, IOTC_CONNECT_STOPPED);
    return 0;
}

void Layer::report(const Attempt& attempt, int state, int result)
{
    reporter_->add([callback = attempt.callback, userData = attempt.userData, state, result] {
        callback(state, result, userData);
    });
}

void Layer::fail(int id, ClientSession& session, int result)
{
    session.state = State::Settling;
    forget(session.socket);
    const Attempt attempt = *std::exchange(session.attempt, std::nullopt);
    reporter_->add([this, id, serial = session.serial] {
        const Lock lock(mutex_);
        const ClientSession* settled = sessionWith(id);
        if (settled != nullptr && settled->serial == serial)
            sessions_.erase(id);
    });
    report(attempt, IOTC_STATE_FAILED, result);
}

void Layer::succeed(int id, ClientSession& session)
{
    session.state = State::Connected;
    session.heard = session.told = Clock::now();
    const Attempt attempt = *std::exchange(session.attempt, std::nullopt);
    report(attempt, IOTC_STATE_CONNECTED, id);
}

void Layer::advance(int id, ClientSession& session, Clock::time_point now)
{
    Attempt& attempt = *session.attempt;
    if (now >= attempt.deadline) {
        const bool unheard = attempt.phase == Phase::Searching || attempt.phase == Phase::Resolving
            || (attempt.phase == Phase::Shaking && attempt.byBook);
        fail(id, session, unheard ? IOTC_DEVICE_OFFLINE : IOTC_NOT_CONNECTED);
        return;
    }
    if (attempt.phase == Phase::Searching) {
        attempt.asking.askIfDue(*searcher_, now);
        if (now - attempt.started >= bookDelay)
            useBook(session);
    } else if (attempt.phase == Phase::Resolving && attempt.resolving->done()) {
        const auto address = attempt.resolving->address();
        if (address)
            shakeHands(id, session, *address);
        else
            fail(id, session, IOTC_DEVICE_OFFLINE);
    }
}

void Layer::useBook(ClientSession& session)
{
    const auto entry = deployment_.addressBook.find(session.uid);
    if (entry == deployment_.addressBook.end())
        return;
    session.attempt->byBook = true;
    session.attempt->phase = Phase::Resolving;
    session.attempt->resolving = Resolving::start(entry->second.host, entry->second.port);
}

void Layer::shakeHands(int id, ClientSession& session, const Address& address)
{
    Attempt& attempt = *session.attempt;
    const auto now = Clock::now();
    attempt.phase = Phase::Shaking;
    if (!attempt.byBook) {
        attempt.deadline = now + sessionLimit;
        report(attempt, IOTC_STATE_FOUND, 0);
    }
    session.address = address;
    const std::string key = sessionPassphrase(session.uid);
    session.socket = SrtSocket::make(SrtUse::Session, key);
    const bool bound = !key.empty() && session.socket && session.socket.bind(local_);
    if (bound) {
        owners_[session.socket.id()] = {id, nullptr};
        poll_.add(session.socket.id(), true);
    }
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(attempt.deadline - now);
    const StreamId name{StreamId::Kind::Session, session.uid, session.token, 0};
    if (!bound || !session.socket.connect(address, encode(name), left))
        fail(id, session, IOTC_NOT_CONNECTED);
}

void Layer::shaken(int id, ClientSession& session, const SrtPoll::Event& event)
{
    Attempt& attempt = *session.attempt;
    if (attempt.phase == Phase::Shaking && session.socket.connected()) {
        poll_.watchReadOnly(event.socket);
        poll_.expectData(event.socket);
        attempt.phase = Phase::Greeting;
        if (attempt.byBook) {
            attempt.deadline = Clock::now() + sessionLimit;
            report(attempt, IOTC_STATE_FOUND, 0);
        }
    }
    if (event.broken)
        fail(id, session, resultOf(session.socket.rejectReason(), attempt.byBook));
}

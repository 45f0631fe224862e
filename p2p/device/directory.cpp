// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/directory.h"

#include "wire/keys.h"
#include "wire/limits.h"
#include "wire/uid.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace {

constexpr std::size_t maxSessions = 1024;
// Whoever takes all that one address can get leaves others room.
constexpr std::ptrdiff_t maxSessionsOfAddress = 512;

bool isSound(const LinkDevice& device)
{
    return isUid(device.uid) && isVersionText(device.version) && device.channels >= 1
        && device.channels <= maxLiveChannels;
}

} // namespace

bool Directory::publish(const LinkDevice& device, LinkDeviceHandler& handler)
{
    Published made;
    made.device = device;
    made.handler = &handler;
    made.hello.keyRounds = keyRounds;
    if (!isSound(device) || !fillRandom(made.hello.salt.data(), saltBytes))
        return false;
    made.sessionKey = sessionPassphrase(device.uid);
    made.accountKey =
        accountPassphrase(device.uid, device.account, device.password, made.hello.salt, keyRounds);
    if (made.sessionKey.empty() || made.accountKey.empty())
        return false;
    const std::lock_guard lock(mutex_);
    return devices_.emplace(device.uid, std::move(made)).second;
}

void Directory::withdraw(const std::string& uid)
{
    const std::lock_guard lock(mutex_);
    devices_.erase(uid);
}

void Directory::setPassword(const std::string& uid, const std::string& password)
{
    std::unique_lock lock(mutex_);
    const auto found = devices_.find(uid);
    if (found == devices_.end())
        return;
    const std::string account = found->second.device.account;
    const Salt salt = found->second.hello.salt;
    // Deriving is slow, and SRT's thread must not wait for it.
    lock.unlock();
    std::string key = accountPassphrase(uid, account, password, salt, keyRounds);
    lock.lock();
    const auto still = devices_.find(uid);
    if (still == devices_.end() || still->second.hello.salt != salt || key.empty())
        return;
    still->second.device.password = password;
    still->second.accountKey = std::move(key);
}

void Directory::setSilent(const std::string& uid, bool silent)
{
    const std::lock_guard lock(mutex_);
    const auto found = devices_.find(uid);
    if (found != devices_.end())
        found->second.silent = silent;
}

std::variant<std::string, Refusal> Directory::decide(const StreamId& id, const std::string& ip)
{
    const std::lock_guard lock(mutex_);
    const auto found = devices_.find(id.uid);
    if (found == devices_.end() || found->second.silent)
        return Refusal::UnknownDevice;
    const Published& device = found->second;
    if (device.lockout.isLocked(ip, Lockout::Clock::now()))
        return Refusal::LockedOut;
    switch (id.kind) {
    case StreamId::Kind::Session:
        return decideSession(id, device, ip);
    case StreamId::Kind::Channel:
        return decideChannel(id, device, ip);
    case StreamId::Kind::Speech:
        return decideSpeech(id, ip);
    }
    return Refusal::Malformed;
}

std::variant<std::string, Refusal> Directory::decideSession(
    const StreamId& id, const Published& device, const std::string& ip)
{
    const auto fromThere = std::count_if(sessions_.begin(), sessions_.end(),
        [&](const auto& entry) { return entry.second.ip == ip; });
    if (sessions_.size() >= maxSessions || fromThere >= maxSessionsOfAddress)
        return Refusal::Full;
    if (sessions_.count(id.token) != 0)
        return Refusal::Malformed;
    return device.sessionKey;
}

// Null also for a session of another device or another client.
Directory::Session* Directory::sessionOf(const StreamId& id, const std::string& ip)
{
    const auto found = sessions_.find(id.token);
    const bool same =
        found != sessions_.end() && found->second.uid == id.uid && found->second.ip == ip;
    return same ? &found->second : nullptr;
}

std::variant<std::string, Refusal> Directory::decideChannel(
    const StreamId& id, const Published& device, const std::string& ip)
{
    Session* session = sessionOf(id, ip);
    if (session == nullptr)
        return Refusal::UnknownSession;
    if (id.number >= device.device.channels && session->offered.count(id.number) == 0)
        return Refusal::NoSuchChannel;
    session->askedKey = device.accountKey;
    return device.accountKey;
}

std::variant<std::string, Refusal> Directory::decideSpeech(
    const StreamId& id, const std::string& ip)
{
    const Session* session = sessionOf(id, ip);
    if (session == nullptr)
        return Refusal::UnknownSession;
    if (session->speech != int{id.number} || session->openKey.empty())
        return Refusal::NoSuchChannel;
    return session->openKey;
}

std::vector<SearchAnswer> Directory::answersTo(const SearchQuery& query, std::uint16_t port)
{
    const std::lock_guard lock(mutex_);
    std::vector<SearchAnswer> answers;
    for (const auto& [uid, published] : devices_) {
        if (!published.silent && (query.uid.empty() || query.uid == uid))
            answers.push_back({query.nonce, uid, port, published.device.version});
    }
    return answers;
}

LinkDeviceHandler* Directory::handlerOf(const std::string& uid)
{
    const std::lock_guard lock(mutex_);
    const auto found = devices_.find(uid);
    return found == devices_.end() ? nullptr : found->second.handler;
}

bool Directory::isSilent(const std::string& uid)
{
    const std::lock_guard lock(mutex_);
    const auto found = devices_.find(uid);
    return found != devices_.end() && found->second.silent;
}

Hello Directory::helloOf(const std::string& uid)
{
    const std::lock_guard lock(mutex_);
    const auto found = devices_.find(uid);
    return found == devices_.end() ? Hello{} : found->second.hello;
}

bool Directory::wrongPassword(const std::string& uid, const std::string& ip)
{
    const std::lock_guard lock(mutex_);
    const auto found = devices_.find(uid);
    return found != devices_.end()
        && found->second.lockout.wrongPassword(ip, Lockout::Clock::now());
}

bool Directory::openSession(
    const SessionToken& token, const std::string& uid, const std::string& ip)
{
    const std::lock_guard lock(mutex_);
    if (devices_.count(uid) == 0 || sessions_.size() >= maxSessions)
        return false;
    Session session;
    session.uid = uid;
    session.ip = ip;
    return sessions_.emplace(token, std::move(session)).second;
}

void Directory::channelOpened(const SessionToken& token)
{
    const std::lock_guard lock(mutex_);
    const auto found = sessions_.find(token);
    if (found != sessions_.end())
        found->second.openKey = found->second.askedKey;
}

void Directory::closeSession(const SessionToken& token)
{
    const std::lock_guard lock(mutex_);
    sessions_.erase(token);
}

int Directory::offerChannel(const SessionToken& token)
{
    const std::lock_guard lock(mutex_);
    const auto found = sessions_.find(token);
    if (found == sessions_.end())
        return -1;
    for (int number = firstOfferedChannel; number <= lastOfferedChannel; ++number) {
        if (found->second.offered.insert(number).second)
            return number;
    }
    return -1;
}

void Directory::takeBackChannel(const SessionToken& token, int number)
{
    const std::lock_guard lock(mutex_);
    const auto found = sessions_.find(token);
    if (found != sessions_.end())
        found->second.offered.erase(number);
}

void Directory::expectSpeech(const SessionToken& token, std::optional<int> number)
{
    const std::lock_guard lock(mutex_);
    const auto found = sessions_.find(token);
    if (found != sessions_.end())
        found->second.speech = number;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/linkhost.h"
#include "device/lockout.h"
#include "wire/search.h"
#include "wire/sessionmessage.h"
#include "wire/streamid.h"

#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <variant>
#include <vector>

// What is published here and which sessions there are: decides whom to let in and with which key.
// SRT asks from its own thread, with its locks held, so nothing here calls SRT.
// Threads: any.
class Directory
{
public:
    // Derives the keys of the device, which takes tens of milliseconds.
    bool publish(const LinkDevice& device, LinkDeviceHandler& handler);
    void withdraw(const std::string& uid);
    void setPassword(const std::string& uid, const std::string& password);
    void setSilent(const std::string& uid, bool silent);

    // The passphrase for a connection that somebody at `ip` asks for, or why not.
    std::variant<std::string, Refusal> decide(const StreamId& id, const std::string& ip);
    std::vector<SearchAnswer> answersTo(const SearchQuery& query, std::uint16_t port);

    LinkDeviceHandler* handlerOf(const std::string& uid);
    bool isSilent(const std::string& uid);
    Hello helloOf(const std::string& uid);
    // True when the address is shut out from now on.
    bool wrongPassword(const std::string& uid, const std::string& ip);

    // False when the device is gone or there are too many sessions.
    bool openSession(const SessionToken& token, const std::string& uid, const std::string& ip);
    // One of its channels has been let in: from now on the session's speech has the same key.
    void channelOpened(const SessionToken& token);
    void closeSession(const SessionToken& token);
    int offerChannel(const SessionToken& token);
    void takeBackChannel(const SessionToken& token, int number);
    void expectSpeech(const SessionToken& token, std::optional<int> number);

private:
    struct Published
    {
        LinkDevice device;
        LinkDeviceHandler* handler = nullptr;
        Hello hello;
        std::string sessionKey;
        std::string accountKey;
        Lockout lockout;
        bool silent = false;
    };
    struct Session
    {
        std::string uid;
        std::string ip;
        std::string askedKey; // of the channel that was asked for last
        std::string openKey; // of the channel that was opened last
        std::set<int> offered;
        std::optional<int> speech;
    };

    std::variant<std::string, Refusal> decideSession(
        const StreamId& id, const Published& device, const std::string& ip);
    std::variant<std::string, Refusal> decideChannel(
        const StreamId& id, const Published& device, const std::string& ip);
    std::variant<std::string, Refusal> decideSpeech(const StreamId& id, const std::string& ip);
    Session* sessionOf(const StreamId& id, const std::string& ip);

    std::mutex mutex_;
    std::map<std::string, Published> devices_; // by UID
    std::map<SessionToken, Session> sessions_;
};

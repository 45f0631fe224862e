// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/channel.h"
#include "device/directory.h"
#include "device/linkhost.h"
#include "device/session.h"
#include "transport/srt.h"
#include "transport/udpsocket.h"

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

// The host itself: one thread that waits for all sockets, answers searches and runs what other
// threads hand it. Shared with the channels, which may outlive it.
class Host final : public ChannelHost, public std::enable_shared_from_this<Host>
{
public:
    Host() = default;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    ~Host() override = default;

    bool start(const LinkHostSettings& settings, std::string& error);
    // Ends every session and waits for the thread. Once, before the last owner lets go.
    void stop();

    std::uint16_t port() const { return port_; }
    Directory& directory() { return directory_; }
    // Waits until the event thread has ended the device's sessions.
    void withdraw(const std::string& uid);
    void setSilent(const std::string& uid, bool silent);

    void later(std::function<void()> work) override;
    void endChannel(SRTSOCKET channel) override;
    void endSession(std::uint64_t session) override;
    void joinSpeech(std::uint64_t session, SRTSOCKET channel, std::uint8_t number) override;
    void leaveSpeech(std::uint64_t session) override;
    int offerChannel(std::uint64_t session) override;
    void takeBackChannel(std::uint64_t session, int number) override;

private:
    using Clock = Session::Clock;

    // Who has been let in as far as the handshake, which shows whether the key is right.
    struct Caller
    {
        std::string uid;
        Address peer;
    };
    using Handler = LinkDeviceHandler;

    bool listen(const LinkHostSettings& settings, std::string& error);
    bool openSearch(const LinkHostSettings& settings, std::string& error);
    static int admit(
        void* host, SRTSOCKET socket, int version, const sockaddr* peer, const char* streamId);

    // The event thread's, all of them.
    void run();
    void runHandedOver();
    void answerSearches();
    void dispatch(const SrtPoll::Event& event);
    void acceptAll();
    void checkCallers();
    void accept(SrtSocket socket);
    void acceptSession(SrtSocket socket, const StreamId& id, const Address& peer);
    void acceptChannel(SrtSocket socket, const StreamId& id, const Address& peer);
    void acceptSpeech(SrtSocket socket, Session& session, const StreamId& id);
    void heardFrom(Session& session, SRTSOCKET socket);
    void readSession(Session& session);
    void readChannel(Session& session, const std::shared_ptr<Channel>& channel);
    void readSpeech(Session& session);
    bool handle(Session& session, std::string_view message);
    bool handle(const std::shared_ptr<Channel>& channel, std::string_view packet);
    void keepAlive();
    enum class Number { GoesBack, StaysOpen };
    void closeChannel(Session& session, const std::shared_ptr<Channel>& channel, Number number);
    void closeSpeech(Session& session);
    void closeSession(std::uint64_t id);
    void closeSessionsOf(const std::string& uid);
    void silence(const std::string& uid, bool silent);
    Session* sessionOf(SRTSOCKET socket);
    Session* sessionWith(std::uint64_t id);
    Session* sessionWith(const SessionToken& token);

    // set once
    SrtLibrary library_;
    std::uint16_t port_ = 0;
    bool loopbackOnly_ = false;
    SrtSocket listener_;
    UdpSocket search_;
    std::thread thread_;

    Directory directory_;
    std::atomic<bool> stopping_{false};

    // event thread only
    SrtPoll poll_;
    std::map<std::uint64_t, Session> sessions_;
    std::map<SRTSOCKET, std::uint64_t> owners_; // which session a socket belongs to
    std::uint64_t lastSession_ = 0;
    Clock::time_point lastKeepAlive_;

    std::mutex callersMutex_; // taken by SRT's thread, with its locks held
    std::map<SRTSOCKET, Caller> callers_; // guarded by callersMutex_

    std::mutex handOverMutex_;
    std::vector<std::function<void()>> handedOver_; // guarded by handOverMutex_
    std::map<std::uint64_t, SessionToken> tokens_; // guarded by handOverMutex_
};

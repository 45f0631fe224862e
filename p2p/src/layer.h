// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AVAPIs.h"
#include "IOTCAPIs.h"
#include "src/avchannel.h"
#include "src/clientsession.h"
#include "src/deploymentlink.h"
#include "src/export.h"
#include "src/reporter.h"
#include "src/searcher.h"
#include "transport/srt.h"

#include <atomic>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <unordered_map>
#include <vector>

// The layer while it is up: its sessions, its channels and the one thread that waits for them.
// The C functions find it with current() and hold it for the length of a call, so that it may be
// taken down at any time. Results are the numbers of the C headers.
// Threads: any.
class LINK_SHARED Layer
{
public:
    using Clock = std::chrono::steady_clock;

    // Null when the layer is down.
    static std::shared_ptr<Layer> current();
    static int bringUp(std::uint16_t udpPort);
    static int takeDown();

    Layer() = default;
    Layer(const Layer&) = delete;
    Layer& operator=(const Layer&) = delete;
    ~Layer();

    int reserveSession();
    int connect(const char* uid, int id, IOTC_ConnectCallback callback, void* userData);
    int stopConnect(int id);
    void closeSession(int id);

    int startSearch(std::chrono::milliseconds wait, std::chrono::milliseconds interval);
    int searchResult(IOTC_SearchRecord* records, int capacity);
    void stopSearch();

    // How many channels can be open: 0 until it is set, which can be done once.
    int setMaxChannels(int count);
    int maxChannels() const { return maxChannels_; }
    // Both block. The AV index, or a negative number.
    int startClient(int id, const char* account, const char* password, std::chrono::seconds limit,
        std::uint8_t number);
    int startServer(int id, AV_AuthCallback auth, std::chrono::seconds limit, std::uint8_t number);
    void stopChannel(int avIndex, AvChannel::Kind kind);
    // Null for an index that is not open.
    std::shared_ptr<AvChannel> channel(int avIndex);

private:
    using Lock = std::unique_lock<std::mutex>;
    using ChannelPtr = std::shared_ptr<AvChannel>;
    using State = ClientSession::State;

    // What a socket belongs to: a session, or a channel of it.
    struct Owner
    {
        int session;
        ChannelPtr channel;
    };
    struct NetworkSearch
    {
        Asking asking;
        std::vector<IOTC_SearchRecord> records;
    };

    // At the end of the process: stops the loop and leaves all else as it stands.
    static void abandon();
    int start(std::uint16_t udpPort);
    void end();
    void stopLoop();

    // With the mutex held. layer.cpp
    int refusalOf(const char* uid, int id, IOTC_ConnectCallback callback);
    ClientSession* sessionWith(int id);
    int stateOf(int id);
    void endChannels(int id, int result);
    void loseSession(int id, ClientSession& session);
    void forget(const SrtSocket& socket);

    // With the mutex held. layerconnect.cpp
    void beginAttempt(ClientSession& session, const char* uid, const Attempt& attempt);
    void report(const Attempt& attempt, int state, int result);
    void fail(int id, ClientSession& session, int result);
    void succeed(int id, ClientSession& session);
    void advance(int id, ClientSession& session, Clock::time_point now);
    void useBook(ClientSession& session);
    void shakeHands(int id, ClientSession& session, const Address& address);
    void shaken(int id, ClientSession& session, const SrtPoll::Event& event);
    void found(const Searcher::Found& answer);

    // layerchannels.cpp
    int reserve(const ChannelPtr& channel, int& avIndex);
    int settle(int avIndex, const ChannelPtr& channel, int result);
    std::string keyFor(int id, const std::string& account, const std::string& password);
    void remember(const ChannelPtr& channel, const char* account, const char* password,
        const std::string& key);
    int link(const ChannelPtr& channel, StreamId::Kind kind, const std::string& key,
        Clock::time_point deadline);
    int awaitJoin(const ChannelPtr& channel, AV_AuthCallback auth, Clock::time_point deadline);
    bool acceptJoin(Lock& lock, const ChannelPtr& channel, AV_AuthCallback auth);

    // The loop's. layerloop.cpp
    void run();
    void dispatch(const SrtPoll::Event& event);
    void channelEvent(const ChannelPtr& channel, const SrtPoll::Event& event);
    void readSession(int id, ClientSession& session);
    bool handle(int id, ClientSession& session, std::string_view bytes);
    void readChannel(const ChannelPtr& channel);
    void heardFrom(int id, SRTSOCKET socket);
    void keepAlive(Clock::time_point now);
    void lookAround(Clock::time_point now);

    // set once
    SrtLibrary library_;
    DeploymentLink deployment_;
    std::unique_ptr<Searcher> searcher_; // the loop's, but for asking
    SrtSocket anchor_; // holds the UDP port that all connections share
    Address local_;
    std::unique_ptr<Reporter> reporter_;
    std::thread loop_;
    std::atomic<bool> stopping_{false};
    std::atomic<int> maxChannels_{0};
    SrtPoll poll_;

    std::mutex mutex_;
    // All below is guarded by mutex_.
    std::condition_variable joined_; // a session has got a join, or a channel has ended
    std::map<int, ClientSession> sessions_; // by id
    std::uint64_t lastSerial_ = 0;
    std::map<int, ChannelPtr> channels_; // by AV index
    std::unordered_map<SRTSOCKET, Owner> owners_;
    std::optional<NetworkSearch> search_;
    Clock::time_point lastKeepAlive_;
};

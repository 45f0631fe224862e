// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "transport/address.h"

#include <srt/srt.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

// The one place where SRT comes in. Nothing here throws; failures are return values.

// SRT as a whole, counted: the library runs while one of these lives.
class SrtLibrary
{
public:
    SrtLibrary();
    SrtLibrary(const SrtLibrary&) = delete;
    SrtLibrary& operator=(const SrtLibrary&) = delete;
    ~SrtLibrary();
};

// What a connection is tuned for.
enum class SrtUse {
    Session, // a few small messages
    FrameSender, // much out, little in
    FrameReceiver, // the other way round
};

// A socket, closed at the end of its life. All sockets are non-blocking and reliable, and keep
// the bounds of messages. send() and state() may be called from any thread at any time.
class SrtSocket
{
public:
    enum class Io {
        Done,
        Later, // no room to send, or nothing to receive
        Broken,
    };

    SrtSocket() = default;
    // Takes over a socket that SRT gave.
    explicit SrtSocket(SRTSOCKET id)
        : id_(id)
    {
    }
    SrtSocket(SrtSocket&& other) noexcept
        : id_(std::exchange(other.id_, SRT_INVALID_SOCK))
    {
    }
    SrtSocket& operator=(SrtSocket&& other) noexcept
    {
        std::swap(id_, other.id_);
        return *this;
    }
    ~SrtSocket();

    // Not bound; not valid when SRT gives none. An empty passphrase: without encryption, as for a
    // socket that only listens.
    static SrtSocket make(SrtUse use, const std::string& passphrase);

    explicit operator bool() const { return id_ != SRT_INVALID_SOCK; }
    SRTSOCKET id() const { return id_; }

    // Sockets bound to one address and port share one UDP socket and its two threads. Port 0 takes
    // a free one.
    bool bind(const Address& address) const;
    std::optional<Address> boundTo() const;
    bool listen(srt_listen_callback_fn* admit, void* context) const;
    // Nothing when nobody waits.
    std::optional<SrtSocket> accept() const;
    // The connection exists when the poll says writable, and never will when it says broken.
    bool connect(const Address& address, const std::string& streamId,
        std::chrono::milliseconds timeout) const;

    // Ends the connection; the socket answers nothing but Broken from then on. Any thread.
    void close() const;

    std::string streamId() const;
    std::optional<Address> peer() const;
    // Why the last connect failed: an SRT_REJECT_REASON, or a code of the device.
    int rejectReason() const { return srt_getrejectreason(id_); }
    bool connected() const { return srt_getsockstate(id_) == SRTS_CONNECTED; }
    // Both directions are encrypted with a key that both ends have.
    bool secured() const { return keyOf(id_) == Key::Right; }

    // What the handshake of a connection has shown.
    enum class Key {
        Unknown, // nothing yet
        Right,
        Wrong,
        Forgotten, // the connection is over, and SRT knows nothing of it any more
    };
    static Key keyOf(SRTSOCKET id);

    Io send(std::string_view message) const;
    // `message` points into `buffer`, of packetBytes.
    Io receive(char* buffer, std::string_view& message) const;
    // Packets that are sent and not confirmed, and their bytes.
    std::pair<std::size_t, std::size_t> unconfirmed() const;

    // Packets sent since the last call, and how many of them were repeated.
    std::pair<std::int64_t, std::int64_t> takeSent() const;
    // Bytes per second; -1 for no limit.
    void limitRate(std::int64_t rate) const;

private:
    SRTSOCKET id_ = SRT_INVALID_SOCK;
};

// Waits for many sockets at once. One thread waits; others may add sockets meanwhile.
//
// Without time stamp delivery SRT tells of new data only when it acknowledges, some 10 ms after the
// last packet of a burst, though the data can be read at once. So a socket that brought data lately,
// or is about to, is looked at every millisecond. This costs next to nothing (docs/performance.md).
class SrtPoll
{
public:
    struct Event
    {
        SRTSOCKET socket;
        bool readable;
        bool writable;
        bool broken;
    };

    SrtPoll();
    SrtPoll(const SrtPoll&) = delete;
    SrtPoll& operator=(const SrtPoll&) = delete;
    ~SrtPoll();

    explicit operator bool() const { return id_ >= 0; }

    void add(SRTSOCKET socket, bool writable) const;
    void watchReadOnly(SRTSOCKET socket) const;
    void remove(SRTSOCKET socket);
    // Data has come, or is to be expected.
    void expectData(SRTSOCKET socket);

    // The waiting thread's. Valid until the next call.
    const std::vector<Event>& wait(std::chrono::milliseconds limit);

private:
    using Clock = std::chrono::steady_clock;

    bool isLively();
    void collect(std::chrono::milliseconds limit);
    void addLively();

    int id_ = -1;
    std::vector<Event> events_;
    std::mutex mutex_;
    std::unordered_map<SRTSOCKET, Clock::time_point> lively_; // since when; guarded by mutex_
};

// How often one socket is read before the others have their turn, since it may never run empty.
constexpr int readsInARow = 256;

// How many packets a FrameSender can hold unconfirmed.
constexpr std::size_t senderPackets = 2048;

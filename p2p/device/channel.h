// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/backlog.h"
#include "device/linkhost.h"
#include "device/pacer.h"
#include "transport/srt.h"
#include "wire/framing.h"

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

// What a channel asks of its host. Threads: any.
class ChannelHost
{
public:
    virtual ~ChannelHost() = default;

    // Runs `work` on the event thread, within some milliseconds; never when the host ends first.
    virtual void later(std::function<void()> work) = 0;
    virtual void endChannel(SRTSOCKET channel) = 0;
    virtual void endSession(std::uint64_t session) = 0;
    virtual void joinSpeech(std::uint64_t session, SRTSOCKET channel, std::uint8_t number) = 0;
    virtual void leaveSpeech(std::uint64_t session) = 0;
    virtual int offerChannel(std::uint64_t session) = 0;
    virtual void takeBackChannel(std::uint64_t session, int number) = 0;
};

// The host's half of an AV channel with one client.
class Channel final : public LinkChannel, public std::enable_shared_from_this<Channel>
{
public:
    Channel(std::weak_ptr<ChannelHost> host, SrtSocket socket, int number, std::uint64_t session,
        std::string peer);

    int number() const override { return number_; }
    std::uint64_t session() const override { return session_; }
    std::string peer() const override { return peer_; }

    Sent sendVideo(const LinkFrame& frame) override;
    Sent sendAudio(const LinkFrame& frame) override;
    bool sendControl(std::uint32_t type, std::string_view bytes) override;
    void joinSpeech(int speechNumber) override;
    void leaveSpeech() override;
    int offerChannel() override;
    void takeBackChannel(int number) override;
    void close() override;
    void closeSession() override;
    void sendRaw(std::string_view datagram) override;
    void loseVideo() override;

    // The rest is the event thread's.

    SRTSOCKET id() const { return id_; }
    SrtSocket::Io receive(char* buffer, std::string_view& packet);
    // False for a number out of turn, which only a faulty client sends.
    bool isNextControl(std::uint32_t sequence);
    void acknowledge(std::uint32_t sequence);
    // False for a message that was never sent.
    bool acknowledged(std::uint32_t sequence);
    void setSilent(bool silent);
    // Once a second: fits the rate to the line.
    void pace();
    // Nothing is sent after the return, and the socket is closed.
    void shut();

private:
    Sent send(Media media, const LinkFrame& frame, std::size_t reserve);
    Sent write(Media media, std::uint32_t number, const LinkFrame& frame);
    bool hasRoom(std::size_t packets, std::size_t reserve);
    void flush();
    bool flushOne();

    const std::weak_ptr<ChannelHost> host_;
    const int number_;
    const std::uint64_t session_;
    const std::string peer_;
    const SRTSOCKET id_; // names the channel within the host

    // event thread only
    std::uint32_t lastReceived_ = 0;

    // guarded by mutex_
    std::mutex mutex_;
    SrtSocket socket_;
    bool silent_ = false;
    bool waitingForKey_ = false;
    std::uint32_t videoNumber_ = 0;
    std::uint32_t audioNumber_ = 0;
    Backlog backlog_;
    Pacer pacer_;
    std::uint64_t confirmed_ = 0; // packets, at the last pace()
    std::deque<std::string> controls_; // encoded, not sent; at most maxWaitingControls
    std::uint32_t controlNumber_ = 0; // of the last one encoded
    std::uint32_t controlSent_ = 0;
    std::uint32_t controlAcknowledged_ = 0;
    std::optional<std::uint32_t> ackToSend_;
    bool flushing_ = false; // the host has been asked to come back to flush()
};

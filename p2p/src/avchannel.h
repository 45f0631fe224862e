// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "src/export.h"
#include "src/framequeue.h"
#include "transport/srt.h"
#include "wire/framing.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <string>
#include <string_view>

// Where a caller wants a frame. The sizes may be null.
struct FrameTarget
{
    char* buffer = nullptr;
    int capacity = 0;
    char* info = nullptr; // frameInfoBytes
    unsigned int* number = nullptr;
    int* actualSize = nullptr;
    int* expectedSize = nullptr;
    int* infoSize = nullptr;
};

// The client's half of an AV channel. The layer's loop brings what arrives; callers take it and
// send. Once it has ended every call gives the result it ended with.
// Threads: any, but where it says the loop's.
class LINK_SHARED AvChannel
{
public:
    using Clock = std::chrono::steady_clock;
    enum class Kind {
        Client, // the device sends frames
        Server, // we send sound
    };

    AvChannel(Kind kind, int session, std::uint8_t number);
    AvChannel(const AvChannel&) = delete;
    AvChannel& operator=(const AvChannel&) = delete;

    Kind kind() const { return kind_; }
    int session() const { return session_; }
    std::uint8_t number() const { return number_; }
    SRTSOCKET socket();
    bool isOpen();

    // The connection under way. False when the channel has ended meanwhile.
    bool adopt(SrtSocket socket);
    // Asks for the connection; opened() or end() tells how it came out.
    bool connect(
        const Address& address, const std::string& streamId, std::chrono::milliseconds limit);
    // 0 once open; -20011 at the deadline, or what it ended with.
    int waitUntilOpen(Clock::time_point deadline);
    // The first end counts. Every call that waits returns.
    void end(int result);
    // 0, or what it ended with.
    int ended();

    int sendControl(std::uint32_t type, std::string_view bytes);
    void exitSends();
    int receiveControl(
        unsigned int* type, char* buffer, std::size_t capacity, std::chrono::milliseconds limit);
    int receiveFrame(Media media, const FrameTarget& target);
    int waitingSounds();
    void dropFrames(bool videoToo);
    int sendSound(std::string_view info, std::string_view bytes);
    unsigned int unconfirmedBytes();

    // The loop's.
    void opened();
    int rejectReason() const { return socket_.rejectReason(); }
    SrtSocket::Io receive(char* buffer, std::string_view& packet);
    // Sends the acknowledgement that found no room.
    void flush();
    // False for what no device of this version sends.
    bool take(const Packet& packet);

private:
    using Lock = std::unique_lock<std::mutex>;
    struct Message
    {
        std::uint32_t type;
        std::string bytes;
    };

    int transmit(Lock& lock, std::uint32_t type, std::string_view bytes, unsigned int exits);
    int awaitAck(Lock& lock, std::uint32_t sequence, unsigned int exits);
    int deliver(const AssembledFrame& frame, const FrameTarget& target);
    void confirm(std::uint32_t step);
    void take(const Fragment& fragment);
    bool take(const Control& control);
    void take(const ControlAck& ack);

    const Kind kind_;
    const int session_;
    const std::uint8_t number_;

    // the loop's alone
    Assembler videoAssembler_;
    Assembler soundAssembler_;

    // guarded by mutex_; the socket stays where it is from adopt() on, and may be read and closed
    // without the lock
    std::mutex mutex_;
    std::condition_variable changed_;
    SrtSocket socket_;
    bool open_ = false;
    int ended_ = 0;
    FrameQueue video_;
    FrameQueue sound_;
    std::deque<Message> messages_; // received; at most a window of them
    std::uint32_t received_ = 0;
    std::uint32_t confirmed_ = 0; // of received_, what the device knows to be taken
    std::uint32_t sent_ = 0;
    std::uint32_t acknowledged_ = 0;
    unsigned int exits_ = 0; // counts exitSends()
    std::uint32_t soundNumber_ = 0;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AVAPIs.h"
#include "IOTCAPIs.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <string>
#include <utility>

// The two halves of the link layer, up while this lives. One at a time.
class ClientLink
{
public:
    // Both results are the layer's own; negative: the layer is not up.
    ClientLink();
    ClientLink(const ClientLink&) = delete;
    ClientLink& operator=(const ClientLink&) = delete;
    ~ClientLink() { IOTC_DeInitialize(); }

    int error() const { return error_; } // 0: up

private:
    int error_ = 0;
};

// A session with a device; closed, with its channels, at the end of its life.
class ClientSession
{
public:
    ClientSession() = default;
    ClientSession(ClientSession&& other) noexcept
        : result_(std::exchange(other.result_, -1))
    {
    }
    ClientSession(const ClientSession&) = delete;
    ClientSession& operator=(const ClientSession&) = delete;
    ~ClientSession()
    {
        if (connected())
            IOTC_Session_Close(result_);
    }

    // Blocks until the layer reports the end of the attempt. `patience`: after that long the
    // attempt is stopped.
    static ClientSession connect(const std::string& uid, std::chrono::milliseconds patience);

    bool connected() const { return result_ >= 0; }
    int result() const { return result_; } // the session id, or the layer's negative result

private:
    int result_ = -1;
};

// One AV channel as a client; closed at the end of its life.
class ClientChannel
{
public:
    ClientChannel() = default;
    // Blocks for 5 s at most.
    ClientChannel(const ClientSession& session, int number, const std::string& account,
        const std::string& password);
    ClientChannel(ClientChannel&& other) noexcept
        : index_(std::exchange(other.index_, -1))
        , number_(other.number_)
    {
    }
    ClientChannel(const ClientChannel&) = delete;
    ClientChannel& operator=(const ClientChannel&) = delete;
    ~ClientChannel()
    {
        if (open())
            avClientStop(index_);
    }

    bool open() const { return index_ >= 0; }
    int index() const { return index_; } // the AV index, or the layer's negative result
    int number() const { return number_; }

    // Each returns the layer's result: 0, or negative.
    int send(std::uint32_t type, const std::string& bytes) const;
    int startVideo() const;
    int stopVideo() const;
    int startSound() const;
    int setQuality(bool high) const;

private:
    int sendChannelWord(std::uint32_t type, std::uint32_t second) const;

    int index_ = -1;
    int number_ = 0;
};

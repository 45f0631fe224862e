// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/channel.h"
#include "transport/srt.h"
#include "wire/assembler.h"
#include "wire/streamid.h"

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <string>

// The sound that a client sends to the device.
struct Speech
{
    std::uint8_t number = 0;
    std::shared_ptr<Channel> listener; // the channel that joined
    SrtSocket socket; // from when the client has opened it
    Assembler assembler;
};

// A client's session with one device. The event thread's alone.
struct Session
{
    using Clock = std::chrono::steady_clock;

    std::uint64_t id = 0;
    std::string uid;
    SessionToken token{};
    SrtSocket socket;
    Clock::time_point heard; // last, on any of its connections
    Clock::time_point told; // when the last Alive went out
    std::map<SRTSOCKET, std::shared_ptr<Channel>> channels;
    std::optional<Speech> speech;
};

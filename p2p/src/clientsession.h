// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "IOTCAPIs.h"
#include "src/searcher.h"
#include "transport/resolver.h"
#include "transport/srt.h"
#include "wire/sessionmessage.h"
#include "wire/streamid.h"

#include <chrono>
#include <memory>
#include <optional>
#include <set>
#include <string>

// A connect under way.
struct Attempt
{
    using Clock = std::chrono::steady_clock;
    enum class Phase {
        Searching,
        Resolving, // the name in the address book
        Shaking, // the connection is asked for
        Greeting, // the device's Hello is to come
    };

    IOTC_ConnectCallback callback = nullptr;
    void* userData = nullptr;
    Phase phase = Phase::Searching;
    bool byBook = false; // the address comes from the address book
    Clock::time_point started;
    Clock::time_point deadline;
    Asking asking;
    std::shared_ptr<Resolving> resolving;
};

// A session id that is taken, and what is behind it. Guarded by the layer's mutex.
struct ClientSession
{
    using Clock = std::chrono::steady_clock;
    enum class State {
        Reserved,
        Connecting, // an attempt is under way
        Settling, // it has failed, and the final report is on its way
        Connected,
        Gone, // the device is; the id stays taken until it is closed
    };

    State state = State::Reserved;
    std::uint64_t serial = 0; // tells apart the sessions that had this id one after the other
    std::optional<Attempt> attempt;
    std::string uid;
    SessionToken token{};
    Address address;
    SrtSocket socket;
    Hello hello;
    Clock::time_point heard; // last, on any of its connections
    Clock::time_point told; // when the last Alive went out

    // Of the channel that was opened last: the next one rarely differs, and the key is slow. It
    // is also what a device has to know that wants to listen to us.
    std::string account;
    std::string password;
    std::string key;

    std::set<std::uint8_t> joins; // speech channels that the device wants to listen to
};

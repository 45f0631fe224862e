// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "relaylink.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

struct RelaySettings
{
    std::uint16_t listenPort = 0; // on 127.0.0.1; 0 takes a free one
    std::string targetAddress = "127.0.0.1"; // IPv4, 127.0.0.0/8 only
    std::uint16_t targetPort = 0;
    std::uint64_t seed = 1; // of all chances
    // Datagrams on their way, both directions together: a second of 500 Mb/s.
    std::size_t capacityBytes = std::size_t{64} * 1024 * 1024;
    RelayConditions conditions;
};

struct RelayCounts
{
    std::uint64_t received = 0;
    std::uint64_t receivedBytes = 0;
    std::uint64_t forwarded = 0;
    std::uint64_t forwardedBytes = 0;
    std::uint64_t lost = 0; // by chance
    std::uint64_t heldBack = 0; // so that others overtook
    std::uint64_t queueFull = 0; // waited too long for the line, or more on the way than capacity
    std::uint64_t blackholed = 0;
    std::uint64_t refused = 0; // by the system, for instance since nobody listens
};

struct RelayStatistics
{
    RelayCounts toTarget;
    RelayCounts toClients;
    std::size_t clients = 0; // ever seen
};

// Forwards UDP datagrams between any number of clients and one target on this machine, under the
// conditions given. Each client gets a port of its own toward the target, so the target tells
// them apart. Runs on a thread of its own from start() to the destructor; what is on the way
// then is dropped. Threads: any.
class Relay
{
public:
    // Null when the address is not on the loopback, or a socket cannot be had; `error` tells why.
    static std::unique_ptr<Relay> start(const RelaySettings& settings, std::string& error);

    Relay() = default;
    Relay(const Relay&) = delete;
    Relay& operator=(const Relay&) = delete;
    virtual ~Relay() = default;

    virtual std::uint16_t port() const = 0;
    // For datagrams that arrive from now on.
    virtual void setConditions(const RelayConditions& conditions) = 0;
    virtual RelayConditions conditions() const = 0;
    virtual RelayStatistics statistics() const = 0;
};

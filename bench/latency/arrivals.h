// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

class ClientChannel;
class ClientLink;
class ClientSession;

// A second viewer of a device's first channel that asks the bare link layer for frames every millisecond, on a thread
// of its own: when frames could have been had.
class Arrivals
{
public:
    using Clock = std::chrono::steady_clock;
    using Times = std::map<std::uint64_t, Clock::time_point>; // by frameMark()

    // Null: `error` tells why. One at a time.
    static std::unique_ptr<Arrivals> start(
        const std::string& uid, const std::string& password, std::string& error);
    Arrivals(const Arrivals&) = delete;
    Arrivals& operator=(const Arrivals&) = delete;
    ~Arrivals();

    // Ends it.
    const Times& stop();

private:
    Arrivals();
    bool open(const std::string& uid, const std::string& password, std::string& error);
    void run();
    bool receive();

    const std::unique_ptr<ClientLink> link_;
    std::unique_ptr<ClientSession> session_;
    std::unique_ptr<ClientChannel> channel_;
    std::vector<char> buffer_;
    Times times_; // the thread's until it has ended
    std::atomic<bool> stopping_{false};
    std::thread thread_;
};

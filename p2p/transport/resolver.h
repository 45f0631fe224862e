// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "transport/address.h"

#include <memory>
#include <mutex>
#include <optional>
#include <string>

// Finds the IPv4 address of a host name without keeping anybody waiting: the system's resolver has
// no way to be stopped, so it runs on a thread that nobody waits for.
class Resolving
{
public:
    static std::shared_ptr<Resolving> start(const std::string& host, std::uint16_t port);

    // Nothing while it is under way.
    bool done();
    // Nothing when there is no such host.
    std::optional<Address> address();

private:
    std::mutex mutex_;
    bool done_ = false;
    std::optional<Address> address_;
};

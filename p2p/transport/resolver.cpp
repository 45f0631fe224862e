// SPDX-License-Identifier: GPL-3.0-or-later
#include "transport/resolver.h"

#include <netdb.h>

#include <cstring>
#include <system_error>
#include <thread>

namespace {

std::optional<Address> lookUp(const std::string& host, std::uint16_t port)
{
    addrinfo wanted{};
    wanted.ai_family = AF_INET;
    wanted.ai_socktype = SOCK_DGRAM;
    addrinfo* list = nullptr;
    if (getaddrinfo(host.c_str(), nullptr, &wanted, &list) != 0)
        return std::nullopt;
    sockaddr_in address{};
    std::memcpy(&address, list->ai_addr, sizeof address);
    freeaddrinfo(list);
    address.sin_port = htons(port);
    return Address(address);
}

} // namespace

std::shared_ptr<Resolving> Resolving::start(const std::string& host, std::uint16_t port)
{
    auto resolving = std::make_shared<Resolving>();
    resolving->address_ = Address::parse(host, port);
    resolving->done_ = resolving->address_.has_value();
    if (resolving->done_)
        return resolving;
    try {
        std::thread([resolving, host, port] {
            const auto address = lookUp(host, port);
            const std::lock_guard lock(resolving->mutex_);
            resolving->address_ = address;
            resolving->done_ = true;
        }).detach();
    } catch (const std::system_error&) {
        resolving->done_ = true;
    }
    return resolving;
}

bool Resolving::done()
{
    const std::lock_guard lock(mutex_);
    return done_;
}

std::optional<Address> Resolving::address()
{
    const std::lock_guard lock(mutex_);
    return address_;
}

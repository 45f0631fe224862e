// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <netinet/in.h>

#include <cstdint>
#include <optional>
#include <string>

// An IPv4 address with a UDP port.
class Address
{
public:
    Address() = default;
    explicit Address(const sockaddr_in& address)
        : address_(address)
    {
    }

    // `ip`: numeric.
    static std::optional<Address> parse(const std::string& ip, std::uint16_t port);
    static Address any(std::uint16_t port);

    std::string ip() const;
    std::uint16_t port() const;
    std::string text() const { return ip() + ':' + std::to_string(port()); }
    bool isLoopback() const;

    const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&address_); }
    sockaddr* get() { return reinterpret_cast<sockaddr*>(&address_); }
    static constexpr int size = sizeof(sockaddr_in);

private:
    sockaddr_in address_{};
};

// SPDX-License-Identifier: GPL-3.0-or-later
#include "transport/address.h"

#include <arpa/inet.h>

#include <array>

std::optional<Address> Address::parse(const std::string& ip, std::uint16_t port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    if (inet_pton(AF_INET, ip.c_str(), &address.sin_addr) != 1)
        return std::nullopt;
    return Address(address);
}

Address Address::any(std::uint16_t port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_ANY);
    return Address(address);
}

std::string Address::ip() const
{
    std::array<char, INET_ADDRSTRLEN> text{};
    inet_ntop(AF_INET, &address_.sin_addr, text.data(), text.size());
    return text.data();
}

std::uint16_t Address::port() const
{
    return ntohs(address_.sin_port);
}

bool Address::isLoopback() const
{
    return (ntohl(address_.sin_addr.s_addr) >> 24) == 127;
}

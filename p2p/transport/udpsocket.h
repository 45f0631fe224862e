// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "transport/address.h"

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

// A non-blocking UDP socket that may send broadcasts, for the search. Closed at the end of its
// life.
class UdpSocket
{
public:
    UdpSocket() = default;
    UdpSocket(UdpSocket&& other) noexcept
        : handle_(std::exchange(other.handle_, -1))
    {
    }
    UdpSocket& operator=(UdpSocket&& other) noexcept
    {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~UdpSocket();

    // `shared`: other sockets may be bound to the same port; each gets every broadcast.
    static UdpSocket bound(const Address& address, bool shared);

    explicit operator bool() const { return handle_ >= 0; }

    // False when the datagram did not go out.
    bool send(const Address& to, std::string_view datagram) const;
    // Nothing when none waits. `datagram` points into `buffer`; one that is longer than the buffer
    // comes cut.
    std::optional<Address> receive(
        char* buffer, std::size_t size, std::string_view& datagram) const;

private:
    int handle_ = -1;
};

// Where a search goes: the broadcast address of each interface that is up, or of the loopback
// interface alone.
std::vector<Address> broadcastAddresses(bool loopbackOnly, std::uint16_t port);

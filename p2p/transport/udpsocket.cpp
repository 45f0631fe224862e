// SPDX-License-Identifier: GPL-3.0-or-later
#include "transport/udpsocket.h"

#include <ifaddrs.h>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstring>

namespace {

constexpr const char* loopbackBroadcast = "127.255.255.255";

std::optional<Address> broadcastOf(const ifaddrs& entry, std::uint16_t port)
{
    if ((entry.ifa_flags & IFF_UP) == 0 || entry.ifa_addr == nullptr
        || entry.ifa_addr->sa_family != AF_INET)
        return std::nullopt;
    // The loopback interface has a broadcast address, though it does not say so.
    if ((entry.ifa_flags & IFF_LOOPBACK) != 0)
        return Address::parse(loopbackBroadcast, port);
    if ((entry.ifa_flags & IFF_BROADCAST) == 0 || entry.ifa_broadaddr == nullptr)
        return std::nullopt;
    sockaddr_in address{};
    std::memcpy(&address, entry.ifa_broadaddr, sizeof address);
    address.sin_port = htons(port);
    return Address(address);
}

} // namespace

UdpSocket::~UdpSocket()
{
    if (handle_ >= 0)
        ::close(handle_);
}

UdpSocket UdpSocket::bound(const Address& address, bool shared)
{
    UdpSocket made;
    made.handle_ = ::socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    const int on = 1;
    const bool ready = made
        && setsockopt(made.handle_, SOL_SOCKET, SO_BROADCAST, &on, sizeof on) == 0
        && (!shared || setsockopt(made.handle_, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on) == 0)
        && ::bind(made.handle_, address.get(), Address::size) == 0;
    return ready ? std::move(made) : UdpSocket();
}

bool UdpSocket::send(const Address& to, std::string_view datagram) const
{
    return ::sendto(handle_, datagram.data(), datagram.size(), 0, to.get(), Address::size)
        == static_cast<ssize_t>(datagram.size());
}

std::optional<Address> UdpSocket::receive(
    char* buffer, std::size_t size, std::string_view& datagram) const
{
    sockaddr_in from{};
    socklen_t length = sizeof from;
    const ssize_t count =
        ::recvfrom(handle_, buffer, size, 0, reinterpret_cast<sockaddr*>(&from), &length);
    if (count < 0)
        return std::nullopt;
    datagram = std::string_view(buffer, static_cast<std::size_t>(count));
    return Address(from);
}

std::vector<Address> broadcastAddresses(bool loopbackOnly, std::uint16_t port)
{
    std::vector<Address> found;
    if (loopbackOnly) {
        if (const auto address = Address::parse(loopbackBroadcast, port))
            found.push_back(*address);
        return found;
    }
    ifaddrs* interfaces = nullptr;
    if (getifaddrs(&interfaces) != 0)
        return found;
    for (const ifaddrs* entry = interfaces; entry != nullptr; entry = entry->ifa_next) {
        if (const auto address = broadcastOf(*entry, port))
            found.push_back(*address);
    }
    freeifaddrs(interfaces);
    return found;
}

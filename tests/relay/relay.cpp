// SPDX-License-Identifier: GPL-3.0-or-later
#include "relay.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <mutex>
#include <poll.h>
#include <queue>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <unordered_map>
#include <utility>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t maxDatagram = 65536;
constexpr int socketBuffer = 8 * 1024 * 1024; // so that the kernel loses nothing on its own
constexpr int batch = 64; // datagrams of one socket before the next has its turn

class Descriptor
{
public:
    explicit Descriptor(int fd = -1)
        : fd_(fd)
    {
    }
    Descriptor(Descriptor&& other) noexcept
        : fd_(std::exchange(other.fd_, -1))
    {
    }
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(fd_, other.fd_);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (fd_ >= 0)
            ::close(fd_);
    }
    int get() const { return fd_; }

private:
    int fd_;
};

sockaddr_in ipv4(in_addr address, std::uint16_t port)
{
    sockaddr_in result{};
    result.sin_family = AF_INET;
    result.sin_addr = address;
    result.sin_port = htons(port);
    return result;
}

const sockaddr* generic(const sockaddr_in& address)
{
    return reinterpret_cast<const sockaddr*>(&address);
}

Descriptor udpSocket()
{
    Descriptor result(::socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    ::setsockopt(result.get(), SOL_SOCKET, SO_RCVBUF, &socketBuffer, sizeof socketBuffer);
    ::setsockopt(result.get(), SOL_SOCKET, SO_SNDBUF, &socketBuffer, sizeof socketBuffer);
    return result;
}

struct Datagram
{
    Clock::time_point due;
    std::uint64_t order = 0; // equal times leave as they came
    bool toTarget = false;
    std::size_t client = 0;
    std::vector<char> bytes;
};

struct Later
{
    bool operator()(const Datagram& a, const Datagram& b) const
    {
        return a.due != b.due ? a.due > b.due : a.order > b.order;
    }
};

struct Client
{
    sockaddr_in address{};
    Descriptor towardTarget;
};

class UdpRelay final : public Relay
{
public:
    explicit UdpRelay(const RelaySettings& settings)
        : settings_(settings)
        , links_{RelayLink(settings.seed), RelayLink(settings.seed + 1)}
        , conditions_(settings.conditions)
    {
    }
    ~UdpRelay() override;

    bool open(std::string& error);

    std::uint16_t port() const override { return port_; }
    void setConditions(const RelayConditions& conditions) override;
    RelayConditions conditions() const override;
    RelayStatistics statistics() const override;

private:
    void run();
    void wait();
    void receiveFromClients();
    void receiveFromTarget(std::size_t client);
    bool clientOf(const sockaddr_in& address, std::size_t& client);
    void take(bool toTarget, std::size_t client, const char* bytes, std::size_t size);
    void sendDue();
    bool send(const Datagram& datagram) const;

    // Set once.
    const RelaySettings settings_;
    sockaddr_in target_{};
    std::uint16_t port_ = 0;
    Descriptor listener_;
    Descriptor wake_;

    // The relay's thread only.
    RelayLink links_[2]; // toward the clients, toward the target
    std::vector<Client> clients_;
    std::unordered_map<std::uint64_t, std::size_t> clientByAddress_;
    std::priority_queue<Datagram, std::vector<Datagram>, Later> onTheWay_;
    std::size_t bytesOnTheWay_ = 0;
    std::uint64_t order_ = 0;
    std::vector<pollfd> polled_;
    std::array<char, maxDatagram> buffer_{};

    std::atomic<bool> stop_{false};
    mutable std::mutex mutex_; // guards the next two
    RelayConditions conditions_;
    RelayStatistics statistics_;

    std::thread thread_;
};

bool UdpRelay::open(std::string& error)
{
    in_addr address{};
    if (::inet_pton(AF_INET, settings_.targetAddress.c_str(), &address) != 1
        || (ntohl(address.s_addr) >> 24) != 127 || settings_.targetPort == 0) {
        error = "the target is not an address and port on the loopback";
        return false;
    }
    target_ = ipv4(address, settings_.targetPort);

    listener_ = udpSocket();
    wake_ = Descriptor(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC));
    sockaddr_in own = ipv4({htonl(INADDR_LOOPBACK)}, settings_.listenPort);
    socklen_t size = sizeof own;
    if (::bind(listener_.get(), generic(own), size) != 0
        || ::getsockname(listener_.get(), reinterpret_cast<sockaddr*>(&own), &size) != 0
        || wake_.get() < 0) {
        error = std::strerror(errno);
        return false;
    }
    port_ = ntohs(own.sin_port);
    thread_ = std::thread(&UdpRelay::run, this);
    return true;
}

UdpRelay::~UdpRelay()
{
    if (!thread_.joinable())
        return;
    stop_ = true;
    ::eventfd_write(wake_.get(), 1);
    thread_.join();
}

void UdpRelay::setConditions(const RelayConditions& conditions)
{
    const std::lock_guard lock(mutex_);
    conditions_ = conditions;
}

RelayConditions UdpRelay::conditions() const
{
    const std::lock_guard lock(mutex_);
    return conditions_;
}

RelayStatistics UdpRelay::statistics() const
{
    const std::lock_guard lock(mutex_);
    return statistics_;
}

void UdpRelay::run()
{
    ::prctl(PR_SET_TIMERSLACK, 1); // ns; the 50 us that the kernel adds otherwise are a delay too
    while (!stop_) {
        wait();
        receiveFromClients();
        for (std::size_t i = 0; i < clients_.size(); ++i)
            receiveFromTarget(i);
        sendDue();
    }
}

// Until something can be received or the next datagram is due.
void UdpRelay::wait()
{
    polled_.clear();
    polled_.push_back({wake_.get(), POLLIN, 0});
    polled_.push_back({listener_.get(), POLLIN, 0});
    for (const Client& client : clients_)
        polled_.push_back({client.towardTarget.get(), POLLIN, 0});

    timespec left{};
    if (!onTheWay_.empty()) {
        const std::chrono::nanoseconds gap =
            std::max(onTheWay_.top().due - Clock::now(), Clock::duration::zero());
        left.tv_sec = gap.count() / 1000000000;
        left.tv_nsec = gap.count() % 1000000000;
    }
    ::ppoll(polled_.data(), polled_.size(), onTheWay_.empty() ? nullptr : &left, nullptr);
}

void UdpRelay::receiveFromClients()
{
    for (int i = 0; i < batch; ++i) {
        sockaddr_in from{};
        socklen_t fromSize = sizeof from;
        const ssize_t size = ::recvfrom(listener_.get(), buffer_.data(), buffer_.size(), 0,
            reinterpret_cast<sockaddr*>(&from), &fromSize);
        if (size < 0)
            return;
        std::size_t client = 0;
        if (clientOf(from, client))
            take(true, client, buffer_.data(), static_cast<std::size_t>(size));
    }
}

void UdpRelay::receiveFromTarget(std::size_t client)
{
    for (int i = 0; i < batch; ++i) {
        const ssize_t size =
            ::recv(clients_[client].towardTarget.get(), buffer_.data(), buffer_.size(), 0);
        if (size < 0)
            return;
        take(false, client, buffer_.data(), static_cast<std::size_t>(size));
    }
}

// The number of the client at this address, which may be new. False when no socket is left.
bool UdpRelay::clientOf(const sockaddr_in& address, std::size_t& client)
{
    const std::uint64_t key = std::uint64_t{address.sin_addr.s_addr} << 16 | address.sin_port;
    const auto known = clientByAddress_.find(key);
    if (known != clientByAddress_.end()) {
        client = known->second;
        return true;
    }
    Client added{address, udpSocket()};
    const bool ready = ::connect(added.towardTarget.get(), generic(target_), sizeof target_) == 0;
    const std::lock_guard lock(mutex_);
    if (!ready) {
        ++statistics_.toTarget.refused;
        return false;
    }
    client = clients_.size();
    clients_.push_back(std::move(added));
    clientByAddress_.emplace(key, client);
    statistics_.clients = clients_.size();
    return true;
}

void UdpRelay::take(bool toTarget, std::size_t client, const char* bytes, std::size_t size)
{
    const auto now = Clock::now();
    const std::lock_guard lock(mutex_);
    RelayCounts& counts = toTarget ? statistics_.toTarget : statistics_.toClients;
    ++counts.received;
    counts.receivedBytes += size;
    const auto fate = links_[toTarget ? 1 : 0].admit(conditions_, now, size);
    const auto* departure = std::get_if<RelayDeparture>(&fate);
    if (!departure) {
        const auto reason = std::get<RelayFate>(fate);
        counts.lost += reason == RelayFate::Lost ? 1 : 0;
        counts.queueFull += reason == RelayFate::QueueFull ? 1 : 0;
        counts.blackholed += reason == RelayFate::Blackholed ? 1 : 0;
        return;
    }
    if (bytesOnTheWay_ + size > settings_.capacityBytes) {
        ++counts.queueFull;
        return;
    }
    counts.heldBack += departure->heldBack ? 1 : 0;
    bytesOnTheWay_ += size;
    onTheWay_.push({departure->due, order_++, toTarget, client, {bytes, bytes + size}});
}

void UdpRelay::sendDue()
{
    const auto now = Clock::now();
    while (!onTheWay_.empty() && onTheWay_.top().due <= now) {
        const Datagram& datagram = onTheWay_.top();
        const bool sent = send(datagram);
        {
            const std::lock_guard lock(mutex_);
            RelayCounts& counts = datagram.toTarget ? statistics_.toTarget : statistics_.toClients;
            counts.refused += sent ? 0 : 1;
            counts.forwarded += sent ? 1 : 0;
            counts.forwardedBytes += sent ? datagram.bytes.size() : 0;
        }
        bytesOnTheWay_ -= datagram.bytes.size();
        onTheWay_.pop();
    }
}

bool UdpRelay::send(const Datagram& datagram) const
{
    const Client& client = clients_[datagram.client];
    const ssize_t sent = datagram.toTarget
        ? ::send(client.towardTarget.get(), datagram.bytes.data(), datagram.bytes.size(), 0)
        : ::sendto(listener_.get(), datagram.bytes.data(), datagram.bytes.size(), 0,
            generic(client.address), sizeof client.address);
    return sent == static_cast<ssize_t>(datagram.bytes.size());
}

} // namespace

std::unique_ptr<Relay> Relay::start(const RelaySettings& settings, std::string& error)
{
    auto relay = std::make_unique<UdpRelay>(settings);
    if (!relay->open(error))
        return nullptr;
    return relay;
}

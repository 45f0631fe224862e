// SPDX-License-Identifier: GPL-3.0-or-later
#include "transport/srt.h"

#include "wire/limits.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <thread>

namespace {

constexpr int mss = 1500;
constexpr int packetInBuffer = mss - 28; // how SRT counts its buffers
constexpr int aes128 = 16;

constexpr int reading = int{SRT_EPOLL_IN} | int{SRT_EPOLL_ERR};
constexpr int writing = SRT_EPOLL_OUT;

// Longer than any stream pauses between two frames.
constexpr std::chrono::milliseconds livelyTime{1000};
constexpr std::chrono::milliseconds livelyTick{1};

// Packets on their way and in the buffers, each way. A window takes memory at once, in SRT's loss
// lists, so that it is wide only where frames come from.
struct Windows
{
    int send;
    int receive;
};

Windows windowsFor(SrtUse use)
{
    switch (use) {
    case SrtUse::FrameSender:
        return {static_cast<int>(senderPackets), 256};
    case SrtUse::FrameReceiver:
        // 2.8 MiB on their way. With half of that a third of what is sent at full speed is sent
        // again, since the confirmations come too late for the window.
        return {256, 2048};
    case SrtUse::Session:
        break;
    }
    return {64, 64};
}

template <typename Value>
bool set(SRTSOCKET id, SRT_SOCKOPT option, const Value& value)
{
    return srt_setsockflag(id, option, &value, sizeof value) == 0;
}

bool tune(SRTSOCKET id, SrtUse use)
{
    const Windows windows = windowsFor(use);
    const bool off = false;
    const bool on = true;
    // The live sender starts at full speed, where the one for files feels its way for several round
    // trips; without time stamp delivery nothing is dropped, and no socket has a thread of its own.
    // Where the receiver reports losses every now and then, the sender has no timer to repeat what
    // got no answer: after a buffer was full once, nothing would ever come through again.
    return set(id, SRTO_TRANSTYPE, SRTT_LIVE) && set(id, SRTO_TSBPDMODE, off)
        && set(id, SRTO_TLPKTDROP, off) && set(id, SRTO_NAKREPORT, off)
        && set(id, SRTO_PAYLOADSIZE, static_cast<int>(packetBytes)) && set(id, SRTO_MSS, mss)
        && set(id, SRTO_FC, windows.receive)
        && set(id, SRTO_RCVBUF, windows.receive * packetInBuffer)
        && set(id, SRTO_SNDBUF, windows.send * packetInBuffer) && set(id, SRTO_SNDSYN, off)
        && set(id, SRTO_RCVSYN, off) && set(id, SRTO_REUSEADDR, on)
        && set(id, SRTO_PEERIDLETIMEO, static_cast<int>(silenceLimit.count()));
}

bool encrypt(SRTSOCKET id, const std::string& passphrase)
{
    return srt_setsockflag(
               id, SRTO_PASSPHRASE, passphrase.data(), static_cast<int>(passphrase.size()))
        == 0
        && set(id, SRTO_PBKEYLEN, aes128);
}

template <typename Get>
std::optional<Address> addressFrom(SRTSOCKET id, Get get)
{
    sockaddr_in address{};
    int length = sizeof address;
    if (get(id, reinterpret_cast<sockaddr*>(&address), &length) != 0
        || address.sin_family != AF_INET)
        return std::nullopt;
    return Address(address);
}

std::optional<std::int32_t> keyState(SRTSOCKET id, SRT_SOCKOPT direction)
{
    std::int32_t state = 0;
    int length = sizeof state;
    return srt_getsockflag(id, direction, &state, &length) == 0 ? std::optional(state)
                                                                : std::nullopt;
}

bool hasData(SRTSOCKET id)
{
    std::int32_t packets = 0;
    int length = sizeof packets;
    return srt_getsockflag(id, SRTO_RCVDATA, &packets, &length) == 0 && packets > 0;
}

} // namespace

SrtLibrary::SrtLibrary()
{
    srt_startup();
    // What goes wrong shows in the results; SRT's own lines would stand in nobody's form.
    srt_setloglevel(LOG_CRIT);
}

SrtLibrary::~SrtLibrary()
{
    srt_cleanup();
}

SrtSocket::~SrtSocket()
{
    close();
}

void SrtSocket::close() const
{
    if (*this)
        srt_close(id_);
}

SrtSocket SrtSocket::make(SrtUse use, const std::string& passphrase)
{
    SrtSocket made(srt_create_socket());
    const bool ready =
        made && tune(made.id_, use) && (passphrase.empty() || encrypt(made.id_, passphrase));
    return ready ? std::move(made) : SrtSocket();
}

bool SrtSocket::bind(const Address& address) const
{
    return srt_bind(id_, address.get(), Address::size) == 0;
}

std::optional<Address> SrtSocket::boundTo() const
{
    return addressFrom(id_, srt_getsockname);
}

std::optional<Address> SrtSocket::peer() const
{
    return addressFrom(id_, srt_getpeername);
}

bool SrtSocket::listen(srt_listen_callback_fn* admit, void* context) const
{
    constexpr int backlog = 512;
    return srt_listen_callback(id_, admit, context) == 0 && srt_listen(id_, backlog) == 0;
}

std::optional<SrtSocket> SrtSocket::accept() const
{
    const SRTSOCKET accepted = srt_accept(id_, nullptr, nullptr);
    return accepted == SRT_INVALID_SOCK ? std::nullopt : std::optional<SrtSocket>(accepted);
}

bool SrtSocket::connect(
    const Address& address, const std::string& streamId, std::chrono::milliseconds timeout) const
{
    const auto limit = std::min<std::chrono::milliseconds>(timeout, std::chrono::hours(1));
    return set(id_, SRTO_CONNTIMEO, static_cast<int>(limit.count()))
        && srt_setsockflag(id_, SRTO_STREAMID, streamId.data(), static_cast<int>(streamId.size()))
        == 0
        && srt_connect(id_, address.get(), Address::size) != SRT_ERROR;
}

std::string SrtSocket::streamId() const
{
    std::array<char, 513> text{};
    int length = text.size();
    if (srt_getsockflag(id_, SRTO_STREAMID, text.data(), &length) != 0)
        return {};
    return {text.data(), static_cast<std::size_t>(length)};
}

SrtSocket::Key SrtSocket::keyOf(SRTSOCKET id)
{
    const SRT_SOCKSTATUS state = srt_getsockstate(id);
    if (state < SRTS_CONNECTED)
        return Key::Unknown;
    const auto sending = keyState(id, SRTO_SNDKMSTATE);
    const auto receiving = keyState(id, SRTO_RCVKMSTATE);
    if (!sending || !receiving)
        return Key::Forgotten;
    return sending == SRT_KM_S_SECURED && receiving == SRT_KM_S_SECURED ? Key::Right : Key::Wrong;
}

SrtSocket::Io SrtSocket::send(std::string_view message) const
{
    constexpr int forever = -1;
    constexpr int inOrder = 1;
    if (srt_sendmsg(id_, message.data(), static_cast<int>(message.size()), forever, inOrder) >= 0)
        return Io::Done;
    return srt_getlasterror(nullptr) == SRT_EASYNCSND ? Io::Later : Io::Broken;
}

SrtSocket::Io SrtSocket::receive(char* buffer, std::string_view& message) const
{
    const int count = srt_recvmsg(id_, buffer, static_cast<int>(packetBytes));
    if (count > 0) {
        message = std::string_view(buffer, static_cast<std::size_t>(count));
        return Io::Done;
    }
    return count < 0 && srt_getlasterror(nullptr) == SRT_EASYNCRCV ? Io::Later : Io::Broken;
}

std::pair<std::size_t, std::size_t> SrtSocket::unconfirmed() const
{
    std::size_t packets = 0;
    std::size_t bytes = 0;
    srt_getsndbuffer(id_, &packets, &bytes);
    return {packets, bytes};
}

std::pair<std::int64_t, std::int64_t> SrtSocket::takeSent() const
{
    constexpr int startAnew = 1;
    SRT_TRACEBSTATS figures{};
    if (srt_bstats(id_, &figures, startAnew) != 0)
        return {};
    return {figures.pktSent, figures.pktRetrans};
}

void SrtSocket::limitRate(std::int64_t rate) const
{
    set(id_, SRTO_MAXBW, rate);
}

SrtPoll::SrtPoll()
    : id_(srt_epoll_create())
{
    if (*this)
        srt_epoll_set(id_, SRT_EPOLL_ENABLE_EMPTY);
}

SrtPoll::~SrtPoll()
{
    if (*this)
        srt_epoll_release(id_);
}

void SrtPoll::add(SRTSOCKET socket, bool writable) const
{
    const int events = writable ? reading | writing : reading;
    srt_epoll_add_usock(id_, socket, &events);
}

void SrtPoll::watchReadOnly(SRTSOCKET socket) const
{
    srt_epoll_update_usock(id_, socket, &reading);
}

void SrtPoll::remove(SRTSOCKET socket)
{
    srt_epoll_remove_usock(id_, socket);
    const std::lock_guard lock(mutex_);
    lively_.erase(socket);
}

void SrtPoll::expectData(SRTSOCKET socket)
{
    const std::lock_guard lock(mutex_);
    lively_[socket] = Clock::now();
}

const std::vector<SrtPoll::Event>& SrtPoll::wait(std::chrono::milliseconds limit)
{
    events_.clear();
    if (!isLively()) {
        collect(limit);
        return events_;
    }
    std::this_thread::sleep_for(livelyTick);
    collect(std::chrono::milliseconds::zero());
    addLively();
    return events_;
}

bool SrtPoll::isLively()
{
    const std::lock_guard lock(mutex_);
    return !lively_.empty();
}

void SrtPoll::collect(std::chrono::milliseconds limit)
{
    std::array<SRT_EPOLL_EVENT, 256> ready{};
    const int all =
        srt_epoll_uwait(id_, ready.data(), static_cast<int>(ready.size()), limit.count());
    // It counts also those that found no place; they come the next time.
    const std::size_t count = std::min(ready.size(), static_cast<std::size_t>(std::max(all, 0)));
    for (std::size_t i = 0; i < count; ++i) {
        const SRT_EPOLL_EVENT& event = ready[i];
        events_.push_back({event.fd, (event.events & SRT_EPOLL_IN) != 0,
            (event.events & SRT_EPOLL_OUT) != 0, (event.events & SRT_EPOLL_ERR) != 0});
    }
}

// A socket may come up twice, which costs one read that brings nothing.
void SrtPoll::addLively()
{
    const auto now = Clock::now();
    const std::lock_guard lock(mutex_);
    for (auto it = lively_.begin(); it != lively_.end();) {
        if (hasData(it->first))
            events_.push_back({it->first, true, false, false});
        it = now - it->second > livelyTime ? lively_.erase(it) : std::next(it);
    }
}

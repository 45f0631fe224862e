// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkcandidate.h"

#include <srt/srt.h>

#include <arpa/inet.h>
#include <thread>
#include <utility>

namespace {

constexpr char passphrase[] = "a passphrase to measure with";
constexpr int maxMessage = 4 * 1024 * 1024;

class Socket
{
public:
    explicit Socket(SRTSOCKET id = SRT_INVALID_SOCK)
        : id_(id)
    {
    }
    Socket(Socket&& other) noexcept
        : id_(std::exchange(other.id_, SRT_INVALID_SOCK))
    {
    }
    Socket& operator=(Socket&& other) noexcept
    {
        std::swap(id_, other.id_);
        return *this;
    }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;
    ~Socket()
    {
        if (id_ != SRT_INVALID_SOCK)
            srt_close(id_);
    }
    SRTSOCKET id() const { return id_; }

    template <typename Value>
    void set(SRT_SOCKOPT option, Value value) const
    {
        srt_setsockflag(id_, option, &value, sizeof value);
    }

private:
    SRTSOCKET id_;
};

sockaddr_in loopback(std::uint16_t port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    return address;
}

Socket messageSocket()
{
    Socket socket(srt_create_socket());
    socket.set(SRTO_TRANSTYPE, SRTT_FILE);
    socket.set(SRTO_MESSAGEAPI, true);
    socket.set(SRTO_LINGER, linger{0, 0});
    socket.set(SRTO_PBKEYLEN, 16);
    srt_setsockflag(socket.id(), SRTO_PASSPHRASE, passphrase, sizeof passphrase - 1);
    return socket;
}

bool sendMessage(SRTSOCKET socket, const Frame& frame)
{
    return srt_sendmsg(socket, reinterpret_cast<const char*>(frame.data()),
               static_cast<int>(frame.size()), -1, 1)
        > 0;
}

class BarePipe final : public LinkPipe
{
public:
    BarePipe(Socket device, Socket client, const Frame& answer)
        : device_(std::move(device))
        , client_(std::move(client))
        , answering_([id = device_.id(), &answer] {
            char request[16];
            while (srt_recvmsg(id, request, sizeof request) > 0)
                sendMessage(id, answer);
        })
    {
        client_.set(SRTO_RCVSYN, false);
    }
    ~BarePipe() override
    {
        srt_close(device_.id());
        answering_.join();
    }

    void prepare(const Frame& frame) override { frame_ = frame; }
    bool send() override { return sendMessage(device_.id(), frame_); }
    std::size_t receive(std::vector<char>& buffer) override
    {
        buffer.resize(maxMessage);
        const int size = srt_recvmsg(client_.id(), buffer.data(), maxMessage);
        return size > 0 ? static_cast<std::size_t>(size) : 0;
    }
    void request() override { srt_sendmsg(client_.id(), "please", 6, -1, 1); }

private:
    Socket device_;
    Socket client_;
    Frame frame_;
    std::thread answering_;
};

class BareSrt final : public LinkCandidate
{
public:
    BareSrt(Socket listener, std::uint16_t listenPort, std::uint16_t relayPort)
        : listener_(std::move(listener))
        , listenPort_(listenPort)
        , relayPort_(relayPort)
    {
    }
    LinkPipes open(int count, bool throughRelay) override
    {
        LinkPipes pipes;
        for (int i = 0; i < count; ++i) {
            Socket client = messageSocket();
            const sockaddr_in address = loopback(throughRelay ? relayPort_ : listenPort_);
            SRTSOCKET accepted = SRT_INVALID_SOCK;
            std::thread accepting([&] { accepted = srt_accept(listener_.id(), nullptr, nullptr); });
            const int connected = srt_connect(
                client.id(), reinterpret_cast<const sockaddr*>(&address), sizeof address);
            accepting.join();
            if (connected != 0 || accepted == SRT_INVALID_SOCK)
                return {};
            pipes.push_back(
                std::make_unique<BarePipe>(Socket(accepted), std::move(client), answer_));
        }
        return pipes;
    }
    void setAnswer(const Frame& frame) override { answer_ = frame; }

private:
    Socket listener_;
    const std::uint16_t listenPort_;
    const std::uint16_t relayPort_;
    Frame answer_;
};

} // namespace

std::unique_ptr<LinkCandidate> bareSrt(std::uint16_t listenPort, std::uint16_t relayPort)
{
    srt_startup();
    Socket listener = messageSocket();
    listener.set(SRTO_RCVTIMEO, 5000);
    const sockaddr_in address = loopback(listenPort);
    if (srt_bind(listener.id(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0
        || srt_listen(listener.id(), 64) != 0)
        return nullptr;
    return std::make_unique<BareSrt>(std::move(listener), listenPort, relayPort);
}

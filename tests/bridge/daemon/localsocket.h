// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <string>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

// A client of a control socket. Reading gives up after two seconds.
class LocalSocket final
{
public:
    explicit LocalSocket(const std::string& path)
        : socket_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.copy(address.sun_path, sizeof address.sun_path - 1);
        const timeval limit{2, 0};
        ::setsockopt(socket_, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
        connected_ =
            ::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    }
    LocalSocket(const LocalSocket&) = delete;
    LocalSocket& operator=(const LocalSocket&) = delete;
    ~LocalSocket() { ::close(socket_); }

    bool isConnected() const { return connected_; }
    void write(const QByteArray& bytes) const
    {
        ::send(socket_, bytes.constData(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
    }
    // Up to the end of a line; what there is when the other side has closed.
    QByteArray readLine() const
    {
        QByteArray line;
        char letter = 0;
        while (::recv(socket_, &letter, 1, 0) == 1) {
            line += letter;
            if (letter == '\n')
                break;
        }
        return line;
    }

private:
    const int socket_;
    bool connected_ = false;
};

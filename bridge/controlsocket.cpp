// SPDX-License-Identifier: GPL-3.0-or-later
#include "controlsocket.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

sockaddr_un addressOf(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    return address;
}

const sockaddr* general(const sockaddr_un& address)
{
    return reinterpret_cast<const sockaddr*>(&address);
}

// Whether a program still listens at the path.
bool isServed(const sockaddr_un& address)
{
    const int probe = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool served = ::connect(probe, general(address), sizeof address) == 0;
    ::close(probe);
    return served;
}

bool isSocket(const char* path)
{
    struct stat status
    {
    };
    return ::lstat(path, &status) == 0 && S_ISSOCK(status.st_mode);
}

// A listening socket at `path`, or -1 with errno.
int listenAt(const std::string& path)
{
    const sockaddr_un address = addressOf(path);
    if (isSocket(address.sun_path) && !isServed(address))
        ::unlink(address.sun_path);
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    // The mode of the unbound socket is what the path gets, so nobody else can come in between.
    const bool done = listener >= 0 && ::fchmod(listener, S_IRUSR | S_IWUSR) == 0
        && ::bind(listener, general(address), sizeof address) == 0 && ::listen(listener, 4) == 0;
    if (done)
        return listener;
    const int problem = errno;
    ::close(listener);
    errno = problem;
    return -1;
}

} // namespace

std::unique_ptr<ControlSocket> ControlSocket::start(
    const std::string& path, Command command, std::string& error)
{
    const int listener = listenAt(path);
    const int waker = listener < 0 ? -1 : ::eventfd(0, EFD_CLOEXEC);
    if (waker < 0) {
        error = std::strerror(errno);
        ::close(listener);
        return nullptr;
    }
    return std::unique_ptr<ControlSocket>(
        new ControlSocket(listener, waker, path, std::move(command)));
}

ControlSocket::ControlSocket(int listener, int waker, std::string path, Command command)
    : listener_(listener)
    , waker_(waker)
    , path_(std::move(path))
    , command_(std::move(command))
    , thread_([this] { run(); })
{
}

ControlSocket::~ControlSocket()
{
    ::eventfd_write(waker_, 1);
    thread_.join();
    for (const Client& client : clients_)
        ::close(client.socket);
    ::unlink(path_.c_str());
    ::close(listener_);
    ::close(waker_);
}

void ControlSocket::run()
{
    for (;;) {
        std::vector<pollfd> waits{{waker_, POLLIN, 0}, {listener_, POLLIN, 0}};
        for (const Client& client : clients_)
            waits.push_back({client.socket, POLLIN, 0});
        if (::poll(waits.data(), waits.size(), -1) < 0 && errno != EINTR)
            return;
        if (waits[0].revents != 0)
            return;
        std::vector<Client> staying;
        for (std::size_t i = 0; i < clients_.size(); ++i) {
            if (waits[i + 2].revents == 0 || read(clients_[i]))
                staying.push_back(std::move(clients_[i]));
            else
                ::close(clients_[i].socket);
        }
        clients_ = std::move(staying);
        if (waits[1].revents != 0)
            accept();
    }
}

void ControlSocket::accept()
{
    const int socket = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (socket < 0)
        return;
    if (clients_.size() >= maxClients)
        ::close(socket);
    else
        clients_.push_back({socket, {}});
}

// False when the client has gone or is to go.
bool ControlSocket::read(Client& client)
{
    char bytes[maxLineBytes];
    const auto count = ::recv(client.socket, bytes, sizeof bytes, 0);
    if (count <= 0)
        return count < 0 && (errno == EAGAIN || errno == EINTR);
    client.unread.append(bytes, static_cast<std::size_t>(count));
    return obeyLines(client) && client.unread.size() <= maxLineBytes;
}

bool ControlSocket::obeyLines(Client& client)
{
    std::size_t end = 0;
    while ((end = client.unread.find('\n')) != std::string::npos) {
        const std::string answer = command_(client.unread.substr(0, end)) + '\n';
        client.unread.erase(0, end + 1);
        // The socket's buffer takes any answer of a client that reads; one that does not is cut.
        const auto sent = ::send(client.socket, answer.data(), answer.size(), MSG_NOSIGNAL);
        if (sent != static_cast<ssize_t>(answer.size()))
            return false;
    }
    return true;
}

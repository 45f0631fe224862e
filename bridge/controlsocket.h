// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

// A local socket (AF_UNIX, for the owner only) that takes one command per line and answers each
// with one line. POSIX.
class ControlSocket
{
public:
    // Called on the socket's thread. The answer is without a line end.
    using Command = std::function<std::string(const std::string& line)>;

    // Takes over a path whose owner is gone. Null when that fails; `error` tells why.
    static std::unique_ptr<ControlSocket> start(
        const std::string& path, Command command, std::string& error);

    ControlSocket(const ControlSocket&) = delete;
    ControlSocket& operator=(const ControlSocket&) = delete;
    // Ends the thread and removes the path. Not from the command itself.
    ~ControlSocket();

private:
    static constexpr std::size_t maxClients = 8; // people and scripts of one machine
    static constexpr std::size_t maxLineBytes = 512;

    struct Client
    {
        int socket;
        std::string unread;
    };

    ControlSocket(int listener, int waker, std::string path, Command command);
    void run();
    void accept();
    bool read(Client& client);
    bool obeyLines(Client& client);

    const int listener_;
    const int waker_; // an eventfd
    const std::string path_;
    const Command command_;
    std::vector<Client> clients_; // the thread's own
    std::thread thread_;
};

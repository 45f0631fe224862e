// SPDX-License-Identifier: GPL-3.0-or-later
// orva-relay: a bad network on this machine, for trials. See usage() below.
#include "relay.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <poll.h>
#include <string>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

enum Exit { ExitOk = 0, ExitUsage = 2, ExitNoSocket = 4 };

void usage(std::FILE* out)
{
    std::fputs(
        "orva-relay --listen PORT --target HOST:PORT [CONDITION VALUE]...\n"
        "Forwards UDP on the loopback both ways, under these conditions for each way:\n"
        "  --delay-ms N          --jitter-ms N        one way; jitter keeps the order\n"
        "  --loss SHARE          --reorder SHARE      0 to 1\n"
        "  --reorder-ms N                             how long one is held back (5)\n"
        "  --bandwidth-kbps N    --queue-ms N         0: no limit; longest wait for the line "
        "(200)\n"
        "  --seed N                                   the same seed, the same chances\n"
        "Lines on standard input change them while it runs: the names without dashes, as in\n"
        "\"loss 0.03\", \"blackhole 1\", also \"stats\" and \"quit\".\n"
        "Prints the port as a first line and, at \"quit\" or SIGTERM, the statistics as JSON.\n"
        "Exit codes: 0 ok, 2 usage, 4 no socket.\n",
        out);
}

std::optional<double> number(const std::string& text)
{
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0' || !std::isfinite(value) || value < 0 || value > 1e9)
        return std::nullopt;
    return value;
}

std::chrono::microseconds milliseconds(double value)
{
    return std::chrono::microseconds(static_cast<std::int64_t>(value * 1000));
}

// False for a name or value that means nothing.
bool setCondition(RelayConditions& conditions, const std::string& name, const std::string& text)
{
    const auto value = number(text);
    if (!value)
        return false;
    if (name == "delay-ms")
        conditions.delay = milliseconds(*value);
    else if (name == "jitter-ms")
        conditions.jitter = milliseconds(*value);
    else if (name == "loss" && *value <= 1)
        conditions.loss = *value;
    else if (name == "reorder" && *value <= 1)
        conditions.reorder = *value;
    else if (name == "reorder-ms")
        conditions.reorderBy = milliseconds(*value);
    else if (name == "bandwidth-kbps")
        conditions.bitsPerSecond = static_cast<std::int64_t>(*value * 1000);
    else if (name == "queue-ms")
        conditions.queue = milliseconds(*value);
    else if (name == "blackhole")
        conditions.blackhole = *value != 0;
    else
        return false;
    return true;
}

bool setTarget(RelaySettings& settings, const std::string& text)
{
    const auto colon = text.rfind(':');
    const auto port = number(colon == std::string::npos ? std::string() : text.substr(colon + 1));
    if (!port || *port < 1 || *port > 65535)
        return false;
    settings.targetAddress = text.substr(0, colon);
    settings.targetPort = static_cast<std::uint16_t>(*port);
    return true;
}

bool setOption(RelaySettings& settings, const std::string& name, const std::string& text)
{
    if (name == "target")
        return setTarget(settings, text);
    const auto value = number(text);
    if (name == "listen" && value && *value <= 65535) {
        settings.listenPort = static_cast<std::uint16_t>(*value);
        return true;
    }
    if (name == "seed" && value) {
        settings.seed = static_cast<std::uint64_t>(*value);
        return true;
    }
    return setCondition(settings.conditions, name, text);
}

bool parse(int argc, char* argv[], RelaySettings& settings)
{
    for (int i = 1; i < argc; i += 2) {
        const std::string name = argv[i];
        if (i + 1 == argc || name.compare(0, 2, "--") != 0
            || !setOption(settings, name.substr(2), argv[i + 1]))
            return false;
    }
    return settings.targetPort != 0;
}

nlohmann::json toJson(const RelayCounts& counts)
{
    return {{"received", counts.received}, {"receivedBytes", counts.receivedBytes},
        {"forwarded", counts.forwarded}, {"forwardedBytes", counts.forwardedBytes},
        {"lost", counts.lost}, {"heldBack", counts.heldBack}, {"queueFull", counts.queueFull},
        {"blackholed", counts.blackholed}, {"refused", counts.refused}};
}

void printStatistics(const Relay& relay)
{
    const RelayStatistics all = relay.statistics();
    const nlohmann::json json = {{"clients", all.clients}, {"toTarget", toJson(all.toTarget)},
        {"toClients", toJson(all.toClients)}};
    std::cout << json.dump() << std::endl;
}

// False for "quit".
bool obey(Relay& relay, const std::string& line)
{
    const auto space = line.find(' ');
    RelayConditions conditions = relay.conditions();
    if (line == "stats")
        printStatistics(relay);
    else if (space != std::string::npos
        && setCondition(conditions, line.substr(0, space), line.substr(space + 1)))
        relay.setConditions(conditions);
    else if (line != "quit")
        std::cerr << "not understood: " << line << std::endl;
    return line != "quit";
}

// Obeys the lines of standard input until "quit" or a signal to end.
void converse(Relay& relay, int signals)
{
    pollfd polled[] = {{signals, POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
    std::string input;
    while (::poll(polled, 2, -1) > 0 && polled[0].revents == 0) {
        char bytes[4096];
        const ssize_t size = ::read(STDIN_FILENO, bytes, sizeof bytes);
        if (size <= 0)
            polled[1].fd = -1;
        else
            input.append(bytes, static_cast<std::size_t>(size));
        for (auto end = input.find('\n'); end != std::string::npos; end = input.find('\n')) {
            if (!obey(relay, input.substr(0, end)))
                return;
            input.erase(0, end + 1);
        }
    }
}

// The descriptor that tells of a signal to end; the relay's thread inherits that it is not hit.
int endSignals()
{
    sigset_t ending;
    sigemptyset(&ending);
    sigaddset(&ending, SIGTERM);
    sigaddset(&ending, SIGINT);
    sigprocmask(SIG_BLOCK, &ending, nullptr);
    return ::signalfd(-1, &ending, SFD_CLOEXEC);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc == 2 && std::string(argv[1]) == "--help") {
        usage(stdout);
        return ExitOk;
    }
    RelaySettings settings;
    if (!parse(argc, argv, settings)) {
        usage(stderr);
        return ExitUsage;
    }
    const int signals = endSignals();
    std::string error;
    const auto relay = Relay::start(settings, error);
    if (!relay) {
        std::cerr << "orva-relay: " << error << std::endl;
        return ExitNoSocket;
    }
    std::cout << relay->port() << std::endl;
    converse(*relay, signals);
    printStatistics(*relay);
    return ExitOk;
}

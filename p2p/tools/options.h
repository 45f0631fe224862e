// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

enum class Command { Search, Watch, Send, Churn };
enum class StampCheck { None, Time, Frame };

enum ProbeExit {
    ExitOk = 0,
    ExitUsage = 2,
    ExitNotConnected = 3,
    ExitNotAuthenticated = 4,
    ExitNoFrames = 5, // on one channel at least; for `send`: no answer
    ExitLayerFailed = 6, // the layer did not come up, or a channel did not open
};

struct ProbeOptions
{
    Command command = Command::Search;
    std::string uid;
    std::string account = "Admin";
    std::string password;
    std::vector<int> channels{0};
    std::chrono::seconds seconds{5};
    bool sound = false;
    std::optional<bool> highQuality; // nothing: as the device has it
    StampCheck stamp = StampCheck::None;
    int clients = 16; // Churn
    std::uint64_t seed = 1; // Churn
    std::uint32_t messageType = 0; // Send
    std::string messageBytes; // Send
};

// What --help shows.
extern const char* const probeUsage;

// Nothing when the command line means nothing. Pure.
std::optional<ProbeOptions> parseOptions(const std::vector<std::string>& arguments);

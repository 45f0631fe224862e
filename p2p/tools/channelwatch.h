// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clientlink.h"
#include "figures.h"
#include "options.h"
#include "pictures.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

std::string hexOf(std::string_view bytes);

// The sums over all channels of a run.
struct ChannelTotals
{
    long frames = 0;
    long missing = 0;
    double slowestFirstKeyMs = 0;
    std::vector<double> delaysMs;
    ResultCounts errors;

    nlohmann::json json() const;
};

// Receives what one channel brings, and keeps the books. One thread at a time.
class ChannelWatch
{
public:
    ChannelWatch(ClientChannel channel, const ProbeOptions& options);

    // Sets the quality and starts pictures and sound. A failure shows among the errors.
    void start();
    // Takes one of each that is ready. Never waits; false when nothing was.
    bool receive();

    long frames() const { return frames_; }
    nlohmann::json json() const;
    void addTo(ChannelTotals& totals) const;

private:
    bool receiveVideo();
    bool receiveSound();
    bool receiveMessage();
    void countFrame(const char* info, std::string_view bytes, unsigned int number);
    void countResult(int result);

    const ClientChannel channel_;
    const ProbeOptions options_;
    std::vector<char> buffer_;
    Pictures pictures_;
    ResultCounts errors_;
    std::chrono::steady_clock::time_point started_;
    std::optional<unsigned int> lastNumber_;
    std::optional<double> firstKeyMs_;
    long frames_ = 0;
    long keyFrames_ = 0;
    long bytes_ = 0;
    long missing_ = 0; // numbers that were passed over
    long outOfOrder_ = 0; // numbers that did not count up
    long soundFrames_ = 0;
    long messages_ = 0;
};

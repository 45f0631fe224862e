// SPDX-License-Identifier: GPL-3.0-or-later
#include "watch.h"

#include "channelwatch.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds connectPatience{10};
constexpr std::size_t maxThreads = 4; // decoding is the only work that could use more

int fail(ProbeExit code, const char* step, int result)
{
    const nlohmann::json json = {{"failed", step}, {"result", result}};
    std::cout << json.dump() << std::endl;
    return code;
}

int failOpen(const ClientChannel& channel)
{
    const bool refused = channel.index() == AV_WRONG_PASSWORD || channel.index() == AV_LOCKED_OUT;
    return fail(refused ? ExitNotAuthenticated : ExitLayerFailed, "open", channel.index());
}

// Each thread takes every n-th channel, so that one slow decoder does not hold up all.
void receiveAll(std::vector<std::unique_ptr<ChannelWatch>>& channels, Clock::time_point end)
{
    const std::size_t threads = std::min(maxThreads, channels.size());
    std::vector<std::thread> running;
    for (std::size_t first = 0; first < threads; ++first) {
        running.emplace_back([&channels, first, threads, end] {
            while (Clock::now() < end) {
                bool idle = true;
                for (std::size_t i = first; i < channels.size(); i += threads)
                    idle = !channels[i]->receive() && idle;
                if (idle)
                    std::this_thread::sleep_for(std::chrono::milliseconds(1));
            }
        });
    }
    for (std::thread& thread : running)
        thread.join();
}

int report(const std::vector<std::unique_ptr<ChannelWatch>>& channels, double connectMs)
{
    nlohmann::json json = {{"connectMs", connectMs}, {"channels", nlohmann::json::array()}};
    ChannelTotals totals;
    bool allBring = true;
    for (const auto& channel : channels) {
        json["channels"].push_back(channel->json());
        channel->addTo(totals);
        allBring = allBring && channel->frames() > 0;
    }
    json["all"] = totals.json();
    std::cout << json.dump(1) << std::endl;
    return allBring ? ExitOk : ExitNoFrames;
}

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

} // namespace

int watch(const ProbeOptions& options)
{
    const ClientLink link;
    if (link.error() != 0)
        return fail(ExitLayerFailed, "initialize", link.error());
    const auto start = Clock::now();
    const auto session = ClientSession::connect(options.uid, connectPatience);
    const double connectMs = millisecondsSince(start);
    if (!session.connected())
        return fail(ExitNotConnected, "connect", session.result());

    std::vector<std::unique_ptr<ChannelWatch>> channels;
    for (const int number : options.channels) {
        ClientChannel channel(session, number, options.account, options.password);
        if (!channel.open())
            return failOpen(channel);
        channels.push_back(std::make_unique<ChannelWatch>(std::move(channel), options));
    }
    for (const auto& channel : channels)
        channel->start();
    receiveAll(channels, Clock::now() + options.seconds);
    return report(channels, connectMs);
}

int sendMessage(const ProbeOptions& options)
{
    const ClientLink link;
    if (link.error() != 0)
        return fail(ExitLayerFailed, "initialize", link.error());
    const auto session = ClientSession::connect(options.uid, connectPatience);
    if (!session.connected())
        return fail(ExitNotConnected, "connect", session.result());
    const ClientChannel channel(
        session, options.channels.front(), options.account, options.password);
    if (!channel.open())
        return failOpen(channel);
    const int sent = channel.send(options.messageType, options.messageBytes);
    if (sent < 0)
        return fail(ExitLayerFailed, "send", sent);

    nlohmann::json answers = nlohmann::json::array();
    const auto end = Clock::now() + options.seconds;
    int result = 0;
    while (Clock::now() < end && (result >= 0 || result == AV_NO_ANSWER)) {
        std::string bytes(AV_IO_CONTROL_MAX_BYTES, '\0');
        unsigned int type = 0;
        result = avRecvIOCtrl(channel.index(), &type, bytes.data(), AV_IO_CONTROL_MAX_BYTES, 100);
        if (result >= 0)
            answers.push_back({{"type", type},
                {"bytes", hexOf({bytes.data(), static_cast<std::size_t>(result)})}});
    }
    const nlohmann::json json = {{"answers", answers}};
    std::cout << json.dump() << std::endl;
    return answers.empty() ? ExitNoFrames : ExitOk;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "churn.h"

#include "clientlink.h"
#include "figures.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

struct Deeds
{
    long connects = 0;
    long channels = 0;
    long starts = 0;
    long frames = 0;
    ResultCounts errors;

    void add(const Deeds& other)
    {
        connects += other.connects;
        channels += other.channels;
        starts += other.starts;
        frames += other.frames;
        errors.add(other.errors);
    }
    nlohmann::json json() const
    {
        return {{"connects", connects}, {"channels", channels}, {"starts", starts},
            {"frames", frames}, {"errors", errors.json()}};
    }
};

// One restless client. Its thread is the only one to use it until it has ended.
class Client
{
public:
    Client(const ProbeOptions& options, std::uint64_t seed, Clock::time_point end)
        : options_(options)
        , end_(end)
        , random_(seed)
    {
    }

    void run()
    {
        while (Clock::now() < end_)
            visit();
    }
    const Deeds& deeds() const { return deeds_; }

private:
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }

    void visit()
    {
        // One in eight gives up before the device can have answered for certain.
        const auto patience = std::chrono::milliseconds(upTo(7) == 0 ? upTo(20) : 10000);
        const auto session = ClientSession::connect(options_.uid, patience);
        if (!session.connected()) {
            deeds_.errors.add(session.result());
            return;
        }
        ++deeds_.connects;
        std::vector<ClientChannel> channels;
        for (int i = upTo(3); i >= 0; --i)
            open(session, channels);
        receive(channels, Clock::now() + std::chrono::milliseconds(upTo(1000)));
        // Half of them leave the channels to the end of the session.
        for (const ClientChannel& channel : channels) {
            if (upTo(1) == 0)
                note(channel.stopVideo());
        }
    }

    void open(const ClientSession& session, std::vector<ClientChannel>& channels)
    {
        const int last = static_cast<int>(options_.channels.size()) - 1;
        const int number = options_.channels[static_cast<std::size_t>(upTo(last))];
        ClientChannel channel(session, number, options_.account, options_.password);
        note(channel.index());
        if (!channel.open())
            return;
        ++deeds_.channels;
        if (upTo(7) != 0) {
            note(channel.startVideo());
            ++deeds_.starts;
        }
        channels.push_back(std::move(channel));
    }

    void receive(const std::vector<ClientChannel>& channels, Clock::time_point until)
    {
        while (Clock::now() < until) {
            for (const ClientChannel& channel : channels)
                receiveFrom(channel.index());
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    }

    void receiveFrom(int index)
    {
        char info[AV_FRAME_INFO_BYTES];
        unsigned int number = 0;
        int size = 0;
        while (size >= 0) {
            size = avRecvFrameData2(index, buffer_.data(), static_cast<int>(buffer_.size()),
                nullptr, nullptr, info, sizeof info, nullptr, &number);
            deeds_.frames += size >= 0 ? 1 : 0;
        }
        if (size != AV_NOTHING_READY)
            note(size);
    }

    void note(int result)
    {
        if (result < 0)
            deeds_.errors.add(result);
    }

    const ProbeOptions& options_;
    const Clock::time_point end_;
    std::mt19937_64 random_;
    std::vector<char> buffer_ = std::vector<char>(2304000);
    Deeds deeds_;
};

long entriesOf(const char* folder)
{
    std::error_code error;
    const std::filesystem::directory_iterator entries(folder, error);
    return static_cast<long>(std::distance(entries, std::filesystem::directory_iterator()));
}

// What this process holds, as Linux tells it.
nlohmann::json holdings()
{
    nlohmann::json json = {
        {"descriptors", entriesOf("/proc/self/fd")}, {"threads", entriesOf("/proc/self/task")}};
    std::ifstream status("/proc/self/status");
    std::string key;
    for (std::string rest; status >> key && std::getline(status, rest);) {
        if (key == "VmRSS:")
            json["memoryKiB"] = std::strtol(rest.c_str(), nullptr, 10);
    }
    return json;
}

} // namespace

int churn(const ProbeOptions& options)
{
    const ClientLink link;
    if (link.error() != 0) {
        std::cerr << "orva-probe: the link layer answers " << link.error() << std::endl;
        return ExitLayerFailed;
    }
    const auto start = Clock::now();
    std::vector<Client> clients;
    clients.reserve(static_cast<std::size_t>(options.clients));
    std::vector<std::thread> threads;
    for (int i = 0; i < options.clients; ++i) {
        clients.emplace_back(
            options, options.seed + static_cast<std::uint64_t>(i), start + options.seconds);
        threads.emplace_back(&Client::run, &clients.back());
    }
    std::this_thread::sleep_until(
        start + std::chrono::duration_cast<Clock::duration>(options.seconds) / 10);
    const nlohmann::json early = holdings();
    for (std::thread& thread : threads)
        thread.join();

    Deeds all;
    for (const Client& client : clients)
        all.add(client.deeds());
    nlohmann::json json = all.json();
    json["early"] = early;
    json["late"] = holdings();
    std::cout << json.dump(1) << std::endl;
    return all.connects > 0 ? ExitOk : ExitNotConnected;
}

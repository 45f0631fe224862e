// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkrows.h"

#include "measure.h"

#include <atomic>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <thread>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

constexpr std::size_t kibibyte = 1024;
constexpr auto pollInterval = 500us; // of the client's end, the same for both candidates

double secondsOf(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

double processorSeconds()
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
}

// The time of sending, carried in the frame.
void setTime(Frame& frame)
{
    const auto now = Clock::now().time_since_epoch().count();
    std::memcpy(frame.data(), &now, sizeof now);
}

double millisecondsSinceSent(const std::vector<char>& frame)
{
    Clock::rep sent = 0;
    std::memcpy(&sent, frame.data(), sizeof sent);
    return std::chrono::duration<double, std::milli>(
        Clock::now().time_since_epoch() - Clock::duration(sent))
        .count();
}

double percentile(std::vector<double> values, double share)
{
    if (values.empty())
        return -1;
    std::sort(values.begin(), values.end());
    const auto rank = static_cast<std::size_t>(share * static_cast<double>(values.size()));
    return values[std::min(rank, values.size() - 1)];
}

// Calls `take` with each frame that comes on a pipe, until `end` or stopped.
template <typename Take>
void receiveUntil(
    const LinkPipes& pipes, Clock::time_point end, const std::atomic<bool>& stop, Take take)
{
    std::vector<char> buffer;
    while (Clock::now() < end && !stop) {
        bool idle = true;
        for (std::size_t i = 0; i < pipes.size(); ++i) {
            if (pipes[i]->receive(buffer) > 0) {
                take(i, buffer);
                idle = false;
            }
        }
        if (idle)
            std::this_thread::sleep_for(pollInterval);
    }
}

double megabytesPerProcessorSecond(LinkPipe& pipe, std::size_t frameBytes)
{
    // Enough on the way to keep the line busy, and less than either end holds.
    const long window = static_cast<long>(kibibyte * kibibyte / frameBytes);
    std::atomic<long> received{0};
    std::atomic<bool> stop{false};
    long sent = 0;
    std::thread client([&] {
        std::vector<char> buffer;
        while (!stop) {
            if (pipe.receive(buffer) > 0)
                ++received;
            else
                std::this_thread::sleep_for(pollInterval);
        }
    });
    pipe.prepare(Frame(frameBytes, 0x55));
    const double before = processorSeconds();
    const auto end = Clock::now() + 1s;
    while (Clock::now() < end) {
        if (sent - received < window && pipe.send())
            ++sent;
        else
            std::this_thread::sleep_for(pollInterval);
    }
    const double used = processorSeconds() - before;
    const auto bytes = static_cast<double>(received) * static_cast<double>(frameBytes);
    for (const auto late = Clock::now() + 1s; received < sent && Clock::now() < late;)
        std::this_thread::sleep_for(1ms);
    stop = true;
    client.join();
    return bytes / used / 1e6;
}

struct Delays
{
    std::vector<double> milliseconds;
    long sent = 0;
};

Delays delaysOf(LinkCandidate& candidate)
{
    constexpr int channels = 64;
    constexpr std::chrono::nanoseconds period = 40ms;
    Delays result;
    const LinkPipes pipes = candidate.open(channels, false);
    if (pipes.empty())
        return result;
    std::this_thread::sleep_for(300ms);
    std::atomic<bool> stop{false};
    std::thread client([&] {
        receiveUntil(pipes, Clock::now() + 1min, stop, [&result](std::size_t, const auto& frame) {
            result.milliseconds.push_back(millisecondsSinceSent(frame));
        });
    });
    // Cameras run out of step: the channels' frames are spread over the period.
    Frame frame(10 * kibibyte, 0x55);
    auto due = Clock::now();
    for (int i = 0; i < 5 * 25 * channels; ++i, due += period / channels) {
        std::this_thread::sleep_until(due);
        setTime(frame);
        LinkPipe& pipe = *pipes[static_cast<std::size_t>(i % channels)];
        pipe.prepare(frame);
        pipe.send();
        ++result.sent;
    }
    std::this_thread::sleep_for(1s);
    stop = true;
    client.join();
    return result;
}

// Milliseconds from each request to its answer, each on a fresh channel.
std::vector<double> firstKeysOf(
    LinkCandidate& candidate, Relay& relay, const RelayConditions& conditions)
{
    std::vector<double> result;
    candidate.setAnswer(Frame(100 * kibibyte, 0x55));
    for (int i = 0; i < 7; ++i) {
        RelayConditions opening = conditions;
        opening.loss = 0;
        relay.setConditions(opening);
        const LinkPipes pipes = candidate.open(1, true);
        if (pipes.empty())
            continue;
        std::this_thread::sleep_for(150ms);
        relay.setConditions(conditions);
        const auto start = Clock::now();
        std::thread asking([&pipes] { pipes[0]->request(); });
        std::atomic<bool> stop{false};
        receiveUntil(pipes, start + 10s, stop, [&](std::size_t, const auto&) {
            result.push_back(
                std::chrono::duration<double, std::milli>(Clock::now() - start).count());
            stop = true;
        });
        asking.join();
    }
    return result;
}

struct Stream
{
    double longestGapMs = 0;
    std::vector<double> delaysMs;
    long sent = 0;
    long received = 0;
};

Stream streamOf(LinkCandidate& candidate, Relay& relay, const RelayConditions& conditions)
{
    Stream result;
    RelayConditions opening = conditions;
    opening.loss = 0;
    relay.setConditions(opening);
    const LinkPipes pipes = candidate.open(1, true);
    if (pipes.empty())
        return result;
    relay.setConditions(conditions);
    std::atomic<bool> stop{false};
    std::thread client([&] {
        auto last = Clock::time_point();
        receiveUntil(pipes, Clock::now() + 1min, stop, [&](std::size_t, const auto& frame) {
            const auto now = Clock::now();
            const std::chrono::duration<double, std::milli> gap = now - last;
            if (result.received++ > 0)
                result.longestGapMs = std::max(result.longestGapMs, gap.count());
            last = now;
            result.delaysMs.push_back(millisecondsSinceSent(frame));
        });
    });
    Frame frame(10000, 0x55);
    auto due = Clock::now();
    for (; result.sent < 500; ++result.sent, due += 40ms) {
        std::this_thread::sleep_until(due);
        setTime(frame);
        pipes[0]->prepare(frame);
        pipes[0]->send();
    }
    std::this_thread::sleep_for(2s);
    stop = true;
    client.join();
    return result;
}

double lostShare(long sent, long received)
{
    return sent == 0 ? 100 : 100 * static_cast<double>(sent - received) / static_cast<double>(sent);
}

} // namespace

void print(const char* what, double figure, const char* unit, double bar, double reference)
{
    std::printf("%-58s %9.2f %-7s", what, figure, unit);
    if (bar > 0)
        std::printf(" bar %7.2f", bar);
    if (reference > 0)
        std::printf("   bare libsrt %9.2f   ratio %.2f", reference, figure / reference);
    std::printf("\n");
    std::fflush(stdout);
}

void throughputRow(Candidates& both, std::size_t frameBytes)
{
    const LinkPipes ours = both.ours.open(1, false);
    const LinkPipes bare = both.bare.open(1, false);
    if (ours.empty() || bare.empty()) {
        std::printf("bytes per CPU second: not measured, a channel did not open\n");
        return;
    }
    std::this_thread::sleep_for(300ms);
    std::vector<double> ourFigures;
    std::vector<double> bareFigures;
    for (int round = 0; round < 9; ++round) {
        ourFigures.push_back(megabytesPerProcessorSecond(*ours[0], frameBytes));
        bareFigures.push_back(megabytesPerProcessorSecond(*bare[0], frameBytes));
    }
    const std::string what =
        "bytes per CPU second, frames of " + std::to_string(frameBytes / kibibyte) + " KiB";
    const double reference = median(bareFigures);
    print(what.c_str(), median(ourFigures), "MB/s", 0.9 * reference, reference);
}

void delayRow(Candidates& both)
{
    const Delays ours = delaysOf(both.ours);
    const Delays bare = delaysOf(both.bare);
    print("64 channels x 25/s x 10 KiB: delay p50", percentile(ours.milliseconds, 0.5), "ms", 0,
        percentile(bare.milliseconds, 0.5));
    print(
        "  p99", percentile(ours.milliseconds, 0.99), "ms", 5, percentile(bare.milliseconds, 0.99));
    print("  frames lost",
        static_cast<double>(ours.sent) - static_cast<double>(ours.milliseconds.size()), "", 0, 0);
}

void firstKeyRow(
    Candidates& both, Relay& ours, Relay& bare, const RelayConditions& conditions, bool bars)
{
    const auto our = firstKeysOf(both.ours, ours, conditions);
    const auto their = firstKeysOf(both.bare, bare, conditions);
    print("first key frame of 100 KiB after start, median", percentile(our, 0.5), "ms",
        bars && conditions.loss == 0 ? 200 : 0, percentile(their, 0.5));
    print("  slowest of 7", percentile(our, 1), "ms", 0, percentile(their, 1));
}

void lossRow(
    Candidates& both, Relay& ours, Relay& bare, const RelayConditions& conditions, bool bars)
{
    if (conditions.loss == 0)
        return;
    Stream their;
    std::thread reference([&] { their = streamOf(both.bare, bare, conditions); });
    const Stream our = streamOf(both.ours, ours, conditions);
    reference.join();
    print("stream of 2 Mb/s, 20 s: longest stall", our.longestGapMs, "ms", bars ? 500 : 0,
        their.longestGapMs);
    print("  delay p99", percentile(our.delaysMs, 0.99), "ms", 0, percentile(their.delaysMs, 0.99));
    print("  frames lost", lostShare(our.sent, our.received), "%", bars ? 0.1 : 0, 0);
}

long bareConnectionMemoryKiB()
{
    constexpr int pairs = 30;
    constexpr std::uint16_t port = 24811;
    const auto bare = bareSrt(port, port);
    const long before = ownMemoryKiB();
    const LinkPipes pipes = bare ? bare->open(pairs, false) : LinkPipes();
    return (ownMemoryKiB() - before) / pairs / 2;
}

long ownMemoryKiB()
{
    std::ifstream status("/proc/self/status");
    std::string key;
    for (std::string rest; status >> key && std::getline(status, rest);) {
        if (key == "VmRSS:")
            return std::stol(rest);
    }
    return 0;
}

int ownThreads()
{
    const std::filesystem::directory_iterator entries("/proc/self/task");
    return static_cast<int>(std::distance(entries, std::filesystem::directory_iterator()));
}

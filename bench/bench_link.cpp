// SPDX-License-Identifier: GPL-3.0-or-later
// Each figure of the link layer beside its bar, and beside bare libsrt in message mode with the
// same encryption, measured in the same run.
#include "link_layer.h"
#include "linkrows.h"
#include "relay.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sys/wait.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

const char directUid[] = "BENCHDIRECT000000001";
const char relayedUid[] = "BENCHRELAYED00000001";
const char elsewhereUid[] = "BENCHELSEWHERE000001";
constexpr std::uint16_t barePort = 24810;

LinkHostSettings onLoopback()
{
    LinkHostSettings settings;
    settings.address = "127.0.0.1";
    settings.answerSearch = false; // so that the address book alone tells the way
    settings.loopbackOnly = true;
    return settings;
}

// A device in a process of its own, so that its memory is not counted with the client's.
class DeviceProcess
{
public:
    DeviceProcess()
    {
        if (::pipe(ask_) != 0 || ::pipe(answer_) != 0)
            return;
        child_ = ::fork();
        if (child_ == 0)
            serve();
        ::close(answer_[1]);
        port_ = static_cast<std::uint16_t>(read());
    }
    DeviceProcess(const DeviceProcess&) = delete;
    DeviceProcess& operator=(const DeviceProcess&) = delete;
    ~DeviceProcess()
    {
        ::close(ask_[1]);
        ::waitpid(child_, nullptr, 0);
    }

    std::uint16_t port() const { return port_; }
    long memoryKiB() { return ::write(ask_[1], "m", 1) == 1 ? read() : 0; }

private:
    long read() const
    {
        long value = 0;
        return ::read(answer_[0], &value, sizeof value) == sizeof value ? value : 0;
    }
    void write(long value) const
    {
        if (::write(answer_[1], &value, sizeof value) != sizeof value)
            ::_exit(1);
    }
    [[noreturn]] void serve()
    {
        ::close(ask_[1]);
        std::string error;
        const auto host = LinkHost::start(onLoopback(), error);
        BenchDevice device;
        if (!host || !host->publish(BenchDevice::device(elsewhereUid), device))
            ::_exit(1);
        write(host->port());
        for (char question; ::read(ask_[0], &question, 1) == 1;)
            write(ownMemoryKiB());
        ::_exit(0);
    }

    int ask_[2]{-1, -1};
    int answer_[2]{-1, -1};
    pid_t child_ = -1;
    std::uint16_t port_ = 0;
};

// The layer reads its addresses from the file beside the program.
void writeDeployment(const std::map<std::string, std::uint16_t>& ports)
{
    nlohmann::json book = nlohmann::json::object();
    for (const auto& [uid, port] : ports)
        book[uid] = "127.0.0.1:" + std::to_string(port);
    const nlohmann::json file = {{"link", {{"searchScope", "loopback"}, {"addressBook", book}}}};
    const auto folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    std::ofstream(folder / "deployment.json") << file.dump(1) << "\n";
}

std::unique_ptr<Relay> relayTo(std::uint16_t port)
{
    RelaySettings settings;
    settings.targetPort = port;
    std::string error;
    return Relay::start(settings, error);
}

// Before all else, while the heap has no room to hand out again.
void idleRows(DeviceProcess& elsewhere, int threadsBefore)
{
    constexpr std::size_t count = 64;
    const BenchSession first(elsewhereUid);
    const int firstChannel = first.openChannel(0);
    const long clientBefore = ownMemoryKiB();
    const long deviceBefore = elsewhere.memoryKiB();
    std::vector<BenchSession> sessions = BenchSession::connect(elsewhereUid, count);
    bool good = firstChannel >= 0 && sessions.size() == count;
    for (const BenchSession& session : sessions)
        good = good && session.openChannel(0) >= 0;
    if (!good) {
        std::printf("idle sessions: not measured, a session did not open\n");
        return;
    }
    const long client = (ownMemoryKiB() - clientBefore) / static_cast<long>(count);
    const long device = (elsewhere.memoryKiB() - deviceBefore) / static_cast<long>(count);
    print("threads of the client's layer, 64 sessions", ownThreads() - threadsBefore, "", 16, 0);
    const auto bare = static_cast<double>(bareConnectionMemoryKiB());
    print("memory of an idle session and channel, client", static_cast<double>(client), "KiB", 256,
        bare);
    print("  the same, device", static_cast<double>(device), "KiB", 256, bare);
}

void relayRows(Candidates& both, Relay& ours, Relay& theirs, const RelayConditions& conditions,
    const char* note, bool bars)
{
    std::printf("-- %s\n", note);
    firstKeyRow(both, ours, theirs, conditions, bars);
    lossRow(both, ours, theirs, conditions, bars);
}

} // namespace

int main()
{
    DeviceProcess elsewhere; // before this process has threads
    std::string error;
    const auto host = LinkHost::start(onLoopback(), error);
    if (!host || elsewhere.port() == 0) {
        std::fprintf(stderr, "bench_link: %s\n", error.c_str());
        return 1;
    }
    const auto ourRelay = relayTo(host->port());
    const auto bareRelay = relayTo(barePort);
    const auto bare = bareSrt(barePort, bareRelay->port());
    writeDeployment({{directUid, host->port()}, {relayedUid, ourRelay->port()},
        {elsewhereUid, elsewhere.port()}});
    const int threads = ownThreads();
    if (!bare || IOTC_Initialize2(0) < 0 || avInitialize(1024) < 0) {
        std::fprintf(stderr, "bench_link: the layer does not come up\n");
        return 1;
    }
    idleRows(elsewhere, threads);
    {
        LayerCandidate layer(*host, directUid, relayedUid);
        Candidates both{layer, *bare};
        throughputRow(both, 10240);
        throughputRow(both, 102400);
        delayRow(both);
        RelayConditions conditions;
        conditions.delay = 25ms;
        relayRows(both, *ourRelay, *bareRelay, conditions, "round trip 50 ms", true);
        conditions.loss = 0.01;
        relayRows(both, *ourRelay, *bareRelay, conditions, "round trip 50 ms, 1 % loss", true);
        conditions.delay = 50ms;
        conditions.loss = 0.03;
        relayRows(both, *ourRelay, *bareRelay, conditions, "round trip 100 ms, 3 % loss", false);
        host->withdraw(directUid);
        host->withdraw(relayedUid);
    }
    IOTC_DeInitialize();
    return 0;
}

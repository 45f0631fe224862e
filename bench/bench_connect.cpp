// SPDX-License-Identifier: GPL-3.0-or-later
// The client's device link against orva-bridge on loopback: how long a channel takes to connect,
// beside the bare calls of the layer, and what a device that hangs does to the others.
#include "AVAPIs.h"
#include "IOTCAPIs.h"
#include "bridgeprocess.h"
#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "model/device.h"

#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Figures = std::vector<double>; // milliseconds

namespace {

constexpr int deviceCount = 8;
constexpr int channelsEach = 4;
constexpr auto patience = 60s;

QByteArray uidOf(int device)
{
    return "BENCHCONNECTDEVICE0" + QByteArray::number(device + 1);
}

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double percentile(Figures figures, double share)
{
    if (figures.empty())
        return -1;
    std::sort(figures.begin(), figures.end());
    const auto rank = static_cast<std::size_t>(share * static_cast<double>(figures.size()));
    return figures[std::min(rank, figures.size() - 1)];
}

void printLine(const std::string& what, double figure, const char* against, double reference)
{
    std::printf("%-64s %9.2f ms   %-16s %9.2f ms   ratio %.2f\n", what.c_str(), figure, against,
        reference, figure / reference);
    std::fflush(stdout);
}

void printRow(
    const std::string& what, const Figures& ours, const char* against, const Figures& reference)
{
    printLine(what + ", p50", percentile(ours, 0.5), against, percentile(reference, 0.5));
    printLine("  p95", percentile(ours, 0.95), against, percentile(reference, 0.95));
}

// Runs the event loop until `done`. False when that takes longer than anything here may.
bool runUntil(const std::function<bool()>& done, std::chrono::milliseconds limit = patience)
{
    const auto end = Clock::now() + limit;
    QTimer wake; // so that the end is noticed without an event
    wake.start(100);
    while (!done()) {
        if (Clock::now() >= end)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

// When a signal of the link came, each time, in milliseconds since `from`.
template <typename Signal>
class Arrivals
{
public:
    Arrivals(IoConnect* io, Signal signal, Clock::time_point from)
        : connection_(QObject::connect(
            io, signal, io, [this, from] { at.push_back(millisecondsSince(from)); },
            Qt::DirectConnection))
    {
    }
    Q_DISABLE_COPY_MOVE(Arrivals)
    ~Arrivals() { QObject::disconnect(connection_); }

    bool await(std::size_t count)
    {
        return runUntil([this, count] { return at.size() >= count; });
    }

    Figures at;

private:
    const QMetaObject::Connection connection_;
};

// Takes a device back as the registry does.
struct Leave
{
    void operator()(Device* device) const
    {
        IoConnect::instance()->disConnectDevice(device);
        emit Dev::instance()->deleteDevMsg(device);
        device->retire();
    }
};

using OwnDevice = std::unique_ptr<Device, Leave>;

OwnDevice makeDevice(int number, int channels)
{
    OwnDevice device(new Device);
    device->setUid(QString::fromLatin1(uidOf(number)));
    device->setViewPassword(QString::fromLatin1(BridgeProcess::password));
    device->setChannelCount(channels);
    return device;
}

// When the first and the last channel of `devices` were there, in milliseconds from the request.
struct Span
{
    double first = 0;
    double last = 0;
};

Span connectAll(IoConnect* io, const std::vector<OwnDevice>& devices)
{
    const auto start = Clock::now();
    Arrivals connected(io, &IoConnect::connectChannelSuccessMsg, start);
    Arrivals settled(io, &IoConnect::getPtzMsg, start); // the last of what the link asks by itself
    std::size_t count = 0;
    for (const OwnDevice& device : devices) {
        for (int number = 0; number < device->channelCount(); ++number, ++count)
            io->connect(device->channel(number));
    }
    if (!settled.await(count))
        return {};
    return {connected.at.front(), connected.at.back()};
}

Span connectOnce(IoConnect* io, const std::vector<OwnDevice>& devices)
{
    const Span span = connectAll(io, devices);
    for (const OwnDevice& device : devices)
        io->disConnectDevice(device.get());
    return span;
}

// The bare calls, one after the other.
class BareSession
{
public:
    explicit BareSession(const QByteArray& uid)
        : id_(IOTC_Get_SessionID())
    {
        IOTC_Connect_ByUID_ParallelNB(uid.constData(), id_, report, this);
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return done_; });
    }
    Q_DISABLE_COPY_MOVE(BareSession)
    ~BareSession() { IOTC_Session_Close(id_); }

    void openChannel(int number) const
    {
        unsigned serviceType = 0;
        int resend = 0;
        const int avIndex = avClientStart2(id_, "Admin", BridgeProcess::password, 5, &serviceType,
            static_cast<unsigned char>(number), &resend);
        // The link tells of success once it has asked for the version.
        const std::array<char, 64> question{};
        avSendIOCtrl(avIndex, IOCTRL_GET_VERSION, question.data(), question.size());
    }

private:
    static void report(int state, int /*result*/, void* userData)
    {
        if (state != IOTC_STATE_CONNECTED && state != IOTC_STATE_FAILED)
            return;
        auto* self = static_cast<BareSession*>(userData);
        const std::lock_guard lock(self->mutex_);
        self->done_ = true;
        self->changed_.notify_all();
    }

    const int id_;
    std::mutex mutex_;
    std::condition_variable changed_;
    bool done_ = false; // guarded by mutex_
};

Span connectBare(int devices, int channels)
{
    const auto start = Clock::now();
    std::vector<std::unique_ptr<BareSession>> sessions;
    Span span;
    for (int i = 0; i < devices; ++i) {
        sessions.push_back(std::make_unique<BareSession>(uidOf(i)));
        for (int number = 0; number < channels; ++number) {
            sessions.back()->openChannel(number);
            if (span.first == 0)
                span.first = millisecondsSince(start);
        }
    }
    span.last = millisecondsSince(start);
    return span;
}

void connectRow(IoConnect* io, int devices, int channels, int rounds, const std::string& what)
{
    std::vector<OwnDevice> ours;
    ours.reserve(static_cast<std::size_t>(devices));
    for (int i = 0; i < devices; ++i)
        ours.push_back(makeDevice(i, channels));
    Figures first;
    Figures last;
    Figures bareFirst;
    Figures bareLast;
    for (int round = 0; round < rounds; ++round) {
        const Span our = connectOnce(io, ours);
        const Span bare = connectBare(devices, channels);
        first.push_back(our.first);
        last.push_back(our.last);
        bareFirst.push_back(bare.first);
        bareLast.push_back(bare.last);
    }
    const bool single = devices * channels == 1;
    printRow(single ? what : what + ", first", first, "bare calls", bareFirst);
    if (!single)
        printRow(what + ", last", last, "bare calls", bareLast);
}

// What a healthy device and a third one are asked while another device hangs. All in milliseconds.
struct Waits
{
    double command = -1; // until it has been sent
    double message = -1; // from the question, sent beside the link, to the signal of its answer
    double session = -1;
    double channel = -1;
};

constexpr std::array<char, 4> noArguments{};

class Neighbours
{
public:
    Neighbours(IoConnect* io, const BridgeProcess& bridge)
        : io_(io)
        , bridge_(bridge)
    {
        connectAll(io_, healthy_);
        connectAll(io_, hanging_);
    }
    Q_DISABLE_COPY_MOVE(Neighbours)
    ~Neighbours() = default;

    // All at the same moment.
    Waits measure() const;
    double messageAlone() const;
    // While a command of the hanging device is under way that has the IO timer, or has none and is
    // ended after `cut`.
    Waits measureBesideTimedCommand() const;
    Waits measureBesideCommandCutAfter(std::chrono::milliseconds cut) const;
    Figures messagesBesideHang(int count) const;

private:
    bool hold(const char* on) const { return bridge_.fault(uidOf(1), QByteArray("hold ") + on); }
    Channel* hangingChannel() const { return hanging_[0]->channel(0); }
    void cutHang() const { avSendIOCtrlExit(hangingChannel()->mode(true).avIndex); }

    IoConnect* const io_;
    const BridgeProcess& bridge_;
    std::vector<OwnDevice> healthy_ = one(0);
    std::vector<OwnDevice> hanging_ = one(1);

    static std::vector<OwnDevice> one(int number)
    {
        std::vector<OwnDevice> devices;
        devices.push_back(makeDevice(number, 1));
        return devices;
    }
};

Waits Neighbours::measure() const
{
    Channel* channel = healthy_[0]->channel(0);
    const OwnDevice third = makeDevice(2, 1);
    const auto start = Clock::now();
    Arrivals sent(io_, &IoConnect::audioControlSuccessMsg, start);
    Arrivals answered(io_, &IoConnect::getSmartSensitivitySuccessMsg, start);
    Arrivals session(io_, &IoConnect::connectDevSuccessMsg, start);
    Arrivals connected(io_, &IoConnect::connectChannelSuccessMsg, start);
    Arrivals settled(io_, &IoConnect::getPtzMsg, start);
    io_->audioControl(channel, false);
    io_->connect(third->channel(0));
    avSendIOCtrl(channel->mode(true).avIndex, IOCTRL_GET_SENSITIVITY, noArguments.data(),
        noArguments.size());
    const bool done = sent.await(1) && answered.await(1) && settled.await(1);
    return done ? Waits{sent.at[0], answered.at[0], session.at[0], connected.at[0]} : Waits();
}

double Neighbours::messageAlone() const
{
    const auto start = Clock::now();
    Arrivals answered(io_, &IoConnect::getSmartSensitivitySuccessMsg, start);
    avSendIOCtrl(healthy_[0]->channel(0)->mode(true).avIndex, IOCTRL_GET_SENSITIVITY,
        noArguments.data(), noArguments.size());
    return answered.await(1) ? answered.at[0] : -1;
}

Waits Neighbours::measureBesideTimedCommand() const
{
    if (!hold("on"))
        return {};
    Arrivals failed(io_, &IoConnect::setTimeZoneFailMsg, Clock::now());
    io_->setTimeZone(hangingChannel(), QStringLiteral("UTC"));
    const Waits waits = measure();
    failed.await(1);
    hold("off");
    return waits;
}

Waits Neighbours::measureBesideCommandCutAfter(std::chrono::milliseconds cut) const
{
    if (!hold("on"))
        return {};
    Arrivals failed(io_, &IoConnect::getRotateModeFailMsg, Clock::now());
    io_->getRotateMode(hangingChannel());
    QTimer::singleShot(cut, [this] { cutHang(); });
    const Waits waits = measure();
    failed.await(1);
    hold("off");
    return waits;
}

Figures Neighbours::messagesBesideHang(int count) const
{
    if (!hold("on"))
        return {};
    Arrivals failed(io_, &IoConnect::getRotateModeFailMsg, Clock::now());
    io_->getRotateMode(hangingChannel());
    Figures figures;
    for (int i = 0; i < count; ++i)
        figures.push_back(messageAlone());
    cutHang();
    failed.await(1);
    hold("off");
    return figures;
}

void printWaits(const Waits& waits, const Waits& quiet)
{
    printLine("  a command of a healthy device, until sent", waits.command, "nobody hangs",
        quiet.command);
    printLine("  an answer of a healthy device, until its signal", waits.message, "nobody hangs",
        quiet.message);
    printLine("  another device, until its session", waits.session, "nobody hangs", quiet.session);
    printLine("  another device, until its channel", waits.channel, "nobody hangs", quiet.channel);
}

Waits medianWaits(const Neighbours& neighbours)
{
    Figures command;
    Figures message;
    Figures session;
    Figures channel;
    for (int round = 0; round < 15; ++round) {
        const Waits waits = neighbours.measure();
        command.push_back(waits.command);
        message.push_back(waits.message);
        session.push_back(waits.session);
        channel.push_back(waits.channel);
    }
    return {percentile(command, 0.5), percentile(message, 0.5), percentile(session, 0.5),
        percentile(channel, 0.5)};
}

void hangRows(IoConnect* io, const BridgeProcess& bridge)
{
    constexpr auto cut = 30s;
    constexpr int messages = 30;
    const Neighbours neighbours(io, bridge);
    const Waits quiet = medianWaits(neighbours);
    Figures quietMessages;
    for (int i = 0; i < messages; ++i)
        quietMessages.push_back(neighbours.messageAlone());
    std::printf("-- another device hangs, pool of %d threads\n",
        QThreadPool::globalInstance()->maxThreadCount());
    printRow("no other command waits: an answer of a healthy device",
        neighbours.messagesBesideHang(messages), "nobody hangs", quietMessages);
    std::printf("its command has the IO timer of 20 s:\n");
    printWaits(neighbours.measureBesideTimedCommand(), quiet);
    std::printf("its command has none, and is ended here after 30 s:\n");
    printWaits(neighbours.measureBesideCommandCutAfter(cut), quiet);
}

QByteArray bridgeDevices()
{
    QByteArray devices;
    for (int i = 0; i < deviceCount; ++i)
        devices += BridgeProcess::device(uidOf(i), channelsEach);
    return devices;
}

// The layer reads its scope from the file beside the program.
bool writeDeployment()
{
    QFile file(QCoreApplication::applicationDirPath() + QStringLiteral("/deployment.json"));
    return file.open(QFile::WriteOnly)
        && file.write("{\"link\": {\"searchScope\": \"loopback\"}}\n") > 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    BridgeProcess bridge(bridgeDevices());
    if (!writeDeployment() || !bridge.start()) {
        std::fprintf(stderr, "bench_connect: %s\n", bridge.log().constData());
        return 1;
    }
    auto io = std::make_unique<IoConnect>();
    Arrivals up(io.get(), &IoConnect::tutkInitSuccessMsg, Clock::now());
    if (!up.await(1)) {
        std::fprintf(stderr, "bench_connect: the layer does not come up\n");
        return 1;
    }
    connectRow(io.get(), 1, 1, 60, "connect, 1 device with 1 channel");
    connectRow(io.get(), deviceCount, channelsEach, 20, "connect, 32 channels of 8 devices");
    hangRows(io.get(), bridge);
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::sendPostedEvents();
    io.reset();
    QThreadPool::globalInstance()->waitForDone();
    return 0;
}

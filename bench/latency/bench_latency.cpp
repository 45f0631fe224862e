// SPDX-License-Identifier: GPL-3.0-or-later
// How old a live picture is when it stands on the screen, and how long a stream takes to its first
// one: the client with both settings of its decoder, and mpv over RTSP beside it with the same
// encoder. Needs an X display of 1920x1080 of its own.
#include "arrivals.h"
#include "passages.h"
#include "players.h"
#include "report.h"
#include "tilegrid.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <thread>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

constexpr auto lookInterval = 3ms;
constexpr auto startPatience = 20s;
constexpr auto warmUp = 2s;
// How much longer than the window the client runs: until it is connected, and the warm-up.
constexpr auto clientMargin = 8s;

struct Options
{
    std::chrono::seconds window{20};
    std::vector<int> tiles;
    QStringList only; // empty: all
    int starts = 40;
    QString json; // empty: to standard output
};

constexpr const char* decoders[] = {"lowDelay", "throughput"};

struct Output
{
    const char* name;
    QStringList arguments;
};

// Software OpenGL is taken only by those who ask for it.
const Output outputs[] = {
    {"mpv gpu",
        {QStringLiteral("--vo=gpu"), QStringLiteral("--gpu-context=x11egl"),
            QStringLiteral("--gpu-sw=yes")}},
    {"mpv x11", {QStringLiteral("--vo=x11")}},
};

std::unique_ptr<ScreenWatch> watchScreen(int tiles, std::string& error)
{
    std::vector<QRect> rects;
    rects.reserve(static_cast<std::size_t>(tiles));
    for (int i = 0; i < tiles; ++i)
        rects.push_back(tileRect(i, tiles));
    return ScreenWatch::start(rects, lookInterval, error);
}

bool awaitPictures(const ScreenWatch& watch)
{
    const auto shows = [](const auto& sights) { return sights.size() >= 2; };
    const auto end = Clock::now() + startPatience;
    while (Clock::now() < end) {
        const auto sights = watch.sights();
        if (std::all_of(sights.begin(), sights.end(), shows))
            return true;
        std::this_thread::sleep_for(50ms);
    }
    return false;
}

// The part of a run that counts.
struct Window
{
    Clock::time_point from;
    Clock::time_point to;
};

// False: `error` tells why.
bool passWindow(
    const ScreenWatch& watch, std::chrono::seconds length, Window& window, std::string& error)
{
    if (!awaitPictures(watch)) {
        error = "not all tiles show a picture";
        return false;
    }
    std::this_thread::sleep_for(warmUp);
    window.from = Clock::now();
    std::this_thread::sleep_for(length);
    window.to = Clock::now();
    std::this_thread::sleep_for(1s); // for what was drawn last
    return true;
}

// Of all channels.
std::vector<Passage> passagesWithin(const Window& window, const std::vector<SentPicture>& sent,
    const std::vector<ChannelNotes>& channels)
{
    std::vector<Passage> all;
    for (const ChannelNotes& notes : channels) {
        for (const Passage& passage : passagesOf(sent, notes)) {
            if (passage.drawn >= window.from && passage.drawn < window.to)
                all.push_back(passage);
        }
    }
    return all;
}

void addScreen(std::vector<ChannelNotes>& channels, const ScreenWatch& watch)
{
    auto sights = watch.sights();
    for (std::size_t i = 0; i < channels.size(); ++i)
        channels[i].sights = std::move(sights[i]);
}

// False: `error` tells why. The same for the next ones.
bool noteClient(const QString& decoder, const Options& options, std::vector<ChannelNotes>& channels,
    Window& window, std::string& error)
{
    const int tiles = static_cast<int>(channels.size());
    const ClientProgram program(decoder);
    const QString times = program.file(QStringLiteral("times"));
    const auto arrivals = Arrivals::start(BenchCamera::uid, BenchCamera::password, error);
    const auto watch = arrivals ? watchScreen(tiles, error) : nullptr;
    if (!watch)
        return false;
    const auto seconds = std::chrono::seconds(options.window + clientMargin).count();
    const auto client = program.start(tiles,
        {QStringLiteral("--seconds"), QString::number(seconds), QStringLiteral("--times"), times});
    if (!client || !passWindow(*watch, options.window, window, error)) {
        error += client ? client->readAll().toStdString() : "orva_tiles does not start";
        return false;
    }
    client->waitForFinished();
    // Of the others it would be the same, but asking takes from who is measured.
    channels.front().arrived = arrivals->stop();
    addClientTimes(times, channels);
    addScreen(channels, *watch);
    return true;
}

bool noteMpv(const RtspServer& server, const Output& output, const Options& options,
    std::vector<ChannelNotes>& channels, Window& window, std::string& error)
{
    const int tiles = static_cast<int>(channels.size());
    const auto watch = watchScreen(tiles, error);
    const Players players = startMpv(server, tiles, output.arguments);
    if (!watch || players.empty() || !passWindow(*watch, options.window, window, error)) {
        for (const auto& player : players)
            error += player->readAll().toStdString();
        return false;
    }
    addScreen(channels, *watch);
    return true;
}

class Bench
{
public:
    explicit Bench(const Options& options)
        : options_(options)
    {
    }

    bool run();

private:
    bool wants(const char* who) const
    {
        return options_.only.isEmpty() || options_.only.contains(QLatin1String(who));
    }
    void latencyOfClient(int tiles, const char* decoder);
    void latencyOfMpv(int tiles, const Output& output);
    void addLatency(
        const char* who, int tiles, const std::vector<Passage>& passages, const std::string& error);
    void starts(const char* decoder, bool cameraRuns);
    void fail(const char* who, const std::string& error);
    bool writeJson() const;

    const Options options_;
    std::vector<LatencyRow> latency_;
    std::vector<StartRow> starts_;
    bool good_ = true;
};

void Bench::fail(const char* who, const std::string& error)
{
    std::fprintf(stderr, "bench_latency: %s: %s\n", who, error.c_str());
    good_ = false;
}

void Bench::addLatency(
    const char* who, int tiles, const std::vector<Passage>& passages, const std::string& error)
{
    if (!error.empty()) {
        fail(who, error);
        return;
    }
    latency_.push_back(latencyRow(who, tiles, passages));
    printRow(latency_.back());
}

void Bench::latencyOfClient(int tiles, const char* decoder)
{
    std::string error;
    std::vector<ChannelNotes> channels(static_cast<std::size_t>(tiles));
    Window window;
    std::vector<SentFrame> sent;
    if (const auto camera = BenchCamera::start(tiles, error)) {
        camera->run();
        noteClient(QLatin1String(decoder), options_, channels, window, error);
        sent = camera->rest();
    }
    addLatency(decoder, tiles, passagesWithin(window, readStamps(sent), channels), error);
}

void Bench::latencyOfMpv(int tiles, const Output& output)
{
    std::string error;
    std::vector<ChannelNotes> channels(static_cast<std::size_t>(tiles));
    Window window;
    std::vector<SentFrame> sent;
    const auto server = RtspServer::start(error);
    if (const auto camera = server ? BenchCamera::start(1, error) : nullptr) {
        camera->run([&server](const LinkFrame& frame) { server->take(frame); });
        noteMpv(*server, output, options_, channels, window, error);
        sent = camera->rest();
    }
    addLatency(output.name, tiles, passagesWithin(window, readStamps(sent), channels), error);
}

void Bench::starts(const char* decoder, bool cameraRuns)
{
    constexpr int patienceMs = 5 * 60 * 1000;
    std::string error;
    const ClientProgram program{QLatin1String(decoder)};
    const auto camera = BenchCamera::start(1, error);
    if (camera && cameraRuns)
        camera->run();
    const auto client = camera
        ? program.start(1, {QStringLiteral("--starts"), QString::number(options_.starts)})
        : nullptr;
    if (!client || !client->waitForFinished(patienceMs)) {
        fail(decoder, "does not start so often: " + error);
        return;
    }
    std::vector<double> waits;
    for (const QByteArray& line : client->readAll().split('\n')) {
        if (line.startsWith("start-ms "))
            waits.push_back(line.mid(9).toDouble());
    }
    starts_.push_back({decoder, cameraRuns, spreadOf(waits)});
    printRow(starts_.back());
}

bool Bench::writeJson() const
{
    const QByteArray json = toJson(latency_, starts_);
    QFile file(options_.json);
    const bool open = options_.json.isEmpty() ? file.open(stdout, QFile::WriteOnly)
                                              : file.open(QFile::WriteOnly | QFile::Truncate);
    return open && file.write(json) == json.size();
}

bool Bench::run()
{
    printLatencyHead();
    for (const int tiles : options_.tiles) {
        for (const char* decoder : decoders) {
            if (wants(decoder))
                latencyOfClient(tiles, decoder);
        }
        for (const Output& output : outputs) {
            if (wants(output.name))
                latencyOfMpv(tiles, output);
        }
    }
    if (options_.starts > 0) {
        printStartHead();
        for (const char* decoder : decoders) {
            if (!wants(decoder))
                continue;
            starts(decoder, true);
            starts(decoder, false);
        }
    }
    return writeJson() && good_;
}

Options readOptions()
{
    QCommandLineParser parser;
    const QCommandLineOption seconds(QStringLiteral("seconds"),
        QStringLiteral("How long each is measured."), QStringLiteral("S"), QStringLiteral("20"));
    const QCommandLineOption tiles(QStringLiteral("tiles"), QStringLiteral("Numbers of tiles."),
        QStringLiteral("N,..."), QStringLiteral("1,4"));
    const QCommandLineOption only(QStringLiteral("only"),
        QStringLiteral("Of lowDelay, throughput, mpv gpu, mpv x11."), QStringLiteral("NAME,..."));
    const QCommandLineOption starts(QStringLiteral("starts"),
        QStringLiteral("Starts of a stream for each row."), QStringLiteral("N"),
        QStringLiteral("40"));
    const QCommandLineOption json(QStringLiteral("json"),
        QStringLiteral("Writes the figures to a file."), QStringLiteral("FILE"));
    parser.addOptions({seconds, tiles, only, starts, json});
    parser.addHelpOption();
    parser.process(*QCoreApplication::instance());
    Options options;
    options.window = std::chrono::seconds(std::max(1, parser.value(seconds).toInt()));
    for (const QString& count : parser.value(tiles).split(QLatin1Char(',')))
        options.tiles.push_back(std::clamp(count.toInt(), 1, 16));
    options.only = parser.value(only).split(QLatin1Char(','), Qt::SkipEmptyParts);
    options.starts = parser.value(starts).toInt();
    options.json = parser.value(json);
    return options;
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
    const Options options = readOptions();
    if (!writeDeployment()) {
        std::fprintf(stderr, "bench_latency: cannot write beside itself\n");
        return 1;
    }
    return Bench(options).run() ? 0 : 1;
}

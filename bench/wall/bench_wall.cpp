// SPDX-License-Identifier: GPL-3.0-or-later
// A wall of 1 to 16 tiles under software OpenGL: the client with orva-bridge, the floor of what any
// program takes, and a player for each tile, one after the other with the same clips. Needs an X
// display of 1920x1080 of its own.
#include "clipdecoder.h"
#include "clips.h"
#include "contestant.h"
#include "report.h"
#include "tilegrid.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <thread>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

constexpr int clipCount = 4;
constexpr auto lookInterval = 4ms;
constexpr auto startPatience = 30s;
constexpr auto warmUp = 4s;

struct Entry
{
    const char* name;
    Contestant play;
};

constexpr Entry contestants[] = {{"ours", playWithClient}, {"floor", playWithFloor},
    {"mpv-gpu", playWithMpvGpu}, {"mpv-x11", playWithMpvX11}};

struct Options
{
    std::chrono::seconds window{20};
    std::vector<int> tiles;
    QStringList only; // empty: all
    QString json; // empty: to standard output
};

std::vector<QRect> tileRects(int count)
{
    std::vector<QRect> rects;
    rects.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        rects.push_back(tileRect(i, count));
    return rects;
}

// A second picture: the first may be one that somebody else has left on the screen.
bool allShow(const ScreenWatch& watch)
{
    const auto sights = watch.sights();
    return std::all_of(
        sights.begin(), sights.end(), [](const auto& tile) { return tile.size() >= 2; });
}

bool awaitPictures(const ScreenWatch& watch, const ProcessGroup& players)
{
    const auto end = Clock::now() + startPatience;
    while (!allShow(watch)) {
        if (Clock::now() >= end || !players.isRunning())
            return false;
        std::this_thread::sleep_for(50ms);
    }
    return true;
}

void addShowing(
    Result& result, const ScreenWatch& watch, Clock::time_point from, Clock::time_point to)
{
    for (const auto& sights : watch.sights()) {
        const Showing showing = summarise(sights, clipFrames, from, to);
        result.shown += showing.shown;
        result.passed += showing.passed;
        result.longestStall = std::max(result.longestStall,
            std::chrono::duration_cast<std::chrono::milliseconds>(showing.longestStall));
    }
    result.framesPerSecond =
        result.shown / std::chrono::duration<double>(to - from).count() / result.tiles;
}

// Fills in all but who it is. False when it did not play to the end.
bool measure(Result& result, const ProcessGroup& players, const ScreenWatch& watch,
    std::chrono::seconds window)
{
    if (!awaitPictures(watch, players))
        return false;
    std::this_thread::sleep_for(warmUp);
    const auto cpuBefore = players.cpuTime();
    const auto from = Clock::now();
    std::this_thread::sleep_for(window);
    const std::chrono::duration<double> cpu = players.cpuTime() - cpuBefore;
    const auto to = Clock::now();
    result.cpu = cpu / std::chrono::duration<double>(to - from);
    result.memory = players.memory();
    addShowing(result, watch, from, to);
    return players.isRunning();
}

bool play(const Entry& entry, const Wall& wall, std::chrono::seconds window, Result& result)
{
    std::string error;
    const auto performance = entry.play(wall, error);
    const auto watch =
        performance ? ScreenWatch::start(tileRects(wall.tiles), lookInterval, error) : nullptr;
    if (watch && measure(result, performance->players, *watch, window))
        return true;
    QFile log(wall.log);
    const QByteArray said = log.open(QFile::ReadOnly) ? log.readAll().right(2000) : QByteArray();
    std::fprintf(stderr, "bench_wall: %s with %d tiles: %s\n%s\n", entry.name, wall.tiles,
        error.empty() ? "did not show all tiles to the end" : error.c_str(), said.constData());
    return false;
}

double processorSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

// CPU seconds per second of one stream; below 0 when a clip cannot be read.
double decodingAlone(const QStringList& clips)
{
    double seconds = 0;
    for (const QString& clip : clips) {
        std::string error;
        const auto decoder = ClipDecoder::open(clip.toStdString(), error);
        const double start = processorSeconds();
        for (std::uint32_t frame = 0; frame < clipFrames; ++frame) {
            if (!decoder || decoder->next() == nullptr)
                return -1;
        }
        seconds += processorSeconds() - start;
    }
    return seconds * clipFramesPerSecond / clipFrames / clips.size();
}

Options readOptions()
{
    QCommandLineParser parser;
    const QCommandLineOption seconds(QStringLiteral("seconds"),
        QStringLiteral("How long each is measured."), QStringLiteral("S"), QStringLiteral("20"));
    const QCommandLineOption tiles(QStringLiteral("tiles"), QStringLiteral("Numbers of tiles."),
        QStringLiteral("N,..."), QStringLiteral("1,4,9,16"));
    const QCommandLineOption only(QStringLiteral("only"),
        QStringLiteral("Of ours, floor, mpv-gpu, mpv-x11."), QStringLiteral("NAME,..."));
    const QCommandLineOption json(QStringLiteral("json"),
        QStringLiteral("Writes the figures to a file."), QStringLiteral("FILE"));
    parser.addOptions({seconds, tiles, only, json});
    parser.addHelpOption();
    parser.process(*QCoreApplication::instance());
    Options options;
    options.window = std::chrono::seconds(std::max(1, parser.value(seconds).toInt()));
    for (const QString& count : parser.value(tiles).split(QLatin1Char(',')))
        options.tiles.push_back(std::clamp(count.toInt(), 1, 16));
    options.only = parser.value(only).split(QLatin1Char(','), Qt::SkipEmptyParts);
    options.json = parser.value(json);
    return options;
}

// True when everybody has played.
bool playAll(const Options& options, Wall wall, std::vector<Result>& results)
{
    bool good = true;
    wall.longest = options.window + startPatience + warmUp + 60s;
    printHead();
    for (const int tiles : options.tiles) {
        wall.tiles = tiles;
        for (const Entry& entry : contestants) {
            if (!options.only.isEmpty() && !options.only.contains(QLatin1String(entry.name)))
                continue;
            Result result;
            result.who = entry.name;
            result.tiles = tiles;
            if (play(entry, wall, options.window, result)) {
                results.push_back(result);
                printResult(result);
            } else {
                good = false;
            }
        }
    }
    return good;
}

bool writeJson(const QString& path, const QByteArray& json)
{
    QFile file(path);
    const bool open = path.isEmpty() ? file.open(stdout, QFile::WriteOnly)
                                     : file.open(QFile::WriteOnly | QFile::Truncate);
    return open && file.write(json) == json.size();
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    const Options options = readOptions();
    const QTemporaryDir folder;
    std::string error;
    Wall wall;
    wall.log = folder.filePath(QStringLiteral("log"));
    wall.clips = writeClips(folder.path(), clipCount, error);
    if (wall.clips.isEmpty()) {
        std::fprintf(stderr, "bench_wall: %s\n", error.c_str());
        return 1;
    }
    const double alone = decodingAlone(wall.clips);
    std::printf("decoding alone: %.3f CPU s/s for each stream\n", alone);
    std::vector<Result> results;
    const bool good = playAll(options, wall, results);
    printRatios(results);
    return writeJson(options.json, toJson(results, alone)) && good ? 0 : 1;
}

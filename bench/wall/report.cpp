// SPDX-License-Identifier: GPL-3.0-or-later
#include "report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <set>

namespace {

constexpr double mebibyte = 1024.0 * 1024;

double share(const Result& result)
{
    return result.passed > 0 ? double{1} * result.shown / result.passed : 0;
}

const Result* find(const std::vector<Result>& results, int tiles, const char* who)
{
    const auto found = std::find_if(results.begin(), results.end(),
        [=](const Result& result) { return result.tiles == tiles && result.who == who; });
    return found == results.end() ? nullptr : &*found;
}

std::set<int> tileCounts(const std::vector<Result>& results)
{
    std::set<int> counts;
    for (const Result& result : results)
        counts.insert(result.tiles);
    return counts;
}

using Figure = double (*)(const Result&);

double cpuOf(const Result& result)
{
    return result.cpu;
}

double residentOf(const Result& result)
{
    return static_cast<double>(result.memory.resident);
}

std::string ratio(const Result* ours, const Result* other, Figure figure)
{
    if (ours == nullptr || other == nullptr || figure(*other) <= 0)
        return "-";
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", figure(*ours) / figure(*other));
    return text;
}

QJsonObject toObject(const Result& result)
{
    return {{QStringLiteral("who"), QString::fromStdString(result.who)},
        {QStringLiteral("tiles"), result.tiles},
        {QStringLiteral("cpuSecondsPerSecond"), result.cpu},
        {QStringLiteral("residentBytes"), result.memory.resident},
        {QStringLiteral("proportionalBytes"), result.memory.proportional},
        {QStringLiteral("framesShown"), result.shown},
        {QStringLiteral("framesSent"), result.passed},
        {QStringLiteral("framesPerSecond"), result.framesPerSecond},
        {QStringLiteral("longestStallMs"), static_cast<int>(result.longestStall.count())}};
}

} // namespace

void printHead()
{
    std::printf("%5s  %-8s %8s %10s %10s %16s %8s %7s %9s\n", "tiles", "who", "CPU s/s", "RSS MiB",
        "PSS MiB", "shown/sent", "share", "fps", "stall ms");
}

void printResult(const Result& result)
{
    const std::string counts = std::to_string(result.shown) + "/" + std::to_string(result.passed);
    std::printf("%5d  %-8s %8.2f %10.1f %10.1f %16s %7.2f%% %7.2f %9lld\n", result.tiles,
        result.who.c_str(), result.cpu, static_cast<double>(result.memory.resident) / mebibyte,
        static_cast<double>(result.memory.proportional) / mebibyte, counts.c_str(),
        100 * share(result), result.framesPerSecond,
        static_cast<long long>(result.longestStall.count()));
    std::fflush(stdout);
}

void printRatios(const std::vector<Result>& results)
{
    std::printf("\n%5s  %14s %16s %16s %24s\n", "tiles", "CPU ours:floor", "CPU ours:mpv gpu",
        "CPU ours:mpv x11", "memory (RSS) ours:mpv gpu");
    for (const int tiles : tileCounts(results)) {
        const Result* ours = find(results, tiles, "ours");
        const Result* gpu = find(results, tiles, "mpv-gpu");
        std::printf("%5d  %14s %16s %16s %24s\n", tiles,
            ratio(ours, find(results, tiles, "floor"), cpuOf).c_str(),
            ratio(ours, gpu, cpuOf).c_str(),
            ratio(ours, find(results, tiles, "mpv-x11"), cpuOf).c_str(),
            ratio(ours, gpu, residentOf).c_str());
    }
}

QByteArray toJson(const std::vector<Result>& results, double decodingAlone)
{
    QJsonArray all;
    for (const Result& result : results)
        all.append(toObject(result));
    return QJsonDocument({{QStringLiteral("decodingAloneCpuSecondsPerSecond"), decodingAlone},
                             {QStringLiteral("results"), all}})
        .toJson();
}

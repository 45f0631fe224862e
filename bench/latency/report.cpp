// SPDX-License-Identifier: GPL-3.0-or-later
#include "report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>

namespace {

using Point = std::optional<Passage::Time> (*)(const Passage&);

template <auto point>
std::optional<Passage::Time> at(const Passage& passage)
{
    return passage.*point;
}

// Of the pictures that have passed both.
Spread between(const std::vector<Passage>& passages, Point from, Point to)
{
    std::vector<double> figures;
    for (const Passage& passage : passages) {
        const auto begin = from(passage);
        const auto end = to(passage);
        if (begin && end)
            figures.push_back(std::chrono::duration<double, std::milli>(*end - *begin).count());
    }
    return spreadOf(std::move(figures));
}

std::string text(const Spread& spread)
{
    if (spread.count == 0)
        return "-";
    char both[48];
    std::snprintf(both, sizeof both, "%.1f / %.1f", spread.p50, spread.p95);
    return both;
}

QJsonValue toValue(const Spread& spread)
{
    if (spread.count == 0)
        return QJsonValue::Null;
    return QJsonObject{{QStringLiteral("count"), static_cast<qint64>(spread.count)},
        {QStringLiteral("p50Ms"), spread.p50}, {QStringLiteral("p95Ms"), spread.p95}};
}

QJsonObject toObject(const LatencyRow& row)
{
    return {{QStringLiteral("who"), QString::fromStdString(row.who)},
        {QStringLiteral("tiles"), row.tiles},
        {QStringLiteral("sent"), static_cast<qint64>(row.sent)},
        {QStringLiteral("total"), toValue(row.total)},
        {QStringLiteral("withoutEncoding"), toValue(row.withoutEncoding)},
        {QStringLiteral("encoding"), toValue(row.encoding)},
        {QStringLiteral("transport"), toValue(row.transport)},
        {QStringLiteral("poll"), toValue(row.poll)},
        {QStringLiteral("decoder"), toValue(row.decoder)},
        {QStringLiteral("paint"), toValue(row.paint)}};
}

QJsonObject toObject(const StartRow& row)
{
    return {{QStringLiteral("who"), QString::fromStdString(row.who)},
        {QStringLiteral("cameraRuns"), row.cameraRuns},
        {QStringLiteral("wait"), toValue(row.wait)}};
}

template <typename Row>
QJsonArray toArray(const std::vector<Row>& rows)
{
    QJsonArray array;
    for (const Row& row : rows)
        array.append(toObject(row));
    return array;
}

} // namespace

Spread spreadOf(std::vector<double> figures)
{
    if (figures.empty())
        return {};
    std::sort(figures.begin(), figures.end());
    const auto percentile = [&figures](std::size_t percent) {
        return figures[std::min(figures.size() * percent / 100, figures.size() - 1)];
    };
    return {figures.size(), percentile(50), percentile(95)};
}

LatencyRow latencyRow(const std::string& who, int tiles, const std::vector<Passage>& passages)
{
    constexpr Point drawn = at<&Passage::drawn>;
    constexpr Point published = at<&Passage::published>;
    constexpr Point arrived = at<&Passage::arrived>;
    constexpr Point fetched = at<&Passage::fetched>;
    constexpr Point decoded = at<&Passage::decoded>;
    constexpr Point seen = at<&Passage::seen>;
    LatencyRow row;
    row.who = who;
    row.tiles = tiles;
    row.sent = passages.size();
    row.total = between(passages, drawn, seen);
    row.encoding = between(passages, drawn, published);
    row.withoutEncoding = between(passages, published, seen);
    row.transport = between(passages, published, arrived);
    row.poll = between(passages, arrived, fetched);
    row.decoder = between(passages, fetched, decoded);
    row.paint = between(passages, decoded, seen);
    return row;
}

void printLatencyHead()
{
    std::printf(
        "From drawn to seen, ms, p50 / p95\n%5s  %-16s %11s %15s %15s %15s %13s %13s %13s %13s\n",
        "tiles", "who", "seen/sent", "all", "less encoding", "encoding", "transport", "poll",
        "decoder", "paint");
}

void printRow(const LatencyRow& row)
{
    const std::string counts = std::to_string(row.total.count) + "/" + std::to_string(row.sent);
    std::printf("%5d  %-16s %11s %15s %15s %15s %13s %13s %13s %13s\n", row.tiles, row.who.c_str(),
        counts.c_str(), text(row.total).c_str(), text(row.withoutEncoding).c_str(),
        text(row.encoding).c_str(), text(row.transport).c_str(), text(row.poll).c_str(),
        text(row.decoder).c_str(), text(row.paint).c_str());
    std::fflush(stdout);
}

void printStartHead()
{
    std::printf("\nFrom startLive to the first picture, ms, p50 / p95\n%-16s %-22s %7s %15s\n",
        "who", "camera", "starts", "wait");
}

void printRow(const StartRow& row)
{
    std::printf("%-16s %-22s %7zu %15s\n", row.who.c_str(),
        row.cameraRuns ? "runs already" : "starts with the viewer", row.wait.count,
        text(row.wait).c_str());
    std::fflush(stdout);
}

QByteArray toJson(const std::vector<LatencyRow>& latency, const std::vector<StartRow>& starts)
{
    return QJsonDocument({{QStringLiteral("latency"), toArray(latency)},
                             {QStringLiteral("firstPicture"), toArray(starts)}})
        .toJson();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "report.h"

#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

using Figure = std::function<double(const Sample&)>;

struct Spread
{
    double median = 0;
    double worst = 0;
};

Spread spreadOf(const std::vector<Sample>& samples, const Figure& figure)
{
    std::vector<double> values;
    values.reserve(samples.size());
    for (const Sample& sample : samples)
        values.push_back(figure(sample));
    std::sort(values.begin(), values.end());
    return values.empty() ? Spread() : Spread{values[values.size() / 2], values.back()};
}

double callOf(const Sample& sample)
{
    return sample.call.wall;
}

double shownOf(const Sample& sample)
{
    return sample.shown.wall;
}

double picturesOf(const Sample& sample)
{
    return sample.pictures.wall;
}

double processorOf(const Sample& sample)
{
    return sample.shown.cpu + sample.pictures.cpu;
}

std::string cell(const std::vector<Sample>& samples, const Figure& figure)
{
    const Spread spread = spreadOf(samples, figure);
    char text[32];
    std::snprintf(text, sizeof text, "%.1f (%.0f)", spread.median, spread.worst);
    return text;
}

std::string ratio(const Row& row, const Figure& figure)
{
    constexpr double nothing = 0.1; // milliseconds: no work to compare with
    const double bare = spreadOf(row.bare, figure).median;
    if (bare < nothing)
        return "-";
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", spreadOf(row.ours, figure).median / bare);
    return text;
}

constexpr char line[] = "%-16s %-5s %15s %15s %15s %15s\n";

} // namespace

void Table::add(const std::string& what, bool isOurs, const Sample& sample)
{
    auto row = std::find_if(
        rows_.begin(), rows_.end(), [&](const Row& known) { return known.what == what; });
    if (row == rows_.end())
        row = rows_.insert(rows_.end(), Row{what, {}, {}});
    (isOurs ? row->ours : row->bare).push_back(sample);
}

void Table::print(QSize size) const
{
    std::printf("\n%dx%d, milliseconds, median (worst) of %zu\n", size.width(), size.height(),
        rows_.empty() ? 0 : rows_.front().ours.size());
    std::printf(line, "what", "", "call", "on screen", "pictures", "processor");
    for (const Row& row : rows_) {
        const auto print = [&](const char* what, const char* who, const auto& samples) {
            std::printf(line, what, who, cell(samples, callOf).c_str(),
                cell(samples, shownOf).c_str(), cell(samples, picturesOf).c_str(),
                cell(samples, processorOf).c_str());
        };
        print(row.what.c_str(), "ours", row.ours);
        print("", "bare", row.bare);
        std::printf(line, "", "ratio", ratio(row, callOf).c_str(), ratio(row, shownOf).c_str(),
            ratio(row, picturesOf).c_str(), ratio(row, processorOf).c_str());
    }
    std::fflush(stdout);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <nlohmann/json.hpp>

#include <map>
#include <string>
#include <vector>

// Results of the layer by number, for instance {"-20014": 2}.
class ResultCounts
{
public:
    void add(int result, long times = 1) { counts_[result] += times; }
    void add(const ResultCounts& other)
    {
        for (const auto& [result, times] : other.counts_)
            add(result, times);
    }
    bool empty() const { return counts_.empty(); }
    bool has(int result) const { return counts_.count(result) != 0; }
    nlohmann::json json() const
    {
        nlohmann::json all = nlohmann::json::object();
        for (const auto& [result, times] : counts_)
            all[std::to_string(result)] = times;
        return all;
    }

private:
    std::map<int, long> counts_;
};

// Percentiles of a list of milliseconds; null for an empty one.
nlohmann::json percentiles(std::vector<double> milliseconds);

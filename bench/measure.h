// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <vector>

// Measures a piece of work beside a reference, in turns within one run, so that whatever else the
// machine does meets both. The figure is the median of the rounds, in nanoseconds per operation.

constexpr int rounds = 15;

template <typename Work>
double nanosecondsPerOperation(int operations, Work& work)
{
    const auto start = std::chrono::steady_clock::now();
    work(operations);
    const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
    return taken.count() / operations;
}

inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// `work` and `reference` take the number of operations to do. Prints one line: both figures and
// the ratio work : reference, where less than 1 is faster than the reference.
template <typename Work, typename Reference>
void compare(const char* what, const char* against, int operations, Work work, Reference reference)
{
    std::vector<double> ours;
    std::vector<double> theirs;
    work(operations / 10 + 1);
    reference(operations / 10 + 1);
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(nanosecondsPerOperation(operations, work));
        theirs.push_back(nanosecondsPerOperation(operations, reference));
    }
    std::printf("%-44s %9.0f ns   %-38s %9.0f ns   ratio %.2f\n", what, median(ours), against,
        median(theirs), median(ours) / median(theirs));
}

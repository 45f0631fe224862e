// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "composition.h"

#include <QSize>

#include <string>
#include <vector>

// One run of one step: until the call returned, from the call until the window had been put together
// with all tiles, and from the moment the pictures came until it showed them all.
struct Sample
{
    Span call;
    Span shown;
    Span pictures;
};

// A step, with the samples of all rounds.
struct Row
{
    std::string what;
    std::vector<Sample> ours;
    std::vector<Sample> bare;
};

// The rows in the order of their first sample.
class Table final
{
public:
    void add(const std::string& what, bool isOurs, const Sample& sample);
    void print(QSize size) const;

private:
    std::vector<Row> rows_;
};

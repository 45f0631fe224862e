// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "passages.h"

#include <QByteArray>

#include <string>
#include <vector>

// Milliseconds.
struct Spread
{
    std::size_t count = 0;
    double p50 = 0;
    double p95 = 0;
};

Spread spreadOf(std::vector<double> figures);

// From drawn to seen, for one number of tiles.
struct LatencyRow
{
    std::string who;
    int tiles = 0;
    std::size_t sent = 0;
    Spread total; // its count: the pictures that were seen
    Spread encoding; // with the drawing
    Spread withoutEncoding;
    // Of the client only.
    Spread transport;
    Spread poll;
    Spread decoder;
    Spread paint;
};

LatencyRow latencyRow(const std::string& who, int tiles, const std::vector<Passage>& passages);

// From the start of a stream to its first picture on the screen.
struct StartRow
{
    std::string who;
    bool cameraRuns = false; // for others, before
    Spread wait;
};

void printLatencyHead();
void printRow(const LatencyRow& row);
void printStartHead();
void printRow(const StartRow& row);

QByteArray toJson(const std::vector<LatencyRow>& latency, const std::vector<StartRow>& starts);

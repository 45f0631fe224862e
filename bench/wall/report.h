// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "processgroup.h"
#include "screenwatch.h"

#include <QByteArray>

#include <chrono>
#include <string>
#include <vector>

// What one contestant did with a number of tiles.
struct Result
{
    std::string who;
    int tiles = 0;
    double cpu = 0; // seconds per second
    Memory memory;
    int shown = 0; // pictures, of all tiles
    int passed = 0; // pictures sent meanwhile
    double framesPerSecond = 0; // shown, of a tile
    std::chrono::milliseconds longestStall{0}; // of any tile
};

void printHead();
void printResult(const Result& result);
// For each number of tiles what the client takes against others; "-" for who did not play.
void printRatios(const std::vector<Result>& results);

// `decodingAlone`: CPU seconds per second of one stream.
QByteArray toJson(const std::vector<Result>& results, double decodingAlone);

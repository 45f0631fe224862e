// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "processgroup.h"

#include <QStringList>

#include <chrono>
#include <memory>
#include <string>

// Somebody who shows `tiles` clips on the screen, tile i the clip i modulo their number.
struct Wall
{
    int tiles = 0;
    QStringList clips;
    QString log; // a file for what the programs say
    std::chrono::seconds longest{0}; // nobody is needed for longer
};

// What runs while one of them shows; stops when it is destroyed. `players` alone is measured.
struct Performance
{
    std::unique_ptr<BridgeProcess> bridge; // for the client only; ends after the players
    ProcessGroup players;
};

// Null: `error` tells why.
using Contestant = std::unique_ptr<Performance> (*)(const Wall& wall, std::string& error);

std::unique_ptr<Performance> playWithClient(const Wall& wall, std::string& error);
std::unique_ptr<Performance> playWithFloor(const Wall& wall, std::string& error);
std::unique_ptr<Performance> playWithMpvGpu(const Wall& wall, std::string& error);
std::unique_ptr<Performance> playWithMpvX11(const Wall& wall, std::string& error);

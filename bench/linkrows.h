// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linkcandidate.h"
#include "relay.h"

// The rows of the link benchmark. Each runs both candidates and prints one line or more.

struct Candidates
{
    LinkCandidate& ours;
    LinkCandidate& bare;
};

// One line: the figure, its bar (0: none), the reference of the same run (0: none) and the ratio.
void print(const char* what, double figure, const char* unit, double bar, double reference);

// Bytes per second of processor time, both ends together, in turns.
void throughputRow(Candidates& both, std::size_t frameBytes);
// 64 channels with 25 frames of 10 KiB a second each: from send to ready-to-receive.
void delayRow(Candidates& both);
// From the request on an open channel to a frame of 100 KiB that is ready.
void firstKeyRow(
    Candidates& both, Relay& ours, Relay& bare, const RelayConditions& conditions, bool bars);
// A stream of 2 Mb/s, both candidates at the same time: longest stall, and what got lost.
void lossRow(
    Candidates& both, Relay& ours, Relay& bare, const RelayConditions& conditions, bool bars);

// Of one end of a bare connection with libsrt's own settings, idle.
long bareConnectionMemoryKiB();

// What this process holds, as Linux tells it.
long ownMemoryKiB();
int ownThreads();

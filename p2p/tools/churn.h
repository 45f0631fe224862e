// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "options.h"

// `churn`: options.clients threads that connect, open channels, start, receive, stop and
// disconnect at random for options.seconds, each with chances of its own from options.seed.
// Prints one JSON object: what was done, results by number, and what the process holds (memory,
// descriptors, threads) after a tenth of the time and at the end. Returns a ProbeExit.
int churn(const ProbeOptions& options);

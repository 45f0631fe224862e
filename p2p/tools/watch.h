// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "clientlink.h"
#include "options.h"

// `watch` and `send`: both open one session to options.uid, print one JSON object and return a
// ProbeExit. Blocks for options.seconds and what connecting takes.
int watch(const ProbeOptions& options);
int sendMessage(const ProbeOptions& options);

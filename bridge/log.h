// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

// One line per event on standard error: time (UTC, milliseconds), level, device, channel, text.
// Threads: any; lines are never mixed. Control characters of the texts are shown as '?', and a
// password within a URL as "***".
enum class LogLevel { Debug, Info, Warning, Error };

// Lines below this level are not written. Set once at the start; Info until then.
void setLogLevel(LogLevel level);

// `device`: a UID, empty for the program itself. `channel`: -1 for the whole device.
void logEvent(LogLevel level, std::string_view device, int channel, std::string_view text);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "log.h"

#include <string>
#include <string_view>

// Log lines of the media side. Addresses of cameras carry passwords: what is written here is
// without them, and so is what FFmpeg itself has to say.

// `text` with "***" in the place of the account and password of each URL in it. What stands
// between "://" and the last '@' of the same word goes, since passwords hold '/' and '@', too.
std::string withoutUserInfo(std::string_view text);

// `name`: "UID/channel", as in FeedSettings.
void logMedia(LogLevel level, std::string_view name, std::string_view text);

// Sends FFmpeg's own warnings through logEvent(), at most a few a second: a broken stream has one
// for each frame. Threads: any; once is enough.
void routeFfmpegLog();

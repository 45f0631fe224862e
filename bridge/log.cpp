// SPDX-License-Identifier: GPL-3.0-or-later
#include "log.h"

#include <algorithm>
#include <atomic>
#include <cctype>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <mutex>
#include <string>
#include <unistd.h>

namespace {

std::atomic<LogLevel> lowest{LogLevel::Info};

const char* nameOf(LogLevel level)
{
    switch (level) {
    case LogLevel::Debug:
        return "debug";
    case LogLevel::Info:
        return "info";
    case LogLevel::Warning:
        return "warning";
    case LogLevel::Error:
        return "error";
    }
    return "?";
}

std::string timeNow()
{
    using namespace std::chrono;
    const auto now = system_clock::now().time_since_epoch();
    const auto seconds = duration_cast<std::chrono::seconds>(now);
    const std::time_t whole = seconds.count();
    std::tm parts{};
    gmtime_r(&whole, &parts);
    char text[40];
    const auto length = std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &parts);
    char milli[8];
    std::snprintf(milli, sizeof milli, ".%03dZ",
        static_cast<int>(duration_cast<milliseconds>(now - seconds).count()));
    return std::string(text, length) + milli;
}

bool endsUrl(char letter)
{
    return std::isspace(static_cast<unsigned char>(letter)) != 0 || letter == '"' || letter == '\'';
}

std::size_t endOfUrl(const std::string& text, std::size_t from)
{
    while (from < text.size() && !endsUrl(text[from]))
        ++from;
    return from;
}

// user:password@host. A password may hold '/' and '@' though it should not, so everything up to
// the last '@' of the URL counts: rather too much is hidden than too little.
void hideUserPassword(std::string& text, std::size_t from)
{
    const auto end = endOfUrl(text, from);
    const auto at = text.rfind('@', end);
    const auto colon = text.find(':', from);
    if (at == std::string::npos || at < from || at >= end || colon >= at)
        return;
    text.replace(colon + 1, at - colon - 1, "***");
}

// password=... among the parameters, as many cameras want it.
void hideParameter(std::string& text, std::size_t from, std::string_view name)
{
    const auto end = endOfUrl(text, from);
    const auto at = text.find(name, from);
    if (at == std::string::npos || at >= end)
        return;
    const auto value = at + name.size();
    const auto last = std::min(text.find('&', value), end);
    text.replace(value, last - value, "***");
}

std::string withoutPasswords(std::string_view raw)
{
    std::string text(raw);
    std::size_t from = 0;
    while ((from = text.find("://", from)) != std::string::npos) {
        from += 3;
        hideUserPassword(text, from);
        for (const auto name : {"password=", "passwd=", "pwd=", "pass="})
            hideParameter(text, from, name);
    }
    return text;
}

void appendClean(std::string& line, std::string_view text)
{
    for (const char letter : text) {
        const auto code = static_cast<unsigned char>(letter);
        line += code < 0x20 || code == 0x7f ? '?' : letter;
    }
}

void writeWhole(const std::string& line)
{
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    std::size_t done = 0;
    while (done < line.size()) {
        const auto count = ::write(STDERR_FILENO, line.data() + done, line.size() - done);
        if (count < 0 && errno != EINTR)
            return;
        done += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
}

} // namespace

void setLogLevel(LogLevel level)
{
    lowest = level;
}

void logEvent(LogLevel level, std::string_view device, int channel, std::string_view text)
{
    if (level < lowest)
        return;
    std::string line = timeNow() + ' ' + nameOf(level) + ' ';
    appendClean(line, device.empty() ? "-" : device);
    line += ' ' + (channel < 0 ? std::string("-") : std::to_string(channel)) + ' ';
    appendClean(line, withoutPasswords(text));
    line += '\n';
    writeWhole(line);
}

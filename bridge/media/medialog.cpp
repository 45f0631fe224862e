// SPDX-License-Identifier: GPL-3.0-or-later
#include "medialog.h"

#include "ffmpeg.h"

#include <atomic>
#include <charconv>
#include <chrono>

namespace {

constexpr int linesPerSecond = 5;

// A place for one more line in this second.
bool mayWrite()
{
    using namespace std::chrono;
    static std::atomic<std::int64_t> second{0};
    static std::atomic<int> lines{0};
    const auto now = duration_cast<seconds>(steady_clock::now().time_since_epoch()).count();
    if (second.exchange(now) != now)
        lines = 0;
    return lines++ < linesPerSecond;
}

void writeFfmpegLine(void* about, int level, const char* format, va_list values)
{
    if (level > AV_LOG_WARNING || !mayWrite())
        return;
    std::array<char, 2048> line{};
    int prefix = 1;
    const int size =
        av_log_format_line2(about, level, format, values, line.data(), line.size(), &prefix);
    // A line that was cut may hold the begin of a password without the '@' that tells it.
    if (size < 0 || size >= static_cast<int>(line.size()))
        return;
    std::string text = withoutUserInfo(line.data());
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r'))
        text.pop_back();
    // To the program an error in a stream is an event of its camera, none of its own.
    logEvent(level <= AV_LOG_ERROR ? LogLevel::Warning : LogLevel::Debug, {}, -1, text);
}

} // namespace

std::string withoutUserInfo(std::string_view text)
{
    constexpr std::string_view mark = "://";
    constexpr std::string_view wordEnd = " \t\r\n\"'<>";
    std::string clean;
    while (true) {
        const std::size_t scheme = text.find(mark);
        if (scheme == std::string_view::npos)
            return clean.append(text);
        const std::size_t begin = scheme + mark.size();
        clean.append(text.substr(0, begin));
        text.remove_prefix(begin);
        const std::string_view word = text.substr(0, text.find_first_of(wordEnd));
        const std::size_t at = word.rfind('@');
        if (at == std::string_view::npos)
            continue;
        clean.append("***");
        text.remove_prefix(at);
    }
}

void logMedia(LogLevel level, std::string_view name, std::string_view text)
{
    const std::size_t slash = name.rfind('/');
    int channel = -1;
    if (slash != std::string_view::npos)
        std::from_chars(name.data() + slash + 1, name.data() + name.size(), channel);
    logEvent(level, name.substr(0, slash), channel, withoutUserInfo(text));
}

void routeFfmpegLog()
{
    av_log_set_callback(writeFfmpegLine);
}

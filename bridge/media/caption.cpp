// SPDX-License-Identifier: GPL-3.0-or-later
#include "caption.h"

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <ctime>

namespace {

[[gnu::format(printf, 1, 2)]] std::string format(const char* pattern, ...)
{
    std::array<char, 96> text{};
    std::va_list values;
    va_start(values, pattern);
    // The checker does not see that va_start() has filled it in.
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized)
    const int size = std::vsnprintf(text.data(), text.size(), pattern, values);
    va_end(values);
    return {text.data(), std::min(text.size() - 1, static_cast<std::size_t>(std::max(0, size)))};
}

std::string clockText(const SceneState& state, std::chrono::system_clock::time_point time)
{
    const std::time_t shown = std::chrono::system_clock::to_time_t(time)
        + static_cast<std::time_t>(state.clockOffsetSeconds + state.zoneOffsetSeconds);
    std::tm parts{};
    if (gmtime_r(&shown, &parts) == nullptr)
        return "----";
    return format("%04d-%02d-%02d  %02d:%02d:%02d", parts.tm_year + 1900, parts.tm_mon + 1,
        parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec);
}

std::string stateText(const SceneState& state)
{
    static constexpr std::array<const char*, 3> cruises{"Ready", "Auto cruise", "Cruise"};
    static constexpr std::array<const char*, 4> turns{"", ", turned", ", mirrored", ", flipped"};
    const auto cruise = static_cast<std::size_t>(std::clamp(state.cruise.load(), 0, 2));
    const auto turn = static_cast<std::size_t>(std::clamp(state.rotation.load(), 0, 3));
    return format("%s%s  F %.2f  I %.2f", cruises.at(cruise), turns.at(turn), double{state.focus},
        double{state.iris});
}

double textWidth(cairo_t* cairo, const std::string& text)
{
    cairo_text_extents_t extents;
    cairo_text_extents(cairo, text.c_str(), &extents);
    return extents.x_advance;
}

void drawText(cairo_t* cairo, double x, double y, const std::string& text, double alpha)
{
    cairo_set_source_rgba(cairo, 0.95, 0.97, 0.99, alpha);
    cairo_move_to(cairo, x, y);
    cairo_show_text(cairo, text.c_str());
}

void drawFlash(cairo_t* cairo, double x, double y, double radius, bool flash)
{
    cairo_new_path(cairo);
    cairo_arc(cairo, x, y, radius, 0, 2 * M_PI);
    if (flash)
        cairo_set_source_rgb(cairo, 1, 0.83, 0.3);
    else
        cairo_set_source_rgba(cairo, 0.95, 0.97, 0.99, 0.3);
    cairo_fill(cairo);
}

} // namespace

Caption makeCaption(
    const SceneState& state, const PictureMoment& moment, int channel, const char* scene)
{
    const double second = std::chrono::duration<double>(moment.wall.time_since_epoch()).count();
    Caption caption;
    caption.clock = clockText(state, moment.wall);
    caption.place = format("%s  CH %d", scene, channel + 1);
    caption.position = format(
        "P %+.2f  T %+.2f  Z %.2f", double{state.pan}, double{state.tilt}, double{state.zoom});
    caption.state = stateText(state);
    caption.frame = format("#%llu", static_cast<unsigned long long>(moment.frame));
    caption.flash = second - std::floor(second) < beepShare;
    return caption;
}

void drawCaption(cairo_t* cairo, int width, int height, const Caption& caption)
{
    // Never below what can be read; a narrow picture limits it, so that a line holds its texts.
    const double size = std::min(std::max(9.5, height * 0.028), width / 31.0);
    const double line = size * 1.4;
    const double margin = size * 0.8;
    const double top = height - 2 * line - size * 0.5;
    cairo_select_font_face(cairo, "Noto Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cairo, size);
    cairo_set_source_rgba(cairo, 0.07, 0.09, 0.13, 0.62);
    cairo_rectangle(cairo, 0, top, width, height - top);
    cairo_fill(cairo);
    const double first = top + line * 0.95;
    const double second = first + line;
    drawFlash(cairo, margin + size * 0.35, first - size * 0.36, size * 0.36, caption.flash);
    drawText(cairo, margin + size * 1.15, first, caption.clock, 1);
    drawText(cairo, width - margin - textWidth(cairo, caption.place), first, caption.place, 1);
    drawText(cairo, margin, second, caption.position, 0.82);
    drawText(cairo, width - margin - textWidth(cairo, caption.frame), second, caption.frame, 0.82);
    const double middle = (margin + textWidth(cairo, caption.position) + width - margin
                              - textWidth(cairo, caption.frame) - textWidth(cairo, caption.state))
        / 2;
    drawText(cairo, middle, second, caption.state, 0.82);
}

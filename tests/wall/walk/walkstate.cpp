// SPDX-License-Identifier: GPL-3.0-or-later
#include "walkstate.h"

#include <algorithm>
#include <tuple>

namespace {

auto fieldsOf(const ChannelState& c)
{
    return std::tie(c.name, c.open, c.playing, c.waiting, c.connected, c.userPaused, c.tile);
}

auto fieldsOf(const WidgetState& w)
{
    return std::tie(w.channel, w.isMirror, w.rect.x, w.rect.y, w.rect.width, w.rect.height);
}

auto fieldsOf(const WalkState& s)
{
    return std::tie(s.isLive, s.mod, s.page, s.pageCount, s.tiles, s.selectedDevice,
        s.selectedChannel, s.saved, s.savedOpen, s.channels, s.pagesTold, s.modesTold,
        s.tileCountsTold, s.sent, s.widgetsAlive, s.widgets);
}

QString textOf(const std::array<bool, 2>& flags)
{
    return QStringLiteral("%1%2").arg(flags[1] ? 'L' : '-').arg(flags[0] ? 'R' : '-');
}

QString textOf(const std::vector<std::pair<int, int>>& pairs)
{
    QStringList texts;
    for (const auto& [first, second] : pairs)
        texts.append(QStringLiteral("(%1,%2)").arg(first).arg(second));
    return texts.join(QLatin1Char(' '));
}

QString textOf(const ChannelState& c)
{
    return QStringLiteral("%1 open %2 playing %3 waiting %4 connected %5 paused %6 tile %7")
        .arg(textOf(c.name), textOf(c.open), textOf(c.playing), textOf(c.waiting),
            textOf(c.connected))
        .arg(c.userPaused)
        .arg(c.tile);
}

QString textOf(const WidgetState& w)
{
    return QStringLiteral("%1 mirror %2 at %3,%4 %5x%6")
        .arg(textOf(w.channel))
        .arg(w.isMirror)
        .arg(w.rect.x)
        .arg(w.rect.y)
        .arg(w.rect.width)
        .arg(w.rect.height);
}

QStringList linesOf(const WalkState& s)
{
    QStringList lines;
    const auto add = [&lines](const QString& name, const QString& text) {
        lines.append(name + QLatin1String(": ") + text);
    };
    const auto addNumber = [&add](const char* name, int number) {
        add(QString::fromLatin1(name), QString::number(number));
    };
    addNumber("live view", s.isLive);
    addNumber("layout of live view", s.mod[1]);
    addNumber("layout of playback", s.mod[0]);
    addNumber("page", s.page);
    addNumber("page count", s.pageCount);
    for (std::size_t i = 0; i < s.tiles.size(); ++i)
        add(QStringLiteral("tile %1 of %2").arg(i).arg(s.tiles.size()), textOf(s.tiles[i]));
    addNumber("selected device", s.selectedDevice);
    add(QStringLiteral("selected channel"), textOf(s.selectedChannel));
    addNumber("saved layout of live view", s.saved[1]);
    addNumber("saved layout of playback", s.saved[0]);
    add(QStringLiteral("saved open channels"), textOf(s.savedOpen));
    for (const ChannelState& channel : s.channels)
        add(QStringLiteral("channel"), textOf(channel));
    add(QStringLiteral("pages told"), textOf(s.pagesTold));
    for (const bool mode : s.modesTold)
        addNumber("mode told", mode);
    addNumber("tile counts told", s.tileCountsTold);
    for (const WalkMessage& sent : s.sent)
        add(QStringLiteral("sent"),
            QStringLiteral("%1 type %2 command %3")
                .arg(textOf(sent.channel))
                .arg(sent.type)
                .arg(sent.command));
    addNumber("tile widgets alive", s.widgetsAlive);
    for (std::size_t i = 0; i < s.widgets.size(); ++i)
        add(QStringLiteral("widget %1").arg(i), textOf(s.widgets[i]));
    return lines;
}

int indexOf(const WallModel& model, const ModelChannel* channel)
{
    for (std::size_t i = 0; i < model.tiles.size(); ++i) {
        if (!model.tiles[i].isMirror && model.tiles[i].channel == channel)
            return static_cast<int>(i);
    }
    return -1;
}

ChannelState stateOf(ModelChannel* channel, int tile)
{
    ChannelState state;
    state.name = nameOf(channel);
    for (const bool live : {false, true}) {
        const ModelHalf& half = channel->half(live);
        state.open[live] = half.open;
        state.playing[live] = half.playing;
        state.waiting[live] = half.waiting;
        state.connected[live] = half.connected;
    }
    state.userPaused = channel->userPaused;
    state.tile = tile;
    return state;
}

} // namespace

bool ChannelState::operator==(const ChannelState& other) const
{
    return fieldsOf(*this) == fieldsOf(other);
}

bool WidgetState::operator==(const WidgetState& other) const
{
    return fieldsOf(*this) == fieldsOf(other);
}

bool WalkState::operator==(const WalkState& other) const
{
    return fieldsOf(*this) == fieldsOf(other);
}

QString textOf(const ChannelName& channel)
{
    return channel == ChannelName{}
        ? QStringLiteral("none")
        : QStringLiteral("D%1.%2").arg(channel.device).arg(channel.channel);
}

WalkState stateOf(const WallModel& model, const LinkModel& link, const QSize& wall)
{
    WalkState state;
    state.isLive = model.isLive;
    state.mod = model.mod;
    state.page = model.page[model.isLive];
    state.pageCount = model.pageCount();
    for (const ModelTile& tile : model.tiles)
        state.tiles.push_back(nameOf(tile.channel));
    state.selectedDevice = model.selectedDevice == nullptr ? -1 : model.selectedDevice->id;
    state.selectedChannel = nameOf(model.selectedChannel);
    state.saved = model.saved;
    state.savedOpen = model.savedOpen;
    for (ModelChannel* channel : model.channels())
        state.channels.push_back(stateOf(channel, wall.isEmpty() ? -1 : indexOf(model, channel)));
    state.pagesTold = model.pagesTold;
    state.modesTold = model.modesTold;
    state.tileCountsTold = model.tileCountsTold;
    state.sent = link.sent;
    if (wall.isEmpty())
        return state;
    state.widgetsAlive = static_cast<int>(model.tiles.size());
    const std::vector<ModelRect> rects = model.rects(wall.width(), wall.height());
    for (std::size_t i = 0; i < model.tiles.size(); ++i)
        state.widgets.push_back(
            {nameOf(model.tiles[i].channel), model.tiles[i].isMirror, rects.at(i)});
    return state;
}

QString firstDifferences(const WalkState& wall, const WalkState& model)
{
    const QStringList of = linesOf(wall);
    const QStringList wanted = linesOf(model);
    constexpr int most = 6;
    QStringList differences;
    for (int i = 0; i < std::max(of.size(), wanted.size()) && differences.size() < most; ++i) {
        const QString is = of.value(i, QStringLiteral("nothing more"));
        const QString should = wanted.value(i, QStringLiteral("nothing more"));
        if (is != should)
            differences.append(
                QStringLiteral("the wall has  %1\nbut should    %2").arg(is, should));
    }
    return differences.join(QLatin1Char('\n'));
}

QString brokenRule(const WalkState& wall, bool hasMirror)
{
    for (std::size_t i = 0; i < wall.tiles.size(); ++i) {
        const ChannelName& shown = wall.tiles[i];
        if (shown == ChannelName{})
            continue;
        const bool isKnown = std::any_of(wall.channels.begin(), wall.channels.end(),
            [&shown](const ChannelState& channel) { return channel.name == shown; });
        if (!isKnown)
            return QStringLiteral("tile %1 holds a channel that has left").arg(i);
        const auto first = wall.tiles.begin() + (hasMirror ? 1 : 0);
        if (std::count(first, wall.tiles.end(), shown) > 1)
            return textOf(shown) + QStringLiteral(" stands on two ordinary tiles");
    }
    return {};
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linkmodel.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <array>
#include <utility>
#include <vector>

struct ChannelState
{
    ChannelName name;
    std::array<bool, 2> open{};
    std::array<bool, 2> playing{};
    std::array<bool, 2> waiting{}; // raised in this step
    std::array<bool, 2> connected{};
    bool userPaused = false;
    int tile = -1; // with widgets only

    bool operator==(const ChannelState& other) const;
};

struct WidgetState
{
    ChannelName channel;
    bool isMirror = false;
    ModelRect rect;

    bool operator==(const WidgetState& other) const;
};

// All that is compared after a step: the wall as it stands, and what it has done and told in this step.
// Arrays by mode have live view at 1.
struct WalkState
{
    bool isLive = true;
    std::array<int, 2> mod{};
    int page = 0;
    int pageCount = 0;
    std::vector<ChannelName> tiles;
    int selectedDevice = -1;
    ChannelName selectedChannel;
    std::array<int, 2> saved{};
    std::vector<std::pair<int, int>> savedOpen;
    std::vector<ChannelState> channels;
    std::vector<std::pair<int, int>> pagesTold;
    std::vector<bool> modesTold;
    int tileCountsTold = 0;
    std::vector<WalkMessage> sent;
    int widgetsAlive = 0; // those that are to go too
    std::vector<WidgetState> widgets;

    bool operator==(const WalkState& other) const;
};

// `wall` is where there are widgets: its size; else it is empty.
WalkState stateOf(const WallModel& model, const LinkModel& link, const QSize& wall);

// The first lines in which they differ.
QString firstDifferences(const WalkState& wall, const WalkState& model);

// What may never be, whatever was done before; empty where all is well.
QString brokenRule(const WalkState& wall, bool hasMirror);

QString textOf(const ChannelName& channel);

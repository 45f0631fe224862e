// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "arrivals.h"
#include "screenwatch.h"
#include "stamps.h"

#include <QString>

#include <optional>

// When one picture passed the points of its road, by the monotonic clock. What was not seen, or does
// not exist on the road of another player, is missing.
struct Passage
{
    using Time = std::chrono::steady_clock::time_point;

    Time drawn; // the drawing began; in whole milliseconds
    Time published; // out of the encoder
    std::optional<Time> arrived; // ready to be fetched from the link layer
    std::optional<Time> fetched; // by the client
    std::optional<Time> decoded; // in the channel's buffer
    std::optional<Time> seen; // on the screen
};

// What was noted about one channel.
struct ChannelNotes
{
    Arrivals::Times arrived;
    Arrivals::Times fetched; // by frameMark()
    std::map<std::uint32_t, Passage::Time> decoded; // by stamp
    std::vector<Sight> sights;
};

// Of all pictures, in their order.
std::vector<Passage> passagesOf(const std::vector<SentPicture>& sent, const ChannelNotes& notes);

// Adds what the client has written with its option --times.
void addClientTimes(const QString& path, std::vector<ChannelNotes>& channels);

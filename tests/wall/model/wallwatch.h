// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wall/glwidgetviewwindow.h"
#include "walltest.h"

#include <QSignalSpy>
#include <QStringList>
#include <QTest>

#include <algorithm>
#include <utility>

// A channel by its place: "1.3" is channel 3 of the second device; "-" is none.
inline QString placeOf(const Channel* channel)
{
    if (channel == nullptr)
        return QStringLiteral("-");
    const int device = Dev::instance()->devices().indexOf(channel->device());
    return QStringLiteral("%1.%2").arg(device).arg(channel->number());
}

inline QString placesOf(const QList<Channel*>& channels)
{
    QStringList places;
    for (const Channel* channel : channels)
        places.append(placeOf(channel));
    return places.join(QLatin1Char(' '));
}

// What stands on the tiles: "0.0 0.1 - -".
inline QString onTiles(const WallTest& t)
{
    return placesOf(t.shown());
}

// The channels that are open, or that play, in the wall's order.
inline QString flaggedOnes(Relaxed<bool> ChannelMode::*flag, bool isLive)
{
    QList<Channel*> channels = Dev::instance()->channels();
    const auto isUnset = [=](const Channel* channel) { return !(channel->mode(isLive).*flag); };
    channels.erase(std::remove_if(channels.begin(), channels.end(), isUnset), channels.end());
    return placesOf(channels);
}

inline QString openOnes(bool isLive)
{
    return flaggedOnes(&ChannelMode::open, isLive);
}

inline QString playingOnes(bool isLive)
{
    return flaggedOnes(&ChannelMode::playing, isLive);
}

// Where a widget, or a channel's pointer to its tile, does not follow the wall; empty where all do.
inline QString strayWidgets(const WallTest& t)
{
    const QList<GlWidgetViewWindow*> tiles = t.tiles();
    if (tiles.size() != t.viewControl.getTileCount())
        return QStringLiteral("%1 tiles").arg(tiles.size());
    QStringList stray;
    for (int i = 0; i < tiles.size(); ++i) {
        if (tiles.at(i)->getChannel() != t.viewControl.getTileChannel(i))
            stray.append(QStringLiteral("tile %1").arg(i));
        if (tiles.at(i)->isChannelBound() != (tiles.at(i)->getChannel() != nullptr))
            stray.append(QStringLiteral("device of tile %1").arg(i));
    }
    const int firstOrdinary = !tiles.isEmpty() && tiles.first()->isMirror() ? 1 : 0;
    for (const Channel* channel : Dev::instance()->channels()) {
        const int tile = t.shown().indexOf(const_cast<Channel*>(channel), firstOrdinary);
        if (channel->tile != (tile >= 0 ? tiles.at(tile) : nullptr))
            stray.append(placeOf(channel));
    }
    return stray.join(QLatin1Char(' '));
}

// What the page label is told: "1 of 3".
class PageLabel final
{
public:
    explicit PageLabel(const WallTest& t)
        : spy_(&t.viewControl, &ViewControl::createPageMsg)
    {
    }

    QStringList take()
    {
        QStringList told;
        for (const QList<QVariant>& arguments : std::as_const(spy_))
            told.append(
                QStringLiteral("%1 of %2").arg(arguments[0].toInt()).arg(arguments[1].toInt()));
        spy_.clear();
        return told;
    }
    QString takeLast()
    {
        const QStringList told = take();
        return told.isEmpty() ? QString() : told.last();
    }

private:
    QSignalSpy spy_;
};

// What was sent but for the questions that a channel is asked as it is connected.
inline QList<int> takeCommands(WallTest& t)
{
    QList<int> sent = t.takeSent();
    for (const int question : {13083, 802, 4353}) // version, quality, PTZ
        sent.removeAll(question);
    return sent;
}

// The last message of this type that went out.
inline LinkCall lastSent(const WallTest& t, int type)
{
    return t.link.last(LinkFn::avSendIOCtrl, ofType(type));
}

// Opens channels without any device's knowing: for what is decided by the flags alone.
inline void markOpen(Device* device, int count, bool isLive = true)
{
    for (int i = 0; i < count; ++i)
        device->channel(i)->mode(isLive).open = true;
}

inline void markPlaying(Device* device, int count, bool isLive = true)
{
    markOpen(device, count, isLive);
    for (int i = 0; i < count; ++i)
        device->channel(i)->mode(isLive).playing = true;
}

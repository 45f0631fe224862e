// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/channelsavetimeout.h"

#include "model/channel.h"

#include <QPointer>

ChannelSaveTimeout::ChannelSaveTimeout(Channel* channel)
    : channel_(channel)
{
    setSingleShot(true);
}

void ChannelSaveTimeout::start(int ms)
{
    restarted_ = true;
    QTimer::start(ms);
}

void ChannelSaveTimeout::timerEvent(QTimerEvent* event)
{
    const QPointer<ChannelSaveTimeout> self(this);
    restarted_ = false;
    emit timeout(channel_);
    // The next segment of a recording replaces its timer from this slot. A restarted timer may have
    // got the same id, by which QTimer would take it for the one that has just run out.
    if (self && !restarted_)
        QTimer::timerEvent(event);
}

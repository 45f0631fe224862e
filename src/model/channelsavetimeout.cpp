// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/channelsavetimeout.h"

#include "model/channel.h"

ChannelSaveTimeout::ChannelSaveTimeout(Channel* channel)
    : channel_(channel)
{
    setSingleShot(true);
}

void ChannelSaveTimeout::timerEvent(QTimerEvent* event)
{
    emit timeout(channel_);
    QTimer::timerEvent(event);
}

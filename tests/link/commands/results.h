// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/errormsg.h"
#include "iotest.h"
#include "model/task.h"

#include <QRegularExpression>

constexpr int failed = -20009; // the result in failing rows

inline QString failureLine(const QByteArray& failSignal)
{
    return QStringLiteral("%1 0 %2 %3")
        .arg(QString::fromLatin1(failSignal))
        .arg(failed)
        .arg(ErrorMsg::p2pError(failed));
}

// A channel in the middle of everything.
inline void occupy(const IoTest& t)
{
    Channel* channel = t.channel();
    for (const bool isLive : {true, false}) {
        ChannelMode& mode = channel->mode(isLive);
        mode.open = true;
        mode.waiting = true;
        mode.playing = true;
        mode.audioOn = true;
    }
    channel->mode(false).avIndex = t.link.openChannel(channel->device()->sid, 20);
    channel->replayPending = true;
    channel->replayPaused = true;
    channel->speaking = true;
    channel->talkIndex = 4000; // no index of the layer
}

// The result arrives, and all that follows from it runs.
inline bool deliver(IoTest& t, QEvent* event)
{
    postResult(t.io.get(), event);
    return t.settle();
}

// The lines without those of the messages, which leave on another thread.
inline QStringList withoutSends(const HappeningRecord& record)
{
    return record.lines().filter(QRegularExpression(QStringLiteral("^(?!send )")));
}

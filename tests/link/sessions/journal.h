// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/channel.h"

#include <QObject>
#include <QStringList>

#include <mutex>

class Connect;
class IoConnect;

// What the outside sees of a link, in its order: signals, and lines of the debug log as they are.
// A signal is its name and its arguments; a channel is the first letter of its device's UID and its
// number:
//
//     connect device error:AAAAAAAAAAAAAAAAAAAA,error:-90
//     connectDevFailMsg A0 -90 Device offline
//     connectChannelSuccessMsg A1 live
//
// One at a time. While it exists it takes debug lines from whoever handled messages before.
class Journal final
{
public:
    explicit Journal(const Connect& link);
    explicit Journal(const IoConnect& link); // of its signals, those of sessions and of the search
    ~Journal();

    QStringList lines() const;
    // The signals of this name alone.
    QStringList linesOf(const QString& signal) const;
    int count(const QString& line) const { return lines().count(line); }
    void clear();
    void add(const QString& line); // any thread

private:
    Q_DISABLE_COPY_MOVE(Journal)

    template <class Link>
    void watchCommon(const Link& link);
    static void handleMessage(
        QtMsgType type, const QMessageLogContext& context, const QString& text);

    QObject context_; // of the connections
    QtMessageHandler before_;
    mutable std::mutex mutex_;
    QStringList lines_; // guarded by mutex_
};

QString channelName(const Channel* channel);

// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkbench.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThreadPool>

namespace {

// Counts the results that are handled. They alone start further tasks.
class ResultCount final : public QObject
{
public:
    ResultCount() { QCoreApplication::instance()->installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() >= QEvent::User ? 1 : 0;
        return false;
    }
};

} // namespace

void finishTasks()
{
    ResultCount results;
    do {
        results.count = 0;
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::sendPostedEvents();
    } while (results.count > 0);
}

QByteArray uidOf(char letter)
{
    constexpr int uidLength = 20;
    return QByteArray(uidLength, letter);
}

DeviceOwner makeDevice(char letter, int channels)
{
    DeviceOwner device(new Device);
    device->setUid(QString::fromLatin1(uidOf(letter)));
    device->setViewPassword(QStringLiteral("secret"));
    device->setChannelCount(channels);
    return device;
}

QString attempts()
{
    QString letters;
    for (const LinkCall& call : ScriptedLink::instance().calls(connectFn))
        letters += call.text("uid").left(1);
    return letters;
}

int attemptsFor(char letter)
{
    return ScriptedLink::instance().count(connectFn, forUid(uidOf(letter)));
}

QList<int> startedChannels()
{
    QList<int> ids;
    for (const LinkCall& call : ScriptedLink::instance().calls(startFn))
        ids.append(call.number("channelId"));
    return ids;
}

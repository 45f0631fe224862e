// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal.h"

#include "link/connect.h"
#include "link/ioconnect.h"

namespace {

Journal* theJournal = nullptr;

QString failure(const char* name, int result, const QString& text)
{
    return QStringLiteral("%1 %2 %3").arg(QLatin1String(name)).arg(result).arg(text);
}

QString ofChannel(const char* name, const Channel* channel)
{
    return QLatin1String(name) + QLatin1Char(' ') + channelName(channel);
}

QString failureOf(const char* name, const Channel* channel, int result, const QString& text)
{
    return failure(qPrintable(ofChannel(name, channel)), result, text);
}

QString modeName(bool isLive)
{
    return isLive ? QStringLiteral(" live") : QStringLiteral(" replay");
}

} // namespace

QString channelName(const Channel* channel)
{
    return channel->device()->uid().left(1) + QString::number(channel->number());
}

template <class Link>
void Journal::watchCommon(const Link& link)
{
    theJournal = this;
    before_ = qInstallMessageHandler(handleMessage);
    QObject::connect(&link, &Link::tutkInitSuccessMsg, &context_,
        [this] { add(QStringLiteral("tutkInitSuccessMsg")); });
    QObject::connect(&link, &Link::tutkInitFailMsg, &context_,
        [this](int result, const QString& text) { add(failure("tutkInitFailMsg", result, text)); });
    QObject::connect(&link, &Link::connectDevSuccessMsg, &context_,
        [this](Channel* channel) { add(ofChannel("connectDevSuccessMsg", channel)); });
    QObject::connect(&link, &Link::connectDevFailMsg, &context_,
        [this](Channel* channel, int result, const QString& text) {
            add(failureOf("connectDevFailMsg", channel, result, text));
        });
}

Journal::Journal(const Connect& link)
{
    watchCommon(link);
    QObject::connect(&link, &Connect::connectChannelSuccessMsg, &context_,
        [this](Channel* channel, bool isLive) {
            add(ofChannel("connectChannelSuccessMsg", channel) + modeName(isLive));
        });
    QObject::connect(&link, &Connect::connectChannelFailMsg, &context_,
        [this](Channel* channel, bool isLive, int result, const QString& text) {
            const QString name = ofChannel("connectChannelFailMsg", channel) + modeName(isLive);
            add(failure(qPrintable(name), result, text));
        });
}

Journal::Journal(const IoConnect& link)
{
    watchCommon(link);
    QObject::connect(&link, &IoConnect::connectChannelSuccessMsg, &context_,
        [this](Channel* channel) { add(ofChannel("connectChannelSuccessMsg", channel)); });
    QObject::connect(&link, &IoConnect::connectChannelFailMsg, &context_,
        [this](Channel* channel, int result, const QString& text) {
            add(failureOf("connectChannelFailMsg", channel, result, text));
        });
    QObject::connect(&link, &IoConnect::startReplaySuccessMsg, &context_,
        [this](Channel* channel) { add(ofChannel("startReplaySuccessMsg", channel)); });
    QObject::connect(&link, &IoConnect::startReplayFailMsg, &context_,
        [this](Channel* channel, int result, const QString& text) {
            add(failureOf("startReplayFailMsg", channel, result, text));
        });
    QObject::connect(&link, &IoConnect::startLANSearchSuccessMsg, &context_,
        [this] { add(QStringLiteral("startLANSearchSuccessMsg")); });
    QObject::connect(&link, &IoConnect::startLANSearchFailMsg, &context_,
        [this](int result, const QString& text) {
            add(failure("startLANSearchFailMsg", result, text));
        });
}

Journal::~Journal()
{
    qInstallMessageHandler(before_);
    theJournal = nullptr;
}

void Journal::handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtDebugMsg)
        theJournal->add(text);
    else
        theJournal->before_(type, context, text);
}

QStringList Journal::lines() const
{
    const std::lock_guard lock(mutex_);
    return lines_;
}

QStringList Journal::linesOf(const QString& signal) const
{
    const QString start = signal + QLatin1Char(' ');
    QStringList found;
    for (const QString& line : lines()) {
        if (line == signal || line.startsWith(start))
            found.append(line);
    }
    return found;
}

void Journal::clear()
{
    const std::lock_guard lock(mutex_);
    lines_.clear();
}

void Journal::add(const QString& line)
{
    const std::lock_guard lock(mutex_);
    lines_.append(line);
}

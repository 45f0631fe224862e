// SPDX-License-Identifier: GPL-3.0-or-later
#include "iotest.h"

#include "freshlayer.h"
#include "model/channelhold.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QThreadPool>
#include <QTimerEvent>

#include <algorithm>

namespace {

QString onOff(bool on)
{
    return on ? QStringLiteral("on") : QStringLiteral("off");
}

QString modeName(bool isLive)
{
    return isLive ? QStringLiteral("live") : QStringLiteral("replay");
}

QString listText(const QList<int>& list)
{
    QStringList numbers;
    for (const int number : list)
        numbers.append(QString::number(number));
    return QLatin1Char('[') + numbers.join(QLatin1Char(',')) + QLatin1Char(']');
}

QString argumentText(const QByteArray& type, const void* argument)
{
    if (type == "Channel*") {
        const Channel* channel = *static_cast<Channel* const*>(argument);
        return channel != nullptr ? QString::number(channel->number()) : QStringLiteral("null");
    }
    if (type == "int")
        return QString::number(*static_cast<const int*>(argument));
    if (type == "QString")
        return *static_cast<const QString*>(argument);
    if (type == "QList<int>")
        return listText(*static_cast<const QList<int>*>(argument));
    return {};
}

QString signalText(const QMetaMethod& method, void** arguments)
{
    QStringList words{QString::fromLatin1(method.name())};
    const QList<QByteArray> types = method.parameterTypes();
    for (int i = 0; i < types.size(); ++i) {
        const QString text = argumentText(types.at(i), arguments[i + 1]);
        if (!text.isEmpty())
            words.append(text);
    }
    return words.join(QLatin1Char(' '));
}

QString layerText(const LinkCall& call)
{
    if (call.function == LinkFn::avSendIOCtrl)
        return QStringLiteral("send %1").arg(call.type());
    QString text = QString::fromLatin1(functionName(call.function));
    if (call.arguments.empty())
        return text;
    const LinkArgument::Value& first = call.arguments.front().value;
    if (const int* number = std::get_if<int>(&first))
        text += QStringLiteral(" %1").arg(*number);
    else if (const auto* bytes = std::get_if<QByteArray>(&first))
        text += QLatin1Char(' ') + QString::fromLatin1(*bytes);
    return text;
}

} // namespace

void HappeningRecord::watch(QObject* sender)
{
    // One method of this object for each of the sender's, by its index; see qt_metacall.
    const QMetaObject* meta = sender->metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            QMetaObject::connect(sender, i, this, QObject::staticMetaObject.methodCount() + i,
                Qt::DirectConnection, nullptr);
    }
}

int HappeningRecord::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    const int index = QObject::qt_metacall(call, id, arguments);
    if (index < 0 || call != QMetaObject::InvokeMetaMethod)
        return index;
    note(signalText(sender()->metaObject()->method(index), arguments));
    return -1;
}

void HappeningRecord::note(const QString& line)
{
    const bool isMain = QThread::currentThread() == QCoreApplication::instance()->thread();
    const std::lock_guard lock(mutex_);
    noted_.emplace_back(Clock::now(), isMain ? line : line + QStringLiteral(" on a wrong thread"));
}

void HappeningRecord::clear()
{
    const std::lock_guard lock(mutex_);
    noted_.clear();
    from_ = Clock::now();
}

std::vector<HappeningRecord::Line> HappeningRecord::layerLines() const
{
    std::vector<Line> lines;
    for (const LinkCall& call : ScriptedLink::instance().calls()) {
        if (call.start > from_ && call.function != LinkFn::avRecvIOCtrl)
            lines.emplace_back(call.start, layerText(call));
    }
    return lines;
}

QStringList HappeningRecord::lines() const
{
    const std::lock_guard lock(mutex_);
    std::vector<Line> all = layerLines();
    all.insert(all.end(), noted_.begin(), noted_.end());
    std::stable_sort(
        all.begin(), all.end(), [](const Line& a, const Line& b) { return a.first < b.first; });
    QStringList texts;
    for (const Line& line : all)
        texts.append(line.second);
    return texts;
}

std::vector<LinkCall> HappeningRecord::sends() const
{
    const std::lock_guard lock(mutex_);
    return ScriptedLink::instance().calls(
        LinkFn::avSendIOCtrl, [from = from_](const LinkCall& call) { return call.start > from; });
}

QList<int> HappeningRecord::sentTypes() const
{
    QList<int> types;
    for (const LinkCall& call : sends())
        types.append(call.type());
    return types;
}

void SpyDecode::removeStream(Channel* channel, bool isLive)
{
    record_.note(
        QStringLiteral("Decode::removeStream %1 %2").arg(channel->number()).arg(modeName(isLive)));
}

void SpyViewControl::setRecord(Channel* channel, bool isRecord)
{
    record_.note(
        QStringLiteral("ViewControl::setRecord %1 %2").arg(channel->number()).arg(onOff(isRecord)));
    ViewControl::setRecord(channel, isRecord);
}

bool SpyViewControl::getNextBlock(QDateTime* out) const
{
    record_.note(QStringLiteral("ViewControl::getNextBlock"));
    if (nextBlock)
        *out = *nextBlock;
    return nextBlock.has_value();
}

void SpyViewControl::closeDevice(Device* device)
{
    record_.note(QStringLiteral("ViewControl::closeDevice"));
    ViewControl::closeDevice(device);
}

IoTest::IoTest(int channelCount)
    : link(freshLink())
    , audioSend(record)
    , viewControl(record)
    , decode(record)
    , io(IoConnect::instance()) // which the neighbours have built
    , device(new Device)
{
    qRegisterMetaType<Channel*>("Channel*");
    // No stream asks for frames here, and no wall opens and closes channels.
    QObject::disconnect(io.get(), nullptr, &decode, nullptr);
    QObject::disconnect(io.get(), nullptr, &viewControl, nullptr);
    if (!settle())
        qFatal("the layer does not come up");
    link.openChannel(link.openSession());
    device->setUid(QStringLiteral("ABCDEFGHIJ0123456789"));
    device->setChannelCount(channelCount);
    device->sid = link.openSession();
    for (int i = 0; i < channelCount; ++i)
        channel(i)->mode(true).avIndex = link.openChannel(device->sid, i);
    record.watch(io.get());
    record.clear();
}

IoTest::~IoTest()
{
    link.reset();
    if (!settle())
        qFatal("a task does not end");
    io.reset();
    QThreadPool::globalInstance()->waitForDone(); // the layer goes down by a task
    link.reset();
    device.reset();
    QCoreApplication::sendPostedEvents();
}

bool IoTest::settle()
{
    Deliveries deliveries;
    do {
        deliveries.count = 0;
        constexpr int patienceMs = 5000;
        if (!QThreadPool::globalInstance()->waitForDone(patienceMs))
            return false;
        // The thread sanitizer does not see that tasks have ended, but that they let their channel go.
        const ChannelHold afterTheTasks(channel());
        QCoreApplication::sendPostedEvents();
    } while (deliveries.count > 0);
    return true;
}

bool IoTest::startReceiving(int number)
{
    QSignalSpy connected(io.get(), &IoConnect::connectChannelSuccessMsg);
    io->connect(channel(number));
    const bool isConnected = connected.wait() && settle();
    record.clear();
    return isConnected;
}

bool IoTest::receive(int type, const QByteArray& message, int number)
{
    const int index = avIndex(number);
    link.queueMessage(index, static_cast<unsigned>(type), message);
    const auto isTaken = [this, index] { return link.waitingMessages(index) == 0; };
    return QTest::qWaitFor(isTaken) && settle();
}

bool IoTest::isArmed(Channel* channel)
{
    constexpr int ioTimeoutMs = 20000;
    return channel->ioTimer()->isActive() && channel->ioTimer()->interval() == ioTimeoutMs;
}

void IoTest::runOut(Channel* channel)
{
    QTimerEvent event(channel->ioTimer()->timerId());
    QCoreApplication::sendEvent(channel->ioTimer(), &event);
}

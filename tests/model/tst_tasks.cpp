// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/systeminfo.h"
#include "model/events.h"
#include "testmain.h"

#include <QPointer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <atomic>
#include <future>
#include <memory>

// A device's death shows in its channel's timer, which dies with it.
class TestTasks final : public QObject
{
    Q_OBJECT

private slots:
    void holdBehavesAsThePointer();
    void holdOutlivesRetirement();
    void lastOfManyHoldsReleases();
    void assignedHoldReleasesTheOldDevice();
    void movedHoldCountsOnce();
    void runningTaskKeepsARetiredDevice();
    void taskWithoutAChannelRuns();
    void capturesAreGoneBeforeTheDevice();
    void undeliveredEventKeepsARetiredDevice();
    void eventHoldsOnAfterItsTask();
    void deviceDiesOnTheMainThread();
    void deletedReceiverReleasesTheDevice();
    void removedEventReleasesTheDevice();
    void deviceGoesWithItsDroppedLastEvent();
    void retireInsideASlotLeavesTheChannelUsable();
    void retireInsideTheHandlerLeavesTheChannelUsable();
    void taskStartedAfterTheRetirementKeepsTheDevice();
    void resultsArriveOnTheMainThreadInPostingOrder();
    void unlistedNumberGoesToTheBaseClass();
    void otherNumbersOfSystemInfoGoToTheBaseClass();
    void hundredsOfRetiredDevicesWithTasksInFlight();
    void fieldsAreSharedWithRunningTasks();

private:
    static Device* newDevice(int channels = 1);
    static QPointer<QTimer> pulseOf(Device* device) { return device->channel(0)->ioTimer(); }
};

namespace {

// Takes StartStream results and nothing else.
class Receiver final : public QObject
{
public:
    bool event(QEvent* event) override
    {
        threads.append(QThread::currentThread());
        if (event->type() != ProgressEvent_StartStream::number) {
            ++unlisted;
            return QObject::event(event);
        }
        const auto& result = eventCast<ProgressEvent_StartStream>(event);
        results.append(result.result);
        if (onResult)
            onResult(result.channel);
        return true;
    }

    QList<int> results;
    QList<QThread*> threads;
    int unlisted = 0;
    std::function<void(Channel*)> onResult;
};

// A task that runs until it is let go.
class Gate
{
public:
    void wait() { open_.get_future().wait(); }
    void open() { open_.set_value(); }

private:
    std::promise<void> open_;
};

// One event of each kind of base-class answer, and every number of the program's own.
int answerOfBase(QObject& object, int number)
{
    QEvent event(static_cast<QEvent::Type>(number));
    return object.event(&event) ? 1 : 0;
}

} // namespace

Device* TestTasks::newDevice(int channels)
{
    auto* device = new Device;
    device->setChannelCount(channels);
    return device;
}

void TestTasks::holdBehavesAsThePointer()
{
    Device device;
    device.setChannelCount(2);
    const ChannelHold hold(device.channel(1));
    QCOMPARE(static_cast<Channel*>(hold), device.channel(1));
    QCOMPARE(hold->number(), 1);
    const ChannelHold none;
    ChannelHold null(nullptr);
    const ChannelHold copyOfNull(null);
    null = ChannelHold(device.channel(0));
    QVERIFY(none == nullptr);
    QVERIFY(copyOfNull == nullptr);
}

void TestTasks::holdOutlivesRetirement()
{
    Device* device = newDevice();
    const QPointer<QTimer> alive = pulseOf(device);
    {
        const ChannelHold hold(device->channel(0));
        device->retire();
        QCoreApplication::sendPostedEvents();
        QVERIFY(alive);
        hold->mode(true).playing = true;
        QCOMPARE(bool(hold->mode(true).playing), true);
    }
    QVERIFY(alive);
    QTRY_VERIFY(!alive);
}

void TestTasks::lastOfManyHoldsReleases()
{
    Device* device = newDevice(4);
    const QPointer<QTimer> alive = pulseOf(device);
    QList<ChannelHold> holds;
    for (int i = 0; i < 40; ++i)
        holds.append(ChannelHold(device->channel(i % 4)));
    device->retire();
    while (!holds.isEmpty()) {
        QCoreApplication::sendPostedEvents();
        QVERIFY(alive);
        holds.removeFirst();
    }
    QTRY_VERIFY(!alive);
}

void TestTasks::assignedHoldReleasesTheOldDevice()
{
    Device* first = newDevice();
    Device* second = newDevice();
    const QPointer<QTimer> firstAlive = pulseOf(first);
    const QPointer<QTimer> secondAlive = pulseOf(second);
    ChannelHold hold(first->channel(0));
    first->retire();
    hold = ChannelHold(second->channel(0));
    second->retire();
    QTRY_VERIFY(!firstAlive);
    const ChannelHold& same = hold;
    hold = same;
    QCoreApplication::sendPostedEvents();
    QVERIFY(secondAlive);
    hold = ChannelHold();
    QTRY_VERIFY(!secondAlive);
}

void TestTasks::movedHoldCountsOnce()
{
    Device* device = newDevice();
    const QPointer<QTimer> alive = pulseOf(device);
    auto first = std::make_unique<ChannelHold>(device->channel(0));
    auto second = std::make_unique<ChannelHold>(std::move(*first));
    first.reset();
    device->retire();
    QCoreApplication::sendPostedEvents();
    QVERIFY(alive);
    second.reset();
    QTRY_VERIFY(!alive);
}

void TestTasks::runningTaskKeepsARetiredDevice()
{
    Device* device = newDevice();
    const QPointer<QTimer> alive = pulseOf(device);
    Gate gate;
    std::promise<void> started;
    std::atomic<int> number{-1};
    Channel* const channel = device->channel(0);
    runTask(channel, [&, channel] {
        started.set_value();
        gate.wait();
        number = channel->number();
    });
    started.get_future().wait();
    device->retire();
    QCoreApplication::sendPostedEvents();
    QVERIFY(alive);
    gate.open();
    QTRY_VERIFY(!alive);
    QCOMPARE(number.load(), 0);
}

void TestTasks::taskWithoutAChannelRuns()
{
    std::promise<QThread*> ran;
    runTask(nullptr, [&] { ran.set_value(QThread::currentThread()); });
    QVERIFY(ran.get_future().get() != QThread::currentThread());
}

// What a task has captured may use the channel in its destructor, which is held up here until the
// main thread has looked for a device to destroy.
void TestTasks::capturesAreGoneBeforeTheDevice()
{
    struct User
    {
        User(Channel* channel, std::atomic<int>& seen)
            : channel(channel)
            , seen(seen)
        {
        }
        ~User()
        {
            inDestructor.release();
            mayGo.tryAcquire(1, 5000);
            seen = channel->number() + 1;
        }
        Channel* const channel;
        std::atomic<int>& seen;
        QSemaphore inDestructor;
        QSemaphore mayGo;
    };

    std::atomic<int> seen{0};
    QSemaphore start;
    Device* device = newDevice();
    const QPointer<QTimer> alive = pulseOf(device);
    User* const user = new User(device->channel(0), seen);
    runTask(device->channel(0), [owner = std::shared_ptr<User>(user), &start] { start.acquire(); });
    start.release(); // not before runTask's own copies are gone
    device->retire();
    QVERIFY(user->inDestructor.tryAcquire(1, 5000));
    QCoreApplication::sendPostedEvents(QCoreApplication::instance());
    QVERIFY(alive);
    user->mayGo.release();
    QTRY_VERIFY(!alive);
    QCOMPARE(seen.load(), 1);
}

void TestTasks::undeliveredEventKeepsARetiredDevice()
{
    Receiver receiver;
    Device* device = newDevice();
    const QPointer<QTimer> alive = pulseOf(device);
    postResult(&receiver, new ProgressEvent_StartStream(device->channel(0), 7));
    device->retire();
    QCoreApplication::sendPostedEvents(QCoreApplication::instance());
    QVERIFY(alive);
    QVERIFY(receiver.results.isEmpty());
    QCoreApplication::sendPostedEvents(&receiver);
    QCOMPARE(receiver.results, QList<int>({7}));
    QTRY_VERIFY(!alive);
}

void TestTasks::eventHoldsOnAfterItsTask()
{
    Receiver receiver;
    Device* device = newDevice();
    const QPointer<QTimer> alive = pulseOf(device);
    std::promise<void> posted;
    const ChannelHold hold(device->channel(0));
    runTask(hold, [&receiver, &posted, hold] {
        postResult(&receiver, new ProgressEvent_StartStream(hold, 1));
        posted.set_value();
    });
    posted.get_future().wait();
    receiver.onResult = [&](Channel* channel) { QCOMPARE(channel->number(), 0); };
    device->retire();
    QTRY_COMPARE(receiver.results.size(), 1);
    QVERIFY(alive);
}

void TestTasks::deviceDiesOnTheMainThread()
{
    Device* device = newDevice();
    QThread* diedOn = nullptr;
    connect(
        device->channel(0)->ioTimer(), &QObject::destroyed, this,
        [&] { diedOn = QThread::currentThread(); }, Qt::DirectConnection);
    Gate gate;
    runTask(device->channel(0), [&] { gate.wait(); });
    device->retire(); // from here on the task has the last hold
    gate.open();
    QTRY_VERIFY(diedOn != nullptr);
    QCOMPARE(diedOn, QCoreApplication::instance()->thread());
}

void TestTasks::deletedReceiverReleasesTheDevice()
{
    auto receiver = std::make_unique<Receiver>();
    Device* device = newDevice();
    const QPointer<QTimer> alive = pulseOf(device);
    postResult(receiver.get(), new ProgressEvent_StartStream(device->channel(0), 0));
    postResult(receiver.get(), new ProgressEvent_StopStream(device->channel(0), 0, true));
    device->retire();
    receiver.reset();
    QTRY_VERIFY(!alive);
}

void TestTasks::removedEventReleasesTheDevice()
{
    Receiver receiver;
    Device* device = newDevice();
    const QPointer<QTimer> alive = pulseOf(device);
    postResult(&receiver, new ProgressEvent_StartStream(device->channel(0), 0));
    device->retire();
    QCoreApplication::removePostedEvents(&receiver);
    QTRY_VERIFY(!alive);
    QVERIFY(receiver.results.isEmpty());
}

void TestTasks::deviceGoesWithItsDroppedLastEvent()
{
    Device* device = newDevice();
    const QPointer<QTimer> alive = pulseOf(device);
    device->retire();
    QVERIFY(alive);
    QCoreApplication::removePostedEvents(QCoreApplication::instance());
    QVERIFY(!alive);
}

void TestTasks::retireInsideASlotLeavesTheChannelUsable()
{
    Device* device = newDevice();
    const QPointer<QTimer> alive = pulseOf(device);
    QList<int> seen;
    connect(device->channel(0)->ioTimer(), qOverload<Channel*>(&ChannelSaveTimeout::timeout), this,
        [&](Channel* channel) {
            channel->device()->retire();
            seen.append(channel->number());
        });
    connect(device->channel(0)->ioTimer(), qOverload<Channel*>(&ChannelSaveTimeout::timeout), this,
        [&](Channel* channel) { seen.append(channel->device()->channelCount()); });
    device->channel(0)->ioTimer()->start(0);
    QTRY_VERIFY(!alive);
    QCOMPARE(seen, QList<int>({0, 1}));
}

// The second slot of the signal does not know what the first has done.
void TestTasks::taskStartedAfterTheRetirementKeepsTheDevice()
{
    Receiver receiver;
    Device* device = newDevice();
    const QPointer<QTimer> alive = pulseOf(device);
    QSemaphore gate;
    const auto timeout = qOverload<Channel*>(&ChannelSaveTimeout::timeout);
    connect(device->channel(0)->ioTimer(), timeout, this,
        [](Channel* channel) { channel->device()->retire(); });
    connect(device->channel(0)->ioTimer(), timeout, this, [&](Channel* channel) {
        runTask(channel, [&receiver, &gate, channel] {
            gate.acquire();
            postResult(&receiver, new ProgressEvent_StartStream(channel, channel->number()));
        });
    });
    device->channel(0)->ioTimer()->start(0);
    QTRY_VERIFY(!device->channel(0)->ioTimer()->isActive());
    QCoreApplication::processEvents(); // the retirement's own event
    QVERIFY(alive);
    gate.release();
    QTRY_COMPARE(receiver.results.size(), 1);
    QTRY_VERIFY(!alive);
}

void TestTasks::retireInsideTheHandlerLeavesTheChannelUsable()
{
    Receiver receiver;
    Device* device = newDevice();
    const QPointer<QTimer> alive = pulseOf(device);
    receiver.onResult = [&](Channel* channel) {
        channel->device()->retire();
        channel->stopIoTimer();
        QVERIFY(alive);
    };
    postResult(&receiver, new ProgressEvent_StartStream(device->channel(0), 0));
    QTRY_VERIFY(!alive);
    QCOMPARE(receiver.results.size(), 1);
}

void TestTasks::resultsArriveOnTheMainThreadInPostingOrder()
{
    constexpr int count = 500;
    Receiver receiver;
    Device* device = newDevice();
    const ChannelHold hold(device->channel(0));
    runTask(hold, [&receiver, hold] {
        for (int i = 0; i < count; ++i)
            postResult(&receiver, new ProgressEvent_StartStream(hold, i));
    });
    device->retire();
    QTRY_COMPARE(receiver.results.size(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(receiver.results.at(i), i);
    for (const QThread* thread : qAsConst(receiver.threads))
        QCOMPARE(thread, QCoreApplication::instance()->thread());
}

void TestTasks::unlistedNumberGoesToTheBaseClass()
{
    Receiver receiver;
    postResult(&receiver, new ProgressEvent_initTutk(0));
    postResult(&receiver, new ProgressEvent_setTime(nullptr, 0));
    QCoreApplication::sendPostedEvents(&receiver);
    QCOMPARE(receiver.unlisted, 2);
    QVERIFY(receiver.results.isEmpty());
}

void TestTasks::otherNumbersOfSystemInfoGoToTheBaseClass()
{
    SystemInfo* system = SystemInfo::instance();
    QObject plain;
    const QSignalSpy lines(system, &SystemInfo::debugMsg);
    const int own = DebugEvent_getDebug::number;
    for (int number = 1000; number <= 1100; ++number) {
        if (number != own)
            QCOMPARE(answerOfBase(*system, number), answerOfBase(plain, number));
    }
    QCOMPARE(
        answerOfBase(*system, QEvent::ThreadChange), answerOfBase(plain, QEvent::ThreadChange));
    QTimerEvent tick(12345);
    QCOMPARE(system->event(&tick), plain.event(&tick));
    QCOMPARE(lines.count(), 0);

    DebugEvent_getDebug line(QtWarningMsg, "text");
    QVERIFY(system->event(&line));
    QCOMPARE(lines.count(), 1);
}

void TestTasks::hundredsOfRetiredDevicesWithTasksInFlight()
{
    constexpr int rounds = 400;
    constexpr int channels = 3;
    Receiver receiver;
    int died = 0;
    for (int round = 0; round < rounds; ++round) {
        Device* device = newDevice(channels);
        connect(device->channel(0)->ioTimer(), &QObject::destroyed, this, [&died] { ++died; });
        for (int i = 0; i < channels; ++i) {
            const ChannelHold hold(device->channel(i));
            runTask(hold, [&receiver, hold] {
                hold->mode(true).waiting = true;
                postResult(&receiver, new ProgressEvent_StartStream(hold, hold->number()));
            });
        }
        if (round % 3 == 0)
            QCoreApplication::sendPostedEvents();
        device->retire();
    }
    QTRY_COMPARE_WITH_TIMEOUT(died, rounds, 60000);
    QCOMPARE(receiver.results.size(), rounds * channels);
}

void TestTasks::fieldsAreSharedWithRunningTasks()
{
    Device* device = newDevice();
    const QPointer<QTimer> alive = pulseOf(device);
    const ChannelHold hold(device->channel(0));
    std::atomic<bool> stop{false};
    std::atomic<bool> whole{true};
    std::promise<void> done;
    runTask(hold, [&, hold] {
        while (!stop) {
            hold->mode(true).avIndex = int(hold->device()->sid);
            hold->setRecord(true, true);
            if (const auto version = hold->version())
                whole = whole && version->front() == version->back();
        }
        done.set_value();
    });
    std::array<char, 64> message{};
    for (int i = 0; i < 500; ++i) {
        message.fill(static_cast<char>(i));
        hold->setVersion(message.data());
        hold->device()->sid = i;
        hold->setRecord(false, true);
    }
    stop = true;
    done.get_future().wait();
    QVERIFY(whole);
    device->retire();
    QVERIFY(alive);
}

ORVA_TEST(TestTasks)

#include "tst_tasks.moc"

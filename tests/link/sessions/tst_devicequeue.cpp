// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/dev.h"
#include "linkbench.h"
#include "testmain.h"

#include <QTest>

#include <optional>

// The order in which devices get their sessions. The queue drops its head whenever a device is
// found connected or has failed, whichever device that is.
class TestDeviceQueue final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { bench_.reset(); }

    void devicesAreTriedOneAtATimeInTheOrderOfTheRequests();
    void requestsWhileAnAttemptIsUnderWayStartNone();
    void openingASecondChannelOfAConnectedDeviceDropsTheHead();
    void droppedAttemptCompletesAndDropsTheNextHead();
    void deviceThatWasDroppedUntriedIsTriedByALaterRequest();
    void channelOfADroppedDeviceStartsWithTheSession();
    void timeoutIsOfTheLatestAttempt();
    void deletedDeviceThatWaitsIsNeverTried();
    void channelsOfADeletedDeviceAreNotStarted();
    void surplusChannelsOfADeletedDeviceAreNotStarted();
    void attemptOfADeletedDeviceIsNotStoppedAndItsSessionClosed();
    void failedAttemptOfADeletedDeviceClosesNothing();

private:
    // Whose attempts stay pending until the test reports; those of others succeed.
    void keepPending(char letter);
    void report(char letter, const ConnectStep& step);
    // A device whose first channel is open.
    Device* addOpen(char letter, int channels);
    void connect(Channel* channel) { bench_->link().connect(channel); }

    std::optional<ConnectBench> bench_;
};

void TestDeviceQueue::init()
{
    bench_.emplace();
    bench_->start();
}

void TestDeviceQueue::keepPending(char letter)
{
    bench_->layer.always(connectFn, forUid(uidOf(letter))).reports({});
}

void TestDeviceQueue::report(char letter, const ConnectStep& step)
{
    const LinkCall call = bench_->layer.last(connectFn, forUid(uidOf(letter)));
    QVERIFY(bench_->layer.report(call.sessionId(), step));
}

Device* TestDeviceQueue::addOpen(char letter, int channels)
{
    Device* device = bench_->addDevice(letter, channels);
    connect(device->channel(0));
    const bool isOpen =
        QTest::qWaitFor([device] { return device->channel(0)->mode(true).avIndex >= 0; });
    bench_->journal().clear();
    return isOpen ? device : nullptr;
}

void TestDeviceQueue::devicesAreTriedOneAtATimeInTheOrderOfTheRequests()
{
    for (const char letter : {'C', 'A', 'B'}) {
        keepPending(letter);
        connect(bench_->addChannel(letter));
    }
    finishTasks();
    QCOMPARE(attempts(), QString("C"));
    report('C', ConnectStep::connected());
    QTRY_COMPARE(attempts(), QString("CA"));
    QCOMPARE(bench_->journal().linesOf("connectDevSuccessMsg").size(), 1);
    report('A', ConnectStep::failed(-90));
    QTRY_COMPARE(attempts(), QString("CAB"));
    QCOMPARE(bench_->journal().linesOf("connectDevFailMsg").size(), 1);
    report('B', ConnectStep::connected());
    QTRY_COMPARE(bench_->journal().linesOf("connectDevSuccessMsg").size(), 2);
    finishTasks();
    QCOMPARE(attempts(), QString("CAB"));
}

void TestDeviceQueue::requestsWhileAnAttemptIsUnderWayStartNone()
{
    keepPending('A');
    Device* device = bench_->addDevice('A', 2);
    connect(device->channel(0));
    connect(bench_->addChannel('B'));
    connect(device->channel(1));
    connect(device->channel(0));
    finishTasks();
    QCOMPARE(attempts(), QString("A"));
    QCOMPARE(bench_->layer.count(LinkFn::IOTC_Get_SessionID), 1);
}

void TestDeviceQueue::openingASecondChannelOfAConnectedDeviceDropsTheHead()
{
    Device* open = addOpen('A', 2);
    QVERIFY(open);
    keepPending('B');
    keepPending('C');
    connect(bench_->addChannel('B'));
    connect(bench_->addChannel('C'));
    finishTasks();
    QCOMPARE(attempts(), QString("AB"));
    connect(open->channel(1));
    QCOMPARE(bench_->journal().lines(),
        QStringList({"connect device success:AAAAAAAAAAAAAAAAAAAA", "connectDevSuccessMsg A1",
            "connectChannel:true"}));
    finishTasks();
    QCOMPARE(attempts(), QString("ABC")); // beside the attempt of B
    QCOMPARE(bench_->journal().lines().last(), QString("connectChannelSuccessMsg A1 live"));
}

void TestDeviceQueue::droppedAttemptCompletesAndDropsTheNextHead()
{
    Device* open = addOpen('A', 2);
    QVERIFY(open);
    for (const char letter : {'B', 'C', 'D'}) {
        keepPending(letter);
        connect(bench_->addChannel(letter));
    }
    connect(open->channel(1)); // drops B
    finishTasks();
    QCOMPARE(attempts(), QString("ABC"));
    report('B', ConnectStep::connected()); // drops C
    QTRY_COMPARE(bench_->journal().count("connectChannelSuccessMsg B0 live"), 1);
    finishTasks();
    QCOMPARE(attempts(), QString("ABCD"));
    report('C', ConnectStep::connected()); // drops D
    QTRY_COMPARE(bench_->journal().count("connectChannelSuccessMsg C0 live"), 1);
    report('D', ConnectStep::failed(-42));
    QTRY_COMPARE(bench_->journal().linesOf("connectDevFailMsg").size(), 1);
    finishTasks();
    QCOMPARE(attempts(), QString("ABCD"));
}

// The libraries are not up yet, so that B has not been tried when it is dropped.
void TestDeviceQueue::deviceThatWasDroppedUntriedIsTriedByALaterRequest()
{
    bench_->end();
    LinkGate gate = bench_->layer.next(LinkFn::IOTC_Initialize2).holds();
    bench_->begin();
    Device* open = bench_->addDevice('A');
    open->sid = 9;
    open->channel(0)->mode(true).avIndex = 9;
    Channel* dropped = bench_->addChannel('B');
    connect(dropped);
    connect(open->channel(0));
    gate.release();
    finishTasks();
    QCOMPARE(attempts(), QString());
    connect(dropped);
    QTRY_COMPARE(bench_->journal().count("connectChannelSuccessMsg B0 live"), 1);
    QCOMPARE(attempts(), QString("B"));
}

void TestDeviceQueue::channelOfADroppedDeviceStartsWithTheSession()
{
    Device* open = addOpen('A', 2);
    QVERIFY(open);
    keepPending('B');
    connect(bench_->addChannel('B'));
    connect(open->channel(1));
    finishTasks();
    bench_->journal().clear();
    report('B', ConnectStep::connected());
    QTRY_COMPARE(bench_->journal().lines(),
        QStringList({"connect device success:BBBBBBBBBBBBBBBBBBBB", "connectDevSuccessMsg B0",
            "connectChannel:true", "connect channel success:0,isLive:true",
            "connectChannelSuccessMsg B0 live"}));
}

void TestDeviceQueue::timeoutIsOfTheLatestAttempt()
{
    Device* open = addOpen('A', 2);
    QVERIFY(open);
    keepPending('B');
    keepPending('C');
    connect(bench_->addChannel('B'));
    connect(bench_->addChannel('C'));
    connect(open->channel(1));
    finishTasks();
    QMetaObject::invokeMethod(&bench_->link(), "stopConnect");
    QTRY_COMPARE(bench_->journal().linesOf("connectDevFailMsg"),
        QStringList({"connectDevFailMsg C0 -27 Client stops connecting"}));
    QCOMPARE(bench_->layer.last(LinkFn::IOTC_Connect_Stop_BySID).sessionId(),
        bench_->layer.last(connectFn, forUid(uidOf('C'))).sessionId());
}

void TestDeviceQueue::deletedDeviceThatWaitsIsNeverTried()
{
    keepPending('A');
    connect(bench_->addChannel('A'));
    Device* deleted = bench_->addDevice('B');
    connect(deleted->channel(0));
    connect(bench_->addChannel('C'));
    finishTasks();
    emit Dev::instance()->deleteDevMsg(deleted);
    report('A', ConnectStep::connected());
    QTRY_COMPARE(bench_->journal().count("connectChannelSuccessMsg C0 live"), 1);
    finishTasks();
    QCOMPARE(attempts(), QString("AC"));
}

// They have waited since their device has failed.
void TestDeviceQueue::channelsOfADeletedDeviceAreNotStarted()
{
    bench_->layer.next(connectFn).reports({ConnectStep::failed(-90)});
    Device* deleted = bench_->addDevice('A', 2);
    connect(deleted->channel(0));
    connect(deleted->channel(1));
    QTRY_COMPARE(bench_->journal().linesOf("connectDevFailMsg").size(), 1);
    emit Dev::instance()->deleteDevMsg(deleted);
    deleted->sid = bench_->layer.openSession(); // whoever waits would be started
    connect(bench_->addChannel('B'));
    QTRY_COMPARE(bench_->journal().count("connectChannelSuccessMsg B0 live"), 1);
    finishTasks();
    QCOMPARE(startedChannels(), QList<int>({0}));
    QCOMPARE(attempts(), QString("AB"));
}

void TestDeviceQueue::surplusChannelsOfADeletedDeviceAreNotStarted()
{
    keepPending('A');
    Device* deleted = bench_->addDevice('A', 4);
    connect(deleted->channel(3));
    deleted->setChannelCount(1);
    finishTasks();
    emit Dev::instance()->deleteDevMsg(deleted);
    report('A', ConnectStep::connected());
    QTRY_COMPARE(bench_->journal().count("connectDevSuccessMsg A0"), 1);
    finishTasks();
    QCOMPARE(startedChannels(), QList<int>());
}

void TestDeviceQueue::attemptOfADeletedDeviceIsNotStoppedAndItsSessionClosed()
{
    keepPending('A');
    DeviceOwner deleted = makeDevice('A', 2);
    connect(deleted->channel(0));
    connect(deleted->channel(1));
    finishTasks();
    emit Dev::instance()->deleteDevMsg(deleted.get());
    QCOMPARE(bench_->layer.count(LinkFn::IOTC_Connect_Stop_BySID), 0);
    QVERIFY(deleted->connecting);
    deleted.reset();
    report('A', ConnectStep::connected());
    QTRY_COMPARE(bench_->journal().lines(),
        QStringList({"connect device success:AAAAAAAAAAAAAAAAAAAA", "connectDevSuccessMsg A0"}));
    finishTasks();
    QCOMPARE(bench_->layer.last(LinkFn::IOTC_Session_Close).sessionId(), 0);
    QCOMPARE(bench_->layer.openSessions(), std::vector<int>());
    QCOMPARE(startedChannels(), QList<int>());
}

void TestDeviceQueue::failedAttemptOfADeletedDeviceClosesNothing()
{
    keepPending('A');
    Device* deleted = bench_->addDevice('A');
    connect(deleted->channel(0));
    finishTasks();
    emit Dev::instance()->deleteDevMsg(deleted);
    connect(bench_->addChannel('B'));
    report('A', ConnectStep::failed(-90));
    QTRY_COMPARE(bench_->journal().count("connectDevFailMsg A0 -90 Device offline"), 1);
    finishTasks();
    QCOMPARE(bench_->layer.count(LinkFn::IOTC_Session_Close), 0);
}

ORVA_TEST(TestDeviceQueue)
#include "tst_devicequeue.moc"

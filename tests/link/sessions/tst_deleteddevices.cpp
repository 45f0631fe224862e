// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/dev.h"
#include "link/getmsg.h"
#include "linkbench.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QTest>

#include <optional>
#include <random>

// Devices that leave the registry while something of theirs is under way. The sanitizers look on.
class TestDeletedDevices final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { bench_.reset(); }

    void deviceDeletedWhileTheConnectCallWaitsLeavesNothing();
    void deviceDeletedWhileItsReportIsOnItsWayLeavesNothing();
    void deviceDeletedWhileItsChannelStartsLeavesNothing();
    void deviceDeletedWhileItsAvIndexIsOnItsWayLeavesNothing();
    void deviceDeletedWhileItsMessagesAreAskedForLeavesNothing();
    void deviceDeletedByItsOwnSuccessLeavesNothing();
    void deviceDeletedWithItsSessionOpenLeavesNothing_data();
    void deviceDeletedWithItsSessionOpenLeavesNothing();
    void deviceAskedForWhileItIsDeletedIsNotTried();
    void twoHundredDevicesDeletedAtAnyPointLeaveNothing();

private:
    using Point = void (TestDeletedDevices::*)();

    // What the registry does with a device, and its second half alone.
    void deleteDevice();
    void retireDevice();
    // A new device A with two channels, and the request for both.
    void request();
    void verifyNothingIsLeft();

    // Bring the requested device to a point and delete it there.
    void deleteInConnectCall();
    void deleteWhilePending();
    void deleteBeforeReport();
    void deleteInChannelStart();
    void deleteBeforeAvIndex();
    void deleteWhilePolling();
    void deleteAnywhere();

    std::optional<IoConnectBench> bench_;
    DeviceOwner device_;
    std::mt19937 random_; // the same in each run
};

void TestDeletedDevices::init()
{
    bench_.emplace();
    bench_->start();
}

void TestDeletedDevices::deleteDevice()
{
    bench_->link().disConnectDevice(device_.get());
    retireDevice();
}

void TestDeletedDevices::retireDevice()
{
    emit Dev::instance()->deleteDevMsg(device_.get());
    device_.reset();
}

void TestDeletedDevices::request()
{
    device_ = makeDevice('A', 2);
    bench_->link().connect(device_->channel(0));
    bench_->link().connect(device_->channel(1));
}

// Whoever still waits in a queue would be tried with the next device.
void TestDeletedDevices::verifyNothingIsLeft()
{
    ScriptedLink& layer = bench_->layer;
    finishTasks();
    QVERIFY(QTest::qWaitFor([&] { return layer.openSessions().empty(); }));
    finishTasks();
    const int triedBefore = attemptsFor('A');
    const int startedBefore = layer.count(startFn);
    const DeviceOwner next = makeDevice('B');
    bench_->link().connect(next->channel(0));
    QVERIFY(QTest::qWaitFor([&] { return next->channel(0)->mode(true).avIndex >= 0; }));
    finishTasks();
    QCOMPARE(attemptsFor('A'), triedBefore);
    QCOMPARE(layer.count(startFn), startedBefore + 1);
    bench_->link().disConnectDevice(next.get());
    emit Dev::instance()->deleteDevMsg(next.get());
    QCOMPARE(layer.openSessions(), std::vector<int>());
    QCOMPARE(layer.openIndices(), std::vector<int>());
}

void TestDeletedDevices::deleteInConnectCall()
{
    const LinkGate gate = bench_->layer.next(connectFn).holds();
    request();
    QVERIFY(gate.waitUntilReached());
    deleteDevice();
}

void TestDeletedDevices::deleteWhilePending()
{
    bench_->layer.next(connectFn).reports({});
    request();
    QVERIFY(bench_->layer.waitForReturns(1, connectFn));
    finishTasks();
    deleteDevice();
    const int session = bench_->layer.last(connectFn).sessionId();
    const bool succeeds = random_() % 2 == 0;
    QVERIFY(bench_->layer.report(
        session, succeeds ? ConnectStep::connected() : ConnectStep::failed(-90)));
}

void TestDeletedDevices::deleteBeforeReport()
{
    const int calls = bench_->layer.count(connectFn);
    request();
    QVERIFY(bench_->layer.waitForReturns(calls + 1, connectFn));
    for (auto turns = random_() % 64; turns > 0; --turns)
        std::this_thread::yield();
    deleteDevice();
}

void TestDeletedDevices::deleteInChannelStart()
{
    const LinkGate gate = bench_->layer.next(startFn).holds();
    request();
    QVERIFY(QTest::qWaitFor([&] { return gate.waiting() == 1; }));
    deleteDevice();
}

void TestDeletedDevices::deleteBeforeAvIndex()
{
    LinkGate gate = bench_->layer.next(startFn).holds();
    const int starts = bench_->layer.count(startFn);
    request();
    QVERIFY(QTest::qWaitFor([&] { return gate.waiting() == 1; }));
    gate.release();
    QVERIFY(bench_->layer.waitForReturns(starts + 1, startFn));
    deleteDevice();
}

void TestDeletedDevices::deleteWhilePolling()
{
    const LinkGate gate = bench_->layer.next(LinkFn::avRecvIOCtrl).holds();
    request();
    QVERIFY(QTest::qWaitFor([&] { return gate.waiting() == 1; }));
    deleteDevice();
}

void TestDeletedDevices::deleteAnywhere()
{
    request();
    for (auto turns = random_() % 32; turns > 0; --turns) {
        QCoreApplication::sendPostedEvents();
        std::this_thread::yield();
    }
    deleteDevice();
}

void TestDeletedDevices::deviceDeletedWhileTheConnectCallWaitsLeavesNothing()
{
    deleteInConnectCall();
    verifyNothingIsLeft();
    QCOMPARE(bench_->layer.count(LinkFn::IOTC_Connect_Stop_BySID), 0);
}

void TestDeletedDevices::deviceDeletedWhileItsReportIsOnItsWayLeavesNothing()
{
    deleteBeforeReport();
    verifyNothingIsLeft();
}

void TestDeletedDevices::deviceDeletedWhileItsChannelStartsLeavesNothing()
{
    deleteInChannelStart();
    verifyNothingIsLeft();
    QCOMPARE(bench_->journal().linesOf("connectChannelFailMsg").size(), 2);
}

void TestDeletedDevices::deviceDeletedWhileItsAvIndexIsOnItsWayLeavesNothing()
{
    deleteBeforeAvIndex();
    verifyNothingIsLeft();
    QCOMPARE(bench_->journal().linesOf("connectChannelFailMsg").size(), 2);
}

void TestDeletedDevices::deviceDeletedWhileItsMessagesAreAskedForLeavesNothing()
{
    deleteWhilePolling();
    verifyNothingIsLeft();
}

// The slot of a view deletes the device whose success it is told.
void TestDeletedDevices::deviceDeletedByItsOwnSuccessLeavesNothing()
{
    QObject view;
    QObject::connect(&bench_->link(), &IoConnect::connectDevSuccessMsg, &view, [&] {
        if (device_)
            deleteDevice();
    });
    request();
    QTRY_VERIFY(!device_);
    verifyNothingIsLeft();
}

void TestDeletedDevices::deviceDeletedWithItsSessionOpenLeavesNothing_data()
{
    QTest::addColumn<LinkFn>("underWay");
    QTest::newRow("its channel starts") << startFn;
    QTest::newRow("its messages are asked for") << LinkFn::avRecvIOCtrl;
}

// Nobody has disconnected it, and nobody else will end its session. Who would go on asking for its
// messages, would ask a device that is gone.
void TestDeletedDevices::deviceDeletedWithItsSessionOpenLeavesNothing()
{
    QFETCH(LinkFn, underWay);
    LinkGate gate = bench_->layer.next(underWay).holds();
    request();
    QVERIFY(QTest::qWaitFor([&] { return gate.waiting() == 1; }));
    retireDevice();
    gate.release();
    finishTasks();
    QCOMPARE(bench_->layer.openSessions(), std::vector<int>());
    for (const GetMsg* receiver : bench_->link().findChildren<GetMsg*>())
        QCOMPARE(receiver->channel(), nullptr);
    verifyNothingIsLeft();
}

// By a view that hears of the leaving after the link has.
void TestDeletedDevices::deviceAskedForWhileItIsDeletedIsNotTried()
{
    const DeviceOwner first = makeDevice('F');
    bench_->layer.next(connectFn).reports({}); // the head of the queue, to stay there
    bench_->link().connect(first->channel(0));
    finishTasks();
    device_ = makeDevice('A', 2);
    const auto asks = connect(Dev::instance(), &Dev::deleteDevMsg, this, [this](Device* device) {
        bench_->link().connect(device->channel(0));
        bench_->link().connect(device->channel(1));
    });
    retireDevice();
    disconnect(asks);
    QCOMPARE(attemptsFor('A'), 0);
    emit Dev::instance()->deleteDevMsg(first.get());
    bench_->layer.report(0, ConnectStep::failed(-90));
    verifyNothingIsLeft();
}

void TestDeletedDevices::twoHundredDevicesDeletedAtAnyPointLeaveNothing()
{
    constexpr int rounds = 200;
    constexpr Point points[] = {&TestDeletedDevices::deleteInConnectCall,
        &TestDeletedDevices::deleteWhilePending, &TestDeletedDevices::deleteBeforeReport,
        &TestDeletedDevices::deleteInChannelStart, &TestDeletedDevices::deleteBeforeAvIndex,
        &TestDeletedDevices::deleteWhilePolling, &TestDeletedDevices::deleteAnywhere};
    for (int i = 0; i < rounds; ++i) {
        (this->*points[random_() % std::size(points)])();
        verifyNothingIsLeft();
        if (QTest::currentTestFailed())
            return;
    }
}

ORVA_TEST(TestDeletedDevices)
#include "tst_deleteddevices.moc"

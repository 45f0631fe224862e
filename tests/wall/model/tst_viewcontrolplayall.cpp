// SPDX-License-Identifier: GPL-3.0-or-later
#include "replaywall.h"
#include "testmain.h"

#include <QTest>

// The channels of a device that are opened one after another in playback.
class TestViewControlPlayAll final : public QObject
{
    Q_OBJECT

private slots:
    void nextChannelOpensWhenTheOneBeforeHasStarted();
    void nextChannelOpensWhenTheOneBeforeHasFailed();
    void nextChannelOpensWhenTheOneBeforeDoesNotConnect();
    void emptyDaysArePassedOver();
    void daysThatAreAllEmptyEndIt();
    void refusedReplaysArePassedOver();
    void failuresInLiveViewDoNotGoOn_data();
    void failuresInLiveViewDoNotGoOn();
    void successInLiveViewDoesNotGoOn();
    void closedChannelDoesNotGoOn();

    void channelsOfOtherDevicesDoNotGoOn();
    void channelOpenedByHandAfterTheEndOpensNoOther();
    void secondDeviceTakesItOver();
    void nullEndsIt();
    void deviceThatHasLeftEndsIt();
    void deviceThatLosesChannelsEndsItEarlier();
    void failedDeviceStopsIt();
};

void TestViewControlPlayAll::nextChannelOpensWhenTheOneBeforeHasStarted()
{
    ReplayWall t;
    Device* device = t.addDevice(3);
    t.record(device, {t.block(3600)});
    t.wall.setTime(QTime(1, 0));
    t.wall.playAllReplay(device);
    QCOMPARE(openOnes(false), QStringLiteral("0.0"));
    QVERIFY(t.settle());
    QCOMPARE(takeCommands(t.t), QList<int>({794}));
    QCOMPARE(openOnes(false), QStringLiteral("0.0"));
    QVERIFY(t.start(device->channel(0)));
    QCOMPARE(openOnes(false), QStringLiteral("0.0 0.1"));
    QCOMPARE(takeCommands(t.t), QList<int>({794}));
    QVERIFY(t.start(device->channel(1)));
    QCOMPARE(openOnes(false), QStringLiteral("0.0 0.1 0.2"));
    QVERIFY(t.start(device->channel(2)));
    QCOMPARE(takeCommands(t.t), QList<int>({794}));
    QCOMPARE(playingOnes(false), QStringLiteral("0.0 0.1 0.2"));
    QCOMPARE(onTiles(t.t), QStringLiteral("0.0 0.1 0.2 -"));
}

void TestViewControlPlayAll::nextChannelOpensWhenTheOneBeforeHasFailed()
{
    ReplayWall t;
    Device* device = t.addDevice(3);
    t.record(device, {t.block(3600)});
    t.wall.playAllReplay(device);
    QVERIFY(t.settle());
    QVERIFY(t.start(device->channel(0)));
    QVERIFY(t.failToStart(device->channel(1)));
    QCOMPARE(openOnes(false), QStringLiteral("0.0 0.2"));
    QVERIFY(t.failToStart(device->channel(2)));
    QCOMPARE(openOnes(false), QStringLiteral("0.0"));
    QCOMPARE(onTiles(t.t), QStringLiteral("0.0 - - -"));
    QVERIFY(t.start(device->channel(1))); // it is over
    QCOMPARE(openOnes(false), QStringLiteral("0.0"));
}

void TestViewControlPlayAll::nextChannelOpensWhenTheOneBeforeDoesNotConnect()
{
    ReplayWall t;
    Device* device = t.addDevice(2);
    t.record(device, {t.block(3600)});
    device->channel(0)->mode(true).avIndex = -1;
    t.t.link.next(LinkFn::avClientStart2).answers(-20009);
    t.wall.playAllReplay(device);
    QVERIFY(t.settle());
    QCOMPARE(openOnes(false), QStringLiteral("0.1"));
    QCOMPARE(takeCommands(t.t), QList<int>({794}));
}

void TestViewControlPlayAll::emptyDaysArePassedOver()
{
    ReplayWall t;
    Device* device = t.addDevice(5);
    t.record(device->channel(2), {t.block(3600)});
    t.record(device->channel(4), {t.block(7200)});
    t.wall.playAllReplay(device);
    QVERIFY(t.settle());
    QCOMPARE(openOnes(false), QStringLiteral("0.2"));
    QVERIFY(t.start(device->channel(2)));
    QCOMPARE(openOnes(false), QStringLiteral("0.2 0.4"));
    QVERIFY(t.start(device->channel(4)));
    QCOMPARE(onTiles(t.t), QStringLiteral("0.2 0.4 - -"));
    QCOMPARE(takeCommands(t.t), QList<int>({794, 794}));
}

void TestViewControlPlayAll::daysThatAreAllEmptyEndIt()
{
    ReplayWall t;
    Device* device = t.addDevice(40);
    PageLabel label(t.t);
    t.wall.playAllReplay(device);
    QVERIFY(t.settle());
    QCOMPARE(openOnes(false), QString());
    QVERIFY(takeCommands(t.t).isEmpty());
    QVERIFY(label.take().isEmpty());
    QCOMPARE(t.t.link.count(LinkFn::avSendIOCtrl, ofType(13083)), 40); // each was asked
}

void TestViewControlPlayAll::refusedReplaysArePassedOver()
{
    ReplayWall t;
    Device* device = t.addDevice(3);
    t.record(device, {t.block(3600)});
    t.wall.playAllReplay(device);
    QVERIFY(t.settle());
    QVERIFY(t.start(device->channel(0)));
    for (int i = 1; i < 3; ++i) {
        QCOMPARE(openOnes(false), QStringLiteral("0.0 0.%1").arg(i));
        const int index = device->channel(i)->mode(true).avIndex;
        t.t.link.queueMessage(index, 1793, wire("00000000 01"));
        QTRY_VERIFY(!device->channel(i)->mode(false).open);
        QVERIFY(t.settle());
    }
    QCOMPARE(openOnes(false), QStringLiteral("0.0"));
    QCOMPARE(takeCommands(t.t), QList<int>({794, 794, 794}));
}

void TestViewControlPlayAll::failuresInLiveViewDoNotGoOn_data()
{
    QTest::addColumn<bool>("isOfTheReplay");
    QTest::newRow("the replay does not start") << true;
    QTest::newRow("the channel does not connect") << false;
}

void TestViewControlPlayAll::failuresInLiveViewDoNotGoOn()
{
    QFETCH(bool, isOfTheReplay);
    ReplayWall t;
    Device* device = t.addDevice(2);
    t.record(device, {t.block(3600)});
    t.wall.playAllReplay(device);
    QVERIFY(t.settle());
    t.wall.changeMod(true);
    QVERIFY(t.settle());
    t.t.takeSent();
    if (isOfTheReplay)
        emit t.t.io->startReplayFailMsg(device->channel(0), -1, QString());
    else
        emit t.t.io->connectChannelFailMsg(device->channel(0), -1, QString());
    QVERIFY(t.settle());
    QVERIFY(t.t.takeSent().isEmpty());
    QVERIFY(!device->channel(1)->mode(false).open);
    QCOMPARE(bool(device->channel(0)->mode(false).open), !isOfTheReplay);
}

void TestViewControlPlayAll::successInLiveViewDoesNotGoOn()
{
    ReplayWall t;
    Device* device = t.addDevice(2);
    t.record(device, {t.block(3600)});
    t.wall.playAllReplay(device);
    QVERIFY(t.settle());
    t.wall.changeMod(true);
    QVERIFY(t.start(device->channel(0)));
    QCOMPARE(openOnes(false), QStringLiteral("0.0"));
    QCOMPARE(onTiles(t.t), QStringLiteral("- - - -"));
}

void TestViewControlPlayAll::closedChannelDoesNotGoOn()
{
    ReplayWall t;
    Device* device = t.addDevice(2);
    t.record(device, {t.block(3600)});
    t.wall.playAllReplay(device);
    QVERIFY(t.settle());
    t.wall.closeChannel(device->channel(0));
    QVERIFY(t.settle());
    QVERIFY(t.start(device->channel(0))); // the device's answer was on its way
    QCOMPARE(openOnes(false), QString());
    QCOMPARE(onTiles(t.t), QStringLiteral("- - - -"));
}

void TestViewControlPlayAll::channelsOfOtherDevicesDoNotGoOn()
{
    ReplayWall t;
    Device* device = t.addDevice(2);
    Device* other = t.addDevice(2);
    t.record(device, {t.block(3600)});
    t.record(other->channel(0), {t.block(3600)});
    t.wall.playAllReplay(device);
    QVERIFY(t.settle());
    QVERIFY(t.play(other->channel(0)));
    t.wall.openReplayChannel(other->channel(1)); // an empty day
    QVERIFY(t.settle());
    QVERIFY(t.failToStart(other->channel(0)));
    QCOMPARE(openOnes(false), QStringLiteral("0.0"));
}

void TestViewControlPlayAll::channelOpenedByHandAfterTheEndOpensNoOther()
{
    ReplayWall t;
    Device* device = t.addDevice(3);
    t.record(device, {t.block(3600)});
    t.record(device->channel(2), {});
    t.wall.playAllReplay(device);
    QVERIFY(t.settle());
    QVERIFY(t.failToStart(device->channel(0)));
    QVERIFY(t.failToStart(device->channel(1))); // and channel 2 has nothing
    QCOMPARE(openOnes(false), QString());
    QVERIFY(t.play(device->channel(0)));
    QCOMPARE(openOnes(false), QStringLiteral("0.0"));
}

void TestViewControlPlayAll::secondDeviceTakesItOver()
{
    ReplayWall t;
    Device* first = t.addDevice(2);
    Device* second = t.addDevice(2);
    t.record(first, {t.block(3600)});
    t.record(second, {t.block(3600)});
    t.wall.playAllReplay(first);
    QVERIFY(t.settle());
    t.wall.playAllReplay(second);
    QVERIFY(t.settle());
    QVERIFY(t.start(first->channel(0)));
    QCOMPARE(openOnes(false), QStringLiteral("0.0 1.0"));
    QVERIFY(t.start(second->channel(0)));
    QCOMPARE(openOnes(false), QStringLiteral("0.0 1.0 1.1"));
}

void TestViewControlPlayAll::nullEndsIt()
{
    ReplayWall t;
    Device* device = t.addDevice(2);
    t.record(device, {t.block(3600)});
    t.wall.playAllReplay(device);
    QVERIFY(t.settle());
    t.wall.playAllReplay(nullptr);
    QVERIFY(t.start(device->channel(0)));
    QCOMPARE(openOnes(false), QStringLiteral("0.0"));
}

void TestViewControlPlayAll::deviceThatHasLeftEndsIt()
{
    ReplayWall t;
    Device* leaving = t.addDevice(3);
    Device* other = t.addDevice(2);
    t.record(leaving, {t.block(3600)});
    t.record(other, {t.block(3600)});
    t.wall.playAllReplay(leaving);
    QVERIFY(t.settle());
    QVERIFY(t.start(leaving->channel(0)));
    t.t.takeSent();
    Dev::instance()->removeDevice(leaving);
    // What was on its way, told while the device still exists.
    emit t.t.io->startReplayFailMsg(leaving->channel(1), -1, QString());
    emit t.t.io->startReplaySuccessMsg(leaving->channel(1));
    QVERIFY(!leaving->channel(2)->mode(false).open);
    QVERIFY(t.settle());
    QVERIFY(t.t.takeSent().isEmpty());
    QCOMPARE(onTiles(t.t), QStringLiteral("- - - -"));
    QVERIFY(t.play(other->channel(0)));
    QCOMPARE(openOnes(false), QStringLiteral("0.0"));
}

void TestViewControlPlayAll::deviceThatLosesChannelsEndsItEarlier()
{
    ReplayWall t;
    Device* device = t.addDevice(3);
    t.record(device, {t.block(3600)});
    t.wall.playAllReplay(device);
    QVERIFY(t.settle());
    device->setChannelCount(2);
    QVERIFY(t.start(device->channel(0)));
    QVERIFY(t.start(device->channel(1)));
    QCOMPARE(openOnes(false), QStringLiteral("0.0 0.1"));
    QVERIFY(!device->channel(2)->mode(false).open);
}

void TestViewControlPlayAll::failedDeviceStopsIt()
{
    ReplayWall t;
    Device* device = t.addDevice(2);
    t.record(device, {t.block(3600)});
    t.wall.playAllReplay(device);
    QVERIFY(t.settle());
    t.t.takeSent();
    emit t.t.io->connectDevFailMsg(device->channel(0), -13, QString());
    QVERIFY(t.settle());
    QCOMPARE(openOnes(false), QString());
    QVERIFY(t.t.takeSent().isEmpty());
}

ORVA_TEST(TestViewControlPlayAll)
#include "tst_viewcontrolplayall.moc"

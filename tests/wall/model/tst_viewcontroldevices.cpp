// SPDX-License-Identifier: GPL-3.0-or-later
#include "replaywall.h"
#include "testmain.h"

#include <QSignalSpy>
#include <QTest>

// Devices that are disconnected, and devices that leave the registry.
class TestViewControlDevices final : public QObject
{
    Q_OBJECT

private slots:
    void closedDeviceIsDisconnectedAndOffTheWall();
    void deletedDeviceIsOffTheWallBeforeItIsDisconnected();
    void closedDeviceIsOffTheWallAfterItIsDisconnected();
    void deletedDeviceMayBeNull();
    void unconnectedDeviceIsTakenOffTheWall_data();
    void unconnectedDeviceIsTakenOffTheWall();
    void closedDeviceOpensAgain();
    void allConnectedDevicesAreDisconnected();

    void deviceThatLeavesIsOffTheWall();
    void deviceThatLeavesIsOffTheMirrorTile();
    void deviceThatLeavesTakesItsPagesAlong();
    void lastDeviceThatLeavesLeavesNoPage();
    void selectedDeviceThatLeavesIsForgotten();
    void deviceThatLeavesOneTileComesBackAsAnother();
    void resultsOfADeviceThatHasLeftChangeNothing();
    void answerOfADeviceThatHasLeftShowsNothing();
    void deviceThatLeavesWhileItConnectsIsNotShown();
    void channelsBeyondTheCountLeaveTheWallToo();
};

namespace {

QString openSessionsBut(const WallTest& t, const Device* device)
{
    QStringList sessions;
    for (const int session : t.link.openSessions()) {
        if (session != device->sid)
            sessions.append(QString::number(session));
    }
    return sessions.join(QLatin1Char(' '));
}

} // namespace

void TestViewControlDevices::closedDeviceIsDisconnectedAndOffTheWall()
{
    WallTest t;
    t.makeTiles();
    Device* first = t.addDevice(2);
    Device* second = t.addDevice(1);
    QVERIFY(t.open(first, 2));
    QVERIFY(t.open(second, 1));
    const int session = first->sid;
    const QString others = openSessionsBut(t, first);
    PageLabel label(t);
    t.viewControl.closeDevice(first);
    QCOMPARE(t.link.last(LinkFn::IOTC_Session_Close).sessionId(), session);
    QCOMPARE(openSessionsBut(t, first), others);
    QCOMPARE(int(first->sid), -1);
    QCOMPARE(openOnes(true), QStringLiteral("1.0"));
    QCOMPARE(playingOnes(true), QStringLiteral("1.0"));
    QCOMPARE(onTiles(t), QStringLiteral("- - 1.0 -"));
    QCOMPARE(strayWidgets(t), QString());
    QCOMPARE(label.takeLast(), QStringLiteral("0 of 1"));
}

void TestViewControlDevices::deletedDeviceIsOffTheWallBeforeItIsDisconnected()
{
    WallTest t;
    Device* device = t.addDevice(1);
    QVERIFY(t.open(device, 1));
    QStringList shown;
    connect(t.io.get(), &IoConnect::videoRequestStopSuccessMsg, this,
        [&] { shown.append(onTiles(t)); });
    t.viewControl.deleteDevice(device);
    QCOMPARE(shown, QStringList({"- - - -"}));
    QCOMPARE(int(device->sid), -1);
    QCOMPARE(openOnes(true), QString());
}

void TestViewControlDevices::closedDeviceIsOffTheWallAfterItIsDisconnected()
{
    WallTest t;
    Device* device = t.addDevice(1);
    QVERIFY(t.open(device, 1));
    QStringList shown;
    connect(t.io.get(), &IoConnect::videoRequestStopSuccessMsg, this,
        [&] { shown.append(onTiles(t)); });
    t.viewControl.closeDevice(device);
    QCOMPARE(shown, QStringList({"0.0 - - -"}));
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
}

void TestViewControlDevices::deletedDeviceMayBeNull()
{
    WallTest t;
    PageLabel label(t);
    t.viewControl.deleteDevice(nullptr);
    QVERIFY(label.take().isEmpty());
    QCOMPARE(t.link.count(LinkFn::IOTC_Session_Close), 0);
}

void TestViewControlDevices::unconnectedDeviceIsTakenOffTheWall_data()
{
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("closed") << false;
    QTest::newRow("deleted") << true;
}

void TestViewControlDevices::unconnectedDeviceIsTakenOffTheWall()
{
    QFETCH(bool, isDeleted);
    WallTest t;
    Device* device = t.addDevice(2, false);
    markOpen(device, 2);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    PageLabel label(t);
    if (isDeleted)
        t.viewControl.deleteDevice(device);
    else
        t.viewControl.closeDevice(device);
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
    QCOMPARE(t.link.count(LinkFn::IOTC_Session_Close), 0);
    QVERIFY(label.take().isEmpty());
}

void TestViewControlDevices::closedDeviceOpensAgain()
{
    WallTest t;
    Device* device = t.addDevice(2);
    QVERIFY(t.open(device, 2));
    t.viewControl.closeDevice(device);
    QVERIFY(t.settle());
    t.connectDevice(device);
    t.takeSent();
    QVERIFY(t.open(device, 1));
    QCOMPARE(takeCommands(t), QList<int>({255, 511}));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - - -"));
}

void TestViewControlDevices::allConnectedDevicesAreDisconnected()
{
    WallTest t;
    Device* first = t.addDevice(1);
    Device* second = t.addDevice(1, false);
    Device* third = t.addDevice(1);
    QVERIFY(t.open(first, 1));
    QSignalSpy quit(&t.viewControl, &ViewControl::quitMsg);
    const int sessions[] = {first->sid, third->sid};
    t.viewControl.closeAll();
    const std::vector<LinkCall> closed = t.link.calls(LinkFn::IOTC_Session_Close);
    QCOMPARE(static_cast<int>(closed.size()), 2);
    QCOMPARE(closed.front().sessionId(), sessions[0]); // device after device
    QCOMPARE(closed.back().sessionId(), sessions[1]);
    for (const Device* device : {first, second, third})
        QCOMPARE(int(device->sid), -1);
    QCOMPARE(openOnes(true), QString());
    QCOMPARE(quit.count(), 0); // whoever quits tells that
    t.viewControl.closeAll();
    QCOMPARE(t.link.count(LinkFn::IOTC_Session_Close), 2);
}

void TestViewControlDevices::deviceThatLeavesIsOffTheWall()
{
    WallTest t;
    t.makeTiles();
    Device* first = t.addDevice(2);
    Device* second = t.addDevice(1);
    QVERIFY(t.open(first, 2));
    QVERIFY(t.open(second, 1));
    const int session = first->sid;
    Dev::instance()->removeDevice(first);
    QCOMPARE(t.link.last(LinkFn::IOTC_Session_Close).sessionId(), session);
    QCOMPARE(onTiles(t), QStringLiteral("- - 0.0 -")); // the second one is the first now
    QCOMPARE(strayWidgets(t), QString());
    QVERIFY(t.settle());
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - - -"));
}

void TestViewControlDevices::deviceThatLeavesIsOffTheMirrorTile()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(2);
    markPlaying(device, 2);
    t.viewControl.setWindowMod(WINDOW_MOD_6_MIRROR, true);
    Dev::instance()->selectChannel(device->channel(1));
    QCOMPARE(onTiles(t), QStringLiteral("0.1 0.0 0.1 - - -"));
    Dev::instance()->removeDevice(device);
    QCOMPARE(onTiles(t), QStringLiteral("- - - - - -"));
    QCOMPARE(strayWidgets(t), QString());
    QVERIFY(t.settle());
    t.viewControl.setWindowMod(WINDOW_MOD_6_MIRROR, true);
    QCOMPARE(onTiles(t), QStringLiteral("- - - - - -"));
}

void TestViewControlDevices::deviceThatLeavesTakesItsPagesAlong()
{
    WallTest t;
    Device* first = t.addDevice(4);
    Device* second = t.addDevice(2);
    markOpen(first, 4);
    markOpen(second, 2);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(onTiles(t), QStringLiteral("1.0 1.1 - -"));
    PageLabel label(t);
    Dev::instance()->removeDevice(second);
    QCOMPARE(t.viewControl.getPageCount(), 1);
    QCOMPARE(t.viewControl.getPage(), 1); // which is not lowered
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
    t.viewControl.changePage(ViewControl::PageDown);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3"));
}

void TestViewControlDevices::lastDeviceThatLeavesLeavesNoPage()
{
    WallTest t;
    Device* device = t.addDevice(5);
    QVERIFY(t.open(device, 5));
    t.viewControl.changePage(ViewControl::PageUp);
    PageLabel label(t);
    Dev::instance()->removeDevice(device);
    QCOMPARE(label.takeLast(), QStringLiteral("-1 of 0"));
    QCOMPARE(t.viewControl.getPage(), 0);
}

void TestViewControlDevices::selectedDeviceThatLeavesIsForgotten()
{
    WallTest t;
    Device* device = t.addDevice(1);
    markPlaying(device, 1);
    Dev::instance()->selectDevice(device);
    Dev::instance()->selectChannel(device->channel(0));
    t.viewControl.setWindowMod(WINDOW_MOD_1, true);
    QCOMPARE(onTiles(t), QStringLiteral("0.0"));
    Dev::instance()->removeDevice(device);
    QVERIFY(Dev::instance()->selectedChannel() == nullptr);
    QCOMPARE(onTiles(t), QStringLiteral("-"));
    QVERIFY(t.settle());
    t.viewControl.setWindowMod(WINDOW_MOD_1, true);
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(onTiles(t), QStringLiteral("-"));
}

void TestViewControlDevices::deviceThatLeavesOneTileComesBackAsAnother()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(1);
    QVERIFY(t.open(device, 1));
    const QString uid = device->uid();
    Dev::instance()->removeDevice(device);
    QVERIFY(t.settle());
    Device* again = t.addDevice(1);
    again->setUid(uid);
    QVERIFY(!again->channel(0)->mode(true).open);
    QVERIFY(t.open(again, 1));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - - -"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlDevices::resultsOfADeviceThatHasLeftChangeNothing()
{
    WallTest t;
    t.makeTiles();
    Device* leaving = t.addDevice(2);
    Device* other = t.addDevice(1);
    QVERIFY(t.open(other, 1));
    const LinkGate gate = t.link.next(LinkFn::avSendIOCtrl, ofType(511)).holds();
    t.viewControl.connectChannel(leaving->channel(0), false, true);
    QTRY_COMPARE(gate.waiting(), 1);
    QCOMPARE(onTiles(t), QStringLiteral("1.0 0.0 - -"));
    Dev::instance()->removeDevice(leaving);
    QVERIFY(t.settle()); // the send fails, and its result comes
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - - -"));
    QCOMPARE(openOnes(true), QStringLiteral("0.0"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlDevices::answerOfADeviceThatHasLeftShowsNothing()
{
    WallTest t;
    t.makeTiles();
    Device* leaving = t.addDevice(1);
    Channel* channel = leaving->channel(0);
    Dev::instance()->removeDevice(leaving);
    channel->mode(true).open = true; // by a slot that knows it still
    emit t.io->connectChannelSuccessMsg(channel);
    QCOMPARE(t.shown(), QList<Channel*>({nullptr, nullptr, nullptr, nullptr}));
    t.viewControl.showChannel(channel);
    QCOMPARE(t.shown(), QList<Channel*>({nullptr, nullptr, nullptr, nullptr}));
    QVERIFY(channel->tile == nullptr);
    QVERIFY(t.settle());
}

void TestViewControlDevices::deviceThatLeavesWhileItConnectsIsNotShown()
{
    WallTest t;
    Device* leaving = t.addDevice(1, false);
    Device* other = t.addDevice(1);
    t.link.next(LinkFn::IOTC_Connect_ByUID_ParallelNB, forUid(leaving->uid().toLatin1()))
        .reports({ConnectStep::progress(1)});
    t.viewControl.connectChannel(leaving->channel(0), false, true);
    QVERIFY(t.link.waitForReturns(1, LinkFn::IOTC_Connect_ByUID_ParallelNB));
    const int session = t.link.last(LinkFn::IOTC_Connect_ByUID_ParallelNB).number("sessionId");
    Dev::instance()->removeDevice(leaving);
    QVERIFY(t.settle());
    QVERIFY(t.link.report(session, ConnectStep::connected()));
    QTRY_COMPARE(t.link.count(LinkFn::IOTC_Session_Close, onSession(session)), 1);
    QVERIFY(t.settle());
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
    QVERIFY(t.open(other, 1));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - - -"));
}

void TestViewControlDevices::channelsBeyondTheCountLeaveTheWallToo()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(3);
    markOpen(device, 3);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    device->setChannelCount(1);
    Channel* third = device->channel(2);
    QVERIFY(third->tile != nullptr);
    t.viewControl.deleteDevice(device);
    QCOMPARE(t.shown(), QList<Channel*>({nullptr, nullptr, nullptr, nullptr}));
    QVERIFY(third->tile == nullptr);
}

ORVA_TEST(TestViewControlDevices)
#include "tst_viewcontroldevices.moc"

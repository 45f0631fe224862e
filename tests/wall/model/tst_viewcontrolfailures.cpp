// SPDX-License-Identifier: GPL-3.0-or-later
#include "replaywall.h"
#include "testmain.h"

#include <QSignalSpy>
#include <QTest>

// What becomes of channels that do not start.
class TestViewControlFailures final : public QObject
{
    Q_OBJECT

private slots:
    void failedDeviceClosesAllItsChannelsInBothModes();
    void failedDeviceLeavesOthersAlone();
    void deviceThatDoesNotConnectClosesWhatWasWanted();
    void failedDeviceLeavesTheMirrorTileToo();

    void channelThatDoesNotConnectIsClosedInTheModeOnView_data();
    void channelThatDoesNotConnectIsClosedInTheModeOnView();
    void channelWithoutAnAvChannelIsClosed();
    void emptyDayClosesTheChannel();
    void failedLiveStreamIsClosedInLiveView_data();
    void failedLiveStreamIsClosedInLiveView();
    void refusedLiveStreamIsClosed();
    void failedReplayIsClosedInPlayback_data();
    void failedReplayIsClosedInPlayback();

    void closedByFailureCountsInNoPage();
    void failuresTellTheLabelNothing();
    void otherFailuresCloseNothing();
};

namespace {

QString openText(const Channel* channel)
{
    return QStringLiteral("%1%2").arg(
        channel->mode(true).open ? "live " : "", channel->mode(false).open ? "replay" : "");
}

} // namespace

void TestViewControlFailures::failedDeviceClosesAllItsChannelsInBothModes()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(4);
    markOpen(device, 4, true);
    markOpen(device, 4, false);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3"));
    emit t.io->connectDevFailMsg(device->channel(2), -13, QStringLiteral("text"));
    QCOMPARE(openOnes(true), QString());
    QCOMPARE(openOnes(false), QString());
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
    QCOMPARE(strayWidgets(t), QString());
    QCOMPARE(t.viewControl.getPageCount(), 0);
}

void TestViewControlFailures::failedDeviceLeavesOthersAlone()
{
    WallTest t;
    t.makeTiles();
    Device* first = t.addDevice(1);
    Device* second = t.addDevice(2);
    markOpen(first, 1);
    markOpen(second, 2);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    emit t.io->connectDevFailMsg(second->channel(0), -13, QString());
    QCOMPARE(openOnes(true), QStringLiteral("0.0"));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - - -"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlFailures::deviceThatDoesNotConnectClosesWhatWasWanted()
{
    WallTest t;
    Device* device = t.addDevice(3, false);
    t.link.next(LinkFn::IOTC_Connect_ByUID_ParallelNB, forUid(device->uid().toLatin1()))
        .reports({ConnectStep::failed(-13)});
    QSignalSpy failed(t.io.get(), &IoConnect::connectDevFailMsg);
    t.viewControl.connectChannel(device->channel(1), false, true);
    t.viewControl.connectChannel(device->channel(2), false, true);
    QCOMPARE(openOnes(true), QStringLiteral("0.1 0.2"));
    QTRY_COMPARE(failed.count(), 1);
    QCOMPARE(openOnes(true), QString());
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
}

void TestViewControlFailures::failedDeviceLeavesTheMirrorTileToo()
{
    WallTest t;
    t.makeTiles();
    Device* first = t.addDevice(1);
    Device* second = t.addDevice(1);
    markOpen(first, 1);
    markOpen(second, 1);
    t.viewControl.setWindowMod(WINDOW_MOD_6_MIRROR, true);
    QCOMPARE(onTiles(t), QStringLiteral("1.0 0.0 1.0 - - -"));
    emit t.io->connectDevFailMsg(second->channel(0), -13, QString());
    QCOMPARE(onTiles(t), QStringLiteral("- 0.0 - - - -"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlFailures::channelThatDoesNotConnectIsClosedInTheModeOnView_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::newRow("live view") << true;
    QTest::newRow("playback") << false;
}

void TestViewControlFailures::channelThatDoesNotConnectIsClosedInTheModeOnView()
{
    QFETCH(bool, isLive);
    WallTest t;
    t.viewControl.changeMod(isLive);
    Device* device = t.addDevice(2);
    markOpen(device, 2, true);
    markOpen(device, 2, false);
    emit t.io->connectChannelFailMsg(device->channel(0), -20009, QString());
    QVERIFY(!device->channel(0)->mode(isLive).open);
    QVERIFY(device->channel(0)->mode(!isLive).open);
    QCOMPARE(openText(device->channel(1)), QStringLiteral("live replay"));
}

void TestViewControlFailures::channelWithoutAnAvChannelIsClosed()
{
    WallTest t;
    Device* device = t.addDevice(2);
    device->channel(1)->mode(true).avIndex = -1;
    t.link.next(LinkFn::avClientStart2).answers(-20009);
    QVERIFY(t.open(device, 2));
    QCOMPARE(openOnes(true), QStringLiteral("0.0"));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - - -"));
}

void TestViewControlFailures::emptyDayClosesTheChannel()
{
    ReplayWall t;
    Device* device = t.addDevice(1);
    markOpen(device, 1, true);
    QSignalSpy empty(t.t.io.get(), &IoConnect::receiveVideoTimeEmptyMsg);
    t.wall.openReplayChannel(device->channel(0));
    QVERIFY(t.settle());
    QCOMPARE(empty.count(), 1);
    QCOMPARE(openText(device->channel(0)), QStringLiteral("live "));
    QVERIFY(takeCommands(t.t).isEmpty());
}

void TestViewControlFailures::failedLiveStreamIsClosedInLiveView_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::newRow("in live view") << true;
    QTest::newRow("in playback by now") << false;
}

void TestViewControlFailures::failedLiveStreamIsClosedInLiveView()
{
    QFETCH(bool, isLive);
    WallTest t;
    t.viewControl.changeMod(isLive);
    Device* device = t.addDevice(1);
    markOpen(device, 1, true);
    markOpen(device, 1, false);
    emit t.io->videoRequestFailMsg(device->channel(0), -20016, QString());
    QCOMPARE(openText(device->channel(0)), QStringLiteral("replay"));
}

void TestViewControlFailures::refusedLiveStreamIsClosed()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(2);
    t.link.next(LinkFn::avSendIOCtrl, ofType(255)).answers(-20016);
    QVERIFY(t.open(device, 2));
    QCOMPARE(openOnes(true), QStringLiteral("0.1"));
    QCOMPARE(playingOnes(true), QStringLiteral("0.1"));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 - -")); // its tile is not taken from it
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    QCOMPARE(onTiles(t), QStringLiteral("0.1 - - -"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlFailures::failedReplayIsClosedInPlayback_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::newRow("in playback") << false;
    QTest::newRow("in live view by now") << true;
}

void TestViewControlFailures::failedReplayIsClosedInPlayback()
{
    QFETCH(bool, isLive);
    WallTest t;
    t.viewControl.changeMod(isLive);
    Device* device = t.addDevice(1);
    markOpen(device, 1, true);
    markOpen(device, 1, false);
    emit t.io->startReplayFailMsg(device->channel(0), 0, QString());
    QCOMPARE(openText(device->channel(0)), QStringLiteral("live "));
}

void TestViewControlFailures::closedByFailureCountsInNoPage()
{
    WallTest t;
    Device* device = t.addDevice(5);
    markOpen(device, 5);
    QCOMPARE(t.viewControl.getPageCount(), 2);
    emit t.io->videoRequestFailMsg(device->channel(4), -20016, QString());
    QCOMPARE(t.viewControl.getPageCount(), 1);
    emit t.io->connectChannelFailMsg(device->channel(3), -20009, QString());
    emit t.io->connectDevFailMsg(device->channel(0), -13, QString());
    QCOMPARE(t.viewControl.getPageCount(), 0);
}

void TestViewControlFailures::failuresTellTheLabelNothing()
{
    WallTest t;
    Device* device = t.addDevice(5);
    markOpen(device, 5, true);
    markOpen(device, 5, false);
    PageLabel label(t);
    emit t.io->videoRequestFailMsg(device->channel(4), -20016, QString());
    emit t.io->connectChannelFailMsg(device->channel(3), -20009, QString());
    emit t.io->startReplayFailMsg(device->channel(2), 0, QString());
    emit t.io->receiveVideoTimeEmptyMsg(device->channel(1), 0, QString());
    emit t.io->connectDevFailMsg(device->channel(0), -13, QString());
    QVERIFY(label.take().isEmpty());
}

void TestViewControlFailures::otherFailuresCloseNothing()
{
    WallTest t;
    Device* device = t.addDevice(1);
    markOpen(device, 1, true);
    markOpen(device, 1, false);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    Channel* channel = device->channel(0);
    PageLabel label(t);
    emit t.io->videoRequestStopFailMsg(channel, -1, QString());
    emit t.io->stopReplayFailMsg(channel, -1, QString());
    emit t.io->pauseReplayFailMsg(channel, -1, QString());
    emit t.io->startReplayControlFailMsg(channel, -1, QString());
    emit t.io->changeReplayTimeFailMsg(channel, -1, QString());
    emit t.io->requestReplayVideoTimeFailMsg(channel, -1, QString());
    QCOMPARE(openText(channel), QStringLiteral("live replay"));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - - -"));
    QVERIFY(label.take().isEmpty());
}

ORVA_TEST(TestViewControlFailures)
#include "tst_viewcontrolfailures.moc"

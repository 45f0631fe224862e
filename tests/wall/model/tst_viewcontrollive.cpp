// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/location.h"
#include "testmain.h"
#include "wallwatch.h"

#include <QSignalSpy>
#include <QTest>

// Opening and closing channels in live view.
class TestViewControlLive final : public QObject
{
    Q_OBJECT

private slots:
    void openedChannelGetsATileAndStarts();
    void openedChannelIsOnItsTileBeforeItWaits();
    void openedChannelIsSavedBeforeTheLabelIsTold();
    void openedChannelOfAnUnconnectedDeviceConnectsItFirst();
    void channelsOfOneDeviceStartTogether();

    void retryDoesNotOpenAChannel();
    void retryOfAnOpenChannelStartsIt();
    void openingForTheOtherModeOpensNothing_data();
    void openingForTheOtherModeOpensNothing();
    void playingChannelIsNotStartedAgain();
    void channelThatIsClosedMeanwhileDoesNotStart();
    void channelIsNotStartedInPlayback();
    void nullChannelIsIgnored();

    void fifthChannelOfFourTilesRunsWithoutATile();
    void newChannelTakesTheFirstFreeTileWhateverItsOrdinal();
    void newChannelTakesAFreeTileOfThePageOnView();
    void firstChannelTakesTheEmptyMirrorTileToo();
    void shownChannelKeepsItsTile();

    void closedChannelStopsAndLeavesItsTileEmpty();
    void closedChannelIsNoMoreSaved();
    void closedChannelLeavesMirrorAndTile();
    void closedChannelOffThePageStopsToo();
    void lastChannelThatClosesLeavesNoPage();
    void pageIsNotLoweredAsChannelsClose();
    void endOfAStreamIsLogged();
    void unboundChannelRunsOn();
};

void TestViewControlLive::openedChannelGetsATileAndStarts()
{
    WallTest t;
    PageLabel label(t);
    Device* device = t.addDevice(2);
    Channel* channel = device->channel(1);
    t.viewControl.connectChannel(channel, false, true);
    QVERIFY(channel->mode(true).open);
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
    QVERIFY(t.settle());
    QCOMPARE(onTiles(t), QStringLiteral("0.1 - - -"));
    QCOMPARE(t.takeSent(), QList<int>({13083, 802, 4353, 255, 511}));
    QCOMPARE(lastSent(t, 511).avIndex(), int(channel->mode(true).avIndex));
    QVERIFY(channel->mode(true).playing);
    QVERIFY(!channel->mode(false).open);
    QCOMPARE(label.take(), QStringList({"0 of 1"}));
}

void TestViewControlLive::openedChannelIsOnItsTileBeforeItWaits()
{
    WallTest t;
    QString shown;
    connect(t.io.get(), &IoConnect::waitingStreamMsg, this, [&] { shown = onTiles(t); });
    QVERIFY(t.open(t.addDevice(1), 1));
    QCOMPARE(shown, QStringLiteral("0.0 - - -"));
}

void TestViewControlLive::openedChannelIsSavedBeforeTheLabelIsTold()
{
    WallTest t;
    Device* device = t.addDevice(3);
    QString saved;
    connect(&t.viewControl, &ViewControl::createPageMsg, this,
        [&] { saved = Location::instance()->getDeviceChannel(); });
    t.viewControl.connectChannel(device->channel(2), false, true);
    QVERIFY(t.settle());
    QCOMPARE(
        saved, QStringLiteral("[ { \"channel\": [ 2 ], \"dev\": \"%1\" } ]").arg(device->uid()));
}

void TestViewControlLive::openedChannelOfAnUnconnectedDeviceConnectsItFirst()
{
    WallTest t;
    Device* device = t.addDevice(2, false);
    t.viewControl.connectChannel(device->channel(1), false, true);
    QVERIFY(device->channel(1)->mode(true).open);
    QTRY_VERIFY(device->channel(1)->mode(true).playing);
    QCOMPARE(onTiles(t), QStringLiteral("0.1 - - -"));
    QVERIFY(device->sid >= 0);
    QVERIFY(device->channel(1)->mode(true).avIndex >= 0);
    QVERIFY(device->channel(0)->mode(true).avIndex < 0);
}

void TestViewControlLive::channelsOfOneDeviceStartTogether()
{
    WallTest t;
    PageLabel label(t);
    QVERIFY(t.open(t.addDevice(3), 3));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 -"));
    QCOMPARE(playingOnes(true), QStringLiteral("0.0 0.1 0.2"));
    QCOMPARE(label.takeLast(), QStringLiteral("0 of 1"));
}

void TestViewControlLive::retryDoesNotOpenAChannel()
{
    WallTest t;
    PageLabel label(t);
    Device* device = t.addDevice(1);
    QSignalSpy connected(t.io.get(), &IoConnect::connectChannelSuccessMsg);
    t.viewControl.connectChannel(device->channel(0), true, true);
    QVERIFY(t.settle());
    QCOMPARE(connected.count(), 1);
    QCOMPARE(openOnes(true), QString());
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
    QVERIFY(takeCommands(t).isEmpty());
    QVERIFY(label.take().isEmpty());
}

void TestViewControlLive::retryOfAnOpenChannelStartsIt()
{
    WallTest t;
    Device* device = t.addDevice(1);
    markOpen(device, 1);
    t.viewControl.connectChannel(device->channel(0), true, true);
    QVERIFY(t.settle());
    QCOMPARE(takeCommands(t), QList<int>({255, 511}));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - - -"));
}

void TestViewControlLive::openingForTheOtherModeOpensNothing_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::newRow("playback, asked for in live view") << true;
    QTest::newRow("live view, asked for in playback") << false;
}

void TestViewControlLive::openingForTheOtherModeOpensNothing()
{
    QFETCH(bool, isLive);
    WallTest t;
    t.viewControl.changeMod(isLive);
    Device* device = t.addDevice(1);
    t.viewControl.connectChannel(device->channel(0), false, !isLive);
    QVERIFY(t.settle());
    QCOMPARE(openOnes(true) + openOnes(false), QString());
    QCOMPARE(t.takeSent(), QList<int>({13083, 802, 4353})); // connected it is all the same
    t.viewControl.connectChannel(device->channel(0), false, isLive);
    QCOMPARE(openOnes(isLive), QStringLiteral("0.0"));
}

void TestViewControlLive::playingChannelIsNotStartedAgain()
{
    WallTest t;
    Device* device = t.addDevice(1);
    QVERIFY(t.open(device, 1));
    t.takeSent();
    PageLabel label(t);
    QVERIFY(t.open(device, 1));
    QVERIFY(takeCommands(t).isEmpty());
    QVERIFY(label.take().isEmpty());
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - - -"));
}

void TestViewControlLive::channelThatIsClosedMeanwhileDoesNotStart()
{
    WallTest t;
    Device* device = t.addDevice(1);
    t.viewControl.connectChannel(device->channel(0), false, true);
    t.viewControl.closeChannel(device->channel(0));
    QVERIFY(t.settle());
    QVERIFY(!takeCommands(t).contains(255));
    QCOMPARE(playingOnes(true), QString());
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
}

void TestViewControlLive::channelIsNotStartedInPlayback()
{
    WallTest t;
    Device* device = t.addDevice(1);
    t.viewControl.connectChannel(device->channel(0), false, true);
    t.viewControl.changeMod(false);
    QVERIFY(t.settle());
    QVERIFY(!takeCommands(t).contains(255));
    QVERIFY(device->channel(0)->mode(true).open); // left behind, for the way back
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
}

void TestViewControlLive::nullChannelIsIgnored()
{
    WallTest t;
    PageLabel label(t);
    t.viewControl.connectChannel(nullptr, false, true);
    t.viewControl.connectChannel(nullptr, true, false);
    t.viewControl.openReplayChannel(nullptr);
    t.viewControl.closeChannel(nullptr);
    t.viewControl.showChannel(nullptr);
    t.viewControl.unbind(nullptr);
    t.viewControl.changeShowChannel(nullptr);
    t.viewControl.seekChannel(nullptr, QTime(1, 0));
    t.viewControl.synchronizeChannel(nullptr);
    t.viewControl.changeMod(false);
    t.viewControl.closeChannel(nullptr);
    QVERIFY(t.settle());
    QVERIFY(t.takeSent().isEmpty());
    QCOMPARE(label.takeLast(), QStringLiteral("0 of 0")); // by the change of mode
}

void TestViewControlLive::fifthChannelOfFourTilesRunsWithoutATile()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(5);
    QVERIFY(t.open(device, 4));
    QCOMPARE(t.viewControl.getPageCount(), 1);
    PageLabel label(t);
    t.viewControl.connectChannel(device->channel(4), false, true);
    QVERIFY(t.settle());
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3"));
    QVERIFY(device->channel(4)->tile == nullptr);
    QVERIFY(device->channel(4)->mode(true).playing);
    QCOMPARE(t.viewControl.getPageCount(), 2);
    QCOMPARE(label.take(), QStringList({"0 of 2"}));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlLive::newChannelTakesTheFirstFreeTileWhateverItsOrdinal()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(6);
    QVERIFY(t.open(device, 5));
    t.viewControl.closeChannel(device->channel(1));
    QVERIFY(t.settle());
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - 0.2 0.3"));
    t.viewControl.connectChannel(device->channel(5), false, true);
    QVERIFY(t.settle());
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.5 0.2 0.3"));
    QCOMPARE(strayWidgets(t), QString());

    t.viewControl.setWindowMod(WINDOW_MOD_4, true); // which puts everyone where he belongs
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.2 0.3 0.4"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlLive::newChannelTakesAFreeTileOfThePageOnView()
{
    WallTest t;
    Device* first = t.addDevice(1);
    Device* second = t.addDevice(5);
    QVERIFY(t.open(second, 5));
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(onTiles(t), QStringLiteral("1.4 - - -"));
    QVERIFY(t.open(first, 1)); // of the first page
    QCOMPARE(onTiles(t), QStringLiteral("1.4 0.0 - -"));
}

void TestViewControlLive::firstChannelTakesTheEmptyMirrorTileToo()
{
    WallTest t;
    t.makeTiles();
    t.viewControl.setWindowMod(WINDOW_MOD_6_MIRROR, true);
    Device* device = t.addDevice(2);
    QVERIFY(t.open(device, 1));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.0 - - - -"));
    QCOMPARE(device->channel(0)->tile, t.tile(1));
    QVERIFY(t.open(device, 2));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.0 0.1 - - -"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlLive::shownChannelKeepsItsTile()
{
    WallTest t;
    Device* device = t.addDevice(3);
    markOpen(device, 3);
    t.viewControl.showChannel(device->channel(2));
    t.viewControl.showChannel(device->channel(0));
    t.viewControl.showChannel(device->channel(2));
    QCOMPARE(onTiles(t), QStringLiteral("0.2 0.0 - -"));
}

void TestViewControlLive::closedChannelStopsAndLeavesItsTileEmpty()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(3);
    QVERIFY(t.open(device, 3));
    t.takeSent();
    PageLabel label(t);
    t.viewControl.closeChannel(device->channel(1));
    QCOMPARE(openOnes(true), QStringLiteral("0.0 0.2"));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - 0.2 -"));
    QVERIFY(label.take().isEmpty()); // not before the device says so
    QVERIFY(t.settle());
    QCOMPARE(t.takeSent().first(), 767);
    QCOMPARE(lastSent(t, 767).avIndex(), int(device->channel(1)->mode(true).avIndex));
    QCOMPARE(playingOnes(true), QStringLiteral("0.0 0.2"));
    QCOMPARE(label.take(), QStringList({"0 of 1"}));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - 0.2 -"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlLive::closedChannelIsNoMoreSaved()
{
    WallTest t;
    Device* device = t.addDevice(2);
    QVERIFY(t.open(device, 2));
    t.viewControl.closeChannel(device->channel(0));
    QCOMPARE(Location::instance()->getDeviceChannel(),
        QStringLiteral("[ { \"channel\": [ 1 ], \"dev\": \"%1\" } ]").arg(device->uid()));
}

void TestViewControlLive::closedChannelLeavesMirrorAndTile()
{
    WallTest t;
    t.makeTiles();
    t.viewControl.setWindowMod(WINDOW_MOD_8_MIRROR, true);
    Device* device = t.addDevice(2);
    QVERIFY(t.open(device, 2));
    t.viewControl.closeChannel(device->channel(0));
    QCOMPARE(onTiles(t), QStringLiteral("- - 0.1 - - - - -"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlLive::closedChannelOffThePageStopsToo()
{
    WallTest t;
    Device* device = t.addDevice(5);
    QVERIFY(t.open(device, 5));
    t.takeSent();
    t.viewControl.closeChannel(device->channel(4));
    QVERIFY(t.settle());
    QCOMPARE(t.takeSent().first(), 767);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3"));
    QCOMPARE(t.viewControl.getPageCount(), 1);
}

void TestViewControlLive::lastChannelThatClosesLeavesNoPage()
{
    WallTest t;
    Device* device = t.addDevice(5);
    QVERIFY(t.open(device, 5));
    t.viewControl.changePage(ViewControl::PageUp);
    for (int i = 0; i < 4; ++i)
        t.viewControl.closeChannel(device->channel(i));
    QVERIFY(t.settle());
    QCOMPARE(t.viewControl.getPage(), 1);
    PageLabel label(t);
    t.viewControl.closeChannel(device->channel(4));
    QVERIFY(t.settle());
    QCOMPARE(label.take(), QStringList({"-1 of 0"}));
    QCOMPARE(t.viewControl.getPage(), 0);
    QCOMPARE(t.viewControl.getPageCount(), 0);
}

void TestViewControlLive::pageIsNotLoweredAsChannelsClose()
{
    WallTest t;
    Device* device = t.addDevice(6);
    QVERIFY(t.open(device, 6));
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(onTiles(t), QStringLiteral("0.4 0.5 - -"));
    PageLabel label(t);
    t.viewControl.closeChannel(device->channel(4));
    t.viewControl.closeChannel(device->channel(5));
    QVERIFY(t.settle());
    QCOMPARE(label.take(), QStringList({"1 of 1", "1 of 1"}));
    QCOMPARE(t.viewControl.getPage(), 1);
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
}

void TestViewControlLive::endOfAStreamIsLogged()
{
    WallTest t;
    Device* device = t.addDevice(3);
    QTest::ignoreMessage(QtDebugMsg, "cleanScreen:2");
    emit t.io->videoRequestStopSuccessMsg(device->channel(2));
    QTest::ignoreMessage(QtDebugMsg, "cleanScreen:1");
    emit t.io->stopReplaySuccessMsg(device->channel(1));
}

void TestViewControlLive::unboundChannelRunsOn()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(2);
    QVERIFY(t.open(device, 2));
    t.takeSent();
    t.viewControl.unbind(device->channel(0));
    QCOMPARE(onTiles(t), QStringLiteral("- 0.1 - -"));
    QCOMPARE(strayWidgets(t), QString());
    t.viewControl.unbind(device->channel(0)); // which has none any more
    QVERIFY(t.settle());
    QVERIFY(t.takeSent().isEmpty());
    QCOMPARE(openOnes(true), QStringLiteral("0.0 0.1"));
    QCOMPARE(playingOnes(true), QStringLiteral("0.0 0.1"));
}

ORVA_TEST(TestViewControlLive)
#include "tst_viewcontrollive.moc"

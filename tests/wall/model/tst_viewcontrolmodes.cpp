// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/location.h"
#include "testmain.h"
#include "wall/waitingcircle.h"
#include "wallwatch.h"

#include <QSignalSpy>
#include <QTest>

// The switch between live view and playback.
class TestViewControlModes final : public QObject
{
    Q_OBJECT

private slots:
    void modeOnViewIsNotEnteredAgain();
    void listenersFindTheNewModeOnTheWall();
    void modesKeepTheirPagesLayoutsAndChannels();
    void layoutOfTheNewModeIsStored();

    void openLiveStreamsStopAndStartAgain();
    void channelsThatAreNotOpenAreLeftAlone();
    void devicesWithoutASessionAreLeftAlone();
    void openReplaysPauseAndResume();
    void replayPausedByTheUserStaysPaused();
    void replayPausedByTheUserStaysPausedAgainAndAgain();
    void recordingEndsWithItsMode();

    void modeWithoutChannelsHasNoPage();
    void shownChannelsWaitInTheNewMode();
    void channelOfBothModesIsUnboundFirst();
    void oneTileOfTheNewModeHoldsItsOwnChannel();
    void tilesFollowTheNewMode();
};

namespace {

// The replay of a channel runs.
void play(WallTest& t, Channel* channel)
{
    channel->mode(false).open = true;
    channel->mode(false).avIndex =
        t.link.openChannel(channel->device()->sid, 100 + channel->number());
    channel->mode(false).playing = true;
}

// The commands of the replay messages that were sent: 0 pauses, 16 starts.
QList<int> replayCommands(const WallTest& t)
{
    QList<int> commands;
    for (const LinkCall& call : t.link.calls(LinkFn::avSendIOCtrl, ofType(794)))
        commands.append(call.payload().at(4));
    return commands;
}

} // namespace

void TestViewControlModes::modeOnViewIsNotEnteredAgain()
{
    WallTest t;
    QVERIFY(t.viewControl.getIsLive());
    QSignalSpy changed(&t.viewControl, &ViewControl::changeModMsg);
    PageLabel label(t);
    markOpen(t.addDevice(1), 1);
    t.viewControl.changeMod(true);
    t.viewControl.changeMod(false);
    QCOMPARE(changed.count(), 1);
    label.take();
    t.viewControl.changeMod(false);
    QVERIFY(!t.viewControl.getIsLive());
    QCOMPARE(changed.count(), 1);
    QVERIFY(label.take().isEmpty());
    QVERIFY(t.settle());
    QCOMPARE(t.takeSent().count(767), 1);
}

void TestViewControlModes::listenersFindTheNewModeOnTheWall()
{
    WallTest t;
    Device* device = t.addDevice(2, false);
    markOpen(device, 1, true);
    device->channel(1)->mode(false).open = true;
    QStringList found;
    connect(&t.viewControl, &ViewControl::changeModMsg, this, [&](bool isLive) {
        found.append(QStringLiteral("%1 %2 %3")
                         .arg(isLive ? "live" : "replay",
                             t.viewControl.getIsLive() ? "live" : "replay", onTiles(t)));
    });
    t.viewControl.changeMod(false);
    t.viewControl.changeMod(true);
    QCOMPARE(found, QStringList({"replay replay 0.1 - - -", "live live 0.0 - - -"}));
}

void TestViewControlModes::modesKeepTheirPagesLayoutsAndChannels()
{
    WallTest t;
    Device* device = t.addDevice(12, false);
    markOpen(device, 12, true);
    device->channel(3)->mode(false).open = true;
    device->channel(5)->mode(false).open = true;
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    t.viewControl.changePage(ViewControl::PageUp);
    t.viewControl.changeMod(false);
    QCOMPARE(t.viewControl.getPage(), 0);
    t.viewControl.setWindowMod(WINDOW_MOD_6, false);
    QCOMPARE(onTiles(t), QStringLiteral("0.3 0.5 - - - -"));
    t.viewControl.setPage(3);
    t.viewControl.changeMod(true);
    QCOMPARE(t.viewControl.getPage(), 1);
    QCOMPARE(t.viewControl.getWindowMod(true), WINDOW_MOD_4);
    QCOMPARE(onTiles(t), QStringLiteral("0.4 0.5 0.6 0.7"));
    t.viewControl.changeMod(false);
    QCOMPARE(t.viewControl.getPage(), 3);
    QCOMPARE(t.viewControl.getWindowMod(false), WINDOW_MOD_6);
    QCOMPARE(openOnes(false), QStringLiteral("0.3 0.5"));
}

void TestViewControlModes::layoutOfTheNewModeIsStored()
{
    WallTest t;
    t.viewControl.setWindowMod(WINDOW_MOD_6, false);
    Location::instance()->setReplayWindowNum(7); // by another hand
    PageLabel label(t);
    t.viewControl.changeMod(false);
    QCOMPARE(Location::instance()->getReplayWindowNum(), 3);
    QCOMPARE(Location::instance()->getWindowNum(), 1);
    QCOMPARE(t.viewControl.getTileCount(), 6);
    QCOMPARE(label.take(), QStringList({"0 of 0"}));
}

void TestViewControlModes::openLiveStreamsStopAndStartAgain()
{
    WallTest t;
    QVERIFY(t.open(t.addDevice(5), 5));
    t.takeSent();
    t.viewControl.changeMod(false);
    QVERIFY(t.settle());
    QCOMPARE(t.takeSent(), QList<int>({767, 767, 767, 767, 767}));
    QCOMPARE(openOnes(true), QStringLiteral("0.0 0.1 0.2 0.3 0.4"));
    QCOMPARE(playingOnes(true), QString());
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
    t.viewControl.changeMod(true);
    QVERIFY(t.settle());
    QCOMPARE(t.takeSent(), QList<int>({255, 511, 255, 511, 255, 511, 255, 511, 255, 511}));
    QCOMPARE(playingOnes(true), QStringLiteral("0.0 0.1 0.2 0.3 0.4"));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3"));
}

void TestViewControlModes::channelsThatAreNotOpenAreLeftAlone()
{
    WallTest t;
    Device* device = t.addDevice(2);
    device->channel(1)->mode(true).playing = true; // and closed
    t.viewControl.changeMod(false);
    t.viewControl.changeMod(true);
    QVERIFY(t.settle());
    QVERIFY(t.takeSent().isEmpty());
}

void TestViewControlModes::devicesWithoutASessionAreLeftAlone()
{
    WallTest t;
    Device* device = t.addDevice(1, false);
    markOpen(device, 1, true);
    markOpen(device, 1, false);
    t.viewControl.changeMod(false);
    t.viewControl.changeMod(true);
    QVERIFY(t.settle());
    QVERIFY(t.takeSent().isEmpty());
    QCOMPARE(openOnes(true), QStringLiteral("0.0"));
    QCOMPARE(openOnes(false), QStringLiteral("0.0"));
}

void TestViewControlModes::openReplaysPauseAndResume()
{
    WallTest t;
    t.viewControl.changeMod(false);
    Device* device = t.addDevice(2);
    Channel* channel = device->channel(1);
    play(t, channel);
    const int replayIndex = channel->mode(false).avIndex;
    t.viewControl.changeMod(true);
    QVERIFY(t.settle());
    QCOMPARE(t.takeSent(), QList<int>({794}));
    QCOMPARE(replayCommands(t), QList<int>({0}));
    QVERIFY(!channel->replayPaused);
    QVERIFY(!channel->mode(false).playing);
    QVERIFY(channel->mode(false).open);
    QCOMPARE(int(channel->mode(false).avIndex), replayIndex);

    t.viewControl.changeMod(false);
    QVERIFY(channel->mode(false).waiting);
    QVERIFY(t.settle());
    QCOMPARE(replayCommands(t).size(), 2);
    QVERIFY(!channel->replayPaused);
    QVERIFY(channel->mode(false).playing);
    QCOMPARE(onTiles(t), QStringLiteral("0.1 - - -"));
}

void TestViewControlModes::replayPausedByTheUserStaysPaused()
{
    WallTest t;
    t.viewControl.changeMod(false);
    Device* device = t.addDevice(2);
    play(t, device->channel(0));
    play(t, device->channel(1));
    t.io->pauseReplay(device->channel(0), false);
    QVERIFY(t.settle());
    t.takeSent();
    t.viewControl.changeMod(true);
    QVERIFY(t.settle());
    t.viewControl.changeMod(false);
    QVERIFY(t.settle());
    QCOMPARE(t.takeSent(), QList<int>({794, 794})); // of channel 1, which was not paused
    QCOMPARE(lastSent(t, 794).avIndex(), int(device->channel(1)->mode(true).avIndex));
    QVERIFY(device->channel(0)->replayPaused);
    QCOMPARE(playingOnes(false), QStringLiteral("0.1"));
    QCOMPARE(openOnes(false), QStringLiteral("0.0 0.1"));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 - -"));
}

void TestViewControlModes::replayPausedByTheUserStaysPausedAgainAndAgain()
{
    WallTest t;
    t.viewControl.changeMod(false);
    Device* device = t.addDevice(1);
    Channel* channel = device->channel(0);
    play(t, channel);
    channel->mode(true).open = true;
    t.io->pauseReplay(channel, false);
    for (int i = 0; i < 3; ++i) {
        t.viewControl.changeMod(true);
        QVERIFY(t.settle());
        QVERIFY(channel->mode(true).playing); // its live stream comes and goes as any other
        t.viewControl.changeMod(false);
        QVERIFY(t.settle());
        QVERIFY(!channel->mode(false).playing);
        QVERIFY(channel->replayPaused);
    }
    QCOMPARE(replayCommands(t), QList<int>({0})); // the user's
}

void TestViewControlModes::recordingEndsWithItsMode()
{
    WallTest t;
    Device* device = t.addDevice(1);
    QVERIFY(t.open(device, 1));
    t.viewControl.setRecord(device->channel(0), true);
    QSignalSpy record(&t.viewControl, &ViewControl::recordMsg);
    t.viewControl.changeMod(false);
    QVERIFY(!device->channel(0)->mode(true).record);
    QVERIFY(device->channel(0)->mode(true).recordTimer == nullptr);
    QCOMPARE(record.count(), 1);
    QCOMPARE(record.first().at(1).toBool(), false);
}

void TestViewControlModes::modeWithoutChannelsHasNoPage()
{
    WallTest t;
    QVERIFY(t.open(t.addDevice(1), 1));
    PageLabel label(t);
    t.viewControl.changeMod(false);
    QVERIFY(t.settle());
    QCOMPARE(label.take(), QStringList({"0 of 0", "-1 of 0"})); // and once more, by the stop
}

void TestViewControlModes::shownChannelsWaitInTheNewMode()
{
    WallTest t;
    Device* device = t.addDevice(6, false);
    markOpen(device, 6, false);
    markOpen(device, 1, true);
    t.viewControl.changeMod(false);
    for (int i = 0; i < 6; ++i)
        QCOMPARE(bool(device->channel(i)->mode(false).waiting), i < 4); // which have a tile
    QVERIFY(!device->channel(0)->mode(true).waiting);
    t.viewControl.changeMod(true);
    QVERIFY(device->channel(0)->mode(true).waiting);
    QVERIFY(!device->channel(1)->mode(true).waiting);
}

void TestViewControlModes::channelOfBothModesIsUnboundFirst()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(1, false);
    markOpen(device, 1, true);
    markOpen(device, 1, false);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    delete t.tile(0)->findChild<WaitingCircle*>(); // as a picture does
    t.viewControl.changeMod(false);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 - - -"));
    QVERIFY(t.tile(0)->findChild<WaitingCircle*>() != nullptr);
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlModes::oneTileOfTheNewModeHoldsItsOwnChannel()
{
    WallTest t;
    Device* device = t.addDevice(4, false);
    markOpen(device, 4, true);
    device->channel(2)->mode(false).open = true;
    device->channel(3)->mode(false).open = true;
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    t.viewControl.setWindowMod(WINDOW_MOD_1, false);
    t.viewControl.changeMod(false);
    QCOMPARE(onTiles(t), QStringLiteral("0.2"));
    QCOMPARE(Dev::instance()->selectedChannel(), device->channel(2));

    // The selected channel is not open in the mode: the page holds another one.
    t.viewControl.changeMod(true);
    Dev::instance()->selectChannel(device->channel(1));
    t.viewControl.changeMod(false);
    QCOMPARE(onTiles(t), QStringLiteral("0.2"));
    Dev::instance()->selectChannel(device->channel(3));
    t.viewControl.changeMod(true);
    t.viewControl.changeMod(false);
    QCOMPARE(onTiles(t), QStringLiteral("0.3"));
    QCOMPARE(t.viewControl.getPage(), 1);
}

void TestViewControlModes::tilesFollowTheNewMode()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(3, false);
    markOpen(device, 3, true);
    device->channel(1)->mode(false).open = true;
    t.viewControl.setWindowMod(WINDOW_MOD_9, true);
    t.viewControl.setWindowMod(WINDOW_MOD_6, false);
    t.viewControl.changeMod(false);
    QCOMPARE(onTiles(t), QStringLiteral("0.1 - - - - -"));
    QCOMPARE(strayWidgets(t), QString());
    t.viewControl.changeMod(true);
    QCOMPARE(placesOf(t.shown(4)), QStringLiteral("0.0 0.1 0.2 -"));
    QCOMPARE(strayWidgets(t), QString());
}

ORVA_TEST(TestViewControlModes)
#include "tst_viewcontrolmodes.moc"

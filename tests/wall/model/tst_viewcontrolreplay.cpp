// SPDX-License-Identifier: GPL-3.0-or-later
#include "replaywall.h"
#include "store/location.h"
#include "testmain.h"

#include <QSignalSpy>
#include <QTest>

// Opening and closing channels in playback, and where a playback begins.
class TestViewControlReplay final : public QObject
{
    Q_OBJECT

private slots:
    void openedChannelPlaysFromItsBlock();
    void wholeRoadFromTheListToTheSeek();
    void openedChannelIsOpenAtOnceAndInPlaybackOnly();
    void startedReplayGetsATile();
    void startedReplayIsLogged();
    void replayThatStartsTooLateIsNotShown_data();
    void replayThatStartsTooLateIsNotShown();

    void endOfTheListPlaysOnlyWhatIsWanted_data();
    void endOfTheListPlaysOnlyWhatIsWanted();
    void replayOfAnUnconnectedChannelIsNotStarted_data();
    void replayOfAnUnconnectedChannelIsNotStarted();
    void replayIsPassedOnAsItIsAskedFor();

    void playbackBeginsAtTheBlockOfTheTimeline_data();
    void playbackBeginsAtTheBlockOfTheTimeline();
    void nextBlockIsThatOfTheTimeline();
    void poolKeepsWhatDevicesHaveNamed();
    void endOfARecordingGoesOnWithTheNextBlockOfThePool();

    void closedReplayStopsAndLeavesItsTileEmpty();
    void lastReplayThatClosesLeavesNoPage();
    void closedReplayIsNotSaved();
};

namespace {

constexpr int nine = 9 * 3600;
constexpr int noon = 12 * 3600;

QDateTime at(int second)
{
    return QDateTime(ReplayWall::day(), QTime(0, 0)).addSecs(second);
}

} // namespace

void TestViewControlReplay::openedChannelPlaysFromItsBlock()
{
    ReplayWall t;
    Device* device = t.addDevice(2);
    Channel* channel = device->channel(1);
    t.record(channel, {t.block(nine), t.block(noon)});
    t.wall.setTime(QTime(9, 1, 30));
    t.wall.openReplayChannel(channel);
    QVERIFY(t.settle());
    QCOMPARE(takeCommands(t.t), QList<int>({794}));
    QCOMPARE(lastSent(t.t, 794).payload(),
        wire("01000000 10000000 00000000 e8070309 00 090000 01 00 05 00"));
    QCOMPARE(channel->replayTime, at(nine));
    QCOMPARE(int(channel->replayOffset), 90);
    QVERIFY(channel->mode(false).waiting);
    QVERIFY(!channel->mode(false).playing);
    QCOMPARE(onTiles(t.t), QStringLiteral("- - - -")); // before it starts
}

void TestViewControlReplay::wholeRoadFromTheListToTheSeek()
{
    ReplayWall t;
    Device* device = t.t.addDevice(1);
    Channel* channel = device->channel(0);
    channel->setVersion(QByteArray("3.5.1").leftJustified(64, '\0').constData());
    t.t.link.always(LinkFn::avSendIOCtrl, ofType(792))
        .replies(793, wire("00000000 01000000 00 01 01 00 e8070309 00 090000 01 000000 100e0000"));
    t.t.link.always(LinkFn::avSendIOCtrl, ofType(794)).replies(795, wire("10000000 09"));
    t.wall.setTime(QTime(9, 1, 30));
    PageLabel label(t.t);
    t.wall.openReplayChannel(channel);
    QTRY_VERIFY(t.t.link.count(LinkFn::avSendIOCtrl, ofType(828)) == 1);
    QVERIFY(t.settle());
    QCOMPARE(takeCommands(t.t), QList<int>({792, 794, 828}));
    QCOMPARE(lastSent(t.t, 828).payload(), wire("00000000 e8070309 00 090000 5a000000 00000000"));
    QVERIFY(channel->mode(false).playing);
    QCOMPARE(onTiles(t.t), QStringLiteral("0.0 - - -"));
    QCOMPARE(label.take(), QStringList({"0 of 1"}));
    QCOMPARE(t.wall.getVideoTimeCount(), 1);
    QCOMPARE(t.wall.getVideoTime(0), t.block(nine));
}

void TestViewControlReplay::openedChannelIsOpenAtOnceAndInPlaybackOnly()
{
    ReplayWall t;
    Device* device = t.addDevice(1);
    t.wall.openReplayChannel(device->channel(0));
    QCOMPARE(openOnes(false), QStringLiteral("0.0"));
    QCOMPARE(openOnes(true), QString());
    QVERIFY(t.settle());
    QCOMPARE(Location::instance()->getDeviceChannel(), QStringLiteral("[]"));
}

void TestViewControlReplay::startedReplayGetsATile()
{
    ReplayWall t;
    t.t.makeTiles();
    Device* device = t.addDevice(5);
    t.record(device, {t.block(nine)});
    PageLabel label(t.t);
    for (int i = 0; i < 5; ++i)
        QVERIFY(t.play(device->channel(i)));
    QCOMPARE(onTiles(t.t), QStringLiteral("0.0 0.1 0.2 0.3"));
    QCOMPARE(strayWidgets(t.t), QString());
    QVERIFY(device->channel(4)->tile == nullptr); // but it plays
    QCOMPARE(playingOnes(false), QStringLiteral("0.0 0.1 0.2 0.3 0.4"));
    QCOMPARE(label.take(), QStringList({"0 of 1", "0 of 1", "0 of 1", "0 of 1", "0 of 2"}));
    t.wall.changePage(ViewControl::PageUp);
    QCOMPARE(onTiles(t.t), QStringLiteral("0.4 - - -"));
}

void TestViewControlReplay::startedReplayIsLogged()
{
    ReplayWall t;
    Device* device = t.addDevice(1);
    QTest::ignoreMessage(QtDebugMsg, "startReplaySuccess:false");
    emit t.t.io->startReplaySuccessMsg(device->channel(0));
    markOpen(device, 1, false);
    QTest::ignoreMessage(QtDebugMsg, "startReplaySuccess:true");
    emit t.t.io->startReplaySuccessMsg(device->channel(0));
    t.wall.changeMod(true);
    QTest::ignoreMessage(QtDebugMsg, "startReplaySuccess:true");
    emit t.t.io->startReplaySuccessMsg(device->channel(0));
}

void TestViewControlReplay::replayThatStartsTooLateIsNotShown_data()
{
    QTest::addColumn<bool>("isOpen");
    QTest::addColumn<bool>("isLive");
    QTest::newRow("closed meanwhile") << false << false;
    QTest::newRow("the wall is in live view") << true << true;
}

void TestViewControlReplay::replayThatStartsTooLateIsNotShown()
{
    QFETCH(bool, isOpen);
    QFETCH(bool, isLive);
    ReplayWall t;
    Device* device = t.addDevice(1);
    device->channel(0)->mode(false).open = isOpen;
    t.wall.changeMod(isLive);
    PageLabel label(t.t);
    emit t.t.io->startReplaySuccessMsg(device->channel(0));
    QCOMPARE(onTiles(t.t), QStringLiteral("- - - -"));
    QVERIFY(label.take().isEmpty());
}

void TestViewControlReplay::endOfTheListPlaysOnlyWhatIsWanted_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::addColumn<bool>("isOpen");
    QTest::addColumn<bool>("isPlaying");
    QTest::addColumn<bool>("plays");
    QTest::newRow("wanted") << false << true << false << true;
    QTest::newRow("in live view") << true << true << false << false;
    QTest::newRow("closed") << false << false << false << false;
    QTest::newRow("playing already") << false << true << true << false;
}

void TestViewControlReplay::endOfTheListPlaysOnlyWhatIsWanted()
{
    QFETCH(bool, isLive);
    QFETCH(bool, isOpen);
    QFETCH(bool, isPlaying);
    ReplayWall t;
    Device* device = t.addDevice(1);
    t.wall.changeMod(isLive);
    device->channel(0)->mode(false).open = isOpen;
    device->channel(0)->mode(false).playing = isPlaying;
    emit t.t.io->finishVideoTimeMsg(device->channel(0));
    QVERIFY(t.settle());
    QTEST(t.t.takeSent().contains(794), "plays");
    QTEST(device->channel(0)->replayTime.isValid(), "plays");
}

void TestViewControlReplay::replayOfAnUnconnectedChannelIsNotStarted_data()
{
    QTest::addColumn<bool>("hasSession");
    QTest::addColumn<bool>("hasAvChannel");
    QTest::addColumn<bool>("isLive");
    QTest::newRow("no session") << false << true << false;
    QTest::newRow("no AV channel") << true << false << false;
    QTest::newRow("in live view") << true << true << true;
}

void TestViewControlReplay::replayOfAnUnconnectedChannelIsNotStarted()
{
    QFETCH(bool, hasSession);
    QFETCH(bool, hasAvChannel);
    QFETCH(bool, isLive);
    ReplayWall t;
    Device* device = t.addDevice(1);
    Channel* channel = device->channel(0);
    const int session = device->sid;
    if (!hasSession)
        device->sid = -1;
    if (!hasAvChannel)
        channel->mode(true).avIndex = -1;
    t.wall.changeMod(isLive);
    t.wall.playReplay(channel, at(nine), 5, true, PLAY_SPEED_X1);
    QVERIFY(t.settle());
    QVERIFY(t.t.takeSent().isEmpty());
    QCOMPARE(openOnes(false), QString());
    QVERIFY(!channel->replayTime.isValid());
    QVERIFY(!channel->mode(false).waiting);
    device->sid = session; // for the end of it
}

void TestViewControlReplay::replayIsPassedOnAsItIsAskedFor()
{
    ReplayWall t;
    Device* device = t.addDevice(2);
    Channel* channel = device->channel(1);
    t.wall.playReplay(channel, at(noon), 5, false, PLAY_SPEED_X32);
    QVERIFY(channel->mode(false).open);
    QCOMPARE(channel->replayTime, at(noon));
    QCOMPARE(int(channel->replayOffset), 5);
    QVERIFY(t.settle());
    QCOMPARE(lastSent(t.t, 794).payload(),
        wire("01000000 10000000 00000000 e8070309 00 0c0000 01 00 0a 00"));
    QVERIFY(t.start(channel));
    t.wall.playReplay(channel, at(nine), 0, false, PLAY_SPEED_X1);
    QVERIFY(t.settle());
    QCOMPARE(lastSent(t.t, 794).payload(),
        wire("01000000 05000000 00000000 e8070309 00 090000 01 00 05 00"));
    t.wall.playReplay(channel, at(nine), 0, true, PLAY_SPEED_X1);
    QVERIFY(t.settle());
    QCOMPARE(lastSent(t.t, 794).payload(),
        wire("01000000 04000000 00000000 e8070309 00 090000 01 00 05 00"));
}

void TestViewControlReplay::playbackBeginsAtTheBlockOfTheTimeline_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("offset");
    QTest::newRow("in a block") << QTime(9, 0, 10) << nine << 10;
    QTest::newRow("at its start") << QTime(9, 0) << nine << 0;
    QTest::newRow("behind its end") << QTime(11, 59, 59) << nine << 3 * 3600 - 1;
    QTest::newRow("at the next start") << QTime(12, 0) << noon << 0;
    QTest::newRow("behind the last block") << QTime(23, 59, 59) << noon << 12 * 3600 - 1;
    QTest::newRow("before the first block of the day") << QTime(8, 0) << nine - 86400 << 82800;
}

void TestViewControlReplay::playbackBeginsAtTheBlockOfTheTimeline()
{
    QFETCH(QTime, time);
    QFETCH(int, start);
    ReplayWall t;
    t.wall.setTime(time);
    int offset = -1;
    QCOMPARE(t.wall.getPlayStart(&offset), QDateTime(t.day(), time)); // of an empty pool
    QCOMPARE(offset, 0);
    t.wall.appendVideoTime(t.block(noon));
    QCOMPARE(t.wall.getPlayStart(&offset), at(noon)); // the one before, or else the next
    QCOMPARE(offset, qMax(0, QTime(12, 0).secsTo(time)));
    t.wall.appendVideoTime(t.block(nine - 86400)); // of the day before, and another channel
    t.wall.appendVideoTime(t.block(nine));
    QCOMPARE(t.wall.getPlayStart(&offset), at(start));
    QTEST(offset, "offset");
}

void TestViewControlReplay::nextBlockIsThatOfTheTimeline()
{
    ReplayWall t;
    QDateTime next = at(1);
    QVERIFY(!t.wall.getNextBlock(&next));
    QCOMPARE(next, at(1));
    t.wall.appendVideoTime(t.block(noon));
    t.wall.appendVideoTime(t.block(nine));
    t.wall.setTime(QTime(9, 0));
    QVERIFY(t.wall.getNextBlock(&next));
    QCOMPARE(next, at(nine));
    t.wall.setTime(QTime(9, 0, 1));
    QVERIFY(t.wall.getNextBlock(&next));
    QCOMPARE(next, at(noon));
    t.wall.setTime(QTime(12, 0, 1));
    QVERIFY(!t.wall.getNextBlock(&next));
    QCOMPARE(next, at(noon));
}

void TestViewControlReplay::poolKeepsWhatDevicesHaveNamed()
{
    ReplayWall t;
    QCOMPARE(t.wall.getVideoTimeCount(), 0);
    t.wall.appendVideoTime(t.block(noon));
    t.wall.appendVideoTime(t.block(nine, 7));
    QCOMPARE(t.wall.getVideoTimeCount(), 2);
    QCOMPARE(t.wall.getVideoTime(0), t.block(noon));
    QCOMPARE(t.wall.getVideoTime(1), t.block(nine, 7));
    t.wall.setDate(t.day().addDays(1));
    t.wall.changeMod(true);
    QCOMPARE(t.wall.getVideoTimeCount(), 2);
}

void TestViewControlReplay::endOfARecordingGoesOnWithTheNextBlockOfThePool()
{
    ReplayWall t;
    Device* device = t.addDevice(1);
    Channel* channel = device->channel(0);
    t.record(channel, {t.block(nine), t.block(noon)});
    t.wall.setTime(QTime(9, 0, 0));
    QVERIFY(t.play(channel));
    t.wall.setTime(QTime(10, 0, 0)); // as the frames move it
    t.t.link.queueMessage(channel->mode(true).avIndex, 795, wire("07000000"));
    QTRY_COMPARE(t.t.link.count(LinkFn::avSendIOCtrl, ofType(794)), 3); // start, stop, start
    QCOMPARE(lastSent(t.t, 794).payload(),
        wire("00000000 10000000 00000000 e8070309 00 0c0000 00 00 05 00"));
    QVERIFY(t.settle());
    QVERIFY(t.start(channel));
    QCOMPARE(onTiles(t.t), QStringLiteral("0.0 - - -"));
}

void TestViewControlReplay::closedReplayStopsAndLeavesItsTileEmpty()
{
    ReplayWall t;
    t.t.makeTiles();
    Device* device = t.addDevice(2);
    t.record(device, {t.block(nine)});
    QVERIFY(t.play(device->channel(0)));
    QVERIFY(t.play(device->channel(1)));
    device->channel(0)->mode(true).open = true; // in live view it stays
    t.t.takeSent();
    PageLabel label(t.t);
    t.wall.closeChannel(device->channel(0));
    QCOMPARE(openOnes(false), QStringLiteral("0.1"));
    QCOMPARE(onTiles(t.t), QStringLiteral("- 0.1 - -"));
    QTest::ignoreMessage(QtDebugMsg, "cleanScreen:0");
    QVERIFY(t.settle());
    QCOMPARE(t.t.takeSent(), QList<int>({794}));
    QCOMPARE(lastSent(t.t, 794).payload(),
        wire("00000000 01000000 00000000 0000000000000000 00 00 00 00"));
    QCOMPARE(playingOnes(false), QStringLiteral("0.1"));
    QCOMPARE(openOnes(true), QStringLiteral("0.0"));
    QCOMPARE(label.take(), QStringList({"0 of 1"}));
    QCOMPARE(strayWidgets(t.t), QString());
}

void TestViewControlReplay::lastReplayThatClosesLeavesNoPage()
{
    ReplayWall t;
    Device* device = t.addDevice(1);
    t.record(device, {t.block(nine)});
    QVERIFY(t.play(device->channel(0)));
    t.wall.setPage(2);
    PageLabel label(t.t);
    t.wall.closeChannel(device->channel(0));
    QVERIFY(t.settle());
    QCOMPARE(label.take(), QStringList({"-1 of 0"}));
    QCOMPARE(t.wall.getPage(), 0);
}

void TestViewControlReplay::closedReplayIsNotSaved()
{
    ReplayWall t;
    Device* device = t.addDevice(1);
    markOpen(device, 1, true);
    Location::instance()->setDeviceChannel(QStringLiteral("as it was"));
    t.wall.closeChannel(device->channel(0));
    QVERIFY(t.settle());
    QCOMPARE(Location::instance()->getDeviceChannel(), QStringLiteral("as it was"));
}

ORVA_TEST(TestViewControlReplay)
#include "tst_viewcontrolreplay.moc"

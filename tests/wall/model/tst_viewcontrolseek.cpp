// SPDX-License-Identifier: GPL-3.0-or-later
#include "replaywall.h"
#include "testmain.h"

#include <QTest>

// Seeking a replay, and bringing a device's replays to the timeline's time.
class TestViewControlSeek final : public QObject
{
    Q_OBJECT

private slots:
    void seekCountsFromTheStartOfTheReplay_data();
    void seekCountsFromTheStartOfTheReplay();
    void seekToTheStartSendsNothing();
    void seekNeedsAReplayThatRuns_data();
    void seekNeedsAReplayThatRuns();
    void synchronizedChannelGoesToTheTimelinesTime();
    void synchronizedDeviceMovesItsOpenChannels();
    void synchronizedDeviceWithoutReplaysSendsNothing();
};

namespace {

// 9 March 2024, 09:00:00.
QDateTime nine()
{
    return {ReplayWall::day(), QTime(9, 0)};
}

void markReplay(Channel* channel)
{
    channel->mode(false).open = true;
    channel->mode(false).playing = true;
    channel->replayTime = nine();
}

QList<int> soughtIndices(const WallTest& t)
{
    QList<int> indices;
    for (const LinkCall& call : t.link.calls(LinkFn::avSendIOCtrl, ofType(828)))
        indices.append(call.avIndex());
    return indices;
}

} // namespace

void TestViewControlSeek::seekCountsFromTheStartOfTheReplay_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QByteArray>("offset");
    QTest::newRow("forward") << QTime(9, 1, 30) << QByteArray("5a000000");
    QTest::newRow("backward, as far forward") << QTime(8, 58, 30) << QByteArray("5a000000");
    QTest::newRow("one second back") << QTime(8, 59, 59) << QByteArray("01000000");
    QTest::newRow("start of the day") << QTime(0, 0) << QByteArray("907e0000");
    QTest::newRow("end of the day") << QTime(23, 59, 59) << QByteArray("efd20000");
}

void TestViewControlSeek::seekCountsFromTheStartOfTheReplay()
{
    QFETCH(QTime, time);
    QFETCH(QByteArray, offset);
    ReplayWall t;
    Channel* channel = t.addDevice(2)->channel(1);
    markReplay(channel);
    t.wall.setTime(QTime(5, 0)); // the timeline has no part in it
    t.wall.seekChannel(channel, time);
    QVERIFY(t.settle());
    QCOMPARE(t.t.takeSent(), QList<int>({828}));
    QCOMPARE(lastSent(t.t, 828).payload().toHex(),
        QByteArray("01000000e80703090009000000").left(24) + offset + "00000000");
    QCOMPARE(channel->replayTime, nine());
}

void TestViewControlSeek::seekToTheStartSendsNothing()
{
    ReplayWall t;
    Channel* channel = t.addDevice(1)->channel(0);
    markReplay(channel);
    QTest::ignoreMessage(QtDebugMsg, "no changeReplayTime:0");
    t.wall.seekChannel(channel, QTime(9, 0));
    QVERIFY(t.settle());
    QVERIFY(t.t.takeSent().isEmpty());
}

void TestViewControlSeek::seekNeedsAReplayThatRuns_data()
{
    QTest::addColumn<bool>("isOpen");
    QTest::addColumn<bool>("isPlaying");
    QTest::addColumn<int>("count");
    QTest::newRow("runs") << true << true << 1;
    QTest::newRow("paused, or not yet started") << true << false << 0;
    QTest::newRow("closed, but not yet stopped") << false << true << 1;
}

void TestViewControlSeek::seekNeedsAReplayThatRuns()
{
    QFETCH(bool, isOpen);
    QFETCH(bool, isPlaying);
    ReplayWall t;
    Channel* channel = t.addDevice(1)->channel(0);
    markReplay(channel);
    channel->mode(false).open = isOpen;
    channel->mode(false).playing = isPlaying;
    channel->mode(true).playing = true; // which is of another mode
    t.wall.seekChannel(channel, QTime(9, 1));
    QVERIFY(t.settle());
    QTEST(t.t.takeSent().count(828), "count");
}

void TestViewControlSeek::synchronizedChannelGoesToTheTimelinesTime()
{
    ReplayWall t;
    Channel* channel = t.addDevice(1)->channel(0);
    markReplay(channel);
    t.wall.setTime(QTime(8, 58, 30));
    t.wall.setDate(t.day().addDays(5)); // only the time of day counts
    t.wall.synchronizeChannel(channel);
    QVERIFY(t.settle());
    QCOMPARE(lastSent(t.t, 828).payload(), wire("00000000 e8070309 00 090000 5a000000 00000000"));
}

void TestViewControlSeek::synchronizedDeviceMovesItsOpenChannels()
{
    ReplayWall t;
    Device* device = t.addDevice(4);
    Device* other = t.addDevice(1);
    markReplay(other->channel(0));
    for (const int number : {0, 1, 3})
        markReplay(device->channel(number));
    device->channel(1)->mode(false).open = false;
    device->channel(2)->mode(false).open = true; // and does not play
    t.wall.setTime(QTime(9, 0, 7));
    t.wall.synchronizeDevice(device);
    QVERIFY(t.settle());
    QCOMPARE(soughtIndices(t.t),
        QList<int>({int(device->channel(0)->mode(true).avIndex),
            int(device->channel(3)->mode(true).avIndex)}));
    QCOMPARE(lastSent(t.t, 828).payload(), wire("03000000 e8070309 00 090000 07000000 00000000"));
}

void TestViewControlSeek::synchronizedDeviceWithoutReplaysSendsNothing()
{
    ReplayWall t;
    Device* device = t.addDevice(3);
    t.wall.setTime(QTime(9, 0, 7));
    t.wall.synchronizeDevice(device);
    QVERIFY(t.settle());
    QVERIFY(t.t.takeSent().isEmpty());
}

ORVA_TEST(TestViewControlSeek)
#include "tst_viewcontrolseek.moc"

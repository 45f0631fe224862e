// SPDX-License-Identifier: GPL-3.0-or-later
#include "replaycase.h"
#include "testmain.h"

#include <QMutexLocker>
#include <QTest>

// What a device answers in a replay, and the roads that lead through several commands.
class TestReplayRoad final : public QObject
{
    Q_OBJECT

private slots:
    void replayGoesFromTheListToTheSeek();
    void replayWithoutAnOffsetIsNotSought();
    void replayIsNotSoughtWhereTheDeviceCannot();
    void replayOfAListToldAgainStartsWithoutSeeking();
    void replayOpensOnTheChannelThatTheDeviceNames();
    void replayChannelThatDoesNotOpenFailsTheStart();
    void replayChannelOfAnEndedSessionFailsTheStart();

    void endOfTheRecordingGoesOnWithTheNextBlock();
    void endOfAFastReplayGoesOnAtNormalSpeed();
    void endOfTheLastBlockLeavesThePictureStanding();

    void stopIsReportedForItsResultAndForItsAnswer();
    void stopByTheDeviceClosesTheReplay();
    void answerToAPauseSaysNothing();
    void unknownAnswerIsLogged();

    void seekAnswerTellsTheOutcome_data();
    void seekAnswerTellsTheOutcome();
    void refusedSecondReplayFailsTheStart();
    void otherNoticesOfABusyReplaySayNothing();
};

namespace {

const char* const startedOnNine = "10000000 09";
const char* const recordingEnded = "07000000";
const char* const stopped = "01000000";

// One record: 9 March 2024 at 06:30:00 in Tokyo, for an hour.
const char* const oneRecord = "03000000 01000000 00 01 01 00"
                              "e8070308 00 151e00 01 000000 100e0000";
const QString oneBlock = QStringLiteral("receiveVideoTimeMsg 3 [23400,3600,1709933400,1]");

// What is written to the debug log meanwhile.
class DebugLines final
{
public:
    DebugLines()
        : before_(qInstallMessageHandler(note))
    {
        lines_.clear();
    }
    ~DebugLines() { qInstallMessageHandler(before_); }
    Q_DISABLE_COPY_MOVE(DebugLines)

    QStringList filter(const QString& text) const
    {
        const QMutexLocker lock(&mutex_);
        return lines_.filter(text);
    }

private:
    static void note(QtMsgType, const QMessageLogContext&, const QString& line)
    {
        const QMutexLocker lock(&mutex_);
        lines_.append(line);
    }

    static inline QMutex mutex_;
    static inline QStringList lines_; // guarded by mutex_
    const QtMessageHandler before_;
};

// A replay whose channel receives messages, beside a wall that plays each list that has ended.
class RoadCase final : public QObject
{
public:
    RoadCase()
    {
        if (!c.t.startReceiving(3))
            qFatal("the channel does not receive");
        setVersion(c.channel, "3.5.1");
        c.t.record.clear();
        connect(c.io, &IoConnect::finishVideoTimeMsg, this, [this](Channel* channel) {
            channel->replayTime = morning();
            c.io->playReplay(channel, morning(), offset, true, PLAY_SPEED_X1);
        });
        connect(c.io, &IoConnect::startReplaySuccessMsg, this, [this](Channel* channel) {
            startedPlaying = channel->mode(false).playing;
            startedSeeking = IoTest::isArmed(channel);
        });
    }

    [[nodiscard]] bool receive(int type, const char* message)
    {
        return c.t.receive(type, wire(message), 3);
    }
    [[nodiscard]] bool play()
    {
        c.io->getReplayVideoTime(c.channel, QDate(2024, 3, 9));
        return c.settle();
    }
    [[nodiscard]] bool playToTheStart()
    {
        return play() && receive(IOCTRL_LIST_RECORDS_RESP, oneRecord)
            && receive(IOCTRL_PLAY_CONTROL_RESP, startedOnNine);
    }
    // The AV channel that the layer opened last.
    LinkCall opened() const { return c.link().last(LinkFn::avClientStart2); }
    // Without the seek, which goes out beside the signals.
    QStringList linesButTheSeek() const
    {
        QStringList lines = c.lines();
        lines.removeAll(QStringLiteral("send 828"));
        return lines;
    }

    ReplayCase c;
    int offset = 90;
    bool startedPlaying = false; // at startReplaySuccessMsg
    bool startedSeeking = false;
};

} // namespace

void TestReplayRoad::replayGoesFromTheListToTheSeek()
{
    RoadCase t;
    QVERIFY(t.play());
    QVERIFY(t.receive(IOCTRL_LIST_RECORDS_RESP, oneRecord));
    QCOMPARE(t.c.lines(),
        QStringList({"send 792", "requestReplayVideoTimeSuccessMsg 3", oneBlock,
            "finishVideoTimeMsg 3", "send 794"}));
    QCOMPARE(
        t.c.sent().payload(), wire("03000000 10000000 00000000 e8070308 00 160502 03 00 05 00"));
    QVERIFY(!t.c.replay().playing);

    t.c.t.record.clear();
    QTest::ignoreMessage(QtDebugMsg, "changeReplayTime:90");
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, startedOnNine));
    QCOMPARE(t.linesButTheSeek(),
        QStringList({QStringLiteral("avClientStart2 %1").arg(int(t.c.t.device->sid)),
            "startReplaySuccessMsg 3"}));
    QCOMPARE(t.c.t.record.sentTypes(), QList<int>({828}));
    QCOMPARE(t.c.sent().avIndex(), t.c.liveIndex);
    QCOMPARE(t.c.sent().payload(), wire("03000000 e8070308 00 160502 5a000000 00000000"));
    QVERIFY(t.opened().start < t.c.sent().start);
    QVERIFY(t.startedPlaying);
    QVERIFY(t.startedSeeking);
    QVERIFY(t.c.replay().playing);

    t.c.t.record.clear();
    QVERIFY(t.receive(IOCTRL_SET_REPLAY_TIME_RESP, "00"));
    QCOMPARE(t.c.lines(), QStringList({"changeReplayTimeSuccessMsg 3"}));
}

void TestReplayRoad::replayWithoutAnOffsetIsNotSought()
{
    RoadCase t;
    t.offset = 0;
    QTest::ignoreMessage(QtDebugMsg, "no changeReplayTime:0");
    QVERIFY(t.playToTheStart());
    QCOMPARE(t.c.lines().last(), QStringLiteral("startReplaySuccessMsg 3"));
    QCOMPARE(t.c.t.record.sentTypes(), QList<int>({792, 794}));
    QVERIFY(!t.startedSeeking);
}

void TestReplayRoad::replayIsNotSoughtWhereTheDeviceCannot()
{
    RoadCase t;
    setVersion(t.c.channel, "351");
    QTest::ignoreMessage(QtDebugMsg, "no changeReplayTime:90");
    QVERIFY(t.playToTheStart());
    QCOMPARE(t.c.lines().last(), QStringLiteral("startReplaySuccessMsg 3"));
    QCOMPARE(t.c.t.record.sentTypes(), QList<int>({792, 794}));
}

void TestReplayRoad::replayOfAListToldAgainStartsWithoutSeeking()
{
    RoadCase t;
    QVERIFY(t.playToTheStart());
    const int replayIndex = t.c.replay().avIndex;
    t.c.io->stopReplay(t.c.channel, false, {});
    QVERIFY(t.c.settle());
    QVERIFY(!t.c.channel->replayPending);

    t.c.t.record.clear();
    QVERIFY(t.play());
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, startedOnNine));
    QCOMPARE(t.c.lines(),
        QStringList({oneBlock, "finishVideoTimeMsg 3", "send 794",
            QStringLiteral("avClientStart2 %1").arg(int(t.c.t.device->sid)),
            "startReplaySuccessMsg 3"}));
    QCOMPARE(int(t.c.channel->replayOffset), 90);
    QCOMPARE(int(t.c.replay().avIndex), replayIndex);
    QVERIFY(!t.startedSeeking);
}

void TestReplayRoad::replayOpensOnTheChannelThatTheDeviceNames()
{
    RoadCase t;
    t.c.t.device->setViewPassword(QStringLiteral("secret"));
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, "10000000 fe"));
    const LinkCall opened = t.opened();
    QCOMPARE(opened.sessionId(), int(t.c.t.device->sid));
    QCOMPARE(opened.number("channelId"), 254);
    QCOMPARE(opened.text("account"), QStringLiteral("Admin"));
    QCOMPARE(opened.text("password"), QStringLiteral("secret"));
    QCOMPARE(opened.number("timeoutSec"), 5);
    QVERIFY(opened.result.has_value());
    QCOMPARE(int(t.c.replay().avIndex), *opened.result);
    QVERIFY(t.c.replay().avIndex != t.c.liveIndex);
    QCOMPARE(int(t.c.channel->mode(true).avIndex), t.c.liveIndex);
    QVERIFY(!t.c.channel->mode(true).playing);
}

void TestReplayRoad::replayChannelThatDoesNotOpenFailsTheStart()
{
    RoadCase t;
    QVERIFY(t.play());
    QVERIFY(t.receive(IOCTRL_LIST_RECORDS_RESP, oneRecord));
    t.c.t.record.clear();
    t.c.link().next(LinkFn::avClientStart2).answers(-20009);
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, startedOnNine));
    QCOMPARE(t.c.lines(),
        QStringList({QStringLiteral("avClientStart2 %1").arg(int(t.c.t.device->sid)),
            "startReplayFailMsg 3 -20009 Incorrect view account or password"}));
    QCOMPARE(int(t.c.replay().avIndex), -1);
    QVERIFY(!t.c.replay().playing);
    QVERIFY(t.c.channel->replayPending);
    QCOMPARE(int(t.c.channel->mode(true).avIndex), t.c.liveIndex);
}

void TestReplayRoad::replayChannelOfAnEndedSessionFailsTheStart()
{
    RoadCase t;
    t.c.io->connectChannel(t.c.channel, 9, false);
    QVERIFY(t.c.link().waitForReturns(1, LinkFn::avClientStart2));
    t.c.io->disConnectDevice(t.c.channel);
    QVERIFY(t.c.settle());
    QCOMPARE(t.c.lines().last(),
        QStringLiteral("startReplayFailMsg 3 -20015 The remote session already closes"));
    QCOMPARE(int(t.c.replay().avIndex), -1);
    QVERIFY(!t.c.replay().playing);
}

void TestReplayRoad::endOfTheRecordingGoesOnWithTheNextBlock()
{
    RoadCase t;
    QVERIFY(t.playToTheStart());
    const QString close = QStringLiteral("avClientStop %1").arg(int(t.c.replay().avIndex));
    const QString open = QStringLiteral("avClientStart2 %1").arg(int(t.c.t.device->sid));

    t.c.t.record.clear();
    t.c.t.viewControl.nextBlock = evening();
    QTest::ignoreMessage(QtDebugMsg, "AVIOCTRL_RECORD_PLAY_END");
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, recordingEnded));
    QCOMPARE(t.c.lines(),
        QStringList({"ViewControl::getNextBlock", "ViewControl::setRecord 3 off",
            "Decode::removeStream 3 replay", "send 794", close, "stopReplaySuccessMsg 3",
            "send 794"}));
    QCOMPARE(
        t.c.sent(0).payload(), wire("03000000 01000000 00000000 0000000000000000 00 00 00 00"));
    QCOMPARE(
        t.c.sent(1).payload(), wire("03000000 10000000 00000000 e8070309 00 0b1e00 03 00 05 00"));

    // The block is played from its start.
    t.c.t.record.clear();
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, stopped));
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, "10000000 0a"));
    QCOMPARE(t.c.lines(), QStringList({"stopReplaySuccessMsg 3", open, "startReplaySuccessMsg 3"}));
    QCOMPARE(t.opened().number("channelId"), 10);
    QVERIFY(t.c.replay().playing);
}

void TestReplayRoad::endOfAFastReplayGoesOnAtNormalSpeed()
{
    RoadCase t;
    QVERIFY(t.playToTheStart());
    t.c.io->playReplay(t.c.channel, morning(), 0, false, PLAY_SPEED_X32);
    QVERIFY(t.c.settle());
    t.c.t.viewControl.nextBlock = evening();
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, recordingEnded));
    QCOMPARE(
        t.c.sent().payload(), wire("03000000 10000000 00000000 e8070309 00 0b1e00 03 00 05 00"));
}

void TestReplayRoad::endOfTheLastBlockLeavesThePictureStanding()
{
    RoadCase t;
    QVERIFY(t.playToTheStart());
    const int replayIndex = t.c.replay().avIndex;
    t.c.t.record.clear();
    QTest::ignoreMessage(QtDebugMsg, "AVIOCTRL_RECORD_PLAY_END");
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, recordingEnded));
    QCOMPARE(t.c.lines(), QStringList({"ViewControl::getNextBlock"}));
    QVERIFY(t.c.replay().playing);
    QCOMPARE(int(t.c.replay().avIndex), replayIndex);
}

void TestReplayRoad::stopIsReportedForItsResultAndForItsAnswer()
{
    RoadCase t;
    QVERIFY(t.playToTheStart());
    const QString close = QStringLiteral("avClientStop %1").arg(int(t.c.replay().avIndex));
    t.c.t.record.clear();
    t.c.io->stopReplay(t.c.channel, false, {});
    QVERIFY(t.c.settle());
    QTest::ignoreMessage(QtDebugMsg, "AVIOCTRL_RECORD_PLAY_STOP");
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, stopped));
    QCOMPARE(t.c.lines().mid(2),
        QStringList({"send 794", close, "stopReplaySuccessMsg 3", "stopReplaySuccessMsg 3"}));
}

void TestReplayRoad::stopByTheDeviceClosesTheReplay()
{
    RoadCase t;
    QVERIFY(t.playToTheStart());
    const QString close = QStringLiteral("avClientStop %1").arg(int(t.c.replay().avIndex));
    t.c.t.record.clear();
    QTest::ignoreMessage(QtDebugMsg, "AVIOCTRL_RECORD_PLAY_STOP");
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, stopped));
    QCOMPARE(t.c.lines(), QStringList({close, "stopReplaySuccessMsg 3"}));
    QCOMPARE(int(t.c.replay().avIndex), -1);
    QVERIFY(!t.c.replay().playing);
    QVERIFY(!t.c.channel->replayPending);
}

void TestReplayRoad::answerToAPauseSaysNothing()
{
    RoadCase t;
    QVERIFY(t.playToTheStart());
    t.c.t.record.clear();
    const DebugLines debug;
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, "00000000"));
    QVERIFY(debug.filter(QStringLiteral("command")).isEmpty());
    QVERIFY(t.c.lines().isEmpty());
    QVERIFY(t.c.replay().playing);
}

void TestReplayRoad::unknownAnswerIsLogged()
{
    RoadCase t;
    QTest::ignoreMessage(QtDebugMsg, "command:5");
    QTest::ignoreMessage(QtDebugMsg, "command:4294967295");
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, "05000000"));
    QVERIFY(t.receive(IOCTRL_PLAY_CONTROL_RESP, "ffffffff"));
    QVERIFY(t.c.lines().isEmpty());
}

void TestReplayRoad::seekAnswerTellsTheOutcome_data()
{
    const QString none =
        QStringLiteral("changeReplayTimeFailMsg 3 0 Playback video data does not exist.");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("line");
    QTest::newRow("done") << QByteArray("00") << QStringLiteral("changeReplayTimeSuccessMsg 3");
    QTest::newRow("done, whatever follows")
        << QByteArray("00ffffff") << QStringLiteral("changeReplayTimeSuccessMsg 3");
    QTest::newRow("nothing there") << QByteArray("01") << none;
    QTest::newRow("another reason") << QByteArray("ff") << none;
}

void TestReplayRoad::seekAnswerTellsTheOutcome()
{
    QFETCH(QByteArray, answer);
    QFETCH(QString, line);
    RoadCase t;
    QVERIFY(t.receive(IOCTRL_SET_REPLAY_TIME_RESP, answer.constData()));
    QCOMPARE(t.c.lines(), QStringList({line}));
}

void TestReplayRoad::refusedSecondReplayFailsTheStart()
{
    RoadCase t;
    QVERIFY(t.play());
    QVERIFY(t.receive(IOCTRL_LIST_RECORDS_RESP, oneRecord));
    t.c.t.record.clear();
    QVERIFY(t.receive(IOCTRL_REPLAY_BUSY, "00000000 01"));
    QCOMPARE(t.c.lines(),
        QStringList({"startReplayFailMsg 3 0 Does not support simultaneous remote playback."}));
    QCOMPARE(int(t.c.replay().avIndex), -1);
    QVERIFY(!t.c.replay().playing);
}

void TestReplayRoad::otherNoticesOfABusyReplaySayNothing()
{
    RoadCase t;
    QVERIFY(t.receive(IOCTRL_REPLAY_BUSY, "01010101 00"));
    QVERIFY(t.receive(IOCTRL_REPLAY_BUSY, "00000000 02"));
    QVERIFY(t.receive(IOCTRL_REPLAY_BUSY, "01000000"));
    QVERIFY(t.c.lines().isEmpty());
}

ORVA_TEST(TestReplayRoad)
#include "tst_replayroad.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "iotest.h"
#include "model/progressevents.h"
#include "model/task.h"
#include "replaycase.h"
#include "testmain.h"

#include <QTest>

#include <functional>

// The commands of a replay: what each sends and changes, and what becomes of its result. The machine
// of these tests stands in Tokyo, nine hours ahead of UTC.
class TestReplay final : public QObject
{
    Q_OBJECT

private slots:
    void startNamesTimeAndSpeed();
    void runningReplayTakesDirectionAndSpeed_data();
    void runningReplayTakesDirectionAndSpeed();
    void startOrDirectionIsChosenWhenTheCommandsTurnComes();
    void playMarksTheReplayAsWaiting();
    void playIsLogged();
    void resultOfAPlayCarriesItsMessage();
    void failedPlayIsReported();

    void pauseEndsTheStreamBeforeItIsSent();
    void pauseByTheUserIsRemembered();
    void pauseByAChangeOfModeLeavesTheMode();
    void pauseKeepsTheAvChannel();
    void failedPauseLeavesTheReplayPlaying_data();
    void failedPauseLeavesTheReplayPlaying();

    void resumeGoesByTheFirmware_data();
    void resumeGoesByTheFirmware();
    void resumePlaysWithoutSeeking();
    void resumeByTheUserForgetsThePause();
    void changeOfModeNeverTouchesTheUsersPause();
    void failedResumeIsReported();

    void stopClosesTheAvChannel();
    void stopOfAReplayThatIsNotOpenIsReportedToo();
    void stopWithRestartPlaysAtNormalSpeed();
    void failedStopLeavesTheReplayOpen();
    void closingAgainOnlyReportsAgain();

    void seekCountsFromTheBase_data();
    void seekCountsFromTheBase();
    void seekByNothingIsNotSent();
    void seekGoesByTheFirmware_data();
    void seekGoesByTheFirmware();
    void failedSeekIsReported();

    void commandArmsTheTimerAndItsResultStopsIt_data();
    void commandArmsTheTimerAndItsResultStopsIt();
    void timeOutEndsACommandThatHangs_data();
    void timeOutEndsACommandThatHangs();
};

namespace {

using Operation = std::function<void(IoConnect* io, Channel* channel)>;

struct OperationRow
{
    const char* name;
    Operation run;
    const char* failure; // its fail signal
};

const QVector<OperationRow> operations{
    {"play",
        [](IoConnect* io, Channel* channel) {
            io->playReplay(channel, morning(), 0, true, PLAY_SPEED_X1);
        },
        "startReplayControlFailMsg"},
    {"pause", [](IoConnect* io, Channel* channel) { io->pauseReplay(channel, false); },
        "pauseReplayFailMsg"},
    {"resume", [](IoConnect* io, Channel* channel) { io->stopPauseReplay(channel, false); },
        "startReplayFailMsg"},
    {"stop", [](IoConnect* io, Channel* channel) { io->stopReplay(channel, false, {}); },
        "stopReplayFailMsg"},
    {"seek", [](IoConnect* io, Channel* channel) { io->changeReplayTime(channel, 90); },
        "changeReplayTimeFailMsg"},
};

void addOperations()
{
    QTest::addColumn<Operation>("run");
    QTest::addColumn<QString>("failure");
    for (const OperationRow& row : operations)
        QTest::newRow(row.name) << row.run << QString::fromLatin1(row.failure);
}

// The messages that come back with the results of playReplay.
class PlayResults final : public QObject
{
public:
    explicit PlayResults(IoConnect* io) { io->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == ProgressEvent_playReplay::number) {
            const ReplayRequest& request = eventCast<ProgressEvent_playReplay>(event).value;
            messages.append(QByteArray(
                reinterpret_cast<const char*>(request.data()), static_cast<int>(request.size())));
        }
        return false;
    }

    QList<QByteArray> messages;
};

} // namespace

Q_DECLARE_METATYPE(Operation)

void TestReplay::startNamesTimeAndSpeed()
{
    ReplayCase t;
    t.io->playReplay(t.channel, morning(), 90, true, PLAY_SPEED_X1);
    QVERIFY(t.settle());
    QCOMPARE(t.lines(), QStringList({"send 794"}));
    QCOMPARE(t.sent().avIndex(), t.liveIndex);
    QCOMPARE(t.sent().payload(), wire("03000000 10000000 00000000 e8070308 00 160502 03 00 05 00"));
}

void TestReplay::runningReplayTakesDirectionAndSpeed_data()
{
    QTest::addColumn<bool>("forward");
    QTest::addColumn<PLAY_SPEED>("speed");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("forward") << true << PLAY_SPEED_X32
                             << wire("03000000 04000000 00000000 e8070308 00 160502 03 00 0a 00");
    QTest::newRow("backward") << false << PLAY_SPEED_X2
                              << wire("03000000 05000000 00000000 e8070308 00 160502 03 00 06 00");
    QTest::newRow("slowly") << true << PLAY_SPEED_1_32
                            << wire("03000000 04000000 00000000 e8070308 00 160502 03 00 00 00");
}

void TestReplay::runningReplayTakesDirectionAndSpeed()
{
    QFETCH(bool, forward);
    QFETCH(PLAY_SPEED, speed);
    QFETCH(QByteArray, message);
    ReplayCase t;
    t.open();
    t.io->playReplay(t.channel, morning(), 0, forward, speed);
    QVERIFY(t.settle());
    QCOMPARE(t.sent().payload(), message);
}

void TestReplay::startOrDirectionIsChosenWhenTheCommandsTurnComes()
{
    ReplayCase t;
    LinkGate gate = t.link().next(LinkFn::avSendIOCtrl, ofType(802)).holds();
    t.io->getQuality(t.channel);
    QVERIFY(gate.waitUntilReached());
    t.io->playReplay(t.channel, morning(), 0, false, PLAY_SPEED_X1);
    t.replay().playing = true;
    gate.release();
    QVERIFY(t.settle());
    QCOMPARE(t.sent().payload(), wire("03000000 05000000 00000000 e8070308 00 160502 03 00 05 00"));
}

void TestReplay::playMarksTheReplayAsWaiting()
{
    ReplayCase t;
    t.io->playReplay(t.channel, morning(), 90, true, PLAY_SPEED_X1);
    QVERIFY(t.replay().waiting);
    QVERIFY(!t.channel->mode(true).waiting);
    QCOMPARE(int(t.channel->replayOffset), 90);
    QVERIFY(t.settle());
    QVERIFY(!t.replay().playing);
}

void TestReplay::playIsLogged()
{
    ReplayCase t;
    QTest::ignoreMessage(QtDebugMsg, "playReplay:2024-03-09T07:05:02");
    t.io->playReplay(t.channel, morning(), 90, true, PLAY_SPEED_X1);
    QVERIFY(t.settle());
}

void TestReplay::resultOfAPlayCarriesItsMessage()
{
    ReplayCase t;
    const PlayResults results(t.io);
    t.io->playReplay(t.channel, morning(), 90, true, PLAY_SPEED_X1);
    QVERIFY(t.settle());
    QCOMPARE(results.messages, QList<QByteArray>({t.sent().payload()}));
}

void TestReplay::failedPlayIsReported()
{
    ReplayCase t;
    t.refuse(794);
    t.io->playReplay(t.channel, morning(), 90, true, PLAY_SPEED_X1);
    QVERIFY(t.settle());
    QCOMPARE(t.lines(),
        QStringList({"send 794", "startReplayControlFailMsg 3 -20016 Session is disconnected"}));
    QVERIFY(t.replay().waiting);
    QVERIFY(!t.replay().playing);
}

void TestReplay::pauseEndsTheStreamBeforeItIsSent()
{
    ReplayCase t;
    t.open();
    t.io->pauseReplay(t.channel, false);
    QVERIFY(t.settle());
    QCOMPARE(t.lines(),
        QStringList({"ViewControl::setRecord 3 off", "Decode::removeStream 3 replay", "send 794",
            "pauseReplaySuccessMsg 3"}));
    QCOMPARE(t.sent().avIndex(), t.liveIndex);
    QCOMPARE(t.sent().payload(), wire("03000000 00000000 00000000 0000000000000000 03 00 00 00"));
}

void TestReplay::pauseByTheUserIsRemembered()
{
    ReplayCase t;
    t.open();
    t.io->pauseReplay(t.channel, false);
    QVERIFY(t.channel->replayPaused);
    QVERIFY(t.replay().playing); // until the device's side has taken it
    QVERIFY(t.settle());
    QVERIFY(t.channel->replayPaused);
    QVERIFY(!t.replay().playing);
}

void TestReplay::pauseByAChangeOfModeLeavesTheMode()
{
    ReplayCase t;
    t.open();
    t.io->pauseReplay(t.channel, true);
    QVERIFY(t.settle());
    QCOMPARE(t.lines(),
        QStringList({"ViewControl::setRecord 3 off", "Decode::removeStream 3 replay", "send 794",
            "pauseReplaySuccessMsg 3", "stopReplaySuccessMsg 3"}));
    QCOMPARE(t.sent().payload(), wire("03000000 00000000 00000000 0000000000000000 03 00 00 00"));
    QVERIFY(!t.channel->replayPaused);
    QVERIFY(!t.replay().playing);
}

void TestReplay::pauseKeepsTheAvChannel()
{
    for (const bool isModeChange : {false, true}) {
        ReplayCase t;
        t.open();
        t.channel->replayPending = true;
        t.io->pauseReplay(t.channel, isModeChange);
        QVERIFY(t.settle());
        QCOMPARE(int(t.replay().avIndex), t.replayIndex);
        QVERIFY(t.channel->replayPending);
        QCOMPARE(t.link().count(LinkFn::avClientStop), 0);
    }
}

void TestReplay::failedPauseLeavesTheReplayPlaying_data()
{
    QTest::addColumn<bool>("isModeChange");
    QTest::newRow("by the user") << false;
    QTest::newRow("by a change of mode") << true;
}

void TestReplay::failedPauseLeavesTheReplayPlaying()
{
    QFETCH(bool, isModeChange);
    ReplayCase t;
    t.open();
    t.refuse(794);
    t.io->pauseReplay(t.channel, isModeChange);
    QVERIFY(t.settle());
    QCOMPARE(t.lines().mid(2),
        QStringList({"send 794", "pauseReplayFailMsg 3 -20016 Session is disconnected"}));
    QVERIFY(t.replay().playing);
}

void TestReplay::resumeGoesByTheFirmware_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QByteArray>("message");
    const QByteArray start = wire("03000000 10000000 00000000 0000000000000000 03 00 00 00");
    const QByteArray pause = wire("03000000 00000000 00000000 0000000000000000 03 00 00 00");
    QTest::newRow("version not known") << QByteArray() << pause;
    QTest::newRow("no dot") << QByteArray("34") << pause;
    QTest::newRow("older") << QByteArray("3.4") << start;
    QTest::newRow("newer") << QByteArray("3.5") << pause;
    QTest::newRow("much newer") << QByteArray("3.12") << pause;
    QTest::newRow("older, some family") << QByteArray("3.4.12.345602") << start;
    QTest::newRow("older, family 01") << QByteArray("3.4.12.345601") << pause;
    QTest::newRow("newer, family 01") << QByteArray("3.5.12.345601") << pause;
    QTest::newRow("01 elsewhere") << QByteArray("3.4.01.340156") << start;
    QTest::newRow("second part no number") << QByteArray("3.x") << start;
}

void TestReplay::resumeGoesByTheFirmware()
{
    QFETCH(QByteArray, version);
    QFETCH(QByteArray, message);
    ReplayCase t;
    t.open();
    setVersion(t.channel, version);
    t.io->stopPauseReplay(t.channel, false);
    QVERIFY(t.settle());
    QCOMPARE(t.lines(), QStringList({"send 794", "startReplaySuccessMsg 3"}));
    QCOMPARE(t.sent().avIndex(), t.liveIndex);
    QCOMPARE(t.sent().payload(), message);
}

void TestReplay::resumePlaysWithoutSeeking()
{
    ReplayCase t;
    t.open();
    t.replay().playing = false;
    t.channel->replayPending = true;
    t.channel->replayOffset = 90;
    t.io->stopPauseReplay(t.channel, true);
    QVERIFY(t.replay().waiting);
    QVERIFY(!t.replay().playing);
    QVERIFY(t.settle());
    QVERIFY(t.replay().playing);
    QCOMPARE(t.lines(), QStringList({"send 794", "startReplaySuccessMsg 3"}));
    QCOMPARE(int(t.replay().avIndex), t.replayIndex);
}

void TestReplay::resumeByTheUserForgetsThePause()
{
    ReplayCase t;
    t.open();
    t.channel->replayPaused = true;
    t.io->stopPauseReplay(t.channel, false);
    QVERIFY(!t.channel->replayPaused);
    QVERIFY(t.settle());
}

// The wall asks to resume a channel on the way back only if the user has not paused it.
void TestReplay::changeOfModeNeverTouchesTheUsersPause()
{
    ReplayCase t;
    t.open();
    for (const bool paused : {false, true}) {
        t.channel->replayPaused = paused;
        t.io->pauseReplay(t.channel, true);
        QVERIFY(t.settle());
        QCOMPARE(bool(t.channel->replayPaused), paused);
        t.io->stopPauseReplay(t.channel, true);
        QVERIFY(t.settle());
        QCOMPARE(bool(t.channel->replayPaused), paused);
        QVERIFY(t.replay().playing);
    }
}

void TestReplay::failedResumeIsReported()
{
    ReplayCase t;
    t.open();
    t.replay().playing = false;
    t.refuse(794);
    t.io->stopPauseReplay(t.channel, false);
    QVERIFY(t.settle());
    QCOMPARE(t.lines(),
        QStringList({"send 794", "startReplayFailMsg 3 -20016 Session is disconnected"}));
    QVERIFY(!t.replay().playing);
    QCOMPARE(int(t.replay().avIndex), t.replayIndex);
}

void TestReplay::stopClosesTheAvChannel()
{
    ReplayCase t;
    t.open();
    t.channel->replayPending = true;
    t.io->stopReplay(t.channel, false, {});
    QVERIFY(t.replay().playing); // until the device's side has taken it
    QVERIFY(t.settle());
    QCOMPARE(t.lines(),
        QStringList({"ViewControl::setRecord 3 off", "Decode::removeStream 3 replay", "send 794",
            QStringLiteral("avClientStop %1").arg(t.replayIndex), "stopReplaySuccessMsg 3"}));
    QCOMPARE(t.sent().avIndex(), t.liveIndex);
    QCOMPARE(t.sent().payload(), wire("03000000 01000000 00000000 0000000000000000 00 00 00 00"));
    QCOMPARE(int(t.replay().avIndex), -1);
    QVERIFY(!t.replay().playing);
    QVERIFY(!t.channel->replayPending);
    QCOMPARE(int(t.channel->mode(true).avIndex), t.liveIndex);
}

void TestReplay::stopOfAReplayThatIsNotOpenIsReportedToo()
{
    ReplayCase t;
    t.io->stopReplay(t.channel, false, {});
    QVERIFY(t.settle());
    QCOMPARE(t.lines().mid(2), QStringList({"send 794", "stopReplaySuccessMsg 3"}));
}

void TestReplay::stopWithRestartPlaysAtNormalSpeed()
{
    ReplayCase t;
    t.open();
    t.io->playReplay(t.channel, morning(), 90, false, PLAY_SPEED_X32);
    QVERIFY(t.settle());
    t.t.record.clear();
    t.io->stopReplay(t.channel, true, evening());
    QVERIFY(t.settle());
    QCOMPARE(t.lines(),
        QStringList({"ViewControl::setRecord 3 off", "Decode::removeStream 3 replay", "send 794",
            QStringLiteral("avClientStop %1").arg(t.replayIndex), "stopReplaySuccessMsg 3",
            "send 794"}));
    QCOMPARE(t.sent(0).payload(), wire("03000000 01000000 00000000 0000000000000000 00 00 00 00"));
    QCOMPARE(
        t.sent(1).payload(), wire("03000000 10000000 00000000 e8070309 00 0b1e00 03 00 05 00"));
    QCOMPARE(int(t.channel->replayOffset), 0);
    QVERIFY(t.replay().waiting);
}

void TestReplay::failedStopLeavesTheReplayOpen()
{
    ReplayCase t;
    t.open();
    t.channel->replayPending = true;
    t.refuse(794);
    t.io->stopReplay(t.channel, true, evening());
    QVERIFY(t.settle());
    QCOMPARE(t.lines().mid(2),
        QStringList({"send 794", "stopReplayFailMsg 3 -20016 Session is disconnected"}));
    QCOMPARE(int(t.replay().avIndex), t.replayIndex);
    QVERIFY(t.replay().playing);
    QVERIFY(t.channel->replayPending);
}

void TestReplay::closingAgainOnlyReportsAgain()
{
    ReplayCase t;
    t.open();
    t.io->closeReplayStream(t.channel);
    t.io->closeReplayStream(t.channel);
    QCOMPARE(t.lines(),
        QStringList({QStringLiteral("avClientStop %1").arg(t.replayIndex), "stopReplaySuccessMsg 3",
            "stopReplaySuccessMsg 3"}));
}

void TestReplay::seekCountsFromTheBase_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("forward") << 90 << wire("03000000 e8070308 00 160502 5a000000 00000000");
    QTest::newRow("backward") << -90 << wire("03000000 e8070308 00 160502 a6ffffff 00000000");
    QTest::newRow("far") << 86399 << wire("03000000 e8070308 00 160502 7f510100 00000000");
}

void TestReplay::seekCountsFromTheBase()
{
    QFETCH(int, seconds);
    QFETCH(QByteArray, message);
    ReplayCase t;
    t.open();
    const QByteArray line = "changeReplayTime:" + QByteArray::number(seconds);
    QTest::ignoreMessage(QtDebugMsg, line.constData());
    t.io->changeReplayTime(t.channel, seconds);
    QVERIFY(t.settle());
    QCOMPARE(t.lines(), QStringList({"send 828"}));
    QCOMPARE(t.sent().avIndex(), t.liveIndex);
    QCOMPARE(t.sent().payload(), message);
}

void TestReplay::seekByNothingIsNotSent()
{
    ReplayCase t;
    t.open();
    QTest::ignoreMessage(QtDebugMsg, "no changeReplayTime:0");
    t.io->changeReplayTime(t.channel, 0);
    QVERIFY(!t.channel->ioTimer()->isActive());
    QVERIFY(t.settle());
    QVERIFY(t.lines().isEmpty());
}

void TestReplay::seekGoesByTheFirmware_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<bool>("canSeek");
    QTest::newRow("version not known") << QByteArray() << false;
    QTest::newRow("no dot") << QByteArray("9") << false;
    QTest::newRow("dot and a digit first") << QByteArray("0.1") << true;
    QTest::newRow("family 01") << QByteArray("1.0.12.345601") << true;
    QTest::newRow("a letter first") << QByteArray("v1.0") << true;
    QTest::newRow("nothing before the dot") << QByteArray(".9") << false;
    QTest::newRow("below all digits, new") << QByteArray("\1.6") << true;
    QTest::newRow("below all digits, old") << QByteArray("\1.4.9") << false;
}

void TestReplay::seekGoesByTheFirmware()
{
    QFETCH(QByteArray, version);
    QFETCH(bool, canSeek);
    ReplayCase t;
    t.open();
    setVersion(t.channel, version);
    QTest::ignoreMessage(QtDebugMsg, canSeek ? "changeReplayTime:90" : "no changeReplayTime:90");
    t.io->changeReplayTime(t.channel, 90);
    QCOMPARE(IoTest::isArmed(t.channel), canSeek);
    QVERIFY(t.settle());
    QCOMPARE(t.lines(), canSeek ? QStringList({"send 828"}) : QStringList());
}

void TestReplay::failedSeekIsReported()
{
    ReplayCase t;
    t.open();
    t.refuse(828);
    t.io->changeReplayTime(t.channel, 90);
    QVERIFY(t.settle());
    QCOMPARE(t.lines(),
        QStringList({"send 828", "changeReplayTimeFailMsg 3 -20016 Session is disconnected"}));
    QVERIFY(t.replay().playing);
}

void TestReplay::commandArmsTheTimerAndItsResultStopsIt_data()
{
    addOperations();
}

void TestReplay::commandArmsTheTimerAndItsResultStopsIt()
{
    QFETCH(Operation, run);
    ReplayCase t;
    t.open();
    run(t.io, t.channel);
    QVERIFY(IoTest::isArmed(t.channel));
    QVERIFY(t.settle());
    QVERIFY(!t.channel->ioTimer()->isActive());
}

void TestReplay::timeOutEndsACommandThatHangs_data()
{
    addOperations();
}

void TestReplay::timeOutEndsACommandThatHangs()
{
    QFETCH(Operation, run);
    QFETCH(QString, failure);
    ReplayCase t;
    t.open();
    t.link().next(LinkFn::avSendIOCtrl).hangs();
    run(t.io, t.channel);
    QVERIFY(t.link().waitForCalls(1, LinkFn::avSendIOCtrl));
    IoTest::runOut(t.channel);
    QVERIFY(t.settle());
    const QStringList lines = t.lines();
    QCOMPARE(lines.mid(lines.size() - 2),
        QStringList({QStringLiteral("avSendIOCtrlExit %1").arg(t.liveIndex),
            failure + QStringLiteral(" 3 -20022 Sending  is terminated ")}));
    QVERIFY(!t.channel->ioTimer()->isActive());
}

ORVA_TEST(TestReplay)
#include "tst_replay.moc"

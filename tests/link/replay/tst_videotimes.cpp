// SPDX-License-Identifier: GPL-3.0-or-later
#include "iotest.h"
#include "replaytest.h"
#include "testmain.h"

#include <QTest>

// The list of a day's recordings: how it is asked for, kept, and told again.
class TestVideoTimes final : public QObject
{
    Q_OBJECT

private slots:
    void localDayIsAskedForInUtc_data();
    void localDayIsAskedForInUtc();
    void requestNamesItsOwnChannel();
    void requestMarksTheListAsAskedFor();
    void requestArmsTheTimerAndItsResultStopsIt();
    void requestIsLogged();

    void blocksOfAnAnswerAreToldAndKept();
    void listInThreeMessagesFinishesOnce();
    void emptyDayIsToldWithoutAnEnd();
    void firstRecordFromTheDayBeforeStartsAtMidnight();
    void lengthsThatCannotBeCountAsTenMinutes();
    void recordOfAWrongClockIsNotInTheList();

    void sameDayIsToldAgainWithoutAMessage();
    void sameDayIsToldAgainAtOnce();
    void emptyDayIsToldAgainWithoutAMessage();
    void listThatIsToldAgainLeavesTheSeekAsItWas_data();
    void listThatIsToldAgainLeavesTheSeekAsItWas();
    void listThatIsToldAgainIsToldToItsEnd();
    void anotherDayForgetsTheListAndIsAskedFor();
    void anotherDayUnderWayIsTakenForEmpty();

    void failedRequestEmitsFailureThenSuccess();
    void firstDayIsAskedForAgainWhileNoAnswerCame();
    void timeOutEndsARequestThatHangs();
};

namespace {

const QDate aDay(2024, 3, 9);
const QDate nextDay(2024, 3, 10);

// Two records of 9 March 2024: 00:10:00 for 60 s, and 12:00:00 for 3600 s.
const char* const twoRecords = "00000000 02000000 00 01 02 00"
                               "e8070309 00 000a00 01 000000 3c000000"
                               "e8070309 00 0c0000 02 000000 100e0000";
const char* const noRecords = "00000000 00000000 00 01 00 00";

const QStringList asked{"send 792", "requestReplayVideoTimeSuccessMsg 0"};
const QStringList twoBlocks{"receiveVideoTimeMsg 0 [600,60,1709943000,1]",
    "receiveVideoTimeMsg 0 [43200,3600,1709985600,2]", "finishVideoTimeMsg 0"};
const QStringList emptyDay{"receiveVideoTimeEmptyMsg 0 0 no record has been found"};

// A connected channel that has asked for the day in UTC, with the device's answer, if there is one.
class DayTest final
{
public:
    explicit DayTest(const char* answer = nullptr)
    {
        if (!io.startReceiving() || !ask(aDay))
            qFatal("the list was not asked for");
        if (answer != nullptr && !io.receive(IOCTRL_LIST_RECORDS_RESP, wire(answer)))
            qFatal("the list was not received");
        io.record.clear();
    }

    [[nodiscard]] bool ask(const QDate& day)
    {
        io.io->getReplayVideoTime(io.channel(), day);
        return io.settle();
    }
    [[nodiscard]] bool receive(const char* message)
    {
        return io.receive(IOCTRL_LIST_RECORDS_RESP, wire(message));
    }

    const LocalZone zone{"UTC"};
    IoTest io;
};

} // namespace

void TestVideoTimes::localDayIsAskedForInUtc_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("in UTC") << QByteArray("UTC") << aDay
                            << wire("00000000 e8070309 00 000000 e8070309 00 173b3b 00000000");
    QTest::newRow("ahead of UTC") << QByteArray(
        "Asia/Tokyo") << aDay << wire("00000000 e8070308 00 0f0000 e8070309 00 0e3b3b 00000000");
    QTest::newRow("behind UTC") << QByteArray("America/New_York") << aDay
                                << wire("00000000 e8070309 00 050000 e807030a 00 043b3b 00000000");
    QTest::newRow("clocks go forward")
        << QByteArray("America/New_York") << nextDay
        << wire("00000000 e807030a 00 050000 e807030b 00 033b3b 00000000");
    QTest::newRow("clocks go back")
        << QByteArray("America/New_York") << QDate(2024, 11, 3)
        << wire("00000000 e8070b03 00 040000 e8070b04 00 043b3b 00000000");
    QTest::newRow("in summer") << QByteArray("America/New_York") << QDate(2024, 7, 4)
                               << wire("00000000 e8070704 00 040000 e8070705 00 033b3b 00000000");
}

void TestVideoTimes::localDayIsAskedForInUtc()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, day);
    QFETCH(QByteArray, message);
    const LocalZone local(zone.constData());
    IoTest t;
    t.io->getReplayVideoTime(t.channel(), day);
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), asked);
    QCOMPARE(t.record.sends().front().payload(), message);
}

void TestVideoTimes::requestNamesItsOwnChannel()
{
    const LocalZone local("UTC");
    IoTest t(4);
    t.io->getReplayVideoTime(t.channel(3), aDay);
    QVERIFY(t.settle());
    QCOMPARE(t.record.sentTypes(), QList<int>({792}));
    const LinkCall sent = t.record.sends().front();
    QCOMPARE(sent.avIndex(), t.avIndex(3));
    QCOMPARE(sent.payload(), wire("03000000 e8070309 00 000000 e8070309 00 173b3b 00000000"));
}

void TestVideoTimes::requestMarksTheListAsAskedFor()
{
    IoTest t;
    t.channel()->addVideoTime({1, 2, 3, 4});
    t.io->getReplayVideoTime(t.channel(), aDay);
    QVERIFY(t.channel()->videoTimes().isEmpty());
    QCOMPARE(t.channel()->videoTimeDate, aDay);
    QVERIFY(t.channel()->replayPending);
    QVERIFY(!t.channel()->videoTimeLoaded);
    QVERIFY(t.settle());
}

void TestVideoTimes::requestArmsTheTimerAndItsResultStopsIt()
{
    IoTest t;
    t.io->getReplayVideoTime(t.channel(), aDay);
    QVERIFY(IoTest::isArmed(t.channel()));
    QVERIFY(t.settle());
    QVERIFY(!t.channel()->ioTimer()->isActive());
}

void TestVideoTimes::requestIsLogged()
{
    IoTest t;
    QTest::ignoreMessage(QtDebugMsg, "send getReplayVideoTime:2024-03-09");
    t.io->getReplayVideoTime(t.channel(), aDay);
    QVERIFY(t.settle());
    t.channel()->videoTimeLoaded = true;
    QTest::ignoreMessage(QtDebugMsg, "send getReplayVideoTime:2024-03-09");
    t.io->getReplayVideoTime(t.channel(), aDay);
    QCOMPARE(t.record.sentTypes(), QList<int>({792}));
}

void TestVideoTimes::blocksOfAnAnswerAreToldAndKept()
{
    DayTest t;
    QVERIFY(t.receive(twoRecords));
    QCOMPARE(t.io.record.lines(), twoBlocks);
    QCOMPARE(t.io.channel()->videoTimes(),
        QList<QList<int>>({{600, 60, 1709943000, 1}, {43200, 3600, 1709985600, 2}}));
    QVERIFY(t.io.channel()->videoTimeLoaded);
}

void TestVideoTimes::listInThreeMessagesFinishesOnce()
{
    DayTest t;
    QVERIFY(t.receive("00000000 03000000 00 00 01 00 e8070309 00 000a00 01 000000 3c000000"));
    QVERIFY(t.receive("00000000 03000000 01 00 01 00 e8070309 00 0c0000 02 000000 100e0000"));
    QCOMPARE(t.io.record.lines(), twoBlocks.mid(0, 2));
    QVERIFY(t.receive("00000000 03000000 02 01 01 00 e8070309 00 0d0000 00 000000 01000000"));
    QCOMPARE(t.io.record.lines().mid(2),
        QStringList({"receiveVideoTimeMsg 0 [46800,1,1709989200,0]", "finishVideoTimeMsg 0"}));
    QCOMPARE(t.io.channel()->videoTimes().size(), 3);
}

void TestVideoTimes::emptyDayIsToldWithoutAnEnd()
{
    DayTest t;
    QVERIFY(t.receive(noRecords));
    QCOMPARE(t.io.record.lines(), emptyDay);
    QVERIFY(t.io.channel()->videoTimeLoaded);
}

void TestVideoTimes::firstRecordFromTheDayBeforeStartsAtMidnight()
{
    DayTest t;
    // 8 March 23:50:00 for 3600 s, then 9 March 00:40:00.
    QVERIFY(t.receive("00000000 02000000 00 01 02 00"
                      "e8070308 00 173200 01 000000 100e0000"
                      "e8070309 00 002800 01 000000 3c000000"));
    QCOMPARE(t.io.record.lines(),
        QStringList({"receiveVideoTimeMsg 0 [0,3001,1709942399,1]",
            "receiveVideoTimeMsg 0 [2400,60,1709944800,1]", "finishVideoTimeMsg 0"}));
}

void TestVideoTimes::lengthsThatCannotBeCountAsTenMinutes()
{
    DayTest t;
    // 0 s, 86401 s, -1 s and, as the longest that can be, 86400 s.
    QVERIFY(t.receive("00000000 04000000 00 01 04 00"
                      "e8070309 00 000000 01 000000 00000000"
                      "e8070309 00 010000 01 000000 81510100"
                      "e8070309 00 020000 01 000000 ffffffff"
                      "e8070309 00 030000 01 000000 80510100"));
    QCOMPARE(t.io.channel()->videoTimes(),
        QList<QList<int>>({{0, 600, 1709942400, 1}, {3600, 600, 1709946000, 1},
            {7200, 600, 1709949600, 1}, {10800, 86400, 1709953200, 1}}));
}

void TestVideoTimes::recordOfAWrongClockIsNotInTheList()
{
    DayTest t;
    // A record of the year 9999 between two of the day.
    QVERIFY(t.receive("00000000 03000000 00 01 03 00"
                      "e8070309 00 000a00 01 000000 3c000000"
                      "0f270309 00 000000 01 000000 3c000000"
                      "e8070309 00 0c0000 02 000000 100e0000"));
    QCOMPARE(t.io.record.lines(), twoBlocks);
    QCOMPARE(t.io.channel()->videoTimes().size(), 2);
}

void TestVideoTimes::sameDayIsToldAgainWithoutAMessage()
{
    DayTest t(twoRecords);
    QVERIFY(t.ask(aDay));
    QCOMPARE(t.io.record.lines(), twoBlocks);
    QCOMPARE(t.io.channel()->videoTimes().size(), 2);
}

void TestVideoTimes::sameDayIsToldAgainAtOnce()
{
    DayTest t(twoRecords);
    t.io.io->getReplayVideoTime(t.io.channel(), aDay);
    QCOMPARE(t.io.record.lines(), twoBlocks);
    QVERIFY(!t.io.channel()->ioTimer()->isActive());
}

void TestVideoTimes::emptyDayIsToldAgainWithoutAMessage()
{
    DayTest t(noRecords);
    QVERIFY(t.ask(aDay));
    QCOMPARE(t.io.record.lines(), emptyDay);
    QVERIFY(!t.io.channel()->ioTimer()->isActive());
}

void TestVideoTimes::listThatIsToldAgainLeavesTheSeekAsItWas_data()
{
    QTest::addColumn<bool>("pending");
    QTest::newRow("to be done") << true;
    QTest::newRow("used up") << false;
}

void TestVideoTimes::listThatIsToldAgainLeavesTheSeekAsItWas()
{
    QFETCH(bool, pending);
    for (const char* answer : {twoRecords, noRecords}) {
        DayTest t(answer);
        t.io.channel()->replayPending = pending;
        QVERIFY(t.ask(aDay));
        QCOMPARE(bool(t.io.channel()->replayPending), pending);
    }
}

void TestVideoTimes::listThatIsToldAgainIsToldToItsEnd()
{
    DayTest t(twoRecords);
    IoConnect* io = t.io.io.get();
    const auto askForAnotherDay = [io](Channel* channel) {
        if (channel->videoTimeDate == aDay)
            io->getReplayVideoTime(channel, nextDay);
    };
    connect(io, &IoConnect::receiveVideoTimeMsg, this, askForAnotherDay);
    io->getReplayVideoTime(t.io.channel(), aDay);
    QVERIFY(t.io.settle());
    QStringList lines = t.io.record.lines();
    QCOMPARE(lines.removeAll("send 792"), 1);
    QCOMPARE(lines, twoBlocks + QStringList{"requestReplayVideoTimeSuccessMsg 0"});
    QVERIFY(t.io.channel()->videoTimes().isEmpty());
}

void TestVideoTimes::anotherDayForgetsTheListAndIsAskedFor()
{
    DayTest t(twoRecords);
    QVERIFY(t.ask(nextDay));
    QCOMPARE(t.io.record.lines(), asked);
    QCOMPARE(t.io.record.sends().front().payload(),
        wire("00000000 e807030a 00 000000 e807030a 00 173b3b 00000000"));
    QCOMPARE(t.io.channel()->videoTimeDate, nextDay);
    QVERIFY(t.io.channel()->videoTimes().isEmpty());

    // And the day before has been forgotten for good.
    QVERIFY(t.ask(aDay));
    QCOMPARE(t.io.record.sentTypes(), QList<int>({792, 792}));
}

// That a list is there is remembered from the day before.
void TestVideoTimes::anotherDayUnderWayIsTakenForEmpty()
{
    DayTest t(twoRecords);
    QVERIFY(t.ask(nextDay));
    QVERIFY(t.ask(nextDay));
    QCOMPARE(t.io.record.lines(), asked + emptyDay);
}

void TestVideoTimes::failedRequestEmitsFailureThenSuccess()
{
    IoTest t;
    t.link.next(LinkFn::avSendIOCtrl, ofType(792)).answers(-20016);
    t.io->getReplayVideoTime(t.channel(), aDay);
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(),
        QStringList({"send 792", "requestReplayVideoTimeFailMsg 0 -20016 Session is disconnected",
            "requestReplayVideoTimeSuccessMsg 0"}));
    QVERIFY(t.channel()->replayPending);
    QVERIFY(!t.channel()->ioTimer()->isActive());
}

void TestVideoTimes::firstDayIsAskedForAgainWhileNoAnswerCame()
{
    DayTest t;
    QVERIFY(t.ask(aDay));
    QCOMPARE(t.io.record.lines(), asked);
}

void TestVideoTimes::timeOutEndsARequestThatHangs()
{
    IoTest t;
    t.link.next(LinkFn::avSendIOCtrl, ofType(792)).hangs();
    t.io->getReplayVideoTime(t.channel(), aDay);
    QVERIFY(t.link.waitForCalls(1, LinkFn::avSendIOCtrl));
    IoTest::runOut(t.channel());
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(),
        QStringList({"send 792", QStringLiteral("avSendIOCtrlExit %1").arg(t.avIndex()),
            "requestReplayVideoTimeFailMsg 0 -20022 Sending  is terminated ",
            "requestReplayVideoTimeSuccessMsg 0"}));
}

ORVA_TEST(TestVideoTimes)
#include "tst_videotimes.moc"

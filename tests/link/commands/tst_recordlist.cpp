// SPDX-License-Identifier: GPL-3.0-or-later
#include "iotest.h"
#include "localzone.h"
#include "testmain.h"

#include <QTest>

// The messages in which a device lists the records of a day. This machine's clock is two hours
// ahead of UTC meanwhile.
class TestRecordListMessages final : public QObject
{
    Q_OBJECT

private slots:
    void blocksComeInTheOrderOfTheMessage();
    void blocksAreKept();
    void listEndsWithTheMessageThatSaysSo();
    void dayWithoutRecordsIsToldAlone_data();
    void dayWithoutRecordsIsToldAlone();
    void firstAnswerMarksTheListAsLoaded();
    void recordFromTheDayBeforeStartsAtMidnight();
    void lateRecordBeforeALaterOneIsKept();
    void lateRecordAloneIsKept();
    void onlyTheFirstRecordCanBeFromTheDayBefore();
    void lengthThatCannotBeCountsAsTenMinutes();
    void recordFromTheFutureIsDropped();
    void countIsBoundedByTheMessage();
    void messageOfAHeadAloneHasNoBlocks();

private:
    const LocalZone zone_{"EET-2"}; // two hours east, the whole year
};

namespace {

QByteArray number(int value, int bytes)
{
    QByteArray text;
    for (int i = 0; i < bytes; ++i)
        text.append(static_cast<char>(value >> (8 * i)));
    return text;
}

// A record as the device sends it.
QByteArray record(const QDateTime& utc, int seconds, int eventType = 0)
{
    const QDate date = utc.date();
    const QTime time = utc.time();
    return number(date.year(), 2) + number(date.month(), 1) + number(date.day(), 1) + number(0, 1)
        + number(time.hour(), 1) + number(time.minute(), 1) + number(time.second(), 1)
        + number(eventType, 1) + QByteArray(3, '\x55') + number(seconds, 4);
}

// On 9 March 2024, of this machine's clock: two hours earlier in UTC.
QByteArray recordAt(const QTime& local, int seconds, int eventType = 0)
{
    return record(
        QDateTime(QDate(2024, 3, 9), local, Qt::OffsetFromUTC, 7200).toUTC(), seconds, eventType);
}

QByteArray list(const QByteArrayList& records, bool last = true)
{
    return number(1, 4) + number(50, 4) + number(0, 1) + number(last ? 1 : 0, 1)
        + number(records.size(), 1) + number(0, 1) + records.join();
}

constexpr int listAnswer = 793;
constexpr int midnight = 1709935200; // of that day, local: 2024-03-08 22:00:00 UTC

QString blockLine(int start, int length, int sinceEpoch, int eventType = 0)
{
    return QStringLiteral("receiveVideoTimeMsg 1 [%1,%2,%3,%4]")
        .arg(start)
        .arg(length)
        .arg(sinceEpoch)
        .arg(eventType);
}

const QString endLine = QStringLiteral("finishVideoTimeMsg 1");

} // namespace

void TestRecordListMessages::blocksComeInTheOrderOfTheMessage()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(listAnswer,
        list({recordAt(QTime(1, 0), 60, 1), recordAt(QTime(5, 30, 7), 3600, 255),
            recordAt(QTime(3, 0), 86400, 4)}),
        1));
    QCOMPARE(t.record.lines(),
        QStringList(
            {blockLine(3600, 60, midnight + 3600, 1), blockLine(19807, 3600, midnight + 19807, 255),
                blockLine(10800, 86400, midnight + 10800, 4), endLine}));
}

void TestRecordListMessages::blocksAreKept()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(listAnswer, list({recordAt(QTime(1, 0), 60, 1)}, false), 1));
    QVERIFY(t.receive(listAnswer, list({recordAt(QTime(2, 0), 60, 2)}), 1));
    QCOMPARE(t.channel(1)->videoTimes(),
        QList<QList<int>>({{3600, 60, midnight + 3600, 1}, {7200, 60, midnight + 7200, 2}}));
}

void TestRecordListMessages::listEndsWithTheMessageThatSaysSo()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    for (const int hour : {1, 2, 3})
        QVERIFY(t.receive(listAnswer, list({recordAt(QTime(hour, 0), 60)}, hour == 3), 1));
    const QStringList lines = t.record.lines();
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.filter(endLine).size(), 1);
    QCOMPARE(lines.last(), endLine);
}

void TestRecordListMessages::dayWithoutRecordsIsToldAlone_data()
{
    QTest::addColumn<bool>("last");
    QTest::newRow("with the end flag") << true;
    QTest::newRow("without it") << false;
}

void TestRecordListMessages::dayWithoutRecordsIsToldAlone()
{
    QFETCH(bool, last);
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QByteArray message = list({recordAt(QTime(1, 0), 60)}, last);
    message.replace(4, 4, number(0, 4)); // the total
    QVERIFY(t.receive(listAnswer, message, 1));
    QCOMPARE(
        t.record.lines(), QStringList({"receiveVideoTimeEmptyMsg 1 0 no record has been found"}));
    QVERIFY(t.channel(1)->videoTimes().isEmpty());
    QVERIFY(t.channel(1)->videoTimeLoaded);
}

void TestRecordListMessages::firstAnswerMarksTheListAsLoaded()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    bool loaded = false;
    connect(t.io.get(), &IoConnect::receiveVideoTimeMsg, this,
        [&](Channel* channel) { loaded = channel->videoTimeLoaded; });
    QVERIFY(!t.channel(1)->videoTimeLoaded);
    QVERIFY(t.receive(listAnswer, list({recordAt(QTime(1, 0), 60)}, false), 1));
    QVERIFY(loaded);
    QVERIFY(!t.channel(0)->videoTimeLoaded);
}

// The block's third number is the last second of the day before.
void TestRecordListMessages::recordFromTheDayBeforeStartsAtMidnight()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    const QDateTime before(QDate(2024, 3, 8), QTime(23, 50), Qt::OffsetFromUTC, 7200);
    QVERIFY(t.receive(
        listAnswer, list({record(before.toUTC(), 3600, 2), recordAt(QTime(0, 40), 60)}), 1));
    QCOMPARE(t.record.lines(),
        QStringList({blockLine(0, 3600 - 599, midnight - 1, 2),
            blockLine(2400, 60, midnight + 2400), endLine}));
}

void TestRecordListMessages::lateRecordBeforeALaterOneIsKept()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(
        listAnswer, list({recordAt(QTime(23, 50), 300), recordAt(QTime(23, 58), 60)}), 1));
    QCOMPARE(t.record.lines(),
        QStringList({blockLine(85800, 300, midnight + 85800),
            blockLine(86280, 60, midnight + 86280), endLine}));
}

void TestRecordListMessages::lateRecordAloneIsKept()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(listAnswer, list({recordAt(QTime(23, 50), 300)}), 1));
    QCOMPARE(t.record.lines(), QStringList({blockLine(85800, 300, midnight + 85800), endLine}));
}

void TestRecordListMessages::onlyTheFirstRecordCanBeFromTheDayBefore()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(listAnswer,
        list(
            {recordAt(QTime(22, 0), 60), recordAt(QTime(23, 50), 300), recordAt(QTime(0, 10), 60)}),
        1));
    QCOMPARE(t.record.lines(),
        QStringList({blockLine(79200, 60, midnight + 79200),
            blockLine(85800, 300, midnight + 85800), blockLine(600, 60, midnight + 600), endLine}));
}

void TestRecordListMessages::lengthThatCannotBeCountsAsTenMinutes()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(listAnswer,
        list({recordAt(QTime(1, 0), 0), recordAt(QTime(2, 0), 86401), recordAt(QTime(3, 0), -1),
            recordAt(QTime(4, 0), 1)}),
        1));
    QList<int> lengths;
    for (const QList<int>& block : t.channel(1)->videoTimes())
        lengths.append(block.at(1));
    QCOMPARE(lengths, QList<int>({600, 600, 600, 1}));
}

void TestRecordListMessages::recordFromTheFutureIsDropped()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QVERIFY(t.receive(listAnswer,
        list({record(now.addDays(2), 60, 1), recordAt(QTime(1, 0), 60, 2),
            record(now.addSecs(86400 + 60), 60, 3), record(now.addSecs(86400 - 60), 60, 4)}),
        1));
    QList<int> eventTypes;
    for (const QList<int>& block : t.channel(1)->videoTimes())
        eventTypes.append(block.at(3));
    QCOMPARE(eventTypes, QList<int>({2, 4}));
    QCOMPARE(t.record.lines().size(), 3);
    QCOMPARE(t.record.lines().last(), endLine);
}

void TestRecordListMessages::countIsBoundedByTheMessage()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QByteArray message = list({recordAt(QTime(1, 0), 60), recordAt(QTime(2, 0), 60)});
    message[10] = '\xff'; // the count
    QVERIFY(t.receive(listAnswer, message, 1));
    QVERIFY(t.receive(listAnswer, message.left(12 + 16 + 15), 1)); // its second one in part
    QCOMPARE(t.channel(1)->videoTimes().size(), 3);
}

void TestRecordListMessages::messageOfAHeadAloneHasNoBlocks()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(listAnswer, list({}), 1));
    QCOMPARE(t.record.lines(), QStringList({endLine}));
}

ORVA_TEST(TestRecordListMessages)
#include "tst_recordlist.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
// The first record of a message, when it has begun in the last hour of a day.
#include "localzone.h"
#include "recordmessage.h"
#include "testmain.h"

#include <QTest>

using Blocks = QList<QList<int>>;

class TestRecordsAtMidnight final : public QObject
{
    Q_OBJECT

private slots:
    void aRecordOfTheDayBeforeKeepsWhatLiesBehindMidnight_data();
    void aRecordOfTheDayBeforeKeepsWhatLiesBehindMidnight();
    void onlyTimesOfDayAreCompared();
    void aRecordOfTheLastHourStaysWhereTheNextIsNotEarlier_data();
    void aRecordOfTheLastHourStaysWhereTheNextIsNotEarlier();
    void aRecordBeforeTheLastHourStays();
    void onlyTheFirstRecordIsLookedAt();
    void eachMessageHasItsOwnFirstRecord();
    void theOnlyRecordStays();
    void bytesBehindTheMessageAreNoNextRecord();
    void aNextRecordBeyondTheCountIsNone();
    void aNextRecordThatDoesNotExistIsNone();
    void aNextRecordFromTheFutureStillTellsTheDayBefore();
    void aFirstRecordFromTheFutureIsLeftOut();
    void unknownLengthCountsAsTenMinutes_data();
    void unknownLengthCountsAsTenMinutes();
    void anHourThatComesTwiceBeforeMidnightCountsOnce();
};

namespace {

void addRow(
    const char* name, const char* zone, const char* first, const char* next, const Blocks& blocks)
{
    QTest::newRow(name) << QByteArray(zone) << QByteArray(first) << QByteArray(next) << blocks;
}

} // namespace

// A record of an hour at local 23:50, followed by one at 00:40.
void TestRecordsAtMidnight::aRecordOfTheDayBeforeKeepsWhatLiesBehindMidnight_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("next");
    QTest::addColumn<Blocks>("blocks");
    addRow("UTC", "UTC", "2024-03-08 23:50:00", "2024-03-09 00:40:00",
        {{0, 3001, 1709942399, 7}, {2400, 60, 1709944800, 8}});
    addRow("Tokyo", "Asia/Tokyo", "2024-03-08 14:50:00", "2024-03-08 15:40:00",
        {{0, 3001, 1709909999, 7}, {2400, 60, 1709912400, 8}});
    const char* newYork = "America/New_York";
    addRow("New York", newYork, "2024-03-09 04:50:00", "2024-03-09 05:40:00",
        {{0, 3001, 1709960399, 7}, {2400, 60, 1709962800, 8}});
    addRow("New York, before the day of 23 hours", newYork, "2024-03-10 04:50:00",
        "2024-03-10 05:40:00", {{0, 3001, 1710046799, 7}, {2400, 60, 1710049200, 8}});
    addRow("New York, after the day of 23 hours", newYork, "2024-03-11 03:50:00",
        "2024-03-11 04:40:00", {{0, 3001, 1710129599, 7}, {2400, 60, 1710132000, 8}});
    addRow("New York, before the day of 25 hours", newYork, "2024-11-03 03:50:00",
        "2024-11-03 04:40:00", {{0, 3001, 1730606399, 7}, {2400, 60, 1730608800, 8}});
    addRow("New York, after the day of 25 hours", newYork, "2024-11-04 04:50:00",
        "2024-11-04 05:40:00", {{0, 3001, 1730696399, 7}, {2400, 60, 1730698800, 8}});
    addRow("from the first second of the hour", "UTC", "2024-03-08 23:00:00", "2024-03-09 00:40:00",
        {{0, 1, 1709942399, 7}, {2400, 60, 1709944800, 8}});
    addRow("from its last second", "UTC", "2024-03-08 23:59:59", "2024-03-09 00:40:00",
        {{0, 3600, 1709942399, 7}, {2400, 60, 1709944800, 8}});
    addRow("the next one second earlier in the day", "UTC", "2024-03-08 23:50:00",
        "2024-03-09 23:49:59", {{0, 3001, 1709942399, 7}, {85799, 60, 1710028199, 8}});
}

void TestRecordsAtMidnight::aRecordOfTheDayBeforeKeepsWhatLiesBehindMidnight()
{
    QFETCH(QByteArray, zone);
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, next);
    const LocalZone here(zone.constData());
    const RecordList list = readRecords(
        recordMessage({record(first.constData(), 3600, 7), record(next.constData(), 60, 8)}));
    QTEST(list.blocks, "blocks");
}

void TestRecordsAtMidnight::onlyTimesOfDayAreCompared()
{
    const LocalZone here("UTC");
    const RecordList list = readRecords(
        recordMessage({record("2024-03-09 23:50:00", 3600), record("2024-03-09 00:10:00")}));
    QCOMPARE(list.blocks, (Blocks{{0, 3001, 1710028799, 0}, {600, 60, 1709943000, 0}}));
}

void TestRecordsAtMidnight::aRecordOfTheLastHourStaysWhereTheNextIsNotEarlier_data()
{
    QTest::addColumn<QByteArray>("next");
    QTest::newRow("later on that day") << QByteArray("2024-03-09 23:58:00");
    QTest::newRow("a second later") << QByteArray("2024-03-09 23:50:01");
    QTest::newRow("at the same time") << QByteArray("2024-03-09 23:50:00");
    QTest::newRow("later on the next day") << QByteArray("2024-03-10 23:50:00");
}

void TestRecordsAtMidnight::aRecordOfTheLastHourStaysWhereTheNextIsNotEarlier()
{
    QFETCH(QByteArray, next);
    const LocalZone here("UTC");
    const RecordList list =
        readRecords(recordMessage({record("2024-03-09 23:50:00", 3600), record(next.constData())}));
    QCOMPARE(list.blocks.size(), 2);
    QCOMPARE(list.blocks[0], (QList<int>{85800, 3600, 1710028200, 0}));
}

void TestRecordsAtMidnight::aRecordBeforeTheLastHourStays()
{
    const LocalZone here("UTC");
    const RecordList list = readRecords(
        recordMessage({record("2024-03-08 22:59:59", 7200), record("2024-03-09 00:40:00")}));
    QCOMPARE(list.blocks.size(), 2);
    QCOMPARE(list.blocks[0], (QList<int>{82799, 7200, 1709938799, 0}));
}

void TestRecordsAtMidnight::onlyTheFirstRecordIsLookedAt()
{
    const LocalZone here("UTC");
    const RecordList list =
        readRecords(recordMessage({record("2024-03-08 11:00:00"), record("2024-03-08 12:00:00"),
            record("2024-03-08 23:50:00", 3600), record("2024-03-09 00:40:00")}));
    QCOMPARE(list.blocks.size(), 4);
    QCOMPARE(list.blocks[2], (QList<int>{85800, 3600, 1709941800, 0}));
}

void TestRecordsAtMidnight::eachMessageHasItsOwnFirstRecord()
{
    const LocalZone here("UTC");
    const QByteArray first = recordMessage({record("2024-03-09 22:00:00")});
    QCOMPARE(readRecords(first).blocks, (Blocks{{79200, 60, 1710021600, 0}}));
    const QByteArray second =
        recordMessage({record("2024-03-09 23:50:00", 3600), record("2024-03-09 23:55:00")});
    QCOMPARE(readRecords(second).blocks[0], (QList<int>{85800, 3600, 1710028200, 0}));
    const QByteArray third =
        recordMessage({record("2024-03-09 23:50:00", 3600), record("2024-03-10 00:55:00")});
    QCOMPARE(readRecords(third).blocks[0], (QList<int>{0, 3001, 1710028799, 0}));
}

void TestRecordsAtMidnight::theOnlyRecordStays()
{
    const LocalZone here("UTC");
    const RecordList list = readRecords(recordMessage({record("2024-03-09 23:50:00", 3600)}));
    QCOMPARE(list.blocks, (Blocks{{85800, 3600, 1710028200, 0}}));
}

// The zeros behind a message would read as an earlier time of day.
void TestRecordsAtMidnight::bytesBehindTheMessageAreNoNextRecord()
{
    const LocalZone here("UTC");
    const QByteArray message = recordMessage(
        2, 1, 2, {record("2024-03-09 23:50:00", 3600), record("2024-03-10 00:40:00").left(15)});
    QCOMPARE(readRecords(message).blocks, (Blocks{{85800, 3600, 1710028200, 0}}));
}

void TestRecordsAtMidnight::aNextRecordBeyondTheCountIsNone()
{
    const LocalZone here("UTC");
    const QByteArray message = recordMessage(
        2, 1, 1, {record("2024-03-09 23:50:00", 3600), record("2024-03-10 00:40:00")});
    QCOMPARE(readRecords(message).blocks, (Blocks{{85800, 3600, 1710028200, 0}}));
}

void TestRecordsAtMidnight::aNextRecordThatDoesNotExistIsNone()
{
    const LocalZone here("UTC");
    const QByteArray message =
        recordMessage({record("2024-03-09 23:50:00", 3600), record("2024-02-30 00:40:00")});
    QCOMPARE(readRecords(message).blocks, (Blocks{{85800, 3600, 1710028200, 0}}));
}

void TestRecordsAtMidnight::aNextRecordFromTheFutureStillTellsTheDayBefore()
{
    const LocalZone here("UTC");
    const QDateTime now(QDate(2024, 3, 9), QTime(12, 0), Qt::UTC);
    const QByteArray message =
        recordMessage({record("2024-03-08 23:50:00", 3600), record("2024-03-12 00:40:00")});
    QCOMPARE(readRecords(message, now).blocks, (Blocks{{0, 3001, 1709942399, 0}}));
}

void TestRecordsAtMidnight::aFirstRecordFromTheFutureIsLeftOut()
{
    const LocalZone here("UTC");
    const QDateTime now(QDate(2024, 3, 9), QTime(12, 0), Qt::UTC);
    const QByteArray message = recordMessage({record("2024-03-12 23:50:00", 3600),
        record("2024-03-08 23:50:00", 3600), record("2024-03-09 00:40:00")});
    QCOMPARE(readRecords(message, now).blocks,
        (Blocks{{85800, 3600, 1709941800, 0}, {2400, 60, 1709944800, 0}}));
}

void TestRecordsAtMidnight::unknownLengthCountsAsTenMinutes_data()
{
    QTest::addColumn<quint32>("sent");
    QTest::newRow("none") << 0U;
    QTest::newRow("more than a day") << 86401U;
}

void TestRecordsAtMidnight::unknownLengthCountsAsTenMinutes()
{
    QFETCH(quint32, sent);
    const LocalZone here("UTC");
    const RecordList list = readRecords(
        recordMessage({record("2024-03-08 23:55:00", sent), record("2024-03-09 00:40:00")}));
    QCOMPARE(list.blocks[0], (QList<int>{0, 301, 1709942399, 0}));
}

// On 16 February 2019 the clocks of Sao Paulo went from 24:00 back to 23:00.
void TestRecordsAtMidnight::anHourThatComesTwiceBeforeMidnightCountsOnce()
{
    const LocalZone here("America/Sao_Paulo");
    const RecordList list = readRecords(
        recordMessage({record("2019-02-17 02:50:00", 3600), record("2019-02-17 03:40:00")}));
    QCOMPARE(list.blocks[0], (QList<int>{0, 3001, 1550372399, 0}));
    const RecordList before = readRecords(
        recordMessage({record("2019-02-17 01:50:00", 3600), record("2019-02-17 03:40:00")}));
    QCOMPARE(before.blocks[0][0], 0);
    QCOMPARE(before.blocks[0][1], 3001);
}

ORVA_TEST(TestRecordsAtMidnight)

#include "tst_recordsatmidnight.moc"

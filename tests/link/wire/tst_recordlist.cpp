// SPDX-License-Identifier: GPL-3.0-or-later
// The list of records, in whatever zone, apart from the first record before midnight, which has a
// test of its own.
#include "localzone.h"
#include "recordmessage.h"
#include "testmain.h"

#include <QRandomGenerator>
#include <QTest>

using Blocks = QList<QList<int>>;

class TestRecordList final : public QObject
{
    Q_OBJECT

private slots:
    void aMessageByteByByte();
    void recordsAreToldInLocalTime_data();
    void recordsAreToldInLocalTime();
    void recordsKeepTheirOrder();

    void noRecordsAtAll();
    void noRecordsAtAllWithTheEndFlag();
    void totalIsUnsigned();
    void endFlagEndsTheList_data();
    void endFlagEndsTheList();
    void listInThreeMessagesEndsOnce();
    void messageWithoutRecordsCanEndTheList();

    void lengthOfARecord_data();
    void lengthOfARecord();
    void eventTypeIsPassedOn();

    void recordsFromTheFuture_data();
    void recordsFromTheFuture();
    void recordsFromTheFutureLeaveTheOthers();
    void nowMayBeInAnyZone();
    void datesThatDoNotExistAreLeftOut_data();
    void datesThatDoNotExistAreLeftOut();

    void countAboveWhatCame();
    void countBelowWhatCame();
    void asManyRecordsAsAMessageHolds();
    void everyBeginningHasTheRecordsThatCameWhole();
    void rubbishHasNoRecords();
    void randomBytesGiveWholeBlocks();
};

namespace {

QDateTime utc(int year, int month, int day, int hour, int minute, int second, int ms = 0)
{
    return {QDate(year, month, day), QTime(hour, minute, second, ms), Qt::UTC};
}

void addLocalTime(
    const char* name, const char* zone, const char* time, int secondOfDay, int sinceEpoch)
{
    QTest::newRow(name) << QByteArray(zone) << QByteArray(time) << secondOfDay << sinceEpoch;
}

} // namespace

void TestRecordList::aMessageByteByByte()
{
    const LocalZone here("UTC");
    const RecordList list =
        readRecords(fromHex("03 00 00 00  02 00 00 00  00 01 02 00"
                            "e8 07 03 09 00 07 05 02  02 00 00 00  10 0e 00 00"
                            "e8 07 03 09 00 17 3b 3b  00 00 00 00  01 00 00 00"));
    QVERIFY(!list.none);
    QVERIFY(list.last);
    QCOMPARE(list.blocks, (Blocks{{25502, 3600, 1709967902, 2}, {86399, 1, 1710028799, 0}}));
}

void TestRecordList::recordsAreToldInLocalTime_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QByteArray>("time");
    QTest::addColumn<int>("secondOfDay");
    QTest::addColumn<int>("sinceEpoch");
    addLocalTime("UTC", "UTC", "2024-03-09 07:05:02", 25502, 1709967902);
    addLocalTime("UTC, midnight", "UTC", "2024-03-09 00:00:00", 0, 1709942400);
    addLocalTime("Tokyo", "Asia/Tokyo", "2024-03-09 07:05:02", 57902, 1709967902);
    addLocalTime("Tokyo, midnight", "Asia/Tokyo", "2024-03-08 15:00:00", 0, 1709910000);
    addLocalTime("Tokyo, leap day", "Asia/Tokyo", "2024-02-28 15:00:01", 1, 1709132401);
    const char* newYork = "America/New_York";
    addLocalTime("New York", newYork, "2024-03-09 07:05:02", 7502, 1709967902);
    addLocalTime("New York, summer", newYork, "2024-07-01 04:00:00", 0, 1719806400);
    addLocalTime(
        "New York, before an hour is left out", newYork, "2024-03-10 06:59:59", 7199, 1710053999);
    addLocalTime("New York, behind it", newYork, "2024-03-10 07:00:00", 10800, 1710054000);
    addLocalTime(
        "New York, an hour for the first time", newYork, "2024-11-03 05:30:00", 5400, 1730611800);
    addLocalTime("New York, for the second time", newYork, "2024-11-03 06:30:00", 5400, 1730615400);
}

void TestRecordList::recordsAreToldInLocalTime()
{
    QFETCH(QByteArray, zone);
    QFETCH(QByteArray, time);
    QFETCH(int, secondOfDay);
    QFETCH(int, sinceEpoch);
    const LocalZone here(zone.constData());
    const RecordList list = readRecords(recordMessage({record(time.constData(), 60, 3)}));
    QCOMPARE(list.blocks, (Blocks{{secondOfDay, 60, sinceEpoch, 3}}));
}

void TestRecordList::recordsKeepTheirOrder()
{
    const LocalZone here("UTC");
    const RecordList list = readRecords(recordMessage({record("2024-03-09 12:00:00"),
        record("2024-03-09 08:00:00"), record("2024-03-09 08:00:00", 70)}));
    QCOMPARE(list.blocks,
        (Blocks{
            {43200, 60, 1709985600, 0}, {28800, 60, 1709971200, 0}, {28800, 70, 1709971200, 0}}));
}

void TestRecordList::noRecordsAtAll()
{
    const RecordList list = readRecords(recordMessage(0, 0, 0, {}));
    QVERIFY(list.none);
    QVERIFY(!list.last);
    QVERIFY(list.blocks.isEmpty());
}

void TestRecordList::noRecordsAtAllWithTheEndFlag()
{
    const RecordList list = readRecords(recordMessage(0, 1, 1, {record("2024-03-09 12:00:00")}));
    QVERIFY(list.none);
    QVERIFY(!list.last);
    QVERIFY(list.blocks.isEmpty());
}

void TestRecordList::totalIsUnsigned()
{
    for (const quint32 total : {1U, 0x100U, 0x01000000U, 0xffffffffU}) {
        const RecordList list =
            readRecords(recordMessage(total, 0, 1, {record("2024-03-09 12:00:00")}));
        QVERIFY(!list.none);
        QCOMPARE(list.blocks.size(), 1);
    }
}

void TestRecordList::endFlagEndsTheList_data()
{
    QTest::addColumn<int>("endFlag");
    QTest::addColumn<bool>("last");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << true;
    QTest::newRow("255") << 255 << true;
}

void TestRecordList::endFlagEndsTheList()
{
    QFETCH(int, endFlag);
    const RecordList list =
        readRecords(recordMessage(1, endFlag, 1, {record("2024-03-09 12:00:00")}));
    QTEST(list.last, "last");
    QVERIFY(!list.none);
    QCOMPARE(list.blocks.size(), 1);
}

void TestRecordList::listInThreeMessagesEndsOnce()
{
    const LocalZone here("UTC");
    Blocks blocks;
    QList<bool> ends;
    for (const QByteArray& message :
        {recordMessage({record("2024-03-09 01:00:00"), record("2024-03-09 02:00:00")}),
            recordMessage({record("2024-03-09 03:00:00")}),
            recordMessage({record("2024-03-09 04:00:00")}, true)}) {
        const RecordList list = readRecords(message);
        QVERIFY(!list.none);
        blocks += list.blocks;
        ends += list.last;
    }
    QCOMPARE(ends, (QList<bool>{false, false, true}));
    QCOMPARE(blocks,
        (Blocks{{3600, 60, 1709946000, 0}, {7200, 60, 1709949600, 0}, {10800, 60, 1709953200, 0},
            {14400, 60, 1709956800, 0}}));
}

void TestRecordList::messageWithoutRecordsCanEndTheList()
{
    const RecordList list = readRecords(recordMessage(3, 1, 0, {}));
    QVERIFY(!list.none);
    QVERIFY(list.last);
    QVERIFY(list.blocks.isEmpty());
}

void TestRecordList::lengthOfARecord_data()
{
    QTest::addColumn<quint32>("sent");
    QTest::addColumn<int>("length");
    QTest::newRow("none") << 0U << 600;
    QTest::newRow("a second") << 1U << 1;
    QTest::newRow("a second less than a day") << 86399U << 86399;
    QTest::newRow("a day") << 86400U << 86400;
    QTest::newRow("a second more than a day") << 86401U << 600;
    QTest::newRow("the largest that has no sign") << 0x7fffffffU << 600;
    QTest::newRow("the least with the upper bit") << 0x80000000U << 600;
    QTest::newRow("all bits set") << 0xffffffffU << 600;
}

void TestRecordList::lengthOfARecord()
{
    const LocalZone here("UTC");
    QFETCH(quint32, sent);
    QFETCH(int, length);
    const RecordList list = readRecords(recordMessage({record("2024-03-09 12:00:00", sent)}));
    QCOMPARE(list.blocks, (Blocks{{43200, length, 1709985600, 0}}));
}

void TestRecordList::eventTypeIsPassedOn()
{
    for (const int type : {0, 1, 127, 128, 255}) {
        const RecordList list =
            readRecords(recordMessage({record("2024-03-09 12:00:00", 60, type)}));
        QCOMPARE(list.blocks.size(), 1);
        QCOMPARE(list.blocks[0][3], type);
    }
}

// A record of 9 March 2024, 12:00:00 UTC.
void TestRecordList::recordsFromTheFuture_data()
{
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<bool>("kept");
    QTest::newRow("of this second") << utc(2024, 3, 9, 12, 0, 0) << true;
    QTest::newRow("a second ahead") << utc(2024, 3, 9, 11, 59, 59) << true;
    QTest::newRow("a second less than a day ahead") << utc(2024, 3, 8, 12, 0, 1) << true;
    QTest::newRow("a day ahead") << utc(2024, 3, 8, 12, 0, 0) << true;
    QTest::newRow("a second more than a day ahead") << utc(2024, 3, 8, 11, 59, 59) << false;
    QTest::newRow("a second more, late in the second") << utc(2024, 3, 8, 11, 59, 59, 999) << false;
    QTest::newRow("two days ahead") << utc(2024, 3, 7, 12, 0, 0) << false;
    QTest::newRow("years ahead") << utc(1980, 1, 1, 0, 0, 0) << false;
}

void TestRecordList::recordsFromTheFuture()
{
    QFETCH(QDateTime, now);
    QFETCH(bool, kept);
    const QByteArray message = recordMessage({record("2024-03-09 12:00:00")});
    for (const char* zone : {"UTC", "Asia/Tokyo", "America/New_York"}) {
        const LocalZone here(zone);
        QCOMPARE(readRecords(message, now).blocks.size(), kept ? 1 : 0);
    }
}

void TestRecordList::recordsFromTheFutureLeaveTheOthers()
{
    const LocalZone here("UTC");
    const QByteArray message =
        recordMessage({record("2024-03-11 12:00:00"), record("2024-03-09 10:00:00"),
                          record("2027-01-01 00:00:00"), record("2024-03-09 11:00:00")},
            true);
    const RecordList list = readRecords(message, utc(2024, 3, 9, 12, 0, 0));
    QVERIFY(list.last);
    QVERIFY(!list.none);
    QCOMPARE(list.blocks, (Blocks{{36000, 60, 1709978400, 0}, {39600, 60, 1709982000, 0}}));
}

void TestRecordList::nowMayBeInAnyZone()
{
    const QByteArray message = recordMessage({record("2024-03-09 12:00:00")});
    for (const char* zone : {"UTC", "Asia/Tokyo", "America/New_York"}) {
        const LocalZone here(zone);
        QCOMPARE(readRecords(message, utc(2024, 3, 8, 12, 0, 0).toLocalTime()).blocks.size(), 1);
        QCOMPARE(readRecords(message, utc(2024, 3, 8, 11, 59, 59).toLocalTime()).blocks.size(), 0);
    }
}

void TestRecordList::datesThatDoNotExistAreLeftOut_data()
{
    QTest::addColumn<QByteArray>("time");
    for (const char* time : {"2024-00-09 12:00:00", "2024-13-09 12:00:00", "2024-03-00 12:00:00",
             "2024-02-30 12:00:00", "2023-02-29 12:00:00", "2024-04-31 12:00:00",
             "0000-03-09 12:00:00", "2024-03-09 24:00:00", "2024-03-09 12:60:00",
             "2024-03-09 12:00:60", "0000-00-00 00:00:00"})
        QTest::newRow(time) << QByteArray(time);
}

void TestRecordList::datesThatDoNotExistAreLeftOut()
{
    QFETCH(QByteArray, time);
    const LocalZone here("UTC");
    const RecordList list = readRecords(
        recordMessage({record(time.constData()), record("2024-03-09 12:00:00", 60, 1)}, true));
    QVERIFY(list.last);
    QCOMPARE(list.blocks, (Blocks{{43200, 60, 1709985600, 1}}));
}

void TestRecordList::countAboveWhatCame()
{
    const QList<QByteArray> two{record("2024-03-09 01:00:00"), record("2024-03-09 02:00:00")};
    for (const int count : {2, 3, 255})
        QCOMPARE(readRecords(recordMessage(2, 1, count, two)).blocks.size(), 2);
    QVERIFY(readRecords(recordMessage(2, 1, 255, {})).blocks.isEmpty());
}

void TestRecordList::countBelowWhatCame()
{
    const LocalZone here("UTC");
    const RecordList list = readRecords(
        recordMessage(2, 1, 1, {record("2024-03-09 01:00:00"), record("2024-03-09 02:00:00")}));
    QCOMPARE(list.blocks, (Blocks{{3600, 60, 1709946000, 0}}));
}

void TestRecordList::asManyRecordsAsAMessageHolds()
{
    const LocalZone here("UTC");
    QList<QByteArray> records;
    for (int i = 0; i < 63; ++i)
        records.append(record("2024-03-09 12:00:00", static_cast<quint32>(i + 1)));
    const QByteArray message = recordMessage(63, 1, 255, records);
    QCOMPARE(message.size(), 1020);
    for (const QByteArray& whole : {message, message + QByteArray(4, 'z')}) {
        const RecordList list = readRecords(whole);
        QCOMPARE(list.blocks.size(), 63);
        for (int i = 0; i < 63; ++i)
            QCOMPARE(list.blocks[i][1], i + 1);
    }
}

void TestRecordList::everyBeginningHasTheRecordsThatCameWhole()
{
    const LocalZone here("UTC");
    const Blocks blocks{
        {3600, 60, 1709946000, 1}, {7200, 60, 1709949600, 2}, {10800, 60, 1709953200, 3}};
    const QByteArray message =
        recordMessage({record("2024-03-09 01:00:00", 60, 1), record("2024-03-09 02:00:00", 60, 2),
                          record("2024-03-09 03:00:00", 60, 3)},
            true);
    for (int length = 0; length <= message.size(); ++length) {
        const RecordList list = readRecords(message.left(length));
        QCOMPARE(list.none, length < 5); // the total is 0 until its first byte has come
        QCOMPARE(list.last, length >= 10);
        QCOMPARE(list.blocks, blocks.mid(0, std::max(length - 12, 0) / 16));
    }
}

void TestRecordList::rubbishHasNoRecords()
{
    const RecordList list = readRecords(QByteArray(1024, '\xff'));
    QVERIFY(!list.none);
    QVERIFY(list.last);
    QVERIFY(list.blocks.isEmpty());
    QVERIFY(readRecords(QByteArray(1024, '\x7f')).blocks.isEmpty());
    QVERIFY(readRecords(QByteArray(1024, '\x01')).blocks.size() == 1);
}

void TestRecordList::randomBytesGiveWholeBlocks()
{
    QRandomGenerator random(20240309);
    for (int round = 0; round < 2000; ++round) {
        QByteArray message(random.bounded(ioctrlBufferBytes + 1), Qt::Uninitialized);
        for (char& byte : message)
            byte = static_cast<char>(random.bounded(256));
        const RecordList list = readRecords(message);
        QVERIFY(list.blocks.size() <= std::max(message.size() - 12, 0) / 16);
        for (const QList<int>& block : list.blocks) {
            QCOMPARE(block.size(), 4);
            QVERIFY(block[0] >= 0 && block[0] < 86400);
            QVERIFY(block[1] > -3600 && block[1] <= 86400);
            QVERIFY(block[3] >= 0 && block[3] < 256);
        }
    }
}

ORVA_TEST(TestRecordList)

#include "tst_recordlist.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "wall/recordedblocks.h"

#include <QTest>

#include <limits>

// The pool of recorded blocks, and where it lets a playback begin.
class TestRecordedBlocks final : public QObject
{
    Q_OBJECT

private slots:
    void newPoolIsEmpty();
    void blocksAreKeptInTheirOrder();
    void shortBlockIsFilledUp_data();
    void shortBlockIsFilledUp();
    void longBlockIsCut();
    void blockThatIsNotThereIsEmpty_data();
    void blockThatIsNotThereIsEmpty();

    void emptyPoolStartsAtThePoint();
    void playbackStartsAtTheBlockOfThePoint_data();
    void playbackStartsAtTheBlockOfThePoint();
    void lengthOfABlockDoesNotMatter();
    void nextBlockIsTheEarliestThatDoesNotLieBefore_data();
    void nextBlockIsTheEarliestThatDoesNotLieBefore();
    void partOfASecondDoesNotCount();

    void poolForgetsItsOlderHalfWhenItIsFull();
};

namespace {

constexpr int noon = 1709985600; // 9 March 2024, 12:00:00 UTC
constexpr int hour = 3600;
constexpr int day = 24 * hour;

QDateTime at(qint64 epochSecond)
{
    return QDateTime::fromSecsSinceEpoch(epochSecond);
}

// The second of the day is nonsense, and does not count.
QList<int> block(int epochStart, int length = hour)
{
    return {7, length, epochStart, 1};
}

RecordedBlocks poolOf(const QList<int>& epochStarts)
{
    RecordedBlocks pool;
    for (const int start : epochStarts)
        pool.append(block(start));
    return pool;
}

// In an order that is not that of the day; the last two are of the days beside.
RecordedBlocks severalDays()
{
    return poolOf({noon + hour, noon - 2 * hour, noon, noon - day, noon + day});
}

} // namespace

void TestRecordedBlocks::newPoolIsEmpty()
{
    const RecordedBlocks pool;
    QCOMPARE(pool.count(), 0);
    QVERIFY(pool.at(0).isEmpty());
}

void TestRecordedBlocks::blocksAreKeptInTheirOrder()
{
    RecordedBlocks pool;
    pool.append({43200, 60, noon, 1});
    pool.append({0, 3600, noon - day, 0});
    pool.append({43200, 60, noon, 1}); // another channel's, or told once more
    QCOMPARE(pool.count(), 3);
    QCOMPARE(pool.at(0), QList<int>({43200, 60, noon, 1}));
    QCOMPARE(pool.at(1), QList<int>({0, 3600, noon - day, 0}));
    QCOMPARE(pool.at(2), pool.at(0));
}

void TestRecordedBlocks::shortBlockIsFilledUp_data()
{
    QTest::addColumn<QList<int>>("given");
    QTest::addColumn<QList<int>>("kept");
    QTest::newRow("nothing") << QList<int>() << QList<int>({0, 0, 0, 0});
    QTest::newRow("one") << QList<int>({5}) << QList<int>({5, 0, 0, 0});
    QTest::newRow("three") << QList<int>({5, 6, 7}) << QList<int>({5, 6, 7, 0});
}

void TestRecordedBlocks::shortBlockIsFilledUp()
{
    QFETCH(QList<int>, given);
    RecordedBlocks pool;
    pool.append(given);
    QCOMPARE(pool.count(), 1);
    QTEST(pool.at(0), "kept");
}

void TestRecordedBlocks::longBlockIsCut()
{
    RecordedBlocks pool;
    pool.append({1, 2, 3, 4, 5, 6});
    QCOMPARE(pool.at(0), QList<int>({1, 2, 3, 4}));
}

void TestRecordedBlocks::blockThatIsNotThereIsEmpty_data()
{
    QTest::addColumn<int>("index");
    for (const int index :
        {-1, 2, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QTest::addRow("%d", index) << index;
}

void TestRecordedBlocks::blockThatIsNotThereIsEmpty()
{
    QFETCH(int, index);
    QVERIFY(poolOf({noon, noon + hour}).at(index).isEmpty());
}

void TestRecordedBlocks::emptyPoolStartsAtThePoint()
{
    const RecordedBlocks pool;
    QCOMPARE(pool.playStart(at(noon)), at(noon));
    QVERIFY(!pool.nextStart(at(noon)).has_value());
    QVERIFY(!pool.nextStart(at(0)).has_value());
}

void TestRecordedBlocks::playbackStartsAtTheBlockOfThePoint_data()
{
    QTest::addColumn<int>("point");
    QTest::addColumn<int>("start");
    QTest::newRow("in a block") << noon + 10 << noon;
    QTest::newRow("at its start") << noon << noon;
    QTest::newRow("right before it") << noon - 1 << noon - 2 * hour;
    QTest::newRow("in the block of the day before") << noon - day + 1 << noon - day;
    QTest::newRow("after the last block") << noon + 3 * day << noon + day;
    QTest::newRow("at the first block") << noon - day << noon - day;
    QTest::newRow("before the first block") << noon - day - 1 << noon - day;
    QTest::newRow("long before the first block") << 0 << noon - day;
}

void TestRecordedBlocks::playbackStartsAtTheBlockOfThePoint()
{
    QFETCH(int, point);
    QFETCH(int, start);
    QCOMPARE(severalDays().playStart(at(point)), at(start));
}

void TestRecordedBlocks::lengthOfABlockDoesNotMatter()
{
    RecordedBlocks pool;
    pool.append(block(noon, 10)); // long over
    pool.append(block(noon + 3 * hour, 10));
    QCOMPARE(pool.playStart(at(noon + hour)), at(noon));
    QCOMPARE(pool.nextStart(at(noon + 1)), at(noon + 3 * hour));
}

void TestRecordedBlocks::nextBlockIsTheEarliestThatDoesNotLieBefore_data()
{
    QTest::addColumn<int>("point");
    QTest::addColumn<int>("next"); // 0: none
    QTest::newRow("at a start") << noon << noon;
    QTest::newRow("after a start") << noon + 1 << noon + hour;
    QTest::newRow("before all") << noon - 2 * day << noon - day;
    QTest::newRow("on the next day") << noon + hour + 1 << noon + day;
    QTest::newRow("at the last start") << noon + day << noon + day;
    QTest::newRow("after all") << noon + day + 1 << 0;
}

void TestRecordedBlocks::nextBlockIsTheEarliestThatDoesNotLieBefore()
{
    QFETCH(int, point);
    QFETCH(int, next);
    const std::optional<QDateTime> found = severalDays().nextStart(at(point));
    QCOMPARE(found.has_value(), next != 0);
    if (found)
        QCOMPARE(*found, at(next));
}

void TestRecordedBlocks::partOfASecondDoesNotCount()
{
    const QDateTime point = at(noon).addMSecs(999);
    QCOMPARE(severalDays().playStart(point), at(noon));
    QCOMPARE(severalDays().nextStart(point), at(noon));
}

void TestRecordedBlocks::poolForgetsItsOlderHalfWhenItIsFull()
{
    RecordedBlocks pool;
    QList<int> next = block(0);
    for (int i = 0; i < RecordedBlocks::most; ++i) {
        next[2] = i;
        pool.append(next);
    }
    QCOMPARE(pool.count(), RecordedBlocks::most);
    QCOMPARE(pool.at(0), block(0));

    pool.append(block(noon));
    const int half = RecordedBlocks::most / 2;
    QCOMPARE(pool.count(), half + 1);
    QCOMPARE(pool.at(0), block(half));
    QCOMPARE(pool.at(half - 1), block(RecordedBlocks::most - 1));
    QCOMPARE(pool.at(half), block(noon));
    QCOMPARE(pool.playStart(at(10)), at(half)); // those before are forgotten
}

ORVA_TEST(TestRecordedBlocks)
#include "tst_recordedblocks.moc"

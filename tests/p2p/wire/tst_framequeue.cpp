// SPDX-License-Identifier: GPL-3.0-or-later
#include "src/framequeue.h"
#include "testmain.h"

#include <QTest>

namespace {

AssembledFrame frame(std::uint32_t number, bool key = false, std::size_t size = 10)
{
    AssembledFrame made;
    made.number = number;
    made.announcedSize = static_cast<std::uint32_t>(size);
    made.info[2] = key ? 1 : 0;
    made.bytes.assign(size, 'f');
    return made;
}

AssembledFrame inPart(std::uint32_t number, bool key = false)
{
    AssembledFrame made = frame(number, key);
    made.announcedSize = 20;
    return made;
}

// Takes what waits: the numbers of the frames, "-" for lost ones.
QString drained(FrameQueue& queue)
{
    QStringList items;
    while (queue.size() > 0) {
        const auto item = queue.take();
        if (!item)
            qFatal("a size without an item");
        items += *item ? QString::number((*item)->number) : QStringLiteral("-");
    }
    if (queue.take())
        qFatal("an item without a size");
    return items.join(QLatin1Char(' '));
}

constexpr FrameQueue::Limits roomy{100, 100000, true};
constexpr FrameQueue::Limits fourByKey{4, 100000, true};
constexpr FrameQueue::Limits fourOneByOne{4, 100000, false};

void putRange(FrameQueue& queue, std::uint32_t first, std::uint32_t last)
{
    for (std::uint32_t number = first; number <= last; ++number)
        queue.put(frame(number));
}

} // namespace

class TestFrameQueue final : public QObject
{
    Q_OBJECT

private slots:
    void framesComeOutInOrder()
    {
        FrameQueue queue(roomy);
        QVERIFY(!queue.take());
        putRange(queue, 1, 5);
        QCOMPARE(queue.size(), std::size_t{5});
        QCOMPARE(drained(queue), QStringLiteral("1 2 3 4 5"));
    }

    void frameComesOutAsItWentIn()
    {
        FrameQueue queue(roomy);
        queue.put(frame(9, true, 1234));
        const auto item = queue.take();
        QVERIFY(item && *item);
        QCOMPARE((*item)->number, 9U);
        QCOMPARE((*item)->bytes.size(), std::size_t{1234});
        QVERIFY((*item)->whole() && (*item)->key());
    }

    void frameInPartIsKept()
    {
        FrameQueue queue(roomy);
        queue.put(frame(1));
        queue.put(inPart(2));
        queue.put(frame(3));
        queue.take();
        const auto item = queue.take();
        QVERIFY(item && *item && !(*item)->whole());
        QCOMPARE(drained(queue), QStringLiteral("3"));
    }

    void firstFrameMayHaveAnyNumber()
    {
        FrameQueue queue(roomy);
        queue.put(frame(4000000000U));
        QCOMPARE(drained(queue), QStringLiteral("4000000000"));
    }

    void gapInTheNumbersIsOneMark()
    {
        FrameQueue queue(roomy);
        queue.put(frame(1));
        queue.put(frame(3));
        queue.put(frame(4));
        queue.put(frame(1000));
        QCOMPARE(queue.size(), std::size_t{6});
        QCOMPARE(drained(queue), QStringLiteral("1 - 3 4 - 1000"));
    }

    void gapBehindTakenFramesIsAMark()
    {
        FrameQueue queue(roomy);
        queue.put(frame(1));
        QCOMPARE(drained(queue), QStringLiteral("1"));
        queue.put(frame(3));
        QCOMPARE(drained(queue), QStringLiteral("- 3"));
    }

    void numberThatComesAgainIsAMark()
    {
        FrameQueue queue(roomy);
        queue.put(frame(5));
        queue.put(frame(5));
        queue.put(frame(4));
        QCOMPARE(drained(queue), QStringLiteral("5 - 5 - 4"));
    }

    void numbersWrap()
    {
        FrameQueue queue(roomy);
        for (std::uint32_t number = 0xfffffffe; number != 2; ++number)
            queue.put(frame(number));
        queue.put(frame(3));
        QCOMPARE(drained(queue), QStringLiteral("4294967294 4294967295 0 1 - 3"));
    }

    void framesUpToTheLimitsStay()
    {
        FrameQueue queue({4, 40, true});
        putRange(queue, 1, 4);
        QCOMPARE(drained(queue), QStringLiteral("1 2 3 4"));
    }

    void pastTheNumberFramesAreDroppedUpToTheNextKeyFrame()
    {
        FrameQueue queue(fourByKey);
        queue.put(frame(1, true));
        putRange(queue, 2, 3);
        queue.put(frame(4, true));
        queue.put(frame(5));
        QCOMPARE(queue.size(), std::size_t{3});
        QCOMPARE(drained(queue), QStringLiteral("- 4 5"));
    }

    void pastTheBytesFramesAreDroppedUpToTheNextKeyFrame()
    {
        FrameQueue queue({100, 1000, true});
        queue.put(frame(1, true, 400));
        queue.put(frame(2, true, 300));
        queue.put(frame(3, false, 300));
        QCOMPARE(queue.size(), std::size_t{3});
        queue.put(frame(4, false, 1));
        QCOMPARE(drained(queue), QStringLiteral("- 2 3 4"));
    }

    void keyFramesThatDoNotFitAreDroppedToo()
    {
        FrameQueue queue({100, 1000, true});
        queue.put(frame(1, true, 100));
        queue.put(frame(2, true, 800));
        queue.put(frame(3, true, 900));
        QCOMPARE(drained(queue), QStringLiteral("- 3"));
    }

    void takenFramesMakeRoom()
    {
        FrameQueue queue({4, 40, true});
        for (std::uint32_t number = 1; number <= 50; ++number) {
            queue.put(frame(number));
            if (number > 3) {
                const auto item = queue.take();
                QVERIFY(item && *item);
                QCOMPARE((*item)->number, number - 3);
            }
        }
    }

    void withoutAKeyFrameAllIsDroppedUntilOneComes()
    {
        FrameQueue queue(fourByKey);
        queue.put(frame(1, true));
        putRange(queue, 2, 8);
        QCOMPARE(queue.size(), std::size_t{1});
        queue.put(frame(9, true));
        queue.put(frame(10));
        QCOMPARE(drained(queue), QStringLiteral("- 9 10"));
    }

    void runOfLostFramesIsOneMarkAlsoWhenItIsTakenEarly()
    {
        FrameQueue queue(fourByKey);
        putRange(queue, 1, 5);
        QCOMPARE(drained(queue), QStringLiteral("-"));
        putRange(queue, 6, 7);
        queue.put(frame(9));
        QCOMPARE(drained(queue), QString());
        queue.put(frame(12, true));
        QCOMPARE(drained(queue), QStringLiteral("12"));
        queue.put(frame(14));
        QCOMPARE(drained(queue), QStringLiteral("- 14"));
    }

    void framesDroppedRightBehindATakenMarkAreTheSameRun_data()
    {
        QTest::addColumn<bool>("byKeyFrame");
        QTest::newRow("pictures") << true;
        QTest::newRow("sound") << false;
    }
    void framesDroppedRightBehindATakenMarkAreTheSameRun()
    {
        QFETCH(const bool, byKeyFrame);
        FrameQueue queue({4, 100000, byKeyFrame});
        queue.put(frame(1));
        for (std::uint32_t number = 3; number <= 5; ++number)
            queue.put(frame(number, true));
        queue.take();
        const auto mark = queue.take();
        QVERIFY(mark && !*mark);
        queue.put(frame(6, true));
        queue.put(frame(7, true));
        QCOMPARE(queue.size(), std::size_t{4});
        QCOMPARE(drained(queue), QStringLiteral("4 5 6 7"));
    }

    void keyFrameInPartEndsNoWaiting()
    {
        FrameQueue queue(fourByKey);
        putRange(queue, 1, 5);
        queue.put(inPart(6, true));
        queue.put(frame(7));
        queue.put(frame(8, true));
        QCOMPARE(drained(queue), QStringLiteral("- 8"));
    }

    void framesAreNotKeptFromAKeyFrameInPartOn()
    {
        FrameQueue queue(fourByKey);
        queue.put(frame(1, true));
        queue.put(inPart(2, true));
        queue.put(frame(3));
        queue.put(frame(4, true));
        queue.put(frame(5));
        QCOMPARE(drained(queue), QStringLiteral("- 4 5"));
    }

    void soundIsDroppedOneByOne()
    {
        FrameQueue queue(fourOneByOne);
        putRange(queue, 1, 6);
        QCOMPARE(queue.size(), std::size_t{5});
        QCOMPARE(drained(queue), QStringLiteral("- 3 4 5 6"));
        putRange(queue, 7, 10);
        QCOMPARE(drained(queue), QStringLiteral("7 8 9 10"));
    }

    void marksOfDroppedFramesMelt()
    {
        FrameQueue queue(fourOneByOne);
        for (const std::uint32_t number : {1, 3, 5, 7, 9})
            queue.put(frame(number));
        QCOMPARE(drained(queue), QStringLiteral("- 3 - 5 - 7 - 9"));
    }

    void frameBeyondAllLimitsIsLost()
    {
        FrameQueue queue({4, 100, false});
        queue.put(frame(1, false, 101));
        QCOMPARE(drained(queue), QStringLiteral("-"));
        queue.put(frame(2));
        QCOMPARE(drained(queue), QStringLiteral("2"));
    }

    void itemsStayBoundedWhateverComes()
    {
        FrameQueue queue(fourOneByOne);
        for (std::uint32_t number = 0; number < 1000; number += 2) {
            queue.put(frame(number));
            QVERIFY(queue.size() <= 2 * fourOneByOne.frames);
        }
    }

    void clearEmptiesTheQueue()
    {
        FrameQueue queue({4, 40, true});
        putRange(queue, 1, 3);
        queue.put(frame(9));
        queue.clear();
        QCOMPARE(queue.size(), std::size_t{0});
        QVERIFY(!queue.take());
        // Room for as much as before, and no loss where the numbers go on.
        putRange(queue, 10, 13);
        QCOMPARE(drained(queue), QStringLiteral("10 11 12 13"));
    }

    void clearWhileWaitingForAKeyFrameGoesOnWaiting()
    {
        FrameQueue queue(fourByKey);
        putRange(queue, 1, 5);
        queue.clear();
        putRange(queue, 6, 7);
        queue.put(frame(8, true));
        QCOMPARE(drained(queue), QStringLiteral("- 8"));
    }

    void lossBehindAClearIsMarkedAgain()
    {
        FrameQueue queue(roomy);
        queue.put(frame(1));
        queue.put(frame(3));
        queue.take();
        queue.take();
        queue.clear();
        queue.put(frame(5));
        QCOMPARE(drained(queue), QStringLiteral("- 5"));
    }
};

ORVA_TEST(TestFrameQueue)
#include "tst_framequeue.moc"

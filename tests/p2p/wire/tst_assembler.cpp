// SPDX-License-Identifier: GPL-3.0-or-later
#include "fragments.h"
#include "testmain.h"

#include <QTest>

#include <algorithm>

namespace {

constexpr std::size_t firstPayload = 1428;
constexpr std::size_t laterPayload = 1444;
constexpr std::size_t fourPackets = firstPayload + 3 * laterPayload;

Fragment fragmentOf(std::uint32_t number, std::uint32_t size, std::uint16_t index,
    std::string_view payload, bool last = false)
{
    static const std::string info = frameInfo(false);
    return {Media::Video, last, index, number, size,
        index == 0 ? std::string_view(info) : std::string_view(), payload};
}

// Gives the packets one by one and collects what they end.
std::vector<AssembledFrame> giveAll(Assembler& assembler, const std::vector<std::string>& packets)
{
    std::vector<AssembledFrame> ended;
    for (const std::string& packet : packets) {
        for (AssembledFrame& frame : give(assembler, packet))
            ended.push_back(std::move(frame));
    }
    return ended;
}

std::vector<std::string> picked(
    const std::vector<std::string>& packets, const std::vector<std::size_t>& indexes)
{
    std::vector<std::string> some;
    some.reserve(indexes.size());
    for (const std::size_t index : indexes)
        some.push_back(packets[index]);
    return some;
}

} // namespace

class TestAssembler final : public QObject
{
    Q_OBJECT

private slots:
    void frameOfAnySizeComesBack_data()
    {
        QTest::addColumn<quint32>("size");
        for (const quint32 size : {1U, 2U, 1427U, 1428U, 1429U, 1443U, 1444U, 1445U, 2871U, 2872U,
                 2873U, 100000U, 2304000U, 4194304U})
            QTest::addRow("%u bytes", size) << size;
    }
    void frameOfAnySizeComesBack()
    {
        QFETCH(const quint32, size);
        Assembler assembler;
        const std::vector<std::string> packets = packetsOf(7, size, true);
        for (std::size_t i = 0; i + 1 < packets.size(); ++i)
            QVERIFY(give(assembler, packets[i]).empty());
        const auto ended = give(assembler, packets.back());
        QCOMPARE(ended.size(), std::size_t{1});
        QVERIFY(isWhole(ended[0], 7, size));
        QVERIFY(std::string(ended[0].info.begin(), ended[0].info.end()) == frameInfo(true));
        QVERIFY(ended[0].key());
    }

    void onlyTheFlagMakesAKeyFrame()
    {
        AssembledFrame frame;
        for (int flag = 0; flag < 256; ++flag) {
            frame.info[2] = static_cast<char>(flag);
            QCOMPARE(frame.key(), flag == 1);
        }
    }

    void framesFollowEachOther()
    {
        Assembler assembler;
        for (std::uint32_t number = 0xfffffffd; number != 3; ++number) {
            const auto ended = giveAll(assembler, packetsOf(number, 3000));
            QCOMPARE(ended.size(), std::size_t{1});
            QVERIFY(isWhole(ended[0], number, 3000));
        }
    }

    void frameWithoutItsFirstFragmentIsDropped()
    {
        Assembler assembler;
        QVERIFY(giveAll(assembler, picked(packetsOf(1, fourPackets), {1, 2, 3})).empty());
        QVERIFY(isWhole(giveAll(assembler, packetsOf(2, 10)).at(0), 2, 10));
    }

    void frameWithoutAMiddleFragmentComesInPartAtTheGap()
    {
        Assembler assembler;
        const auto packets = packetsOf(1, fourPackets);
        QVERIFY(giveAll(assembler, picked(packets, {0, 1})).empty());
        const auto ended = give(assembler, packets[3]);
        QCOMPARE(ended.size(), std::size_t{1});
        QVERIFY(isInPart(ended[0], 1, fourPackets, firstPayload + laterPayload));
        QVERIFY(isWhole(giveAll(assembler, packetsOf(2, 3000)).at(0), 2, 3000));
    }

    void frameWithoutItsLastFragmentComesInPartWithTheNext()
    {
        Assembler assembler;
        QVERIFY(giveAll(assembler, picked(packetsOf(1, fourPackets), {0, 1, 2})).empty());
        const auto ended = giveAll(assembler, packetsOf(2, 10));
        QCOMPARE(ended.size(), std::size_t{2});
        QVERIFY(isInPart(ended[0], 1, fourPackets, fourPackets - laterPayload));
        QVERIFY(isWhole(ended[1], 2, 10));
    }

    void fragmentsInAnyOtherOrderNeverMakeAWholeFrame()
    {
        const auto packets = packetsOf(1, fourPackets);
        std::vector<std::size_t> order{0, 1, 2, 3};
        while (std::next_permutation(order.begin(), order.end())) {
            Assembler assembler;
            for (const AssembledFrame& frame : giveAll(assembler, picked(packets, order)))
                QVERIFY(!frame.whole());
        }
    }

    void fragmentThatComesTwiceBreaksTheFrameOff()
    {
        Assembler assembler;
        const auto ended = giveAll(assembler, picked(packetsOf(1, fourPackets), {0, 1, 1, 2, 3}));
        QCOMPARE(ended.size(), std::size_t{1});
        QVERIFY(isInPart(ended[0], 1, fourPackets, firstPayload + laterPayload));
    }

    void firstFragmentAnewBeginsTheFrameAnew()
    {
        Assembler assembler;
        const auto ended =
            giveAll(assembler, picked(packetsOf(1, fourPackets), {0, 1, 0, 1, 2, 3}));
        QCOMPARE(ended.size(), std::size_t{2});
        QVERIFY(isInPart(ended[0], 1, fourPackets, firstPayload + laterPayload));
        QVERIFY(isWhole(ended[1], 1, fourPackets));
    }

    void fragmentOfAnotherFrameBreaksTheFrameOff_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::addColumn<quint32>("size");
        QTest::addColumn<quint32>("index");
        QTest::newRow("another number") << 2U << 3000U << 1U;
        QTest::newRow("a larger size") << 1U << 3001U << 1U;
        QTest::newRow("a smaller size") << 1U << 1001U << 1U;
        QTest::newRow("a later place") << 1U << 3000U << 2U;
        QTest::newRow("the last place there is") << 1U << 3000U << 65535U;
    }
    void fragmentOfAnotherFrameBreaksTheFrameOff()
    {
        QFETCH(const quint32, number);
        QFETCH(const quint32, size);
        QFETCH(const quint32, index);
        Assembler assembler;
        const std::string begin = frameBytes(3000, 1).substr(0, 1000);
        QVERIFY(assembler.take(fragmentOf(1, 3000, 0, begin)).empty());
        const auto place = static_cast<std::uint16_t>(index);
        const auto ended = assembler.take(fragmentOf(number, size, place, "x"));
        QCOMPARE(ended.size(), std::size_t{1});
        QVERIFY(isInPart(ended[0], 1, 3000, 1000));
        const std::string rest = frameBytes(3000, 1).substr(1000);
        QVERIFY(assembler.take(fragmentOf(1, 3000, 1, rest, true)).empty());
    }

    void payloadBeyondTheFrameBreaksItOff()
    {
        Assembler assembler;
        const std::string begin = frameBytes(1000, 1).substr(0, 990);
        QVERIFY(assembler.take(fragmentOf(1, 1000, 0, begin)).empty());
        const auto ended = assembler.take(fragmentOf(1, 1000, 1, std::string(11, 'x'), true));
        QCOMPARE(ended.size(), std::size_t{1});
        QVERIFY(isInPart(ended[0], 1, 1000, 990));
    }

    void lastFragmentTooEarlyEndsTheFrameInPart()
    {
        Assembler assembler;
        const std::string begin = frameBytes(1000, 1).substr(0, 400);
        const auto ended = assembler.take(fragmentOf(1, 1000, 0, begin, true));
        QCOMPARE(ended.size(), std::size_t{1});
        QVERIFY(isInPart(ended[0], 1, 1000, 400));
        QVERIFY(assembler.take(fragmentOf(1, 1000, 1, "x")).empty());
    }

    void allBytesEndTheFrameWithoutALastFragment()
    {
        Assembler assembler;
        const std::string bytes = frameBytes(1000, 1);
        QVERIFY(assembler.take(fragmentOf(1, 1000, 0, bytes.substr(0, 999))).empty());
        const auto ended = assembler.take(fragmentOf(1, 1000, 1, bytes.substr(999)));
        QCOMPARE(ended.size(), std::size_t{1});
        QVERIFY(isWhole(ended[0], 1, 1000));
    }

    // A peer could otherwise fill the memory with frames that announce much and hold a byte.
    void frameInPartKeepsNoMemoryForTheRest()
    {
        Assembler assembler;
        auto ended = assembler.take(fragmentOf(1, maxFrameBytes, 0, "x", true));
        QCOMPARE(ended.size(), std::size_t{1});
        QVERIFY(ended[0].bytes.capacity() < 100);
        QVERIFY(assembler.take(fragmentOf(2, maxFrameBytes, 0, "x")).empty());
        ended = assembler.take(fragmentOf(3, 1, 0, "y", true));
        QCOMPARE(ended.size(), std::size_t{2});
        QVERIFY(ended[0].bytes.capacity() < 100);
    }
};

ORVA_TEST(TestAssembler)
#include "tst_assembler.moc"

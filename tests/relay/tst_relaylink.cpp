// SPDX-License-Identifier: GPL-3.0-or-later
#include "relaylink.h"
#include "testmain.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// One direction of a line, with made-up arrival times: no clock runs here.
class TestRelayLink final : public QObject
{
    Q_OBJECT

private slots:
    void withoutConditionsNothingIsDelayed();
    void delayIsAdded();
    void jitterStaysWithinItsBoundsAndKeepsTheOrder();
    void lossLiesWithinBinomialBounds_data();
    void lossLiesWithinBinomialBounds();
    void heldBackDatagramsAreOvertaken();
    void bandwidthSpacesDatagrams();
    void queueDropsWhatWouldWaitTooLong();
    void blackholeLetsNothingPass();
    void sameSeedSameFates();
};

namespace {

const Clock::time_point begin = Clock::time_point() + 1h;

// The departures of `count` datagrams of 1000 bytes that come every `interval`.
std::vector<std::variant<RelayDeparture, RelayFate>> fates(const RelayConditions& conditions,
    int count, std::chrono::nanoseconds interval, std::uint64_t seed = 1)
{
    RelayLink link(seed);
    std::vector<std::variant<RelayDeparture, RelayFate>> result;
    result.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        result.push_back(link.admit(conditions, begin + i * interval, 1000));
    return result;
}

Clock::time_point dueOf(const std::variant<RelayDeparture, RelayFate>& fate)
{
    return std::get<RelayDeparture>(fate).due;
}

template <typename Fates>
auto countOf(const Fates& all, RelayFate wanted)
{
    return std::count_if(all.begin(), all.end(), [wanted](const auto& fate) {
        const auto* reason = std::get_if<RelayFate>(&fate);
        return reason && *reason == wanted;
    });
}

} // namespace

void TestRelayLink::withoutConditionsNothingIsDelayed()
{
    const auto all = fates({}, 100, 1ms);
    for (std::size_t i = 0; i < all.size(); ++i)
        QCOMPARE(dueOf(all[i]), begin + static_cast<int>(i) * 1ms);
}

void TestRelayLink::delayIsAdded()
{
    RelayConditions conditions;
    conditions.delay = 25ms;
    const auto all = fates(conditions, 100, 1ms);
    for (std::size_t i = 0; i < all.size(); ++i)
        QCOMPARE(dueOf(all[i]), begin + static_cast<int>(i) * 1ms + 25ms);
}

void TestRelayLink::jitterStaysWithinItsBoundsAndKeepsTheOrder()
{
    RelayConditions conditions;
    conditions.delay = 25ms;
    conditions.jitter = 5ms;
    const auto all = fates(conditions, 2000, 10us);
    auto last = Clock::time_point();
    Clock::duration least = 1h;
    Clock::duration most = 0h;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const auto delay = dueOf(all[i]) - (begin + static_cast<int>(i) * 10us);
        least = std::min(least, delay);
        most = std::max(most, delay);
        QVERIFY(dueOf(all[i]) >= last);
        last = dueOf(all[i]);
    }
    QVERIFY(least >= 20ms);
    QVERIFY(most <= 30ms);
    QVERIFY(most - least > 5ms);
}

void TestRelayLink::lossLiesWithinBinomialBounds_data()
{
    QTest::addColumn<double>("loss");
    QTest::newRow("none") << 0.0;
    QTest::newRow("one in a hundred") << 0.01;
    QTest::newRow("three in ten") << 0.3;
    QTest::newRow("all") << 1.0;
}

void TestRelayLink::lossLiesWithinBinomialBounds()
{
    QFETCH(double, loss);
    constexpr int count = 20000;
    RelayConditions conditions;
    conditions.loss = loss;
    for (std::uint64_t seed = 1; seed <= 5; ++seed) {
        const auto lost =
            static_cast<double>(countOf(fates(conditions, count, 1ms, seed), RelayFate::Lost));
        // Five standard deviations: a true generator fails this once in a million seeds.
        QVERIFY(std::abs(lost - count * loss) <= 5 * std::sqrt(count * loss * (1 - loss)));
    }
}

void TestRelayLink::heldBackDatagramsAreOvertaken()
{
    RelayConditions conditions;
    conditions.delay = 10ms;
    conditions.reorder = 0.1;
    conditions.reorderBy = 3500us;
    const auto all = fates(conditions, 5000, 1ms);
    int heldBack = 0;
    for (std::size_t i = 0; i + 4 < all.size(); ++i) {
        const auto departure = std::get<RelayDeparture>(all[i]);
        const auto expected = begin + static_cast<int>(i) * 1ms + 10ms;
        QCOMPARE(departure.due, departure.heldBack ? expected + 3500us : expected);
        heldBack += departure.heldBack ? 1 : 0;
    }
    QVERIFY(std::abs(heldBack - 500) < 5 * std::sqrt(5000 * 0.1 * 0.9));
}

void TestRelayLink::bandwidthSpacesDatagrams()
{
    RelayConditions conditions;
    conditions.bitsPerSecond = 8000000; // 1000 bytes take 1 ms
    conditions.queue = 1s;
    const auto all = fates(conditions, 100, 0ms);
    for (std::size_t i = 0; i < all.size(); ++i)
        QCOMPARE(dueOf(all[i]), begin + static_cast<int>(i + 1) * 1ms);
}

void TestRelayLink::queueDropsWhatWouldWaitTooLong()
{
    RelayConditions conditions;
    conditions.bitsPerSecond = 8000000;
    conditions.queue = 50ms;
    // Twice what the line takes: half is dropped, and nothing waits longer than the queue is.
    const auto all = fates(conditions, 2000, 500us);
    const auto dropped = countOf(all, RelayFate::QueueFull);
    QVERIFY(dropped > 940 && dropped < 1000);
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (const auto* departure = std::get_if<RelayDeparture>(&all[i]))
            QVERIFY(departure->due - (begin + static_cast<int>(i) * 500us) <= 51ms);
    }
}

void TestRelayLink::blackholeLetsNothingPass()
{
    RelayConditions conditions;
    conditions.blackhole = true;
    QCOMPARE(countOf(fates(conditions, 100, 1ms), RelayFate::Blackholed), 100);
}

void TestRelayLink::sameSeedSameFates()
{
    RelayConditions conditions;
    conditions.delay = 25ms;
    conditions.jitter = 5ms;
    conditions.loss = 0.1;
    conditions.reorder = 0.1;
    const auto first = fates(conditions, 1000, 1ms, 7);
    const auto second = fates(conditions, 1000, 1ms, 7);
    const auto other = fates(conditions, 1000, 1ms, 8);
    const auto same = [](const auto& a, const auto& b) {
        return a.index() == b.index() && (a.index() == 1 || dueOf(a) == dueOf(b));
    };
    QVERIFY(std::equal(first.begin(), first.end(), second.begin(), same));
    QVERIFY(!std::equal(first.begin(), first.end(), other.begin(), same));
}

ORVA_TEST(TestRelayLink)
#include "tst_relaylink.moc"

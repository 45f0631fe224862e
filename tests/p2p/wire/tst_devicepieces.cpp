// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/backlog.h"
#include "device/lockout.h"
#include "device/pacer.h"
#include "testmain.h"

#include <QTest>

using namespace std::chrono_literals;

namespace {

const std::string guesser = "192.0.2.1";
const Lockout::Clock::time_point start{1000h};

// Wrong passwords at one moment, up to the one that shuts the address out: which one, or 0.
int lockingTry(Lockout& lockout, int count, Lockout::Clock::time_point now)
{
    for (int i = 1; i <= count; ++i) {
        if (lockout.wrongPassword(guesser, now))
            return i;
    }
    return 0;
}

std::string addressOf(std::size_t number)
{
    return "address " + std::to_string(number);
}

} // namespace

class TestLockout final : public QObject
{
    Q_OBJECT

private slots:
    void nineWrongPasswordsDoNotLock()
    {
        Lockout lockout;
        QVERIFY(!lockout.isLocked(guesser, start));
        QCOMPARE(lockingTry(lockout, 9, start), 0);
        QVERIFY(!lockout.isLocked(guesser, start));
    }

    void theTenthLocks()
    {
        Lockout lockout;
        QCOMPARE(lockingTry(lockout, 10, start), 10);
        QVERIFY(lockout.isLocked(guesser, start));
    }

    void theTenthLocksAtTheEndOfTheWindow()
    {
        Lockout lockout;
        QCOMPARE(lockingTry(lockout, 9, start), 0);
        QVERIFY(lockout.wrongPassword(guesser, start + 60s));
    }

    void theTenthBehindTheWindowDoesNotLock()
    {
        Lockout lockout;
        QCOMPARE(lockingTry(lockout, 9, start), 0);
        QVERIFY(!lockout.wrongPassword(guesser, start + 60s + 1ns));
        QCOMPARE(lockingTry(lockout, 8, start + 61s), 0);
        QVERIFY(lockout.wrongPassword(guesser, start + 61s));
    }

    void windowSlides()
    {
        Lockout lockout;
        for (int i = 0; i < 100; ++i)
            QVERIFY(!lockout.wrongPassword(guesser, start + i * 7s));
        // A quicker pace gets there once ten of them lie within the window.
        bool locked = false;
        for (int i = 0; i < 10 && !locked; ++i)
            locked = lockout.wrongPassword(guesser, start + 700s + i * 6s);
        QVERIFY(locked);
    }

    void lockEndsAfterAMinute()
    {
        Lockout lockout;
        QCOMPARE(lockingTry(lockout, 10, start), 10);
        QVERIFY(lockout.isLocked(guesser, start + 60s - 1ns));
        QVERIFY(!lockout.isLocked(guesser, start + 60s));
        QCOMPARE(lockingTry(lockout, 9, start + 60s), 0);
        QVERIFY(lockout.wrongPassword(guesser, start + 60s));
    }

    void addressesAreCountedApart()
    {
        Lockout lockout;
        QCOMPARE(lockingTry(lockout, 9, start), 0);
        QVERIFY(!lockout.wrongPassword("192.0.2.2", start));
        QVERIFY(lockout.wrongPassword(guesser, start));
        QVERIFY(!lockout.isLocked("192.0.2.2", start));
    }

    void addressHeardOfLongestAgoIsForgotten_data()
    {
        QTest::addColumn<quint64>("others");
        QTest::addColumn<bool>("remembered");
        QTest::newRow("as many as there is room for") << quint64{Lockout::maxAddresses - 1} << true;
        QTest::newRow("one more") << quint64{Lockout::maxAddresses} << false;
    }
    void addressHeardOfLongestAgoIsForgotten()
    {
        QFETCH(const quint64, others);
        QFETCH(const bool, remembered);
        Lockout lockout;
        QCOMPARE(lockingTry(lockout, 9, start), 0);
        for (std::size_t i = 0; i < others; ++i)
            QVERIFY(!lockout.wrongPassword(addressOf(i), start + 1s));
        QCOMPARE(lockout.wrongPassword(guesser, start + 2s), remembered);
    }

    void knownAddressPushesNoOtherOut()
    {
        Lockout lockout;
        QCOMPARE(lockingTry(lockout, 9, start), 0);
        for (std::size_t i = 1; i < Lockout::maxAddresses; ++i)
            QVERIFY(!lockout.wrongPassword(addressOf(i), start + 1s));
        QVERIFY(!lockout.wrongPassword(addressOf(1), start + 2s));
        QVERIFY(lockout.wrongPassword(guesser, start + 2s));
    }
};

class TestBacklog final : public QObject
{
    Q_OBJECT

private slots:
    void withoutUnconfirmedPacketsThereIsNone()
    {
        Backlog backlog;
        QVERIFY(backlog.age(0, start) == 0s);
        QVERIFY(backlog.age(5, start) == 0s);
        backlog.sent(3, 0, start);
        QVERIFY(backlog.age(0, start + 1s) == 0s);
    }

    void oldestUnconfirmedPacketCounts()
    {
        Backlog backlog;
        backlog.sent(10, 0, start);
        backlog.sent(5, 10, start + 1s);
        QVERIFY(backlog.age(15, start + 3s) == 3s);
        QVERIFY(backlog.age(6, start + 3s) == 3s);
        QVERIFY(backlog.age(5, start + 3s) == 2s);
        QVERIFY(backlog.age(1, start + 4s) == 3s);
        QVERIFY(backlog.age(0, start + 4s) == 0s);
    }

    void packetsSentAfterAllWereConfirmedCountFromThen()
    {
        Backlog backlog;
        backlog.sent(10, 0, start);
        QVERIFY(backlog.age(0, start + 1s) == 0s);
        backlog.sent(1, 0, start + 5s);
        QVERIFY(backlog.age(1, start + 6s) == 1s);
    }

    // A channel that only carries messages is never asked for an age.
    void whatIsConfirmedIsForgottenBySendingAlone()
    {
        Backlog backlog;
        for (int i = 0; i < 1000; ++i)
            backlog.sent(1, 0, start + std::chrono::seconds(i));
        QCOMPARE(backlog.marks(), std::size_t{1});
        backlog.sent(0, 1, start + 1000s);
        QCOMPARE(backlog.marks(), std::size_t{1});
    }

    void moreUnconfirmedThanSentCountFromTheFirst()
    {
        Backlog backlog;
        backlog.sent(1, 0, start);
        QVERIFY(backlog.age(100, start + 2s) == 2s);
    }
};

class TestPacer final : public QObject
{
    Q_OBJECT

private slots:
    void aWideLineHasNoLimit()
    {
        Pacer pacer;
        QCOMPARE(pacer.next({1000, 0, 1000000}), Pacer::unlimited);
        QCOMPARE(pacer.next({1000, 333, 1000000}), Pacer::unlimited); // losses come by chance, too
        QCOMPARE(pacer.next({49, 48, 1000}), Pacer::unlimited); // too few to judge
        QCOMPARE(pacer.next({0, 0, 0}), Pacer::unlimited);
    }

    void aNarrowLineLimitsToALittleMoreThanArrived()
    {
        Pacer pacer;
        QCOMPARE(pacer.next({1000, 334, 400000}), 500000);
        QCOMPARE(pacer.limit(), 500000);
    }

    void theLimitGrowsWhileAllIsWellUntilItIsNoneAgain()
    {
        Pacer pacer;
        pacer.next({1000, 500, 400000});
        QCOMPARE(pacer.next({1000, 0, 400000}), 550000);
        int seconds = 1;
        while (pacer.next({1000, 0, 400000}) != Pacer::unlimited && seconds < 1000)
            ++seconds;
        QVERIFY(seconds > 20 && seconds < 60);
    }

    void anOutageSaysNothingOfTheLine()
    {
        Pacer pacer;
        QCOMPARE(pacer.next({1000, 900, 0}), Pacer::unlimited);
    }

    void afterABadSecondItIsSoonAsFastAsBefore()
    {
        Pacer pacer;
        pacer.next({1000, 0, 400000});
        QCOMPARE(pacer.next({1000, 900, 40000}), 50000);
        int seconds = 0;
        while (pacer.next({1000, 0, 40000}) < 400000 && seconds < 100)
            ++seconds;
        QVERIFY(seconds <= 4);
    }

    void whoGetsHardlyAnythingThroughKeepsALittle()
    {
        Pacer pacer;
        QCOMPARE(pacer.next({1000, 900, 100}), 16 * 1024);
    }
};

ORVA_TEST(TestLockout)
ORVA_TEST(TestPacer)
ORVA_TEST(TestBacklog)
#include "tst_devicepieces.moc"

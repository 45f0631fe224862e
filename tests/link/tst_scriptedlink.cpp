// SPDX-License-Identifier: GPL-3.0-or-later
#include "layercalls.h"
#include "testmain.h"

#include <QTest>

#include <atomic>

using namespace layercalls;
using namespace std::chrono_literals;

class TestScriptedLink final : public QObject
{
    Q_OBJECT

private slots:
    void init() { link.reset(); }
    void cleanup() { link.reset(); }

    void callsAreRecordedWithArgumentsThreadAndTime();
    void passwordsAreRecorded();
    void payloadIsRecordedWithinBounds();
    void orderNamesTheFunctions();
    void waitForCallsIsBounded();
    void nextResultsAreUsedUpInOrder();
    void lastingResultStays();
    void matcherPicksTheCalls();
    void ownAnswerAndFollowUpSeeTheCall();
    void deviceRepliesToACommand();
    void delayPostponesTheAnswer();
    void heldCallIsSeenInFlight();
    void gateThatGoesAwayLetsCallsPass();
    void sendExitEndsHeldSends();
    void resetWakesCallsAndForgetsEverything();
    void resetDropsPendingConnects();
    void startStopAndResetFromManyThreads();

private:
    ScriptedLink& link = ScriptedLink::instance();
};

void TestScriptedLink::callsAreRecordedWithArgumentsThreadAndTime()
{
    const auto before = std::chrono::steady_clock::now();
    IOTC_Initialize2(9);
    const auto thread = onThread([] { return IOTC_Search_Device_Start(5000, 1000); });
    thread.wait();
    const auto calls = link.calls();
    QCOMPARE(calls.size(), std::size_t(2));
    QCOMPARE(calls[0].function, LinkFn::IOTC_Initialize2);
    QCOMPARE(calls[0].number("udpPort"), 9);
    QVERIFY(calls[0].thread == std::this_thread::get_id());
    QVERIFY(calls[0].start >= before);
    QCOMPARE(calls[1].sequence, 2);
    QCOMPARE(calls[1].number("waitMs"), 5000);
    QCOMPARE(calls[1].number("intervalMs"), 1000);
    QVERIFY(calls[1].thread != std::this_thread::get_id());
    QVERIFY(calls[1].returned);
    QVERIFY(calls[1].result == 0);
    IOTC_Session_Close(0);
    QVERIFY(!link.last(LinkFn::IOTC_Session_Close).result);
}

void TestScriptedLink::passwordsAreRecorded()
{
    avClientStart2(3, "Admin", "s3cret", 5, nullptr, 7, nullptr);
    const LinkCall call = link.last(LinkFn::avClientStart2);
    QCOMPARE(call.sessionId(), 3);
    QCOMPARE(call.text("account"), QStringLiteral("Admin"));
    QCOMPARE(call.bytes("password"), QByteArray("s3cret"));
    QCOMPARE(call.number("timeoutSec"), 5);
    QCOMPARE(call.number("channelId"), 7);
    avClientStart2(3, "", nullptr, 5, nullptr, 7, nullptr);
    QVERIFY(!link.last(LinkFn::avClientStart2).bytes("account").isNull());
    QVERIFY(link.last(LinkFn::avClientStart2).bytes("password").isNull());
}

void TestScriptedLink::payloadIsRecordedWithinBounds()
{
    const QByteArray message(2000, 'm');
    avSendIOCtrl(0, 1, message.constData(), message.size());
    QCOMPARE(link.last(LinkFn::avSendIOCtrl).payload().size(), 1024);
    QCOMPARE(link.last(LinkFn::avSendIOCtrl).number("size"), 2000);
    avSendIOCtrl(0, 1, message.constData(), -5);
    QVERIFY(link.last(LinkFn::avSendIOCtrl).payload().isNull());
}

void TestScriptedLink::orderNamesTheFunctions()
{
    IOTC_Initialize2(0);
    avInitialize(4096);
    IOTC_Get_SessionID();
    QCOMPARE(link.order(),
        QStringList({QStringLiteral("IOTC_Initialize2"), QStringLiteral("avInitialize"),
            QStringLiteral("IOTC_Get_SessionID")}));
    QCOMPARE(link.order({LinkFn::avInitialize}), QStringList(QStringLiteral("avInitialize")));
}

void TestScriptedLink::waitForCallsIsBounded()
{
    std::future<int> call;
    QVERIFY(!link.waitForCalls(1, LinkFn::avSendIOCtrl, {}, 1ms));
    QVERIFY(!link.waitForReturns(1, LinkFn::avSendIOCtrl, {}, 1ms));
    call = onThread([] { return send(0); });
    QVERIFY(link.waitForCalls(1, LinkFn::avSendIOCtrl));
    QVERIFY(link.waitForReturns(1, LinkFn::avSendIOCtrl, ofType(255)));
    QVERIFY(!link.waitForReturns(1, LinkFn::avSendIOCtrl, ofType(256), 1ms));
}

void TestScriptedLink::nextResultsAreUsedUpInOrder()
{
    const int av = link.openChannel(link.openSession());
    link.nextResults(LinkFn::avSendIOCtrl, {-20016, -20007});
    QCOMPARE(send(av), -20016);
    QCOMPARE(send(av), -20007);
    QCOMPARE(send(av), 0);
}

void TestScriptedLink::lastingResultStays()
{
    const int av = link.openChannel(link.openSession());
    link.always(LinkFn::avSendIOCtrl).answers(-20016);
    link.next(LinkFn::avSendIOCtrl).answers(-20007);
    QCOMPARE(send(av), -20007);
    QCOMPARE(send(av), -20016);
    QCOMPARE(send(av), -20016);
    link.always(LinkFn::avSendIOCtrl).answers(0);
    QCOMPARE(send(av), 0);
}

void TestScriptedLink::matcherPicksTheCalls()
{
    const int session = link.openSession();
    const int one = link.openChannel(session, 0);
    const int two = link.openChannel(session, 1);
    link.always(LinkFn::avSendIOCtrl, allOf({ofType(511), onIndex(two)})).answers(-20016);
    QCOMPARE(send(one, 511), 0);
    QCOMPARE(send(two, 255), 0);
    QCOMPARE(send(two, 511), -20016);
    QCOMPARE(link.count(LinkFn::avSendIOCtrl, ofType(511)), 2);
    QCOMPARE(link.calls(LinkFn::avSendIOCtrl, onIndex(two)).size(), std::size_t(2));
    QCOMPARE(link.last(LinkFn::avSendIOCtrl, onIndex(one)).sequence, 1);
}

void TestScriptedLink::ownAnswerAndFollowUpSeeTheCall()
{
    const int av = link.openChannel(link.openSession());
    std::vector<int> followed;
    link.always(LinkFn::avSendIOCtrl)
        .answers([](const LinkCall& call) { return -call.type(); })
        .then([&followed](const LinkCall& call) { followed.push_back(call.result.value()); });
    QCOMPARE(send(av, 40), -40);
    QCOMPARE(followed, (std::vector<int>{-40}));
}

void TestScriptedLink::deviceRepliesToACommand()
{
    const int av = link.openChannel(link.openSession());
    link.always(LinkFn::avSendIOCtrl, ofType(800)).replies(801, "done");
    QCOMPARE(send(av, 800), 0);
    const Message message = receive(av);
    QCOMPARE(message.type, 801U);
    QCOMPARE(message.bytes, QByteArray("done"));

    link.next(LinkFn::avSendIOCtrl).answers(-20016).replies(801, "done");
    send(av, 800);
    QCOMPARE(link.waitingMessages(av), 0);
}

void TestScriptedLink::delayPostponesTheAnswer()
{
    const int av = link.openChannel(link.openSession());
    link.next(LinkFn::avSendIOCtrl).after(20ms).answers(-20007);
    QCOMPARE(send(av), -20007);
    QVERIFY(link.last(LinkFn::avSendIOCtrl).duration >= 20ms);
}

void TestScriptedLink::heldCallIsSeenInFlight()
{
    std::future<int> call;
    const int av = link.openChannel(link.openSession());
    auto gate = link.next(LinkFn::avSendIOCtrl, ofType(255)).holds();
    call = onThread([av] { return send(av); });
    QVERIFY(gate.waitUntilReached());
    QCOMPARE(gate.waiting(), 1);
    QCOMPARE(link.inFlight(LinkFn::avSendIOCtrl), 1);
    QVERIFY(!link.last(LinkFn::avSendIOCtrl).returned);
    QCOMPARE(send(av, 511), 0);
    gate.release();
    QCOMPARE(call.get(), 0);
    QCOMPARE(gate.waiting(), 0);
    QCOMPARE(link.inFlight(LinkFn::avSendIOCtrl), 0);
}

void TestScriptedLink::gateThatGoesAwayLetsCallsPass()
{
    std::future<int> call;
    const int av = link.openChannel(link.openSession());
    {
        const auto gate = link.always(LinkFn::avSendIOCtrl).holds();
        call = onThread([av] { return send(av); });
        QVERIFY(gate.waitUntilReached());
    }
    QCOMPARE(call.get(), 0);
    QCOMPARE(send(av), 0);
}

void TestScriptedLink::sendExitEndsHeldSends()
{
    std::future<int> call;
    const int session = link.openSession();
    const int av = link.openChannel(session, 0);
    const int other = link.openChannel(session, 1);
    link.next(LinkFn::avSendIOCtrl).hangs();
    call = onThread([av] { return send(av); });
    QVERIFY(link.waitForCalls(1, LinkFn::avSendIOCtrl));
    QCOMPARE(avSendIOCtrlExit(other), 0);
    QCOMPARE(link.inFlight(LinkFn::avSendIOCtrl), 1);
    QCOMPARE(avSendIOCtrlExit(av), 0);
    QCOMPARE(call.get(), -20022);
    QCOMPARE(send(av), 0);
}

void TestScriptedLink::resetWakesCallsAndForgetsEverything()
{
    std::vector<std::future<int>> calls;
    const int av = link.openChannel(link.openSession());
    const auto gate = link.always(LinkFn::avSendIOCtrl).holds();
    link.queueVideo(av, "frame");
    calls.push_back(onThread([av] { return send(av); }));
    calls.push_back(receiveOnThread(av));
    QVERIFY(gate.waitUntilReached());
    QVERIFY(link.waitForCalls(1, LinkFn::avRecvIOCtrl));
    link.reset();
    for (auto& call : calls)
        QCOMPARE(call.get(), -20026);
    QVERIFY(link.calls().empty());
    QCOMPARE(send(av), -20019);
    QCOMPARE(link.openChannel(link.openSession()), av);
    QCOMPARE(send(av), 0);
    QCOMPARE(receiveVideo(av).result, -20012);
    QCOMPARE(link.calls().front().sequence, 1);
}

void TestScriptedLink::resetDropsPendingConnects()
{
    Reports reports;
    link.initialize();
    link.always(connectFn).reports({ConnectStep::connected(1h)});
    connectTo(IOTC_Get_SessionID(), reports);
    link.reset();
    QVERIFY(reports.all().empty());
}

void TestScriptedLink::startStopAndResetFromManyThreads()
{
    std::atomic<bool> stop{false};
    std::atomic<int> connected{0};
    std::array<Reports, 4> reportsOfClients;
    const auto client = [&](Reports& reports) {
        while (!stop) {
            IOTC_Initialize2(0);
            avInitialize(64);
            const int session = IOTC_Get_SessionID();
            const std::size_t reported = reports.all().size();
            // A reset drops the report, so that the wait for it is short.
            if (connectTo(session, reports) == 0 && reports.wait(reported + 1, 50ms))
                ++connected;
            const int av = startClient(session);
            send(av);
            receiveVideo(av);
            receive(av, 1);
            IOTC_Session_Close(session);
        }
        return 0;
    };
    std::vector<std::future<int>> clients;
    clients.reserve(reportsOfClients.size());
    for (Reports& reports : reportsOfClients)
        clients.push_back(onThread([&] { return client(reports); }));
    bool alive = true;
    for (int round = 0; round < 20 && alive; ++round) {
        const bool keepsRecord = round % 2 == 0;
        if (keepsRecord)
            IOTC_DeInitialize();
        else
            link.reset();
        alive = link.waitForReturns(keepsRecord ? 10 : 5, LinkFn::IOTC_Session_Close);
    }
    stop = true;
    for (auto& each : clients)
        QCOMPARE(each.get(), 0);
    QVERIFY(alive);
    QVERIFY(connected > 0);
}

ORVA_TEST(TestScriptedLink)
#include "tst_scriptedlink.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkbench.h"
#include "model/events.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QTest>

#include <climits>
#include <optional>

using namespace std::chrono_literals;

// One device's way to its session, and how it can fail.
class TestDeviceSessions final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { bench_.reset(); }

    void sessionIsReservedOnTheMainThreadAndConnectedOffIt();
    void attemptNamesTheDeviceAndTheReservedSession();
    void sessionIsReportedForChannelZeroWhicheverChannelWasAskedFor();
    void twoChannelsOfAnUnconnectedDeviceStartInOrderOnceItIsConnected();
    void progressBeforeTheFinalReportChangesNothing();
    void sessionIdComesFromTheReservationAndNotFromTheReport();
    void resultDecidesAndNotTheState();
    void failedAttemptIsToldWithNumberAndText_data();
    void failedAttemptIsToldWithNumberAndText();
    void deviceWithoutUsableUidFails();
    void librariesThatWentDownFailTheAttempt();
    void attemptWithoutAFreeSessionFails();
    void negativeSessionIdFailsEvenAConnectThatSucceeds();
    void pendingAttemptIsGivenUpWithItsSession();
    void attemptIsGivenUpAfterEightSecondsUnlessItHasEnded();
    void attemptThatNeverEndsKeepsItsDeviceConnecting();
    void failedDeviceIsTriedOnceMoreByALaterRequest();
    void deviceThatHasFailedIsNotTriedAgainByItself();

private:
    const QStringList& failed(const QString& text);
    static void giveUp(Connect& link) { QMetaObject::invokeMethod(&link, "stopConnect"); }

    std::optional<ConnectBench> bench_;
    QStringList failed_;
};

namespace {

// Counts the events of this number on their way to an object.
class EventCount final : public QObject
{
    Q_OBJECT

public:
    EventCount(QObject& receiver, QEvent::Type number)
        : number_(number)
    {
        receiver.installEventFilter(this);
    }

    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == number_ ? 1 : 0;
        return false;
    }

private:
    const QEvent::Type number_;
};

} // namespace

void TestDeviceSessions::init()
{
    bench_.emplace();
    bench_->start();
}

// What the journal says when the only attempt, for channel 0 of A, has failed.
const QStringList& TestDeviceSessions::failed(const QString& text)
{
    const QString number = text.section(QLatin1Char(' '), 0, 0);
    failed_ = QStringList{"connect device error:AAAAAAAAAAAAAAAAAAAA,error:" + number,
        "connectDevFailMsg A0 " + text};
    return failed_;
}

void TestDeviceSessions::sessionIsReservedOnTheMainThreadAndConnectedOffIt()
{
    bench_->link().connect(bench_->addChannel('A'));
    QCOMPARE(bench_->layer.count(LinkFn::IOTC_Get_SessionID), 1);
    QVERIFY(bench_->layer.waitForCalls(1, connectFn));
    QCOMPARE(bench_->layer.last(LinkFn::IOTC_Get_SessionID).thread, std::this_thread::get_id());
    QVERIFY(bench_->layer.last(connectFn).thread != std::this_thread::get_id());
}

void TestDeviceSessions::attemptNamesTheDeviceAndTheReservedSession()
{
    const int other = bench_->layer.openSession();
    Channel* channel = bench_->addChannel('A');
    bench_->link().connect(channel);
    QVERIFY(channel->device()->connecting);
    QTRY_COMPARE(int(channel->device()->sid), other + 1);
    QVERIFY(!channel->device()->connecting);
    const LinkCall call = bench_->layer.last(connectFn);
    QCOMPARE(call.bytes("uid"), QByteArray("AAAAAAAAAAAAAAAAAAAA"));
    QCOMPARE(call.sessionId(), other + 1);
}

void TestDeviceSessions::sessionIsReportedForChannelZeroWhicheverChannelWasAskedFor()
{
    Device* device = bench_->addDevice('A', 4);
    bench_->link().connect(device->channel(3));
    QTRY_COMPARE(bench_->journal().count("connectChannelSuccessMsg A3 live"), 1);
    QCOMPARE(bench_->journal().linesOf("connectDevSuccessMsg"),
        QStringList({"connectDevSuccessMsg A0"}));
    QCOMPARE(startedChannels(), QList<int>({3}));
}

// Each step stands at a gate, so that nothing may come before its turn.
void TestDeviceSessions::twoChannelsOfAnUnconnectedDeviceStartInOrderOnceItIsConnected()
{
    bench_->layer.next(connectFn).reports({});
    LinkGate first = bench_->layer.next(startFn).holds();
    LinkGate second = bench_->layer.next(startFn).holds();
    Device* device = bench_->addDevice('A', 2);
    bench_->link().connect(device->channel(0));
    bench_->link().connect(device->channel(1));
    finishTasks();
    QStringList told;
    QCOMPARE(bench_->journal().lines(), told);
    QStringList calls{
        "IOTC_Initialize2", "avInitialize", "IOTC_Get_SessionID", "IOTC_Connect_ByUID_ParallelNB"};
    QCOMPARE(bench_->layer.order(), calls);

    QVERIFY(bench_->layer.report(0, ConnectStep::connected()));
    QTRY_COMPARE(first.waiting(), 1);
    told << "connect device success:AAAAAAAAAAAAAAAAAAAA"
         << "connectDevSuccessMsg A0"
         << "connectChannel:true"
         << "connectChannel:true";
    QCOMPARE(bench_->journal().lines(), told);
    calls << "avClientStart2";
    QCOMPARE(bench_->layer.order(), calls);

    first.release();
    QTRY_COMPARE(second.waiting(), 1);
    told << "connect channel success:0,isLive:true"
         << "connectChannelSuccessMsg A0 live";
    QTRY_COMPARE(bench_->journal().lines(), told);
    calls << "avClientStart2";
    QCOMPARE(bench_->layer.order(), calls);

    second.release();
    told << "connect channel success:1,isLive:true"
         << "connectChannelSuccessMsg A1 live";
    QTRY_COMPARE(bench_->journal().lines(), told);
    finishTasks();
    QCOMPARE(bench_->journal().lines(), told);
    QCOMPARE(bench_->layer.order(), calls);
    QCOMPARE(startedChannels(), QList<int>({0, 1}));
    QCOMPARE(int(device->channel(0)->mode(true).avIndex), 0);
    QCOMPARE(int(device->channel(1)->mode(true).avIndex), 1);
}

void TestDeviceSessions::progressBeforeTheFinalReportChangesNothing()
{
    const EventCount reports(bench_->link(), ProgressEvent_Connect::number);
    bench_->layer.next(connectFn).reports({ConnectStep::progress(0), ConnectStep::progress(1),
        {3, -42}, {-2, -42}, {1, 7}, {INT_MAX, 0}, ConnectStep::connected()});
    Channel* channel = bench_->addChannel('A');
    bench_->link().connect(channel);
    QTRY_COMPARE(bench_->journal().count("connectChannelSuccessMsg A0 live"), 1);
    QCOMPARE(reports.count, 1);
    QCOMPARE(
        bench_->journal().lines().first(), QString("connect device success:AAAAAAAAAAAAAAAAAAAA"));
    QCOMPARE(bench_->journal().linesOf("connectDevFailMsg"), QStringList());
}

void TestDeviceSessions::sessionIdComesFromTheReservationAndNotFromTheReport()
{
    bench_->layer.next(connectFn).reports({{2, 7}});
    Channel* channel = bench_->addChannel('A');
    bench_->link().connect(channel);
    QTRY_COMPARE(int(channel->device()->sid), 0);
}

void TestDeviceSessions::resultDecidesAndNotTheState()
{
    bench_->layer.next(connectFn).reports({{2, -42}});
    bench_->layer.next(connectFn).reports({{-1, 0}});
    Channel* channel = bench_->addChannel('A');
    bench_->link().connect(channel);
    QTRY_COMPARE(bench_->journal().lines(), failed("-42 Client fails to connect device"));
    QCOMPARE(int(channel->device()->sid), -1);
    bench_->link().connect(channel);
    QTRY_COMPARE(bench_->journal().count("connectDevSuccessMsg A0"), 1);
    QCOMPARE(int(channel->device()->sid), 0);
}

void TestDeviceSessions::failedAttemptIsToldWithNumberAndText_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("text");
    QTest::newRow("offline") << -90 << "-90 Device offline";
    QTest::newRow("no session") << -42 << "-42 Client fails to connect device";
    QTest::newRow("locked out") << -59 << "-59 The device is banned and locked";
    QTest::newRow("unknown number") << -777 << "-777 No process:-777";
}

void TestDeviceSessions::failedAttemptIsToldWithNumberAndText()
{
    QFETCH(int, result);
    QFETCH(QString, text);
    bench_->layer.next(connectFn).reports({ConnectStep::failed(result)});
    Channel* channel = bench_->addChannel('A');
    bench_->link().connect(channel);
    QTRY_COMPARE(bench_->journal().lines(), failed(text));
    QCOMPARE(int(channel->device()->sid), -1);
    QVERIFY(!channel->device()->connecting);
    finishTasks();
    QCOMPARE(startedChannels(), QList<int>());
    QCOMPARE(bench_->layer.openSessions(), std::vector<int>());
}

void TestDeviceSessions::deviceWithoutUsableUidFails()
{
    Channel* channel = bench_->addChannel('A');
    channel->device()->setUid(QStringLiteral("Aé"));
    bench_->link().connect(channel);
    QTRY_COMPARE(bench_->journal().count("connectDevFailMsg A0 -46 The arguments is invalid"), 1);
    QCOMPARE(bench_->layer.last(connectFn).bytes("uid"), QByteArray("A\xe9"));
}

// There is nobody to report in this case, and still the queue goes on.
void TestDeviceSessions::librariesThatWentDownFailTheAttempt()
{
    QCOMPARE(IOTC_DeInitialize(), 0);
    bench_->link().connect(bench_->addChannel('A'));
    QTRY_COMPARE(bench_->journal().lines(), failed("-12 Module is not initialized"));
    bench_->link().connect(bench_->addChannel('B'));
    QTRY_COMPARE(bench_->journal().count("connectDevFailMsg B0 -12 Module is not initialized"), 1);
    QCOMPARE(attempts(), QString("AB"));
}

void TestDeviceSessions::attemptWithoutAFreeSessionFails()
{
    bench_->layer.next(LinkFn::IOTC_Get_SessionID).answers(-18);
    bench_->link().connect(bench_->addChannel('A'));
    QTRY_COMPARE(bench_->journal().lines(), failed("-14 SID invalid"));
    QCOMPARE(bench_->layer.last(connectFn).sessionId(), -18);
}

void TestDeviceSessions::negativeSessionIdFailsEvenAConnectThatSucceeds()
{
    bench_->layer.next(LinkFn::IOTC_Get_SessionID).answers(-18);
    bench_->layer.next(connectFn).answers(0).reports({{2, 0}});
    Channel* channel = bench_->addChannel('A');
    bench_->link().connect(channel);
    QTRY_COMPARE(bench_->journal().lines(), failed("0 No process:0"));
    QCOMPARE(int(channel->device()->sid), -1);
}

void TestDeviceSessions::pendingAttemptIsGivenUpWithItsSession()
{
    bench_->layer.openSession(); // so that the attempt's is not the first
    bench_->layer.next(connectFn).reports({});
    bench_->link().connect(bench_->addChannel('A'));
    finishTasks();
    giveUp(bench_->link());
    QCOMPARE(bench_->layer.last(LinkFn::IOTC_Connect_Stop_BySID).sessionId(), 1);
    QCOMPARE(
        bench_->layer.last(LinkFn::IOTC_Connect_Stop_BySID).thread, std::this_thread::get_id());
    QCOMPARE(bench_->journal().lines(), QStringList({"connect dev timeout"}));
    QTRY_COMPARE(bench_->journal().lines(),
        QStringList({"connect dev timeout"}) + failed("-27 Client stops connecting"));
    QCOMPARE(bench_->layer.openSessions(), std::vector<int>({0}));
}

// A's attempt begins first and has ended, so that its time-out would come first; B's is pending.
void TestDeviceSessions::attemptIsGivenUpAfterEightSecondsUnlessItHasEnded()
{
    constexpr int patienceMs = 12'000;
    bench_->layer.always(LinkFn::IOTC_Initialize2).answers(0);
    bench_->layer.always(LinkFn::avInitialize).answers(4096);
    Connect other;
    finishTasks();
    other.connect(bench_->addChannel('A'));
    QTRY_COMPARE(startedChannels(), QList<int>({0}));

    bench_->layer.next(connectFn).reports({});
    bench_->link().connect(bench_->addChannel('B'));
    QTRY_COMPARE_WITH_TIMEOUT(bench_->journal().linesOf("connectDevFailMsg"),
        QStringList({"connectDevFailMsg B0 -27 Client stops connecting"}), patienceMs);
    const auto stops = bench_->layer.calls(LinkFn::IOTC_Connect_Stop_BySID);
    QCOMPARE(stops.size(), std::size_t(1));
    QCOMPARE(stops.front().sessionId(), 1);
    const auto waited = stops.front().start - bench_->layer.last(connectFn).start;
    QVERIFY(waited > 7500ms); // Qt lets a long timer come a twentieth early
    QCOMPARE(bench_->journal().count("connect dev timeout"), 1);
    finishTasks();
}

void TestDeviceSessions::attemptThatNeverEndsKeepsItsDeviceConnecting()
{
    bench_->layer.next(connectFn).reports({});
    bench_->layer.next(LinkFn::IOTC_Connect_Stop_BySID).answers(0); // without an effect
    Device* device = bench_->addDevice('A', 2);
    bench_->link().connect(device->channel(0));
    finishTasks();
    giveUp(bench_->link());
    bench_->link().connect(device->channel(0));
    bench_->link().connect(device->channel(1));
    finishTasks();
    QVERIFY(device->connecting);
    QCOMPARE(attempts(), QString("A"));
    QCOMPARE(bench_->journal().lines(), QStringList({"connect dev timeout"}));
}

// The channel of the failed attempt has waited on, and starts with the one of the later request.
void TestDeviceSessions::failedDeviceIsTriedOnceMoreByALaterRequest()
{
    bench_->layer.next(connectFn).reports({ConnectStep::failed(-90)});
    Device* device = bench_->addDevice('A', 2);
    bench_->link().connect(device->channel(0));
    QTRY_COMPARE(bench_->journal().lines(), failed("-90 Device offline"));
    bench_->link().connect(device->channel(1));
    QTRY_COMPARE(bench_->journal().linesOf("connectChannelSuccessMsg").size(), 2);
    QCOMPARE(bench_->journal().count("connectChannelSuccessMsg A0 live"), 1);
    QCOMPARE(bench_->journal().count("connectChannelSuccessMsg A1 live"), 1);
    QCOMPARE(attempts(), QString("AA"));
}

void TestDeviceSessions::deviceThatHasFailedIsNotTriedAgainByItself()
{
    bench_->layer.next(connectFn).reports({ConnectStep::failed(-90)});
    Device* failing = bench_->addDevice('A');
    bench_->link().connect(failing->channel(0));
    bench_->link().connect(bench_->addChannel('B'));
    bench_->link().connect(bench_->addChannel('C'));
    QTRY_COMPARE(bench_->journal().count("connectChannelSuccessMsg C0 live"), 1);
    finishTasks();
    QCOMPARE(attempts(), QString("ABC"));
    QCOMPARE(bench_->journal().linesOf("connectDevFailMsg").size(), 1);
}

ORVA_TEST(TestDeviceSessions)
#include "tst_devicesessions.moc"

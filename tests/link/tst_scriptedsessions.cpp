// SPDX-License-Identifier: GPL-3.0-or-later
#include "face_from_c.h"
#include "layercalls.h"
#include "testmain.h"

#include <QTest>

using namespace layercalls;
using namespace std::chrono_literals;

class TestScriptedSessions final : public QObject
{
    Q_OBJECT

private slots:
    void init() { link.reset(); }
    void cleanup() { link.reset(); }

    void facesAreUsableFromC();
    void everyCallIsRefusedBeforeInitialisation();
    void everyCallIsRefusedAfterDeInitialisation();
    void eachHalfInitialisesOnce();
    void channelHalfNeedsTheSessionHalf();
    void scriptedFailureLeavesTheLayerDown();
    void sessionIdsAreTheSmallestFreeNumber();
    void sessionIdsRunOut();
    void connectReportsOnceOnAThreadOfTheLayer();
    void connectReportsTheScriptedStepsInOrder();
    void connectIsScriptedPerUid();
    void failedConnectGivesTheSessionIdBack();
    void badUidFailsThroughTheCallback_data();
    void badUidFailsThroughTheCallback();
    void connectNeedsAReservedIdleSession();
    void scriptedConnectResultFailsThroughTheCallback();
    void testMakesTheReportsOfAPendingConnect();
    void stoppedConnectFails();
    void heldConnectCallIsStopped();
    void closedSessionEndsItsPendingConnect();
    void takingDownReportsPendingConnectsFirst();
    void takingDownInsideAReportEndsTheOthers();
    void searchFindsTheScriptedDevices();

private:
    ScriptedLink& link = ScriptedLink::instance();
};

void TestScriptedSessions::facesAreUsableFromC()
{
    link.initialize();
    QCOMPARE(sendFromC(), -20010);
    QCOMPARE(link.last(LinkFn::avSendIOCtrl).payload(), QByteArray("\1\2\3\4"));
}

void TestScriptedSessions::everyCallIsRefusedBeforeInitialisation()
{
    QVERIFY(allAre(sessionCalls(0), -12));
    QVERIFY(allAre(channelCalls(0), -20019));
    QCOMPARE(startClient(0), -20019);
    QCOMPARE(startServer(0), -20019);
}

void TestScriptedSessions::everyCallIsRefusedAfterDeInitialisation()
{
    link.openChannel(link.openSession());
    QCOMPARE(IOTC_DeInitialize(), 0);
    QVERIFY(allAre(sessionCalls(0), -12));
    QVERIFY(allAre(channelCalls(0), -20019));
    QVERIFY(link.openSessions().empty());
    QVERIFY(link.openIndices().empty());
}

void TestScriptedSessions::eachHalfInitialisesOnce()
{
    QCOMPARE(IOTC_Initialize2(0), 0);
    QCOMPARE(avInitialize(0), -20000);
    QCOMPARE(avInitialize(4096), 4096);
    QCOMPARE(IOTC_Initialize2(0), -3);
    QCOMPARE(avInitialize(4096), -20031);
}

void TestScriptedSessions::channelHalfNeedsTheSessionHalf()
{
    QCOMPARE(avInitialize(16), -20019);
}

void TestScriptedSessions::scriptedFailureLeavesTheLayerDown()
{
    link.next(LinkFn::IOTC_Initialize2).answers(-8);
    QCOMPARE(IOTC_Initialize2(0), -8);
    QCOMPARE(IOTC_Get_SessionID(), -12);
    QCOMPARE(IOTC_Initialize2(0), 0);
    QCOMPARE(IOTC_Get_SessionID(), 0);
}

void TestScriptedSessions::sessionIdsAreTheSmallestFreeNumber()
{
    link.initialize();
    QCOMPARE(IOTC_Get_SessionID(), 0);
    QCOMPARE(IOTC_Get_SessionID(), 1);
    IOTC_Session_Close(0);
    QCOMPARE(IOTC_Get_SessionID(), 0);
    QCOMPARE(link.openSessions(), (std::vector<int>{0, 1}));
}

void TestScriptedSessions::sessionIdsRunOut()
{
    link.initialize();
    for (int id = 0; id < 1024; ++id)
        QCOMPARE(IOTC_Get_SessionID(), id);
    QCOMPARE(IOTC_Get_SessionID(), -18);
}

void TestScriptedSessions::connectReportsOnceOnAThreadOfTheLayer()
{
    Reports reports;
    link.initialize();
    QCOMPARE(connectTo(IOTC_Get_SessionID(), reports), 0);
    QVERIFY(reports.wait(1));
    QCOMPARE(IOTC_DeInitialize(), 0);
    const auto all = reports.all();
    QCOMPARE(all.size(), std::size_t(1));
    QCOMPARE(all[0].state, 2);
    QCOMPARE(all[0].result, 0);
    QVERIFY(all[0].thread != std::this_thread::get_id());
}

void TestScriptedSessions::connectReportsTheScriptedStepsInOrder()
{
    Reports reports;
    link.initialize();
    link.next(connectFn).reports({ConnectStep::progress(0), ConnectStep::progress(1, 5ms),
        ConnectStep::failed(-42, 5ms), ConnectStep::connected()});
    QCOMPARE(connectTo(IOTC_Get_SessionID(), reports), 0);
    QVERIFY(reports.wait(3));
    IOTC_DeInitialize();
    const auto all = reports.all();
    QCOMPARE(all.size(), std::size_t(3));
    QCOMPARE(all[0].state, 0);
    QCOMPARE(all[1].state, 1);
    QCOMPARE(all[2].state, -1);
    QCOMPARE(all[2].result, -42);
}

void TestScriptedSessions::connectIsScriptedPerUid()
{
    Reports offline;
    Reports online;
    link.initialize();
    link.always(connectFn, forUid(otherUid)).reports({ConnectStep::failed(-90)});
    connectTo(IOTC_Get_SessionID(), offline, otherUid);
    connectTo(IOTC_Get_SessionID(), online);
    QVERIFY(offline.wait(1));
    QVERIFY(online.wait(1));
    QCOMPARE(offline.all()[0].result, -90);
    QCOMPARE(online.all()[0].state, 2);
}

void TestScriptedSessions::failedConnectGivesTheSessionIdBack()
{
    Reports reports;
    link.initialize();
    link.next(connectFn).reports({ConnectStep::failed(-90)});
    connectTo(IOTC_Get_SessionID(), reports);
    QVERIFY(reports.wait(1));
    QVERIFY(link.openSessions().empty());
    QCOMPARE(IOTC_Get_SessionID(), 0);
}

void TestScriptedSessions::badUidFailsThroughTheCallback_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("null") << QByteArray();
    QTest::newRow("short") << QByteArray("ABC");
    QTest::newRow("long") << QByteArray("ABCDEFGHIJ0123456789A");
    QTest::newRow("small letters") << QByteArray("abcdefghij0123456789");
    QTest::newRow("other characters") << QByteArray("ABCDEFGHIJ 123456789");
}

void TestScriptedSessions::badUidFailsThroughTheCallback()
{
    QFETCH(const QByteArray, text);
    Reports reports;
    link.initialize();
    const int session = IOTC_Get_SessionID();
    QCOMPARE(connectTo(session, reports, text.isNull() ? nullptr : text.constData()), -46);
    QVERIFY(reports.wait(1));
    QCOMPARE(reports.all()[0].state, -1);
    QCOMPARE(reports.all()[0].result, -46);
    QVERIFY(link.openSessions().empty());
    QCOMPARE(IOTC_Connect_ByUID_ParallelNB(uid, 0, nullptr, nullptr), -46);
}

void TestScriptedSessions::connectNeedsAReservedIdleSession()
{
    Reports unreserved;
    Reports pending;
    Reports second;
    link.initialize();
    QCOMPARE(connectTo(7, unreserved), -14);
    QVERIFY(unreserved.wait(1));

    link.next(connectFn).reports({});
    const int session = IOTC_Get_SessionID();
    QCOMPARE(connectTo(session, pending), 0);
    QCOMPARE(connectTo(session, second), -57);
    QVERIFY(second.wait(1));
    QVERIFY(pending.all().empty());
    QVERIFY(link.report(session, ConnectStep::connected()));
    QVERIFY(pending.wait(1));
    QCOMPARE(connectTo(session, second), -14);
}

void TestScriptedSessions::scriptedConnectResultFailsThroughTheCallback()
{
    Reports reports;
    link.initialize();
    link.next(connectFn).answers(-48);
    QCOMPARE(connectTo(IOTC_Get_SessionID(), reports), -48);
    QVERIFY(reports.wait(1));
    QCOMPARE(reports.all()[0].result, -48);
}

void TestScriptedSessions::testMakesTheReportsOfAPendingConnect()
{
    Reports reports;
    link.initialize();
    link.next(connectFn).reports({});
    const int session = IOTC_Get_SessionID();
    connectTo(session, reports);
    QVERIFY(link.report(session, ConnectStep::progress(1)));
    QVERIFY(reports.wait(1));
    QVERIFY(link.report(session, {2, 5, 0ms}));
    QVERIFY(reports.wait(2));
    QCOMPARE(reports.all()[1].result, 5);
    QVERIFY(!link.report(session, ConnectStep::connected()));
}

void TestScriptedSessions::stoppedConnectFails()
{
    Reports reports;
    link.initialize();
    link.next(connectFn).reports({ConnectStep::connected(1h)});
    const int session = IOTC_Get_SessionID();
    connectTo(session, reports);
    QCOMPARE(IOTC_Connect_Stop_BySID(session), 0);
    QVERIFY(reports.wait(1));
    QCOMPARE(reports.all()[0].state, -1);
    QCOMPARE(reports.all()[0].result, -27);
    QCOMPARE(IOTC_Connect_Stop_BySID(session), -14);
}

void TestScriptedSessions::heldConnectCallIsStopped()
{
    Reports reports;
    std::future<int> call;
    link.initialize();
    const auto gate = link.next(connectFn).holds();
    const int session = IOTC_Get_SessionID();
    call = onThread([&] { return connectTo(session, reports); });
    QVERIFY(gate.waitUntilReached());
    IOTC_Connect_Stop_BySID(session);
    QCOMPARE(call.get(), -27);
    QVERIFY(reports.wait(1));
    QCOMPARE(reports.all()[0].result, -27);
}

void TestScriptedSessions::closedSessionEndsItsPendingConnect()
{
    Reports reports;
    link.initialize();
    link.next(connectFn).reports({});
    connectTo(IOTC_Get_SessionID(), reports);
    IOTC_Session_Close(0);
    const int reserved = IOTC_Get_SessionID();
    QVERIFY(reports.wait(1));
    QCOMPARE(reports.all()[0].result, -27);
    QCOMPARE(link.openSessions(), (std::vector<int>{reserved}));
}

void TestScriptedSessions::takingDownReportsPendingConnectsFirst()
{
    Reports reports;
    link.initialize();
    link.always(connectFn).reports({ConnectStep::progress(0), ConnectStep::connected(1h)});
    for (int connects = 0; connects < 8; ++connects)
        connectTo(IOTC_Get_SessionID(), reports);
    QCOMPARE(IOTC_DeInitialize(), 0);
    const auto all = reports.all();
    const auto ended = std::count_if(all.begin(), all.end(),
        [](const auto& report) { return report.state == -1 && report.result == -27; });
    QCOMPARE(int(ended), 8);
    link.reset();
    QCOMPARE(reports.all().size(), all.size());
}

void TestScriptedSessions::takingDownInsideAReportEndsTheOthers()
{
    struct Inside
    {
        std::promise<std::size_t> reportsAtReturn;
        Reports others; // ends first, and with it the report that keeps the promise
    } inside;
    const auto takeDown = [](int, int, void* userData) {
        auto* self = static_cast<Inside*>(userData);
        IOTC_DeInitialize();
        self->reportsAtReturn.set_value(self->others.all().size());
    };
    link.initialize();
    link.next(connectFn).reports({});
    connectTo(IOTC_Get_SessionID(), inside.others);
    IOTC_Connect_ByUID_ParallelNB(uid, IOTC_Get_SessionID(), takeDown, &inside);
    QCOMPARE(inside.reportsAtReturn.get_future().get(), std::size_t(1));
    QCOMPARE(inside.others.all()[0].result, -27);
}

void TestScriptedSessions::searchFindsTheScriptedDevices()
{
    std::array<IOTC_SearchRecord, 2> records{};
    link.initialize();
    link.addDevice(uid, "192.168.1.20", 5000, "IPC-1");
    link.addDevice(QByteArray(40, 'U'), QByteArray(80, 'i'), 65535, QByteArray(200, 'n'));
    link.addDevice(otherUid, "127.0.0.1", 1, "");
    QCOMPARE(IOTC_Search_Device_Result(records.data(), 2, 1), -56);
    QCOMPARE(IOTC_Search_Device_Start(5000, 1000), 0);
    QCOMPARE(IOTC_Search_Device_Start(5000, 1000), -17);
    QCOMPARE(IOTC_Search_Device_Result(records.data(), 2, 1), 2);
    QCOMPARE(records[0].uid, uid);
    QCOMPARE(records[0].ip, "192.168.1.20");
    QCOMPARE(int(records[0].port), 5000);
    QCOMPARE(records[0].name, "IPC-1");
    QCOMPARE(qstrlen(records[1].uid), 20U);
    QCOMPARE(qstrlen(records[1].ip), 46U);
    QCOMPARE(qstrlen(records[1].name), 137U);
    QCOMPARE(IOTC_Search_Device_Stop(), 0);
    QCOMPARE(IOTC_Search_Device_Start(5000, 1000), 0);
}

ORVA_TEST(TestScriptedSessions)
#include "tst_scriptedsessions.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
// Sessions: ids, connecting, giving up, the address book, going down.
#include "deploymentfile.h"
#include "layertest.h"
#include "testdevice.h"
#include "testmain.h"
#include "transport/udpsocket.h"
#include "wire/limits.h"
#include "wire/search.h"

#include <QElapsedTimer>

#include <algorithm>
#include <thread>

namespace {

const std::string uid = "SESSIONTESTDEVICE001";
const std::string nobody = "NOBODYHASTHISUID0001";

LinkHostSettings withoutSearch()
{
    LinkHostSettings settings = TestDevice::onLoopback();
    settings.answerSearch = false;
    return settings;
}

QByteArray book(const std::string& name, const std::string& endpoint)
{
    return QByteArray::fromStdString("{\"searchScope\": \"loopback\", \"addressBook\": {\"" + name
        + "\": \"" + endpoint + "\"}}");
}

void bringUpAgain()
{
    QCOMPARE(IOTC_DeInitialize(), 0);
    QCOMPARE(IOTC_Initialize2(0), 0);
    QCOMPARE(avInitialize(4096), 4096);
}

int countOf(const char* folder)
{
    return QDir(QString::fromLatin1(folder))
        .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System)
        .size();
}

} // namespace

class TestSessions : public LayerTest
{
    Q_OBJECT

private slots:
    void theSmallestFreeIdIsReserved()
    {
        QCOMPARE(IOTC_Get_SessionID(), 0);
        QCOMPARE(IOTC_Get_SessionID(), 1);
        QCOMPARE(IOTC_Get_SessionID(), 2);
        IOTC_Session_Close(1);
        QCOMPARE(IOTC_Get_SessionID(), 1);
    }

    void thereAre1024Ids()
    {
        for (int i = 0; i < 1024; ++i)
            QCOMPARE(IOTC_Get_SessionID(), i);
        QCOMPARE(IOTC_Get_SessionID(), int(IOTC_NO_FREE_SESSION));
        IOTC_Session_Close(500);
        QCOMPARE(IOTC_Get_SessionID(), 500);
    }

    void aConnectReportsItsSteps()
    {
        TestDevice device(uid);
        Reports reports;
        const int id = IOTC_Get_SessionID();
        QCOMPARE(IOTC_Connect_ByUID_ParallelNB(uid.c_str(), id, Reports::callback, &reports), 0);
        QCOMPARE(reports.final(), id);
        const std::vector<std::pair<int, int>> expected{
            {IOTC_STATE_SEARCHING, 0}, {IOTC_STATE_FOUND, 0}, {IOTC_STATE_CONNECTED, id}};
        QCOMPARE(reports.all(), expected);
    }

    void aConnectedIdIsNotConnectedAgain()
    {
        TestDevice device(uid);
        const int id = connectTo(uid);
        Reports reports;
        QCOMPARE(IOTC_Connect_ByUID_ParallelNB(uid.c_str(), id, Reports::callback, &reports),
            int(IOTC_BAD_SESSION));
        QCOMPARE(reports.final(), int(IOTC_BAD_SESSION));
        QVERIFY(openChannel(id, 0) >= 0);
    }

    void aDeviceThatIsNotThereIsOffline()
    {
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(connectTo(nobody), int(IOTC_DEVICE_OFFLINE));
        QVERIFY(timer.elapsed() >= 2900 && timer.elapsed() < 3500);
        QCOMPARE(IOTC_Get_SessionID(), 0);
    }

    void badArgumentsAreReportedToo_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("too short") << QByteArray("ABCDEFGHIJ012345678");
        QTest::newRow("too long") << QByteArray("ABCDEFGHIJ01234567899");
        QTest::newRow("small letter") << QByteArray("ABCDEFGHIJ012345678a");
        QTest::newRow("other character") << QByteArray("ABCDEFGHIJ012345678-");
    }
    void badArgumentsAreReportedToo()
    {
        QFETCH(const QByteArray, text);
        Reports reports;
        const int id = IOTC_Get_SessionID();
        QCOMPARE(IOTC_Connect_ByUID_ParallelNB(text.constData(), id, Reports::callback, &reports),
            int(IOTC_BAD_ARGUMENT));
        QCOMPARE(reports.final(), int(IOTC_BAD_ARGUMENT));
        QCOMPARE(reports.finalCount(), 1);
        QCOMPARE(IOTC_Get_SessionID(), id);
    }

    void anIdThatIsNotReservedIsRefused()
    {
        for (const int id : {-1, 0, 1024, 123456}) {
            Reports reports;
            QCOMPARE(IOTC_Connect_ByUID_ParallelNB(uid.c_str(), id, Reports::callback, &reports),
                int(IOTC_BAD_SESSION));
            QCOMPARE(reports.final(), int(IOTC_BAD_SESSION));
        }
        QCOMPARE(IOTC_Connect_ByUID_ParallelNB(uid.c_str(), 0, nullptr, nullptr),
            int(IOTC_BAD_ARGUMENT));
        QCOMPARE(IOTC_Connect_Stop_BySID(0), int(IOTC_BAD_SESSION));
    }

    void aSecondConnectOfAPendingIdIsRefused()
    {
        Reports first;
        Reports second;
        const int id = IOTC_Get_SessionID();
        QCOMPARE(IOTC_Connect_ByUID_ParallelNB(nobody.c_str(), id, Reports::callback, &first), 0);
        QCOMPARE(IOTC_Connect_ByUID_ParallelNB(nobody.c_str(), id, Reports::callback, &second),
            int(IOTC_CONNECT_PENDING));
        QCOMPARE(second.final(), int(IOTC_CONNECT_PENDING));
        QCOMPARE(first.finalCount(), 0);
        IOTC_Connect_Stop_BySID(id);
        QCOMPARE(first.final(), int(IOTC_CONNECT_STOPPED));
    }

    void aStoppedConnectEndsWithin100Milliseconds()
    {
        Reports reports;
        const int id = IOTC_Get_SessionID();
        IOTC_Connect_ByUID_ParallelNB(nobody.c_str(), id, Reports::callback, &reports);
        QTest::qWait(100);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(IOTC_Connect_Stop_BySID(id), 0);
        QCOMPARE(reports.final(), int(IOTC_CONNECT_STOPPED));
        QVERIFY2(timer.elapsed() <= 100, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(IOTC_Get_SessionID(), id);
    }

    void closingAPendingSessionReportsOnce()
    {
        Reports reports;
        const int id = IOTC_Get_SessionID();
        IOTC_Connect_ByUID_ParallelNB(nobody.c_str(), id, Reports::callback, &reports);
        IOTC_Session_Close(id);
        QCOMPARE(IOTC_Get_SessionID(), id); // given back at once, and kept by its new owner
        QCOMPARE(reports.final(), int(IOTC_CONNECT_STOPPED));
        QCOMPARE(IOTC_Get_SessionID(), id + 1);
        QCOMPARE(reports.finalCount(), 1);
    }

    void aDeviceThatAdmitsNobodyIsFoundAndNotConnected()
    {
        TestDevice device(uid);
        device.admits = false;
        QCOMPARE(connectTo(uid), int(IOTC_NOT_CONNECTED));
        device.admits = true;
        QVERIFY(connectTo(uid) >= 0);
    }

    void aDeviceThatIsFoundAndThenSilentIsNotConnected()
    {
        const UdpSocket search = UdpSocket::bound(Address::any(searchPort), true);
        const UdpSocket mute = UdpSocket::bound(*Address::parse("127.0.0.1", 24991), false);
        QVERIFY(search && mute);
        Reports reports;
        const int id = IOTC_Get_SessionID();
        QElapsedTimer timer;
        timer.start();
        IOTC_Connect_ByUID_ParallelNB(uid.c_str(), id, Reports::callback, &reports);
        std::string buffer(300, '\0');
        std::string_view datagram;
        while (timer.elapsed() < 2000) {
            const auto from = search.receive(buffer.data(), buffer.size(), datagram);
            const auto query = from ? decodeSearchQuery(datagram) : std::nullopt;
            if (query && query->uid == uid) {
                const auto answer = encode(SearchAnswer{query->nonce, uid, 24991, "mute"});
                search.send(*from, {answer.data(), answer.size()});
                break;
            }
            QTest::qWait(5);
        }
        QCOMPARE(reports.final(), int(IOTC_NOT_CONNECTED));
        QVERIFY2(timer.elapsed() < 5600, qPrintable(QString::number(timer.elapsed())));
    }

    void theAddressBookFindsWhomTheNetworkDoesNot()
    {
        TestDevice device(uid, 4, withoutSearch());
        QVERIFY(device.ok());
        const DeploymentFile file(book(uid, "127.0.0.1:" + std::to_string(device.host().port())));
        bringUpAgain();
        const int session = connectTo(uid);
        QVERIFY2(session >= 0, qPrintable(QString::number(session)));
        QVERIFY(openChannel(session, 0) >= 0);
    }

    void theAddressBookTakesNames()
    {
        TestDevice device(uid, 4, withoutSearch());
        const DeploymentFile file(book(uid, "localhost:" + std::to_string(device.host().port())));
        bringUpAgain();
        QVERIFY(connectTo(uid) >= 0);
    }

    void anAddressWhereNobodyAnswersIsOffline()
    {
        const UdpSocket mute = UdpSocket::bound(*Address::parse("127.0.0.1", 24992), false);
        const DeploymentFile file(book(uid, "127.0.0.1:24992"));
        bringUpAgain();
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(connectTo(uid), int(IOTC_DEVICE_OFFLINE));
        QVERIFY2(timer.elapsed() < 3500, qPrintable(QString::number(timer.elapsed())));
    }

    void theNetworkComesBeforeTheAddressBook()
    {
        TestDevice device(uid);
        const DeploymentFile file(book(uid, "127.0.0.1:24993"));
        bringUpAgain();
        QVERIFY(connectTo(uid) >= 0);
    }

    void oneOfTwoDevicesWithOneUidIsConnected()
    {
        TestDevice one(uid);
        TestDevice other(uid);
        QVERIFY(one.ok() && other.ok());
        const int session = connectTo(uid);
        QVERIFY(session >= 0);
        QVERIFY(openChannel(session, 0) >= 0);
        QTRY_COMPARE(one.opened() + other.opened(), 1);
    }

    void aDeviceThatIsSwitchedOnAgainIsConnectedAgain()
    {
        auto device = std::make_unique<TestDevice>(uid);
        const int session = connectTo(uid);
        const int av = openChannel(session, 0);
        QVERIFY(av >= 0);
        device.reset();
        QTRY_COMPARE(receiveVideo(av).result, int(AV_DEVICE_GONE));
        QCOMPARE(openChannel(session, 1), int(AV_DEVICE_GONE));
        device = std::make_unique<TestDevice>(uid);
        IOTC_Session_Close(session);
        const int again = connectTo(uid);
        QCOMPARE(again, session);
        QVERIFY(openChannel(again, 0) >= 0);
    }

    void threeHundredClientsAtOnce()
    {
        TestDevice device(uid, 1);
        constexpr int clients = 300;
        std::vector<Reports> reports(clients);
        for (Reports& report : reports) {
            const int id = IOTC_Get_SessionID();
            QCOMPARE(IOTC_Connect_ByUID_ParallelNB(uid.c_str(), id, Reports::callback, &report), 0);
        }
        std::vector<int> results;
        results.reserve(clients);
        for (Reports& report : reports)
            results.push_back(report.final());
        // Only now, since the reports must not go before the last is made.
        QVERIFY(*std::min_element(results.begin(), results.end()) >= 0);
        const int av = openChannel(results.back(), 0);
        QVERIFY(av >= 0);
        QCOMPARE(sendMessage(av, 1, "hello"), 0);
    }

    void goingDownEndsWhatIsPending()
    {
        TestDevice device(uid);
        const int session = connectTo(uid);
        const int av = openChannel(session, 0);
        Reports reports;
        IOTC_Connect_ByUID_ParallelNB(
            nobody.c_str(), IOTC_Get_SessionID(), Reports::callback, &reports);
        int result = 0;
        std::thread waiting([&] { result = receiveMessage(av, 20000).result; });
        QTest::qWait(50);
        QCOMPARE(IOTC_DeInitialize(), 0);
        QCOMPARE(reports.finalCount(), 1);
        QCOMPARE(reports.final(), int(IOTC_CONNECT_STOPPED));
        waiting.join();
        QCOMPARE(result, int(AV_TAKEN_DOWN));
        QCOMPARE(receiveVideo(av).result, int(AV_NOT_INITIALIZED));
        QTRY_COMPARE(device.closed(), 1);
        QCOMPARE(IOTC_Initialize2(0), 0);
        QCOMPARE(avInitialize(4096), 4096);
    }

    void aReportMayTakeTheLayerDown()
    {
        struct Down
        {
            static void callback(int state, int result, void* down)
            {
                auto& self = *static_cast<Down*>(down);
                if (state != IOTC_STATE_FAILED)
                    return;
                self.reports += 1;
                if (result == IOTC_BAD_ARGUMENT)
                    self.deInitialized = IOTC_DeInitialize();
            }
            std::atomic<int> reports{0};
            std::atomic<int> deInitialized{-1};
        } down;
        IOTC_Connect_ByUID_ParallelNB(nobody.c_str(), IOTC_Get_SessionID(), Down::callback, &down);
        IOTC_Connect_ByUID_ParallelNB("bad", IOTC_Get_SessionID(), Down::callback, &down);
        QTRY_COMPARE(down.deInitialized.load(), 0);
        QCOMPARE(down.reports.load(), 2);
        QCOMPARE(IOTC_Get_SessionID(), int(IOTC_NOT_INITIALIZED));
        QCOMPARE(IOTC_Initialize2(0), 0);
        QCOMPARE(avInitialize(4096), 4096);
    }

    void comingUpAndGoingDownLeavesNothingBehind()
    {
        TestDevice device(uid);
        const auto once = [&] {
            const int session = connectTo(uid);
            QVERIFY(openChannel(session, 0) >= 0);
            QVERIFY(device.awaitChannel(0));
            bringUpAgain();
        };
        once();
        QTRY_COMPARE(device.closed(), 1);
        const int descriptors = countOf("/proc/self/fd");
        const int threads = countOf("/proc/self/task");
        for (int i = 0; i < 10; ++i)
            once();
        QTRY_COMPARE(device.closed(), 11);
        QTRY_VERIFY(countOf("/proc/self/fd") <= descriptors);
        QTRY_VERIFY(countOf("/proc/self/task") <= threads);
    }

    void aHandlerMayWithdrawItsDevice()
    {
        TestDevice device(uid);
        const int av = openChannel(connectTo(uid), 0);
        QVERIFY(av >= 0);
        device.onControl = [&](const LinkChannelPtr&, std::uint32_t, std::string_view) {
            device.host().withdraw(device.uid());
        };
        sendMessage(av, 1, "x");
        QTRY_COMPARE(device.closed(), 1);
        QTRY_COMPARE(receiveVideo(av).result, int(AV_DEVICE_GONE));
    }
};

ORVA_TEST(TestSessions)
#include "tst_sessions.moc"

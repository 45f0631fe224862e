// SPDX-License-Identifier: GPL-3.0-or-later
// The search on the local network, on loopback.
#include "layertest.h"
#include "testdevice.h"
#include "testmain.h"
#include "transport/udpsocket.h"
#include "wire/limits.h"
#include "wire/search.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace {

std::vector<IOTC_SearchRecord> results()
{
    std::vector<IOTC_SearchRecord> records(256);
    const int count = IOTC_Search_Device_Result(records.data(), 256, 1);
    records.resize(static_cast<std::size_t>(std::max(count, 0)));
    return records;
}

std::optional<IOTC_SearchRecord> recordOf(
    const std::vector<IOTC_SearchRecord>& records, const std::string& uid)
{
    const auto found = std::find_if(records.begin(), records.end(),
        [&](const IOTC_SearchRecord& record) { return uid == record.uid; });
    return found == records.end() ? std::nullopt : std::optional(*found);
}

} // namespace

class TestSearch : public LayerTest
{
    Q_OBJECT

private slots:
    void cleanup() { IOTC_Search_Device_Stop(); }

    void everyDeviceIsFoundOnce()
    {
        TestDevice one("SEARCHTESTDEVICE0001", 4);
        TestDevice other("SEARCHTESTDEVICE0002", 8);
        QCOMPARE(IOTC_Search_Device_Start(2000, 50), 0);
        QTRY_COMPARE(results().size(), std::size_t{2});
        QTest::qWait(200); // more answers come meanwhile
        const auto records = results();
        QCOMPARE(records.size(), std::size_t{2});
        const auto record = recordOf(records, other.uid());
        QVERIFY(record);
        QCOMPARE(std::string(record->ip), std::string("127.0.0.1"));
        QCOMPARE(record->port, other.host().port());
        QCOMPARE(std::string(record->name), std::string("C1.IPC-8"));
    }

    void twoDevicesWithOneUidAreOneRecord()
    {
        TestDevice one("SEARCHTESTDEVICE0001");
        TestDevice other("SEARCHTESTDEVICE0001");
        QCOMPARE(IOTC_Search_Device_Start(2000, 50), 0);
        QTRY_COMPARE(results().size(), std::size_t{1});
        QTest::qWait(200);
        QCOMPARE(results().size(), std::size_t{1});
    }

    void noMoreRecordsThanTheCapacity()
    {
        TestDevice one("SEARCHTESTDEVICE0001");
        TestDevice other("SEARCHTESTDEVICE0002");
        QCOMPARE(IOTC_Search_Device_Start(2000, 50), 0);
        QTRY_COMPARE(results().size(), std::size_t{2});
        IOTC_SearchRecord record{};
        QCOMPARE(IOTC_Search_Device_Result(&record, 1, 1), 1);
    }

    void oneSearchAtATime()
    {
        IOTC_SearchRecord record{};
        QCOMPARE(IOTC_Search_Device_Result(&record, 1, 1), int(IOTC_NO_SEARCH));
        QCOMPARE(IOTC_Search_Device_Start(100, 50), 0);
        QCOMPARE(IOTC_Search_Device_Start(100, 50), int(IOTC_SEARCH_RUNNING));
        QCOMPARE(IOTC_Search_Device_Result(&record, 1, 1), 0);
        QCOMPARE(IOTC_Search_Device_Stop(), 0);
        QCOMPARE(IOTC_Search_Device_Stop(), 0);
        QCOMPARE(IOTC_Search_Device_Start(100, 50), 0);
    }

    void badArgumentsAreRefused()
    {
        IOTC_SearchRecord record{};
        QCOMPARE(IOTC_Search_Device_Start(0, 50), int(IOTC_BAD_ARGUMENT));
        QCOMPARE(IOTC_Search_Device_Start(100, -1), int(IOTC_BAD_ARGUMENT));
        QCOMPARE(IOTC_Search_Device_Result(nullptr, 1, 1), int(IOTC_BAD_ARGUMENT));
        QCOMPARE(IOTC_Search_Device_Result(&record, 0, 1), int(IOTC_BAD_ARGUMENT));
    }

    void aSilentDeviceDoesNotAnswer()
    {
        TestDevice loud("SEARCHTESTDEVICE0001");
        TestDevice silent("SEARCHTESTDEVICE0002");
        silent.host().setSilent(silent.uid(), true);
        QCOMPARE(IOTC_Search_Device_Start(2000, 50), 0);
        QTRY_COMPARE(results().size(), std::size_t{1});
        QTest::qWait(200);
        QVERIFY(!recordOf(results(), silent.uid()));
    }

    // Whoever sits on the network can send anything: only an answer to this search's own question,
    // in form, becomes a record.
    void forgedAnswersAreNotBelieved()
    {
        const UdpSocket forger = UdpSocket::bound(Address::any(searchPort), true);
        QVERIFY(forger);
        QCOMPARE(IOTC_Search_Device_Start(2000, 50), 0);
        std::string buffer(300, '\0');
        std::string_view datagram;
        std::optional<Address> client;
        std::optional<SearchQuery> query;
        for (int i = 0; i < 500 && !query; ++i) {
            QTest::qWait(5);
            client = forger.receive(buffer.data(), buffer.size(), datagram);
            query = client ? decodeSearchQuery(datagram) : std::nullopt;
        }
        QVERIFY(query.has_value());
        const auto send = [&](const SearchAnswer& answer, std::size_t size = searchDatagramBytes) {
            const auto bytes = encode(answer);
            QVERIFY(forger.send(*client, {bytes.data(), size}));
        };
        send({query->nonce + 1, "FORGEDDEVICE00000001", 1000, "other nonce"});
        send({query->nonce, "forgeddevice00000002", 1000, "no uid"});
        send({query->nonce, "FORGEDDEVICE00000003", 0, "no port"});
        send({query->nonce, "FORGEDDEVICE00000004", 1000, "line\nbreak"});
        send({query->nonce, "FORGEDDEVICE00000005", 1000, "cut"}, searchDatagramBytes - 1);
        QVERIFY(forger.send(*client, std::string(2000, 'x')));
        send({query->nonce, "ANSWERINGDEVICE00001", 1000, "sound"});
        QTRY_COMPARE(results().size(), std::size_t{1});
        QCOMPARE(std::string(results().front().uid), std::string("ANSWERINGDEVICE00001"));
    }

    void rubbishDoesNotDisturbTheDevice()
    {
        TestDevice device("SEARCHTESTDEVICE0001");
        const UdpSocket socket = UdpSocket::bound(*Address::parse("127.0.0.1", 0), false);
        const Address search = *Address::parse("127.255.255.255", searchPort);
        for (const std::size_t size : {0UL, 1UL, 255UL, 256UL, 257UL, 1400UL}) {
            QVERIFY(socket.send(search, std::string(size, 'O')));
            QVERIFY(socket.send(
                *Address::parse("127.0.0.1", device.host().port()), std::string(size, '\x80')));
        }
        QCOMPARE(IOTC_Search_Device_Start(2000, 50), 0);
        QTRY_COMPARE(results().size(), std::size_t{1});
        QVERIFY(connectTo(device.uid()) >= 0);
    }
};

ORVA_TEST(TestSearch)
#include "tst_search.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
// Clients with the right password, however they come and go, are never shut out.
#include "layertest.h"
#include "strangeclient.h"
#include "testdevice.h"
#include "testmain.h"
#include "wire/framing.h"

#include <future>

namespace {

const std::string uid = "HONESTCLIENTSDEVICE1";

// A device whose event thread can be held in a handler, as one that is slow does.
struct Hold
{
    explicit Hold(TestDevice& device)
    {
        device.onControl = [this](const LinkChannelPtr&, std::uint32_t type, std::string_view) {
            if (type != 77)
                return;
            held.set_value();
            release.get_future().wait();
        };
    }
    std::promise<void> held;
    std::promise<void> release;
};

} // namespace

class TestHonestClients : public LayerTest
{
    Q_OBJECT

private slots:
    void aRightPasswordIsNeverCountedAsWrong_data()
    {
        QTest::addColumn<int>("lateMs");
        QTest::newRow("SRT still knows the connection") << 300;
        QTest::newRow("SRT has forgotten the connection") << 4000;
    }
    // Gone again before the device has accepted it.
    void aRightPasswordIsNeverCountedAsWrong()
    {
        QFETCH(const int, lateMs);
        TestDevice device(uid, 16);
        StrangeClient client(uid, device.host().port());
        QVERIFY(client.openSession());
        QVERIFY(client.openChannel(0));
        Hold hold(device);
        client.channel.send(encode(Control{1, 77, "x"}));
        hold.held.get_future().wait();
        const SrtSocket kept = std::move(client.channel);
        for (int i = 1; i <= 10; ++i) {
            client.openChannel(i);
            QVERIFY2(client.channel.connected(), qPrintable(QString::number(i)));
            client.channel.close();
        }
        QTest::qWait(lateMs);
        hold.release.set_value();
        QTest::qWait(500);
        QCOMPARE(device.wrongPasswords(), 0);
    }

    // The same without holding anything: gone again as soon as it is connected.
    void aRightPasswordIsNeverCountedAsWrongThoughFast()
    {
        TestDevice device(uid, 64);
        StrangeClient client(device.uid(), device.host().port());
        QVERIFY(client.openSession());
        QVERIFY(client.openChannel(0));
        int connected = 0;
        for (int i = 0; i < 300 && device.wrongPasswords() == 0; ++i) {
            const SrtSocket socket = client.startChannel(1 + i % 60);
            while (srt_getsockstate(socket.id()) < SRTS_CONNECTED) { }
            connected += socket.connected() ? 1 : 0;
            socket.close();
        }
        QTest::qWait(500);
        QVERIFY(connected > 0);
        QCOMPARE(device.wrongPasswords(), 0);
    }

    void flickingThroughChannelsLocksNobodyOut()
    {
        TestDevice device(uid, 64);
        const int session = connectTo(device.uid());
        QVERIFY(openChannel(session, 63) >= 0);
        for (int i = 0; i < 60; ++i) {
            const int av = openChannel(session, i);
            QVERIFY2(av >= 0, qPrintable(QString::number(av)));
            avClientStop(av);
        }
        QTest::qWait(200);
        QCOMPARE(device.wrongPasswords(), 0);
    }
};

ORVA_TEST(TestHonestClients)
#include "tst_honestclients.moc"

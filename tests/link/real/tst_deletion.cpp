// SPDX-License-Identifier: GPL-3.0-or-later
// Devices that leave the registry while the link is busy with them.
#include "IOTCAPIs.h"
#include "linktest.h"
#include "testmain.h"

#include <QJsonArray>

namespace {

const QByteArray uid = "LINKDELETIONDEVICE01";

} // namespace

class TestDeletion final : public LinkTest
{
    Q_OBJECT

public:
    TestDeletion()
        : LinkTest(BridgeProcess::device(uid, 2))
    {
    }

private slots:
    void twoHundredDevicesAreDeletedDuringTheirAttempts();
};

// From right after the request to when the channels are there.
void TestDeletion::twoHundredDevicesAreDeletedDuringTheirAttempts()
{
    constexpr int count = 200;
    constexpr int steps = 20;
    constexpr int stepMs = 3;
    QSignalSpy sessions(io(), &IoConnect::connectDevSuccessMsg);
    QSignalSpy failures(io(), &IoConnect::connectDevFailMsg);
    int destroyed = 0;
    for (int i = 0; i < count; ++i) {
        Device* device = addDevice(QString::fromLatin1(uid), 2);
        connect(device->channel(0)->ioTimer(), &QObject::destroyed, this,
            [&destroyed] { ++destroyed; });
        io()->connect(device->channel(0));
        io()->connect(device->channel(1));
        QTest::qWait(i % steps * stepMs);
        deleteDevice(device);
    }
    QTRY_COMPARE_WITH_TIMEOUT(destroyed, count, 60000);
    QCOMPARE(sessions.size() + failures.size(), count);
    // No session is left behind: the smallest number is free.
    QTRY_VERIFY(bridge()
                    .deviceStatus(QString::fromLatin1(uid))
                    .value(QStringLiteral("clients"))
                    .toArray()
                    .isEmpty());
    const int sid = IOTC_Get_SessionID();
    IOTC_Session_Close(sid);
    QCOMPARE(sid, 0);
}

ORVA_TEST(TestDeletion)
#include "tst_deletion.moc"

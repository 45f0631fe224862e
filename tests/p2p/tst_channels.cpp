// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkclient.h"
#include "testdevice.h"
#include "testmain.h"

#include <QElapsedTimer>

namespace {

const std::string uid = "CHANNELTESTDEVICE001";

LinkFrame frameOf(std::size_t size, bool key)
{
    LinkFrame frame;
    frame.bytes.resize(size);
    for (std::size_t i = 0; i < size; ++i)
        frame.bytes[i] = static_cast<std::uint8_t>(i * 7 + size);
    describe(frame, LinkCodecH264, key, 1700000000);
    return frame;
}

} // namespace

class TestChannels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCOMPARE(IOTC_Initialize2(0), 0);
        QCOMPARE(avInitialize(64), 64);
    }
    void cleanupTestCase() { QCOMPARE(IOTC_DeInitialize(), 0); }

    void framesArriveWholeAndInOrder()
    {
        TestDevice device(uid);
        QVERIFY(device.ok());
        QElapsedTimer timer; timer.start();
        const int session = connectTo(uid);
        qDebug() << "connect" << timer.restart();
        QVERIFY2(session >= 0, qPrintable(QString::number(session)));
        const int av = openChannel(session, 1);
        qDebug() << "open" << timer.restart();
        QVERIFY2(av >= 0, qPrintable(QString::number(av)));
        QTRY_COMPARE(device.opened(), 1);
        const char text[8] = {1, 2, 3};
        timer.restart();
        QCOMPARE(avSendIOCtrl(av, 511, text, 8), 0);
        qDebug() << "control" << timer.restart();
        QCOMPARE(device.messages().size(), std::size_t {1});
        const LinkChannelPtr channel = device.channel(1);
        QVERIFY(channel);
        for (const std::size_t size : {1UL, 1427UL, 1428UL, 1429UL, 1444UL, 100000UL, 2304000UL}) {
            const LinkFrame sent = frameOf(size, true);
            QCOMPARE(channel->sendVideo(sent), LinkChannel::Sent::Queued);
            const ReceivedFrame got = awaitVideo(av);
            QCOMPARE(got.result, int(size));
            QVERIFY(std::equal(got.bytes.begin(), got.bytes.end(), sent.bytes.begin(), [](char a, std::uint8_t b) { return std::uint8_t(a) == b; }));
        }
        qDebug() << "frames" << timer.restart();
        avClientStop(av);
        QTRY_COMPARE(device.closed(), 1);
        QCOMPARE(openChannel(session, 1, "wrong"), int(AV_WRONG_PASSWORD));
        QTRY_COMPARE(device.wrongPasswords(), 1);
        IOTC_Session_Close(session);
    }
};

ORVA_TEST(TestChannels)
#include "tst_channels.moc"

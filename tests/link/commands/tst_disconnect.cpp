// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/dev.h"
#include "iotest.h"
#include "testmain.h"

#include <QTest>

// A device is disconnected: its session ends with all that runs on it.
class TestDisconnect final : public QObject
{
    Q_OBJECT

private slots:
    void endsSessionAndStreamsInOrder();
    void forgetsEverythingThatRan();
    void endsSendsOnlyOfConnectedChannels();
    void stopsNoAvChannelByItself();
    void takesAChannelForItsDevice();
    void doesNothingWithoutASession();
    void isDoneOnce();
    void endsASendThatHangs();
    void commandsThatWaitedFailTheUsualWay();
    void endsTalkBack();
    void channelsBeyondTheCountKeepNoIndex();
    void happensToADeviceThatLeaves();
    void laterConnectOpensANewSession();
};

void TestDisconnect::endsSessionAndStreamsInOrder()
{
    IoTest t(2);
    for (const int number : {0, 1})
        t.channel(number)->mode(false).avIndex = t.link.openChannel(t.device->sid, 20 + number);
    const int sid = t.device->sid;
    QTest::ignoreMessage(QtDebugMsg, "disConnectDevice");
    t.io->disConnectDevice(t.device.get());
    QCOMPARE(t.record.lines(),
        QStringList({"avSendIOCtrlExit 1", "avSendIOCtrlExit 2",
            QStringLiteral("IOTC_Session_Close %1").arg(sid), "ViewControl::setRecord 0 off",
            "Decode::removeStream 0 live", "videoRequestStopSuccessMsg 0",
            "ViewControl::setRecord 0 off", "Decode::removeStream 0 replay",
            "stopReplaySuccessMsg 0", "ViewControl::setRecord 1 off", "Decode::removeStream 1 live",
            "videoRequestStopSuccessMsg 1", "ViewControl::setRecord 1 off",
            "Decode::removeStream 1 replay", "stopReplaySuccessMsg 1"}));
}

void TestDisconnect::forgetsEverythingThatRan()
{
    IoTest t(2);
    for (const int number : {0, 1}) {
        for (const bool isLive : {true, false}) {
            ChannelMode& mode = t.channel(number)->mode(isLive);
            mode.open = true;
            mode.playing = true;
        }
        t.channel(number)->mode(false).avIndex = t.link.openChannel(t.device->sid, 20 + number);
        t.channel(number)->setRecord(true, true);
    }
    int sidBySignal = 0;
    connect(t.io.get(), &IoConnect::videoRequestStopSuccessMsg, this,
        [&](Channel* channel) { sidBySignal = channel->device()->sid; });
    t.io->disConnectDevice(t.device.get());
    QCOMPARE(sidBySignal, -1);
    QCOMPARE(int(t.device->sid), -1);
    for (const int number : {0, 1}) {
        for (const bool isLive : {true, false}) {
            const ChannelMode& mode = t.channel(number)->mode(isLive);
            QVERIFY(!mode.open);
            QVERIFY(!mode.playing);
            QVERIFY(!mode.record);
            QCOMPARE(int(mode.avIndex), -1);
        }
    }
}

// Another channel may get the number next.
void TestDisconnect::channelsBeyondTheCountKeepNoIndex()
{
    IoTest t(2);
    t.device->setChannelCount(1);
    t.io->disConnectDevice(t.device.get());
    QCOMPARE(int(t.channel(1)->mode(true).avIndex), -1);
    QVERIFY(!t.record.lines().contains(QStringLiteral("videoRequestStopSuccessMsg 1")));
}

void TestDisconnect::happensToADeviceThatLeaves()
{
    IoTest t;
    t.channel()->speaking = true;
    t.channel()->talkIndex = 9;
    t.channel()->mode(true).playing = true;
    emit Dev::instance()->deleteDevMsg(t.device.get());
    QCOMPARE(int(t.device->sid), -1);
    QCOMPARE(int(t.channel()->mode(true).avIndex), -1);
    QCOMPARE(int(t.channel()->talkIndex), -1);
    QVERIFY(!t.channel()->mode(true).playing);
    QVERIFY(t.record.lines().contains(QStringLiteral("AudioSend::stop")));
}

void TestDisconnect::endsSendsOnlyOfConnectedChannels()
{
    IoTest t(2);
    t.channel(0)->mode(true).avIndex = -1;
    t.io->disConnectDevice(t.device.get());
    QCOMPARE(t.record.lines().filter(QStringLiteral("Exit")), QStringList({"avSendIOCtrlExit 2"}));
    QVERIFY(t.record.lines().contains(QStringLiteral("videoRequestStopSuccessMsg 0")));
}

void TestDisconnect::stopsNoAvChannelByItself()
{
    IoTest t(2);
    t.io->disConnectDevice(t.device.get());
    QVERIFY(t.settle());
    QCOMPARE(t.link.count(LinkFn::avClientStop), 0);
    QCOMPARE(t.link.openIndices(), std::vector<int>({0})); // the other device's
}

void TestDisconnect::takesAChannelForItsDevice()
{
    IoTest t(2);
    t.io->disConnectDevice(t.channel(1));
    QCOMPARE(int(t.device->sid), -1);
    QVERIFY(t.record.lines().contains(QStringLiteral("stopReplaySuccessMsg 0")));
}

void TestDisconnect::doesNothingWithoutASession()
{
    IoTest t(2);
    t.device->sid = -1;
    t.channel(0)->mode(true).open = true;
    t.io->disConnectDevice(t.device.get());
    t.io->disConnectDevice(t.channel(0));
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), QStringList());
    QVERIFY(t.channel(0)->mode(true).open);
    QVERIFY(t.avIndex(0) >= 0);
}

void TestDisconnect::isDoneOnce()
{
    IoTest t(2);
    t.io->disConnectDevice(t.device.get());
    t.record.clear();
    t.io->disConnectDevice(t.device.get());
    QCOMPARE(t.record.lines(), QStringList());
}

void TestDisconnect::endsASendThatHangs()
{
    IoTest t(2);
    t.link.next(LinkFn::avSendIOCtrl).hangs();
    t.io->sendRotateMode(t.channel(1), 1);
    QVERIFY(t.link.waitForCalls(1, LinkFn::avSendIOCtrl));
    t.io->disConnectDevice(t.device.get());
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines().last(),
        QStringLiteral("setRotateModeFailMsg 1 -20022 Sending  is terminated "));
}

void TestDisconnect::commandsThatWaitedFailTheUsualWay()
{
    IoTest t(2);
    const DeviceOwner other(new Device); // has the turn meanwhile
    other->setChannelCount(1);
    other->channel(0)->mode(true).avIndex = 0;
    auto gate = t.link.next(LinkFn::avSendIOCtrl).holds();
    t.io->getQuality(other->channel(0));
    t.io->startLive(t.channel(1));
    QVERIFY(gate.waitUntilReached());
    t.io->disConnectDevice(t.device.get());
    gate.release();
    QVERIFY(t.settle());
    QCOMPARE(t.record.sentTypes(), QList<int>({802, 255}));
    QCOMPARE(t.record.sends().at(1).avIndex(), -1);
    const int result = t.record.sends().at(1).result.value_or(0);
    QVERIFY(result < 0);
    QVERIFY(t.record.lines().last().startsWith(
        QStringLiteral("videoRequestFailMsg 1 %1 ").arg(result)));
    QVERIFY(!t.channel(1)->ioTimer()->isActive());
}

void TestDisconnect::endsTalkBack()
{
    IoTest t(2);
    t.channel(1)->speaking = true;
    t.channel(1)->talkIndex = 9;
    t.channel(0)->talkIndex = 8; // a server that nobody has joined yet
    t.io->disConnectDevice(t.device.get());
    QVERIFY(t.settle());
    for (const int number : {0, 1}) {
        QVERIFY(!t.channel(number)->speaking);
        QCOMPARE(int(t.channel(number)->talkIndex), -1);
    }
    QCOMPARE(
        t.record.lines().filter(QStringLiteral("AudioSend")), QStringList({"AudioSend::stop"}));
}

void TestDisconnect::laterConnectOpensANewSession()
{
    IoTest t(2);
    t.io->disConnectDevice(t.device.get());
    t.record.clear();
    t.io->connect(t.channel(1));
    QTRY_VERIFY(t.record.lines().contains(QStringLiteral("connectChannelSuccessMsg 1")));
    QVERIFY(t.settle());
    QVERIFY(t.device->sid >= 0);
    QVERIFY(t.avIndex(1) >= 0);
    QCOMPARE(t.record.lines().mid(0, 4),
        QStringList({"IOTC_Get_SessionID", "IOTC_Connect_ByUID_ParallelNB ABCDEFGHIJ0123456789",
            "connectDevSuccessMsg 0", QStringLiteral("avClientStart2 %1").arg(t.device->sid)}));
    QCOMPARE(t.record.sentTypes(), QList<int>({13083, 802, 4353}));
    QCOMPARE(t.record.lines().filter(QStringLiteral("connectChannelSuccessMsg")),
        QStringList({"connectChannelSuccessMsg 1"}));
    QCOMPARE(int(t.channel(0)->mode(true).avIndex), -1);
}

ORVA_TEST(TestDisconnect)
#include "tst_disconnect.moc"

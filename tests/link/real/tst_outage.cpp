// SPDX-License-Identifier: GPL-3.0-or-later
// A device program that hangs, or is killed.
#include "AVAPIs.h"
#include "linktest.h"
#include "testmain.h"

namespace {

const QByteArray uid = "LINKOUTAGEDEVICE0001";
const QByteArray healthyUid = "LINKOUTAGEDEVICE0002";

QByteArray devices()
{
    return BridgeProcess::device(uid) + BridgeProcess::device(healthyUid);
}

} // namespace

class TestOutage final : public LinkTest
{
    Q_OBJECT

public:
    TestOutage()
        : LinkTest(devices())
    {
    }

private slots:
    void init();

    void killedWhileStreamingItStreamsAgainAfterAnotherConnect();
    void killedWhileASendIsUnderWayTheSendFails();
    void sendThatHangsIsEndedByTheTimer();
    void sendThatHangsEndsWithTheSession();
    void commandOfAHealthyDeviceGoesOutAfterTheOneThatHangs();
    void sessionMayEndAtAnyStepOfAStart();

private:
    void streamAfterRestart();
    bool hold(const char* on) { return bridge().fault(uid, QByteArray("hold ") + on); }

    Channel* channel_ = nullptr;
};

void TestOutage::init()
{
    QVERIFY(hold("off")); // a test that failed may have left it on
    channel_ = connectedChannel(QString::fromLatin1(uid));
    QVERIFY(channel_);
}

void TestOutage::streamAfterRestart()
{
    QVERIFY2(bridge().start(), bridge().log().constData());
    io()->disConnectDevice(channel_);
    QVERIFY(bringUp(channel_));
    io()->startLive(channel_);
    const int avIndex = channel_->mode(true).avIndex;
    for (int i = 0; i < 3; ++i)
        QVERIFY(awaitPicture(avIndex).result > 0);
}

void TestOutage::killedWhileStreamingItStreamsAgainAfterAnotherConnect()
{
    io()->startLive(channel_);
    const int avIndex = channel_->mode(true).avIndex;
    QVERIFY(awaitPicture(avIndex).result > 0);
    bridge().kill();
    QTRY_COMPARE_WITH_TIMEOUT(takePicture(avIndex).result, int(AV_DEVICE_GONE), patienceMs);
    QSignalSpy failed(io(), &IoConnect::videoRequestStopFailMsg);
    io()->stopLife(channel_, false);
    QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, patienceMs);
    QCOMPARE(failed.first(), failure(channel_, -20016, "Session is disconnected"));
    streamAfterRestart();
}

void TestOutage::killedWhileASendIsUnderWayTheSendFails()
{
    QVERIFY(hold("on"));
    QSignalSpy failed(io(), &IoConnect::getSmartSensitivityFailMsg);
    io()->getSmartSensitivity(channel_); // no timer would end it
    QSignalSpy waiting(io(), &IoConnect::getWifiListFailMsg);
    io()->getWifiList(channel_);
    QVERIFY(!failed.wait(300));
    bridge().kill();
    QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, patienceMs);
    QCOMPARE(failed.first(), failure(channel_, -20016, "Session is disconnected"));
    QTRY_COMPARE_WITH_TIMEOUT(waiting.size(), 1, patienceMs);
    QCOMPARE(waiting.first(), failure(channel_, -20016, "Session is disconnected"));
    streamAfterRestart();
}

void TestOutage::sendThatHangsIsEndedByTheTimer()
{
    QVERIFY(hold("on"));
    QSignalSpy failed(io(), &IoConnect::setTimeZoneFailMsg);
    io()->setTimeZone(channel_, QStringLiteral("UTC"));
    QVERIFY(channel_->ioTimer()->isActive());
    QCOMPARE(channel_->ioTimer()->interval(), 20000);
    // Nobody wants to wait for that here.
    channel_->ioTimer()->start(500);
    QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, patienceMs);
    QCOMPARE(failed.first(), failure(channel_, -20022, "Sending  is terminated "));
    QVERIFY(!channel_->ioTimer()->isActive());

    QVERIFY(hold("off"));
    QSignalSpy written(io(), &IoConnect::setTimeZoneSuccessMsg);
    io()->setTimeZone(channel_, QStringLiteral("UTC"));
    QTRY_COMPARE_WITH_TIMEOUT(written.size(), 1, patienceMs);
}

void TestOutage::sendThatHangsEndsWithTheSession()
{
    QVERIFY(hold("on"));
    QSignalSpy failed(io(), &IoConnect::getRecordModeFailMsg);
    io()->getRecordMode(channel_);
    QVERIFY(!failed.wait(300));
    io()->disConnectDevice(channel_);
    QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, 1000);
    // Whichever comes to the send first, the end of the sends or that of the session.
    const QList<QVariant> sendEnded = failure(channel_, -20022, "Sending  is terminated ");
    const QList<QVariant> sessionEnded =
        failure(channel_, -20015, "The remote session already closes");
    QVERIFY(failed.first() == sendEnded || failed.first() == sessionEnded);
    QVERIFY(hold("off"));
    QVERIFY(bringUp(channel_));
}

void TestOutage::commandOfAHealthyDeviceGoesOutAfterTheOneThatHangs()
{
    Channel* healthy = connectedChannel(QString::fromLatin1(healthyUid));
    QVERIFY(healthy);
    QVERIFY(hold("on"));
    QSignalSpy failed(io(), &IoConnect::getRotateModeFailMsg);
    QSignalSpy sent(io(), &IoConnect::setTimeSuccessMsg);
    io()->getRotateMode(channel_);
    io()->setTime(healthy, QDateTime::currentDateTime());
    QVERIFY(!sent.wait(300)); // one command at a time
    QCOMPARE(avSendIOCtrlExit(channel_->mode(true).avIndex), 0);
    QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, patienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(sent.size(), 1, patienceMs);
    QVERIFY(hold("off"));
}

void TestOutage::sessionMayEndAtAnyStepOfAStart()
{
    for (int i = 0; i < 10; ++i) {
        QVERIFY2(bringUp(channel_), qPrintable(QString::number(i)));
        io()->startLive(channel_);
        QTest::qWait(i % 10);
        io()->disConnectDevice(channel_);
    }
    QVERIFY(bringUp(channel_));
}

ORVA_TEST(TestOutage)
#include "tst_outage.moc"

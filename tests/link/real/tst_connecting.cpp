// SPDX-License-Identifier: GPL-3.0-or-later
// Sessions and channels of a real device program.
#include "link/firmware.h"
#include "linktest.h"
#include "testmain.h"

#include <QSet>

namespace {

constexpr int deviceCount = 8;
constexpr int channelsEach = 4;

QString uidOf(int device)
{
    return QStringLiteral("LINKCONNECTDEVICE%1").arg(device, 3, 10, QLatin1Char('0'));
}

QByteArray devices()
{
    QByteArray list;
    for (int i = 0; i < deviceCount; ++i)
        list += BridgeProcess::device(uidOf(i).toLatin1(), channelsEach);
    return list;
}

QSet<Channel*> channelsOf(const QSignalSpy& spy)
{
    QSet<Channel*> channels;
    for (const QList<QVariant>& sent : spy)
        channels.insert(sent.first().value<Channel*>());
    return channels;
}

} // namespace

class TestConnecting final : public LinkTest
{
    Q_OBJECT

public:
    TestConnecting()
        : LinkTest(devices())
    {
    }

private slots:
    void thirtyTwoChannelsOfEightDevicesConnectOnceEach();
    void secondChannelSharesTheSession();
    void channelThatIsConnectedIsTakenAsItIs();
    void wrongPasswordIsToldWithItsText();
    void unknownDeviceIsToldOfflineWithinFourSeconds();
    void deviceThatRefusesIsTriedAgainByTheNextConnect();
    void disconnectedDeviceConnectsAgain();
};

void TestConnecting::thirtyTwoChannelsOfEightDevicesConnectOnceEach()
{
    QSignalSpy sessions(io(), &IoConnect::connectDevSuccessMsg);
    QSignalSpy connected(io(), &IoConnect::connectChannelSuccessMsg);
    QSignalSpy versions(io(), &IoConnect::getChannelInfoMsg);
    QSignalSpy qualities(io(), &IoConnect::changeQualitySuccessMsg);
    QSignalSpy ptzStates(io(), &IoConnect::getPtzMsg);
    QSet<Channel*> channels;
    for (int i = 0; i < deviceCount; ++i) {
        const Device* device = addDevice(uidOf(i), channelsEach);
        for (int number = 0; number < channelsEach; ++number)
            channels.insert(device->channel(number));
    }
    for (Channel* channel : qAsConst(channels))
        io()->connect(channel);
    for (const QSignalSpy* spy : {&connected, &versions, &qualities, &ptzStates})
        QTRY_COMPARE_WITH_TIMEOUT(spy->size(), channels.size(), 40000);

    QCOMPARE(sessions.size(), deviceCount);
    for (const QSignalSpy* spy : {&connected, &versions, &qualities, &ptzStates})
        QVERIFY(channelsOf(*spy) == channels);
    QSet<int> avIndices;
    for (const Channel* channel : qAsConst(channels)) {
        avIndices.insert(channel->mode(true).avIndex);
        QCOMPARE(firmwareVersion(*channel), latin1(BridgeProcess::version));
        QVERIFY(channel->mode(true).highQuality);
    }
    QCOMPARE(avIndices.size(), channels.size());
}

void TestConnecting::secondChannelSharesTheSession()
{
    const Device* device = addDevice(uidOf(0), 2);
    QVERIFY(bringUp(device->channel(0)));
    const int sid = device->sid;
    QVERIFY(bringUp(device->channel(1)));
    QCOMPARE(int(device->sid), sid);
    QVERIFY(device->channel(0)->mode(true).avIndex != device->channel(1)->mode(true).avIndex);
}

void TestConnecting::channelThatIsConnectedIsTakenAsItIs()
{
    Channel* channel = connectedChannel(uidOf(0));
    QVERIFY(channel);
    const int avIndex = channel->mode(true).avIndex;
    QVERIFY(bringUp(channel));
    QCOMPARE(int(channel->mode(true).avIndex), avIndex);
}

void TestConnecting::wrongPasswordIsToldWithItsText()
{
    Channel* channel = addDevice(uidOf(0), 1, QStringLiteral("guess"))->channel(0);
    QSignalSpy sessions(io(), &IoConnect::connectDevSuccessMsg);
    QSignalSpy connected(io(), &IoConnect::connectChannelSuccessMsg);
    QSignalSpy failed(io(), &IoConnect::connectChannelFailMsg);
    io()->connect(channel);
    QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, patienceMs);
    QCOMPARE(failed.first(), failure(channel, -20009, "Incorrect view account or password"));
    QCOMPARE(sessions.size(), 1);
    QCOMPARE(connected.size(), 0);
    QCOMPARE(int(channel->mode(true).avIndex), -1);
}

void TestConnecting::unknownDeviceIsToldOfflineWithinFourSeconds()
{
    Channel* channel = addDevice(QStringLiteral("LINKNOSUCHDEVICE0000"))->channel(0);
    QSignalSpy failed(io(), &IoConnect::connectDevFailMsg);
    io()->connect(channel);
    QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, 4000);
    QCOMPARE(failed.first(), failure(channel, -90, "Device offline"));
    QCOMPARE(int(channel->device()->sid), -1);
    QVERIFY(!channel->device()->connecting);
}

void TestConnecting::deviceThatRefusesIsTriedAgainByTheNextConnect()
{
    QVERIFY(bridge().fault(uidOf(1).toLatin1(), "refuse 1"));
    Channel* channel = addDevice(uidOf(1))->channel(0);
    QSignalSpy failed(io(), &IoConnect::connectDevFailMsg);
    io()->connect(channel);
    QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 1, patienceMs);
    QCOMPARE(failed.first(), failure(channel, -42, "Client fails to connect device"));
    QVERIFY(bringUp(channel));
}

void TestConnecting::disconnectedDeviceConnectsAgain()
{
    Channel* channel = connectedChannel(uidOf(2));
    QVERIFY(channel);
    QSignalSpy liveEnds(io(), &IoConnect::videoRequestStopSuccessMsg);
    QSignalSpy replayEnds(io(), &IoConnect::stopReplaySuccessMsg);
    io()->disConnectDevice(channel);
    QCOMPARE(liveEnds.size(), 1);
    QCOMPARE(replayEnds.size(), 1);
    QCOMPARE(int(channel->device()->sid), -1);
    QCOMPARE(int(channel->mode(true).avIndex), -1);
    QTRY_VERIFY(bridge().clientStatus(uidOf(2)).isEmpty());
    QVERIFY(bringUp(channel));
    QVERIFY(!bridge().clientStatus(uidOf(2)).isEmpty());
}

ORVA_TEST(TestConnecting)
#include "tst_connecting.moc"

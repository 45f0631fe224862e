// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/device.h"
#include "testmain.h"

#include <QPointer>
#include <QTest>

#include <memory>

class TestDevice final : public QObject
{
    Q_OBJECT

private slots:
    void freshDeviceHasTheDefaults();
    void settersStoreTheirField();
    void emptyViewAccountReadsAdmin();
    void countOfZeroGivesOneChannel();
    void channelsAreNumberedFromZeroAndKnowTheirDevice();
    void fallingCountKeepsTheChannels();
    void growingCountKeepsTheChannelsThatAreThere();
    void negativeCountMakesNoChannel();
    void countEndsAtTheLargestChannelNumber();
    void indexPastTheEndGivesNullAndGrowsNothing();
    void negativeIndexGivesNull();
    void sessionFieldsTellTheState();
    void channelsDieInListOrder();
    void channelsDieWithTheirTimers();
    void retiredDeviceGoesFromTheEventLoop();
    void ownerRetiresItsDevice();
};

void TestDevice::freshDeviceHasTheDefaults()
{
    const Device device;
    QCOMPARE(device.id(), QString());
    QCOMPARE(device.uid(), QString());
    QCOMPARE(device.nickName(), QString());
    QCOMPARE(device.viewPassword(), QString());
    QCOMPARE(device.viewAccount(), QString("Admin"));
    QCOMPARE(device.type(), 0);
    QCOMPARE(device.channelCount(), 0);
    QCOMPARE(device.channelListSize(), 0);
    QCOMPARE(int(device.sid), -1);
    QCOMPARE(bool(device.connecting), false);
}

void TestDevice::settersStoreTheirField()
{
    Device device;
    device.setId("17");
    device.setUid("ABCDEFGHIJ0123456789");
    device.setNickName("yard");
    device.setViewPassword("secret");
    device.setViewAccount("guest");
    device.setType(7);
    QCOMPARE(device.id(), QString("17"));
    QCOMPARE(device.uid(), QString("ABCDEFGHIJ0123456789"));
    QCOMPARE(device.nickName(), QString("yard"));
    QCOMPARE(device.viewPassword(), QString("secret"));
    QCOMPARE(device.viewAccount(), QString("guest"));
    QCOMPARE(device.type(), 7);
}

// The field itself stays empty: an account set later is the only thing that ends the default, and
// emptying it brings the default back.
void TestDevice::emptyViewAccountReadsAdmin()
{
    Device device;
    QCOMPARE(device.viewAccount(), QString("Admin"));
    QCOMPARE(device.viewAccount(), QString("Admin"));
    device.setViewAccount("guest");
    QCOMPARE(device.viewAccount(), QString("guest"));
    device.setViewAccount("");
    QCOMPARE(device.viewAccount(), QString("Admin"));
    device.setViewAccount(" ");
    QCOMPARE(device.viewAccount(), QString(" "));
}

void TestDevice::countOfZeroGivesOneChannel()
{
    Device device;
    device.setChannelCount(0);
    QCOMPARE(device.channelCount(), 1);
    QCOMPARE(device.channelListSize(), 1);
    QVERIFY(device.channel(0) != nullptr);
}

void TestDevice::channelsAreNumberedFromZeroAndKnowTheirDevice()
{
    Device device;
    device.setChannelCount(4);
    QCOMPARE(device.channelCount(), 4);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(device.channel(i)->number(), i);
        QCOMPARE(device.channel(i)->device(), &device);
    }
}

void TestDevice::fallingCountKeepsTheChannels()
{
    Device device;
    device.setChannelCount(4);
    Channel* const last = device.channel(3);
    device.setChannelCount(1);
    QCOMPARE(device.channelCount(), 1);
    QCOMPARE(device.channelListSize(), 4);
    QCOMPARE(device.channel(3), last);
    device.setChannelCount(0);
    QCOMPARE(device.channelCount(), 1);
    QCOMPARE(device.channelListSize(), 4);
}

void TestDevice::growingCountKeepsTheChannelsThatAreThere()
{
    Device device;
    device.setChannelCount(2);
    Channel* const first = device.channel(0);
    Channel* const second = device.channel(1);
    device.setChannelCount(64);
    QCOMPARE(device.channel(0), first);
    QCOMPARE(device.channel(1), second);
    QCOMPARE(device.channel(63)->number(), 63);
}

void TestDevice::negativeCountMakesNoChannel()
{
    Device device;
    device.setChannelCount(-3);
    QVERIFY(device.channelCount() <= 0);
    QCOMPARE(device.channelListSize(), 0);
}

void TestDevice::countEndsAtTheLargestChannelNumber()
{
    Device device;
    device.setChannelCount(1000000000);
    QCOMPARE(device.channelCount(), 256);
    QCOMPARE(device.channelListSize(), 256);
    QCOMPARE(device.channel(255)->number(), 255);
}

void TestDevice::indexPastTheEndGivesNullAndGrowsNothing()
{
    Device device;
    QVERIFY(device.channel(0) == nullptr);
    device.setChannelCount(2);
    QVERIFY(device.channel(2) == nullptr);
    QVERIFY(device.channel(2147483647) == nullptr);
    QCOMPARE(device.channelListSize(), 2);
    QCOMPARE(device.channelCount(), 2);
}

void TestDevice::negativeIndexGivesNull()
{
    Device device;
    device.setChannelCount(2);
    QVERIFY(device.channel(-1) == nullptr);
}

void TestDevice::sessionFieldsTellTheState()
{
    Device device;
    device.connecting = true;
    QCOMPARE(bool(device.connecting), true);
    device.sid = 0;
    device.connecting = false;
    QCOMPARE(int(device.sid), 0);
    QCOMPARE(bool(device.connecting), false);
}

void TestDevice::channelsDieInListOrder()
{
    QList<int> order;
    auto device = std::make_unique<Device>();
    device->setChannelCount(5);
    for (int i = 0; i < 5; ++i)
        connect(device->channel(i)->ioTimer(), &QObject::destroyed, this,
            [&order, i] { order.append(i); });
    device.reset();
    QCOMPARE(order, QList<int>({0, 1, 2, 3, 4}));
}

void TestDevice::channelsDieWithTheirTimers()
{
    auto device = std::make_unique<Device>();
    device->setChannelCount(1);
    Channel* const channel = device->channel(0);
    channel->startIoTimer();
    channel->setRecordTimer(60000, true);
    channel->setRecordTimer(60000, false);
    const QPointer<QTimer> io = channel->ioTimer();
    const QPointer<QTimer> live = channel->mode(true).recordTimer.get();
    const QPointer<QTimer> replay = channel->mode(false).recordTimer.get();
    QVERIFY(io && live && replay);
    device.reset();
    QVERIFY(!io);
    QVERIFY(!live);
    QVERIFY(!replay);
}

void TestDevice::retiredDeviceGoesFromTheEventLoop()
{
    auto* device = new Device;
    device->setChannelCount(1);
    const QPointer<QTimer> timer = device->channel(0)->ioTimer();
    device->retire();
    QVERIFY(timer);
    QTRY_VERIFY(!timer);
}

void TestDevice::ownerRetiresItsDevice()
{
    QPointer<QTimer> timer;
    {
        const DeviceOwner owner(new Device);
        owner->setChannelCount(1);
        timer = owner->channel(0)->ioTimer();
    }
    QVERIFY(timer);
    QTRY_VERIFY(!timer);
}

ORVA_TEST(TestDevice)

#include "tst_device.moc"

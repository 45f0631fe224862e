// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/dev.h"
#include "store/location.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

// The registry of devices, and what is selected of them.
class TestDev final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void devicesStandInTheOrderInWhichTheyCame();
    void channelsStandInTheOrderOfTheirDevices();
    void channelsBeyondTheCountAreNotListed();

    void knownDeviceTakesOverWhatIsNew();
    void knownDeviceKeepsItsPlaceAndItsChannels();
    void uidsAreComparedAsTheyStand();
    void deviceThatIsOnlyAnUpdateIsRetired();

    void removedDeviceIsToldBeforeItIsRetired();
    void deviceThatIsNotThereIsNotRemoved();
    void removedDeviceMayComeBack();
    void slotMayRemoveTheNextDevice();

    void selectionIsToldOnlyWhereItChanges();
    void selectionOfARemovedDeviceIsForgotten();
    void selectedChannelOfARemovedDeviceIsForgotten();
    void selectionOfOthersIsKept();

    void openChannelsAreSaved_data();
    void openChannelsAreSaved();
    void onlyLiveChannelsAreSaved();
    void channelsBeyondTheCountAreNotSaved();
};

namespace {

DeviceOwner deviceOf(const QString& uid, int channelCount = 1)
{
    DeviceOwner device(new Device);
    device->setUid(uid);
    device->setChannelCount(channelCount);
    return device;
}

Device* add(const QString& uid, int channelCount = 1)
{
    DeviceOwner device = deviceOf(uid, channelCount);
    Device* added = device.get();
    Dev::instance()->addDevice(std::move(device));
    return added;
}

QString savedChannels()
{
    Dev::instance()->saveOpenChannels();
    return Location::instance()->getDeviceChannel();
}

} // namespace

void TestDev::initTestCase()
{
    qRegisterMetaType<Device*>("Device*");
    qRegisterMetaType<Channel*>("Channel*");
}

void TestDev::cleanup()
{
    Dev* dev = Dev::instance();
    for (Device* device : dev->devices())
        dev->removeDevice(device);
    dev->selectDevice(nullptr);
    dev->selectChannel(nullptr);
    QCoreApplication::sendPostedEvents();
}

void TestDev::devicesStandInTheOrderInWhichTheyCame()
{
    QVERIFY(Dev::instance()->devices().isEmpty());
    Device* late = add(QStringLiteral("Z"));
    Device* early = add(QStringLiteral("A"));
    Device* middle = add(QStringLiteral("M"));
    QCOMPARE(Dev::instance()->devices(), QList<Device*>({late, early, middle}));
    Dev::instance()->removeDevice(early);
    QCOMPARE(Dev::instance()->devices(), QList<Device*>({late, middle}));
}

void TestDev::channelsStandInTheOrderOfTheirDevices()
{
    QVERIFY(Dev::instance()->channels().isEmpty());
    Device* first = add(QStringLiteral("Z"), 2);
    Device* second = add(QStringLiteral("A"), 3);
    QCOMPARE(Dev::instance()->channels(),
        QList<Channel*>({first->channel(0), first->channel(1), second->channel(0),
            second->channel(1), second->channel(2)}));
}

void TestDev::channelsBeyondTheCountAreNotListed()
{
    Device* device = add(QStringLiteral("A"), 3);
    device->setChannelCount(2);
    QCOMPARE(
        Dev::instance()->channels(), QList<Channel*>({device->channel(0), device->channel(1)}));
    device->setChannelCount(0); // counts as 1
    QCOMPARE(Dev::instance()->channels(), QList<Channel*>({device->channel(0)}));
}

void TestDev::knownDeviceTakesOverWhatIsNew()
{
    Device* known = add(QStringLiteral("A"), 1);
    known->setId(QStringLiteral("4711"));
    known->setType(6);
    known->setNickName(QStringLiteral("Door"));
    known->setViewAccount(QStringLiteral("before"));
    known->setViewPassword(QStringLiteral("before"));

    DeviceOwner update = deviceOf(QStringLiteral("A"), 4);
    update->setId(QStringLiteral("1"));
    update->setType(9);
    update->setNickName(QStringLiteral("Gate"));
    update->setViewAccount(QStringLiteral("after"));
    update->setViewPassword(QStringLiteral("word"));
    QSignalSpy leaving(Dev::instance(), &Dev::deleteDevMsg);
    Dev::instance()->addDevice(std::move(update));
    QCOMPARE(Dev::instance()->devices(), QList<Device*>({known}));
    QCOMPARE(known->type(), 9);
    QCOMPARE(known->nickName(), QStringLiteral("Gate"));
    QCOMPARE(known->channelCount(), 4);
    QCOMPARE(known->viewAccount(), QStringLiteral("after"));
    QCOMPARE(known->viewPassword(), QStringLiteral("word"));
    QCOMPARE(known->id(), QStringLiteral("4711"));
    QCOMPARE(leaving.count(), 0);
}

void TestDev::knownDeviceKeepsItsPlaceAndItsChannels()
{
    Device* first = add(QStringLiteral("A"), 2);
    Device* second = add(QStringLiteral("B"));
    Channel* channel = first->channel(1);
    first->sid = 7;
    channel->mode(true).open = true;
    channel->mode(true).avIndex = 3;
    Dev::instance()->addDevice(deviceOf(QStringLiteral("A"), 3));
    QCOMPARE(Dev::instance()->devices(), QList<Device*>({first, second}));
    QCOMPARE(first->channelCount(), 3);
    QCOMPARE(first->channel(1), channel);
    QVERIFY(channel->mode(true).open);
    QCOMPARE(int(channel->mode(true).avIndex), 3);
    QCOMPARE(int(first->sid), 7);
    first->sid = -1;
}

void TestDev::uidsAreComparedAsTheyStand()
{
    add(QStringLiteral("ABC"));
    add(QStringLiteral("abc"));
    add(QStringLiteral("ABC "));
    add(QString());
    QCOMPARE(Dev::instance()->devices().size(), 4);
    add(QString()); // known by now
    QCOMPARE(Dev::instance()->devices().size(), 4);
}

void TestDev::deviceThatIsOnlyAnUpdateIsRetired()
{
    add(QStringLiteral("A"));
    Device* update = add(QStringLiteral("A"));
    QVERIFY(!Dev::instance()->devices().contains(update));
    QVERIFY(update->isRetired()); // destroyed with the events that wait
}

void TestDev::removedDeviceIsToldBeforeItIsRetired()
{
    Device* device = add(QStringLiteral("A"), 2);
    add(QStringLiteral("B"));
    Device* told = nullptr;
    bool wasRetired = true;
    bool wasListed = true;
    connect(Dev::instance(), &Dev::deleteDevMsg, this, [&](Device* leaving) {
        told = leaving;
        wasRetired = leaving->isRetired();
        wasListed = Dev::instance()->devices().contains(leaving);
    });
    Dev::instance()->removeDevice(device);
    disconnect(Dev::instance(), nullptr, this, nullptr);
    QCOMPARE(told, device);
    QVERIFY(!wasRetired);
    QVERIFY(!wasListed);
    QVERIFY(device->isRetired());
    QCOMPARE(Dev::instance()->channels().size(), 1);
}

void TestDev::deviceThatIsNotThereIsNotRemoved()
{
    Device* device = add(QStringLiteral("A"));
    const DeviceOwner stranger = deviceOf(QStringLiteral("A"));
    QSignalSpy leaving(Dev::instance(), &Dev::deleteDevMsg);
    Dev::instance()->removeDevice(nullptr);
    Dev::instance()->removeDevice(stranger.get());
    QCOMPARE(leaving.count(), 0);
    QCOMPARE(Dev::instance()->devices(), QList<Device*>({device}));
    Dev::instance()->removeDevice(device);
    Dev::instance()->removeDevice(device); // which has left
    QCOMPARE(leaving.count(), 1);
    QCOMPARE(leaving.first().first().value<Device*>(), device);
}

void TestDev::removedDeviceMayComeBack()
{
    Device* device = add(QStringLiteral("A"), 2);
    device->channel(0)->mode(true).open = true;
    Dev::instance()->removeDevice(device);
    Device* again = add(QStringLiteral("A"), 2);
    QCOMPARE(Dev::instance()->devices(), QList<Device*>({again}));
    QVERIFY(!again->channel(0)->mode(true).open);
}

void TestDev::slotMayRemoveTheNextDevice()
{
    Device* first = add(QStringLiteral("A"));
    Device* second = add(QStringLiteral("B"));
    Device* third = add(QStringLiteral("C"));
    connect(Dev::instance(), &Dev::deleteDevMsg, this,
        [second] { Dev::instance()->removeDevice(second); });
    Dev::instance()->removeDevice(first);
    disconnect(Dev::instance(), nullptr, this, nullptr);
    QCOMPARE(Dev::instance()->devices(), QList<Device*>({third}));
    QVERIFY(second->isRetired());
}

void TestDev::selectionIsToldOnlyWhereItChanges()
{
    Dev* dev = Dev::instance();
    Device* device = add(QStringLiteral("A"), 2);
    QSignalSpy devices(dev, &Dev::selectDevMsg);
    QSignalSpy channels(dev, &Dev::selectChannelMsg);
    dev->selectDevice(nullptr);
    dev->selectChannel(nullptr);
    QCOMPARE(devices.count() + channels.count(), 0);
    dev->selectDevice(device);
    dev->selectDevice(device);
    QCOMPARE(dev->selectedDevice(), device);
    QCOMPARE(devices.count(), 1);
    QCOMPARE(devices.first().first().value<Device*>(), device);
    QVERIFY(dev->selectedChannel() == nullptr);
    dev->selectChannel(device->channel(0));
    dev->selectChannel(device->channel(1));
    dev->selectChannel(device->channel(1));
    QCOMPARE(dev->selectedChannel(), device->channel(1));
    QCOMPARE(channels.count(), 2);
    QCOMPARE(channels.last().first().value<Channel*>(), device->channel(1));
    dev->selectDevice(nullptr);
    QVERIFY(devices.last().first().value<Device*>() == nullptr);
    QCOMPARE(devices.count(), 2);
    QCOMPARE(dev->selectedChannel(), device->channel(1));
}

void TestDev::selectionOfARemovedDeviceIsForgotten()
{
    Dev* dev = Dev::instance();
    Device* device = add(QStringLiteral("A"));
    dev->selectDevice(device);
    dev->selectChannel(device->channel(0));
    QSignalSpy devices(dev, &Dev::selectDevMsg);
    QSignalSpy channels(dev, &Dev::selectChannelMsg);
    dev->removeDevice(device);
    QVERIFY(dev->selectedDevice() == nullptr);
    QVERIFY(dev->selectedChannel() == nullptr);
    QCOMPARE(devices.count(), 1);
    QVERIFY(devices.first().first().value<Device*>() == nullptr);
    QCOMPARE(channels.count(), 1);
    QVERIFY(channels.first().first().value<Channel*>() == nullptr);
}

void TestDev::selectedChannelOfARemovedDeviceIsForgotten()
{
    Dev* dev = Dev::instance();
    Device* kept = add(QStringLiteral("A"));
    Device* leaving = add(QStringLiteral("B"), 3);
    dev->selectDevice(kept);
    dev->selectChannel(leaving->channel(2));
    leaving->setChannelCount(1); // of all channels there are
    dev->removeDevice(leaving);
    QCOMPARE(dev->selectedDevice(), kept);
    QVERIFY(dev->selectedChannel() == nullptr);
}

void TestDev::selectionOfOthersIsKept()
{
    Dev* dev = Dev::instance();
    Device* kept = add(QStringLiteral("A"));
    Device* leaving = add(QStringLiteral("B"));
    dev->selectDevice(kept);
    dev->selectChannel(kept->channel(0));
    QSignalSpy channels(dev, &Dev::selectChannelMsg);
    dev->removeDevice(leaving);
    QCOMPARE(dev->selectedDevice(), kept);
    QCOMPARE(dev->selectedChannel(), kept->channel(0));
    QCOMPARE(channels.count(), 0);
}

void TestDev::openChannelsAreSaved_data()
{
    QTest::addColumn<QList<int>>("ofTheFirst");
    QTest::addColumn<QList<int>>("ofTheSecond");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QList<int>() << QList<int>() << QStringLiteral("[ ]");
    QTest::newRow("one") << QList<int>({0}) << QList<int>()
                         << QStringLiteral("[ { \"channel\": [ 0 ], \"dev\": \"FIRST\" } ]");
    QTest::newRow("of the second device")
        << QList<int>() << QList<int>({1, 11})
        << QStringLiteral("[ { \"channel\": [ 1, 11 ], \"dev\": \"SECOND\" } ]");
    QTest::newRow("of both") << QList<int>({1}) << QList<int>({0})
                             << QStringLiteral("[ { \"channel\": [ 1 ], \"dev\": \"FIRST\" },"
                                               " { \"channel\": [ 0 ], \"dev\": \"SECOND\" } ]");
}

void TestDev::openChannelsAreSaved()
{
    QFETCH(QList<int>, ofTheFirst);
    QFETCH(QList<int>, ofTheSecond);
    Location::instance()->setDeviceChannel(QStringLiteral("as it was"));
    Device* first = add(QStringLiteral("FIRST"), 2);
    Device* second = add(QStringLiteral("SECOND"), 12);
    for (const int number : ofTheFirst)
        first->channel(number)->mode(true).open = true;
    for (const int number : ofTheSecond)
        second->channel(number)->mode(true).open = true;
    QTEST(savedChannels(), "text");
}

void TestDev::onlyLiveChannelsAreSaved()
{
    Device* device = add(QStringLiteral("A"), 2);
    device->channel(0)->mode(false).open = true;
    device->channel(0)->mode(true).playing = true;
    QCOMPARE(savedChannels(), QStringLiteral("[ ]"));
}

void TestDev::channelsBeyondTheCountAreNotSaved()
{
    Device* device = add(QStringLiteral("A"), 2);
    device->channel(0)->mode(true).open = true;
    device->channel(1)->mode(true).open = true;
    device->setChannelCount(1);
    QCOMPARE(savedChannels(), QStringLiteral("[ { \"channel\": [ 0 ], \"dev\": \"A\" } ]"));
}

ORVA_TEST(TestDev)
#include "tst_dev.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/dev.h"
#include "model/scramble.h"
#include "store/localstore.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

// The registry with the devices of the settings: loading, changing and searching them.
class TestLocalList final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { init(); }

    void loadedDevicesHaveWhatWasStored();
    void emptyListTellsNothing();
    void listLoadedTwiceHasEachDeviceOnce();
    void storedCountOfNoSenseIsOneChannel_data();
    void storedCountOfNoSenseIsOneChannel();
    void listThatHasAUidTwiceHasTheDeviceOnce();
    void fiveHundredDevicesAreLoadedInTheirOrder();
    void uidsOfAnyLengthAreKept_data();
    void uidsOfAnyLengthAreKept();
    void namesAreTakenAsTheyStand_data();
    void namesAreTakenAsTheyStand();
    void recordThatLacksEverythingStopsNoOther();

    void addedDeviceIsStoredAndTold();
    void deviceAddedAgainReplacesItsRecord();
    void deletedDeviceIsGoneFromListAndSettings();
    void deletingNoDeviceDoesNothing();
    void clearRemovesAllAndTheSelection();

    void shrunkDeviceGivesUpItsOpenChannels();

    void deviceIsFoundByItsUid();
    void searchLooksAtUidAndNameWhateverTheCase_data();
    void searchLooksAtUidAndNameWhateverTheCase();

    void typesHaveTheirNames_data();
    void typesHaveTheirNames();
    void camerasAreToldFromRecorders();
};

namespace {

LocalDeviceRecord recordOf(const QString& uid, int channels = 1)
{
    LocalDeviceRecord record;
    record.uid = uid;
    record.channel = channels;
    return record;
}

// Makes the list behind the store's back: with what the store would never write, and at once.
void writeList(const QList<LocalDeviceRecord>& records)
{
    QSettings file(LocalStore::instance()->currentPath(), QSettings::IniFormat);
    file.remove(QStringLiteral("device"));
    file.beginWriteArray(QStringLiteral("device"), records.size());
    for (int i = 0; i < records.size(); ++i) {
        const LocalDeviceRecord& record = records.at(i);
        file.setArrayIndex(i);
        file.setValue(QStringLiteral("type"), record.type);
        file.setValue(QStringLiteral("channel"), record.channel);
        file.setValue(QStringLiteral("uid"), scramble(record.uid));
        file.setValue(QStringLiteral("nickname"), scramble(record.nickname));
        file.setValue(QStringLiteral("username"), scramble(record.username));
        file.setValue(QStringLiteral("password"), scramble(record.password));
    }
    file.endArray();
}

QStringList uidsOf(const QList<Device*>& devices)
{
    QStringList uids;
    for (const Device* device : devices)
        uids.append(device->uid());
    return uids;
}

} // namespace

void TestLocalList::initTestCase()
{
    qRegisterMetaType<Device*>("Device*");
    qRegisterMetaType<Channel*>("Channel*");
}

void TestLocalList::init()
{
    Dev::instance()->clear();
    Dev::instance()->setFilter(QString());
    writeList({});
    QCoreApplication::sendPostedEvents();
}

void TestLocalList::loadedDevicesHaveWhatWasStored()
{
    LocalDeviceRecord record = recordOf(QStringLiteral("A"), 4);
    record.type = 2;
    record.nickname = QStringLiteral("Gate <b>");
    record.username = QStringLiteral("watch");
    record.password = QStringLiteral("secret");
    LocalStore::instance()->saveDevice(record);
    LocalStore::instance()->saveDevice(recordOf(QStringLiteral("B")));
    QSignalSpy finished(Dev::instance(), &Dev::getDevFinishMsg);
    Dev::instance()->loadLocalDevices();
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.first().first().toInt(), 2);
    QCOMPARE(uidsOf(Dev::instance()->devices()), QStringList({"A", "B"}));
    const Device* device = Dev::instance()->devices().first();
    QCOMPARE(device->type(), 2);
    QCOMPARE(device->nickName(), record.nickname);
    QCOMPARE(device->viewAccount(), record.username);
    QCOMPARE(device->viewPassword(), record.password);
    QCOMPARE(device->channelCount(), 4);
    QVERIFY(device->id().isEmpty());
}

void TestLocalList::emptyListTellsNothing()
{
    QSignalSpy finished(Dev::instance(), &Dev::getDevFinishMsg);
    Dev::instance()->loadLocalDevices();
    QCOMPARE(finished.count(), 0);
    QVERIFY(Dev::instance()->devices().isEmpty());
}

void TestLocalList::listLoadedTwiceHasEachDeviceOnce()
{
    LocalStore::instance()->saveDevice(recordOf(QStringLiteral("A")));
    Dev::instance()->loadLocalDevices();
    const QList<Device*> before = Dev::instance()->devices();
    LocalDeviceRecord changed = recordOf(QStringLiteral("A"), 3);
    changed.nickname = QStringLiteral("Gate");
    LocalStore::instance()->saveDevice(changed);
    Dev::instance()->loadLocalDevices();
    QCOMPARE(Dev::instance()->devices(), before);
    QCOMPARE(before.first()->nickName(), QStringLiteral("Gate"));
    QCOMPARE(before.first()->channelCount(), 3);
}

void TestLocalList::storedCountOfNoSenseIsOneChannel_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("channels");
    QTest::newRow("none") << 0 << 1;
    QTest::newRow("negative") << -7 << 1;
    QTest::newRow("too many") << 100000 << Device::maxChannels;
}

void TestLocalList::storedCountOfNoSenseIsOneChannel()
{
    QFETCH(int, stored);
    QFETCH(int, channels);
    LocalStore::instance()->saveDevice(recordOf(QStringLiteral("A"), stored));
    Dev::instance()->loadLocalDevices();
    QCOMPARE(Dev::instance()->devices().first()->channelCount(), channels);
}

void TestLocalList::listThatHasAUidTwiceHasTheDeviceOnce()
{
    LocalDeviceRecord last = recordOf(QStringLiteral("A"), 4);
    last.nickname = QStringLiteral("Yard");
    writeList({recordOf(QStringLiteral("A")), recordOf(QStringLiteral("B")), last});
    QSignalSpy finished(Dev::instance(), &Dev::getDevFinishMsg);
    Dev::instance()->loadLocalDevices();
    QCOMPARE(finished.count(), 1);
    QCOMPARE(uidsOf(Dev::instance()->devices()), QStringList({"A", "B"}));
    QCOMPARE(Dev::instance()->devices().first()->nickName(), QStringLiteral("Yard"));
    QCOMPARE(Dev::instance()->devices().first()->channelCount(), 4);
}

void TestLocalList::fiveHundredDevicesAreLoadedInTheirOrder()
{
    QList<LocalDeviceRecord> records;
    QStringList uids;
    for (int i = 0; i < 500; ++i) {
        uids.append(QStringLiteral("MANY%1").arg(i, 16, 10, QLatin1Char('0')));
        records.append(recordOf(uids.last(), 1 + i % 16));
    }
    writeList(records);
    QSignalSpy finished(Dev::instance(), &Dev::getDevFinishMsg);
    Dev::instance()->loadLocalDevices();
    QCOMPARE(uidsOf(Dev::instance()->devices()), uids);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.first().first().toInt(), 500);
    QCOMPARE(Dev::instance()->findDevice(uids.at(499))->channelCount(), 1 + 499 % 16);
}

void TestLocalList::uidsOfAnyLengthAreKept_data()
{
    QTest::addColumn<int>("length");
    for (const int length : {0, 1, 19, 21, 10000})
        QTest::newRow(qPrintable(QString::number(length))) << length;
}

void TestLocalList::uidsOfAnyLengthAreKept()
{
    QFETCH(int, length);
    const QString uid(length, QLatin1Char('X'));
    const QString right(20, QLatin1Char('X'));
    writeList({recordOf(uid), recordOf(right)});
    Dev::instance()->loadLocalDevices();
    QCOMPARE(uidsOf(Dev::instance()->devices()), QStringList({uid, right}));
    QCOMPARE(Dev::instance()->findDevice(uid), Dev::instance()->devices().first());
    Dev::instance()->deleteLocalDev(Dev::instance()->devices().first());
    QCOMPARE(uidsOf(Dev::instance()->devices()), QStringList(right));
    const QList<LocalDeviceRecord> records = LocalStore::instance()->loadDevices();
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.first().uid, right);
}

void TestLocalList::namesAreTakenAsTheyStand_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("markup") << QStringLiteral("<b>Gate</b><img src=\"/etc/passwd\">&amp;%1%n");
    QTest::newRow("long") << QString(10000, QLatin1Char('W'));
    QTest::newRow("lines") << QStringLiteral("Gate\n\tand yard");
    QTest::newRow("settings") << QStringLiteral("[device]\nsize=0, \"@Invalid()\"");
}

void TestLocalList::namesAreTakenAsTheyStand()
{
    QFETCH(QString, name);
    LocalDeviceRecord record = recordOf(QStringLiteral("A"));
    record.nickname = name;
    LocalStore::instance()->saveDevice(record);
    LocalStore::instance()->saveDevice(recordOf(QStringLiteral("B")));
    Dev::instance()->loadLocalDevices();
    QCOMPARE(uidsOf(Dev::instance()->devices()), QStringList({"A", "B"}));
    QCOMPARE(Dev::instance()->devices().first()->nickName(), name);
    Dev::instance()->setFilter(name.right(12).toUpper());
    QCOMPARE(uidsOf(Dev::instance()->filteredDevices()), QStringList("A"));
}

void TestLocalList::recordThatLacksEverythingStopsNoOther()
{
    writeList({recordOf(QStringLiteral("A")), recordOf(QStringLiteral("B"))});
    {
        QSettings file(LocalStore::instance()->currentPath(), QSettings::IniFormat);
        file.remove(QStringLiteral("device/1"));
        file.setValue(QStringLiteral("device/1/type"), QStringLiteral("no number"));
    }
    Dev::instance()->loadLocalDevices();
    QCOMPARE(uidsOf(Dev::instance()->devices()), QStringList({QString(), "B"}));
    QCOMPARE(Dev::instance()->devices().first()->type(), 0);
    QCOMPARE(Dev::instance()->devices().first()->channelCount(), 1);
}

void TestLocalList::addedDeviceIsStoredAndTold()
{
    QSignalSpy reload(Dev::instance(), &Dev::reloadDevMsg);
    Dev::instance()->addLocalDev(QStringLiteral("A"), QStringLiteral("Gate"),
        QStringLiteral("watch"), QStringLiteral("secret"), QStringLiteral("7"),
        QStringLiteral("2"));
    QCOMPARE(reload.count(), 1);
    QCOMPARE(reload.first().first().value<Device*>(), nullptr);
    const QList<LocalDeviceRecord> records = LocalStore::instance()->loadDevices();
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.first().uid, QStringLiteral("A"));
    QCOMPARE(records.first().nickname, QStringLiteral("Gate"));
    QCOMPARE(records.first().username, QStringLiteral("watch"));
    QCOMPARE(records.first().password, QStringLiteral("secret"));
    QCOMPARE(records.first().type, 7);
    QCOMPARE(records.first().channel, 2);
    QVERIFY(Dev::instance()->devices().isEmpty()); // who hears the signal loads
}

void TestLocalList::deviceAddedAgainReplacesItsRecord()
{
    for (const char* name : {"Gate", "Yard"})
        Dev::instance()->addLocalDev(QStringLiteral("A"), QLatin1String(name), {}, {},
            QStringLiteral("7"), QStringLiteral("1"));
    const QList<LocalDeviceRecord> records = LocalStore::instance()->loadDevices();
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.first().nickname, QStringLiteral("Yard"));
}

void TestLocalList::deletedDeviceIsGoneFromListAndSettings()
{
    LocalStore::instance()->saveDevice(recordOf(QStringLiteral("A")));
    LocalStore::instance()->saveDevice(recordOf(QStringLiteral("B")));
    Dev::instance()->loadLocalDevices();
    Device* device = Dev::instance()->findDevice(QStringLiteral("A"));
    QSignalSpy leaves(Dev::instance(), &Dev::deleteDevMsg);
    QSignalSpy reload(Dev::instance(), &Dev::reloadDevMsg);
    Dev::instance()->deleteLocalDev(device);
    QCOMPARE(leaves.count(), 1);
    QCOMPARE(reload.count(), 1);
    QCOMPARE(reload.first().first().value<Device*>(), device);
    QCOMPARE(uidsOf(Dev::instance()->devices()), QStringList("B"));
    QCOMPARE(LocalStore::instance()->loadDevices().size(), 1);
}

void TestLocalList::deletingNoDeviceDoesNothing()
{
    LocalStore::instance()->saveDevice(recordOf(QStringLiteral("A")));
    QSignalSpy reload(Dev::instance(), &Dev::reloadDevMsg);
    Dev::instance()->deleteLocalDev(nullptr);
    QCOMPARE(reload.count(), 0);
    QCOMPARE(LocalStore::instance()->loadDevices().size(), 1);
}

void TestLocalList::clearRemovesAllAndTheSelection()
{
    for (const char* uid : {"A", "B", "C"})
        LocalStore::instance()->saveDevice(recordOf(QLatin1String(uid)));
    Dev::instance()->loadLocalDevices();
    Device* device = Dev::instance()->devices().at(1);
    Dev::instance()->selectDevice(device);
    Dev::instance()->selectChannel(device->channel(0));
    QSignalSpy leaves(Dev::instance(), &Dev::deleteDevMsg);
    QSignalSpy deselected(Dev::instance(), &Dev::selectDevMsg);
    Dev::instance()->clear();
    QCOMPARE(leaves.count(), 3);
    QCOMPARE(deselected.count(), 1);
    QVERIFY(Dev::instance()->devices().isEmpty());
    QCOMPARE(Dev::instance()->selectedDevice(), nullptr);
    QCOMPARE(Dev::instance()->selectedChannel(), nullptr);
    QCOMPARE(LocalStore::instance()->loadDevices().size(), 3);
}

void TestLocalList::shrunkDeviceGivesUpItsOpenChannels()
{
    LocalStore::instance()->saveDevice(recordOf(QStringLiteral("A"), 4));
    Dev::instance()->loadLocalDevices();
    Device* device = Dev::instance()->devices().first();
    for (int i = 0; i < 4; ++i)
        device->channel(i)->mode(true).open = true;
    device->channel(3)->mode(false).open = true;
    LocalStore::instance()->saveDevice(recordOf(QStringLiteral("A"), 2));
    Dev::instance()->loadLocalDevices();
    QVERIFY(!device->channel(2)->mode(true).open);
    QVERIFY(!device->channel(3)->mode(true).open);
    QVERIFY(!device->channel(3)->mode(false).open);
    QVERIFY(device->channel(0)->mode(true).open); // it had no session that had to end
}

void TestLocalList::deviceIsFoundByItsUid()
{
    LocalStore::instance()->saveDevice(recordOf(QStringLiteral("A")));
    LocalStore::instance()->saveDevice(recordOf(QStringLiteral("B")));
    Dev::instance()->loadLocalDevices();
    QCOMPARE(Dev::instance()->findDevice(QStringLiteral("B")), Dev::instance()->devices().at(1));
    QCOMPARE(Dev::instance()->findDevice(QStringLiteral("b")), nullptr);
    QCOMPARE(Dev::instance()->findDevice(QString()), nullptr);
}

void TestLocalList::searchLooksAtUidAndNameWhateverTheCase_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("found");
    QTest::newRow("all") << QString() << QStringList({"GATE1", "YARD2"});
    QTest::newRow("UID") << QStringLiteral("ate") << QStringList("GATE1");
    QTest::newRow("name") << QStringLiteral("büro") << QStringList("YARD2");
    QTest::newRow("both") << QStringLiteral("YARD") << QStringList({"GATE1", "YARD2"});
    QTest::newRow("none") << QStringLiteral("x.*") << QStringList();
}

void TestLocalList::searchLooksAtUidAndNameWhateverTheCase()
{
    QFETCH(QString, text);
    LocalDeviceRecord gate = recordOf(QStringLiteral("GATE1"));
    gate.nickname = QStringLiteral("Back yard");
    const LocalDeviceRecord yard = recordOf(QStringLiteral("YARD2"));
    LocalStore::instance()->saveDevice(gate);
    LocalStore::instance()->saveDevice(yard);
    Dev::instance()->loadLocalDevices();
    Dev::instance()->devices().at(1)->setNickName(QStringLiteral("BÜRO"));
    Dev::instance()->setFilter(text);
    QTEST(uidsOf(Dev::instance()->filteredDevices()), "found");
    QCOMPARE(Dev::instance()->devices().size(), 2);
}

void TestLocalList::typesHaveTheirNames_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::newRow("recorder") << 1 << QStringLiteral("DVR");
    QTest::newRow("wireless") << 4 << QStringLiteral("NVR(WIRELESS)");
    QTest::newRow("camera") << 7 << QStringLiteral("IPC");
    QTest::newRow("last of the row") << 17 << QStringLiteral("R410(PTZ)");
    QTest::newRow("far away") << 10001 << QStringLiteral("DVR(PTZ)");
    QTest::newRow("none") << 0 << QStringLiteral("[Unknown:0]");
    QTest::newRow("next") << 18 << QStringLiteral("[Unknown:18]");
    QTest::newRow("negative") << -1 << QStringLiteral("[Unknown:-1]");
}

void TestLocalList::typesHaveTheirNames()
{
    QFETCH(int, type);
    QTEST(Dev::typeName(type), "name");
}

void TestLocalList::camerasAreToldFromRecorders()
{
    const QList<int> cameras{6, 7, 10, 11, 12, 13, 14, 15, 16, 17};
    Device device;
    for (int type = -1; type < 20; ++type) {
        device.setType(type);
        QCOMPARE(Dev::isCamera(device), cameras.contains(type));
    }
    device.setType(10001);
    QVERIFY(!Dev::isCamera(device));
}

ORVA_TEST(TestLocalList)
#include "tst_locallist.moc"

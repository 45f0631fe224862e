// SPDX-License-Identifier: GPL-3.0-or-later
#include "inifile.h"
#include "store/localstore.h"
#include "storedrecords.h"
#include "testmain.h"

#include <QTemporaryDir>

// The move of devices and settings to another file.
class TestMove final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void devicesAndThreeKeysMove();
    void otherKeysAreDropped();
    void loginsAndNewpathStay();
    void unsetKeysMoveAsEmptyAndZero();
    void keyOfAnotherTypeMovesAsZero();
    void accountIsUnscrambledOnceMore();
    void otherTextsAreScrambled();
    void targetHasTheseKeysOnly();
    void emptyStoreMovesAsAnEmptyArray();
    void unwritablePlaceChangesNothing();
    void directoryInItsPlaceChangesNothing();
    void damagedTargetChangesNothing();
    void damagedSourceChangesNothing();
    void moveOntoItselfKeepsEverything_data();
    void moveOntoItselfKeepsEverything();
    void moveThroughALinkToTheSameFolderKeepsTheDevices();
    void moveThroughALinkToTheSameFileKeepsTheDevices();
    void targetKeepsItsOtherKeys();
    void longerArrayOfTheTargetCountsTheMovedOnes();
    void runningProgramStaysWithTheOldPath();
    void unreadableTextsMoveAsTheyStand();

private:
    QString target() const { return folder_->filePath("ORVA.ini"); }
    QString moved(const QString& key) const { return storedText(target(), key); }

    LocalStore* store_ = nullptr;
    QString path_;
    std::unique_ptr<QTemporaryDir> folder_;
};

namespace {

constexpr int done = 0;
constexpr int notWritable = 2;

} // namespace

void TestMove::initTestCase()
{
    store_ = LocalStore::instance();
    path_ = settingsPath();
}

void TestMove::init()
{
    QFile::remove(path_);
    folder_ = std::make_unique<QTemporaryDir>();
    store_->saveDevice(yard);
    store_->saveDevice(hall);
    store_->write("config/picpath", "/pictures");
    store_->write("config/videopath", "/videos");
    store_->write("config/timeLength", 45);
}

void TestMove::cleanup()
{
    QFile::remove(path_);
    folder_.reset();
}

void TestMove::devicesAndThreeKeysMove()
{
    QCOMPARE(store_->moveTo(target()), done);
    QCOMPARE(moved("device/size"), QString("2"));
    QCOMPARE(moved("device/1/type"), QString("7"));
    QCOMPARE(moved("device/2/channel"), QString("16"));
    QCOMPARE(unscramble(moved("device/1/uid")), yard.uid);
    QCOMPARE(unscramble(moved("device/2/nickname")), hall.nickname);
    QCOMPARE(moved("config/picpath"), QString("/pictures"));
    QCOMPARE(moved("config/videopath"), QString("/videos"));
    QCOMPARE(moved("config/timeLength"), QString("45"));
    const QSettings old(path_, QSettings::IniFormat);
    QVERIFY(!old.childGroups().contains("device"));
    QVERIFY(!old.childGroups().contains("config"));
}

void TestMove::otherKeysAreDropped()
{
    for (const char* key : {"windownum", "replaywindownum", "scale", "devicechannel"})
        store_->write(QString("config/") + key, 3);
    QCOMPARE(store_->moveTo(target()), done);
    for (const char* key : {"windownum", "replaywindownum", "scale", "devicechannel"}) {
        QVERIFY(!hasKey(target(), QString("config/") + key));
        QVERIFY(!hasKey(path_, QString("config/") + key));
    }
}

void TestMove::loginsAndNewpathStay()
{
    store_->saveLogin("admin", "secret", true, 2);
    store_->writeDefault("newpath", "/somewhere");
    QCOMPARE(store_->moveTo(target()), done);
    QCOMPARE(namesOf(store_->loadLogins()), QStringList("admin"));
    QCOMPARE(storedText(path_, "newpath"), QString("/somewhere"));
    QVERIFY(!hasKey(target(), "login/size"));
    QVERIFY(!hasKey(target(), "newpath"));
}

void TestMove::unsetKeysMoveAsEmptyAndZero()
{
    {
        QSettings file(path_, QSettings::IniFormat);
        file.remove("config");
    }
    QCOMPARE(store_->moveTo(target()), done);
    for (const char* key : {"config/picpath", "config/videopath"}) {
        QVERIFY(hasKey(target(), key));
        QCOMPARE(moved(key), QString());
    }
    QCOMPARE(moved("config/timeLength"), QString("0"));
}

void TestMove::keyOfAnotherTypeMovesAsZero()
{
    store_->write("config/timeLength", "half an hour");
    QCOMPARE(store_->moveTo(target()), done);
    QCOMPARE(moved("config/timeLength"), QString("0"));
}

// An account that is itself in scrambled form shows the second unscrambling; a plain one is not
// readable afterwards.
void TestMove::accountIsUnscrambledOnceMore()
{
    LocalDeviceRecord wrapped = yard;
    wrapped.username = "ZFl6SlpWRVpwV1ZkU2RHRlhOV2hOVjBrOVl6ST1k"; // "admin"; salts a1b, c2, d
    store_->saveDevice(wrapped);
    QCOMPARE(store_->moveTo(target()), done);
    QCOMPARE(moved("device/1/username"), QString("admin"));
    QCOMPARE(moved("device/2/username"), unscramble(hall.username));
    QVERIFY(!isScrambled(moved("device/2/username")));
}

void TestMove::otherTextsAreScrambled()
{
    QCOMPARE(store_->moveTo(target()), done);
    for (const char* key : {"device/1/uid", "device/1/nickname", "device/1/password",
             "device/2/uid", "device/2/nickname", "device/2/password"})
        QVERIFY(isScrambled(moved(key)));
    QCOMPARE(unscramble(moved("device/1/password")), yard.password);
    QCOMPARE(unscramble(moved("device/2/password")), hall.password);
}

void TestMove::targetHasTheseKeysOnly()
{
    store_->removeDevice(hall.uid);
    QCOMPARE(store_->moveTo(target()), done);
    QCOMPARE(keysOfSection(target(), "device"),
        QSet<QByteArray>({"1\\type", "1\\channel", "1\\uid", "1\\nickname", "1\\username",
            "1\\password", "size"}));
    QCOMPARE(keysOfSection(target(), "config"),
        QSet<QByteArray>({"picpath", "videopath", "timeLength"}));
}

void TestMove::emptyStoreMovesAsAnEmptyArray()
{
    QFile::remove(path_);
    QCOMPARE(store_->moveTo(target()), done);
    QCOMPARE(moved("device/size"), QString("0"));
    QVERIFY(!hasKey(target(), "device/1/uid"));
}

// /proc takes no new file, not even from an administrator.
void TestMove::unwritablePlaceChangesNothing()
{
    const QByteArray before = bytesOf(path_);
    for (const char* place : {"/proc/ORVA.ini", "/proc/none/ORVA.ini"}) {
        QCOMPARE(store_->moveTo(place), notWritable);
        QCOMPARE(bytesOf(path_), before);
    }
    QCOMPARE(store_->loadDevices().size(), 2);
}

void TestMove::directoryInItsPlaceChangesNothing()
{
    QDir().mkpath(target());
    const QByteArray before = bytesOf(path_);
    QCOMPARE(store_->moveTo(target()), notWritable);
    QCOMPARE(bytesOf(path_), before);
}

void TestMove::damagedTargetChangesNothing()
{
    const QByteArray damaged("[device\nhalf a file");
    writeBytes(target(), damaged);
    const QByteArray before = bytesOf(path_);
    ignoreRefusal();
    QCOMPARE(store_->moveTo(target()), notWritable);
    QCOMPARE(bytesOf(path_), before);
    QCOMPARE(bytesOf(target()), damaged);
}

void TestMove::damagedSourceChangesNothing()
{
    const QByteArray damaged = bytesOf(path_) + "[conf";
    writeBytes(path_, damaged);
    ignoreRefusal();
    QCOMPARE(store_->moveTo(target()), notWritable);
    QCOMPARE(bytesOf(path_), damaged);
    QCOMPARE(bytesOf(target()), QByteArray());
}

void TestMove::moveOntoItselfKeepsEverything_data()
{
    QTest::addColumn<QString>("between");
    QTest::newRow("same text") << "/";
    QTest::newRow("two slashes") << "//";
    QTest::newRow("dot") << "/./";
    QTest::newRow("up and down") << "/../Quvane/";
}

void TestMove::moveOntoItselfKeepsEverything()
{
    QFETCH(QString, between);
    const QByteArray before = bytesOf(path_);
    const QFileInfo info(path_);
    QCOMPARE(store_->moveTo(info.path() + between + info.fileName()), done);
    QCOMPARE(bytesOf(path_), before);
}

void TestMove::moveThroughALinkToTheSameFolderKeepsTheDevices()
{
    const QString link = folder_->filePath("link");
    QVERIFY(QFile::link(QFileInfo(path_).path(), link));
    store_->moveTo(link + "/ORVA.ini");
    QCOMPARE(namesOf(store_->loadDevices()), QStringList({"yard", "hall"}));
}

void TestMove::moveThroughALinkToTheSameFileKeepsTheDevices()
{
    QVERIFY(QFile::link(path_, target()));
    store_->moveTo(target());
    QCOMPARE(namesOf(store_->loadDevices()), QStringList({"yard", "hall"}));
}

void TestMove::targetKeepsItsOtherKeys()
{
    writeBytes(target(), "[General]\nforeign=1\n[config]\nscale=2\ntimeLength=5\n");
    QCOMPARE(store_->moveTo(target()), done);
    QCOMPARE(moved("foreign"), QString("1"));
    QCOMPARE(moved("config/scale"), QString("2"));
    QCOMPARE(moved("config/timeLength"), QString("45"));
}

void TestMove::longerArrayOfTheTargetCountsTheMovedOnes()
{
    {
        QSettings file(target(), QSettings::IniFormat);
        file.setValue("device/3/uid", scramble(roof.uid));
        file.setValue("device/size", 3);
    }
    QCOMPARE(store_->moveTo(target()), done);
    QCOMPARE(moved("device/size"), QString("2"));
    QCOMPARE(unscramble(moved("device/1/uid")), yard.uid);
}

void TestMove::runningProgramStaysWithTheOldPath()
{
    QCOMPARE(store_->moveTo(target()), done);
    QCOMPARE(store_->currentPath(), path_);
    QVERIFY(store_->loadDevices().isEmpty());
    QCOMPARE(store_->read("config/timeLength", 30).toInt(), 30);
    const QByteArray before = bytesOf(target());
    store_->saveDevice(roof);
    QCOMPARE(namesOf(store_->loadDevices()), QStringList("roof"));
    QCOMPARE(bytesOf(target()), before);
}

void TestMove::unreadableTextsMoveAsTheyStand()
{
    {
        QSettings file(path_, QSettings::IniFormat);
        file.setValue("device/1/password", "clear text");
        file.setValue("device/2/nickname", "N01EQlBX");
    }
    QCOMPARE(store_->moveTo(target()), done);
    QCOMPARE(moved("device/1/password"), QString("clear text"));
    QCOMPARE(moved("device/2/nickname"), QString("N01EQlBX"));
    QCOMPARE(unscramble(moved("device/1/uid")), yard.uid);
}

ORVA_TEST(TestMove)

#include "tst_move.moc"

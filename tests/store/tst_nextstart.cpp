// SPDX-License-Identifier: GPL-3.0-or-later
#include "inifile.h"
#include "store/deployment.h"
#include "store/localstore.h"
#include "store/location.h"
#include "storedrecords.h"
#include "testmain.h"

#include <QStandardPaths>
#include <QTemporaryDir>

// A program of its own: a start after the settings were moved, with a deployment on the machine.
// Both are settled once per process, before the first test.
class TestNextStart final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void currentPathIsTheOneOfNewpath();
    void missingCurrentFileReadsAsDefaults();
    void devicesAndConfigGoToTheCurrentFile();
    void loginsAndNewpathGoToTheDefaultFile();
    void devicesOfTheDefaultFileAreNotSeen();
    void configPathFollowsNewpath();
    void moveTakesFromTheCurrentFile();
    void moveBackToTheDefaultFile();
    void movedFileReadsAsTheRuleLeavesIt();
    void systemDeploymentIsReadAndTheUsersIsNot();

private:
    QTemporaryDir folder_;
    QString default_;
    QString current_;
    LocalStore* store_ = nullptr;
    Location location_;
};

void TestNextStart::initTestCase()
{
    default_ = settingsPath();
    current_ = folder_.filePath("ORVA.ini");
    writeBytes(default_, "[General]\nnewpath=" + current_.toUtf8() + "\n");
    store_ = LocalStore::instance();
}

void TestNextStart::init()
{
    writeBytes(default_, "[General]\nnewpath=" + current_.toUtf8() + "\n");
    QFile::remove(current_);
}

void TestNextStart::cleanup()
{
    QFile::remove(current_);
}

void TestNextStart::currentPathIsTheOneOfNewpath()
{
    QCOMPARE(store_->currentPath(), current_);
    QCOMPARE(LocalStore::resolveCurrentPath(), current_);
}

void TestNextStart::missingCurrentFileReadsAsDefaults()
{
    QVERIFY(store_->loadDevices().isEmpty());
    QVERIFY(store_->loadLogins().isEmpty());
    QCOMPARE(location_.getTimeLength(), 30);
    QCOMPARE(location_.getWindowNum(), 1);
    QCOMPARE(location_.getDeviceChannel(), QString("[]"));
    QVERIFY(!QFile::exists(current_));
}

void TestNextStart::devicesAndConfigGoToTheCurrentFile()
{
    const QByteArray before = bytesOf(default_);
    store_->saveDevice(yard);
    location_.setTimeLength(5);
    store_->write("config/scale", 1);
    QCOMPARE(bytesOf(default_), before);
    QCOMPARE(unscramble(storedText(current_, "device/1/uid")), yard.uid);
    QCOMPARE(storedText(current_, "config/timeLength"), QString("5"));
    QCOMPARE(storedText(current_, "config/scale"), QString("1"));
    QCOMPARE(namesOf(store_->loadDevices()), QStringList("yard"));
    store_->removeDevice(yard.uid);
    QVERIFY(store_->loadDevices().isEmpty());
}

void TestNextStart::loginsAndNewpathGoToTheDefaultFile()
{
    store_->saveLogin("admin", "secret", true, 1);
    QVERIFY(!QFile::exists(current_));
    QCOMPARE(unscramble(storedText(default_, "login/1/username")), QString("admin"));
    QCOMPARE(namesOf(store_->loadLogins()), QStringList("admin"));
    QCOMPARE(storedText(default_, "newpath"), current_);
}

void TestNextStart::devicesOfTheDefaultFileAreNotSeen()
{
    {
        QSettings file(default_, QSettings::IniFormat);
        file.setValue("device/1/uid", scramble(roof.uid));
        file.setValue("device/size", 1);
        file.setValue("config/scale", 2);
    }
    QVERIFY(store_->loadDevices().isEmpty());
    QCOMPARE(location_.getScale(), 0);
}

void TestNextStart::configPathFollowsNewpath()
{
    QCOMPARE(location_.getConfigPath(), current_);
    store_->writeDefault("newpath", "/elsewhere.ini");
    QCOMPARE(location_.getConfigPath(), QString("/elsewhere.ini"));
    store_->writeDefault("newpath", "default");
    QCOMPARE(location_.getConfigPath(), current_); // the running program's
}

void TestNextStart::moveTakesFromTheCurrentFile()
{
    QTemporaryDir other;
    store_->saveDevice(yard);
    store_->saveLogin("admin", "", false, 0);
    QString folder = other.path();
    QCOMPARE(location_.setConfigPath(folder), 0);
    QCOMPARE(storedText(default_, "newpath"), folder);
    QCOMPARE(unscramble(storedText(folder, "device/1/uid")), yard.uid);
    QVERIFY(!hasKey(current_, "device/size"));
    QCOMPARE(namesOf(store_->loadLogins()), QStringList("admin"));
}

void TestNextStart::moveBackToTheDefaultFile()
{
    store_->saveLogin("admin", "", false, 0);
    store_->saveDevice(hall);
    QString folder = QFileInfo(default_).path();
    QCOMPARE(location_.setConfigPath(folder), 0);
    QCOMPARE(unscramble(storedText(default_, "device/1/uid")), hall.uid);
    QCOMPARE(storedText(default_, "newpath"), default_);
    QCOMPARE(namesOf(store_->loadLogins()), QStringList("admin"));
    QVERIFY(!hasKey(current_, "device/size"));
}

// The file as a move leaves it: the account is not in scrambled form, folders and length of a
// segment are set to nothing.
void TestNextStart::movedFileReadsAsTheRuleLeavesIt()
{
    {
        QSettings file(current_, QSettings::IniFormat);
        file.setValue("device/1/uid", scramble(yard.uid));
        file.setValue("device/1/username", "admin");
        file.setValue("device/size", 1);
        file.setValue("config/picpath", "");
        file.setValue("config/videopath", "");
        file.setValue("config/timeLength", 0);
    }
    QCOMPARE(store_->loadDevices().first().username, unscramble("admin"));
    QCOMPARE(location_.getPicPath(), QString());
    QCOMPARE(location_.getVideoPath(), QString());
    QCOMPARE(location_.getTimeLength(), 0);
}

void TestNextStart::systemDeploymentIsReadAndTheUsersIsNot()
{
    const QString user = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    QStringList system = QStandardPaths::standardLocations(QStandardPaths::AppConfigLocation);
    system.removeAll(user);
    QVERIFY(!system.isEmpty());
    writeBytes(user + "/deployment.json", R"({"brand":149})");
    writeBytes(system.first() + "/deployment.json", R"({"brand":151})");
    QCOMPARE(Deployment::instance().brand, 151);
    writeBytes(system.first() + "/deployment.json", R"({"brand":150})");
    QCOMPARE(Deployment::instance().brand, 151);
}

ORVA_TEST(TestNextStart)

#include "tst_nextstart.moc"

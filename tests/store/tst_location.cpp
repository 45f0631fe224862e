// SPDX-License-Identifier: GPL-3.0-or-later
#include "inifile.h"
#include "store/localstore.h"
#include "store/location.h"
#include "storedrecords.h"
#include "testmain.h"

#include <QStandardPaths>
#include <QTemporaryDir>

class TestLocation final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void instanceIsOne();
    void emptyFileGivesTheDefaults();
    void settersWriteTheirKey();
    void throwAwayObjectsSeeTheSame();
    void gettersGoToTheFile();
    void storedWordDefaultGivesTheDocumentsFolder();
    void otherFoldersAreReturnedAsTheyStand_data();
    void otherFoldersAreReturnedAsTheyStand();
    void unusableNumbersReadAsZero();
    void openChannelsComeBackLetterByLetter_data();
    void openChannelsComeBackLetterByLetter();
    void configPathIsTheCurrentFileUntilItIsSet();
    void setConfigPathMovesTheSettings();
    void setConfigPathWithoutAFolderChangesNothing_data();
    void setConfigPathWithoutAFolderChangesNothing();
    void setConfigPathToAReadOnlyFolderLeavesNewpathThere();
    void setConfigPathToADamagedFileLeavesIt();
    void setConfigPathFromADamagedFileLeavesIt();
    void setConfigPathToItsOwnFolderKeepsTheSettings();
    void setConfigPathTwiceKeepsTheMovedSettings();

private:
    Location location_;
    QString path_;
    std::unique_ptr<QTemporaryDir> folder_;
};

void TestLocation::initTestCase()
{
    path_ = settingsPath();
}

void TestLocation::init()
{
    QFile::remove(path_);
    folder_ = std::make_unique<QTemporaryDir>();
}

void TestLocation::cleanup()
{
    QFile::remove(path_);
    folder_.reset();
}

void TestLocation::instanceIsOne()
{
    Location* const location = Location::instance();
    QVERIFY(location != nullptr);
    QCOMPARE(Location::instance(), location);
}

void TestLocation::emptyFileGivesTheDefaults()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QCOMPARE(location_.getTimeLength(), 30);
    QCOMPARE(location_.getWindowNum(), 1);
    QCOMPARE(location_.getReplayWindowNum(), 1);
    QCOMPARE(location_.getScale(), 0);
    QCOMPARE(location_.getVideoPath(), documents);
    QCOMPARE(location_.getPicPath(), documents);
    QCOMPARE(location_.getDeviceChannel(), QString("[]"));
    QVERIFY(!QFile::exists(path_));
}

void TestLocation::settersWriteTheirKey()
{
    location_.setTimeLength(15);
    location_.setWindowNum(4);
    location_.setReplayWindowNum(2);
    location_.setScale(1);
    location_.setVideoPath("/videos");
    location_.setPicPath("/pictures");
    location_.setDeviceChannel("[1]");
    QCOMPARE(storedText(path_, "config/timeLength"), QString("15"));
    QCOMPARE(storedText(path_, "config/windownum"), QString("4"));
    QCOMPARE(storedText(path_, "config/replaywindownum"), QString("2"));
    QCOMPARE(storedText(path_, "config/scale"), QString("1"));
    QCOMPARE(storedText(path_, "config/videopath"), QString("/videos"));
    QCOMPARE(storedText(path_, "config/picpath"), QString("/pictures"));
    QCOMPARE(storedText(path_, "config/devicechannel"), QString("[1]"));
    QCOMPARE(location_.getTimeLength(), 15);
    QCOMPARE(location_.getWindowNum(), 4);
    QCOMPARE(location_.getReplayWindowNum(), 2);
    QCOMPARE(location_.getScale(), 1);
}

void TestLocation::throwAwayObjectsSeeTheSame()
{
    Location().setScale(2);
    QCOMPARE(Location().getScale(), 2);
    QCOMPARE(Location::instance()->getScale(), 2);
}

void TestLocation::gettersGoToTheFile()
{
    location_.setTimeLength(15);
    writeBytes(path_, "[config]\ntimeLength=60\nscale=1\n");
    QCOMPARE(location_.getTimeLength(), 60);
    QFile::remove(path_);
    QCOMPARE(location_.getTimeLength(), 30);
}

void TestLocation::storedWordDefaultGivesTheDocumentsFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QVERIFY(!documents.isEmpty());
    location_.setVideoPath("default");
    location_.setPicPath("default");
    QCOMPARE(location_.getVideoPath(), documents);
    QCOMPARE(location_.getPicPath(), documents);
    QCOMPARE(storedText(path_, "config/videopath"), QString("default"));
}

void TestLocation::otherFoldersAreReturnedAsTheyStand_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("missing folder") << "/no/such/folder";
    QTest::newRow("relative") << "pictures";
    QTest::newRow("empty") << "";
    QTest::newRow("another case") << "Default";
    QTest::newRow("slash behind") << "/tmp/";
    QTest::newRow("Windows path") << "C:\\Users\\a b\\Pictures";
    QTest::newRow("marks") << "/a;b,c=\"d\"#[e]";
    QTest::newRow("at sign") << "@home";
    QTest::newRow("non-ASCII") << QString::fromUtf8("/K\xC3\xBC"
                                                    "che/\xF0\x9F\x98\x80");
}

void TestLocation::otherFoldersAreReturnedAsTheyStand()
{
    QFETCH(QString, folder);
    location_.setVideoPath(folder);
    location_.setPicPath(folder);
    QCOMPARE(location_.getVideoPath(), folder);
    QCOMPARE(location_.getPicPath(), folder);
}

void TestLocation::unusableNumbersReadAsZero()
{
    writeBytes(path_, "[config]\ntimeLength=abc\nwindownum=\nreplaywindownum=1.x\nscale=[]\n");
    QCOMPARE(location_.getTimeLength(), 0);
    QCOMPARE(location_.getWindowNum(), 0);
    QCOMPARE(location_.getReplayWindowNum(), 0);
    QCOMPARE(location_.getScale(), 0);
}

void TestLocation::openChannelsComeBackLetterByLetter_data()
{
    QTest::addColumn<QString>("json");
    QTest::newRow("none") << "[]";
    QTest::newRow("one device") << R"([ { "channel": [ 0, 3 ], "dev": "AAAAAAAAAAAAAAAAAAAA" } ])";
    QTest::newRow("empty text") << "";
    QTest::newRow("no JSON") << "one, two; \"three\"";
}

void TestLocation::openChannelsComeBackLetterByLetter()
{
    QFETCH(QString, json);
    location_.setDeviceChannel(json);
    QCOMPARE(location_.getDeviceChannel(), json);
}

void TestLocation::configPathIsTheCurrentFileUntilItIsSet()
{
    QCOMPARE(location_.getConfigPath(), path_);
    writeBytes(path_, "[General]\nnewpath=default\n");
    QCOMPARE(location_.getConfigPath(), path_);
    writeBytes(path_, "[General]\nnewpath=/elsewhere/ORVA.ini\n");
    QCOMPARE(location_.getConfigPath(), QString("/elsewhere/ORVA.ini"));
}

void TestLocation::setConfigPathMovesTheSettings()
{
    LocalStore::instance()->saveDevice(yard);
    location_.setTimeLength(5);
    QString folder = folder_->path();
    QCOMPARE(location_.setConfigPath(folder), 0);
    QCOMPARE(folder, folder_->path() + "/ORVA.ini");
    QCOMPARE(location_.getConfigPath(), folder);
    QCOMPARE(storedText(path_, "newpath"), folder);
    QCOMPARE(storedText(folder, "config/timeLength"), QString("5"));
    QCOMPARE(unscramble(storedText(folder, "device/1/uid")), yard.uid);
    // until the next start
    QCOMPARE(LocalStore::instance()->currentPath(), path_);
    QCOMPARE(location_.getTimeLength(), 30);
}

void TestLocation::setConfigPathWithoutAFolderChangesNothing_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("file") << "/etc/passwd";
    QTest::newRow("missing") << "/no/such/folder";
    QTest::newRow("empty") << "";
    QTest::newRow("the settings file itself") << settingsPath();
}

void TestLocation::setConfigPathWithoutAFolderChangesNothing()
{
    QFETCH(QString, folder);
    location_.setScale(1);
    const QByteArray before = bytesOf(path_);
    QString argument = folder;
    QCOMPARE(location_.setConfigPath(argument), 1);
    QCOMPARE(argument, folder);
    QCOMPARE(bytesOf(path_), before);
}

// /proc takes no new file, not even from an administrator. The next start then uses a file that
// does not exist.
void TestLocation::setConfigPathToAReadOnlyFolderLeavesNewpathThere()
{
    LocalStore::instance()->saveDevice(yard);
    location_.setTimeLength(5);
    QString folder("/proc");
    QCOMPARE(location_.setConfigPath(folder), 2);
    QCOMPARE(folder, QString("/proc/ORVA.ini"));
    QCOMPARE(storedText(path_, "newpath"), folder);
    QCOMPARE(LocalStore::resolveCurrentPath(), folder);
    QVERIFY(!QFile::exists(folder));
    QCOMPARE(location_.getTimeLength(), 5);
    QCOMPARE(LocalStore::instance()->loadDevices().size(), 1);
}

void TestLocation::setConfigPathToADamagedFileLeavesIt()
{
    LocalStore::instance()->saveDevice(yard);
    const QString target = folder_->filePath("ORVA.ini");
    writeBytes(target, "half a li");
    QString folder = folder_->path();
    ignoreRefusal();
    QCOMPARE(location_.setConfigPath(folder), 2);
    QCOMPARE(bytesOf(target), QByteArray("half a li"));
    QCOMPARE(LocalStore::instance()->loadDevices().size(), 1);
}

void TestLocation::setConfigPathFromADamagedFileLeavesIt()
{
    const QByteArray damaged("[config]\ntimeLength=5\n[dev");
    writeBytes(path_, damaged);
    QString folder = folder_->path();
    ignoreRefusal();
    QCOMPARE(location_.setConfigPath(folder), 2);
    QCOMPARE(bytesOf(path_), damaged);
    QCOMPARE(location_.getConfigPath(), path_);
}

void TestLocation::setConfigPathToItsOwnFolderKeepsTheSettings()
{
    LocalStore::instance()->saveDevice(yard);
    location_.setTimeLength(5);
    location_.setScale(1);
    QString folder = QFileInfo(path_).path();
    QCOMPARE(location_.setConfigPath(folder), 0);
    QCOMPARE(folder, path_);
    QCOMPARE(location_.getTimeLength(), 5);
    QCOMPARE(location_.getScale(), 1);
    QCOMPARE(LocalStore::instance()->loadDevices().size(), 1);
}

// Two presses of the button: the second finds nothing left to move.
void TestLocation::setConfigPathTwiceKeepsTheMovedSettings()
{
    LocalStore::instance()->saveDevice(yard);
    for (int press = 0; press < 2; ++press) {
        QString folder = folder_->path();
        QCOMPARE(location_.setConfigPath(folder), 0);
        QCOMPARE(folder, folder_->filePath("ORVA.ini"));
    }
    QCOMPARE(storedText(folder_->filePath("ORVA.ini"), "device/size"), QString("1"));
    QCOMPARE(unscramble(storedText(folder_->filePath("ORVA.ini"), "device/1/uid")), yard.uid);
}

ORVA_TEST(TestLocation)

#include "tst_location.moc"

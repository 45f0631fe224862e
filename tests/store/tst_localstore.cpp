// SPDX-License-Identifier: GPL-3.0-or-later
#include "inifile.h"
#include "store/localstore.h"
#include "storedrecords.h"
#include "testmain.h"

#include <QTemporaryDir>

// In this program the default file is the current file too.
class TestLocalStore final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void instanceIsOneAndUsesTheDefaultFile();
    void missingFileReadsAsDefaults();
    void valuesComeBack_data();
    void valuesComeBack();
    void writeIsOnDiskAtOnce();
    void otherKeysStay();
    void resolvedPathFollowsNewpath_data();
    void resolvedPathFollowsNewpath();
    void settledPathDoesNotFollowNewpath();

    void emptyLoginArrayGivesAnEmptyList();
    void firstLoginMakesTheGroup();
    void loginsAreMostRecentFirst();
    void fourthNameDropsTheOldest();
    void knownNameMovesToTheFrontWithItsNewFields();
    void namesCompareCaseSensitively();
    void longListIsCutAtTheNextNewNameOnly();
    void lastOfEqualNamesIsTheKnownOne();
    void loginHasTheseKeysOnly();
    void loginTextsAreScrambled();
    void languageTwelveIsKept();
    void handMadeLoginIsRead();

    void devicesStandInTheOrderOfTheirInsertion();
    void knownUidReplacesAllFieldsInPlace();
    void lastOfEqualUidsIsTheKnownOne();
    void removedDeviceLeavesTheOthersInOrder();
    void unknownUidRewritesTheArrayUnchanged();
    void lastDeviceLeavesAnEmptyArray();
    void elementsBehindTheSizeDoNotCount();
    void deviceHasTheseKeysOnly();
    void deviceTextsAreScrambled();
    void devicesAndLoginsAreApart();
    void nonAsciiNameDoesNotGrowWithEveryRewrite();

private:
    LocalStore* store_ = nullptr;
    QString path_;
    std::unique_ptr<QTemporaryDir> folder_;
};

namespace {

// An array `login` with one element per name, as a person's editor might leave it.
QByteArray loginsByHand(const QStringList& names)
{
    QByteArray text = "[login]\n";
    for (int i = 0; i < names.size(); ++i) {
        const QByteArray number = QByteArray::number(i + 1);
        text += number + "\\username=\"" + scramble(names.at(i)).toLatin1() + "\"\n";
        text += number + "\\language=" + number + "\n";
    }
    return text + "size=" + QByteArray::number(names.size()) + "\n";
}

} // namespace

void TestLocalStore::initTestCase()
{
    store_ = LocalStore::instance();
    path_ = settingsPath();
}

void TestLocalStore::init()
{
    QFile::remove(path_);
    folder_ = std::make_unique<QTemporaryDir>();
}

void TestLocalStore::cleanup()
{
    QFile::remove(path_);
    folder_.reset();
}

void TestLocalStore::instanceIsOneAndUsesTheDefaultFile()
{
    QCOMPARE(LocalStore::instance(), store_);
    QCOMPARE(store_->currentPath(), path_);
    QVERIFY(path_.endsWith("/Quvane/ORVA.ini"));
    QVERIFY(!QFile::exists(path_));
}

void TestLocalStore::missingFileReadsAsDefaults()
{
    QCOMPARE(store_->read("config/scale", 5).toInt(), 5);
    QCOMPARE(store_->readDefault("newpath", "default").toString(), QString("default"));
    QVERIFY(!store_->read("config/scale", QVariant()).isValid());
    QVERIFY(!QFile::exists(path_));
}

void TestLocalStore::valuesComeBack_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text") << QVariant("text");
    QTest::newRow("empty") << QVariant("");
    QTest::newRow("number") << QVariant(-7);
    QTest::newRow("bool") << QVariant(true);
    QTest::newRow("at sign") << QVariant("@Invalid()");
    QTest::newRow("path") << QVariant("C:\\a;b, \"c\"=d\\");
    QTest::newRow("line breaks") << QVariant("a\r\nb\n");
    QTest::newRow("JSON") << QVariant(R"([{"dev":"A","channel":[0,1]}])");
    QTest::newRow("emoji") << QVariant(QString::fromUtf8("\xF0\x9F\x98\x80 \xE5\xAF\x86"));
}

void TestLocalStore::valuesComeBack()
{
    QFETCH(QVariant, value);
    store_->write("config/x", value);
    QCOMPARE(store_->read("config/x", "none").toString(), value.toString());
    store_->writeDefault("y", value);
    QCOMPARE(store_->readDefault("y", "none").toString(), value.toString());
}

void TestLocalStore::writeIsOnDiskAtOnce()
{
    store_->write("config/scale", 3);
    QVERIFY(bytesOf(path_).contains("scale=3"));
    store_->writeDefault("newpath", "default");
    QVERIFY(bytesOf(path_).contains("newpath=default"));
}

void TestLocalStore::otherKeysStay()
{
    writeBytes(path_, "[General]\nforeign=1\n[other]\na=b\n");
    store_->write("config/scale", 3);
    store_->saveLogin("a", "b", true, 0);
    store_->saveDevice(yard);
    QCOMPARE(storedText(path_, "foreign"), QString("1"));
    QCOMPARE(storedText(path_, "other/a"), QString("b"));
    QCOMPARE(store_->read("config/scale", 0).toInt(), 3);
}

void TestLocalStore::resolvedPathFollowsNewpath_data()
{
    QTest::addColumn<QString>("newpath");
    QTest::addColumn<bool>("isDefault");
    QTest::newRow("default") << "default" << true;
    QTest::newRow("a path") << "/tmp/a/ORVA.ini" << false;
    QTest::newRow("another case") << "Default" << false;
    QTest::newRow("blank behind") << "default " << false;
}

void TestLocalStore::resolvedPathFollowsNewpath()
{
    QFETCH(QString, newpath);
    QFETCH(bool, isDefault);
    QCOMPARE(LocalStore::resolveCurrentPath(), path_);
    store_->writeDefault("newpath", newpath);
    QCOMPARE(LocalStore::resolveCurrentPath(), isDefault ? path_ : newpath);
}

void TestLocalStore::settledPathDoesNotFollowNewpath()
{
    store_->writeDefault("newpath", folder_->filePath("ORVA.ini"));
    store_->saveDevice(yard);
    QCOMPARE(store_->currentPath(), path_);
    QVERIFY(hasKey(path_, "device/size"));
    QVERIFY(!QFile::exists(folder_->filePath("ORVA.ini")));
}

void TestLocalStore::emptyLoginArrayGivesAnEmptyList()
{
    QVERIFY(store_->loadLogins().isEmpty());
    writeBytes(path_, "[login]\nsize=0\n");
    QVERIFY(store_->loadLogins().isEmpty());
}

void TestLocalStore::firstLoginMakesTheGroup()
{
    store_->saveLogin("admin", "secret", true, 3);
    const QList<LoginRecord> logins = store_->loadLogins();
    QCOMPARE(logins.size(), 1);
    QCOMPARE(logins.first().username, QString("admin"));
    QCOMPARE(logins.first().password, QString("secret"));
    QCOMPARE(logins.first().isremember, true);
    QCOMPARE(logins.first().language, 3);
    QCOMPARE(storedText(path_, "login/size"), QString("1"));
}

void TestLocalStore::loginsAreMostRecentFirst()
{
    for (const char* name : {"a", "b", "c"})
        store_->saveLogin(name, "", false, 0);
    QCOMPARE(namesOf(store_->loadLogins()), QStringList({"c", "b", "a"}));
}

void TestLocalStore::fourthNameDropsTheOldest()
{
    for (const char* name : {"a", "b", "c", "d"})
        store_->saveLogin(name, name, true, 0);
    QCOMPARE(namesOf(store_->loadLogins()), QStringList({"d", "c", "b"}));
    QCOMPARE(storedText(path_, "login/size"), QString("3"));
}

void TestLocalStore::knownNameMovesToTheFrontWithItsNewFields()
{
    for (const char* name : {"a", "b", "c"})
        store_->saveLogin(name, "old", true, 1);
    store_->saveLogin("b", "new", false, 4);
    const QList<LoginRecord> logins = store_->loadLogins();
    QCOMPARE(namesOf(logins), QStringList({"b", "c", "a"}));
    QCOMPARE(logins.first().password, QString("new"));
    QCOMPARE(logins.first().isremember, false);
    QCOMPARE(logins.first().language, 4);
    QCOMPARE(logins.last().password, QString("old"));
}

void TestLocalStore::namesCompareCaseSensitively()
{
    store_->saveLogin("admin", "", false, 0);
    store_->saveLogin("Admin", "", false, 0);
    QCOMPARE(namesOf(store_->loadLogins()), QStringList({"Admin", "admin"}));
}

void TestLocalStore::longListIsCutAtTheNextNewNameOnly()
{
    writeBytes(path_, loginsByHand({"a", "b", "c", "d", "e"}));
    QCOMPARE(store_->loadLogins().size(), 5);
    store_->saveLogin("d", "", false, 0);
    QCOMPARE(namesOf(store_->loadLogins()), QStringList({"d", "a", "b", "c", "e"}));
    store_->saveLogin("f", "", false, 0);
    QCOMPARE(namesOf(store_->loadLogins()), QStringList({"f", "d", "a"}));
}

void TestLocalStore::lastOfEqualNamesIsTheKnownOne()
{
    writeBytes(path_, loginsByHand({"a", "b", "a"}));
    store_->saveLogin("a", "new", false, 9);
    const QList<LoginRecord> logins = store_->loadLogins();
    QCOMPARE(namesOf(logins), QStringList({"a", "a", "b"}));
    QCOMPARE(logins.at(0).language, 9);
    QCOMPARE(logins.at(1).language, 1);
}

void TestLocalStore::loginHasTheseKeysOnly()
{
    store_->saveLogin("a", "b", true, 1);
    QCOMPARE(keysOfSection(path_, "login"),
        QSet<QByteArray>({"1\\username", "1\\password", "1\\isremember", "1\\language", "size"}));
}

void TestLocalStore::loginTextsAreScrambled()
{
    store_->saveLogin("admin", "secret", true, 1);
    const QByteArray bytes = bytesOf(path_);
    QVERIFY(!bytes.contains("admin"));
    QVERIFY(!bytes.contains("secret"));
    QCOMPARE(unscramble(storedText(path_, "login/1/username")), QString("admin"));
    QCOMPARE(unscramble(storedText(path_, "login/1/password")), QString("secret"));
    QCOMPARE(storedText(path_, "login/1/isremember"), QString("true"));
    QCOMPARE(storedText(path_, "login/1/language"), QString("1"));
}

void TestLocalStore::languageTwelveIsKept()
{
    store_->saveLogin("a", "", false, 12);
    store_->saveLogin("b", "", false, -1);
    const QList<LoginRecord> logins = store_->loadLogins();
    QCOMPARE(logins.at(0).language, -1);
    QCOMPARE(logins.at(1).language, 12);
}

void TestLocalStore::handMadeLoginIsRead()
{
    // "admin", wrapped outside the program with the salts a1b, c2, d
    writeBytes(path_,
        "[login]\n1\\username=ZFl6SlpWRVpwV1ZkU2RHRlhOV2hOVjBrOVl6ST1k\n1\\isremember=1\nsize=1\n");
    const QList<LoginRecord> logins = store_->loadLogins();
    QCOMPARE(namesOf(logins), QStringList("admin"));
    QCOMPARE(logins.first().password, QString());
    QCOMPARE(logins.first().isremember, true);
    QCOMPARE(logins.first().language, 0);
}

void TestLocalStore::devicesStandInTheOrderOfTheirInsertion()
{
    for (const auto& device : {yard, hall, roof})
        store_->saveDevice(device);
    const QList<LocalDeviceRecord> devices = store_->loadDevices();
    QCOMPARE(devices.size(), 3);
    QVERIFY(same(devices.at(0), yard));
    QVERIFY(same(devices.at(1), hall));
    QVERIFY(same(devices.at(2), roof));
}

void TestLocalStore::knownUidReplacesAllFieldsInPlace()
{
    for (const auto& device : {yard, hall, roof})
        store_->saveDevice(device);
    const LocalDeviceRecord changed{11, 64, "cellar", hall.uid, "other", "word"};
    store_->saveDevice(changed);
    const QList<LocalDeviceRecord> devices = store_->loadDevices();
    QCOMPARE(namesOf(devices), QStringList({"yard", "cellar", "roof"}));
    QVERIFY(same(devices.at(1), changed));
}

void TestLocalStore::lastOfEqualUidsIsTheKnownOne()
{
    QByteArray text = "[device]\n";
    for (const char* number : {"1", "2"})
        text += QByteArray(number) + "\\uid=\"" + scramble(yard.uid).toLatin1() + "\"\n";
    writeBytes(path_, text + "size=2\n");
    store_->saveDevice(yard);
    QCOMPARE(namesOf(store_->loadDevices()), QStringList({"", "yard"}));
    store_->removeDevice(yard.uid);
    QCOMPARE(namesOf(store_->loadDevices()), QStringList(""));
}

void TestLocalStore::removedDeviceLeavesTheOthersInOrder()
{
    for (const auto& device : {yard, hall, roof})
        store_->saveDevice(device);
    store_->removeDevice(hall.uid);
    const QList<LocalDeviceRecord> devices = store_->loadDevices();
    QCOMPARE(namesOf(devices), QStringList({"yard", "roof"}));
    QVERIFY(same(devices.at(1), roof));
    QCOMPARE(storedText(path_, "device/size"), QString("2"));
}

void TestLocalStore::unknownUidRewritesTheArrayUnchanged()
{
    for (const auto& device : {yard, hall})
        store_->saveDevice(device);
    store_->removeDevice("ZZZZZZZZZZZZZZZZZZZZ");
    const QList<LocalDeviceRecord> devices = store_->loadDevices();
    QCOMPARE(devices.size(), 2);
    QVERIFY(same(devices.at(0), yard));
    QVERIFY(same(devices.at(1), hall));
}

void TestLocalStore::lastDeviceLeavesAnEmptyArray()
{
    store_->saveDevice(yard);
    store_->removeDevice(yard.uid);
    QVERIFY(store_->loadDevices().isEmpty());
    QCOMPARE(storedText(path_, "device/size"), QString("0"));
    store_->saveDevice(hall);
    QCOMPARE(namesOf(store_->loadDevices()), QStringList("hall"));
}

void TestLocalStore::elementsBehindTheSizeDoNotCount()
{
    for (const auto& device : {yard, hall, roof})
        store_->saveDevice(device);
    {
        QSettings file(path_, QSettings::IniFormat);
        file.setValue("device/size", 1);
    }
    QCOMPARE(namesOf(store_->loadDevices()), QStringList("yard"));
    store_->saveDevice(roof);
    QCOMPARE(namesOf(store_->loadDevices()), QStringList({"yard", "roof"}));
}

void TestLocalStore::deviceHasTheseKeysOnly()
{
    store_->saveDevice(yard);
    QCOMPARE(keysOfSection(path_, "device"),
        QSet<QByteArray>({"1\\type", "1\\channel", "1\\uid", "1\\nickname", "1\\username",
            "1\\password", "size"}));
}

void TestLocalStore::deviceTextsAreScrambled()
{
    store_->saveDevice(yard);
    for (const QString& text : {yard.uid, yard.nickname, yard.username, yard.password})
        QVERIFY(!bytesOf(path_).contains('=' + text.toLatin1()));
    QCOMPARE(unscramble(storedText(path_, "device/1/uid")), yard.uid);
    QCOMPARE(unscramble(storedText(path_, "device/1/nickname")), yard.nickname);
    QCOMPARE(unscramble(storedText(path_, "device/1/username")), yard.username);
    QCOMPARE(unscramble(storedText(path_, "device/1/password")), yard.password);
    QCOMPARE(storedText(path_, "device/1/type"), QString("7"));
    QCOMPARE(storedText(path_, "device/1/channel"), QString("1"));
}

void TestLocalStore::devicesAndLoginsAreApart()
{
    store_->saveLogin("admin", "secret", true, 1);
    store_->saveDevice(yard);
    store_->removeDevice(yard.uid);
    QCOMPARE(namesOf(store_->loadLogins()), QStringList("admin"));
    store_->saveDevice(hall);
    store_->saveLogin("other", "", false, 0);
    QCOMPARE(namesOf(store_->loadDevices()), QStringList("hall"));
}

// A text outside ASCII comes back as the single bytes of its UTF-8 form. Scrambled anew at each
// rewrite, it would double its length each time some other device is saved.
void TestLocalStore::nonAsciiNameDoesNotGrowWithEveryRewrite()
{
    LocalDeviceRecord kitchen = yard;
    kitchen.nickname = QString::fromUtf8("K\xC3\xBC"
                                         "che");
    store_->saveDevice(kitchen);
    const QString first = store_->loadDevices().first().nickname;
    for (int i = 0; i < 12; ++i)
        store_->saveDevice(hall);
    QCOMPARE(store_->loadDevices().first().nickname.size(), first.size());
    QCOMPARE(store_->loadDevices().first().nickname, first);
}

ORVA_TEST(TestLocalStore)

#include "tst_localstore.moc"

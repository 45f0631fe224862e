// SPDX-License-Identifier: GPL-3.0-or-later
#include "inifile.h"
#include "store/inicheck.h"
#include "store/localstore.h"
#include "store/location.h"
#include "storedrecords.h"
#include "testmain.h"

#include <QTemporaryDir>

#include <functional>
#include <unistd.h>

// What stands in a damaged file must still stand there after the program has run: the file is
// either left as it is, byte for byte, or every record and every text of it is kept.
class TestDamagedFiles final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void damagedFileIsNeverWritten_data();
    void damagedFileIsNeverWritten();
    void damagedFileReadsWithoutFailing_data();
    void damagedFileReadsWithoutFailing();
    void fileThatIsAlreadyCachedIsStillRefused();
    void fileDamagedAfterAWriteIsRefused();
    void repairedFileIsWrittenAgain();
    void everyPrefixKeepsItsDevices();
    void everyPrefixKeepsItsLogins();
    void changedByteLosesNoRecord();
    void oddSizeKeepsEveryElement_data();
    void oddSizeKeepsEveryElement();
    void gapInTheNumbersIsPassedOver();
    void unreadableTextStays_data();
    void unreadableTextStays();
    void unreadableLoginTextStays();
    void unreadablePlainValueStays();
    void unreadableTextGivesWayToANewOne();
    void textThatReadsAsAListStays();
    void longNameWithEverythingInIt();
    void readOnlyFileIsReadAndLeft();
    void failedWriteLeavesNothingBehind();
    void fileInPlaceOfTheFolder();
    void directoryInPlaceOfTheFile();

private:
    void writeWholeFile();

    LocalStore* store_ = nullptr;
    QString path_;
};

namespace {

const char* const deviceTexts[] = {"uid", "nickname", "username", "password"};
const char* const loginTexts[] = {"username", "password"};

using Texts = QMap<QString, QString>;

// The scrambled texts of one array, by "element/key", as QSettings reads them.
template <std::size_t Size>
Texts textsOf(const QString& path, const QString& array, const char* const (&names)[Size])
{
    Texts texts;
    const QSettings file(path, QSettings::IniFormat);
    for (int number = 1; number <= 4; ++number) {
        for (const char* name : names) {
            const QString key = QString("%1/%2").arg(number).arg(QString(name));
            const QVariant value = file.value(array + '/' + key);
            if (!value.toString().isEmpty())
                texts.insert(key, value.toString());
        }
    }
    return texts;
}

// The key of the same text after the elements have moved up by `shift`.
QString shifted(const QString& key, int shift)
{
    return QString::number(key.section('/', 0, 0).toInt() + shift) + '/' + key.section('/', 1);
}

// Whole texts must read the same, cut ones must stand as they stood.
QString firstLost(const Texts& whole, const Texts& before, const Texts& after, int shift)
{
    for (auto it = before.begin(); it != before.end(); ++it) {
        const QString now = after.value(shifted(it.key(), shift));
        const bool cut = whole.value(it.key()) != it.value();
        const bool kept = now == it.value() || (!cut && unscramble(now) == unscramble(it.value()));
        if (!kept)
            return it.key() + ": '" + it.value() + "' became '" + now + "'";
    }
    return {};
}

QList<QByteArray> damagedFiles()
{
    return {"[login", "[login]\nsize=1\n1\\user", "hello", QByteArray(4096, '\0'),
        QByteArray("\x7F"
                   "ELF\x02\x01\x01\0\0\0",
            10),
        "a=\"open\n", "{\"a\":1}", QByteArray("[login]\n1\\username=\0\nsize=1\n", 29),
        QByteArray("[\0l\0o\0g\0i\0n\0]\0\n\0", 16)};
}

// A file and its folder without the right to write, for as long as the object exists. A root user
// is held back by no permissions, so the effective user is another one meanwhile.
class ReadOnly final
{
public:
    explicit ReadOnly(const QString& path)
        : path_(path)
        , folder_(QFileInfo(path).path())
    {
        QFile::setPermissions(QFileInfo(folder_).path(), enter_ | QFile::WriteOwner);
        QFile::setPermissions(folder_, enter_);
        QFile::setPermissions(path_, look_);
        active_ = ::geteuid() != 0 || ::seteuid(65534) == 0;
    }
    ~ReadOnly()
    {
        if (::getuid() == 0 && ::seteuid(0) != 0)
            qFatal("cannot return to the user of the test");
        QFile::setPermissions(folder_, enter_ | QFile::WriteOwner);
        QFile::setPermissions(path_, look_ | QFile::WriteOwner);
    }
    Q_DISABLE_COPY_MOVE(ReadOnly)

    bool active() const { return active_; }

private:
    const QString path_;
    const QString folder_;
    const QFile::Permissions look_ = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    const QFile::Permissions enter_ = look_ | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    bool active_ = false;
};

} // namespace

void TestDamagedFiles::initTestCase()
{
    store_ = LocalStore::instance();
    path_ = settingsPath();
}

void TestDamagedFiles::init()
{
    cleanup();
}

void TestDamagedFiles::cleanup()
{
    const QString folder = QFileInfo(path_).path();
    if (QFileInfo(folder).isFile())
        QFile::remove(folder);
    if (!QFile::remove(path_))
        QDir().rmdir(path_);
}

void TestDamagedFiles::writeWholeFile()
{
    store_->saveDevice(yard);
    store_->saveDevice(hall);
    store_->saveLogin("admin", "secret", true, 1);
    store_->saveLogin("guest", "p@ss", false, 2);
    store_->write("config/timeLength", 15);
    store_->write("config/devicechannel", R"([{"dev":"A","channel":[0,1]}])");
}

void TestDamagedFiles::damagedFileIsNeverWritten_data()
{
    QTest::addColumn<QByteArray>("bytes");
    int number = 0;
    for (const QByteArray& bytes : damagedFiles())
        QTest::newRow(qPrintable(QString("file %1").arg(++number))) << bytes;
}

void TestDamagedFiles::damagedFileIsNeverWritten()
{
    QFETCH(QByteArray, bytes);
    const QTemporaryDir folder;
    const QList<std::function<void()>> writers{
        [&] { store_->saveLogin("a", "b", true, 0); },
        [&] { store_->saveDevice(yard); },
        [&] { store_->removeDevice(yard.uid); },
        [&] { store_->write("config/scale", 1); },
        [&] { store_->writeDefault("newpath", "default"); },
        [&] { QCOMPARE(store_->moveTo(folder.filePath("ORVA.ini")), 2); },
        [&] { Location().setPicPath("/a"); },
    };
    for (const auto& write : writers) {
        writeBytes(path_, bytes);
        ignoreRefusal();
        write();
        QCOMPARE(bytesOf(path_), bytes);
    }
}

void TestDamagedFiles::damagedFileReadsWithoutFailing_data()
{
    damagedFileIsNeverWritten_data();
}

void TestDamagedFiles::damagedFileReadsWithoutFailing()
{
    QFETCH(QByteArray, bytes);
    writeBytes(path_, bytes);
    store_->loadLogins();
    QVERIFY(store_->loadDevices().isEmpty());
    QCOMPARE(Location().getTimeLength(), 30);
    QCOMPARE(LocalStore::resolveCurrentPath(), path_);
    QCOMPARE(bytesOf(path_), bytes);
}

// QSettings tells of the damage only to the first that reads the file.
void TestDamagedFiles::fileThatIsAlreadyCachedIsStillRefused()
{
    const QByteArray damaged("[config]\nscale=2\n[login");
    writeBytes(path_, damaged);
    for (int i = 0; i < 3; ++i) {
        store_->loadLogins();
        QCOMPARE(store_->read("config/scale", 0).toInt(), 2);
    }
    for (int i = 0; i < 3; ++i) {
        ignoreRefusal();
        store_->saveLogin("a", "b", true, 0);
        QCOMPARE(bytesOf(path_), damaged);
    }
}

void TestDamagedFiles::fileDamagedAfterAWriteIsRefused()
{
    writeWholeFile();
    const QByteArray damaged = bytesOf(path_) + "[oth";
    writeBytes(path_, damaged);
    ignoreRefusal();
    store_->saveDevice(roof);
    QCOMPARE(bytesOf(path_), damaged);
    QCOMPARE(store_->loadDevices().size(), 2);
}

void TestDamagedFiles::repairedFileIsWrittenAgain()
{
    writeWholeFile();
    const QByteArray whole = bytesOf(path_);
    writeBytes(path_, whole + "[oth");
    ignoreRefusal();
    store_->saveDevice(roof);
    writeBytes(path_, whole);
    store_->saveDevice(roof);
    QCOMPARE(namesOf(store_->loadDevices()), QStringList({"yard", "hall", "roof"}));
}

void TestDamagedFiles::everyPrefixKeepsItsDevices()
{
    writeWholeFile();
    const QByteArray whole = bytesOf(path_);
    const Texts wholeTexts = textsOf(path_, "device", deviceTexts);
    QCOMPARE(wholeTexts.size(), 8);
    for (int length = 0; length <= whole.size(); ++length) {
        const QByteArray prefix = whole.left(length);
        writeBytes(path_, prefix);
        if (!isIntactIni(prefix))
            ignoreRefusal();
        const Texts before = textsOf(path_, "device", deviceTexts);
        store_->saveDevice(roof);
        if (bytesOf(path_) == prefix)
            continue;
        const Texts after = textsOf(path_, "device", deviceTexts);
        const QString lost = firstLost(wholeTexts, before, after, 0);
        QVERIFY2(lost.isEmpty(), qPrintable(lost));
        QCOMPARE(store_->loadDevices().last().nickname, roof.nickname);
    }
}

void TestDamagedFiles::everyPrefixKeepsItsLogins()
{
    writeWholeFile();
    const QByteArray whole = bytesOf(path_);
    const Texts wholeTexts = textsOf(path_, "login", loginTexts);
    QCOMPARE(wholeTexts.size(), 4);
    for (int length = 0; length <= whole.size(); ++length) {
        const QByteArray prefix = whole.left(length);
        writeBytes(path_, prefix);
        if (!isIntactIni(prefix))
            ignoreRefusal();
        const Texts before = textsOf(path_, "login", loginTexts);
        store_->saveLogin("new", "new", true, 0);
        if (bytesOf(path_) == prefix)
            continue;
        const Texts after = textsOf(path_, "login", loginTexts);
        const QString lost = firstLost(wholeTexts, before, after, 1);
        QVERIFY2(lost.isEmpty(), qPrintable(lost));
        QCOMPARE(store_->loadLogins().first().username, QString("new"));
    }
}

void TestDamagedFiles::changedByteLosesNoRecord()
{
    writeWholeFile();
    const QByteArray whole = bytesOf(path_);
    for (int at = 0; at < whole.size(); at += 5) {
        for (const char c : {'"', '\\', ';', '#', '[', '=', '\n', 'x', '\xFF'}) {
            const QByteArray changed = QByteArray(whole).replace(at, 1, &c, 1);
            writeBytes(path_, changed);
            if (!isIntactIni(changed))
                ignoreRefusal();
            const QStringList before = namesOf(store_->loadDevices());
            store_->saveDevice(roof);
            if (bytesOf(path_) == changed)
                continue;
            QCOMPARE(namesOf(store_->loadDevices()), before + QStringList(roof.nickname));
        }
    }
}

void TestDamagedFiles::oddSizeKeepsEveryElement_data()
{
    QTest::addColumn<QByteArray>("size");
    QTest::newRow("a million") << QByteArray("1000000");
    QTest::newRow("largest") << QByteArray("2147483647");
    QTest::newRow("beyond the largest") << QByteArray("99999999999999999999");
    QTest::newRow("beyond 32 bits") << QByteArray("4294967296");
    QTest::newRow("beyond 32 bits by one") << QByteArray("4294967297");
    QTest::newRow("negative") << QByteArray("-1");
    QTest::newRow("most negative") << QByteArray("-2147483648");
    QTest::newRow("text") << QByteArray("two");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("list") << QByteArray("1, 2");
    QTest::newRow("exact") << QByteArray("2");
}

void TestDamagedFiles::oddSizeKeepsEveryElement()
{
    QFETCH(QByteArray, size);
    writeWholeFile();
    const QByteArray odd = bytesOf(path_).replace("size=2", "size=" + size);
    writeBytes(path_, odd);
    QCOMPARE(namesOf(store_->loadDevices()), QStringList({"yard", "hall"}));
    QCOMPARE(namesOf(store_->loadLogins()), QStringList({"guest", "admin"}));
    store_->saveDevice(roof);
    store_->saveLogin("new", "", false, 0);
    QCOMPARE(namesOf(store_->loadDevices()), QStringList({"yard", "hall", "roof"}));
    QCOMPARE(namesOf(store_->loadLogins()), QStringList({"new", "guest", "admin"}));
    QCOMPARE(storedText(path_, "device/size"), QString("3"));
}

void TestDamagedFiles::gapInTheNumbersIsPassedOver()
{
    writeWholeFile();
    {
        QSettings file(path_, QSettings::IniFormat);
        file.setValue("device/9/uid", scramble(roof.uid));
        file.setValue("device/9/nickname", scramble(roof.nickname));
        file.setValue("device/0/uid", scramble("zero"));
        file.setValue("device/x/uid", scramble("x"));
        file.setValue("device/size", 9);
    }
    QCOMPARE(namesOf(store_->loadDevices()), QStringList({"yard", "hall", "roof"}));
    store_->removeDevice(yard.uid);
    QCOMPARE(namesOf(store_->loadDevices()), QStringList({"hall", "roof"}));
}

void TestDamagedFiles::unreadableTextStays_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("clear text") << "yard";
    QTest::newRow("clear text with blanks") << "in the yard";
    QTest::newRow("clear text with marks") << "a\"b;c\\d,e=f[g]";
    QTest::newRow("clear text with a line break") << "a\nb";
    QTest::newRow("non-ASCII") << QString::fromUtf8("K\xC3\xBC"
                                                    "che \xF0\x9F\x98\x80");
    // "admin" with the salts a1b, c2, d, then cut, opened by one layer, with a foreign byte
    QTest::newRow("first half") << "ZFl6SlpWRVpwV1ZkU2RHRlhO";
    QTest::newRow("last character lost") << "ZFl6SlpWRVpwV1ZkU2RHRlhOV2hOVjBrOVl6ST1";
    QTest::newRow("without its outer layer") << "YzJZVEZpWVdSdGFXNWhNV0k9YzI=";
    QTest::newRow("foreign character inside") << "ZFl6SlpWRVpw!V1ZkU2RHRlhOV2hOVjBrOVl6ST1k";
}

void TestDamagedFiles::unreadableTextStays()
{
    QFETCH(QString, text);
    for (const char* name : deviceTexts) {
        QFile::remove(path_);
        const QString key = QString("device/1/") + name;
        writeWholeFile();
        {
            QSettings file(path_, QSettings::IniFormat);
            file.setValue(key, text);
        }
        store_->saveDevice(roof);
        QCOMPARE(storedText(path_, key), text);
        store_->removeDevice(roof.uid);
        QCOMPARE(storedText(path_, key), text);
        QCOMPARE(store_->loadDevices().size(), 2);
        QCOMPARE(store_->loadDevices().first().channel, yard.channel);
    }
}

void TestDamagedFiles::unreadableLoginTextStays()
{
    writeWholeFile();
    {
        QSettings file(path_, QSettings::IniFormat);
        file.setValue("login/2/username", "clear name");
        file.setValue("login/2/password", "clear word");
    }
    store_->saveLogin("new", "", false, 0);
    QCOMPARE(storedText(path_, "login/3/username"), QString("clear name"));
    QCOMPARE(storedText(path_, "login/3/password"), QString("clear word"));
    QCOMPARE(store_->loadLogins().at(1).username, QString("guest"));
}

void TestDamagedFiles::unreadablePlainValueStays()
{
    writeWholeFile();
    {
        QSettings file(path_, QSettings::IniFormat);
        file.setValue("device/1/type", "seven");
        file.setValue("device/2/channel", "16x");
        file.setValue("login/2/language", "German");
    }
    QCOMPARE(store_->loadDevices().first().type, 0);
    QCOMPARE(store_->loadLogins().last().language, 0);
    store_->saveDevice(roof);
    store_->saveLogin("new", "", false, 0);
    QCOMPARE(storedText(path_, "device/1/type"), QString("seven"));
    QCOMPARE(storedText(path_, "device/2/channel"), QString("16x"));
    QCOMPARE(storedText(path_, "login/3/language"), QString("German"));
}

void TestDamagedFiles::unreadableTextGivesWayToANewOne()
{
    writeWholeFile();
    {
        QSettings file(path_, QSettings::IniFormat);
        file.setValue("device/1/password", "clear");
        file.setValue("login/1/password", "clear");
    }
    store_->saveDevice(yard);
    QCOMPARE(store_->loadDevices().first().password, yard.password);
    store_->saveLogin("guest", "new", false, 0);
    QCOMPARE(store_->loadLogins().first().password, QString("new"));
}

// An editor's comma makes a list of the text, which as a text would be empty.
void TestDamagedFiles::textThatReadsAsAListStays()
{
    writeWholeFile();
    const QRegularExpression line(R"(1\\nickname=.*)");
    const QString edited =
        QString::fromLatin1(bytesOf(path_)).replace(line, R"(1\nickname=one,two)");
    writeBytes(path_, edited.toLatin1());
    store_->saveDevice(roof);
    QCOMPARE(QSettings(path_, QSettings::IniFormat).value("device/1/nickname").toStringList(),
        QStringList({"one", "two"}));
}

void TestDamagedFiles::longNameWithEverythingInIt()
{
    QString name;
    while (name.size() < 10000)
        name += QString::fromUtf8("line\r\n\"quote\" 'x' \\ ; # [a]=b, \xF0\x9F\x98\x80\t");
    for (int i = 0; i < 3; ++i)
        store_->saveLogin(name, name, true, 12);
    store_->saveLogin("other", "", false, 0);
    const LoginRecord login = store_->loadLogins().at(1);
    QVERIFY(login.username.startsWith("line\r\n\"quote\""));
    QVERIFY(login.username.size() > 10000);
    QCOMPARE(login.language, 12);
    QVERIFY(isIntactIni(bytesOf(path_)));
    store_->writeDefault("newpath", name);
    QCOMPARE(store_->readDefault("newpath", "").toString(), name);
    QVERIFY(isIntactIni(bytesOf(path_)));
}

void TestDamagedFiles::readOnlyFileIsReadAndLeft()
{
    writeWholeFile();
    const QByteArray before = bytesOf(path_);
    {
        const ReadOnly readOnly(path_);
        QVERIFY(readOnly.active());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be written"));
        store_->write("config/timeLength", 7);
        QCOMPARE(namesOf(store_->loadLogins()), QStringList({"guest", "admin"}));
        QCOMPARE(namesOf(store_->loadDevices()), QStringList({"yard", "hall"}));
    }
    QCOMPARE(bytesOf(path_), before);
}

// What could not be written must not be read as if it were, nor come into the file later on.
void TestDamagedFiles::failedWriteLeavesNothingBehind()
{
    writeWholeFile();
    const QByteArray before = bytesOf(path_);
    {
        const ReadOnly readOnly(path_);
        QVERIFY(readOnly.active());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be written"));
        store_->write("config/timeLength", 7);
        QCOMPARE(store_->read("config/timeLength", 0).toInt(), 15);
    }
    QCOMPARE(store_->read("config/timeLength", 0).toInt(), 15);
    QCOMPARE(bytesOf(path_), before);
}

void TestDamagedFiles::fileInPlaceOfTheFolder()
{
    const QString folder = QFileInfo(path_).path();
    QVERIFY(QDir(folder).removeRecursively());
    writeBytes(folder, "not a folder");
    QVERIFY(store_->loadLogins().isEmpty());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be written"));
    store_->saveLogin("a", "b", true, 0);
    QCOMPARE(bytesOf(folder), QByteArray("not a folder"));
    QVERIFY(QFile::remove(folder));
}

void TestDamagedFiles::directoryInPlaceOfTheFile()
{
    QVERIFY(QDir().mkpath(path_));
    QVERIFY(store_->loadLogins().isEmpty());
    QVERIFY(store_->loadDevices().isEmpty());
    ignoreRefusal();
    store_->saveLogin("a", "b", true, 0);
    QVERIFY(QFileInfo(path_).isDir());
    QVERIFY(QDir().rmdir(path_));
}

ORVA_TEST(TestDamagedFiles)

#include "tst_damagedfiles.moc"

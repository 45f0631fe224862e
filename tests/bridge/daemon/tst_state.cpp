// SPDX-License-Identifier: GPL-3.0-or-later
#include "state.h"
#include "testmain.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class TestState final : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void whatIsSavedComesBack();
    void unknownDeviceHasDefaults();
    void savingOneChannelLeavesOthers();
    void valuesOutOfRangeReadAsDefaults();
    void fileIsForItsOwnerOnly();
    void widerModeIsNarrowed();
    void secondBridgeIsTurnedAway();
    void lockGoesWithTheObject();
    void damagedFileIsLeftAsItIs_data();
    void damagedFileIsLeftAsItIs();
    void cutFileIsLeftAsItIs();
    void databaseOfAnotherProgramIsLeftAsItIs();
    void laterVersionIsLeftAsItIs();
    void missingFolderIsTold();
    void folderInPlaceOfTheFileIsTold();

private:
    std::string open();
    void sql(const char* text) const;

    std::unique_ptr<QTemporaryDir> folder_;
    std::string path_;
};

namespace {

QByteArray contents(const std::string& path)
{
    QFile file(QString::fromStdString(path));
    file.open(QFile::ReadOnly);
    return file.readAll();
}

void overwrite(const std::string& path, const QByteArray& bytes)
{
    QFile file(QString::fromStdString(path));
    QVERIFY(file.open(QFile::WriteOnly));
    file.write(bytes);
}

DeviceState full()
{
    DeviceState state;
    state.password = "n\xc3\xbc";
    state.passwordReplaced = "old";
    state.wifiName = std::string("net\xff", 4);
    state.wifiPassword = "word";
    state.clockOffset = -3600;
    state.zone = "Europe/Berlin";
    ChannelState& channel = state.channels[63];
    channel.high = false;
    channel.recordMode = 2;
    channel.sensitivity = 75;
    channel.smartMode = 1;
    channel.rotation = 3;
    channel.position = {-0.5F, 0.25F, 1, 0.75F, 0};
    channel.presets[255] = {1, -1, 0.5F, 0.5F, 0.5F};
    return state;
}

} // namespace

void TestState::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    path_ = folder_->filePath("state.db").toStdString();
}

// Opens the file and closes it again; what was wrong.
std::string TestState::open()
{
    std::string error;
    const auto state = StateFile::open(path_, error);
    return state ? std::string() : error;
}

void TestState::sql(const char* text) const
{
    sqlite3* handle = nullptr;
    QCOMPARE(sqlite3_open(path_.c_str(), &handle), SQLITE_OK);
    const SqliteDatabase database(handle);
    QVERIFY2(execute(database.get(), text), sqlite3_errmsg(database.get()));
}

void TestState::whatIsSavedComesBack()
{
    std::string error;
    QVERIFY(StateFile::open(path_, error)->save("A", full()));
    const auto file = StateFile::open(path_, error);
    QVERIFY2(file, error.c_str());
    const DeviceState state = file->load("A");
    QCOMPARE(state.password, full().password);
    QCOMPARE(state.passwordReplaced, full().passwordReplaced);
    QCOMPARE(state.wifiName, full().wifiName);
    QCOMPARE(state.wifiPassword, full().wifiPassword);
    QCOMPARE(state.clockOffset, full().clockOffset);
    QCOMPARE(state.zone, full().zone);
    QCOMPARE(state.channels.size(), std::size_t{1});
    const ChannelState& channel = state.channels.at(63);
    QVERIFY(!channel.high);
    QCOMPARE(channel.recordMode, 2);
    QCOMPARE(channel.sensitivity, 75);
    QCOMPARE(channel.smartMode, 1);
    QCOMPARE(channel.rotation, 3);
    QCOMPARE(channel.position.pan, -0.5F);
    QCOMPARE(channel.position.tilt, 0.25F);
    QCOMPARE(channel.position.zoom, 1.0F);
    QCOMPARE(channel.position.focus, 0.75F);
    QCOMPARE(channel.position.iris, 0.0F);
    QCOMPARE(channel.presets.at(255).pan, 1.0F);
    QCOMPARE(channel.presets.at(255).tilt, -1.0F);
}

void TestState::unknownDeviceHasDefaults()
{
    std::string error;
    const auto file = StateFile::open(path_, error);
    QVERIFY(file->save("A", full()));
    const DeviceState state = file->load("B");
    QVERIFY(state.password.empty());
    QVERIFY(state.channels.empty());
}

void TestState::savingOneChannelLeavesOthers()
{
    std::string error;
    const auto file = StateFile::open(path_, error);
    QVERIFY(file->save("A", full()));
    DeviceState other;
    other.channels[1].sensitivity = 25;
    QVERIFY(file->save("A", other));
    const DeviceState state = file->load("A");
    QCOMPARE(state.channels.size(), std::size_t{2});
    QCOMPARE(state.channels.at(63).sensitivity, 75);
    QCOMPARE(state.channels.at(1).sensitivity, 25);
    QVERIFY(state.password.empty());
}

void TestState::valuesOutOfRangeReadAsDefaults()
{
    QCOMPARE(open(), std::string());
    sql("INSERT INTO channel VALUES (x'41', 0, 7, 9, -1, 'many', 99, 0, 0, 0, 0, 0);"
        "INSERT INTO channel VALUES (x'41', 64, 1, 0, 50, 0, 0, 0, 0, 0, 0, 0);"
        "INSERT INTO preset VALUES (x'41', 0, 256, 0, 0, 0, 0, 0);");
    std::string error;
    const DeviceState state = StateFile::open(path_, error)->load("A");
    QCOMPARE(state.channels.size(), std::size_t{1});
    const ChannelState& channel = state.channels.at(0);
    QCOMPARE(channel.recordMode, 0);
    QCOMPARE(channel.sensitivity, 50);
    QCOMPARE(channel.rotation, 0);
    QVERIFY(channel.presets.empty());
}

void TestState::fileIsForItsOwnerOnly()
{
    QCOMPARE(open(), std::string());
    const auto permissions = QFile::permissions(QString::fromStdString(path_));
    QVERIFY(!(permissions & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther)));
}

void TestState::widerModeIsNarrowed()
{
    overwrite(path_, {});
    const QString path = QString::fromStdString(path_);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
    QCOMPARE(open(), std::string());
    QVERIFY(!(QFile::permissions(path) & QFile::ReadOther));
}

void TestState::secondBridgeIsTurnedAway()
{
    std::string error;
    const auto first = StateFile::open(path_, error);
    QVERIFY(first);
    QCOMPARE(open(), std::string("another bridge uses it"));
    QVERIFY(first->save("A", full()));
    QCOMPARE(open(), std::string("another bridge uses it"));
}

void TestState::lockGoesWithTheObject()
{
    QCOMPARE(open(), std::string());
    QCOMPARE(open(), std::string());
}

void TestState::damagedFileIsLeftAsItIs_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("a text") << QByteArray("hello");
    QTest::newRow("zeros") << QByteArray(8192, '\0');
    QTest::newRow("the name alone") << QByteArray("SQLite format 3\0", 16);
}

void TestState::damagedFileIsLeftAsItIs()
{
    QFETCH(QByteArray, bytes);
    overwrite(path_, bytes);
    QVERIFY(!open().empty());
    QCOMPARE(contents(path_), bytes);
}

void TestState::cutFileIsLeftAsItIs()
{
    std::string error;
    QVERIFY(StateFile::open(path_, error)->save("A", full()));
    const QByteArray whole = contents(path_);
    const QByteArray cut = whole.left(whole.size() - 4096);
    overwrite(path_, cut);
    QVERIFY(!open().empty());
    QCOMPARE(contents(path_), cut);
}

void TestState::databaseOfAnotherProgramIsLeftAsItIs()
{
    sql("CREATE TABLE recipes (name TEXT)");
    const QByteArray before = contents(path_);
    QCOMPARE(open(), std::string("it belongs to another program"));
    QCOMPARE(contents(path_), before);
}

void TestState::laterVersionIsLeftAsItIs()
{
    QCOMPARE(open(), std::string());
    sql("PRAGMA user_version = 2");
    const QByteArray before = contents(path_);
    QCOMPARE(open(), std::string("a later version of this program wrote it"));
    QCOMPARE(contents(path_), before);
}

void TestState::missingFolderIsTold()
{
    path_ = folder_->filePath("none/state.db").toStdString();
    QVERIFY(!open().empty());
}

void TestState::folderInPlaceOfTheFileIsTold()
{
    path_ = folder_->path().toStdString();
    QVERIFY(!open().empty());
}

ORVA_TEST(TestState)
#include "tst_state.moc"

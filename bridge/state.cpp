// SPDX-License-Identifier: GPL-3.0-or-later
#include "state.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::int64_t applicationId = 0x4f525642; // "ORVB"
constexpr std::int64_t schemaVersion = 1;

const char* const schema = R"(
CREATE TABLE device (
    uid BLOB PRIMARY KEY, password BLOB, passwordReplaced BLOB, wifiName BLOB, wifiPassword BLOB,
    clockOffset INTEGER, zone BLOB) WITHOUT ROWID;
CREATE TABLE channel (
    uid BLOB, number INTEGER, high INTEGER, recordMode INTEGER, sensitivity INTEGER,
    smartMode INTEGER, rotation INTEGER, pan REAL, tilt REAL, zoom REAL, focus REAL, iris REAL,
    PRIMARY KEY (uid, number)) WITHOUT ROWID;
CREATE TABLE preset (
    uid BLOB, channel INTEGER, number INTEGER, pan REAL, tilt REAL, zoom REAL, focus REAL,
    iris REAL, PRIMARY KEY (uid, channel, number)) WITHOUT ROWID;
PRAGMA application_id = 1330796098;
PRAGMA user_version = 1;
)";

static_assert(applicationId == 1330796098 && schemaVersion == 1, "the numbers of the schema");

// Makes the file with its mode before SQLite would make it with another. The empty text when done.
std::string ensureFile(const std::string& path)
{
    const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return std::strerror(errno);
    struct stat status
    {
    };
    std::string error;
    if (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode))
        error = "not a regular file";
    else if ((status.st_mode & 0077) != 0 && ::fchmod(file, S_IRUSR | S_IWUSR) != 0)
        error = "others may read it, and that cannot be changed";
    ::close(file);
    return error;
}

std::int64_t number(sqlite3* database, const char* sql)
{
    SqliteStatement statement(database, sql);
    return statement.row() ? statement.integer(0) : -1;
}

int within(std::int64_t value, int low, int high, int otherwise)
{
    return value >= low && value <= high ? static_cast<int>(value) : otherwise;
}

HeadPosition positionAt(const SqliteStatement& row, int column)
{
    const auto value = [&](int i) { return static_cast<float>(row.real(column + i)); };
    return {value(0), value(1), value(2), value(3), value(4)};
}

void bindPosition(SqliteStatement& statement, const HeadPosition& position)
{
    for (const float value :
        {position.pan, position.tilt, position.zoom, position.focus, position.iris})
        statement.bind(double{value});
}

} // namespace

StateFile::StateFile(SqliteDatabase database)
    : database_(std::move(database))
{
}

std::unique_ptr<StateFile> StateFile::open(const std::string& path, std::string& error)
{
    error = ensureFile(path);
    if (!error.empty())
        return nullptr;
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr);
    SqliteDatabase database(handle);
    if (result != SQLITE_OK) {
        error = sqlite3_errstr(result);
        return nullptr;
    }
    std::unique_ptr<StateFile> state(new StateFile(std::move(database)));
    error = state->prepare();
    return error.empty() ? std::move(state) : nullptr;
}

// What makes the file unusable, or the empty text.
std::string StateFile::prepare()
{
    // The lock of the first transaction is kept to the end: it is what a second bridge meets.
    const bool locked = execute(database_.get(),
        "PRAGMA locking_mode = EXCLUSIVE; PRAGMA synchronous = FULL; BEGIN EXCLUSIVE");
    if (!locked && sqlite3_errcode(database_.get()) == SQLITE_BUSY)
        return "another bridge uses it";
    if (!locked)
        return lastError();
    std::string problem = checkSchema();
    if (!problem.empty()) {
        execute(database_.get(), "ROLLBACK");
        return problem;
    }
    return execute(database_.get(), "COMMIT") ? std::string() : lastError();
}

std::string StateFile::checkSchema()
{
    SqliteStatement check(database_.get(), "PRAGMA quick_check(1)");
    if (!check.row() || check.bytes(0) != "ok")
        return "it is damaged";
    check.finish();
    const auto tables = number(database_.get(), "SELECT count(*) FROM sqlite_master");
    const auto application = number(database_.get(), "PRAGMA application_id");
    const auto version = number(database_.get(), "PRAGMA user_version");
    if (tables == 0 && application == 0 && version == 0)
        return execute(database_.get(), schema) ? std::string() : lastError();
    if (application != applicationId)
        return "it belongs to another program";
    if (version > schemaVersion)
        return "a later version of this program wrote it";
    if (version != schemaVersion || tables < 3)
        return "it is damaged";
    return {};
}

DeviceState StateFile::load(const std::string& uid)
{
    DeviceState state;
    SqliteStatement row(database_.get(),
        "SELECT password, passwordReplaced, wifiName, wifiPassword, clockOffset, zone"
        " FROM device WHERE uid = ?");
    row.bind(std::string_view(uid));
    if (row.row()) {
        state.password = row.bytes(0);
        state.passwordReplaced = row.bytes(1);
        state.wifiName = row.bytes(2);
        state.wifiPassword = row.bytes(3);
        state.clockOffset = row.integer(4);
        state.zone = row.bytes(5);
    }
    loadChannels(uid, state);
    loadPresets(uid, state);
    return state;
}

void StateFile::loadChannels(const std::string& uid, DeviceState& state)
{
    SqliteStatement row(database_.get(),
        "SELECT number, high, recordMode, sensitivity, smartMode, rotation, pan, tilt, zoom, focus,"
        " iris FROM channel WHERE uid = ? AND number BETWEEN 0 AND 63");
    row.bind(std::string_view(uid));
    while (row.row()) {
        ChannelState channel;
        channel.high = row.integer(1) != 0;
        channel.recordMode = within(row.integer(2), 0, 2, channel.recordMode);
        channel.sensitivity = within(row.integer(3), 0, 100, channel.sensitivity);
        channel.smartMode = within(row.integer(4), 0, 1, channel.smartMode);
        channel.rotation = within(row.integer(5), 0, 3, channel.rotation);
        channel.position = positionAt(row, 6);
        state.channels[static_cast<int>(row.integer(0))] = channel;
    }
}

void StateFile::loadPresets(const std::string& uid, DeviceState& state)
{
    SqliteStatement row(database_.get(),
        "SELECT channel, number, pan, tilt, zoom, focus, iris FROM preset"
        " WHERE uid = ? AND channel BETWEEN 0 AND 63 AND number BETWEEN 1 AND 255");
    row.bind(std::string_view(uid));
    while (row.row()) {
        auto& channel = state.channels[static_cast<int>(row.integer(0))];
        channel.presets[static_cast<int>(row.integer(1))] = positionAt(row, 2);
    }
}

bool StateFile::save(const std::string& uid, const DeviceState& state)
{
    if (!execute(database_.get(), "BEGIN IMMEDIATE"))
        return false;
    bool done = saveDevice(uid, state);
    for (const auto& [number, channel] : state.channels)
        done = done && saveChannel(uid, number, channel);
    if (done && execute(database_.get(), "COMMIT"))
        return true;
    execute(database_.get(), "ROLLBACK");
    return false;
}

bool StateFile::saveDevice(const std::string& uid, const DeviceState& state)
{
    SqliteStatement row(
        database_.get(), "INSERT OR REPLACE INTO device VALUES (?, ?, ?, ?, ?, ?, ?)");
    row.bind(std::string_view(uid))
        .bind(std::string_view(state.password))
        .bind(std::string_view(state.passwordReplaced))
        .bind(std::string_view(state.wifiName))
        .bind(std::string_view(state.wifiPassword))
        .bind(state.clockOffset)
        .bind(std::string_view(state.zone));
    return row.run();
}

bool StateFile::saveChannel(const std::string& uid, int number, const ChannelState& state)
{
    SqliteStatement row(database_.get(),
        "INSERT OR REPLACE INTO channel VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    row.bind(std::string_view(uid));
    for (const int value : {number, state.high ? 1 : 0, state.recordMode, state.sensitivity,
             state.smartMode, state.rotation})
        row.bind(std::int64_t{value});
    bindPosition(row, state.position);
    return row.run() && savePresets(uid, number, state.presets);
}

bool StateFile::savePresets(const std::string& uid, int number, const HeadPresets& presets)
{
    for (const auto& [preset, position] : presets) {
        SqliteStatement row(
            database_.get(), "INSERT OR REPLACE INTO preset VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
        row.bind(std::string_view(uid)).bind(std::int64_t{number}).bind(std::int64_t{preset});
        bindPosition(row, position);
        if (!row.run())
            return false;
    }
    return true;
}

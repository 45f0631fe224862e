// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ptzhead.h"
#include "sqlite.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>

// What a client sets and a restart must not forget.
struct ChannelState
{
    bool high = true; // the quality of the next start
    int recordMode = 0; // 0 off, 1 always, 2 on motion
    int sensitivity = 50; // percent
    int smartMode = 0; // 0 people, 1 motion
    int rotation = 0; // 0 upright, 1 mirrored, 2 flipped, 3 turned by 180 degrees
    HeadPosition position;
    HeadPresets presets;
};

struct DeviceState
{
    // What a client set, and what the configuration said at that time: a person who writes another
    // one into the configuration wants that one. Readable, since the link derives keys from it.
    std::string password;
    std::string passwordReplaced;
    std::string wifiName;
    std::string wifiPassword;
    std::int64_t clockOffset = 0; // seconds, as in SceneState
    std::string zone; // empty: UTC
    std::map<int, ChannelState> channels; // those that were ever saved, by number
};

// The file of all that, an SQLite database, readable for its owner only and locked against a second
// bridge for as long as the object lives. A file that is damaged, of another program or of a later
// version is reported and left as it is. One thread at a time.
class StateFile
{
public:
    // Makes the file when there is none. Null when it cannot be used; `error` tells why.
    static std::unique_ptr<StateFile> open(const std::string& path, std::string& error);

    // Values out of range read as their defaults.
    DeviceState load(const std::string& uid);
    // The device's own values and the channels in `state`; others stay. All or nothing.
    bool save(const std::string& uid, const DeviceState& state);

    // Of the operation that failed last.
    std::string lastError() const { return sqlite3_errmsg(database_.get()); }

private:
    explicit StateFile(SqliteDatabase database);

    std::string prepare();
    std::string checkSchema();
    void loadChannels(const std::string& uid, DeviceState& state);
    void loadPresets(const std::string& uid, DeviceState& state);
    bool saveDevice(const std::string& uid, const DeviceState& state);
    bool saveChannel(const std::string& uid, int number, const ChannelState& state);
    bool savePresets(const std::string& uid, int number, const HeadPresets& presets);

    const SqliteDatabase database_;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/linkhost.h"
#include "faults.h"
#include "log.h"
#include "media/feed.h"

#include <functional>
#include <string>
#include <variant>
#include <vector>

// What the configuration file says. packaging/orva-bridge.example.yaml explains each key.

struct ChannelConfig
{
    SourceSettings main;
    std::shared_ptr<const SourceSettings> sub; // null: none
};

struct DeviceConfig
{
    std::string uid;
    std::string version;
    std::string type; // kept for people; shown in the status
    std::string account = "Admin"; // what clients use whose user names none
    std::string password;
    std::vector<std::string> wifi; // names of networks
    std::string speechFile; // empty: speech is not kept
    std::vector<Fault> faults;
    std::vector<ChannelConfig> channels; // 1 to 64
};

struct Config
{
    LinkHostSettings host;
    std::string stateFile;
    std::string controlSocket; // empty: none
    LogLevel logLevel = LogLevel::Info;
    std::vector<DeviceConfig> devices;
};

struct ConfigError
{
    int line = 0; // from 1 on
    std::string text;
};

// What the configuration may ask of the file system, so that tests need none.
struct ConfigFiles
{
    std::string folder; // relative paths count from here
    std::function<bool(const std::string& path)> isFile;
    std::function<bool(const std::string& path)> isFolder;

    static ConfigFiles real(const std::string& configPath);
};

// Pure but for what `files` tells. All errors are told, by line.
std::variant<Config, std::vector<ConfigError>> parseConfig(
    const std::string& text, const ConfigFiles& files);

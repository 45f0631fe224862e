// SPDX-License-Identifier: GPL-3.0-or-later
#include "config.h"

#include "wire/limits.h"
#include "wire/uid.h"
#include "yamlmap.h"

#include <algorithm>
#include <arpa/inet.h>
#include <filesystem>
#include <unistd.h>

namespace {

constexpr std::size_t maxPathBytes = 1024;
constexpr std::size_t maxUrlBytes = 2048;
constexpr std::size_t maxVersionBytes = 63; // what the answer to a client has room for
constexpr std::size_t maxAccountBytes = 64;
constexpr std::size_t maxPasswordBytes = 64; // 32 letters of two bytes
constexpr std::size_t maxWifiBytes = 31;

// What is read on the way through the file, and where errors go.
struct Reading
{
    const ConfigFiles& files;
    ConfigErrors& errors;
};

std::string absolute(const std::string& path, const Reading& reading)
{
    return (std::filesystem::path(reading.files.folder) / path).lexically_normal().string();
}

bool startsWith(const std::string& text, const char* start)
{
    return text.rfind(start, 0) == 0;
}

// Makes the path of a file absolute. What is wrong with the address, or the empty text.
std::string settleUrl(std::string& url, const Reading& reading)
{
    if (url == "test:")
        return {};
    // These would end the address within a line of the log, before its password is taken out.
    if (startsWith(url, "rtsp://"))
        return url.find_first_of(" \"'<>") == std::string::npos
            ? std::string()
            : "write blanks, quotes, < and > as %20, %22, %27, %3C and %3E";
    if (!startsWith(url, "file:"))
        return "expected test:, file:PATH or rtsp://...";
    const std::string path = absolute(url.substr(5), reading);
    url = "file:" + path;
    return reading.files.isFile(path) ? std::string() : "no readable file " + path;
}

void readSize(YamlMap& map, SourceSettings& source)
{
    map.number("width", source.width, 64, 3840);
    map.number("height", source.height, 64, 2160);
    if (source.width % 2 != 0 || source.height % 2 != 0)
        map.error("width", "a picture's width and height must be even");
}

void readTestKeys(YamlMap& map, SourceSettings& source)
{
    map.choice("scene", source.scene, {{"street", 0}, {"gate", 1}, {"yard", 2}, {"corridor", 3}});
    readSize(map, source);
    map.number("rate", source.framesPerSecond, 1, 60);
    map.number("bitrate", source.kilobitsPerSecond, 16, 100000);
    map.number("key-interval", source.keyInterval, 1, 250);
    map.choice("codec", source.codec, {{"h264", VideoCodec::H264}, {"h265", VideoCodec::H265}});
    map.choice("stamp", source.stamp,
        {{"time", StampKind::Time}, {"frame", StampKind::Frame}, {"off", StampKind::Off}});
    map.flag("sound", source.sound);
    map.text("shared", source.shared, 64);
}

void readTransport(YamlMap& map, SourceSettings& source)
{
    map.choice("transport", source.overUdp, {{"tcp", false}, {"udp", true}});
}

void readUrl(const YAML::Node& node, const char* what, std::string& url, const Reading& reading)
{
    if (!plainText(node, url, maxUrlBytes, {lineOf(node), what}, reading.errors))
        return;
    const std::string problem = settleUrl(url, reading);
    if (!problem.empty())
        reading.errors.push_back({lineOf(node), std::string(what) + ": " + problem});
}

// The address alone, or a map. The keys of a test picture and those of a camera are unknown to the
// other kinds, so that nobody believes they count there.
SourceSettings readSource(const YAML::Node& node, const char* what, const Reading& reading)
{
    SourceSettings source;
    if (!node.IsMap()) {
        readUrl(node, what, source.url, reading);
        return source;
    }
    YamlMap map(node, what, reading.errors);
    const auto url = map.require("url");
    if (url.IsDefined())
        readUrl(url, "url", source.url, reading);
    if (source.url == "test:")
        readTestKeys(map, source);
    else if (startsWith(source.url, "rtsp://"))
        readTransport(map, source);
    map.finish();
    return source;
}

void readChannel(const YAML::Node& node, DeviceConfig& device, const Reading& reading)
{
    YamlMap map(node, "a channel", reading.errors);
    ChannelConfig channel;
    int count = 1;
    map.number("count", count, 1, maxLiveChannels);
    const auto main = map.require("main");
    if (main.IsDefined())
        channel.main = readSource(main, "main", reading);
    const auto sub = map.take("sub");
    if (sub.IsDefined())
        channel.sub = std::make_shared<SourceSettings>(readSource(sub, "sub", reading));
    map.finish();
    device.channels.insert(device.channels.end(), static_cast<std::size_t>(count), channel);
}

void readChannels(YamlMap& map, DeviceConfig& device, const Reading& reading)
{
    const auto list = map.require("channels");
    if (!list.IsDefined())
        return;
    if (!list.IsSequence() || list.size() == 0) {
        map.error("channels", "expected a list of channels");
        return;
    }
    for (const auto& channel : list)
        readChannel(channel, device, reading);
    if (device.channels.size() > static_cast<std::size_t>(maxLiveChannels))
        map.error("channels", "a device has 64 channels at most");
}

void readWifi(YamlMap& map, DeviceConfig& device, const Reading& reading)
{
    const auto list = map.take("wifi");
    if (!list.IsDefined())
        return;
    if (!list.IsSequence())
        map.error("wifi", "expected a list of names");
    for (const auto& entry : list) {
        std::string name;
        if (plainText(entry, name, maxWifiBytes, {lineOf(entry), "wifi"}, reading.errors))
            device.wifi.push_back(name);
    }
}

void readFaults(YamlMap& map, DeviceConfig& device, const Reading& reading)
{
    const auto list = map.take("faults");
    if (!list.IsDefined())
        return;
    if (!list.IsSequence())
        map.error("faults", "expected a list of faults");
    for (const auto& entry : list) {
        std::string line;
        if (!plainText(entry, line, 128, {lineOf(entry), "faults"}, reading.errors))
            continue;
        const auto fault = parseFault(line);
        if (const auto* problem = std::get_if<std::string>(&fault))
            reading.errors.push_back({lineOf(entry), "faults: " + *problem});
        else
            device.faults.push_back(std::get<Fault>(fault));
    }
}

void readSpeech(YamlMap& map, DeviceConfig& device, const Reading& reading)
{
    map.text("speech", device.speechFile, maxPathBytes);
    if (device.speechFile.empty())
        return;
    device.speechFile = absolute(device.speechFile, reading);
    const auto folder = std::filesystem::path(device.speechFile).parent_path().string();
    if (!reading.files.isFolder(folder))
        map.error("speech", "there is no folder " + folder);
}

// Clients show it and read the kind of device from it, so it is plain ASCII.
void readVersion(YamlMap& map, DeviceConfig& device)
{
    map.require("version");
    map.text("version", device.version, maxVersionBytes);
    const bool plain = std::all_of(device.version.begin(), device.version.end(),
        [](char letter) { return letter > ' ' && letter <= '~'; });
    if (!plain)
        map.error("version", "expected letters, digits and signs without a space");
}

DeviceConfig readDevice(const YAML::Node& node, const Reading& reading)
{
    DeviceConfig device;
    YamlMap map(node, "a device", reading.errors);
    map.require("uid");
    map.text("uid", device.uid, 64);
    if (!device.uid.empty() && !isUid(device.uid))
        map.error("uid", "expected 20 characters A-Z and 0-9; --new-uid gives one");
    readVersion(map, device);
    map.text("type", device.type, 64);
    map.text("account", device.account, maxAccountBytes);
    map.require("password");
    map.text("password", device.password, maxPasswordBytes);
    readWifi(map, device, reading);
    readSpeech(map, device, reading);
    readFaults(map, device, reading);
    readChannels(map, device, reading);
    map.finish();
    return device;
}

void readDevices(YamlMap& map, Config& config, const Reading& reading)
{
    const auto list = map.require("devices");
    if (!list.IsDefined())
        return;
    if (!list.IsSequence() || list.size() == 0) {
        map.error("devices", "expected a list of devices");
        return;
    }
    for (const auto& node : list) {
        auto device = readDevice(node, reading);
        const bool known = std::any_of(config.devices.begin(), config.devices.end(),
            [&device](const DeviceConfig& other) { return other.uid == device.uid; });
        if (known && !device.uid.empty())
            reading.errors.push_back(
                {lineOf(node), "the uid " + device.uid + " stands here twice"});
        config.devices.push_back(std::move(device));
    }
}

void readListen(YamlMap& map, LinkHostSettings& host)
{
    map.text("address", host.address, 64);
    in_addr parsed{};
    if (inet_pton(AF_INET, host.address.c_str(), &parsed) != 1)
        map.error("address", "expected an IPv4 address");
    int port = 0;
    map.number("port", port, 0, 65535);
    host.port = static_cast<std::uint16_t>(port);
    map.flag("search", host.answerSearch);
    map.flag("loopback-only", host.loopbackOnly);
}

void readPath(YamlMap& map, const char* key, std::string& path, const Reading& reading)
{
    map.text(key, path, maxPathBytes);
    if (!path.empty())
        path = absolute(path, reading);
}

Config readRoot(const YAML::Node& root, const Reading& reading)
{
    Config config;
    YamlMap map(root, "the configuration", reading.errors);
    readListen(map, config.host);
    map.require("state");
    readPath(map, "state", config.stateFile, reading);
    readPath(map, "control", config.controlSocket, reading);
    if (config.controlSocket.size() > 107)
        map.error("control", "the path is longer than the 107 bytes that a socket may have");
    map.choice("log", config.logLevel,
        {{"debug", LogLevel::Debug}, {"info", LogLevel::Info}, {"warning", LogLevel::Warning},
            {"error", LogLevel::Error}});
    readDevices(map, config, reading);
    map.finish();
    return config;
}

} // namespace

ConfigFiles ConfigFiles::real(const std::string& configPath)
{
    ConfigFiles files;
    std::error_code error;
    files.folder = std::filesystem::absolute(configPath, error).parent_path().string();
    files.isFile = [](const std::string& path) {
        std::error_code failure;
        return std::filesystem::is_regular_file(path, failure) && ::access(path.c_str(), R_OK) == 0;
    };
    files.isFolder = [](const std::string& path) {
        std::error_code failure;
        return std::filesystem::is_directory(path, failure);
    };
    return files;
}

std::variant<Config, std::vector<ConfigError>> parseConfig(
    const std::string& text, const ConfigFiles& files)
{
    ConfigErrors errors;
    Config config;
    try {
        config = readRoot(YAML::Load(text), {files, errors});
    } catch (const YAML::Exception& exception) {
        errors.push_back({std::max(exception.mark.line, 0) + 1, exception.msg});
    }
    if (errors.empty())
        return config;
    std::stable_sort(errors.begin(), errors.end(),
        [](const ConfigError& a, const ConfigError& b) { return a.line < b.line; });
    return errors;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "messages.h"

#include "wire/bytes.h"
#include "wire/limits.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace {

using Result = std::variant<Request, BadRequest>;

BadRequest bad(std::string reason)
{
    return {std::move(reason)};
}

BadRequest badValue(const char* what, std::int64_t value)
{
    return {std::string(what) + ' ' + std::to_string(value) + " is out of range"};
}

// The reader's next word as a number from `low` to `high`.
std::optional<int> wordWithin(ByteReader& reader, int low, int high)
{
    const std::uint32_t word = reader.u32();
    const bool within =
        word >= static_cast<std::uint32_t>(low) && word <= static_cast<std::uint32_t>(high);
    return within ? std::optional<int>(static_cast<int>(word)) : std::nullopt;
}

std::optional<int> channelNumber(ByteReader& reader)
{
    return wordWithin(reader, 0, maxLiveChannels - 1);
}

const BadRequest noSuchChannel{"a channel number out of range"};

template <typename Message>
Result plain(std::string_view)
{
    return Message{};
}

template <typename Message>
Result channelOnly(std::string_view bytes)
{
    ByteReader reader(bytes);
    if (const auto channel = channelNumber(reader))
        return Message{*channel};
    return noSuchChannel;
}

bool isLeapYear(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int daysOfMonth(int year, int month)
{
    static const std::array<int, 12> days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : days[static_cast<std::size_t>(month - 1)];
}

bool isWithin(int value, int low, int high)
{
    return value >= low && value <= high;
}

bool isRealTime(const DeviceTime& time)
{
    return isWithin(time.year, 1970, 2099) && isWithin(time.month, 1, 12)
        && isWithin(time.day, 1, daysOfMonth(time.year, time.month)) && isWithin(time.hour, 0, 23)
        && isWithin(time.minute, 0, 59) && isWithin(time.second, 0, 59);
}

DeviceTime readTime(ByteReader& reader)
{
    DeviceTime time;
    time.year = reader.u16();
    time.month = reader.u8();
    time.day = reader.u8();
    reader.u8(); // the day of the week follows from the date
    time.hour = reader.u8();
    time.minute = reader.u8();
    time.second = reader.u8();
    return time;
}

Result setRecordMode(std::string_view bytes)
{
    ByteReader reader(bytes);
    const auto channel = channelNumber(reader);
    const auto mode = wordWithin(reader, 0, 2);
    if (!channel)
        return noSuchChannel;
    if (!mode)
        return bad("an unknown record mode");
    return SetRecordMode{*channel, *mode};
}

Result listRecords(std::string_view bytes)
{
    ByteReader reader(bytes);
    const auto channel = channelNumber(reader);
    const DeviceTime from = readTime(reader);
    const DeviceTime to = readTime(reader);
    if (!channel)
        return noSuchChannel;
    if (!isRealTime(from) || !isRealTime(to))
        return bad("a time that does not exist");
    return ListRecords{*channel, from, to};
}

// The time is filled in for the commands that start something, and zero otherwise.
bool playTimeCounts(int command)
{
    return command == 4 || command == 5 || command == 16;
}

Result playControl(std::string_view bytes)
{
    ByteReader reader(bytes);
    const auto channel = channelNumber(reader);
    const auto command = wordWithin(reader, 0, 255);
    reader.u32();
    const DeviceTime time = readTime(reader);
    reader.u16();
    const int speed = reader.u8();
    if (!channel)
        return noSuchChannel;
    if (!command)
        return bad("an unknown play command");
    if (playTimeCounts(*command) && !isRealTime(time))
        return bad("a time that does not exist");
    return PlayControl{*channel, *command, time, speed};
}

Result setQuality(std::string_view bytes)
{
    ByteReader reader(bytes);
    const auto channel = channelNumber(reader);
    const auto high = wordWithin(reader, 0, 1);
    if (!channel)
        return noSuchChannel;
    if (!high)
        return bad("an unknown quality");
    return SetQuality{*channel, *high == 1};
}

// The first word would name the channel and is always zero.
Result setSensitivity(std::string_view bytes)
{
    ByteReader reader(bytes);
    reader.u32();
    const std::uint32_t percent = reader.u32();
    if (percent != 25 && percent != 50 && percent != 75 && percent != 100)
        return badValue("sensitivity", percent);
    return SetSensitivity{static_cast<int>(percent)};
}

// A field of fixed size, zero filled behind the text.
std::string textField(ByteReader& reader, std::size_t size)
{
    const std::string_view field = reader.take(size);
    return std::string(field.substr(0, field.find('\0')));
}

// A client names its password in UTF-8 when it connects, and in Latin-1 when it changes it.
std::string utf8FromLatin1(const std::string& text)
{
    std::string utf8;
    for (const char letter : text) {
        const auto code = static_cast<unsigned char>(letter);
        if (code < 0x80) {
            utf8 += letter;
            continue;
        }
        utf8 += static_cast<char>(0xc0 | (code >> 6));
        utf8 += static_cast<char>(0x80 | (code & 0x3f));
    }
    return utf8;
}

bool holdsControlCharacter(const std::string& text)
{
    return std::any_of(text.begin(), text.end(), [](char letter) {
        const auto code = static_cast<unsigned char>(letter);
        return code < 0x20 || code == 0x7f;
    });
}

Result setPassword(std::string_view bytes)
{
    ByteReader reader(bytes);
    const std::string from = textField(reader, 32);
    const std::string to = textField(reader, 32);
    if (to.empty() || holdsControlCharacter(to))
        return bad("a new password that nobody could type");
    return SetPassword{utf8FromLatin1(from), utf8FromLatin1(to)};
}

Result setReplayTime(std::string_view bytes)
{
    ByteReader reader(bytes);
    const auto channel = channelNumber(reader);
    const DeviceTime time = readTime(reader);
    const auto seconds = static_cast<std::int32_t>(reader.u32());
    if (!channel)
        return noSuchChannel;
    if (!isRealTime(time))
        return bad("a time that does not exist");
    return SetReplayTime{*channel, time, seconds};
}

Result setWifi(std::string_view bytes)
{
    ByteReader reader(bytes);
    const std::string name = textField(reader, 32);
    const std::string password = textField(reader, 32);
    if (name.empty() || holdsControlCharacter(name) || holdsControlCharacter(password))
        return bad("a network without a readable name or password");
    return SetWifi{name, password};
}

template <typename Message>
Result speaker(std::string_view bytes)
{
    constexpr int speechChannel = 31; // the only one that clients serve
    ByteReader reader(bytes);
    if (wordWithin(reader, speechChannel, speechChannel))
        return Message{speechChannel};
    return bad("an unknown speech channel");
}

struct Direction
{
    int pan = 0;
    int tilt = 0;
    int zoom = 0;
    int focus = 0;
    int iris = 0;
};

// The command numbers of cameras, 1 to 14.
std::optional<Direction> cameraDirection(int command)
{
    static const std::array<Direction, 14> directions{
        {{-1}, {1}, {0, 1}, {0, -1}, {-1, 1}, {-1, -1}, {1, 1}, {1, -1}, {0, 0, 0, 1},
            {0, 0, 0, -1}, {0, 0, 1}, {0, 0, -1}, {0, 0, 0, 0, 1}, {0, 0, 0, 0, -1}}};
    if (!isWithin(command, 1, static_cast<int>(directions.size())))
        return std::nullopt;
    return directions[static_cast<std::size_t>(command - 1)];
}

// The command numbers of recorders, 1 to 4.
std::optional<Direction> recorderDirection(int command)
{
    static const std::array<Direction, 4> directions{{{0, 1}, {0, -1}, {-1}, {1}}};
    if (!isWithin(command, 1, static_cast<int>(directions.size())))
        return std::nullopt;
    return directions[static_cast<std::size_t>(command - 1)];
}

PtzMove moveOf(int channel, const Direction& towards, int speed)
{
    return {channel, towards.pan, towards.tilt, towards.zoom, towards.focus, towards.iris, speed};
}

std::optional<PtzAction::Kind> cameraAction(int command)
{
    using Kind = PtzAction::Kind;
    switch (command) {
    case 0: // stop
    case 23: // end of a cruise
    case 30: // end of an auto cruise
        return Kind::Stop;
    case 15:
        return Kind::SetPreset;
    case 16:
        return Kind::GoPreset;
    case 22:
        return Kind::Cruise;
    case 29:
        return Kind::AutoCruise;
    default:
        return std::nullopt;
    }
}

std::optional<PtzAction::Kind> recorderAction(int command)
{
    using Kind = PtzAction::Kind;
    switch (command) {
    case 0:
        return Kind::Stop;
    case 5:
    case 6:
        return Kind::SetPreset;
    case 7:
    case 8:
        return Kind::GoPreset;
    case 11:
        return Kind::Cruise;
    case 12:
        return Kind::AutoCruise;
    default:
        return std::nullopt;
    }
}

bool namesPreset(PtzAction::Kind kind)
{
    return kind == PtzAction::Kind::SetPreset || kind == PtzAction::Kind::GoPreset;
}

BadRequest unknownPtzCommand(int command)
{
    return {"unknown PTZ command " + std::to_string(command)};
}

Result ptzCamera(std::string_view bytes)
{
    ByteReader reader(bytes);
    const int command = reader.u8();
    const int speed = std::clamp<int>(reader.u8(), 1, 8);
    reader.u16();
    const auto channel = channelNumber(reader);
    const int preset = reader.u8();
    if (!channel)
        return noSuchChannel;
    if (const auto towards = cameraDirection(command))
        return moveOf(*channel, *towards, speed);
    const auto kind = cameraAction(command);
    if (!kind)
        return unknownPtzCommand(command);
    if (namesPreset(*kind) && preset == 0)
        return badValue("preset", preset);
    return PtzAction{*channel, *kind, preset, speed};
}

// Recorders know two presets, each with commands of its own.
Result ptzRecorder(std::string_view bytes)
{
    ByteReader reader(bytes);
    const int command = reader.u8();
    const int speed = std::clamp<int>(reader.u8(), 1, 8);
    reader.take(3);
    const int channel = reader.u8();
    if (channel >= maxLiveChannels)
        return noSuchChannel;
    if (const auto towards = recorderDirection(command))
        return moveOf(channel, *towards, speed);
    const auto kind = recorderAction(command);
    if (!kind)
        return unknownPtzCommand(command);
    const int preset = !namesPreset(*kind) ? 0 : command % 2 == 1 ? 1 : 2;
    return PtzAction{channel, *kind, preset, speed};
}

// Six decimal numbers joined by '-', without padding.
Result setTime(std::string_view bytes)
{
    std::array<int, 6> numbers{};
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto [next, error] = std::from_chars(at, end, numbers[i]);
        const bool last = i + 1 == numbers.size();
        const bool joined = last ? next == end : next != end && *next == '-';
        if (error != std::errc{} || *at == '-' || !joined)
            return bad("a time in an unknown form");
        at = last ? end : next + 1;
    }
    const DeviceTime local{numbers[0], numbers[1], numbers[2], numbers[3], numbers[4], numbers[5]};
    if (!isRealTime(local))
        return bad("a time that does not exist");
    return SetTime{local};
}

Result rotate(std::string_view bytes)
{
    ByteReader reader(bytes);
    const std::uint32_t mode = reader.u32();
    if (mode == 10)
        return GetRotate{};
    if (mode > 3)
        return badValue("rotate mode", mode);
    return Rotate{static_cast<int>(mode)};
}

Result setTimeZone(std::string_view bytes)
{
    return SetTimeZone{std::string(bytes)};
}

Result setSmartMode(std::string_view bytes)
{
    if (bytes[0] != '0' && bytes[0] != '1')
        return bad("an unknown smart mode");
    return SetSmartMode{bytes[0] - '0'};
}

struct Form
{
    std::uint32_t type;
    std::size_t smallest;
    std::size_t largest;
    Result (*decode)(std::string_view bytes);
};

const Form forms[] = {
    {MsgVideoPrepare, 2, 2, plain<VideoPrepare>},
    {MsgVideoStart, 8, 8, channelOnly<VideoStart>},
    {MsgVideoStop, 8, 8, channelOnly<VideoStop>},
    {MsgAudioStart, 4, 4, plain<AudioStart>},
    {MsgAudioStop, 4, 4, plain<AudioStop>},
    {MsgSetRecordMode, 12, 12, setRecordMode},
    {MsgGetRecordMode, 12, 12, plain<GetRecordMode>},
    {MsgListRecords, 24, 24, listRecords},
    {MsgPlayControl, 24, 24, playControl},
    {MsgSetQuality, 8, 8, setQuality},
    {MsgGetQuality, 8, 8, channelOnly<GetQuality>},
    {MsgSetSensitivity, 8, 8, setSensitivity},
    {MsgGetSensitivity, 4, 4, plain<GetSensitivity>},
    {MsgSetPassword, 64, 64, setPassword},
    {MsgSetReplayTime, 20, 20, setReplayTime},
    {MsgListWifi, 4, 4, plain<ListWifi>},
    {MsgSetWifi, 76, 76, setWifi},
    {MsgGetWifi, 4, 4, plain<GetWifi>},
    {MsgSpeakerStart, 8, 8, speaker<SpeakerStart>},
    {MsgSpeakerStop, 8, 8, speaker<SpeakerStop>},
    {MsgPtzRecorder, 8, 8, ptzRecorder},
    {MsgPtzCamera, 12, 12, ptzCamera},
    {MsgGetPtz, 8, 8, plain<GetPtz>},
    {MsgGetVersion, 64, 64, plain<GetVersion>},
    {MsgSetTime, 14, 19, setTime},
    {MsgRotate, 8, 8, rotate},
    {MsgSetTimeZone, 1, 64, setTimeZone},
    {MsgSetSmartMode, 1, 1, setSmartMode},
    {MsgSmartMode, 4, 4, plain<GetSmartMode>},
};

} // namespace

std::int64_t secondsSince1970(const DeviceTime& time)
{
    std::int64_t days = 0;
    for (int year = 1970; year < time.year; ++year)
        days += isLeapYear(year) ? 366 : 365;
    for (int month = 1; month < time.month; ++month)
        days += daysOfMonth(time.year, month);
    days += time.day - 1;
    return ((days * 24 + time.hour) * 60 + time.minute) * 60 + time.second;
}

std::variant<Request, BadRequest> decodeRequest(std::uint32_t type, std::string_view bytes)
{
    const auto form = std::find_if(std::begin(forms), std::end(forms),
        [type](const Form& candidate) { return candidate.type == type; });
    if (form == std::end(forms))
        return bad("unknown message type " + std::to_string(type));
    if (bytes.size() < form->smallest || bytes.size() > form->largest)
        return bad(
            "message " + std::to_string(type) + " of wrong size " + std::to_string(bytes.size()));
    auto decoded = form->decode(bytes);
    if (const auto* reason = std::get_if<BadRequest>(&decoded))
        return bad("message " + std::to_string(type) + ": " + reason->reason);
    return decoded;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

// The requests that a client sends on the control channel of an AV channel. Numbers are little
// endian and sizes exact; bytes that no field names are not looked at.

// Type numbers of requests and answers.
enum MessageType : std::uint32_t {
    MsgVideoPrepare = 255,
    MsgVideoStart = 511,
    MsgVideoStop = 767,
    MsgAudioStart = 768,
    MsgAudioStop = 769,
    MsgSetRecordMode = 784,
    MsgSetRecordModeAnswer = 785,
    MsgGetRecordMode = 786,
    MsgGetRecordModeAnswer = 787,
    MsgListRecords = 792,
    MsgListRecordsAnswer = 793,
    MsgPlayControl = 794,
    MsgSetQuality = 800,
    MsgSetQualityAnswer = 801,
    MsgGetQuality = 802,
    MsgGetQualityAnswer = 803,
    MsgSetSensitivity = 804,
    MsgSetSensitivityAnswer = 805,
    MsgGetSensitivity = 806,
    MsgGetSensitivityAnswer = 807,
    MsgSetPassword = 818,
    MsgSetPasswordAnswer = 819,
    MsgSetReplayTime = 828,
    MsgSetReplayTimeAnswer = 829,
    MsgListWifi = 832,
    MsgListWifiAnswer = 833,
    MsgSetWifi = 834,
    MsgSetWifiAnswer = 835,
    MsgGetWifi = 836,
    MsgGetWifiAnswer = 837,
    MsgSpeakerStart = 848,
    MsgSpeakerStop = 849,
    MsgPtzRecorder = 4097,
    MsgPtzCamera = 4114,
    MsgGetPtz = 4353,
    MsgGetPtzAnswer = 4354,
    MsgGetVersion = 13083,
    MsgGetVersionAnswer = 13084,
    MsgSetTime = 13086,
    MsgRotate = 13088,
    MsgRotateAnswer = 13089,
    MsgSetTimeZone = 13102,
    MsgSetTimeZoneAnswer = 13103,
    MsgSetSmartMode = 41253,
    // As a request it asks for the mode, as an answer it tells how a change of it went.
    MsgSmartMode = 41254,
    MsgGetSmartModeAnswer = 41255,
};

// A day and time of day; UTC, except in SetTime.
struct DeviceTime
{
    int year = 0;
    int month = 0; // 1 to 12
    int day = 0; // 1 to 31
    int hour = 0;
    int minute = 0;
    int second = 0;
};

// Seconds since 1970 of `time`, taken as UTC.
std::int64_t secondsSince1970(const DeviceTime& time);

// clang-format off
struct VideoPrepare {};
struct VideoStart { int channel; };
struct VideoStop { int channel; };
struct AudioStart {};
struct AudioStop {};
struct SetRecordMode { int channel; int mode; }; // 0 off, 1 always, 2 on motion
struct GetRecordMode {};
struct ListRecords { int channel; DeviceTime from; DeviceTime to; };
struct PlayControl { int channel; int command; DeviceTime time; int speed; };
struct SetQuality { int channel; bool high; };
struct GetQuality { int channel; };
struct SetSensitivity { int percent; }; // 25, 50, 75 or 100
struct GetSensitivity {};
struct SetPassword { std::string from; std::string to; }; // UTF-8
struct SetReplayTime { int channel; DeviceTime time; int seconds; };
struct ListWifi {};
struct SetWifi { std::string name; std::string password; }; // bytes as they came, 32 at most
struct GetWifi {};
struct SpeakerStart { int speechChannel; };
struct SpeakerStop { int speechChannel; };
struct GetPtz {};
struct GetVersion {};
struct SetTime { DeviceTime local; }; // in the device's zone
struct Rotate { int mode; }; // 0 upright, 1 mirrored, 2 flipped, 3 turned by 180 degrees
struct GetRotate {};
struct SetTimeZone { std::string zone; };
struct SetSmartMode { int mode; }; // 0 people, 1 motion
struct GetSmartMode {};
// clang-format on

struct PtzMove
{
    int channel;
    // Each -1, 0 or 1. A zero leaves that axis still.
    int pan;
    int tilt;
    int zoom;
    int focus;
    int iris;
    int speed; // 1 to 8
};

struct PtzAction
{
    enum class Kind { Stop, SetPreset, GoPreset, Cruise, AutoCruise };

    int channel;
    Kind kind;
    int preset; // 1 to 255, for the two that name one
    int speed; // 1 to 8
};

using Request = std::variant<VideoPrepare, VideoStart, VideoStop, AudioStart, AudioStop,
    SetRecordMode, GetRecordMode, ListRecords, PlayControl, SetQuality, GetQuality, SetSensitivity,
    GetSensitivity, SetPassword, SetReplayTime, ListWifi, SetWifi, GetWifi, SpeakerStart,
    SpeakerStop, PtzMove, PtzAction, GetPtz, GetVersion, SetTime, Rotate, GetRotate, SetTimeZone,
    SetSmartMode, GetSmartMode>;

// Why bytes are no request; a text for the log.
struct BadRequest
{
    std::string reason;
};

// Pure.
std::variant<Request, BadRequest> decodeRequest(std::uint32_t type, std::string_view bytes);

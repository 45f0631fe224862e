// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtEndian>

#include <array>
#include <cstddef>
#include <type_traits>

// The IO-control messages between client and device: a type number, and a packed block without a
// header of its own. What no field names is sent as zero and not read. messagecodec.h fills and
// reads these structures.

enum IoctrlType : unsigned {
    IOCTRL_VIDEO_PREPARE = 0xFF,
    IOCTRL_VIDEO_START = 0x1FF,
    IOCTRL_VIDEO_STOP = 0x2FF,
    IOCTRL_AUDIO_START = 0x300,
    IOCTRL_AUDIO_STOP = 0x301,
    IOCTRL_SET_RECORD_MODE = 0x310,
    IOCTRL_SET_RECORD_MODE_RESP = 0x311,
    IOCTRL_GET_RECORD_MODE = 0x312,
    IOCTRL_GET_RECORD_MODE_RESP = 0x313,
    IOCTRL_LIST_RECORDS = 0x318,
    IOCTRL_LIST_RECORDS_RESP = 0x319,
    IOCTRL_PLAY_CONTROL = 0x31A,
    IOCTRL_PLAY_CONTROL_RESP = 0x31B,
    IOCTRL_SET_QUALITY = 0x320,
    IOCTRL_SET_QUALITY_RESP = 0x321,
    IOCTRL_GET_QUALITY = 0x322,
    IOCTRL_GET_QUALITY_RESP = 0x323,
    IOCTRL_SET_SENSITIVITY = 0x324,
    IOCTRL_SET_SENSITIVITY_RESP = 0x325,
    IOCTRL_GET_SENSITIVITY = 0x326,
    IOCTRL_GET_SENSITIVITY_RESP = 0x327,
    IOCTRL_SET_PASSWORD = 0x332,
    IOCTRL_SET_PASSWORD_RESP = 0x333,
    IOCTRL_SET_REPLAY_TIME = 0x33C,
    IOCTRL_SET_REPLAY_TIME_RESP = 0x33D,
    IOCTRL_LIST_WIFI = 0x340,
    IOCTRL_LIST_WIFI_RESP = 0x341,
    IOCTRL_SET_WIFI = 0x342,
    IOCTRL_SET_WIFI_RESP = 0x343,
    IOCTRL_GET_WIFI = 0x344,
    IOCTRL_GET_WIFI_RESP = 0x345,
    IOCTRL_SPEAKER_START = 0x350,
    IOCTRL_SPEAKER_STOP = 0x351,
    IOCTRL_REPLAY_BUSY = 0x701,
    IOCTRL_PTZ_IPC = 0x1001,
    IOCTRL_PTZ_DVR = 0x1012,
    IOCTRL_GET_PTZ = 0x1101,
    IOCTRL_GET_PTZ_RESP = 0x1102,
    IOCTRL_GET_VERSION = 0x331B,
    IOCTRL_GET_VERSION_RESP = 0x331C,
    IOCTRL_SET_TIME = 0x331E,
    IOCTRL_ROTATE = 0x3320,
    IOCTRL_ROTATE_RESP = 0x3321,
    IOCTRL_SET_TIME_ZONE = 0x332E,
    IOCTRL_SET_TIME_ZONE_RESP = 0x332F,
    IOCTRL_SET_SMART_MODE = 0xA125,
    IOCTRL_SMART_MODE = 0xA126, // sent: which mode; received: the outcome of a set
    IOCTRL_GET_SMART_MODE_RESP = 0xA127,
};

// The command word of IOCTRL_PLAY_CONTROL and its answer.
enum RecordPlayCommand : unsigned {
    AVIOCTRL_RECORD_PLAY_PAUSE = 0,
    AVIOCTRL_RECORD_PLAY_STOP = 1,
    AVIOCTRL_RECORD_PLAY_FORWARD = 4, // of a running replay
    AVIOCTRL_RECORD_PLAY_BACKWARD = 5,
    AVIOCTRL_RECORD_PLAY_END = 7, // from the device only: the recording has ended
    AVIOCTRL_RECORD_PLAY_START = 16,
};

constexpr int ioctrlBufferBytes = 1024; // a receive buffer, zero filled before each call
constexpr int speechChannelId = 31; // of talk-back, on every device and channel
constexpr int askRotateMode = 10; // in place of a mode to set

// A number as it stands in a message, little endian. Alignment 1, so that structures of it are
// packed by themselves and may lie anywhere in a buffer.
template <typename T>
class WireNumber final
{
public:
    WireNumber() = default;
    WireNumber(T value) { *this = value; }

    WireNumber& operator=(T value)
    {
        qToLittleEndian(value, bytes_.data());
        return *this;
    }
    operator T() const { return qFromLittleEndian<T>(bytes_.data()); }

private:
    std::array<uchar, sizeof(T)> bytes_{};
};

// A point in time, UTC.
struct DeviceTime
{
    WireNumber<quint16> year;
    quint8 month = 0; // 1 to 12
    quint8 day = 0; // 1 to 31
    quint8 weekDay = 0; // neither written nor read
    quint8 hour = 0;
    quint8 minute = 0;
    quint8 second = 0;
};

// IOCTRL_VIDEO_START, IOCTRL_VIDEO_STOP, IOCTRL_GET_QUALITY, IOCTRL_SPEAKER_START and _STOP.
struct ChannelRequest
{
    WireNumber<quint32> channel;
    WireNumber<quint32> reserved;
};

struct SetQualityRequest
{
    WireNumber<quint32> channel;
    WireNumber<quint32> quality; // 1 high, 0 low
};

struct SetRecordModeRequest
{
    WireNumber<quint32> channel;
    WireNumber<qint32> recordType; // 0 to 2
    WireNumber<quint32> reserved;
};

struct SetSensitivityRequest
{
    WireNumber<quint32> channel; // 0, always
    WireNumber<qint32> sensitivity; // 25, 50, 75 or 100
};

struct SetPasswordRequest
{
    std::array<char, 32> oldPassword{}; // Latin-1, zero filled
    std::array<char, 32> newPassword{};
};

struct SetWifiRequest
{
    std::array<char, 32> ssid{}; // Latin-1, zero filled
    std::array<char, 32> password{};
    std::array<quint8, 12> reserved{};
};

struct ListRecordsRequest
{
    WireNumber<quint32> channel;
    DeviceTime start;
    DeviceTime end;
    std::array<quint8, 4> reserved{};
};

struct PlayControlRequest
{
    WireNumber<quint32> channel;
    WireNumber<quint32> command; // RecordPlayCommand
    WireNumber<quint32> parameter;
    DeviceTime time; // of playReplay's commands
    quint8 channelByte = 0; // the channel again, but 0 in a stop
    quint8 reserved = 0;
    quint8 speed = 0; // PLAY_SPEED, of playReplay's commands
    quint8 reserved2 = 0;
};

struct SetReplayTimeRequest
{
    WireNumber<quint32> channel;
    DeviceTime time; // base of the offset
    WireNumber<qint32> seconds; // offset
    WireNumber<quint32> reserved;
};

struct RotateRequest
{
    WireNumber<qint32> mode; // 0 to 3, or askRotateMode
    WireNumber<quint32> reserved;
};

// Body of IOCTRL_PTZ_IPC.
struct SMsgAVIoctrlIPCPtzCmd
{
    quint8 control = 0; // command
    quint8 speed = 0; // or point
    std::array<quint8, 3> reserved{};
    quint8 channel = 0;
    std::array<quint8, 2> reserved2{};
};

// Body of IOCTRL_PTZ_DVR.
struct SMsgAVIoctrlPtzCmd
{
    quint8 control = 0; // command
    quint8 speed = 0; // or point
    std::array<quint8, 2> reserved{};
    WireNumber<quint32> channel;
    quint8 point = 0; // plus one
    std::array<quint8, 3> reserved2{};
};

struct SMsgAVIoctrlGetRecordResq
{
    WireNumber<quint32> channel; // not read
    WireNumber<qint32> recordType; // 0 to 2
};

// Head of IOCTRL_LIST_RECORDS_RESP, one of the messages that together answer a request.
struct RecordListHead
{
    WireNumber<quint32> channel; // not read
    WireNumber<quint32> total; // 0: the day has none
    quint8 packet = 0; // not read
    quint8 endFlag = 0; // not 0 in the last message
    quint8 count = 0; // entries that follow
    quint8 reserved = 0;
};

struct RecordListEntry
{
    DeviceTime start;
    quint8 eventType = 0; // passed on as a number
    std::array<quint8, 3> reserved{};
    WireNumber<quint32> duration; // seconds
};

struct PlayControlAnswer
{
    WireNumber<quint32> command; // RecordPlayCommand
    quint8 channelId = 0; // of a start: where the device sends the replay stream
};

struct GetQualityAnswer
{
    WireNumber<quint32> channel; // not read
    quint8 quality = 0; // not 0: high
};

struct SMsgAVIoctrlGetMotionDetectResp
{
    WireNumber<quint32> channel; // not read
    WireNumber<qint32> sensitivity; // 0 to 100
};

struct SWifiAp
{
    std::array<char, 32> ssid{}; // zero filled; may fill the field: read with textOf()
    std::array<quint8, 4> reserved{}; // not read
};

struct SMsgAVIoctrlListWifiApResp
{
    WireNumber<qint32> count; // of `aps`; never more than the message brought
    std::array<SWifiAp, 28> aps{}; // as many as a message can hold
};

struct SMsgAVIoctrlGetWifiResp
{
    std::array<char, 32> ssid{}; // zero filled; may fill the field: read with textOf()
    std::array<char, 32> password{};
};

struct ReplayBusyNotice
{
    WireNumber<quint32> reserved;
    quint8 reason = 0; // 1: a second replay at the same time is refused
};

struct DMS_NET_MOTION_CFG
{
    quint8 mode = 0; // 0 or 1
};

// True for a structure of the wire of this size.
template <class Body>
constexpr bool isPacked(std::size_t size)
{
    return sizeof(Body) == size && alignof(Body) == 1
        && std::is_standard_layout_v<Body> && std::is_trivially_copyable_v<Body>;
}

static_assert(isPacked<DeviceTime>(8));
static_assert(offsetof(DeviceTime, month) == 2);
static_assert(offsetof(DeviceTime, day) == 3);
static_assert(offsetof(DeviceTime, weekDay) == 4);
static_assert(offsetof(DeviceTime, hour) == 5);
static_assert(offsetof(DeviceTime, minute) == 6);
static_assert(offsetof(DeviceTime, second) == 7);
static_assert(isPacked<ChannelRequest>(8));
static_assert(isPacked<SetQualityRequest>(8));
static_assert(offsetof(SetQualityRequest, quality) == 4);
static_assert(isPacked<SetRecordModeRequest>(12));
static_assert(offsetof(SetRecordModeRequest, recordType) == 4);
static_assert(isPacked<SetSensitivityRequest>(8));
static_assert(offsetof(SetSensitivityRequest, sensitivity) == 4);
static_assert(isPacked<SetPasswordRequest>(64));
static_assert(offsetof(SetPasswordRequest, newPassword) == 32);
static_assert(isPacked<SetWifiRequest>(76));
static_assert(offsetof(SetWifiRequest, password) == 32);
static_assert(isPacked<ListRecordsRequest>(24));
static_assert(offsetof(ListRecordsRequest, start) == 4);
static_assert(offsetof(ListRecordsRequest, end) == 12);
static_assert(isPacked<PlayControlRequest>(24));
static_assert(offsetof(PlayControlRequest, command) == 4);
static_assert(offsetof(PlayControlRequest, parameter) == 8);
static_assert(offsetof(PlayControlRequest, time) == 12);
static_assert(offsetof(PlayControlRequest, channelByte) == 20);
static_assert(offsetof(PlayControlRequest, speed) == 22);
static_assert(isPacked<SetReplayTimeRequest>(20));
static_assert(offsetof(SetReplayTimeRequest, time) == 4);
static_assert(offsetof(SetReplayTimeRequest, seconds) == 12);
static_assert(isPacked<RotateRequest>(8));
static_assert(isPacked<SMsgAVIoctrlIPCPtzCmd>(8));
static_assert(offsetof(SMsgAVIoctrlIPCPtzCmd, speed) == 1);
static_assert(offsetof(SMsgAVIoctrlIPCPtzCmd, channel) == 5);
static_assert(isPacked<SMsgAVIoctrlPtzCmd>(12));
static_assert(offsetof(SMsgAVIoctrlPtzCmd, speed) == 1);
static_assert(offsetof(SMsgAVIoctrlPtzCmd, channel) == 4);
static_assert(offsetof(SMsgAVIoctrlPtzCmd, point) == 8);
static_assert(isPacked<SMsgAVIoctrlGetRecordResq>(8));
static_assert(offsetof(SMsgAVIoctrlGetRecordResq, recordType) == 4);
static_assert(isPacked<RecordListHead>(12));
static_assert(offsetof(RecordListHead, total) == 4);
static_assert(offsetof(RecordListHead, endFlag) == 9);
static_assert(offsetof(RecordListHead, count) == 10);
static_assert(isPacked<RecordListEntry>(16));
static_assert(offsetof(RecordListEntry, eventType) == 8);
static_assert(offsetof(RecordListEntry, duration) == 12);
static_assert(isPacked<PlayControlAnswer>(5));
static_assert(offsetof(PlayControlAnswer, channelId) == 4);
static_assert(isPacked<GetQualityAnswer>(5));
static_assert(offsetof(GetQualityAnswer, quality) == 4);
static_assert(isPacked<SMsgAVIoctrlGetMotionDetectResp>(8));
static_assert(offsetof(SMsgAVIoctrlGetMotionDetectResp, sensitivity) == 4);
static_assert(isPacked<SWifiAp>(36));
static_assert(isPacked<SMsgAVIoctrlListWifiApResp>(1012));
static_assert(offsetof(SMsgAVIoctrlListWifiApResp, aps) == 4);
static_assert(isPacked<SMsgAVIoctrlGetWifiResp>(64));
static_assert(offsetof(SMsgAVIoctrlGetWifiResp, password) == 32);
static_assert(isPacked<ReplayBusyNotice>(5));
static_assert(offsetof(ReplayBusyNotice, reason) == 4);
static_assert(isPacked<DMS_NET_MOTION_CFG>(1));

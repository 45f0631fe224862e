// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/channelhold.h"

#include <QDateTime>
#include <QEvent>

#include <array>
#include <cstdint>
#include <memory>

struct IOTC_SearchRecord;

// Results of the tasks of `Connect`, `IoConnect` and `GetMsg`. Numbers 1000 to 1043 are plain
// literals, shared with mediaevents.h, and unique by hand; a test compares them all. `result` is
// what the library call returned, negative for failure. `channel` keeps its device alive.
//
// Most carry a channel and a result, some one value more, so they are families.

template <int Number>
class ChannelEvent final : public QEvent
{
public:
    static constexpr Type number = static_cast<Type>(Number);

    ChannelEvent(Channel* channel, int result)
        : QEvent(number)
        , channel(channel)
        , result(result)
    {
    }

    ChannelHold channel;
    int result;
};

template <int Number, typename Value>
class ChannelValueEvent final : public QEvent
{
public:
    static constexpr Type number = static_cast<Type>(Number);

    ChannelValueEvent(Channel* channel, int result, Value value)
        : QEvent(number)
        , channel(channel)
        , result(result)
        , value(value)
    {
    }

    ChannelHold channel;
    int result;
    Value value; // told beside each alias
};

template <int Number>
class ResultEvent final : public QEvent
{
public:
    static constexpr Type number = static_cast<Type>(Number);

    explicit ResultEvent(int result)
        : QEvent(number)
        , result(result)
    {
    }

    int result;
};

using ReplayRequest = std::array<std::uint8_t, 24>; // the playback control message as it was sent

// To Connect.
using ProgressEvent_Connect = ChannelValueEvent<1000, int>; // channel 0; session id
using ProgressEvent_initTutk = ResultEvent<1043>;

class ProgressEvent_GetAvIndex final : public QEvent
{
public:
    static constexpr Type number = static_cast<Type>(1005);

    ProgressEvent_GetAvIndex(Channel* channel, int avIndex, bool isLive)
        : QEvent(number)
        , channel(channel)
        , avIndex(avIndex)
        , isLive(isLive)
    {
    }

    ChannelHold channel;
    int avIndex; // or the negative result
    bool isLive;
};

// To GetMsg. The buffer is freed with the event unless the receiver moves it out.
class ProgressEvent_getMsg final : public QEvent
{
public:
    static constexpr Type number = static_cast<Type>(1012);

    ProgressEvent_getMsg(
        Channel* channel, int result, unsigned ioType, std::unique_ptr<char[]> buffer, bool isLive)
        : QEvent(number)
        , channel(channel)
        , result(result)
        , ioType(ioType)
        , buffer(std::move(buffer))
        , isLive(isLive)
    {
    }

    ChannelHold channel;
    int result;
    unsigned ioType;
    std::unique_ptr<char[]> buffer;
    bool isLive;
};

// To IoConnect.
class ProgressEvent_LanSearch final : public QEvent
{
public:
    static constexpr Type number = static_cast<Type>(1001);

    ProgressEvent_LanSearch(int count, std::shared_ptr<const IOTC_SearchRecord> records)
        : QEvent(number)
        , count(count)
        , records(std::move(records))
    {
    }

    int count; // or the negative result
    std::shared_ptr<const IOTC_SearchRecord> records; // first of `count`
};

class ProgressEvent_stopReplay final : public QEvent
{
public:
    static constexpr Type number = static_cast<Type>(1008);

    ProgressEvent_stopReplay(Channel* channel, int result, bool restart, const QDateTime& time)
        : QEvent(number)
        , channel(channel)
        , result(result)
        , restart(restart)
        , time(time)
    {
    }

    ChannelHold channel;
    int result;
    bool restart;
    QDateTime time;
};

using ProgressEvent_StopStream = ChannelValueEvent<1002, bool>; // restart
using ProgressEvent_StartStream = ChannelEvent<1003>;
using ProgressEvent_getReplayVideoTime = ChannelEvent<1004>;
using ProgressEvent_playReplay = ChannelValueEvent<1006, ReplayRequest>; // what was sent
using ProgressEvent_playReplayIo = ChannelEvent<1007>; // handled, posted by nobody
using ProgressEvent_changeQuality = ChannelValueEvent<1009, bool>; // the quality asked for
using ProgressEvent_audioControl = ChannelValueEvent<1010, bool>; // on
using ProgressEvent_ptz = ChannelValueEvent<1011, int>; // command
using ProgressEvent_audioSendControl = ChannelValueEvent<1013, bool>; // on
using ProgressEvent_audioSendServiceStart = ChannelEvent<1014>;
using ProgressEvent_audioSendSpeechStart = ChannelEvent<1015>;
using ProgressEvent_LanSearchStart = ResultEvent<1016>;
using ProgressEvent_getChannelVersion = ChannelEvent<1017>;
using ProgressEvent_pauseReplay = ChannelValueEvent<1022, bool>; // stop
using ProgressEvent_stopPauseReplay = ChannelEvent<1023>;
using ProgressEvent_setTime = ChannelEvent<1024>;
using ProgressEvent_setTimeZone = ChannelEvent<1025>;
using ProgressEvent_changeReplayTime = ChannelEvent<1027>;
using ProgressEvent_setWifi = ChannelEvent<1028>;
using ProgressEvent_getWifiList = ChannelEvent<1030>;
using ProgressEvent_setPassword = ChannelEvent<1032>;
using ProgressEvent_getWifiConfig = ChannelEvent<1033>;
using ProgressEvent_getSmartSensitivity = ChannelEvent<1034>;
using ProgressEvent_getSmartMode = ChannelEvent<1035>;
using ProgressEvent_getRotateMode = ChannelEvent<1036>;
using ProgressEvent_getRecordMode = ChannelEvent<1037>;
using ProgressEvent_setSmartSensitivity = ChannelEvent<1038>;
using ProgressEvent_sendSmartMode = ChannelEvent<1039>;
using ProgressEvent_sendRotateMode = ChannelEvent<1040>;
using ProgressEvent_sendRecordMode = ChannelEvent<1041>;
using ProgressEvent_getQuality = ChannelEvent<1042>;

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/channelhold.h"
#include "model/frameinfo.h"

#include <QEvent>
#include <QString>

#include <cstdint>
#include <memory>
#include <utility>

// Results of the tasks of `Stream`, `Video` and `Audio`. The numbers continue those
// of progressevents.h. A buffer is freed with its event unless the receiver moves it out.

template <int Number>
class FrameEvent final : public QEvent
{
public:
    static constexpr Type number = static_cast<Type>(Number);

    FrameEvent(int result, std::unique_ptr<char[]> buffer, const MyFrameInfo_t& info)
        : QEvent(number)
        , result(result)
        , buffer(std::move(buffer))
        , info(info)
    {
    }

    int result; // bytes in `buffer`, or the negative result
    std::unique_ptr<char[]> buffer; // null when there is no frame
    MyFrameInfo_t info;
};

using DecodeEvent_getVideo = FrameEvent<1018>;
using DecodeEvent_getAudio = FrameEvent<1019>;

class VideoEvent_decoede final : public QEvent
{
public:
    static constexpr Type number = static_cast<Type>(1020);

    VideoEvent_decoede(
        Channel* channel, bool isLive, int result, int width, int height, unsigned timestamp)
        : QEvent(number)
        , channel(channel)
        , isLive(isLive)
        , result(result)
        , width(width)
        , height(height)
        , timestamp(timestamp)
    {
    }

    ChannelHold channel;
    bool isLive;
    int result;
    int width; // pixels
    int height;
    unsigned timestamp; // of the frame information
};

class AudioEvent_decoede final : public QEvent
{
public:
    static constexpr Type number = static_cast<Type>(1021);

    AudioEvent_decoede(
        Channel* channel, bool isLive, std::unique_ptr<char[]> samples, int result, int size)
        : QEvent(number)
        , channel(channel)
        , isLive(isLive)
        , samples(std::move(samples))
        , result(result)
        , size(size)
    {
    }

    ChannelHold channel;
    bool isLive;
    std::unique_ptr<char[]> samples;
    int result;
    int size; // bytes in `samples`
};

// Part of the numbering, posted by nobody and handled by nobody.
class VideoEvent_icomming final : public QEvent
{
public:
    static constexpr Type number = static_cast<Type>(1026);

    VideoEvent_icomming(Channel* channel, bool isLive)
        : QEvent(number)
        , channel(channel)
        , isLive(isLive)
    {
    }

    ChannelHold channel;
    bool isLive;
};

class VideoEvent_screenShot final : public QEvent
{
public:
    static constexpr Type number = static_cast<Type>(1031);

    VideoEvent_screenShot(Channel* channel, bool isPlaceholder, const QString& path)
        : QEvent(number)
        , channel(channel)
        , isPlaceholder(isPlaceholder)
        , path(path)
    {
    }

    ChannelHold channel;
    bool isPlaceholder;
    QString path;
};

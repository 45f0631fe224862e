// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/messages.h"
#include "model/playspeed.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <algorithm>
#include <cstring>

// Fills and reads the structures of messages.h. Pure functions, any thread. Texts are Latin-1, cut
// to what their field holds; times are sent in UTC, whatever zone they come in.

// The message as the library's argument.
template <class Body>
QByteArray bytesOf(const Body& body)
{
    static_assert(isPacked<Body>(sizeof(Body)));
    return QByteArray(reinterpret_cast<const char*>(&body), sizeof(Body));
}

DeviceTime deviceTime(const QDateTime& time); // zeros for an invalid time
// UTC; invalid where there is no such day or time of day.
QDateTime dateTimeOf(const DeviceTime& time);

ChannelRequest channelRequest(int channel);
SetQualityRequest setQualityRequest(int channel, bool high);
SetRecordModeRequest setRecordModeRequest(int channel, int recordType);
SetSensitivityRequest setSensitivityRequest(int sensitivity);
SetPasswordRequest setPasswordRequest(const QString& oldPassword, const QString& newPassword);
SetWifiRequest setWifiRequest(const QString& ssid, const QString& password);
// The records of a day of this machine's zone, from its first second to its last.
ListRecordsRequest listRecordsRequest(int channel, const QDate& day);
// Pause, resume and stop.
PlayControlRequest playControlRequest(int channel, RecordPlayCommand command);
// Start, forward and backward, which say from where and how fast.
PlayControlRequest playControlRequest(
    int channel, RecordPlayCommand command, const QDateTime& time, PLAY_SPEED speed);
SetReplayTimeRequest setReplayTimeRequest(int channel, const QDateTime& time, int seconds);
RotateRequest rotateRequest(int mode);
// The date and time as they stand, in whatever zone, as "2024-3-9-7-5-2".
QByteArray setTimeText(const QDateTime& time);
// The first digit of the mode.
QByteArray smartModeText(int mode);

// A received message: a buffer of ioctrlBufferBytes, zero behind the `size` bytes that came, so that
// fields of a short message read as zero.
template <class Body>
Body bodyOf(const char* buffer)
{
    static_assert(isPacked<Body>(sizeof(Body)) && sizeof(Body) <= ioctrlBufferBytes);
    Body body;
    std::memcpy(&body, buffer, sizeof(Body));
    return body;
}

// The text of a field, up to a zero or its end.
template <std::size_t Size>
QString textOf(const std::array<char, Size>& field)
{
    const auto end = std::find(field.begin(), field.end(), '\0');
    return QString::fromLatin1(field.data(), static_cast<int>(end - field.begin()));
}

// The word at the front of most answers.
int statusWord(const char* buffer);
// `count` is made to fit the bytes that came.
SMsgAVIoctrlListWifiApResp decodeWifiList(const char* buffer, int size);

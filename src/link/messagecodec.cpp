// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/messagecodec.h"

#include <QByteArrayList>

#include <algorithm>

namespace {

template <std::size_t Size>
void copyText(std::array<char, Size>& field, const QString& text)
{
    const QByteArray bytes = text.toLatin1().left(Size);
    std::copy(bytes.begin(), bytes.end(), field.begin());
}

quint8 byteOf(int value)
{
    return static_cast<quint8>(value);
}

} // namespace

DeviceTime deviceTime(const QDateTime& time)
{
    DeviceTime result;
    if (!time.isValid())
        return result;
    const QDateTime utc = time.toUTC();
    const QDate date = utc.date();
    result.year = static_cast<quint16>(date.year());
    result.month = byteOf(date.month());
    result.day = byteOf(date.day());
    result.hour = byteOf(utc.time().hour());
    result.minute = byteOf(utc.time().minute());
    result.second = byteOf(utc.time().second());
    return result;
}

QDateTime dateTimeOf(const DeviceTime& time)
{
    const QDate date(time.year, time.month, time.day);
    const QTime timeOfDay(time.hour, time.minute, time.second);
    // A QDateTime of a valid date makes midnight of an invalid time.
    return date.isValid() && timeOfDay.isValid() ? QDateTime(date, timeOfDay, Qt::UTC)
                                                 : QDateTime();
}

ChannelRequest channelRequest(int channel)
{
    ChannelRequest request;
    request.channel = static_cast<quint32>(channel);
    return request;
}

SetQualityRequest setQualityRequest(int channel, bool high)
{
    SetQualityRequest request;
    request.channel = static_cast<quint32>(channel);
    request.quality = high ? 1 : 0;
    return request;
}

SetRecordModeRequest setRecordModeRequest(int channel, int recordType)
{
    SetRecordModeRequest request;
    request.channel = static_cast<quint32>(channel);
    request.recordType = recordType;
    return request;
}

SetSensitivityRequest setSensitivityRequest(int sensitivity)
{
    SetSensitivityRequest request;
    request.sensitivity = sensitivity;
    return request;
}

SetPasswordRequest setPasswordRequest(const QString& oldPassword, const QString& newPassword)
{
    SetPasswordRequest request;
    copyText(request.oldPassword, oldPassword);
    copyText(request.newPassword, newPassword);
    return request;
}

SetWifiRequest setWifiRequest(const QString& ssid, const QString& password)
{
    SetWifiRequest request;
    copyText(request.ssid, ssid);
    copyText(request.password, password);
    return request;
}

ListRecordsRequest listRecordsRequest(int channel, const QDate& day)
{
    ListRecordsRequest request;
    request.channel = static_cast<quint32>(channel);
    request.start = deviceTime(day.startOfDay()); // not every day has a midnight
    request.end = deviceTime(QDateTime(day, QTime(23, 59, 59)));
    return request;
}

PlayControlRequest playControlRequest(int channel, RecordPlayCommand command)
{
    PlayControlRequest request;
    request.channel = static_cast<quint32>(channel);
    request.command = command;
    if (command != AVIOCTRL_RECORD_PLAY_STOP)
        request.channelByte = byteOf(channel);
    return request;
}

PlayControlRequest playControlRequest(
    int channel, RecordPlayCommand command, const QDateTime& time, PLAY_SPEED speed)
{
    PlayControlRequest request = playControlRequest(channel, command);
    request.time = deviceTime(time);
    request.speed = byteOf(speed);
    return request;
}

SetReplayTimeRequest setReplayTimeRequest(int channel, const QDateTime& time, int seconds)
{
    SetReplayTimeRequest request;
    request.channel = static_cast<quint32>(channel);
    request.time = deviceTime(time);
    request.seconds = seconds;
    return request;
}

RotateRequest rotateRequest(int mode)
{
    RotateRequest request;
    request.mode = mode;
    return request;
}

QByteArray setTimeText(const QDateTime& time)
{
    const QDate date = time.date();
    const QTime timeOfDay = time.time();
    QByteArrayList numbers;
    for (const int number : {date.year(), date.month(), date.day(), timeOfDay.hour(),
             timeOfDay.minute(), timeOfDay.second()})
        numbers.append(QByteArray::number(number));
    return numbers.join('-');
}

QByteArray smartModeText(int mode)
{
    return QByteArray::number(mode).left(1);
}

int statusWord(const char* buffer)
{
    return bodyOf<WireNumber<qint32>>(buffer);
}

SMsgAVIoctrlListWifiApResp decodeWifiList(const char* buffer, int size)
{
    auto list = bodyOf<SMsgAVIoctrlListWifiApResp>(buffer);
    constexpr int head = sizeof(list.count);
    constexpr int entry = sizeof(SWifiAp);
    const int received = std::clamp((size - head) / entry, 0, static_cast<int>(list.aps.size()));
    list.count = std::clamp(static_cast<int>(list.count), 0, received);
    return list;
}

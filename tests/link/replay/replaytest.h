// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/messages.h"
#include "localzone.h"
#include "model/channel.h"

#include <QByteArray>
#include <QDateTime>

// A message by its hex digits; the blanks between its fields are for the reader.
inline QByteArray wire(const char* digits)
{
    return QByteArray::fromHex(digits);
}

inline QDateTime localTime(int year, int month, int day, int hour, int minute, int second)
{
    return {QDate(year, month, day), QTime(hour, minute, second)};
}

// What the device has told as its version.
inline void setVersion(Channel* channel, const QByteArray& text)
{
    channel->setVersion(text.leftJustified(64, '\0').constData());
}

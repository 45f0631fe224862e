// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/recordlist.h"
#include "receivebuffer.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>

// Messages of a device's list of records, written byte by byte. Bytes that are not to be read have
// values all the same.

inline QByteArray littleEndian(quint32 number, int bytes)
{
    QByteArray out;
    for (int i = 0; i < bytes; ++i)
        out.append(static_cast<char>(number >> 8 * i & 0xff));
    return out;
}

// `time` is UTC, as "2024-03-09 07:05:02"; it need not exist.
inline QByteArray record(const char* time, quint32 seconds = 60, int eventType = 0)
{
    const QStringList numbers =
        QString::fromLatin1(time).split(QRegularExpression(QStringLiteral("[^0-9]")));
    const auto number = [&numbers](int i, int bytes) {
        return littleEndian(numbers.at(i).toUInt(), bytes);
    };
    const QByteArray weekDay(1, '\xf1');
    return number(0, 2) + number(1, 1) + number(2, 1) + weekDay + number(3, 1) + number(4, 1)
        + number(5, 1) + littleEndian(static_cast<quint32>(eventType), 1) + fromHex("f2 f3 f4")
        + littleEndian(seconds, 4);
}

inline QByteArray recordMessage(
    quint32 total, int endFlag, int count, const QList<QByteArray>& records)
{
    return fromHex("f5 f6 f7 f8") + littleEndian(total, 4) + fromHex("f9")
        + littleEndian(static_cast<quint32>(endFlag), 1)
        + littleEndian(static_cast<quint32>(count), 1) + fromHex("fa") + records.join();
}

// A message that says of itself what it is.
inline QByteArray recordMessage(const QList<QByteArray>& records, bool last = false)
{
    return recordMessage(100, last ? 1 : 0, records.size(), records);
}

// Later than all records of these tests that have a right to be.
inline QDateTime longAfter()
{
    return {QDate(2025, 1, 1), QTime(0, 0), Qt::UTC};
}

inline RecordList readRecords(const QByteArray& message, const QDateTime& now = longAfter())
{
    const ReceiveBuffer buffer(message);
    return decodeRecordList(buffer.data(), buffer.size(), now);
}

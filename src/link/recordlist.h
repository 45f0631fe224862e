// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>

// What one message of a device's list of records holds.
struct RecordList
{
    bool none = false; // the day has no records; nothing else is set
    bool last = false; // the list ends with this message
    // Time blocks: seconds since local midnight, length in seconds, start in seconds since 1970,
    // event type. A length can be negative, where a first record that began the day before ended
    // before midnight.
    QList<QList<int>> blocks;
};

// Reads a message of `size` bytes at the front of a receive buffer; no more entries than it has.
// Entries whose date is none, or lies more than a day after `now`, come from a wrong clock and are
// left out; a length of 0, or of more than a day, counts as ten minutes. Pure, but for the zone of
// this machine; any thread.
RecordList decodeRecordList(const char* buffer, int size, const QDateTime& now);

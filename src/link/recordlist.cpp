// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/recordlist.h"

#include "link/messagecodec.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int secondsPerDay = 86400;
constexpr int unknownLength = 600;

std::vector<RecordListEntry> entriesOf(const char* buffer, int size)
{
    constexpr int head = sizeof(RecordListHead);
    constexpr int entryBytes = sizeof(RecordListEntry);
    const int received = std::max(std::min(size, ioctrlBufferBytes) - head, 0) / entryBytes;
    const int count = std::min(received, int(bodyOf<RecordListHead>(buffer).count));
    std::vector<RecordListEntry> entries(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < entries.size(); ++i)
        entries[i] = bodyOf<RecordListEntry>(buffer + head + i * entryBytes);
    return entries;
}

int secondOfDay(const QDateTime& time)
{
    return QTime(0, 0).secsTo(time.time());
}

QDateTime localStart(const RecordListEntry& entry)
{
    return dateTimeOf(entry.start).toLocalTime();
}

int lengthOf(const RecordListEntry& entry)
{
    const quint32 length = entry.duration;
    return length < 1 || length > secondsPerDay ? unknownLength : static_cast<int>(length);
}

int sinceEpoch(const QDateTime& time)
{
    return static_cast<int>(time.toSecsSinceEpoch());
}

// A first record of the last hour, with an earlier time of day behind it, has begun the day before
// and runs over midnight: of it, this day has what lies behind.
bool beganTheDayBefore(const QDateTime& first, const RecordListEntry& next)
{
    const QDateTime second = localStart(next);
    return first.time().hour() == 23 && second.isValid() && second.time() < first.time();
}

QList<int> blockOf(const QDateTime& start, const RecordListEntry& entry)
{
    return {secondOfDay(start), lengthOf(entry), sinceEpoch(start), entry.eventType};
}

QList<int> blockFromMidnight(const QDateTime& start, const RecordListEntry& entry)
{
    const QDateTime dayEnd(start.date(), QTime(23, 59, 59));
    const int before = secondOfDay(dayEnd) - secondOfDay(start);
    return {0, lengthOf(entry) - before, sinceEpoch(dayEnd), entry.eventType};
}

} // namespace

RecordList decodeRecordList(const char* buffer, int size, const QDateTime& now)
{
    const auto head = bodyOf<RecordListHead>(buffer);
    RecordList list;
    list.none = head.total == 0U;
    if (list.none)
        return list;
    list.last = head.endFlag != 0;

    const std::vector<RecordListEntry> entries = entriesOf(buffer, size);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const QDateTime start = localStart(entries[i]);
        if (!start.isValid() || start.toSecsSinceEpoch() > now.toSecsSinceEpoch() + secondsPerDay)
            continue;
        const bool runsOver = i == 0 && entries.size() > 1 && beganTheDayBefore(start, entries[1]);
        list.blocks.append(
            runsOver ? blockFromMidnight(start, entries[i]) : blockOf(start, entries[i]));
    }
    return list;
}

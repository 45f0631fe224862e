// SPDX-License-Identifier: GPL-3.0-or-later
// What the client reads of a device's messages, whatever their type. An input is the time that it
// is, in seconds since 1970 in four bytes, little endian, and then the message.
#include "link/messagecodec.h"
#include "link/recordlist.h"
#include "require.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr int clockBytes = 4;
constexpr int headBytes = 12;
constexpr int entryBytes = 16;
constexpr int networkBytes = 36;
constexpr int mostNetworks = 28;
constexpr int textBytes = 32;
constexpr int secondsPerDay = 86400;

// The same on every machine, and one with summer time.
const bool zoneIsSet = qputenv("TZ", "America/New_York");

int byteAt(const char* bytes, int offset)
{
    return static_cast<unsigned char>(bytes[offset]);
}

quint32 wordAt(const char* bytes, int offset)
{
    return qFromLittleEndian<quint32>(bytes + offset);
}

// A text is what came of it, up to a zero.
void checkText(const std::array<char, textBytes>& text, const char* received)
{
    const QString read = textOf(text);
    REQUIRE(read == QString::fromLatin1(received, read.size()));
    REQUIRE(read.size() == textBytes || received[read.size()] == '\0');
}

void checkNetworks(const char* buffer, int size)
{
    const SMsgAVIoctrlListWifiApResp list = decodeWifiList(buffer, size);
    const int announced = statusWord(buffer);
    const int came = std::min(std::max(size - 4, 0) / networkBytes, mostNetworks);
    REQUIRE(list.count == std::max(std::min(announced, came), 0));
    const char* ssid = buffer + 4;
    for (const SWifiAp& ap : list.aps) {
        checkText(ap.ssid, ssid);
        ssid += networkBytes;
    }
}

void checkNetwork(const char* buffer)
{
    const SMsgAVIoctrlGetWifiResp config = bodyOf<SMsgAVIoctrlGetWifiResp>(buffer);
    checkText(config.ssid, buffer);
    checkText(config.password, buffer + textBytes);
}

QDateTime startOf(const char* entry)
{
    const QDate date(byteAt(entry, 0) + 256 * byteAt(entry, 1), byteAt(entry, 2), byteAt(entry, 3));
    const QTime time(byteAt(entry, 5), byteAt(entry, 6), byteAt(entry, 7));
    if (!date.isValid() || !time.isValid())
        return {};
    return QDateTime(date, time, Qt::UTC).toLocalTime();
}

bool isKept(const char* entry, qint64 now)
{
    const QDateTime start = startOf(entry);
    return start.isValid() && start.toSecsSinceEpoch() <= now + secondsPerDay;
}

int lengthOf(const char* entry)
{
    const quint32 length = wordAt(entry, 12);
    return length == 0 || length > secondsPerDay ? 600 : static_cast<int>(length);
}

void checkBlock(const QList<int>& block, const char* entry, bool isFirst)
{
    const QDateTime start = startOf(entry);
    const int second = QTime(0, 0).secsTo(start.time());
    // Of a record that runs over midnight, the day before has this.
    const int before = isFirst && block[0] == 0 && second >= 23 * 3600 ? 86399 - second : 0;
    REQUIRE(block[0] == second || block[0] == 0);
    REQUIRE(block[0] == second || (isFirst && second >= 23 * 3600));
    REQUIRE(block[1] == lengthOf(entry) - before);
    REQUIRE(block[2] == static_cast<int>(start.toSecsSinceEpoch() + before));
    REQUIRE(block[3] == byteAt(entry, 8));
}

void checkRecords(const char* buffer, int size, qint64 now)
{
    const RecordList list =
        decodeRecordList(buffer, size, QDateTime::fromSecsSinceEpoch(now, Qt::UTC));
    REQUIRE(list.none == (wordAt(buffer, 4) == 0));
    REQUIRE(list.last == (!list.none && buffer[9] != 0));
    REQUIRE(!list.none || list.blocks.isEmpty());
    if (list.none)
        return;
    const int count = std::min(byteAt(buffer, 10), std::max(size - headBytes, 0) / entryBytes);
    const char* entry = buffer + headBytes;
    int block = 0;
    for (int i = 0; i < count; ++i, entry += entryBytes) {
        if (!isKept(entry, now))
            continue;
        REQUIRE(block < list.blocks.size() && list.blocks[block].size() == 4);
        checkBlock(list.blocks[block++], entry, i == 0);
    }
    REQUIRE(block == list.blocks.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    REQUIRE(zoneIsSet);
    if (size < clockBytes || size > clockBytes + ioctrlBufferBytes)
        return 0;
    const qint64 now = qFromLittleEndian<quint32>(data);
    std::vector<char> buffer(ioctrlBufferBytes);
    std::copy(data + clockBytes, data + size, buffer.begin());
    const int messageBytes = static_cast<int>(size) - clockBytes;

    REQUIRE(statusWord(buffer.data()) == static_cast<int>(wordAt(buffer.data(), 0)));
    checkNetworks(buffer.data(), messageBytes);
    checkNetwork(buffer.data());
    checkRecords(buffer.data(), messageBytes, now);
    return 0;
}

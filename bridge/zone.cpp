// SPDX-License-Identifier: GPL-3.0-or-later
#include "zone.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

constexpr std::size_t maxNameBytes = 64;
constexpr std::size_t maxFileBytes = std::size_t{64} << 10; // the largest zones have 4 KiB

bool isNameLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_'
        || c == '-' || c == '+' || c == '/';
}

// No dot passes, so no name leads out of the zone folder.
bool isZoneName(std::string_view name)
{
    return !name.empty() && name.size() <= maxNameBytes && name.front() != '/' && name.back() != '/'
        && name.find("//") == std::string_view::npos
        && std::all_of(name.begin(), name.end(), isNameLetter);
}

std::optional<int> twoDigits(std::string_view text)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (text.size() != 2 || !isDigit(text[0]) || !isDigit(text[1]))
        return std::nullopt;
    return (text[0] - '0') * 10 + text[1] - '0';
}

// "UTC+02:00", east of UTC for '+'.
std::optional<int> fixedOffset(std::string_view name)
{
    if (name.size() != 9 || name.substr(0, 3) != "UTC" || name[6] != ':')
        return std::nullopt;
    const auto hours = twoDigits(name.substr(4, 2));
    const auto minutes = twoDigits(name.substr(7, 2));
    if (!hours || !minutes || *hours > 14 || *minutes > 59 || (name[3] != '+' && name[3] != '-'))
        return std::nullopt;
    const int seconds = (*hours * 60 + *minutes) * 60;
    return name[3] == '+' ? seconds : -seconds;
}

std::optional<std::string> readZoneFile(const std::string& name)
{
    const std::filesystem::path path = std::filesystem::path("/usr/share/zoneinfo") / name;
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    std::string bytes(maxFileBytes, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

// Big-endian numbers, as zone files have them. Past the end it gives zeros.
class BigEndianReader
{
public:
    explicit BigEndianReader(std::string_view bytes)
        : rest_(bytes)
    {
    }

    bool ok() const { return ok_; }

    std::string_view take(std::size_t count)
    {
        if (count > rest_.size()) {
            ok_ = false;
            rest_ = {};
            return {};
        }
        const auto taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }

    std::uint64_t number(std::size_t size)
    {
        std::uint64_t value = 0;
        for (const char byte : take(size))
            value = value << 8 | static_cast<std::uint8_t>(byte);
        return value;
    }

private:
    std::string_view rest_;
    bool ok_ = true;
};

struct Header
{
    std::size_t utMarks, standardMarks, leaps, times, types, letters;

    // Of the data behind the header, with times of `timeBytes` each.
    std::size_t dataBytes(std::size_t timeBytes) const
    {
        return times * (timeBytes + 1) + types * 6 + letters + leaps * (timeBytes + 4)
            + standardMarks + utMarks;
    }
};

std::optional<Header> readHeader(BigEndianReader& reader)
{
    const bool named = reader.take(4) == "TZif";
    const bool hasLongTimes = reader.number(1) >= '2';
    reader.take(15);
    Header header{};
    for (auto* count : {&header.utMarks, &header.standardMarks, &header.leaps, &header.times,
             &header.types, &header.letters})
        *count = reader.number(4);
    if (!reader.ok() || !named || !hasLongTimes)
        return std::nullopt;
    return header;
}

} // namespace

std::optional<Zone> Zone::parse(std::string_view file)
{
    BigEndianReader reader(file);
    const auto shortForm = readHeader(reader);
    if (!shortForm)
        return std::nullopt;
    reader.take(shortForm->dataBytes(4));
    const auto header = readHeader(reader);
    if (!header)
        return std::nullopt;
    BigEndianReader times(reader.take(header->times * 8));
    BigEndianReader indices(reader.take(header->times));
    BigEndianReader types(reader.take(header->types * 6));
    if (!reader.ok() || header->types == 0)
        return std::nullopt;

    std::vector<int> offsets;
    for (std::size_t i = 0; i < header->types; ++i) {
        offsets.push_back(static_cast<std::int32_t>(types.number(4)));
        types.take(2);
    }
    Zone zone;
    zone.first_ = offsets.front();
    for (std::size_t i = 0; i < header->times; ++i) {
        const auto time = static_cast<std::int64_t>(times.number(8));
        const auto type = indices.number(1);
        if (type >= offsets.size())
            return std::nullopt;
        zone.changes_.push_back({time, offsets[type]});
    }
    return zone;
}

std::optional<Zone> Zone::load(std::string_view name)
{
    if (const auto offset = fixedOffset(name)) {
        Zone zone;
        zone.first_ = *offset;
        return zone;
    }
    if (!isZoneName(name))
        return std::nullopt;
    std::string known(name);
    auto file = readZoneFile(known);
    const auto utc = known.find("UTC");
    if (!file && utc != std::string::npos)
        file = readZoneFile(known.replace(utc, 3, "GMT"));
    return file ? parse(*file) : std::nullopt;
}

int Zone::offsetAt(std::int64_t time) const
{
    const auto next = std::upper_bound(changes_.begin(), changes_.end(), time,
        [](std::int64_t moment, const Change& change) { return moment < change.time; });
    return next == changes_.begin() ? first_ : std::prev(next)->offset;
}

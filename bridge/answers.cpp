// SPDX-License-Identifier: GPL-3.0-or-later
#include "answers.h"

#include "wire/bytes.h"
#include "wire/limits.h"

#include <algorithm>

namespace {

void putWord(std::string& out, int value)
{
    putNumber(out, static_cast<std::uint32_t>(value));
}

// `text` in a field of `size` bytes, with at least one zero behind it.
void putText(std::string& out, const std::string& text, std::size_t size)
{
    std::string field = text.substr(0, size - 1);
    field.resize(size, '\0');
    out += field;
}

std::string twoWords(int first, int second)
{
    std::string out;
    putWord(out, first);
    putWord(out, second);
    return out;
}

} // namespace

std::string statusAnswer(int status)
{
    std::string out;
    putWord(out, status);
    return out;
}

std::string recordModeAnswer(int channel, int mode)
{
    return twoWords(channel, mode);
}

std::string noRecordsAnswer(int channel)
{
    std::string out = twoWords(channel, 0);
    putNumber(out, std::uint8_t{0}); // number of this packet
    putNumber(out, std::uint8_t{1}); // the last one
    putNumber(out, std::uint8_t{0}); // entries in it
    putNumber(out, std::uint8_t{0});
    return out;
}

std::string qualityAnswer(int channel, bool high)
{
    return twoWords(channel, high ? 1 : 0);
}

std::string sensitivityAnswer(int channel, int percent)
{
    return twoWords(channel, percent);
}

std::string replayTimeAnswer(int status)
{
    return std::string(1, static_cast<char>(status));
}

std::string wifiListAnswer(const std::vector<std::string>& names)
{
    constexpr std::size_t entryBytes = 36;
    const std::size_t count = std::min(names.size(), (maxControlBytes - 4) / entryBytes);
    std::string out;
    putWord(out, static_cast<int>(count));
    for (std::size_t i = 0; i < count; ++i) {
        putText(out, names[i], 32);
        putWord(out, 0);
    }
    return out;
}

std::string wifiAnswer(const std::string& name, const std::string& password)
{
    std::string out;
    putText(out, name, 32);
    putText(out, password, 32);
    return out;
}

std::string ptzAnswer(int cruise)
{
    return statusAnswer(cruise);
}

std::string versionAnswer(const std::string& version)
{
    std::string out;
    putText(out, version, 64);
    return out;
}

std::string rotateAnswer(int mode)
{
    return statusAnswer(mode);
}

std::string smartModeAnswer(int mode)
{
    return std::string(1, static_cast<char>(mode));
}

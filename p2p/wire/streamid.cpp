// SPDX-License-Identifier: GPL-3.0-or-later
#include "wire/streamid.h"

#include "wire/uid.h"

#include <charconv>
#include <map>

namespace {

constexpr std::string_view prefix = "#!::";
constexpr std::size_t longestText = 200;

struct KindName
{
    StreamId::Kind kind;
    std::string_view name;
};
constexpr KindName kindNames[] = {
    {StreamId::Kind::Session, "session"},
    {StreamId::Kind::Channel, "channel"},
    {StreamId::Kind::Speech, "speech"},
};

std::string_view nameOf(StreamId::Kind kind)
{
    return kindNames[static_cast<int>(kind)].name;
}

std::string hex(const SessionToken& token)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : token) {
        text.push_back(digits[byte >> 4]);
        text.push_back(digits[byte & 15]);
    }
    return text;
}

template <typename Number>
bool readNumber(std::string_view text, Number& value, int base)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    return error == std::errc() && end == text.data() + text.size();
}

bool readToken(std::string_view text, SessionToken& token)
{
    if (text.size() != 2 * tokenBytes)
        return false;
    for (std::size_t i = 0; i < tokenBytes; ++i) {
        if (!readNumber(text.substr(2 * i, 2), token[i], 16))
            return false;
    }
    return true;
}

bool readKind(std::string_view text, StreamId::Kind& kind)
{
    for (const KindName& entry : kindNames) {
        if (entry.name == text) {
            kind = entry.kind;
            return true;
        }
    }
    return false;
}

using Pairs = std::map<std::string_view, std::string_view>;

// Keys of a later version are let by; a key that comes twice is an error.
std::optional<Pairs> split(std::string_view text)
{
    if (text.size() > longestText || text.substr(0, prefix.size()) != prefix)
        return std::nullopt;
    text.remove_prefix(prefix.size());
    Pairs pairs;
    for (bool more = true; more;) {
        const std::string_view pair = text.substr(0, text.find(','));
        more = pair.size() < text.size();
        text.remove_prefix(pair.size() + (more ? 1 : 0));
        const std::size_t equals = pair.find('=');
        if (equals == std::string_view::npos
            || !pairs.emplace(pair.substr(0, equals), pair.substr(equals + 1)).second)
            return std::nullopt;
    }
    return pairs;
}

} // namespace

std::string encode(const StreamId& id)
{
    std::string text(prefix);
    text += "v=" + std::to_string(linkVersion);
    text += ",r=" + id.uid;
    text += ",t=";
    text += nameOf(id.kind);
    text += ",s=" + hex(id.token);
    if (id.kind != StreamId::Kind::Session)
        text += ",c=" + std::to_string(id.number);
    return text;
}

std::variant<StreamId, Refusal> decodeStreamId(std::string_view text)
{
    auto pairs = split(text);
    unsigned version = 0;
    if (!pairs || !readNumber((*pairs)["v"], version, 10))
        return Refusal::Malformed;
    if (version != linkVersion)
        return Refusal::Version;
    StreamId id;
    id.uid = (*pairs)["r"];
    if (!isUid(id.uid) || !readKind((*pairs)["t"], id.kind) || !readToken((*pairs)["s"], id.token))
        return Refusal::Malformed;
    if (id.kind != StreamId::Kind::Session && !readNumber((*pairs)["c"], id.number, 10))
        return Refusal::Malformed;
    return id;
}

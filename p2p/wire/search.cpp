// SPDX-License-Identifier: GPL-3.0-or-later
#include "wire/search.h"

#include "wire/bytes.h"
#include "wire/uid.h"

#include <algorithm>

namespace {

constexpr std::string_view magic = "ORVA";
constexpr std::uint8_t queryType = 1;
constexpr std::uint8_t answerType = 2;

std::string opening(std::uint8_t type, std::uint64_t nonce)
{
    std::string out(magic);
    putNumber(out, linkVersion);
    putNumber(out, type);
    putNumber(out, std::uint16_t{0});
    putNumber(out, nonce);
    return out;
}

SearchDatagram padded(const std::string& text)
{
    SearchDatagram datagram{};
    std::copy(text.begin(), text.end(), datagram.begin());
    return datagram;
}

// The nonce, with the reader behind it; nothing when the datagram is not of this kind.
std::optional<std::uint64_t> readOpening(ByteReader& reader, std::size_t size, std::uint8_t type)
{
    if (size != searchDatagramBytes || reader.take(magic.size()) != magic)
        return std::nullopt;
    if (reader.u8() != linkVersion || reader.u8() != type)
        return std::nullopt;
    reader.u16();
    return reader.u64();
}

} // namespace

bool isVersionText(std::string_view text)
{
    return text.size() <= versionTextBytes && std::none_of(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte == 0x7f;
    });
}

SearchDatagram encode(const SearchQuery& query)
{
    std::string out = opening(queryType, query.nonce);
    out.append(query.uid, 0, uidBytes);
    return padded(out);
}

SearchDatagram encode(const SearchAnswer& answer)
{
    std::string out = opening(answerType, answer.nonce);
    out.append(answer.uid, 0, uidBytes);
    putNumber(out, answer.port);
    const std::size_t length = std::min(answer.name.size(), versionTextBytes);
    putNumber(out, static_cast<std::uint8_t>(length));
    out.append(answer.name, 0, length);
    return padded(out);
}

std::optional<SearchQuery> decodeSearchQuery(std::string_view datagram)
{
    ByteReader reader(datagram);
    const auto nonce = readOpening(reader, datagram.size(), queryType);
    if (!nonce)
        return std::nullopt;
    const std::string_view uid = reader.take(uidBytes);
    if (uid == std::string_view(std::string(uidBytes, '\0')))
        return SearchQuery{*nonce, {}};
    if (!isUid(uid))
        return std::nullopt;
    return SearchQuery{*nonce, std::string(uid)};
}

std::optional<SearchAnswer> decodeSearchAnswer(std::string_view datagram)
{
    ByteReader reader(datagram);
    const auto nonce = readOpening(reader, datagram.size(), answerType);
    if (!nonce)
        return std::nullopt;
    SearchAnswer answer;
    answer.nonce = *nonce;
    answer.uid = reader.take(uidBytes);
    answer.port = reader.u16();
    answer.name = reader.take(std::min<std::size_t>(reader.u8(), versionTextBytes + 1));
    if (!isUid(answer.uid) || answer.port == 0 || !isVersionText(answer.name))
        return std::nullopt;
    return answer;
}

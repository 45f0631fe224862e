// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wire/limits.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The datagrams of the search on the local network. Both have one fixed size, so that a query
// with a forged sender makes no more traffic at each device than it cost. Decoding is pure: bytes in, value or
// nothing out.

struct SearchQuery
{
    std::uint64_t nonce = 0; // comes back in the answers, which are not believed without it
    std::string uid; // whom the query is for; empty: every device
};

struct SearchAnswer
{
    std::uint64_t nonce = 0;
    std::string uid;
    std::uint16_t port = 0; // UDP port of the device's sessions, at the sender's address
    std::string name; // the version text, without control characters
};

// At most versionTextBytes, none of them a control character.
bool isVersionText(std::string_view text);

using SearchDatagram = std::array<char, searchDatagramBytes>;

SearchDatagram encode(const SearchQuery& query);
// `answer.name` is cut at versionTextBytes.
SearchDatagram encode(const SearchAnswer& answer);

std::optional<SearchQuery> decodeSearchQuery(std::string_view datagram);
std::optional<SearchAnswer> decodeSearchAnswer(std::string_view datagram);

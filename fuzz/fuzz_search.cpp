// SPDX-License-Identifier: GPL-3.0-or-later
// The datagrams of the search: whatever is let in is in form, and comes out of its own encoding as
// it went in.
#include "require.h"
#include "wire/search.h"
#include "wire/uid.h"

namespace {

std::string_view viewOf(const SearchDatagram& datagram)
{
    return {datagram.data(), datagram.size()};
}

void checkQuery(const SearchQuery& query)
{
    REQUIRE(query.uid.empty() || isUid(query.uid));
    const SearchDatagram again = encode(query);
    const auto same = decodeSearchQuery(viewOf(again));
    REQUIRE(same && same->nonce == query.nonce && same->uid == query.uid);
    REQUIRE(!decodeSearchAnswer(viewOf(again)));
}

void checkAnswer(const SearchAnswer& answer)
{
    REQUIRE(isUid(answer.uid) && answer.port != 0 && answer.name.size() <= versionTextBytes);
    for (const char c : answer.name)
        REQUIRE(static_cast<unsigned char>(c) >= 0x20 && c != 0x7f);
    const SearchDatagram again = encode(answer);
    const auto same = decodeSearchAnswer(viewOf(again));
    REQUIRE(same && same->nonce == answer.nonce && same->uid == answer.uid);
    REQUIRE(same->port == answer.port && same->name == answer.name);
    REQUIRE(!decodeSearchQuery(viewOf(again)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view datagram = viewOf(data, size);
    const auto query = decodeSearchQuery(datagram);
    const auto answer = decodeSearchAnswer(datagram);
    REQUIRE(!query || !answer);
    REQUIRE(size == searchDatagramBytes || (!query && !answer));
    if (query)
        checkQuery(*query);
    if (answer)
        checkAnswer(*answer);
    return 0;
}

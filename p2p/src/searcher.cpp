// SPDX-License-Identifier: GPL-3.0-or-later
#include "src/searcher.h"

#include <array>
#include <utility>

namespace {

Address own(bool loopbackOnly)
{
    return loopbackOnly ? Address::parse("127.0.0.1", 0).value_or(Address()) : Address::any(0);
}

} // namespace

Searcher::Searcher(bool loopbackOnly)
    : loopbackOnly_(loopbackOnly)
    , socket_(UdpSocket::bound(own(loopbackOnly), false))
{
}

bool Searcher::ask(const SearchQuery& query) const
{
    const SearchDatagram datagram = encode(query);
    bool sent = false;
    for (const Address& to : broadcastAddresses(loopbackOnly_, searchPort))
        sent = socket_.send(to, {datagram.data(), datagram.size()}) || sent;
    return sent;
}

std::vector<Searcher::Found> Searcher::answers() const
{
    constexpr int most = 512; // in a row: whoever floods must not keep the rest waiting
    std::vector<Found> found;
    std::array<char, searchDatagramBytes + 1> buffer{};
    std::string_view datagram;
    for (int i = 0; i < most; ++i) {
        const auto from = socket_.receive(buffer.data(), buffer.size(), datagram);
        if (!from)
            break;
        if (auto answer = decodeSearchAnswer(datagram))
            found.push_back({*std::move(answer), *from});
    }
    return found;
}

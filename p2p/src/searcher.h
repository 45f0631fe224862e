// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "transport/udpsocket.h"
#include "wire/search.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

// Sends queries into the search's scope and gathers the answers. One thread at a time.
class Searcher
{
public:
    struct Found
    {
        SearchAnswer answer;
        Address from;
    };

    explicit Searcher(bool loopbackOnly);

    explicit operator bool() const { return static_cast<bool>(socket_); }
    // False when no interface is there to send it to.
    bool ask(const SearchQuery& query) const;
    // What has come in since, in form.
    std::vector<Found> answers() const;

private:
    const bool loopbackOnly_;
    UdpSocket socket_;
};

// A question that is asked again and again until a time.
struct Asking
{
    using Clock = std::chrono::steady_clock;

    SearchQuery query;
    Clock::time_point until;
    Clock::duration interval{};
    Clock::time_point next; // when it is due

    void askIfDue(const Searcher& searcher, Clock::time_point now)
    {
        if (now < next || now >= until)
            return;
        next = now + interval;
        searcher.ask(query);
    }
};

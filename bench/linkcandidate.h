// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

// What the link benchmark asks of a candidate: the link layer, and bare libsrt beside it. Both
// ends run in this process, so that the processor time of a run counts both.

using Frame = std::vector<std::uint8_t>;

// One channel that carries frames from device to client, open until its end. Each end is used by
// one thread at a time.
class LinkPipe
{
public:
    LinkPipe() = default;
    LinkPipe(const LinkPipe&) = delete;
    LinkPipe& operator=(const LinkPipe&) = delete;
    virtual ~LinkPipe() = default;

    // Device's end: makes `frame` the one that send() sends from now on.
    virtual void prepare(const Frame& frame) = 0;
    // Device's end. False when the frame was not taken.
    virtual bool send() = 0;
    // Client's end; never waits. The frame's size, whose bytes lie in `buffer`; 0: none is ready.
    virtual std::size_t receive(std::vector<char>& buffer) = 0;
    // Client's end: asks for the frame that the candidate answers with. May block a round trip.
    virtual void request() = 0;
};

using LinkPipes = std::vector<std::unique_ptr<LinkPipe>>;

class LinkCandidate
{
public:
    LinkCandidate() = default;
    LinkCandidate(const LinkCandidate&) = delete;
    LinkCandidate& operator=(const LinkCandidate&) = delete;
    virtual ~LinkCandidate() = default;

    // Opens `count` channels, at most 64, directly or through the candidate's relay. Empty when
    // that fails.
    virtual LinkPipes open(int count, bool throughRelay) = 0;
    // What a request is answered with. Set while none is under way.
    virtual void setAnswer(const Frame& frame) = 0;
};

// Bare libsrt: file transmission type, a message for each frame, one connection for each channel,
// the same encryption. `listenPort` and `relayPort`: on 127.0.0.1. Null when it cannot listen.
std::unique_ptr<LinkCandidate> bareSrt(std::uint16_t listenPort, std::uint16_t relayPort);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wire/limits.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

using Salt = std::array<std::uint8_t, saltBytes>;

// The messages on the connection of a session itself, one SRT message each.

// The device's first: what a client needs to derive the key of its account.
struct Hello
{
    Salt salt{};
    std::uint32_t keyRounds = 0; // within minKeyRounds and maxKeyRounds
};
// Both ways, once each aliveInterval.
struct Alive
{
};
// The device wants to listen to the client's speech channel, or no more.
struct JoinSpeech
{
    std::uint8_t number = 0;
};
struct LeaveSpeech
{
    std::uint8_t number = 0;
};
// The client's no to a JoinSpeech.
struct RefuseSpeech
{
    std::uint8_t number = 0;
};

using SessionMessage = std::variant<Hello, Alive, JoinSpeech, LeaveSpeech, RefuseSpeech>;

std::string encode(const SessionMessage& message);
// Pure. Nothing for bytes that are no message of this version.
std::optional<SessionMessage> decodeSessionMessage(std::string_view bytes);

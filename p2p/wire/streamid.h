// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wire/limits.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

using SessionToken = std::array<std::uint8_t, tokenBytes>;

// What a connection is for: SRT carries it, as a text, to the listener before the connection
// exists. The form is that of SRT's access control: "#!::" and key=value pairs with commas.
struct StreamId
{
    enum class Kind {
        Session,
        Channel, // an AV channel of the session
        Speech, // a channel on which the client sends sound to the device
    };

    Kind kind = Kind::Session;
    std::string uid;
    SessionToken token{}; // chosen by the client at random; names the session
    std::uint8_t number = 0; // of the channel; 0 for a session
};

std::string encode(const StreamId& id);
// Pure. The reason is Malformed, or Version for an identifier of another version of the link.
std::variant<StreamId, Refusal> decodeStreamId(std::string_view text);

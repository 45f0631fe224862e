// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// What the tests of the decoders share: bytes as literals, and what becomes of a message that is
// cut short or goes on.

// With the zeros inside.
template <std::size_t Size>
std::string bytesOf(const char (&literal)[Size])
{
    return {literal, Size - 1};
}

// Says whether a decoder lets these bytes in.
using Accepts = std::function<bool(std::string_view)>;

// The lengths, the whole left out, at which the beginning of `message` is let in. Each beginning
// lies in memory of its own size, so that a sanitizer sees a read behind it.
inline std::vector<std::size_t> acceptedPrefixes(const std::string& message, const Accepts& accepts)
{
    std::vector<std::size_t> lengths;
    for (std::size_t length = 0; length < message.size(); ++length) {
        const std::vector<char> prefix(message.data(), message.data() + length);
        if (accepts({prefix.data(), prefix.size()}))
            lengths.push_back(length);
    }
    return lengths;
}

// The bytes, in the order of their values, that may follow `message`.
inline std::string acceptedContinuations(const std::string& message, const Accepts& accepts)
{
    std::string continuations;
    for (int value = 0; value < 256; ++value) {
        const char byte = static_cast<char>(value);
        if (accepts(message + byte))
            continuations.push_back(byte);
    }
    return continuations;
}

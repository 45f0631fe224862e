// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

// The numbers both ends of the link agree on. docs/link-protocol.md says what each protects.

constexpr std::uint8_t linkVersion = 1;

constexpr std::uint16_t searchPort = 20720; // UDP
constexpr std::size_t searchDatagramBytes = 256;

constexpr std::size_t uidBytes = 20;
constexpr std::size_t versionTextBytes = 137;
constexpr std::size_t tokenBytes = 16;
constexpr std::size_t saltBytes = 16;
constexpr std::size_t frameInfoBytes = 16;

// One SRT packet: an Ethernet frame less the headers of IP, UDP and SRT.
constexpr std::size_t packetBytes = 1456;

constexpr std::size_t maxFrameBytes = std::size_t{4} << 20;
constexpr std::size_t maxControlBytes = 1024;

// A sender of control messages waits for acknowledgements when this many are under way.
constexpr std::uint32_t controlWindow = 128;

constexpr int maxLiveChannels = 64;
constexpr int firstOfferedChannel = 64; // further channels, for replays
constexpr int lastOfferedChannel = 254;

// PBKDF2 rounds of the account key. A client refuses a device that asks for fewer, which would
// make guessing cheap, or for so many that the client would stand still.
constexpr std::uint32_t keyRounds = 100000;
constexpr std::uint32_t minKeyRounds = 10000;
constexpr std::uint32_t maxKeyRounds = 1000000;

constexpr std::chrono::milliseconds aliveInterval{1000};
constexpr std::chrono::milliseconds silenceLimit{5000};

// Why a device turns a connection down, as SRT carries it (user defined codes start at 2000).
enum class Refusal : int {
    Malformed = 2000, // the stream identifier says nothing that can be understood
    Version = 2001, // another version of the link
    UnknownDevice = 2002,
    LockedOut = 2003, // too many wrong passwords from this address
    UnknownSession = 2004,
    NoSuchChannel = 2005,
    Full = 2006, // too many sessions
};

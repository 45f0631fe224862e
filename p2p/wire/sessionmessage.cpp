// SPDX-License-Identifier: GPL-3.0-or-later
#include "wire/sessionmessage.h"

#include "wire/bytes.h"

#include <algorithm>

namespace {

enum Type : std::uint8_t {
    helloType = 1,
    aliveType = 2,
    joinSpeechType = 3,
    leaveSpeechType = 4,
    refuseSpeechType = 5,
};

std::string start(Type type, std::uint8_t number = 0)
{
    std::string out;
    putNumber(out, static_cast<std::uint8_t>(type));
    putNumber(out, number);
    putNumber(out, std::uint16_t{0});
    return out;
}

struct Encoder
{
    std::string operator()(const Hello& hello) const
    {
        std::string out = start(helloType);
        putNumber(out, hello.keyRounds);
        out.append(hello.salt.begin(), hello.salt.end());
        return out;
    }
    std::string operator()(const Alive& /*unused*/) const { return start(aliveType); }
    std::string operator()(const JoinSpeech& join) const
    {
        return start(joinSpeechType, join.number);
    }
    std::string operator()(const LeaveSpeech& leave) const
    {
        return start(leaveSpeechType, leave.number);
    }
    std::string operator()(const RefuseSpeech& refuse) const
    {
        return start(refuseSpeechType, refuse.number);
    }
};

std::optional<SessionMessage> readHello(ByteReader& reader)
{
    Hello hello;
    hello.keyRounds = reader.u32();
    const std::string_view salt = reader.take(saltBytes);
    if (!reader.ok() || hello.keyRounds < minKeyRounds || hello.keyRounds > maxKeyRounds)
        return std::nullopt;
    std::copy(salt.begin(), salt.end(), hello.salt.begin());
    return hello;
}

std::optional<SessionMessage> readBody(std::uint8_t type, std::uint8_t number, ByteReader& reader)
{
    switch (type) {
    case helloType:
        return readHello(reader);
    case aliveType:
        return Alive{};
    case joinSpeechType:
        return JoinSpeech{number};
    case leaveSpeechType:
        return LeaveSpeech{number};
    case refuseSpeechType:
        return RefuseSpeech{number};
    default:
        return std::nullopt;
    }
}

} // namespace

std::string encode(const SessionMessage& message)
{
    return std::visit(Encoder{}, message);
}

std::optional<SessionMessage> decodeSessionMessage(std::string_view bytes)
{
    ByteReader reader(bytes);
    const std::uint8_t type = reader.u8();
    const std::uint8_t number = reader.u8();
    reader.u16();
    if (!reader.ok())
        return std::nullopt;
    auto message = readBody(type, number, reader);
    return reader.rest().empty() ? message : std::nullopt;
}

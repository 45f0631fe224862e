// SPDX-License-Identifier: GPL-3.0-or-later
// Stream identifiers and the messages of a session: whatever is let in is in form, and comes out
// of its own encoding as it went in.
#include "require.h"
#include "wire/sessionmessage.h"
#include "wire/streamid.h"
#include "wire/uid.h"

namespace {

void checkStreamId(const StreamId& id)
{
    REQUIRE(isUid(id.uid));
    REQUIRE(id.kind != StreamId::Kind::Session || id.number == 0);
    const auto again = decodeStreamId(encode(id));
    const auto* same = std::get_if<StreamId>(&again);
    REQUIRE(same != nullptr && same->kind == id.kind && same->uid == id.uid);
    REQUIRE(same->token == id.token && same->number == id.number);
}

void checkMessage(const SessionMessage& message)
{
    if (const auto* hello = std::get_if<Hello>(&message))
        REQUIRE(hello->keyRounds >= minKeyRounds && hello->keyRounds <= maxKeyRounds);
    const std::string bytes = encode(message);
    const auto same = decodeSessionMessage(bytes);
    REQUIRE(same && same->index() == message.index() && encode(*same) == bytes);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes = viewOf(data, size);
    const auto decoded = decodeStreamId(bytes);
    if (const auto* id = std::get_if<StreamId>(&decoded))
        checkStreamId(*id);
    else
        REQUIRE(std::get<Refusal>(decoded) == Refusal::Malformed
            || std::get<Refusal>(decoded) == Refusal::Version);
    if (const auto message = decodeSessionMessage(bytes)) {
        REQUIRE(size == 4 || (size == 24 && std::holds_alternative<Hello>(*message)));
        checkMessage(*message);
    }
    return 0;
}

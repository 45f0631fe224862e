// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "transport/srt.h"
#include "wire/assembler.h"
#include "wire/keys.h"
#include "wire/limits.h"
#include "wire/sessionmessage.h"
#include "wire/streamid.h"

#include <QTest>

#include <string>
#include <vector>

// A client without the layer, which can do what no layer does: its connections are bare SRT.
class StrangeClient
{
public:
    StrangeClient(std::string uid, std::uint16_t port)
        : uid_(std::move(uid))
        , device_(*Address::parse("127.0.0.1", port))
    {
        fillRandom(token_.data(), token_.size());
    }

    // The session is open, and its Hello read.
    bool openSession()
    {
        session = connect(StreamId::Kind::Session, 0, sessionPassphrase(uid_));
        std::string buffer(packetBytes, '\0');
        std::string_view message;
        for (int i = 0; i < 200 && session.connected(); ++i) {
            if (session.receive(buffer.data(), message) == SrtSocket::Io::Done) {
                const auto decoded = decodeSessionMessage(message);
                if (const auto* hello = decoded ? std::get_if<Hello>(&*decoded) : nullptr)
                    key_ =
                        accountPassphrase(uid_, "Admin", "secret", hello->salt, hello->keyRounds);
                return !key_.empty();
            }
            QTest::qWait(10);
        }
        return false;
    }
    bool openChannel(int number)
    {
        channel = connect(StreamId::Kind::Channel, number, key_);
        return channel.connected();
    }

    // Asks for it and does not wait.
    SrtSocket startChannel(int number, const std::string& passphrase = {})
    {
        SrtSocket socket = SrtSocket::make(SrtUse::Session, passphrase.empty() ? key_ : passphrase);
        socket.connect(device_,
            encode(
                StreamId{StreamId::Kind::Channel, uid_, token_, static_cast<std::uint8_t>(number)}),
            std::chrono::seconds(3));
        return socket;
    }

    // What has come on the channel.
    std::vector<AssembledFrame> readFrames()
    {
        std::vector<AssembledFrame> frames;
        std::string buffer(packetBytes, '\0');
        std::string_view bytes;
        while (channel.receive(buffer.data(), bytes) == SrtSocket::Io::Done) {
            const auto packet = decodePacket(bytes);
            if (const auto* fragment = packet ? std::get_if<Fragment>(&*packet) : nullptr) {
                for (AssembledFrame& frame : assembler_.take(*fragment))
                    frames.push_back(std::move(frame));
            }
        }
        return frames;
    }

    // Waits until the connection exists or is refused, for three seconds at most.
    SrtSocket connect(StreamId::Kind kind, int number, const std::string& passphrase)
    {
        return connect(
            encode(StreamId{kind, uid_, token_, static_cast<std::uint8_t>(number)}), passphrase);
    }
    SrtSocket connect(const std::string& streamId, const std::string& passphrase)
    {
        SrtSocket socket = SrtSocket::make(SrtUse::Session, passphrase);
        socket.connect(device_, streamId, std::chrono::seconds(3));
        while (srt_getsockstate(socket.id()) < SRTS_CONNECTED)
            QTest::qWait(5);
        refusal = socket.connected() ? 0 : socket.rejectReason();
        return socket;
    }

    SrtSocket session;
    SrtSocket channel;
    int refusal = 0; // of the last connect

private:
    const SrtLibrary library_;
    const std::string uid_;
    const Address device_;
    SessionToken token_{};
    Assembler assembler_;
    std::string key_;
};

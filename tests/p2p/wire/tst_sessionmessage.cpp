// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "wire/sessionmessage.h"
#include "wirebytes.h"

#include <QTest>

namespace {

Hello helloWith(std::uint32_t rounds)
{
    return {Salt{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 254, 255}, rounds};
}

std::vector<SessionMessage> oneOfEach()
{
    return {helloWith(100000), Alive{}, JoinSpeech{31}, LeaveSpeech{31}, RefuseSpeech{31}};
}

bool isMessage(std::string_view bytes)
{
    return decodeSessionMessage(bytes).has_value();
}

template <typename Message>
int numberOf(const std::optional<SessionMessage>& message)
{
    const Message* known = message ? std::get_if<Message>(&*message) : nullptr;
    return known != nullptr ? known->number : -1;
}

} // namespace

class TestSessionMessage final : public QObject
{
    Q_OBJECT

private slots:
    void eachMessageHasItsWrittenForm()
    {
        QVERIFY(encode(helloWith(0x000a8b9c))
            == bytesOf("\x01\0\0\0\x9c\x8b\x0a\0\0\x01\x02\x03\x04\x05\x06\x07"
                       "\x08\x09\x0a\x0b\x0c\x0d\xfe\xff"));
        QVERIFY(encode(Alive{}) == bytesOf("\x02\0\0\0"));
        QVERIFY(encode(JoinSpeech{31}) == bytesOf("\x03\x1f\0\0"));
        QVERIFY(encode(LeaveSpeech{31}) == bytesOf("\x04\x1f\0\0"));
        QVERIFY(encode(RefuseSpeech{31}) == bytesOf("\x05\x1f\0\0"));
    }

    void helloComesBack()
    {
        for (const std::uint32_t rounds : {minKeyRounds, keyRounds, maxKeyRounds}) {
            const auto message = decodeSessionMessage(encode(helloWith(rounds)));
            QVERIFY(message && std::holds_alternative<Hello>(*message));
            QCOMPARE(std::get<Hello>(*message).keyRounds, rounds);
            QVERIFY(std::get<Hello>(*message).salt == helloWith(rounds).salt);
        }
    }

    void aliveComesBack()
    {
        const auto message = decodeSessionMessage(encode(Alive{}));
        QVERIFY(message && std::holds_alternative<Alive>(*message));
    }

    void everySpeechNumberComesBack()
    {
        for (int number = 0; number < 256; ++number) {
            const auto channel = static_cast<std::uint8_t>(number);
            const auto decoded = [](const SessionMessage& message) {
                return decodeSessionMessage(encode(message));
            };
            QCOMPARE(numberOf<JoinSpeech>(decoded(JoinSpeech{channel})), number);
            QCOMPARE(numberOf<LeaveSpeech>(decoded(LeaveSpeech{channel})), number);
            QCOMPARE(numberOf<RefuseSpeech>(decoded(RefuseSpeech{channel})), number);
        }
    }

    void everyOtherLengthIsRefused()
    {
        for (const SessionMessage& message : oneOfEach()) {
            QVERIFY(acceptedPrefixes(encode(message), isMessage).empty());
            QVERIFY(acceptedContinuations(encode(message), isMessage).empty());
        }
    }

    void keyRoundsBeyondTheLimitsAreRefused()
    {
        for (const std::uint32_t rounds : {0U, 1U, minKeyRounds - 1, maxKeyRounds + 1, 0xffffffffU})
            QVERIFY(!isMessage(encode(helloWith(rounds))));
    }

    void unknownKindsAreRefused()
    {
        for (int kind = 0; kind < 256; ++kind) {
            const std::string four = std::string(1, static_cast<char>(kind)) + bytesOf("\0\0\0");
            QCOMPARE(isMessage(four), kind >= 2 && kind <= 5);
            std::string hello = encode(helloWith(keyRounds));
            hello[0] = static_cast<char>(kind);
            QCOMPARE(isMessage(hello), kind == 1);
        }
    }
};

ORVA_TEST(TestSessionMessage)
#include "tst_sessionmessage.moc"

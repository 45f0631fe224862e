// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "wire/search.h"
#include "wirebytes.h"

#include <QTest>

namespace {

const std::string uid = "ABCDEFGHIJ0123456789";
constexpr std::uint64_t nonce = 0x8877665544332211;

// Where the fields lie.
constexpr std::size_t uidAt = 16;
constexpr std::size_t portAt = 36;
constexpr std::size_t nameLengthAt = 38;
constexpr std::size_t nameAt = 39;

template <typename Message>
std::string textOf(const Message& message)
{
    const SearchDatagram datagram = encode(message);
    return {datagram.data(), datagram.size()};
}

std::string padded(std::string bytes)
{
    bytes.resize(searchDatagramBytes);
    return bytes;
}

std::string answerNamed(const std::string& name)
{
    std::string datagram = textOf(SearchAnswer{nonce, uid, 50000, {}});
    datagram[nameLengthAt] = static_cast<char>(name.size());
    return datagram.replace(nameAt, name.size(), name);
}

bool isQuery(std::string_view bytes)
{
    return decodeSearchQuery(bytes).has_value();
}

bool isAnswer(std::string_view bytes)
{
    return decodeSearchAnswer(bytes).has_value();
}

} // namespace

class TestSearchDatagram final : public QObject
{
    Q_OBJECT

private slots:
    void queryHasItsWrittenForm()
    {
        const std::string opening = bytesOf("ORVA\x01\x01\0\0\x11\x22\x33\x44\x55\x66\x77\x88");
        QVERIFY(textOf(SearchQuery{nonce, uid}) == padded(opening + uid));
        QVERIFY(textOf(SearchQuery{nonce, {}}) == padded(opening));
    }

    void answerHasItsWrittenForm()
    {
        const std::string opening = bytesOf("ORVA\x01\x02\0\0\x11\x22\x33\x44\x55\x66\x77\x88");
        const std::string rest = bytesOf("\x50\xc3\x06"
                                         "camera");
        QVERIFY(textOf(SearchAnswer{nonce, uid, 50000, "camera"}) == padded(opening + uid + rest));
    }

    void queryComesBack()
    {
        for (const std::string& asked : {std::string(), uid}) {
            const auto query = decodeSearchQuery(textOf(SearchQuery{nonce, asked}));
            QVERIFY(query);
            QCOMPARE(query->nonce, nonce);
            QVERIFY(query->uid == asked);
        }
    }

    void answerComesBackWithANameOfAnyLength()
    {
        for (std::size_t length = 0; length <= versionTextBytes; ++length) {
            const SearchAnswer sent{nonce, uid, 65535, std::string(length, 'n')};
            const auto answer = decodeSearchAnswer(textOf(sent));
            QVERIFY(answer);
            QCOMPARE(answer->nonce, nonce);
            QVERIFY(answer->uid == uid && answer->name == sent.name);
            QCOMPARE(answer->port, sent.port);
        }
    }

    void tooLongANameIsCut()
    {
        const auto answer =
            decodeSearchAnswer(textOf(SearchAnswer{nonce, uid, 1, std::string(300, 'n')}));
        QVERIFY(answer);
        QVERIFY(answer->name == std::string(137, 'n'));
    }

    void everyOtherLengthIsRefused()
    {
        const std::string query = textOf(SearchQuery{nonce, uid});
        const std::string answer = textOf(SearchAnswer{nonce, uid, 50000, "camera"});
        QVERIFY(acceptedPrefixes(query, isQuery).empty());
        QVERIFY(acceptedPrefixes(answer, isAnswer).empty());
        QVERIFY(acceptedContinuations(query, isQuery).empty());
        QVERIFY(acceptedContinuations(answer, isAnswer).empty());
    }

    void anyOtherOpeningIsRefused()
    {
        const std::string query = textOf(SearchQuery{nonce, uid});
        const std::string answer = textOf(SearchAnswer{nonce, uid, 50000, "camera"});
        for (std::size_t at = 0; at < 6; ++at) {
            for (int change = 1; change < 256; ++change) {
                std::string other = query;
                other[at] = static_cast<char>(other[at] ^ change);
                QVERIFY(!isQuery(other));
                other = answer;
                other[at] = static_cast<char>(other[at] ^ change);
                QVERIFY(!isAnswer(other));
            }
        }
        QVERIFY(!isAnswer(query) && !isQuery(answer));
    }

    void uidOutOfFormIsRefused()
    {
        const std::string query = textOf(SearchQuery{nonce, uid});
        const std::string answer = textOf(SearchAnswer{nonce, uid, 50000, "camera"});
        for (const char wrong : bytesOf("a /:@[`z\x7f\x80\xff\0")) {
            for (const std::size_t place : {std::size_t{0}, std::size_t{10}, uidBytes - 1}) {
                std::string other = query;
                other[uidAt + place] = wrong;
                QVERIFY(!isQuery(other));
                other = answer;
                other[uidAt + place] = wrong;
                QVERIFY(!isAnswer(other));
            }
        }
    }

    void answerWithoutAUidIsRefused()
    {
        std::string answer = textOf(SearchAnswer{nonce, uid, 50000, "camera"});
        answer.replace(uidAt, uidBytes, std::string(uidBytes, '\0'));
        QVERIFY(!isAnswer(answer));
    }

    void answerWithoutAPortIsRefused()
    {
        std::string answer = textOf(SearchAnswer{nonce, uid, 1, "camera"});
        QVERIFY(isAnswer(answer));
        answer[portAt] = 0;
        QVERIFY(!isAnswer(answer));
    }

    void tooLongANameIsRefused()
    {
        QVERIFY(isAnswer(answerNamed(std::string(137, 'n'))));
        for (std::size_t length = 138; length < 217; ++length)
            QVERIFY(!isAnswer(answerNamed(std::string(length, 'n'))));
        // Longer than what is left of the datagram.
        std::string answer = textOf(SearchAnswer{nonce, uid, 50000, "camera"});
        answer[nameLengthAt] = static_cast<char>(255);
        QVERIFY(!isAnswer(answer));
    }

    void controlCharactersInANameAreRefused()
    {
        for (int value = 0; value < 256; ++value) {
            const std::string byte(1, static_cast<char>(value));
            const bool printable = value >= 0x20 && value != 0x7f;
            QCOMPARE(isAnswer(answerNamed(byte + "name")), printable);
            QCOMPARE(isAnswer(answerNamed("name" + byte)), printable);
            QCOMPARE(isAnswer(answerNamed(std::string(136, 'n') + byte)), printable);
        }
    }
};

ORVA_TEST(TestSearchDatagram)
#include "tst_searchdatagram.moc"

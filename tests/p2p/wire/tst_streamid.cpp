// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "wire/streamid.h"
#include "wirebytes.h"

#include <QTest>

Q_DECLARE_METATYPE(Refusal)

namespace {

const std::string uid = "ABCDEFGHIJ0123456789";
const std::string tokenText = "000102030405060708090a0b0c0dfeff";
const SessionToken token{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 254, 255};

const std::string sessionText = "#!::v=1,r=ABCDEFGHIJ0123456789,t=session,s=" + tokenText;
const std::string channelText = "#!::v=1,r=ABCDEFGHIJ0123456789,t=channel,s=" + tokenText;

bool isStreamId(std::string_view text)
{
    return std::holds_alternative<StreamId>(decodeStreamId(text));
}

StreamId idOf(std::string_view text)
{
    const auto decoded = decodeStreamId(text);
    const auto* id = std::get_if<StreamId>(&decoded);
    if (id == nullptr)
        qFatal("no stream identifier");
    return *id;
}

void compare(const StreamId& got, const StreamId& sent)
{
    QCOMPARE(got.kind, sent.kind);
    QVERIFY(got.uid == sent.uid && got.token == sent.token);
    QCOMPARE(got.number, sent.number);
}

} // namespace

class TestStreamId final : public QObject
{
    Q_OBJECT

private slots:
    void eachKindHasItsWrittenForm()
    {
        QVERIFY(encode(StreamId{StreamId::Kind::Session, uid, token, 0}) == sessionText);
        QVERIFY(encode(StreamId{StreamId::Kind::Channel, uid, token, 7}) == channelText + ",c=7");
        QVERIFY(encode(StreamId{StreamId::Kind::Speech, uid, token, 31})
            == "#!::v=1,r=ABCDEFGHIJ0123456789,t=speech,s=" + tokenText + ",c=31");
    }

    void everyNumberOfEachKindComesBack()
    {
        compare(idOf(sessionText), {StreamId::Kind::Session, uid, token, 0});
        for (const auto kind : {StreamId::Kind::Channel, StreamId::Kind::Speech}) {
            for (int number = 0; number < 256; ++number) {
                const StreamId sent{kind, uid, token, static_cast<std::uint8_t>(number)};
                compare(idOf(encode(sent)), sent);
            }
        }
    }

    // A text has no length inside: what is left of a number is a number.
    void everyPrefixIsRefusedDownToTheNumber()
    {
        using Lengths = std::vector<std::size_t>;
        const std::size_t length = channelText.size() + 3;
        QVERIFY(acceptedPrefixes(sessionText, isStreamId).empty());
        QVERIFY(acceptedPrefixes(channelText + ",c=7", isStreamId).empty());
        QVERIFY(acceptedPrefixes(channelText + ",c=31", isStreamId) == Lengths{length + 1});
        QVERIFY(acceptedPrefixes(channelText + ",c=254", isStreamId)
            == (Lengths{length + 1, length + 2}));
    }

    void oneByteMoreIsRefusedButADigitOfANumber()
    {
        QVERIFY(acceptedContinuations(sessionText, isStreamId).empty());
        QVERIFY(acceptedContinuations(channelText + ",c=7", isStreamId) == "0123456789");
        QVERIFY(acceptedContinuations(channelText + ",c=25", isStreamId) == "012345");
        QVERIFY(acceptedContinuations(channelText + ",c=26", isStreamId).empty());
        QVERIFY(acceptedContinuations(channelText + ",c=255", isStreamId).empty());
    }

    void keysOfALaterVersionAreLetBy()
    {
        compare(idOf("#!::later=1,v=1,=,y=z=,r=" + uid + ",t=session,s=" + tokenText),
            {StreamId::Kind::Session, uid, token, 0});
    }

    void orderIsFree()
    {
        compare(idOf("#!::c=3,s=" + tokenText + ",t=speech,r=" + uid + ",v=1"),
            {StreamId::Kind::Speech, uid, token, 3});
    }

    void numberOfASessionIsNotLookedAt()
    {
        compare(idOf(sessionText + ",c=9"), {StreamId::Kind::Session, uid, token, 0});
        compare(idOf(sessionText + ",c=none"), {StreamId::Kind::Session, uid, token, 0});
    }

    void capitalDigitsOfATokenAreRead()
    {
        const std::string text = "#!::v=1,r=" + uid + ",t=session,s=";
        compare(idOf(text + "000102030405060708090A0B0C0DFEFF"),
            {StreamId::Kind::Session, uid, token, 0});
    }

    void textsUpToTheLimitAreRead()
    {
        const std::string text = sessionText + ",later=";
        QVERIFY(isStreamId(text + std::string(200 - text.size(), 'x')));
        QVERIFY(!isStreamId(text + std::string(201 - text.size(), 'x')));
    }

    void whatCannotBeReadNamesTheReason_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<Refusal>("reason");

        const QByteArray rest =
            QByteArray::fromStdString(",r=" + uid + ",t=channel,s=" + tokenText + ",c=1");
        for (const char* version : {"0", "2", "255", "256", "257", "4294967295"})
            QTest::addRow("version %s", version)
                << QByteArray("#!::v=") + version + rest << Refusal::Version;
        for (const char* version : {"", "x", "1x", "1.0", "-1", "+1", " 1", "0x1", "4294967296"})
            QTest::addRow("version '%s'", version)
                << QByteArray("#!::v=") + version + rest << Refusal::Malformed;
        QTest::newRow("other version in another form")
            << QByteArray("#!::v=2,whatever=it") << Refusal::Version;

        const auto malformed = [](const char* name, const std::string& text) {
            QTest::newRow(name) << QByteArray::fromStdString(text) << Refusal::Malformed;
        };
        const std::string device = ",r=" + uid;
        const std::string channel = ",t=channel";
        const std::string session = ",s=" + tokenText;
        const std::string number = ",c=1";
        malformed("empty", "");
        malformed("opening alone", "#!::");
        malformed("no opening", "v=1" + device + channel + session + number);
        malformed("another opening", "#!:;v=1" + device + channel + session + number);
        malformed("no version", "#!::r=" + uid + channel + session + number);
        malformed("no UID", "#!::v=1" + channel + session + number);
        malformed("no kind", "#!::v=1" + device + session + number);
        malformed("no token", "#!::v=1" + device + channel + number);
        malformed("no number", "#!::v=1" + device + channel + session);
        malformed("short UID", "#!::v=1,r=ABCDEFGHIJ012345678" + channel + session + number);
        malformed("long UID", "#!::v=1,r=ABCDEFGHIJ01234567890" + channel + session + number);
        malformed("small UID", "#!::v=1,r=abcdefghij0123456789" + channel + session + number);
        malformed("unknown kind", "#!::v=1" + device + ",t=file" + session + number);
        malformed("kind in capitals", "#!::v=1" + device + ",t=Channel" + session + number);
        malformed("empty kind", "#!::v=1" + device + ",t=" + session + number);
        const std::string start = "#!::v=1" + device + channel;
        malformed("empty token", start + ",s=" + number);
        malformed("short token", start + ",s=" + tokenText.substr(1) + number);
        malformed("long token", start + session + "0" + number);
        for (const char* wrong : {"0g", "g0", "+1", "-1", " 1", "1 ", "0x", "::"})
            malformed(qPrintable(QStringLiteral("token with '%1'").arg(QLatin1String(wrong))),
                std::string(start).append(",s=").append(wrong) + tokenText.substr(2) + number);
        for (const char* wrong :
            {"", "256", "-1", "+1", " 1", "1 ", "0x1", "1.0", "a", "99999999999999999999"})
            malformed(qPrintable(QStringLiteral("number '%1'").arg(QLatin1String(wrong))),
                start + session + ",c=" + wrong);
        malformed("comma at the end", start + session + number + ",");
        malformed("empty pair", start + "," + session + number);
        malformed("pair without a value", start + session + number + ",later");
        for (const char* twice : {",v=1", ",r=", ",t=channel", ",s=", ",c=1", ",later=1,later=1"})
            malformed(qPrintable(QStringLiteral("twice '%1'").arg(QLatin1String(twice))),
                std::string(start).append(session).append(number) + twice);
    }
    void whatCannotBeReadNamesTheReason()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const Refusal, reason);
        const auto decoded = decodeStreamId({text.constData(), std::size_t(text.size())});
        QVERIFY(std::holds_alternative<Refusal>(decoded));
        QCOMPARE(std::get<Refusal>(decoded), reason);
    }
};

ORVA_TEST(TestStreamId)
#include "tst_streamid.moc"

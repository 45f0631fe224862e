// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/directory.h"
#include "testmain.h"
#include "wire/keys.h"

#include <QTest>

namespace {

const std::string uid = "ABCDEFGHIJ0123456789";
const std::string otherUid = "OTHERDEVICE000000001";
const std::string unknownUid = "UNKNOWNDEVICE0000001";
const std::string ip = "192.0.2.1";
const SessionToken token{1};
const SessionToken otherToken{2};
using Kind = StreamId::Kind;
using Decision = std::variant<std::string, Refusal>;

class Handler final : public LinkDeviceHandler
{
public:
    bool admit(const std::string& /*peer*/) override { return true; }
    void channelOpened(const LinkChannelPtr& /*channel*/) override { }
    void channelClosed(const LinkChannelPtr& /*channel*/) override { }
    bool controlReceived(const LinkChannelPtr& /*channel*/, std::uint32_t /*type*/,
        std::string_view /*bytes*/) override
    {
        return true;
    }
    void speechReceived(const LinkChannelPtr& /*channel*/, const LinkFrame& /*frame*/) override { }
    void wrongPassword(const std::string& /*peer*/, bool /*lockedOut*/) override { }
};

LinkDevice device(const std::string& name = uid, int channels = 4)
{
    return {name, "camera 1.0", "admin", "secret", channels};
}

SessionToken numbered(int number)
{
    return {9, static_cast<std::uint8_t>(number & 255), static_cast<std::uint8_t>(number >> 8)};
}

} // namespace

class TestDirectory final : public QObject
{
    Q_OBJECT

private slots:
    // One directory for all: to derive the keys of a device is slow on purpose.
    void initTestCase()
    {
        QVERIFY(directory_.publish(device(), handler_));
        QVERIFY(directory_.publish(device(otherUid), handler_));
    }

    void cleanup()
    {
        directory_.closeSession(token);
        directory_.closeSession(otherToken);
        directory_.setSilent(uid, false);
    }

    void deviceOutOfFormIsNotPublished()
    {
        QVERIFY(!directory_.publish(device("SHORT"), handler_));
        QVERIFY(!directory_.publish(device("lowercase00000000001"), handler_));
        QVERIFY(!directory_.publish(device(unknownUid, 0), handler_));
        QVERIFY(!directory_.publish(device(unknownUid, 65), handler_));
        LinkDevice longText = device(unknownUid, 64);
        longText.version = std::string(138, 'v');
        QVERIFY(!directory_.publish(longText, handler_));
        longText.version.pop_back();
        QVERIFY(directory_.publish(longText, handler_));
        directory_.withdraw(unknownUid);
    }

    void uidIsPublishedOnce() { QVERIFY(!directory_.publish(device(otherUid), handler_)); }

    void withdrawnDeviceIsUnknown()
    {
        QCOMPARE(directory_.handlerOf(otherUid), &handler_);
        directory_.withdraw(otherUid);
        QVERIFY(directory_.handlerOf(otherUid) == nullptr);
        QVERIFY(directory_.decide({Kind::Session, otherUid, token, 0}, ip)
            == Decision(Refusal::UnknownDevice));
        QVERIFY(!directory_.openSession(token, otherUid, ip));
        QVERIFY(directory_.publish(device(otherUid), handler_));
    }

    void searchIsAnsweredByWhomItAsksFor()
    {
        QCOMPARE(directory_.answersTo({7, {}}, 50000).size(), std::size_t{2});
        QVERIFY(directory_.answersTo({7, unknownUid}, 50000).empty());
        const auto answers = directory_.answersTo({7, otherUid}, 50000);
        QCOMPARE(answers.size(), std::size_t{1});
        QCOMPARE(answers[0].nonce, std::uint64_t{7});
        QCOMPARE(answers[0].port, std::uint16_t{50000});
        QVERIFY(answers[0].uid == otherUid && answers[0].name == "camera 1.0");
    }

    void silentDeviceAnswersNothing()
    {
        openSession();
        directory_.setSilent(uid, true);
        QVERIFY(directory_.isSilent(uid));
        QVERIFY(directory_.answersTo({7, uid}, 50000).empty());
        QCOMPARE(directory_.answersTo({7, {}}, 50000).size(), std::size_t{1});
        QCOMPARE(refusal(Kind::Session, 0, otherToken), Refusal::UnknownDevice);
        QCOMPARE(refusal(Kind::Channel), Refusal::UnknownDevice);
        directory_.setSilent(uid, false);
        QVERIFY(!directory_.isSilent(uid));
        QVERIFY(isLetIn(Kind::Channel));
    }

    void sessionGetsTheKeyOfTheUid()
    {
        const auto decision = directory_.decide({Kind::Session, uid, token, 0}, ip);
        QVERIFY(std::holds_alternative<std::string>(decision));
        QVERIFY(std::get<std::string>(decision) == sessionPassphrase(uid));
    }

    void channelGetsTheKeyOfTheAccount()
    {
        openSession();
        const Hello hello = directory_.helloOf(uid);
        QCOMPARE(hello.keyRounds, keyRounds);
        QVERIFY(
            channelKey(uid) == accountPassphrase(uid, "admin", "secret", hello.salt, keyRounds));
    }

    void eachDeviceHasItsOwnSalt()
    {
        QVERIFY(directory_.helloOf(uid).salt != directory_.helloOf(otherUid).salt);
    }

    void newPasswordCountsFromTheNextChannelOn()
    {
        QVERIFY(directory_.openSession(token, otherUid, ip));
        const Hello hello = directory_.helloOf(otherUid);
        const std::string old = channelKey(otherUid);
        directory_.setPassword(otherUid, "new");
        QVERIFY(directory_.helloOf(otherUid).salt == hello.salt);
        const std::string key = channelKey(otherUid);
        QVERIFY(key != old);
        QVERIFY(key == accountPassphrase(otherUid, "admin", "new", hello.salt, keyRounds));
    }

    void passwordForNobodyChangesNothing()
    {
        openSession();
        const std::string key = channelKey(uid);
        directory_.setPassword(unknownUid, "of nobody");
        QVERIFY(channelKey(uid) == key);
    }

    void unknownDeviceIsRefused()
    {
        for (const Kind kind : {Kind::Session, Kind::Channel, Kind::Speech})
            QVERIFY(directory_.decide({kind, unknownUid, token, 0}, ip)
                == Decision(Refusal::UnknownDevice));
    }

    void tokenIsGoodForOneSession()
    {
        openSession();
        QCOMPARE(refusal(Kind::Session), Refusal::Malformed);
        QVERIFY(!directory_.openSession(token, uid, ip));
        QVERIFY(isLetIn(Kind::Session, 0, otherToken));
        directory_.closeSession(token);
        QVERIFY(isLetIn(Kind::Session));
    }

    void sessionsAreBounded()
    {
        for (int number = 0; number < 1024; ++number)
            QVERIFY(
                directory_.openSession(numbered(number), uid, number < 512 ? "192.0.2.67" : ip));
        QCOMPARE(refusal(Kind::Session), Refusal::Full);
        QVERIFY(!directory_.openSession(token, uid, ip));
        QVERIFY(isLetIn(Kind::Channel, 0, numbered(1000)));
        directory_.closeSession(numbered(600));
        QVERIFY(isLetIn(Kind::Session));
        for (int number = 0; number < 1024; ++number)
            directory_.closeSession(numbered(number));
    }

    void channelNeedsItsSession()
    {
        for (const Kind kind : {Kind::Channel, Kind::Speech})
            QCOMPARE(refusal(kind), Refusal::UnknownSession);
        openSession();
        QVERIFY(isLetIn(Kind::Channel));
        QCOMPARE(refusal(Kind::Channel, 0, otherToken), Refusal::UnknownSession);
        directory_.closeSession(token);
        QCOMPARE(refusal(Kind::Channel), Refusal::UnknownSession);
    }

    void sessionOfAnotherDeviceIsUnknown()
    {
        QVERIFY(directory_.openSession(token, otherUid, ip));
        directory_.expectSpeech(token, 0);
        QCOMPARE(refusal(Kind::Channel), Refusal::UnknownSession);
        QCOMPARE(refusal(Kind::Speech), Refusal::UnknownSession);
    }

    void channelNumbersEndWithTheDevices()
    {
        openSession();
        QVERIFY(isLetIn(Kind::Channel, 3));
        for (const int number : {4, 63, 64, 254, 255})
            QCOMPARE(
                refusal(Kind::Channel, static_cast<std::uint8_t>(number)), Refusal::NoSuchChannel);
    }

    // By a client that has lost the first connection, which the device does not know yet.
    void channelIsLetInAnew()
    {
        openSession();
        QVERIFY(isLetIn(Kind::Channel, 2));
        QVERIFY(isLetIn(Kind::Channel, 2));
    }

    void offerIsForItsSessionAlone()
    {
        openSession();
        QVERIFY(directory_.openSession(otherToken, uid, ip));
        QCOMPARE(directory_.offerChannel(token), 64);
        QVERIFY(isLetIn(Kind::Channel, 64));
        QCOMPARE(refusal(Kind::Channel, 64, otherToken), Refusal::NoSuchChannel);
        QCOMPARE(refusal(Kind::Channel, 65), Refusal::NoSuchChannel);
    }

    void offerTakenBackIsRefused()
    {
        openSession();
        QCOMPARE(directory_.offerChannel(token), 64);
        QCOMPARE(directory_.offerChannel(token), 65);
        directory_.takeBackChannel(token, 64);
        QCOMPARE(refusal(Kind::Channel, 64), Refusal::NoSuchChannel);
        QVERIFY(isLetIn(Kind::Channel, 65));
        QCOMPARE(directory_.offerChannel(token), 64);
    }

    void offersEnd()
    {
        QCOMPARE(directory_.offerChannel(token), -1);
        openSession();
        for (int number = 64; number <= 254; ++number)
            QCOMPARE(directory_.offerChannel(token), number);
        QCOMPARE(directory_.offerChannel(token), -1);
    }

    void speechIsLetInWhenItIsExpected()
    {
        openSession();
        QCOMPARE(refusal(Kind::Speech, 31), Refusal::NoSuchChannel);
        directory_.expectSpeech(token, 31);
        // Without an open channel there is no key that the client would know.
        QCOMPARE(refusal(Kind::Speech, 31), Refusal::NoSuchChannel);
        QVERIFY(isLetIn(Kind::Channel));
        directory_.channelOpened(token);
        QVERIFY(isLetIn(Kind::Speech, 31));
        QCOMPARE(refusal(Kind::Speech, 30), Refusal::NoSuchChannel);
        directory_.expectSpeech(token, 30);
        QCOMPARE(refusal(Kind::Speech, 31), Refusal::NoSuchChannel);
        directory_.expectSpeech(token, std::nullopt);
        QCOMPARE(refusal(Kind::Speech, 30), Refusal::NoSuchChannel);
    }

    void tenWrongPasswordsShutTheAddressOut()
    {
        const std::string guesser = "192.0.2.66";
        openSession();
        const auto decision = [&](Kind kind) {
            return directory_.decide(
                {kind, uid, kind == Kind::Session ? otherToken : token, 0}, guesser);
        };
        for (int i = 0; i < 9; ++i)
            QVERIFY(!directory_.wrongPassword(uid, guesser));
        QVERIFY(std::holds_alternative<std::string>(decision(Kind::Session)));
        QVERIFY(directory_.wrongPassword(uid, guesser));
        for (const Kind kind : {Kind::Session, Kind::Channel, Kind::Speech})
            QVERIFY(decision(kind) == Decision(Refusal::LockedOut));
        // Other addresses are let in, and this one to other devices.
        QVERIFY(isLetIn(Kind::Channel));
        QVERIFY(std::holds_alternative<std::string>(
            directory_.decide({Kind::Session, otherUid, otherToken, 0}, guesser)));
    }

    void aSessionsChannelsComeFromItsOwnAddress()
    {
        openSession();
        QVERIFY(directory_.decide({Kind::Channel, uid, token, 0}, "192.0.2.67")
            == Decision(Refusal::UnknownSession));
        QVERIFY(isLetIn(Kind::Channel));
    }

    void speechHasTheKeyOfTheChannelThatIsOpen()
    {
        openSession();
        const auto key = [&](Kind kind, std::uint8_t number) {
            return std::get<std::string>(directory_.decide({kind, uid, token, number}, ip));
        };
        const std::string before = key(Kind::Channel, 0);
        directory_.channelOpened(token);
        directory_.expectSpeech(token, 31);
        directory_.setPassword(uid, "another");
        QCOMPARE(key(Kind::Speech, 31), before);
        QVERIFY(key(Kind::Channel, 1) != before);
        QCOMPARE(key(Kind::Speech, 31), before);
    }

    void oneAddressLeavesRoomForOthers()
    {
        for (int number = 0; number < 512; ++number)
            QVERIFY(directory_.openSession(numbered(number), uid, ip));
        QCOMPARE(refusal(Kind::Session), Refusal::Full);
        QVERIFY(std::holds_alternative<std::string>(
            directory_.decide({Kind::Session, uid, token, 0}, "192.0.2.67")));
        for (int number = 0; number < 512; ++number)
            directory_.closeSession(numbered(number));
    }

    void wrongPasswordForNobodyLocksNothing()
    {
        for (int i = 0; i < 20; ++i)
            QVERIFY(!directory_.wrongPassword(unknownUid, ip));
        QVERIFY(isLetIn(Kind::Session));
    }

private:
    void openSession() { QVERIFY(directory_.openSession(token, uid, ip)); }

    bool isLetIn(Kind kind, std::uint8_t number = 0, const SessionToken& session = token)
    {
        const auto decision = directory_.decide({kind, uid, session, number}, ip);
        return std::holds_alternative<std::string>(decision);
    }

    Refusal refusal(Kind kind, std::uint8_t number = 0, const SessionToken& session = token)
    {
        const auto decision = directory_.decide({kind, uid, session, number}, ip);
        const auto* reason = std::get_if<Refusal>(&decision);
        return reason != nullptr ? *reason : Refusal{0};
    }

    std::string channelKey(const std::string& name)
    {
        const auto decision = directory_.decide({Kind::Channel, name, token, 0}, ip);
        const auto* key = std::get_if<std::string>(&decision);
        return key != nullptr ? *key : std::string();
    }

    Handler handler_;
    Directory directory_;
};

ORVA_TEST(TestDirectory)
#include "tst_directory.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
// Clients that do not keep to the rules: each costs its own session and nothing else.
#include "layertest.h"
#include "strangeclient.h"
#include "testdevice.h"
#include "testframes.h"
#include "testmain.h"
#include "wire/framing.h"

namespace {

const std::string uid = "STRANGERTESTDEVICE01";

int refusalCode(Refusal refusal)
{
    return static_cast<int>(refusal);
}

} // namespace

class TestStrangers : public LayerTest
{
    Q_OBJECT

private:
    std::unique_ptr<TestDevice> device_;
    int av_ = -1; // an honest client's channel 0

private slots:
    void init()
    {
        device_ = std::make_unique<TestDevice>(uid);
        av_ = openChannel(connectTo(uid), 0);
        QVERIFY(av_ >= 0);
    }
    void cleanup()
    {
        QCOMPARE(sendMessage(av_, 1, "the honest client is unhurt"), 0);
        closeSessions();
        device_.reset();
    }

    void rubbishEndsTheStrangersSession_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const auto row = [](const char* name, const std::string& bytes) {
            QTest::newRow(name) << QByteArray::fromStdString(bytes);
        };
        row("unknown type", std::string(100, '\x55'));
        row("one byte", "\3");
        row("message out of turn", encode(Control{2, 1, "x"}));
        row("message twice", encode(Control{0, 1, "x"}));
        row("empty message", encode(Control{1, 1, ""}));
        row("message that is too long", encode(Control{1, 1, std::string(1025, 'x')}));
        row("acknowledgement of nothing", encode(ControlAck{7}));
        const std::string info(frameInfoBytes, '\1');
        FragmentWriter picture(Media::Video, 1, info, "picture");
        row("a picture", std::string(picture.next()));
    }
    void rubbishEndsTheStrangersSession()
    {
        QFETCH(const QByteArray, bytes);
        StrangeClient stranger(uid, device_->host().port());
        QVERIFY(stranger.openSession());
        QVERIFY(stranger.openChannel(1));
        QTRY_COMPARE(device_->opened(), 2);
        stranger.channel.send({bytes.constData(), static_cast<std::size_t>(bytes.size())});
        QTRY_COMPARE(device_->closed(), 1);
        QTRY_VERIFY(!stranger.session.connected());
        QCOMPARE(device_->messages().size(), std::size_t{0});
    }

    void rubbishOnTheSessionEndsIt()
    {
        for (const std::string& bytes : {std::string("x"), std::string(1400, '\1'),
                 encode(SessionMessage(Hello{})), encode(SessionMessage(JoinSpeech{3}))}) {
            StrangeClient stranger(uid, device_->host().port());
            QVERIFY(stranger.openSession());
            stranger.session.send(bytes);
            QTRY_VERIFY(!stranger.session.connected());
        }
    }

    void aStreamIdentifierThatSaysNothingIsRefused()
    {
        StrangeClient stranger(uid, device_->host().port());
        const std::string key = sessionPassphrase(uid);
        const std::string token(32, 'a');
        const auto refusalOf = [&](const std::string& id) {
            stranger.connect(id, key);
            return stranger.refusal;
        };
        QCOMPARE(refusalOf(""), refusalCode(Refusal::Malformed));
        QCOMPARE(refusalOf("live"), refusalCode(Refusal::Malformed));
        QCOMPARE(refusalOf("#!::v=1,r=" + uid + ",t=session"), refusalCode(Refusal::Malformed));
        QCOMPARE(
            refusalOf("#!::v=2,r=" + uid + ",t=session,s=" + token), refusalCode(Refusal::Version));
        QCOMPARE(refusalOf("#!::v=1,r=NOBODYHASTHISUID0001,t=session,s=" + token),
            refusalCode(Refusal::UnknownDevice));
        QCOMPARE(refusalOf("#!::v=1,r=" + uid + ",t=channel,c=0,s=" + token),
            refusalCode(Refusal::UnknownSession));
        QCOMPARE(refusalOf("#!::v=1,r=" + uid + ",t=speech,c=31,s=" + token),
            refusalCode(Refusal::UnknownSession));
    }

    void aSessionCannotBeTakenOver()
    {
        StrangeClient stranger(uid, device_->host().port());
        QVERIFY(stranger.openSession());
        const SrtSocket second =
            stranger.connect(StreamId::Kind::Session, 0, sessionPassphrase(uid));
        QCOMPARE(stranger.refusal, refusalCode(Refusal::Malformed));
        QVERIFY(stranger.session.connected());
    }

    void whoDoesNotEncryptIsTurnedAway()
    {
        StrangeClient stranger(uid, device_->host().port());
        QVERIFY(stranger.openSession());
        const SrtSocket open = stranger.connect(StreamId::Kind::Channel, 1, {});
        QTRY_VERIFY(!open.connected());
        QTRY_COMPARE(device_->wrongPasswords(), 1);
        QCOMPARE(device_->opened(), 1);
    }

    void whoNeverSaysThatItLivesIsForgotten()
    {
        StrangeClient stranger(uid, device_->host().port());
        QVERIFY(stranger.openSession());
        QVERIFY(stranger.openChannel(1));
        QTRY_COMPARE(device_->opened(), 2);
        QTRY_COMPARE_WITH_TIMEOUT(device_->closed(), 1, 6000);
    }

    // Its frames are dropped, and nobody else's.
    void whoNeverReadsHurtsNobody()
    {
        StrangeClient stranger(uid, device_->host().port());
        QVERIFY(stranger.openSession());
        QVERIFY(stranger.openChannel(1));
        QTRY_COMPARE(device_->opened(), 2);
        const LinkChannelPtr deaf = device_->awaitChannel(1);
        const LinkChannelPtr honest = device_->awaitChannel(0);
        int dropped = 0;
        for (int i = 0; i < 200; ++i) {
            const LinkFrame frame = pictureOf(50000, i == 0, static_cast<std::uint8_t>(i));
            dropped += deaf->sendVideo(frame) == LinkChannel::Sent::Dropped ? 1 : 0;
            QCOMPARE(honest->sendVideo(frame), LinkChannel::Sent::Queued);
            const ReceivedFrame got = awaitVideo(av_);
            QCOMPARE(got.result, 50000);
            QVERIFY(got.bytes == textOf(frame));
        }
        QVERIFY2(dropped > 100, qPrintable(QString::number(dropped)));
    }

    void whoReadsAgainGoesOnWithAKeyFrame()
    {
        StrangeClient stranger(uid, device_->host().port());
        QVERIFY(stranger.openSession());
        QVERIFY(stranger.openChannel(1));
        const LinkChannelPtr channel = device_->awaitChannel(1);
        QVERIFY(channel);
        const LinkFrame large = pictureOf(300000, true);
        int queued = 0;
        while (queued < 100 && channel->sendVideo(large) == LinkChannel::Sent::Queued)
            ++queued;
        QVERIFY2(queued >= 1 && queued < 100, qPrintable(QString::number(queued)));
        QCOMPARE(channel->sendVideo(pictureOf(10, false)), LinkChannel::Sent::Dropped);

        std::vector<std::uint32_t> numbers;
        const auto readAll = [&] {
            stranger.session.send(encode(SessionMessage(Alive{})));
            for (const AssembledFrame& frame : stranger.readFrames())
                numbers.push_back(frame.number);
            return numbers.size();
        };
        QTRY_COMPARE_WITH_TIMEOUT(readAll(), static_cast<std::size_t>(queued), 30000);
        QCOMPARE(channel->sendVideo(pictureOf(10, false)), LinkChannel::Sent::Dropped);
        int tooEarly = 0; // what has been read is confirmed a moment later
        while (tooEarly < 500
            && channel->sendVideo(pictureOf(20, true)) != LinkChannel::Sent::Queued) {
            ++tooEarly;
            QTest::qWait(10);
        }
        QTRY_COMPARE(readAll(), static_cast<std::size_t>(queued) + 1);
        // The numbers of what was dropped are missing: this is how a client sees a loss.
        QCOMPARE(numbers.back(), static_cast<std::uint32_t>(queued + 4 + tooEarly));
    }

    // Guesses at once, before the first of them is counted.
    void guessesAtOnceAreBounded()
    {
        TestDevice device("REVIEWTESTDEVICE0013", 64);
        StrangeClient client(device.uid(), device.host().port());
        QVERIFY(client.openSession());
        constexpr int guesses = 200;
        std::vector<SrtSocket> sockets;
        sockets.reserve(guesses);
        for (int i = 0; i < guesses; ++i)
            sockets.push_back(client.startChannel(i % 64, "a wrong passphrase"));
        int answered = 0;
        int locked = 0;
        for (const SrtSocket& socket : sockets) {
            while (srt_getsockstate(socket.id()) < SRTS_CONNECTED)
                QTest::qWait(1);
            const int reason = socket.rejectReason();
            answered += reason == SRT_REJ_BADSECRET ? 1 : 0;
            locked += reason == int(Refusal::LockedOut) ? 1 : 0;
        }
        QTest::qWait(100);
        qInfo("%d guesses answered, %d locked out, %d counted", answered, locked,
            device.wrongPasswords());
        QVERIFY(answered <= 20);
    }

    void anOfferedChannelThatIsOpenedAnewIsNotOfferedAgain()
    {
        TestDevice device("REVIEWTESTDEVICE0007");
        StrangeClient client(device.uid(), device.host().port());
        QVERIFY(client.openSession());
        QVERIFY(client.openChannel(0));
        const auto base = device.awaitChannel(0);
        QVERIFY(base);
        const int number = base->offerChannel();
        const SrtSocket keepBase = std::move(client.channel);
        QVERIFY(client.openChannel(number));
        QVERIFY(device.awaitChannel(number));
        const SrtSocket old = std::move(client.channel);
        QVERIFY(client.openChannel(number));
        QTRY_COMPARE(device.opened(), 3);
        QVERIFY(base->offerChannel() != number);
    }
};

ORVA_TEST(TestStrangers)
#include "tst_strangers.moc"

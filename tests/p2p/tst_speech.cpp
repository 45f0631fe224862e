// SPDX-License-Identifier: GPL-3.0-or-later
// Talk-back: the client serves a channel that the device joins.
#include "layertest.h"
#include "testdevice.h"
#include "testframes.h"
#include "testmain.h"

#include <QElapsedTimer>

#include <thread>

namespace {

const std::string uid = "SPEECHTESTDEVICE0001";
constexpr unsigned char speechNumber = 31;

std::string presented;

int acceptAll(const char* account, const char* password)
{
    presented = std::string(account) + "/" + password;
    return 1;
}

int acceptNobody(const char* /*account*/, const char* /*password*/)
{
    return 0;
}

int serve(int session, AV_AuthCallback auth, unsigned int seconds)
{
    int resend = 0;
    return avServStart3(session, auth, seconds, 16, speechNumber, &resend);
}

int sendSound(int avIndex, const LinkFrame& frame)
{
    return avSendAudioData(avIndex, reinterpret_cast<const char*>(frame.bytes.data()),
        static_cast<int>(frame.bytes.size()), frame.info.data(), AV_FRAME_INFO_BYTES);
}

} // namespace

class TestSpeech : public LayerTest
{
    Q_OBJECT

private:
    std::unique_ptr<TestDevice> device_;
    int session_ = -1;
    int av_ = -1;
    LinkChannelPtr channel_;

private slots:
    void init()
    {
        device_ = std::make_unique<TestDevice>(uid);
        session_ = connectTo(uid);
        av_ = openChannel(session_, 0);
        channel_ = device_->awaitChannel(0);
        QVERIFY(av_ >= 0 && channel_);
    }
    void cleanup()
    {
        closeSessions();
        channel_.reset();
        device_.reset();
    }

    void soundArrivesAtTheDevice()
    {
        channel_->joinSpeech(speechNumber);
        const int speech = serve(session_, acceptAll, 5);
        QVERIFY2(speech >= 0, qPrintable(QString::number(speech)));
        QCOMPARE(presented, std::string("Admin/secret"));
        QCOMPARE(avClientCleanAudioBuf(speech), 0);
        for (int i = 0; i < 20; ++i)
            QCOMPARE(sendSound(speech, soundOf(320, static_cast<std::uint8_t>(i))), 0);
        QTRY_COMPARE(device_->speech().size(), std::size_t{20});
        const auto heard = device_->speech();
        for (int i = 0; i < 20; ++i) {
            const LinkFrame sent = soundOf(320, static_cast<std::uint8_t>(i));
            QVERIFY(heard[static_cast<std::size_t>(i)].bytes == sent.bytes);
            QVERIFY(heard[static_cast<std::size_t>(i)].info == sent.info);
        }
        unsigned int unconfirmed = 1;
        QTRY_VERIFY(avServGetResendSize(speech, &unconfirmed) == 0 && unconfirmed == 0);
        avServStop(speech);
        QCOMPARE(sendSound(speech, soundOf(320)), int(AV_BAD_INDEX));
        QCOMPARE(serve(session_, acceptAll, 0), int(AV_NO_ANSWER));
    }

    void servingMayComeBeforeJoining()
    {
        int speech = 0;
        std::thread thread([&] { speech = serve(session_, acceptAll, 10); });
        QTest::qWait(100);
        channel_->joinSpeech(speechNumber);
        thread.join();
        QVERIFY2(speech >= 0, qPrintable(QString::number(speech)));
    }

    void aDeviceThatDoesNotComeIsWaitedFor()
    {
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(serve(session_, acceptAll, 1), int(AV_NO_ANSWER));
        QVERIFY(timer.elapsed() >= 990 && timer.elapsed() < 2000);
    }

    void aDeviceThatIsRefusedHasNotJoined()
    {
        channel_->joinSpeech(speechNumber);
        QCOMPARE(serve(session_, acceptNobody, 1), int(AV_NO_ANSWER));
        channel_->joinSpeech(speechNumber);
        QVERIFY(serve(session_, acceptAll, 5) >= 0);
    }

    void aDeviceThatLeavesIsGone()
    {
        channel_->joinSpeech(speechNumber);
        const int speech = serve(session_, acceptAll, 5);
        QVERIFY(speech >= 0);
        channel_->leaveSpeech();
        QTRY_COMPARE(sendSound(speech, soundOf(320)), int(AV_DEVICE_GONE));
        QCOMPARE(sendMessage(av_, 1, "the session lives"), 0);
    }

    void onlyAServerSendsSound()
    {
        QCOMPARE(sendSound(av_, soundOf(320)), int(AV_NOT_A_SENDER));
        QCOMPARE(avSendAudioData(av_, nullptr, 320, nullptr, 16), int(AV_BAD_ARGUMENT));
    }

    void stoppingEndsOnlyItsOwnKind()
    {
        channel_->joinSpeech(speechNumber);
        const int speech = serve(session_, acceptAll, 5);
        avClientStop(speech);
        avServStop(av_);
        avServStop(-1);
        QCOMPARE(sendSound(speech, soundOf(320)), 0);
        QCOMPARE(sendMessage(av_, 1, "open"), 0);
    }

    void aNewPasswordDoesNotSpoilTheSpeech()
    {
        device_->host().setPassword(uid, "changed");
        channel_->joinSpeech(speechNumber);
        QVERIFY(serve(session_, acceptAll, 5) >= 0);
        QCOMPARE(device_->wrongPasswords(), 0);
    }

    void aWrongPasswordElsewhereDoesNotSpoilTheSpeech()
    {
        QCOMPARE(openChannel(session_, 1, "wrong"), int(AV_WRONG_PASSWORD));
        QTRY_COMPARE(device_->wrongPasswords(), 1);
        channel_->joinSpeech(speechNumber);
        QVERIFY(serve(session_, acceptAll, 5) >= 0);
        QCOMPARE(device_->wrongPasswords(), 1);
    }

    void aSoundThatIsTooLargeIsRefused()
    {
        channel_->joinSpeech(speechNumber);
        const int speech = serve(session_, acceptAll, 5);
        QCOMPARE(sendSound(speech, soundOf(AV_SOUND_MAX_BYTES + 1)), int(AV_BAD_SIZE));
        QCOMPARE(sendSound(speech, soundOf(AV_SOUND_MAX_BYTES)), 0);
        QTRY_COMPARE(device_->speech().size(), std::size_t{1});
        QCOMPARE(sendMessage(av_, 1, "the session lives"), 0);
    }

    void soundThatTheDeviceDoesNotTakeIsBounded()
    {
        channel_->joinSpeech(speechNumber);
        const int speech = serve(session_, acceptAll, 5);
        device_->host().setSilent(uid, true);
        int result = 0;
        for (int i = 0; i < 100000 && result == 0; ++i)
            result = sendSound(speech, soundOf(320));
        QCOMPARE(result, int(AV_QUEUE_FULL));
        unsigned int unconfirmed = 0;
        QCOMPARE(avServGetResendSize(speech, &unconfirmed), 0);
        QVERIFY(unconfirmed > 0);
    }

    void aServerCarriesNoMessages()
    {
        channel_->joinSpeech(speechNumber);
        const int speech = serve(session_, acceptAll, 5);
        QCOMPARE(sendMessage(speech, 1, "x"), int(AV_BAD_INDEX));
        QCOMPARE(sendSound(speech, soundOf(320)), 0);
    }

    void closingTheSessionEndsServing()
    {
        int result = 0;
        std::thread thread([&] { result = serve(session_, acceptAll, 20); });
        QTest::qWait(50);
        QElapsedTimer timer;
        timer.start();
        IOTC_Session_Close(session_);
        thread.join();
        QCOMPARE(result, int(AV_SESSION_CLOSED));
        QVERIFY(timer.elapsed() <= 100);
    }

    void badArgumentsAreRefused()
    {
        QCOMPARE(
            avServStart3(session_, nullptr, 1, 16, speechNumber, nullptr), int(AV_BAD_ARGUMENT));
        QCOMPARE(serve(500, acceptAll, 1), int(AV_BAD_INDEX));
        QCOMPARE(avServGetResendSize(av_, nullptr), int(AV_BAD_ARGUMENT));
    }
};

ORVA_TEST(TestSpeech)
#include "tst_speech.moc"

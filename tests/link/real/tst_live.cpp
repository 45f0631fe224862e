// SPDX-License-Identifier: GPL-3.0-or-later
// Live view, moves and talk-back of a real device program.
#include "AVAPIs.h"
#include "linktest.h"
#include "testmain.h"

#include <QFile>

#include <array>

namespace {

const QByteArray uid = "LINKLIVEDEVICE000001";
constexpr int h264 = 78;
constexpr int h265 = 80;

QString uidText()
{
    return QString::fromLatin1(uid);
}

QByteArray devices()
{
    return BridgeProcess::device(uid, 1, "    speech: speech.wav\n");
}

// One sound frame of A-law, as talk-back sends it.
int speak(int talkIndex, const QByteArray& sound)
{
    const std::array<char, AV_FRAME_INFO_BYTES> info{static_cast<char>(138)};
    return avSendAudioData(
        talkIndex, sound.constData(), sound.size(), info.data(), AV_FRAME_INFO_BYTES);
}

} // namespace

class TestLive final : public LinkTest
{
    Q_OBJECT

public:
    TestLive()
        : LinkTest(devices())
    {
    }

private slots:
    void init();

    void startBringsPictures();
    void otherQualityRestartsTheStream();
    void stopEndsThePictures();
    void soundFollowsAStartWithSoundOn();
    void eightByteCommandMovesTheHead();
    void twelveByteCommandMovesTheHead();
    void cruiseIsToldByTheNextQuestion();
    void speechArrivesInTheFileOfTheDevice();

private:
    bool startLive();
    double pan()
    {
        return bridge().channelStatus(uidText()).value(QStringLiteral("pan")).toDouble();
    }
    bool clientHas(const char* flag)
    {
        return bridge().clientStatus(uidText()).value(QLatin1String(flag)).toBool();
    }

    Channel* channel_ = nullptr;
    int avIndex_ = -1;
};

void TestLive::init()
{
    channel_ = connectedChannel(uidText());
    QVERIFY(channel_);
    channel_->mode(true).open = true;
    avIndex_ = channel_->mode(true).avIndex;
}

bool TestLive::startLive()
{
    QSignalSpy started(io(), &IoConnect::videoRequestSuccessMsg);
    io()->startLive(channel_);
    return QTest::qWaitFor([&started] { return started.size() == 1; }, patienceMs);
}

void TestLive::startBringsPictures()
{
    QVERIFY(!clientHas("watching"));
    QSignalSpy waiting(io(), &IoConnect::waitingStreamMsg);
    QVERIFY(startLive());
    QCOMPARE(waiting.size(), 1);
    QVERIFY(channel_->mode(true).waiting);
    QVERIFY(channel_->mode(true).playing);
    QVERIFY(clientHas("watching"));
    for (int i = 0; i < 10; ++i)
        QCOMPARE(awaitPicture(avIndex_).codec, h264);
}

void TestLive::otherQualityRestartsTheStream()
{
    QVERIFY(startLive());
    QCOMPARE(awaitPicture(avIndex_).codec, h264);
    for (const bool high : {false, true}) {
        QSignalSpy stopped(io(), &IoConnect::videoRequestStopSuccessMsg);
        QSignalSpy started(io(), &IoConnect::videoRequestSuccessMsg);
        QSignalSpy changed(io(), &IoConnect::changeQualitySuccessMsg);
        io()->setQuality(channel_, high);
        QTRY_COMPARE_WITH_TIMEOUT(changed.size(), 1, patienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(started.size(), 1, patienceMs);
        QCOMPARE(stopped.size(), 1);
        QCOMPARE(bool(channel_->mode(true).highQuality), high);
        // Pictures of the stream before may still wait.
        QTRY_COMPARE_WITH_TIMEOUT(awaitPicture(avIndex_).codec, high ? h264 : h265, patienceMs);
    }
}

void TestLive::stopEndsThePictures()
{
    QVERIFY(startLive());
    QCOMPARE(awaitPicture(avIndex_).codec, h264);
    QSignalSpy stopped(io(), &IoConnect::videoRequestStopSuccessMsg);
    io()->stopLife(channel_, false);
    QTRY_COMPARE_WITH_TIMEOUT(stopped.size(), 1, patienceMs);
    QVERIFY(!channel_->mode(true).playing);
    QVERIFY(!clientHas("watching"));
    // All that was sent before has arrived with the answer to a later question.
    QSignalSpy answered(io(), &IoConnect::changeQualitySuccessMsg);
    io()->getQuality(channel_);
    QTRY_COMPARE_WITH_TIMEOUT(answered.size(), 1, patienceMs);
    QCOMPARE(avClientCleanBuf(avIndex_), 0);
    constexpr int fivePicturesMs = 500;
    QTest::qWait(fivePicturesMs);
    QCOMPARE(takePicture(avIndex_).result, int(AV_NOTHING_READY));
}

void TestLive::soundFollowsAStartWithSoundOn()
{
    channel_->mode(true).audioOn = true;
    QSignalSpy sound(io(), &IoConnect::audioControlSuccessMsg);
    QVERIFY(startLive());
    QTRY_COMPARE_WITH_TIMEOUT(sound.size(), 1, patienceMs);
    QVERIFY(clientHas("listening"));
    QTRY_VERIFY_WITH_TIMEOUT(avCheckAudioBuf(avIndex_) > 0, patienceMs);
    io()->audioControl(channel_, false);
    QTRY_COMPARE_WITH_TIMEOUT(sound.size(), 2, patienceMs);
    QVERIFY(!clientHas("listening"));
    QVERIFY(!channel_->mode(true).audioOn);
}

void TestLive::eightByteCommandMovesTheHead()
{
    constexpr quint8 right = 4;
    const double before = pan();
    SMsgAVIoctrlIPCPtzCmd message;
    message.speed = 5;
    message.control = right;
    QSignalSpy moved(io(), &IoConnect::ptzSuccessMsg);
    io()->ptzIPC({channel_, 4097, right, 8}, message);
    QTRY_COMPARE_WITH_TIMEOUT(moved.size(), 1, patienceMs);
    QCOMPARE(moved.first().at(1).toInt(), int(right));
    QTRY_VERIFY_WITH_TIMEOUT(pan() > before, patienceMs);
}

void TestLive::twelveByteCommandMovesTheHead()
{
    constexpr quint8 left = 1;
    const double before = pan();
    SMsgAVIoctrlPtzCmd message;
    message.speed = 5;
    message.control = left;
    QSignalSpy moved(io(), &IoConnect::ptzSuccessMsg);
    io()->ptzDVR({channel_, 4114, left, 12}, message);
    QTRY_COMPARE_WITH_TIMEOUT(moved.size(), 1, patienceMs);
    QCOMPARE(moved.first().at(1).toInt(), int(left));
    QTRY_VERIFY_WITH_TIMEOUT(pan() < before, patienceMs);
}

void TestLive::cruiseIsToldByTheNextQuestion()
{
    SMsgAVIoctrlPtzCmd message;
    message.speed = 5;
    for (const int command : {29, 0}) { // the auto cruise, and its end
        message.control = static_cast<quint8>(command);
        QSignalSpy state(io(), &IoConnect::getPtzMsg);
        io()->ptzDVR({channel_, 4114, command, 12}, message);
        io()->getPtz(channel_);
        QTRY_VERIFY_WITH_TIMEOUT(!state.isEmpty(), patienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(channel_->ptzState, command == 29 ? 1 : 0, patienceMs);
    }
}

void TestLive::speechArrivesInTheFileOfTheDevice()
{
    QSignalSpy started(io(), &IoConnect::audioSendControlSuccessMsg);
    QSignalSpy failed(io(), &IoConnect::audioSendControlFailMsg);
    io()->audioSendControl(channel_, true);
    QTRY_COMPARE_WITH_TIMEOUT(started.size() + failed.size(), 1, patienceMs);
    QCOMPARE(failed.size(), 0);
    QVERIFY(channel_->speaking);
    QCOMPARE(int(channel_->speechChannel), 31);
    QCOMPARE(microphone().starts, 1);
    // Four samples of A-law, whose linear values are known.
    for (int i = 0; i < 50; ++i)
        QCOMPARE(speak(channel_->talkIndex, QByteArray::fromHex("d555aa2a").repeated(40)), 0);

    QFile file(bridge().file(QStringLiteral("speech.wav")));
    const QByteArray samples = QByteArray::fromHex("0800f8ff007e0082").repeated(40 * 50);
    QTRY_COMPARE_WITH_TIMEOUT(file.size(), qint64{44 + samples.size()}, patienceMs);
    io()->audioSendControl(channel_, false);
    QTRY_COMPARE_WITH_TIMEOUT(int(channel_->talkIndex), -1, patienceMs);
    QVERIFY(!channel_->speaking);
    QTRY_COMPARE_WITH_TIMEOUT(microphone().stops, 1, patienceMs);
    QTRY_VERIFY(bridge().log().contains("speech stopped by"));
    QVERIFY(file.open(QFile::ReadOnly));
    QCOMPARE(file.readAll().mid(44), samples);
    QCOMPARE(started.size(), 1); // a stop has no signal
}

ORVA_TEST(TestLive)
#include "tst_live.moc"

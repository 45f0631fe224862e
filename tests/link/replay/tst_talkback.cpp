// SPDX-License-Identifier: GPL-3.0-or-later
#include "iotest.h"
#include "replaytest.h"
#include "testmain.h"

#include <QRegularExpression>
#include <QTest>

#include <atomic>

// How talk-back is set up and taken down.
class TestTalkBack final : public QObject
{
    Q_OBJECT

private slots:
    void startGoesFromTheMessageToTheMicrophone();
    void deviceIsToldTheSpeechChannel();
    void serverRunsOnTheSpeechChannelOfTheSession();
    void serverAcceptsWhomeverTheDevicePresents_data();
    void serverAcceptsWhomeverTheDevicePresents();
    void serverIsLogged();
    void nothingIsSaidBeforeTheLastStep();

    void messageThatIsNotTakenFailsTheStart();
    void serverThatIsNotJoinedFailsTheStart();
    void channelWithoutSoundFailsTheStart();
    void channelWithoutSoundIsToldToTheDeviceToo();

    void stopEndsTheServerAndSaysNothing();
    void stopThatIsNotTakenLeavesTheServer();
    void stopWithoutAServerStopsNone();
    void startAfterAStopServesAgain();

    void secondChannelOfADeviceCannotTalk();
    void channelsOfTwoDevicesTalkAtOnce();
    void otherCommandsWaitForTheServer();

    void serverOfAnEndedSessionIsNotTalkedTo();
    void microphoneStaysOffWhenTheSessionHasEnded();

    void everyResultStopsTheTimer();
    void timeOutEndsAMessageThatHangs();
};

namespace {

const QByteArray speechChannel = wire("1f000000 00000000");

// The second channel of a device that has two.
class TalkCase final
{
public:
    [[nodiscard]] bool start()
    {
        t.io->audioSendControl(channel, true);
        return t.settle();
    }
    [[nodiscard]] bool stop()
    {
        t.record.clear();
        t.io->audioSendControl(channel, false);
        return t.settle();
    }
    QStringList lines() const { return t.record.lines(); }
    int sid() const { return t.device->sid; }

    IoTest t{2};
    Channel* const channel = t.channel(1);
    const int liveIndex = t.avIndex(1);
    const int speechIndex = liveIndex + 1; // the next that is free
    const QString serve = QStringLiteral("avServStart3 %1").arg(sid());
    const QString clean = QStringLiteral("avClientCleanAudioBuf %1").arg(speechIndex);
    const QString measure = QStringLiteral("avServGetResendSize %1").arg(speechIndex);
    const QString end = QStringLiteral("avServStop %1").arg(speechIndex);
};

void expectLog(const QByteArray& line)
{
    QTest::ignoreMessage(QtDebugMsg, line.constData());
}

// What goes out, and what comes back to the main thread: each in its order.
QStringList ofTheLayer(const QStringList& lines)
{
    return lines.filter(QRegularExpression(QStringLiteral("^(send|av[CS])")));
}

QStringList ofTheMainThread(const QStringList& lines)
{
    return lines.filter(QRegularExpression(QStringLiteral("^(audioSend|AudioSend)")));
}

} // namespace

void TestTalkBack::startGoesFromTheMessageToTheMicrophone()
{
    TalkCase t;
    QVERIFY(t.start());
    QCOMPARE(t.lines(),
        QStringList({"send 848", t.serve, t.clean, t.measure, "AudioSend::start",
            "audioSendControlSuccessMsg 1"}));
    QCOMPARE(int(t.channel->talkIndex), t.speechIndex);
    QVERIFY(t.channel->speaking);
}

void TestTalkBack::deviceIsToldTheSpeechChannel()
{
    TalkCase t;
    QVERIFY(t.start());
    QVERIFY(t.stop());
    for (const int type : {848, 849}) {
        const LinkCall sent = t.t.link.last(LinkFn::avSendIOCtrl, ofType(type));
        QCOMPARE(sent.avIndex(), t.liveIndex);
        QCOMPARE(sent.payload(), speechChannel);
    }
    QCOMPARE(int(t.channel->speechChannel), 31);
}

void TestTalkBack::serverRunsOnTheSpeechChannelOfTheSession()
{
    TalkCase t;
    QVERIFY(t.start());
    const LinkCall served = t.t.link.last(LinkFn::avServStart3);
    QCOMPARE(served.sessionId(), t.sid());
    QCOMPARE(served.number("timeoutSec"), 20);
    QCOMPARE(served.number("serviceType"), 16);
    QCOMPARE(served.number("channelId"), 31);
    QCOMPARE(served.number("resend"), 0);
}

void TestTalkBack::serverAcceptsWhomeverTheDevicePresents_data()
{
    QTest::addColumn<QByteArray>("account");
    QTest::addColumn<QByteArray>("password");
    QTest::newRow("nobody") << QByteArray() << QByteArray();
    QTest::newRow("its own account") << QByteArray("Admin") << QByteArray("secret");
    QTest::newRow("somebody") << QByteArray("\xff\xfe") << QByteArray(300, 'x');
}

void TestTalkBack::serverAcceptsWhomeverTheDevicePresents()
{
    QFETCH(QByteArray, account);
    QFETCH(QByteArray, password);
    TalkCase t;
    t.t.device->setViewPassword(QStringLiteral("secret"));
    t.t.link.setSpeaker(account, password);
    QVERIFY(t.start());
    QVERIFY(t.channel->speaking);
}

void TestTalkBack::serverIsLogged()
{
    TalkCase t;
    t.t.link.setUnconfirmedBytes(1234);
    expectLog("talk start bRet:0 speech channel:" + QByteArray::number(t.speechIndex));
    expectLog("talk start get resend size:0 resendsize 1234");
    QVERIFY(t.start());

    QVERIFY(t.stop());
    t.t.link.next(LinkFn::avClientCleanAudioBuf).answers(-20010);
    t.t.link.next(LinkFn::avServGetResendSize).answers(-20016);
    expectLog("talk start bRet:-20010 speech channel:" + QByteArray::number(t.speechIndex));
    expectLog("talk start get resend size:-20016 resendsize 0");
    QVERIFY(t.start());
}

void TestTalkBack::nothingIsSaidBeforeTheLastStep()
{
    TalkCase t;
    std::atomic<int> steps{0};
    std::atomic<bool> spoke{false};
    for (const LinkFn step : {LinkFn::avSendIOCtrl, LinkFn::avServStart3,
             LinkFn::avClientCleanAudioBuf, LinkFn::avServGetResendSize}) {
        t.t.link.next(step).then([&](const LinkCall&) {
            ++steps;
            if (t.channel->speaking)
                spoke = true;
        });
    }
    bool speaksWhenTold = false;
    connect(t.t.io.get(), &IoConnect::audioSendControlSuccessMsg, this,
        [&](Channel* channel) { speaksWhenTold = channel->speaking; });
    QVERIFY(t.start());
    QCOMPARE(steps.load(), 4);
    QVERIFY(!spoke);
    QVERIFY(speaksWhenTold);
}

void TestTalkBack::messageThatIsNotTakenFailsTheStart()
{
    TalkCase t;
    t.t.link.next(LinkFn::avSendIOCtrl, ofType(848)).answers(-20016);
    QVERIFY(t.start());
    QCOMPARE(t.lines(),
        QStringList({"send 848", "audioSendControlFailMsg 1 -20016 Session is disconnected"}));
    QCOMPARE(int(t.channel->talkIndex), -1);
    QVERIFY(!t.channel->speaking);
}

void TestTalkBack::serverThatIsNotJoinedFailsTheStart()
{
    TalkCase t;
    t.t.link.next(LinkFn::avServStart3).answers(-20011);
    t.channel->speaking = true;
    QVERIFY(t.start());
    QCOMPARE(t.lines(),
        QStringList({"send 848", t.serve, "audioSendControlFailMsg 1 -20011 Timeout has expired"}));
    QCOMPARE(int(t.channel->talkIndex), -1);
    QVERIFY(!t.channel->speaking);
}

void TestTalkBack::channelWithoutSoundFailsTheStart()
{
    TalkCase t;
    t.t.link.next(LinkFn::avClientCleanAudioBuf).answers(-20010);
    QVERIFY(t.start());
    QCOMPARE(ofTheMainThread(t.lines()),
        QStringList({"audioSendControlFailMsg 1 0 Not Found Input Device.", "AudioSend::stop",
            "AudioSend::stop"}));
    QCOMPARE(int(t.channel->talkIndex), -1);
    QVERIFY(!t.channel->speaking);
}

void TestTalkBack::channelWithoutSoundIsToldToTheDeviceToo()
{
    TalkCase t;
    t.t.link.next(LinkFn::avClientCleanAudioBuf).answers(-20010);
    bool stopUnderWay = false;
    connect(t.t.io.get(), &IoConnect::audioSendControlFailMsg, this,
        [&](Channel* channel) { stopUnderWay = IoTest::isArmed(channel); });
    QVERIFY(t.start());
    QCOMPARE(ofTheLayer(t.lines()),
        QStringList({"send 848", t.serve, t.clean, t.measure, t.end, "send 849", "avServStop -1"}));
    QCOMPARE(t.t.record.sends().back().payload(), speechChannel);
    QVERIFY(stopUnderWay);
}

void TestTalkBack::stopEndsTheServerAndSaysNothing()
{
    TalkCase t;
    QVERIFY(t.start());
    QVERIFY(t.stop());
    QCOMPARE(t.lines(), QStringList({"send 849", t.end, "AudioSend::stop"}));
    QCOMPARE(int(t.channel->talkIndex), -1);
    QVERIFY(!t.channel->speaking);
    QCOMPARE(int(t.channel->mode(true).avIndex), t.liveIndex);
}

void TestTalkBack::stopThatIsNotTakenLeavesTheServer()
{
    TalkCase t;
    QVERIFY(t.start());
    t.t.link.next(LinkFn::avSendIOCtrl, ofType(849)).answers(-20016);
    QVERIFY(t.stop());
    QCOMPARE(t.lines(),
        QStringList({"send 849", "audioSendControlFailMsg 1 -20016 Session is disconnected"}));
    QCOMPARE(int(t.channel->talkIndex), t.speechIndex);
    QVERIFY(t.channel->speaking);
}

void TestTalkBack::stopWithoutAServerStopsNone()
{
    TalkCase t;
    QVERIFY(t.stop());
    QCOMPARE(t.lines(), QStringList({"send 849", "avServStop -1", "AudioSend::stop"}));
    QCOMPARE(t.t.record.sends().front().payload(), speechChannel);
}

void TestTalkBack::startAfterAStopServesAgain()
{
    TalkCase t;
    QVERIFY(t.start());
    QVERIFY(t.stop());
    t.t.record.clear();
    QVERIFY(t.start());
    QCOMPARE(t.lines(),
        QStringList({"send 848", t.serve, t.clean, t.measure, "AudioSend::start",
            "audioSendControlSuccessMsg 1"}));
}

void TestTalkBack::secondChannelOfADeviceCannotTalk()
{
    TalkCase t;
    QVERIFY(t.start());
    t.t.record.clear();
    t.t.io->audioSendControl(t.t.channel(0), true);
    QVERIFY(t.t.settle());
    QCOMPARE(t.lines(),
        QStringList({"send 848", t.serve, "audioSendControlFailMsg 0 -20027 Channel is used"}));
    QCOMPARE(t.t.record.sends().front().payload(), speechChannel);
    QVERIFY(!t.t.channel(0)->speaking);
    QCOMPARE(int(t.t.channel(0)->talkIndex), -1);
    QVERIFY(t.channel->speaking);
    QCOMPARE(int(t.channel->talkIndex), t.speechIndex);
}

void TestTalkBack::channelsOfTwoDevicesTalkAtOnce()
{
    TalkCase t;
    DeviceOwner other(new Device);
    other->setChannelCount(1);
    other->sid = t.t.link.openSession();
    Channel* channel = other->channel(0);
    channel->mode(true).avIndex = t.t.link.openChannel(other->sid);
    QVERIFY(t.start());
    t.t.io->audioSendControl(channel, true);
    QVERIFY(t.t.settle());
    QVERIFY(channel->speaking);
    QVERIFY(t.channel->speaking);
    QVERIFY(channel->talkIndex != t.channel->talkIndex);
    QCOMPARE(t.t.link.last(LinkFn::avServStart3).number("channelId"), 31);

    // A stop of one stops the microphone that both have.
    QVERIFY(t.stop());
    QCOMPARE(t.lines().last(), QStringLiteral("AudioSend::stop"));
    QVERIFY(channel->speaking);
}

void TestTalkBack::otherCommandsWaitForTheServer()
{
    TalkCase t;
    LinkGate gate = t.t.link.next(LinkFn::avServStart3).holds();
    t.t.io->audioSendControl(t.channel, true);
    QVERIFY(QTest::qWaitFor([&gate] { return gate.waiting() == 1; }));
    t.t.io->getQuality(t.t.channel(0));
    constexpr std::chrono::milliseconds chance{50}; // for a command that does not wait
    QVERIFY(!t.t.link.waitForCalls(1, LinkFn::avSendIOCtrl, ofType(802), chance));
    gate.release();
    QVERIFY(t.t.settle());
    const LinkCall served = t.t.link.last(LinkFn::avServStart3);
    const LinkCall sent = t.t.link.last(LinkFn::avSendIOCtrl, ofType(802));
    QVERIFY(sent.start >= served.start + served.duration);
    QVERIFY(t.channel->speaking);
}

// Its index may be another channel's by the time that the result is looked at.
void TestTalkBack::serverOfAnEndedSessionIsNotTalkedTo()
{
    TalkCase t;
    LinkGate gate = t.t.link.next(LinkFn::avServStart3).holds();
    t.t.io->audioSendControl(t.channel, true);
    QVERIFY(QTest::qWaitFor([&gate] { return gate.waiting() == 1; }));
    gate.release();
    QVERIFY(t.t.link.waitForReturns(1, LinkFn::avServStart3));
    t.t.io->disConnectDevice(t.channel);
    QVERIFY(t.t.settle());
    QCOMPARE(int(t.channel->talkIndex), -1);
    QCOMPARE(t.t.link.count(LinkFn::avClientCleanAudioBuf), 0);
    QVERIFY(!t.channel->speaking);
    QVERIFY(!t.lines().contains(QStringLiteral("AudioSend::start")));
    QCOMPARE(t.lines().last(),
        QStringLiteral("audioSendControlFailMsg 1 -20015 The remote session already closes"));
}

void TestTalkBack::microphoneStaysOffWhenTheSessionHasEnded()
{
    TalkCase t;
    LinkGate gate = t.t.link.next(LinkFn::avServGetResendSize).holds();
    t.t.io->audioSendControl(t.channel, true);
    QVERIFY(QTest::qWaitFor([&gate] { return gate.waiting() == 1; }));
    gate.release();
    QVERIFY(t.t.link.waitForReturns(1, LinkFn::avServGetResendSize));
    t.t.io->disConnectDevice(t.channel);
    QVERIFY(t.t.settle());
    QVERIFY(!t.channel->speaking);
    QVERIFY(!t.lines().contains(QStringLiteral("AudioSend::start")));
    QCOMPARE(t.lines().last(),
        QStringLiteral("audioSendControlFailMsg 1 -20015 The remote session already closes"));
}

void TestTalkBack::everyResultStopsTheTimer()
{
    TalkCase t;
    t.t.io->audioSendControl(t.channel, true);
    QVERIFY(IoTest::isArmed(t.channel));
    QVERIFY(t.t.settle());
    QVERIFY(!t.channel->ioTimer()->isActive());

    t.channel->startIoTimer();
    t.t.io->audioSendControlResult(t.channel, 0, true);
    QVERIFY(t.t.settle());
    QVERIFY(!t.channel->ioTimer()->isActive());

    t.channel->startIoTimer();
    t.t.io->audioSendServiceStartResult(t.channel, t.speechIndex);
    QVERIFY(t.t.settle());
    QVERIFY(!t.channel->ioTimer()->isActive());

    t.t.io->audioSendControl(t.channel, false);
    QVERIFY(IoTest::isArmed(t.channel));
    QVERIFY(t.t.settle());
    QVERIFY(!t.channel->ioTimer()->isActive());
}

void TestTalkBack::timeOutEndsAMessageThatHangs()
{
    TalkCase t;
    t.t.link.next(LinkFn::avSendIOCtrl, ofType(848)).hangs();
    t.t.io->audioSendControl(t.channel, true);
    QVERIFY(t.t.link.waitForCalls(1, LinkFn::avSendIOCtrl));
    IoTest::runOut(t.channel);
    QVERIFY(t.t.settle());
    QCOMPARE(t.lines(),
        QStringList({"send 848", QStringLiteral("avSendIOCtrlExit %1").arg(t.liveIndex),
            "audioSendControlFailMsg 1 -20022 Sending  is terminated "}));
}

ORVA_TEST(TestTalkBack)
#include "tst_talkback.moc"

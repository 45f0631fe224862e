// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/events.h"
#include "results.h"
#include "testmain.h"

#include <QTest>

// What becomes of the results of the steps of talk-back, and of starts that come too late.
class TestTalkBackResults final : public QObject
{
    Q_OBJECT

private slots:
    void refusedSpeakerIsReported();
    void speakerThatListensGetsAServer();
    void speakerThatStopsLosesItsServer();
    void serverThatDoesNotStartEndsTalkBack();
    void serverThatStartedIsPrepared();
    void missingMicrophoneTellsTheDeviceToStop();
    void talkBackStartsTheMicrophone();
    void talkBackThatWasSwitchedOffMeanwhileStaysOff();
    void startsOfAnEndedSessionFail();
};

void TestTalkBackResults::refusedSpeakerIsReported()
{
    IoTest t;
    QVERIFY(deliver(t, new ProgressEvent_audioSendControl(t.channel(), failed, false)));
    QCOMPARE(t.record.lines(), QStringList({failureLine("audioSendControlFailMsg")}));
}

void TestTalkBackResults::speakerThatListensGetsAServer()
{
    IoTest t;
    t.link.next(LinkFn::avServStart3).answers(failed);
    QVERIFY(deliver(t, new ProgressEvent_audioSendControl(t.channel(), 0, true)));
    QCOMPARE(t.record.lines(),
        QStringList({QStringLiteral("avServStart3 %1").arg(t.device->sid),
            failureLine("audioSendControlFailMsg")}));
}

void TestTalkBackResults::speakerThatStopsLosesItsServer()
{
    IoTest t;
    occupy(t);
    QVERIFY(deliver(t, new ProgressEvent_audioSendControl(t.channel(), 0, false)));
    QCOMPARE(t.record.lines(), QStringList({"avServStop 4000", "AudioSend::stop"}));
    QCOMPARE(int(t.channel()->talkIndex), -1);
    QVERIFY(!t.channel()->speaking);
}

void TestTalkBackResults::serverThatDoesNotStartEndsTalkBack()
{
    IoTest t;
    t.channel()->speaking = true;
    QVERIFY(deliver(t, new ProgressEvent_audioSendServiceStart(t.channel(), failed)));
    QCOMPARE(t.record.lines(), QStringList({failureLine("audioSendControlFailMsg")}));
    QVERIFY(!t.channel()->speaking);
    QCOMPARE(int(t.channel()->talkIndex), -1);
}

void TestTalkBackResults::serverThatStartedIsPrepared()
{
    IoTest t;
    t.link.next(LinkFn::avClientCleanAudioBuf).answers(0);
    QVERIFY(deliver(t, new ProgressEvent_audioSendServiceStart(t.channel(), 9)));
    QCOMPARE(t.record.lines(),
        QStringList({"avClientCleanAudioBuf 9", "avServGetResendSize 9", "AudioSend::start",
            "audioSendControlSuccessMsg 0"}));
    QCOMPARE(int(t.channel()->talkIndex), 9);
}

void TestTalkBackResults::missingMicrophoneTellsTheDeviceToStop()
{
    IoTest t;
    t.channel()->talkIndex = 9;
    QVERIFY(deliver(t, new ProgressEvent_audioSendSpeechStart(t.channel(), failed)));
    QCOMPARE(t.record.sentTypes(), QList<int>({849}));
    // Once by itself, and once more when the device has been told.
    QCOMPARE(withoutSends(t.record).filter(QStringLiteral("avServStop")),
        QStringList({"avServStop 9", "avServStop -1"}));
    QCOMPARE(withoutSends(t.record).filter(QStringLiteral("Msg")),
        QStringList({"audioSendControlFailMsg 0 0 Not Found Input Device."}));
    QCOMPARE(int(t.channel()->talkIndex), -1);
    QVERIFY(!t.channel()->speaking);
}

void TestTalkBackResults::talkBackStartsTheMicrophone()
{
    IoTest t;
    t.channel()->talkIndex = 9;
    QVERIFY(deliver(t, new ProgressEvent_audioSendSpeechStart(t.channel(), 0)));
    QCOMPARE(t.record.lines(), QStringList({"AudioSend::start", "audioSendControlSuccessMsg 0"}));
    QVERIFY(t.channel()->speaking);
}

void TestTalkBackResults::talkBackThatWasSwitchedOffMeanwhileStaysOff()
{
    IoTest t;
    QVERIFY(deliver(t, new ProgressEvent_audioSendSpeechStart(t.channel(), 0)));
    QCOMPARE(t.record.lines(), QStringList());
    QVERIFY(!t.channel()->speaking);
}

// The result was on its way while the session ended: a channel that plays on would never start again.
void TestTalkBackResults::startsOfAnEndedSessionFail()
{
    IoTest t;
    t.io->disConnectDevice(t.device.get());
    t.record.clear();
    t.channel()->talkIndex = 9;
    QVERIFY(deliver(t, new ProgressEvent_StartStream(t.channel(), 0)));
    QVERIFY(deliver(t, new ProgressEvent_stopPauseReplay(t.channel(), 0)));
    QVERIFY(deliver(t, new ProgressEvent_audioSendSpeechStart(t.channel(), 0)));
    QCOMPARE(t.record.lines(),
        QStringList({"videoRequestFailMsg 0 -20015 The remote session already closes",
            "startReplayFailMsg 0 -20015 The remote session already closes",
            "audioSendControlFailMsg 0 -20015 The remote session already closes"}));
    QVERIFY(!t.channel()->mode(true).playing);
    QVERIFY(!t.channel()->mode(false).playing);
    QVERIFY(!t.channel()->speaking);
}

ORVA_TEST(TestTalkBackResults)
#include "tst_talkbackresults.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "layercalls.h"
#include "testmain.h"

#include <QTest>

#include <climits>

using namespace layercalls;
using namespace std::chrono_literals;

namespace {

int acceptSpeaker(const char* account, const char* password)
{
    return qstrcmp(account, "speaker") == 0 && qstrcmp(password, "secret") == 0 ? 1 : 0;
}

} // namespace

class TestScriptedChannels final : public QObject
{
    Q_OBJECT

private slots:
    void init() { link.reset(); }
    void cleanup() { link.reset(); }

    void avIndicesAreTheSmallestFreeNumberOfOneSpace();
    void channelOpensOnce();
    void channelNeedsAConnectedSession();
    void channelsRunOut();
    void staleIndexIsRefusedEverywhere();
    void badArgumentsAreRefused();
    void lostDeviceIsToldOnEveryChannel();
    void scriptedIndexIsOpen();
    void closedSessionEndsCallsInFlight();
    void stoppedChannelEndsCallsInFlight();
    void takingDownEndsCallsInFlight();
    void messagesArriveInOrder();
    void receiveWaitsForAMessage();
    void receiveTimesOut();
    void tooLargeMessageIsDropped();
    void framesArriveInOrderWithNumbers();
    void framesTooLargeAreDropped();
    void lossIsToldInOrder();
    void soundIsCountedAndReceived();
    void cleaningEmptiesTheRightQueues();
    void closedIndexLosesItsQueues();
    void talkBackAsksForTheSpeaker();
    void talkBackSoundIsRecorded();

private:
    ScriptedLink& link = ScriptedLink::instance();
};

void TestScriptedChannels::avIndicesAreTheSmallestFreeNumberOfOneSpace()
{
    const int one = link.openSession();
    const int two = link.openSession();
    QCOMPARE(startClient(one), 0);
    QCOMPARE(startServer(two), 1);
    QCOMPARE(startClient(two), 2);
    IOTC_Session_Close(one);
    QCOMPARE(startClient(two, 1), 0);
    avServStop(1);
    QCOMPARE(link.openIndices(), (std::vector<int>{0, 2}));
}

void TestScriptedChannels::channelOpensOnce()
{
    const int session = link.openSession();
    unsigned serviceType = 99;
    int resend = 99;
    QCOMPARE(avClientStart2(session, "a", "b", 5, &serviceType, 3, &resend), 0);
    QCOMPARE(serviceType, 0U);
    QCOMPARE(resend, 0);
    QCOMPARE(avClientStart2(session, "a", "b", 5, &serviceType, 3, &resend), -20027);
    avServStop(0);
    QCOMPARE(avClientStart2(session, "a", "b", 5, &serviceType, 3, &resend), -20027);
    avClientStop(0);
    QCOMPARE(avClientStart2(session, "a", "b", 5, &serviceType, 3, &resend), 0);
}

void TestScriptedChannels::channelNeedsAConnectedSession()
{
    link.initialize();
    const int reserved = IOTC_Get_SessionID();
    QCOMPARE(startClient(reserved), -20010);
    QCOMPARE(startClient(-1), -20010);
    QCOMPARE(startServer(5000), -20010);
}

void TestScriptedChannels::channelsRunOut()
{
    IOTC_Initialize2(0);
    QCOMPARE(avInitialize(1), 1);
    Reports reports;
    connectTo(IOTC_Get_SessionID(), reports);
    QVERIFY(reports.wait(1));
    QCOMPARE(startClient(0), 0);
    QCOMPARE(startClient(0, 1), -20002);
}

void TestScriptedChannels::staleIndexIsRefusedEverywhere()
{
    const int av = link.openChannel(link.openSession());
    avClientStop(av);
    for (const int index : {av, -1, 4096, INT_MIN, INT_MAX})
        QVERIFY(allAre(channelCalls(index), -20010));
    IOTC_Session_Close(-1);
    IOTC_Session_Close(INT_MAX);
    QCOMPARE(IOTC_Connect_Stop_BySID(-1), -14);
}

void TestScriptedChannels::badArgumentsAreRefused()
{
    const int session = link.openSession();
    const int av = link.openChannel(session);
    std::array<char, 16> bytes{};
    unsigned number = 0;
    QCOMPARE(avClientStart2(session, nullptr, "b", 5, nullptr, 1, nullptr), -20000);
    QCOMPARE(avClientStart2(session, "a", nullptr, 5, nullptr, 1, nullptr), -20000);
    QCOMPARE(avServStart3(session, nullptr, 20, 16, 31, nullptr), -20000);
    QCOMPARE(avSendIOCtrl(av, 255, nullptr, 4), -20000);
    QCOMPARE(avSendIOCtrl(av, 255, "x", 0), -20006);
    QCOMPARE(avSendIOCtrl(av, 255, QByteArray(1025, 'x').constData(), 1025), -20006);
    QCOMPARE(avSendIOCtrl(av, 255, QByteArray(1024, 'x').constData(), 1024), 0);
    QCOMPARE(avRecvIOCtrl(av, nullptr, bytes.data(), 16, 0), -20000);
    QCOMPARE(avRecvIOCtrl(av, &number, nullptr, 16, 0), -20000);
    QCOMPARE(avRecvIOCtrl(av, &number, bytes.data(), 0, 0), -20000);
    QCOMPARE(avRecvAudioData(av, nullptr, 16, bytes.data(), 16, &number), -20000);
    QCOMPARE(avRecvAudioData(av, bytes.data(), -1, bytes.data(), 16, &number), -20000);
    QCOMPARE(avRecvAudioData(av, bytes.data(), 16, bytes.data(), 15, &number), -20000);
    QCOMPARE(avSendAudioData(av, nullptr, 16, bytes.data(), 16), -20000);
    QCOMPARE(avSendAudioData(av, bytes.data(), 16, bytes.data(), 8), -20000);
    QCOMPARE(avServGetResendSize(av, nullptr), -20000);
    QCOMPARE(IOTC_Search_Device_Start(0, 1000), -46);
    QCOMPARE(IOTC_Search_Device_Result(nullptr, 256, 1), -46);
}

void TestScriptedChannels::lostDeviceIsToldOnEveryChannel()
{
    std::future<int> call;
    const int session = link.openSession();
    const int av = link.openChannel(session);
    const auto gate = link.next(LinkFn::avSendIOCtrl).holds();
    call = onThread([av] { return send(av); });
    QVERIFY(gate.waitUntilReached());
    link.loseDevice(session);
    QCOMPARE(call.get(), -20016);
    QCOMPARE(receiveVideo(av).result, -20016);
    QCOMPARE(startClient(session, 1), -20016);
}

void TestScriptedChannels::scriptedIndexIsOpen()
{
    const int session = link.openSession();
    link.next(LinkFn::avClientStart2).answers(12);
    QCOMPARE(startClient(session), 12);
    QCOMPARE(send(12), 0);
    IOTC_Session_Close(session);
    QCOMPARE(send(12), -20010);
}

void TestScriptedChannels::closedSessionEndsCallsInFlight()
{
    std::vector<std::future<int>> calls;
    const int session = link.openSession();
    const int av = link.openChannel(session);
    link.next(LinkFn::avSendIOCtrl).hangs();
    link.next(LinkFn::avClientStart2).hangs();
    calls.push_back(onThread([av] { return send(av); }));
    calls.push_back(receiveOnThread(av));
    calls.push_back(onThread([=] { return startClient(session, 1); }));
    QVERIFY(link.waitForCalls(1, LinkFn::avSendIOCtrl));
    QVERIFY(link.waitForCalls(1, LinkFn::avRecvIOCtrl));
    QVERIFY(link.waitForCalls(1, LinkFn::avClientStart2));
    IOTC_Session_Close(session);
    for (auto& call : calls)
        QCOMPARE(call.get(), -20015);
    QCOMPARE(send(av), -20010);
}

void TestScriptedChannels::stoppedChannelEndsCallsInFlight()
{
    std::future<int> client;
    std::future<int> server;
    const int session = link.openSession();
    const int av = link.openChannel(session);
    const int speech = startServer(session);
    client = receiveOnThread(av);
    server = receiveOnThread(speech);
    QVERIFY(link.waitForCalls(2, LinkFn::avRecvIOCtrl));
    avClientStop(av);
    avServStop(speech);
    QCOMPARE(client.get(), -20018);
    QCOMPARE(server.get(), -20017);
}

void TestScriptedChannels::takingDownEndsCallsInFlight()
{
    std::future<int> call;
    const int av = link.openChannel(link.openSession());
    call = receiveOnThread(av);
    QVERIFY(link.waitForCalls(1, LinkFn::avRecvIOCtrl));
    QCOMPARE(IOTC_DeInitialize(), 0);
    QCOMPARE(call.get(), -20026);
}

void TestScriptedChannels::messagesArriveInOrder()
{
    const int av = link.openChannel(link.openSession());
    link.queueMessage(av, 801, "one");
    link.queueMessage(av, 803, QByteArray("\0\1", 2));
    link.queueMessage(av, 785, QByteArray());
    QCOMPARE(receive(av).bytes, QByteArray("one"));
    const Message second = receive(av, 0, 2);
    QCOMPARE(second.type, 803U);
    QCOMPARE(second.bytes, QByteArray("\0\1", 2));
    QCOMPARE(receive(av).result, 0);
    QCOMPARE(receive(av).result, -20011);
}

void TestScriptedChannels::receiveWaitsForAMessage()
{
    std::future<int> call;
    const int av = link.openChannel(link.openSession());
    call = receiveOnThread(av);
    QVERIFY(link.waitForCalls(1, LinkFn::avRecvIOCtrl));
    QCOMPARE(avSendIOCtrlExit(av), 0);
    QCOMPARE(link.inFlight(LinkFn::avRecvIOCtrl), 1);
    link.queueMessage(av, 801, "four");
    QCOMPARE(call.get(), 4);
}

void TestScriptedChannels::receiveTimesOut()
{
    const int av = link.openChannel(link.openSession());
    QCOMPARE(receive(av, 20).result, -20011);
    QVERIFY(link.last(LinkFn::avRecvIOCtrl).duration >= 20ms);
    QCOMPARE(link.last(LinkFn::avRecvIOCtrl).number("timeoutMs"), 20);
}

void TestScriptedChannels::tooLargeMessageIsDropped()
{
    const int av = link.openChannel(link.openSession());
    link.queueMessage(av, 801, "four");
    link.queueMessage(av, 803, "fit");
    QCOMPARE(receive(av, 0, 3).result, -20001);
    QCOMPARE(receive(av, 0, 3).bytes, QByteArray("fit"));
}

void TestScriptedChannels::framesArriveInOrderWithNumbers()
{
    link.queueVideo(0, "key", {80, 1, 0x01020304});
    const int av = link.openChannel(link.openSession());
    link.queueVideo(av, "delta", {80, 0, 0});
    link.queueVideo(av, "later", {80, 0, 0}, 9);
    const Frame key = receiveVideo(av);
    QCOMPARE(key.bytes, QByteArray("key"));
    QCOMPARE(key.info, QByteArray::fromHex("50000100000000000000000004030201"));
    QCOMPARE(key.actualSize, 3);
    QCOMPARE(key.expectedSize, 3);
    QCOMPARE(key.infoSize, 16);
    QCOMPARE(key.number, 0U);
    QCOMPARE(receiveVideo(av).number, 1U);
    QCOMPARE(receiveVideo(av).number, 9U);
    QCOMPARE(receiveVideo(av).result, -20012);
}

void TestScriptedChannels::framesTooLargeAreDropped()
{
    const int av = link.openChannel(link.openSession());
    link.queueVideo(av, "larger");
    link.queueVideo(av, "fits");
    link.queueSound(av, "larger");
    const Frame larger = receiveVideo(av, 4);
    QCOMPARE(larger.result, -20001);
    QCOMPARE(larger.expectedSize, 6);
    QCOMPARE(receiveVideo(av, 4).bytes, QByteArray("fits"));
    QCOMPARE(receiveSound(av, 4).result, -20001);
    QCOMPARE(receiveSound(av, 4).result, -20012);
}

void TestScriptedChannels::lossIsToldInOrder()
{
    const int av = link.openChannel(link.openSession());
    link.queueVideo(av, "one");
    link.queueVideoResult(av, -20014);
    link.queueVideo(av, "three");
    link.queueSoundResult(av, -20013);
    QCOMPARE(receiveVideo(av).number, 0U);
    QCOMPARE(receiveVideo(av).result, -20014);
    QCOMPARE(receiveVideo(av).number, 2U);
    QCOMPARE(avCheckAudioBuf(av), 1);
    QCOMPARE(receiveSound(av).result, -20013);
}

void TestScriptedChannels::soundIsCountedAndReceived()
{
    const int av = link.openChannel(link.openSession());
    QCOMPARE(avCheckAudioBuf(av), 0);
    link.queueSound(av, "one");
    link.queueSound(av, "two");
    QCOMPARE(avCheckAudioBuf(av), 2);
    const Frame one = receiveSound(av);
    QCOMPARE(one.bytes, QByteArray("one"));
    QCOMPARE(one.info, LinkFrameInfo({138, 0, 0}).bytes());
    QCOMPARE(receiveSound(av).number, 1U);
    QCOMPARE(avCheckAudioBuf(av), 0);
}

void TestScriptedChannels::cleaningEmptiesTheRightQueues()
{
    const int av = link.openChannel(link.openSession());
    link.queueMessage(av, 801, "stays");
    link.queueVideo(av, "frame");
    link.queueSound(av, "sound");
    QCOMPARE(avClientCleanAudioBuf(av), 0);
    QCOMPARE(link.waitingSound(av), 0);
    QCOMPARE(link.waitingVideo(av), 1);
    link.queueSound(av, "sound");
    QCOMPARE(avClientCleanBuf(av), 0);
    QCOMPARE(link.waitingSound(av), 0);
    QCOMPARE(link.waitingVideo(av), 0);
    QCOMPARE(link.waitingMessages(av), 1);
}

void TestScriptedChannels::closedIndexLosesItsQueues()
{
    const int session = link.openSession();
    const int av = link.openChannel(session);
    link.queueVideo(av, "old");
    avClientStop(av);
    QCOMPARE(link.openChannel(session), av);
    QCOMPARE(receiveVideo(av).result, -20012);
}

void TestScriptedChannels::talkBackAsksForTheSpeaker()
{
    const int session = link.openSession();
    int resend = 99;
    QCOMPARE(avServStart3(session, acceptSpeaker, 20, 16, 31, &resend), -20011);
    link.setSpeaker("speaker", "secret");
    QCOMPARE(avServStart3(session, acceptSpeaker, 20, 16, 31, &resend), 0);
    QCOMPARE(resend, 0);
    QCOMPARE(link.last(LinkFn::avServStart3).number("serviceType"), 16);
    QCOMPARE(link.last(LinkFn::avServStart3).number("channelId"), 31);
    QCOMPARE(startServer(session), -20027);
}

void TestScriptedChannels::talkBackSoundIsRecorded()
{
    const int session = link.openSession();
    const int client = link.openChannel(session);
    const int speech = startServer(session);
    const QByteArray sound(320, 's');
    const QByteArray info = LinkFrameInfo({138, 2, 0}).bytes();
    unsigned size = 0;
    link.setUnconfirmedBytes(640);
    QCOMPARE(avClientCleanAudioBuf(speech), 0);
    QCOMPARE(avServGetResendSize(speech, &size), 0);
    QCOMPARE(size, 640U);
    QCOMPARE(avSendAudioData(speech, sound.constData(), 320, info.constData(), 16), 0);
    QCOMPARE(link.last(LinkFn::avSendAudioData).payload(), sound);
    QCOMPARE(link.last(LinkFn::avSendAudioData).bytes("frameInfo"), info);
    QCOMPARE(avSendAudioData(client, sound.constData(), 320, info.constData(), 16), -20020);
}

ORVA_TEST(TestScriptedChannels)
#include "tst_scriptedchannels.moc"

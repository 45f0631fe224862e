// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/errormsg.h"
#include "iotest.h"
#include "testmain.h"

#include <QRegularExpression>
#include <QTest>

#include <functional>

using Operation = std::function<void(IoConnect& io, Channel* channel)>;

// The commands of live view: what they send, and what they tell. The channel of most of these tests
// is number 2, on AV index 3.
class TestLive final : public QObject
{
    Q_OBJECT

private slots:
    void commandSendsItsMessages_data();
    void commandSendsItsMessages();
    void onlyCommandsThatMustNotHangArmTheIoTimer_data();
    void onlyCommandsThatMustNotHangArmTheIoTimer();
    void failedCommandTellsAndChangesNothing_data();
    void failedCommandTellsAndChangesNothing();

    void startAsksForPicturesAndThenPlays();
    void startTellsThatItWaitsBeforeAnythingIsSent();
    void startThatFailsAtTheFirstMessageSendsNoSecond();
    void startThatFailsAtTheSecondMessageGoesOnWaiting();
    void startWithSoundOnSwitchesTheSoundOnLast();
    void startEmptiesTheBuffersOfIndexZeroWhicheverChannelItIs();

    void stopEndsRecordingAndStreamBeforeTheDeviceIsAsked();
    void stopOfAnOpenTileLeavesTalkBackAlone();
    void stopOfAClosedTileEndsTalkBack();
    void stopThatFailsHasEndedTheStreamAllTheSame();
    void stopWithRestartStartsAgain();
    void stopWithRestartThatFailsDoesNotStart();

    void changeOfQualityRestartsTheStream();
    void changeOfQualityRestartsTheSoundToo();
    void changeOfQualityThatFailsLeavesTheStream();
    void changedQualityIsReadBackAndTold();

    void soundCountsForTheModeInWhichItsResultArrives();
    void ptzStateIsNotAskedOfAChannelThatIsNotConnected();
    void ptzStateThatCannotBeAskedForIsNotTold();
    void ptzMessageIsSentInItsLength();

    void connectedChannelIsAskedForVersionQualityAndPtz();
    void channelThatCannotBeAskedForItsVersionIsConnected();
    void channelThatIsNotConnectedTellsWhy();
    void replayThatIsNotConnectedTellsWhy();
    void replayChannelThatIsConnectedPlays();
};

namespace {

struct Row
{
    const char* name;
    Operation operation;
    const char* messages; // type, colon, bytes in hex
    bool arms;
    const char* failSignal; // null: none
};

const QVector<Row> rows{
    {"startLive", [](IoConnect& io, Channel* c) { io.startLive(c); },
        "255:0000 511:0200000000000000", true, "videoRequestFailMsg"},
    {"stopLife", [](IoConnect& io, Channel* c) { io.stopLife(c, false); }, "767:0200000000000000",
        true, "videoRequestStopFailMsg"},
    {"getQuality", [](IoConnect& io, Channel* c) { io.getQuality(c); }, "802:0200000000000000",
        false, "getQualityFailMsg"},
    {"setQuality high", [](IoConnect& io, Channel* c) { io.setQuality(c, true); },
        "800:0200000001000000 767:0200000000000000 255:0000 511:0200000000000000", true,
        "setQualityFailMsg"},
    {"setQuality low", [](IoConnect& io, Channel* c) { io.setQuality(c, false); },
        "800:0200000000000000 767:0200000000000000 255:0000 511:0200000000000000", true,
        "setQualityFailMsg"},
    {"audioControl on", [](IoConnect& io, Channel* c) { io.audioControl(c, true); }, "768:00000000",
        false, "audioControlFailMsg"},
    {"audioControl off", [](IoConnect& io, Channel* c) { io.audioControl(c, false); },
        "769:00000000", false, "audioControlFailMsg"},
    {"getPtz", [](IoConnect& io, Channel* c) { io.getPtz(c); }, "4353:0000000000000000", false,
        nullptr},
    {"ptzIPC",
        [](IoConnect& io, Channel* c) {
            SMsgAVIoctrlIPCPtzCmd message;
            message.control = 15;
            message.speed = 4;
            message.channel = 2;
            io.ptzIPC({c, 4097, 15, 8}, message);
        },
        "4097:0f04000000020000", false, "ptzFailMsg"},
    {"ptzDVR",
        [](IoConnect& io, Channel* c) {
            SMsgAVIoctrlPtzCmd message;
            message.control = 6;
            message.speed = 8;
            message.channel = 2;
            message.point = 9;
            io.ptzDVR({c, 4114, 6, 12}, message);
        },
        "4114:060800000200000009000000", false, "ptzFailMsg"},
};

QString messagesOf(const HappeningRecord& record)
{
    QStringList messages;
    for (const LinkCall& call : record.sends())
        messages.append(QStringLiteral("%1:%2")
                            .arg(call.type())
                            .arg(QString::fromLatin1(call.payload().toHex())));
    return messages.join(QLatin1Char(' '));
}

constexpr int failed = -20016;

QString failureLine(const char* signal)
{
    return QStringLiteral("%1 2 -20016 Session is disconnected").arg(QLatin1String(signal));
}

void columns()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("messages");
    QTest::addColumn<bool>("arms");
    QTest::addColumn<QByteArray>("failSignal");
}

void addRows()
{
    columns();
    for (const Row& row : rows)
        QTest::newRow(row.name) << row.operation << QString::fromLatin1(row.messages) << row.arms
                                << QByteArray(row.failSignal);
}

const QStringList startLines{
    "waitingStreamMsg 2", "avClientCleanBuf 0", "send 255", "send 511", "videoRequestSuccessMsg 2"};
const QStringList stopLines{
    "ViewControl::setRecord 2 off", "Decode::removeStream 2 live", "send 767"};

// The lines of the signals.
QStringList signalLines(const HappeningRecord& record)
{
    return record.lines().filter(QRegularExpression(QStringLiteral("^\\w+Msg")));
}

} // namespace

Q_DECLARE_METATYPE(Operation)

void TestLive::commandSendsItsMessages_data()
{
    addRows();
}

void TestLive::commandSendsItsMessages()
{
    QFETCH(Operation, operation);
    QFETCH(QString, messages);
    IoTest t(3);
    t.channel(2)->mode(true).open = true;
    operation(*t.io, t.channel(2));
    QVERIFY(t.settle());
    QCOMPARE(messagesOf(t.record), messages);
    for (const LinkCall& call : t.record.sends())
        QCOMPARE(call.avIndex(), 3);
}

void TestLive::onlyCommandsThatMustNotHangArmTheIoTimer_data()
{
    addRows();
}

void TestLive::onlyCommandsThatMustNotHangArmTheIoTimer()
{
    QFETCH(Operation, operation);
    QFETCH(bool, arms);
    IoTest t(3);
    operation(*t.io, t.channel(2));
    QCOMPARE(IoTest::isArmed(t.channel(2)), arms);
    QVERIFY(t.settle());
    QVERIFY(!t.channel(2)->ioTimer()->isActive());
}

void TestLive::failedCommandTellsAndChangesNothing_data()
{
    addRows();
}

void TestLive::failedCommandTellsAndChangesNothing()
{
    QFETCH(Operation, operation);
    QFETCH(QByteArray, failSignal);
    IoTest t(3);
    ChannelMode& live = t.channel(2)->mode(true);
    live.open = true;
    live.playing = true;
    live.audioOn = true;
    t.link.next(LinkFn::avSendIOCtrl).answers(failed);
    operation(*t.io, t.channel(2));
    QVERIFY(t.settle());
    QCOMPARE(t.record.sends().size(), std::size_t(1));
    const QStringList failure =
        failSignal.isEmpty() ? QStringList() : QStringList({failureLine(failSignal.constData())});
    QCOMPARE(
        signalLines(t.record).filter(QRegularExpression(QStringLiteral("^(?!waiting)"))), failure);
    QVERIFY(live.open);
    QVERIFY(live.playing);
    QVERIFY(live.audioOn);
    QCOMPARE(int(live.avIndex), 3);
}

void TestLive::startAsksForPicturesAndThenPlays()
{
    IoTest t(3);
    bool playedBySignal = false;
    connect(t.io.get(), &IoConnect::videoRequestSuccessMsg, this,
        [&](Channel* channel) { playedBySignal = channel->mode(true).playing; });
    t.io->startLive(t.channel(2));
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), startLines);
    QVERIFY(playedBySignal);
    QVERIFY(t.channel(2)->mode(true).waiting);
    QVERIFY(!t.channel(2)->mode(false).playing);
}

void TestLive::startTellsThatItWaitsBeforeAnythingIsSent()
{
    IoTest t(3);
    bool waits = false;
    bool armed = false;
    connect(t.io.get(), &IoConnect::waitingStreamMsg, this, [&](Channel* channel) {
        waits = channel->mode(true).waiting;
        armed = IoTest::isArmed(channel);
    });
    t.io->startLive(t.channel(2));
    QVERIFY(waits);
    QVERIFY(armed);
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines().first(), QStringLiteral("waitingStreamMsg 2"));
}

void TestLive::startThatFailsAtTheFirstMessageSendsNoSecond()
{
    IoTest t(3);
    t.link.next(LinkFn::avSendIOCtrl, ofType(255)).answers(failed);
    t.io->startLive(t.channel(2));
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(),
        QStringList({"waitingStreamMsg 2", "avClientCleanBuf 0", "send 255",
            failureLine("videoRequestFailMsg")}));
    QVERIFY(!t.channel(2)->mode(true).playing);
    QVERIFY(t.channel(2)->mode(true).waiting);
}

void TestLive::startThatFailsAtTheSecondMessageGoesOnWaiting()
{
    IoTest t(3);
    t.link.next(LinkFn::avSendIOCtrl, ofType(511)).answers(failed);
    t.io->startLive(t.channel(2));
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(),
        QStringList({"waitingStreamMsg 2", "avClientCleanBuf 0", "send 255", "send 511",
            failureLine("videoRequestFailMsg")}));
    QVERIFY(!t.channel(2)->mode(true).playing);
    QVERIFY(t.channel(2)->mode(true).waiting);
}

void TestLive::startWithSoundOnSwitchesTheSoundOnLast()
{
    IoTest t(3);
    t.channel(2)->mode(true).audioOn = true;
    t.io->startLive(t.channel(2));
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), startLines + QStringList({"send 768", "audioControlSuccessMsg 2"}));
}

void TestLive::startEmptiesTheBuffersOfIndexZeroWhicheverChannelItIs()
{
    IoTest t(3);
    for (const int number : {0, 1, 2})
        t.io->startLive(t.channel(number));
    QVERIFY(t.settle());
    QCOMPARE(t.link.count(LinkFn::avClientCleanBuf), 3);
    QCOMPARE(t.link.count(LinkFn::avClientCleanBuf, onIndex(0)), 3);
}

void TestLive::stopEndsRecordingAndStreamBeforeTheDeviceIsAsked()
{
    IoTest t(3);
    ChannelMode& live = t.channel(2)->mode(true);
    live.open = true;
    live.playing = true;
    t.channel(2)->setRecord(true, true);
    bool playedBySignal = true;
    connect(t.io.get(), &IoConnect::videoRequestStopSuccessMsg, this,
        [&](Channel* channel) { playedBySignal = channel->mode(true).playing; });
    t.io->stopLife(t.channel(2), false);
    QVERIFY(!live.record);
    QVERIFY(live.playing);
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), stopLines + QStringList({"videoRequestStopSuccessMsg 2"}));
    QVERIFY(!playedBySignal);
    QVERIFY(live.open);
}

void TestLive::stopOfAnOpenTileLeavesTalkBackAlone()
{
    IoTest t(3);
    t.channel(2)->mode(true).open = true;
    t.channel(2)->speaking = true;
    t.io->stopLife(t.channel(2), false);
    QVERIFY(t.settle());
    QCOMPARE(t.record.sentTypes(), QList<int>({767}));
    QVERIFY(t.channel(2)->speaking);
}

void TestLive::stopOfAClosedTileEndsTalkBack()
{
    IoTest t(3);
    t.channel(2)->speaking = true;
    t.channel(2)->talkIndex = 9;
    t.io->stopLife(t.channel(2), false);
    QVERIFY(t.settle());
    QCOMPARE(messagesOf(t.record), QStringLiteral("767:0200000000000000 849:1f00000000000000"));
    QCOMPARE(signalLines(t.record), QStringList({"videoRequestStopSuccessMsg 2"}));
    QCOMPARE(t.record.lines().mid(t.record.lines().size() - 2),
        QStringList({"avServStop 9", "AudioSend::stop"}));
    QVERIFY(!t.channel(2)->speaking);
}

void TestLive::stopThatFailsHasEndedTheStreamAllTheSame()
{
    IoTest t(3);
    t.channel(2)->mode(true).playing = true;
    t.link.next(LinkFn::avSendIOCtrl, ofType(767)).answers(failed);
    t.io->stopLife(t.channel(2), false);
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), stopLines + QStringList({failureLine("videoRequestStopFailMsg")}));
    QVERIFY(t.channel(2)->mode(true).playing);
}

void TestLive::stopWithRestartStartsAgain()
{
    IoTest t(3);
    t.channel(2)->mode(true).open = true;
    t.io->stopLife(t.channel(2), true);
    QVERIFY(t.settle());
    QCOMPARE(
        t.record.lines(), stopLines + QStringList({"videoRequestStopSuccessMsg 2"}) + startLines);
    QVERIFY(t.channel(2)->mode(true).playing);
}

void TestLive::stopWithRestartThatFailsDoesNotStart()
{
    IoTest t(3);
    t.link.next(LinkFn::avSendIOCtrl, ofType(767)).answers(failed);
    t.io->stopLife(t.channel(2), true);
    QVERIFY(t.settle());
    QCOMPARE(t.record.sentTypes(), QList<int>({767}));
    QVERIFY(!t.channel(2)->mode(true).waiting);
}

void TestLive::changeOfQualityRestartsTheStream()
{
    IoTest t(3);
    t.channel(2)->mode(true).open = true;
    t.io->setQuality(t.channel(2), true);
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(),
        QStringList({"send 800"}) + stopLines + QStringList({"videoRequestStopSuccessMsg 2"})
            + startLines);
}

void TestLive::changeOfQualityRestartsTheSoundToo()
{
    IoTest t(3);
    t.channel(2)->mode(true).open = true;
    t.channel(2)->mode(true).audioOn = true;
    t.io->setQuality(t.channel(2), false);
    QVERIFY(t.settle());
    QCOMPARE(t.record.sentTypes(), QList<int>({800, 767, 255, 511, 768}));
    QVERIFY(t.channel(2)->mode(true).audioOn);
}

void TestLive::changeOfQualityThatFailsLeavesTheStream()
{
    IoTest t(3);
    t.link.next(LinkFn::avSendIOCtrl, ofType(800)).answers(failed);
    t.io->setQuality(t.channel(2), true);
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), QStringList({"send 800", failureLine("setQualityFailMsg")}));
}

void TestLive::changedQualityIsReadBackAndTold()
{
    IoTest t(3);
    t.channel(2)->mode(true).open = true;
    QVERIFY(t.startReceiving(2));
    t.link.next(LinkFn::avSendIOCtrl, ofType(800)).replies(801, QByteArray(4, '\0'));
    t.link.next(LinkFn::avSendIOCtrl, ofType(802)).replies(803, QByteArray::fromHex("0200000001"));
    t.io->setQuality(t.channel(2), true);
    QTRY_VERIFY(t.record.lines().contains(QStringLiteral("changeQualitySuccessMsg 2")));
    QVERIFY(t.channel(2)->mode(true).highQuality);
    QVERIFY(!t.channel(2)->mode(false).highQuality);
    QVERIFY(t.settle());
    const QStringList ofTheAnswers{"send 800", "send 802", "changeQualitySuccessMsg 2"};
    const auto isOfThem = [&](const QString& line) { return ofTheAnswers.contains(line); };
    QStringList found;
    const QStringList lines = t.record.lines();
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(found), isOfThem);
    QCOMPARE(found, ofTheAnswers);
}

void TestLive::soundCountsForTheModeInWhichItsResultArrives()
{
    IoTest t(3);
    auto gate = t.link.next(LinkFn::avSendIOCtrl, ofType(768)).holds();
    t.io->audioControl(t.channel(2), true);
    QVERIFY(gate.waitUntilReached());
    t.viewControl.isLive = false;
    gate.release();
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), QStringList({"send 768", "audioControlSuccessMsg 2"}));
    QVERIFY(t.channel(2)->mode(false).audioOn);
    QVERIFY(!t.channel(2)->mode(true).audioOn);
}

void TestLive::ptzStateIsNotAskedOfAChannelThatIsNotConnected()
{
    IoTest t(3);
    t.channel(2)->mode(true).avIndex = -1;
    t.io->getPtz(t.channel(2));
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), QStringList());
}

void TestLive::ptzStateThatCannotBeAskedForIsNotTold()
{
    IoTest t(3);
    t.link.next(LinkFn::avSendIOCtrl).answers(failed);
    t.io->getPtz(t.channel(2));
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), QStringList({"send 4353"}));
}

void TestLive::ptzMessageIsSentInItsLength()
{
    IoTest t(3);
    t.io->ptzIPC({t.channel(2), 4097, 15, 8}, SMsgAVIoctrlIPCPtzCmd{});
    t.io->ptzDVR({t.channel(2), 4114, 6, 12}, SMsgAVIoctrlPtzCmd{});
    QVERIFY(t.settle());
    const auto sends = t.record.sends();
    QCOMPARE(sends.size(), std::size_t(2));
    QCOMPARE(sends[0].number("size"), 8);
    QCOMPARE(sends[1].number("size"), 12);
    QCOMPARE(signalLines(t.record), QStringList({"ptzSuccessMsg 2 15", "ptzSuccessMsg 2 6"}));
}

void TestLive::connectedChannelIsAskedForVersionQualityAndPtz()
{
    IoTest t(3);
    t.channel(2)->mode(true).avIndex = -1;
    t.link.next(LinkFn::avClientStart2).answers(7);
    t.io->connect(t.channel(2));
    QVERIFY(t.settle());
    const QStringList calls =
        t.record.lines().filter(QRegularExpression(QStringLiteral("^(?!\\w+Msg)")));
    QCOMPARE(calls,
        QStringList({QStringLiteral("avClientStart2 %1").arg(t.device->sid), "send 13083",
            "send 802", "send 4353"}));
    QCOMPARE(signalLines(t.record),
        QStringList({"connectDevSuccessMsg 2", "connectChannelSuccessMsg 2"}));
    for (const LinkCall& call : t.record.sends())
        QCOMPARE(call.avIndex(), 7);
    QCOMPARE(t.record.sends().at(0).payload(), QByteArray(64, '\0'));
    QVERIFY(t.link.count(LinkFn::avRecvIOCtrl, onIndex(7)) > 0);
}

void TestLive::channelThatCannotBeAskedForItsVersionIsConnected()
{
    IoTest t(3);
    t.link.next(LinkFn::avSendIOCtrl, ofType(13083)).answers(failed);
    t.io->getChannelVersion(t.channel(2));
    QVERIFY(IoTest::isArmed(t.channel(2)));
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), QStringList({"send 13083", "connectChannelSuccessMsg 2"}));
}

void TestLive::channelThatIsNotConnectedTellsWhy()
{
    IoTest t(3);
    t.channel(2)->mode(true).avIndex = -1;
    t.link.next(LinkFn::avClientStart2).answers(-20009);
    t.io->connect(t.channel(2));
    QVERIFY(t.settle());
    QCOMPARE(signalLines(t.record),
        QStringList({"connectDevSuccessMsg 2",
            "connectChannelFailMsg 2 -20009 Incorrect view account or password"}));
    QVERIFY(t.record.sends().empty());
    QCOMPARE(t.link.count(LinkFn::avRecvIOCtrl), 0);
}

void TestLive::replayThatIsNotConnectedTellsWhy()
{
    IoTest t(3);
    t.link.next(LinkFn::avClientStart2).answers(-20009);
    t.io->connectChannel(t.channel(2), 20, false);
    QVERIFY(t.settle());
    QCOMPARE(signalLines(t.record),
        QStringList({"startReplayFailMsg 2 -20009 Incorrect view account or password"}));
    QVERIFY(!t.channel(2)->mode(false).playing);
}

void TestLive::replayChannelThatIsConnectedPlays()
{
    IoTest t(3);
    bool playedBySignal = false;
    connect(t.io.get(), &IoConnect::startReplaySuccessMsg, this,
        [&](Channel* channel) { playedBySignal = channel->mode(false).playing; });
    t.io->connectChannel(t.channel(2), 20, false);
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(),
        QStringList(
            {QStringLiteral("avClientStart2 %1").arg(t.device->sid), "startReplaySuccessMsg 2"}));
    QCOMPARE(t.link.last(LinkFn::avClientStart2).number("channelId"), 20);
    QVERIFY(playedBySignal);
    QVERIFY(!t.channel(2)->mode(true).playing);
}

ORVA_TEST(TestLive)
#include "tst_live.moc"

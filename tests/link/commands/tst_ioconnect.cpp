// SPDX-License-Identifier: GPL-3.0-or-later
#include "IOTCAPIs.h"
#include "cloud/errormsg.h"
#include "iotest.h"
#include "model/events.h"
#include "results.h"
#include "testmain.h"

#include <QTest>

#include <functional>

// What becomes of the results of commands.
class TestIoConnect final : public QObject
{
    Q_OBJECT

private slots:
    void failureHasItsSignalAndChangesNothing_data();
    void failureHasItsSignalAndChangesNothing();
    void successOfASentMessageSaysNothing_data();
    void successOfASentMessageSaysNothing();
    void everyResultStopsTheIoTimer_data();
    void everyResultStopsTheIoTimer();
    void textOfAFailureIsThatOfTheLibrarysResult();

    // Live view.
    void stoppedStreamNoLongerPlays();
    void stoppedStreamOfAClosedTileEndsTalkBack();
    void stoppedStreamStartsAgainWhereARestartIsAsked();
    void startedStreamPlays();
    void startedStreamGetsItsSoundBack();
    void changedQualityRestartsTheStream();
    void soundBelongsToTheModeOfTheWall_data();
    void soundBelongsToTheModeOfTheWall();
    void ptzSuccessNamesTheCommand();
    void channelIsConnectedEvenWithoutItsVersion();
    void qualityRequestIsOnlyLogged();
    void setTimeSuccessIsReported();

    // Replay.
    void timeListAskedForIsReportedAfterAFailureToo();
    void dormantReplayResultOnlyStopsTheTimer_data();
    void dormantReplayResultOnlyStopsTheTimer();
    void stoppedReplayClosesItsStream();
    void stoppedReplayStartsAgainWhereARestartIsAsked();
    void pausedReplayNoLongerPlays();
    void replayPausedByAModeChangeCountsAsStopped();
    void resumedReplayPlays();

    // The search on the local network.
    void failedSearchIsReported();
    void startedSearchSaysNothing();
    void foundDevicesReplaceTheOldOnes();

    void unlistedNumberGoesToTheBaseClass_data();
    void unlistedNumberGoesToTheBaseClass();
};

namespace {

using MakeEvent = std::function<QEvent*(Channel* channel, int result)>;

template <class Event>
MakeEvent plain()
{
    return [](Channel* channel, int result) { return new Event(channel, result); };
}

template <class Event, typename Value>
MakeEvent with(Value value)
{
    return [value](Channel* channel, int result) { return new Event(channel, result, value); };
}

struct Row
{
    const char* failSignal;
    int number;
    MakeEvent make;
};

// Of these the device's answer decides: that the message went out says nothing yet.
const QVector<Row> answered{
    {"startReplayControlFailMsg", 1006, with<ProgressEvent_playReplay>(ReplayRequest{})},
    {"setTimeZoneFailMsg", 1025, plain<ProgressEvent_setTimeZone>()},
    {"changeReplayTimeFailMsg", 1027, plain<ProgressEvent_changeReplayTime>()},
    {"setWifiFailMsg", 1028, plain<ProgressEvent_setWifi>()},
    {"getWifiListFailMsg", 1030, plain<ProgressEvent_getWifiList>()},
    {"setPasswordFailMsg", 1032, plain<ProgressEvent_setPassword>()},
    {"getWifiConfigFailMsg", 1033, plain<ProgressEvent_getWifiConfig>()},
    {"getSmartSensitivityFailMsg", 1034, plain<ProgressEvent_getSmartSensitivity>()},
    {"getSmartModeFailMsg", 1035, plain<ProgressEvent_getSmartMode>()},
    {"getRotateModeFailMsg", 1036, plain<ProgressEvent_getRotateMode>()},
    {"getRecordModeFailMsg", 1037, plain<ProgressEvent_getRecordMode>()},
    {"setSmartSensitivityFailMsg", 1038, plain<ProgressEvent_setSmartSensitivity>()},
    {"setSmartModeFailMsg", 1039, plain<ProgressEvent_sendSmartMode>()},
    {"setRotateModeFailMsg", 1040, plain<ProgressEvent_sendRotateMode>()},
    {"sendRecordModeFailMsg", 1041, plain<ProgressEvent_sendRecordMode>()},
};

const QVector<Row> acting{
    {"videoRequestStopFailMsg", 1002, with<ProgressEvent_StopStream>(true)},
    {"videoRequestFailMsg", 1003, plain<ProgressEvent_StartStream>()},
    {"stopReplayFailMsg", 1008,
        [](Channel* channel, int result) {
            return new ProgressEvent_stopReplay(channel, result, true, {});
        }},
    {"setQualityFailMsg", 1009, with<ProgressEvent_changeQuality>(true)},
    {"audioControlFailMsg", 1010, with<ProgressEvent_audioControl>(false)},
    {"ptzFailMsg", 1011, with<ProgressEvent_ptz>(7)},
    {"audioSendControlFailMsg", 1013, with<ProgressEvent_audioSendControl>(true)},
    {"pauseReplayFailMsg", 1022, with<ProgressEvent_pauseReplay>(true)},
    {"startReplayFailMsg", 1023, plain<ProgressEvent_stopPauseReplay>()},
    {"setTimeFailMsg", 1024, plain<ProgressEvent_setTime>()},
    {"getQualityFailMsg", 1042, plain<ProgressEvent_getQuality>()},
};

// Those whose failure is no plain row.
const QVector<Row> otherRows{
    {"", 1004, plain<ProgressEvent_getReplayVideoTime>()},
    {"", 1007, plain<ProgressEvent_playReplayIo>()},
    {"", 1014, plain<ProgressEvent_audioSendServiceStart>()},
    {"", 1017, plain<ProgressEvent_getChannelVersion>()},
};

void addRows(const QVector<Row>& rows)
{
    for (const Row& row : rows)
        QTest::addRow("%d", row.number) << QByteArray(row.failSignal) << row.number << row.make;
}

void columns()
{
    QTest::addColumn<QByteArray>("failSignal");
    QTest::addColumn<int>("number");
    QTest::addColumn<MakeEvent>("make");
}

QList<int> stateOf(const Channel& channel)
{
    QList<int> state{channel.device()->sid, channel.replayPending, channel.replayPaused,
        channel.speaking, channel.talkIndex};
    for (const bool isLive : {true, false}) {
        const ChannelMode& mode = channel.mode(isLive);
        state << mode.avIndex << mode.open << mode.waiting << mode.playing << mode.audioOn
              << mode.highQuality << mode.record;
    }
    return state;
}

std::shared_ptr<const IOTC_SearchRecord> oneRecord()
{
    auto record = std::make_shared<IOTC_SearchRecord>();
    qstrcpy(record->uid, "ABCDEFGHIJ0123456789");
    qstrcpy(record->ip, "192.0.2.7");
    qstrcpy(record->name, "IPC1");
    record->port = 4000;
    return record;
}

} // namespace

Q_DECLARE_METATYPE(MakeEvent)

void TestIoConnect::failureHasItsSignalAndChangesNothing_data()
{
    columns();
    addRows(answered);
    addRows(acting);
}

void TestIoConnect::failureHasItsSignalAndChangesNothing()
{
    QFETCH(QByteArray, failSignal);
    QFETCH(int, number);
    QFETCH(MakeEvent, make);
    IoTest t;
    occupy(t);
    const QList<int> before = stateOf(*t.channel());
    QEvent* event = make(t.channel(), failed);
    QCOMPARE(static_cast<int>(event->type()), number);
    QVERIFY(deliver(t, event));
    QCOMPARE(t.record.lines(), QStringList({failureLine(failSignal)}));
    QCOMPARE(stateOf(*t.channel()), before);
}

void TestIoConnect::successOfASentMessageSaysNothing_data()
{
    columns();
    addRows(answered);
}

void TestIoConnect::successOfASentMessageSaysNothing()
{
    QFETCH(MakeEvent, make);
    IoTest t;
    occupy(t);
    const QList<int> before = stateOf(*t.channel());
    QVERIFY(deliver(t, make(t.channel(), 0)));
    QCOMPARE(t.record.lines(), QStringList());
    QCOMPARE(stateOf(*t.channel()), before);
}

void TestIoConnect::everyResultStopsTheIoTimer_data()
{
    columns();
    addRows(answered);
    addRows(acting);
    addRows(otherRows);
}

void TestIoConnect::everyResultStopsTheIoTimer()
{
    QFETCH(MakeEvent, make);
    IoTest t;
    t.channel()->startIoTimer();
    QVERIFY(deliver(t, make(t.channel(), failed)));
    QVERIFY(!t.channel()->ioTimer()->isActive());
}

void TestIoConnect::textOfAFailureIsThatOfTheLibrarysResult()
{
    IoTest t;
    QVERIFY(deliver(t, new ProgressEvent_setWifi(t.channel(), -20009)));
    QVERIFY(deliver(t, new ProgressEvent_setWifi(t.channel(), -7)));
    QCOMPARE(t.record.lines(),
        QStringList({"setWifiFailMsg 0 -20009 " + ErrorMsg::p2pError(-20009),
            "setWifiFailMsg 0 -7 " + ErrorMsg::p2pError(-7)}));
    QVERIFY(ErrorMsg::p2pError(-20009) != ErrorMsg::p2pError(-7));
}

void TestIoConnect::stoppedStreamNoLongerPlays()
{
    IoTest t;
    t.channel()->mode(true).open = true;
    t.channel()->mode(true).playing = true;
    QVERIFY(deliver(t, new ProgressEvent_StopStream(t.channel(), 0, false)));
    QCOMPARE(t.record.lines(), QStringList({"videoRequestStopSuccessMsg 0"}));
    QVERIFY(!t.channel()->mode(true).playing);
}

void TestIoConnect::stoppedStreamOfAClosedTileEndsTalkBack()
{
    IoTest t;
    QVERIFY(deliver(t, new ProgressEvent_StopStream(t.channel(), 0, false)));
    QCOMPARE(t.record.sentTypes(), QList<int>({849}));
    QCOMPARE(withoutSends(t.record),
        QStringList({"videoRequestStopSuccessMsg 0", "avServStop -1", "AudioSend::stop"}));
}

void TestIoConnect::stoppedStreamStartsAgainWhereARestartIsAsked()
{
    IoTest t;
    t.channel()->mode(true).open = true;
    QVERIFY(deliver(t, new ProgressEvent_StopStream(t.channel(), 0, true)));
    QCOMPARE(t.record.lines(),
        QStringList({"videoRequestStopSuccessMsg 0", "waitingStreamMsg 0", "avClientCleanBuf 0",
            "send 255", "send 511", "videoRequestSuccessMsg 0"}));
}

void TestIoConnect::startedStreamPlays()
{
    IoTest t;
    QVERIFY(deliver(t, new ProgressEvent_StartStream(t.channel(), 0)));
    QCOMPARE(t.record.lines(), QStringList({"videoRequestSuccessMsg 0"}));
    QVERIFY(t.channel()->mode(true).playing);
}

void TestIoConnect::startedStreamGetsItsSoundBack()
{
    IoTest t;
    t.channel()->mode(true).audioOn = true;
    QVERIFY(deliver(t, new ProgressEvent_StartStream(t.channel(), 0)));
    QCOMPARE(t.record.lines(),
        QStringList({"videoRequestSuccessMsg 0", "send 768", "audioControlSuccessMsg 0"}));
}

void TestIoConnect::changedQualityRestartsTheStream()
{
    IoTest t;
    t.channel()->mode(true).open = true;
    t.channel()->mode(true).record = true;
    QVERIFY(deliver(t, new ProgressEvent_changeQuality(t.channel(), 0, true)));
    QCOMPARE(t.record.lines(),
        QStringList({"ViewControl::setRecord 0 off", "Decode::removeStream 0 live", "send 767",
            "videoRequestStopSuccessMsg 0", "waitingStreamMsg 0", "avClientCleanBuf 0", "send 255",
            "send 511", "videoRequestSuccessMsg 0"}));
}

void TestIoConnect::soundBelongsToTheModeOfTheWall_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::addColumn<bool>("on");
    QTest::newRow("on, live") << true << true;
    QTest::newRow("off, live") << true << false;
    QTest::newRow("on, replay") << false << true;
    QTest::newRow("off, replay") << false << false;
}

void TestIoConnect::soundBelongsToTheModeOfTheWall()
{
    QFETCH(bool, isLive);
    QFETCH(bool, on);
    IoTest t;
    t.viewControl.isLive = isLive;
    t.channel()->mode(isLive).audioOn = !on;
    t.channel()->mode(!isLive).audioOn = !on;
    QVERIFY(deliver(t, new ProgressEvent_audioControl(t.channel(), 0, on)));
    QCOMPARE(t.record.lines(), QStringList({"audioControlSuccessMsg 0"}));
    QCOMPARE(bool(t.channel()->mode(isLive).audioOn), on);
    QCOMPARE(bool(t.channel()->mode(!isLive).audioOn), !on);
}

void TestIoConnect::ptzSuccessNamesTheCommand()
{
    IoTest t;
    QVERIFY(deliver(t, new ProgressEvent_ptz(t.channel(), 0, 7)));
    QCOMPARE(t.record.lines(), QStringList({"ptzSuccessMsg 0 7"}));
}

void TestIoConnect::channelIsConnectedEvenWithoutItsVersion()
{
    IoTest t;
    QVERIFY(deliver(t, new ProgressEvent_getChannelVersion(t.channel(), -20016)));
    QVERIFY(deliver(t, new ProgressEvent_getChannelVersion(t.channel(), 0)));
    QCOMPARE(t.record.lines(),
        QStringList({"connectChannelSuccessMsg 0", "connectChannelSuccessMsg 0"}));
}

void TestIoConnect::qualityRequestIsOnlyLogged()
{
    IoTest t(3);
    QTest::ignoreMessage(QtDebugMsg, "send get quality success:2");
    QVERIFY(deliver(t, new ProgressEvent_getQuality(t.channel(2), 0)));
    QCOMPARE(t.record.lines(), QStringList());
}

void TestIoConnect::setTimeSuccessIsReported()
{
    IoTest t;
    QVERIFY(deliver(t, new ProgressEvent_setTime(t.channel(), 0)));
    QCOMPARE(t.record.lines(), QStringList({"setTimeSuccessMsg 0"}));
}

void TestIoConnect::timeListAskedForIsReportedAfterAFailureToo()
{
    IoTest t;
    QVERIFY(deliver(t, new ProgressEvent_getReplayVideoTime(t.channel(), failed)));
    QCOMPARE(t.record.lines(),
        QStringList(
            {failureLine("requestReplayVideoTimeFailMsg"), "requestReplayVideoTimeSuccessMsg 0"}));
    t.record.clear();
    QVERIFY(deliver(t, new ProgressEvent_getReplayVideoTime(t.channel(), 0)));
    QCOMPARE(t.record.lines(), QStringList({"requestReplayVideoTimeSuccessMsg 0"}));
}

void TestIoConnect::dormantReplayResultOnlyStopsTheTimer_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("failure") << -1;
    QTest::newRow("success") << 0;
}

void TestIoConnect::dormantReplayResultOnlyStopsTheTimer()
{
    QFETCH(int, result);
    IoTest t;
    occupy(t);
    t.channel()->startIoTimer();
    const QList<int> before = stateOf(*t.channel());
    QVERIFY(deliver(t, new ProgressEvent_playReplayIo(t.channel(), result)));
    QVERIFY(!t.channel()->ioTimer()->isActive());
    QCOMPARE(t.record.lines(), QStringList());
    QCOMPARE(stateOf(*t.channel()), before);
}

void TestIoConnect::stoppedReplayClosesItsStream()
{
    IoTest t;
    occupy(t);
    const int replayIndex = t.channel()->mode(false).avIndex;
    QVERIFY(deliver(t, new ProgressEvent_stopReplay(t.channel(), 0, false, {})));
    QCOMPARE(t.record.lines(),
        QStringList(
            {QStringLiteral("avClientStop %1").arg(replayIndex), "stopReplaySuccessMsg 0"}));
    QCOMPARE(int(t.channel()->mode(false).avIndex), -1);
    QVERIFY(!t.channel()->mode(false).playing);
    QVERIFY(!t.channel()->replayPending);
}

void TestIoConnect::stoppedReplayStartsAgainWhereARestartIsAsked()
{
    IoTest t;
    const QDateTime from(QDate(2024, 3, 9), QTime(7, 5, 2), Qt::UTC);
    QVERIFY(deliver(t, new ProgressEvent_stopReplay(t.channel(), 0, true, from)));
    QCOMPARE(t.record.lines(), QStringList({"stopReplaySuccessMsg 0", "send 794"}));
    // Start, at the time, at normal speed.
    QCOMPARE(t.record.sends().at(0).payload(),
        QByteArray::fromHex("00000000 10000000 00000000 e807 03 09 00 07 05 02 00 00 05 00"));
}

void TestIoConnect::pausedReplayNoLongerPlays()
{
    IoTest t;
    t.channel()->mode(false).playing = true;
    QVERIFY(deliver(t, new ProgressEvent_pauseReplay(t.channel(), 0, false)));
    QCOMPARE(t.record.lines(), QStringList({"pauseReplaySuccessMsg 0"}));
    QVERIFY(!t.channel()->mode(false).playing);
}

void TestIoConnect::replayPausedByAModeChangeCountsAsStopped()
{
    IoTest t;
    t.channel()->mode(false).playing = true;
    QVERIFY(deliver(t, new ProgressEvent_pauseReplay(t.channel(), 0, true)));
    QCOMPARE(t.record.lines(), QStringList({"pauseReplaySuccessMsg 0", "stopReplaySuccessMsg 0"}));
    QVERIFY(!t.channel()->mode(false).playing);
}

void TestIoConnect::resumedReplayPlays()
{
    IoTest t;
    QVERIFY(deliver(t, new ProgressEvent_stopPauseReplay(t.channel(), 0)));
    QCOMPARE(t.record.lines(), QStringList({"startReplaySuccessMsg 0"}));
    QVERIFY(t.channel()->mode(false).playing);
}

void TestIoConnect::failedSearchIsReported()
{
    IoTest t;
    QVERIFY(deliver(t, new ProgressEvent_LanSearchStart(-17)));
    QVERIFY(deliver(t, new ProgressEvent_LanSearch(-8, nullptr)));
    QCOMPARE(t.record.lines(),
        QStringList({"startLANSearchFailMsg -17 " + ErrorMsg::p2pError(-17),
            "startLANSearchFailMsg -8 " + ErrorMsg::p2pError(-8)}));
}

void TestIoConnect::startedSearchSaysNothing()
{
    IoTest t;
    QVERIFY(deliver(t, new ProgressEvent_LanSearchStart(0)));
    QCOMPARE(t.record.lines(), QStringList());
}

void TestIoConnect::foundDevicesReplaceTheOldOnes()
{
    IoTest t;
    QVERIFY(deliver(t, new ProgressEvent_LanSearch(1, oneRecord())));
    QCOMPARE(t.record.lines(), QStringList({"startLANSearchSuccessMsg"}));
    QCOMPARE(t.io->lanResults().size(), 1);
    QCOMPARE(t.io->lanResults().at(0).uid, QStringLiteral("ABCDEFGHIJ0123456789"));
    QCOMPARE(t.io->lanResults().at(0).port, QStringLiteral("4000"));
    QVERIFY(deliver(t, new ProgressEvent_LanSearch(0, nullptr)));
    QVERIFY(t.io->lanResults().isEmpty());
}

void TestIoConnect::unlistedNumberGoesToTheBaseClass_data()
{
    QTest::addColumn<int>("number");
    for (const int number :
        {1000, 1005, 1012, 1018, 1019, 1020, 1021, 1026, 1029, 1031, 1043, 1044})
        QTest::addRow("%d", number) << number;
}

void TestIoConnect::unlistedNumberGoesToTheBaseClass()
{
    QFETCH(int, number);
    IoTest t;
    QObject plainObject;
    QEvent unlisted(static_cast<QEvent::Type>(number));
    QCOMPARE(t.io->event(&unlisted), plainObject.event(&unlisted));
    QCOMPARE(t.record.lines(), QStringList());
}

ORVA_TEST(TestIoConnect)
#include "tst_ioconnect.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/errormsg.h"
#include "link/ioconnect.h"
#include "model/events.h"
#include "testmain.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>

#include <functional>

// What becomes of the results of commands. The device of these tests has one channel.
class TestIoConnect final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { device_.setChannelCount(1); }

    void failureEmitsItsSignalWithTheText_data();
    void failureEmitsItsSignalWithTheText();
    void successOfASentMessageEmitsNothing_data();
    void successOfASentMessageEmitsNothing();
    void everyResultStopsTheIoTimer_data();
    void everyResultStopsTheIoTimer();

    void failedTimeListEmitsFailureThenSuccess();
    void channelIsConnectedEvenWithoutItsVersion();
    void ptzSuccessNamesTheCommand();
    void setTimeSuccessIsReported();
    void qualityRequestIsOnlyLogged();
    void dormantReplayResultOnlyStopsTheTimer();
    void failedSearchIsReported();
    void unlistedNumberGoesToTheBaseClass();

private:
    Channel* channel() const { return device_.channel(0); }

    Device device_;
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
    MakeEvent make;
};

// Every result whose failure has a signal; on success those of `answered` say nothing.
const QVector<Row> answered{
    {"startReplayControlFailMsg", with<ProgressEvent_playReplay>(ReplayRequest{})},
    {"setTimeZoneFailMsg", plain<ProgressEvent_setTimeZone>()},
    {"changeReplayTimeFailMsg", plain<ProgressEvent_changeReplayTime>()},
    {"setWifiFailMsg", plain<ProgressEvent_setWifi>()},
    {"getWifiListFailMsg", plain<ProgressEvent_getWifiList>()},
    {"setPasswordFailMsg", plain<ProgressEvent_setPassword>()},
    {"getWifiConfigFailMsg", plain<ProgressEvent_getWifiConfig>()},
    {"getSmartSensitivityFailMsg", plain<ProgressEvent_getSmartSensitivity>()},
    {"getSmartModeFailMsg", plain<ProgressEvent_getSmartMode>()},
    {"getRotateModeFailMsg", plain<ProgressEvent_getRotateMode>()},
    {"getRecordModeFailMsg", plain<ProgressEvent_getRecordMode>()},
    {"setSmartSensitivityFailMsg", plain<ProgressEvent_setSmartSensitivity>()},
    {"setSmartModeFailMsg", plain<ProgressEvent_sendSmartMode>()},
    {"setRotateModeFailMsg", plain<ProgressEvent_sendRotateMode>()},
    {"sendRecordModeFailMsg", plain<ProgressEvent_sendRecordMode>()},
};

const QVector<Row> acting{
    {"videoRequestStopFailMsg", with<ProgressEvent_StopStream>(false)},
    {"videoRequestFailMsg", plain<ProgressEvent_StartStream>()},
    {"requestReplayVideoTimeFailMsg", plain<ProgressEvent_getReplayVideoTime>()},
    {"stopReplayFailMsg",
        [](Channel* channel, int result) {
            return new ProgressEvent_stopReplay(channel, result, false, {});
        }},
    {"setQualityFailMsg", with<ProgressEvent_changeQuality>(true)},
    {"audioControlFailMsg", with<ProgressEvent_audioControl>(true)},
    {"ptzFailMsg", with<ProgressEvent_ptz>(7)},
    {"pauseReplayFailMsg", with<ProgressEvent_pauseReplay>(false)},
    {"startReplayFailMsg", plain<ProgressEvent_stopPauseReplay>()},
    {"setTimeFailMsg", plain<ProgressEvent_setTime>()},
    {"getQualityFailMsg", plain<ProgressEvent_getQuality>()},
};

void addRows(const QVector<Row>& rows)
{
    for (const Row& row : rows)
        QTest::newRow(row.failSignal) << QByteArray(row.failSignal) << row.make;
}

void columns()
{
    QTest::addColumn<QByteArray>("failSignal");
    QTest::addColumn<MakeEvent>("make");
}

QByteArray signalNamed(const QByteArray& name)
{
    return QByteArray("2") + name + "(Channel*,int,QString)";
}

// Notes the names of all signals of IoConnect in their order.
class AllSignals final : public QObject
{
    Q_OBJECT

public:
    AllSignals()
    {
        const QMetaObject* meta = IoConnect::instance()->metaObject();
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("note()"));
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                connect(IoConnect::instance(), meta->method(i), this, slot);
        }
    }

    QList<QByteArray> names;

public slots:
    void note() { names.append(sender()->metaObject()->method(senderSignalIndex()).name()); }
};

void deliver(QEvent* event)
{
    postResult(IoConnect::instance(), event);
    QCoreApplication::sendPostedEvents(IoConnect::instance());
}

} // namespace

Q_DECLARE_METATYPE(MakeEvent)

void TestIoConnect::initTestCase()
{
    qRegisterMetaType<Channel*>("Channel*");
}

void TestIoConnect::failureEmitsItsSignalWithTheText_data()
{
    columns();
    addRows(answered);
    addRows(acting);
}

void TestIoConnect::failureEmitsItsSignalWithTheText()
{
    QFETCH(QByteArray, failSignal);
    QFETCH(MakeEvent, make);
    QSignalSpy failures(IoConnect::instance(), signalNamed(failSignal).constData());
    QVERIFY(failures.isValid());
    deliver(make(channel(), -20009));
    QCOMPARE(failures.size(), 1);
    QCOMPARE(failures.first().at(0).value<Channel*>(), channel());
    QCOMPARE(failures.first().at(1).toInt(), -20009);
    QCOMPARE(failures.first().at(2).toString(), ErrorMsg::p2pError(-20009));
}

void TestIoConnect::successOfASentMessageEmitsNothing_data()
{
    columns();
    addRows(answered);
}

void TestIoConnect::successOfASentMessageEmitsNothing()
{
    QFETCH(MakeEvent, make);
    const AllSignals all;
    deliver(make(channel(), 0));
    QVERIFY(all.names.isEmpty());
}

void TestIoConnect::everyResultStopsTheIoTimer_data()
{
    columns();
    addRows(answered);
    addRows(acting);
}

void TestIoConnect::everyResultStopsTheIoTimer()
{
    QFETCH(MakeEvent, make);
    channel()->startIoTimer();
    deliver(make(channel(), -1));
    QVERIFY(!channel()->ioTimer()->isActive());
}

void TestIoConnect::failedTimeListEmitsFailureThenSuccess()
{
    const AllSignals all;
    deliver(new ProgressEvent_getReplayVideoTime(channel(), -20011));
    QCOMPARE(all.names,
        QList<QByteArray>({"requestReplayVideoTimeFailMsg", "requestReplayVideoTimeSuccessMsg"}));
    deliver(new ProgressEvent_getReplayVideoTime(channel(), 0));
    QCOMPARE(all.names.mid(2), QList<QByteArray>({"requestReplayVideoTimeSuccessMsg"}));
}

void TestIoConnect::channelIsConnectedEvenWithoutItsVersion()
{
    for (const int result : {-20016, 0}) {
        const AllSignals all;
        deliver(new ProgressEvent_getChannelVersion(channel(), result));
        QCOMPARE(all.names, QList<QByteArray>({"connectChannelSuccessMsg"}));
    }
}

void TestIoConnect::ptzSuccessNamesTheCommand()
{
    QSignalSpy moves(IoConnect::instance(), &IoConnect::ptzSuccessMsg);
    deliver(new ProgressEvent_ptz(channel(), 0, 7));
    QCOMPARE(moves.size(), 1);
    QCOMPARE(moves.first().at(1).toInt(), 7);
}

void TestIoConnect::setTimeSuccessIsReported()
{
    const AllSignals all;
    deliver(new ProgressEvent_setTime(channel(), 0));
    QCOMPARE(all.names, QList<QByteArray>({"setTimeSuccessMsg"}));
}

void TestIoConnect::qualityRequestIsOnlyLogged()
{
    const AllSignals all;
    QTest::ignoreMessage(QtDebugMsg, "send get quality success:0");
    deliver(new ProgressEvent_getQuality(channel(), 0));
    QVERIFY(all.names.isEmpty());
}

void TestIoConnect::dormantReplayResultOnlyStopsTheTimer()
{
    const AllSignals all;
    channel()->startIoTimer();
    deliver(new ProgressEvent_playReplayIo(channel(), -1));
    QVERIFY(!channel()->ioTimer()->isActive());
    QVERIFY(all.names.isEmpty());
}

void TestIoConnect::failedSearchIsReported()
{
    QSignalSpy failures(IoConnect::instance(), &IoConnect::startLANSearchFailMsg);
    deliver(new ProgressEvent_LanSearchStart(-17));
    deliver(new ProgressEvent_LanSearch(-8, nullptr));
    QCOMPARE(failures.size(), 2);
    QCOMPARE(failures.at(0), QList<QVariant>({-17, ErrorMsg::p2pError(-17)}));
    QCOMPARE(failures.at(1), QList<QVariant>({-8, ErrorMsg::p2pError(-8)}));
}

void TestIoConnect::unlistedNumberGoesToTheBaseClass()
{
    const AllSignals all;
    QObject plainObject;
    QEvent unlisted(static_cast<QEvent::Type>(1044));
    QCOMPARE(IoConnect::instance()->event(&unlisted), plainObject.event(&unlisted));
    QVERIFY(all.names.isEmpty());
}

ORVA_TEST(TestIoConnect)
#include "tst_ioconnect.moc"

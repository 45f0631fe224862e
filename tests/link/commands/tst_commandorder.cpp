// SPDX-License-Identifier: GPL-3.0-or-later
#include "iotest.h"
#include "model/task.h"
#include "testmain.h"

#include <QTest>
#include <QThreadPool>

#include <atomic>
#include <functional>

using Operation = std::function<void(IoConnect& io, Channel* channel)>;

// One command at a time, in their order, and what ends one that hangs.
class TestCommandOrder final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void commandsLeaveInTheOrderInWhichTheyWereAskedFor();
    void atMostOneMessageIsUnderWay();
    void hangingSendStallsTheOthersUntilItEnds();

    void ioTimerEndsAHangingCommand_data();
    void ioTimerEndsAHangingCommand();
    void ioTimerThatFiresWithoutAHangingSendHarmsNothing();
    void ioTimerOfAChannelEndsNoOthersSend();
    void ioTimerIsConnectedOnce();
    void commandRestartsARunningIoTimer();
    void commandWithoutTheIoTimerHangsUntilTheDeviceIsDisconnected();

private:
    int threads_ = 0;
};

namespace {

QString endedLine(const char* signal)
{
    return QStringLiteral("%1 1 -20022 Sending  is terminated ").arg(QLatin1String(signal));
}

struct Row
{
    const char* name;
    Operation operation;
    QString line; // the signal of its end
};

QVector<Row> armingCommands()
{
    return {
        {"startLive", [](IoConnect& io, Channel* c) { io.startLive(c); },
            endedLine("videoRequestFailMsg")},
        {"stopLife", [](IoConnect& io, Channel* c) { io.stopLife(c, true); },
            endedLine("videoRequestStopFailMsg")},
        {"setQuality", [](IoConnect& io, Channel* c) { io.setQuality(c, true); },
            endedLine("setQualityFailMsg")},
        {"audioSendControl", [](IoConnect& io, Channel* c) { io.audioSendControl(c, true); },
            endedLine("audioSendControlFailMsg")},
        {"getChannelVersion", [](IoConnect& io, Channel* c) { io.getChannelVersion(c); },
            "connectChannelSuccessMsg 1"},
        {"setTimeZone", [](IoConnect& io, Channel* c) { io.setTimeZone(c, "Europe/Berlin"); },
            endedLine("setTimeZoneFailMsg")},
        {"pauseReplay", [](IoConnect& io, Channel* c) { io.pauseReplay(c, false); },
            endedLine("pauseReplayFailMsg")},
        {"stopPauseReplay", [](IoConnect& io, Channel* c) { io.stopPauseReplay(c, false); },
            endedLine("startReplayFailMsg")},
        {"playReplay",
            [](IoConnect& io, Channel* c) {
                io.playReplay(c, QDateTime::currentDateTime(), 0, true, PLAY_SPEED_X1);
            },
            endedLine("startReplayControlFailMsg")},
        {"stopReplay", [](IoConnect& io, Channel* c) { io.stopReplay(c, true, {}); },
            endedLine("stopReplayFailMsg")},
        {"changeReplayTime", [](IoConnect& io, Channel* c) { io.changeReplayTime(c, 60); },
            endedLine("changeReplayTimeFailMsg")},
        {"getReplayVideoTime",
            [](IoConnect& io, Channel* c) { io.getReplayVideoTime(c, QDate(2024, 3, 9)); },
            endedLine("requestReplayVideoTimeFailMsg")},
    };
}

void setVersion(Channel* channel, const char* text)
{
    Channel::VersionBlock block{};
    qstrncpy(block.data(), text, block.size());
    channel->setVersion(block.data());
}

} // namespace

Q_DECLARE_METATYPE(Operation)

// More threads than a small machine's pool has, so that commands could overtake each other.
void TestCommandOrder::init()
{
    threads_ = QThreadPool::globalInstance()->maxThreadCount();
    QThreadPool::globalInstance()->setMaxThreadCount(8);
}

void TestCommandOrder::cleanup()
{
    QThreadPool::globalInstance()->setMaxThreadCount(threads_);
}

void TestCommandOrder::commandsLeaveInTheOrderInWhichTheyWereAskedFor()
{
    constexpr int channels = 8;
    constexpr int commands = 200;
    IoTest t(channels);
    for (int i = 0; i < commands; ++i)
        t.io->sendRotateMode(t.channel(i % channels), i);
    QVERIFY(t.settle());
    const auto sends = t.record.sends();
    QCOMPARE(static_cast<int>(sends.size()), commands);
    for (int i = 0; i < commands; ++i) {
        const LinkCall& call = sends[static_cast<std::size_t>(i)];
        QCOMPARE(call.payload().toHex(),
            QByteArray::number(i, 16).rightJustified(2, '0') + "00000000000000");
        QCOMPARE(call.avIndex(), t.avIndex(i % channels));
    }
}

void TestCommandOrder::atMostOneMessageIsUnderWay()
{
    constexpr int commands = 40;
    IoTest t(8);
    int most = 0; // written by one thread at a time, if all is well
    t.link.always(LinkFn::avSendIOCtrl)
        .after(std::chrono::milliseconds(2))
        .then(
            [&](const LinkCall&) { most = std::max(most, t.link.inFlight(LinkFn::avSendIOCtrl)); });
    for (int i = 0; i < commands; ++i)
        t.io->getQuality(t.channel(i % 8));
    QVERIFY(t.settle());
    QCOMPARE(most, 1);
    QCOMPARE(static_cast<int>(t.record.sends().size()), commands);
}

void TestCommandOrder::hangingSendStallsTheOthersUntilItEnds()
{
    IoTest t(2);
    t.link.next(LinkFn::avSendIOCtrl).hangs();
    t.io->startLive(t.channel(0));
    QVERIFY(t.link.waitForCalls(1, LinkFn::avSendIOCtrl));
    t.io->getQuality(t.channel(1));
    std::atomic<int> later = 0;
    for (int i = 0; i < 100; ++i)
        runTask(nullptr, [&later] { ++later; });
    QTRY_COMPARE(later.load(), 100); // the pool has come past the second command
    QCOMPARE(t.record.sentTypes(), QList<int>({255}));
    QTRY_COMPARE(QThreadPool::globalInstance()->activeThreadCount(), 2);
    IoTest::runOut(t.channel(0));
    QVERIFY(t.settle());
    const auto sends = t.record.sends();
    QCOMPARE(t.record.sentTypes(), QList<int>({255, 802}));
    QVERIFY(sends[1].start >= sends[0].start + sends[0].duration);
    QCOMPARE(sends[1].result.value_or(-1), 0);
}

void TestCommandOrder::ioTimerEndsAHangingCommand_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("line");
    for (const Row& row : armingCommands())
        QTest::newRow(row.name) << row.operation << row.line;
}

void TestCommandOrder::ioTimerEndsAHangingCommand()
{
    QFETCH(Operation, operation);
    QFETCH(QString, line);
    IoTest t(2);
    setVersion(t.channel(1), "2.6.1");
    t.link.next(LinkFn::avSendIOCtrl).hangs();
    operation(*t.io, t.channel(1));
    QVERIFY(t.link.waitForCalls(1, LinkFn::avSendIOCtrl));
    QVERIFY(IoTest::isArmed(t.channel(1)));
    QVERIFY(!t.record.lines().contains(line));
    IoTest::runOut(t.channel(1));
    QVERIFY(t.settle());
    QVERIFY2(t.record.lines().contains(line), qPrintable(t.record.lines().join('\n')));
    QCOMPARE(t.link.count(LinkFn::avSendIOCtrlExit, onIndex(t.avIndex(1))), 1);
    QCOMPARE(t.link.count(LinkFn::avSendIOCtrlExit), 1);
    QCOMPARE(t.record.sends().at(0).result.value_or(0), -20022);
    QVERIFY(!t.channel(1)->ioTimer()->isActive());
}

void TestCommandOrder::ioTimerThatFiresWithoutAHangingSendHarmsNothing()
{
    IoTest t(2);
    t.io->startLive(t.channel(1));
    QVERIFY(t.settle());
    t.channel(1)->startIoTimer();
    IoTest::runOut(t.channel(1));
    QCOMPARE(t.link.count(LinkFn::avSendIOCtrlExit, onIndex(t.avIndex(1))), 1);
    t.record.clear();
    t.io->sendRotateMode(t.channel(1), 2);
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), QStringList({"send 13088"}));
    QCOMPARE(t.record.sends().at(0).result.value_or(-1), 0);
}

void TestCommandOrder::ioTimerOfAChannelEndsNoOthersSend()
{
    IoTest t(2);
    t.link.next(LinkFn::avSendIOCtrl).hangs();
    t.io->startLive(t.channel(0));
    t.io->startLive(t.channel(1));
    QVERIFY(t.link.waitForCalls(1, LinkFn::avSendIOCtrl));
    IoTest::runOut(t.channel(1));
    QCOMPARE(t.link.inFlight(LinkFn::avSendIOCtrl, onIndex(t.avIndex(0))), 1);
    IoTest::runOut(t.channel(0));
    QVERIFY(t.settle());
    QVERIFY(!t.channel(0)->mode(true).playing);
    QVERIFY(t.channel(1)->mode(true).playing);
}

void TestCommandOrder::ioTimerIsConnectedOnce()
{
    IoTest t(2);
    for (int i = 0; i < 5; ++i) {
        t.io->setTimeZone(t.channel(1), "Europe/Berlin");
        t.io->getChannelVersion(t.channel(1));
        QVERIFY(t.settle());
    }
    t.channel(1)->startIoTimer();
    IoTest::runOut(t.channel(1));
    QCOMPARE(t.link.count(LinkFn::avSendIOCtrlExit), 1);
}

void TestCommandOrder::commandRestartsARunningIoTimer()
{
    IoTest t(2);
    t.channel(1)->ioTimer()->start(1000);
    t.io->setTimeZone(t.channel(1), "Europe/Berlin");
    QVERIFY(IoTest::isArmed(t.channel(1)));
    QVERIFY(t.settle());
}

void TestCommandOrder::commandWithoutTheIoTimerHangsUntilTheDeviceIsDisconnected()
{
    IoTest t(2);
    t.link.next(LinkFn::avSendIOCtrl).hangs();
    t.io->getWifiList(t.channel(1));
    QVERIFY(t.link.waitForCalls(1, LinkFn::avSendIOCtrl));
    QVERIFY(!t.channel(1)->ioTimer()->isActive());
    t.io->disConnectDevice(t.device.get());
    QVERIFY(t.settle());
    QVERIFY(t.record.lines().contains(endedLine("getWifiListFailMsg")));
}

ORVA_TEST(TestCommandOrder)
#include "tst_commandorder.moc"

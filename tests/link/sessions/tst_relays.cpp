// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkbench.h"
#include "testmain.h"

#include <QTest>

#include <optional>

// What IoConnect makes of the results of Connect.
class TestSessionRelays final : public QObject
{
    Q_OBJECT

private slots:
    void init() { bench_.emplace(); }
    void cleanup() { bench_.reset(); }

    void startUpIsTold();
    void failedStartUpIsTold();
    void connectedChannelIsAskedForVersionQualityAndPtzAndThenTold();
    void questionsKeepTheirOrderAHundredTimes();
    void failedSessionIsTold();
    void failedLiveChannelIsTold();
    void failedReplayChannelIsAFailedReplay();
    void openedReplayChannelIsAStartedReplay();
    void channelThatIsOpenIsAskedAgainAndTold();
    void sessionThatEndsWhileItsChannelOpensFailsTheChannel();
    void destroyedLinkHearsOfNoPendingAttempt();
    void destroyedLinkHearsOfNoAttemptThatEndsMeanwhile();

private:
    Device* addConnected(char letter);
    static QList<int> sentTypes();

    std::optional<IoConnectBench> bench_;
};

// With its session, but no channel of it open.
Device* TestSessionRelays::addConnected(char letter)
{
    Device* device = bench_->addDevice(letter);
    device->sid = bench_->layer.openSession();
    return device;
}

QList<int> TestSessionRelays::sentTypes()
{
    QList<int> types;
    for (const LinkCall& call : ScriptedLink::instance().calls(LinkFn::avSendIOCtrl))
        types.append(call.type());
    return types;
}

void TestSessionRelays::startUpIsTold()
{
    bench_->begin();
    finishTasks();
    QCOMPARE(bench_->journal().lines(), QStringList({"tutkInitSuccessMsg"}));
}

void TestSessionRelays::failedStartUpIsTold()
{
    bench_->layer.next(LinkFn::IOTC_Initialize2).answers(-8);
    bench_->begin();
    finishTasks();
    QCOMPARE(bench_->journal().lines(), QStringList({"tutkInitFailMsg -8 Fails to bind sockets"}));
}

void TestSessionRelays::connectedChannelIsAskedForVersionQualityAndPtzAndThenTold()
{
    bench_->start();
    LinkGate version = bench_->layer.next(LinkFn::avSendIOCtrl).holds();
    Channel* channel = bench_->addDevice('A', 2)->channel(1);
    bench_->link().connect(channel);
    QTRY_COMPARE(version.waiting(), 1);
    QCOMPARE(bench_->journal().lines(),
        QStringList({"connect device success:AAAAAAAAAAAAAAAAAAAA", "connectDevSuccessMsg A0",
            "connectChannel:true", "connect channel success:1,isLive:true"}));
    QCOMPARE(sentTypes(), QList<int>({13083}));
    version.release();
    QTRY_COMPARE(sentTypes(), QList<int>({13083, 802, 4353}));
    QTRY_COMPARE(bench_->journal().lines().mid(4),
        QStringList({"connectChannelSuccessMsg A1", "send get quality success:1"}));
    for (const LinkCall& call : bench_->layer.calls(LinkFn::avSendIOCtrl))
        QCOMPARE(call.avIndex(), int(channel->mode(true).avIndex));
    QVERIFY(bench_->layer.waitForCalls(1, LinkFn::avRecvIOCtrl));
}

void TestSessionRelays::questionsKeepTheirOrderAHundredTimes()
{
    constexpr int rounds = 100;
    bench_->start();
    Device* device = addConnected('A');
    Channel* channel = device->channel(0);
    QList<int> wanted;
    for (int i = 0; i < rounds; ++i) {
        bench_->link().connect(channel);
        finishTasks();
        wanted << 13083 << 802 << 4353;
        QCOMPARE(sentTypes(), wanted);
        QCOMPARE(bench_->journal().count("connectChannelSuccessMsg A0"), i + 1);
        bench_->link().disConnectDevice(device);
        device->sid = bench_->layer.openSession();
    }
}

void TestSessionRelays::failedSessionIsTold()
{
    bench_->start();
    bench_->layer.next(connectFn).reports({ConnectStep::failed(-90)});
    bench_->link().connect(bench_->addChannel('A'));
    QTRY_COMPARE(bench_->journal().lines(),
        QStringList({"connect device error:AAAAAAAAAAAAAAAAAAAA,error:-90",
            "connectDevFailMsg A0 -90 Device offline"}));
}

void TestSessionRelays::failedLiveChannelIsTold()
{
    bench_->start();
    bench_->layer.next(startFn).answers(-20009);
    bench_->link().connect(addConnected('A')->channel(0));
    finishTasks();
    QCOMPARE(bench_->journal().lines().last(),
        QString("connectChannelFailMsg A0 -20009 Incorrect view account or password"));
    QCOMPARE(bench_->journal().linesOf("startReplayFailMsg"), QStringList());
    QCOMPARE(sentTypes(), QList<int>());
}

void TestSessionRelays::failedReplayChannelIsAFailedReplay()
{
    bench_->start();
    bench_->layer.next(startFn).answers(-20009);
    Channel* channel = addConnected('A')->channel(0);
    bench_->link().connectChannel(channel, 7, false);
    finishTasks();
    QCOMPARE(bench_->journal().lines().last(),
        QString("startReplayFailMsg A0 -20009 Incorrect view account or password"));
    QCOMPARE(bench_->journal().linesOf("connectChannelFailMsg"), QStringList());
    QVERIFY(!channel->mode(false).playing);
}

void TestSessionRelays::openedReplayChannelIsAStartedReplay()
{
    bench_->start();
    Channel* channel = addConnected('A')->channel(0);
    bench_->link().connectChannel(channel, 7, false);
    finishTasks();
    QCOMPARE(bench_->journal().lines().last(), QString("startReplaySuccessMsg A0"));
    QVERIFY(channel->mode(false).playing);
    QCOMPARE(startedChannels(), QList<int>({7}));
    QCOMPARE(sentTypes(), QList<int>());
}

void TestSessionRelays::channelThatIsOpenIsAskedAgainAndTold()
{
    bench_->start();
    Channel* channel = addConnected('A')->channel(0);
    bench_->link().connect(channel);
    finishTasks();
    bench_->link().connect(channel);
    finishTasks();
    QCOMPARE(sentTypes(), QList<int>({13083, 802, 4353, 13083, 802, 4353}));
    QCOMPARE(bench_->journal().linesOf("connectChannelSuccessMsg").size(), 2);
    QCOMPARE(startedChannels(), QList<int>({0}));
}

void TestSessionRelays::sessionThatEndsWhileItsChannelOpensFailsTheChannel()
{
    bench_->start();
    Device* device = addConnected('A');
    Channel* channel = device->channel(0);
    bench_->link().connect(channel);
    QVERIFY(bench_->layer.waitForReturns(1, startFn));
    QCOMPARE(bench_->layer.openIndices().size(), std::size_t(1));
    bench_->link().disConnectDevice(device); // the index is on its way here
    finishTasks();
    QCOMPARE(bench_->journal().lines().last(),
        QString("connectChannelFailMsg A0 -20015 The remote session already closes"));
    QCOMPARE(int(channel->mode(true).avIndex), -1);
    QCOMPARE(sentTypes(), QList<int>());
    QCOMPARE(bench_->layer.openSessions(), std::vector<int>());
}

// Their reports are made while the library is taken down, after the link has gone.
void TestSessionRelays::destroyedLinkHearsOfNoPendingAttempt()
{
    bench_->start();
    bench_->layer.next(connectFn).reports({});
    bench_->layer.next(connectFn).reports({});
    Device* open = bench_->addDevice('A', 2);
    open->sid = bench_->layer.openSession();
    Device* first = bench_->addDevice('B');
    Device* second = bench_->addDevice('C');
    bench_->link().connect(first->channel(0));
    bench_->link().connect(second->channel(0));
    finishTasks();
    bench_->link().connect(open->channel(1)); // lets a second attempt start
    finishTasks();
    QCOMPARE(attempts(), QString("BC"));
    bench_->end();
    QCOMPARE(bench_->layer.count(LinkFn::IOTC_DeInitialize), 1);
    QVERIFY(first->connecting);
    QVERIFY(second->connecting);
    QCOMPARE(bench_->layer.openSessions(), std::vector<int>());
}

void TestSessionRelays::destroyedLinkHearsOfNoAttemptThatEndsMeanwhile()
{
    constexpr int rounds = 100;
    for (int i = 0; i < rounds; ++i) {
        bench_.emplace();
        bench_->start();
        bench_->layer.next(connectFn).reports({});
        bench_->link().connect(bench_->addChannel('A'));
        finishTasks();
        const auto outcome = i % 2 == 0 ? ConnectStep::connected() : ConnectStep::failed(-90);
        QVERIFY(bench_->layer.report(0, outcome)); // made on another thread, now
        for (int turn = 0; turn < i; ++turn)
            std::this_thread::yield();
        bench_->end();
        QCOMPARE(bench_->layer.openSessions(), std::vector<int>());
    }
}

ORVA_TEST(TestSessionRelays)
#include "tst_relays.moc"

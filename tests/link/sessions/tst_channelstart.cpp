// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkbench.h"
#include "testmain.h"

#include <QTest>
#include <QTextCodec>
#include <QThreadPool>

#include <atomic>
#include <optional>

// How AV channels are started on a session, for live view and for replay.
class TestChannelStart final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { bench_.reset(); }

    void channelIsStartedWithItsNumberAndFiveSeconds();
    void accountIsAdminWhereNoneIsSet();
    void accountAndPasswordGoInTheLocalEncoding_data();
    void accountAndPasswordGoInTheLocalEncoding();
    void everyChannelNumberIsItsChannelId();
    void channelsStartInTheOrderInWhichTheyWereAskedFor();
    void channelThatIsOpenIsReportedAtOnce();
    void openChannelOfALostSessionIsReportedAndItsDeviceTried();
    void waitingChannelIsNotStartedTwice();
    void secondRequestForAWaitingChannelAddsNothing();
    void channelsOfAllDevicesStartOneAtATime();
    void wrongPasswordIsToldAndTheChannelLeavesTheQueue();
    void failedChannelCanBeAskedForAgain();
    void failureOfOneChannelLeavesTheOthers();
    void replayStartsAtOnceOnTheIdThatTheDeviceHasNamed();
    void failedReplayLeavesLiveViewAlone();
    void channelOfAnEndedSessionIsNotTakenIn_data();
    void channelOfAnEndedSessionIsNotTakenIn();

private:
    static QByteArray sent(const char* argument);
    Device* addConnected(char letter, int channels);

    std::optional<ConnectBench> bench_;
};

namespace {

class LocaleCodec final
{
public:
    explicit LocaleCodec(const QByteArray& name)
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    ~LocaleCodec() { QTextCodec::setCodecForLocale(nullptr); }
    Q_DISABLE_COPY_MOVE(LocaleCodec)
};

} // namespace

void TestChannelStart::init()
{
    bench_.emplace();
    bench_->start();
}

// The argument of the latest start.
QByteArray TestChannelStart::sent(const char* argument)
{
    return ScriptedLink::instance().last(startFn).bytes(argument);
}

Device* TestChannelStart::addConnected(char letter, int channels)
{
    Device* device = bench_->addDevice(letter, channels);
    device->sid = bench_->layer.openSession();
    return device;
}

void TestChannelStart::channelIsStartedWithItsNumberAndFiveSeconds()
{
    addConnected('A', 1);
    Device* device = addConnected('B', 3);
    device->setViewAccount(QStringLiteral("viewer"));
    bench_->link().connect(device->channel(2));
    QVERIFY(device->channel(2)->connectingChannel);
    finishTasks();
    QVERIFY(!device->channel(2)->connectingChannel);
    const LinkCall call = bench_->layer.last(startFn);
    QCOMPARE(call.sessionId(), 1);
    QCOMPARE(call.bytes("account"), QByteArray("viewer"));
    QCOMPARE(call.bytes("password"), QByteArray("secret"));
    QCOMPARE(call.number("timeoutSec"), 5);
    QCOMPARE(call.number("channelId"), 2);
    QVERIFY(call.thread != std::this_thread::get_id());
    QCOMPARE(int(device->channel(2)->mode(true).avIndex), 0);
    QCOMPARE(int(device->channel(2)->mode(false).avIndex), -1);
}

void TestChannelStart::accountIsAdminWhereNoneIsSet()
{
    Device* device = addConnected('A', 1);
    device->setViewPassword(QString());
    bench_->link().connect(device->channel(0));
    finishTasks();
    QCOMPARE(sent("account"), QByteArray("Admin"));
    QCOMPARE(sent("password"), QByteArray(""));
}

void TestChannelStart::accountAndPasswordGoInTheLocalEncoding_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QByteArray>("account");
    QTest::addColumn<QByteArray>("password");
    QTest::newRow("UTF-8") << QByteArray("UTF-8") << QByteArray("J\xc3\xb6rg")
                           << QByteArray("\xc3\xa9t\xc3\xa9");
    QTest::newRow("Latin-1") << QByteArray("ISO-8859-1") << QByteArray("J\xf6rg")
                             << QByteArray("\xe9t\xe9");
}

void TestChannelStart::accountAndPasswordGoInTheLocalEncoding()
{
    QFETCH(QByteArray, codec);
    const LocaleCodec local(codec);
    Device* device = addConnected('A', 1);
    device->setViewAccount(QStringLiteral("J\u00f6rg"));
    device->setViewPassword(QStringLiteral("\u00e9t\u00e9"));
    bench_->link().connect(device->channel(0));
    finishTasks();
    QTEST(sent("account"), "account");
    QTEST(sent("password"), "password");
}

void TestChannelStart::everyChannelNumberIsItsChannelId()
{
    Device* device = addConnected('A', 256);
    for (const int number : {255, 128, 0})
        bench_->link().connect(device->channel(number));
    finishTasks();
    QCOMPARE(startedChannels(), QList<int>({255, 128, 0}));
}

// The tiles of a wall come up in their order.
void TestChannelStart::channelsStartInTheOrderInWhichTheyWereAskedFor()
{
    const int threads = QThreadPool::globalInstance()->maxThreadCount();
    QThreadPool::globalInstance()->setMaxThreadCount(8);
    QList<int> wanted;
    Device* device = addConnected('A', 64);
    for (int i = 0; i < 64; ++i) {
        wanted.append(i);
        bench_->link().connect(device->channel(i));
    }
    finishTasks();
    QThreadPool::globalInstance()->setMaxThreadCount(threads);
    QCOMPARE(startedChannels(), wanted);
}

void TestChannelStart::channelThatIsOpenIsReportedAtOnce()
{
    Device* device = addConnected('A', 2);
    bench_->link().connect(device->channel(1));
    finishTasks();
    bench_->journal().clear();
    bench_->link().connect(device->channel(1));
    const QStringList told{"connect channel success:1,isLive:true",
        "connectChannelSuccessMsg A1 live", "connect device success:AAAAAAAAAAAAAAAAAAAA",
        "connectDevSuccessMsg A1"};
    QCOMPARE(bench_->journal().lines(), told);
    finishTasks();
    QCOMPARE(bench_->journal().lines(), told);
    QCOMPARE(startedChannels(), QList<int>({1}));
}

void TestChannelStart::openChannelOfALostSessionIsReportedAndItsDeviceTried()
{
    Channel* channel = bench_->addChannel('A');
    channel->mode(true).avIndex = 4;
    bench_->link().connect(channel);
    QCOMPARE(bench_->journal().linesOf("connectChannelSuccessMsg").size(), 1);
    QTRY_COMPARE(bench_->journal().count("connectDevSuccessMsg A0"), 1);
    finishTasks();
    QCOMPARE(startedChannels(), QList<int>());
}

void TestChannelStart::waitingChannelIsNotStartedTwice()
{
    LinkGate gate = bench_->layer.next(startFn).holds();
    Device* device = addConnected('A', 2);
    bench_->link().connect(device->channel(0));
    QVERIFY(gate.waitUntilReached());
    bench_->link().connect(device->channel(0));
    bench_->link().connect(device->channel(1));
    gate.release();
    finishTasks();
    QCOMPARE(startedChannels(), QList<int>({0, 1}));
    QCOMPARE(bench_->journal().linesOf("connectChannelSuccessMsg"),
        QStringList({"connectChannelSuccessMsg A0 live", "connectChannelSuccessMsg A1 live"}));
}

// A second entry of the device would be tried once the first has failed, and a second one of the
// channel would start it twice.
void TestChannelStart::secondRequestForAWaitingChannelAddsNothing()
{
    bench_->layer.next(connectFn).reports({});
    Channel* channel = bench_->addChannel('A');
    for (int i = 0; i < 3; ++i)
        bench_->link().connect(channel);
    finishTasks();
    QVERIFY(bench_->layer.report(0, ConnectStep::failed(-90)));
    QTRY_COMPARE(bench_->journal().linesOf("connectDevFailMsg").size(), 1);
    finishTasks();
    QCOMPARE(attempts(), QString("A"));
    bench_->link().connect(channel);
    QTRY_COMPARE(bench_->journal().linesOf("connectChannelSuccessMsg").size(), 1);
    finishTasks();
    QCOMPARE(attempts(), QString("AA"));
    QCOMPARE(startedChannels(), QList<int>({0}));
}

void TestChannelStart::channelsOfAllDevicesStartOneAtATime()
{
    std::atomic<int> atOnce{0};
    std::atomic<int> most{0};
    bench_->layer.always(startFn).answers([&](const LinkCall& call) {
        most = std::max(most.load(), ++atOnce);
        std::this_thread::yield();
        const int avIndex = bench_->layer.openChannel(call.sessionId(), call.number("channelId"));
        --atOnce;
        return avIndex;
    });
    for (const char letter : {'A', 'B', 'C', 'D'}) {
        Device* device = addConnected(letter, 8);
        for (int i = 0; i < 8; ++i)
            bench_->link().connect(device->channel(i));
    }
    finishTasks();
    QCOMPARE(bench_->journal().linesOf("connectChannelSuccessMsg").size(), 32);
    QCOMPARE(most.load(), 1);
}

void TestChannelStart::wrongPasswordIsToldAndTheChannelLeavesTheQueue()
{
    bench_->layer.next(startFn).answers(-20009);
    Device* device = addConnected('A', 2);
    Channel* channel = device->channel(0);
    bench_->link().connect(channel);
    finishTasks();
    QCOMPARE(bench_->journal().lines(),
        QStringList({"connect device success:AAAAAAAAAAAAAAAAAAAA", "connectDevSuccessMsg A0",
            "connectChannel:true",
            "connect channel error:0,error:-20009(Incorrect view account or password)",
            "connectChannelFailMsg A0 live -20009 Incorrect view account or password"}));
    QVERIFY(!channel->connectingChannel);
    QCOMPARE(int(channel->mode(true).avIndex), -1);

    bench_->link().connect(device->channel(1));
    finishTasks();
    QCOMPARE(startedChannels(), QList<int>({0, 1}));
}

void TestChannelStart::failedChannelCanBeAskedForAgain()
{
    bench_->layer.next(startFn).answers(-20011);
    Channel* channel = addConnected('A', 1)->channel(0);
    bench_->link().connect(channel);
    finishTasks();
    bench_->link().connect(channel);
    finishTasks();
    QCOMPARE(bench_->journal().linesOf("connectChannelFailMsg"),
        QStringList({"connectChannelFailMsg A0 live -20011 Timeout has expired"}));
    QCOMPARE(bench_->journal().linesOf("connectChannelSuccessMsg").size(), 1);
    QCOMPARE(startedChannels(), QList<int>({0, 0}));
}

void TestChannelStart::failureOfOneChannelLeavesTheOthers()
{
    bench_->layer
        .always(startFn, [](const LinkCall& call) { return call.number("channelId") == 1; })
        .answers(-20009);
    Device* device = addConnected('A', 3);
    for (int i = 0; i < 3; ++i)
        bench_->link().connect(device->channel(i));
    finishTasks();
    QCOMPARE(bench_->journal().linesOf("connectChannelSuccessMsg").size(), 2);
    QCOMPARE(bench_->journal().linesOf("connectChannelFailMsg").size(), 1);
    QCOMPARE(int(device->channel(1)->mode(true).avIndex), -1);
    QVERIFY(device->channel(2)->mode(true).avIndex >= 0);
}

void TestChannelStart::replayStartsAtOnceOnTheIdThatTheDeviceHasNamed()
{
    Channel* channel = addConnected('A', 2)->channel(1);
    channel->mode(true).avIndex = bench_->layer.openChannel(0, 1);
    bench_->link().connectChannel(channel, 200, false);
    QVERIFY(!channel->connectingChannel);
    finishTasks();
    QCOMPARE(bench_->journal().lines(),
        QStringList({"connectChannel:false", "connect channel success:1,isLive:false",
            "connectChannelSuccessMsg A1 replay"}));
    QCOMPARE(startedChannels(), QList<int>({200}));
    QCOMPARE(int(channel->mode(false).avIndex), 1);
    QCOMPARE(int(channel->mode(true).avIndex), 0);
}

void TestChannelStart::failedReplayLeavesLiveViewAlone()
{
    bench_->layer.next(startFn).answers(-20009);
    Channel* channel = addConnected('A', 1)->channel(0);
    channel->mode(true).avIndex = bench_->layer.openChannel(0, 0);
    bench_->link().connectChannel(channel, 9, false);
    finishTasks();
    QCOMPARE(bench_->journal().lines(),
        QStringList({"connectChannel:false",
            "connect channel error:0,error:-20009(Incorrect view account or password)",
            "connectChannelFailMsg A0 replay -20009 Incorrect view account or password"}));
    QCOMPARE(int(channel->mode(false).avIndex), -1);
    QCOMPARE(int(channel->mode(true).avIndex), 0);
}

void TestChannelStart::channelOfAnEndedSessionIsNotTakenIn_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::addColumn<QString>("signal");
    QTest::newRow("live")
        << true << "connectChannelFailMsg A0 live -20015 The remote session already closes";
    QTest::newRow("replay")
        << false << "connectChannelFailMsg A0 replay -20015 The remote session already closes";
}

// The session ends while the AV index is on its way to the main thread.
void TestChannelStart::channelOfAnEndedSessionIsNotTakenIn()
{
    QFETCH(bool, isLive);
    QFETCH(QString, signal);
    Device* device = addConnected('A', 1);
    Channel* channel = device->channel(0);
    bench_->link().connectChannel(channel, 0, isLive);
    QVERIFY(bench_->layer.waitForReturns(1, startFn));
    IOTC_Session_Close(device->sid);
    device->sid = -1;
    finishTasks();
    QCOMPARE(bench_->journal().lines().last(), signal);
    QCOMPARE(bench_->journal().linesOf("connectChannelSuccessMsg"), QStringList());
    QCOMPARE(int(channel->mode(isLive).avIndex), -1);
}

ORVA_TEST(TestChannelStart)
#include "tst_channelstart.moc"

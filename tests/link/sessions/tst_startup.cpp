// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkbench.h"
#include "model/events.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QTest>

#include <optional>

// How the two libraries come up, what waits for them, and how they are taken down.
class TestStartUp final : public QObject
{
    Q_OBJECT

private slots:
    void init() { bench_.emplace(); }
    void cleanup() { bench_.reset(); }

    void librariesComeUpOnAnyPortWithRoomFor4096Channels();
    void librariesComeUpOffTheMainThread();
    void failureIsToldWithItsTextAndRequestsWaitForEver_data();
    void failureIsToldWithItsTextAndRequestsWaitForEver();
    void positiveResultOfTheFirstLibraryLeavesTheSecondDown();
    void requestsFromBeforeTheLibrariesAreUpRunAfterwards();
    void channelThatIsOpenIsReportedBeforeTheLibrariesAreUp();
    void failedStartIsNotTriedAgain();

    void destroyedLinkTakesTheLibraryDownWithItsSessionsOpen();
    void destructorDoesNotWaitForTheLibrary();
    void unlistedEventGoesToTheBaseClass();
    void ownEventsAreTaken();

private:
    std::optional<ConnectBench> bench_;
};

void TestStartUp::librariesComeUpOnAnyPortWithRoomFor4096Channels()
{
    bench_->begin();
    finishTasks();
    QCOMPARE(bench_->journal().lines(), QStringList({"tutkInitSuccessMsg"}));
    QCOMPARE(bench_->layer.order(), QStringList({"IOTC_Initialize2", "avInitialize"}));
    QCOMPARE(bench_->layer.last(LinkFn::IOTC_Initialize2).number("udpPort"), 0);
    QCOMPARE(bench_->layer.last(LinkFn::avInitialize).number("maxChannels"), 4096);
}

void TestStartUp::librariesComeUpOffTheMainThread()
{
    const LinkGate gate = bench_->layer.next(LinkFn::IOTC_Initialize2).holds();
    bench_->begin(); // returns while the call stands at the gate
    QVERIFY(gate.waitUntilReached());
    QVERIFY(bench_->layer.last(LinkFn::IOTC_Initialize2).thread != std::this_thread::get_id());
}

void TestStartUp::failureIsToldWithItsTextAndRequestsWaitForEver_data()
{
    QTest::addColumn<LinkFn>("function");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("signal");
    QTest::addColumn<int>("secondCalls");
    QTest::newRow("port taken") << LinkFn::IOTC_Initialize2 << -8
                                << "tutkInitFailMsg -8 Fails to bind sockets" << 0;
    QTest::newRow("up already") << LinkFn::IOTC_Initialize2 << -3
                                << "tutkInitFailMsg -3 Module already initialized" << 0;
    QTest::newRow("channel half") << LinkFn::avInitialize << -20031
                                  << "tutkInitFailMsg -20031 Module is already initialized" << 1;
    QTest::newRow("unknown number")
        << LinkFn::avInitialize << -777 << "tutkInitFailMsg -777 No process:-777" << 1;
}

void TestStartUp::failureIsToldWithItsTextAndRequestsWaitForEver()
{
    QFETCH(LinkFn, function);
    QFETCH(int, result);
    QFETCH(QString, signal);
    QFETCH(int, secondCalls);
    bench_->layer.next(function).answers(result);
    bench_->begin();
    bench_->link().connect(bench_->addChannel('A'));
    finishTasks();
    bench_->link().connect(bench_->addChannel('B'));
    finishTasks();
    QCOMPARE(bench_->journal().lines(), QStringList({signal}));
    QCOMPARE(bench_->layer.count(LinkFn::avInitialize), secondCalls);
    QCOMPARE(bench_->layer.count(LinkFn::IOTC_Get_SessionID), 0);
    QCOMPARE(attempts(), QString());
}

// Only 0 lets the second library be brought up, and only a negative result is a failure.
void TestStartUp::positiveResultOfTheFirstLibraryLeavesTheSecondDown()
{
    bench_->layer.next(LinkFn::IOTC_Initialize2).answers(1);
    bench_->begin();
    finishTasks();
    QCOMPARE(bench_->journal().lines(), QStringList({"tutkInitSuccessMsg"}));
    QCOMPARE(bench_->layer.order(), QStringList({"IOTC_Initialize2"}));
    bench_->link().connect(bench_->addChannel('A'));
    QTRY_COMPARE(attempts(), QString("A"));
}

void TestStartUp::requestsFromBeforeTheLibrariesAreUpRunAfterwards()
{
    LinkGate gate = bench_->layer.next(LinkFn::IOTC_Initialize2).holds();
    bench_->begin();
    Device* device = bench_->addDevice('A', 2);
    bench_->link().connect(device->channel(1));
    bench_->link().connect(bench_->addChannel('B'));
    QVERIFY(gate.waitUntilReached());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(bench_->journal().lines(), QStringList());
    QCOMPARE(bench_->layer.order(), QStringList({"IOTC_Initialize2"}));
    QVERIFY(!device->connecting);

    gate.release();
    QTRY_COMPARE(bench_->journal().linesOf("connectChannelSuccessMsg").size(), 2);
    QCOMPARE(bench_->journal().count("connectChannelSuccessMsg A1 live"), 1);
    QCOMPARE(bench_->journal().count("connectChannelSuccessMsg B0 live"), 1);
    QCOMPARE(bench_->journal().lines().first(), QString("tutkInitSuccessMsg"));
    QCOMPARE(attempts(), QString("AB"));
}

void TestStartUp::channelThatIsOpenIsReportedBeforeTheLibrariesAreUp()
{
    const LinkGate gate = bench_->layer.next(LinkFn::IOTC_Initialize2).holds();
    bench_->begin();
    Channel* channel = bench_->addChannel('A');
    channel->device()->sid = 3;
    channel->mode(true).avIndex = 5;
    bench_->link().connect(channel);
    QCOMPARE(bench_->journal().lines(),
        QStringList({"connect channel success:0,isLive:true", "connectChannelSuccessMsg A0 live",
            "connect device success:AAAAAAAAAAAAAAAAAAAA", "connectDevSuccessMsg A0"}));
}

void TestStartUp::failedStartIsNotTriedAgain()
{
    bench_->layer.next(LinkFn::IOTC_Initialize2).answers(-6);
    bench_->begin();
    finishTasks();
    bench_->link().connect(bench_->addChannel('A'));
    finishTasks();
    QCOMPARE(bench_->layer.count(LinkFn::IOTC_Initialize2), 1);
}

void TestStartUp::destroyedLinkTakesTheLibraryDownWithItsSessionsOpen()
{
    bench_->start();
    Channel* channel = bench_->addChannel('A');
    bench_->link().connect(channel);
    QTRY_COMPARE(int(channel->mode(true).avIndex), 0);
    bench_->end();
    QCOMPARE(bench_->layer.order().last(), QString("IOTC_DeInitialize"));
    QCOMPARE(bench_->layer.count(LinkFn::IOTC_DeInitialize), 1);
    QCOMPARE(bench_->layer.count(LinkFn::IOTC_Session_Close), 0);
    QCOMPARE(bench_->layer.count(LinkFn::avClientStop), 0);
}

void TestStartUp::destructorDoesNotWaitForTheLibrary()
{
    ScriptedLink& layer = bench_->layer;
    const LinkGate gate = layer.next(LinkFn::IOTC_DeInitialize).holds();
    {
        const Connect link;
        finishTasks();
    }
    QVERIFY(gate.waitUntilReached());
    QCOMPARE(gate.waiting(), 1);
    QVERIFY(layer.last(LinkFn::IOTC_DeInitialize).thread != std::this_thread::get_id());
}

void TestStartUp::unlistedEventGoesToTheBaseClass()
{
    bench_->start();
    QObject plainObject;
    QEvent unlisted(static_cast<QEvent::Type>(1044));
    QCOMPARE(bench_->link().event(&unlisted), plainObject.event(&unlisted));
    QCOMPARE(bench_->journal().lines(), QStringList());
}

void TestStartUp::ownEventsAreTaken()
{
    bench_->start();
    Channel* channel = bench_->addChannel('A');
    ProgressEvent_Connect session(channel, -42, 0);
    ProgressEvent_GetAvIndex started(channel, -20011, true);
    ProgressEvent_initTutk up(0);
    for (QEvent* event : std::initializer_list<QEvent*>{&session, &started, &up})
        QVERIFY(bench_->link().event(event));
    QCOMPARE(bench_->journal().linesOf("connectDevFailMsg").size(), 1);
    QCOMPARE(bench_->journal().linesOf("connectChannelFailMsg").size(), 1);
    QCOMPARE(bench_->journal().linesOf("tutkInitSuccessMsg").size(), 1);
}

ORVA_TEST(TestStartUp)
#include "tst_startup.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkbench.h"
#include "model/devicemodel.h"
#include "model/events.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QTest>

#include <cstring>
#include <optional>

using namespace std::chrono_literals;

// The search on the local network.
class TestLanSearch final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { bench_.reset(); }

    void searchRunsFiveSecondsAndIsThenReadAndStopped();
    void searchStartsOffTheMainThreadAndIsReadOnIt();
    void searchWaitsForTheCommandUnderWay();
    void resultsAreFourTextsEach();
    void networkWithoutDevicesEmptiesTheList();
    void listTakesAsManyRecordsAsTheArrayHolds();
    void countAboveTheCapacityReadsNoFurther();
    void resultsStayUntilTheNextArrive();
    void failedStartIsToldAndLeavesTheList_data();
    void failedStartIsToldAndLeavesTheList();
    void failedReadingIsToldStopsTheSearchAndLeavesTheList();
    void searchBesideARunningOneFails();
    void searchBringsTheLibrariesUpWhereTheyAreDown();
    void channelHalfThatIsUpDoesNotMatterToTheSearch();
    void librariesThatDoNotComeUpFailTheSearch();
    void librariesThatStayDownFailTheSearchOnce();
    void textsWithoutATerminatorEndWithTheirField();
    void recordsLiveUntilTheyAreRead();
    void versionTextTellsKindAndChannels_data();
    void versionTextTellsKindAndChannels();

private:
    // Starts a search up to its waiting time.
    void search();
    // The waiting time is over.
    void read();
    QStringList callsSince(int sequence) const;
    QStringList uids();
    const QList<LanSearchResult>& results() { return bench_->link().lanResults(); }

    std::optional<IoConnectBench> bench_;
    int before_ = 0; // calls that came before the test's
};

namespace {

const LinkFn startSearch = LinkFn::IOTC_Search_Device_Start;
const LinkFn readSearch = LinkFn::IOTC_Search_Device_Result;
const LinkFn stopSearch = LinkFn::IOTC_Search_Device_Stop;

} // namespace

void TestLanSearch::init()
{
    bench_.emplace();
    bench_->start();
    before_ = int(bench_->layer.calls().size());
}

void TestLanSearch::search()
{
    bench_->link().startLANSearch();
    finishTasks();
}

void TestLanSearch::read()
{
    QMetaObject::invokeMethod(&bench_->link(), "getLanSearchResult");
    QCoreApplication::sendPostedEvents();
}

QStringList TestLanSearch::callsSince(int sequence) const
{
    return bench_->layer.order().mid(sequence);
}

QStringList TestLanSearch::uids()
{
    QStringList uids;
    for (const LanSearchResult& result : results())
        uids.append(result.uid);
    return uids;
}

void TestLanSearch::searchRunsFiveSecondsAndIsThenReadAndStopped()
{
    constexpr int patienceMs = 10'000;
    bench_->layer.addDevice("AAAAAAAAAAAAAAAAAAAA", "10.0.0.7", 32761, "IPC1");
    bench_->link().startLANSearch();
    QTRY_COMPARE_WITH_TIMEOUT(
        bench_->journal().lines(), QStringList({"startLANSearchSuccessMsg"}), patienceMs);
    QCOMPARE(callsSince(before_),
        QStringList(
            {"IOTC_Search_Device_Start", "IOTC_Search_Device_Result", "IOTC_Search_Device_Stop"}));
    const LinkCall started = bench_->layer.last(startSearch);
    QCOMPARE(started.number("waitMs"), 5000);
    QCOMPARE(started.number("intervalMs"), 1000);
    const LinkCall fetched = bench_->layer.last(readSearch);
    QCOMPARE(fetched.number("capacity"), 256);
    QCOMPARE(fetched.number("flag"), 1);
    QVERIFY(fetched.start - started.start > 4700ms); // Qt lets a long timer come early by a 20th
    QCOMPARE(uids(), QStringList({"AAAAAAAAAAAAAAAAAAAA"}));
}

void TestLanSearch::searchStartsOffTheMainThreadAndIsReadOnIt()
{
    search();
    read();
    const auto here = std::this_thread::get_id();
    QVERIFY(bench_->layer.last(startSearch).thread != here);
    QCOMPARE(bench_->layer.last(readSearch).thread, here);
    QCOMPARE(bench_->layer.last(stopSearch).thread, here);
}

void TestLanSearch::searchWaitsForTheCommandUnderWay()
{
    LinkGate gate = bench_->layer.next(LinkFn::avSendIOCtrl).holds();
    Device* device = bench_->addDevice('A');
    device->sid = bench_->layer.openSession();
    device->channel(0)->mode(true).avIndex = bench_->layer.openChannel(device->sid);
    bench_->link().getQuality(device->channel(0));
    QVERIFY(gate.waitUntilReached());
    bench_->link().startLANSearch();
    gate.release();
    finishTasks();
    const LinkCall command = bench_->layer.last(LinkFn::avSendIOCtrl);
    QVERIFY(bench_->layer.last(startSearch).start >= command.start + command.duration);
}

void TestLanSearch::resultsAreFourTextsEach()
{
    bench_->layer.addDevice("AAAAAAAAAAAAAAAAAAAA", "192.168.1.20", 65535, "NVR04W-8");
    bench_->layer.addDevice("BBBBBBBBBBBBBBBBBBBB", "fe80::1", 0, "");
    search();
    read();
    QCOMPARE(results().size(), 2);
    const LanSearchResult& recorder = results().at(0);
    QCOMPARE(recorder.version, QString("NVR04W-8"));
    QCOMPARE(recorder.uid, QString("AAAAAAAAAAAAAAAAAAAA"));
    QCOMPARE(recorder.ip, QString("192.168.1.20"));
    QCOMPARE(recorder.port, QString("65535"));
    const LanSearchResult& camera = results().at(1);
    QCOMPARE(camera.version, QString(""));
    QCOMPARE(camera.uid, QString("BBBBBBBBBBBBBBBBBBBB"));
    QCOMPARE(camera.ip, QString("fe80::1"));
    QCOMPARE(camera.port, QString("0"));
}

void TestLanSearch::networkWithoutDevicesEmptiesTheList()
{
    bench_->layer.addDevice("AAAAAAAAAAAAAAAAAAAA", "10.0.0.7", 1, "IPC1");
    search();
    read();
    QCOMPARE(results().size(), 1);
    bench_->journal().clear();
    bench_->layer.next(readSearch).answers(0);
    search();
    read();
    QCOMPARE(results().size(), 0);
    QCOMPARE(bench_->journal().lines(), QStringList({"startLANSearchSuccessMsg"}));
}

void TestLanSearch::listTakesAsManyRecordsAsTheArrayHolds()
{
    for (int i = 0; i < 300; ++i)
        bench_->layer.addDevice(
            QByteArray("UID") + QByteArray::number(i), "10.0.0.7", static_cast<quint16>(i), "IPC1");
    search();
    read();
    QCOMPARE(results().size(), 256);
    QCOMPARE(results().first().uid, QString("UID0"));
    QCOMPARE(results().last().uid, QString("UID255"));
    QCOMPARE(results().last().port, QString("255"));
}

void TestLanSearch::countAboveTheCapacityReadsNoFurther()
{
    bench_->layer.next(readSearch).answers(1'000'000);
    search();
    read();
    QCOMPARE(results().size(), 256);
}

void TestLanSearch::resultsStayUntilTheNextArrive()
{
    bench_->layer.addDevice("AAAAAAAAAAAAAAAAAAAA", "10.0.0.7", 1, "IPC1");
    search();
    read();
    bench_->layer.addDevice("BBBBBBBBBBBBBBBBBBBB", "10.0.0.8", 1, "IPC1");
    search();
    QCOMPARE(uids(), QStringList({"AAAAAAAAAAAAAAAAAAAA"}));
    QMetaObject::invokeMethod(&bench_->link(), "getLanSearchResult");
    QCOMPARE(uids(), QStringList({"AAAAAAAAAAAAAAAAAAAA"}));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(uids(), QStringList({"AAAAAAAAAAAAAAAAAAAA", "BBBBBBBBBBBBBBBBBBBB"}));
    QCOMPARE(bench_->journal().linesOf("startLANSearchSuccessMsg").size(), 2);
}

void TestLanSearch::failedStartIsToldAndLeavesTheList_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("signal");
    QTest::newRow("no network") << -16 << "startLANSearchFailMsg -16 Fails to get the local IP";
    QTest::newRow("running") << -17 << "startLANSearchFailMsg -17 Already start";
    QTest::newRow("unknown number") << -777 << "startLANSearchFailMsg -777 No process:-777";
}

void TestLanSearch::failedStartIsToldAndLeavesTheList()
{
    QFETCH(int, result);
    QFETCH(QString, signal);
    bench_->layer.addDevice("AAAAAAAAAAAAAAAAAAAA", "10.0.0.7", 1, "IPC1");
    search();
    read();
    bench_->journal().clear();
    before_ = int(bench_->layer.calls().size());
    bench_->layer.next(startSearch).answers(result);
    search();
    QCOMPARE(bench_->journal().lines(), QStringList({signal}));
    QCOMPARE(callsSince(before_), QStringList({"IOTC_Search_Device_Start"}));
    QCOMPARE(uids(), QStringList({"AAAAAAAAAAAAAAAAAAAA"}));
}

void TestLanSearch::failedReadingIsToldStopsTheSearchAndLeavesTheList()
{
    bench_->layer.addDevice("AAAAAAAAAAAAAAAAAAAA", "10.0.0.7", 1, "IPC1");
    search();
    read();
    bench_->journal().clear();
    bench_->layer.next(readSearch).answers(-56);
    search();
    read();
    QCOMPARE(bench_->journal().lines(),
        QStringList({"startLANSearchFailMsg -56 Start function is not called"}));
    QCOMPARE(bench_->layer.order().last(), QString("IOTC_Search_Device_Stop"));
    QCOMPARE(uids(), QStringList({"AAAAAAAAAAAAAAAAAAAA"}));
}

void TestLanSearch::searchBesideARunningOneFails()
{
    search();
    search();
    QCOMPARE(bench_->journal().lines(), QStringList({"startLANSearchFailMsg -17 Already start"}));
}

void TestLanSearch::searchBringsTheLibrariesUpWhereTheyAreDown()
{
    bench_->layer.addDevice("AAAAAAAAAAAAAAAAAAAA", "10.0.0.7", 1, "IPC1");
    QCOMPARE(IOTC_DeInitialize(), 0);
    before_ = int(bench_->layer.calls().size());
    search();
    QCOMPARE(callsSince(before_),
        QStringList({"IOTC_Search_Device_Start", "IOTC_Initialize2", "avInitialize",
            "IOTC_Search_Device_Start"}));
    QCOMPARE(bench_->layer.last(LinkFn::IOTC_Initialize2).number("udpPort"), 0);
    QCOMPARE(bench_->layer.last(LinkFn::avInitialize).number("maxChannels"), 4096);
    QCOMPARE(bench_->journal().lines(), QStringList());
    read();
    QCOMPARE(bench_->journal().lines(), QStringList({"startLANSearchSuccessMsg"}));
    QCOMPARE(uids(), QStringList({"AAAAAAAAAAAAAAAAAAAA"}));
}

// A positive result of the first library is no failure either.
void TestLanSearch::channelHalfThatIsUpDoesNotMatterToTheSearch()
{
    bench_->layer.next(startSearch).answers(-12);
    bench_->layer.next(LinkFn::IOTC_Initialize2).answers(1);
    bench_->layer.next(LinkFn::avInitialize).answers(-20031);
    search();
    QCOMPARE(callsSince(before_),
        QStringList({"IOTC_Search_Device_Start", "IOTC_Initialize2", "avInitialize",
            "IOTC_Search_Device_Start"}));
    QCOMPARE(bench_->journal().lines(), QStringList());
}

void TestLanSearch::librariesThatDoNotComeUpFailTheSearch()
{
    bench_->layer.next(startSearch).answers(-12);
    bench_->layer.next(LinkFn::IOTC_Initialize2).answers(-8);
    search();
    QCOMPARE(
        bench_->journal().lines(), QStringList({"startLANSearchFailMsg -8 Fails to bind sockets"}));
    QCOMPARE(callsSince(before_), QStringList({"IOTC_Search_Device_Start", "IOTC_Initialize2"}));
}

void TestLanSearch::librariesThatStayDownFailTheSearchOnce()
{
    bench_->layer.always(startSearch).answers(-12);
    bench_->layer.always(LinkFn::IOTC_Initialize2).answers(0);
    const QStringList once{
        "IOTC_Search_Device_Start", "IOTC_Initialize2", "avInitialize", "IOTC_Search_Device_Start"};
    const QString failure("startLANSearchFailMsg -12 Module is not initialized");
    search();
    QCOMPARE(bench_->journal().lines(), QStringList({failure}));
    QCOMPARE(callsSince(before_), once);
    search(); // tries it once more
    QCOMPARE(bench_->journal().lines(), QStringList({failure, failure}));
    QCOMPARE(callsSince(before_), once + once);
}

void TestLanSearch::textsWithoutATerminatorEndWithTheirField()
{
    const std::shared_ptr<IOTC_SearchRecord> record(new IOTC_SearchRecord);
    static_assert(sizeof(IOTC_SearchRecord) == 208);
    auto* bytes = reinterpret_cast<char*>(record.get());
    std::memset(bytes, 'x', sizeof(IOTC_SearchRecord));
    std::memset(bytes, 'u', 21);
    std::memset(bytes + 21, '1', 47);
    bytes[68] = '\x34';
    bytes[69] = '\x12';
    std::memset(bytes + 70, 'v', 138);
    postResult(&bench_->link(), new ProgressEvent_LanSearch(1, record));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(results().size(), 1);
    QCOMPARE(results().first().uid, QString(21, 'u'));
    QCOMPARE(results().first().ip, QString(47, '1'));
    QCOMPARE(results().first().port, QString("4660"));
    QCOMPARE(results().first().version, QString(138, 'v'));
}

// Between the reading and its event everything else of the main thread may happen.
void TestLanSearch::recordsLiveUntilTheyAreRead()
{
    bench_->layer.addDevice("AAAAAAAAAAAAAAAAAAAA", "10.0.0.7", 1, "IPC1");
    search();
    QMetaObject::invokeMethod(&bench_->link(), "getLanSearchResult");
    bench_->layer.next(readSearch).answers(0);
    QMetaObject::invokeMethod(&bench_->link(), "getLanSearchResult");
    QStringList seen;
    QObject view;
    QObject::connect(&bench_->link(), &IoConnect::startLANSearchSuccessMsg, &view,
        [&] { seen.append(uids().join(QLatin1Char(' '))); });
    QCoreApplication::sendPostedEvents();
    QCOMPARE(seen, QStringList({"AAAAAAAAAAAAAAAAAAAA", ""}));
}

void TestLanSearch::versionTextTellsKindAndChannels_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("channels");
    QTest::newRow("small letters") << QByteArray("myipc4") << "IPC"
                                   << "4";
    QTest::newRow("capitals") << QByteArray("IPC1") << "IPC"
                              << "1";
    QTest::newRow("first piece too short") << QByteArray("1W-8") << ""
                                           << "8";
    QTest::newRow("empty first piece") << QByteArray("-8") << ""
                                       << "8";
    QTest::newRow("recorder") << QByteArray("NVR04W-16") << "NVR"
                              << "16";
    QTest::newRow("unknown kind") << QByteArray("NVR99W-8") << ""
                                  << "8";
    QTest::newRow("no dash") << QByteArray("NVR04W") << ""
                             << "";
    QTest::newRow("empty") << QByteArray("") << ""
                           << "";
}

void TestLanSearch::versionTextTellsKindAndChannels()
{
    QFETCH(QByteArray, version);
    bench_->layer.addDevice("AAAAAAAAAAAAAAAAAAAA", "10.0.0.7", 1, version);
    search();
    read();
    QTEST(lanTypeText(results().first().version), "type");
    QTEST(lanChannelText(results().first().version), "channels");
}

ORVA_TEST(TestLanSearch)
#include "tst_lansearch.moc"

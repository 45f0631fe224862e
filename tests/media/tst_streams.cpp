// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediatest.h"
#include "model/events.h"
#include "model/mediaevents.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <limits>

// The list of streams, and what is told of them each second.
class TestStreams final : public QObject
{
    Q_OBJECT

private slots:
    void onlyTheFirstManagerDoesAnything();
    void managerIsBuiltOnFirstUse();
    void linkStartsTheStreamOfItsMode();
    void secondStartTakesTheSameStream();
    void stoppedStreamStaysAndIsStartedAgain();
    void streamsStandInTheOrderOfTheirFirstStart();
    void liveAndReplayRunSideBySide();
    void removedStreamIsReplacedByANewOne();
    void removingLeavesTheOtherModeAndOtherChannels();
    void removingWhatDoesNotRunDoesNothing();
    void closingTheProgramStopsAll();
    void leavingDeviceTakesItsStreams_data();
    void leavingDeviceTakesItsStreams();
    void countsAreOfTheTimeSinceTheLast();
    void countsComeInTheOrderOfTheStreams();
    void stoppedStreamTellsZeros();
    void removedStreamTellsNothing();
    void countsComeEachSecond();
    void listenerOfCountsMayRemoveStreams();
    void frameRateIsThatOfTheLastSecond();
    void volumeIsThatOfAllStreamsThereAre();
    void streamWithoutAChannelIsIdle();
};

namespace {

const LinkFrameInfo noPicture{78, 2, 0};

bool operator==(const Counted& a, const Counted& b)
{
    return a.channel == b.channel && a.videoReceived == b.videoReceived
        && a.audioReceived == b.audioReceived && a.videoDecoded == b.videoDecoded
        && a.audioPlayed == b.audioPlayed;
}

} // namespace

void TestStreams::onlyTheFirstManagerDoesAnything()
{
    MediaTest t;
    {
        Decode second;
        QCOMPARE(Decode::instance(), t.decode.get());
        t.start();
        QCOMPARE(t.decode->streams().size(), 1);
        QVERIFY(second.streams().isEmpty());
        emit t.viewControl.quitMsg();
        QVERIFY(t.decode->streams().isEmpty());
        second.createLiveStream(t.channel());
        t.start();
        emit t.viewControl.quitMsg();
        QCOMPARE(second.streams().size(), 1);
        second.stopAllStream();
        QVERIFY(t.settle());
    }
    QCOMPARE(Decode::instance(), t.decode.get());
}

void TestStreams::managerIsBuiltOnFirstUse()
{
    MediaTest t;
    t.decode.reset();
    t.decode.reset(Decode::instance());
    QVERIFY(t.decode != nullptr);
    QCOMPARE(Decode::instance(), t.decode.get());
    t.start();
    QCOMPARE(t.decode->streams().size(), 1);
}

void TestStreams::linkStartsTheStreamOfItsMode()
{
    const MediaTest t;
    emit t.io->videoRequestSuccessMsg(t.channel());
    QCOMPARE(t.decode->streams().size(), 1);
    QVERIFY(t.decode->streams().at(0)->isLive());
    QCOMPARE(t.decode->streams().at(0)->channel(), t.channel());
    emit t.io->startReplaySuccessMsg(t.channel());
    QCOMPARE(t.decode->streams().size(), 2);
    QVERIFY(!t.decode->streams().at(1)->isLive());
    QCOMPARE(t.decode->streams().at(1)->channel(), t.channel());
    QVERIFY(t.decode->streams().at(1)->isRunning());
    QCOMPARE(t.decode->streams().at(1)->parent(), t.decode.get());
}

void TestStreams::secondStartTakesTheSameStream()
{
    const MediaTest t;
    const Stream* first = t.start();
    QVERIFY(t.settle());
    t.queueVideo("frame", noPicture);
    QCOMPARE(t.start(), first);
    QCOMPARE(t.decode->streams().size(), 1);
    QVERIFY(first->isRunning());
    QVERIFY(t.settle());
    QCOMPARE(first->videoCount, 1); // fetched by the start, not by the end of the pause
}

void TestStreams::stoppedStreamStaysAndIsStartedAgain()
{
    const MediaTest t;
    Stream* stream = t.start();
    QVERIFY(t.settle());
    t.decode->stopStream(stream);
    QCOMPARE(t.decode->streams(), QList<Stream*>({stream}));
    QVERIFY(!stream->isRunning());
    t.queueVideo("frame", noPicture);
    QVERIFY(t.settle());
    QCOMPARE(stream->videoCount, 0);
    QCOMPARE(t.start(), stream);
    QVERIFY(stream->isRunning());
    QVERIFY(t.settle());
    QCOMPARE(stream->videoCount, 1);
}

void TestStreams::streamsStandInTheOrderOfTheirFirstStart()
{
    const MediaTest t(3);
    Stream* second = t.start(true, 2);
    Stream* first = t.start(false, 0);
    Stream* third = t.start(true, 1);
    t.decode->stopStream(second);
    t.start(true, 2);
    QCOMPARE(t.decode->streams(), QList<Stream*>({second, first, third}));
}

void TestStreams::liveAndReplayRunSideBySide()
{
    const MediaTest t;
    QVERIFY(t.avIndex(true) != t.avIndex(false));
    Stream* live = t.start(true);
    const Stream* replay = t.start(false);
    QVERIFY(live != replay);
    QVERIFY(live->isRunning() && replay->isRunning());
    QVERIFY(live->video() != replay->video());
    t.decode->stopStream(live);
    QVERIFY(replay->isRunning());
    QVERIFY(t.settle()); // the fetches of both starts, which find nothing
    t.queueVideo("frame", noPicture, false);
    QVERIFY(t.fetch(false));
    QCOMPARE(replay->videoCount, 1);
    QCOMPARE(live->videoCount, 0);
}

void TestStreams::removedStreamIsReplacedByANewOne()
{
    const MediaTest t;
    const QPointer<Stream> first = t.start();
    QVERIFY(t.settle());
    t.decode->removeStream(t.channel(), true);
    QVERIFY(t.decode->streams().isEmpty());
    QVERIFY(first != nullptr); // it goes later
    QVERIFY(!first->isRunning());
    const Stream* second = t.start();
    QVERIFY(second != first);
    QVERIFY(second->isRunning());
    t.queueVideo("frame", noPicture);
    QVERIFY(t.fetch());
    QCOMPARE(second->videoCount, 1);
    QCOMPARE(first->videoCount, 0);
}

void TestStreams::removingLeavesTheOtherModeAndOtherChannels()
{
    const MediaTest t(2);
    t.start(true, 0);
    Stream* replay = t.start(false, 0);
    Stream* other = t.start(true, 1);
    t.decode->removeStream(t.channel(0), true);
    QCOMPARE(t.decode->streams(), QList<Stream*>({replay, other}));
    QVERIFY(replay->isRunning() && other->isRunning());
}

void TestStreams::removingWhatDoesNotRunDoesNothing()
{
    const MediaTest t(2);
    Stream* stream = t.start();
    t.decode->removeStream(t.channel(0), false);
    t.decode->removeStream(t.channel(1), true);
    t.decode->removeStream(nullptr, true);
    QCOMPARE(t.decode->streams(), QList<Stream*>({stream}));
    QVERIFY(stream->isRunning());
}

void TestStreams::closingTheProgramStopsAll()
{
    MediaTest t(2);
    const std::vector<QPointer<Stream>> streams{
        t.start(true, 0), t.start(false, 0), t.start(true, 1)};
    emit t.viewControl.quitMsg();
    QVERIFY(t.decode->streams().isEmpty());
    for (const auto& stream : streams)
        QVERIFY(stream && !stream->isRunning());
    QVERIFY(t.settle());
    const int fetches = t.videoFetches();
    t.start(true, 1); // tells that time passes
    QTRY_VERIFY(t.videoFetches() > fetches + 4);
    QCOMPARE(t.link.last(LinkFn::avRecvFrameData2).avIndex(), t.avIndex(true, 1));
}

void TestStreams::leavingDeviceTakesItsStreams_data()
{
    QTest::addColumn<bool>("isConnected");
    QTest::newRow("with its session") << true;
    QTest::newRow("without a session") << false; // no end of one stops the streams
}

void TestStreams::leavingDeviceTakesItsStreams()
{
    QFETCH(bool, isConnected);
    MediaTest t(2);
    DeviceOwner other(new Device);
    other->setChannelCount(1);
    for (int number : {0, 1}) {
        t.start(true, number);
        t.start(false, number);
    }
    emit t.io->videoRequestSuccessMsg(other->channel(0));
    t.decode->stopStream(t.stream(true, 1)); // stopped ones too
    if (!isConnected)
        t.device->sid = -1;
    t.removeDevice();
    QCOMPARE(t.decode->streams().size(), 1);
    QCOMPARE(t.decode->streams().at(0)->channel(), other->channel(0));
    QVERIFY(t.decode->streams().at(0)->isRunning());
    QVERIFY(t.settle());
    t.decode->reset();
    QCOMPARE(t.counted.size(), std::size_t{1});
    emit t.viewControl.quitMsg();
    QVERIFY(t.settle());
}

void TestStreams::countsAreOfTheTimeSinceTheLast()
{
    const MediaTest t;
    for (int i = 0; i < 3; ++i)
        t.queueVideo("frame", noPicture);
    for (int i = 0; i < 2; ++i)
        t.queueSound("sound");
    Stream* stream = t.start();
    QVERIFY(t.settle());
    // As if the decoder had told so.
    for (const int result : {0, 0, -2, -9}) {
        VideoEvent_decoede event(t.channel(), true, result, 320, 240, 7);
        stream->findChild<Video*>()->event(&event);
    }
    QCOMPARE(stream->videoDecodedCount(), 2);
    t.decode->reset();
    QCOMPARE(t.counted.size(), std::size_t{1});
    QVERIFY((t.counted.at(0) == Counted{t.channel(), 3, 2, 2, 0}));
    QCOMPARE(stream->videoCount, 0);
    QCOMPARE(stream->audioCount, 0);
    QCOMPARE(stream->videoDecodedCount(), 0);
    QCOMPARE(stream->audioPlayedCount(), 0);
    t.queueVideo("frame", noPicture);
    QVERIFY(t.fetch());
    t.decode->reset();
    QVERIFY((t.counted.at(1) == Counted{t.channel(), 1, 0, 0, 0}));
}

void TestStreams::countsComeInTheOrderOfTheStreams()
{
    const MediaTest t(3);
    t.start(true, 1);
    t.start(true, 2);
    t.start(true, 0);
    t.decode->reset();
    QCOMPARE(t.counted.size(), std::size_t{3});
    QCOMPARE(t.counted.at(0).channel, t.channel(1));
    QCOMPARE(t.counted.at(1).channel, t.channel(2));
    QCOMPARE(t.counted.at(2).channel, t.channel(0));
}

void TestStreams::stoppedStreamTellsZeros()
{
    const MediaTest t;
    t.queueVideo("frame", noPicture);
    Stream* stream = t.start();
    QVERIFY(t.settle());
    t.decode->stopStream(stream);
    t.decode->reset();
    t.decode->reset();
    QCOMPARE(t.counted.size(), std::size_t{2});
    QVERIFY((t.counted.at(0) == Counted{t.channel(), 1, 0, 0, 0})); // of before the stop
    QVERIFY((t.counted.at(1) == Counted{t.channel(), 0, 0, 0, 0}));
}

void TestStreams::removedStreamTellsNothing()
{
    const MediaTest t;
    t.start();
    t.decode->removeStream(t.channel(), true);
    t.decode->reset();
    QVERIFY(t.counted.empty());
}

void TestStreams::countsComeEachSecond()
{
    const MediaTest t;
    t.start();
    QSignalSpy spy(t.decode.get(), &Decode::decodeCountMsg);
    QVERIFY(spy.wait());
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (int i = 0; i < 3; ++i) {
        QElapsedTimer pause;
        pause.start();
        QVERIFY(spy.wait());
        shortest = std::min(shortest, pause.elapsed());
    }
    QVERIFY2(shortest > 850 && shortest < 1500, qPrintable(QString::number(shortest)));
}

void TestStreams::listenerOfCountsMayRemoveStreams()
{
    const MediaTest t(3);
    for (const int number : {0, 1, 2})
        t.start(true, number);
    QObject::connect(
        t.decode.get(), &Decode::decodeCountMsg, t.decode.get(), [&](Channel* channel) {
            t.decode->removeStream(channel, true);
            t.decode->removeStream(t.channel(1), true);
        });
    t.decode->reset();
    QCOMPARE(t.counted.size(), std::size_t{2});
    QCOMPARE(t.counted.at(1).channel, t.channel(2));
    QVERIFY(t.decode->streams().isEmpty());
}

void TestStreams::frameRateIsThatOfTheLastSecond()
{
    const MediaTest t;
    for (int i = 0; i < 7; ++i)
        t.queueVideo("frame", noPicture);
    Stream* stream = t.start();
    QCOMPARE(stream->video()->frameRate(), 20);
    QVERIFY(t.settle());
    QCOMPARE(stream->video()->frameRate(), 20);
    t.decode->reset();
    QCOMPARE(stream->video()->frameRate(), 7);
    t.decode->stopStream(stream);
    t.decode->reset();
    QCOMPARE(stream->video()->frameRate(), 0);
}

void TestStreams::volumeIsThatOfAllStreamsThereAre()
{
    const MediaTest t(2);
    QCOMPARE(t.decode->getVolume(), 100);
    Stream* live = t.start(true);
    const Stream* replay = t.start(false);
    QCOMPARE(live->volume(), 100);
    t.decode->stopStream(live);
    t.decode->setVolume(35);
    QCOMPARE(t.decode->getVolume(), 35);
    QCOMPARE(live->volume(), 35);
    QCOMPARE(replay->volume(), 35);
    QCOMPARE(t.start(true, 1)->volume(), 100); // until the slider next moves
    t.decode->setVolume(150);
    QCOMPARE(t.stream(true, 1)->volume(), 150);
}

void TestStreams::streamWithoutAChannelIsIdle()
{
    const MediaTest t;
    t.decode->createLiveStream(nullptr);
    QCOMPARE(t.decode->streams().size(), 1);
    Stream* stream = t.decode->streams().at(0);
    QCOMPARE(stream->channel(), nullptr);
    QCOMPARE(stream->video(), nullptr);
    stream->getVideo();
    stream->getAudio();
    t.decode->setVolume(50);
    QVERIFY(t.settle());
    QCOMPARE(t.videoFetches() + t.soundChecks(), 0);
    t.decode->reset();
    QCOMPARE(t.counted.size(), std::size_t{1});
    QVERIFY((t.counted.at(0) == Counted{nullptr, 0, 0, 0, 0}));
    t.decode->removeStream(nullptr, true);
    QVERIFY(t.decode->streams().isEmpty());
}

ORVA_TEST(TestStreams)

#include "tst_streams.moc"

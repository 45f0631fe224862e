// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediatest.h"
#include "testmain.h"
#include "watches.h"

#include <QTest>

#include <climits>
#include <cstring>

// The fetching of frames by one stream: the calls, and what follows from their results.
class TestReceiving final : public QObject
{
    Q_OBJECT

private slots:
    void videoIsAskedForWithTheLargestFrame();
    void soundIsAskedForWithTheLargestFrame();
    void nextFetchFollowsAFrameAtOnce();
    void nextFetchIsUnderWayWhileTheFrameIsDecoded();
    void framesBelongToTheModesOwnIndex();
    void frameInformationTravelsAsItCame();
    void anyNegativeResultLeadsToThePause_data();
    void anyNegativeResultLeadsToThePause();
    void lostFrameIsSkipped();
    void pauseIsTwentyMilliseconds();
    void negativeIndexCallsNothingAndIsTheResult_data();
    void negativeIndexCallsNothingAndIsTheResult();
    void newIndexIsPickedUp();
    void deadSessionIsPolledOn();
    void emptyVideoFrameIsNoFailure();
    void flagsThatAreNoPictureCountOnly_data();
    void flagsThatAreNoPictureCountOnly();
    void recordingStartsWithAKeyFrame();
    void recordingOfTheOtherModeIsNotStarted();
    void recordingIsNotStartedByWhatIsNoPicture();
    void soundIsNotFetchedWhereNoneWaits();
    void soundIsFetchedAfterAFailedCheck();
    void soundIsDrainedWithoutPauses();
    void emptySoundFrameIsAFailure();
    void soundOfAnyCodecCounts_data();
    void soundOfAnyCodecCounts();
    void soundDoesNotWaitForVideo();
    void oneFetchOfAKindAtATime();
    void secondStartDoesNotPollMore();
    void stopEndsThePolls();
    void stopDropsWhatComesBackLater();
    void taskThatStartsAfterTheStopCallsNothing();
    void largestFrameArrivesWhole();
    void unlistedEventsGoToTheBaseClass();
};

namespace {

const LinkFrameInfo keyFrame{78, 1, 0};
const LinkFrameInfo predicted{78, 0, 0};

// Frames that are received and not decoded.
const LinkFrameInfo noPicture{78, 2, 0};

} // namespace

void TestReceiving::videoIsAskedForWithTheLargestFrame()
{
    const MediaTest t;
    t.start();
    QVERIFY(t.settle());
    QCOMPARE(t.videoFetches(), 1);
    const LinkCall call = t.link.last(LinkFn::avRecvFrameData2);
    QCOMPARE(call.avIndex(), t.avIndex());
    QCOMPARE(call.number("capacity"), 2304000);
    QCOMPARE(call.number("frameInfoCapacity"), 16);
}

void TestReceiving::soundIsAskedForWithTheLargestFrame()
{
    const MediaTest t;
    t.queueSound("sound");
    t.start();
    QVERIFY(t.settle());
    QCOMPARE(t.link.calls(LinkFn::avCheckAudioBuf).front().avIndex(), t.avIndex());
    QCOMPARE(t.link.count(LinkFn::avRecvAudioData), 1);
    const LinkCall call = t.link.last(LinkFn::avRecvAudioData);
    QCOMPARE(call.avIndex(), t.avIndex());
    QCOMPARE(call.number("capacity"), 1024);
    QCOMPARE(call.number("frameInfoCapacity"), 16);
}

void TestReceiving::nextFetchFollowsAFrameAtOnce()
{
    const MediaTest t;
    for (int i = 0; i < 5; ++i)
        t.queueVideo("frame", noPicture);
    const Stream* stream = t.start();
    QVERIFY(t.settle()); // which lets no timer run out
    QCOMPARE(stream->videoCount, 5);
    QCOMPARE(t.videoFetches(), 6);
}

void TestReceiving::nextFetchIsUnderWayWhileTheFrameIsDecoded()
{
    const MediaTest t;
    int fetchesAtDecode = -1;
    QObject::connect(t.decode.get(), &Decode::frameReceivedMsg, t.decode.get(), [&](Channel*) {
        const bool came = t.link.waitForCalls(2, LinkFn::avRecvFrameData2);
        fetchesAtDecode = came ? t.videoFetches() : -1;
    });
    t.queueVideo("frame", keyFrame);
    t.start();
    QVERIFY(t.settle());
    QCOMPARE(fetchesAtDecode, 2);
}

void TestReceiving::framesBelongToTheModesOwnIndex()
{
    const MediaTest t;
    t.queueVideo("frame", noPicture, true);
    for (int i = 0; i < 2; ++i)
        t.queueVideo("frame", noPicture, false);
    t.queueSound("sound", 138, true);
    for (int i = 0; i < 2; ++i)
        t.queueSound("sound", 138, false);
    const Stream* live = t.start(true);
    const Stream* replay = t.start(false);
    QVERIFY(t.settle());
    QVERIFY(live != replay);
    QCOMPARE(live->videoCount, 1);
    QCOMPARE(live->audioCount, 1);
    QCOMPARE(replay->videoCount, 2);
    QCOMPARE(replay->audioCount, 2);
    QCOMPARE(t.link.count(LinkFn::avRecvFrameData2, onIndex(t.avIndex(true))), 2);
    QCOMPARE(t.link.count(LinkFn::avRecvFrameData2, onIndex(t.avIndex(false))), 3);
}

void TestReceiving::frameInformationTravelsAsItCame()
{
    const MediaTest t;
    const ResultWatch results;
    t.link.queueVideo(t.avIndex(), "frame", {0x0051, 0xFE, 0xF4F3F2F1}, 0xFFFFFFFE);
    const QByteArray sent = LinkFrameInfo{0x0051, 0xFE, 0xF4F3F2F1}.bytes();
    t.start();
    QVERIFY(t.settle());
    const auto& fetch = results.video.front();
    QCOMPARE(fetch.result, 5);
    QVERIFY(fetch.hasBuffer);
    QCOMPARE(std::memcmp(&fetch.info, sent.constData(), 16), 0);
    QCOMPARE(fetch.info.codecId, std::uint16_t{0x51});
    QCOMPARE(fetch.info.flags, std::uint8_t{0xFE});
    QCOMPARE(fetch.info.timestamp, 0xF4F3F2F1U);
    QCOMPARE(fetch.info.frameNumber, 0xFFFFFFFEU);
}

void TestReceiving::anyNegativeResultLeadsToThePause_data()
{
    QTest::addColumn<int>("result");
    for (const int result :
        {-1, -20010, -20012, -20013, -20014, -20015, -20016, -20019, -99999, INT_MIN})
        QTest::newRow(qPrintable(QString::number(result))) << result;
}

void TestReceiving::anyNegativeResultLeadsToThePause()
{
    QFETCH(int, result);
    const MediaTest t;
    const ResultWatch results;
    t.link.next(LinkFn::avRecvFrameData2).answers(result);
    t.queueVideo("frame", noPicture);
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(t.videoFetches(), 1); // none at once
    QCOMPARE(stream->videoCount, 0);
    QCOMPARE(results.video.front().result, result);
    QVERIFY(!results.video.front().hasBuffer);
    QTRY_COMPARE(stream->videoCount, 1);
}

void TestReceiving::lostFrameIsSkipped()
{
    const MediaTest t;
    t.queueVideo("frame", noPicture);
    t.link.queueVideoResult(t.avIndex(), -20014);
    t.queueVideo("frame", noPicture);
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(stream->videoCount, 1);
    QTRY_COMPARE(stream->videoCount, 2);
}

void TestReceiving::pauseIsTwentyMilliseconds()
{
    const MediaTest t;
    const PauseWatch watch;
    t.start();
    QTRY_VERIFY(t.videoFetches() > 5 && t.soundChecks() > 5);
    t.decode->stopAllStream();
    QVERIFY(t.settle());
    // Each fetch but the first of its kind came after one.
    QCOMPARE(watch.pauses.size(), static_cast<std::size_t>(t.videoFetches() + t.soundChecks() - 2));
    for (const int pause : watch.pauses)
        QCOMPARE(pause, 20);
}

void TestReceiving::negativeIndexCallsNothingAndIsTheResult_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("no session yet") << -1;
    QTest::newRow("another one") << -7;
}

void TestReceiving::negativeIndexCallsNothingAndIsTheResult()
{
    QFETCH(int, index);
    const MediaTest t;
    const ResultWatch results;
    t.channel()->mode(true).avIndex = index;
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(results.video.size(), std::size_t{1});
    QCOMPARE(results.sound.size(), std::size_t{1});
    QTRY_VERIFY(results.video.size() > 3 && results.sound.size() > 3);
    for (const auto& fetch : results.video)
        QVERIFY(fetch.result == index && !fetch.hasBuffer);
    for (const auto& fetch : results.sound)
        QVERIFY(fetch.result == index && !fetch.hasBuffer);
    QCOMPARE(t.videoFetches() + t.soundChecks() + t.link.count(LinkFn::avRecvAudioData), 0);
    QCOMPARE(stream->videoCount, 0);
    QCOMPARE(stream->audioCount, 0);
}

void TestReceiving::newIndexIsPickedUp()
{
    const MediaTest t;
    const int first = t.avIndex();
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    t.channel()->mode(true).avIndex = -1;
    QVERIFY(t.fetch());
    const int second = t.link.openChannel(t.device->sid, 9);
    QVERIFY(second > first);
    t.link.queueVideo(second, "frame", noPicture);
    t.link.queueSound(second, "sound");
    t.channel()->mode(true).avIndex = second;
    QTRY_COMPARE(stream->videoCount, 1);
    QTRY_COMPARE(stream->audioCount, 1);
    QVERIFY(t.settle());
    QCOMPARE(t.link.last(LinkFn::avRecvFrameData2).avIndex(), second);
    QCOMPARE(t.link.last(LinkFn::avCheckAudioBuf).avIndex(), second);
}

void TestReceiving::deadSessionIsPolledOn()
{
    const MediaTest t;
    const ResultWatch results;
    t.link.loseDevice(t.device->sid);
    t.start();
    QTRY_VERIFY(results.video.size() > 4 && results.sound.size() > 4);
    QCOMPARE(results.video.back().result, -20016);
    QCOMPARE(results.sound.back().result, -20016);
}

void TestReceiving::emptyVideoFrameIsNoFailure()
{
    const MediaTest t;
    const ResultWatch results;
    t.queueVideo("frame", keyFrame);
    t.link.next(LinkFn::avRecvFrameData2);
    t.link.next(LinkFn::avRecvFrameData2).answers(0);
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(t.videoFetches(), 3); // the third at once
    QCOMPARE(stream->videoCount, 2);
    QCOMPARE(results.video.at(1).result, 0);
    QCOMPARE(results.pictures.size(), std::size_t{2}); // the decoder was given both
    QVERIFY(results.pictures.at(1).result < 0);
}

void TestReceiving::flagsThatAreNoPictureCountOnly_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("isPicture");
    QTest::newRow("predicted") << 0 << true;
    QTest::newRow("key") << 1 << true;
    for (const int flags : {2, 3, 0x7F, 0x80, 0xFF})
        QTest::newRow(qPrintable(QString::number(flags))) << flags << false;
}

void TestReceiving::flagsThatAreNoPictureCountOnly()
{
    QFETCH(int, flags);
    const MediaTest t;
    const ResultWatch results;
    t.queueVideo("frame", {78, static_cast<quint8>(flags), 0});
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(stream->videoCount, 1);
    QCOMPARE(t.videoFetches(), 2);
    QTEST(stream->video()->isDecoderTried(), "isPicture");
    QTEST(!results.pictures.empty(), "isPicture");
}

void TestReceiving::recordingStartsWithAKeyFrame()
{
    const MediaTest t;
    ChannelMode& mode = t.channel()->mode(true);
    t.queueVideo("frame", keyFrame);
    t.start();
    QVERIFY(t.settle());
    QVERIFY(!mode.recordStarted); // nobody records
    t.channel()->setRecord(true, true);
    t.queueVideo("frame", predicted);
    QVERIFY(t.fetch());
    QVERIFY(!mode.recordStarted);
    t.queueVideo("frame", keyFrame);
    QVERIFY(t.fetch());
    QVERIFY(mode.recordStarted);
    t.queueVideo("frame", predicted);
    QVERIFY(t.fetch());
    QVERIFY(mode.recordStarted);
    t.channel()->setRecord(false, true);
    QVERIFY(!mode.recordStarted);
}

void TestReceiving::recordingOfTheOtherModeIsNotStarted()
{
    const MediaTest t;
    t.channel()->setRecord(true, true);
    t.channel()->setRecord(true, false);
    t.queueVideo("frame", keyFrame, false);
    t.start(false);
    QVERIFY(t.settle());
    QVERIFY(t.channel()->mode(false).recordStarted);
    QVERIFY(!t.channel()->mode(true).recordStarted);
}

void TestReceiving::recordingIsNotStartedByWhatIsNoPicture()
{
    const MediaTest t;
    t.channel()->setRecord(true, true);
    t.queueVideo("frame", {78, 3, 0});
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(stream->videoCount, 1);
    QVERIFY(!t.channel()->mode(true).recordStarted);
}

void TestReceiving::soundIsNotFetchedWhereNoneWaits()
{
    const MediaTest t;
    const ResultWatch results;
    t.start();
    QVERIFY(t.settle());
    QCOMPARE(t.soundChecks(), 1);
    QCOMPARE(results.sound.front().result, 0);
    QVERIFY(!results.sound.front().hasBuffer);
    QTRY_VERIFY(t.soundChecks() > 3);
    QCOMPARE(t.link.count(LinkFn::avRecvAudioData), 0);
}

void TestReceiving::soundIsFetchedAfterAFailedCheck()
{
    const MediaTest t;
    const ResultWatch results;
    t.link.next(LinkFn::avCheckAudioBuf).answers(-20013);
    t.queueSound("sound");
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(t.link.count(LinkFn::avRecvAudioData), 1);
    QCOMPARE(results.sound.front().result, 5);
    QCOMPARE(stream->audioCount, 1);
}

void TestReceiving::soundIsDrainedWithoutPauses()
{
    const MediaTest t;
    for (int i = 0; i < 5; ++i)
        t.queueSound(QByteArray(1024, 's'));
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(stream->audioCount, 5);
    QCOMPARE(t.soundChecks(), 6); // one a frame, and one that finds nothing
    QCOMPARE(t.link.count(LinkFn::avRecvAudioData), 5);
}

void TestReceiving::emptySoundFrameIsAFailure()
{
    const MediaTest t;
    t.link.next(LinkFn::avCheckAudioBuf).answers(1);
    t.link.next(LinkFn::avRecvAudioData).answers(0);
    t.queueSound("sound");
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(t.soundChecks(), 1);
    QCOMPARE(stream->audioCount, 0);
    QTRY_COMPARE(stream->audioCount, 1); // the pause came to its end
}

void TestReceiving::soundOfAnyCodecCounts_data()
{
    QTest::addColumn<int>("codec");
    for (const int codec : {0, 78, 135, 136, 138, 143, 144, 0xFFFF})
        QTest::newRow(qPrintable(QString::number(codec))) << codec;
}

void TestReceiving::soundOfAnyCodecCounts()
{
    QFETCH(int, codec);
    const MediaTest t;
    t.queueSound("sound", static_cast<quint16>(codec));
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(stream->audioCount, 1);
    QCOMPARE(t.soundChecks(), 2); // the next one at once
}

void TestReceiving::soundDoesNotWaitForVideo()
{
    const PoolSize threads(4);
    const MediaTest t;
    const LinkGate gate = t.link.always(LinkFn::avRecvFrameData2).holds();
    const Stream* stream = t.start();
    QVERIFY(gate.waitUntilReached());
    t.queueSound("sound");
    QTRY_COMPARE(stream->audioCount, 1);
    QCOMPARE(gate.waiting(), 1);
}

void TestReceiving::oneFetchOfAKindAtATime()
{
    const PoolSize threads(8);
    const MediaTest t;
    const LinkGate gate = t.link.always(LinkFn::avRecvFrameData2).holds();
    t.start();
    QVERIFY(gate.waitUntilReached());
    t.start(); // a second chain
    t.start();
    // The pool keeps the order: once their sound is looked for, their pictures wait already.
    QVERIFY(t.link.waitForReturns(3, LinkFn::avCheckAudioBuf));
    QCOMPARE(t.link.inFlight(LinkFn::avRecvFrameData2), 1);
}

void TestReceiving::secondStartDoesNotPollMore()
{
    const MediaTest t;
    const PauseWatch watch;
    t.start();
    QVERIFY(t.settle());
    t.start();
    QVERIFY(t.settle());
    QCOMPARE(t.videoFetches(), 2);
    QCOMPARE(t.soundChecks(), 2);
    QTRY_VERIFY(t.videoFetches() > 7 && t.soundChecks() > 7);
    t.decode->stopAllStream();
    QVERIFY(t.settle());
    QCOMPARE(watch.pauses.size(), static_cast<std::size_t>(t.videoFetches() + t.soundChecks() - 4));
}

void TestReceiving::stopEndsThePolls()
{
    const MediaTest t(2);
    Stream* stream = t.start(true, 0);
    t.start(true, 1); // tells that time passes
    QVERIFY(t.settle());
    t.decode->stopStream(stream);
    QVERIFY(!stream->isRunning());
    const int fetches = t.link.count(LinkFn::avRecvFrameData2, onIndex(t.avIndex(true, 0)));
    const int checks = t.link.count(LinkFn::avCheckAudioBuf, onIndex(t.avIndex(true, 0)));
    QTRY_VERIFY(t.link.count(LinkFn::avRecvFrameData2, onIndex(t.avIndex(true, 1))) > 5);
    QCOMPARE(t.link.count(LinkFn::avRecvFrameData2, onIndex(t.avIndex(true, 0))), fetches);
    QCOMPARE(t.link.count(LinkFn::avCheckAudioBuf, onIndex(t.avIndex(true, 0))), checks);
}

void TestReceiving::stopDropsWhatComesBackLater()
{
    const PoolSize threads(4);
    const MediaTest t;
    const ResultWatch results;
    t.queueVideo("frame", keyFrame);
    t.queueSound("sound");
    LinkGate video = t.link.next(LinkFn::avRecvFrameData2).holds();
    LinkGate sound = t.link.next(LinkFn::avRecvAudioData).holds();
    Stream* stream = t.start();
    QVERIFY(video.waitUntilReached() && sound.waitUntilReached());
    t.decode->stopStream(stream);
    video.release();
    sound.release();
    QVERIFY(t.settle());
    QCOMPARE(results.video.size(), std::size_t{1});
    QVERIFY(results.video.front().hasBuffer);
    QVERIFY(results.sound.front().hasBuffer);
    QCOMPARE(stream->videoCount, 0);
    QCOMPARE(stream->audioCount, 0);
    QVERIFY(!stream->video()->isDecoderTried());
    QCOMPARE(t.videoFetches(), 1);
    QCOMPARE(t.soundChecks(), 1);
}

void TestReceiving::taskThatStartsAfterTheStopCallsNothing()
{
    const MediaTest t;
    const ResultWatch results;
    PoolBlock block;
    Stream* stream = t.start();
    t.decode->stopStream(stream);
    block.release();
    QVERIFY(t.settle());
    QCOMPARE(t.videoFetches(), 0);
    QCOMPARE(t.soundChecks(), 0);
    QVERIFY(results.video.empty() && results.sound.empty());
}

void TestReceiving::largestFrameArrivesWhole()
{
    const MediaTest t;
    const ResultWatch results;
    t.queueVideo(QByteArray(2304000, 'f'), noPicture);
    t.queueVideo(QByteArray(2304001, 'f'), noPicture); // one too large for the layer
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(stream->videoCount, 1);
    QCOMPARE(results.video.at(0).result, 2304000);
    QCOMPARE(results.video.at(1).result, -20001);
}

void TestReceiving::unlistedEventsGoToTheBaseClass()
{
    const MediaTest t;
    Stream* stream = t.start();
    QVERIFY(t.settle());
    // Delivered as an event that the base class turns into the call.
    QVERIFY(QMetaObject::invokeMethod(stream, "getVideo", Qt::QueuedConnection));
    QVERIFY(t.settle());
    QCOMPARE(t.videoFetches(), 2);
    // What the base class does not know itself, it refuses.
    QEvent unknown(QEvent::Polish);
    QVERIFY(!stream->event(&unknown));
    for (const int number : {1017, 1020, 1021, 1022}) {
        QEvent foreign(static_cast<QEvent::Type>(number));
        stream->event(&foreign);
    }
    QVERIFY(t.settle());
    QCOMPARE(t.videoFetches(), 2);
    QCOMPARE(stream->videoCount, 0);
}

ORVA_TEST(TestReceiving)

#include "tst_receiving.moc"

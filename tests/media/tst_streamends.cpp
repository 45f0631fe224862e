// SPDX-License-Identifier: GPL-3.0-or-later
#include "clip.h"
#include "media/ffmpegowners.h"
#include "mediatest.h"
#include "testmain.h"
#include "watches.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QTest>
#include <QThreadPool>

Q_DECLARE_METATYPE(LinkFn)

// Streams that end while something of them is under way.
class TestStreamEnds final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void removedStreamIsDestroyedOnceIdle();
    void hangingFetchKeepsARemovedStream_data();
    void hangingFetchKeepsARemovedStream();
    void newStreamRunsBesideOneThatHangs();
    void resultsThatWaitGoWithTheStream();
    void stopWithResultsUnderWayShowsNothing();
    void endingInTheMiddleOfAFrameIsHarmless();
    void endingOnAPictureIsHarmless();
    void managerWaitsForTasksAtItsEnd();
    void deviceIsDestroyedOnceItsTasksHaveEnded();
    void hundredStartsAndStops();
    void hundredStartsAndRemovals();
    void hundredDeletedDevices();

private:
    void queueAll(const MediaTest& t, bool isLive = true) const;

    std::vector<ClipFrame> clip_;
};

namespace {

// Delivers what has been posted, and lets timers run out, but waits for nothing.
void turn()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

} // namespace

void TestStreamEnds::initTestCase()
{
    ClipSettings settings;
    settings.width = 96;
    settings.height = 64;
    settings.count = 12;
    settings.keyInterval = 6;
    clip_ = makeClip(settings);
    av_log_set_level(AV_LOG_QUIET); // frames come in any order here
}

void TestStreamEnds::queueAll(const MediaTest& t, bool isLive) const
{
    for (const ClipFrame& frame : clip_) {
        t.queueVideo(frame.bytes, {frame.codec, static_cast<quint8>(frame.isKey), 0}, isLive);
        t.queueSound("sound", 138, isLive);
    }
}

void TestStreamEnds::removedStreamIsDestroyedOnceIdle()
{
    const MediaTest t;
    const QPointer<Stream> stream = t.start();
    queueAll(t);
    QVERIFY(t.settle());
    t.decode->reset();
    QVERIFY(stream != nullptr); // idle, and in the list
    t.decode->stopStream(stream);
    QVERIFY(t.settle());
    t.decode->reset();
    QVERIFY(stream != nullptr); // stopped, and in the list
    t.decode->removeStream(t.channel(), true);
    QVERIFY(stream != nullptr);
    t.decode->reset();
    QVERIFY(stream == nullptr);
}

void TestStreamEnds::hangingFetchKeepsARemovedStream_data()
{
    QTest::addColumn<LinkFn>("function");
    QTest::newRow("picture") << LinkFn::avRecvFrameData2;
    QTest::newRow("check for sound") << LinkFn::avCheckAudioBuf;
    QTest::newRow("sound") << LinkFn::avRecvAudioData;
}

void TestStreamEnds::hangingFetchKeepsARemovedStream()
{
    QFETCH(LinkFn, function);
    const PoolSize threads(4);
    const MediaTest t;
    queueAll(t);
    LinkGate gate = t.link.next(function).holds();
    const QPointer<Stream> stream = t.start();
    QVERIFY(gate.waitUntilReached());
    t.decode->removeStream(t.channel(), true); // does not wait for it
    for (int i = 0; i < 5; ++i) {
        t.decode->reset();
        turn();
        QVERIFY(stream != nullptr);
    }
    QVERIFY(!stream->isIdle());
    gate.release();
    QVERIFY(t.settle());
    QVERIFY(stream->isIdle());
    t.decode->reset();
    QVERIFY(stream == nullptr);
}

void TestStreamEnds::newStreamRunsBesideOneThatHangs()
{
    const PoolSize threads(4);
    const MediaTest t;
    const LinkGate gate = t.link.next(LinkFn::avRecvFrameData2).holds();
    const QPointer<Stream> first = t.start();
    QVERIFY(gate.waitUntilReached());
    t.decode->removeStream(t.channel(), true);
    queueAll(t);
    const Stream* second = t.start();
    QVERIFY(second != first);
    QTRY_COMPARE(second->videoCount, 12);
    QCOMPARE(gate.waiting(), 1);
    QVERIFY(first != nullptr);
    QCOMPARE(first->videoCount, 0);
}

void TestStreamEnds::resultsThatWaitGoWithTheStream()
{
    const MediaTest t;
    queueAll(t);
    const QPointer<Stream> stream = t.start();
    QVERIFY(t.link.waitForReturns(1, LinkFn::avRecvFrameData2));
    QVERIFY(t.link.waitForReturns(1, LinkFn::avRecvAudioData));
    t.decode->removeStream(t.channel(), true);
    QThreadPool::globalInstance()->waitForDone(); // its events are posted, not delivered
    t.decode->reset();
    QVERIFY(stream == nullptr);
    QVERIFY(t.settle());
    QVERIFY(t.shown.empty());
}

void TestStreamEnds::stopWithResultsUnderWayShowsNothing()
{
    const MediaTest t;
    queueAll(t);
    Stream* stream = t.start();
    QTRY_VERIFY(stream->videoCount > 3);
    t.decode->stopStream(stream);
    const auto shown = t.shown.size();
    const int received = stream->videoCount;
    QVERIFY(t.settle());
    QCOMPARE(t.shown.size(), shown);
    QCOMPARE(stream->videoCount, received);
    QCOMPARE(stream->video()->waitingFrames(), 0);
}

void TestStreamEnds::endingInTheMiddleOfAFrameIsHarmless()
{
    const MediaTest t;
    queueAll(t);
    QObject::connect(t.decode.get(), &Decode::frameReceivedMsg, t.decode.get(),
        [&](Channel* channel) { t.decode->removeStream(channel, true); });
    const QPointer<Stream> stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(stream->videoCount, 1);
    QCOMPARE(stream->video()->waitingFrames(), 0);
    QVERIFY(t.shown.empty());
}

void TestStreamEnds::endingOnAPictureIsHarmless()
{
    const MediaTest t;
    queueAll(t);
    QObject::connect(t.decode.get(), &Decode::decodeSuccess, t.decode.get(),
        [&](Channel* channel, bool isLive) { t.decode->removeStream(channel, isLive); });
    const QPointer<Stream> stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(t.shown.size(), std::size_t{1});
    t.decode->reset();
    QVERIFY(stream == nullptr);
}

void TestStreamEnds::managerWaitsForTasksAtItsEnd()
{
    MediaTest t;
    queueAll(t);
    using namespace std::chrono_literals;
    t.link.next(LinkFn::avRecvFrameData2).after(50ms);
    const QPointer<Stream> stream = t.start();
    QVERIFY(t.link.waitForCalls(1, LinkFn::avRecvFrameData2));
    t.decode.reset();
    QCOMPARE(t.link.inFlight(LinkFn::avRecvFrameData2), 0);
    QVERIFY(stream == nullptr);
}

void TestStreamEnds::deviceIsDestroyedOnceItsTasksHaveEnded()
{
    const PoolSize threads(4);
    MediaTest t;
    QSemaphore mayReturn; // a gate would let it go as the device's session ends
    t.link.next(LinkFn::avRecvFrameData2).answers([&mayReturn](const LinkCall&) {
        mayReturn.acquire();
        return -20016;
    });
    const QPointer<Stream> stream = t.start();
    const QPointer<QObject> partOfTheDevice = t.channel()->ioTimer();
    QVERIFY(t.link.waitForCalls(1, LinkFn::avRecvFrameData2));
    t.removeDevice();
    for (int i = 0; i < 5; ++i) {
        turn();
        t.decode->reset();
    }
    const bool isThere = stream != nullptr && partOfTheDevice != nullptr;
    mayReturn.release();
    QVERIFY(isThere);
    QVERIFY(t.settle());
    QVERIFY(partOfTheDevice == nullptr);
    t.decode->reset(); // the stream's channel is gone
    QVERIFY(stream == nullptr);
}

void TestStreamEnds::hundredStartsAndStops()
{
    const MediaTest t;
    for (int i = 0; i < 100; ++i) {
        queueAll(t);
        Stream* stream = t.start();
        for (int turns = 0; turns < i % 7; ++turns)
            turn();
        t.decode->stopStream(stream);
        if (i % 10 == 0)
            t.decode->reset();
    }
    QCOMPARE(t.decode->streams().size(), 1);
    QVERIFY(t.settle());
    t.link.reset();
}

void TestStreamEnds::hundredStartsAndRemovals()
{
    const MediaTest t;
    std::vector<QPointer<Stream>> streams;
    for (int i = 0; i < 100; ++i) {
        const bool isLive = i % 3 != 0;
        queueAll(t, isLive);
        streams.emplace_back(t.start(isLive));
        for (int turns = 0; turns < i % 5; ++turns)
            turn();
        t.decode->removeStream(t.channel(), isLive);
        if (i % 4 == 0)
            t.decode->reset();
    }
    QVERIFY(t.decode->streams().isEmpty());
    QVERIFY(t.settle());
    t.decode->reset();
    for (const auto& stream : streams)
        QVERIFY(stream == nullptr);
}

void TestStreamEnds::hundredDeletedDevices()
{
    const LogWatch silence; // the link says each time that it ends a session
    for (int i = 0; i < 100; ++i) {
        MediaTest t;
        queueAll(t, true);
        queueAll(t, false);
        t.start(true);
        t.start(false);
        for (int turns = 0; turns < i % 5; ++turns)
            turn();
        if (i % 2 == 0)
            t.removeDevice();
        else
            t.decode.reset();
    }
}

ORVA_TEST(TestStreamEnds)

#include "tst_streamends.moc"

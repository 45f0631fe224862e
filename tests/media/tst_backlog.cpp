// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/task.h"
#include "testmain.h"
#include "videotest.h"

#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include <algorithm>

// Frames that come faster than they are decoded.
class TestBacklog final : public QObject
{
    Q_OBJECT

private slots:
    void threeHundredFramesMayWait();
    void oneMoreDropsAllBeforeTheNewestKeyFrame();
    void oneMoreDropsAllWhereNoNewerKeyFrameWaits();
    void framesThatBuildOnDroppedOnesAreLeftOut();
    void keyFrameReplacesAllThatWaits();
    void eightMebibytesMayWait();
    void frameThatHasWaitedTooLongDropsAllBeforeTheNewestKeyFrame();
    void queueNeverGrowsBeyondItsBounds();
    void whatIsShownAfterwardsIsUndamaged();
    void stopForgetsThatFramesWereLeftOut();
    void isToldOnceAMinute();
    void nothingIsLeftOutWhereTheDecoderKeepsUp();
    void orderIsKeptOverManyStreams();
    void streamIsBoundedWhereFramesComeFaster();
    void otherTasksTakeTheirTurnBetweenFrames();
};

namespace {

ClipFrame fakeFrame(bool isKey, int size = 100)
{
    return {QByteArray(size, '\x55'), clipH264, isKey, 0};
}

// A decoder whose tasks do not start until the block is released.
struct HeldVideo
{
    HeldVideo() { t.video->openDecoder(infoOf(fakeFrame(true)), 352, 288, 4); }
    ~HeldVideo() { block.release(); }
    Q_DISABLE_COPY_MOVE(HeldVideo)

    void push(bool isKey, int count = 1, int size = 100) const
    {
        for (int i = 0; i < count; ++i)
            t.push(fakeFrame(isKey, size));
    }
    int waiting() const { return t.video->waitingFrames(); }
    int leftOut() const { return t.video->leftOutFrames(); }

    LogWatch log;
    VideoTest t;
    PoolBlock block;
};

} // namespace

void TestBacklog::threeHundredFramesMayWait()
{
    const HeldVideo held;
    held.push(true);
    held.push(false, 299);
    QCOMPARE(held.waiting(), 300);
    QCOMPARE(held.leftOut(), 0);
    QVERIFY(LogWatch::lines().isEmpty());
}

void TestBacklog::oneMoreDropsAllBeforeTheNewestKeyFrame()
{
    const HeldVideo held;
    held.push(true);
    held.push(false, 259);
    held.push(true);
    held.push(false, 19);
    held.push(true);
    held.push(false, 19);
    QCOMPARE(held.waiting(), 300);
    held.push(false);
    QCOMPARE(held.waiting(), 21); // the key frame, its nineteen, and the new one
    QCOMPARE(held.leftOut(), 280);
}

void TestBacklog::oneMoreDropsAllWhereNoNewerKeyFrameWaits()
{
    {
        const HeldVideo held;
        held.push(false, 300);
        held.push(false);
        QCOMPARE(held.waiting(), 0);
        QCOMPARE(held.leftOut(), 301);
    }
    const HeldVideo held;
    held.push(true);
    held.push(false, 299);
    held.push(false);
    QCOMPARE(held.waiting(), 0);
    QCOMPARE(held.leftOut(), 301);
}

void TestBacklog::framesThatBuildOnDroppedOnesAreLeftOut()
{
    const HeldVideo held;
    held.push(false, 301);
    held.push(false, 7);
    QCOMPARE(held.waiting(), 0);
    QCOMPARE(held.leftOut(), 308);
    held.push(true);
    held.push(false, 3);
    QCOMPARE(held.waiting(), 4);
    QCOMPARE(held.leftOut(), 308);
}

void TestBacklog::keyFrameReplacesAllThatWaits()
{
    const HeldVideo held;
    held.push(true);
    held.push(false, 299);
    held.push(true);
    QCOMPARE(held.waiting(), 1);
    QCOMPARE(held.leftOut(), 300);
    held.push(false);
    QCOMPARE(held.waiting(), 2);
}

void TestBacklog::eightMebibytesMayWait()
{
    constexpr int mebibyte = 1024 * 1024;
    const HeldVideo held;
    held.push(true, 1, mebibyte);
    held.push(false, 7, mebibyte);
    QCOMPARE(held.waiting(), 8);
    QCOMPARE(held.leftOut(), 0);
    held.push(false, 1, 1);
    QCOMPARE(held.waiting(), 0);
    QCOMPARE(held.leftOut(), 9);
    held.push(true, 4, mebibyte); // what was dropped makes room
    held.push(false, 4, mebibyte);
    QCOMPARE(held.waiting(), 8);
    held.t.video->stop();
    held.t.video->setRunning();
    held.push(false, 8, mebibyte); // so does a stop
    QCOMPARE(held.waiting(), 8);
    QCOMPARE(held.leftOut(), 9);
}

void TestBacklog::frameThatHasWaitedTooLongDropsAllBeforeTheNewestKeyFrame()
{
    const HeldVideo held;
    held.push(true);
    held.push(false, 3);
    QTest::qSleep(2050); // the limit is a time
    held.push(true);
    QCOMPARE(held.leftOut(), 4);
    held.push(false, 2);
    QCOMPARE(held.waiting(), 3);
    QCOMPARE(held.leftOut(), 4);
}

void TestBacklog::queueNeverGrowsBeyondItsBounds()
{
    const HeldVideo held;
    for (int i = 0; i < 2000; ++i) {
        held.push(i % 13 == 0, 1, 1 + i * 7919 % 400000);
        QVERIFY(held.waiting() <= 300);
    }
    QCOMPARE(held.t.results.pictures.size(), std::size_t{0});
    QVERIFY(held.leftOut() > 1900);
    QCOMPARE(held.t.video->mostWaitingFrames, std::size_t{300});
    QCOMPARE(held.t.video->mostWaitingBytes, std::size_t{8388608});
}

void TestBacklog::whatIsShownAfterwardsIsUndamaged()
{
    const LogWatch log;
    const VideoTest t;
    const auto clip = makeClip(smallClip(clipH264, 360, 120));
    t.openFor(clip.front());
    {
        const PoolBlock block;
        t.push(clip); // of which those before the third key frame are dropped
    }
    QVERIFY(t.settle());
    QCOMPARE(t.video->leftOutFrames(), 240);
    const std::vector<ClipFrame> decoded(clip.begin() + 240, clip.end());
    QCOMPARE(t.results.pictures.size(), decoded.size());
    QCOMPARE(t.media.shown.front().timestamp, 243U);
    QCOMPARE(t.picture(), lastPicture(decodeByItself(decoded)).picture);
    QCOMPARE(stampIn(t.mode()), std::optional<std::uint32_t>(356));
}

void TestBacklog::stopForgetsThatFramesWereLeftOut()
{
    const HeldVideo held;
    held.push(false, 301);
    held.push(false);
    QCOMPARE(held.waiting(), 0);
    held.t.video->stop();
    held.t.video->setRunning();
    held.push(false); // the first of a stream is taken, key frame or not
    QCOMPARE(held.waiting(), 1);
}

void TestBacklog::isToldOnceAMinute()
{
    const HeldVideo held;
    for (int i = 0; i < 10; ++i)
        held.push(false, 60);
    held.push(true, 60);
    const QStringList lines = LogWatch::lines();
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.front().contains("channel 1 of ABCDEFGHIJ0123456789"));
    QVERIFY(lines.front().contains("301 frames"));
}

void TestBacklog::nothingIsLeftOutWhereTheDecoderKeepsUp()
{
    const VideoTest t;
    const auto clip = makeClip(smallClip(clipH264, 50, 50));
    t.openFor(clip.front());
    for (int i = 0; i < 5; ++i) {
        t.push(clip);
        QVERIFY(t.settle());
    }
    QCOMPARE(t.video->leftOutFrames(), 0);
    QCOMPARE(t.results.pictures.size(), std::size_t{250});
}

void TestBacklog::orderIsKeptOverManyStreams()
{
    constexpr int streams = 8;
    constexpr int frames = 45; // fewer than may wait
    const PoolSize threads(6);
    const MediaTest t(streams);
    const auto clip = makeClip(smallClip(clipH264, frames, frames));
    for (int number = 0; number < streams; ++number) {
        for (const ClipFrame& frame : clip)
            t.link.queueVideo(t.avIndex(true, number), frame.bytes,
                {frame.codec, static_cast<quint8>(frame.isKey), static_cast<quint32>(frame.index)});
    }
    for (int number = 0; number < streams; ++number) {
        t.start(true, number);
        t.start(true, number); // two chains of fetches
    }
    QTRY_COMPARE(static_cast<int>(t.shown.size()), streams * (frames - 3));
    std::vector<uint> next(streams, 3);
    for (const Shown& shown : t.shown)
        QCOMPARE(shown.timestamp, next.at(std::size_t(shown.channel->number()))++);
    // Out of order, the pictures would be damaged.
    const QByteArray expected = lastPicture(decodeByItself(clip)).picture;
    QVERIFY(t.settle());
    for (int number = 0; number < streams; ++number)
        QVERIFY(pictureIn(t.channel(number)->mode(true)) == expected);
}

void TestBacklog::streamIsBoundedWhereFramesComeFaster()
{
    constexpr int repeats = 30;
    const LogWatch log;
    const PoolSize threads(4);
    const MediaTest t;
    ClipSettings settings = smallClip(clipH264, 25, 25);
    settings.width = 1280;
    settings.height = 720;
    const auto clip = makeClip(settings);
    for (int i = 0; i < repeats; ++i) {
        for (const ClipFrame& frame : clip)
            t.queueVideo(frame.bytes, {frame.codec, static_cast<quint8>(frame.isKey), 0});
    }
    const ResultWatch results;
    int mostWaiting = 0;
    int received = 0;
    const Stream* stream = t.start();
    QEventLoop loop; // QTRY_ sleeps between its looks, and the decoder would keep up
    QObject::connect(t.decode.get(), &Decode::frameReceivedMsg, &loop, [&](Channel*) {
        mostWaiting = std::max(mostWaiting, stream->video()->waitingFrames());
        if (++received == repeats * 25)
            loop.quit();
    });
    QTimer::singleShot(60000, &loop, &QEventLoop::quit);
    loop.exec();
    const auto isOver = [&] {
        const auto decoded = static_cast<int>(results.pictures.size());
        return decoded + stream->video()->leftOutFrames() == repeats * 25;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isOver(), 60000);
    QVERIFY(stream->video()->leftOutFrames() > 0);
    QVERIFY(mostWaiting <= 300);
    QVERIFY(!t.shown.empty());
    for (const auto& picture : results.pictures)
        QVERIFY(picture.result == 0 || picture.result == -2); // none was damaged
}

void TestBacklog::otherTasksTakeTheirTurnBetweenFrames()
{
    const PoolSize threads(1);
    HeldVideo held;
    held.push(true, 20);
    int waiting = -1;
    runTask(nullptr, [&] { waiting = held.waiting(); });
    held.block.release();
    QVERIFY(held.t.settle());
    QCOMPARE(waiting, 19); // not behind all of them
    QCOMPARE(held.waiting(), 0);
}

ORVA_TEST(TestBacklog)

#include "tst_backlog.moc"

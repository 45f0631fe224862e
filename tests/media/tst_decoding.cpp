// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ffmpegowners.h"
#include "media/yuvpicture.h"
#include "testmain.h"
#include "videotest.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTest>

#include <algorithm>
#include <tuple>

// The decoder of one stream: opening, results, what is told, and its end.
class TestDecoding final : public QObject
{
    Q_OBJECT

private slots:
    void bothCodecsOpen();
    void unknownCodecIsRefused_data();
    void unknownCodecIsRefused();
    void framesOfAnUnknownCodecVanish();
    void failedOpeningIsNotTriedAgainBeforeAStop();
    void firstFrameOfTheStreamOpensTheDecoder();
    void firstPictureComesThreeFramesLater();
    void frameThatIsNoKeyFrameIsFed();
    void withoutADecoderFramesVanish();
    void pictureIsToldWithTheTimeOfItsFrame();
    void picturesAreThoseOfTheLibrary();
    void emptyFrameIsNotTaken();
    void failedResultsTellNothing_data();
    void failedResultsTellNothing();
    void resultsAfterAStopTellNothing();
    void yuvBufferIsMadeByTheFirstPicture();
    void yuvBufferIsThatOfTheMode();
    void yuvBufferOutlivesTheStop();
    void stopDropsWhatWaits();
    void stoppedDecoderTakesNothing();
    void startAfterAStopDecodesAnew();
    void codecChangesOnlyByAStop();
    void codecOfAStreamChangesByAStopAndAStart();
    void snapshotsAreToldByTheManager();
    void unlistedEventsGoToTheBaseClass();
    void hundredStopsWhileFramesWait();
};

namespace {

std::vector<int> resultsOf(const std::vector<DecodedFrame>& frames)
{
    std::vector<int> results(frames.size());
    std::transform(frames.begin(), frames.end(), results.begin(),
        [](const DecodedFrame& frame) { return frame.result; });
    return results;
}

// All of a clip, at once, over the road from the layer.
void queueClip(const MediaTest& t, const std::vector<ClipFrame>& clip)
{
    for (const ClipFrame& frame : clip)
        t.queueVideo(frame.bytes,
            {frame.codec, static_cast<quint8>(frame.isKey), static_cast<quint32>(frame.index)});
}

} // namespace

void TestDecoding::bothCodecsOpen()
{
    for (const quint16 codec : {clipH264, clipH265}) {
        const VideoTest t;
        QVERIFY(!t.video->isDecoderTried());
        MyFrameInfo_t info{};
        info.codecId = codec;
        QCOMPARE(t.video->openDecoder(info, 352, 288, 4), 0);
        QVERIFY(t.video->isDecoderTried());
    }
}

void TestDecoding::unknownCodecIsRefused_data()
{
    QTest::addColumn<int>("codec");
    for (const int codec : {0, 27, 77, 79, 81, 138, 173, 0xFFFF})
        QTest::newRow(qPrintable(QString::number(codec))) << codec;
}

void TestDecoding::unknownCodecIsRefused()
{
    QFETCH(int, codec);
    const VideoTest t;
    MyFrameInfo_t info{};
    info.codecId = static_cast<std::uint16_t>(codec);
    QCOMPARE(t.video->openDecoder(info, 352, 288, 4), -5);
    QVERIFY(t.video->isDecoderTried());
}

void TestDecoding::framesOfAnUnknownCodecVanish()
{
    const MediaTest t;
    const ResultWatch results;
    auto clip = makeClip(smallClip());
    clip.front().codec = 79; // the first one tells what the others are
    queueClip(t, clip);
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(stream->videoCount, 12);
    QVERIFY(stream->video()->isDecoderTried());
    QCOMPARE(stream->video()->waitingFrames(), 0);
    QCOMPARE(results.pictures.size(), std::size_t{0});
    QVERIFY(t.shown.empty());
    QVERIFY(t.channel()->mode(true).yuvBuffer == nullptr);
}

void TestDecoding::failedOpeningIsNotTriedAgainBeforeAStop()
{
    const MediaTest t;
    const ResultWatch results;
    auto clip = makeClip(smallClip());
    t.queueVideo("frame", {79, 1, 0});
    Stream* stream = t.start();
    QVERIFY(t.settle());
    queueClip(t, clip);
    QVERIFY(t.fetch());
    QVERIFY(results.pictures.empty());
    t.decode->stopStream(stream);
    QVERIFY(!stream->video()->isDecoderTried());
    queueClip(t, clip);
    t.start();
    QVERIFY(t.settle());
    QCOMPARE(results.pictures.size(), clip.size());
    QVERIFY(!t.shown.empty());
}

void TestDecoding::firstFrameOfTheStreamOpensTheDecoder()
{
    for (const quint16 codec : {clipH264, clipH265}) {
        const MediaTest t;
        const auto clip = makeClip(smallClip(codec));
        queueClip(t, clip);
        t.start();
        QVERIFY(t.settle());
        QCOMPARE(pictureIn(t.channel()->mode(true)), lastPicture(decodeByItself(clip)).picture);
        QCOMPARE(t.shown.size(), std::size_t{9});
        QCOMPARE(t.shown.back().channel, t.channel());
        QVERIFY(t.shown.back().isLive);
        QCOMPARE(t.shown.back().timestamp, 11U);
    }
}

void TestDecoding::firstPictureComesThreeFramesLater()
{
    const VideoTest t;
    const auto clip = makeClip(smallClip(clipH264, 6, 6));
    t.openFor(clip.front());
    QVERIFY(t.show(clip));
    QCOMPARE(t.results.pictureResults(), std::vector<int>({-2, -2, -2, 0, 0, 0}));
    QCOMPARE(t.results.pictures.front().width, 0);
    QCOMPARE(t.results.pictures.front().height, 0);
    QCOMPARE(stampIn(t.mode()), std::optional<std::uint32_t>(2));
}

void TestDecoding::frameThatIsNoKeyFrameIsFed()
{
    const MediaTest t;
    const ResultWatch results;
    auto clip = makeClip(smallClip(clipH264, 24, 12));
    clip.erase(clip.begin(), clip.begin() + 5);
    QVERIFY(!clip.front().isKey);
    queueClip(t, clip);
    const Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(results.pictures.size(), clip.size()); // one for each, from the first on
    QVERIFY(results.pictures.front().result < 0);
    QVERIFY(stream->videoDecodedCount() > 0); // from the key frame on
    QCOMPARE(pictureIn(t.channel()->mode(true)), lastPicture(decodeByItself(clip)).picture);
}

void TestDecoding::withoutADecoderFramesVanish()
{
    const VideoTest t;
    const auto clip = makeClip(smallClip());
    QVERIFY(t.show(clip));
    QVERIFY(t.results.pictures.empty());
    QCOMPARE(t.video->waitingFrames(), 0);
    QCOMPARE(t.openFor(clip.front()), 0);
    QVERIFY(t.show(clip));
    QCOMPARE(t.results.pictures.size(), clip.size());
}

void TestDecoding::pictureIsToldWithTheTimeOfItsFrame()
{
    const VideoTest t(false);
    ClipSettings settings = smallClip(clipH264, 8, 8);
    settings.width = 160;
    auto clip = makeClip(settings);
    clip.at(3).index = static_cast<int>(0xFFFFFFF0U); // no sign
    t.openFor(clip.front());
    QVERIFY(t.show(clip));
    const auto& shown = t.media.shown;
    QCOMPARE(shown.size(), std::size_t{5});
    QCOMPARE(shown.front().timestamp, 0xFFFFFFF0U); // of the frame that brought the picture out
    QCOMPARE(shown.back().timestamp, 7U);
    for (const Shown& one : shown) {
        QCOMPARE(one.channel, t.media.channel());
        QVERIFY(!one.isLive);
        QCOMPARE(QSize(one.width, one.height), QSize(160, 64));
    }
    QCOMPARE(t.video->decodeCount, 5);
}

void TestDecoding::picturesAreThoseOfTheLibrary()
{
    for (const quint16 codec : {clipH264, clipH265}) {
        const VideoTest t;
        const auto clip = makeClip(smallClip(codec, 20, 7));
        const auto expected = decodeByItself(clip);
        t.openFor(clip.front());
        for (std::size_t i = 0; i < clip.size(); ++i) {
            QVERIFY(t.show({clip.at(i)}));
            QCOMPARE(t.results.pictures.back().result, expected.at(i).result);
            if (expected.at(i).result == 0)
                QVERIFY(t.picture() == expected.at(i).picture);
        }
        QCOMPARE(stampIn(t.mode()), std::optional<std::uint32_t>(16));
    }
}

void TestDecoding::emptyFrameIsNotTaken()
{
    const VideoTest t;
    const auto clip = makeClip(smallClip());
    t.openFor(clip.front());
    ClipFrame empty = clip.front();
    empty.bytes.clear();
    QVERIFY(t.show({empty}));
    QCOMPARE(t.results.pictureResults(), std::vector<int>({-9}));
    QVERIFY(t.show(clip)); // it was no end of the stream
    QVERIFY(!t.media.shown.empty());
}

void TestDecoding::failedResultsTellNothing_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("told");
    QTest::newRow("picture") << 0 << 1;
    QTest::newRow("more needed") << -2 << 0;
    QTest::newRow("not taken") << -9 << 0;
    QTest::newRow("not decoded") << -10 << 0;
}

void TestDecoding::failedResultsTellNothing()
{
    QFETCH(int, result);
    const VideoTest t;
    VideoEvent_decoede event(t.media.channel(), true, result, 320, 240, 5);
    QVERIFY(t.video->event(&event));
    QTEST(t.video->decodeCount, "told");
    QTEST(static_cast<int>(t.media.shown.size()), "told");
}

void TestDecoding::resultsAfterAStopTellNothing()
{
    const VideoTest t;
    t.video->stop();
    VideoEvent_decoede event(t.media.channel(), true, 0, 320, 240, 5);
    QVERIFY(t.video->event(&event));
    QCOMPARE(t.video->decodeCount, 0);
    QVERIFY(t.media.shown.empty());
}

void TestDecoding::yuvBufferIsMadeByTheFirstPicture()
{
    const VideoTest t;
    const auto clip = makeClip(smallClip());
    t.openFor(clip.front());
    QVERIFY(t.show({clip.at(0), clip.at(1), clip.at(2)}));
    QVERIFY(t.mode().yuvBuffer == nullptr);
    QVERIFY(t.show({clip.at(3)}));
    std::uint8_t* buffer = t.mode().yuvBuffer;
    QVERIFY(buffer != nullptr);
    buffer[yuvBufferBytes - 1] = 7; // the address sanitizer knows how long it is
    QVERIFY(t.show({clip.at(4), clip.at(5)}));
    t.video->stop();
    t.video->setRunning();
    t.openFor(clip.front());
    QVERIFY(t.show(clip));
    QVERIFY(t.mode().yuvBuffer == buffer);
    QCOMPARE(buffer[yuvBufferBytes - 1], std::uint8_t{7});
}

void TestDecoding::yuvBufferIsThatOfTheMode()
{
    const VideoTest t(false);
    const auto clip = makeClip(smallClip());
    t.openFor(clip.front());
    QVERIFY(t.show(clip));
    const Channel& channel = *t.media.channel();
    QVERIFY(channel.mode(false).yuvBuffer != nullptr);
    QVERIFY(channel.mode(true).yuvBuffer == nullptr);
    QCOMPARE(QSize(channel.mode(false).pictureSize), QSize(96, 64));
    QCOMPARE(QSize(channel.mode(true).pictureSize), QSize(0, 0));
}

void TestDecoding::yuvBufferOutlivesTheStop()
{
    const VideoTest t;
    const auto clip = makeClip(smallClip());
    t.openFor(clip.front());
    QVERIFY(t.show(clip));
    const QByteArray picture = t.picture();
    t.video->stop();
    QCOMPARE(t.picture(), picture);
    QCOMPARE(QSize(t.mode().pictureSize), QSize(96, 64));
}

void TestDecoding::stopDropsWhatWaits()
{
    const VideoTest t;
    const auto clip = makeClip(smallClip());
    t.openFor(clip.front());
    PoolBlock block;
    t.push(clip);
    QCOMPARE(t.video->waitingFrames(), 12);
    QVERIFY(!t.video->isIdle());
    t.video->stop();
    QCOMPARE(t.video->waitingFrames(), 0);
    block.release();
    QVERIFY(t.settle());
    QVERIFY(t.video->isIdle());
    QVERIFY(t.results.pictures.empty());
}

void TestDecoding::stoppedDecoderTakesNothing()
{
    const VideoTest t;
    const auto clip = makeClip(smallClip());
    t.openFor(clip.front());
    t.video->stop();
    const PoolBlock block;
    t.push(clip);
    QCOMPARE(t.video->waitingFrames(), 0);
    QVERIFY(t.video->isIdle());
}

void TestDecoding::startAfterAStopDecodesAnew()
{
    const VideoTest t;
    const auto clip = makeClip(smallClip());
    t.openFor(clip.front());
    {
        const PoolBlock block; // a task of before the stop is still to come
        t.push(clip);
        t.video->stop();
        t.video->setRunning();
        QVERIFY(!t.video->isDecoderTried());
        QCOMPARE(t.openFor(clip.front()), 0);
        t.push(clip);
    }
    QVERIFY(t.settle());
    QCOMPARE(t.results.pictureResults(), resultsOf(decodeByItself(clip)));
    QCOMPARE(t.picture(), lastPicture(decodeByItself(clip)).picture);
}

void TestDecoding::codecChangesOnlyByAStop()
{
    const VideoTest t;
    const auto h264 = makeClip(smallClip(clipH264));
    const auto h265 = makeClip(smallClip(clipH265));
    t.openFor(h264.front());
    QVERIFY(t.show(h264));
    const auto shown = t.media.shown.size();
    QVERIFY(t.show(h265));
    // Only what the decoder still held of before.
    QVERIFY(t.media.shown.size() <= shown + 3);
    t.video->stop();
    t.video->setRunning();
    t.openFor(h265.front());
    QVERIFY(t.show(h265));
    QCOMPARE(t.picture(), lastPicture(decodeByItself(h265)).picture);
}

void TestDecoding::codecOfAStreamChangesByAStopAndAStart()
{
    const MediaTest t;
    const auto h264 = makeClip(smallClip(clipH264));
    const auto h265 = makeClip(smallClip(clipH265));
    queueClip(t, h264);
    Stream* stream = t.start();
    QVERIFY(t.settle());
    QCOMPARE(t.shown.size(), std::size_t{9});
    t.decode->stopStream(stream);
    queueClip(t, h265);
    t.start();
    QVERIFY(t.settle());
    QCOMPARE(t.shown.size(), std::size_t{18});
    QCOMPARE(pictureIn(t.channel()->mode(true)), lastPicture(decodeByItself(h265)).picture);
}

void TestDecoding::snapshotsAreToldByTheManager()
{
    const VideoTest t;
    std::vector<std::tuple<Channel*, bool, QString>> told;
    QObject::connect(t.media.decode.get(), &Decode::screenshotMsg, t.media.decode.get(),
        [&told](Channel* channel, bool isPlaceholder, const QString& path) {
            told.emplace_back(channel, isPlaceholder, path);
        });
    VideoEvent_screenShot first(t.media.channel(), true, "/a b/ä.png");
    VideoEvent_screenShot second(t.media.channel(), false, "");
    QVERIFY(t.video->event(&first));
    t.video->stop(); // it is told all the same
    QVERIFY(t.video->event(&second));
    QCOMPARE(told.size(), std::size_t{2});
    QVERIFY(told.at(0) == std::make_tuple(t.media.channel(), true, QString("/a b/ä.png")));
    QVERIFY(told.at(1) == std::make_tuple(t.media.channel(), false, QString()));
}

void TestDecoding::unlistedEventsGoToTheBaseClass()
{
    const MediaTest t;
    const QPointer<Video> video = new Video(t.channel(), true, nullptr);
    QEvent unknown(QEvent::Polish);
    QVERIFY(!video->event(&unknown));
    for (const int number : {1018, 1019, 1021, 1026, 1030}) {
        QEvent foreign(static_cast<QEvent::Type>(number));
        video->event(&foreign);
    }
    QCOMPARE(video->decodeCount, 0);
    // Only the base class knows how to do this.
    video->deleteLater();
    QCoreApplication::sendPostedEvents(video, QEvent::DeferredDelete);
    QVERIFY(video == nullptr);
}

void TestDecoding::hundredStopsWhileFramesWait()
{
    const VideoTest t;
    const auto clip = makeClip(smallClip(clipH264, 20, 5));
    for (int i = 0; i < 100; ++i) {
        QCOMPARE(t.openFor(clip.front()), 0);
        t.push(clip);
        if (i % 3 == 0)
            QCoreApplication::sendPostedEvents();
        t.video->stop();
        t.video->setRunning();
    }
    QVERIFY(t.settle());
    t.openFor(clip.front());
    QVERIFY(t.show(clip));
    QCOMPARE(t.picture(), lastPicture(decodeByItself(clip)).picture);
}

ORVA_TEST(TestDecoding)

#include "tst_decoding.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediasupport.h"
#include "testmain.h"

#include "media/annexb.h"
#include "media/stamp.h"
#include "media/testsource.h"

#include <QTest>

#include <chrono>
#include <numeric>

Q_DECLARE_METATYPE(VideoCodec)

class TestTestSource final : public QObject
{
    Q_OBJECT

private slots:
    void frameStampsCountByOne_data();
    void frameStampsCountByOne();
    void timeStampIsTheMonotonicClock();
    void secondViewerBeginsWithAKeyAndMissesNothing();
    void restartBeginsWithAKey_data() { frameStampsCountByOne_data(); }
    void restartBeginsWithAKey();
    void sharedPicturesAreEncodedOnce();
    void sharedTextWithOtherSettingsIsAnotherPicture();
    void framesComeNoFasterThanTheirRate();
    void largestPictureFitsAFrame();
    void lowQualityIsSmallAndBeginsWithAKey();
    void subSourceIsTheLowQuality();
    void turnedPicturesKeepTheStampUpright();
    void headAndLensChangeThePicture();
    void beepComesOnceASecond();
    void feedMayGoWhileItIsWatched();
    void watchersComeAndGoFromManyThreads();
};

namespace {

DecodedPicture drawWith(
    const std::function<void(SceneState&)>& change, StampKind stamp, int channel = 0)
{
    SourceSettings settings;
    settings.width = 320;
    settings.height = 180;
    settings.stamp = stamp;
    const auto state = std::make_shared<SceneState>();
    change(*state);
    TestPicture picture(settings, channel, state);
    PictureMoment moment;
    moment.steady = std::chrono::steady_clock::time_point(std::chrono::seconds(1000));
    moment.wall =
        std::chrono::system_clock::time_point(std::chrono::milliseconds(1'700'000'000'500));
    moment.frame = 77;
    return copyLuma(*picture.draw(moment));
}

// Mean difference of the scene, without the caption at the foot.
double difference(const DecodedPicture& a, const DecodedPicture& b)
{
    const std::size_t end = a.luma.size() * 3 / 4;
    double sum = 0;
    for (std::size_t i = 0; i < end; ++i)
        sum += std::abs(a.luma[i] - b.luma[i]);
    return sum / static_cast<double>(end);
}

double brightness(const DecodedPicture& picture)
{
    return std::accumulate(picture.luma.begin(), picture.luma.end(), 0.0)
        / static_cast<double>(picture.luma.size());
}

DecodedPicture mirrored(DecodedPicture picture)
{
    for (int y = 0; y < picture.height; ++y) {
        std::uint8_t* row = picture.luma.data() + std::ptrdiff_t{picture.width} * y;
        std::reverse(row, row + picture.width);
    }
    return picture;
}

auto stateOf()
{
    return std::make_shared<SceneState>();
}

} // namespace

void TestTestSource::frameStampsCountByOne_data()
{
    QTest::addColumn<VideoCodec>("codec");
    QTest::newRow("H.264") << VideoCodec::H264;
    QTest::newRow("H.265") << VideoCodec::H265;
}

void TestTestSource::frameStampsCountByOne()
{
    QFETCH(VideoCodec, codec);
    FeedSettings settings = testFeed();
    settings.main.codec = codec;
    settings.main.keyInterval = 10;
    const auto began = static_cast<std::uint32_t>(std::time(nullptr));
    const auto feed = Feed::create(settings, stateOf());
    const auto sink = std::make_shared<RecordingSink>();
    feed->watch(sink, Quality::High);
    QTRY_VERIFY_WITH_TIMEOUT(sink->videoCount() >= 25, 20000);
    feed->unwatch(sink.get());
    const auto frames = sink->video();
    const auto stamps = stampsOf(frames);
    QCOMPARE(stamps.size(), frames.size());
    QVERIFY(countByOne(stamps, 500));
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const LinkFrame& frame = *frames[i];
        QCOMPARE(frame.key, i % 10 == 0);
        QCOMPARE(frame.info[2], static_cast<std::uint8_t>(frame.key ? 1 : 0));
        QCOMPARE(codecOf(frame), int(codec == VideoCodec::H265 ? LinkCodecH265 : LinkCodecH264));
        QVERIFY(secondsOf(frame) >= began && secondsOf(frame) <= std::time(nullptr));
        QCOMPARE(startsWithParameterSets(frame.bytes.data(), frame.bytes.size(), codec), frame.key);
    }
}

void TestTestSource::timeStampIsTheMonotonicClock()
{
    FeedSettings settings = testFeed();
    settings.main.stamp = StampKind::Time;
    const auto feed = Feed::create(settings, stateOf());
    const auto sink = std::make_shared<RecordingSink>();
    const auto before = timeStampValue(std::chrono::steady_clock::now());
    feed->watch(sink, Quality::High);
    QTRY_VERIFY_WITH_TIMEOUT(sink->videoCount() >= 10, 20000);
    feed->unwatch(sink.get());
    const auto after = timeStampValue(std::chrono::steady_clock::now());
    std::uint32_t last = before;
    const auto stamps = stampsOf(sink->video());
    QCOMPARE(stamps.size(), sink->videoCount());
    for (const std::uint32_t stamp : stamps) {
        QVERIFY(((stamp - last) & 0xffffff) <= ((after - before) & 0xffffff));
        QVERIFY(((after - stamp) & 0xffffff) <= ((after - before) & 0xffffff));
        last = stamp;
    }
}

void TestTestSource::secondViewerBeginsWithAKeyAndMissesNothing()
{
    const auto feed = Feed::create(testFeed(), stateOf());
    const auto first = std::make_shared<RecordingSink>();
    feed->watch(first, Quality::High);
    QTRY_VERIFY_WITH_TIMEOUT(first->videoCount() >= 12, 20000);
    const auto second = std::make_shared<RecordingSink>();
    feed->watch(second, Quality::High);
    QVERIFY(second->videoCount() >= 12);
    QTRY_VERIFY_WITH_TIMEOUT(second->videoCount() >= 25, 20000);
    feed->unwatch(second.get());
    const auto seen = second->video();
    QTRY_VERIFY_WITH_TIMEOUT(first->videoCount() >= seen.size(), 20000);
    auto all = first->video();
    all.resize(seen.size());
    QVERIFY(seen[0]->key);
    QVERIFY(seen == all);
}

void TestTestSource::restartBeginsWithAKey()
{
    QFETCH(VideoCodec, codec);
    FeedSettings settings = testFeed();
    settings.main.codec = codec;
    const auto feed = Feed::create(settings, stateOf());
    for (int round = 0; round < 3; ++round) {
        const auto sink = std::make_shared<RecordingSink>();
        feed->watch(sink, Quality::High);
        QTRY_VERIFY_WITH_TIMEOUT(sink->videoCount() >= 3, 20000);
        feed->unwatch(sink.get());
        QVERIFY(sink->video()[0]->key);
        QVERIFY(countByOne(stampsOf(sink->video()), 500));
        // Long enough for the source to see that nobody watches, so that it truly begins again.
        QTest::qWait(120);
    }
}

void TestTestSource::sharedPicturesAreEncodedOnce()
{
    FeedSettings settings = testFeed();
    settings.main.shared = "one for all";
    const auto source = testSourceFor(settings, settings.main, stateOf());
    std::vector<std::unique_ptr<Feed>> feeds;
    std::vector<std::shared_ptr<RecordingSink>> sinks;
    for (int i = 0; i < 64; ++i) {
        settings.channel = i;
        feeds.push_back(Feed::create(settings, stateOf()));
        sinks.push_back(std::make_shared<RecordingSink>());
        feeds.back()->watch(sinks.back(), Quality::High);
    }
    for (const auto& sink : sinks)
        QTRY_VERIFY_WITH_TIMEOUT(sink->videoCount() >= 20, 20000);
    feeds.clear();
    const auto frames = sinks[0]->video();
    for (const auto& sink : sinks) {
        QVERIFY(sink->video()[0] == frames[0]);
        QVERIFY(sink->video()[19] == frames[19]);
    }
    QVERIFY(source->encodedFrames() >= frames.size());
    QVERIFY(source->encodedFrames() <= frames.size() + 2);
}

void TestTestSource::sharedTextWithOtherSettingsIsAnotherPicture()
{
    FeedSettings settings = testFeed();
    settings.main.shared = "one for all";
    const auto first = testSourceFor(settings, settings.main, stateOf());
    QCOMPARE(testSourceFor(settings, settings.main, stateOf()), first);
    settings.main.width = 160;
    QVERIFY(testSourceFor(settings, settings.main, stateOf()) != first);
    settings.main.shared.clear();
    QVERIFY(testSourceFor(settings, settings.main, stateOf())
        != testSourceFor(settings, settings.main, stateOf()));
}

void TestTestSource::framesComeNoFasterThanTheirRate()
{
    FeedSettings settings = testFeed();
    settings.main.framesPerSecond = 10;
    const auto feed = Feed::create(settings, stateOf());
    const auto sink = std::make_shared<RecordingSink>();
    const auto began = std::chrono::steady_clock::now();
    feed->watch(sink, Quality::High);
    QTRY_VERIFY_WITH_TIMEOUT(sink->videoCount() >= 6, 20000);
    QVERIFY(std::chrono::steady_clock::now() - began >= std::chrono::milliseconds(495));
}

void TestTestSource::largestPictureFitsAFrame()
{
    std::string error;
    const auto encoder = VideoEncoder::open({VideoCodec::H264, 3840, 2160, 25, 100'000, 50}, error);
    QVERIFY2(encoder, error.c_str());
    const FramePtr noise = makePicture(3840, 2160);
    std::uint32_t random = 1;
    for (int y = 0; y < 2160; ++y)
        for (int x = 0; x < 3840; ++x)
            noise->data[0][std::ptrdiff_t{noise->linesize[0]} * y + x] =
                static_cast<std::uint8_t>((random = random * 1664525U + 1013904223U) >> 24);
    for (int i = 0; i < 3; ++i) {
        const auto frame = encoder->encode(*noise, true);
        QVERIFY(frame);
        QVERIFY2(frame->bytes.size() <= LinkFrame::maxBytes,
            qPrintable(QString::number(frame->bytes.size())));
    }
}

void TestTestSource::lowQualityIsSmallAndBeginsWithAKey()
{
    FeedSettings settings = testFeed();
    settings.main.width = 1280;
    settings.main.height = 544;
    settings.main.codec = VideoCodec::H265;
    const auto feed = Feed::create(settings, stateOf());
    const auto sink = std::make_shared<RecordingSink>();
    feed->watch(sink, Quality::High);
    QTRY_VERIFY_WITH_TIMEOUT(sink->videoCount() >= 5, 20000);
    feed->watch(sink, Quality::Low);
    const std::size_t high = sink->videoCount();
    QTRY_VERIFY_WITH_TIMEOUT(sink->videoCount() >= high + 10, 20000);
    feed->unwatch(sink.get());
    auto low = sink->video();
    low.erase(low.begin(), low.begin() + static_cast<std::ptrdiff_t>(high));
    QVERIFY(low[0]->key);
    QCOMPARE(codecOf(*low[0]), int(LinkCodecH264));
    const auto pictures = decode(low);
    QCOMPARE(pictures.size(), low.size());
    QCOMPARE(pictures[0].width, 640);
    QCOMPARE(pictures[0].height, 272);
    QVERIFY(countByOne(stampsOf(low), 500));
}

void TestTestSource::subSourceIsTheLowQuality()
{
    FeedSettings settings = testFeed();
    SourceSettings sub = settings.main;
    sub.width = 160;
    sub.height = 90;
    settings.sub = std::make_shared<const SourceSettings>(sub);
    const auto feed = Feed::create(settings, stateOf());
    const auto sink = std::make_shared<RecordingSink>();
    feed->watch(sink, Quality::Low);
    QTRY_VERIFY_WITH_TIMEOUT(sink->videoCount() >= 2, 20000);
    feed->unwatch(sink.get());
    QCOMPARE(decode(sink->video()).at(0).width, 160);
}

void TestTestSource::turnedPicturesKeepTheStampUpright()
{
    const auto upright = drawWith([](SceneState&) {}, StampKind::Off);
    const auto mirror = drawWith([](SceneState& state) { state.rotation = 2; }, StampKind::Off);
    QVERIFY(difference(upright, mirror) > 5);
    QVERIFY(difference(mirrored(upright), mirror) < 2);
    for (int rotation = 0; rotation < 4; ++rotation) {
        const auto turned =
            drawWith([&](SceneState& state) { state.rotation = rotation; }, StampKind::Frame);
        QCOMPARE(stampOf(turned), std::optional<std::uint32_t>(77));
    }
}

void TestTestSource::headAndLensChangeThePicture()
{
    for (int channel = 0; channel < 8; ++channel) {
        const auto draw = [&](const std::function<void(SceneState&)>& change) {
            return drawWith(change, StampKind::Off, channel);
        };
        const auto rest = draw([](SceneState&) {});
        QVERIFY(difference(rest, draw([](SceneState&) {})) == 0);
        QVERIFY(difference(rest, draw([](SceneState& state) { state.pan = 0.4F; })) > 2);
        QVERIFY(difference(rest, draw([](SceneState& state) { state.tilt = -0.4F; })) > 2);
        QVERIFY(difference(rest, draw([](SceneState& state) { state.zoom = 0.5F; })) > 2);
        QVERIFY(difference(rest, draw([](SceneState& state) { state.focus = 1; })) > 1);
        QVERIFY(
            brightness(draw([](SceneState& state) { state.iris = 0.8F; })) > brightness(rest) + 10);
        QVERIFY(
            brightness(draw([](SceneState& state) { state.iris = 0.2F; })) < brightness(rest) - 10);
    }
}

void TestTestSource::beepComesOnceASecond()
{
    const auto feed = Feed::create(testFeed(), stateOf());
    const auto sink = std::make_shared<RecordingSink>();
    const auto began = std::chrono::steady_clock::now();
    feed->listen(sink);
    QTRY_VERIFY_WITH_TIMEOUT(sink->audioCount() >= 76, 20000);
    QVERIFY(std::chrono::steady_clock::now() - began >= std::chrono::milliseconds(2995));
    feed->unlisten(sink.get());
    int loud = 0;
    auto frames = sink->audio();
    frames.resize(75);
    for (const SharedFrame& frame : frames) {
        QCOMPARE(frame->bytes.size(), std::size_t{320});
        QCOMPARE(codecOf(*frame), int(LinkCodecALaw));
        QCOMPARE(frame->info[2], std::uint8_t{0});
        loud += static_cast<int>(
            std::count_if(frame->bytes.begin(), frame->bytes.end(), [](std::uint8_t byte) {
                return (byte & 0x7f) != 0x55; // above the level nearest to silence
            }));
    }
    // Three whole seconds hold three beeps of 120 ms, wherever they begin.
    QVERIFY(std::abs(loud - 3 * 960) < 150);
    QVERIFY(sink->video().empty());
}

void TestTestSource::feedMayGoWhileItIsWatched()
{
    for (int round = 0; round < 20; ++round) {
        auto feed = Feed::create(testFeed(round), stateOf());
        const auto sink = std::make_shared<RecordingSink>();
        feed->watch(sink, round % 2 == 0 ? Quality::High : Quality::Low);
        feed->listen(sink);
        if (round % 3 == 0)
            QTRY_VERIFY_WITH_TIMEOUT(sink->videoCount() >= 1, 20000);
        feed.reset();
        const std::size_t count = sink->videoCount();
        QTest::qWait(0);
        QCOMPARE(sink->videoCount(), count);
    }
}

void TestTestSource::watchersComeAndGoFromManyThreads()
{
    const auto feed = Feed::create(testFeed(), stateOf());
    std::atomic<int> bad{0};
    std::vector<std::thread> viewers;
    viewers.reserve(4);
    for (int viewer = 0; viewer < 4; ++viewer) {
        viewers.emplace_back([&, viewer] {
            for (int round = 0; round < 12; ++round) {
                const auto sink = std::make_shared<RecordingSink>();
                feed->watch(sink, (viewer + round) % 2 == 0 ? Quality::High : Quality::Low);
                feed->listen(sink);
                std::this_thread::sleep_for(std::chrono::milliseconds(7 * viewer + round));
                feed->watch(sink, Quality::High);
                feed->unwatch(sink.get());
                feed->unlisten(sink.get());
                const auto frames = sink->video();
                bad += !frames.empty() && !frames[0]->key ? 1 : 0;
            }
        });
    }
    for (auto& viewer : viewers)
        viewer.join();
    QCOMPARE(bad.load(), 0);
}

ORVA_TEST(TestTestSource)
#include "tst_testsource.moc"

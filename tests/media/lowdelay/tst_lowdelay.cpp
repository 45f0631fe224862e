// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ffmpegowners.h"
#include "store/deployment.h"
#include "testmain.h"
#include "videotest.h"

#include <QTest>

// What a deployment with the low-delay decoder changes.
class TestLowDelay final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void everyPictureComesWithItsFrame_data();
    void everyPictureComesWithItsFrame();
    void pictureComesOverTheWholeRoadAtOnce();
    void pauseIsFiveMilliseconds();
    void damagedPictureComesBack();
};

namespace {

void addCodecs()
{
    QTest::addColumn<quint16>("codec");
    QTest::newRow("H.264") << clipH264;
    QTest::newRow("H.265") << clipH265;
}

} // namespace

void TestLowDelay::initTestCase()
{
    QVERIFY(Deployment::instance().decoder == Deployment::Decoder::LowDelay);
    av_log_set_level(AV_LOG_QUIET);
}

void TestLowDelay::everyPictureComesWithItsFrame_data()
{
    addCodecs();
}

void TestLowDelay::everyPictureComesWithItsFrame()
{
    QFETCH(quint16, codec);
    const VideoTest t;
    const auto clip = makeClip(smallClip(codec, 12, 6));
    // By threads or not, the pictures are the same; they only come later.
    auto twice = clip;
    twice.insert(twice.end(), clip.begin(), clip.end());
    const auto decoded = decodeByItself(twice);
    t.openFor(clip.front());
    for (std::size_t i = 0; i < clip.size(); ++i) {
        QVERIFY(t.show({clip.at(i)}));
        QCOMPARE(t.results.pictures.back().result, 0);
        QCOMPARE(t.media.shown.back().timestamp, static_cast<uint>(i));
        QCOMPARE(stampIn(t.mode()), std::optional<std::uint32_t>(static_cast<std::uint32_t>(i)));
        QVERIFY(t.picture() == decoded.at(i + 3).picture);
    }
}

void TestLowDelay::pictureComesOverTheWholeRoadAtOnce()
{
    const MediaTest t;
    const auto clip = makeClip(smallClip());
    t.queueVideo(clip.front().bytes, {clipH264, 1, 77});
    t.start();
    QVERIFY(t.settle());
    QCOMPARE(t.shown.size(), std::size_t{1});
    QCOMPARE(t.shown.front().timestamp, 77U);
    QCOMPARE(stampIn(t.channel()->mode(true)), std::optional<std::uint32_t>(0));
}

void TestLowDelay::pauseIsFiveMilliseconds()
{
    const MediaTest t;
    const PauseWatch watch;
    t.start();
    QTRY_VERIFY(t.videoFetches() > 5 && t.soundChecks() > 5);
    t.decode->stopAllStream();
    QVERIFY(t.settle());
    QCOMPARE(watch.pauses.size(), static_cast<std::size_t>(t.videoFetches() + t.soundChecks() - 2));
    for (const int pause : watch.pauses)
        QCOMPARE(pause, 5);
}

void TestLowDelay::damagedPictureComesBack()
{
    const VideoTest t;
    const auto clip = makeClip(smallClip(clipH264, 12, 6));
    t.openFor(clip.front());
    for (const ClipFrame& frame : clip) {
        ClipFrame half = frame;
        half.bytes.truncate(frame.bytes.size() / 2);
        QVERIFY(t.show({frame.index == 6 ? frame : half}));
    }
    QVERIFY(t.show(clip));
    QCOMPARE(stampIn(t.mode()), std::optional<std::uint32_t>(11));
}

ORVA_TEST(TestLowDelay)

#include "tst_lowdelay.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "../../store/stderrcapture.h"
#include "mediasupport.h"
#include "testmain.h"

#include "media/annexb.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestFiles final : public QObject
{
    Q_OBJECT

private slots:
    void picturesArePassedOnOverTheSeam_data();
    void picturesArePassedOnOverTheSeam();
    void picturesThatRefAheadArePassedOnOverTheSeam();
    void otherCodecsAreReencodedOverTheSeam_data();
    void otherCodecsAreReencodedOverTheSeam();
    void framesComeAtTheFilesPace();
    void soundBecomesFramesOf40Ms_data();
    void soundBecomesFramesOf40Ms();
    void lowQualityIsSmallAndBeginsWithAKey();
    void secondViewerBeginsAtOnce();
    void missingFileIsLoggedAndTriedAgain();
    void fileThatComesLaterIsPlayed();
    void brokenFilesDoNoHarm_data();
    void brokenFilesDoNoHarm();

private:
    QString sample(const QString& name, const SampleFile& sample);
    std::vector<SharedFrame> watch(const QString& path, std::size_t count);

    QTemporaryDir folder_;
};

namespace {

constexpr int sampleFrames = 20;

SampleFile shortFile(AVCodecID video, AVCodecID audio = AV_CODEC_ID_NONE)
{
    SampleFile sample;
    sample.video = video;
    sample.audio = audio;
    sample.frames = sampleFrames;
    return sample;
}

} // namespace

QString TestFiles::sample(const QString& name, const SampleFile& sample)
{
    const QString path = folder_.filePath(name);
    return writeSample(path, sample) ? path : QString();
}

std::vector<SharedFrame> TestFiles::watch(const QString& path, std::size_t count)
{
    const auto feed = Feed::create(urlFeed("file:" + path), std::make_shared<SceneState>());
    const auto sink = std::make_shared<RecordingSink>();
    feed->watch(sink, Quality::High);
    [&] { QTRY_VERIFY_WITH_TIMEOUT(sink->videoCount() >= count, 30000); }();
    feed->unwatch(sink.get());
    return sink->video();
}

void TestFiles::picturesArePassedOnOverTheSeam_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("codec");
    QTest::newRow("H.264 in MP4") << "a.mp4" << int(AV_CODEC_ID_H264);
    QTest::newRow("H.265 in MKV") << "a.mkv" << int(AV_CODEC_ID_HEVC);
    QTest::newRow("H.265 in MP4") << "b.mp4" << int(AV_CODEC_ID_HEVC);
    QTest::newRow("H.264 in MPEG-TS") << "a.ts" << int(AV_CODEC_ID_H264);
    QTest::newRow("H.264 alone") << "a.h264" << int(AV_CODEC_ID_H264);
}

void TestFiles::picturesArePassedOnOverTheSeam()
{
    QFETCH(QString, name);
    QFETCH(int, codec);
    const QString path = sample(name, shortFile(static_cast<AVCodecID>(codec)));
    QVERIFY(!path.isEmpty());
    const auto frames = watch(path, std::size_t{2} * sampleFrames + 5);
    const auto kind = codec == AV_CODEC_ID_HEVC ? VideoCodec::H265 : VideoCodec::H264;
    QVERIFY(frames.at(0)->key);
    for (const SharedFrame& frame : frames) {
        QCOMPARE(codecOf(*frame), int(kind == VideoCodec::H265 ? LinkCodecH265 : LinkCodecH264));
        QCOMPARE(
            startsWithParameterSets(frame->bytes.data(), frame->bytes.size(), kind), frame->key);
    }
    const auto stamps = stampsOf(frames);
    QCOMPARE(stamps.size(), frames.size());
    QVERIFY(countByOne(stamps, sampleFrames));
}

void TestFiles::picturesThatRefAheadArePassedOnOverTheSeam()
{
    SampleFile file = shortFile(AV_CODEC_ID_H264);
    file.bFrames = 2;
    const auto frames = watch(sample("ahead.mp4", file), std::size_t{2} * sampleFrames + 5);
    auto stamps = stampsOf(frames);
    // The last pictures may wait for one that was not watched any more.
    stamps.resize(std::size_t{2} * sampleFrames);
    QVERIFY(countByOne(stamps, sampleFrames));
}

void TestFiles::otherCodecsAreReencodedOverTheSeam_data()
{
    QTest::addColumn<int>("codec");
    QTest::newRow("MPEG-4 part 2") << int(AV_CODEC_ID_MPEG4);
    QTest::newRow("motion JPEG") << int(AV_CODEC_ID_MJPEG);
}

void TestFiles::otherCodecsAreReencodedOverTheSeam()
{
    QFETCH(int, codec);
    const QString path = sample("other.avi", shortFile(static_cast<AVCodecID>(codec)));
    QVERIFY(!path.isEmpty());
    const auto frames = watch(path, std::size_t{2} * sampleFrames + 5);
    QVERIFY(frames.at(0)->key);
    QCOMPARE(codecOf(*frames[0]), int(LinkCodecH264));
    const auto stamps = stampsOf(frames);
    QCOMPARE(stamps.size(), frames.size());
    QVERIFY(countByOne(stamps, sampleFrames));
}

void TestFiles::framesComeAtTheFilesPace()
{
    const QString path = sample("pace.mp4", shortFile(AV_CODEC_ID_H264));
    const auto began = std::chrono::steady_clock::now();
    const auto frames = watch(path, std::size_t{3} * sampleFrames + 1);
    QVERIFY(std::chrono::steady_clock::now() - began >= std::chrono::milliseconds(3 * 800 - 50));
}

void TestFiles::soundBecomesFramesOf40Ms_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("codec");
    QTest::newRow("AAC") << "sound.mp4" << int(AV_CODEC_ID_AAC);
    QTest::newRow("A-law") << "alaw.mkv" << int(AV_CODEC_ID_PCM_ALAW);
    QTest::newRow("mu-law") << "mulaw.mkv" << int(AV_CODEC_ID_PCM_MULAW);
}

void TestFiles::soundBecomesFramesOf40Ms()
{
    QFETCH(QString, name);
    QFETCH(int, codec);
    const QString path = sample(name, shortFile(AV_CODEC_ID_H264, static_cast<AVCodecID>(codec)));
    QVERIFY(!path.isEmpty());
    const auto feed = Feed::create(urlFeed("file:" + path), std::make_shared<SceneState>());
    const auto sink = std::make_shared<RecordingSink>();
    feed->listen(sink);
    QTRY_VERIFY_WITH_TIMEOUT(sink->audioCount() >= 40, 30000);
    feed->unlisten(sink.get());
    for (const SharedFrame& frame : sink->audio()) {
        QCOMPARE(frame->bytes.size(), std::size_t{320});
        QCOMPARE(codecOf(*frame), 138);
    }
}

void TestFiles::lowQualityIsSmallAndBeginsWithAKey()
{
    SampleFile file = shortFile(AV_CODEC_ID_HEVC);
    file.width = 800;
    file.height = 600;
    const auto feed =
        Feed::create(urlFeed("file:" + sample("large.mp4", file)), std::make_shared<SceneState>());
    const auto sink = std::make_shared<RecordingSink>();
    feed->watch(sink, Quality::Low);
    QTRY_VERIFY_WITH_TIMEOUT(sink->videoCount() >= 5, 30000);
    feed->unwatch(sink.get());
    QVERIFY(sink->video()[0]->key);
    const auto pictures = decode(sink->video());
    QCOMPARE(pictures.at(0).width, 640);
    QCOMPARE(pictures.at(0).height, 480);
    QVERIFY(stampOf(pictures[0]));
}

void TestFiles::secondViewerBeginsAtOnce()
{
    const QString path = sample("again.mp4", shortFile(AV_CODEC_ID_H264));
    const auto feed = Feed::create(urlFeed("file:" + path), std::make_shared<SceneState>());
    const auto first = std::make_shared<RecordingSink>();
    feed->watch(first, Quality::High);
    QTRY_VERIFY_WITH_TIMEOUT(first->videoCount() >= 3, 30000);
    feed->unwatch(first.get());
    const auto second = std::make_shared<RecordingSink>();
    feed->watch(second, Quality::High);
    QVERIFY(second->videoCount() >= 1);
    QVERIFY(second->video()[0]->key);
}

void TestFiles::missingFileIsLoggedAndTriedAgain()
{
    StderrCapture capture;
    {
        const auto feed = Feed::create(
            urlFeed("file:" + folder_.filePath("none.mp4")), std::make_shared<SceneState>());
        QTest::qWait(1300);
    }
    const QByteArray log = capture.text();
    QVERIFY2(log.contains("again in 1 s"), log.constData());
    QVERIFY2(log.contains("again in 2 s"), log.constData());
    QVERIFY2(log.contains("TESTFEED000000000000"), log.constData());
}

void TestFiles::fileThatComesLaterIsPlayed()
{
    const QString path = folder_.filePath("later.mp4");
    const auto feed = Feed::create(urlFeed("file:" + path), std::make_shared<SceneState>());
    const auto sink = std::make_shared<RecordingSink>();
    feed->watch(sink, Quality::High);
    const QString made = sample("made.mp4", shortFile(AV_CODEC_ID_H264));
    QVERIFY(QFile::rename(made, path));
    QTRY_VERIFY_WITH_TIMEOUT(sink->videoCount() >= 5, 30000);
}

void TestFiles::brokenFilesDoNoHarm_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("ending");
    QTest::newRow("empty") << QByteArray() << "mp4";
    QByteArray noise;
    for (quint32 i = 0, value = 1; i < 200'000; ++i)
        noise += char((value = value * 1664525U + 1013904223U) >> 24);
    QTest::newRow("noise") << noise << "mp4";
    QTest::newRow("noise as H.264") << noise << "h264";
    QTest::newRow("noise as MPEG-TS") << noise << "ts";
    QTest::newRow("a list of other files")
        << QByteArray("ffconcat version 1.0\nfile /etc/passwd\n") << "ffconcat";
    for (const QString ending : {"mp4", "mkv", "avi", "ts"}) {
        const auto codec = ending == "avi" ? AV_CODEC_ID_MPEG4 : AV_CODEC_ID_H264;
        QFile whole(sample("whole." + ending, shortFile(codec)));
        QVERIFY(whole.open(QIODevice::ReadOnly));
        const QByteArray all = whole.readAll();
        QTest::addRow("half of %s", qPrintable(ending)) << all.left(all.size() / 2) << ending;
        QByteArray damaged = all;
        for (int i = 500; i < damaged.size(); i += 97)
            damaged[i] = char(damaged[i] ^ 0x5a);
        QTest::addRow("damaged %s", qPrintable(ending)) << damaged << ending;
    }
}

// What can be shown is shown; what counts is that nothing falls.
void TestFiles::brokenFilesDoNoHarm()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, ending);
    const QString path = folder_.filePath("broken." + ending);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    StderrCapture capture;
    {
        const auto feed = Feed::create(urlFeed("file:" + path), std::make_shared<SceneState>());
        const auto high = std::make_shared<RecordingSink>();
        const auto low = std::make_shared<RecordingSink>();
        feed->watch(high, Quality::High);
        feed->watch(low, Quality::Low);
        feed->listen(high);
        QTest::qWait(400);
        for (const SharedFrame& frame : high->video())
            QVERIFY(!frame->bytes.empty() && frame->bytes.size() <= LinkFrame::maxBytes);
    }
    // One line at least: what it plays or why not.
    QVERIFY(!capture.text().isEmpty());
}

ORVA_TEST(TestFiles)
#include "tst_files.moc"

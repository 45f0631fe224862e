// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/yuvpicture.h"
#include "testmain.h"
#include "videotest.h"

#include <QTest>

#include <cstdlib>

Q_DECLARE_METATYPE(ClipSettings)

// What devices send: codecs, profiles, sizes and forms of samples, each shown as it is.
class TestPictureForms final : public QObject
{
    Q_OBJECT

private slots:
    void everyClipIsShownAsItIs_data();
    void everyClipIsShownAsItIs();
    void picturesWithBFramesComeInTheOrderOfShowing_data();
    void picturesWithBFramesComeInTheOrderOfShowing();
    void coloursAreThoseThatWereSent_data();
    void coloursAreThoseThatWereSent();
    void sizeChangesWithinTheStream_data();
    void sizeChangesWithinTheStream();
    void tooLargePicturesAreLeftOut();
    void tooLargePicturesAreToldOnce();
};

namespace {

ClipSettings sized(ClipSettings settings, int width, int height)
{
    settings.width = width;
    settings.height = height;
    return settings;
}

ClipSettings formed(quint16 codec, ClipForm form, int width = 128, int height = 96)
{
    ClipSettings settings = sized(smallClip(codec, 6, 6), width, height);
    settings.form = form;
    return settings;
}

void addRow(const char* name, const ClipSettings& settings)
{
    const char* codec = settings.codec == clipH264 ? "H.264" : "H.265";
    QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(codec, name))) << settings;
}

void addProfiles()
{
    ClipSettings settings = sized(smallClip(clipH264, 10, 6), 160, 96);
    settings.profile = ClipProfile::Baseline;
    addRow("baseline", settings);
    settings.profile = ClipProfile::Main;
    addRow("main", settings);
    settings.interlaced = true;
    addRow("main, interlaced", settings);
    settings.profile = ClipProfile::High;
    addRow("high, interlaced", settings);
    settings.bFrames = 2;
    settings.count = 20;
    addRow("high, interlaced, B frames", settings);
}

void addBFrames()
{
    for (const quint16 codec : {clipH264, clipH265}) {
        ClipSettings settings = sized(smallClip(codec, 24, 12), 160, 96);
        settings.bFrames = 1;
        addRow("one B frame", settings);
        settings.bFrames = 3;
        addRow("three B frames", settings);
    }
}

void addForms()
{
    for (const quint16 codec : {clipH264, clipH265}) {
        addRow("10 bits", formed(codec, ClipForm::Yuv420Of10Bits));
        addRow("4:2:2", formed(codec, ClipForm::Yuv422));
        addRow("4:4:4", formed(codec, ClipForm::Yuv444));
        addRow("grey", formed(codec, ClipForm::Grey));
        addRow("4:4:4 of odd size", formed(codec, ClipForm::Yuv444, 131, 97));
    }
}

void addSizes()
{
    for (const quint16 codec : {clipH264, clipH265}) {
        for (const QSize size : {QSize(96, 64), QSize(426, 240), QSize(854, 480), QSize(98, 66)}) {
            ClipSettings settings = sized(smallClip(codec, 5, 5), size.width(), size.height());
            addRow(
                qPrintable(QStringLiteral("%1x%2").arg(size.width()).arg(size.height())), settings);
        }
    }
    ClipSettings small = sized(smallClip(clipH264, 5, 5), 2, 2);
    small.stamped = false;
    addRow("2x2", small);
    ClipSettings largest = sized(smallClip(clipH264, 4, 4), 3840, 2160);
    largest.flat = [](int index) {
        return ClipColour{static_cast<std::uint8_t>(90 + index), 90, 160};
    };
    addRow("3840x2160", largest);
}

std::vector<ClipFrame> clipOf(quint16 codec, int width, int height, int count)
{
    return makeClip(sized(smallClip(codec, count, count), width, height));
}

void append(std::vector<ClipFrame>& clip, const std::vector<ClipFrame>& next)
{
    clip.insert(clip.end(), next.begin(), next.end());
}

// A clip of pictures that no buffer holds.
std::vector<ClipFrame> tooLargeClip(int count)
{
    ClipSettings settings = sized(smallClip(clipH264, count, count), 4096, 2304);
    settings.flat = [](int) { return ClipColour{120, 100, 150}; };
    return makeClip(settings);
}

// Every frame of the clip, each against what libavcodec makes of it.
void compareAll(const VideoTest& t, const std::vector<ClipFrame>& clip)
{
    const auto expected = decodeByItself(clip);
    t.openFor(clip.front());
    int pictures = 0;
    for (std::size_t i = 0; i < clip.size(); ++i) {
        QVERIFY(t.show({clip.at(i)}));
        QCOMPARE(t.results.pictures.back().result, expected.at(i).result);
        if (expected.at(i).result != 0)
            continue;
        ++pictures;
        QCOMPARE(QSize(t.mode().pictureSize), expected.at(i).size);
        QCOMPARE(
            QSize(t.media.shown.back().width, t.media.shown.back().height), expected.at(i).size);
        QVERIFY(t.picture() == expected.at(i).picture);
    }
    QVERIFY(pictures > 0);
    QCOMPARE(t.video->decodeCount, pictures);
    QCOMPARE(t.video->unshownPictures(), 0);
}

bool isNear(const QByteArray& picture, int at, int expected)
{
    return std::abs(static_cast<std::uint8_t>(picture.at(at)) - expected) <= 3;
}

} // namespace

void TestPictureForms::everyClipIsShownAsItIs_data()
{
    QTest::addColumn<ClipSettings>("settings");
    addProfiles();
    addBFrames();
    addForms();
    addSizes();
}

void TestPictureForms::everyClipIsShownAsItIs()
{
    QFETCH(ClipSettings, settings);
    const VideoTest t;
    compareAll(t, makeClip(settings));
}

void TestPictureForms::picturesWithBFramesComeInTheOrderOfShowing_data()
{
    QTest::addColumn<quint16>("codec");
    QTest::newRow("H.264") << clipH264;
    QTest::newRow("H.265") << clipH265;
}

void TestPictureForms::picturesWithBFramesComeInTheOrderOfShowing()
{
    QFETCH(quint16, codec);
    const VideoTest t;
    ClipSettings settings = smallClip(codec, 30, 15);
    settings.bFrames = 2;
    const auto clip = makeClip(settings);
    t.openFor(clip.front());
    std::uint32_t next = 0;
    for (const ClipFrame& frame : clip) {
        const auto shown = t.media.shown.size();
        QVERIFY(t.show({frame}));
        if (t.media.shown.size() > shown)
            QCOMPARE(stampIn(t.mode()), std::optional<std::uint32_t>(next++));
    }
    QVERIFY(next > 20);
}

void TestPictureForms::coloursAreThoseThatWereSent_data()
{
    QTest::addColumn<ClipSettings>("settings");
    for (const quint16 codec : {clipH264, clipH265}) {
        addRow("4:2:0", formed(codec, ClipForm::Yuv420));
        addRow("10 bits", formed(codec, ClipForm::Yuv420Of10Bits));
        addRow("4:2:2", formed(codec, ClipForm::Yuv422));
        addRow("4:4:4", formed(codec, ClipForm::Yuv444));
        addRow("grey", formed(codec, ClipForm::Grey));
    }
}

void TestPictureForms::coloursAreThoseThatWereSent()
{
    QFETCH(ClipSettings, settings);
    settings.stamped = false;
    settings.flat = [](int) { return ClipColour{110, 70, 190}; };
    const VideoTest t;
    const auto clip = makeClip(settings);
    t.openFor(clip.front());
    QVERIFY(t.show(clip));
    const QByteArray picture = t.picture();
    const int luma = 128 * 96;
    QCOMPARE(picture.size(), luma * 3 / 2);
    const bool isGrey = settings.form == ClipForm::Grey;
    for (const int at : {0, luma / 2 + 64, luma - 1})
        QVERIFY(isNear(picture, at, 110));
    for (const int at : {0, luma / 8 + 32, luma / 4 - 1}) {
        QVERIFY(isNear(picture, luma + at, isGrey ? 128 : 70));
        QVERIFY(isNear(picture, luma + luma / 4 + at, isGrey ? 128 : 190));
    }
}

void TestPictureForms::sizeChangesWithinTheStream_data()
{
    picturesWithBFramesComeInTheOrderOfShowing_data();
}

void TestPictureForms::sizeChangesWithinTheStream()
{
    QFETCH(quint16, codec);
    const VideoTest t;
    auto clip = clipOf(codec, 320, 240, 8);
    append(clip, clipOf(codec, 640, 360, 8));
    append(clip, clipOf(codec, 96, 64, 8));
    compareAll(t, clip);
    QCOMPARE(QSize(t.media.shown.front().width, t.media.shown.front().height), QSize(320, 240));
    QCOMPARE(QSize(t.mode().pictureSize), QSize(96, 64));
    QCOMPARE(stampIn(t.mode()), std::optional<std::uint32_t>(4));
}

void TestPictureForms::tooLargePicturesAreLeftOut()
{
    const LogWatch log;
    const VideoTest t;
    const auto before = clipOf(clipH264, 320, 240, 8);
    const auto large = tooLargeClip(6);
    const auto after = clipOf(clipH264, 96, 64, 8);
    t.openFor(before.front());
    QVERIFY(t.show(before));
    QVERIFY(t.show(large));
    QCOMPARE(t.media.shown.size(), std::size_t{8});
    QCOMPARE(t.video->unshownPictures(), 3); // three are still in the decoder
    QCOMPARE(QSize(t.mode().pictureSize), QSize(320, 240));
    QCOMPARE(stampIn(t.mode()), std::optional<std::uint32_t>(7));
    QVERIFY(t.show(after));
    QCOMPARE(t.video->unshownPictures(), 6);
    QCOMPARE(t.media.shown.size(), std::size_t{13});
    QCOMPARE(QSize(t.mode().pictureSize), QSize(96, 64));
    QCOMPARE(stampIn(t.mode()), std::optional<std::uint32_t>(4));
    QCOMPARE(t.video->decodeCount, 13);
}

void TestPictureForms::tooLargePicturesAreToldOnce()
{
    const LogWatch log;
    const VideoTest t;
    const auto large = tooLargeClip(5);
    const auto small = clipOf(clipH264, 96, 64, 8);
    t.openFor(large.front());
    for (int i = 0; i < 2; ++i) {
        QVERIFY(t.show(large));
        QVERIFY(t.show(small));
    }
    QCOMPARE(t.video->unshownPictures(), 10);
    QStringList lines = LogWatch::lines().filter("4096 x 2304");
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.front().contains("channel 1 of ABCDEFGHIJ0123456789"));
}

ORVA_TEST(TestPictureForms)

#include "tst_pictureforms.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "clip.h"
#include "media/ffmpegowners.h"
#include "stampreader.h"
#include "testmain.h"

#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <cstring>

Q_DECLARE_METATYPE(ClipSettings)

namespace {

struct DecodedPicture
{
    FramePtr frame;
    int profile;
};

std::size_t unsignedSize(int size)
{
    return static_cast<std::size_t>(size);
}

void takePictures(AVCodecContext& codec, std::vector<DecodedPicture>& pictures)
{
    for (FramePtr frame(av_frame_alloc()); avcodec_receive_frame(&codec, frame.get()) >= 0;
         frame.reset(av_frame_alloc()))
        pictures.push_back({std::move(frame), codec.profile});
}

bool feed(AVCodecContext& codec, const ClipFrame& frame)
{
    const PacketPtr packet(av_packet_alloc());
    if (av_new_packet(packet.get(), frame.bytes.size()) < 0)
        return false;
    std::memcpy(packet->data, frame.bytes.constData(), unsignedSize(frame.bytes.size()));
    return avcodec_send_packet(&codec, packet.get()) >= 0;
}

// In the order of showing.
std::vector<DecodedPicture> decodeAll(const std::vector<ClipFrame>& frames)
{
    const bool h264 = frames.front().codec == clipH264;
    const AVCodec* kind = avcodec_find_decoder(h264 ? AV_CODEC_ID_H264 : AV_CODEC_ID_HEVC);
    const CodecPtr codec(avcodec_alloc_context3(kind));
    std::vector<DecodedPicture> pictures;
    if (avcodec_open2(codec.get(), kind, nullptr) < 0)
        return pictures;
    for (const ClipFrame& frame : frames) {
        if (!feed(*codec, frame))
            return pictures;
        takePictures(*codec, pictures);
    }
    avcodec_send_packet(codec.get(), nullptr);
    takePictures(*codec, pictures);
    return pictures;
}

int depthOf(const AVFrame& frame)
{
    return av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format))->comp[0].depth;
}

// The most significant 8 bits of a sample.
int sample(const AVFrame& frame, int plane, int x, int y)
{
    const std::uint8_t* row = frame.data[plane] + std::ptrdiff_t{frame.linesize[plane]} * y;
    const int depth = depthOf(frame);
    const std::ptrdiff_t at = depth == 8 ? x : std::ptrdiff_t{x} * 2;
    return depth == 8 ? row[at] : (row[at] | row[at + 1] << 8) >> (depth - 8);
}

std::optional<std::uint32_t> stampOf(const AVFrame& frame)
{
    std::vector<std::uint8_t> luma;
    for (int y = 0; y < frame.height; ++y)
        for (int x = 0; x < frame.width; ++x)
            luma.push_back(static_cast<std::uint8_t>(sample(frame, 0, x, y)));
    return readStamp(luma.data(), frame.width, frame.width, frame.height);
}

ClipSettings small(quint16 codec)
{
    ClipSettings settings;
    settings.codec = codec;
    settings.width = 192;
    settings.height = 128;
    settings.count = 12;
    settings.keyInterval = 5;
    return settings;
}

ClipSettings smallWith(quint16 codec, const std::function<void(ClipSettings&)>& change)
{
    ClipSettings settings = small(codec);
    change(settings);
    return settings;
}

struct Variant
{
    const char* name;
    std::function<void(ClipSettings&)> change;
};

const Variant ofBothCodecs[]{
    {"as it is", [](ClipSettings&) {}},
    {"1 B frame", [](ClipSettings& settings) { settings.bFrames = 1; }},
    {"3 B frames", [](ClipSettings& settings) { settings.bFrames = 3; }},
    {"10 bits", [](ClipSettings& settings) { settings.form = ClipForm::Yuv420Of10Bits; }},
    {"4:2:2", [](ClipSettings& settings) { settings.form = ClipForm::Yuv422; }},
    {"4:4:4", [](ClipSettings& settings) { settings.form = ClipForm::Yuv444; }},
    {"grey", [](ClipSettings& settings) { settings.form = ClipForm::Grey; }},
    {"426x240", [](ClipSettings& settings) { settings.width = 426, settings.height = 240; }},
    {"854x480", [](ClipSettings& settings) { settings.width = 854, settings.height = 480; }},
    {"96x64", [](ClipSettings& settings) { settings.width = 96, settings.height = 64; }},
    {"high numbers", [](ClipSettings& settings) { settings.firstStamp = 0xfffff0; }},
    {"one picture", [](ClipSettings& settings) { settings.count = 1; }},
};

const Variant ofH264[]{
    {"baseline", [](ClipSettings& settings) { settings.profile = ClipProfile::Baseline; }},
    {"main", [](ClipSettings& settings) { settings.profile = ClipProfile::Main; }},
    {"interlaced", [](ClipSettings& settings) { settings.interlaced = true; }},
    {"interlaced with B frames",
        [](ClipSettings& settings) { settings.interlaced = true, settings.bFrames = 2; }},
    {"odd size",
        [](ClipSettings& settings) {
            settings.form = ClipForm::Yuv444;
            settings.width = 193;
            settings.height = 127;
        }},
};

std::vector<int> keyPlaces(const std::vector<ClipFrame>& frames)
{
    std::vector<int> places;
    for (std::size_t i = 0; i < frames.size(); ++i)
        if (frames[i].isKey)
            places.push_back(static_cast<int>(i));
    return places;
}

qint64 bytesOf(const std::vector<ClipFrame>& frames)
{
    qint64 bytes = 0;
    for (const ClipFrame& frame : frames)
        bytes += frame.bytes.size();
    return bytes;
}

bool near(int is, int expected)
{
    return std::abs(is - expected) <= 2;
}

} // namespace

class TestClips final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { av_log_set_level(AV_LOG_QUIET); }
    void everyPictureBearsItsNumber_data();
    void everyPictureBearsItsNumber();
    void keyFramesComeAtTheInterval_data();
    void keyFramesComeAtTheInterval();
    void decodingStartsAtAnyKeyFrame_data() { addBothCodecs(); }
    void decodingStartsAtAnyKeyFrame();
    void bFramesComeAfterThePictureTheyReferTo_data() { addBothCodecs(); }
    void bFramesComeAfterThePictureTheyReferTo();
    void flatPicturesHaveTheColourAskedFor_data() { addBothCodecs(); }
    void flatPicturesHaveTheColourAskedFor();
    void sampleFormsAreThoseAskedFor_data();
    void sampleFormsAreThoseAskedFor();
    void profilesAreThoseAskedFor();
    void interlacedPicturesSaySo();
    void sizesFollowTheBitRate_data() { addBothCodecs(); }
    void sizesFollowTheBitRate();
    void sameSettingsGiveTheSameBytes_data() { addBothCodecs(); }
    void sameSettingsGiveTheSameBytes();

private:
    static void addBothCodecs();
};

void TestClips::addBothCodecs()
{
    QTest::addColumn<ClipSettings>("settings");
    QTest::newRow("H.264") << small(clipH264);
    QTest::newRow("H.265") << small(clipH265);
}

void TestClips::everyPictureBearsItsNumber_data()
{
    QTest::addColumn<ClipSettings>("settings");
    for (const Variant& variant : ofBothCodecs) {
        QTest::addRow("H.264, %s", variant.name) << smallWith(clipH264, variant.change);
        QTest::addRow("H.265, %s", variant.name) << smallWith(clipH265, variant.change);
    }
    for (const Variant& variant : ofH264)
        QTest::addRow("H.264, %s", variant.name) << smallWith(clipH264, variant.change);
}

void TestClips::everyPictureBearsItsNumber()
{
    QFETCH(ClipSettings, settings);
    const auto pictures = decodeAll(makeClip(settings));
    QCOMPARE(pictures.size(), unsignedSize(settings.count));
    std::uint32_t expected = settings.firstStamp;
    for (const DecodedPicture& picture : pictures) {
        QCOMPARE(picture.frame->width, settings.width);
        QCOMPARE(picture.frame->height, settings.height);
        QCOMPARE(stampOf(*picture.frame), std::optional(expected++));
    }
}

void TestClips::keyFramesComeAtTheInterval_data()
{
    QTest::addColumn<ClipSettings>("settings");
    for (const quint16 codec : {clipH264, clipH265}) {
        const char* name = codec == clipH264 ? "H.264" : "H.265";
        QTest::addRow("%s, scene", name) << small(codec);
        QTest::addRow("%s, cuts", name) << smallWith(codec, [](ClipSettings& settings) {
            settings.flat = [](int index) {
                return index % 2 == 0 ? ClipColour{40, 90, 200} : ClipColour{200, 160, 60};
            };
        });
    }
}

void TestClips::keyFramesComeAtTheInterval()
{
    QFETCH(ClipSettings, settings);
    QCOMPARE(keyPlaces(makeClip(settings)), std::vector<int>({0, 5, 10}));
}

void TestClips::decodingStartsAtAnyKeyFrame()
{
    QFETCH(ClipSettings, settings);
    std::vector<ClipFrame> frames = makeClip(settings);
    frames.erase(frames.begin(), frames.begin() + settings.keyInterval);
    const auto pictures = decodeAll(frames);
    QCOMPARE(pictures.size(), frames.size());
    QCOMPARE(stampOf(*pictures.front().frame), std::optional<std::uint32_t>(5));
}

void TestClips::bFramesComeAfterThePictureTheyReferTo()
{
    QFETCH(ClipSettings, settings);
    settings.bFrames = 1;
    settings.count = 5;
    std::vector<int> order;
    for (const ClipFrame& frame : makeClip(settings))
        order.push_back(frame.index);
    QCOMPARE(order, std::vector<int>({0, 2, 1, 4, 3}));
}

void TestClips::flatPicturesHaveTheColourAskedFor()
{
    QFETCH(ClipSettings, settings);
    const ClipColour colours[]{{81, 90, 240}, {145, 54, 34}, {41, 240, 110}};
    settings.flat = [&colours](int index) { return colours[index % 3]; };
    const auto pictures = decodeAll(makeClip(settings));
    QCOMPARE(pictures.size(), unsignedSize(settings.count));
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const AVFrame& frame = *pictures[i].frame;
        const ClipColour& colour = colours[i % 3];
        QVERIFY(near(sample(frame, 0, 96, 90), colour.y));
        QVERIFY(near(sample(frame, 1, 48, 45), colour.u));
        QVERIFY(near(sample(frame, 2, 48, 45), colour.v));
    }
}

void TestClips::sampleFormsAreThoseAskedFor_data()
{
    QTest::addColumn<ClipSettings>("settings");
    QTest::addColumn<int>("expected");
    const auto add = [](const char* name, ClipForm form, AVPixelFormat h264, AVPixelFormat h265) {
        const auto change = [form](ClipSettings& settings) { settings.form = form; };
        QTest::addRow("H.264, %s", name) << smallWith(clipH264, change) << static_cast<int>(h264);
        QTest::addRow("H.265, %s", name) << smallWith(clipH265, change) << static_cast<int>(h265);
    };
    add("4:2:0", ClipForm::Yuv420, AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV420P);
    add("10 bits", ClipForm::Yuv420Of10Bits, AV_PIX_FMT_YUV420P10LE, AV_PIX_FMT_YUV420P10LE);
    add("4:2:2", ClipForm::Yuv422, AV_PIX_FMT_YUV422P, AV_PIX_FMT_YUV422P);
    add("4:4:4", ClipForm::Yuv444, AV_PIX_FMT_YUV444P, AV_PIX_FMT_YUV444P);
    // libavcodec's decoder of H.264 adds the colour planes that grey has not.
    add("grey", ClipForm::Grey, AV_PIX_FMT_YUV420P, AV_PIX_FMT_GRAY8);
}

void TestClips::sampleFormsAreThoseAskedFor()
{
    QFETCH(ClipSettings, settings);
    QFETCH(int, expected);
    const auto pictures = decodeAll(makeClip(settings));
    QCOMPARE(pictures.size(), unsignedSize(settings.count));
    for (const DecodedPicture& picture : pictures)
        QCOMPARE(picture.frame->format, expected);
}

void TestClips::profilesAreThoseAskedFor()
{
    const std::pair<ClipProfile, int> profiles[]{
        {ClipProfile::Baseline, FF_PROFILE_H264_CONSTRAINED_BASELINE},
        {ClipProfile::Main, FF_PROFILE_H264_MAIN}, {ClipProfile::High, FF_PROFILE_H264_HIGH}};
    for (const auto& [profile, expected] : profiles) {
        ClipSettings settings = small(clipH264);
        settings.profile = profile;
        const auto pictures = decodeAll(makeClip(settings));
        QVERIFY(!pictures.empty());
        QCOMPARE(pictures.front().profile, expected);
    }
}

void TestClips::interlacedPicturesSaySo()
{
    ClipSettings settings = small(clipH264);
    settings.interlaced = true;
    const auto pictures = decodeAll(makeClip(settings));
    QCOMPARE(pictures.size(), unsignedSize(settings.count));
    for (const DecodedPicture& picture : pictures) {
        QCOMPARE(picture.frame->interlaced_frame, 1);
        QCOMPARE(picture.frame->top_field_first, 1);
    }
}

void TestClips::sizesFollowTheBitRate()
{
    QFETCH(ClipSettings, settings);
    settings.width = 480;
    settings.height = 272;
    settings.count = 75;
    settings.keyInterval = 50;
    for (const int kilobits : {300, 1200}) {
        settings.kilobitsPerSecond = kilobits;
        const qint64 bits = bytesOf(makeClip(settings)) * 8;
        const qint64 expected = qint64{3} * kilobits * 1000;
        QVERIFY2(bits > expected * 6 / 10 && bits < expected * 13 / 10,
            qPrintable(QString::number(bits)));
    }
}

void TestClips::sameSettingsGiveTheSameBytes()
{
    QFETCH(ClipSettings, settings);
    settings.bFrames = 2;
    const auto first = makeClip(settings);
    const auto second = makeClip(settings);
    QCOMPARE(first.size(), second.size());
    for (std::size_t i = 0; i < first.size(); ++i)
        QCOMPARE(first[i].bytes, second[i].bytes);
}

ORVA_TEST(TestClips)
#include "tst_clips.moc"

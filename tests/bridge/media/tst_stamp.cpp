// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediasupport.h"
#include "stampreader.h"
#include "testmain.h"

#include "media/medialog.h"
#include "media/stamp.h"
#include "media/videoencoder.h"

#include <QTest>

Q_DECLARE_METATYPE(VideoCodec)

class TestStamp final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { routeFfmpegLog(); }
    void isReadBackAfterEncoding_data();
    void isReadBackAfterEncoding();
    void isReadFromAScaledPicture_data();
    void isReadFromAScaledPicture();
    void isReadHalfAPointBeside();
    void rowsThatContradictGiveNothing();
    void picturesWithoutStampGiveNothing();
};

namespace {

constexpr std::uint32_t values[]{0, 0xffffff, 0xaaaaaa, 0x555555, 0x800001, 0x123456};

FramePtr stamped(int width, int height, std::uint32_t value)
{
    FramePtr picture = makePicture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture->data[0][std::ptrdiff_t{picture->linesize[0]} * y + x] =
                static_cast<std::uint8_t>(40 + (x * 7 + y * 13) % 160);
    for (const int plane : {1, 2})
        std::fill_n(picture->data[plane], picture->linesize[plane] * ((height + 1) / 2), 90);
    drawStamp(*picture, value);
    return picture;
}

} // namespace

void TestStamp::isReadBackAfterEncoding_data()
{
    QTest::addColumn<VideoCodec>("codec");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    for (const VideoCodec codec : {VideoCodec::H264, VideoCodec::H265}) {
        const char* name = codec == VideoCodec::H264 ? "H.264" : "H.265";
        const QSize sizes[]{
            {96, 64}, {176, 144}, {320, 180}, {642, 362}, {1280, 720}, {3840, 2160}};
        for (const QSize size : sizes)
            QTest::addRow("%s %dx%d", name, size.width(), size.height())
                << codec << size.width() << size.height();
    }
}

void TestStamp::isReadBackAfterEncoding()
{
    QFETCH(VideoCodec, codec);
    QFETCH(int, width);
    QFETCH(int, height);
    std::string error;
    const auto encoder =
        VideoEncoder::open({codec, width, height, 25, width * height / 400 + 500, 4}, error);
    QVERIFY2(encoder, error.c_str());
    std::vector<SharedFrame> frames;
    for (const std::uint32_t value : values) {
        frames.push_back(encoder->encode(*stamped(width, height, value), false));
        QVERIFY(frames.back());
    }
    QCOMPARE(stampsOf(frames), std::vector<std::uint32_t>(std::begin(values), std::end(values)));
}

void TestStamp::isReadFromAScaledPicture_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("half") << 640 << 360;
    QTest::newRow("odd") << 427 << 241;
    QTest::newRow("a small tile") << 120 << 68;
    QTest::newRow("out of shape") << 300 << 400;
    QTest::newRow("larger") << 1915 << 1077;
}

void TestStamp::isReadFromAScaledPicture()
{
    QFETCH(int, width);
    QFETCH(int, height);
    for (const std::uint32_t value : values)
        QCOMPARE(stampOf(scaled(copyLuma(*stamped(1280, 720, value)), width, height)), value);
}

void TestStamp::isReadHalfAPointBeside()
{
    for (const std::uint32_t value : values) {
        DecodedPicture picture = copyLuma(*stamped(96, 54, value));
        const auto sharp = picture.luma;
        for (std::size_t i = static_cast<std::size_t>(picture.width) + 1; i < sharp.size(); ++i)
            picture.luma[i] = static_cast<std::uint8_t>(
                (sharp[i] + sharp[i - 1] + sharp[i - picture.width] + sharp[i - picture.width - 1])
                / 4);
        QCOMPARE(stampOf(picture), value);
    }
}

void TestStamp::rowsThatContradictGiveNothing()
{
    const FramePtr picture = stamped(240, 120, 0x123456);
    DecodedPicture seen = copyLuma(*picture);
    QCOMPARE(stampOf(seen), std::optional<std::uint32_t>(0x123456));
    constexpr std::ptrdiff_t row = 240 * std::ptrdiff_t{10};
    std::copy_n(seen.luma.begin(), row, seen.luma.begin() + row);
    QCOMPARE(stampOf(seen), std::optional<std::uint32_t>());
}

void TestStamp::picturesWithoutStampGiveNothing()
{
    const std::vector<std::uint8_t> grey(std::size_t{640} * 360, 126);
    QVERIFY(!readStamp(grey.data(), 640, 640, 360));
    const std::vector<std::uint8_t> white(std::size_t{640} * 360, 235);
    QVERIFY(!readStamp(white.data(), 640, 640, 360));
    QVERIFY(!readStamp(white.data(), 640, 47, 360));
    QVERIFY(!readStamp(white.data(), 640, 640, 23));
    QVERIFY(!readStamp(nullptr, 640, 640, 360));
}

ORVA_TEST(TestStamp)
#include "tst_stamp.moc"

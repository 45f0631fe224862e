// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/ffmpegowners.h"
#include "media/yuvpicture.h"
#include "testmain.h"
#include "videotest.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

Q_DECLARE_METATYPE(AVPixelFormat)

// Decoded pictures into the YUV buffer.
class TestYuvPicture final : public QObject
{
    Q_OBJECT

private slots:
    void everyFormatAndSizeIsCopiedRight_data();
    void everyFormatAndSizeIsCopiedRight();
    void rowsWithPaddingAreCopiedRight();
    void planesLieBehindEachOther();
    void pictureOfOneRowHasNoColour();
    void pictureOfOneColumnHasNoColour();
    void greyGetsNeutralColour();
    void depthLosesTheLowBits();
    void largestPictureFits();
    void tooLargePicturesAreNotLookedAt_data();
    void tooLargePicturesAreNotLookedAt();
    void whatIsNoYuvIsNotLookedAt_data();
    void whatIsNoYuvIsNotLookedAt();
};

namespace {

constexpr char untouched = '\xA5';

// A frame whose planes are exactly as long as their rows and no longer, so that the address
// sanitizer sees each byte that is read past an end.
struct TightFrame
{
    TightFrame(AVPixelFormat format, int width, int height, int padding = 0)
        : frame(av_frame_alloc())
    {
        frame->format = format;
        frame->width = width;
        frame->height = height;
        for (int plane = 0; plane < av_pix_fmt_count_planes(format); ++plane)
            addPlane(format, plane, padding);
    }

    FramePtr frame;
    std::vector<std::vector<std::uint8_t>> planes;

private:
    void addPlane(AVPixelFormat format, int plane, int padding)
    {
        const auto& parts = *av_pix_fmt_desc_get(format);
        int step = 0;
        for (int part = 0; part < parts.nb_components; ++part) {
            if (parts.comp[part].plane == plane)
                step = std::max(step, parts.comp[part].step);
        }
        const bool isChroma = plane == 1 || plane == 2;
        const int across = AV_CEIL_RSHIFT(frame->width, isChroma ? parts.log2_chroma_w : 0);
        const int rows = AV_CEIL_RSHIFT(frame->height, isChroma ? parts.log2_chroma_h : 0);
        const int stride = across * step + padding;
        auto& bytes =
            planes.emplace_back(std::size_t(stride) * std::size_t(rows) - std::size_t(padding));
        for (std::uint8_t& byte : bytes)
            byte = static_cast<std::uint8_t>(random_.bounded(256));
        frame->data[plane] = bytes.data();
        frame->linesize[plane] = stride;
    }

    QRandomGenerator random_{20200229};
};

QByteArray freshBuffer(int bytes = yuvBufferBytes)
{
    return {bytes, untouched};
}

std::uint8_t* bytesOf(QByteArray& buffer)
{
    return reinterpret_cast<std::uint8_t*>(buffer.data());
}

// What copyPicture makes of it; empty where it makes nothing, or writes past the picture's end.
QByteArray copied(const AVFrame& frame)
{
    const YuvLayout layout{frame.width, frame.height};
    const int bytes = static_cast<int>(layout.lumaBytes() + 2 * layout.chromaBytes());
    constexpr int guard = 64;
    QByteArray buffer = freshBuffer(bytes + guard);
    const bool isDone = copyPicture(frame, bytesOf(buffer)) == PictureCopy::Done;
    const bool isOver = buffer.right(guard) == freshBuffer(guard);
    return isDone && isOver ? buffer.left(bytes) : QByteArray();
}

// The place of the first difference, -1 for none, -2 where the lengths differ.
int firstDifference(const QByteArray& a, const QByteArray& b)
{
    if (a.size() != b.size())
        return -2;
    const auto places = std::mismatch(a.begin(), a.end(), b.begin());
    return places.first == a.end() ? -1 : static_cast<int>(places.first - a.begin());
}

} // namespace

void TestYuvPicture::everyFormatAndSizeIsCopiedRight_data()
{
    QTest::addColumn<AVPixelFormat>("format");
    QTest::addColumn<QSize>("size");
    for (const AVPixelFormat format :
        {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUVJ420P, AV_PIX_FMT_YUV422P, AV_PIX_FMT_YUVJ422P,
            AV_PIX_FMT_YUV444P, AV_PIX_FMT_YUVJ444P, AV_PIX_FMT_YUV440P, AV_PIX_FMT_YUV411P,
            AV_PIX_FMT_YUV410P, AV_PIX_FMT_YUVA420P, AV_PIX_FMT_NV12, AV_PIX_FMT_NV21,
            AV_PIX_FMT_NV16, AV_PIX_FMT_P010LE, AV_PIX_FMT_P010BE, AV_PIX_FMT_YUV420P9LE,
            AV_PIX_FMT_YUV420P10LE, AV_PIX_FMT_YUV420P10BE, AV_PIX_FMT_YUV420P12LE,
            AV_PIX_FMT_YUV422P10LE, AV_PIX_FMT_YUV422P12LE, AV_PIX_FMT_YUV444P10LE,
            AV_PIX_FMT_YUV444P14LE, AV_PIX_FMT_YUV444P16LE, AV_PIX_FMT_GRAY8, AV_PIX_FMT_GRAY10LE,
            AV_PIX_FMT_GRAY12LE, AV_PIX_FMT_GRAY16BE, AV_PIX_FMT_YA8}) {
        for (const QSize size : {QSize(1, 1), QSize(1, 2), QSize(2, 1), QSize(2, 2), QSize(3, 3),
                 QSize(1, 9), QSize(9, 1), QSize(5, 7), QSize(8, 6), QSize(17, 9), QSize(131, 67)})
            QTest::newRow(qPrintable(QStringLiteral("%1 %2x%3")
                                         .arg(QLatin1String(av_get_pix_fmt_name(format)))
                                         .arg(size.width())
                                         .arg(size.height())))
                << format << size;
    }
}

void TestYuvPicture::everyFormatAndSizeIsCopiedRight()
{
    QFETCH(AVPixelFormat, format);
    QFETCH(QSize, size);
    const TightFrame source(format, size.width(), size.height());
    QCOMPARE(firstDifference(copied(*source.frame), tightPicture(*source.frame)), -1);
}

void TestYuvPicture::rowsWithPaddingAreCopiedRight()
{
    for (const AVPixelFormat format : {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV422P10LE}) {
        const TightFrame source(format, 427, 241, 46);
        QCOMPARE(firstDifference(copied(*source.frame), tightPicture(*source.frame)), -1);
    }
}

void TestYuvPicture::planesLieBehindEachOther()
{
    TightFrame source(AV_PIX_FMT_YUV420P, 5, 5);
    for (std::size_t plane = 0; plane < 3; ++plane)
        std::fill(source.planes.at(plane).begin(), source.planes.at(plane).end(),
            static_cast<std::uint8_t>('1' + plane));
    source.planes.at(1).at(4) = 'u'; // second row, second sample
    source.planes.at(2).at(1) = 'v';
    QCOMPARE(copied(*source.frame), QByteArray(25, '1') + "222u" + "3v33");
}

void TestYuvPicture::pictureOfOneRowHasNoColour()
{
    const TightFrame source(AV_PIX_FMT_YUV420P, 8, 1);
    QCOMPARE(copied(*source.frame), QByteArray(reinterpret_cast<char*>(source.frame->data[0]), 8));
}

void TestYuvPicture::pictureOfOneColumnHasNoColour()
{
    const TightFrame source(AV_PIX_FMT_YUV420P, 1, 8);
    QCOMPARE(copied(*source.frame), QByteArray(reinterpret_cast<char*>(source.frame->data[0]), 8));
}

void TestYuvPicture::greyGetsNeutralColour()
{
    TightFrame source(AV_PIX_FMT_GRAY8, 4, 2);
    std::fill(source.planes.at(0).begin(), source.planes.at(0).end(), 'y');
    QCOMPARE(copied(*source.frame), QByteArray(8, 'y') + QByteArray(4, '\x80'));
}

void TestYuvPicture::depthLosesTheLowBits()
{
    TightFrame source(AV_PIX_FMT_YUV420P10LE, 2, 2);
    source.planes.at(0) = {0x00, 0x00, 0x03, 0x00, 0x04, 0x00, 0xFF, 0x03};
    source.planes.at(1) = {0x00, 0x02};
    source.planes.at(2) = {0xFC, 0x03};
    for (std::size_t plane = 0; plane < 3; ++plane)
        source.frame->data[plane] = source.planes.at(plane).data();
    QCOMPARE(copied(*source.frame), QByteArray::fromHex("000001FF80FF"));
}

void TestYuvPicture::largestPictureFits()
{
    const TightFrame source(AV_PIX_FMT_YUV420P, 3840, 2160);
    QByteArray buffer = freshBuffer(); // exactly as long
    QVERIFY(copyPicture(*source.frame, bytesOf(buffer)) == PictureCopy::Done);
    const std::uint8_t* bytes = bytesOf(buffer);
    QCOMPARE(bytes[0], source.planes.at(0).front());
    const YuvLayout layout{3840, 2160};
    QCOMPARE(bytes[layout.offsetOfU()], source.planes.at(1).front());
    QCOMPARE(bytes[yuvBufferBytes - 1], source.planes.at(2).back());
}

void TestYuvPicture::tooLargePicturesAreNotLookedAt_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size :
        {QSize(3840, 2162), QSize(3842, 2160), QSize(4096, 2304), QSize(2304, 4096),
            QSize(7680, 4320), QSize(65535, 65535), QSize(0, 0), QSize(0, 10), QSize(10, 0)})
        QTest::newRow(qPrintable(QStringLiteral("%1x%2").arg(size.width()).arg(size.height())))
            << size;
}

void TestYuvPicture::tooLargePicturesAreNotLookedAt()
{
    QFETCH(QSize, size);
    for (const AVPixelFormat format : {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV444P10LE}) {
        const FramePtr empty(av_frame_alloc()); // without a sample
        empty->format = format;
        empty->width = size.width();
        empty->height = size.height();
        QByteArray buffer = freshBuffer();
        QVERIFY(copyPicture(*empty, bytesOf(buffer)) == PictureCopy::TooLarge);
        QVERIFY(buffer == freshBuffer());
    }
}

void TestYuvPicture::whatIsNoYuvIsNotLookedAt_data()
{
    QTest::addColumn<AVPixelFormat>("format");
    for (const AVPixelFormat format :
        {AV_PIX_FMT_RGB24, AV_PIX_FMT_GBRP, AV_PIX_FMT_GBRP10LE, AV_PIX_FMT_BGRA, AV_PIX_FMT_PAL8,
            AV_PIX_FMT_MONOBLACK, AV_PIX_FMT_GRAYF32LE, AV_PIX_FMT_VAAPI, AV_PIX_FMT_BAYER_BGGR8})
        QTest::newRow(av_get_pix_fmt_name(format)) << format;
    QTest::newRow("none") << AV_PIX_FMT_NONE;
    QTest::newRow("unknown") << AV_PIX_FMT_NB;
}

void TestYuvPicture::whatIsNoYuvIsNotLookedAt()
{
    QFETCH(AVPixelFormat, format);
    const FramePtr empty(av_frame_alloc()); // without a sample
    empty->format = format;
    empty->width = 16;
    empty->height = 16;
    QByteArray buffer = freshBuffer();
    QVERIFY(copyPicture(*empty, bytesOf(buffer)) == PictureCopy::NoPlanes);
    QVERIFY(buffer == freshBuffer());
}

ORVA_TEST(TestYuvPicture)

#include "tst_yuvpicture.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "gif.h"

#include "palette.h"

#include <gif_lib.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace {

struct ColourMapFree
{
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};

int append(GifFileType* gif, const GifByteType* bytes, int size)
{
    static_cast<QByteArray*>(gif->UserData)->append(reinterpret_cast<const char*>(bytes), size);
    return size;
}

[[noreturn]] void fail(int code)
{
    const char* text = GifErrorString(code);
    throw std::runtime_error(std::string("giflib: ") + (text ? text : "unknown error"));
}

// The file being written, into memory.
class Gif
{
public:
    Gif()
        : file_(EGifOpen(&bytes_, &append, &error_))
    {
        if (!file_)
            fail(error_);
        EGifSetGifVersion(file_, true);
    }
    ~Gif()
    {
        if (file_)
            EGifCloseFile(file_, nullptr);
    }
    Q_DISABLE_COPY_MOVE(Gif)

    void writeHeader(const QSize& size, const Palette& palette);
    void writeEndlessLoop();
    void writeFrame(const QImage& image, const Palette& palette, int frameMs);
    QByteArray close();

private:
    void check(int result) const
    {
        if (result != GIF_OK)
            fail(file_->Error);
    }

    QByteArray bytes_;
    int error_ = 0;
    GifFileType* file_;
};

void Gif::writeHeader(const QSize& size, const Palette& palette)
{
    const std::unique_ptr<ColorMapObject, ColourMapFree> map(GifMakeMapObject(256, nullptr));
    if (!map)
        fail(E_GIF_ERR_NOT_ENOUGH_MEM);
    GifColorType* entry = map->Colors;
    for (const QRgb colour : palette.colours())
        *entry++ = {static_cast<GifByteType>(qRed(colour)),
            static_cast<GifByteType>(qGreen(colour)), static_cast<GifByteType>(qBlue(colour))};
    check(
        EGifPutScreenDesc(file_, size.width(), size.height(), 8, Palette::transparent, map.get()));
}

void Gif::writeEndlessLoop()
{
    static constexpr GifByteType endless[] = {1, 0, 0};
    check(EGifPutExtensionLeader(file_, APPLICATION_EXT_FUNC_CODE));
    check(EGifPutExtensionBlock(file_, 11, "NETSCAPE2.0"));
    check(EGifPutExtensionBlock(file_, sizeof endless, endless));
    check(EGifPutExtensionTrailer(file_));
}

void Gif::writeFrame(const QImage& image, const Palette& palette, int frameMs)
{
    const GraphicsControlBlock control{
        DISPOSE_BACKGROUND, false, frameMs / 10, Palette::transparent};
    GifByteType bytes[4];
    EGifGCBToExtension(&control, bytes);
    check(EGifPutExtension(file_, GRAPHICS_EXT_FUNC_CODE, sizeof bytes, bytes));
    check(EGifPutImageDesc(file_, 0, 0, image.width(), image.height(), false, nullptr));
    std::vector<GifPixelType> line(static_cast<std::size_t>(image.width()));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            line[static_cast<std::size_t>(x)] =
                static_cast<GifPixelType>(palette.index(image.pixel(x, y)));
        check(EGifPutLine(file_, line.data(), image.width()));
    }
}

QByteArray Gif::close()
{
    int error = 0;
    GifFileType* file = file_;
    file_ = nullptr;
    if (EGifCloseFile(file, &error) != GIF_OK)
        fail(error);
    return bytes_;
}

} // namespace

QByteArray encodeGif(const std::vector<QImage>& frames, int frameMs)
{
    const Palette palette(frames);
    Gif gif;
    gif.writeHeader(frames.front().size(), palette);
    gif.writeEndlessLoop();
    for (const QImage& frame : frames)
        gif.writeFrame(frame, palette, frameMs);
    return gif.close();
}

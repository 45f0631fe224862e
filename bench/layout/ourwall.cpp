// SPDX-License-Identifier: GPL-3.0-or-later
#include "ourwall.h"

#include "media/yuvpicture.h"

#include <algorithm>

namespace {

constexpr int deviceCount = 8;
constexpr int channelsOfDevice = 8;
constexpr YuvLayout picture{1280, 720};

void storePicture(ChannelMode& mode, int brightness)
{
    auto* buffer = new std::uint8_t[yuvBufferBytes];
    std::fill_n(buffer, picture.lumaBytes(), static_cast<std::uint8_t>(brightness));
    std::fill_n(buffer + picture.offsetOfU(), 2 * picture.chromaBytes(), std::uint8_t{128});
    mode.yuvBuffer = buffer;
    mode.pictureSize = QSize(picture.width, picture.height);
}

} // namespace

OurWall::OurWall(QSize size)
    : Subject(size)
{
    openMore();
}

OurWall::~OurWall()
{
    dropTiles(); // before their owner goes
}

// In live view, and wanted in playback too.
void OurWall::openMore()
{
    for (int i = 0; i < deviceCount; ++i) {
        const Device* device = wall_.addDevice(channelsOfDevice);
        for (int number = 0; number < channelsOfDevice; ++number) {
            Channel* channel = device->channel(number);
            storePicture(channel->mode(true), 40 + 20 * number);
            storePicture(channel->mode(false), 40 + 20 * number);
            channel->mode(false).open = true;
            wall_.viewControl.connectChannel(channel, false, true);
        }
    }
    settle();
}

void OurWall::settle() const
{
    if (!wall_.settle())
        qFatal("a task does not end");
}

void OurWall::prepare(WINDOW_MOD mod)
{
    wall_.viewControl.setPage(0);
    wall_.viewControl.setWindowMod(mod, true);
    wall_.viewControl.setWindowMod(mod, false);
    Dev::instance()->selectChannel(nullptr);
}

void OurWall::makeTilesOn(QWidget* area)
{
    wall_.viewControl.createWindows(area);
}

void OurWall::setLayout(WINDOW_MOD mod)
{
    wall_.viewControl.setWindowMod(mod, wall_.viewControl.getIsLive());
}

void OurWall::layOut(QSize size)
{
    wall_.viewControl.layoutWindows(size.width(), size.height());
}

void OurWall::doubleClick()
{
    const int last = wall_.viewControl.getTileCount() - 1;
    wall_.viewControl.doubleClickScreen(wall_.viewControl.getTileChannel(last));
}

void OurWall::turnPage(bool forward)
{
    wall_.viewControl.changePage(forward ? ViewControl::PageUp : ViewControl::PageDown);
}

void OurWall::changeMode(bool isLive)
{
    wall_.viewControl.changeMod(isLive);
}

void OurWall::bringPictures()
{
    const bool isLive = wall_.viewControl.getIsLive();
    ++timestamp_;
    const QList<Channel*> shown = wall_.shown();
    for (Channel* channel : shown) {
        if (channel == nullptr)
            continue;
        channel->mode(isLive).playing = true;
        emit wall_.decode.decodeSuccess(channel, isLive, picture.width, picture.height, timestamp_);
    }
}

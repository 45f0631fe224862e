// SPDX-License-Identifier: GPL-3.0-or-later
#include "tilewall.h"

#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "media/decode.h"
#include "wall/glwidgetviewwindow.h"
#include "wall/viewcontrol.h"

#include <cmath>

TileWall::TileWall(const QString& uid, const QString& password, int tiles)
    : device_(new Device)
    , places_(static_cast<std::size_t>(tiles))
{
    setWindowFlags(Qt::FramelessWindowHint);
    device_->setUid(uid);
    device_->setViewPassword(password);
    device_->setChannelCount(tiles);
    for (int i = 0; i < tiles; ++i) {
        Place& place = places_[std::size_t(i)];
        place.tile = new GlWidgetViewWindow(this);
        place.tile->setChannel(device_.get(), device_->channel(i));
        connect(place.tile, &QOpenGLWidget::frameSwapped, this,
            [this, &place] { picturePainted(place); });
    }
    const IoConnect* io = IoConnect::instance();
    connect(io, &IoConnect::tutkInitSuccessMsg, this, &TileWall::open);
    connect(io, &IoConnect::connectChannelSuccessMsg, this, &TileWall::startTile);
    connect(Decode::instance(), &Decode::decodeSuccess, this,
        [this](Channel* channel) { places_[std::size_t(channel->number())].decoded = true; });
    const auto fail = [this](Channel*, int, const QString& text) { emit failed(text); };
    connect(io, &IoConnect::connectDevFailMsg, this, fail);
    connect(io, &IoConnect::connectChannelFailMsg, this, fail);
    connect(io, &IoConnect::videoRequestFailMsg, this, fail);
}

TileWall::~TileWall()
{
    emit Dev::instance()->deleteDevMsg(device_.get());
}

void TileWall::open()
{
    for (int i = 0; i < device_->channelCount(); ++i) {
        device_->channel(i)->mode(true).open = true;
        IoConnect::instance()->connect(device_->channel(i));
    }
}

void TileWall::startTile(Channel* channel)
{
    Place& place = places_[std::size_t(channel->number())];
    place.started = Clock::now();
    place.decoded = false;
    IoConnect::instance()->startLive(channel);
}

void TileWall::picturePainted(Place& place)
{
    if (place.shown || !place.decoded)
        return;
    place.shown = true;
    firstPictures_.push_back(
        std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - place.started));
    emit firstPicture(static_cast<int>(&place - places_.data()));
    if (firstPictures_.size() == places_.size())
        emit allShown();
}

void TileWall::resizeEvent(QResizeEvent*)
{
    const int columns = static_cast<int>(std::ceil(std::sqrt(places_.size())));
    const int across = width() / columns;
    const int down = height() / columns;
    for (std::size_t i = 0; i < places_.size(); ++i) {
        const int at = static_cast<int>(i);
        places_[i].tile->resize(across, down, at % columns * across, at / columns * down);
    }
}

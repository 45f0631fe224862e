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
            [this, &place] { windowComposed(place); });
        place.tile->installEventFilter(this);
    }
    connect(places_.front().tile, &QOpenGLWidget::frameSwapped, this, &TileWall::composed);
    const IoConnect* io = IoConnect::instance();
    disconnect(io, nullptr, ViewControl::instance(), nullptr); // it would start them once more
    connect(io, &IoConnect::tutkInitSuccessMsg, this, &TileWall::open);
    connect(io, &IoConnect::connectChannelSuccessMsg, this,
        [this](Channel* channel) { start(channel->number()); });
    connect(io, &IoConnect::videoRequestStopSuccessMsg, this,
        [this](Channel* channel) { emit stopped(channel->number()); });
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

void TileWall::start(int tile)
{
    Place& place = places_[std::size_t(tile)];
    place.started = Clock::now();
    place.decoded = false;
    place.painted = false;
    place.shown = false;
    IoConnect::instance()->startLive(device_->channel(tile));
}

void TileWall::stop(int tile)
{
    IoConnect::instance()->stopLife(device_->channel(tile), false);
}

bool TileWall::eventFilter(QObject* tile, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        for (Place& place : places_)
            place.painted = place.painted || (place.tile == tile && place.decoded);
    }
    return QWidget::eventFilter(tile, event);
}

void TileWall::windowComposed(Place& place)
{
    if (place.shown || !place.painted)
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/playbtn.h"

#include "app/pictures.h"
#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "wall/viewcontrol.h"

PlayBtn::PlayBtn(QWidget* parent)
    : PictureKey(parent)
{
    const IoConnect* io = IoConnect::instance();
    const auto load = qOverload<Channel*>(&PlayBtn::loadPlayStatus);
    connect(ViewControl::instance(), &ViewControl::changeModMsg, this,
        qOverload<bool>(&PlayBtn::loadPlayStatus));
    connect(Dev::instance(), &Dev::selectChannelMsg, this, load);
    connect(io, &IoConnect::videoRequestSuccessMsg, this, load);
    connect(io, &IoConnect::videoRequestStopSuccessMsg, this, load);
    connect(io, &IoConnect::startReplaySuccessMsg, this, load);
    connect(io, &IoConnect::stopReplaySuccessMsg, this, load);
    // A failure of a device comes with another of its channels.
    for (const auto failure : {&IoConnect::connectDevFailMsg, &IoConnect::connectChannelFailMsg,
             &IoConnect::videoRequestFailMsg, &IoConnect::receiveVideoTimeEmptyMsg,
             &IoConnect::startReplayFailMsg})
        connect(io, failure, this, [this] { loadPlayStatus(Dev::instance()->selectedChannel()); });
    loadPlayStatus(Dev::instance()->selectedChannel());
}

void PlayBtn::loadPlayStatus(bool)
{
    loadPlayStatus(Dev::instance()->selectedChannel());
}

void PlayBtn::loadPlayStatus(Channel* channel)
{
    if (channel != Dev::instance()->selectedChannel())
        return;
    showPlaying(channel != nullptr && channel->mode(ViewControl::instance()->getIsLive()).playing);
}

QString PlayBtn::hint() const
{
    return isPlaying_ ? tr("Stop") : tr("Play");
}

void PlayBtn::press()
{
    Channel* channel = Dev::instance()->selectedChannel();
    if (channel == nullptr)
        return;
    showPlaying(!isPlaying_);
    ViewControl* wall = ViewControl::instance();
    if (!isPlaying_)
        wall->closeChannel(channel);
    else if (wall->getIsLive())
        wall->connectChannel(channel, false, true);
    else
        wall->openReplayChannel(channel);
}

void PlayBtn::showPlaying(bool isPlaying)
{
    isPlaying_ = isPlaying;
    hotChanged();
    showHint();
}

void PlayBtn::hotChanged()
{
    const QString name = keyPicture(isPlaying_ ? "stop" : "play");
    setPicture(underMouse() ? name + QStringLiteral("-hover") : name, underMouse());
}

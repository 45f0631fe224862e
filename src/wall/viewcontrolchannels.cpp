// SPDX-License-Identifier: GPL-3.0-or-later
// How channels of the wall are opened and closed, and what becomes of those that fail. For both modes.
#include "wall/viewcontrol.h"

#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "model/device.h"
#include "store/location.h"

#include <QDebug>

#include <algorithm>
#include <limits>

void ViewControl::connectChannel(Channel* channel, bool isRetry, bool isLive)
{
    if (channel == nullptr)
        return;
    if (!isRetry && isLive == isLive_)
        channel->mode(isLive).open = true;
    IoConnect::instance()->connect(channel);
}

void ViewControl::connectChannelSuccess(Channel* channel)
{
    const ChannelMode& live = channel->mode(true);
    if (!isLive_ || !live.open || live.playing)
        return;
    showChannel(channel);
    IoConnect::instance()->startLive(channel);
    Dev::instance()->saveOpenChannels();
    emitPage();
}

void ViewControl::connectDevFail(Channel* channel)
{
    const Device* device = channel->device();
    unbindAll(device);
    for (int i = 0; i < device->channelListSize(); ++i) {
        device->channel(i)->mode(true).open = false;
        device->channel(i)->mode(false).open = false;
    }
}

void ViewControl::connectChannelFail(Channel* channel)
{
    channel->mode(isLive_).open = false;
    if (!isLive_)
        advancePlayAll(channel);
}

void ViewControl::startLiveFail(Channel* channel)
{
    channel->mode(true).open = false;
}

void ViewControl::closeChannel(Channel* channel)
{
    if (channel == nullptr)
        return;
    channel->mode(isLive_).open = false;
    if (isLive_) {
        IoConnect::instance()->stopLife(channel, false);
        Dev::instance()->saveOpenChannels();
    } else {
        IoConnect::instance()->stopReplay(channel, false, QDateTime());
    }
    unbind(channel);
}

// A stream has ended. Neither is the page lowered nor do the other tiles close ranks.
void ViewControl::cleanScreen(Channel* channel)
{
    qDebug().nospace() << "cleanScreen:" << channel->number();
    if (getPageCount() > 0) {
        emitPage();
        return;
    }
    setPage(0);
    emit createPageMsg(-1, 0);
}

void ViewControl::closeDevice(Device* device)
{
    IoConnect::instance()->disConnectDevice(device);
    unbindAll(device);
}

void ViewControl::deleteDevice(Device* device)
{
    if (device == nullptr)
        return;
    unbindAll(device);
    IoConnect::instance()->disConnectDevice(device);
}

void ViewControl::closeAll()
{
    const QList<Device*> devices = Dev::instance()->devices();
    for (Device* device : devices) {
        if (device->sid >= 0)
            IoConnect::instance()->disConnectDevice(device);
    }
}

void ViewControl::setRecord(Channel* channel, bool isRecord)
{
    constexpr int msPerMinute = 60000;
    constexpr int mostMinutes = std::numeric_limits<int>::max() / msPerMinute;
    channel->setRecord(isRecord, isLive_);
    if (isRecord) {
        const int minutes = std::clamp(Location::instance()->getTimeLength(), 0, mostMinutes);
        channel->setRecordTimer(minutes * msPerMinute, isLive_);
        connect(channel->mode(isLive_).recordTimer.get(), &ChannelSaveTimeout::timeout, this,
            &ViewControl::stopSaveRecord);
    } else {
        channel->removeRecordTimer(isLive_);
    }
    emit recordMsg(channel, isRecord);
}

void ViewControl::stopSaveRecord(Channel* channel)
{
    channel->setRecord(false, isLive_);
    emit recordMsg(channel, false);
}

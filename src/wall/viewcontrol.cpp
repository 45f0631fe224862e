// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/viewcontrol.h"

#include "link/ioconnect.h"
#include "model/channel.h"
#include "store/location.h"

#include <algorithm>
#include <limits>

namespace {

ViewControl* theViewControl = nullptr;

} // namespace

ViewControl* ViewControl::instance()
{
    if (theViewControl == nullptr)
        new ViewControl; // stores itself
    return theViewControl;
}

ViewControl::ViewControl()
{
    if (theViewControl != nullptr)
        return;
    theViewControl = this;
    scale_ = Location::instance()->getScale();
}

ViewControl::~ViewControl()
{
    if (theViewControl == this)
        theViewControl = nullptr;
}

void ViewControl::setScale(int scale)
{
    if (scale == scale_)
        return;
    scale_ = scale;
    emit scaleChangeMsg();
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

bool ViewControl::getNextBlock(QDateTime*) const
{
    return false; // the timeline holds no blocks yet
}

void ViewControl::closeDevice(Device* device)
{
    IoConnect::instance()->disConnectDevice(device);
}

void ViewControl::stopSaveRecord(Channel* channel)
{
    channel->setRecord(false, isLive_);
    emit recordMsg(channel, false);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/dev.h"

#include "model/device.h"

namespace {

Dev* theDev = nullptr;

} // namespace

Dev* Dev::instance()
{
    if (theDev == nullptr)
        new Dev; // stores itself
    return theDev;
}

Dev::Dev()
{
    if (theDev != nullptr)
        return;
    theDev = this;
    connect(this, &Dev::deleteDevMsg, this, &Dev::forget);
}

Dev::~Dev()
{
    if (theDev == this)
        theDev = nullptr;
}

void Dev::selectDevice(Device* device)
{
    if (device == selectedDevice_)
        return;
    selectedDevice_ = device;
    emit selectDevMsg(device);
}

void Dev::selectChannel(Channel* channel)
{
    if (channel == selectedChannel_)
        return;
    selectedChannel_ = channel;
    emit selectChannelMsg(channel);
}

void Dev::forget(const Device* device)
{
    if (device == selectedDevice_)
        selectDevice(nullptr);
    if (selectedChannel_ != nullptr && selectedChannel_->device() == device)
        selectChannel(nullptr);
}

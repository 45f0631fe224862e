// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/dev.h"

#include "store/location.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

Dev* theDev = nullptr;

// Its open flags, in the form of the settings.
QJsonArray openChannels(const Device& device)
{
    QJsonArray numbers;
    for (int i = 0; i < device.channelCount(); ++i) {
        if (device.channel(i)->mode(true).open)
            numbers.append(i);
    }
    return numbers;
}

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

QList<Device*> Dev::devices() const
{
    QList<Device*> devices;
    devices.reserve(static_cast<int>(devices_.size()));
    for (const DeviceOwner& device : devices_)
        devices.append(device.get());
    return devices;
}

QList<Channel*> Dev::channels() const
{
    QList<Channel*> channels;
    for (const DeviceOwner& device : devices_) {
        for (int i = 0; i < device->channelCount(); ++i)
            channels.append(device->channel(i));
    }
    return channels;
}

void Dev::addDevice(DeviceOwner device)
{
    const auto known = std::find_if(devices_.begin(), devices_.end(),
        [&](const DeviceOwner& other) { return other->uid() == device->uid(); });
    if (known == devices_.end()) {
        devices_.push_back(std::move(device));
        return;
    }
    Device& kept = **known;
    kept.setType(device->type());
    kept.setNickName(device->nickName());
    kept.setChannelCount(device->channelCount());
    kept.setViewAccount(device->viewAccount());
    kept.setViewPassword(device->viewPassword());
}

void Dev::removeDevice(Device* device)
{
    const auto at = std::find_if(devices_.begin(), devices_.end(),
        [device](const DeviceOwner& other) { return other.get() == device; });
    if (at == devices_.end())
        return;
    const DeviceOwner leaving = std::move(*at);
    devices_.erase(at);
    emit deleteDevMsg(device);
}

void Dev::saveOpenChannels() const
{
    QJsonArray open;
    for (const DeviceOwner& device : devices_) {
        const QJsonArray numbers = openChannels(*device);
        if (!numbers.isEmpty())
            open.append(QJsonObject{{"dev", device->uid()}, {"channel", numbers}});
    }
    const QString text = QString::fromUtf8(QJsonDocument(open).toJson()).simplified();
    Location::instance()->setDeviceChannel(text);
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

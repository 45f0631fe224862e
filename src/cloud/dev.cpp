// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/dev.h"

#include "link/ioconnect.h"
#include "store/localstore.h"
#include "store/location.h"
#include "wall/viewcontrol.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <algorithm>

namespace {

Dev* theDev = nullptr;

struct DeviceType
{
    int code;
    const char* name;
    bool isCamera;
};

constexpr DeviceType deviceTypes[] = {
    {1, "DVR", false},
    {2, "NVR", false},
    {3, "NVR(POE)", false},
    {4, "NVR(WIRELESS)", false},
    {5, "IPC(POE)", false},
    {6, "IPC(BOL)", true},
    {7, "IPC", true},
    {8, "IPC(KAPIANJI)", false},
    {9, "IPC(FISHEYE)", false},
    {10, "IPC(PTZ)", true},
    {11, "R430", true},
    {12, "R431", true},
    {13, "R415", true},
    {14, "R410", true},
    {15, "R415(pro)", true},
    {16, "R420", true},
    {17, "R410(PTZ)", true},
    {10001, "DVR(PTZ)", false},
};

const DeviceType* typeOf(int code)
{
    const auto at = std::find_if(std::begin(deviceTypes), std::end(deviceTypes),
        [code](const DeviceType& type) { return type.code == code; });
    return at == std::end(deviceTypes) ? nullptr : at;
}

DeviceOwner deviceOf(const LocalDeviceRecord& record)
{
    DeviceOwner device(new Device);
    device->setType(record.type);
    device->setUid(record.uid);
    device->setNickName(record.nickname);
    device->setChannelCount(std::max(record.channel, 0));
    device->setViewAccount(record.username);
    device->setViewPassword(record.password);
    return device;
}

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

Device* Dev::findDevice(const QString& uid) const
{
    const auto at = std::find_if(devices_.begin(), devices_.end(),
        [&](const DeviceOwner& device) { return device->uid() == uid; });
    return at == devices_.end() ? nullptr : at->get();
}

QList<Device*> Dev::filteredDevices() const
{
    QList<Device*> matching;
    for (const DeviceOwner& device : devices_) {
        if (device->uid().contains(filter_, Qt::CaseInsensitive)
            || device->nickName().contains(filter_, Qt::CaseInsensitive))
            matching.append(device.get());
    }
    return matching;
}

void Dev::addDevice(DeviceOwner device)
{
    Device* known = findDevice(device->uid());
    if (known == nullptr) {
        devices_.push_back(std::move(device));
        return;
    }
    giveUpChannels(known, device->channelCount());
    known->setType(device->type());
    known->setNickName(device->nickName());
    known->setChannelCount(device->channelCount());
    known->setViewAccount(device->viewAccount());
    known->setViewPassword(device->viewPassword());
}

// Those beyond a new count: they must not run on without a place in the list.
void Dev::giveUpChannels(Device* device, int channelCount)
{
    if (channelCount >= device->channelCount())
        return;
    ViewControl::instance()->closeDevice(device);
    if (selectedChannel_ != nullptr && selectedChannel_->device() == device
        && selectedChannel_->number() >= channelCount)
        selectChannel(nullptr);
    for (int i = channelCount; i < device->channelListSize(); ++i) {
        device->channel(i)->mode(true).open = false;
        device->channel(i)->mode(false).open = false;
    }
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

void Dev::clear()
{
    const QList<Device*> leaving = devices();
    for (Device* device : leaving)
        IoConnect::instance()->disConnectDevice(device);
    for (Device* device : leaving)
        removeDevice(device);
}

void Dev::getDev(const QString&, int, int)
{
    QTimer::singleShot(0, this, [this] {
        emit responseErrorMsg(QStringLiteral("getDev"), tr("Network Error"), 0,
            tr("This version loads no devices from the cloud yet."));
    });
}

void Dev::loadLocalDevices()
{
    const QList<LocalDeviceRecord> records = LocalStore::instance()->loadDevices();
    for (const LocalDeviceRecord& record : records)
        addDevice(deviceOf(record));
    if (!records.isEmpty())
        emit getDevFinishMsg(records.size());
}

void Dev::addLocalDev(const QString& uid, const QString& nickName, const QString& account,
    const QString& password, const QString& type, const QString& channelCount)
{
    LocalDeviceRecord record;
    record.type = type.toInt();
    record.channel = channelCount.toInt();
    record.nickname = nickName;
    record.uid = uid;
    record.username = account;
    record.password = password;
    LocalStore::instance()->saveDevice(record);
    emit reloadDevMsg(nullptr);
}

void Dev::deleteLocalDev(Device* device)
{
    if (device == nullptr)
        return;
    LocalStore::instance()->removeDevice(device->uid());
    removeDevice(device);
    saveOpenChannels();
    emit reloadDevMsg(device);
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

QString Dev::typeName(int type)
{
    if (const DeviceType* known = typeOf(type); known != nullptr)
        return QString::fromLatin1(known->name);
    return tr("[Unknown:") + QString::number(type) + QLatin1Char(']');
}

bool Dev::isCamera(const Device& device)
{
    const DeviceType* type = typeOf(device.type());
    return type != nullptr && type->isCamera;
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

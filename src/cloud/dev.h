// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/device.h"

#include <QList>
#include <QObject>

#include <vector>

// The registry of the account's devices, and what is selected of them. It alone owns devices; everyone
// else borrows them, and learns from deleteDevMsg that one leaves. Singleton, main thread; lives to the
// end of the process.
//
// After a local login the devices are those of the settings. This version speaks to no cloud service.
class Dev final : public QObject
{
    Q_OBJECT

public:
    static Dev* instance();

    Dev();
    ~Dev() override;
    Q_DISABLE_COPY_MOVE(Dev)

    // In the order in which they came.
    QList<Device*> devices() const;
    // Of all devices: in the order of the list, inside a device by number.
    QList<Channel*> channels() const;
    // The first one of that UID, or null.
    Device* findDevice(const QString& uid) const;

    // What the search of the device list has left: UID or name holds the text, whatever the case.
    QList<Device*> filteredDevices() const;
    void setFilter(const QString& text) { filter_ = text; }

    // A device whose UID is known changes the one that is there instead.
    void addDevice(DeviceOwner device);
    // Emits deleteDevMsg, then retires it; null, or one that is not in the list, is ignored.
    void removeDevice(Device* device);
    // Disconnects and removes all devices: a logout, or before a reload.
    void clear();

    // Page `page`, from 1, of the account's devices, `line` to a page: ends in getDevFinishMsg, or in
    // responseErrorMsg("getDev", ...), which is what it does as long as there is no cloud.
    void getDev(const QString& token, int page, int line);

    // The local list. `loadLocalDevices` ends in getDevFinishMsg where there is one device at least;
    // the others change it and end in reloadDevMsg. A record with a known UID is replaced.
    void loadLocalDevices();
    void addLocalDev(const QString& uid, const QString& nickName, const QString& account,
        const QString& password, const QString& type, const QString& channelCount);
    void deleteLocalDev(Device* device);

    // Which channels are open for live view, into the settings: the offer of the next start.
    void saveOpenChannels() const;

    // By the device type code. The name of a code that is none says so.
    static QString typeName(int type);
    static bool isCamera(const Device& device); // not a recorder

    // Null where nothing is selected.
    Device* selectedDevice() const { return selectedDevice_; }
    Channel* selectedChannel() const { return selectedChannel_; }

    // Emit only where the selection changes.
    void selectDevice(Device* device);
    void selectChannel(Channel* channel);

signals:
    void selectDevMsg(Device* device);
    void selectChannelMsg(Channel* channel);
    // A device was changed, added or removed: null for the whole list. One that was removed is gone:
    // the pointer only tells which it was.
    void reloadDevMsg(Device* device);
    void getDevFinishMsg(int count); // so many devices have come
    void loadDevMsg(); // the list is to be loaded
    // `type` is a fixed word per operation.
    void responseErrorMsg(
        const QString& type, const QString& errorType, int errorCode, const QString& error);

    // Emitted for every device that leaves, right before it is retired. Its session ends with this
    // signal at the latest; its pointer must not be kept.
    void deleteDevMsg(Device* device);

private:
    void forget(const Device* device);
    void giveUpChannels(Device* device, int channelCount);

    std::vector<DeviceOwner> devices_;
    Device* selectedDevice_ = nullptr;
    Channel* selectedChannel_ = nullptr;
    QString filter_;
};

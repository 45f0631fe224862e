// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/device.h"

#include <QList>
#include <QObject>

#include <vector>

// The registry of the account's devices, and what is selected of them. It alone owns devices; everyone
// else borrows them, and learns from deleteDevMsg that one leaves. Singleton, main thread; lives to the
// end of the process.
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

    // A device whose UID is known changes the one that is there instead.
    void addDevice(DeviceOwner device);
    // Emits deleteDevMsg, then retires it; null, or one that is not in the list, is ignored.
    void removeDevice(Device* device);

    // Which channels are open for live view, into the settings: the offer of the next start.
    void saveOpenChannels() const;

    // Null where nothing is selected.
    Device* selectedDevice() const { return selectedDevice_; }
    Channel* selectedChannel() const { return selectedChannel_; }

    // Emit only where the selection changes.
    void selectDevice(Device* device);
    void selectChannel(Channel* channel);

signals:
    void selectDevMsg(Device* device);
    void selectChannelMsg(Channel* channel);

    // Emitted for every device that leaves, right before it is retired. Its session ends with this
    // signal at the latest; its pointer must not be kept.
    void deleteDevMsg(Device* device);

private:
    void forget(const Device* device);

    std::vector<DeviceOwner> devices_;
    Device* selectedDevice_ = nullptr;
    Channel* selectedChannel_ = nullptr;
};

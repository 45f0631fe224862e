// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class Channel;
class Device;

// The registry of the account's devices, and what is selected of them. Singleton, main thread; lives
// to the end of the process.
//
// It holds no list yet; it is where everyone who borrows devices learns that one leaves.
class Dev final : public QObject
{
    Q_OBJECT

public:
    static Dev* instance();

    Dev();
    ~Dev() override;
    Q_DISABLE_COPY_MOVE(Dev)

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

    Device* selectedDevice_ = nullptr;
    Channel* selectedChannel_ = nullptr;
};

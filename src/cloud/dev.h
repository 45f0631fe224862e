// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class Device;

// The registry of the account's devices. Singleton, main thread; lives to the end of the process.
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

signals:
    // Emitted for every device that leaves, right before it is retired. Its session ends with this
    // signal at the latest; its pointer must not be kept.
    void deleteDevMsg(Device* device);
};

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
    Q_DISABLE_COPY_MOVE(Dev)

signals:
    // The device is about to be retired, and its pointer must not be kept.
    void deleteDevMsg(Device* device);
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

class Device;

namespace Ui {
class DelAlert;
}

// Asks before a device is deleted, and deletes it. Every answer ends in ViewControl's closeDelAlertMsg.
// Main thread.
class DelAlert final : public QWidget
{
    Q_OBJECT

public:
    DelAlert(Device* device, QWidget* parent);
    ~DelAlert() override;

private:
    void confirm();
    void forgetDevice(const Device* device);

    const std::unique_ptr<Ui::DelAlert> ui_;
    Device* device_; // null once it has left by itself
};

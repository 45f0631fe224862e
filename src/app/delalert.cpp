// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/delalert.h"

#include "app/escapekey.h"
#include "cloud/dev.h"
#include "ui_delalert.h"
#include "wall/viewcontrol.h"

DelAlert::DelAlert(Device* device, QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::DelAlert>())
    , device_(device)
{
    ui_->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    constexpr int widest = 280; // of a name: it may be as long as it likes
    ui_->label_device->ensurePolished();
    const QString name = ui_->label_device->fontMetrics().elidedText(
        device->nickName().simplified(), Qt::ElideRight, widest);
    ui_->label_device->setText(
        name.isEmpty() ? device->uid() : QStringLiteral("%1 (%2)").arg(name, device->uid()));
    connect(ui_->pushButton_confirm, &QPushButton::clicked, this, &DelAlert::confirm);
    connect(ui_->pushButton_cancel, &QPushButton::clicked, ViewControl::instance(),
        &ViewControl::closeDelAlertMsg);
    connect(Dev::instance(), &Dev::deleteDevMsg, this, &DelAlert::forgetDevice);
    onEscape(this, ViewControl::instance(), &ViewControl::closeDelAlertMsg);
    adjustSize();
    ui_->pushButton_cancel->setFocus();
}

DelAlert::~DelAlert() = default;

void DelAlert::confirm()
{
    Dev::instance()->deleteLocalDev(device_);
    emit ViewControl::instance()->closeDelAlertMsg();
}

void DelAlert::forgetDevice(const Device* device)
{
    if (device == device_)
        device_ = nullptr;
}

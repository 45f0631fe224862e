// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/alert.h"

#include "app/escapekey.h"
#include "app/pictures.h"
#include "model/device.h"
#include "ui_alert.h"

Alert::Alert(QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::Alert>())
{
    ui_->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    ui_->label_close->setPicture(keyPicture("alert_close"));
    connect(ui_->label_close, &LabelSystemBtn::clickMsg, this, &Alert::closeMsg);
    onEscape(this, this, &Alert::closeMsg);
}

Alert::~Alert() = default;

void Alert::setFailure(const Channel* channel, int error, const QString& text)
{
    ui_->label_errorCodeText->setText(QString::number(error));
    ui_->label_informationText->setText(text);
    ui_->label_device->setVisible(channel != nullptr);
    ui_->label_deviceText->setVisible(channel != nullptr);
    if (channel != nullptr) {
        ui_->label_deviceText->setText(
            QStringLiteral("%1(%2)").arg(channel->device()->uid()).arg(channel->number() + 1));
    }
    adjustSize();
}

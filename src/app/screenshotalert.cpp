// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/screenshotalert.h"

#include "app/escapekey.h"
#include "app/hint.h"
#include "app/pictures.h"
#include "model/channel.h"
#include "ui_screenshotalert.h"

ScreenShotAlert::ScreenShotAlert(const Channel* channel, const QString& path, QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::ScreenShotAlert>())
{
    ui_->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    ui_->label_close->setPicture(keyPicture("alert_close"));
    connect(ui_->label_close, &LabelSystemBtn::clickMsg, this, &ScreenShotAlert::closeMsg);
    onEscape(this, this, &ScreenShotAlert::closeMsg);
    ui_->label_channel->setText(tr("Channel") + QString::number(channel->number() + 1));
    const QSize room = ui_->label_picture->maximumSize();
    if (const QPixmap picture(path); !picture.isNull())
        ui_->label_picture->setPixmap(
            picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    ui_->label_path->setToolTip(plainHint(path));
    ui_->label_path->setText(
        ui_->label_path->fontMetrics().elidedText(path, Qt::ElideMiddle, room.width()));
    adjustSize();
}

ScreenShotAlert::~ScreenShotAlert() = default;

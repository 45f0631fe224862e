// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/reopenalert.h"

#include "app/escapekey.h"
#include "cloud/dev.h"
#include "store/location.h"
#include "ui_reopenalert.h"
#include "wall/viewcontrol.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

QJsonArray parsed(const QString& openChannels)
{
    return QJsonDocument::fromJson(openChannels.toUtf8()).array();
}

// What the registry does not have is passed over.
void reopen(const QJsonObject& entry)
{
    const Device* device =
        Dev::instance()->findDevice(entry.value(QLatin1String("dev")).toString());
    if (device == nullptr)
        return;
    const QJsonArray numbers = entry.value(QLatin1String("channel")).toArray();
    for (const QJsonValue& number : numbers) {
        const int index = number.toInt(-1);
        if (index < device->channelCount())
            ViewControl::instance()->connectChannel(device->channel(index), false, true);
    }
}

} // namespace

ReopenAlert::ReopenAlert(const QString& openChannels, QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::ReopenAlert>())
    , openChannels_(openChannels)
{
    ui_->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    connect(ui_->pushButton_confirm, &QPushButton::clicked, this, &ReopenAlert::confirm);
    connect(ui_->pushButton_cancel, &QPushButton::clicked, this, &ReopenAlert::cancel);
    onEscape(this, this, &ReopenAlert::cancel);
    adjustSize();
    ui_->pushButton_confirm->setFocus();
}

ReopenAlert::~ReopenAlert() = default;

bool ReopenAlert::isOffer(const QString& openChannels)
{
    return !parsed(openChannels).isEmpty();
}

void ReopenAlert::confirm()
{
    const QJsonArray entries = parsed(openChannels_);
    for (const QJsonValue& entry : entries)
        reopen(entry.toObject());
    emit closeMsg();
}

void ReopenAlert::cancel()
{
    // What has been opened beside the offer is not to be forgotten with it.
    const QList<Channel*> channels = Dev::instance()->channels();
    if (std::any_of(channels.begin(), channels.end(),
            [](const Channel* channel) { return bool(channel->mode(true).open); }))
        Dev::instance()->saveOpenChannels();
    else
        Location::instance()->setDeviceChannel(QStringLiteral("[]"));
    emit closeMsg();
}

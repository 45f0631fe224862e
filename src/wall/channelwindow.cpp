// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/channelwindow.h"

#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "media/decode.h"
#include "media/videorecord.h"
#include "model/device.h"
#include "ui_channelwindow.h"
#include "wall/viewcontrol.h"

#include <QMouseEvent>
#include <QStyle>

namespace {

constexpr char idleStyle[] =
    "font-size:11px;border:0;border-image:none;color:#ffffff;background:rgba(0,0,0,0.3)";
constexpr char playingStyle[] =
    "font-size:11px;border:0;border-image:none;color:#008000;background:rgba(0,0,0,0.3)";
constexpr char failStyle[] =
    "font-size:11px;border:0;border-image:none;color:#ff0000;background:rgba(0,0,0,0.3)";
constexpr char stoppedStyle[] =
    "font-size:11px;border:0;border-image:none;color:#ffffff;background:transparent";

// A style sheet ends a text at its quotation mark, which the name of a folder may hold; and it reads
// codes before it reads backslashes, so a backslash is a code itself, twice.
QString quoted(QString path)
{
    path.replace(QLatin1Char('\\'), QLatin1String("\\00005c\\00005c"));
    path.replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + path + QLatin1Char('"');
}

} // namespace

ChannelWindow::ChannelWindow(QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::ChannelWindow>())
{
    ui_->setupUi(this);
    showState(idleStyle, "idle");
    connectSenders();
}

ChannelWindow::~ChannelWindow() = default;

void ChannelWindow::connectSenders()
{
    using Card = ChannelWindow;
    const IoConnect* io = IoConnect::instance();
    const Dev* dev = Dev::instance();
    connect(dev, &Dev::selectDevMsg, this, &Card::markDev);
    connect(dev, &Dev::selectChannelMsg, this, &Card::markChannel);
    connect(dev, &Dev::deleteDevMsg, this, &Card::forgetDevice);
    connect(io, &IoConnect::videoRequestSuccessMsg, this, &Card::connectChannelSuccess);
    connect(io, &IoConnect::startReplaySuccessMsg, this, &Card::connectChannelSuccess);
    connect(io, &IoConnect::connectChannelFailMsg, this, &Card::connectChannelFail);
    connect(io, &IoConnect::videoRequestStopSuccessMsg, this, &Card::videoRequestStopSuccess);
    connect(io, &IoConnect::stopReplaySuccessMsg, this, &Card::videoRequestStopSuccess);
    connect(Decode::instance(), &Decode::streamSilentMsg, this, &Card::connectChannelFail);
    connect(Decode::instance(), &Decode::streamBackMsg, this, &Card::connectChannelSuccess);
    connect(Decode::instance(), &Decode::screenshotMsg, this, &Card::loadImage);
}

void ChannelWindow::setChannel(Device* device, Channel* channel)
{
    device_ = device;
    channel_ = channel;
    showName();
    connectChannelSuccess(channel); // it may have been running before there was a card
    loadImage(channel, true, VideoRecord::instance()->placeholderPath(channel));
    markDev(device);
    if (channel != nullptr && channel == Dev::instance()->selectedChannel())
        ui_->widget_frame->setStyleSheet(QStringLiteral("border:1px solid #6495ED"));
}

void ChannelWindow::forgetDevice(const Device* device)
{
    if (device_ != device)
        return;
    device_ = nullptr;
    channel_ = nullptr;
}

void ChannelWindow::showName()
{
    if (channel_ != nullptr)
        ui_->channelName->setText(tr("Channel") + QString::number(channel_->number() + 1));
}

void ChannelWindow::loadImage(Channel* nchannel, bool, const QString& filePath)
{
    if (nchannel != channel_)
        return;
    const QString path = filePath.isEmpty()
        ? QStringLiteral(":/bgImage/images/bgImg/opengl_background.png")
        : filePath;
    ui_->label_image->setStyleSheet(
        QStringLiteral("border:0;border-image: url(") + quoted(path) + QStringLiteral(");"));
}

void ChannelWindow::markDev(Device* ndev)
{
    const bool isSelected = device_ != nullptr && ndev == device_;
    ui_->widget_frame->setStyleSheet(
        QLatin1String(isSelected ? "border:2px solid #ccc" : "border:2px solid #eee"));
}

void ChannelWindow::markChannel(Channel* nchannel)
{
    if (nchannel != nullptr && nchannel == channel_)
        ui_->widget_frame->setStyleSheet(QStringLiteral("border:2px solid #6495ED"));
    else
        markDev(Dev::instance()->selectedDevice());
}

void ChannelWindow::connectChannelSuccess(Channel* nchannel)
{
    if (nchannel == nullptr || nchannel != channel_)
        return;
    if (channel_->mode(ViewControl::instance()->getIsLive()).playing)
        showState(playingStyle, "run");
    else
        showState(idleStyle, "idle");
}

void ChannelWindow::connectChannelFail(Channel* nchannel)
{
    if (nchannel != nullptr && nchannel == channel_)
        showState(failStyle, "fail");
}

void ChannelWindow::videoRequestStopSuccess(Channel* nchannel)
{
    if (nchannel != nullptr && nchannel == channel_)
        showState(stoppedStyle, "idle");
}

void ChannelWindow::showState(const char* nameStyle, const char* dotState)
{
    ui_->channelName->setStyleSheet(QLatin1String(nameStyle));
    ui_->label_dot->setProperty("state", QLatin1String(dotState));
    ui_->label_dot->style()->polish(ui_->label_dot);
}

void ChannelWindow::mousePressEvent(QMouseEvent* event)
{
    Device* const device = device_; // who hears of the selection may give the card another one
    Channel* const channel = channel_;
    if (channel == nullptr)
        return;
    if (event->button() == Qt::LeftButton) {
        Dev::instance()->selectDevice(device);
        Dev::instance()->selectChannel(channel);
    } else if (event->button() == Qt::RightButton) {
        emit ViewControl::instance()->openedSubWindowMenuMsg(device, channel, event);
    }
}

void ChannelWindow::mouseDoubleClickEvent(QMouseEvent* event)
{
    ViewControl* wall = ViewControl::instance();
    if (event->button() == Qt::LeftButton && wall->getIsLive())
        wall->connectChannel(channel_, false, true);
}

void ChannelWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        showName();
    QWidget::changeEvent(event);
}

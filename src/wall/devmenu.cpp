// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/devmenu.h"

#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "media/videorecord.h"
#include "model/device.h"
#include "ui_devmenu.h"
#include "wall/viewcontrol.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QUrl>

DevMenu::DevMenu(Device* device, Channel* channel, QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::DevMenu>())
    , device_(device)
    , channel_(channel)
{
    ui_->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    setFocusPolicy(Qt::ClickFocus);
    qApp->installEventFilter(this);
    connectRows();
    connectSenders();
    showRows();
    showMarks();
    adjustSize();
}

DevMenu::~DevMenu() = default;

bool DevMenu::eventFilter(QObject* watched, QEvent* event)
{
    const auto* pressed = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::MouseButtonPress && pressed != nullptr && isVisible()
        && pressed != this && !isAncestorOf(pressed))
        emit ViewControl::instance()->closeMenuMsg();
    return QWidget::eventFilter(watched, event);
}

void DevMenu::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        emit ViewControl::instance()->closeMenuMsg();
    else if (event->key() == Qt::Key_Down)
        stepFocus(1);
    else if (event->key() == Qt::Key_Up)
        stepFocus(-1);
    else
        QWidget::keyPressEvent(event);
}

// On a rule or a disabled row it must not go on to what is around the menu, which would close it.
void DevMenu::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void DevMenu::stepFocus(int direction)
{
    QList<DevMenuItem*> rows;
    for (int i = 0; i < ui_->layout->count(); ++i) {
        auto* row = qobject_cast<DevMenuItem*>(ui_->layout->itemAt(i)->widget());
        if (row != nullptr && row->isVisible() && row->isEnabled())
            rows.append(row);
    }
    const int now = rows.indexOf(qobject_cast<DevMenuItem*>(focusWidget()));
    const int next = now < 0 && direction < 0 ? rows.size() - 1 : now + direction;
    if (!rows.isEmpty())
        rows.at((next + rows.size()) % rows.size())->setFocus();
}

void DevMenu::connectRow(DevMenuItem* row, Action action)
{
    connect(row, &DevMenuItem::clicked, this, [this, action] {
        (this->*action)();
        emit ViewControl::instance()->closeMenuMsg();
    });
}

void DevMenu::connectRows()
{
    connectRow(ui_->widget_allplay, &DevMenu::allPlay);
    connectRow(ui_->widget_allstop, &DevMenu::allStop);
    connectRow(ui_->widget_play, &DevMenu::play);
    connectRow(ui_->widget_stop, &DevMenu::stop);
    connectRow(ui_->widget_sd, &DevMenu::changeSD);
    connectRow(ui_->widget_hd, &DevMenu::changeHD);
    connectRow(ui_->widget_Synchronize, &DevMenu::synchronizeTimeline);
    connectRow(ui_->widget_resetConnect, &DevMenu::restart);
    connectRow(ui_->widget_recordFolder, &DevMenu::openRecordFolder);
    connectRow(ui_->widget_screenshotFolder, &DevMenu::openScreenshotFolder);
    connectRow(ui_->widget_delDevice, &DevMenu::openDelDeviceAlert);
}

void DevMenu::connectSenders()
{
    const IoConnect* io = IoConnect::instance();
    connect(io, &IoConnect::videoRequestSuccessMsg, this, &DevMenu::videoRequestSuccess);
    connect(io, &IoConnect::changeQualitySuccessMsg, this, &DevMenu::changeQualitySuccess);
    connect(io, &IoConnect::audioControlSuccessMsg, this, &DevMenu::audioControlSuccess);
    connect(Dev::instance(), &Dev::deleteDevMsg, this, &DevMenu::forgetDevice);
}

void DevMenu::showRows()
{
    const bool isLive = ViewControl::instance()->getIsLive();
    const bool onChannel = channel_ != nullptr;
    ui_->widget_allplay->setVisible(!onChannel);
    ui_->widget_allstop->setVisible(!onChannel);
    ui_->widget_play->setVisible(onChannel);
    ui_->widget_stop->setVisible(onChannel);
    ui_->widget_Synchronize->setVisible(!isLive);
    ui_->rule_Synchronize->setVisible(!isLive);
    for (QWidget* row : {ui_->widget_hd, ui_->widget_sd, ui_->widget_sound, ui_->widget_soundstop,
             ui_->widget_speech})
        row->setVisible(onChannel && isLive);
    ui_->rule_quality->setVisible(onChannel && isLive);
    ui_->rule_sound->setVisible(onChannel && isLive);
    ui_->widget_delDevice->setVisible(!onChannel);
    ui_->rule_delDevice->setVisible(!onChannel);
}

void DevMenu::showMarks()
{
    if (channel_ == nullptr)
        return;
    const bool isLive = ViewControl::instance()->getIsLive();
    const ChannelMode& mode = channel_->mode(isLive);
    ui_->widget_play->setMarked(mode.open);
    ui_->widget_stop->setMarked(!mode.open);
    ui_->widget_hd->setMarked(mode.highQuality);
    ui_->widget_sd->setMarked(!mode.highQuality);
    // The quality of a stopped channel is not to be had: changing it starts the stream.
    ui_->widget_hd->setEnabled(mode.open);
    ui_->widget_sd->setEnabled(mode.open);
    ui_->widget_sound->setMarked(mode.audioOn);
    ui_->widget_soundstop->setMarked(!mode.audioOn);
    ui_->widget_speech->setMarked(channel_->speaking);
}

void DevMenu::videoRequestSuccess(Channel* channel)
{
    if (channel == channel_)
        showMarks();
}

void DevMenu::changeQualitySuccess(Channel* channel)
{
    if (channel == channel_)
        showMarks();
}

void DevMenu::audioControlSuccess(Channel* channel)
{
    if (channel == channel_)
        showMarks();
}

void DevMenu::play()
{
    ViewControl* wall = ViewControl::instance();
    if (wall->getIsLive())
        wall->connectChannel(channel_, false, true);
    else
        wall->openReplayChannel(channel_);
}

void DevMenu::stop()
{
    ViewControl::instance()->closeChannel(channel_);
}

void DevMenu::allPlay()
{
    ViewControl* wall = ViewControl::instance();
    if (!wall->getIsLive()) {
        wall->playAllReplay(device_);
        return;
    }
    for (int i = 0; device_ != nullptr && i < device_->channelCount(); ++i)
        wall->connectChannel(device_->channel(i), false, true);
}

void DevMenu::allStop()
{
    for (int i = 0; device_ != nullptr && i < device_->channelCount(); ++i) {
        if (device_->channel(i)->mode(true).avIndex >= 0)
            ViewControl::instance()->closeChannel(device_->channel(i));
    }
}

void DevMenu::changeSD()
{
    if (channel_ != nullptr)
        IoConnect::instance()->setQuality(channel_, false);
}

void DevMenu::changeHD()
{
    if (channel_ != nullptr)
        IoConnect::instance()->setQuality(channel_, true);
}

void DevMenu::restart()
{
    ViewControl::instance()->deleteDevice(device_);
}

void DevMenu::openRecordFolder()
{
    openFolder(true);
}

void DevMenu::openScreenshotFolder()
{
    openFolder(false);
}

void DevMenu::openFolder(bool isVideo)
{
    if (device_ == nullptr)
        return;
    const QString folder = VideoRecord::instance()->channelFolder(device_, isVideo);
    QDir().mkpath(folder); // an empty one says more than an error
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

void DevMenu::openDelDeviceAlert()
{
    ViewControl::instance()->openDelAlert(device_);
}

void DevMenu::synchronizeTimeline()
{
    ViewControl* wall = ViewControl::instance();
    if (channel_ != nullptr)
        wall->synchronizeChannel(channel_);
    else if (device_ != nullptr)
        wall->synchronizeDevice(device_);
}

void DevMenu::forgetDevice(const Device* device)
{
    if (device != device_)
        return;
    device_ = nullptr;
    channel_ = nullptr;
    emit ViewControl::instance()->closeMenuMsg();
}

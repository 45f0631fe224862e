// SPDX-License-Identifier: GPL-3.0-or-later
// Menus and alerts of the main window: what opens them, and where they stand.
#include "app/mainwindow.h"

#include "app/alert.h"
#include "app/delalert.h"
#include "app/escalert.h"
#include "app/reopenalert.h"
#include "app/screenshotalert.h"
#include "store/location.h"
#include "ui_mainwindow.h"
#include "wall/devmenu.h"
#include "wall/windownummenu.h"

#include <QApplication>
#include <QMouseEvent>

#include <algorithm>

// It may be the popup whose click is being dealt with, so it goes later. A focus in it goes to the
// wall: Qt would give it to some key, which would light up.
template <class Popup>
void MainWindow::closePopup(QPointer<Popup>& popup)
{
    if (popup == nullptr)
        return;
    const QWidget* focus = QApplication::focusWidget();
    if (focus != nullptr && (focus == popup || popup->isAncestorOf(focus)))
        ui_->widget_videoView->setFocus();
    popup->hide();
    popup->deleteLater();
    popup.clear();
}

void MainWindow::centreOnWall(QWidget* popup) const
{
    const QWidget* room = popup->parentWidget();
    const QPoint corner = ui_->widget_viewBox->mapTo(room, QPoint(0, 0));
    QRect place({}, popup->size());
    place.moveCenter(QRect(corner, ui_->widget_viewBox->size()).center());
    popup->move(place.topLeft());
}

void MainWindow::showPopup(QWidget* popup)
{
    if (popup->hasHeightForWidth()) // its size hint knows nothing of lines that wrap
        popup->resize(popup->width(), popup->heightForWidth(popup->width()));
    placePopups();
    popup->show();
    popup->raise();
}

void MainWindow::placePopups()
{
    for (QWidget* popup : {static_cast<QWidget*>(alert_), static_cast<QWidget*>(delAlert_),
             static_cast<QWidget*>(reopenAlert_), static_cast<QWidget*>(screenShotAlert_),
             static_cast<QWidget*>(escAlert_)}) {
        if (popup != nullptr)
            centreOnWall(popup);
    }
    if (escAlert_ != nullptr)
        moveClear(escAlert_);
}

// The hint stands below whatever has the centre already.
void MainWindow::moveClear(QWidget* hint) const
{
    constexpr int gap = 16;
    for (const QWidget* popup : {static_cast<QWidget*>(alert_), static_cast<QWidget*>(delAlert_),
             static_cast<QWidget*>(reopenAlert_), static_cast<QWidget*>(screenShotAlert_)}) {
        if (popup != nullptr && popup->geometry().intersects(hint->geometry()))
            hint->move(hint->x(), popup->geometry().bottom() + gap);
    }
}

void MainWindow::showWindowNumMenu()
{
    if (windowNumMenu_ != nullptr) {
        closePopup(windowNumMenu_);
        return;
    }
    windowNumMenu_ = new WindowNumMenu(ui_->widget_videoView);
    connect(windowNumMenu_, &WindowNumMenu::clickWindowMod, this, &MainWindow::selectWindowMod);
    windowNumMenu_->show();
    windowNumMenu_->raise();
}

void MainWindow::selectWindowMod(ViewControl::WINDOW_MOD windowMod)
{
    closePopup(windowNumMenu_);
    ViewControl* wall = ViewControl::instance();
    wall->setWindowMod(windowMod, wall->getIsLive());
    ui_->label_windowNum->setOpen(false);
}

void MainWindow::openedSubWindowMenu(Device* dev, Channel* channel, QMouseEvent* event)
{
    closePopup(devMenu_);
    QWidget* room = ui_->widget_center;
    devMenu_ = new DevMenu(dev, channel, room);
    const QPoint mouse = room->mapFromGlobal(event->globalPos());
    const QPoint wanted = isFull_ ? mouse : mouse + QPoint(-2, 3);
    const int x = std::min(wanted.x(), room->width() - devMenu_->width());
    const int y = std::min(wanted.y(), room->height() - devMenu_->height());
    devMenu_->move(std::max(x, 0), std::max(y, 0));
    devMenu_->show();
    devMenu_->raise();
    devMenu_->setFocus();
}

void MainWindow::closedSubWindowMenu(QMouseEvent* event)
{
    if (devMenu_ == nullptr || event->button() != Qt::LeftButton)
        return;
    const QPoint place = devMenu_->mapFromGlobal(event->globalPos());
    if (!devMenu_->rect().contains(place))
        closeMenu();
}

void MainWindow::mousePressEvent(QMouseEvent* event)
{
    closedSubWindowMenu(event);
    QMainWindow::mousePressEvent(event);
}

void MainWindow::closeMenu()
{
    closePopup(devMenu_);
}

void MainWindow::openAlert(Channel* channel, int error, const QString& errorMsg)
{
    closePopup(alert_);
    alert_ = new Alert(ui_->widget_center);
    connect(alert_, &Alert::closeMsg, this, &MainWindow::closeAlert);
    alert_->setFailure(channel, error, errorMsg);
    showPopup(alert_);
}

void MainWindow::openAlert(int error, const QString& errorMsg)
{
    openAlert(nullptr, error, errorMsg);
}

void MainWindow::closeAlert()
{
    closePopup(alert_);
}

void MainWindow::openDelAlert(Device* dev)
{
    closePopup(delAlert_);
    delAlert_ = new DelAlert(dev, ui_->widget_center);
    showPopup(delAlert_);
}

void MainWindow::closeDelAlert()
{
    closePopup(delAlert_);
}

// The first list of devices has come.
void MainWindow::getDevFinish(int)
{
    if (!isOfferMade_)
        openReopenAlert();
    isOfferMade_ = true;
}

void MainWindow::openReopenAlert()
{
    const QString openChannels = Location::instance()->getDeviceChannel();
    if (!ReopenAlert::isOffer(openChannels))
        return;
    closePopup(reopenAlert_);
    reopenAlert_ = new ReopenAlert(openChannels, ui_->widget_center);
    connect(reopenAlert_, &ReopenAlert::closeMsg, this, &MainWindow::closeReopenAlert);
    showPopup(reopenAlert_);
}

void MainWindow::closeReopenAlert()
{
    closePopup(reopenAlert_);
}

void MainWindow::screenshotAlert(Channel* channel, bool isPlaceholder, const QString& path)
{
    if (isPlaceholder || channel == nullptr)
        return;
    closePopup(screenShotAlert_);
    screenShotAlert_ = new ScreenShotAlert(channel, path, ui_->widget_center);
    connect(screenShotAlert_, &ScreenShotAlert::closeMsg, this, &MainWindow::closeScreenShotAlert);
    showPopup(screenShotAlert_);
}

void MainWindow::closeScreenShotAlert()
{
    closePopup(screenShotAlert_);
}

void MainWindow::openEscAlert()
{
    escAlert_ = new EscAlert(ui_->widget_center);
    showPopup(escAlert_);
    escTimer_.start();
}

void MainWindow::hideEscAlert()
{
    closePopup(escAlert_);
}

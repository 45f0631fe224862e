// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/mainwindow.h"

#include "app/activation.h"
#include "app/brand.h"
#include "app/debugrecord.h"
#include "app/dragarea.h"
#include "app/labelsystembtn.h"
#include "app/pictures.h"
#include "app/systeminfo.h"
#include "app/windowlogin.h"
#include "cloud/userservice.h"
#include "ui_mainwindow.h"

#include <QShortcut>
#include <QStyle>

#include <cstdlib>

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , ui_(std::make_unique<Ui::MainWindow>())
{
    ui_->setupUi(this);
    setWindowFlags(Qt::Widget);
    setFocusPolicy(Qt::ClickFocus);
    ui_->label_icon_minimize->setPicture(keyPicture("win_min"));
    ui_->label_icon_fullscreen->setPicture(keyPicture("win_max"));
    ui_->label_icon_fullscreen->setCheckedPicture(keyPicture("win_restore"));
    ui_->label_icon_close->setPicture(keyPicture("win_close"));
    ui_->label_debugRecord_btn->installEventFilter(this);
    ui_->label_debugClose->setPicture(keyPicture("win_close"));
    ui_->widget_debugPanel->hide();

    connect(ui_->widget_header, &DragArea::moveMsg, this, &MainWindow::moveMsg);
    connect(ui_->label_icon_minimize, &LabelSystemBtn::clickMsg, this, &MainWindow::minimize);
    connect(ui_->label_icon_fullscreen, &LabelSystemBtn::toggleMsg, this, &MainWindow::fullscreen);
    connect(ui_->label_icon_close, &LabelSystemBtn::clickMsg, this, &MainWindow::close);
    connect(ui_->label_debugClose, &LabelSystemBtn::clickMsg, this, &MainWindow::toggleDebugRecord);
    auto* escape = new QShortcut(Qt::Key_Escape, ui_->widget_debugPanel);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, &MainWindow::toggleDebugRecord);
    setBrand(0);
}

MainWindow::~MainWindow() = default;

void MainWindow::setBrand(int number)
{
    const Brand& brand = brandOf(number);
    brand_ = number;
    ui_->label_logo->setFixedSize(brand.mainLogoSize);
    ui_->label_logo->setPixmap(QPixmap(QLatin1String(brand.mainLogo)));
    retranslate();
}

void MainWindow::showWindow()
{
    show();
    setFocus(); // not the first key of the header
    placeDebugPanel();
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    placeDebugPanel();
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == ui_->label_debugRecord_btn && isActivation(event))
        toggleDebugRecord();
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::minimize(LabelSystemBtn*)
{
    emit SystemInfo::instance()->minimizeMsg();
}

void MainWindow::fullscreen(LabelSystemBtn*, bool clickFlag)
{
    nameFullscreenKey();
    SystemInfo* system = SystemInfo::instance();
    if (clickFlag)
        emit system->fullScreenMsg();
    else
        emit system->normalScreenMsg();
}

int MainWindow::close(LabelSystemBtn*)
{
    // At once: no destructor of the window runs.
    std::exit(0);
}

void MainWindow::toggleDebugRecord()
{
    if (debugRecord_ == nullptr) {
        debugRecord_ = new DebugRecord(ui_->widget_debugPanel);
        ui_->layout_debugPanel->addWidget(debugRecord_);
    }
    const bool open = !ui_->widget_debugPanel->isVisible();
    ui_->widget_debugPanel->setVisible(open);
    ui_->label_debugRecord_btn->setProperty("on", open);
    ui_->label_debugRecord_btn->style()->polish(ui_->label_debugRecord_btn);
    placeDebugPanel();
    if (open)
        debugRecord_->setFocus();
    else
        setFocus();
}

void MainWindow::retranslate()
{
    ui_->retranslateUi(this);
    nameFullscreenKey();
    const QString title = tr(brandOf(brand_).title);
    setWindowTitle(title);
    if (windowLogin_ != nullptr)
        windowLogin_->setWindowTitle(title);
    ui_->label_version->setText(QLatin1Char('v') + SystemInfo::instance()->version());
    const QString user = UserService::instance()->user().displayName();
    ui_->label_userName->setText(user.isEmpty() ? tr("Unsigned") : user);
}

void MainWindow::nameFullscreenKey()
{
    LabelSystemBtn* key = ui_->label_icon_fullscreen;
    key->setToolTip(key->isChecked() ? tr("Restore") : tr("Maximize"));
    key->setAccessibleName(key->toolTip());
}

void MainWindow::placeDebugPanel()
{
    constexpr QSize wanted(800, 584);
    constexpr int margin = 16;
    const QSize room = ui_->widget_stage->size() - QSize(2 * margin, 2 * margin);
    QRect place({}, wanted.boundedTo(room));
    place.moveCenter(ui_->widget_stage->rect().center());
    ui_->widget_debugPanel->setGeometry(place);
    ui_->widget_debugPanel->raise();
}

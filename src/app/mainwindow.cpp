// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/mainwindow.h"

#include "app/activation.h"
#include "app/brand.h"
#include "app/debugrecord.h"
#include "app/dragarea.h"
#include "app/escalert.h"
#include "app/labelsystembtn.h"
#include "app/pictures.h"
#include "app/systeminfo.h"
#include "app/windowlogin.h"
#include "cloud/dev.h"
#include "cloud/userservice.h"
#include "link/ioconnect.h"
#include "media/decode.h"
#include "model/device.h"
#include "ui_mainwindow.h"
#include "wall/menudevlist.h"
#include "wall/pagebtn.h"
#include "wall/windownummenu.h"

#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <cstdlib>

using namespace std::chrono_literals;

namespace {

QString speedText(int speed)
{
    static constexpr const char* texts[] = {
        "1/32", "1/16", "1/8", "1/4", "1/2", "x1", "x2", "x4", "x8", "x16", "x32"};
    constexpr int count = sizeof(texts) / sizeof(texts[0]);
    return speed >= 0 && speed < count ? QString::fromLatin1(texts[speed]) : QString();
}

} // namespace

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
    ui_->widget_viewBox->installEventFilter(this);
    ui_->label_devName->installEventFilter(this);
    ui_->widget_center->installEventFilter(this);
    ui_->label_debugClose->setPicture(keyPicture("win_close"));
    ui_->widget_debugPanel->hide();

    auto* escape = new QShortcut(Qt::Key_Escape, ui_->widget_debugPanel);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, &MainWindow::toggleDebugRecord);
    connect(escape, &QShortcut::activatedAmbiguously, this, &MainWindow::toggleDebugRecord);

    buildPanels();
    connectHeader();
    connectWall();
    connectFailures();
    pageBtns_ = {new PageBtn(0, ui_->widget_viewBox), new PageBtn(1, ui_->widget_viewBox)};
    ui_->horizontalSlider_volume->setValue(Decode::instance()->getVolume());
    changeMod(ViewControl::instance()->getIsLive());
    setBrand(0);
}

MainWindow::~MainWindow() = default;

void MainWindow::buildPanels()
{
    menuDevList_ = new MenuDevList;
    ui_->layout_menu_devList->addWidget(menuDevList_);
    panels_ = {
        {ui_->widget_header_devList, ui_->label_deviceMenu_fold, ui_->widget_menu_devList},
        {ui_->widget_header_ptz, ui_->label_deviceManageMenu_fold, ui_->widget_menu_ptz},
        {ui_->widget_header_devOpt, ui_->label_devOpt_fold, ui_->widget_menu_devOpt},
    };
    for (const Panel& panel : panels_) {
        panel.fold->setPictures(keyPicture("panel_fold"), keyPicture("panel_unfold"));
        panel.body->hide();
        panel.header->installEventFilter(this);
        connect(panel.fold, &LabelFoldBtn::clicked, this, &MainWindow::clickFold);
    }
    clickFold(panels_.front().fold, true);
}

void MainWindow::connectHeader()
{
    connect(ui_->widget_header, &DragArea::moveMsg, this, &MainWindow::moveMsg);
    connect(ui_->label_icon_minimize, &LabelSystemBtn::clickMsg, this, &MainWindow::minimize);
    connect(ui_->label_icon_fullscreen, &LabelSystemBtn::toggleMsg, this, &MainWindow::fullscreen);
    connect(ui_->label_icon_close, &LabelSystemBtn::clickMsg, this, &MainWindow::close);
    connect(ui_->label_debugClose, &LabelSystemBtn::clickMsg, this, &MainWindow::toggleDebugRecord);
    for (const WidgetBtnLive* key : {ui_->widget_btn_life, ui_->widget_btn_playback})
        connect(
            key, &WidgetBtnLive::clicked, this, qOverload<WidgetBtnLive*>(&MainWindow::changeMod));
}

void MainWindow::connectWall()
{
    using Window = MainWindow;
    const ViewControl* wall = ViewControl::instance();
    const Dev* dev = Dev::instance();
    connect(wall, &ViewControl::closeMenuMsg, this, &Window::closeMenu);
    connect(wall, &ViewControl::openedSubWindowMenuMsg, this, &Window::openedSubWindowMenu);
    connect(wall, &ViewControl::windowNumberChangeMsg, this, &Window::riseWidget);
    connect(wall, &ViewControl::openDelAlertMsg, this, &Window::openDelAlert);
    connect(wall, &ViewControl::closeDelAlertMsg, this, &Window::closeDelAlert);
    connect(wall, &ViewControl::changeModMsg, this, qOverload<bool>(&Window::changeMod));
    connect(wall, &ViewControl::createPageMsg, this, &Window::loadPage);
    connect(wall, &ViewControl::speedChangeMsg, this, &Window::speedChange);
    connect(wall, &ViewControl::speedBackChangeMsg, this, &Window::speedBackChange);
    connect(dev, &Dev::getDevFinishMsg, this, &Window::getDevFinish);
    connect(dev, &Dev::selectDevMsg, this, &Window::selectedDev);
    connect(Decode::instance(), &Decode::screenshotMsg, this, &Window::screenshotAlert);
    connect(ui_->widget_videoView, &WidgetBtn::clicked, this, &Window::closedSubWindowMenu);
    connect(ui_->widget_videoView, &WidgetBtn::pressEscMsg, this, &Window::pressEsc);
    connect(ui_->label_windowNum, &LabelWindowNumBtn::clickWindowMenu, this,
        &Window::showWindowNumMenu);
    connect(ui_->label_icon_fullGl, &LabelFullScreen::clickMsg, this, &Window::fullGL);
    connect(ui_->horizontalSlider_volume, &QSlider::valueChanged, this, &Window::valueChanged);
    escTimer_.setSingleShot(true);
    escTimer_.setInterval(5s);
    connect(&escTimer_, &QTimer::timeout, this, &Window::hideEscAlert);
}

void MainWindow::connectFailures()
{
    using Io = IoConnect;
    const auto alert = qOverload<Channel*, int, const QString&>(&MainWindow::openAlert);
    for (const auto failure : {&Io::connectDevFailMsg, &Io::connectChannelFailMsg,
             &Io::videoRequestFailMsg, &Io::videoRequestStopFailMsg,
             &Io::requestReplayVideoTimeFailMsg, &Io::receiveVideoTimeEmptyMsg,
             &Io::startReplayControlFailMsg, &Io::startReplayFailMsg, &Io::stopReplayFailMsg,
             &Io::pauseReplayFailMsg, &Io::changeReplayTimeFailMsg, &Io::getQualityFailMsg,
             &Io::setQualityFailMsg, &Io::audioControlFailMsg, &Io::audioSendControlFailMsg,
             &Io::ptzFailMsg, &Io::setTimeZoneFailMsg, &Io::setTimeFailMsg, &Io::setWifiFailMsg,
             &Io::getWifiListFailMsg, &Io::getWifiConfigFailMsg, &Io::setPasswordFailMsg,
             &Io::getSmartSensitivityFailMsg, &Io::setSmartSensitivityFailMsg,
             &Io::getSmartModeFailMsg, &Io::setSmartModeFailMsg, &Io::getRotateModeFailMsg,
             &Io::setRotateModeFailMsg, &Io::getRecordModeFailMsg, &Io::sendRecordModeFailMsg})
        connect(IoConnect::instance(), failure, this, alert);
    const auto plain = qOverload<int, const QString&>(&MainWindow::openAlert);
    connect(IoConnect::instance(), &Io::startLANSearchFailMsg, this, plain);
    connect(IoConnect::instance(), &Io::tutkInitFailMsg, this, plain);
    connect(ViewControl::instance(), &ViewControl::glErrorMsg, this, plain);
}

void MainWindow::setWindowLogin(WindowLogin* window)
{
    windowLogin_ = window;
    window->installEventFilter(this);
}

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
    layOut();
    ViewControl::instance()->createWindows(ui_->widget_viewBox);
    riseWidget();
    menuDevList_->loadDevList();
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    layOut();
}

void MainWindow::layOut()
{
    ui_->layout_main->activate();
    placePopups();
    placeDebugPanel();
}

// At most one panel is open; it gets what the headers leave.
void MainWindow::sizePanels()
{
    int room = ui_->widget_center->height();
    for (const Panel& panel : panels_)
        room -= panel.header->maximumHeight();
    for (const Panel& panel : panels_)
        panel.body->setFixedHeight(std::max(room, 0));
}

void MainWindow::clickFold(LabelFoldBtn* foldBtn, bool foldFlag)
{
    for (const Panel& panel : panels_) {
        const bool isOpen = foldFlag && panel.fold == foldBtn;
        panel.fold->setUnfolded(isOpen);
        panel.body->setVisible(isOpen);
        panel.header->setProperty("open", isOpen);
        panel.header->style()->polish(panel.header);
    }
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == ui_->label_debugRecord_btn && isActivation(event)) {
        toggleDebugRecord();
        return true; // or a drag of the window would begin
    }
    if (event->type() == QEvent::MouseButtonPress && isActivation(event)) {
        for (const Panel& panel : panels_) {
            if (watched == panel.header && panel.header->isEnabled())
                panel.fold->toggle(); // the whole header is the key
        }
    }
    if (watched == ui_->widget_center && event->type() == QEvent::Resize)
        sizePanels();
    if (watched == ui_->label_devName && event->type() == QEvent::Resize)
        selectedDev(Dev::instance()->selectedDevice()); // as much of its name as there is room for
    if ((watched == windowLogin_ || watched == ui_->widget_center)
        && event->type() == QEvent::Close)
        close(nullptr); // by the window manager, in full screen too
    if (watched == ui_->widget_viewBox && event->type() == QEvent::Resize) {
        const QSize wall = ui_->widget_viewBox->size();
        ViewControl::instance()->layoutWindows(wall.width(), wall.height());
        placePopups();
    }
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
    ViewControl::instance()->closeAll();
    emit ViewControl::instance()->quitMsg();
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

void MainWindow::changeMod(WidgetBtnLive* modBtn)
{
    ViewControl::instance()->changeMod(modBtn == ui_->widget_btn_life);
}

void MainWindow::changeMod(bool isLive)
{
    ui_->widget_progressBar->setVisible(!isLive && !isFull_);
    for (QWidget* part :
        {static_cast<QWidget*>(ui_->label_dateBtn), static_cast<QWidget*>(ui_->label_icon_pause),
            ui_->widget_icon_fbBox, ui_->widget_icon_ffBox})
        part->setVisible(!isLive);
    ui_->widget_btn_life->setSelected(isLive);
    ui_->widget_btn_playback->setSelected(!isLive);
    layOut();
}

void MainWindow::selectedDev(Device* dev)
{
    QLabel* label = ui_->label_devName;
    const QString name = dev == nullptr ? tr("[Unselected]") : dev->shownName();
    label->ensurePolished();
    label->setText(label->fontMetrics().elidedText(name, Qt::ElideRight, label->width()));
}

void MainWindow::speedChange(PLAY_SPEED speed)
{
    ui_->label_ffSpeed->setText(speedText(speed));
}

void MainWindow::speedBackChange(PLAY_SPEED speed)
{
    ui_->label_fbSpeed->setText(speedText(speed));
}

void MainWindow::loadPage(int page, int total)
{
    ui_->label_page->setText(QString::number(page + 1));
    ui_->label_total->setText(QString::number(total));
}

void MainWindow::valueChanged(int value)
{
    Decode::instance()->setVolume(value);
}

void MainWindow::riseWidget()
{
    for (PageBtn* key : pageBtns_)
        key->raise();
}

// The tiles are made anew: an OpenGL context does not live through the change of its window.
void MainWindow::fullGL(bool isFull)
{
    ViewControl* wall = ViewControl::instance();
    wall->deleteWindows();
    isFull_ = isFull;
    const bool isLive = wall->getIsLive();
    for (QWidget* part : {static_cast<QWidget*>(ui_->widget_header), ui_->widget_nameBar,
             ui_->widget_controlBar, ui_->widget_menuBox})
        part->setVisible(!isFull);
    ui_->widget_progressBar->setVisible(!isFull && !isLive);
    delete escAlert_;
    if (isFull) {
        const QRect screen = window()->windowHandle()->screen()->geometry();
        ui_->widget_center->setWindowFlags(Qt::Window);
        ui_->widget_center->move(screen.topLeft()); // the screen that shows the window now
        ui_->widget_center->showFullScreen();
        openEscAlert();
    } else {
        ui_->widget_center->setWindowFlags(Qt::SubWindow);
        ui_->widget_center->showNormal();
    }
    wall->recreateWindows();
    layOut();
    if (windowNumMenu_ != nullptr)
        windowNumMenu_->raise();
    riseWidget();
    ui_->widget_videoView
        ->setFocus(); // what is hidden gave it to the next key; Escape is wanted here
    wall->setFull(isFull);
}

void MainWindow::pressEsc()
{
    if (!isFull_)
        return;
    ui_->label_icon_fullGl->setFull(false);
    fullGL(false);
}

void MainWindow::retranslate()
{
    ui_->retranslateUi(this);
    selectedDev(Dev::instance()->selectedDevice());
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/menudevlist.h"

#include "app/pictures.h"
#include "cloud/dev.h"
#include "cloud/userservice.h"
#include "model/device.h"
#include "ui_menudevlist.h"
#include "wall/menulistdev.h"
#include "wall/viewcontrol.h"
#include "wall/waitingcircle.h"

#include <QScrollBar>

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr int pageSize = 20; // devices
constexpr int retryLimit = 10;
constexpr auto retryInterval = 1s;

bool isLocal()
{
    return UserService::instance()->user().localMode;
}

} // namespace

MenuDevList::MenuDevList(QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::MenuDevList>())
{
    ui_->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    ui_->pushButton_refresh->setIcon(QIcon(keyPicture("refresh.png")));
    ui_->lineEdit_search->addAction(QIcon(keyPicture("search.png")), QLineEdit::LeadingPosition);
    retryTimer_.setSingleShot(true);
    retryTimer_.setInterval(retryInterval);
    connect(&retryTimer_, &QTimer::timeout, this, &MenuDevList::reloadDevList);
    const Dev* dev = Dev::instance();
    connect(dev, &Dev::reloadDevMsg, this, &MenuDevList::reloadDev);
    connect(dev, &Dev::loadDevMsg, this, &MenuDevList::loadDevList);
    connect(dev, &Dev::getDevFinishMsg, this, &MenuDevList::getDevResponsed);
    connect(dev, &Dev::responseErrorMsg, this, &MenuDevList::getDevResponseError);
    connect(ui_->lineEdit_search, &QLineEdit::textChanged, this, &MenuDevList::searchDev);
    connect(ui_->pushButton_refresh, &QPushButton::clicked, this, &MenuDevList::refresh);
    connect(ui_->scrollArea->verticalScrollBar(), &QScrollBar::valueChanged, this,
        &MenuDevList::sliderChanged);
    showHints();
}

MenuDevList::~MenuDevList() = default;

void MenuDevList::loadDevList()
{
    if (isLocal()) {
        loadLocalList();
        return;
    }
    requestPage(page_ + 1);
}

void MenuDevList::requestPage(int page)
{
    retryTimer_.stop(); // it would ask for this page a second time
    page_ = page;
    showWaiting();
    Dev::instance()->getDev(UserService::instance()->user().access_token, page, pageSize);
}

void MenuDevList::showWaiting()
{
    delete waitingCircle_;
    waitingCircle_ = new WaitingCircle(ui_->scrollArea);
    waitingCircle_->centre();
    waitingCircle_->show();
}

void MenuDevList::loadLocalList()
{
    delete waitingCircle_;
    waitingCircle_ = nullptr;
    isEnd_ = true;
    isLoaded_ = true; // also where there is no device
    Dev::instance()->loadLocalDevices();
    rebuild();
}

void MenuDevList::getDevResponsed(int size)
{
    if (isLocal())
        return;
    delete waitingCircle_;
    waitingCircle_ = nullptr;
    retryTimer_.stop();
    retryCount_ = 0;
    isLoaded_ = true;
    isEnd_ = size < pageSize;
    rebuild();
}

void MenuDevList::getDevResponseError(const QString& type, const QString&, int, const QString&)
{
    if (type == QLatin1String("getDev"))
        retryTimer_.start();
}

void MenuDevList::reloadDevList()
{
    if (retryCount_ < retryLimit) {
        ++retryCount_;
        requestPage(page_);
        return;
    }
    retryCount_ = 0;
    delete waitingCircle_; // nothing is awaited any more
    waitingCircle_ = nullptr;
}

void MenuDevList::reloadDev(Device* dev)
{
    if (isLocal())
        loadLocalList();
    else if (dev == nullptr)
        requestPage(1);
    else
        rebuild();
}

// The streams end with it.
void MenuDevList::refresh()
{
    if (isLocal())
        return;
    const QList<Device*> devices = Dev::instance()->devices();
    for (Device* device : devices)
        ViewControl::instance()->closeDevice(device);
    Dev::instance()->clear();
    retryCount_ = 0;
    requestPage(1);
}

// While a page is awaited another request would end that one, and its page would be passed over.
bool MenuDevList::mayLoadMore() const
{
    return !isEnd_ && waitingCircle_ == nullptr;
}

void MenuDevList::sliderChanged(int val)
{
    if (val == ui_->scrollArea->verticalScrollBar()->maximum() && mayLoadMore())
        loadDevList();
}

// A list that does not fill its view cannot be scrolled to its end.
void MenuDevList::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (waitingCircle_ != nullptr)
        waitingCircle_->centre();
    if (isLoaded_ && mayLoadMore()
        && ui_->widget_blocks->height() < ui_->scrollArea->viewport()->height())
        loadDevList();
}

void MenuDevList::searchDev(const QString& text)
{
    Dev::instance()->setFilter(text);
    // A list that shrinks under its view would end up at its end, which asks for the next page.
    ui_->scrollArea->verticalScrollBar()->setValue(0);
    rebuild();
}

void MenuDevList::rebuild()
{
    deleteBlocks();
    const QList<Device*> devices = Dev::instance()->filteredDevices();
    for (Device* device : devices)
        addBlock(device);
    showHints();
    resizeDevList();
}

void MenuDevList::deleteBlocks()
{
    qDeleteAll(blocks_);
    blocks_.clear();
}

void MenuDevList::addBlock(Device* device)
{
    auto* block = new MenuListDev(ui_->widget_blocks);
    connect(block, &MenuListDev::folded, this, &MenuDevList::resizeDevList);
    connect(block, &MenuListDev::folded, this, [this, block] { noteFold(block); });
    ui_->layout_blocks->addWidget(block);
    block->setDevice(device);
    block->setUnfolded(unfolded_.contains(device->uid()));
    block->show();
    blocks_.push_back(block);
}

void MenuDevList::noteFold(const MenuListDev* block)
{
    if (block->device() == nullptr)
        return;
    const QString uid = block->device()->uid();
    if (block->isUnfolded())
        unfolded_.insert(uid);
    else
        unfolded_.remove(uid);
}

void MenuDevList::resizeDevList()
{
    int height = 0;
    for (const MenuListDev* block : blocks_)
        height += block->wantedHeight();
    ui_->widget_blocks->setFixedHeight(height);
    if (waitingCircle_ != nullptr)
        waitingCircle_->centre();
}

void MenuDevList::showHints()
{
    const bool isFound = !blocks_.empty();
    const bool isSearch = !ui_->lineEdit_search->text().isEmpty();
    ui_->label_loadMore->setVisible(isLoaded_ && !isEnd_);
    showRefresh();
    ui_->label_empty->setVisible(isLoaded_ && !isFound);
    ui_->label_empty->setText(isSearch
            ? tr("No device matches the search")
            : tr("No devices yet. The user's guide tells how to add the first one."));
}

void MenuDevList::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        showHints();
    }
    QWidget::changeEvent(event);
}

// There is nothing that a refresh of the local list could bring.
void MenuDevList::showRefresh()
{
    ui_->pushButton_refresh->setEnabled(!isLocal());
    ui_->pushButton_refresh->setToolTip(
        isLocal() ? tr("The local list is always up to date") : QString());
}

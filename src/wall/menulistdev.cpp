// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/menulistdev.h"

#include "app/hint.h"
#include "app/pictures.h"
#include "app/systeminfo.h"
#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "media/decode.h"
#include "model/device.h"
#include "ui_menulistdev.h"
#include "wall/channelwindow.h"
#include "wall/viewcontrol.h"

#include <QMouseEvent>
#include <QStyle>

namespace {

constexpr int titleHeight = 24; // pixels at scale 1
constexpr int cardHeight = 120;

constexpr char idleColor[] = "color: #4e525a;font-size:11px;";
constexpr char failColor[] = "color: #FF0000;font-size:11px;";
constexpr char runColor[] = "color: #008000;font-size:11px;";

// For the row alone: the dot in it keeps its colour, and the tooltip its own.
QString titleStyle(const char* style)
{
    return QStringLiteral("MenuDevTitle{%1}").arg(QLatin1String(style));
}

QString shortened(const QString& name)
{
    constexpr int most = 12;
    constexpr int kept = 11;
    return name.size() > most ? name.left(kept) + QStringLiteral("...") : name;
}

// Not wider than a screen.
QString hintOf(const QString& name)
{
    constexpr int most = 100;
    return plainHint(name.size() > most ? name.left(most) + QStringLiteral("...") : name);
}

} // namespace

MenuListDev::MenuListDev(QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::MenuListDev>())
{
    ui_->setupUi(this);
    ui_->label_fold->setPictures(keyPicture("fold"), keyPicture("unfold"));
    ui_->widget_cards->hide();
    connect(ui_->label_fold, &LabelFoldBtn::clicked, this, &MenuListDev::clickedFold);
    connect(ui_->widget_title, &MenuDevTitle::clicked, this, &MenuListDev::clickedDev);
    connect(ui_->widget_title, &MenuDevTitle::doubleClick, this, &MenuListDev::doubleClickedDev);
    connect(ui_->widget_title, &MenuDevTitle::rightClicked, this, &MenuListDev::rightClickedDev);
    connectSenders();
}

MenuListDev::~MenuListDev() = default;

void MenuListDev::connectSenders()
{
    using Block = MenuListDev;
    const IoConnect* io = IoConnect::instance();
    const Dev* dev = Dev::instance();
    connect(io, &IoConnect::connectDevSuccessMsg, this, &Block::connectDevSuccess);
    connect(io, &IoConnect::connectDevFailMsg, this, &Block::connectDevFail);
    connect(io, &IoConnect::videoRequestSuccessMsg, this, &Block::connectChannelSuccess);
    connect(io, &IoConnect::startReplaySuccessMsg, this, &Block::connectChannelSuccess);
    connect(io, &IoConnect::connectChannelFailMsg, this, &Block::connectChannelFail);
    connect(io, &IoConnect::videoRequestStopSuccessMsg, this, &Block::videoRequestStopSuccess);
    connect(io, &IoConnect::stopReplaySuccessMsg, this, &Block::videoRequestStopSuccess);
    connect(io, &IoConnect::videoRequestStopSuccessMsg, this, &Block::showDevClosed);
    connect(io, &IoConnect::stopReplaySuccessMsg, this, &Block::showDevClosed);
    const Decode* decode = Decode::instance();
    connect(decode, &Decode::streamSilentMsg, this, &Block::connectDevFail);
    connect(decode, &Decode::streamBackMsg, this, &Block::connectChannelSuccess);
    connect(dev, &Dev::selectDevMsg, this, &Block::selectDev);
    connect(dev, &Dev::selectChannelMsg, this, &Block::selectChannel);
    connect(dev, &Dev::deleteDevMsg, this, &Block::forgetDevice);
    connect(ViewControl::instance(), &ViewControl::changeModMsg, this, &Block::changeMod);
}

void MenuListDev::setDevice(Device* device)
{
    device_ = device;
    channel_ = device->channelCount() < 2 ? device->channel(0) : nullptr;
    showTitle();
    showPlaying();
    selectDev(Dev::instance()->selectedDevice());
}

void MenuListDev::showTitle()
{
    const QString name = device_->shownName();
    ui_->label_name->setText(shortened(name));
    ui_->widget_title->setToolTip(hintOf(name));
    ui_->widget_title->setAccessibleName(name);
    const char* icon = Dev::isCamera(*device_) ? "c512.png" : "DVR.png";
    ui_->label_icon->setPixmap(QPixmap(keyPicture(icon)));
}

void MenuListDev::makeCards()
{
    for (int i = 0; i < device_->channelCount(); ++i) {
        auto* card = new ChannelWindow(ui_->widget_cards);
        ui_->layout_cards->addWidget(card);
        card->setChannel(device_, device_->channel(i));
    }
}

int MenuListDev::wantedHeight() const
{
    const double ratio = SystemInfo::instance()->getRatio();
    const int cards = isUnfolded_ && device_ != nullptr ? device_->channelCount() : 0;
    return int(titleHeight * ratio) + cards * cardHeight;
}

void MenuListDev::setUnfolded(bool unfolded)
{
    isUnfolded_ = unfolded;
    if (unfolded && device_ != nullptr && ui_->layout_cards->isEmpty())
        makeCards();
    ui_->label_fold->setUnfolded(unfolded);
    ui_->widget_cards->setVisible(unfolded);
}

void MenuListDev::clickedFold(LabelFoldBtn*, bool status)
{
    setUnfolded(status);
    emit folded();
}

void MenuListDev::clickedDev(MenuDevTitle*)
{
    if (device_ == nullptr)
        return;
    Dev::instance()->selectDevice(device_);
    Dev::instance()->selectChannel(channel_);
}

void MenuListDev::doubleClickedDev(MenuDevTitle*)
{
    ViewControl* wall = ViewControl::instance();
    if (channel_ != nullptr && wall->getIsLive())
        wall->connectChannel(channel_, false, true);
    else if (device_ != nullptr && channel_ == nullptr)
        ui_->label_fold->toggle();
}

void MenuListDev::rightClickedDev(MenuDevTitle*, QMouseEvent* event)
{
    if (device_ != nullptr)
        emit ViewControl::instance()->openedSubWindowMenuMsg(device_, channel_, event);
}

bool MenuListDev::isOurs(const Channel* channel) const
{
    return device_ != nullptr && channel != nullptr && channel->device() == device_;
}

bool MenuListDev::isAnyPlaying() const
{
    const bool isLive = ViewControl::instance()->getIsLive();
    for (int i = 0; i < device_->channelCount(); ++i) {
        if (device_->channel(i)->mode(isLive).playing)
            return true;
    }
    return false;
}

void MenuListDev::connectDevSuccess(Channel* iChannel)
{
    if (isOurs(iChannel) && channel_ == nullptr)
        showState(State::Run);
}

void MenuListDev::connectChannelSuccess(Channel* iChannel)
{
    if (!isOurs(iChannel))
        return;
    if (channel_ == nullptr)
        showState(State::Run);
    else
        showPlaying();
}

void MenuListDev::connectDevFail(Channel* iChannel)
{
    if (isOurs(iChannel))
        showState(State::Fail);
}

void MenuListDev::connectChannelFail(Channel* iChannel)
{
    if (isOurs(iChannel) && channel_ != nullptr)
        showState(State::Fail);
}

void MenuListDev::videoRequestStopSuccess(Channel* iChannel)
{
    if (isOurs(iChannel) && channel_ != nullptr)
        showState(State::Idle);
}

// Its last stream has ended, or its session.
void MenuListDev::showDevClosed(Channel* iChannel)
{
    if (isOurs(iChannel) && channel_ == nullptr)
        showPlaying();
}

void MenuListDev::changeMod(bool)
{
    if (device_ != nullptr)
        showPlaying();
}

void MenuListDev::showPlaying()
{
    showState(isAnyPlaying() ? State::Run : State::Idle);
}

void MenuListDev::showState(State state)
{
    struct Look
    {
        const char* name;
        const char* dot;
    };
    static constexpr Look looks[] = {{idleColor, "idle"}, {runColor, "run"}, {failColor, "fail"}};
    const Look& look = looks[static_cast<int>(state)];
    ui_->label_name->setStyleSheet(QLatin1String(look.name));
    ui_->label_dot->setProperty("state", QLatin1String(look.dot));
    ui_->label_dot->style()->polish(ui_->label_dot);
}

void MenuListDev::selectDev(Device* dev)
{
    const bool isSelected = device_ != nullptr && dev == device_;
    ui_->widget_title->setStyleSheet(
        isSelected ? titleStyle("background-color:rgb(200, 220, 255)") : QString());
}

void MenuListDev::selectChannel(Channel* channel)
{
    if (isOurs(channel))
        ui_->widget_title->setStyleSheet(titleStyle("background-color:#eee"));
    else
        selectDev(Dev::instance()->selectedDevice());
}

void MenuListDev::forgetDevice(const Device* device)
{
    if (device != device_)
        return;
    device_ = nullptr;
    channel_ = nullptr;
}

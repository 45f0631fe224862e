// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/windownummenu.h"

#include "app/systeminfo.h"
#include "ui_windownummenu.h"

#include <QPainter>
#include <QStyleOption>

WindowNumMenu::WindowNumMenu(QWidget* parent)
    : QWidget(parent)
    , ui_(std::make_unique<Ui::WindowNumMenu>())
{
    ui_->setupUi(this);
    setAttribute(Qt::WA_TranslucentBackground);
    const auto keys = findChildren<LabelWinBtn*>();
    for (const LabelWinBtn* key : keys)
        connect(key, &LabelWinBtn::clickWindowMod, this, &WindowNumMenu::clickWindowMod);
    const ViewControl* wall = ViewControl::instance();
    connect(wall, &ViewControl::resizeMsg, this, qOverload<>(&WindowNumMenu::resize));
    connect(wall, &ViewControl::changeModMsg, this, &WindowNumMenu::changeMod);
    changeMod(wall->getIsLive());
}

WindowNumMenu::~WindowNumMenu() = default;

// The plate: a translucent widget has no background of its own.
void WindowNumMenu::paintEvent(QPaintEvent*)
{
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

void WindowNumMenu::changeMod(bool isLive)
{
    const auto keys = findChildren<LabelWinBtn*>();
    for (LabelWinBtn* key : keys)
        key->setVisible(isLive);
    for (LabelWinBtn* key : {ui_->label_sc1, ui_->label_sc2, ui_->label_sc32})
        key->setVisible(true);
    resize();
}

void WindowNumMenu::resize()
{
    constexpr int right = 12; // over the key that opens it
    constexpr int bottom = 6;
    const ViewControl* wall = ViewControl::instance();
    const bool isLive = wall->getIsLive();
    const double ratio = SystemInfo::instance()->getRatio();
    const QSize size =
        isLive ? QSize(int(200 * ratio), int(60 * ratio)) : QSize(int(90 * ratio), int(30 * ratio));
    setFixedSize(size);
    const QSize room = parentWidget()->size();
    move(room.width() - size.width() - right, room.height() - size.height() - bottom);

    const auto keys = findChildren<LabelWinBtn*>();
    for (LabelWinBtn* key : keys)
        key->setCurrentMod(wall->getWindowMod(isLive));
}

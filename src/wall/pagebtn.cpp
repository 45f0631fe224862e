// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/pagebtn.h"

#include "app/activation.h"
#include "app/pictures.h"
#include "app/systeminfo.h"
#include "link/ioconnect.h"
#include "wall/viewcontrol.h"

#include <QPainter>

namespace {

constexpr int leftButton = 0;

} // namespace

PageBtn::PageBtn(int direction, QWidget* parent)
    : QWidget(parent)
    , direction_(direction)
{
    constexpr QSize size(30, 94);
    const double ratio = SystemInfo::instance()->getRatio();
    setFixedSize(int(size.width() * ratio), int(size.height() * ratio));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    showHint();
    place();
    parent->installEventFilter(this);
    const ViewControl* wall = ViewControl::instance();
    connect(wall, &ViewControl::createPageMsg, this, qOverload<>(&QWidget::update));
    connect(wall, &ViewControl::changeModMsg, this, qOverload<>(&QWidget::update));
    connect(wall, &ViewControl::resizeMsg, this, qOverload<>(&QWidget::update));
    // A start that fails closes its channel, and may so take a page away.
    const IoConnect* io = IoConnect::instance();
    for (const auto failure : {&IoConnect::connectDevFailMsg, &IoConnect::connectChannelFailMsg,
             &IoConnect::videoRequestFailMsg, &IoConnect::startReplayFailMsg})
        connect(io, failure, this, qOverload<>(&QWidget::update));
}

bool PageBtn::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        place();
    return QWidget::eventFilter(watched, event);
}

void PageBtn::place()
{
    const QSize wall = parentWidget()->size();
    move(direction_ == leftButton ? 0 : wall.width() - width(), (wall.height() - height()) / 2);
}

bool PageBtn::hasPage() const
{
    const ViewControl* wall = ViewControl::instance();
    return direction_ == leftButton ? wall->getPage() > 0
                                    : wall->getPage() + 1 < wall->getPageCount();
}

void PageBtn::turn()
{
    ViewControl::instance()->changePage(
        direction_ == leftButton ? ViewControl::PageDown : ViewControl::PageUp);
}

void PageBtn::paintEvent(QPaintEvent*)
{
    constexpr double faint = 0.55;
    const bool isActive = hasPage();
    const bool isHot = isActive && underMouse();
    QString name = keyPicture(direction_ == leftButton ? "page_left" : "page_right");
    if (isHot)
        name += QStringLiteral("-hover");
    QPainter painter(this);
    painter.setOpacity(isActive ? 1 : faint);
    painter.drawPixmap(rect(), QPixmap(name + QStringLiteral(".png")));
    if (!hasFocus())
        return;
    constexpr QColor focusColour(0x64, 0x95, 0xED);
    constexpr int focusWidth = 2;
    painter.setOpacity(1);
    painter.setPen(QPen(focusColour, focusWidth));
    constexpr int radius = 4;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), radius, radius);
}

void PageBtn::enterEvent(QEvent*)
{
    update();
}

void PageBtn::leaveEvent(QEvent*)
{
    update();
}

// The mouse stops here: what lies below is a tile, which would be selected.
void PageBtn::mousePressEvent(QMouseEvent* event)
{
    if (isActivation(event))
        turn();
}

void PageBtn::mouseReleaseEvent(QMouseEvent*) { }

// Two quick clicks are two pages.
void PageBtn::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        turn();
}

void PageBtn::keyPressEvent(QKeyEvent* event)
{
    if (isActivation(event))
        turn();
    else
        QWidget::keyPressEvent(event);
}

void PageBtn::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        showHint();
    QWidget::changeEvent(event);
}

void PageBtn::showHint()
{
    setToolTip(direction_ == leftButton ? tr("Previous Page") : tr("Next Page"));
    setAccessibleName(toolTip());
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/devmenuitem.h"

#include "app/activation.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

DevMenuItem::DevMenuItem(QWidget* parent)
    : QWidget(parent)
    , mark_(new QLabel(this))
    , text_(new QLabel(this))
{
    setAttribute(Qt::WA_StyledBackground);
    setFocusPolicy(Qt::TabFocus);
    setProperty("role", QStringLiteral("menuItem"));
    mark_->setProperty("role", QStringLiteral("menuMark"));
    mark_->setFixedSize(7, 7);
    QSizePolicy place = mark_->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    mark_->setSizePolicy(place);
    mark_->hide();
    text_->setTextFormat(Qt::PlainText);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 0, 24, 0);
    layout->setSpacing(11); // the text begins at 30
    layout->addWidget(mark_);
    layout->addWidget(text_, 1);
    constexpr int rowHeight = 28;
    setFixedHeight(rowHeight);
}

QString DevMenuItem::text() const
{
    return text_->text();
}

void DevMenuItem::setText(const QString& text)
{
    text_->setText(text);
    setAccessibleName(text);
}

bool DevMenuItem::isMarked() const
{
    return !mark_->isHidden();
}

void DevMenuItem::setMarked(bool marked)
{
    mark_->setVisible(marked);
}

void DevMenuItem::enterEvent(QEvent*)
{
    highlight(isEnabled());
}

void DevMenuItem::leaveEvent(QEvent*)
{
    highlight(false);
}

void DevMenuItem::highlight(bool isOn)
{
    setProperty("hot", isOn);
    style()->polish(this);
}

// The press stays here, or the menu's surroundings would close it; the release acts.
void DevMenuItem::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void DevMenuItem::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        emit clicked(this);
}

void DevMenuItem::keyPressEvent(QKeyEvent* event)
{
    if (isActivation(event))
        emit clicked(this);
    else
        QWidget::keyPressEvent(event);
}

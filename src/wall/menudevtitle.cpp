// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/menudevtitle.h"

#include <QKeyEvent>
#include <QMouseEvent>

MenuDevTitle::MenuDevTitle(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
    setFocusPolicy(Qt::TabFocus);
}

void MenuDevTitle::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit clicked(this);
    else if (event->button() == Qt::RightButton)
        emit rightClicked(this, event);
}

void MenuDevTitle::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit doubleClick(this);
}

void MenuDevTitle::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space)
        emit clicked(this);
    else if (event->key() == Qt::Key_Return)
        emit doubleClick(this);
    else
        QWidget::keyPressEvent(event);
}

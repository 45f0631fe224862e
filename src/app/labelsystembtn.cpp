// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/labelsystembtn.h"

#include "app/activation.h"

LabelSystemBtn::LabelSystemBtn(QWidget* parent)
    : QLabel(parent)
{
    setFocusPolicy(Qt::TabFocus);
}

void LabelSystemBtn::setPicture(const QString& name)
{
    picture_ = name;
    showPicture();
}

void LabelSystemBtn::setCheckedPicture(const QString& name)
{
    checkedPicture_ = name;
    showPicture();
}

void LabelSystemBtn::setChecked(bool checked)
{
    checked_ = checked;
    showPicture();
}

void LabelSystemBtn::enterEvent(QEvent*)
{
    showPicture();
}

void LabelSystemBtn::leaveEvent(QEvent*)
{
    showPicture();
}

void LabelSystemBtn::focusInEvent(QFocusEvent*)
{
    showPicture();
}

void LabelSystemBtn::focusOutEvent(QFocusEvent*)
{
    showPicture();
}

void LabelSystemBtn::mousePressEvent(QMouseEvent* event)
{
    pressed_ = event->button() == Qt::LeftButton;
}

void LabelSystemBtn::mouseReleaseEvent(QMouseEvent* event)
{
    if (pressed_ && event->button() == Qt::LeftButton && rect().contains(event->pos()))
        activate();
    pressed_ = false;
}

void LabelSystemBtn::keyPressEvent(QKeyEvent* event)
{
    if (isActivation(event))
        activate();
    else
        QLabel::keyPressEvent(event);
}

void LabelSystemBtn::activate()
{
    if (!checkedPicture_.isEmpty())
        setChecked(!checked_);
    emit clickMsg(this);
    emit toggleMsg(this, checked_);
}

void LabelSystemBtn::showPicture()
{
    const QString name = checked_ ? checkedPicture_ : picture_;
    const bool hot = underMouse() || hasFocus();
    setPixmap(QPixmap(name + (hot ? QStringLiteral("-hover.png") : QStringLiteral(".png"))));
}

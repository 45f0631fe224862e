// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/picturekey.h"

#include "app/activation.h"

#include <QStyle>

PictureKey::PictureKey(QWidget* parent)
    : QLabel(parent)
{
    setProperty("role", QStringLiteral("key"));
    setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void PictureKey::setPicture(const QString& name, bool hasPlate)
{
    if (property("plate") != hasPlate) {
        setProperty("plate", hasPlate);
        style()->polish(this);
    }
    setPixmap(QPixmap(name + QStringLiteral(".png")));
}

void PictureKey::showHint()
{
    setToolTip(isEnabled() ? hint() : tr("Not part of this version yet"));
    setAccessibleName(hint());
}

void PictureKey::enterEvent(QEvent*)
{
    hotChanged();
}

void PictureKey::leaveEvent(QEvent*)
{
    hotChanged();
}

void PictureKey::focusInEvent(QFocusEvent* event)
{
    QLabel::focusInEvent(event);
    hotChanged();
}

void PictureKey::focusOutEvent(QFocusEvent* event)
{
    QLabel::focusOutEvent(event);
    hotChanged();
}

void PictureKey::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    isDown_ = true;
    press();
}

void PictureKey::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !isDown_)
        return;
    isDown_ = false;
    release();
    if (rect().contains(event->pos()))
        click();
}

void PictureKey::keyPressEvent(QKeyEvent* event)
{
    if (!isActivation(event)) {
        QLabel::keyPressEvent(event);
        return;
    }
    press();
    release();
    click();
}

void PictureKey::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::EnabledChange)
        showHint();
    QLabel::changeEvent(event);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/labelfullscreen.h"

#include "app/pictures.h"

LabelFullScreen::LabelFullScreen(QWidget* parent)
    : PictureKey(parent)
{
    setFull(false);
}

void LabelFullScreen::setFull(bool isFull)
{
    isFull_ = isFull;
    hotChanged();
    showHint();
}

QString LabelFullScreen::hint() const
{
    return isFull_ ? tr("Exit Full Screen") : tr("Full Screen");
}

void LabelFullScreen::click()
{
    setFull(!isFull_);
    emit clickMsg(isFull_);
}

void LabelFullScreen::hotChanged()
{
    const QString name = keyPicture(isFull_ ? "full_exit" : "full");
    setPicture(underMouse() ? name + QStringLiteral("-hover") : name, underMouse());
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/labelshotbtn.h"

#include "app/pictures.h"
#include "cloud/dev.h"
#include "wall/viewcontrol.h"

LabelShotBtn::LabelShotBtn(QWidget* parent)
    : PictureKey(parent)
{
    setPicture(keyPicture("screenShot"));
    showHint();
}

QString LabelShotBtn::hint() const
{
    return tr("Screenshot");
}

void LabelShotBtn::press()
{
    setPicture(keyPicture("screenShot-hover"), true);
}

void LabelShotBtn::release()
{
    setPicture(keyPicture("screenShot"));
    if (Channel* channel = Dev::instance()->selectedChannel(); channel != nullptr)
        channel->mode(ViewControl::instance()->getIsLive()).screenshot = true;
}

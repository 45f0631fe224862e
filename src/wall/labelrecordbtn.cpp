// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/labelrecordbtn.h"

#include "app/pictures.h"
#include "cloud/dev.h"
#include "wall/viewcontrol.h"

LabelRecordBtn::LabelRecordBtn(QWidget* parent)
    : PictureKey(parent)
{
    const Dev* dev = Dev::instance();
    const ViewControl* wall = ViewControl::instance();
    connect(dev, &Dev::selectChannelMsg, this, &LabelRecordBtn::loadRecordStatus);
    connect(wall, &ViewControl::recordMsg, this, &LabelRecordBtn::recordChange);
    // The other mode has recordings of its own.
    connect(wall, &ViewControl::changeModMsg, this,
        [this] { loadRecordStatus(Dev::instance()->selectedChannel()); });
    loadRecordStatus(dev->selectedChannel());
}

QString LabelRecordBtn::hint() const
{
    return isRecording_ ? tr("Stop Recording") : tr("Record");
}

void LabelRecordBtn::press()
{
    ViewControl* wall = ViewControl::instance();
    if (Channel* channel = Dev::instance()->selectedChannel(); channel != nullptr)
        wall->setRecord(channel, !channel->mode(wall->getIsLive()).record);
}

void LabelRecordBtn::recordChange(Channel* channel, bool isRecord)
{
    if (channel != nullptr && channel == Dev::instance()->selectedChannel())
        showRecording(isRecord);
}

void LabelRecordBtn::loadRecordStatus(Channel* channel)
{
    const bool isLive = ViewControl::instance()->getIsLive();
    showRecording(channel != nullptr && channel->mode(isLive).record);
}

void LabelRecordBtn::showRecording(bool isRecording)
{
    isRecording_ = isRecording;
    setPicture(keyPicture(isRecording ? "screenCap-hover" : "screenCap"), isRecording);
    showHint();
}

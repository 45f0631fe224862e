// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wall/picturekey.h"

class Channel;

// Records the selected channel, and stops. Main thread.
class LabelRecordBtn final : public PictureKey
{
    Q_OBJECT

public:
    explicit LabelRecordBtn(QWidget* parent = nullptr);

public slots:
    void loadRecordStatus(Channel* channel); // it has been selected; null: nothing is
    void recordChange(Channel* channel, bool isRecord);

protected:
    QString hint() const override;
    void press() override;

private:
    void showRecording(bool isRecording);

    bool isRecording_ = false;
};

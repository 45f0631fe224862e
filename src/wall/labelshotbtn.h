// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wall/picturekey.h"

// Asks for a snapshot of the selected channel's next frame. Main thread.
class LabelShotBtn final : public PictureKey
{
    Q_OBJECT

public:
    explicit LabelShotBtn(QWidget* parent = nullptr);

protected:
    QString hint() const override;
    void press() override;
    void release() override;
};

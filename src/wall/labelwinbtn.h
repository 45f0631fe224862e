// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wall/picturekey.h"
#include "wall/viewcontrol.h"

// One layout of the menu, known by its object name: `label_sc1` to `label_sc11` and `label_sc32`. Main
// thread.
class LabelWinBtn final : public PictureKey
{
    Q_OBJECT

public:
    explicit LabelWinBtn(QWidget* parent = nullptr);

    // Shows whether it is the layout of the wall.
    void setCurrentMod(ViewControl::WINDOW_MOD mod);

signals:
    void clickWindowMod(ViewControl::WINDOW_MOD windowMod);

protected:
    QString hint() const override;
    void click() override;
    void hotChanged() override;

private:
    bool isCurrent_ = false;
};

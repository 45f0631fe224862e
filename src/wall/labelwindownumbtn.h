// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wall/picturekey.h"

// Shows the current mode's layout, and opens the menu of layouts. Main thread.
class LabelWindowNumBtn final : public PictureKey
{
    Q_OBJECT

public:
    explicit LabelWindowNumBtn(QWidget* parent = nullptr);

    bool isOpen() const { return isOpen_; }
    void setOpen(bool isOpen); // without a signal

signals:
    void clickWindowMenu();

public slots:
    void windowNumberChange();

protected:
    QString hint() const override;
    void click() override;

private:
    bool isOpen_ = false;
};

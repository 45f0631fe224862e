// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wall/picturekey.h"

// Gives the wall the whole screen, and takes it back. Main thread.
class LabelFullScreen final : public PictureKey
{
    Q_OBJECT

public:
    explicit LabelFullScreen(QWidget* parent = nullptr);

    bool isFull() const { return isFull_; }
    void setFull(bool isFull); // without a signal

signals:
    void clickMsg(bool isFull);

protected:
    QString hint() const override;
    void click() override;
    void hotChanged() override;

private:
    bool isFull_ = false;
};

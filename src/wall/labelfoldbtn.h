// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wall/picturekey.h"

// Folds and unfolds something: a panel of the left column, or the cards of a device. Main thread.
class LabelFoldBtn final : public PictureKey
{
    Q_OBJECT

public:
    explicit LabelFoldBtn(QWidget* parent = nullptr);

    // Names in the resources without ".png"; each has a picture of its own, `name`-hover, for the
    // mouse over it.
    void setPictures(const QString& folded, const QString& unfolded);
    bool isUnfolded() const { return isUnfolded_; }
    void setUnfolded(bool unfolded); // without a signal

signals:
    void clicked(LabelFoldBtn* foldBtn, bool isUnfolded);

public slots:
    void toggle(); // as a click does

protected:
    QString hint() const override;
    void hotChanged() override;

private:
    void click() override { toggle(); }

    QString folded_;
    QString unfolded_;
    bool isUnfolded_ = false;
};

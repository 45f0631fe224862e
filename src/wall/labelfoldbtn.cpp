// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/labelfoldbtn.h"

#include <QVariant>

LabelFoldBtn::LabelFoldBtn(QWidget* parent)
    : PictureKey(parent)
{
    setProperty("role", QStringLiteral("foldKey"));
}

void LabelFoldBtn::setPictures(const QString& folded, const QString& unfolded)
{
    folded_ = folded;
    unfolded_ = unfolded;
    setUnfolded(isUnfolded_);
}

void LabelFoldBtn::setUnfolded(bool unfolded)
{
    isUnfolded_ = unfolded;
    hotChanged();
    showHint();
}

void LabelFoldBtn::toggle()
{
    setUnfolded(!isUnfolded_);
    emit clicked(this, isUnfolded_);
}

QString LabelFoldBtn::hint() const
{
    return isUnfolded_ ? tr("Fold") : tr("Unfold");
}

void LabelFoldBtn::hotChanged()
{
    const QString name = isUnfolded_ ? unfolded_ : folded_;
    setPicture(underMouse() ? name + QStringLiteral("-hover") : name);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/labelwinbtn.h"

#include "app/pictures.h"

#include <QVariant>

#include <algorithm>
#include <array>
#include <optional>

namespace {

// By WINDOW_MOD. The picture of a key has the rest of its name.
constexpr std::array<const char*, windowModCount> names{"label_sc1", "label_sc2", "label_sc3",
    "label_sc32", "label_sc4", "label_sc5", "label_sc6", "label_sc7", "label_sc8", "label_sc9",
    "label_sc10", "label_sc11"};

std::optional<WINDOW_MOD> modOf(const QString& objectName)
{
    const auto at = std::find_if(names.begin(), names.end(),
        [&](const char* name) { return objectName == QLatin1String(name); });
    if (at == names.end())
        return std::nullopt;
    return static_cast<WINDOW_MOD>(at - names.begin());
}

} // namespace

LabelWinBtn::LabelWinBtn(QWidget* parent)
    : PictureKey(parent)
{
    setProperty("role", QStringLiteral("layoutKey"));
}

void LabelWinBtn::setCurrentMod(ViewControl::WINDOW_MOD mod)
{
    isCurrent_ = modOf(objectName()) == mod;
    hotChanged();
    showHint();
}

QString LabelWinBtn::hint() const
{
    const std::optional<WINDOW_MOD> mod = modOf(objectName());
    return mod ? tr("Windows: %1").arg(windowTiles(*mod)) : QString();
}

void LabelWinBtn::click()
{
    if (const std::optional<WINDOW_MOD> mod = modOf(objectName()))
        emit clickWindowMod(*mod);
}

void LabelWinBtn::hotChanged()
{
    const QString picture = objectName().replace(QStringLiteral("label_"), QStringLiteral("pt_"));
    const QString state = isCurrent_ ? QStringLiteral("-on") : QString();
    setPicture(keyPicture("") + picture + state);
    // For this class alone: a sheet without a selector reaches the tooltip.
    if (hasFocus())
        setStyleSheet(QStringLiteral("LabelWinBtn{background:rgba(100,149,237,0.22)}"));
    else if (underMouse())
        setStyleSheet(QStringLiteral("LabelWinBtn{background:rgba(255,255,255,0.2)}"));
    else
        setStyleSheet(QString());
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/labelwindownumbtn.h"

#include "app/pictures.h"
#include "wall/viewcontrol.h"

#include <array>

namespace {

// By WINDOW_MOD.
constexpr std::array<const char*, windowModCount> pictures{
    "sc1", "sc2", "sc3", "sc32", "sc4", "sc5", "sc6", "sc7", "sc8", "sc9", "sc10", "sc11"};

} // namespace

LabelWindowNumBtn::LabelWindowNumBtn(QWidget* parent)
    : PictureKey(parent)
{
    const ViewControl* wall = ViewControl::instance();
    using Btn = LabelWindowNumBtn;
    connect(wall, &ViewControl::windowNumberChangeMsg, this, &Btn::windowNumberChange);
    // Two layouts have the same number of tiles; and the other mode has a layout of its own.
    connect(wall, &ViewControl::resizeMsg, this, &Btn::windowNumberChange);
    connect(wall, &ViewControl::changeModMsg, this, &Btn::windowNumberChange);
    windowNumberChange();
    showHint();
}

void LabelWindowNumBtn::setOpen(bool isOpen)
{
    isOpen_ = isOpen;
    windowNumberChange();
}

QString LabelWindowNumBtn::hint() const
{
    return tr("Layout");
}

void LabelWindowNumBtn::click()
{
    setOpen(!isOpen_);
    emit clickWindowMenu();
}

void LabelWindowNumBtn::windowNumberChange()
{
    const ViewControl* wall = ViewControl::instance();
    const auto mod = static_cast<std::size_t>(wall->getWindowMod(wall->getIsLive()));
    const QString name = keyPicture(pictures.at(mod));
    setPicture(isOpen_ ? name + QStringLiteral("-hover") : name, isOpen_);
}

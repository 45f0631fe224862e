// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QShortcut>

// Has Escape call `slot` of `receiver` as long as `popup` is shown, wherever in its window the focus
// is: a popup that opens by itself takes no focus from what the user types.
template <class Receiver, class Slot>
void onEscape(QWidget* popup, Receiver* receiver, Slot slot)
{
    const auto* escape = new QShortcut(Qt::Key_Escape, popup);
    QObject::connect(escape, &QShortcut::activated, receiver, slot);
    QObject::connect(escape, &QShortcut::activatedAmbiguously, receiver, slot);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>

// Whether `event` activates a label that serves as a button: the press of the left mouse button, or
// of Space or Return while it has the focus. A key held down counts once.
inline bool isActivation(const QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        return static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<const QKeyEvent*>(event);
    return !key->isAutoRepeat() && (key->key() == Qt::Key_Space || key->key() == Qt::Key_Return);
}

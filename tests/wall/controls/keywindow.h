// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTest>
#include <QWidget>

// One key in a window on the screen, with nothing around it that takes its mouse or its keys.
template <class Key>
class KeyWindow final
{
public:
    KeyWindow()
        : key(new Key(&window))
    {
        window.setWindowFlags(Qt::FramelessWindowHint);
        window.resize(160, 100);
        key->setGeometry(40, 30, 36, 36);
    }

    [[nodiscard]] bool show()
    {
        window.show();
        window.activateWindow();
        const bool isActive = QTest::qWaitForWindowActive(&window);
        window.setFocus(); // not the key
        return isActive;
    }

    QWidget window;
    Key* key;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

// The title row of a device in the device list. Space stands for a click, Return for a double click.
// A signal's event is good only while it is delivered: connect directly. Main thread.
class MenuDevTitle final : public QWidget
{
    Q_OBJECT

public:
    explicit MenuDevTitle(QWidget* parent = nullptr);

signals:
    void clicked(MenuDevTitle* devTitle);
    void rightClicked(MenuDevTitle* devTitle, QMouseEvent* event);
    void doubleClick(MenuDevTitle* devTitle);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

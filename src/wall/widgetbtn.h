// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

// The video area: tells of releases of the mouse and of Escape. A signal's event is good only while it
// is delivered: connect directly. Main thread.
class WidgetBtn final : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetBtn(QWidget* parent = nullptr)
        : QWidget(parent)
    {
    }

signals:
    void clicked(QMouseEvent* event);
    void pressEscMsg();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QWidget>

// The strip by which a frameless window is dragged: tells how far the left button has moved it
// since the last signal, in screen pixels. Main thread.
class DragArea final : public QWidget
{
    Q_OBJECT

public:
    explicit DragArea(QWidget* parent = nullptr);

signals:
    void moveMsg(QPoint movePoint);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool dragging_ = false;
    QPoint last_;
};

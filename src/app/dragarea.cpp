// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dragarea.h"

#include <QMouseEvent>

DragArea::DragArea(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
}

void DragArea::mousePressEvent(QMouseEvent* event)
{
    dragging_ = event->button() == Qt::LeftButton;
    last_ = event->globalPos();
}

void DragArea::mouseMoveEvent(QMouseEvent* event)
{
    if (!dragging_)
        return;
    const QPoint step = event->globalPos() - last_;
    last_ = event->globalPos();
    emit moveMsg(step);
}

void DragArea::mouseReleaseEvent(QMouseEvent*)
{
    dragging_ = false;
}

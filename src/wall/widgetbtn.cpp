// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/widgetbtn.h"

#include <QKeyEvent>

void WidgetBtn::mouseReleaseEvent(QMouseEvent* event)
{
    emit clicked(event);
    QWidget::mouseReleaseEvent(event);
}

void WidgetBtn::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        emit pressEscMsg();
    QWidget::keyPressEvent(event);
}

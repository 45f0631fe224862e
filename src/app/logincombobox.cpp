// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/logincombobox.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

#include <algorithm>

LoginComboBox::LoginComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setInsertPolicy(NoInsert);
    // A remembered name may be thousands of characters long.
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setContextMenuPolicy(Qt::NoContextMenu);
}

void LoginComboBox::makeEditable()
{
    setEditable(true);
    setCompleter(nullptr);
    lineEdit()->setContextMenuPolicy(Qt::NoContextMenu);
    // The box's own style string, which its focus replaces, must not frame the inner field too.
    lineEdit()->setStyleSheet(QStringLiteral("border:0;background:transparent;padding:0;"));
}

void LoginComboBox::showPopup()
{
    QComboBox::showPopup();
    // The style sheet adds the box's padding, meant for its icon and arrow, to the list's width.
    QWidget* list = view()->parentWidget();
    const int frame = list->width() - view()->viewport()->width();
    const int wanted = std::min(view()->sizeHintForColumn(0) + frame, 2 * width());
    QRect place = list->geometry();
    place.setWidth(std::max(width(), wanted));
    place.moveCenter({mapToGlobal(rect().center()).x(), place.center().y()});
    list->setGeometry(place);
}

void LoginComboBox::paintEvent(QPaintEvent* event)
{
    if (isEditable()) {
        QComboBox::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QString text = option.currentText;
    option.currentText.clear();
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const int margin = std::max(field.left(), width() - field.right());
    const QRect centred = rect().adjusted(margin, 0, -margin, 0);
    painter.drawText(
        centred, Qt::AlignCenter, fontMetrics().elidedText(text, Qt::ElideRight, centred.width()));
}

void LoginComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/logdelegate.h"

void LogDelegate::makeRoom(const QString& line, const QModelIndex& row, const QFontMetrics& metrics)
{
    constexpr int margins = 16;
    const int width = metrics.horizontalAdvance(displayText(line, {})) + margins;
    if (width <= width_)
        return;
    width_ = width;
    emit sizeHintChanged(row);
}

QSize LogDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return {width_, QStyledItemDelegate::sizeHint(option, index).height()};
}

QString LogDelegate::displayText(const QVariant& value, const QLocale&) const
{
    QString text = value.toString();
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text;
}

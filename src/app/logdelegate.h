// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

// Draws the lines of the log: each on one row, and all as wide as the widest so far, which lets the
// list lay out ten thousand rows by the size of one. Main thread.
class LogDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // Makes room for a line; emits sizeHintChanged when that widens the rows.
    void makeRoom(const QString& line, const QModelIndex& row, const QFontMetrics& metrics);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    // Line breaks show as blanks.
    QString displayText(const QVariant& value, const QLocale& locale) const override;

private:
    int width_ = 0;
};

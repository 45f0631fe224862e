// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/style.h"

#include <QPainter>

QPixmap Style::generatedIconPixmap(
    QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const
{
    if (mode != QIcon::Disabled)
        return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
    constexpr QColor disabled(0x56, 0x63, 0x76); // the token ink-500
    QPixmap tinted = pixmap;
    QPainter painter(&tinted);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(
        QRectF(QPointF(0, 0), QSizeF(tinted.size()) / tinted.devicePixelRatioF()), disabled);
    return tinted;
}

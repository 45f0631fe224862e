// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

// The platform's style, but for what a style sheet cannot say: a picture on something disabled has the
// colour of disabled icons, whatever it has otherwise. Main thread.
class Style final : public QProxyStyle
{
    Q_OBJECT

public:
    QPixmap generatedIconPixmap(
        QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const override;
};

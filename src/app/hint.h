// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextDocument>

// The tooltip that shows `text` as it stands, but for runs of blanks: rich text always, since Qt
// would else guess which it is. None for an empty text.
inline QString plainHint(const QString& text)
{
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The resource of an icon, without its ".png": a state's picture is the name with "-hover" or "-on".
inline QString keyPicture(const char* name)
{
    return QStringLiteral(":/main/images/btnImg/") + QLatin1String(name);
}

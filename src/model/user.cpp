// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/user.h"

QString User::displayName() const
{
    constexpr int longest = 6;
    constexpr int kept = 5;
    for (const QString& name : {NickName, username, phone, userEmail}) {
        if (!name.isEmpty())
            return name.size() > longest ? name.left(kept) + QStringLiteral("...") : name;
    }
    return {};
}

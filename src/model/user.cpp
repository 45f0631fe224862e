// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/user.h"

namespace {

QString shortened(const QString& name)
{
    constexpr int longest = 6;
    constexpr int kept = 5;
    if (name.size() <= longest)
        return name;
    // Not between the two halves of one character.
    const bool split = name.at(kept - 1).isHighSurrogate();
    return name.left(split ? kept - 1 : kept) + QStringLiteral("...");
}

} // namespace

QString User::displayName() const
{
    for (const QString& name : {NickName, username, phone, userEmail}) {
        if (!name.isEmpty())
            return shortened(name);
    }
    return {};
}

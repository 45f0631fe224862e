// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/records.h"

#include <QList>
#include <QStringList>

// Three devices that differ in every field, and looks at lists of records.

inline const LocalDeviceRecord yard{7, 1, "yard", "AAAAAAAAAAAAAAAAAAAA", "Admin", "secret"};
inline const LocalDeviceRecord hall{2, 16, "hall", "BBBBBBBBBBBBBBBBBBBB", "guest", ""};
inline const LocalDeviceRecord roof{1, 4, "roof", "CCCCCCCCCCCCCCCCCCCC", "", "p@ss \"w\""};

inline bool same(const LocalDeviceRecord& a, const LocalDeviceRecord& b)
{
    return a.type == b.type && a.channel == b.channel && a.nickname == b.nickname && a.uid == b.uid
        && a.username == b.username && a.password == b.password;
}

inline QStringList namesOf(const QList<LoginRecord>& logins)
{
    QStringList names;
    for (const LoginRecord& login : logins)
        names.append(login.username);
    return names;
}

inline QStringList namesOf(const QList<LocalDeviceRecord>& devices)
{
    QStringList names;
    for (const LocalDeviceRecord& device : devices)
        names.append(device.nickname);
    return names;
}

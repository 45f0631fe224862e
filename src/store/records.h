// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// A remembered login. `language` is a value of SystemInfo::SYSTEM_TYPE_LAGNUAGE, as the file has
// it: it may be out of range.
struct LoginRecord
{
    QString username;
    QString password;
    bool isremember = false;
    int language = 0;
};

// A device added in local mode, told apart by its UID.
struct LocalDeviceRecord
{
    int type = 0; // device type code of the cloud list
    int channel = 0; // number of channels
    QString nickname;
    QString uid;
    QString username; // view account
    QString password; // view password
};

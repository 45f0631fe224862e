// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The signed-in account, one per process, owned by UserService. Main thread. The names are those
// of the cloud's login reply, which fills most of the fields.
struct User
{
    QString userID;
    QString access_token; // sent as `token` in every authorised call
    QString refresh_token; // kept, never used
    QString username;
    QString password; // clear text, in memory only
    QString userIconUrl;
    QString NickName;
    QString userEmail;
    QString phone;
    int refresh_expire = 0;
    int access_expire = 0;
    bool localMode = false; // the session runs without the cloud; devices come from the local store

    // The first non-empty of nick name, user name, phone and e-mail, cut to its first five
    // characters and "..." from seven characters on.
    QString displayName() const;
};

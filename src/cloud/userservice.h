// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/user.h"

#include <QObject>

// The account half of the cloud service, and the owner of the record of the signed-in account.
// Singleton, main thread. Every request ends in a signal, never before the operation has returned.
//
// An installation whose deployment names no cloud address has no cloud: every request ends in
// responseErrorMsg, which says so. This version speaks to no cloud service yet.
class UserService final : public QObject
{
    Q_OBJECT

public:
    static UserService* instance();

    UserService();
    Q_DISABLE_COPY_MOVE(UserService)

    const User& user() const { return user_; }

    // What the login window knows before a login.
    void setUsername(const QString& username) { user_.username = username; }
    void setPassword(const QString& password) { user_.password = password; }
    void setLocalMode(bool local) { user_.localMode = local; }

    // Signs in with user name and password; ends in logined() or responseErrorMsg("login", ...).
    void login();

signals:
    void logined();
    // `type` is a fixed word per operation.
    void responseErrorMsg(
        const QString& type, const QString& errorType, int errorCode, const QString& error);

private:
    User user_;
};

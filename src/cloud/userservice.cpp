// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/userservice.h"

#include "store/deployment.h"

#include <QTimer>

namespace {

UserService* theUserService = nullptr;

} // namespace

UserService* UserService::instance()
{
    if (theUserService == nullptr)
        new UserService; // stores itself
    return theUserService;
}

UserService::UserService()
{
    if (theUserService != nullptr)
        return;
    theUserService = this;
}

void UserService::login()
{
    const QString error = Deployment::instance().cloudBaseUrl.isEmpty()
        ? tr("No cloud address is configured; use Local Login.")
        : tr("This version cannot sign in to the cloud yet; use Local Login.");
    QTimer::singleShot(0, this, [this, error] {
        emit responseErrorMsg(QStringLiteral("login"), tr("Network Error"), 0, error);
    });
}

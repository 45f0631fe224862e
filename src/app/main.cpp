// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/messagehandler.h"
#include "app/startup.h"
#include "app/windowlogin.h"
#include "store/deployment.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_UseDesktopOpenGL);
    QApplication app(argc, argv);
    prepareApplication();

    WindowLogin window;
    window.setBrand(Deployment::instance().brand);
    // After the window, so that what its construction prints stays out of the debug record.
    qInstallMessageHandler(debugMessageHandler);
    window.show();
    return QApplication::exec();
}

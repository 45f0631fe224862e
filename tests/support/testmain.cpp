// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"

#include "app/startup.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char* argv[])
{
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    qputenv("XDG_CONFIG_DIRS", settings.filePath(QStringLiteral("system")).toLocal8Bit());
    QApplication::setAttribute(Qt::AA_UseDesktopOpenGL);
    QApplication app(argc, argv);
    prepareApplication();

    return runTests(argc, argv);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"

#include "app/startup.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <vector>

namespace {

std::vector<std::function<std::unique_ptr<QObject>()>>& registry()
{
    static std::vector<std::function<std::unique_ptr<QObject>()>> tests;
    return tests;
}

} // namespace

int registerTest(std::function<std::unique_ptr<QObject>()> make)
{
    registry().push_back(std::move(make));
    return 0;
}

int main(int argc, char* argv[])
{
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    qputenv("XDG_CONFIG_DIRS", settings.filePath(QStringLiteral("system")).toLocal8Bit());
    QApplication::setAttribute(Qt::AA_UseDesktopOpenGL);
    QApplication app(argc, argv);
    prepareApplication();

    int failures = 0;
    for (const auto& make : registry()) {
        const auto test = make();
        failures += QTest::qExec(test.get(), argc, argv);
    }
    return failures == 0 ? 0 : 1;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"

#include <QCoreApplication>
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
    QCoreApplication app(argc, argv);
    int failures = 0;
    for (const auto& make : registry()) {
        const auto test = make();
        failures += QTest::qExec(test.get(), argc, argv);
    }
    return failures == 0 ? 0 : 1;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"

#include <QTest>

#include <cstring>
#include <utility>
#include <vector>

namespace {

struct Entry
{
    const char* name;
    std::function<std::unique_ptr<QObject>()> make;
};

std::vector<Entry>& registry()
{
    static std::vector<Entry> tests;
    return tests;
}

const Entry* entryNamed(const char* name)
{
    for (const Entry& entry : registry()) {
        if (std::strcmp(entry.name, name) == 0)
            return &entry;
    }
    return nullptr;
}

} // namespace

int registerTest(const char* name, std::function<std::unique_ptr<QObject>()> make)
{
    registry().push_back({name, std::move(make)});
    return 0;
}

int runTests(int argc, char* argv[])
{
    const Entry* alone = argc > 1 ? entryNamed(argv[1]) : nullptr;
    if (alone) {
        std::vector<char*> rest(argv, argv + argc);
        rest.erase(rest.begin() + 1);
        const auto test = alone->make();
        return QTest::qExec(test.get(), argc - 1, rest.data()) == 0 ? 0 : 1;
    }
    int failures = 0;
    for (const Entry& entry : registry()) {
        const auto test = entry.make();
        failures += QTest::qExec(test.get(), argc, argv);
    }
    return failures == 0 ? 0 : 1;
}

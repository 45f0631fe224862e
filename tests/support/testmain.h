// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>
#include <memory>

// A test program is one per subsystem folder and holds several test classes. Each registers
// itself with ORVA_TEST(Class); `main` in testmain.cpp runs them one after the other, in an
// application whose settings live in a temporary folder. Arguments are Qt Test's own.
int registerTest(std::function<std::unique_ptr<QObject>()> make);

#define ORVA_TEST(Class)                                                                           \
    static const int registered##Class = registerTest([] { return std::make_unique<Class>(); });

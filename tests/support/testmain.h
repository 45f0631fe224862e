// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>
#include <memory>

// A test program is one per subsystem folder and holds several test classes. Each registers
// itself with ORVA_TEST(Class); `main` runs them one after the other. A class's name as the first
// argument runs that class alone; the other arguments are Qt Test's own.
//
// testmain.cpp is for programs that test the client: their settings live in a temporary folder.
// plainmain.cpp is for all others.
int registerTest(const char* name, std::function<std::unique_ptr<QObject>()> make);

// Runs what is registered. For `main`: its result.
int runTests(int argc, char* argv[]);

#define ORVA_TEST(Class)                                                                           \
    static const int registered##Class =                                                           \
        registerTest(#Class, [] { return std::make_unique<Class>(); });

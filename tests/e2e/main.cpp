// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"

#include <QGuiApplication>

// A window system, to read the screen; no window of its own.
int main(int argc, char* argv[])
{
    const QGuiApplication app(argc, argv);
    return runTests(argc, argv);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    return runTests(argc, argv);
}

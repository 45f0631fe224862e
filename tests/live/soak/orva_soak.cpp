// SPDX-License-Identifier: GPL-3.0-or-later
// 16 live streams over the real link layer for as long as is asked, with all that may happen to them.
// Ends with 0 when memory, threads and descriptors have not grown and all open streams still run.
// Needs a display and a network of its own.
#include "app/startup.h"
#include "soak.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QThreadPool>

#include <algorithm>
#include <cstdio>
#include <random>

int main(int argc, char* argv[])
{
    std::setvbuf(
        stdout, nullptr, _IOLBF, BUFSIZ); // into a file too, so that one sees how far it is
    QCoreApplication::setAttribute(Qt::AA_UseDesktopOpenGL);
    const QApplication app(argc, argv);
    prepareApplication();
    QCommandLineParser options;
    const QCommandLineOption minutes(QStringLiteral("minutes"),
        QStringLiteral("How long, at least 2; from 20 on the verdict is to be trusted."),
        QStringLiteral("N"), QStringLiteral("30"));
    const QCommandLineOption seedOption(
        QStringLiteral("seed"), QStringLiteral("Of what happens by chance."), QStringLiteral("N"));
    options.addOptions({minutes, seedOption});
    options.addHelpOption();
    options.process(app);
    const unsigned seed =
        options.isSet(seedOption) ? options.value(seedOption).toUInt() : std::random_device()();
    std::printf("seed %u\n", seed);

    int result = 1;
    {
        Soak soak(std::chrono::minutes(std::max(2, options.value(minutes).toInt())), seed);
        QObject::connect(
            &soak, &Soak::finished, &app, [](bool good) { QCoreApplication::exit(good ? 0 : 1); });
        soak.show();
        if (soak.start())
            result = QApplication::exec();
    }
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::sendPostedEvents();
    std::puts(result == 0 ? "good" : "NOT GOOD");
    return result;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Shows channels of one device, live, in a borderless window at 0,0: to look at, to measure, and to
// leave running.
#include "app/startup.h"
#include "picturetimes.h"
#include "tilewall.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>

using namespace std::chrono_literals;

namespace {

void addOptions(QCommandLineParser& options)
{
    const auto add = [&options](const char* name, const char* what, const char* fallback) {
        options.addOption({QString::fromLatin1(name), QString::fromLatin1(what),
            QStringLiteral("value"), QString::fromLatin1(fallback)});
    };
    add("uid", "UID of the device", "");
    add("password", "its password", "");
    add("tiles", "number of channels", "1");
    add("seconds", "how long to run, 0 until closed", "0");
    add("width", "of the window, pixels", "1920");
    add("height", "of the window, pixels", "1080");
    add("starts", "stop and start tile 0 so many times, then end", "0");
    add("times", "a file for when frames were fetched and pictures decoded", "");
    options.addHelpOption();
}

void printLine(const QString& line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

// "ready", then how long each tile has waited for its first picture, in milliseconds.
void printReady(const TileWall& wall)
{
    QStringList waits;
    for (const auto& wait : wall.firstPictures())
        waits.append(QString::number(double(wait.count()) / 1000, 'f', 1));
    printLine(QStringLiteral("ready"));
    printLine(QStringLiteral("first-picture-ms ") + waits.join(QLatin1Char(' ')));
}

constexpr auto shownFor = 400ms;
constexpr auto stoppedFor = 300ms;
// So that starts fall anywhere between two pictures of the camera.
constexpr auto step = 7ms;

// Stops tile 0 and starts it again whenever it has shown a picture, and tells each time how long that
// took, in milliseconds.
void startAgain(TileWall& wall, int starts)
{
    QObject::connect(
        &wall, &TileWall::firstPicture, &wall, [&wall, starts, done = -1](int tile) mutable {
            if (tile != 0)
                return;
            if (++done > 0)
                printLine(QStringLiteral("start-ms %1")
                              .arg(double(wall.firstPictures().back().count()) / 1000, 0, 'f', 1));
            if (done == starts)
                QCoreApplication::quit();
            else
                QTimer::singleShot(shownFor + done * step, &wall, [&wall] { wall.stop(0); });
        });
    QObject::connect(&wall, &TileWall::stopped, &wall,
        [&wall] { QTimer::singleShot(stoppedFor, &wall, [&wall] { wall.start(0); }); });
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_UseDesktopOpenGL);
    QApplication app(argc, argv);
    prepareApplication();
    QCommandLineParser options;
    addOptions(options);
    options.process(app);
    const auto number = [&options](const char* name) {
        return options.value(QString::fromLatin1(name)).toInt();
    };

    TileWall wall(options.value(QStringLiteral("uid")), options.value(QStringLiteral("password")),
        std::clamp(number("tiles"), 1, 64));
    QObject::connect(&wall, &TileWall::allShown, &wall, [&wall] { printReady(wall); });
    QObject::connect(&wall, &TileWall::failed, &wall,
        [](const QString& text) { printLine(QStringLiteral("failed: ") + text); });
    int compositions = 0;
    QObject::connect(&wall, &TileWall::composed, &wall, [&compositions] { ++compositions; });
    if (number("starts") > 0)
        startAgain(wall, number("starts"));
    const QString timesFile = options.value(QStringLiteral("times"));
    const auto times = timesFile.isEmpty() ? nullptr : std::make_unique<PictureTimes>();
    wall.setGeometry(0, 0, number("width"), number("height"));
    wall.show();
    if (number("seconds") > 0)
        QTimer::singleShot(number("seconds") * 1000, &app, &QCoreApplication::quit);
    const int result = QApplication::exec();
    printLine(QStringLiteral("compositions %1").arg(compositions));
    if (times && !times->write(timesFile))
        return 1;
    return result;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"

#include <QProcess>
#include <QStringList>

namespace {

QByteArray xdotool(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

QStringList moveTo(const QPoint& place)
{
    return {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())};
}

} // namespace

void click(const QPoint& place)
{
    xdotool(moveTo(place) + QStringList{"click", "1"});
}

// Close together, or a busy machine makes two clicks of them; not as close as 1 ms, or the second press is now and
// then lost before the window system tells the program of it.
void doubleClick(const QPoint& place)
{
    xdotool(moveTo(place) + QStringList{"click", "--repeat", "2", "--delay", "40", "1"});
}

void rightClick(const QPoint& place)
{
    xdotool(moveTo(place) + QStringList{"click", "3"});
}

void moveMouse(const QPoint& place)
{
    xdotool(moveTo(place));
}

void pressKey(const QByteArray& name)
{
    xdotool({"key", QString::fromLatin1(name)});
}

bool hasWindow(qint64 process, const QSize& size)
{
    const QByteArray wanted =
        QByteArray::number(size.width()) + 'x' + QByteArray::number(size.height());
    const QByteArray ids = xdotool({"search", "--onlyvisible", "--pid", QString::number(process)});
    for (const QByteArray& id : ids.split('\n')) {
        if (!id.isEmpty() && xdotool({"getwindowgeometry", id}).contains(wanted))
            return true;
    }
    return false;
}

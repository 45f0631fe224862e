// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/messagehandler.h"

#include "app/systeminfo.h"
#include "model/events.h"

#include <cstdio>
#include <cstdlib>

namespace {

const char* wordFor(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "Debug";
    case QtInfoMsg:
        return "Info";
    case QtWarningMsg:
        return "Warning";
    case QtCriticalMsg:
        return "Critical";
    case QtFatalMsg:
        break;
    }
    return "Fatal";
}

} // namespace

void debugMessageHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    // The list shows what standard error can show: what the local encoding cannot hold is lost in
    // both.
    const QByteArray local = message.toLocal8Bit();
    postResult(
        SystemInfo::instance(), new DebugEvent_getDebug(type, QString::fromLocal8Bit(local)));
    std::fprintf(stderr, "%s: %s\n", wordFor(type), local.constData());
    if (type == QtFatalMsg)
        std::abort();
}

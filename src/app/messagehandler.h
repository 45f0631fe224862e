// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QtGlobal>

// The single entry of all log output, for qInstallMessageHandler: one line on standard error, and
// one event to SystemInfo, which must exist by then. Any thread. A fatal message ends the process.
void debugMessageHandler(QtMsgType type, const QMessageLogContext& context, const QString& message);

// SPDX-License-Identifier: GPL-3.0-or-later
#include "memory.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <unistd.h>

double residentKib()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QFile::ReadOnly))
        return 0;
    const QList<QByteArray> pages = file.readAll().split(' ');
    return pages.value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
}

std::optional<double> memoryOf(bool isOurs, int tiles, QSize size)
{
    constexpr int patienceMs = 120000;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
        {QStringLiteral("--memory"), isOurs ? QStringLiteral("ours") : QStringLiteral("bare"),
            QStringLiteral("--tiles"), QString::number(tiles), QStringLiteral("--size"),
            QStringLiteral("%1x%2").arg(size.width()).arg(size.height())});
    if (!process.waitForFinished(patienceMs) || process.exitCode() != 0)
        return std::nullopt;
    return process.readAllStandardOutput().trimmed().toDouble();
}

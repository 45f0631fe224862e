// SPDX-License-Identifier: GPL-3.0-or-later
#include "processgroup.h"

#include <QFile>

#include <algorithm>
#include <unistd.h>

namespace {

QByteArray readProc(qint64 process, const char* name)
{
    QFile file(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name)));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

// The value of a line "Key:   123 kB", in bytes; 0 without such a line.
qint64 kilobytesOf(const QByteArray& text, const QByteArray& key)
{
    for (const QByteArray& line : text.split('\n')) {
        if (line.startsWith(key + ':'))
            return line.mid(key.size() + 1).simplified().split(' ').at(0).toLongLong() * 1024;
    }
    return 0;
}

qint64 clockTicks(qint64 process)
{
    constexpr int userTime = 11; // behind the name, which may hold spaces
    const QByteArray stat = readProc(process, "stat");
    const auto fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    return fields.size() > userTime + 1
        ? fields[userTime].toLongLong() + fields[userTime + 1].toLongLong()
        : 0;
}

} // namespace

ProcessGroup::~ProcessGroup()
{
    constexpr int patienceMs = 5000;
    for (const auto& process : processes_)
        process->terminate();
    for (const auto& process : processes_) {
        if (process->state() != QProcess::NotRunning && !process->waitForFinished(patienceMs)) {
            process->kill();
            process->waitForFinished();
        }
    }
}

bool ProcessGroup::start(const QString& program, const QStringList& arguments, const QString& log)
{
    processes_.push_back(std::make_unique<BoundProcess>());
    BoundProcess& process = *processes_.back();
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardOutputFile(log, QIODevice::Append);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    return process.waitForStarted();
}

bool ProcessGroup::isRunning() const
{
    return std::all_of(processes_.begin(), processes_.end(), [](const auto& process) {
        // So that an end is noticed without an event loop.
        return !process->waitForFinished(0) && process->state() == QProcess::Running;
    });
}

std::chrono::milliseconds ProcessGroup::cpuTime() const
{
    qint64 ticks = 0;
    for (const auto& process : processes_)
        ticks += clockTicks(process->processId());
    return std::chrono::milliseconds(ticks * 1000 / sysconf(_SC_CLK_TCK));
}

Memory ProcessGroup::memory() const
{
    Memory memory;
    for (const auto& process : processes_) {
        const qint64 id = process->processId();
        memory.resident += kilobytesOf(readProc(id, "status"), "VmRSS");
        memory.proportional += kilobytesOf(readProc(id, "smaps_rollup"), "Pss");
    }
    return memory;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bridgeprocess.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>
#include <vector>

// Bytes. A proportional set counts a page that several processes share in equal parts.
struct Memory
{
    qint64 resident = 0;
    qint64 proportional = 0; // 0 where the system does not tell
};

// Programs that run side by side and end with their owner. Linux; one thread.
class ProcessGroup
{
public:
    ProcessGroup() = default;
    Q_DISABLE_COPY_MOVE(ProcessGroup)
    ~ProcessGroup();

    // False when the program does not start. What it says goes to `log`, after what stands there.
    bool start(const QString& program, const QStringList& arguments, const QString& log);
    // All of them, still.
    bool isRunning() const;

    // User and system time of all their threads so far, summed; in steps of 10 ms.
    std::chrono::milliseconds cpuTime() const;
    // Summed.
    Memory memory() const;

private:
    std::vector<std::unique_ptr<BoundProcess>> processes_;
};

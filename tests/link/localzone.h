// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QtGlobal>

// Moves this machine to another time zone for as long as it lives.
class LocalZone final
{
public:
    explicit LocalZone(const char* name)
        : before_(qgetenv("TZ"))
        , wasSet_(qEnvironmentVariableIsSet("TZ"))
    {
        qputenv("TZ", name);
    }
    ~LocalZone()
    {
        if (wasSet_)
            qputenv("TZ", before_);
        else
            qunsetenv("TZ");
    }
    Q_DISABLE_COPY_MOVE(LocalZone)

private:
    const QByteArray before_;
    const bool wasSet_;
};

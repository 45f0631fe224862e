// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <stdexcept>

// What stops the making of the pictures. The text is one line for the person who wrote the
// manifest: the file, the entry in it, and what was expected there.
class Problem : public std::runtime_error
{
public:
    Problem(const QString& file, const QString& entry, const QString& expected)
        : std::runtime_error(line(file, entry, expected).toStdString())
    {
    }

private:
    static QString line(const QString& file, const QString& entry, const QString& expected)
    {
        return entry.isEmpty()
            ? file + QLatin1String(": ") + expected
            : file + QLatin1String(": ") + entry + QLatin1String(": ") + expected;
    }
};

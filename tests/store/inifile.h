// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/scramble.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QSettings>
#include <QTest>

// The settings file of the test program, looked at and made behind the store's back.

// The default file. In a folder of the test program's own.
inline QString settingsPath()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope,
        QCoreApplication::organizationName(), QCoreApplication::applicationName())
        .fileName();
}

inline QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeBytes(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

// A key as it stands in the file.
inline QString storedText(const QString& path, const QString& key)
{
    return QSettings(path, QSettings::IniFormat).value(key).toString();
}

inline bool hasKey(const QString& path, const QString& key)
{
    return QSettings(path, QSettings::IniFormat).contains(key);
}

// What stands left of the '=' in one section. In no order: on Unix, QSettings sorts its keys.
inline QSet<QByteArray> keysOfSection(const QString& path, const QByteArray& section)
{
    QSet<QByteArray> keys;
    bool inside = false;
    for (const QByteArray& line : bytesOf(path).split('\n')) {
        if (line.startsWith('['))
            inside = line.trimmed() == '[' + section + ']';
        else if (inside && line.contains('='))
            keys.insert(line.left(line.indexOf('=')));
    }
    return keys;
}

inline void ignoreRefusal()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("is damaged or cannot be read"));
}

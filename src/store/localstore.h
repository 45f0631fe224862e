// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/records.h"

#include <QList>
#include <QString>
#include <QVariant>

// All that survives a restart, in one or two INI files. The default file (QSettings, user scope)
// always holds `newpath` and the logins; the current file, which is the default file until
// `newpath` names another, holds the devices and the group `config`. Singleton, main thread.
//
// Every operation opens the file, works and closes it; nothing is cached here but the path of the
// current file, which is settled once per run. A missing or unreadable file reads as all defaults.
// A file that exists and cannot be read is never written to, so that a damaged file keeps what a
// person may still save from it; each refusal is a line in the log. The same holds for a single
// stored text that is not in scrambled form: it goes back as it stood.
class LocalStore final
{
public:
    static LocalStore* instance();

    LocalStore(const LocalStore&) = delete;
    LocalStore& operator=(const LocalStore&) = delete;

    QVariant readDefault(const QString& key, const QVariant& defaultValue) const;
    // Whether the value is on the disk.
    bool writeDefault(const QString& key, const QVariant& value);
    QVariant read(const QString& key, const QVariant& defaultValue) const;
    void write(const QString& key, const QVariant& value);

    // Most recent first.
    QList<LoginRecord> loadLogins() const;
    // Puts the login to the front. A new name leaves room for three in all; a known name keeps the
    // length of the list. Names compare case-sensitively.
    void saveLogin(const QString& username, const QString& password, bool isremember, int language);

    // In the order of their insertion.
    QList<LocalDeviceRecord> loadDevices() const;
    // Replaces the record with the same UID in its place, or appends.
    void saveDevice(const LocalDeviceRecord& record);
    void removeDevice(const QString& uid);

    // Moves the devices and three `config` keys (picpath, videopath, timeLength) to the INI file
    // `newPath`, and removes both groups from the current file. 0: done; 2: nothing was removed,
    // since one of the files is not writable or not readable. The running program stays with the
    // old path; the new one counts from the next start.
    int moveTo(const QString& newPath);

    // Whether the current file holds anything that moveTo() would move.
    bool hasSettings() const;

    QString currentPath() const { return path_; }

    // The path of the current file as the default file tells it now.
    static QString resolveCurrentPath();

private:
    LocalStore();

    const QString path_;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

// The typed face of the group `config` and of the path logic. Each getter goes to the file, so an
// object carries no state, and throw-away ones are as good as the singleton. Main thread.
class Location final : public QObject
{
    Q_OBJECT

public:
    static Location* instance();

    Location() = default;

    // The path of the file that holds devices and `config` at the next start.
    QString getConfigPath() const;
    // Extends `folder` to the path of the file in it, and moves the settings there. 0: done; 1:
    // `folder` is no folder, nothing has changed; 2: not writable, while `newpath` may already
    // name it.
    int setConfigPath(QString& folder);

    int getTimeLength() const; // minutes of one recording segment
    void setTimeLength(int minutes);
    int getWindowNum() const; // WINDOW_MOD of the live wall
    void setWindowNum(int windowMod);
    int getReplayWindowNum() const; // WINDOW_MOD of the replay wall
    void setReplayWindowNum(int windowMod);
    int getScale() const; // index of the picture scaling mode
    void setScale(int scale);

    // Base folders; the user's documents folder until one is set. Not tested for existence.
    QString getVideoPath() const;
    void setVideoPath(const QString& folder);
    QString getPicPath() const;
    void setPicPath(const QString& folder);

    // JSON array of {"dev": UID, "channel": [index, ...]}: what was open at the last save.
    QString getDeviceChannel() const;
    void setDeviceChannel(const QString& json);
};

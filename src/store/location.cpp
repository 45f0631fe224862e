// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/location.h"

#include "store/localstore.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace {

const QString newPathKey = QStringLiteral("newpath");
const QString timeLengthKey = QStringLiteral("config/timeLength");
const QString windowNumKey = QStringLiteral("config/windownum");
const QString replayWindowNumKey = QStringLiteral("config/replaywindownum");
const QString scaleKey = QStringLiteral("config/scale");
const QString videoPathKey = QStringLiteral("config/videopath");
const QString picPathKey = QStringLiteral("config/picpath");
const QString deviceChannelKey = QStringLiteral("config/devicechannel");
const QString defaultWord = QStringLiteral("default");

int readInt(const QString& key, int defaultValue)
{
    return LocalStore::instance()->read(key, defaultValue).toInt();
}

QString readFolder(const QString& key)
{
    const QString folder = LocalStore::instance()->read(key, defaultWord).toString();
    return folder == defaultWord
        ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
        : folder;
}

void write(const QString& key, const QVariant& value)
{
    LocalStore::instance()->write(key, value);
}

} // namespace

Location* Location::instance()
{
    static Location* const location = new Location;
    return location;
}

QString Location::getConfigPath() const
{
    LocalStore* store = LocalStore::instance();
    const QString path = store->readDefault(newPathKey, defaultWord).toString();
    return path == defaultWord ? store->currentPath() : path;
}

int Location::setConfigPath(QString& folder)
{
    constexpr int done = 0;
    constexpr int notAFolder = 1;
    constexpr int notWritable = 2;
    if (!QFileInfo(folder).isDir())
        return notAFolder;
    folder += QStringLiteral("/ORVA.ini");
    LocalStore* store = LocalStore::instance();
    // Moved in this run already, and nothing came after: moving nothing would empty the new file.
    if (store->readDefault(newPathKey, defaultWord) == folder && !store->hasSettings())
        return done;
    // A move that the next start does not know of would hide the settings.
    if (!store->writeDefault(newPathKey, folder))
        return notWritable;
    return store->moveTo(folder);
}

int Location::getTimeLength() const
{
    constexpr int defaultMinutes = 30;
    return readInt(timeLengthKey, defaultMinutes);
}

void Location::setTimeLength(int minutes)
{
    write(timeLengthKey, minutes);
}

int Location::getWindowNum() const
{
    constexpr int fourTiles = 1;
    return readInt(windowNumKey, fourTiles);
}

void Location::setWindowNum(int windowMod)
{
    write(windowNumKey, windowMod);
}

int Location::getReplayWindowNum() const
{
    constexpr int fourTiles = 1;
    return readInt(replayWindowNumKey, fourTiles);
}

void Location::setReplayWindowNum(int windowMod)
{
    write(replayWindowNumKey, windowMod);
}

int Location::getScale() const
{
    return readInt(scaleKey, 0);
}

void Location::setScale(int scale)
{
    write(scaleKey, scale);
}

QString Location::getVideoPath() const
{
    return readFolder(videoPathKey);
}

void Location::setVideoPath(const QString& folder)
{
    write(videoPathKey, folder);
}

QString Location::getPicPath() const
{
    return readFolder(picPathKey);
}

void Location::setPicPath(const QString& folder)
{
    write(picPathKey, folder);
}

QString Location::getDeviceChannel() const
{
    return LocalStore::instance()->read(deviceChannelKey, QStringLiteral("[]")).toString();
}

void Location::setDeviceChannel(const QString& json)
{
    write(deviceChannelKey, json);
}

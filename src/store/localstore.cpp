// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/localstore.h"

#include "model/scramble.h"
#include "store/inicheck.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSettings>

#include <algorithm>

namespace {

const QString loginArray = QStringLiteral("login");
const QString deviceArray = QStringLiteral("device");
const QString configGroup = QStringLiteral("config");
const QString sizeKey = QStringLiteral("size");
const QString usernameKey = QStringLiteral("username");
const QString passwordKey = QStringLiteral("password");
const QString rememberKey = QStringLiteral("isremember");
const QString languageKey = QStringLiteral("language");
const QString typeKey = QStringLiteral("type");
const QString channelKey = QStringLiteral("channel");
const QString uidKey = QStringLiteral("uid");
const QString nicknameKey = QStringLiteral("nickname");
const QString defaultWord = QStringLiteral("default");

QString defaultPath()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope,
        QCoreApplication::organizationName(), QCoreApplication::applicationName())
        .fileName();
}

bool isIntact(const QString& path)
{
    QFile file(path);
    if (!file.exists())
        return true;
    return file.open(QIODevice::ReadOnly) && isIntactIni(file.readAll());
}

// One of the two files, opened for one operation.
class IniFile final : public QSettings
{
public:
    explicit IniFile(const QString& path)
        : QSettings(path, QSettings::IniFormat)
    {
    }

    // Whether writing loses nothing that stands in the file; says so in the log where it would.
    bool mayWrite() const
    {
        const bool intact = isIntact(fileName());
        if (!intact)
            qWarning("The settings file %s is damaged or cannot be read; it is left as it is.",
                qUtf8Printable(fileName()));
        // What QSettings fails to write stays in its cache: shown as if stored, and written later.
        const bool writable = intact && isWritable();
        if (intact && !writable)
            qWarning("The settings file %s cannot be written.", qUtf8Printable(fileName()));
        return writable;
    }

    // Brings what was set to the disk; says so in the log where that fails.
    bool commit()
    {
        sync();
        if (status() == AccessError)
            qWarning("The settings file %s cannot be written.", qUtf8Printable(fileName()));
        return status() != AccessError;
    }
};

// A record and, of its values, those that could not be read, by key: they go back as they stood.
template <typename Record>
struct Stored
{
    Record record;
    QHash<QString, QVariant> unread;
};

// Scrambled anew, a text outside ASCII would double at each rewrite.
bool isAscii(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

template <typename Record>
QString readText(const QSettings& file, const QString& key, Stored<Record>& stored)
{
    const QVariant value = file.value(key, QString());
    const QString text = value.toString();
    QString clear = unscramble(text);
    // A text with commas is a list to QSettings, and no string at all.
    const bool empty = text.isEmpty() && value.type() == QVariant::String;
    if (!empty && (!isScrambled(text) || !isAscii(clear)))
        stored.unread.insert(key, value);
    return clear;
}

template <typename Record>
void writeText(
    QSettings& file, const QString& key, const QString& text, const Stored<Record>& stored)
{
    const auto unread = stored.unread.constFind(key);
    file.setValue(key, unread == stored.unread.constEnd() ? QVariant(scramble(text)) : *unread);
}

template <typename Record>
int readInt(const QSettings& file, const QString& key, Stored<Record>& stored)
{
    const QVariant value = file.value(key, 0);
    bool valid = false;
    const int number = value.toString().toInt(&valid); // QVariant would cut what is too long
    if (!valid)
        stored.unread.insert(key, value);
    return number;
}

template <typename Record>
bool readBool(const QSettings& file, const QString& key, Stored<Record>& stored)
{
    const QVariant value = file.value(key, false);
    const QStringList words{
        QStringLiteral("true"), QStringLiteral("false"), QStringLiteral("1"), QStringLiteral("0")};
    if (!words.contains(value.toString()))
        stored.unread.insert(key, value);
    return value.toBool();
}

template <typename Record>
void writePlain(
    QSettings& file, const QString& key, const QVariant& value, const Stored<Record>& stored)
{
    file.setValue(key, stored.unread.value(key, value));
}

void readRecord(const QSettings& file, Stored<LoginRecord>& stored)
{
    LoginRecord& login = stored.record;
    login.username = readText(file, usernameKey, stored);
    login.password = readText(file, passwordKey, stored);
    login.isremember = readBool(file, rememberKey, stored);
    login.language = readInt(file, languageKey, stored);
}

void writeRecord(QSettings& file, const Stored<LoginRecord>& stored)
{
    const LoginRecord& login = stored.record;
    writeText(file, usernameKey, login.username, stored);
    writeText(file, passwordKey, login.password, stored);
    writePlain(file, rememberKey, login.isremember, stored);
    writePlain(file, languageKey, login.language, stored);
}

void readRecord(const QSettings& file, Stored<LocalDeviceRecord>& stored)
{
    LocalDeviceRecord& device = stored.record;
    device.type = readInt(file, typeKey, stored);
    device.channel = readInt(file, channelKey, stored);
    device.uid = readText(file, uidKey, stored);
    device.nickname = readText(file, nicknameKey, stored);
    device.username = readText(file, usernameKey, stored);
    device.password = readText(file, passwordKey, stored);
}

void writeRecord(QSettings& file, const Stored<LocalDeviceRecord>& stored)
{
    const LocalDeviceRecord& device = stored.record;
    writePlain(file, typeKey, device.type, stored);
    writePlain(file, channelKey, device.channel, stored);
    writeText(file, uidKey, device.uid, stored);
    writeText(file, nicknameKey, device.nickname, stored);
    writeText(file, usernameKey, device.username, stored);
    writeText(file, passwordKey, device.password, stored);
}

// The numbers of the elements that count, ascending. `size` tells how many, but a damaged one
// may be missing, negative, or a million: the elements that are really there are the bound.
QList<int> elementNumbers(const QSettings& group)
{
    bool sizeValid = false;
    const int size = group.value(sizeKey).toString().toInt(&sizeValid);
    sizeValid = sizeValid && size >= 0;
    QList<int> numbers;
    for (const QString& name : group.childGroups()) {
        const int number = name.toInt();
        const bool exact = QString::number(number) == name;
        if (exact && number >= 1 && (!sizeValid || number <= size))
            numbers.append(number);
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

template <typename Record>
QList<Stored<Record>> readArray(QSettings& file, const QString& name)
{
    QList<Stored<Record>> elements;
    file.beginGroup(name);
    for (const int number : elementNumbers(file)) {
        Stored<Record> stored;
        file.beginGroup(QString::number(number));
        readRecord(file, stored);
        file.endGroup();
        elements.append(stored);
    }
    file.endGroup();
    return elements;
}

template <typename Record>
void writeArray(QSettings& file, const QString& name, const QList<Stored<Record>>& elements)
{
    file.beginWriteArray(name);
    for (int i = 0; i < elements.size(); ++i) {
        file.setArrayIndex(i);
        writeRecord(file, elements.at(i));
    }
    file.endArray();
}

template <typename Record>
QList<Record> recordsOf(const QList<Stored<Record>>& elements)
{
    QList<Record> records;
    for (const Stored<Record>& stored : elements)
        records.append(stored.record);
    return records;
}

// The index of the last element whose text in `field` is `text`, or -1.
template <typename Record>
int lastWith(const QList<Stored<Record>>& elements, QString Record::*field, const QString& text)
{
    for (int i = elements.size() - 1; i >= 0; --i) {
        if (elements.at(i).record.*field == text)
            return i;
    }
    return -1;
}

void moveDevices(QSettings& from, QSettings& to)
{
    auto devices = readArray<LocalDeviceRecord>(from, deviceArray);
    for (auto& stored : devices) {
        // The account goes through the unscrambling direction once more, as installed files have
        // it: it is not in scrambled form in the new file. One that could not be read stays.
        const QString unread = stored.unread.value(usernameKey).toString();
        if (unread.isEmpty() || isScrambled(unread))
            stored.unread.insert(usernameKey, unscramble(stored.record.username));
    }
    writeArray(to, deviceArray, devices);
}

void moveConfig(const QSettings& from, QSettings& to)
{
    for (const char* name : {"picpath", "videopath"}) {
        const QString key = configGroup + QLatin1Char('/') + QLatin1String(name);
        to.setValue(key, from.value(key).toString());
    }
    const QString timeLength = configGroup + QStringLiteral("/timeLength");
    to.setValue(timeLength, from.value(timeLength).toInt());
}

// The path with links resolved, as far as it exists: the file itself may not.
QString truePath(const QString& path)
{
    const QFileInfo file(path);
    if (file.exists())
        return file.canonicalFilePath();
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return (folder.isEmpty() ? file.absolutePath() : folder) + QLatin1Char('/') + file.fileName();
}

bool writeValue(const QString& path, const QString& key, const QVariant& value)
{
    IniFile file(path);
    if (!file.mayWrite())
        return false;
    file.setValue(key, value);
    return file.commit();
}

} // namespace

LocalStore* LocalStore::instance()
{
    static LocalStore* const store = new LocalStore;
    return store;
}

LocalStore::LocalStore()
    : path_(resolveCurrentPath())
{
}

QString LocalStore::resolveCurrentPath()
{
    const QString path = defaultPath();
    const QString newPath = IniFile(path).value(QStringLiteral("newpath"), defaultWord).toString();
    return newPath == defaultWord ? path : newPath;
}

QVariant LocalStore::readDefault(const QString& key, const QVariant& defaultValue) const
{
    return IniFile(defaultPath()).value(key, defaultValue);
}

bool LocalStore::writeDefault(const QString& key, const QVariant& value)
{
    return writeValue(defaultPath(), key, value);
}

QVariant LocalStore::read(const QString& key, const QVariant& defaultValue) const
{
    return IniFile(path_).value(key, defaultValue);
}

void LocalStore::write(const QString& key, const QVariant& value)
{
    writeValue(path_, key, value);
}

QList<LoginRecord> LocalStore::loadLogins() const
{
    IniFile file(defaultPath());
    return recordsOf(readArray<LoginRecord>(file, loginArray));
}

void LocalStore::saveLogin(
    const QString& username, const QString& password, bool isremember, int language)
{
    IniFile file(defaultPath());
    if (!file.mayWrite())
        return;
    constexpr int longest = 3;
    auto logins = readArray<LoginRecord>(file, loginArray);
    const int known = lastWith(logins, &LoginRecord::username, username);
    if (known >= 0)
        logins.removeAt(known);
    else
        logins.erase(logins.begin() + std::min(logins.size(), longest - 1), logins.end());
    logins.prepend({{username, password, isremember, language}, {}});
    writeArray(file, loginArray, logins);
    file.commit();
}

QList<LocalDeviceRecord> LocalStore::loadDevices() const
{
    IniFile file(path_);
    return recordsOf(readArray<LocalDeviceRecord>(file, deviceArray));
}

void LocalStore::saveDevice(const LocalDeviceRecord& record)
{
    IniFile file(path_);
    if (!file.mayWrite())
        return;
    auto devices = readArray<LocalDeviceRecord>(file, deviceArray);
    const int known = lastWith(devices, &LocalDeviceRecord::uid, record.uid);
    if (known >= 0)
        devices[known] = {record, {}};
    else
        devices.append({record, {}});
    writeArray(file, deviceArray, devices);
    file.commit();
}

void LocalStore::removeDevice(const QString& uid)
{
    IniFile file(path_);
    if (!file.mayWrite())
        return;
    auto devices = readArray<LocalDeviceRecord>(file, deviceArray);
    const int known = lastWith(devices, &LocalDeviceRecord::uid, uid);
    if (known >= 0)
        devices.removeAt(known);
    writeArray(file, deviceArray, devices);
    file.commit();
}

bool LocalStore::hasSettings() const
{
    const QStringList groups = IniFile(path_).childGroups();
    return groups.contains(deviceArray) || groups.contains(configGroup);
}

int LocalStore::moveTo(const QString& newPath)
{
    constexpr int done = 0;
    constexpr int notWritable = 2;
    // Moving a file onto itself would remove the groups just written.
    if (truePath(newPath) == truePath(path_))
        return done;
    IniFile to(newPath);
    IniFile from(path_);
    if (!to.mayWrite() || !from.mayWrite())
        return notWritable;
    moveDevices(from, to);
    moveConfig(from, to);
    if (!to.commit())
        return notWritable;
    from.remove(deviceArray);
    from.remove(configGroup);
    from.commit();
    return done;
}

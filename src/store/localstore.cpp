// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/localstore.h"

#include "model/scramble.h"
#include "store/inicheck.h"

#include <QCoreApplication>
#include <QDir>
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

// One of the two files, opened for one operation. What was set is on disk when it goes.
class IniFile final : public QSettings
{
public:
    explicit IniFile(const QString& path)
        : QSettings(path, QSettings::IniFormat)
    {
    }
    ~IniFile() override
    {
        sync();
        if (status() == AccessError)
            qWarning("The settings file %s cannot be written.", qUtf8Printable(fileName()));
    }

    // Whether writing loses nothing that stands in the file; says so in the log where it would.
    bool mayWrite() const
    {
        const bool intact = isIntact(fileName());
        if (!intact)
            qWarning("The settings file %s is damaged or cannot be read; it is left as it is.",
                qUtf8Printable(fileName()));
        return intact;
    }
};

// A record and, of its scrambled texts, those that could not be read, by key: they go back as they
// stood.
template <typename Record>
struct Stored
{
    Record record;
    QHash<QString, QString> unread;
};

template <typename Record>
QString readText(const QSettings& file, const QString& key, Stored<Record>& stored)
{
    const QString text = file.value(key).toString();
    if (!text.isEmpty() && !isScrambled(text))
        stored.unread.insert(key, text);
    return unscramble(text);
}

template <typename Record>
void writeText(
    QSettings& file, const QString& key, const QString& text, const Stored<Record>& stored)
{
    const auto unread = stored.unread.constFind(key);
    file.setValue(key, unread == stored.unread.constEnd() ? scramble(text) : *unread);
}

void readRecord(const QSettings& file, Stored<LoginRecord>& stored)
{
    LoginRecord& login = stored.record;
    login.username = readText(file, usernameKey, stored);
    login.password = readText(file, passwordKey, stored);
    login.isremember = file.value(rememberKey).toBool();
    login.language = file.value(languageKey).toInt();
}

void writeRecord(QSettings& file, const Stored<LoginRecord>& stored)
{
    const LoginRecord& login = stored.record;
    writeText(file, usernameKey, login.username, stored);
    writeText(file, passwordKey, login.password, stored);
    file.setValue(rememberKey, login.isremember);
    file.setValue(languageKey, login.language);
}

void readRecord(const QSettings& file, Stored<LocalDeviceRecord>& stored)
{
    LocalDeviceRecord& device = stored.record;
    device.type = file.value(typeKey).toInt();
    device.channel = file.value(channelKey).toInt();
    device.uid = readText(file, uidKey, stored);
    device.nickname = readText(file, nicknameKey, stored);
    device.username = readText(file, usernameKey, stored);
    device.password = readText(file, passwordKey, stored);
}

void writeRecord(QSettings& file, const Stored<LocalDeviceRecord>& stored)
{
    const LocalDeviceRecord& device = stored.record;
    file.setValue(typeKey, device.type);
    file.setValue(channelKey, device.channel);
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
    const int size = group.value(sizeKey).toInt(&sizeValid);
    sizeValid = sizeValid && size >= 0;
    QList<int> numbers;
    for (const QString& name : group.childGroups()) {
        const int number = name.toInt();
        if (number >= 1 && (!sizeValid || number <= size))
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
        // it: it is not in scrambled form in the new file.
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

bool isSameFile(const QString& a, const QString& b)
{
    return QDir::cleanPath(QFileInfo(a).absoluteFilePath())
        == QDir::cleanPath(QFileInfo(b).absoluteFilePath());
}

LocalStore* theStore = nullptr;

} // namespace

LocalStore* LocalStore::instance()
{
    if (theStore == nullptr)
        new LocalStore; // stores itself
    return theStore;
}

LocalStore::LocalStore()
{
    if (theStore != nullptr)
        return;
    theStore = this;
    path_ = resolveCurrentPath();
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

void LocalStore::writeDefault(const QString& key, const QVariant& value)
{
    IniFile file(defaultPath());
    if (file.mayWrite())
        file.setValue(key, value);
}

QVariant LocalStore::read(const QString& key, const QVariant& defaultValue) const
{
    return IniFile(path_).value(key, defaultValue);
}

void LocalStore::write(const QString& key, const QVariant& value)
{
    IniFile file(path_);
    if (file.mayWrite())
        file.setValue(key, value);
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
}

int LocalStore::moveTo(const QString& newPath)
{
    constexpr int done = 0;
    constexpr int notWritable = 2;
    // Moving a file onto itself would remove the groups just written.
    if (isSameFile(newPath, path_))
        return done;
    IniFile to(newPath);
    IniFile from(path_);
    if (!to.isWritable() || !to.mayWrite() || !from.mayWrite())
        return notWritable;
    moveDevices(from, to);
    moveConfig(from, to);
    to.sync();
    if (to.status() != QSettings::NoError)
        return notWritable;
    from.remove(deviceArray);
    from.remove(configGroup);
    return done;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Shows and changes the local list of devices, which holds its texts in a form that no editor writes.
#include "store/localstore.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int done = 0;
constexpr int refused = 1;
constexpr int misused = 2;

int fail(const QString& text, int code = misused)
{
    std::fprintf(stderr, "orva-devices: %s\n", qPrintable(text));
    return code;
}

int list()
{
    const QList<LocalDeviceRecord> devices = LocalStore::instance()->loadDevices();
    for (const LocalDeviceRecord& device : devices)
        std::printf("%s  type %d  channels %d  %s\n", qPrintable(device.uid), device.type,
            device.channel, qPrintable(device.nickname));
    return done;
}

bool isUid(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^[A-Z0-9]{20}$"));
    return form.match(text).hasMatch();
}

bool has(const QString& uid)
{
    const QList<LocalDeviceRecord> devices = LocalStore::instance()->loadDevices();
    return std::any_of(devices.begin(), devices.end(),
        [&](const LocalDeviceRecord& device) { return device.uid == uid; });
}

int add(const QString& uid, const QCommandLineParser& options)
{
    LocalDeviceRecord device;
    bool isType = false;
    bool isCount = false;
    device.uid = uid;
    device.nickname = options.value(QStringLiteral("name"));
    device.username = options.value(QStringLiteral("account"));
    device.password = options.value(QStringLiteral("password"));
    device.type = options.value(QStringLiteral("type")).toInt(&isType);
    device.channel = options.value(QStringLiteral("channels")).toInt(&isCount);
    constexpr int mostChannels = 256;
    if (!isType || !isCount || device.channel < 1 || device.channel > mostChannels)
        return fail(QStringLiteral("--type takes a number, --channels one from 1 to 256"));
    LocalStore::instance()->saveDevice(device);
    return has(uid) ? done : fail(QStringLiteral("the settings cannot be written"), refused);
}

int remove(const QString& uid)
{
    if (!has(uid))
        return fail(QStringLiteral("no such device: ") + uid, refused);
    LocalStore::instance()->removeDevice(uid);
    return has(uid) ? fail(QStringLiteral("the settings cannot be written"), refused) : done;
}

void addOptions(QCommandLineParser& options)
{
    const auto option = [&options](const char* name, const char* what, const char* fallback) {
        options.addOption({QString::fromLatin1(name), QString::fromLatin1(what),
            QStringLiteral("value"), QString::fromLatin1(fallback)});
    };
    option("name", "shown in the device list; else the UID", "");
    option("account", "the view account; else Admin", "");
    option("password", "the view password", "");
    option("type", "device type code: 7 for a camera, 2 for a recorder", "7");
    option("channels", "number of channels", "1");
    options.addPositionalArgument(QStringLiteral("command"), QStringLiteral("list, add or remove"));
    options.addPositionalArgument(QStringLiteral("uid"),
        QStringLiteral("20 characters of A-Z and 0-9"), QStringLiteral("[UID]"));
    options.addHelpOption();
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Quvane"));
    QCoreApplication::setApplicationName(QStringLiteral("ORVA"));
    QCommandLineParser options;
    addOptions(options);
    options.process(app);
    const QStringList words = options.positionalArguments();
    const QString command = words.value(0);
    const QString uid = words.value(1);
    if (command == QLatin1String("list") && words.size() == 1)
        return list();
    if (words.size() != 2)
        return fail(QStringLiteral("list, add UID or remove UID; see --help"));
    if (!isUid(uid))
        return fail(QStringLiteral("a UID has 20 characters of A-Z and 0-9"));
    if (command == QLatin1String("add"))
        return add(uid, options);
    if (command == QLatin1String("remove"))
        return remove(uid);
    return fail(QStringLiteral("unknown command: ") + command);
}

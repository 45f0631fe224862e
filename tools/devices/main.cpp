// SPDX-License-Identifier: GPL-3.0-or-later
// Shows and changes the local list of devices, which holds its texts in a form that no editor writes.
#include "store/localstore.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <optional>

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
    static const QRegularExpression form(QStringLiteral("\\A[A-Z0-9]{20}\\z"));
    return form.match(text).hasMatch();
}

std::optional<LocalDeviceRecord> known(const QString& uid)
{
    const QList<LocalDeviceRecord> devices = LocalStore::instance()->loadDevices();
    const auto at = std::find_if(devices.begin(), devices.end(),
        [&](const LocalDeviceRecord& device) { return device.uid == uid; });
    return at == devices.end() ? std::nullopt : std::make_optional(*at);
}

bool has(const QString& uid)
{
    return known(uid).has_value();
}

LocalDeviceRecord fresh(const QString& uid)
{
    constexpr int camera = 7;
    LocalDeviceRecord device;
    device.uid = uid;
    device.type = camera;
    device.channel = 1;
    return device;
}

// A known device keeps what no option names.
int add(const QString& uid, const QCommandLineParser& options)
{
    LocalDeviceRecord device = known(uid).value_or(fresh(uid));
    bool isType = true;
    bool isCount = true;
    const auto set = [&options](const char* name, QString& text) {
        if (options.isSet(QString::fromLatin1(name)))
            text = options.value(QString::fromLatin1(name));
    };
    const auto setNumber = [&options](const char* name, int& number, bool& isNumber) {
        if (options.isSet(QString::fromLatin1(name)))
            number = options.value(QString::fromLatin1(name)).toInt(&isNumber);
    };
    set("name", device.nickname);
    set("account", device.username);
    set("password", device.password);
    setNumber("type", device.type, isType);
    setNumber("channels", device.channel, isCount);
    constexpr int mostChannels = 256;
    if (!isType || !isCount || device.channel < 1 || device.channel > mostChannels)
        return fail(QStringLiteral("--type takes a number, --channels one from 1 to 256"));
    LocalStore::instance()->saveDevice(device);
    const auto stored = known(uid);
    const bool isStored = stored && stored->nickname == device.nickname
        && stored->username == device.username && stored->password == device.password
        && stored->type == device.type && stored->channel == device.channel;
    return isStored ? done
                    : fail(QStringLiteral("the device could not be stored as given"), refused);
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
    const auto option = [&options](const char* name, const char* what) {
        options.addOption(
            {QString::fromLatin1(name), QString::fromLatin1(what), QStringLiteral("value")});
    };
    option("name", "shown in the device list; else the UID");
    option("account", "the view account; else Admin");
    option("password", "the view password");
    option("type", "device type code: 7 for a camera, which it is at first, 2 for a recorder");
    option("channels", "number of channels, 1 at first");
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

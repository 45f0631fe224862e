// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/deployment.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <optional>

namespace {

using Error = Deployment::Error;

using Result = std::optional<Error>; // nothing: read

// Reads one value into `deployment`.
using Reader = Result (*)(const QString& key, const QJsonValue& value, Deployment& deployment);

struct Entry
{
    const char* key;
    Reader read;
};

Error expected(const QString& key, const char* what)
{
    return {key, QString::fromLatin1(what)};
}

template <std::size_t Size>
Result readObject(const QString& path, const QJsonValue& value, const Entry (&entries)[Size],
    Deployment& deployment)
{
    if (!value.isObject())
        return expected(path, "an object");
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QString key = path.isEmpty() ? it.key() : path + QLatin1Char('.') + it.key();
        const auto* entry = std::find_if(std::begin(entries), std::end(entries),
            [&](const Entry& e) { return it.key() == QLatin1String(e.key); });
        if (entry == std::end(entries))
            return expected(key, "a known key");
        if (Result error = entry->read(key, it.value(), deployment))
            return error;
    }
    return {};
}

Result readBaseUrl(const QString& key, const QJsonValue& value, Deployment& deployment)
{
    const QUrl url(value.toString(), QUrl::StrictMode);
    const bool web =
        url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    if (!value.isString() || !url.isValid() || !web || url.host().isEmpty())
        return expected(key, "a text with an http or https address");
    deployment.cloudBaseUrl = value.toString();
    while (deployment.cloudBaseUrl.endsWith(QLatin1Char('/')))
        deployment.cloudBaseUrl.chop(1);
    return {};
}

Result readCloud(const QString& key, const QJsonValue& value, Deployment& deployment)
{
    static constexpr Entry entries[] = {{"baseUrl", readBaseUrl}};
    return readObject(key, value, entries, deployment);
}

Result readBrand(const QString& key, const QJsonValue& value, Deployment& deployment)
{
    const int brand = value.toInt(-1);
    if (brand != 0 && brand != 149 && brand != 150 && brand != 151)
        return expected(key, "the number 0, 149, 150 or 151");
    deployment.brand = brand;
    return {};
}

Result readSearchScope(const QString& key, const QJsonValue& value, Deployment& deployment)
{
    const QString scope = value.toString();
    if (scope != QLatin1String("lan") && scope != QLatin1String("loopback"))
        return expected(key, "the text \"lan\" or \"loopback\"");
    deployment.searchScope = scope == QLatin1String("lan") ? Deployment::SearchScope::Lan
                                                           : Deployment::SearchScope::Loopback;
    return {};
}

Result readDecoder(const QString& key, const QJsonValue& value, Deployment& deployment)
{
    const QString decoder = value.toString();
    if (decoder != QLatin1String("throughput") && decoder != QLatin1String("lowDelay"))
        return expected(key, "the text \"throughput\" or \"lowDelay\"");
    deployment.decoder = decoder == QLatin1String("lowDelay") ? Deployment::Decoder::LowDelay
                                                              : Deployment::Decoder::Throughput;
    return {};
}

// "host:port" or "[v6 address]:port"
std::optional<Deployment::Endpoint> endpointOf(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A(?:\[([0-9A-Fa-f:.]+)\]|([A-Za-z0-9][A-Za-z0-9.-]*)):([0-9]{1,5})\z)"));
    const auto match = form.match(text);
    const uint port = match.captured(3).toUInt();
    if (!match.hasMatch() || port < 1 || port > 65535)
        return std::nullopt;
    const QString v6 = match.captured(1);
    if (!v6.isEmpty() && !QUrl(QStringLiteral("http://[%1]/").arg(v6), QUrl::StrictMode).isValid())
        return std::nullopt;
    return Deployment::Endpoint{match.captured(1) + match.captured(2), static_cast<quint16>(port)};
}

Result readAddressBook(const QString& key, const QJsonValue& value, Deployment& deployment)
{
    static const QRegularExpression uidForm(QStringLiteral(R"(\A[A-Z0-9]{20}\z)"));
    if (!value.isObject())
        return expected(key, "an object");
    const QJsonObject book = value.toObject();
    for (auto it = book.begin(); it != book.end(); ++it) {
        const QString entry = key + QLatin1Char('.') + it.key();
        if (!uidForm.match(it.key()).hasMatch())
            return expected(entry, "a UID of 20 characters A-Z 0-9 as the key");
        const auto endpoint = endpointOf(it.value().toString());
        if (!endpoint)
            return expected(entry, "a text of the form \"host:port\"");
        deployment.addressBook.insert(it.key(), *endpoint);
    }
    return {};
}

Result readLink(const QString& key, const QJsonValue& value, Deployment& deployment)
{
    static constexpr Entry entries[] = {
        {"searchScope", readSearchScope}, {"addressBook", readAddressBook}};
    return readObject(key, value, entries, deployment);
}

QStringList searchFolders()
{
    QStringList folders{QCoreApplication::applicationDirPath()};
    folders += QStandardPaths::standardLocations(QStandardPaths::AppConfigLocation);
    // The user's own folder holds settings, never a deployment.
    folders.removeAll(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    return folders;
}

void report(const QString& path, const Error& error)
{
    const QString key = error.key.isEmpty() ? QStringLiteral("(whole file)") : error.key;
    constexpr int longestKey = 120;
    QString line = QStringLiteral("%1: %2: expected %3; starting with the defaults")
                       .arg(path, key.left(longestKey), error.expected);
    // One harmless line, whatever stands in a key.
    for (QChar& c : line) {
        if (!c.isPrint())
            c = QLatin1Char('?');
    }
    std::fputs((line + QLatin1Char('\n')).toLocal8Bit().constData(), stderr);
}

Deployment read(QFile& file)
{
    // A pipe in its place would never end.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        report(file.fileName(), {{}, QStringLiteral("a readable file")});
        return {};
    }
    const auto parsed = Deployment::parse(file.readAll());
    if (const auto* error = std::get_if<Error>(&parsed)) {
        report(file.fileName(), *error);
        return {};
    }
    return std::get<Deployment>(parsed);
}

} // namespace

std::variant<Deployment, Error> Deployment::parse(const QByteArray& json)
{
    static constexpr Entry entries[] = {
        {"cloud", readCloud}, {"brand", readBrand}, {"link", readLink}, {"decoder", readDecoder}};
    QJsonParseError syntax{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &syntax);
    if (syntax.error != QJsonParseError::NoError)
        return Error{{},
            QStringLiteral("JSON (%1 at byte %2)").arg(syntax.errorString()).arg(syntax.offset)};
    Deployment deployment;
    const QJsonValue whole =
        document.isObject() ? QJsonValue(document.object()) : QJsonValue(document.array());
    if (const Result error = readObject({}, whole, entries, deployment))
        return *error;
    return deployment;
}

Deployment Deployment::load(const QStringList& folders)
{
    for (const QString& folder : folders) {
        QFile file(folder + QStringLiteral("/deployment.json"));
        if (file.exists())
            return read(file);
    }
    return {};
}

const Deployment& Deployment::instance()
{
    static const Deployment deployment = load(searchFolders());
    return deployment;
}

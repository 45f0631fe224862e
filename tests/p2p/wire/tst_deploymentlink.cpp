// SPDX-License-Identifier: GPL-3.0-or-later
#include "src/deploymentlink.h"
#include "store/deployment.h"
#include "testmain.h"

#include <QTest>

namespace {

const std::string uid = "ABCDEFGHIJ0123456789";

bool isDefault(const DeploymentLink& link)
{
    return !link.loopbackOnly && link.addressBook.empty();
}

// Both readers of the file as one text each, to be compared.
QString textOf(const DeploymentLink& link)
{
    QString text = link.loopbackOnly ? QStringLiteral("loopback") : QStringLiteral("lan");
    for (const auto& [name, endpoint] : link.addressBook)
        text += QStringLiteral(" %1=%2 %3")
                    .arg(QString::fromStdString(name), QString::fromStdString(endpoint.host))
                    .arg(endpoint.port);
    return text;
}

QString textOf(const std::variant<Deployment, Deployment::Error>& parsed)
{
    const auto* good = std::get_if<Deployment>(&parsed);
    const Deployment deployment = good != nullptr ? *good : Deployment();
    QString text = deployment.searchScope == Deployment::SearchScope::Loopback
        ? QStringLiteral("loopback")
        : QStringLiteral("lan");
    for (auto it = deployment.addressBook.begin(); it != deployment.addressBook.end(); ++it)
        text += QStringLiteral(" %1=%2 %3").arg(it.key(), it->host).arg(it->port);
    return text;
}

DeploymentLink parse(const QByteArray& json)
{
    return DeploymentLink::parse({json.constData(), static_cast<std::size_t>(json.size())});
}

// A link part with one entry in its book. The scope shows whether the part was read: what is
// malformed gives "lan".
QByteArray withEntry(const QByteArray& key, const QByteArray& value)
{
    return R"({"searchScope": "loopback", "addressBook": {")" + key + "\": " + value + "}}";
}

QByteArray withEndpoint(const QByteArray& endpoint)
{
    return withEntry(QByteArray::fromStdString(uid), '"' + endpoint + '"');
}

} // namespace

class TestDeploymentLink final : public QObject
{
    Q_OBJECT

private slots:
    void withoutALinkPartTheDefaultsCount()
    {
        QVERIFY(isDefault(DeploymentLink::parse("{}")));
        QVERIFY(isDefault(DeploymentLink::parse(R"({"link": {}})")));
        QVERIFY(isDefault(DeploymentLink::parse(R"({"brand": 150})")));
    }

    void scopeIsRead()
    {
        const auto scope = [](const char* json) {
            return DeploymentLink::parse(json).loopbackOnly;
        };
        QVERIFY(scope(R"({"link": {"searchScope": "loopback"}})"));
        QVERIFY(!scope(R"({"link": {"searchScope": "lan"}})"));
    }

    void addressBookIsRead()
    {
        const auto link = DeploymentLink::parse(R"({"link": {"addressBook": {
            "ABCDEFGHIJ0123456789": "camera.example.com:50000",
            "OTHERDEVICE000000001": "[fd00::1]:1"}}})");
        QCOMPARE(link.addressBook.size(), std::size_t{2});
        const auto& first = link.addressBook.at(uid);
        QVERIFY(first.host == "camera.example.com");
        QCOMPARE(first.port, std::uint16_t{50000});
        QVERIFY(link.addressBook.at("OTHERDEVICE000000001").host == "fd00::1");
    }

    void malformedPartGivesTheDefaultsForAllOfIt()
    {
        QVERIFY(isDefault(DeploymentLink::parse(R"({"link": {"searchScope": "loopback",
            "addressBook": {"ABCDEFGHIJ0123456789": "host:1", "SHORT": "host:1"}}})")));
        QVERIFY(isDefault(DeploymentLink::parse(R"({"link": {"searchScope": "world",
            "addressBook": {"ABCDEFGHIJ0123456789": "host:1"}}})")));
    }

    void otherPartsAreNoneOfItsBusiness()
    {
        QVERIFY(DeploymentLink::parse(
            R"({"brand": "none", "later": [1], "link": {"searchScope": "loopback"}})")
                    .loopbackOnly);
    }

    void everyPrefixGivesTheDefaults()
    {
        const std::string json = R"({"link": {"searchScope": "loopback"}})";
        QVERIFY(DeploymentLink::parse(json).loopbackOnly);
        for (std::size_t length = 0; length < json.size(); ++length)
            QVERIFY(isDefault(DeploymentLink::parse(json.substr(0, length))));
    }

    void textThatIsNoObjectGivesTheDefaults()
    {
        for (const char* json : {"", "null", "1", "[]", R"(["link"])", "\"link\"", "{]", "{}{}",
                 R"({"link": {"searchScope": "loopback"}} x)",
                 R"({"link": {"searchScope": "loopback"}, "a": "\xff"})"})
            QVERIFY2(isDefault(DeploymentLink::parse(json)), json);
    }

    void deepNestingIsHarmless()
    {
        const std::string open(50000, '[');
        QVERIFY(isDefault(DeploymentLink::parse(R"({"link": )" + open)));
        QVERIFY(isDefault(
            DeploymentLink::parse(R"({"link": )" + open + std::string(50000, ']') + '}')));
    }

    // The client reads the same file by another way, and must not believe anything else.
    void clientReadsTheSame_data()
    {
        QTest::addColumn<QByteArray>("part");
        const auto row = [](const QByteArray& part) {
            QTest::newRow(part.left(120).constData()) << part;
        };
        for (const char* part : {"null", "1", "[]", "\"loopback\"", "{}",
                 R"({"searchScope": "loopback"})", R"({"searchScope": "Loopback"})",
                 R"({"searchScope": ""})", R"({"searchScope": null})", R"({"searchScope": 1})",
                 R"({"searchScope": ["loopback"]})", R"({"searchScope": "loopback\u0000"})",
                 R"({"searchScope": "lan", "searchScope": "loopback"})",
                 R"({"searchScope": "loopback", "addressBook": {}})",
                 R"({"searchScope": "loopback", "addressBook": null})",
                 R"({"searchScope": "loopback", "addressBook": []})",
                 R"({"searchScope": "loopback", "later": 1})",
                 R"({"searchScope": "loopback", "searchscope": "lan"})"})
            row(part);
        for (const char* key :
            {"ABCDEFGHIJ0123456789", "ABCDEFGHIJ012345678", "ABCDEFGHIJ01234567890",
                "abcdefghij0123456789", "ABCDEFGHIJ012345678\\n", "", "ABCDEFGHIJ012345678\\u00c4"})
            row(withEntry(key, "\"host:1\""));
        for (const char* value : {"null", "1", "{}", "[\"host:1\"]"})
            row(withEntry(QByteArray::fromStdString(uid), value));
        for (const char* endpoint :
            {"host:1", "192.0.2.1:50000", "a-b.c:65535", "host:65536", "host:0", "host:", "host",
                "", ":1", "host:-1", "host:+1", "host: 1", "host:1 ", "host:1x", "host:0x1",
                "host:00001", "host:000001", " host:1", "ho st:1", "host\\n:1", "under_score:1",
                "-host:1", ".host:1", "host:1:2", "h\\u00f6st:1", "host\\u0000:1", "[::1]:1",
                "[fd00::1]:50000", "[::ffff:192.0.2.1]:1", "::1:1", "fd00::1:1", "[]:1", "[::1:1",
                "::1]:1", "[host]:1", "[1]:1", "[:::]:1", "[::1]", "[::1]x:1", "[fe80::1%eth0]:1",
                "[[::1]]:1", "http://host:1", "user@host:1", "host/:1"})
            row(withEndpoint(endpoint));
    }
    void clientReadsTheSame()
    {
        QFETCH(const QByteArray, part);
        const QByteArray json = "{\"link\": " + part + "}";
        QCOMPARE(textOf(parse(json)), textOf(Deployment::parse(json)));
    }
};

ORVA_TEST(TestDeploymentLink)
#include "tst_deploymentlink.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "inifile.h"
#include "stderrcapture.h"
#include "store/deployment.h"
#include "testmain.h"

#include <QTemporaryDir>

#include <sys/stat.h>

class TestDeployment final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void emptyObjectGivesTheDefaults();
    void everyKeyIsRead();
    void everyBrandIsRead();
    void bothDecodersAreRead();
    void slashesAtTheEndOfTheAddressGo_data();
    void slashesAtTheEndOfTheAddressGo();
    void endpointsAreRead_data();
    void endpointsAreRead();
    void manyEntriesOfTheAddressBookAreRead();
    void byteOrderMarkIsSkipped();
    void wrongValueNamesItsKey_data();
    void wrongValueNamesItsKey();
    void textThatIsNoJsonIsRefused_data();
    void textThatIsNoJsonIsRefused();
    void everyPrefixIsRefused();
    void missingFileGivesTheDefaultsInSilence();
    void goodFileIsSilent();
    void firstFolderWins();
    void folderWithoutAFileIsPassedOver();
    void brokenFirstFileHidesTheSecond();
    void malformedFileIsOneLineThatNamesAll_data();
    void malformedFileIsOneLineThatNamesAll();
    void directoryInItsPlaceIsOneLine();
    void pipeInItsPlaceDoesNotHang();
    void lineBreakInAKeyIsStillOneLine_data();
    void lineBreakInAKeyIsStillOneLine();

private:
    QString put(const QString& folder, const QByteArray& json);
    QString folder(const QString& name) const { return root_->filePath(name); }

    std::unique_ptr<QTemporaryDir> root_;
};

namespace {

const char* const uid = "ABCDEFGHIJ0123456789";

const char* const full = R"({
    "cloud": { "baseUrl": "https://cloud.example.com/v1" },
    "brand": 150,
    "link": {
        "searchScope": "loopback",
        "addressBook": { "ABCDEFGHIJ0123456789": "127.0.0.1:20721" }
    },
    "decoder": "lowDelay"
})";

bool isDefault(const Deployment& deployment)
{
    return deployment.cloudBaseUrl.isEmpty() && deployment.brand == 0
        && deployment.searchScope == Deployment::SearchScope::Lan
        && deployment.decoder == Deployment::Decoder::Throughput
        && deployment.addressBook.isEmpty();
}

Deployment read(const QByteArray& json)
{
    const auto parsed = Deployment::parse(json);
    if (const auto* error = std::get_if<Deployment::Error>(&parsed))
        qFatal("%s: %s", qPrintable(error->key), qPrintable(error->expected));
    return std::get<Deployment>(parsed);
}

QByteArray addressBook(const QByteArray& key, const QByteArray& value)
{
    return R"({"link":{"addressBook":{")" + key + R"(":)" + value + "}}}";
}

} // namespace

void TestDeployment::init()
{
    root_ = std::make_unique<QTemporaryDir>();
}

void TestDeployment::cleanup()
{
    root_.reset();
}

QString TestDeployment::put(const QString& name, const QByteArray& json)
{
    QString path = folder(name) + "/deployment.json";
    writeBytes(path, json);
    return path;
}

void TestDeployment::emptyObjectGivesTheDefaults()
{
    QVERIFY(isDefault(read("{}")));
    QVERIFY(isDefault(read(" \r\n{ } \n")));
    QVERIFY(isDefault(read(R"({"cloud":{},"link":{"addressBook":{}}})")));
}

void TestDeployment::everyKeyIsRead()
{
    const Deployment deployment = read(full);
    QCOMPARE(deployment.cloudBaseUrl, QString("https://cloud.example.com/v1"));
    QCOMPARE(deployment.brand, 150);
    QVERIFY(deployment.searchScope == Deployment::SearchScope::Loopback);
    QCOMPARE(deployment.addressBook.size(), 1);
    QCOMPARE(deployment.addressBook.value(uid).host, QString("127.0.0.1"));
    QCOMPARE(deployment.addressBook.value(uid).port, quint16(20721));
    QVERIFY(deployment.decoder == Deployment::Decoder::LowDelay);
    QVERIFY(read(R"({"link":{"searchScope":"lan"}})").searchScope == Deployment::SearchScope::Lan);
}

void TestDeployment::everyBrandIsRead()
{
    for (const int brand : {0, 149, 150, 151})
        QCOMPARE(read("{\"brand\":" + QByteArray::number(brand) + "}").brand, brand);
    QCOMPARE(read("{\"brand\":149.0}").brand, 149);
}

void TestDeployment::bothDecodersAreRead()
{
    const auto decoder = [](const char* json) { return read(json).decoder; };
    QVERIFY(decoder(R"({"decoder":"lowDelay"})") == Deployment::Decoder::LowDelay);
    QVERIFY(decoder(R"({"decoder":"throughput"})") == Deployment::Decoder::Throughput);
    QVERIFY(decoder(R"({"brand":149})") == Deployment::Decoder::Throughput);
}

void TestDeployment::slashesAtTheEndOfTheAddressGo_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("address");
    QTest::newRow("none") << "https://a.example"
                          << "https://a.example";
    QTest::newRow("one") << "https://a.example/"
                         << "https://a.example";
    QTest::newRow("three") << "http://a.example:8080///"
                           << "http://a.example:8080";
    QTest::newRow("path") << "https://a.example/api/v2/"
                          << "https://a.example/api/v2";
    QTest::newRow("IPv4") << "http://10.0.0.1:81"
                          << "http://10.0.0.1:81";
    QTest::newRow("IPv6") << "http://[::1]:81/"
                          << "http://[::1]:81";
}

void TestDeployment::slashesAtTheEndOfTheAddressGo()
{
    QFETCH(QString, written);
    const auto json = QString(R"({"cloud":{"baseUrl":"%1"}})").arg(written).toUtf8();
    QTEST(read(json).cloudBaseUrl, "address");
}

void TestDeployment::endpointsAreRead_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");
    QTest::newRow("name") << "camera:1"
                          << "camera" << 1;
    QTest::newRow("long name") << "cam-1.yard.example.com:65535"
                               << "cam-1.yard.example.com" << 65535;
    QTest::newRow("name of digits") << "1:80"
                                    << "1" << 80;
    QTest::newRow("IPv4") << "192.168.1.20:20721"
                          << "192.168.1.20" << 20721;
    QTest::newRow("IPv6") << "[2001:db8::1]:20721"
                          << "2001:db8::1" << 20721;
    QTest::newRow("IPv6 loopback") << "[::1]:20721"
                                   << "::1" << 20721;
    QTest::newRow("IPv6 with IPv4") << "[::ffff:10.0.0.1]:99"
                                    << "::ffff:10.0.0.1" << 99;
}

void TestDeployment::endpointsAreRead()
{
    QFETCH(QString, written);
    QFETCH(QString, host);
    QFETCH(int, port);
    const auto book = read(addressBook(uid, '"' + written.toUtf8() + '"')).addressBook;
    QCOMPARE(book.value(uid).host, host);
    QCOMPARE(int(book.value(uid).port), port);
}

void TestDeployment::manyEntriesOfTheAddressBookAreRead()
{
    QByteArray entries;
    for (int i = 0; i < 2000; ++i) {
        const QByteArray number = QByteArray::number(i).rightJustified(20, '0');
        entries += (i == 0 ? "\"" : ",\"") + number + "\":\"camera:1\"";
    }
    QCOMPARE(read("{\"link\":{\"addressBook\":{" + entries + "}}}").addressBook.size(), 2000);
}

void TestDeployment::byteOrderMarkIsSkipped()
{
    QCOMPARE(read(QByteArray("\xEF\xBB\xBF") + full).brand, 150);
}

namespace {

void addWrongTypes()
{
    const auto row = [](const char* json, const char* key, const char* expected) {
        QTest::newRow(json) << QByteArray(json) << key << expected;
    };
    const char* const address = "a text with an http or https address";
    const char* const brand = "the number 0, 149, 150 or 151";
    const char* const scope = "the text \"lan\" or \"loopback\"";

    row("[]", "", "an object");
    row(R"({"cloud":"x"})", "cloud", "an object");
    row(R"({"cloud":null})", "cloud", "an object");
    row(R"({"cloud":[]})", "cloud", "an object");
    row(R"({"link":1})", "link", "an object");
    row(R"({"link":{"addressBook":[]}})", "link.addressBook", "an object");
    row(R"({"link":{"addressBook":""}})", "link.addressBook", "an object");
    for (const char* value : {"1", "null", "true", "[]", "{}"})
        QTest::newRow(qPrintable(QString("baseUrl %1").arg(value)))
            << QByteArray(R"({"cloud":{"baseUrl":)") + value + "}}"
            << "cloud.baseUrl" << address;
    for (const char* value : {"\"149\"", "null", "true", "false", "[]", "{}", "1", "148", "152",
             "-1", "149.5", "1e300", "4294967445"})
        QTest::newRow(qPrintable(QString("brand %1").arg(value)))
            << QByteArray("{\"brand\":") + value + "}"
            << "brand" << brand;
    for (const char* value : {"0", "null", "true", "\"LAN\"", "\"\"", "\"wan\"", "\"lan \""})
        QTest::newRow(qPrintable(QString("searchScope %1").arg(value)))
            << QByteArray(R"({"link":{"searchScope":)") + value + "}}"
            << "link.searchScope" << scope;
    for (const char* value :
        {"0", "null", "true", "[]", "{}", "\"\"", "\"lowdelay\"", "\"lowDelay \"", "\"fast\""})
        QTest::newRow(qPrintable(QString("decoder %1").arg(value)))
            << QByteArray("{\"decoder\":") + value + "}"
            << "decoder"
            << "the text \"throughput\" or \"lowDelay\"";
}

void addWrongAddresses()
{
    for (const char* value :
        {"", " ", "ftp://a.example", "a.example", "//a.example", "https://", "https:///path",
            "https://a b", "https://a.example:99999", "file:///etc/passwd", " https://a.example"})
        QTest::newRow(qPrintable(QString("address '%1'").arg(value)))
            << QByteArray(R"({"cloud":{"baseUrl":")") + value + "\"}}"
            << "cloud.baseUrl"
            << "a text with an http or https address";
}

void addUnknownKeys()
{
    const auto row = [](const char* json, const char* key) {
        QTest::newRow(json) << QByteArray(json) << key << "a known key";
    };
    row(R"({"brands":0})", "brands");
    row(R"({"Brand":0})", "Brand");
    row(R"({"":0})", "");
    row(R"({"brand":0,"x":{}})", "x");
    row(R"({"cloud":{"url":"https://a.example"}})", "cloud.url");
    row(R"({"link":{"scope":"lan"}})", "link.scope");
    row(R"({"link":{"decoder":"lowDelay"}})", "link.decoder");
    row(R"({"decoders":"lowDelay"})", "decoders");
    row(R"({"cloud.baseUrl":"https://a.example"})", "cloud.baseUrl");
}

void addWrongUids()
{
    for (const char* key : {"", "ABCDEFGHIJ012345678", "ABCDEFGHIJ01234567890",
             "abcdefghij0123456789", "ABCDEFGHIJ012345678-", "ABCDEFGHIJ012345678 ",
             "ABCDE-FGHIJ-01234-56789", "ABCDEFGHIJ012345678\xC3\x84"})
        QTest::newRow(qPrintable(QString("UID '%1'").arg(QString::fromUtf8(key))))
            << addressBook(key, "\"camera:1\"") << QString("link.addressBook.") + key
            << "a UID of 20 characters A-Z 0-9 as the key";
}

void addWrongEndpoints()
{
    for (const char* value :
        {"\"\"", "\"camera\"", "\"camera:\"", "\":80\"", "\":\"", "\"camera:0\"",
            "\"camera:65536\"", "\"camera:99999\"", "\"camera:100000\"", "\"camera:http\"",
            "\"camera:+80\"", "\"camera:-1\"", "\"camera:8.0\"", "\"camera: 80\"", "\"camera:80 \"",
            "\" camera:80\"", "\"cam era:80\"", "\"camera:80\\n\"", "\"camera:80:81\"",
            "\"-camera:80\"", "\"http://camera:80\"", "\"camera:80/\"", "\"::1:80\"", "\"[::1]\"",
            "\"[::1]80\"", "\"[::1:80\"", "\"[]:80\"", "\"[camera]:80\"", "\"[fe80::1%eth0]:80\"",
            "\"[:]:80\"", "\"[1:2]:80\"", "\"[10.0.0.1]:80\"", "\"[::1::2]:80\"",
            "\"[12345::1]:80\"", "80", "null", "true", "[]", "{\"host\":\"a\"}"})
        QTest::newRow(qPrintable(QString("endpoint %1").arg(value)))
            << addressBook(uid, value) << "link.addressBook.ABCDEFGHIJ0123456789"
            << "a text of the form \"host:port\"";
}

} // namespace

void TestDeployment::wrongValueNamesItsKey_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    addWrongTypes();
    addWrongAddresses();
    addUnknownKeys();
    addWrongUids();
    addWrongEndpoints();
}

void TestDeployment::wrongValueNamesItsKey()
{
    QFETCH(QByteArray, json);
    const auto parsed = Deployment::parse(json);
    const auto* error = std::get_if<Deployment::Error>(&parsed);
    QVERIFY(error != nullptr);
    QTEST(error->key, "key");
    QTEST(error->expected, "expected");
}

void TestDeployment::textThatIsNoJsonIsRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("blank") << QByteArray(" \n");
    QTest::newRow("word") << QByteArray("hello");
    QTest::newRow("number") << QByteArray("149");
    QTest::newRow("text") << QByteArray("\"brand\"");
    QTest::newRow("comment") << QByteArray("{} // none");
    QTest::newRow("comma at the end") << QByteArray("{\"brand\":0,}");
    QTest::newRow("two objects") << QByteArray("{}{}");
    QTest::newRow("zero byte behind") << QByteArray("{}\0", 3);
    QTest::newRow("zero byte inside") << QByteArray("{\"brand\":\0 0}", 13);
    QTest::newRow("zero bytes only") << QByteArray(4096, '\0');
    QTest::newRow("binary") << QByteArray("\x7F"
                                          "ELF\x02\x01\x01\x80\xFF");
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFE{\0}\0", 6);
    QTest::newRow("broken UTF-8") << QByteArray("{\"br\xC3\":0}");
    QTest::newRow("100,000 open arrays") << QByteArray(100000, '[');
    QTest::newRow("100,000 open objects") << QByteArray("{\"cloud\":").repeated(100000);
    QTest::newRow("deep and closed")
        << "{\"cloud\":" + QByteArray(50000, '[') + QByteArray(50000, ']') + "}";
}

void TestDeployment::textThatIsNoJsonIsRefused()
{
    QFETCH(QByteArray, json);
    const auto parsed = Deployment::parse(json);
    const auto* error = std::get_if<Deployment::Error>(&parsed);
    QVERIFY(error != nullptr);
    QCOMPARE(error->key, QString());
    QVERIFY2(error->expected.startsWith("JSON ("), qPrintable(error->expected));
    QVERIFY(!error->expected.contains('\n'));
}

void TestDeployment::everyPrefixIsRefused()
{
    const QByteArray whole(full);
    for (int length = 0; length < whole.size(); ++length)
        QVERIFY(std::holds_alternative<Deployment::Error>(Deployment::parse(whole.left(length))));
}

void TestDeployment::missingFileGivesTheDefaultsInSilence()
{
    StderrCapture capture;
    const Deployment none = Deployment::load({});
    const Deployment missing = Deployment::load({folder("a"), "/nowhere", ""});
    QCOMPARE(capture.text(), QByteArray());
    QVERIFY(isDefault(none));
    QVERIFY(isDefault(missing));
}

void TestDeployment::goodFileIsSilent()
{
    put("a", full);
    StderrCapture capture;
    const Deployment deployment = Deployment::load({folder("a")});
    QCOMPARE(capture.text(), QByteArray());
    QCOMPARE(deployment.brand, 150);
}

void TestDeployment::firstFolderWins()
{
    put("a", R"({"brand":149})");
    put("b", full);
    const Deployment deployment = Deployment::load({folder("a"), folder("b")});
    QCOMPARE(deployment.brand, 149);
    QVERIFY(deployment.cloudBaseUrl.isEmpty());
}

void TestDeployment::folderWithoutAFileIsPassedOver()
{
    put("b", R"({"brand":151})");
    QDir().mkpath(folder("a"));
    QCOMPARE(Deployment::load({"/nowhere", folder("a"), folder("b")}).brand, 151);
}

void TestDeployment::brokenFirstFileHidesTheSecond()
{
    put("a", "{");
    put("b", full);
    StderrCapture capture;
    const Deployment deployment = Deployment::load({folder("a"), folder("b")});
    QCOMPARE(capture.text().count('\n'), 1);
    QVERIFY(isDefault(deployment));
}

void TestDeployment::malformedFileIsOneLineThatNamesAll_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("nested key") << QByteArray(R"({"brand":149,"link":{"searchScope":"wan"}})")
                                << QByteArray("link.searchScope")
                                << QByteArray("expected the text \"lan\" or \"loopback\"");
    QTest::newRow("unknown key") << QByteArray(R"({"brand":149,"colour":1})")
                                 << QByteArray("colour") << QByteArray("expected a known key");
    QTest::newRow("no JSON") << QByteArray(R"({"brand":149)") << QByteArray("(whole file)")
                             << QByteArray("expected JSON (");
    QTest::newRow("no object") << QByteArray("[149]") << QByteArray("(whole file)")
                               << QByteArray("expected an object");
    QTest::newRow("place holders") << QByteArray(R"({"%1%2%3":1})") << QByteArray("%1%2%3")
                                   << QByteArray("expected a known key");
}

void TestDeployment::malformedFileIsOneLineThatNamesAll()
{
    QFETCH(QByteArray, json);
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, expected);
    const QString path = put("a", json);
    StderrCapture capture;
    const Deployment deployment = Deployment::load({folder("a")});
    const QByteArray line = capture.text();
    QVERIFY(isDefault(deployment));
    QCOMPARE(line.count('\n'), 1);
    QVERIFY(line.endsWith('\n'));
    QVERIFY2(line.startsWith(path.toLocal8Bit() + ": " + key + ": " + expected), line.constData());
}

void TestDeployment::directoryInItsPlaceIsOneLine()
{
    QDir().mkpath(folder("a/deployment.json"));
    StderrCapture capture;
    const Deployment deployment = Deployment::load({folder("a")});
    const QByteArray line = capture.text();
    QVERIFY(isDefault(deployment));
    QCOMPARE(line.count('\n'), 1);
    QVERIFY2(line.contains("a/deployment.json: (whole file): expected a readable file"),
        line.constData());
}

void TestDeployment::pipeInItsPlaceDoesNotHang()
{
    QDir().mkpath(folder("a"));
    QCOMPARE(mkfifo(qPrintable(folder("a/deployment.json")), 0600), 0);
    StderrCapture capture;
    QVERIFY(isDefault(Deployment::load({folder("a")})));
    QVERIFY(capture.text().contains("expected a readable file"));
}

void TestDeployment::lineBreakInAKeyIsStillOneLine_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("line feed") << QByteArray(R"(a\nb)");
    QTest::newRow("carriage return") << QByteArray(R"(a\rb)");
    QTest::newRow("zero") << QByteArray(R"(a\u0000b)");
    QTest::newRow("terminal escape") << QByteArray(R"(a\u001b[31mb)");
}

void TestDeployment::lineBreakInAKeyIsStillOneLine()
{
    QFETCH(QByteArray, key);
    put("a", "{\"" + key + "\":1}");
    StderrCapture capture;
    const Deployment deployment = Deployment::load({folder("a")});
    const QByteArray line = capture.text();
    QVERIFY(isDefault(deployment));
    QCOMPARE(line.count('\n'), 1);
    QVERIFY(line.endsWith("starting with the defaults\n"));
    for (const char c : line.chopped(1))
        QVERIFY2(static_cast<unsigned char>(c) >= ' ', line.constData());
}

ORVA_TEST(TestDeployment)

#include "tst_deployment.moc"

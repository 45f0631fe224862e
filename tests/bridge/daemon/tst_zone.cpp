// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "zone.h"

#include <QFile>
#include <QTest>

class TestZone final : public QObject
{
    Q_OBJECT

private slots:
    void knownZonesHaveTheirOffsets_data();
    void knownZonesHaveTheirOffsets();
    void namesOutOfFormAreUnknown_data();
    void namesOutOfFormAreUnknown();
    void prefixesOfAFileAreRefused();
    void changedBytesNeverCrash();
};

namespace {

constexpr std::int64_t january2024 = 1704067200;
constexpr std::int64_t july2024 = 1719792000;

std::string berlin()
{
    QFile file("/usr/share/zoneinfo/Europe/Berlin");
    file.open(QFile::ReadOnly);
    return file.readAll().toStdString();
}

} // namespace

void TestZone::knownZonesHaveTheirOffsets_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("winter");
    QTest::addColumn<int>("summer");
    QTest::newRow("with summer time") << QByteArray("Europe/Berlin") << 3600 << 7200;
    QTest::newRow("west") << QByteArray("America/New_York") << -18000 << -14400;
    QTest::newRow("half an hour") << QByteArray("Asia/Kolkata") << 19800 << 19800;
    QTest::newRow("three parts") << QByteArray("America/Argentina/Salta") << -10800 << -10800;
    QTest::newRow("UTC") << QByteArray("UTC") << 0 << 0;
    QTest::newRow("fixed") << QByteArray("UTC+05:45") << 20700 << 20700;
    QTest::newRow("fixed, west") << QByteArray("UTC-03:30") << -12600 << -12600;
    QTest::newRow("GMT as a client writes it") << QByteArray("Etc/UTC+5") << -18000 << -18000;
}

void TestZone::knownZonesHaveTheirOffsets()
{
    QFETCH(QByteArray, name);
    const auto zone = Zone::load(name.toStdString());
    QVERIFY(zone.has_value());
    QTEST(zone->offsetAt(january2024), "winter");
    QTEST(zone->offsetAt(july2024), "summer");
}

void TestZone::namesOutOfFormAreUnknown_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char* name :
        {"", "Nowhere/Atall", "Europe", "Europe/", "/etc/localtime", "/usr/share/zoneinfo/UTC",
            "../../../etc/passwd", "Europe/../UTC", "./UTC", "Europe//UTC", "zone.tab", "UTC+25:00",
            "UTC+1:00", "UTC*01:00", "UTC+01:0x", "Europe/Ber lin"})
        QTest::newRow(name) << QByteArray(name);
    QTest::newRow("zero within") << QByteArray("UTC\0/x", 6);
    QTest::newRow("long") << QByteArray(65, 'A');
    QTest::newRow("very long") << QByteArray(100000, 'A');
}

void TestZone::namesOutOfFormAreUnknown()
{
    QFETCH(QByteArray, name);
    QVERIFY(!Zone::load(name.toStdString()).has_value());
}

void TestZone::prefixesOfAFileAreRefused()
{
    const std::string file = berlin();
    QVERIFY(Zone::parse(file).has_value());
    const auto rule = file.rfind('\n', file.size() - 2); // behind the tables
    // Some of the tables at the end are not read.
    for (std::size_t size = 0; size < rule / 2; ++size)
        QVERIFY(!Zone::parse(std::string_view(file).substr(0, size)).has_value());
}

void TestZone::changedBytesNeverCrash()
{
    const std::string file = berlin();
    QVERIFY(!file.empty());
    for (std::size_t i = 0; i < file.size(); ++i) {
        std::string changed = file;
        changed[i] = static_cast<char>(changed[i] ^ 0xff);
        const auto zone = Zone::parse(changed);
        if (zone)
            zone->offsetAt(july2024);
    }
}

ORVA_TEST(TestZone)
#include "tst_zone.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/firmware.h"
#include "model/channel.h"
#include "testmain.h"

#include <QTest>

class TestFirmware final : public QObject
{
    Q_OBJECT

private slots:
    void noVersionBeforeTheDeviceAnswers();
    void versionEndsWithItsZero();
    void versionWithoutAZeroEndsWithItsBlock();
    void noChannelCanDoAll();
    void aSilentDeviceCanDoNeither();
    void whatVersionsCan_data();
    void whatVersionsCan();
    void aBlockWithoutAZeroIsReadToItsEnd();
};

namespace {

QByteArray block(const QByteArray& version)
{
    return version.leftJustified(64, '\0', true);
}

void addRow(const char* version, bool seeks, bool resumesByStart)
{
    const QByteArray name = QByteArray(version).replace('\x01', "(1)");
    QTest::newRow(name.isEmpty() ? "(empty)" : name.constData())
        << QByteArray(version) << seeks << resumesByStart;
}

void addVersionsWithoutADot()
{
    addRow("", false, false);
    addRow("1", false, false);
    addRow("12345", false, false);
    addRow("\x01", false, false);
}

// "01" at the twelfth letter makes the family.
void addUsualVersions()
{
    addRow("1.0", true, true);
    addRow("1.4.9", true, true);
    addRow("1.5.0", true, false);
    addRow("01.04.23", true, true);
    addRow("01.05.23", true, false);
    addRow("2.10.1", true, false);
    addRow("0.0", true, true);
    addRow("V1.2", true, true);
    addRow("1.", true, true);
    addRow("1.x", true, true);
    addRow("1.-1", true, true);
    addRow("1.4.0000000"
           "01",
        true, false);
    addRow("1.4.0000000"
           "01.7",
        true, false);
    addRow("1.4.0000000"
           "02",
        true, true);
    addRow("1.4.000000"
           "01",
        true, true);
    addRow("1.4.00000000"
           "01",
        true, true);
    addRow("1.5.0000000"
           "01",
        true, false);
}

// The only first parts that do not sort behind the character 1: that one, and none.
void addVersionsBelowAnyDigit()
{
    addRow(".9", false, false);
    addRow(".1", false, true);
    addRow("\x01\x01.1", true, true);
    addRow("\x01"
           "1.1",
        true, true);
    addRow("\x01.4.9", false, true);
    addRow("\x01.5", false, false);
    addRow("\x01.5.-1", false, false);
    addRow("\x01.5.0", true, false);
    addRow("\x01.5.x", true, false);
    addRow("\x01.6", true, false);
    addRow("\x01.7.0", true, false);
    addRow("\x01.x", false, true);
}

void addVersionsOfTheFamilyBelowAnyDigit()
{
    addRow("\x01.2.9.00000"
           "01",
        false, false);
    addRow("\x01.3.1.00000"
           "01",
        false, false);
    addRow("\x01.3.2.00000"
           "01",
        true, false);
    addRow("\x01.3.3.00000"
           "01",
        true, false);
    addRow("\x01.3.x.00000"
           "01",
        false, false);
    addRow("\x01.4.0.00000"
           "01",
        true, false);
    addRow("\x01.5.0.00000"
           "01",
        true, false);
    addRow("\x01.000000003"
           "01",
        true, false); // 301
    addRow("\x01.000000000"
           "01",
        false, false); // 1
}

} // namespace

void TestFirmware::noVersionBeforeTheDeviceAnswers()
{
    const Channel channel(nullptr, 0);
    QCOMPARE(firmwareVersion(channel), QString());
}

void TestFirmware::versionEndsWithItsZero()
{
    Channel channel(nullptr, 0);
    channel.setVersion(block(QByteArray("1.4.9\0 rest", 11)).constData());
    QCOMPARE(firmwareVersion(channel), QStringLiteral("1.4.9"));
    channel.setVersion(block("\xe4.1").constData());
    QCOMPARE(firmwareVersion(channel), QStringLiteral("\u00e4.1"));
}

void TestFirmware::versionWithoutAZeroEndsWithItsBlock()
{
    Channel channel(nullptr, 0);
    const QByteArray text = "1.4." + QByteArray(60, '7');
    channel.setVersion((text + "88").constData());
    QCOMPARE(firmwareVersion(channel), QString::fromLatin1(text));
}

void TestFirmware::noChannelCanDoAll()
{
    QVERIFY(firmwareCanSeek(nullptr));
    QVERIFY(firmwareResumesByStart(nullptr));
}

void TestFirmware::aSilentDeviceCanDoNeither()
{
    const Channel channel(nullptr, 0);
    QVERIFY(!firmwareCanSeek(&channel));
    QVERIFY(!firmwareResumesByStart(&channel));
}

void TestFirmware::whatVersionsCan_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<bool>("seeks");
    QTest::addColumn<bool>("resumesByStart");
    addVersionsWithoutADot();
    addUsualVersions();
    addVersionsBelowAnyDigit();
    addVersionsOfTheFamilyBelowAnyDigit();
}

void TestFirmware::whatVersionsCan()
{
    QFETCH(QByteArray, version);
    Channel channel(nullptr, 0);
    channel.setVersion(block(version).constData());
    QTEST(firmwareCanSeek(&channel), "seeks");
    QTEST(firmwareResumesByStart(&channel), "resumesByStart");
}

void TestFirmware::aBlockWithoutAZeroIsReadToItsEnd()
{
    Channel channel(nullptr, 0);
    channel.setVersion(QByteArray(64, '1').constData());
    QVERIFY(!firmwareCanSeek(&channel));
    QVERIFY(!firmwareResumesByStart(&channel));
    channel.setVersion((QByteArray(62, '1') + ".4").constData());
    QVERIFY(firmwareCanSeek(&channel));
    QVERIFY(firmwareResumesByStart(&channel));
    channel.setVersion(("1.4." + QByteArray(7, '0') + "01" + QByteArray(51, '0')).constData());
    QVERIFY(firmwareCanSeek(&channel));
    QVERIFY(!firmwareResumesByStart(&channel));
}

ORVA_TEST(TestFirmware)

#include "tst_firmware.moc"

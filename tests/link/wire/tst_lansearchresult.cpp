// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/lansearchresult.h"

#include "IOTCAPIs.h"
#include "testmain.h"

#include <QTest>

#include <algorithm>
#include <cstring>

class TestLanSearchResult final : public QObject
{
    Q_OBJECT

private slots:
    void textsOfARecord();
    void offsetsOfARecord();
    void textsWithoutATerminatingZeroEndWithTheirField();
    void textsEndWithTheirFirstZero();
    void emptyRecord();
    void portsAreDecimal();
    void lettersOfLatin1AreKept();
};

namespace {

template <std::size_t Size>
void put(char (&field)[Size], const QByteArray& text)
{
    std::copy_n(text.begin(), std::min<std::size_t>(text.size(), Size), field);
}

// Bytes that no text reaches are not zero.
IOTC_SearchRecord recordOf(const QByteArray& uid, const QByteArray& ip, const QByteArray& name)
{
    IOTC_SearchRecord record;
    std::memset(&record, 'z', sizeof(record));
    put(record.uid, uid + '\0');
    put(record.ip, ip + '\0');
    put(record.name, name + '\0');
    record.port = 50000;
    return record;
}

} // namespace

void TestLanSearchResult::textsOfARecord()
{
    const LanSearchResult result =
        lanSearchResult(recordOf("ABCDEFGHIJ0123456789", "192.168.1.20", "NVR04W-8"));
    QCOMPARE(result.version, QStringLiteral("NVR04W-8"));
    QCOMPARE(result.uid, QStringLiteral("ABCDEFGHIJ0123456789"));
    QCOMPARE(result.ip, QStringLiteral("192.168.1.20"));
    QCOMPARE(result.port, QStringLiteral("50000"));
}

void TestLanSearchResult::offsetsOfARecord()
{
    QByteArray bytes(208, '\0');
    bytes.replace(0, 1, "u");
    bytes.replace(21, 1, "i");
    bytes.replace(68, 2, QByteArray::fromHex("39 30"));
    bytes.replace(70, 1, "n");
    QCOMPARE(bytes.size(), int(sizeof(IOTC_SearchRecord)));
    IOTC_SearchRecord record;
    std::memcpy(&record, bytes.constData(), sizeof(record));
    const LanSearchResult result = lanSearchResult(record);
    QCOMPARE(result.version, QStringLiteral("n"));
    QCOMPARE(result.uid, QStringLiteral("u"));
    QCOMPARE(result.ip, QStringLiteral("i"));
    QCOMPARE(result.port, QStringLiteral("12345"));
}

void TestLanSearchResult::textsWithoutATerminatingZeroEndWithTheirField()
{
    const LanSearchResult result =
        lanSearchResult(recordOf(QByteArray(21, 'U'), QByteArray(47, '1'), QByteArray(138, 'n')));
    QCOMPARE(result.version, QString(138, QLatin1Char('n')));
    QCOMPARE(result.uid, QString(21, QLatin1Char('U')));
    QCOMPARE(result.ip, QString(47, QLatin1Char('1')));
    QCOMPARE(result.port, QStringLiteral("50000"));
}

void TestLanSearchResult::textsEndWithTheirFirstZero()
{
    const LanSearchResult result = lanSearchResult(recordOf(QByteArray("U\0V", 3),
        QByteArray("1\0"
                   "2",
            3),
        QByteArray("n\0m", 3)));
    QCOMPARE(result.version, QStringLiteral("n"));
    QCOMPARE(result.uid, QStringLiteral("U"));
    QCOMPARE(result.ip, QStringLiteral("1"));
}

void TestLanSearchResult::emptyRecord()
{
    const LanSearchResult result = lanSearchResult(IOTC_SearchRecord{});
    QCOMPARE(result.version, QString());
    QCOMPARE(result.uid, QString());
    QCOMPARE(result.ip, QString());
    QCOMPARE(result.port, QStringLiteral("0"));
}

void TestLanSearchResult::portsAreDecimal()
{
    for (const int port : {0, 1, 80, 32768, 65535}) {
        IOTC_SearchRecord record{};
        record.port = static_cast<uint16_t>(port);
        QCOMPARE(lanSearchResult(record).port, QString::number(port));
    }
}

void TestLanSearchResult::lettersOfLatin1AreKept()
{
    const LanSearchResult result = lanSearchResult(recordOf("U", "1", "IPC\xe4\xff"));
    QCOMPARE(result.version, QStringLiteral("IPC\u00e4\u00ff"));
}

ORVA_TEST(TestLanSearchResult)

#include "tst_lansearchresult.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
// The search on the local network, on loopback.
#include "linktest.h"
#include "testmain.h"

namespace {

const QStringList uids{
    QStringLiteral("LINKSEARCHDEVICE0001"), QStringLiteral("LINKSEARCHDEVICE0002")};

QByteArray devices()
{
    QByteArray list;
    for (const QString& uid : uids)
        list += BridgeProcess::device(uid.toLatin1());
    return list;
}

} // namespace

class TestLanSearch final : public LinkTest
{
    Q_OBJECT

public:
    TestLanSearch()
        : LinkTest(devices())
    {
    }

private slots:
    void devicesAreFoundWithAddressPortAndVersion();
};

void TestLanSearch::devicesAreFoundWithAddressPortAndVersion()
{
    QSignalSpy done(io(), &IoConnect::startLANSearchSuccessMsg);
    QSignalSpy failed(io(), &IoConnect::startLANSearchFailMsg);
    io()->startLANSearch();
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, patienceMs);
    QCOMPARE(failed.size(), 0);
    QStringList found;
    for (const LanSearchResult& result : io()->lanResults()) {
        found.append(result.uid);
        QCOMPARE(result.ip, QStringLiteral("127.0.0.1"));
        QCOMPARE(result.port, QString::number(bridge().port()));
        QCOMPARE(result.version, latin1(BridgeProcess::version));
    }
    found.sort();
    QCOMPARE(found, uids);
}

ORVA_TEST(TestLanSearch)
#include "tst_lansearch.moc"

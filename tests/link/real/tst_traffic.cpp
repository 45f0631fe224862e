// SPDX-License-Identifier: GPL-3.0-or-later
// Many messages both ways.
#include "linktest.h"
#include "testmain.h"

#include <QTestEventLoop>

namespace {

const QByteArray uid = "LINKTRAFFICDEVICE001";

} // namespace

class TestTraffic final : public LinkTest
{
    Q_OBJECT

public:
    TestTraffic()
        : LinkTest(BridgeProcess::device(uid))
    {
    }

private slots:
    void tenThousandMessagesEachWayComeOnceAndInTheirOrder();
};

// Each pair of commands sets a number and asks for it.
void TestTraffic::tenThousandMessagesEachWayComeOnceAndInTheirOrder()
{
    constexpr int pairs = 5000;
    constexpr int underWay = 16; // more would keep the receiver's own tasks from the pool
    constexpr int longestSeconds = 200;
    Channel* channel = connectedChannel(QString::fromLatin1(uid));
    QVERIFY(channel);
    QTestEventLoop loop; // a wait of QTest would look at the events every 10 ms only
    QStringList answers;
    int asked = 0;
    const auto ask = [&] {
        io()->setWifi(channel, QString::number(asked++), QString());
        io()->getWifiConfig(channel);
    };
    connect(io(), &IoConnect::setWifiSuccessMsg, this,
        [&answers] { answers.append(QStringLiteral("set")); });
    connect(
        io(), &IoConnect::getWifiConfigSuccessMsg, this,
        [&](Channel*, SMsgAVIoctrlGetWifiResp* config) {
            answers.append(latin1(config->ssid.data()));
            if (asked < pairs)
                ask();
            else if (answers.size() == 2 * pairs)
                loop.exitLoop();
        },
        Qt::DirectConnection);
    while (asked < underWay)
        ask();
    loop.enterLoop(longestSeconds);

    QStringList expected;
    for (int i = 0; i < pairs; ++i)
        expected << QStringLiteral("set") << QString::number(i);
    QCOMPARE(answers, expected);
    disconnect(io(), nullptr, this, nullptr);
}

ORVA_TEST(TestTraffic)
#include "tst_traffic.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame.h"
#include "hands.h"
#include "programtest.h"
#include "sights.h"
#include "steps.h"
#include "testmain.h"

#include <QTest>

namespace {

const QByteArray uid = "BADSETTINGSDEVICE001";
constexpr int channelCount = 2;

} // namespace

// Settings as a damaged disk, an older program or a person with an editor may leave them.
class TestBadSettings final : public ProgramTest
{
    Q_OBJECT

public:
    TestBadSettings()
        : bridge_(BridgeProcess::device(uid, channelCount))
    {
    }

private slots:
    void initTestCase();

    void whatIsNoListMakesNoOffer_data();
    void whatIsNoListMakesNoOffer();
    void offerOfStrangeChannelsOpensWhatThereIs_data();
    void offerOfStrangeChannelsOpensWhatThereIs();
    void strangeLayoutStartsWithAWall_data();
    void strangeLayoutStartsWithAWall();

private:
    // Of one and of all channels, still.
    bool programWorks();

    BridgeProcess bridge_;
};

void TestBadSettings::initTestCase()
{
    QVERIFY(bridge_.start());
}

bool TestBadSettings::programWorks()
{
    return isRunning() && hasName(nameArea(0)) && chooseOnDevice(0, MenuRow::PlayAll)
        && picturesCome({tileArea(2, 2, 0), tileArea(2, 2, 1)}) && close();
}

void TestBadSettings::whatIsNoListMakesNoOffer_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << "";
    QTest::newRow("no JSON") << "yes, all of them";
    QTest::newRow("cut off") << R"([{"dev": "BADSETTINGSDEVICE001", "channel": [0, 1)";
    QTest::newRow("an object") << R"({"dev": "BADSETTINGSDEVICE001", "channel": [0]})";
    QTest::newRow("an empty list") << "[]";
}

void TestBadSettings::whatIsNoListMakesNoOffer()
{
    QFETCH(QString, text);
    setSetting("config/devicechannel", text);
    QVERIFY(open({{uid, "Workshop", channelCount}}));
    QTRY_VERIFY(hasName(nameArea(0)));
    QVERIFY(!isOfferOpen());
    QVERIFY(programWorks());
    QVERIFY(!isOfferOpen());
}

void TestBadSettings::offerOfStrangeChannelsOpensWhatThereIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("opened");
    QTest::newRow("unknown device") << R"([{"dev": "NOSUCHDEVICE00000001", "channel": [0]}])" << 0;
    QTest::newRow("no device") << R"([{"channel": [0]}, {"dev": null, "channel": [0]}])" << 0;
    QTest::newRow("no objects") << R"(["BADSETTINGSDEVICE001", 7, null, [[[0]]], true])" << 0;
    QTest::newRow("no channels")
        << R"([{"dev": "BADSETTINGSDEVICE001"}, {"dev": "BADSETTINGSDEVICE001", "channel": 0}])"
        << 0;
    QTest::newRow("channels that are not there")
        << R"([{"dev": "BADSETTINGSDEVICE001", "channel": [-1, 2, 9999, 4294967296, 1e300]}])" << 0;
    QTest::newRow("channels that are no numbers")
        << R"([{"dev": "BADSETTINGSDEVICE001", "channel": ["0", null, true, {}, [0], 0.5]}])" << 0;
    QTest::newRow("one good among bad")
        << R"([5, {"dev": "BADSETTINGSDEVICE001", "channel": [-1, 9999, 1, 1, 1]}])" << 1;
}

void TestBadSettings::offerOfStrangeChannelsOpensWhatThereIs()
{
    QFETCH(QString, text);
    QFETCH(int, opened);
    setSetting("config/devicechannel", text);
    QVERIFY(open({{uid, "Workshop", channelCount}}));
    QTRY_VERIFY(isOfferOpen());
    click(confirmKey());
    QTRY_VERIFY(!isOfferOpen());
    if (opened == 1)
        QVERIFY(picturesCome({tileArea(2, 2, 0)}));
    QTest::qWait(2000); // a wrong channel would have come by now
    QVERIFY(isEmpty(tileArea(2, 2, opened)));
    const auto state = opened == 0 ? NameColour::Idle : NameColour::Playing;
    QVERIFY(nameColour(nameArea(0)) == state);
    QVERIFY(programWorks());
}

void TestBadSettings::strangeLayoutStartsWithAWall_data()
{
    QTest::addColumn<QVariant>("layout");
    QTest::newRow("below") << QVariant(-1);
    QTest::newRow("above") << QVariant(9999);
    QTest::newRow("no number") << QVariant("large");
}

void TestBadSettings::strangeLayoutStartsWithAWall()
{
    QFETCH(QVariant, layout);
    setSetting("config/windownum", layout);
    QVERIFY(open({{uid, "Workshop", channelCount}}));
    QVERIFY(chooseLayout(Layout::Four));
    QVERIFY(programWorks());
}

ORVA_TEST(TestBadSettings)
#include "tst_badsettings.moc"

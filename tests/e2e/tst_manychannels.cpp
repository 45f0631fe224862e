// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame.h"
#include "hands.h"
#include "programtest.h"
#include "sights.h"
#include "steps.h"
#include "testmain.h"

#include <QTest>

namespace {

const QByteArray uid = "MANYCHANNELSDEVICE01";
constexpr int channelCount = 64;
constexpr int patienceMs = 120000; // each tile is drawn in software

// One camera's picture for all, so that the device does not need the processor.
QByteArray sixtyFourChannels()
{
    return "  - uid: " + uid
        + "\n    version: 2.6.0.N02A-64\n    password: " + BridgeProcess::password
        + "\n    channels:\n      - count: " + QByteArray::number(channelCount)
        + "\n        main: {url: \"test:\", shared: all, width: 160, height: 90, rate: 5,"
          " bitrate: 64, key-interval: 5, sound: false}\n";
}

} // namespace

class TestManyChannels final : public ProgramTest
{
    Q_OBJECT

public:
    TestManyChannels()
        : bridge_(sixtyFourChannels())
    {
    }

private slots:
    void initTestCase();
    void allChannelsOfALargeRecorderPlayTogether();

private:
    BridgeProcess bridge_;
};

void TestManyChannels::initTestCase()
{
    QVERIFY(bridge_.start());
}

// In the frame a tile is too small for its stamp beside the border, so they are read in full screen.
void TestManyChannels::allChannelsOfALargeRecorderPlayTogether()
{
    QVector<QRect> tiles;
    for (int i = 0; i < channelCount; ++i)
        tiles.append(fullTileArea(8, 8, i));

    QVERIFY(open({{uid, "Campus", channelCount}}));
    QVERIFY(chooseLayout(Layout::SixtyFour));
    QVERIFY(chooseOnDevice(0, MenuRow::PlayAll));
    QTRY_VERIFY_WITH_TIMEOUT(nameColour(nameArea(0)) == NameColour::Playing, patienceMs);
    click(fullScreenKey());
    QVERIFY(picturesCome(tiles, patienceMs));
    pressKey("Escape");
    QTRY_VERIFY_WITH_TIMEOUT(nameColour(nameArea(0)) == NameColour::Playing, patienceMs);

    QVERIFY(chooseOnDevice(0, MenuRow::StopAll));
    QTRY_VERIFY_WITH_TIMEOUT(nameColour(nameArea(0)) == NameColour::Idle, patienceMs);
    for (int i = 0; i < channelCount; ++i)
        QTRY_VERIFY_WITH_TIMEOUT(isEmpty(tileArea(8, 8, i)), patienceMs);
    QVERIFY(close());
}

ORVA_TEST(TestManyChannels)
#include "tst_manychannels.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame.h"
#include "hands.h"
#include "programtest.h"
#include "sights.h"
#include "steps.h"
#include "testmain.h"

#include <QTest>

#include <algorithm>

namespace {

const QByteArray recorderUid = "TROUBLEDEVICE0000001";
const QByteArray cameraUid = "TROUBLEDEVICE0000002";
const QByteArray nobodysUid = "TROUBLEDEVICE0000009";
constexpr int channelCount = 4;
constexpr int outageMs = 10000; // until it must be seen
constexpr int patienceMs = 30000;

QVector<QRect> fourTiles()
{
    return {tileArea(2, 2, 0), tileArea(2, 2, 1), tileArea(2, 2, 2), tileArea(2, 2, 3)};
}

bool allWait()
{
    const auto tiles = fourTiles();
    return std::all_of(tiles.begin(), tiles.end(), isWaiting);
}

bool allEmpty()
{
    const auto tiles = fourTiles();
    return std::all_of(tiles.begin(), tiles.end(), isEmpty);
}

} // namespace

// Devices that end, refuse or are not there.
class TestDeviceTrouble final : public ProgramTest
{
    Q_OBJECT

public:
    TestDeviceTrouble()
        : bridge_(
            BridgeProcess::device(recorderUid, channelCount) + BridgeProcess::device(cameraUid))
    {
    }

private slots:
    void init();

    void deadDeviceIsSeenAndPlaysAgainAfterAReset();
    void programClosesWhileItsDeviceIsDead();
    void wrongPasswordIsToldAndOtherDevicesPlay();
    void deviceThatIsNowhereIsTold();
    void deletedDeviceLeavesWallListAndSettings();

private:
    BridgeProcess bridge_;
};

// Also after a test that failed while its device was dead.
void TestDeviceTrouble::init()
{
    ProgramTest::init();
    if (bridge_.command("status").isEmpty())
        QVERIFY(bridge_.start());
}

void TestDeviceTrouble::deadDeviceIsSeenAndPlaysAgainAfterAReset()
{
    QVERIFY(open({{recorderUid, "Workshop", channelCount}}));
    QVERIFY(chooseOnDevice(0, MenuRow::PlayAll));
    QVERIFY(picturesCome(fourTiles()));
    bridge_.kill();
    QTRY_VERIFY_WITH_TIMEOUT(allWait() && nameColour(nameArea(0)) == NameColour::Failed, outageMs);

    QVERIFY(bridge_.start());
    QVERIFY(chooseOnDevice(0, MenuRow::ResetConnect));
    QTRY_VERIFY(allEmpty());
    QVERIFY(chooseOnDevice(0, MenuRow::PlayAll));
    QVERIFY(picturesCome(fourTiles()));
    QTRY_VERIFY(nameColour(nameArea(0)) == NameColour::Playing);
    QVERIFY(close());
}

void TestDeviceTrouble::programClosesWhileItsDeviceIsDead()
{
    QVERIFY(open({{recorderUid, "Workshop", channelCount}}));
    QVERIFY(chooseOnDevice(0, MenuRow::PlayAll));
    QVERIFY(picturesCome(fourTiles()));
    bridge_.kill();
    QVERIFY(close());
    QVERIFY(bridge_.start());
}

void TestDeviceTrouble::wrongPasswordIsToldAndOtherDevicesPlay()
{
    QVERIFY(open({{cameraUid, "Gate", 1, "wrong"}, {recorderUid, "Workshop", channelCount}}));
    doubleClick(titlePlace(0));
    QTRY_VERIFY_WITH_TIMEOUT(isAlertOpen(), patienceMs);
    QTRY_VERIFY(nameColour(nameArea(0)) == NameColour::Failed);
    QVERIFY(isRunning());

    click(alertCloseKey());
    QTRY_VERIFY(!isAlertOpen());
    QTRY_VERIFY(allEmpty());
    QVERIFY(chooseOnDevice(1, MenuRow::PlayAll));
    QVERIFY(picturesCome(fourTiles()));
    QTRY_VERIFY(nameColour(nameArea(1)) == NameColour::Playing);
    QVERIFY(close());
}

void TestDeviceTrouble::deviceThatIsNowhereIsTold()
{
    QVERIFY(open({{nobodysUid, "Cellar", 1}, {cameraUid, "Gate", 1}}));
    doubleClick(titlePlace(0));
    doubleClick(titlePlace(1)); // need not wait for the other
    QTRY_VERIFY_WITH_TIMEOUT(isAlertOpen(), patienceMs);
    QTRY_VERIFY(nameColour(nameArea(0)) == NameColour::Failed);
    QVERIFY(picturesCome({tileArea(2, 2, 0)}));
    QTRY_VERIFY(nameColour(nameArea(1)) == NameColour::Playing);
    QVERIFY(close());
}

void TestDeviceTrouble::deletedDeviceLeavesWallListAndSettings()
{
    QVERIFY(open({{recorderUid, "Workshop", channelCount}}));
    QVERIFY(chooseOnDevice(0, MenuRow::PlayAll));
    QVERIFY(picturesCome(fourTiles()));
    QVERIFY(chooseOnDevice(0, MenuRow::DeleteDevice));
    QTRY_VERIFY(isAlertOpen());
    click(cancelKey());
    QTRY_VERIFY(!isAlertOpen());
    QVERIFY(picturesCome(fourTiles()));

    QVERIFY(chooseOnDevice(0, MenuRow::DeleteDevice));
    QTRY_VERIFY(isAlertOpen());
    click(confirmKey());
    QTRY_VERIFY(!isAlertOpen());
    QTRY_VERIFY(allEmpty());
    QTRY_VERIFY(!hasName(nameArea(0)));
    QVERIFY(close());

    QVERIFY(openAgain());
    QVERIFY(!hasName(nameArea(0)));
    QVERIFY(close());
}

ORVA_TEST(TestDeviceTrouble)
#include "tst_devicetrouble.moc"

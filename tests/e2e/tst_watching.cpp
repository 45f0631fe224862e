// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame.h"
#include "hands.h"
#include "programtest.h"
#include "screen.h"
#include "sights.h"
#include "steps.h"
#include "testmain.h"

#include <QTest>

namespace {

const QByteArray uid = "WATCHINGDEVICE000001";
constexpr int channelCount = 6;
constexpr quint32 frameNumbers = 500; // a stamp from there on is a time

// The main pictures carry their number, the small ones the time, so they can be told apart.
QByteArray sixChannels()
{
    const QByteArray common = "{url: \"test:\", rate: 25, sound: false, codec: h264, ";
    return "  - uid: " + uid
        + "\n    version: 2.6.0.N02A-6\n    password: " + BridgeProcess::password
        + "\n    channels:\n      - count: " + QByteArray::number(channelCount) + "\n        main: "
        + common + "width: 320, height: 180, bitrate: 256, stamp: frame}\n        sub: " + common
        + "width: 160, height: 90, bitrate: 128, stamp: time}\n";
}

QVector<QRect> tiles(int columns, int rows, int count)
{
    QVector<QRect> areas;
    for (int i = 0; i < count; ++i)
        areas.append(tileArea(columns, rows, i));
    return areas;
}

// The camera leaves out what would be late, and the test does not see all, where much else runs: so the
// floor is low.
bool showsCamerasRate(const Watched& tile)
{
    constexpr int most = 30; // a second
    constexpr int least = 8;
    qInfo("%d pictures, %d of them seen in %.1f s", tile.sent, tile.seen, tile.seconds);
    return tile.isInOrder && tile.sent < most * tile.seconds && tile.sent > least * tile.seconds
        && tile.seen > tile.sent / 4;
}

} // namespace

// One device, from the gate to the close key: looking at it, changing what is seen, coming back to it.
class TestWatching final : public ProgramTest
{
    Q_OBJECT

public:
    TestWatching()
        : bridge_(sixChannels())
    {
    }

private slots:
    void initTestCase();

    void doubleClickedCardsPlayAtTheCamerasRate();
    void stoppedChannelLeavesItsTileAndTheOthersRunOn();
    void layoutAndPageKeysChangeWhatIsSeen();
    void fullScreenShowsTheWallAloneAndEscapeEndsIt();
    void qualityIsChosenInTheMenu();
    void acceptedOfferBringsTheChannelsBack();
    void refusedOfferIsNotMadeAgain();

private:
    bool openDevice() { return open({{uid, "Workshop", channelCount}}); }
    static bool showsMainPicture();

    BridgeProcess bridge_;
};

void TestWatching::initTestCase()
{
    QVERIFY(bridge_.start());
}

void TestWatching::doubleClickedCardsPlayAtTheCamerasRate()
{
    setSetting("config/windownum", 5); // no page key covers a stamp in this layout
    QVERIFY(openDevice());
    QVERIFY(nameColour(nameArea(0)) == NameColour::Idle);
    QVERIFY(playCards(4));
    QVERIFY(picturesCome(tiles(3, 3, 4)));
    QTRY_VERIFY(nameColour(nameArea(0)) == NameColour::Playing);

    const QVector<Watched> watched = watch(tiles(3, 3, 4), 4000);
    for (const Watched& tile : watched)
        QVERIFY(showsCamerasRate(tile));
    QVERIFY(close());
}

void TestWatching::stoppedChannelLeavesItsTileAndTheOthersRunOn()
{
    QVERIFY(openDevice());
    QVERIFY(playCards(3));
    QVERIFY(picturesCome(tiles(2, 2, 3)));
    QVERIFY(chooseOnCard(1, MenuRow::Stop));
    QTRY_VERIFY(isEmpty(tileArea(2, 2, 1)));
    QVERIFY(picturesCome({tileArea(2, 2, 0), tileArea(2, 2, 2)}));
    QVERIFY(isEmpty(tileArea(2, 2, 1)));

    QVERIFY(chooseOnCard(1, MenuRow::Play));
    QVERIFY(picturesCome(tiles(2, 2, 3)));
    QVERIFY(chooseOnDevice(0, MenuRow::StopAll));
    for (const QRect& tile : tiles(2, 2, 3))
        QTRY_VERIFY(isEmpty(tile));
    QTRY_VERIFY(nameColour(nameArea(0)) == NameColour::Idle);
}

void TestWatching::layoutAndPageKeysChangeWhatIsSeen()
{
    QVERIFY(openDevice());
    QVERIFY(chooseOnDevice(0, MenuRow::PlayAll));
    QVERIFY(picturesCome(tiles(2, 2, 4)));
    turnToNextPage();
    QTRY_VERIFY(isEmpty(tileArea(2, 2, 2)));
    QVERIFY(isEmpty(tileArea(2, 2, 3)));
    QVERIFY(picturesCome(tiles(2, 2, 2)));
    turnToPreviousPage();
    QVERIFY(picturesCome(tiles(2, 2, 4)));

    QVERIFY(chooseLayout(Layout::Nine));
    QVERIFY(picturesCome(tiles(3, 3, channelCount)));
    QVERIFY(isEmpty(tileArea(3, 3, channelCount)));
}

void TestWatching::fullScreenShowsTheWallAloneAndEscapeEndsIt()
{
    QVERIFY(openDevice());
    QVERIFY(playCards(2));
    QVERIFY(picturesCome(tiles(2, 2, 2)));
    click(fullScreenKey());
    QVERIFY(picturesCome({fullTileArea(2, 2, 0), fullTileArea(2, 2, 1)}));
    QVERIFY(isEmpty(fullTileArea(2, 2, 3)));

    pressKey("Escape");
    QVERIFY(picturesCome(tiles(2, 2, 2)));
    QVERIFY(hasName(nameArea(0)));
    pressKey("Escape"); // nothing is left for it to end
    QVERIFY(picturesCome(tiles(2, 2, 2)));
    QVERIFY(close());
}

bool TestWatching::showsMainPicture()
{
    const auto stamp = stampIn(tileArea(2, 2, 0));
    return stamp && *stamp < frameNumbers;
}

void TestWatching::qualityIsChosenInTheMenu()
{
    QVERIFY(openDevice());
    QVERIFY(playCards(1));
    QVERIFY(picturesCome(tiles(2, 2, 1)));
    QTRY_VERIFY(showsMainPicture());
    QVERIFY(chooseOnCard(0, MenuRow::Sd));
    QTRY_VERIFY_WITH_TIMEOUT(stampIn(tileArea(2, 2, 0)) && !showsMainPicture(), 20000);
    QVERIFY(picturesCome(tiles(2, 2, 1)));
    QVERIFY(!showsMainPicture());
    QVERIFY(chooseOnCard(0, MenuRow::Hd));
    QTRY_VERIFY_WITH_TIMEOUT(showsMainPicture(), 20000);
    QVERIFY(picturesCome(tiles(2, 2, 1)));
    QTRY_VERIFY(showsMainPicture());
}

void TestWatching::acceptedOfferBringsTheChannelsBack()
{
    QVERIFY(openDevice());
    QVERIFY(!isOfferOpen());
    QVERIFY(playCards(2));
    QVERIFY(picturesCome(tiles(2, 2, 2)));
    QVERIFY(close());

    QVERIFY(openAgain());
    QTRY_VERIFY(isOfferOpen());
    QVERIFY(isEmpty(tileArea(2, 2, 3)));
    click(confirmKey());
    QVERIFY(picturesCome(tiles(2, 2, 2)));
    QVERIFY(!isOfferOpen());
    QVERIFY(close());
}

void TestWatching::refusedOfferIsNotMadeAgain()
{
    QVERIFY(openDevice());
    QVERIFY(playCards(1));
    QVERIFY(picturesCome(tiles(2, 2, 1)));
    QVERIFY(close());

    QVERIFY(openAgain());
    QTRY_VERIFY(isOfferOpen());
    click(cancelKey());
    QTRY_VERIFY(!isOfferOpen());
    QVERIFY(isEmpty(tileArea(2, 2, 0)));
    QCOMPARE(savedChannels(), QStringLiteral("[]"));
    QVERIFY(close());

    QVERIFY(openAgain());
    QTRY_VERIFY(hasName(nameArea(0)));
    QVERIFY(!isOfferOpen());
    QVERIFY(close());
}

ORVA_TEST(TestWatching)
#include "tst_watching.moc"

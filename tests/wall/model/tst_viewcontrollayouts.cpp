// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/location.h"
#include "testmain.h"
#include "wall/waitingcircle.h"
#include "wallwatch.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <limits>
#include <memory>

// Tiles and layouts of the wall: how many there are, what stands on them after a change.
class TestViewControlLayouts final : public QObject
{
    Q_OBJECT

private slots:
    void layoutHasItsTiles_data();
    void layoutHasItsTiles();
    void capacityIsThatOfTheLayout();
    void tilesAreMadeInTheirParent();
    void tilesOfTheSameNumberAreLeftAlone();
    void tilesComeAndGoAtTheEnd();
    void tileThatKeepsItsChannelIsLeftAlone();
    void layoutWithoutTilesTellsNobody();
    void wallWorksWithoutTiles();
    void wallOutlivesItsTiles();
    void deletedTilesLeaveTheChannelsTheirPlaces();

    void changeOfLayoutIsStoredEachTime();
    void changeOfTheOtherModesLayoutIsOnlyStored();
    void unknownLayoutChangesNothing_data();
    void unknownLayoutChangesNothing();
    void pageFollowsTheCapacity_data();
    void pageFollowsTheCapacity();

    void mirrorShowsTheFirstChannelOfTheLastDevice();
    void mirrorShowsTheSelectedChannelWhereThatIsOpen();
    void mirrorStaysFromTheSixTilesToTheOtherSix();
    void mirrorDoesNotStayOverAnotherLayout();
    void mirrorDoesNotComeFromTheOtherSixTiles();
    void mirrorIsOfItsLayoutsOnly();

    void oneTileShowsTheSelectedChannel();
    void oneTileWithoutASelectionSelectsWhatItShows();
    void oneTileSelectsTheChannelOfTheOldPagesNumber();
    void oneTileOfNoneSelectsNothing();
};

void TestViewControlLayouts::layoutHasItsTiles_data()
{
    QTest::addColumn<int>("mod");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("mirror");
    QTest::addColumn<QRect>("last"); // of a wall of 640 x 360
    QTest::newRow("0") << 0 << 1 << false << QRect(0, 0, 641, 361);
    QTest::newRow("1") << 1 << 4 << false << QRect(321, 181, 321, 181);
    QTest::newRow("2") << 2 << 6 << true << QRect(428, 121, 214, 121);
    QTest::newRow("3") << 3 << 6 << false << QRect(428, 181, 214, 181);
    QTest::newRow("4") << 4 << 8 << true << QRect(483, 182, 161, 91);
    QTest::newRow("5") << 5 << 9 << false << QRect(428, 242, 214, 121);
    QTest::newRow("6") << 6 << 13 << true << QRect(483, 182, 161, 91);
    QTest::newRow("7") << 7 << 16 << false << QRect(483, 273, 161, 91);
    QTest::newRow("8") << 8 << 25 << false << QRect(516, 292, 129, 73);
    QTest::newRow("9") << 9 << 36 << false << QRect(535, 305, 107, 61);
    QTest::newRow("10") << 10 << 49 << false << QRect(552, 312, 92, 52);
    QTest::newRow("11") << 11 << 64 << false << QRect(567, 322, 81, 46);
}

void TestViewControlLayouts::layoutHasItsTiles()
{
    QFETCH(int, mod);
    QFETCH(int, count);
    QFETCH(bool, mirror);
    WallTest t;
    t.makeTiles();
    QSignalSpy number(&t.viewControl, &ViewControl::windowNumberChangeMsg);
    QSignalSpy laidOut(&t.viewControl, &ViewControl::resizeMsg);
    t.viewControl.setWindowMod(static_cast<WINDOW_MOD>(mod), true);
    QCOMPARE(t.viewControl.getTileCount(), count);
    QCOMPARE(t.tiles().size(), count);
    QCOMPARE(number.count(), mod == 1 ? 0 : 1);
    QCOMPARE(laidOut.count(), 1);
    QTEST(t.tile(count - 1)->geometry(), "last");
    for (int i = 0; i < count; ++i) {
        QVERIFY(t.tile(i)->isVisibleTo(&t.screen));
        QCOMPARE(t.tile(i)->isMirror(), i == 0 && mirror);
    }
    t.viewControl.layoutWindows(1280, 720);
    QCOMPARE(laidOut.count(), 2);
    QCOMPARE(t.tile(count - 1)->geometry(),
        windowRects(static_cast<WINDOW_MOD>(mod), QSize(1280, 720)).back());
}

void TestViewControlLayouts::capacityIsThatOfTheLayout()
{
    const int capacities[] = {1, 4, 5, 6, 7, 9, 12, 16, 25, 36, 49, 64, 0, 0};
    for (int mod = 0; mod < 14; ++mod)
        QCOMPARE(ViewControl::getWindowCapacity(static_cast<WINDOW_MOD>(mod)), capacities[mod]);
}

void TestViewControlLayouts::tilesAreMadeInTheirParent()
{
    WallTest t;
    QSignalSpy number(&t.viewControl, &ViewControl::windowNumberChangeMsg);
    QSignalSpy laidOut(&t.viewControl, &ViewControl::resizeMsg);
    QCOMPARE(t.viewControl.getTileCount(), 4); // the wall is there before its widgets
    QVERIFY(t.tiles().isEmpty());
    t.makeTiles(QSize(100, 50));
    QCOMPARE(t.tiles().size(), 4);
    QCOMPARE(t.tile(3)->geometry(), QRect(51, 26, 51, 26));
    QCOMPARE(t.tile(3)->parentWidget(), &t.screen);
    QCOMPARE(number.count(), 1);
    QCOMPARE(laidOut.count(), 1);
}

void TestViewControlLayouts::tilesOfTheSameNumberAreLeftAlone()
{
    WallTest t;
    t.makeTiles();
    const QList<GlWidgetViewWindow*> before = t.tiles();
    Device* device = t.addDevice(2);
    markOpen(device, 2); // a refill would show them
    QSignalSpy number(&t.viewControl, &ViewControl::windowNumberChangeMsg);
    QSignalSpy laidOut(&t.viewControl, &ViewControl::resizeMsg);
    t.makeTiles(QSize(200, 100));
    QCOMPARE(t.tile(3)->geometry(), QRect(101, 51, 101, 51));
    t.screen.resize(400, 200);
    t.viewControl.recreateWindows();
    QCOMPARE(t.tile(3)->geometry(), QRect(201, 101, 201, 101));
    QCOMPARE(laidOut.count(), 2);
    QCOMPARE(number.count(), 0);
    QCOMPARE(t.tiles(), before);
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
}

void TestViewControlLayouts::tilesComeAndGoAtTheEnd()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(4);
    QVERIFY(t.open(device, 4));
    const QList<GlWidgetViewWindow*> four = t.tiles();
    t.viewControl.setWindowMod(WINDOW_MOD_9, true);
    QCOMPARE(t.tiles().mid(0, 4), four);
    const QPointer<GlWidgetViewWindow> last = t.tile(8);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    QCOMPARE(t.tiles(), four);
    QVERIFY(t.settle());
    QVERIFY(last.isNull());

    QPointer<GlWidgetViewWindow> second = four.at(1);
    t.viewControl.setWindowMod(WINDOW_MOD_1, true);
    QVERIFY(second->isHidden());
    QVERIFY(second->getChannel() == nullptr);
    QVERIFY(device->channel(1)->tile == nullptr);
    QCOMPARE(t.tiles(), four.mid(0, 1));
    QVERIFY(t.settle());
    QVERIFY(second.isNull());
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlLayouts::tileThatKeepsItsChannelIsLeftAlone()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(5);
    QVERIFY(t.open(device, 5));
    for (const GlWidgetViewWindow* tile : t.tiles())
        delete tile->findChild<WaitingCircle*>(); // as a picture does
    t.viewControl.setWindowMod(WINDOW_MOD_9, true);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3 0.4 - - - -"));
    for (int i = 0; i < 4; ++i)
        QVERIFY(t.tile(i)->findChild<WaitingCircle*>() == nullptr);
    QVERIFY(t.tile(4)->findChild<WaitingCircle*>() != nullptr);
}

void TestViewControlLayouts::layoutWithoutTilesTellsNobody()
{
    WallTest t;
    QSignalSpy laidOut(&t.viewControl, &ViewControl::resizeMsg);
    t.viewControl.layoutWindows(640, 360);
    QCOMPARE(laidOut.count(), 0);
}

void TestViewControlLayouts::wallWorksWithoutTiles()
{
    WallTest t;
    QSignalSpy number(&t.viewControl, &ViewControl::windowNumberChangeMsg);
    Device* device = t.addDevice(6);
    QVERIFY(t.open(device, 6));
    t.viewControl.recreateWindows();
    t.viewControl.setWindowMod(WINDOW_MOD_9, true);
    QCOMPARE(number.count(), 1);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3 0.4 0.5 - - -"));
    QVERIFY(device->channel(0)->tile == nullptr);
    t.makeTiles();
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3 0.4 0.5 - - -"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlLayouts::wallOutlivesItsTiles()
{
    WallTest t;
    Device* device = t.addDevice(4);
    QVERIFY(t.open(device, 4));
    auto screen = std::make_unique<QWidget>();
    t.viewControl.createWindows(screen.get());
    QVERIFY(device->channel(3)->tile != nullptr);
    screen.reset();
    for (int i = 0; i < 4; ++i)
        QVERIFY(device->channel(i)->tile == nullptr);
    t.viewControl.recreateWindows();
    t.viewControl.layoutWindows(640, 360);
    t.viewControl.closeChannel(device->channel(0));
    t.makeTiles();
    QCOMPARE(onTiles(t), QStringLiteral("0.1 0.2 0.3 -"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlLayouts::deletedTilesLeaveTheChannelsTheirPlaces()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(3);
    QVERIFY(t.open(device, 3));
    t.takeSent();
    t.viewControl.deleteWindows();
    QVERIFY(t.screen.findChildren<GlWidgetViewWindow*>().isEmpty());
    QVERIFY(device->channel(2)->tile == nullptr);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 -"));
    t.viewControl.deleteWindows(); // of which there are none any more
    t.makeTiles();
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 -"));
    QCOMPARE(strayWidgets(t), QString());
    QVERIFY(t.settle());
    QVERIFY(t.takeSent().isEmpty());
}

void TestViewControlLayouts::changeOfLayoutIsStoredEachTime()
{
    WallTest t;
    Location* settings = Location::instance();
    t.viewControl.setWindowMod(WINDOW_MOD_25, true);
    QCOMPARE(settings->getWindowNum(), 8);
    QCOMPARE(settings->getReplayWindowNum(), 1);
    QCOMPARE(t.viewControl.getWindowMod(true), WINDOW_MOD_25);
    settings->setWindowNum(3); // by another hand
    PageLabel label(t);
    t.viewControl.setWindowMod(WINDOW_MOD_25, true);
    QCOMPARE(settings->getWindowNum(), 8);
    QCOMPARE(label.take(), QStringList({"0 of 0"}));
}

void TestViewControlLayouts::changeOfTheOtherModesLayoutIsOnlyStored()
{
    WallTest t;
    t.makeTiles();
    markOpen(t.addDevice(5), 5, true);
    t.viewControl.changeMod(false);
    t.viewControl.setWindowMod(WINDOW_MOD_16, false);
    t.viewControl.setPage(2);
    t.viewControl.changeMod(true);
    const QString before = onTiles(t);
    const QList<GlWidgetViewWindow*> tiles = t.tiles();
    PageLabel label(t);
    QSignalSpy laidOut(&t.viewControl, &ViewControl::resizeMsg);
    t.viewControl.setWindowMod(WINDOW_MOD_4, false);
    QCOMPARE(Location::instance()->getReplayWindowNum(), 1);
    QCOMPARE(Location::instance()->getWindowNum(), 1);
    QCOMPARE(t.viewControl.getWindowMod(false), WINDOW_MOD_4);
    QCOMPARE(onTiles(t), before);
    QCOMPARE(t.tiles(), tiles);
    QCOMPARE(laidOut.count(), 0);
    QVERIFY(label.take().isEmpty());
    QCOMPARE(t.viewControl.getPage(), 0);
    t.viewControl.changeMod(false);
    QCOMPARE(t.viewControl.getPage(), 8);
}

void TestViewControlLayouts::unknownLayoutChangesNothing_data()
{
    QTest::addColumn<int>("mod");
    for (const int mod : {12, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QTest::addRow("%d", mod) << mod;
}

void TestViewControlLayouts::unknownLayoutChangesNothing()
{
    QFETCH(int, mod);
    WallTest t;
    t.makeTiles();
    PageLabel label(t);
    QSignalSpy laidOut(&t.viewControl, &ViewControl::resizeMsg);
    for (const bool isLive : {true, false}) {
        t.viewControl.setWindowMod(static_cast<WINDOW_MOD>(mod), isLive);
        QCOMPARE(t.viewControl.getWindowMod(isLive), WINDOW_MOD_4);
    }
    QCOMPARE(Location::instance()->getWindowNum(), 1);
    QCOMPARE(Location::instance()->getReplayWindowNum(), 1);
    QCOMPARE(t.viewControl.getTileCount(), 4);
    QCOMPARE(laidOut.count(), 0);
    QVERIFY(label.take().isEmpty());
}

void TestViewControlLayouts::pageFollowsTheCapacity_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("newPage");
    QTest::newRow("16 on page 2 to 4") << 7 << 2 << 1 << 8;
    QTest::newRow("4 on page 3 to 16") << 1 << 3 << 7 << 0;
    QTest::newRow("4 on page 3 to 5, the mirror layout") << 1 << 3 << 2 << 2;
    QTest::newRow("5, the mirror layout, on page 3 to 9") << 2 << 3 << 5 << 1;
    QTest::newRow("64 on page 1 to 49") << 11 << 1 << 10 << 1;
    QTest::newRow("the same again") << 5 << 4 << 5 << 4;
}

void TestViewControlLayouts::pageFollowsTheCapacity()
{
    QFETCH(int, from);
    QFETCH(int, page);
    QFETCH(int, to);
    QFETCH(int, newPage);
    WallTest t;
    Device* device = t.addDevice(100);
    markOpen(device, 100);
    t.viewControl.setWindowMod(static_cast<WINDOW_MOD>(from), true);
    t.viewControl.setPage(page);
    PageLabel label(t);
    t.viewControl.setWindowMod(static_cast<WINDOW_MOD>(to), true);
    QCOMPARE(t.viewControl.getPage(), newPage);
    QCOMPARE(label.take(),
        QStringList({QStringLiteral("%1 of %2").arg(newPage).arg(t.viewControl.getPageCount())}));
    const int capacity = ViewControl::getWindowCapacity(static_cast<WINDOW_MOD>(to));
    const int firstTile = hasMirrorTile(static_cast<WINDOW_MOD>(to)) ? 1 : 0;
    QCOMPARE(placeOf(t.shown().at(firstTile)), QStringLiteral("0.%1").arg(newPage * capacity));
}

void TestViewControlLayouts::mirrorShowsTheFirstChannelOfTheLastDevice()
{
    WallTest t;
    t.makeTiles();
    markOpen(t.addDevice(2), 2);
    Device* second = t.addDevice(3);
    second->channel(1)->mode(true).open = true;
    second->channel(2)->mode(true).open = true;
    t.addDevice(4); // has none
    t.viewControl.setWindowMod(WINDOW_MOD_6_MIRROR, true);
    QCOMPARE(onTiles(t), QStringLiteral("1.1 0.0 0.1 1.1 1.2 -"));
    QCOMPARE(second->channel(1)->tile, t.tile(3));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlLayouts::mirrorShowsTheSelectedChannelWhereThatIsOpen()
{
    WallTest t;
    t.makeTiles();
    Device* first = t.addDevice(2);
    Device* second = t.addDevice(2);
    markOpen(first, 2);
    markOpen(second, 1);
    Dev::instance()->selectChannel(first->channel(1));
    t.viewControl.setWindowMod(WINDOW_MOD_13_MIRROR, true);
    QCOMPARE(placesOf(t.shown(4)), QStringLiteral("0.1 0.0 0.1 1.0"));
    QCOMPARE(strayWidgets(t), QString());
    Dev::instance()->selectChannel(second->channel(1)); // which is closed
    t.viewControl.setWindowMod(WINDOW_MOD_8_MIRROR, true);
    QCOMPARE(placesOf(t.shown(4)), QStringLiteral("1.0 0.0 0.1 1.0"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlLayouts::mirrorStaysFromTheSixTilesToTheOtherSix()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(6);
    markPlaying(device, 6);
    t.viewControl.setWindowMod(WINDOW_MOD_6_MIRROR, true);
    QSignalSpy number(&t.viewControl, &ViewControl::windowNumberChangeMsg);
    QSignalSpy laidOut(&t.viewControl, &ViewControl::resizeMsg);
    t.viewControl.setWindowMod(WINDOW_MOD_6, true);
    QVERIFY(t.tile(0)->isMirror());
    QCOMPARE(t.tile(0)->geometry(), QRect(0, 0, 214, 181)); // laid out it is
    QCOMPARE(laidOut.count(), 1);
    QCOMPARE(number.count(), 0);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.0 0.1 0.2 0.3 0.4")); // of the page of six
    QCOMPARE(strayWidgets(t), QString());
    Dev::instance()->selectChannel(device->channel(2));
    QCOMPARE(onTiles(t), QStringLiteral("0.2 0.0 0.1 0.2 0.3 0.4"));
}

void TestViewControlLayouts::mirrorDoesNotStayOverAnotherLayout()
{
    WallTest t;
    t.makeTiles();
    markOpen(t.addDevice(6), 6);
    t.viewControl.setWindowMod(WINDOW_MOD_6_MIRROR, true);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    QVERIFY(t.settle()); // the tiles that go have gone
    QVERIFY(!t.tile(0)->isMirror());
    t.viewControl.setWindowMod(WINDOW_MOD_6, true);
    QVERIFY(!t.tile(0)->isMirror());
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3 0.4 0.5"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlLayouts::mirrorDoesNotComeFromTheOtherSixTiles()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(6);
    markPlaying(device, 6);
    t.viewControl.setWindowMod(WINDOW_MOD_6, true);
    t.viewControl.setWindowMod(WINDOW_MOD_6_MIRROR, true);
    QVERIFY(!t.tile(0)->isMirror());
    QCOMPARE(t.tile(0)->geometry(), QRect(0, 0, 428, 242));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3 0.4 -"));
    QCOMPARE(t.viewControl.getPageCount(), 2);
    QCOMPARE(strayWidgets(t), QString());
    Dev::instance()->selectChannel(device->channel(2));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3 0.4 -"));
}

void TestViewControlLayouts::mirrorIsOfItsLayoutsOnly()
{
    WallTest t;
    t.makeTiles();
    for (const WINDOW_MOD mod : {WINDOW_MOD_8_MIRROR, WINDOW_MOD_9, WINDOW_MOD_13_MIRROR,
             WINDOW_MOD_16, WINDOW_MOD_6_MIRROR, WINDOW_MOD_1}) {
        t.viewControl.setWindowMod(mod, true);
        QCOMPARE(t.tile(0)->isMirror(), hasMirrorTile(mod));
    }
}

void TestViewControlLayouts::oneTileShowsTheSelectedChannel()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(6);
    markOpen(device, 6); // which play or not
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    Dev::instance()->selectChannel(device->channel(5));
    PageLabel label(t);
    t.viewControl.setWindowMod(WINDOW_MOD_1, true);
    QCOMPARE(onTiles(t), QStringLiteral("0.5"));
    QCOMPARE(device->channel(5)->tile, t.tile(0));
    QCOMPARE(t.viewControl.getPage(), 5);
    QCOMPARE(label.take(), QStringList({"5 of 6"}));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlLayouts::oneTileWithoutASelectionSelectsWhatItShows()
{
    WallTest t;
    t.makeTiles();
    Device* first = t.addDevice(1);
    Device* second = t.addDevice(3);
    markOpen(second, 3);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    PageLabel label(t);
    t.viewControl.setWindowMod(WINDOW_MOD_1, true);
    QCOMPARE(onTiles(t), QStringLiteral("1.0"));
    QCOMPARE(Dev::instance()->selectedChannel(), second->channel(0));
    QCOMPARE(Dev::instance()->selectedDevice(), second);
    QCOMPARE(t.viewControl.getPage(), 0);
    QVERIFY(label.take().isEmpty());
    QCOMPARE(strayWidgets(t), QString());

    // Tile 0 of the same number keeps what it shows, though another channel is first by now.
    first->channel(0)->mode(true).open = true;
    Dev::instance()->selectChannel(nullptr);
    t.viewControl.setWindowMod(WINDOW_MOD_1, true);
    QCOMPARE(onTiles(t), QStringLiteral("1.0"));
    QCOMPARE(t.viewControl.getPage(), 1);
}

void TestViewControlLayouts::oneTileSelectsTheChannelOfTheOldPagesNumber()
{
    WallTest t;
    Device* device = t.addDevice(9);
    markOpen(device, 9);
    t.viewControl.setPage(2);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    QCOMPARE(onTiles(t), QStringLiteral("0.8 - - -"));
    t.viewControl.setWindowMod(WINDOW_MOD_1, true);
    QCOMPARE(onTiles(t), QStringLiteral("0.2"));
    QCOMPARE(t.viewControl.getPage(), 2);
    QCOMPARE(Dev::instance()->selectedChannel(), device->channel(2));
}

void TestViewControlLayouts::oneTileOfNoneSelectsNothing()
{
    WallTest t;
    t.addDevice(2);
    PageLabel label(t);
    t.viewControl.setWindowMod(WINDOW_MOD_1, true);
    QVERIFY(Dev::instance()->selectedChannel() == nullptr);
    QVERIFY(Dev::instance()->selectedDevice() == nullptr);
    QCOMPARE(t.viewControl.getPage(), 0);
    QVERIFY(label.take().isEmpty());
}

ORVA_TEST(TestViewControlLayouts)
#include "tst_viewcontrollayouts.moc"

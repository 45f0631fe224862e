// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "wallwatch.h"

#include <QMetaEnum>
#include <QSignalSpy>
#include <QTest>

// Pages of the wall, and the selected channel's place on it.
class TestViewControlPages final : public QObject
{
    Q_OBJECT

private slots:
    void pageUpIsTheNextPage();
    void pageCountIsRoundedUp_data();
    void pageCountIsRoundedUp();
    void pageCountIsOfTheModeOnView();
    void channelsBeyondTheCountOfTheirDeviceDoNotCount();

    void pageTurnShowsTheNextChannelsInTheOrderOfTheDevices();
    void pageUpOnTheLastPageChangesNothing();
    void pageDownOnTheFirstPageChangesNothing();
    void pagesWithoutAnyChannelDoNotTurn();
    void pageTurnedBackShowsItsChannelsWithoutACommand();
    void pageBehindTheLastGoesOnlyDown();
    void tilesOfAPageFollowTheWall();

    void pageOfOneTileSelectsItsChannel();
    void pageOfOneTileSkipsClosedChannels();
    void pageOfOneTileWhoseChannelDoesNotPlayKeepsThePicture();

    void selectionOnOneTileShowsTheChannelAndItsPage();
    void selectionOnManyTilesTellsThePageOnly();
    void selectionGoesOntoTheMirrorTile();
    void selectionOfAChannelThatDoesNotPlayShowsNothing();
    void selectionOfNothingShowsNothing();
    void selectionCountsByTheModeOnView();
};

void TestViewControlPages::pageUpIsTheNextPage()
{
    const QMetaEnum types = QMetaEnum::fromType<ViewControl::PageChangeType>();
    QCOMPARE(types.keyCount(), 2);
    QCOMPARE(types.keyToValue("PageUp"), 0);
    QCOMPARE(types.keyToValue("PageDown"), 1);
    WallTest t;
    markOpen(t.addDevice(8), 8);
    QCOMPARE(t.viewControl.getPage(), 0);
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(t.viewControl.getPage(), 1);
    t.viewControl.changePage(ViewControl::PageDown);
    QCOMPARE(t.viewControl.getPage(), 0);
}

void TestViewControlPages::pageCountIsRoundedUp_data()
{
    QTest::addColumn<int>("mod");
    QTest::addColumn<int>("open");
    QTest::addColumn<int>("pages");
    QTest::newRow("none open") << 1 << 0 << 0;
    QTest::newRow("0, seven open") << 0 << 7 << 7;
    QTest::newRow("1, four open") << 1 << 4 << 1;
    QTest::newRow("1, five open") << 1 << 5 << 2;
    QTest::newRow("2, five open") << 2 << 5 << 1;
    QTest::newRow("2, six open on six tiles") << 2 << 6 << 2;
    QTest::newRow("3, six open") << 3 << 6 << 1;
    QTest::newRow("4, eight open") << 4 << 8 << 2;
    QTest::newRow("6, thirteen open") << 6 << 13 << 2;
    QTest::newRow("11, all open") << 11 << 65 << 2;
}

void TestViewControlPages::pageCountIsRoundedUp()
{
    QFETCH(int, mod);
    QFETCH(int, open);
    WallTest t;
    t.viewControl.setWindowMod(static_cast<WINDOW_MOD>(mod), true);
    markOpen(t.addDevice(65), open);
    QTEST(t.viewControl.getPageCount(), "pages");
}

void TestViewControlPages::pageCountIsOfTheModeOnView()
{
    WallTest t;
    Device* device = t.addDevice(8, false);
    markOpen(device, 8, true);
    markOpen(device, 2, false);
    QCOMPARE(t.viewControl.getPageCount(), 2);
    t.viewControl.changeMod(false);
    QCOMPARE(t.viewControl.getPageCount(), 1);
    t.viewControl.setWindowMod(WINDOW_MOD_1, false);
    QCOMPARE(t.viewControl.getPageCount(), 2);
    t.viewControl.changeMod(true);
    QCOMPARE(t.viewControl.getPageCount(), 2);
}

void TestViewControlPages::channelsBeyondTheCountOfTheirDeviceDoNotCount()
{
    WallTest t;
    Device* device = t.addDevice(6);
    markOpen(device, 6);
    QCOMPARE(t.viewControl.getPageCount(), 2);
    device->setChannelCount(4);
    QCOMPARE(t.viewControl.getPageCount(), 1);
}

void TestViewControlPages::pageTurnShowsTheNextChannelsInTheOrderOfTheDevices()
{
    WallTest t;
    Device* first = t.addDevice(3);
    Device* second = t.addDevice(2);
    Device* third = t.addDevice(4);
    markOpen(third, 4);
    markOpen(first, 3);
    second->channel(1)->mode(true).open = true;
    first->channel(1)->mode(true).open = false;
    PageLabel label(t);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.2 1.1 2.0"));
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(onTiles(t), QStringLiteral("2.1 2.2 2.3 -"));
    QCOMPARE(label.take(), QStringList({"0 of 2", "1 of 2"}));
}

void TestViewControlPages::pageUpOnTheLastPageChangesNothing()
{
    WallTest t;
    QVERIFY(t.open(t.addDevice(5), 5));
    t.viewControl.changePage(ViewControl::PageUp);
    PageLabel label(t);
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(t.viewControl.getPage(), 1);
    QCOMPARE(onTiles(t), QStringLiteral("0.4 - - -"));
    QVERIFY(label.take().isEmpty());
}

void TestViewControlPages::pageDownOnTheFirstPageChangesNothing()
{
    WallTest t;
    Device* device = t.addDevice(5);
    QVERIFY(t.open(device, 5));
    t.viewControl.unbind(device->channel(0)); // no refill brings it back
    PageLabel label(t);
    t.viewControl.changePage(ViewControl::PageDown);
    QCOMPARE(t.viewControl.getPage(), 0);
    QCOMPARE(onTiles(t), QStringLiteral("- 0.1 0.2 0.3"));
    QVERIFY(label.take().isEmpty());
}

void TestViewControlPages::pagesWithoutAnyChannelDoNotTurn()
{
    WallTest t;
    PageLabel label(t);
    for (const WINDOW_MOD mod : {WINDOW_MOD_4, WINDOW_MOD_1}) {
        t.viewControl.setWindowMod(mod, true);
        label.take();
        t.viewControl.changePage(ViewControl::PageUp);
        t.viewControl.changePage(ViewControl::PageDown);
        QCOMPARE(t.viewControl.getPage(), 0);
        QVERIFY(label.take().isEmpty());
    }
}

void TestViewControlPages::pageTurnedBackShowsItsChannelsWithoutACommand()
{
    WallTest t;
    t.makeTiles();
    QVERIFY(t.open(t.addDevice(5), 5));
    t.takeSent();
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(onTiles(t), QStringLiteral("0.4 - - -"));
    QCOMPARE(strayWidgets(t), QString());
    t.viewControl.changePage(ViewControl::PageDown);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3"));
    QCOMPARE(strayWidgets(t), QString());
    QVERIFY(t.settle());
    QVERIFY(t.takeSent().isEmpty());
    QCOMPARE(playingOnes(true), QStringLiteral("0.0 0.1 0.2 0.3 0.4"));
    QCOMPARE(openOnes(true), QStringLiteral("0.0 0.1 0.2 0.3 0.4"));
}

void TestViewControlPages::pageBehindTheLastGoesOnlyDown()
{
    WallTest t;
    markOpen(t.addDevice(5), 5);
    t.viewControl.setPage(3);
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(t.viewControl.getPage(), 3);
    PageLabel label(t);
    t.viewControl.changePage(ViewControl::PageDown);
    QCOMPARE(onTiles(t), QStringLiteral("- - - -"));
    t.viewControl.changePage(ViewControl::PageDown);
    QCOMPARE(onTiles(t), QStringLiteral("0.4 - - -"));
    QCOMPARE(label.take(), QStringList({"2 of 2", "1 of 2"}));
}

void TestViewControlPages::tilesOfAPageFollowTheWall()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(6);
    markOpen(device, 6);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(device->channel(5)->tile, t.tile(1));
    QVERIFY(device->channel(0)->tile == nullptr);
    QVERIFY(!t.tile(2)->isChannelBound());
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlPages::pageOfOneTileSelectsItsChannel()
{
    WallTest t;
    t.makeTiles();
    Device* first = t.addDevice(2);
    Device* second = t.addDevice(1);
    markPlaying(first, 2);
    markPlaying(second, 1);
    Dev::instance()->selectChannel(first->channel(1));
    t.viewControl.setWindowMod(WINDOW_MOD_1, true);
    QCOMPARE(t.viewControl.getPage(), 1);
    PageLabel label(t);
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(onTiles(t), QStringLiteral("1.0"));
    QCOMPARE(strayWidgets(t), QString());
    QCOMPARE(Dev::instance()->selectedChannel(), second->channel(0));
    QCOMPARE(Dev::instance()->selectedDevice(), second);
    QCOMPARE(label.takeLast(), QStringLiteral("2 of 3"));
    t.viewControl.changePage(ViewControl::PageDown);
    t.viewControl.changePage(ViewControl::PageDown);
    QCOMPARE(onTiles(t), QStringLiteral("0.0"));
    QCOMPARE(Dev::instance()->selectedDevice(), first);
    QCOMPARE(label.takeLast(), QStringLiteral("0 of 3"));
}

void TestViewControlPages::pageOfOneTileSkipsClosedChannels()
{
    WallTest t;
    Device* device = t.addDevice(4);
    markPlaying(device, 4);
    device->channel(0)->mode(true).open = false;
    device->channel(2)->mode(true).open = false;
    t.viewControl.setWindowMod(WINDOW_MOD_1, true);
    QCOMPARE(onTiles(t), QStringLiteral("0.1"));
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(onTiles(t), QStringLiteral("0.3"));
    QCOMPARE(t.viewControl.getPage(), 1);
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(t.viewControl.getPage(), 1);
}

void TestViewControlPages::pageOfOneTileWhoseChannelDoesNotPlayKeepsThePicture()
{
    WallTest t;
    Device* device = t.addDevice(2);
    markPlaying(device, 1);
    device->channel(1)->mode(true).open = true;
    t.viewControl.setWindowMod(WINDOW_MOD_1, true);
    PageLabel label(t);
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(onTiles(t), QStringLiteral("0.0"));
    QCOMPARE(Dev::instance()->selectedChannel(), device->channel(1));
    QCOMPARE(t.viewControl.getPage(), 1);
    QCOMPARE(label.take(), QStringList({"1 of 2"}));
}

void TestViewControlPages::selectionOnOneTileShowsTheChannelAndItsPage()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(4);
    markPlaying(device, 4);
    device->channel(1)->mode(true).open = false;
    t.viewControl.setWindowMod(WINDOW_MOD_1, true);
    PageLabel label(t);
    Dev::instance()->selectChannel(device->channel(3));
    QCOMPARE(onTiles(t), QStringLiteral("0.3"));
    QCOMPARE(t.viewControl.getPage(), 2);
    QCOMPARE(label.take(), QStringList({"2 of 3"}));
    QCOMPARE(strayWidgets(t), QString());
    QVERIFY(device->channel(0)->tile == nullptr);
}

void TestViewControlPages::selectionOnManyTilesTellsThePageOnly()
{
    WallTest t;
    Device* device = t.addDevice(6);
    markPlaying(device, 6);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    PageLabel label(t);
    Dev::instance()->selectChannel(device->channel(5));
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3"));
    QCOMPARE(t.viewControl.getPage(), 0);
    QCOMPARE(label.take(), QStringList({"0 of 2"}));
}

void TestViewControlPages::selectionGoesOntoTheMirrorTile()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(6);
    markPlaying(device, 6);
    t.viewControl.setWindowMod(WINDOW_MOD_6_MIRROR, true);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.0 0.1 0.2 0.3 0.4"));
    Dev::instance()->selectChannel(device->channel(3));
    QCOMPARE(onTiles(t), QStringLiteral("0.3 0.0 0.1 0.2 0.3 0.4"));
    QCOMPARE(device->channel(3)->tile, t.tile(4));
    Dev::instance()->selectChannel(device->channel(5)); // of the other page
    QCOMPARE(onTiles(t), QStringLiteral("0.5 0.0 0.1 0.2 0.3 0.4"));
    QVERIFY(device->channel(5)->tile == nullptr);
    QCOMPARE(strayWidgets(t), QString());
    t.viewControl.changePage(ViewControl::PageUp);
    QCOMPARE(onTiles(t), QStringLiteral("0.5 0.5 - - - -"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlPages::selectionOfAChannelThatDoesNotPlayShowsNothing()
{
    WallTest t;
    Device* device = t.addDevice(3);
    markPlaying(device, 2);
    markOpen(device, 3);
    for (const WINDOW_MOD mod : {WINDOW_MOD_1, WINDOW_MOD_6_MIRROR}) {
        Dev::instance()->selectChannel(device->channel(1));
        t.viewControl.setWindowMod(mod, true);
        const QString before = onTiles(t);
        PageLabel label(t);
        Dev::instance()->selectChannel(device->channel(2));
        QCOMPARE(onTiles(t), before);
        QVERIFY(label.take().isEmpty());
    }
}

void TestViewControlPages::selectionOfNothingShowsNothing()
{
    WallTest t;
    Device* device = t.addDevice(1);
    markPlaying(device, 1);
    Dev::instance()->selectChannel(device->channel(0));
    t.viewControl.setWindowMod(WINDOW_MOD_6_MIRROR, true);
    PageLabel label(t);
    Dev::instance()->selectChannel(nullptr);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.0 - - - -"));
    QVERIFY(label.take().isEmpty());
}

void TestViewControlPages::selectionCountsByTheModeOnView()
{
    WallTest t;
    Device* device = t.addDevice(2, false);
    markPlaying(device, 2, true);
    t.viewControl.changeMod(false);
    t.viewControl.setWindowMod(WINDOW_MOD_1, false);
    Dev::instance()->selectChannel(device->channel(1)); // which plays live only
    QCOMPARE(onTiles(t), QStringLiteral("-"));
    Dev::instance()->selectChannel(nullptr);
    markPlaying(device, 2, false);
    Dev::instance()->selectChannel(device->channel(1));
    QCOMPARE(onTiles(t), QStringLiteral("0.1"));
    QCOMPARE(t.viewControl.getPage(), 1);
}

ORVA_TEST(TestViewControlPages)
#include "tst_viewcontrolpages.moc"

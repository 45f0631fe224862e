// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/location.h"
#include "testmain.h"
#include "wallwatch.h"

#include <QPointer>
#include <QTest>

// A double click on a tile: one tile for its channel, and back.
class TestViewControlDoubleClick final : public QObject
{
    Q_OBJECT

private slots:
    void firstClickShowsTheChannelAloneAndTheSecondGoesBack();
    void tilesTellTheWall();
    void tilesThatCameLaterTellTheWallToo();
    void everyLayoutComesBack_data();
    void everyLayoutComesBack();
    void oneTileFromTheStartGoesToFour();
    void layoutChosenMeanwhileIsTheOneToComeBackTo();
    void modesComeBackToTheirOwnLayouts();
    void channelOfALaterPageComesBackToItsPage();
    void selectionOfAnotherChannelGivesWay();
    void clickOnTheMirrorTileShowsItsChannel();
    void channelThatDoesNotPlayLeavesTheTileToTheSelectedOne();
};

namespace {

void doubleClick(const WallTest& t, int tile)
{
    GlWidgetViewWindow* clicked = t.tile(tile);
    emit clicked->doubleClicked(clicked->getChannel());
}

} // namespace

void TestViewControlDoubleClick::firstClickShowsTheChannelAloneAndTheSecondGoesBack()
{
    WallTest t;
    const Location* settings = Location::instance();
    Device* device = t.addDevice(4);
    markPlaying(device, 4);
    t.viewControl.setWindowMod(WINDOW_MOD_9, true);
    PageLabel label(t);
    t.viewControl.doubleClickScreen(device->channel(2));
    QCOMPARE(t.viewControl.getWindowMod(true), WINDOW_MOD_1);
    QCOMPARE(settings->getWindowNum(), 0);
    QCOMPARE(onTiles(t), QStringLiteral("0.2"));
    QCOMPARE(t.viewControl.getPage(), 2);
    QCOMPARE(label.takeLast(), QStringLiteral("2 of 4"));
    QCOMPARE(Dev::instance()->selectedDevice(), device);
    QCOMPARE(Dev::instance()->selectedChannel(), device->channel(2));

    t.viewControl.doubleClickScreen(device->channel(2));
    QCOMPARE(t.viewControl.getWindowMod(true), WINDOW_MOD_9);
    QCOMPARE(settings->getWindowNum(), 5);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3 - - - - -"));
    QCOMPARE(t.viewControl.getPage(), 0);
    QCOMPARE(label.takeLast(), QStringLiteral("0 of 1"));
    QCOMPARE(Dev::instance()->selectedDevice(), device);
    QVERIFY(Dev::instance()->selectedChannel() == nullptr);
}

void TestViewControlDoubleClick::tilesTellTheWall()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(4);
    QVERIFY(t.open(device, 4));
    t.takeSent();
    const QPointer<GlWidgetViewWindow> clicked = t.tile(3);
    doubleClick(t, 3);
    QVERIFY(!clicked.isNull()); // its signal is only just over
    QCOMPARE(onTiles(t), QStringLiteral("0.3"));
    QCOMPARE(strayWidgets(t), QString());
    QVERIFY(t.settle());
    QVERIFY(clicked.isNull());
    doubleClick(t, 0);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 0.2 0.3"));
    QCOMPARE(strayWidgets(t), QString());
    QVERIFY(t.settle());
    QVERIFY(t.takeSent().isEmpty()); // all streams run on
}

void TestViewControlDoubleClick::tilesThatCameLaterTellTheWallToo()
{
    WallTest t;
    t.makeTiles();
    markPlaying(t.addDevice(9), 9);
    t.viewControl.setWindowMod(WINDOW_MOD_9, true);
    doubleClick(t, 8);
    QCOMPARE(onTiles(t), QStringLiteral("0.8"));
}

void TestViewControlDoubleClick::everyLayoutComesBack_data()
{
    QTest::addColumn<int>("mod");
    for (int mod = 1; mod < windowModCount; ++mod)
        QTest::addRow("%d", mod) << mod;
}

void TestViewControlDoubleClick::everyLayoutComesBack()
{
    QFETCH(int, mod);
    WallTest t;
    Device* device = t.addDevice(70);
    markPlaying(device, 70);
    t.viewControl.setWindowMod(static_cast<WINDOW_MOD>(mod), true);
    const QList<Channel*> before = t.shown();
    t.viewControl.doubleClickScreen(device->channel(0));
    QCOMPARE(onTiles(t), QStringLiteral("0.0"));
    t.viewControl.doubleClickScreen(device->channel(0));
    QCOMPARE(int(t.viewControl.getWindowMod(true)), mod);
    QCOMPARE(t.shown(), before);
}

void TestViewControlDoubleClick::oneTileFromTheStartGoesToFour()
{
    WallTest t;
    Device* device = t.addDevice(2);
    markPlaying(device, 2);
    t.viewControl.setWindowMod(WINDOW_MOD_1, true);
    t.viewControl.doubleClickScreen(device->channel(0));
    QCOMPARE(t.viewControl.getWindowMod(true), WINDOW_MOD_4);
    QCOMPARE(onTiles(t), QStringLiteral("0.0 0.1 - -"));
}

void TestViewControlDoubleClick::layoutChosenMeanwhileIsTheOneToComeBackTo()
{
    WallTest t;
    Device* device = t.addDevice(2);
    markPlaying(device, 2);
    t.viewControl.setWindowMod(WINDOW_MOD_9, true);
    t.viewControl.doubleClickScreen(device->channel(1));
    t.viewControl.setWindowMod(WINDOW_MOD_16, true);
    t.viewControl.doubleClickScreen(device->channel(1));
    QCOMPARE(t.viewControl.getWindowMod(true), WINDOW_MOD_1);
    t.viewControl.doubleClickScreen(device->channel(1));
    QCOMPARE(t.viewControl.getWindowMod(true), WINDOW_MOD_16);
}

void TestViewControlDoubleClick::modesComeBackToTheirOwnLayouts()
{
    WallTest t;
    Device* device = t.addDevice(2, false);
    markPlaying(device, 2, true);
    markPlaying(device, 2, false);
    t.viewControl.setWindowMod(WINDOW_MOD_9, true);
    t.viewControl.doubleClickScreen(device->channel(0));
    t.viewControl.changeMod(false);
    t.viewControl.setWindowMod(WINDOW_MOD_6, false);
    t.viewControl.doubleClickScreen(device->channel(1));
    QCOMPARE(t.viewControl.getWindowMod(false), WINDOW_MOD_1);
    QCOMPARE(Location::instance()->getReplayWindowNum(), 0);
    t.viewControl.doubleClickScreen(device->channel(1));
    QCOMPARE(t.viewControl.getWindowMod(false), WINDOW_MOD_6);
    QCOMPARE(Location::instance()->getReplayWindowNum(), 3);
    QCOMPARE(Location::instance()->getWindowNum(), 0);
    t.viewControl.changeMod(true);
    t.viewControl.doubleClickScreen(device->channel(0));
    QCOMPARE(t.viewControl.getWindowMod(true), WINDOW_MOD_9);
}

void TestViewControlDoubleClick::channelOfALaterPageComesBackToItsPage()
{
    WallTest t;
    Device* device = t.addDevice(12);
    markPlaying(device, 12);
    t.viewControl.setPage(2);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    t.viewControl.doubleClickScreen(device->channel(9));
    QCOMPARE(t.viewControl.getPage(), 9);
    PageLabel label(t);
    t.viewControl.doubleClickScreen(device->channel(9));
    QCOMPARE(t.viewControl.getPage(), 2);
    QCOMPARE(onTiles(t), QStringLiteral("0.8 0.9 0.10 0.11"));
    QCOMPARE(label.take(), QStringList({"2 of 3"}));
}

void TestViewControlDoubleClick::selectionOfAnotherChannelGivesWay()
{
    WallTest t;
    t.makeTiles();
    Device* first = t.addDevice(2);
    Device* second = t.addDevice(1);
    markPlaying(first, 2);
    markPlaying(second, 1);
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    Dev::instance()->selectDevice(first);
    Dev::instance()->selectChannel(first->channel(0));
    doubleClick(t, 2);
    QCOMPARE(onTiles(t), QStringLiteral("1.0"));
    QCOMPARE(Dev::instance()->selectedDevice(), second);
    QCOMPARE(Dev::instance()->selectedChannel(), second->channel(0));
    QCOMPARE(t.viewControl.getPage(), 2);
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlDoubleClick::clickOnTheMirrorTileShowsItsChannel()
{
    WallTest t;
    t.makeTiles();
    Device* device = t.addDevice(5);
    markPlaying(device, 5);
    t.viewControl.setWindowMod(WINDOW_MOD_6_MIRROR, true);
    Dev::instance()->selectChannel(device->channel(3));
    doubleClick(t, 0);
    QCOMPARE(onTiles(t), QStringLiteral("0.3"));
    QVERIFY(!t.tile(0)->isMirror());
    QCOMPARE(strayWidgets(t), QString());
    QVERIFY(t.settle()); // the tiles that go have gone
    doubleClick(t, 0);
    QVERIFY(t.tile(0)->isMirror());
    QCOMPARE(onTiles(t), QStringLiteral("0.3 0.0 0.1 0.2 0.3 0.4"));
    QCOMPARE(strayWidgets(t), QString());
}

void TestViewControlDoubleClick::channelThatDoesNotPlayLeavesTheTileToTheSelectedOne()
{
    WallTest t;
    Device* device = t.addDevice(2);
    markPlaying(device, 1);
    device->channel(1)->mode(true).open = true;
    t.viewControl.setWindowMod(WINDOW_MOD_4, true);
    Dev::instance()->selectChannel(device->channel(0));
    t.viewControl.doubleClickScreen(device->channel(1));
    QCOMPARE(onTiles(t), QStringLiteral("0.0"));
    QCOMPARE(Dev::instance()->selectedChannel(), device->channel(1));
}

ORVA_TEST(TestViewControlDoubleClick)
#include "tst_viewcontroldoubleclick.moc"

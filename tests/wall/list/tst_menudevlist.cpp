// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "listtest.h"
#include "testmain.h"
#include "wall/channelwindow.h"

#include <QSignalSpy>
#include <QTest>

// The device list after a local login, its search, and what a rebuilt list keeps.
class TestMenuDevList final : public QObject
{
    Q_OBJECT

private slots:
    void listThatHasNotBeenAskedForSaysNothing();
    void localListComesAtOnceAndWhole();
    void localListComesOnRequest();
    void emptyListSaysSoInFriendlyWords();
    void localListHasNothingToRefresh();
    void devicesCannotBeAddedYet();
    void addedDeviceAppears();
    void changedDeviceShowsItsNewName();
    void deletedDeviceDisappears();
    void fiveHundredDevicesAreListed();

    void searchLeavesWhatMatches();
    void searchIsTypedAndCleared();
    void searchWithoutAMatchSaysSo();
    void searchForMarkupFindsItAndShowsItPlain();
    void searchAsksNobody();
    void scrolledListThatASearchShortensAsksNobody();

    void heightIsThatOfTitlesAndUnfoldedCards();
    void blocksAreAsHighAsTheListCounts();
    void rebuiltListKeepsWhatWasUnfolded();
    void rebuiltListKeepsItsPlace();
    void deviceThatComesBackIsAsItWas();
    void deviceThatLeavesWhileItIsShownIsLetGo();
    void textsFollowTheLanguage();
};

void TestMenuDevList::listThatHasNotBeenAskedForSaysNothing()
{
    const LocalLogin login;
    LocalLogin::store(QStringLiteral("A"));
    const PanelTest t;
    QVERIFY(t.blocks().isEmpty());
    QVERIFY(!t.isWaiting());
    QCOMPARE(t.emptyText(), QString());
    QCOMPARE(t.moreText(), QString());
}

void TestMenuDevList::localListComesAtOnceAndWhole()
{
    const LocalLogin login;
    QStringList names;
    for (int i = 0; i < 25; ++i) {
        names.append(QStringLiteral("Camera %1").arg(i));
        LocalLogin::store(QStringLiteral("UID%1").arg(i), names.last());
    }
    PanelTest t;
    CloudRequests requests;
    t.panel.loadDevList();
    QCOMPARE(t.titles(), names);
    QVERIFY(!t.isWaiting());
    QCOMPARE(t.moreText(), QString());
    QCOMPARE(t.emptyText(), QString());
    QCOMPARE(requests.take(), 0);
    CloudRequests::answer(20); // of whatever
    QCOMPARE(t.moreText(), QString());
    QCOMPARE(t.titles(), names);
}

void TestMenuDevList::localListComesOnRequest()
{
    const LocalLogin login;
    LocalLogin::store(QStringLiteral("A"), QStringLiteral("Gate"));
    const PanelTest t;
    emit Dev::instance()->loadDevMsg();
    QCOMPARE(t.titles(), QStringList("Gate"));
}

void TestMenuDevList::emptyListSaysSoInFriendlyWords()
{
    const LocalLogin login;
    PanelTest t;
    t.panel.loadDevList();
    QVERIFY(t.emptyText().startsWith(QStringLiteral("No devices yet")));
    QVERIFY(!t.isWaiting());
    QCOMPARE(t.moreText(), QString());
    Dev::instance()->addLocalDev(QStringLiteral("A"), {}, {}, {}, {}, {});
    QCOMPARE(t.emptyText(), QString());
    Dev::instance()->deleteLocalDev(Dev::instance()->devices().first());
    QVERIFY(t.emptyText().startsWith(QStringLiteral("No devices yet")));
}

void TestMenuDevList::localListHasNothingToRefresh()
{
    const LocalLogin login;
    PanelTest t;
    QVERIFY(t.show());
    const Device* device = t.wall.addDevice(1);
    t.panel.loadDevList();
    QVERIFY(!t.key("pushButton_refresh")->isEnabled());
    QVERIFY(!t.key("pushButton_refresh")->toolTip().isEmpty());
    CloudRequests requests;
    click(t.key("pushButton_refresh"));
    t.panel.refresh();
    QCOMPARE(Dev::instance()->devices().size(), 1);
    QVERIFY(device->sid >= 0);
    QVERIFY(!t.isWaiting());
    QCOMPARE(requests.take(), 0);
}

void TestMenuDevList::devicesCannotBeAddedYet()
{
    const PanelTest t;
    QVERIFY(!t.key("pushButton_add")->isEnabled());
    QCOMPARE(t.key("pushButton_add")->toolTip(), QString("Not part of this version yet"));
}

void TestMenuDevList::addedDeviceAppears()
{
    const LocalLogin login;
    LocalLogin::store(QStringLiteral("A"), QStringLiteral("Gate"));
    PanelTest t;
    t.panel.loadDevList();
    Dev::instance()->addLocalDev(QStringLiteral("B"), QStringLiteral("Yard"), {}, {},
        QStringLiteral("2"), QStringLiteral("4"));
    QCOMPARE(t.titles(), QStringList({"Gate", "Yard"}));
    QCOMPARE(t.block(1)->device()->channelCount(), 4);
}

void TestMenuDevList::changedDeviceShowsItsNewName()
{
    const LocalLogin login;
    LocalLogin::store(QStringLiteral("A"), QStringLiteral("Gate"));
    LocalLogin::store(QStringLiteral("B"), QStringLiteral("Yard"));
    PanelTest t;
    t.panel.loadDevList();
    Dev::instance()->addLocalDev(
        QStringLiteral("A"), QStringLiteral("Door"), {}, {}, QStringLiteral("2"), {});
    QCOMPARE(t.titles(), QStringList({"Door", "Yard"}));
    QVERIFY(shows(BlockParts(*t.block(0)).icon, QStringLiteral("DVR")));
}

void TestMenuDevList::deletedDeviceDisappears()
{
    const LocalLogin login;
    for (const char* name : {"Gate", "Yard", "Hall"})
        LocalLogin::store(QLatin1String(name), QLatin1String(name));
    PanelTest t;
    t.panel.loadDevList();
    Dev::instance()->deleteLocalDev(Dev::instance()->findDevice(QStringLiteral("Yard")));
    QCOMPARE(t.titles(), QStringList({"Gate", "Hall"}));
}

void TestMenuDevList::fiveHundredDevicesAreListed()
{
    const LocalLogin login;
    PanelTest t;
    QVERIFY(t.show());
    t.addDevices(500, 16);
    t.panel.loadDevList();
    QCOMPARE(t.blocks().size(), 500);
    QCOMPARE(t.list()->height(), 500 * 24);
    QTRY_VERIFY(t.bar()->maximum() > 0);
    t.bar()->setValue(t.bar()->maximum());
    QTRY_VERIFY(!t.block(499)->visibleRegion().isEmpty());
}

void TestMenuDevList::searchLeavesWhatMatches()
{
    const LocalLogin login;
    LocalLogin::store(QStringLiteral("GATE1"), QStringLiteral("Back yard"));
    LocalLogin::store(QStringLiteral("YARD2"), QStringLiteral("Door"));
    LocalLogin::store(QStringLiteral("C"));
    PanelTest t;
    t.panel.loadDevList();
    t.search()->setText(QStringLiteral("yARd"));
    QCOMPARE(t.titles(), QStringList({"Back yard", "Door"}));
    QCOMPARE(t.list()->height(), 2 * 24);
    t.search()->setText(QStringLiteral("door"));
    QCOMPARE(t.titles(), QStringList("Door"));
    t.search()->clear();
    QCOMPARE(t.titles(), QStringList({"Back yard", "Door", "C"}));
    QCOMPARE(Dev::instance()->devices().size(), 3);
}

void TestMenuDevList::searchIsTypedAndCleared()
{
    const LocalLogin login;
    for (const char* name : {"Gate", "Yard"})
        LocalLogin::store(QLatin1String(name), QLatin1String(name));
    PanelTest t;
    t.panel.loadDevList();
    QVERIFY(t.show());
    click(t.search());
    QTRY_VERIFY(t.search()->hasFocus());
    type(t.search(), Qt::Key_Y);
    type(t.search(), Qt::Key_A);
    QCOMPARE(t.titles(), QStringList("Yard")); // at once, and the box keeps the focus
    QVERIFY(t.search()->hasFocus());
    type(t.search(), Qt::Key_Backspace);
    type(t.search(), Qt::Key_Backspace);
    QCOMPARE(t.titles(), QStringList({"Gate", "Yard"}));
}

void TestMenuDevList::searchWithoutAMatchSaysSo()
{
    const LocalLogin login;
    LocalLogin::store(QStringLiteral("A"));
    PanelTest t;
    t.panel.loadDevList();
    t.search()->setText(QStringLiteral("x"));
    QVERIFY(t.blocks().isEmpty());
    QCOMPARE(t.emptyText(), QString("No device matches the search"));
    t.search()->clear();
    QCOMPARE(t.emptyText(), QString());
}

void TestMenuDevList::searchForMarkupFindsItAndShowsItPlain()
{
    const LocalLogin login;
    LocalLogin::store(QStringLiteral("A"), QStringLiteral("<b>x</b>"));
    LocalLogin::store(QStringLiteral("B"), QStringLiteral("x"));
    PanelTest t;
    t.panel.loadDevList();
    t.search()->setText(QStringLiteral("<B>"));
    QCOMPARE(t.titles(), QStringList("<b>x</b>"));
    QCOMPARE(BlockParts(*t.block(0)).name->textFormat(), Qt::PlainText);
}

void TestMenuDevList::searchAsksNobody()
{
    PanelTest t;
    CloudRequests requests;
    t.addDevices(20);
    CloudRequests::answer(20);
    Dev::instance()->devices().at(3)->setNickName(QStringLiteral("Gate"));
    for (const char* text : {"g", "ga", "nothing", ""}) {
        t.search()->setText(QLatin1String(text));
        QVERIFY(!t.isWaiting());
    }
    QCOMPARE(requests.take(), 0);
    QCOMPARE(t.blocks().size(), 20);
    QCOMPARE(t.moreText(), QString("Drop down to load more"));
}

// The end of the list comes to the view then, not the view to the end.
void TestMenuDevList::scrolledListThatASearchShortensAsksNobody()
{
    PanelTest t;
    QVERIFY(t.show(QSize(240, 300)));
    CloudRequests requests;
    t.addDevices(20);
    Dev::instance()->devices().at(3)->setNickName(QStringLiteral("Gate"));
    CloudRequests::answer(20);
    QTRY_VERIFY(t.bar()->maximum() > 10);
    t.bar()->setValue(t.bar()->maximum() - 5);
    QCOMPARE(requests.take(), 0);
    t.search()->setText(QStringLiteral("gate"));
    QTRY_COMPARE(t.bar()->maximum(), 0);
    QCOMPARE(requests.take(), 0);
    QVERIFY(!t.isWaiting());
    QCOMPARE(t.titles(), QStringList("Gate"));
}

void TestMenuDevList::heightIsThatOfTitlesAndUnfoldedCards()
{
    const LocalLogin login;
    LocalLogin::store(QStringLiteral("A"), {}, 1);
    LocalLogin::store(QStringLiteral("B"), {}, 4);
    LocalLogin::store(QStringLiteral("C"), {}, 16);
    PanelTest t;
    QVERIFY(t.show());
    t.panel.loadDevList();
    QCOMPARE(t.list()->height(), 3 * 24);
    QTRY_VERIFY(t.block(2)->isVisible());
    click(BlockParts(*t.block(1)).fold);
    QCOMPARE(t.list()->height(), 3 * 24 + 4 * 120);
    click(BlockParts(*t.block(0)).fold);
    QCOMPARE(t.list()->height(), 3 * 24 + 5 * 120);
    BlockParts(*t.block(2)).fold->toggle();
    QCOMPARE(t.list()->height(), 3 * 24 + 21 * 120);
    BlockParts(*t.block(1)).fold->toggle();
    QCOMPARE(t.list()->height(), 3 * 24 + 17 * 120);
}

void TestMenuDevList::blocksAreAsHighAsTheListCounts()
{
    const LocalLogin login;
    LocalLogin::store(QStringLiteral("A"), {}, 1);
    LocalLogin::store(QStringLiteral("B"), {}, 3);
    LocalLogin::store(QStringLiteral("C"), {}, 2);
    PanelTest t;
    QVERIFY(t.show());
    t.panel.loadDevList();
    BlockParts(*t.block(1)).fold->toggle();
    QTRY_COMPARE(t.block(0)->height(), 24);
    QTRY_COMPARE(t.block(1)->height(), 24 + 3 * 120);
    QTRY_COMPARE(t.block(2)->height(), 24);
    QCOMPARE(t.block(1)->y(), 24);
    QCOMPARE(t.block(2)->y(), 2 * 24 + 3 * 120);
    const QList<ChannelWindow*> cards = BlockParts(*t.block(1)).cards();
    for (int i = 0; i < cards.size(); ++i) {
        QCOMPARE(cards.at(i)->height(), 120);
        QCOMPARE(cards.at(i)->mapTo(t.block(1), QPoint(0, 0)).y(), 24 + i * 120);
    }
}

void TestMenuDevList::rebuiltListKeepsWhatWasUnfolded()
{
    const LocalLogin login;
    LocalLogin::store(QStringLiteral("A"), QStringLiteral("Gate"), 2);
    LocalLogin::store(QStringLiteral("B"), QStringLiteral("Yard"), 2);
    PanelTest t;
    t.panel.loadDevList();
    BlockParts(*t.block(0)).fold->toggle();
    t.search()->setText(QStringLiteral("yard")); // hides it
    QVERIFY(!t.block(0)->isUnfolded());
    t.search()->clear();
    QVERIFY(t.block(0)->isUnfolded());
    QVERIFY(!t.block(1)->isUnfolded());
    QCOMPARE(BlockParts(*t.block(0)).cards().size(), 2);
    QVERIFY(BlockParts(*t.block(0)).fold->isUnfolded());
    QCOMPARE(t.list()->height(), 2 * 24 + 2 * 120);
    BlockParts(*t.block(0)).fold->toggle();
    emit Dev::instance()->reloadDevMsg(t.block(0)->device());
    QVERIFY(!t.block(0)->isUnfolded());
    QCOMPARE(t.list()->height(), 2 * 24);
}

void TestMenuDevList::rebuiltListKeepsItsPlace()
{
    const LocalLogin login;
    PanelTest t;
    QVERIFY(t.show(QSize(240, 300)));
    t.addDevices(60);
    t.panel.loadDevList();
    QTRY_VERIFY(t.bar()->maximum() > 500);
    t.bar()->setValue(500);
    t.panel.reloadDev(nullptr);
    QTRY_VERIFY(t.block(59)->isVisible() && t.block(59)->y() == 59 * 24);
    QCOMPARE(t.bar()->value(), 500);
}

void TestMenuDevList::deviceThatComesBackIsAsItWas()
{
    const LocalLogin login;
    LocalLogin::store(QStringLiteral("A"), {}, 2);
    PanelTest t;
    t.panel.loadDevList();
    BlockParts(*t.block(0)).fold->toggle();
    Dev::instance()->deleteLocalDev(t.block(0)->device());
    QVERIFY(t.blocks().isEmpty());
    QCOMPARE(t.list()->height(), 0);
    Dev::instance()->addLocalDev(
        QStringLiteral("A"), {}, {}, {}, QStringLiteral("7"), QStringLiteral("2"));
    QCOMPARE(t.blocks().size(), 1);
    QVERIFY(t.block(0)->isUnfolded());
    BlockParts(*t.block(0)).fold->toggle();
    Dev::instance()->deleteLocalDev(t.block(0)->device());
    Dev::instance()->addLocalDev(
        QStringLiteral("A"), {}, {}, {}, QStringLiteral("7"), QStringLiteral("2"));
    QVERIFY(!t.block(0)->isUnfolded());
}

void TestMenuDevList::deviceThatLeavesWhileItIsShownIsLetGo()
{
    const LocalLogin login;
    LocalLogin::store(QStringLiteral("A"), QStringLiteral("Gate"), 2);
    LocalLogin::store(QStringLiteral("B"), QStringLiteral("Yard"), 2);
    PanelTest t;
    QVERIFY(t.show());
    t.panel.loadDevList();
    BlockParts(*t.block(0)).fold->toggle();
    Dev::instance()->removeDevice(t.block(0)->device()); // nothing tells the list to reload
    QVERIFY(t.wall.settle());
    QVERIFY(t.block(0)->device() == nullptr);
    for (MenuListDev* block : t.blocks()) {
        click(BlockParts(*block).title, QPoint(100, 12));
        doubleClick(BlockParts(*block).title, QPoint(100, 12));
    }
    t.panel.resizeDevList();
    t.search()->setText(QStringLiteral("a"));
    QCOMPARE(t.titles(), QStringList("Yard"));
}

void TestMenuDevList::textsFollowTheLanguage()
{
    const LocalLogin login;
    PanelTest t;
    t.panel.loadDevList();
    QVERIFY(t.show());
    {
        const Brackets brackets;
        QTRY_VERIFY(t.emptyText().startsWith(QStringLiteral("[No devices yet")));
        QCOMPARE(t.key("pushButton_refresh")->text(), QString("[Refresh]"));
        QVERIFY(t.key("pushButton_refresh")->toolTip().startsWith(QLatin1Char('[')));
        QCOMPARE(t.key("pushButton_add")->text(), QString("[Add Device]"));
        QCOMPARE(t.search()->placeholderText(), QString("[Search]"));
        t.search()->setText(QStringLiteral("x"));
        QCOMPARE(t.emptyText(), QString("[No device matches the search]"));
    }
    QTRY_COMPARE(t.emptyText(), QString("No device matches the search"));
}

ORVA_TEST(TestMenuDevList)
#include "tst_menudevlist.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "listtest.h"
#include "testmain.h"
#include "wall/channelwindow.h"

#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>

// A device in the device list: its title, what a click on it does, and its cards.
class TestMenuListDev final : public QObject
{
    Q_OBJECT

private slots:
    void titleIsTheNameOrTheUidCutToTwelve_data();
    void titleIsTheNameOrTheUidCutToTwelve();
    void namesAreShownAsPlainText_data();
    void namesAreShownAsPlainText();
    void longNameKeepsTheTitleSmall();
    void hintTellsTheWholeName_data();
    void hintTellsTheWholeName();
    void iconTellsCamerasFromRecorders_data();
    void iconTellsCamerasFromRecorders();

    void clickSelectsTheDeviceAndItsOnlyChannel();
    void clickOnADeviceOfSeveralChannelsClearsTheChannel();
    void keyboardSelectsAndOpens();
    void otherButtonsSelectNothing();
    void doubleClickOpensTheOnlyChannel();
    void doubleClickInPlaybackOpensNothing();
    void doubleClickOnSeveralChannelsUnfoldsThem();
    void rightClickAsksForTheMenu_data();
    void rightClickAsksForTheMenu();

    void cardsAreMadeWhenTheyAreUnfolded();
    void foldKeyShowsAndHidesTheCards();
    void foldKeySelectsNothing();
    void unfoldingFromOutsideIsNotTold();
    void wantedHeightIsThatOfTitleAndCards();
    void clickOnACardSelectsItsChannel();
    void deviceThatLeavesIsLetGo_data();
    void deviceThatLeavesIsLetGo();
    void blockWithoutADeviceStandsEverything();
};

namespace {

// Where the title has nothing else.
const QPoint onTitle(150, 12);

void clickTitle(const BlockTest& t, Qt::MouseButton button = Qt::LeftButton)
{
    click(t.parts().title, onTitle, button);
}

// A double click begins with a click.
void doubleClickTitle(const BlockTest& t)
{
    clickTitle(t);
    doubleClick(t.parts().title, onTitle);
}

} // namespace

void TestMenuListDev::titleIsTheNameOrTheUidCutToTwelve_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    QTest::newRow("short") << QStringLiteral("Gate") << QStringLiteral("Gate");
    QTest::newRow("twelve") << QStringLiteral("abcdefghijkl") << QStringLiteral("abcdefghijkl");
    QTest::newRow("thirteen") << QStringLiteral("abcdefghijklm")
                              << QStringLiteral("abcdefghijk...");
    QTest::newRow("none") << QString() << QStringLiteral("UIDUIDUIDUI...");
}

void TestMenuListDev::titleIsTheNameOrTheUidCutToTwelve()
{
    QFETCH(QString, name);
    BlockTest t(2);
    t.device->setUid(QStringLiteral("UIDUIDUIDUIDUIDUID00"));
    t.device->setNickName(name);
    t.block.setDevice(t.device);
    QTEST(t.parts().name->text(), "title");
}

void TestMenuListDev::namesAreShownAsPlainText_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("bold") << QStringLiteral("<b>x</b>");
    QTest::newRow("picture") << QStringLiteral("<img src=x>");
    QTest::newRow("entity") << QStringLiteral("&lt;&amp;");
}

void TestMenuListDev::namesAreShownAsPlainText()
{
    QFETCH(QString, name);
    BlockTest t(2);
    t.device->setNickName(name);
    t.block.setDevice(t.device);
    const QLabel* label = t.parts().name;
    QCOMPARE(label->text(), name.size() > 12 ? name.left(11) + "..." : name);
    QCOMPARE(label->textFormat(), Qt::PlainText);
}

void TestMenuListDev::longNameKeepsTheTitleSmall()
{
    BlockTest t(2);
    t.device->setNickName(QString(10000, QLatin1Char('W')));
    t.block.setDevice(t.device);
    QVERIFY(t.show());
    QCOMPARE(t.parts().name->text(), QString("WWWWWWWWWWW..."));
    QCOMPARE(t.block.width(), 240);
    QVERIFY(t.block.minimumSizeHint().width() <= 240);
    // A hint wider than the screen cannot be shown.
    QTextDocument hint;
    hint.setHtml(t.parts().title->toolTip());
    QVERIFY(hint.toPlainText().size() < 300);
    QVERIFY(hint.toPlainText().startsWith(QStringLiteral("WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW")));
}

void TestMenuListDev::hintTellsTheWholeName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("The gate to the yard");
    QTest::newRow("and") << QStringLiteral("Door & gate");
    QTest::newRow("quotes") << QStringLiteral("\"Gate\" > 'yard'");
    QTest::newRow("markup") << QStringLiteral("<b>Gate</b><img src=\"x\">");
    QTest::newRow("entity") << QStringLiteral("&lt;Gate&gt;&amp;");
}

void TestMenuListDev::hintTellsTheWholeName()
{
    QFETCH(QString, name);
    BlockTest t(2);
    t.device->setNickName(name);
    t.block.setDevice(t.device);
    const QString hint = t.parts().title->toolTip();
    // As the tool tip reads it.
    QTextDocument shown;
    if (Qt::mightBeRichText(hint))
        shown.setHtml(hint);
    else
        shown.setPlainText(hint);
    QCOMPARE(shown.toPlainText(), name);
    QCOMPARE(t.parts().title->accessibleName(), name);
}

void TestMenuListDev::iconTellsCamerasFromRecorders_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("icon");
    QTest::newRow("camera") << 7 << QStringLiteral("c512");
    QTest::newRow("last camera") << 17 << QStringLiteral("c512");
    QTest::newRow("recorder") << 2 << QStringLiteral("DVR");
    QTest::newRow("camera that counts as recorder") << 9 << QStringLiteral("DVR");
    QTest::newRow("unknown") << 0 << QStringLiteral("DVR");
}

void TestMenuListDev::iconTellsCamerasFromRecorders()
{
    QFETCH(int, type);
    QFETCH(QString, icon);
    BlockTest t(2);
    t.device->setType(type);
    t.block.setDevice(t.device);
    QVERIFY(shows(t.parts().icon, icon));
}

void TestMenuListDev::clickSelectsTheDeviceAndItsOnlyChannel()
{
    BlockTest t(1);
    QVERIFY(t.show());
    clickTitle(t);
    QCOMPARE(Dev::instance()->selectedDevice(), t.device);
    QCOMPARE(Dev::instance()->selectedChannel(), t.channel());
}

void TestMenuListDev::clickOnADeviceOfSeveralChannelsClearsTheChannel()
{
    BlockTest t(2);
    QVERIFY(t.show());
    for (Channel* channel : {t.other->channel(0), t.channel(1)}) {
        Dev::instance()->selectChannel(channel);
        clickTitle(t);
        QCOMPARE(Dev::instance()->selectedDevice(), t.device);
        QVERIFY(Dev::instance()->selectedChannel() == nullptr);
    }
}

void TestMenuListDev::keyboardSelectsAndOpens()
{
    BlockTest t(1);
    QVERIFY(t.show());
    t.parts().title->setFocus(Qt::TabFocusReason);
    type(t.parts().title, Qt::Key_Space);
    QCOMPARE(Dev::instance()->selectedChannel(), t.channel());
    QVERIFY(!t.channel()->mode(true).open);
    type(t.parts().title, Qt::Key_A);
    QVERIFY(!t.channel()->mode(true).open);
    type(t.parts().title, Qt::Key_Return);
    QVERIFY(t.channel()->mode(true).open);
}

void TestMenuListDev::otherButtonsSelectNothing()
{
    BlockTest t(1);
    QVERIFY(t.show());
    clickTitle(t, Qt::MiddleButton);
    clickTitle(t, Qt::RightButton);
    doubleClick(t.parts().title, onTitle, Qt::RightButton);
    QVERIFY(Dev::instance()->selectedDevice() == nullptr);
    QVERIFY(!t.channel()->mode(true).open);
}

void TestMenuListDev::doubleClickOpensTheOnlyChannel()
{
    BlockTest t(1);
    QVERIFY(t.show());
    doubleClickTitle(t);
    QVERIFY(t.channel()->mode(true).open);
    QVERIFY(t.wall.settle());
    QVERIFY(t.channel()->mode(true).playing);
    QCOMPARE(t.wall.shown(1), QList<Channel*>({t.channel()}));
    QVERIFY(!t.block.isUnfolded()); // there is no need to
    doubleClickTitle(t); // it plays already
    QVERIFY(t.wall.settle());
    QVERIFY(t.channel()->mode(true).playing);
}

void TestMenuListDev::doubleClickInPlaybackOpensNothing()
{
    BlockTest t(1);
    QVERIFY(t.show());
    t.wall.viewControl.changeMod(false);
    doubleClickTitle(t);
    QCOMPARE(Dev::instance()->selectedChannel(), t.channel());
    QVERIFY(!t.channel()->mode(true).open);
    QVERIFY(!t.channel()->mode(false).open);
}

void TestMenuListDev::doubleClickOnSeveralChannelsUnfoldsThem()
{
    BlockTest t(3);
    QVERIFY(t.show());
    QSignalSpy folded(&t.block, &MenuListDev::folded);
    doubleClickTitle(t);
    QVERIFY(t.block.isUnfolded());
    QCOMPARE(folded.count(), 1);
    for (int i = 0; i < 3; ++i)
        QVERIFY(!t.channel(i)->mode(true).open);
    doubleClickTitle(t);
    QVERIFY(!t.block.isUnfolded());
}

void TestMenuListDev::rightClickAsksForTheMenu_data()
{
    QTest::addColumn<int>("channels");
    QTest::newRow("one channel") << 1;
    QTest::newRow("several") << 2;
}

void TestMenuListDev::rightClickAsksForTheMenu()
{
    QFETCH(int, channels);
    BlockTest t(channels);
    QVERIFY(t.show());
    QSignalSpy asked(&t.wall.viewControl, &ViewControl::openedSubWindowMenuMsg);
    clickTitle(t, Qt::RightButton);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.first().at(0).value<Device*>(), t.device);
    QCOMPARE(asked.first().at(1).value<Channel*>(), channels == 1 ? t.channel() : nullptr);
    QVERIFY(Dev::instance()->selectedDevice() == nullptr);
}

void TestMenuListDev::cardsAreMadeWhenTheyAreUnfolded()
{
    BlockTest t(4);
    QVERIFY(t.parts().cards().isEmpty());
    t.block.setUnfolded(true);
    QCOMPARE(t.parts().cards().size(), 4);
    const QList<ChannelWindow*> cards = t.parts().cards();
    t.block.setUnfolded(false);
    t.block.setUnfolded(true);
    QCOMPARE(t.parts().cards(), cards);
    QStringList names;
    for (const ChannelWindow* card : cards)
        names.append(card->findChild<QLabel*>(QStringLiteral("channelName"))->text());
    QCOMPARE(names, QStringList({"Channel1", "Channel2", "Channel3", "Channel4"}));
}

void TestMenuListDev::foldKeyShowsAndHidesTheCards()
{
    BlockTest t(2);
    QVERIFY(t.show());
    QSignalSpy folded(&t.block, &MenuListDev::folded);
    QVERIFY(!t.parts().cardArea->isVisible());
    click(t.parts().fold);
    QCOMPARE(folded.count(), 1);
    QVERIFY(t.block.isUnfolded());
    QVERIFY(t.parts().fold->isUnfolded());
    QVERIFY(t.parts().cardArea->isVisible());
    for (const ChannelWindow* card : t.parts().cards())
        QVERIFY(card->isVisible());
    click(t.parts().fold);
    QCOMPARE(folded.count(), 2);
    QVERIFY(!t.block.isUnfolded());
    QVERIFY(!t.parts().cardArea->isVisible());
}

void TestMenuListDev::foldKeySelectsNothing()
{
    BlockTest t(1);
    QVERIFY(t.show());
    click(t.parts().fold);
    doubleClick(t.parts().fold);
    QVERIFY(Dev::instance()->selectedDevice() == nullptr);
    QVERIFY(!t.channel()->mode(true).open);
}

void TestMenuListDev::unfoldingFromOutsideIsNotTold()
{
    BlockTest t(2);
    QSignalSpy folded(&t.block, &MenuListDev::folded);
    t.block.setUnfolded(true);
    QVERIFY(t.parts().fold->isUnfolded());
    t.block.setUnfolded(false);
    QVERIFY(!t.parts().fold->isUnfolded());
    QCOMPARE(folded.count(), 0);
}

void TestMenuListDev::wantedHeightIsThatOfTitleAndCards()
{
    BlockTest t(3);
    QCOMPARE(t.block.wantedHeight(), 24);
    t.block.setUnfolded(true);
    QCOMPARE(t.block.wantedHeight(), 24 + 3 * 120);
    QCOMPARE(t.block.minimumSizeHint().height(), 24 + 3 * 120);
    t.block.setUnfolded(false);
    QCOMPARE(t.block.wantedHeight(), 24);
}

void TestMenuListDev::clickOnACardSelectsItsChannel()
{
    BlockTest t(2);
    QVERIFY(t.show());
    t.block.setUnfolded(true);
    t.block.resize(240, t.block.wantedHeight());
    ChannelWindow* card = t.parts().cards().at(1);
    QTRY_VERIFY(card->isVisible() && card->y() >= 120);
    click(card);
    QCOMPARE(Dev::instance()->selectedDevice(), t.device);
    QCOMPARE(Dev::instance()->selectedChannel(), t.channel(1));
    doubleClick(card);
    QVERIFY(t.wall.settle());
    QVERIFY(t.channel(1)->mode(true).playing);
    QVERIFY(!t.channel(0)->mode(true).open);
}

void TestMenuListDev::deviceThatLeavesIsLetGo_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<bool>("isUnfolded");
    QTest::newRow("one channel") << 1 << false;
    QTest::newRow("one card") << 1 << true;
    QTest::newRow("several") << 3 << false;
    QTest::newRow("cards") << 3 << true;
}

void TestMenuListDev::deviceThatLeavesIsLetGo()
{
    QFETCH(int, channels);
    QFETCH(bool, isUnfolded);
    BlockTest t(channels);
    QVERIFY(t.show());
    t.block.setUnfolded(isUnfolded);
    t.block.resize(240, t.block.wantedHeight());
    const auto cards = t.parts().cards();
    QCOMPARE(cards.size(), isUnfolded ? channels : 0);
    for (const ChannelWindow* card : cards)
        QTRY_VERIFY(card->isVisible() && card->height() == 120);
    Dev::instance()->removeDevice(t.device);
    QVERIFY(t.wall.settle()); // it is destroyed
    QVERIFY(t.block.device() == nullptr);
    QCOMPARE(t.block.wantedHeight(), 24);
    QSignalSpy asked(&t.wall.viewControl, &ViewControl::openedSubWindowMenuMsg);
    clickTitle(t, Qt::RightButton);
    doubleClickTitle(t);
    for (ChannelWindow* card : cards)
        doubleClick(card);
    click(t.parts().fold);
    Dev::instance()->selectDevice(t.other);
    Dev::instance()->selectChannel(t.other->channel(0));
    emit t.wall.io->connectDevFailMsg(t.other->channel(0), -13, QString());
    t.wall.viewControl.changeMod(false);
    QVERIFY(t.wall.settle());
    QCOMPARE(asked.count(), 0);
    QVERIFY(!t.parts().ground().isValid());
}

void TestMenuListDev::blockWithoutADeviceStandsEverything()
{
    BlockTest t(1);
    MenuListDev block;
    BlockParts(block).fold->toggle();
    emit BlockParts(block).title->clicked(nullptr);
    emit BlockParts(block).title->doubleClick(nullptr);
    emit BlockParts(block).title->rightClicked(nullptr, nullptr);
    emit t.wall.io->connectDevSuccessMsg(t.channel());
    Dev::instance()->selectDevice(t.device);
    Dev::instance()->selectDevice(nullptr);
    Dev::instance()->selectChannel(t.channel());
    Dev::instance()->selectChannel(nullptr);
    t.wall.viewControl.changeMod(false);
    QVERIFY(block.device() == nullptr);
    QVERIFY(!BlockParts(block).ground().isValid());
    QCOMPARE(block.wantedHeight(), 24);
}

ORVA_TEST(TestMenuListDev)
#include "tst_menulistdev.moc"

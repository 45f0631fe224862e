// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "listtest.h"
#include "testmain.h"

#include <QLayout>
#include <QTest>

// The menu on a device or a channel: what it shows, and how it keeps up.
class TestDevMenu final : public QObject
{
    Q_OBJECT

private slots:
    void menuHasTheRowsOfItsModeAndTarget_data();
    void menuHasTheRowsOfItsModeAndTarget();
    void rulesDivideRowsThatAreThere_data();
    void rulesDivideRowsThatAreThere();
    void rowsOfLaterVersionsAreDisabled();
    void menuOnADeviceHasNoMarks();
    void marksTellTheStateOfTheChannel_data();
    void marksTellTheStateOfTheChannel();
    void marksFollowTheirChannelWhileTheMenuIsOpen_data();
    void marksFollowTheirChannelWhileTheMenuIsOpen();
    void pressElsewhereClosesTheMenu();
    void pressBesideTheRowsKeepsTheMenu();
    void escapeClosesTheMenu();
    void arrowsWalkTheRows();
    void deviceThatLeavesClosesItsMenu_data();
    void deviceThatLeavesClosesItsMenu();
    void deviceThatLeavesLeavesOtherMenusOpen();
};

namespace {

struct Flags
{
    bool open = false;
    bool high = false;
    bool sound = false;
    bool speaking = false;
};

void give(Channel* channel, bool isLive, const Flags& flags)
{
    ChannelMode& mode = channel->mode(isLive);
    mode.open = flags.open;
    mode.highQuality = flags.high;
    mode.audioOn = flags.sound;
    channel->speaking = flags.speaking;
}

void addTargets()
{
    QTest::addColumn<bool>("isLive");
    QTest::addColumn<bool>("onChannel");
    QTest::newRow("device, live") << true << false;
    QTest::newRow("device, playback") << false << false;
    QTest::newRow("channel, live") << true << true;
    QTest::newRow("channel, playback") << false << true;
}

} // namespace

void TestDevMenu::menuHasTheRowsOfItsModeAndTarget_data()
{
    const QStringList always{"Edit Device", "Reset Connect", "Record Folder", "Screenshot Folder"};
    const QStringList all{"Play All", "Stop All"};
    const QStringList one{"Play", "Stop"};
    QTest::addColumn<bool>("isLive");
    QTest::addColumn<bool>("onChannel");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("device, live") << true << false << all + always + QStringList("Delete Device");
    QTest::newRow("device, playback")
        << false << false
        << all + QStringList("Synchronize Timeline") + always + QStringList("Delete Device");
    QTest::newRow("channel, live")
        << true << true
        << one + QStringList({"HD", "SD", "Audio Get", "Mute", "Send Voice"}) + always;
    QTest::newRow("channel, playback")
        << false << true << one + QStringList("Synchronize Timeline") + always;
}

void TestDevMenu::menuHasTheRowsOfItsModeAndTarget()
{
    QFETCH(bool, isLive);
    QFETCH(bool, onChannel);
    WallTest wall;
    Device* device = wall.addDevice(2);
    wall.viewControl.changeMod(isLive);
    MenuTest t(wall, device, onChannel ? device->channel(1) : nullptr);
    QTEST(t.rows(), "rows");
    QVERIFY(t.show());
    for (const QString& text : t.rows()) {
        const DevMenuItem* row = t.row(qPrintable(text));
        QVERIFY(t.menu->rect().contains(row->geometry()));
        QVERIFY(row->isVisible());
    }
}

void TestDevMenu::rulesDivideRowsThatAreThere_data()
{
    addTargets();
}

// No two in a row, and none at the edges.
void TestDevMenu::rulesDivideRowsThatAreThere()
{
    QFETCH(bool, isLive);
    QFETCH(bool, onChannel);
    WallTest wall;
    Device* device = wall.addDevice(2);
    wall.viewControl.changeMod(isLive);
    const MenuTest t(wall, device, onChannel ? device->channel(0) : nullptr);
    QString shape;
    for (int i = 0; i < t.menu->layout()->count(); ++i) {
        const QWidget* widget = t.menu->layout()->itemAt(i)->widget();
        if (widget != nullptr && widget->isVisibleTo(t.menu))
            shape += QLatin1Char(qobject_cast<const DevMenuItem*>(widget) != nullptr ? 'r' : '-');
    }
    QVERIFY2(!shape.contains(QStringLiteral("--")), qPrintable(shape));
    QVERIFY2(
        shape.startsWith(QLatin1Char('r')) && shape.endsWith(QLatin1Char('r')), qPrintable(shape));
}

void TestDevMenu::rowsOfLaterVersionsAreDisabled()
{
    WallTest wall;
    Device* device = wall.addDevice(1);
    MenuTest t(wall, device, device->channel(0));
    QVERIFY(t.show());
    for (const char* text : {"Audio Get", "Mute", "Send Voice", "Edit Device"}) {
        QVERIFY(!t.row(text)->isEnabled());
        QCOMPARE(t.row(text)->toolTip(), QString("Not part of this version yet"));
        click(t.row(text));
    }
    QCOMPARE(t.closed.count(), 0);
    QVERIFY(!device->channel(0)->mode(true).audioOn);
    QVERIFY(!device->channel(0)->speaking);
    for (const char* text : {"Play", "Stop", "Reset Connect", "Record Folder", "Screenshot Folder",
             "Play All", "Stop All", "Delete Device"})
        QVERIFY(t.row(text)->isEnabled());
}

void TestDevMenu::menuOnADeviceHasNoMarks()
{
    WallTest wall;
    Device* device = wall.addDevice(1);
    give(device->channel(0), true, {true, true, true, true});
    const MenuTest t(wall, device, nullptr);
    QCOMPARE(t.marked(), QStringList());
}

void TestDevMenu::marksTellTheStateOfTheChannel_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::addColumn<bool>("open");
    QTest::addColumn<bool>("high");
    QTest::addColumn<bool>("sound");
    QTest::addColumn<bool>("speaking");
    QTest::addColumn<QStringList>("marks");
    QTest::newRow("closed") << true << false << false << false << false
                            << QStringList({"Stop", "SD", "Mute"});
    QTest::newRow("open") << true << true << false << false << false
                          << QStringList({"Play", "SD", "Mute"});
    QTest::newRow("high") << true << true << true << false << false
                          << QStringList({"Play", "HD", "Mute"});
    QTest::newRow("sound") << true << true << false << true << false
                           << QStringList({"Play", "SD", "Audio Get"});
    QTest::newRow("speaking") << true << true << false << false << true
                              << QStringList({"Play", "SD", "Mute", "Send Voice"});
    QTest::newRow("playback") << false << true << true << true << true << QStringList("Play");
    QTest::newRow("no playback") << false << false << true << true << true << QStringList("Stop");
}

void TestDevMenu::marksTellTheStateOfTheChannel()
{
    QFETCH(bool, isLive);
    QFETCH(bool, open);
    QFETCH(bool, high);
    QFETCH(bool, sound);
    QFETCH(bool, speaking);
    WallTest wall;
    Device* device = wall.addDevice(2);
    wall.viewControl.changeMod(isLive);
    give(device->channel(1), !isLive, {!open, !high, !sound, speaking});
    give(device->channel(1), isLive, {open, high, sound, speaking});
    const MenuTest t(wall, device, device->channel(1));
    QTEST(t.marked(), "marks");
}

void TestDevMenu::marksFollowTheirChannelWhileTheMenuIsOpen_data()
{
    QTest::addColumn<QString>("news");
    for (const char* news : {"started", "quality", "sound"})
        QTest::newRow(news) << QString::fromLatin1(news);
}

void TestDevMenu::marksFollowTheirChannelWhileTheMenuIsOpen()
{
    QFETCH(QString, news);
    const auto tell = [&news](Channel* channel) {
        if (news == QLatin1String("started"))
            emit IoConnect::instance()->videoRequestSuccessMsg(channel);
        else if (news == QLatin1String("quality"))
            emit IoConnect::instance()->changeQualitySuccessMsg(channel);
        else
            emit IoConnect::instance()->audioControlSuccessMsg(channel);
    };
    WallTest wall;
    Device* device = wall.addDevice(2);
    const MenuTest t(wall, device, device->channel(0));
    const QStringList before{"Stop", "SD", "Mute"};
    QCOMPARE(t.marked(), before);
    give(device->channel(0), true, {true, true, true, true});
    tell(device->channel(1));
    QCOMPARE(t.marked(), before);
    tell(device->channel(0));
    QCOMPARE(t.marked(), QStringList({"Play", "HD", "Audio Get", "Send Voice"}));
    QCOMPARE(t.closed.count(), 0);
}

void TestDevMenu::pressElsewhereClosesTheMenu()
{
    WallTest wall;
    Device* device = wall.addDevice(1);
    MenuTest t(wall, device, nullptr);
    QVERIFY(t.show());
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        const int before = t.closed.count();
        click(&t.window, QPoint(t.menu->width() + 20, 20), button);
        QCOMPARE(t.closed.count(), before + 1);
    }
}

void TestDevMenu::pressBesideTheRowsKeepsTheMenu()
{
    WallTest wall;
    Device* device = wall.addDevice(1);
    MenuTest t(wall, device, device->channel(0));
    QVERIFY(t.show());
    for (QWidget* beside : {t.menu->findChild<QWidget*>(QStringLiteral("rule_quality")),
             static_cast<QWidget*>(t.row("Mute"))}) {
        click(beside);
        click(beside, Qt::RightButton);
    }
    click(t.menu, QPoint(1, 1));
    QCOMPARE(t.closed.count(), 0);
}

void TestDevMenu::escapeClosesTheMenu()
{
    WallTest wall;
    Device* device = wall.addDevice(1);
    MenuTest t(wall, device, nullptr);
    QVERIFY(t.show());
    t.menu->setFocus();
    type(t.menu, Qt::Key_Escape);
    QCOMPARE(t.closed.count(), 1);
    t.row("Stop All")->setFocus();
    type(t.menu, Qt::Key_Escape);
    QCOMPARE(t.closed.count(), 2);
}

void TestDevMenu::arrowsWalkTheRows()
{
    WallTest wall;
    Device* device = wall.addDevice(1);
    MenuTest t(wall, device, nullptr);
    QVERIFY(t.show());
    t.menu->setFocus();
    for (const char* text : {"Play All", "Stop All", "Reset Connect", "Record Folder",
             "Screenshot Folder", "Delete Device", "Play All"}) {
        type(t.menu, Qt::Key_Down);
        QVERIFY2(t.row(text)->hasFocus(), text);
    }
    type(t.menu, Qt::Key_Up);
    QVERIFY(t.row("Delete Device")->hasFocus());
    type(t.menu, Qt::Key_Up);
    QVERIFY(t.row("Screenshot Folder")->hasFocus());
}

void TestDevMenu::deviceThatLeavesClosesItsMenu_data()
{
    addTargets();
}

// Whoever closes it does so later: until then it does nothing.
void TestDevMenu::deviceThatLeavesClosesItsMenu()
{
    QFETCH(bool, isLive);
    QFETCH(bool, onChannel);
    WallTest wall;
    Device* device = wall.addDevice(2);
    wall.viewControl.changeMod(isLive);
    MenuTest t(wall, device, onChannel ? device->channel(0) : nullptr);
    QVERIFY(t.show());
    Dev::instance()->removeDevice(device);
    QCOMPARE(t.closed.count(), 1);
    QVERIFY(wall.settle()); // it is destroyed
    wall.takeSent();
    QSignalSpy alerts(&wall.viewControl, &ViewControl::openDelAlertMsg);
    int clicks = 0;
    for (const QString& text : t.rows()) {
        if (!t.row(qPrintable(text))->isEnabled())
            continue;
        click(t.row(qPrintable(text)));
        ++clicks;
    }
    emit wall.io->videoRequestSuccessMsg(nullptr);
    QVERIFY(wall.settle());
    QCOMPARE(t.closed.count(), 1 + clicks);
    QCOMPARE(wall.takeSent(), QList<int>());
    QCOMPARE(alerts.count(), 0);
}

void TestDevMenu::deviceThatLeavesLeavesOtherMenusOpen()
{
    WallTest wall;
    Device* device = wall.addDevice(1);
    Device* other = wall.addDevice(1);
    const MenuTest t(wall, device, device->channel(0));
    Dev::instance()->removeDevice(other);
    QCOMPARE(t.closed.count(), 0);
}

ORVA_TEST(TestDevMenu)
#include "tst_devmenu.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardtest.h"
#include "hands.h"
#include "testmain.h"

#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

Q_DECLARE_METATYPE(Qt::MouseButton)

// The mouse on a channel's card, which is a window.
class TestChannelMouse final : public QObject
{
    Q_OBJECT

private slots:
    void leftPressSelectsDeviceAndChannel_data();
    void leftPressSelectsDeviceAndChannel();
    void deviceIsSelectedBeforeItsChannel();
    void rightPressAsksForTheMenu();
    void middlePressDoesNothing();
    void doubleClickInLiveOpensTheChannel();
    void doubleClickConnectsADeviceThatIsNot();
    void doubleClickInPlaybackSelectsButDoesNotOpen();
    void doubleClickWithAnotherButtonDoesNotOpen_data();
    void doubleClickWithAnotherButtonDoesNotOpen();
    void doubleClickOnARunningChannelLeavesItRunning();
};

namespace {

Dev* dev()
{
    return Dev::instance();
}

} // namespace

void TestChannelMouse::leftPressSelectsDeviceAndChannel_data()
{
    QTest::addColumn<QString>("part");
    QTest::newRow("picture") << "label_image";
    QTest::newRow("name") << "channelName";
    QTest::newRow("dot") << "label_dot";
    QTest::newRow("frame") << "widget_frame";
}

void TestChannelMouse::leftPressSelectsDeviceAndChannel()
{
    QFETCH(QString, part);
    CardTest t;
    QVERIFY(t.show());
    dev()->selectDevice(t.other);
    auto* target = t.card.findChild<QWidget*>(part);
    press(target);
    QCOMPARE(dev()->selectedDevice(), t.device); // it does not wait for the release
    QCOMPARE(dev()->selectedChannel(), t.channel());
    QCOMPARE(t.parts().frame->styleSheet(), QString("border:2px solid #6495ED"));
    release(target);
    QVERIFY(!t.channel()->mode(true).open);
}

void TestChannelMouse::deviceIsSelectedBeforeItsChannel()
{
    CardTest t;
    QVERIFY(t.show());
    QStringList told;
    QObject::connect(dev(), &Dev::selectDevMsg, &t.card, [&told] { told.append("device"); });
    QObject::connect(dev(), &Dev::selectChannelMsg, &t.card, [&told] { told.append("channel"); });
    click(&t.card);
    QCOMPARE(told, (QStringList{"device", "channel"}));
    click(&t.card);
    QCOMPARE(told.size(), 2); // nothing has changed
}

void TestChannelMouse::rightPressAsksForTheMenu()
{
    CardTest t;
    QVERIFY(t.show());
    int menus = 0;
    QObject::connect(&t.wall.viewControl, &ViewControl::openedSubWindowMenuMsg, &t.card,
        [&](Device* device, Channel* channel, QMouseEvent* event) {
            ++menus;
            QCOMPARE(device, t.device);
            QCOMPARE(channel, t.channel());
            QCOMPARE(event->globalPos(), t.card.mapToGlobal(t.card.rect().center()));
            QCOMPARE(event->button(), Qt::RightButton);
        });
    press(&t.card, Qt::RightButton);
    QCOMPARE(menus, 1);
    release(&t.card, Qt::RightButton);
    QCOMPARE(menus, 1);
    QCOMPARE(dev()->selectedChannel(), nullptr);
    click(&t.card);
    QCOMPARE(menus, 1);
}

void TestChannelMouse::middlePressDoesNothing()
{
    CardTest t;
    QVERIFY(t.show());
    QSignalSpy menus(&t.wall.viewControl, &ViewControl::openedSubWindowMenuMsg);
    click(&t.card, Qt::MiddleButton);
    QCOMPARE(menus.count(), 0);
    QCOMPARE(dev()->selectedChannel(), nullptr);
    QCOMPARE(dev()->selectedDevice(), nullptr);
}

void TestChannelMouse::doubleClickInLiveOpensTheChannel()
{
    CardTest t;
    QVERIFY(t.show());
    doubleClick(&t.card);
    QCOMPARE(dev()->selectedChannel(), t.channel());
    QVERIFY(t.channel()->mode(true).open);
    QVERIFY(t.wall.settle());
    QVERIFY(t.channel()->mode(true).playing);
    QCOMPARE(t.wall.shown(2), (QList<Channel*>{t.channel(), nullptr}));
    QVERIFY(!t.channel(1)->mode(true).open);
    QVERIFY(!t.channel()->mode(false).open);
}

void TestChannelMouse::doubleClickConnectsADeviceThatIsNot()
{
    CardTest t;
    t.card.setChannel(t.other, t.other->channel(0));
    QVERIFY(t.show());
    doubleClick(&t.card);
    QVERIFY(t.other->channel(0)->mode(true).open);
    QTRY_VERIFY(t.wall.settle() && t.other->channel(0)->mode(true).playing);
    QCOMPARE(t.wall.shown(1), (QList<Channel*>{t.other->channel(0)}));
}

void TestChannelMouse::doubleClickInPlaybackSelectsButDoesNotOpen()
{
    CardTest t;
    QVERIFY(t.show());
    t.wall.viewControl.changeMod(false);
    doubleClick(&t.card);
    QVERIFY(t.wall.settle());
    QCOMPARE(dev()->selectedDevice(), t.device);
    QCOMPARE(dev()->selectedChannel(), t.channel());
    QVERIFY(!t.channel()->mode(true).open);
    QVERIFY(!t.channel()->mode(false).open);
    QCOMPARE(t.wall.takeSent(), QList<int>());
}

void TestChannelMouse::doubleClickWithAnotherButtonDoesNotOpen_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void TestChannelMouse::doubleClickWithAnotherButtonDoesNotOpen()
{
    QFETCH(Qt::MouseButton, button);
    CardTest t;
    QVERIFY(t.show());
    doubleClick(&t.card, button);
    QVERIFY(t.wall.settle());
    QVERIFY(!t.channel()->mode(true).open);
    QCOMPARE(t.wall.takeSent(), QList<int>());
}

void TestChannelMouse::doubleClickOnARunningChannelLeavesItRunning()
{
    CardTest t;
    QVERIFY(t.wall.open(t.device, 2));
    QVERIFY(t.show());
    t.wall.takeSent();
    doubleClick(&t.card);
    QVERIFY(t.wall.settle());
    QVERIFY(t.channel()->mode(true).open && t.channel()->mode(true).playing);
    QCOMPARE(t.wall.shown(2), (QList<Channel*>{t.channel(0), t.channel(1)}));
    QVERIFY(!t.wall.takeSent().contains(0x1FF)); // no second start of the stream
}

ORVA_TEST(TestChannelMouse)
#include "tst_channelmouse.moc"

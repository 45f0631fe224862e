// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/dev.h"
#include "testmain.h"
#include "tiletest.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

Q_DECLARE_METATYPE(Qt::MouseButton)

// Clicks into the window, which find their way through what stands over the picture.
class TestTileMouse final : public QObject
{
    Q_OBJECT

private slots:
    void clickSelectsDeviceAndChannel_data();
    void clickSelectsDeviceAndChannel();
    void rightClickAsksForTheMenu();
    void clickOnAnEmptyTileSelectsNothing();
    void clickGoesOnToTheWindow();
    void doubleClickIsTold();
    void doubleClickOnAnEmptyTileIsNotTold();
};

namespace {

class ReleaseCount final : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonRelease)
            ++count;
        return false;
    }

    int count = 0;
};

void click(const TileTest& t, Qt::MouseButton button, QPoint at = QPoint(20, 20))
{
    QTest::mouseClick(t.window.windowHandle(), button, {}, t.tile()->mapTo(&t.window, at));
}

} // namespace

void TestTileMouse::clickSelectsDeviceAndChannel_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<QPoint>("at");
    QTest::newRow("left") << Qt::LeftButton << QPoint(20, 20);
    QTest::newRow("right") << Qt::RightButton << QPoint(20, 20);
    QTest::newRow("middle") << Qt::MiddleButton << QPoint(20, 20);
    QTest::newRow("on the waiting circle") << Qt::LeftButton << QPoint(100, 60);
    QTest::newRow("on the frame") << Qt::LeftButton << QPoint(0, 0);
    QTest::newRow("on the mark of a recording") << Qt::LeftButton << QPoint(165, 12);
}

void TestTileMouse::clickSelectsDeviceAndChannel()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(QPoint, at);
    TileTest t;
    t.viewControl.setRecord(t.channel(), true);
    QVERIFY(t.show());
    click(t, button, at);
    QCOMPARE(Dev::instance()->selectedDevice(), t.device.get());
    QCOMPARE(Dev::instance()->selectedChannel(), t.channel());
    QVERIFY(t.parts().frame->styleSheet().contains(QLatin1String("#6495ED")));
}

void TestTileMouse::rightClickAsksForTheMenu()
{
    TileTest t;
    QVERIFY(t.show());
    int menus = 0;
    QObject::connect(&t.viewControl, &ViewControl::openedSubWindowMenuMsg, &t.viewControl,
        [&](Device* device, Channel* channel, QMouseEvent* event) {
            ++menus;
            QCOMPARE(device, t.device.get());
            QCOMPARE(channel, t.channel());
            QCOMPARE(event->pos(), QPoint(20, 20)); // of the tile
            QCOMPARE(Dev::instance()->selectedChannel(), channel); // by then
        });
    click(t, Qt::LeftButton);
    QCOMPARE(menus, 0);
    click(t, Qt::RightButton);
    QCOMPARE(menus, 1);
}

void TestTileMouse::clickOnAnEmptyTileSelectsNothing()
{
    TileTest t;
    QVERIFY(t.show());
    Dev::instance()->selectDevice(t.device.get());
    Dev::instance()->selectChannel(t.channel());
    t.tile()->setChannel(nullptr, nullptr);
    int menus = 0;
    QObject::connect(&t.viewControl, &ViewControl::openedSubWindowMenuMsg, &t.viewControl,
        [&menus] { ++menus; });
    click(t, Qt::LeftButton);
    click(t, Qt::RightButton);
    QCOMPARE(menus, 0);
    QCOMPARE(Dev::instance()->selectedDevice(), t.device.get());
    QCOMPARE(Dev::instance()->selectedChannel(), t.channel());
}

void TestTileMouse::clickGoesOnToTheWindow()
{
    TileTest t;
    QVERIFY(t.show());
    ReleaseCount releases;
    t.window.installEventFilter(&releases);
    click(t, Qt::LeftButton);
    QCOMPARE(releases.count, 1);
    t.tile()->setChannel(nullptr, nullptr);
    click(t, Qt::LeftButton);
    QCOMPARE(releases.count, 2);
}

void TestTileMouse::doubleClickIsTold()
{
    TileTest t;
    QVERIFY(t.show());
    QSignalSpy told(t.tile(), &GlWidgetViewWindow::doubleClicked);
    QTest::mouseDClick(t.window.windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().value<Channel*>(), t.channel());
}

void TestTileMouse::doubleClickOnAnEmptyTileIsNotTold()
{
    TileTest t;
    QVERIFY(t.show());
    t.tile()->setChannel(nullptr, nullptr);
    QSignalSpy told(t.tile(), &GlWidgetViewWindow::doubleClicked);
    QTest::mouseDClick(t.window.windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
    QCOMPARE(told.size(), 0);
}

ORVA_TEST(TestTileMouse)
#include "tst_tilemouse.moc"

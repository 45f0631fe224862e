// SPDX-License-Identifier: GPL-3.0-or-later
#include "frametest.h"
#include "hands.h"
#include "store/location.h"
#include "testmain.h"
#include "wall/devmenu.h"
#include "wall/devmenuitem.h"
#include "wall/glwidgetviewwindow.h"
#include "wall/labelwinbtn.h"
#include "wall/labelwindownumbtn.h"
#include "wall/pagebtn.h"
#include "wall/windownummenu.h"

#include <QPointer>
#include <QSignalSpy>

// The menu of layouts and the menu on a device: what opens them, where they stand, what closes them.
class TestFrameMenus final : public QObject
{
    Q_OBJECT

private slots:
    void layoutKeyOpensAndClosesTheMenu();
    void chosenLayoutClosesTheMenuAndFreesTheKey();
    void layoutMenuStandsOverTheWall();
    void layoutMenuFollowsTheModeAndTheWindow();
    void pageKeysStayOverNewTiles();
    void rightClickOpensTheMenuAtTheMouse();
    void menuStaysInsideInEveryCorner_data();
    void menuStaysInsideInEveryCorner();
    void menuLargerThanItsRoomBeginsAtTheCorner();
    void menuTellsWhatItIsOn();
    void otherMenuReplacesTheOpenOne();
    void clickElsewhereClosesTheMenu_data();
    void clickElsewhereClosesTheMenu();
    void clickInsideDoesNotCloseTheMenu();
    void menuClosesOnceAnEntryWasTaken();
    void closeMenuMsgClosesTheMenu();
    void menuOfADeviceThatLeavesCloses();
    void otherButtonElsewhereClosesTheMenuToo();
};

namespace {

// One device with four streams on the wall.
class MenuTest
{
public:
    [[nodiscard]] bool open()
    {
        device = t.wall.addDevice(4);
        return t.open() && t.wall.open(device, 4);
    }
    DevMenu* menu() const { return t.popup<DevMenu>(); }
    WindowNumMenu* layoutMenu() const { return t.popup<WindowNumMenu>(); }
    LabelWindowNumBtn* layoutKey() const { return t.part<LabelWindowNumBtn>("label_windowNum"); }
    // As the device list does, with the mouse at this point of the central widget.
    void openMenuAt(QPoint at, Channel* channel = nullptr)
    {
        QMouseEvent event(QEvent::MouseButtonRelease, QPointF(), t.center()->mapToGlobal(at),
            Qt::RightButton, Qt::NoButton, Qt::NoModifier);
        emit t.wall.viewControl.openedSubWindowMenuMsg(device, channel, &event);
    }
    DevMenuItem* row(const char* name) const
    {
        return menu()->findChild<DevMenuItem*>(QLatin1String(name));
    }

    FrameTest t;
    Device* device = nullptr;
};

} // namespace

void TestFrameMenus::layoutKeyOpensAndClosesTheMenu()
{
    MenuTest m;
    QVERIFY(m.open());
    for (int round = 0; round < 2; ++round) {
        click(m.layoutKey());
        QVERIFY(m.layoutMenu() != nullptr);
        QVERIFY(m.layoutKey()->isOpen());
        click(m.layoutKey());
        QVERIFY(m.layoutMenu() == nullptr);
        QVERIFY(!m.layoutKey()->isOpen());
    }
    QVERIFY(m.t.wall.settle());
    QCOMPARE(m.t.gate.window.findChildren<WindowNumMenu*>().size(), 0);
}

void TestFrameMenus::chosenLayoutClosesTheMenuAndFreesTheKey()
{
    MenuTest m;
    QVERIFY(m.open());
    click(m.layoutKey());
    click(m.layoutMenu()->findChild<LabelWinBtn*>("label_sc4"));
    QVERIFY(m.layoutMenu() == nullptr);
    QVERIFY(!m.layoutKey()->isOpen());
    QVERIFY(shows(m.layoutKey(), QString("sc4")));
    QCOMPARE(m.t.wall.viewControl.getWindowMod(true), WINDOW_MOD_8_MIRROR);
    QCOMPARE(m.t.tiles().size(), 8);
    QCOMPARE(Location::instance()->getWindowNum(), int(WINDOW_MOD_8_MIRROR));
}

void TestFrameMenus::layoutMenuStandsOverTheWall()
{
    MenuTest m;
    QVERIFY(m.open());
    click(m.layoutKey());
    const QWidget* area = m.t.part("widget_videoView");
    QCOMPARE(m.layoutMenu()->size(), QSize(200, 60));
    const QRect place = FrameTest::placeIn(area, m.layoutMenu());
    QVERIFY(area->rect().contains(place));
    QVERIFY(area->rect().bottom() - place.bottom() < 20);
    QVERIFY(area->rect().right() - place.right() < 20);
    // What the mouse would hit in its middle is the menu, not a tile.
    const QWidget* hit = area->childAt(place.center());
    QVERIFY(hit == m.layoutMenu() || m.layoutMenu()->isAncestorOf(hit));
}

void TestFrameMenus::layoutMenuFollowsTheModeAndTheWindow()
{
    MenuTest m;
    QVERIFY(m.open());
    click(m.layoutKey());
    m.t.wall.viewControl.changeMod(false);
    QCOMPARE(m.layoutMenu()->size(), QSize(90, 30));
    const QWidget* area = m.t.part("widget_videoView");
    QTRY_VERIFY(area->height() < 720 - 48 - 50); // the timeline has its place
    QTRY_COMPARE(
        m.layoutMenu()->geometry().bottomRight(), area->rect().bottomRight() - QPoint(12, 6));
    m.t.gate.window.resize(1200, 800);
    QTRY_COMPARE(area->width(), 1200 - 240);
    QTRY_COMPARE(
        m.layoutMenu()->geometry().bottomRight(), area->rect().bottomRight() - QPoint(12, 6));
}

void TestFrameMenus::pageKeysStayOverNewTiles()
{
    MenuTest m;
    QVERIFY(m.open());
    const auto keys = m.t.viewBox()->findChildren<PageBtn*>();
    for (const WINDOW_MOD mod : {WINDOW_MOD_16, WINDOW_MOD_1, WINDOW_MOD_25}) {
        m.t.wall.viewControl.setWindowMod(mod, true);
        for (const PageBtn* key : keys)
            QCOMPARE(m.t.viewBox()->childAt(key->geometry().center()), key);
    }
}

void TestFrameMenus::rightClickOpensTheMenuAtTheMouse()
{
    MenuTest m;
    QVERIFY(m.open());
    GlWidgetViewWindow* tile = m.t.tiles().first();
    click(tile, QPoint(100, 40), Qt::RightButton);
    QVERIFY(m.menu() != nullptr);
    const QPoint mouse = m.t.center()->mapFromGlobal(tile->mapToGlobal(QPoint(100, 40)));
    QCOMPARE(m.menu()->pos(), mouse + QPoint(-2, 3));
    QCOMPARE(m.menu()->size(), m.menu()->sizeHint().expandedTo(m.menu()->minimumSize()));
    const QWidget* hit = m.t.center()->childAt(m.menu()->geometry().center());
    QVERIFY(hit == m.menu() || m.menu()->isAncestorOf(hit));
    QVERIFY(m.row("widget_play")->isMarked());
}

void TestFrameMenus::menuStaysInsideInEveryCorner_data()
{
    QTest::addColumn<QPointF>("at"); // parts of the central widget
    QTest::newRow("top left") << QPointF(0, 0);
    QTest::newRow("top right") << QPointF(1, 0);
    QTest::newRow("bottom left") << QPointF(0, 1);
    QTest::newRow("bottom right") << QPointF(1, 1);
    QTest::newRow("right") << QPointF(1, 0.2);
    QTest::newRow("bottom") << QPointF(0.4, 1);
}

void TestFrameMenus::menuStaysInsideInEveryCorner()
{
    QFETCH(QPointF, at);
    MenuTest m;
    QVERIFY(m.open());
    const QSize room = m.t.center()->size();
    const QPoint mouse(int(at.x() * (room.width() - 1)), int(at.y() * (room.height() - 1)));
    for (Channel* channel : {static_cast<Channel*>(nullptr), m.device->channel(0)}) {
        m.openMenuAt(mouse, channel);
        const QRect place = m.menu()->geometry();
        QVERIFY(m.t.center()->rect().contains(place));
        const QPoint wanted = mouse + QPoint(-2, 3);
        QCOMPARE(place.x(), qBound(0, wanted.x(), room.width() - place.width()));
        QCOMPARE(place.y(), qBound(0, wanted.y(), room.height() - place.height()));
    }
}

void TestFrameMenus::menuLargerThanItsRoomBeginsAtTheCorner()
{
    MenuTest m;
    QVERIFY(m.open());
    m.t.gate.window.resize(m.t.gate.window.minimumSizeHint());
    QTRY_VERIFY(m.t.center()->height() < 400);
    m.openMenuAt(m.t.center()->rect().bottomRight(), m.device->channel(0));
    QVERIFY(m.menu()->height() > m.t.center()->height());
    QVERIFY(m.menu()->pos().x() >= 0);
    QCOMPARE(m.menu()->pos().y(), 0);
    QVERIFY(m.menu()->geometry().right() < m.t.center()->width());
}

void TestFrameMenus::menuTellsWhatItIsOn()
{
    MenuTest m;
    QVERIFY(m.open());
    m.openMenuAt(QPoint(300, 100));
    QVERIFY(m.row("widget_allplay")->isVisible() && !m.row("widget_play")->isVisible());
    m.openMenuAt(QPoint(300, 100), m.device->channel(1));
    QVERIFY(!m.row("widget_allplay")->isVisible() && m.row("widget_play")->isVisible());
}

void TestFrameMenus::otherMenuReplacesTheOpenOne()
{
    MenuTest m;
    QVERIFY(m.open());
    m.openMenuAt(QPoint(300, 100));
    const QPointer<DevMenu> first = m.menu();
    m.openMenuAt(QPoint(500, 200));
    QVERIFY(m.menu() != nullptr && m.menu() != first);
    QCOMPARE(m.menu()->pos(), QPoint(498, 203));
    QVERIFY(m.t.wall.settle());
    QVERIFY(first == nullptr);
}

void TestFrameMenus::clickElsewhereClosesTheMenu_data()
{
    QTest::addColumn<QByteArray>("part");
    QTest::addColumn<QPoint>("at");
    QTest::newRow("name bar") << QByteArray("widget_nameBar") << QPoint(20, 10);
    QTest::newRow("tile") << QByteArray("widget_viewBox") << QPoint(100, 300);
    QTest::newRow("empty list") << QByteArray("widget_menu_devList") << QPoint(120, 350);
    QTest::newRow("control bar") << QByteArray("widget_controlBar") << QPoint(300, 25);
}

void TestFrameMenus::clickElsewhereClosesTheMenu()
{
    QFETCH(QByteArray, part);
    QFETCH(QPoint, at);
    MenuTest m;
    QVERIFY(m.open());
    m.openMenuAt(QPoint(600, 50));
    const QPointer<DevMenu> menu = m.menu();
    QVERIFY(menu != nullptr);
    click(m.t.part(part.constData()), at);
    QVERIFY(m.menu() == nullptr);
    QVERIFY(m.t.wall.settle());
    QVERIFY(menu == nullptr);
}

void TestFrameMenus::clickInsideDoesNotCloseTheMenu()
{
    MenuTest m;
    QVERIFY(m.open());
    m.openMenuAt(QPoint(600, 50), m.device->channel(0));
    const DevMenu* menu = m.menu();
    click(m.row("widget_speech")); // which is disabled
    QCOMPARE(m.menu(), menu);
    click(m.menu(), QPoint(m.menu()->width() / 2, 1)); // its edge
    QCOMPARE(m.menu(), menu);
    click(menu->findChild<QWidget*>("rule_quality"));
    QCOMPARE(m.menu(), menu);
    QCOMPARE(Dev::instance()->selectedChannel(), nullptr); // nor does the tile below hear of it
}

void TestFrameMenus::menuClosesOnceAnEntryWasTaken()
{
    MenuTest m;
    QVERIFY(m.open());
    m.openMenuAt(QPoint(600, 50), m.device->channel(2));
    click(m.row("widget_stop"));
    QVERIFY(m.menu() == nullptr);
    QVERIFY(!m.device->channel(2)->mode(true).open);
    QVERIFY(m.device->channel(1)->mode(true).open);
}

void TestFrameMenus::closeMenuMsgClosesTheMenu()
{
    MenuTest m;
    QVERIFY(m.open());
    m.openMenuAt(QPoint(600, 50));
    emit m.t.wall.viewControl.closeMenuMsg();
    QVERIFY(m.menu() == nullptr);
    emit m.t.wall.viewControl.closeMenuMsg();
    QVERIFY(m.t.wall.settle());
    QCOMPARE(m.t.gate.window.findChildren<DevMenu*>().size(), 0);
}

void TestFrameMenus::menuOfADeviceThatLeavesCloses()
{
    MenuTest m;
    QVERIFY(m.open());
    m.openMenuAt(QPoint(600, 50), m.device->channel(0));
    Dev::instance()->removeDevice(m.device);
    QVERIFY(m.menu() == nullptr);
    QVERIFY(m.t.wall.settle());
}

void TestFrameMenus::otherButtonElsewhereClosesTheMenuToo()
{
    MenuTest m;
    QVERIFY(m.open());
    click(m.t.part("widget_nameBar"), QPoint(20, 10));
    click(m.t.viewBox(), QPoint(100, 300), Qt::RightButton);
    QVERIFY(m.menu() != nullptr);
    click(m.t.part("widget_nameBar"), QPoint(20, 10), Qt::RightButton);
    QVERIFY(m.menu() == nullptr); // any press elsewhere closes
}

ORVA_TEST(TestFrameMenus)
#include "tst_framemenus.moc"

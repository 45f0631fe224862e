// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "testmain.h"
#include "wall/glwidgetviewwindow.h"
#include "wall/pagebtn.h"
#include "walltest.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

// The two page buttons, on a wall with tiles under them.
class TestPageBtn final : public QObject
{
    Q_OBJECT

private slots:
    void standsAtItsEdgeInTheMiddle();
    void staysThereWhenTheWallIsResized();
    void rightButtonTurnsToTheNextPageLeftOneBack();
    void leftButtonOnTheFirstPageDoesNothing();
    void rightButtonOnTheLastPageDoesNothing();
    void turnsAtThePress();
    void twoQuickClicksAreTwoPages();
    void otherMouseButtonsDoNothing();
    void clicksDoNotReachTheTileBelow_data();
    void clicksDoNotReachTheTileBelow();
    void keyboardTurnsThePage();
    void keyHeldDownTurnsOnePage();
    void isFaintWithoutAPageThatWay();
    void lightsUpUnderTheMouseOnlyWithAPage();
    void focusShowsWithoutAPageToo();
    void channelThatFailsMayTakeThePageAway();
    void followsTheMode();
};

namespace {

constexpr int leftKey = 0;
constexpr int rightKey = 1;

// The page buttons on a wall of 640 x 360 with one tile for each of two channels of three pages.
class PageTest
{
public:
    PageTest()
        : device(wall.addDevice(9))
    {
        qRegisterMetaType<QMouseEvent*>("QMouseEvent*");
        wall.screen.setWindowFlags(Qt::FramelessWindowHint);
        wall.makeTiles(QSize(640, 360));
        for (const int direction : {leftKey, rightKey}) {
            keys.append(new PageBtn(direction, &wall.screen));
            keys.last()->raise();
        }
    }
    ~PageTest() { qDeleteAll(keys); }
    Q_DISABLE_COPY_MOVE(PageTest)

    // Three pages.
    bool open() { return wall.open(device, 9); }
    bool show()
    {
        wall.screen.show();
        wall.screen.activateWindow();
        const bool isActive = QTest::qWaitForWindowActive(&wall.screen);
        wall.screen.setFocus(); // not a button
        return isActive;
    }
    int page() const { return wall.viewControl.getPage(); }

    // How opaque the plate of a button is, from 0 to 1.
    double plate(int direction) const
    {
        const QImage image = painted(direction);
        return qAlpha(image.pixel(image.width() / 2, 8)) / 255.0;
    }
    QImage painted(int direction) const
    {
        QImage image(keys.at(direction)->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        keys.at(direction)->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    }
    bool isLit(int direction) const { return qAbs(plate(direction) - 0.8) < 0.01; }
    bool isPlain(int direction) const { return qAbs(plate(direction) - 0.58) < 0.01; }
    bool isFaint(int direction) const { return qAbs(plate(direction) - 0.58 * 0.55) < 0.01; }

    WallTest wall;
    Device* device;
    QList<PageBtn*> keys;
};

} // namespace

void TestPageBtn::standsAtItsEdgeInTheMiddle()
{
    const PageTest t;
    QCOMPARE(t.keys[leftKey]->geometry(), QRect(0, (360 - 94) / 2, 30, 94));
    QCOMPARE(t.keys[rightKey]->geometry(), QRect(640 - 30, (360 - 94) / 2, 30, 94));
}

void TestPageBtn::staysThereWhenTheWallIsResized()
{
    PageTest t;
    QVERIFY(t.show());
    for (const QSize size : {QSize(800, 501), QSize(200, 100), QSize(641, 333)}) {
        t.wall.screen.resize(size);
        QTRY_COMPARE(t.wall.screen.size(), size);
        const int top = (size.height() - 94) / 2;
        QCOMPARE(t.keys[leftKey]->geometry(), QRect(0, top, 30, 94));
        QCOMPARE(t.keys[rightKey]->geometry(), QRect(size.width() - 30, top, 30, 94));
    }
}

void TestPageBtn::rightButtonTurnsToTheNextPageLeftOneBack()
{
    PageTest t;
    QVERIFY(t.open());
    QVERIFY(t.show());
    QSignalSpy told(&t.wall.viewControl, &ViewControl::createPageMsg);
    click(t.keys[rightKey]);
    QCOMPARE(t.page(), 1);
    QCOMPARE(t.wall.shown(1), (QList<Channel*>{t.device->channel(4)}));
    click(t.keys[rightKey]);
    QCOMPARE(t.page(), 2);
    click(t.keys[leftKey]);
    QCOMPARE(t.page(), 1);
    click(t.keys[leftKey]);
    QCOMPARE(t.page(), 0);
    QCOMPARE(told.count(), 4);
}

void TestPageBtn::leftButtonOnTheFirstPageDoesNothing()
{
    PageTest t;
    QVERIFY(t.open());
    QVERIFY(t.show());
    const QList<Channel*> before = t.wall.shown();
    t.wall.takeSent();
    QSignalSpy told(&t.wall.viewControl, &ViewControl::createPageMsg);
    click(t.keys[leftKey]);
    doubleClick(t.keys[leftKey]);
    QCOMPARE(t.page(), 0);
    QCOMPARE(told.count(), 0);
    QCOMPARE(t.wall.shown(), before);
    QVERIFY(t.wall.settle());
    QCOMPARE(t.wall.takeSent(), QList<int>());
}

void TestPageBtn::rightButtonOnTheLastPageDoesNothing()
{
    PageTest t;
    QVERIFY(t.show());
    QSignalSpy told(&t.wall.viewControl, &ViewControl::createPageMsg);
    click(t.keys[rightKey]); // nothing is open
    QCOMPARE(told.count(), 0);
    QVERIFY(t.open());
    for (int i = 0; i < 5; ++i)
        click(t.keys[rightKey]);
    QCOMPARE(t.page(), 2);
    told.clear();
    click(t.keys[rightKey]);
    QCOMPARE(told.count(), 0);
}

void TestPageBtn::turnsAtThePress()
{
    PageTest t;
    QVERIFY(t.open());
    QVERIFY(t.show());
    press(t.keys[rightKey]);
    QCOMPARE(t.page(), 1);
    release(t.keys[rightKey]);
    QCOMPARE(t.page(), 1);
}

void TestPageBtn::twoQuickClicksAreTwoPages()
{
    PageTest t;
    QVERIFY(t.open());
    QVERIFY(t.show());
    const EventCount doubles(t.keys[rightKey], QEvent::MouseButtonDblClick);
    doubleClick(t.keys[rightKey]);
    QCOMPARE(doubles.count, 1);
    QCOMPARE(t.page(), 2);
}

void TestPageBtn::otherMouseButtonsDoNothing()
{
    PageTest t;
    QVERIFY(t.open());
    QVERIFY(t.show());
    click(t.keys[rightKey], Qt::RightButton);
    click(t.keys[rightKey], Qt::MiddleButton);
    doubleClick(t.keys[rightKey], Qt::RightButton);
    QCOMPARE(t.page(), 0);
}

void TestPageBtn::clicksDoNotReachTheTileBelow_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("page");
    QTest::newRow("left") << leftKey << 1;
    QTest::newRow("right") << rightKey << 1;
    QTest::newRow("left without a page") << leftKey << 0;
    QTest::newRow("right without a page") << rightKey << 2;
}

void TestPageBtn::clicksDoNotReachTheTileBelow()
{
    QFETCH(int, direction);
    QFETCH(int, page);
    PageTest t;
    QVERIFY(t.open());
    QVERIFY(t.show());
    while (t.page() < page)
        t.wall.viewControl.changePage(ViewControl::PageUp);
    QSignalSpy menus(&t.wall.viewControl, &ViewControl::openedSubWindowMenuMsg);
    const QPoint tileIsBelow(15, 20);
    click(t.keys[direction], tileIsBelow);
    click(t.keys[direction], tileIsBelow, Qt::RightButton);
    doubleClick(t.keys[direction], tileIsBelow);
    QCOMPARE(Dev::instance()->selectedChannel(), nullptr);
    QCOMPARE(menus.count(), 0);
    QCOMPARE(t.wall.viewControl.getWindowMod(true), WINDOW_MOD_4);
    // Without the button it is the tile's.
    const QPoint below = t.keys[direction]->mapToParent(tileIsBelow);
    while (t.page() > 0)
        t.wall.viewControl.changePage(ViewControl::PageDown);
    t.keys[direction]->hide();
    click(&t.wall.screen, below);
    QCOMPARE(Dev::instance()->selectedChannel(), t.device->channel(direction));
}

void TestPageBtn::keyboardTurnsThePage()
{
    PageTest t;
    QVERIFY(t.open());
    QVERIFY(t.show());
    t.keys[rightKey]->setFocus(Qt::TabFocusReason);
    type(t.keys[rightKey], Qt::Key_Space);
    QCOMPARE(t.page(), 1);
    type(t.keys[rightKey], Qt::Key_Return);
    QCOMPARE(t.page(), 2);
    t.keys[leftKey]->setFocus(Qt::TabFocusReason);
    type(t.keys[leftKey], Qt::Key_Return);
    QCOMPARE(t.page(), 1);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Left, Qt::Key_PageDown, Qt::Key_A})
        type(t.keys[leftKey], key);
    QCOMPARE(t.page(), 1);
}

void TestPageBtn::keyHeldDownTurnsOnePage()
{
    PageTest t;
    QVERIFY(t.open());
    QVERIFY(t.show());
    type(t.keys[rightKey], Qt::Key_Tab);
    QKeyEvent first(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", false);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
    QCoreApplication::sendEvent(t.keys[rightKey], &first);
    QCoreApplication::sendEvent(t.keys[rightKey], &repeated);
    QCOMPARE(t.page(), 1);
}

void TestPageBtn::isFaintWithoutAPageThatWay()
{
    PageTest t;
    QVERIFY(t.show());
    moveTo(&t.wall.screen, QPoint(320, 20));
    QVERIFY(t.isFaint(leftKey) && t.isFaint(rightKey)); // nothing is open
    QVERIFY(t.open());
    QVERIFY(t.isFaint(leftKey) && t.isPlain(rightKey));
    click(t.keys[rightKey]);
    moveTo(&t.wall.screen, QPoint(320, 20));
    QTRY_VERIFY(t.isPlain(leftKey) && t.isPlain(rightKey));
    t.wall.viewControl.changePage(ViewControl::PageUp);
    QVERIFY(t.isPlain(leftKey) && t.isFaint(rightKey));
    t.wall.viewControl.setWindowMod(WINDOW_MOD_16, true); // one page
    QVERIFY(t.isFaint(leftKey) && t.isFaint(rightKey));
}

void TestPageBtn::lightsUpUnderTheMouseOnlyWithAPage()
{
    PageTest t;
    QVERIFY(t.open());
    QVERIFY(t.show());
    moveTo(t.keys[leftKey]);
    QTRY_VERIFY(t.keys[leftKey]->underMouse());
    QVERIFY(t.isFaint(leftKey));
    moveTo(t.keys[rightKey]);
    QTRY_VERIFY(t.keys[rightKey]->underMouse());
    QVERIFY(t.isLit(rightKey));
    moveTo(&t.wall.screen, QPoint(320, 20));
    QTRY_VERIFY(t.isPlain(rightKey));
}

void TestPageBtn::focusShowsWithoutAPageToo()
{
    PageTest t;
    QVERIFY(t.open());
    QVERIFY(t.show());
    moveTo(&t.wall.screen, QPoint(320, 20));
    const auto hasBorder = [&t](int direction) {
        const QImage image = t.painted(direction);
        const QRgb blue = QColor("#6495ED").rgb();
        return image.pixel(15, 0) == blue && image.pixel(15, 1) == blue
            && image.pixel(0, 47) == blue && image.pixel(29, 47) == blue
            && image.pixel(15, 93) == blue;
    };
    for (const int direction : {leftKey, rightKey}) { // only the right one has a page
        QVERIFY(!hasBorder(direction));
        t.keys[direction]->setFocus(Qt::TabFocusReason);
        QVERIFY(hasBorder(direction));
    }
    QTRY_VERIFY(t.isFaint(leftKey) && t.isPlain(rightKey)); // as they were
}

void TestPageBtn::channelThatFailsMayTakeThePageAway()
{
    PageTest t;
    QVERIFY(t.wall.open(t.device, 5));
    QVERIFY(t.show());
    moveTo(&t.wall.screen, QPoint(320, 20));
    QTRY_VERIFY(t.isPlain(rightKey));
    QCoreApplication::processEvents();
    const EventCount paints(t.keys[rightKey], QEvent::Paint);
    emit t.wall.io->videoRequestFailMsg(t.device->channel(4), -1, QString());
    QTRY_VERIFY(paints.count > 0);
    QVERIFY(t.isFaint(rightKey));
}

void TestPageBtn::followsTheMode()
{
    PageTest t;
    QVERIFY(t.open());
    QVERIFY(t.show());
    moveTo(&t.wall.screen, QPoint(320, 20));
    QTRY_VERIFY(t.isPlain(rightKey));
    const EventCount paints(t.keys[rightKey], QEvent::Paint);
    t.wall.viewControl.changeMod(false); // in which nothing is open
    QTRY_VERIFY(paints.count > 0);
    QVERIFY(t.isFaint(rightKey));
}

ORVA_TEST(TestPageBtn)
#include "tst_pagebtn.moc"

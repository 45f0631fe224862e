// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/alert.h"
#include "app/escalert.h"
#include "frametest.h"
#include "hands.h"
#include "testmain.h"
#include "wall/devmenu.h"
#include "wall/glwidgetviewwindow.h"
#include "wall/labelfullscreen.h"
#include "wall/pagebtn.h"
#include "wall/walllayout.h"
#include "wall/windownummenu.h"

#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>

#include <chrono>

using namespace std::chrono_literals;

// The wall on the whole screen, with a real window manager.
class TestFullScreen final : public QObject
{
    Q_OBJECT

private slots:
    void wallTakesTheWholeScreen();
    void everythingElseIsHiddenAndComesBack();
    void hintShowsAndGoesByItself();
    void hintShowsEachTime();
    void hintGoesWithTheFullScreen();
    void escapeLeavesIt_data();
    void escapeLeavesIt();
    void escapeLeavesItUnderAnAlert();
    void escapeOutsideDoesNothing();
    void otherKeysDoNotLeaveIt();
    void timelineComesBackInPlaybackOnly_data();
    void timelineComesBackInPlaybackOnly();
    void modeChangedInItShowsAfterIt();
    void tilesAreNewAndChannelsStay();
    void layoutOfItFollowsTheWholeScreen();
    void wallIsToldOfIt();
    void keysAndMenuStandOverTheNewTiles();
    void deviceMenuStandsAtTheMouse();
    void alertStandsInTheMiddleOfTheScreen();
    void foldedPanelStaysFolded();
    void togglingLeaksNothing();
};

namespace {

// The window may be gone before the key is released.
void press(QWidget* window, Qt::Key key)
{
    QTest::keyPress(window->window()->windowHandle(), key);
}

class FullTest
{
public:
    [[nodiscard]] bool open(int channels = 3)
    {
        device = t.wall.addDevice(4);
        return t.open() && t.wall.open(device, channels);
    }
    LabelFullScreen* key() const { return t.part<LabelFullScreen>("label_icon_fullGl"); }
    // By its key, until the wall has its new size.
    [[nodiscard]] bool enter()
    {
        click(key());
        escTimer = timer();
        if (escTimer != nullptr)
            escTimer->stop(); // the hint stays, however long the rest takes
        const QSize screen = t.center()->screen()->size();
        return QTest::qWaitFor([&] { return t.viewBox()->size() == screen; })
            && QTest::qWaitForWindowActive(t.center());
    }
    // Whether the wall is where it was before.
    [[nodiscard]] bool isBack() const
    {
        const int timeline = t.wall.viewControl.getIsLive() ? 0 : 80;
        return QTest::qWaitFor([&] {
            return t.viewBox()->isVisible() && t.viewBox()->window() == &t.gate.window
                && t.viewBox()->size() == QSize(840, 590 - timeline);
        });
    }
    [[nodiscard]] bool leave()
    {
        press(t.center(), Qt::Key_Escape);
        return isBack();
    }
    EscAlert* hint() const { return t.popup<EscAlert>(); }
    // How long the hint shows by itself; zero if nothing ends it, or ends it again and again.
    std::chrono::milliseconds hintTime() const
    {
        const bool ends = escTimer != nullptr && escTimer->isSingleShot();
        return ends ? escTimer->intervalAsDuration() : 0ms;
    }
    // As when its time is over.
    void endHint()
    {
        if (escTimer != nullptr)
            escTimer->start(0ms);
    }
    // The one that ends the hint.
    QTimer* timer() const
    {
        QList<QTimer*> running;
        const auto timers = t.frame()->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
        for (QTimer* timer : timers) {
            if (timer->isActive())
                running.append(timer);
        }
        return running.size() == 1 ? running.first() : nullptr;
    }

    FrameTest t;
    Device* device = nullptr;
    QTimer* escTimer = nullptr; // that ran when the full screen began
};

} // namespace

void TestFullScreen::wallTakesTheWholeScreen()
{
    FullTest f;
    QVERIFY(f.open());
    QVERIFY(f.enter());
    const QRect screen = f.t.center()->screen()->geometry();
    QTRY_COMPARE(QRect(f.t.viewBox()->mapToGlobal(QPoint(0, 0)), f.t.viewBox()->size()), screen);
    QVERIFY(f.t.center()->isFullScreen());
    QVERIFY(f.key()->isFull());
    QVERIFY(f.leave());
    QVERIFY(!f.key()->isFull());
    QVERIFY(!f.t.center()->isWindow());
    QCOMPARE(FrameTest::placeIn(&f.t.gate.window, f.t.center()), QRect(0, 48, 1080, 672));
}

void TestFullScreen::everythingElseIsHiddenAndComesBack()
{
    FullTest f;
    QVERIFY(f.open());
    const auto parts = {"widget_header", "widget_nameBar", "widget_menuBox", "widget_controlBar"};
    QVERIFY(f.enter());
    for (const char* name : parts)
        QVERIFY2(!f.t.part(name)->isVisible(), name);
    QVERIFY(!f.t.part("widget_progressBar")->isVisible());
    QVERIFY(f.leave());
    for (const char* name : parts)
        QVERIFY2(f.t.part(name)->isVisible(), name);
}

void TestFullScreen::hintShowsAndGoesByItself()
{
    FullTest f;
    QVERIFY(f.open());
    QVERIFY(f.hint() == nullptr);
    QVERIFY(f.enter());
    QVERIFY(f.hint() != nullptr);
    QTRY_VERIFY(f.t.isCentred(f.hint()));
    QCOMPARE(f.hint()->findChild<QLabel*>("label_text")->text(),
        QString("Press ESC to exit the full screen"));
    QCOMPARE(f.hintTime(), std::chrono::milliseconds(5s));
    f.endHint();
    QTRY_VERIFY(f.hint() == nullptr);
    QVERIFY(f.t.wall.settle());
    QCOMPARE(f.t.center()->findChildren<EscAlert*>().size(), 0);
    QVERIFY(f.t.center()->isFullScreen());
}

void TestFullScreen::hintShowsEachTime()
{
    FullTest f;
    QVERIFY(f.open());
    for (int round = 0; round < 2; ++round) {
        QVERIFY(f.enter());
        QVERIFY(f.hint() != nullptr);
        QCOMPARE(f.hintTime(), std::chrono::milliseconds(5s));
        QVERIFY(f.leave());
    }
}

void TestFullScreen::hintGoesWithTheFullScreen()
{
    FullTest f;
    QVERIFY(f.open());
    QVERIFY(f.enter());
    QVERIFY(f.hint() != nullptr);
    QVERIFY(f.leave());
    QVERIFY(f.t.wall.settle());
    QCOMPARE(f.t.center()->findChildren<EscAlert*>().size(), 0);
}

void TestFullScreen::escapeLeavesIt_data()
{
    QTest::addColumn<QByteArray>("focus"); // before it
    QTest::newRow("frame") << QByteArray();
    QTest::newRow("search box") << QByteArray("lineEdit_search");
    QTest::newRow("full screen key") << QByteArray("label_icon_fullGl");
    QTest::newRow("fold key") << QByteArray("label_deviceMenu_fold");
}

void TestFullScreen::escapeLeavesIt()
{
    QFETCH(QByteArray, focus);
    FullTest f;
    QVERIFY(f.open());
    if (!focus.isEmpty())
        f.t.gate.focus(f.t.part(focus.constData()));
    for (int round = 0; round < 2; ++round) {
        QVERIFY(f.enter());
        if (round == 1) // with the mouse on a tile before
            click(f.t.tiles().first());
        QVERIFY(f.leave());
        QVERIFY(!f.t.wall.viewControl.getFull());
    }
}

void TestFullScreen::escapeLeavesItUnderAnAlert()
{
    FullTest f;
    QVERIFY(f.open());
    QVERIFY(f.enter());
    emit f.t.wall.viewControl.glErrorMsg(1, "why");
    press(f.t.center(), Qt::Key_Escape);
    QVERIFY(f.t.popups<Alert>().isEmpty());
    QVERIFY(f.t.wall.viewControl.getFull());
    QVERIFY(f.leave());
}

void TestFullScreen::escapeOutsideDoesNothing()
{
    FullTest f;
    QVERIFY(f.open());
    const QSignalSpy full(&f.t.wall.viewControl, &ViewControl::fullGLMsg);
    const QList<GlWidgetViewWindow*> tiles = f.t.tiles();
    press(f.t.frame(), Qt::Key_Escape);
    f.t.viewBox()->findChild<PageBtn*>()->setFocus(Qt::TabFocusReason);
    press(f.t.frame(), Qt::Key_Escape); // reaches the video area
    QCOMPARE(full.size(), 0);
    QCOMPARE(f.t.tiles(), tiles);
    QVERIFY(f.isBack());
}

void TestFullScreen::otherKeysDoNotLeaveIt()
{
    FullTest f;
    QVERIFY(f.open());
    QVERIFY(f.enter());
    for (Qt::Key key : {Qt::Key_A, Qt::Key_Tab, Qt::Key_F11})
        press(f.t.center(), key);
    QVERIFY(f.t.wall.viewControl.getFull());
    QVERIFY(f.t.center()->isFullScreen());
}

void TestFullScreen::timelineComesBackInPlaybackOnly_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::newRow("live view") << true;
    QTest::newRow("playback") << false;
}

void TestFullScreen::timelineComesBackInPlaybackOnly()
{
    QFETCH(bool, isLive);
    FullTest f;
    QVERIFY(f.open());
    f.t.wall.viewControl.changeMod(isLive);
    QVERIFY(f.isBack());
    QVERIFY(f.enter());
    QVERIFY(!f.t.part("widget_progressBar")->isVisible());
    QVERIFY(f.leave());
    for (const char* name : {"widget_progressBar", "label_dateBtn", "widget_icon_fbBox"})
        QVERIFY2(f.t.part(name)->isVisible() == !isLive, name);
}

void TestFullScreen::modeChangedInItShowsAfterIt()
{
    FullTest f;
    QVERIFY(f.open());
    QVERIFY(f.enter());
    f.t.wall.viewControl.changeMod(false);
    QVERIFY(!f.t.part("widget_progressBar")->isVisible());
    QVERIFY(f.leave());
    const auto parts = {"widget_progressBar", "label_dateBtn", "label_icon_pause",
        "widget_icon_fbBox", "widget_icon_ffBox"};
    for (const char* name : parts)
        QVERIFY2(f.t.part(name)->isVisible(), name);
    QVERIFY(f.enter());
    f.t.wall.viewControl.changeMod(true);
    QVERIFY(f.leave());
    for (const char* name : parts)
        QVERIFY2(!f.t.part(name)->isVisible(), name);
}

void TestFullScreen::tilesAreNewAndChannelsStay()
{
    FullTest f;
    QVERIFY(f.open(3));
    const QList<Channel*> shown = f.t.wall.shown();
    QCOMPARE(shown.count(nullptr), 1);
    for (int round = 0; round < 2; ++round) {
        QList<QPointer<GlWidgetViewWindow>> before;
        for (GlWidgetViewWindow* tile : f.t.tiles())
            before.append(tile);
        QVERIFY(round == 0 ? f.enter() : f.leave());
        for (const auto& tile : before)
            QVERIFY(tile == nullptr);
        QCOMPARE(f.t.tiles().size(), 4);
        QCOMPARE(f.t.wall.shown(), shown);
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(f.t.tiles().at(i)->getChannel(), shown.at(i));
            QVERIFY(shown.at(i) == nullptr || shown.at(i)->tile == f.t.tiles().at(i));
        }
    }
}

void TestFullScreen::layoutOfItFollowsTheWholeScreen()
{
    FullTest f;
    QVERIFY(f.open());
    f.t.wall.viewControl.setWindowMod(WINDOW_MOD_6_MIRROR, true);
    QVERIFY(f.enter());
    const std::vector<QRect> rects = windowRects(WINDOW_MOD_6_MIRROR, QSize(1920, 1080));
    QCOMPARE(f.t.tiles().size(), 6);
    for (int i = 0; i < 6; ++i)
        QTRY_COMPARE(f.t.tiles().at(i)->geometry(), rects[std::size_t(i)]);
    QVERIFY(f.leave());
    QTRY_COMPARE(
        f.t.tiles().first()->geometry(), windowRects(WINDOW_MOD_6_MIRROR, QSize(840, 590)).front());
}

void TestFullScreen::wallIsToldOfIt()
{
    FullTest f;
    QVERIFY(f.open());
    const QSignalSpy full(&f.t.wall.viewControl, &ViewControl::fullGLMsg);
    QVERIFY(f.enter());
    QVERIFY(f.t.wall.viewControl.getFull());
    QVERIFY(f.leave());
    QVERIFY(!f.t.wall.viewControl.getFull());
    QCOMPARE(full.size(), 2);
    QCOMPARE(full.at(0).first().toBool(), true);
    QCOMPARE(full.at(1).first().toBool(), false);
}

void TestFullScreen::keysAndMenuStandOverTheNewTiles()
{
    FullTest f;
    QVERIFY(f.open());
    click(f.t.part("label_windowNum"));
    QVERIFY(f.t.popup<WindowNumMenu>() != nullptr);
    QVERIFY(f.enter());
    for (int round = 0; round < 2; ++round) {
        for (const PageBtn* key : f.t.viewBox()->findChildren<PageBtn*>()) {
            QTRY_COMPARE(key->y(), (f.t.viewBox()->height() - key->height()) / 2);
            QCOMPARE(f.t.viewBox()->childAt(key->geometry().center()), key);
        }
        const QWidget* area = f.t.part("widget_videoView");
        const auto* menu = f.t.popup<WindowNumMenu>();
        QVERIFY(menu != nullptr);
        QTRY_COMPARE(menu->geometry().bottomRight(), area->rect().bottomRight() - QPoint(12, 6));
        const QWidget* hit = area->childAt(menu->geometry().center());
        QVERIFY(hit == menu || menu->isAncestorOf(hit));
        QVERIFY(round == 1 || f.leave());
    }
}

void TestFullScreen::deviceMenuStandsAtTheMouse()
{
    FullTest f;
    QVERIFY(f.open());
    QVERIFY(f.enter());
    click(f.t.tiles().first(), QPoint(400, 300), Qt::RightButton);
    QVERIFY(f.t.popup<DevMenu>() != nullptr);
    QCOMPARE(f.t.popup<DevMenu>()->pos(), QPoint(400, 300));
    click(f.t.tiles().last(), Qt::LeftButton);
    QVERIFY(f.t.popups<DevMenu>().isEmpty());
}

void TestFullScreen::alertStandsInTheMiddleOfTheScreen()
{
    FullTest f;
    QVERIFY(f.open());
    emit f.t.wall.viewControl.glErrorMsg(1, "why");
    const Alert* alert = f.t.popup<Alert>();
    QVERIFY(f.enter());
    QTRY_VERIFY(f.t.isCentred(alert));
    const QWidget* hit = f.t.center()->childAt(alert->geometry().center());
    QVERIFY(hit == alert || alert->isAncestorOf(hit));
    f.t.frame()->setFocus();
    emit f.t.wall.viewControl.glErrorMsg(2, "why");
    QTRY_VERIFY(f.t.isCentred(f.t.popup<Alert>()));
    click(f.t.popup<Alert>()->findChild<QWidget*>("label_close"));
    QVERIFY(f.leave());
}

void TestFullScreen::foldedPanelStaysFolded()
{
    FullTest f;
    QVERIFY(f.open());
    click(f.t.part("label_deviceMenu_fold"));
    QVERIFY(f.enter());
    QVERIFY(f.leave());
    QVERIFY(!f.t.part("widget_menu_devList")->isVisible());
    click(f.t.part("label_deviceMenu_fold"));
    QTRY_COMPARE(f.t.part("widget_menu_devList")->height(), 672 - 3 * 36);
}

void TestFullScreen::togglingLeaksNothing()
{
    FullTest f;
    QVERIFY(f.open());
    const auto toggle = [&f] { return f.enter() && f.leave() && f.t.wall.settle(); };
    QVERIFY(toggle());
    const int objects = f.t.gate.window.findChildren<QObject*>().size();
    const int windows = QGuiApplication::allWindows().size();
    for (int round = 0; round < 14; ++round) { // not waiting for the screen
        for (const bool isFull : {true, false}) {
            f.key()->setFull(isFull);
            emit f.key()->clickMsg(isFull);
            QVERIFY(f.t.wall.settle());
            QCOMPARE(f.t.tiles().size(), 4);
        }
    }
    QVERIFY(f.isBack());
    QCOMPARE(f.t.gate.window.findChildren<QObject*>().size(), objects);
    QCOMPARE(QGuiApplication::allWindows().size(), windows);
    QCOMPARE(f.t.wall.shown().count(nullptr), 1);
}

ORVA_TEST(TestFullScreen)
#include "tst_fullscreen.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "keywindow.h"
#include "picture.h"
#include "testmain.h"
#include "wall/labelwinbtn.h"
#include "wall/windownummenu.h"
#include "walltest.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

// The menu of layouts and the keys in it.
class TestWindowNumMenu final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<WINDOW_MOD>("ViewControl::WINDOW_MOD"); }

    void opensWithTwelveKeysInLiveAndThreeInPlayback();
    void switchingTheModeWhileItIsOpenResizesItAtOnce();
    void keysStandInTwoRows();
    void keysOfPlaybackStandInOneRow();
    void standsAtTheBottomRightOfItsParent();
    void staysThereWhenTheWallIsResized();
    void everyKeyTellsItsLayout_data();
    void everyKeyTellsItsLayout();
    void keyboardChoosesALayout();
    void onlyTheLayoutOfTheModeIsMarked();
    void markFollowsTheLayoutWhileItIsOpen();
    void mousePutsAPlateUnderTheKeyAndTakesItAway();
    void focusPutsAPlateUnderTheKey();
    void keyWithANameThatIsNotInTheTableTellsNothing_data();
    void keyWithANameThatIsNotInTheTableTellsNothing();
    void otherButtonsAndReleasesElsewhereTellNothing();
    void mayBeDeletedByWhoHearsOfTheChoice_data();
    void mayBeDeletedByWhoHearsOfTheChoice();
    void hintsSayHowManyWindows();
    void isPaintedTranslucentOverThePictures();
};

namespace {

const QStringList firstRow{
    "label_sc1", "label_sc2", "label_sc3", "label_sc32", "label_sc4", "label_sc5", "label_sc6"};
const QStringList secondRow{"label_sc7", "label_sc8", "label_sc9", "label_sc10", "label_sc11"};
// By WINDOW_MOD.
const QStringList names = firstRow + secondRow;

struct MenuTest
{
    explicit MenuTest(bool isLive = true)
    {
        wall.viewControl.changeMod(isLive);
        window.setWindowFlags(Qt::FramelessWindowHint);
        window.resize(400, 200);
        menu = std::make_unique<WindowNumMenu>(&window);
    }

    bool show()
    {
        window.show();
        window.activateWindow();
        const bool isActive = QTest::qWaitForWindowActive(&window);
        window.setFocus(); // not a key
        return isActive;
    }
    LabelWinBtn* key(const QString& name) const { return menu->findChild<LabelWinBtn*>(name); }
    QStringList shown() const
    {
        QStringList shown;
        for (const QString& name : names) {
            if (key(name)->isVisibleTo(menu.get()))
                shown.append(name);
        }
        return shown;
    }
    QRect place(const QString& name) const // in the menu
    {
        return QRect(key(name)->mapTo(menu.get(), QPoint(0, 0)), key(name)->size());
    }

    WallTest wall;
    QWidget window;
    std::unique_ptr<WindowNumMenu> menu;
};

void checkRow(const MenuTest& t, const QStringList& row)
{
    for (int i = 0; i < row.size(); ++i) {
        QCOMPARE(t.place(row.at(i)).size(), QSize(24, 18));
        QVERIFY(t.menu->rect().adjusted(1, 1, -1, -1).contains(t.place(row.at(i))));
        if (i == 0)
            continue;
        QCOMPARE(t.place(row.at(i)).y(), t.place(row.at(0)).y());
        QCOMPARE(t.place(row.at(i)).x(), t.place(row.at(i - 1)).x() + 24 + 3);
    }
}

} // namespace

void TestWindowNumMenu::opensWithTwelveKeysInLiveAndThreeInPlayback()
{
    {
        const MenuTest live;
        QCOMPARE(live.menu->findChildren<LabelWinBtn*>().size(), 12);
        QCOMPARE(live.shown(), names);
        QCOMPARE(live.menu->size(), QSize(200, 60));
    }
    const MenuTest playback(false);
    QCOMPARE(playback.shown(), (QStringList{"label_sc1", "label_sc2", "label_sc32"}));
    QCOMPARE(playback.menu->size(), QSize(90, 30));
}

void TestWindowNumMenu::switchingTheModeWhileItIsOpenResizesItAtOnce()
{
    MenuTest t;
    t.menu->show();
    t.wall.viewControl.changeMod(false);
    QCOMPARE(t.shown().size(), 3);
    QCOMPARE(t.menu->size(), QSize(90, 30));
    QCOMPARE(t.menu->geometry().bottomRight(), QPoint(399 - 12, 199 - 6));
    t.wall.viewControl.changeMod(true);
    QCOMPARE(t.shown(), names);
    QCOMPARE(t.menu->size(), QSize(200, 60));
    QCOMPARE(t.menu->geometry().bottomRight(), QPoint(399 - 12, 199 - 6));
}

void TestWindowNumMenu::keysStandInTwoRows()
{
    MenuTest t;
    QVERIFY(t.show());
    t.menu->show();
    QCoreApplication::processEvents(); // the layout's own request
    checkRow(t, firstRow);
    checkRow(t, secondRow);
    QCOMPARE(t.place("label_sc7").topLeft(), t.place("label_sc1").topLeft() + QPoint(0, 18 + 3));
    QVERIFY(t.place("label_sc6").right() < t.menu->width());
}

void TestWindowNumMenu::keysOfPlaybackStandInOneRow()
{
    MenuTest t;
    QVERIFY(t.show());
    t.menu->show();
    t.wall.viewControl.changeMod(false);
    QCoreApplication::processEvents();
    checkRow(t, {"label_sc1", "label_sc2", "label_sc32"});
    const QRect first = t.place("label_sc1");
    const QRect last = t.place("label_sc32");
    const QPoint middle = QRect(first.topLeft(), last.bottomRight()).center();
    QVERIFY((middle - t.menu->rect().center()).manhattanLength() <= 2);
}

void TestWindowNumMenu::standsAtTheBottomRightOfItsParent()
{
    const MenuTest t;
    QCOMPARE(t.menu->geometry(), QRect(400 - 12 - 200, 200 - 6 - 60, 200, 60));
}

void TestWindowNumMenu::staysThereWhenTheWallIsResized()
{
    MenuTest t;
    t.wall.makeTiles();
    t.window.resize(900, 600);
    t.wall.viewControl.layoutWindows(900, 600);
    QCOMPARE(t.menu->geometry(), QRect(900 - 12 - 200, 600 - 6 - 60, 200, 60));
}

void TestWindowNumMenu::everyKeyTellsItsLayout_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("mod");
    for (int mod = 0; mod < names.size(); ++mod)
        QTest::newRow(qPrintable(names.at(mod))) << names.at(mod) << mod;
}

void TestWindowNumMenu::everyKeyTellsItsLayout()
{
    QFETCH(QString, name);
    QFETCH(int, mod);
    MenuTest t;
    QVERIFY(t.show());
    t.menu->show();
    QSignalSpy chosen(t.menu.get(), &WindowNumMenu::clickWindowMod);
    click(t.key(name));
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(int(chosen.first().first().value<WINDOW_MOD>()), mod);
    QCOMPARE(int(t.wall.viewControl.getWindowMod(true)), int(WINDOW_MOD_4)); // it asks only
}

void TestWindowNumMenu::keyboardChoosesALayout()
{
    MenuTest t;
    QVERIFY(t.show());
    t.menu->show();
    t.key("label_sc6")->setFocus(Qt::TabFocusReason);
    QSignalSpy chosen(t.menu.get(), &WindowNumMenu::clickWindowMod);
    type(t.menu.get(), Qt::Key_Space);
    type(t.menu.get(), Qt::Key_Return);
    QCOMPARE(chosen.count(), 2);
    QCOMPARE(int(chosen.last().first().value<WINDOW_MOD>()), int(WINDOW_MOD_13_MIRROR));
}

void TestWindowNumMenu::onlyTheLayoutOfTheModeIsMarked()
{
    MenuTest t;
    for (int mod = 0; mod < windowModCount; ++mod) {
        t.wall.viewControl.setWindowMod(static_cast<WINDOW_MOD>(mod), true);
        const WindowNumMenu menu(&t.window);
        for (const QString& name : names) {
            const QString state = name == names.at(mod) ? "-on" : "";
            QVERIFY2(shows(menu.findChild<LabelWinBtn*>(name), "pt_" + name.mid(6) + state),
                qPrintable(name));
        }
    }
}

void TestWindowNumMenu::markFollowsTheLayoutWhileItIsOpen()
{
    MenuTest t;
    t.wall.makeTiles();
    for (const WINDOW_MOD mod : {WINDOW_MOD_9, WINDOW_MOD_6_MIRROR, WINDOW_MOD_6}) {
        t.wall.viewControl.setWindowMod(mod, true);
        QVERIFY(shows(t.key(names.at(mod)), "pt_" + names.at(mod).mid(6) + "-on"));
        QVERIFY(shows(t.key("label_sc2"), "pt_sc2"));
    }
    t.wall.viewControl.changeMod(false); // whose layout is another one
    QVERIFY(shows(t.key("label_sc2"), "pt_sc2-on"));
    QVERIFY(shows(t.key("label_sc32"), "pt_sc32"));
}

void TestWindowNumMenu::mousePutsAPlateUnderTheKeyAndTakesItAway()
{
    MenuTest t;
    QVERIFY(t.show());
    t.menu->show();
    moveTo(&t.window, QPoint(5, 5));
    for (const char* name : {"label_sc1", "label_sc32", "label_sc11"}) {
        LabelWinBtn* key = t.key(name);
        QTRY_VERIFY(!key->styleSheet().contains("background"));
        moveTo(key);
        QTRY_VERIFY(key->styleSheet().contains("background:rgba(255,255,255,0.2)"));
        QVERIFY(shows(key, "pt_" + QString(name).mid(6)));
    }
    LabelWinBtn* last = t.key("label_sc11");
    const QRect place(last->mapTo(&t.window, QPoint(0, 0)), last->size());
    const QRgb lit = t.window.grab().toImage().pixel(place.topLeft());
    moveTo(&t.window, QPoint(5, 5));
    QTRY_VERIFY(last->styleSheet().isEmpty());
    const QRgb unlit = t.window.grab().toImage().pixel(place.topLeft());
    QVERIFY(qAbs(qRed(lit) - (qRed(unlit) * 4 + 255) / 5) <= 2); // a fifth of white
}

void TestWindowNumMenu::focusPutsAPlateUnderTheKey()
{
    MenuTest t;
    QVERIFY(t.show());
    t.menu->show();
    moveTo(&t.window, QPoint(5, 5));
    LabelWinBtn* key = t.key("label_sc5");
    key->setFocus(Qt::TabFocusReason);
    const QRect place(key->mapTo(&t.window, QPoint(0, 0)), key->size());
    const auto painted = [&] { return t.window.grab().toImage().pixel(place.topLeft()); };
    const QRgb lit = painted();
    t.key("label_sc6")->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(key->styleSheet().isEmpty());
    QVERIFY(qBlue(lit) > qBlue(painted()) + 30);
}

void TestWindowNumMenu::keyWithANameThatIsNotInTheTableTellsNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("none") << "";
    QTest::newRow("beyond the last") << "label_sc12";
    QTest::newRow("only the beginning") << "label_sc";
    QTest::newRow("of a picture") << "pt_sc1";
    QTest::newRow("longer") << "label_sc111";
    QTest::newRow("other letters") << "LABEL_SC1";
}

void TestWindowNumMenu::keyWithANameThatIsNotInTheTableTellsNothing()
{
    QFETCH(QString, name);
    const WallTest wall;
    KeyWindow<LabelWinBtn> t;
    t.key->setObjectName(name);
    QVERIFY(t.show());
    QSignalSpy chosen(t.key, &LabelWinBtn::clickWindowMod);
    click(t.key);
    t.key->setFocus(Qt::TabFocusReason);
    type(t.key, Qt::Key_Space);
    QCOMPARE(chosen.count(), 0);
    t.key->setCurrentMod(WINDOW_MOD_1);
    QCOMPARE(t.key->toolTip(), QString());
    t.key->setObjectName("label_sc2");
    click(t.key); // the same key, now that it has a name
    QCOMPARE(chosen.count(), 1);
}

void TestWindowNumMenu::otherButtonsAndReleasesElsewhereTellNothing()
{
    MenuTest t;
    QVERIFY(t.show());
    t.menu->show();
    QSignalSpy chosen(t.menu.get(), &WindowNumMenu::clickWindowMod);
    LabelWinBtn* key = t.key("label_sc5");
    click(key, Qt::RightButton);
    click(key, Qt::MiddleButton);
    press(key);
    QCOMPARE(chosen.count(), 0); // it waits for the release
    release(t.key("label_sc6"));
    QCOMPARE(chosen.count(), 0);
}

void TestWindowNumMenu::mayBeDeletedByWhoHearsOfTheChoice_data()
{
    QTest::addColumn<bool>("byKeyboard");
    QTest::newRow("mouse") << false;
    QTest::newRow("keyboard") << true;
}

void TestWindowNumMenu::mayBeDeletedByWhoHearsOfTheChoice()
{
    QFETCH(bool, byKeyboard);
    MenuTest t;
    QVERIFY(t.show());
    t.menu->show();
    int chosen = 0;
    QObject::connect(t.menu.get(), &WindowNumMenu::clickWindowMod, &t.window, [&] {
        ++chosen;
        t.menu.reset();
    });
    LabelWinBtn* key = t.key("label_sc5");
    if (byKeyboard) {
        key->setFocus(Qt::TabFocusReason);
        type(key, Qt::Key_Return);
    } else {
        click(key);
    }
    QCOMPARE(chosen, 1);
    moveTo(&t.window, QPoint(5, 5));
    t.wall.viewControl.setWindowMod(WINDOW_MOD_9, true);
    t.wall.viewControl.changeMod(false);
    QCoreApplication::processEvents();
}

void TestWindowNumMenu::hintsSayHowManyWindows()
{
    const MenuTest t;
    const QList<int> tiles{1, 4, 6, 6, 8, 9, 13, 16, 25, 36, 49, 64};
    for (int mod = 0; mod < names.size(); ++mod) {
        const LabelWinBtn* key = t.key(names.at(mod));
        QCOMPARE(key->toolTip(), QStringLiteral("Windows: %1").arg(tiles.at(mod)));
        QCOMPARE(key->accessibleName(), key->toolTip());
    }
}

void TestWindowNumMenu::isPaintedTranslucentOverThePictures()
{
    MenuTest t;
    QPalette palette = t.window.palette();
    palette.setColor(QPalette::Window, QColor(255, 255, 255));
    t.window.setPalette(palette);
    QVERIFY(t.show());
    t.menu->show();
    QVERIFY(t.menu->testAttribute(Qt::WA_TranslucentBackground));
    moveTo(&t.window, QPoint(5, 5));
    const QRect menu = t.menu->geometry();
    const auto painted = [&](QPoint at) {
        return t.window.grab().toImage().pixel(menu.topLeft() + at);
    };
    const auto over = [](int plate) { return qRound(0.94 * plate + 0.06 * 255); };
    QTRY_VERIFY(qAbs(qRed(painted(QPoint(4, 30))) - over(23)) <= 2);
    QVERIFY(qAbs(qGreen(painted(QPoint(4, 30))) - over(28)) <= 2);
    QVERIFY(qAbs(qBlue(painted(QPoint(4, 30))) - over(37)) <= 2);
    QCOMPARE(QColor(painted(QPoint(100, 0))), QColor("#3B4758")); // its edge
    QCOMPARE(QColor(painted(QPoint(0, 0))), QColor(255, 255, 255)); // round corners
}

ORVA_TEST(TestWindowNumMenu)
#include "tst_windownummenu.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "keywindow.h"
#include "testmain.h"
#include "wall/labelwindownumbtn.h"
#include "walltest.h"

#include <QSignalSpy>
#include <QTest>

#include <array>

// The key that shows the layout and opens the menu of layouts.
class TestLabelWindowNumBtn final : public QObject
{
    Q_OBJECT

private slots:
    void pictureIsThatOfTheLayout_data();
    void pictureIsThatOfTheLayout();
    void layoutOfTheOtherModeDoesNotShow();
    void modeSwitchShowsTheOtherModesLayout();
    void layoutWithAsManyTilesShowsItsOwnPicture();
    void clickTogglesAndTells();
    void setOpenIsSilent();
    void releaseElsewhereAndOtherButtonsDoNothing();
    void keyboardToggles();
};

namespace {

// By WINDOW_MOD.
constexpr std::array<const char*, windowModCount> pictures{
    "sc1", "sc2", "sc3", "sc32", "sc4", "sc5", "sc6", "sc7", "sc8", "sc9", "sc10", "sc11"};

QString pictureOf(WINDOW_MOD mod)
{
    return QLatin1String(pictures.at(std::size_t(mod)));
}

// Tiles on the wall are told by another signal than where there are none.
struct LayoutTest
{
    explicit LayoutTest(bool hasTiles = true)
    {
        if (hasTiles)
            wall.makeTiles();
    }

    WallTest wall;
    KeyWindow<LabelWindowNumBtn> key;
};

} // namespace

void TestLabelWindowNumBtn::pictureIsThatOfTheLayout_data()
{
    QTest::addColumn<int>("mod");
    QTest::addColumn<bool>("isLive");
    for (int mod = 0; mod < windowModCount; ++mod) {
        QTest::addRow("%d, live", mod) << mod << true;
        QTest::addRow("%d, playback", mod) << mod << false;
    }
}

void TestLabelWindowNumBtn::pictureIsThatOfTheLayout()
{
    QFETCH(int, mod);
    QFETCH(bool, isLive);
    LayoutTest t(false);
    t.wall.viewControl.changeMod(isLive);
    const auto layout = static_cast<WINDOW_MOD>(mod);
    t.wall.viewControl.setWindowMod(layout, isLive);
    const LabelWindowNumBtn late;
    QVERIFY(shows(&late, pictureOf(layout)));
    if (windowTiles(layout) != windowTiles(WINDOW_MOD_4) || layout == WINDOW_MOD_4)
        QVERIFY(shows(t.key.key, pictureOf(layout)));
    t.key.key->setOpen(true);
    QVERIFY(shows(t.key.key, pictureOf(layout) + "-hover"));
    t.key.key->setOpen(false);
    QVERIFY(shows(t.key.key, pictureOf(layout)));
}

void TestLabelWindowNumBtn::layoutOfTheOtherModeDoesNotShow()
{
    LayoutTest t;
    t.wall.viewControl.setWindowMod(WINDOW_MOD_16, false);
    QVERIFY(shows(t.key.key, "sc2"));
    t.key.key->windowNumberChange();
    QVERIFY(shows(t.key.key, "sc2"));
}

void TestLabelWindowNumBtn::modeSwitchShowsTheOtherModesLayout()
{
    LayoutTest t;
    t.wall.viewControl.setWindowMod(WINDOW_MOD_6, false);
    t.wall.viewControl.setWindowMod(WINDOW_MOD_6_MIRROR, true); // as many tiles
    QVERIFY(shows(t.key.key, "sc3"));
    t.wall.viewControl.changeMod(false);
    QVERIFY(shows(t.key.key, "sc32"));
    t.wall.viewControl.changeMod(true);
    QVERIFY(shows(t.key.key, "sc3"));
}

void TestLabelWindowNumBtn::layoutWithAsManyTilesShowsItsOwnPicture()
{
    LayoutTest t;
    for (const WINDOW_MOD mod : {WINDOW_MOD_6_MIRROR, WINDOW_MOD_6, WINDOW_MOD_6_MIRROR}) {
        t.wall.viewControl.setWindowMod(mod, true);
        QVERIFY(shows(t.key.key, pictureOf(mod)));
    }
}

void TestLabelWindowNumBtn::clickTogglesAndTells()
{
    LayoutTest t;
    QVERIFY(t.key.show());
    int told = 0;
    QObject::connect(t.key.key, &LabelWindowNumBtn::clickWindowMenu, t.key.key, [&] {
        ++told;
        QCOMPARE(t.key.key->isOpen(), told % 2 == 1); // by then
        QCOMPARE(shows(t.key.key, "sc2-hover"), told % 2 == 1);
    });
    click(t.key.key);
    QCOMPARE(told, 1);
    t.wall.viewControl.setWindowMod(WINDOW_MOD_9, true);
    QVERIFY(shows(t.key.key, "sc5-hover")); // it stays open
    t.wall.viewControl.setWindowMod(WINDOW_MOD_4, true);
    click(t.key.key);
    QCOMPARE(told, 2);
    QVERIFY(shows(t.key.key, "sc2"));
}

void TestLabelWindowNumBtn::setOpenIsSilent()
{
    LayoutTest t;
    QSignalSpy told(t.key.key, &LabelWindowNumBtn::clickWindowMenu);
    t.key.key->setOpen(true);
    QVERIFY(t.key.key->isOpen());
    t.key.key->setOpen(false);
    QVERIFY(!t.key.key->isOpen());
    QCOMPARE(told.count(), 0);
}

void TestLabelWindowNumBtn::releaseElsewhereAndOtherButtonsDoNothing()
{
    LayoutTest t;
    QVERIFY(t.key.show());
    QSignalSpy told(t.key.key, &LabelWindowNumBtn::clickWindowMenu);
    click(t.key.key, Qt::RightButton);
    click(t.key.key, Qt::MiddleButton);
    press(t.key.key);
    QTest::mouseRelease(t.key.window.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(told.count(), 0);
    QVERIFY(!t.key.key->isOpen());
}

void TestLabelWindowNumBtn::keyboardToggles()
{
    LayoutTest t;
    QVERIFY(t.key.show());
    t.key.key->setFocus(Qt::TabFocusReason);
    QSignalSpy told(t.key.key, &LabelWindowNumBtn::clickWindowMenu);
    type(t.key.key, Qt::Key_Space);
    QVERIFY(t.key.key->isOpen());
    type(t.key.key, Qt::Key_Return);
    QVERIFY(!t.key.key->isOpen());
    QCOMPARE(told.count(), 2);
}

ORVA_TEST(TestLabelWindowNumBtn)
#include "tst_labelwindownumbtn.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "frametest.h"
#include "hands.h"
#include "testmain.h"
#include "wall/glwidgetviewwindow.h"
#include "wall/labelfoldbtn.h"
#include "wall/menudevlist.h"
#include "wall/pagebtn.h"
#include "wall/walllayout.h"

#include <array>

// The left column's folding panels, and how the parts of the frame share its room.
class TestFramePanels final : public QObject
{
    Q_OBJECT

private slots:
    void deviceListIsOpenAtTheStartAndFillsWhatTheHeadersLeave();
    void panelsThatAreToComeAreDisabled();
    void disabledHeaderOpensNothing();
    void openingAPanelClosesTheOther();
    void closingTheOpenPanelLeavesNone();
    void headerIsTheKeyOfItsPanelToo();
    void keyboardFoldsAPanel();
    void openHeaderIsMarked();
    void sizesFollowTheWindow();
    void foldedPanelHasTheRoomOfTheNewSize();
    void wallHasItsTilesFromTheStart();
};

namespace {

struct PanelNames
{
    const char* header;
    const char* fold;
    const char* body;
};

constexpr std::array<PanelNames, 3> names{
    {{"widget_header_devList", "label_deviceMenu_fold", "widget_menu_devList"},
        {"widget_header_ptz", "label_deviceManageMenu_fold", "widget_menu_ptz"},
        {"widget_header_devOpt", "label_devOpt_fold", "widget_menu_devOpt"}}};
constexpr int headersHeight = 3 * 36;

class PanelTest
{
public:
    [[nodiscard]] bool open()
    {
        if (!t.open())
            return false;
        for (int panel : {1, 2})
            header(panel)->setEnabled(true);
        return true;
    }
    QWidget* header(int panel) const { return t.part(names.at(std::size_t(panel)).header); }
    QWidget* body(int panel) const { return t.part(names.at(std::size_t(panel)).body); }
    LabelFoldBtn* fold(int panel) const
    {
        return t.part<LabelFoldBtn>(names.at(std::size_t(panel)).fold);
    }
    // The panel that is open, -1 for none; -2 where keys, marks and bodies do not agree.
    int openPanel() const
    {
        int open = -1;
        for (int panel = 0; panel < 3; ++panel) {
            const bool isOpen = body(panel)->isVisible();
            if (fold(panel)->isUnfolded() != isOpen
                || header(panel)->property("open").toBool() != isOpen || (isOpen && open >= 0))
                return -2;
            if (isOpen)
                open = panel;
        }
        return open;
    }

    FrameTest t;
};

} // namespace

void TestFramePanels::deviceListIsOpenAtTheStartAndFillsWhatTheHeadersLeave()
{
    PanelTest p;
    QVERIFY(p.t.open());
    QCOMPARE(p.openPanel(), 0);
    QTRY_COMPARE(p.body(0)->height(), p.t.center()->height() - headersHeight);
    const auto* list = p.t.gate.window.findChild<MenuDevList*>();
    QTRY_COMPARE(FrameTest::placeIn(p.body(0), list), p.body(0)->rect());
    QCOMPARE(p.t.part("widget_menuBox")->height(), p.t.center()->height());
}

void TestFramePanels::panelsThatAreToComeAreDisabled()
{
    PanelTest p;
    QVERIFY(p.t.open());
    QVERIFY(p.header(0)->isEnabled());
    for (int panel : {1, 2}) {
        QVERIFY(!p.header(panel)->isEnabled());
        QVERIFY(!p.fold(panel)->isEnabled());
        QVERIFY(!p.header(panel)->toolTip().isEmpty());
    }
}

void TestFramePanels::disabledHeaderOpensNothing()
{
    PanelTest p;
    QVERIFY(p.t.open());
    for (int panel : {1, 2}) {
        click(p.header(panel));
        click(p.fold(panel));
        QCOMPARE(p.openPanel(), 0);
    }
}

void TestFramePanels::openingAPanelClosesTheOther()
{
    PanelTest p;
    QVERIFY(p.open());
    for (int panel : {1, 2, 0, 2, 1, 0}) {
        QCOMPARE(p.fold(panel)->toolTip(), QString("Unfold"));
        click(p.fold(panel));
        QCOMPARE(p.openPanel(), panel);
        QCOMPARE(p.fold(panel)->toolTip(), QString("Fold"));
        QCOMPARE(p.body(panel)->height(), p.t.center()->height() - headersHeight);
    }
}

void TestFramePanels::closingTheOpenPanelLeavesNone()
{
    PanelTest p;
    QVERIFY(p.open());
    click(p.fold(0));
    QCOMPARE(p.openPanel(), -1);
    click(p.fold(1));
    QCOMPARE(p.openPanel(), 1);
    click(p.fold(1));
    QCOMPARE(p.openPanel(), -1);
    click(p.fold(0));
    QCOMPARE(p.openPanel(), 0);
    QTRY_COMPARE(p.body(0)->height(), p.t.center()->height() - headersHeight);
}

void TestFramePanels::headerIsTheKeyOfItsPanelToo()
{
    PanelTest p;
    QVERIFY(p.open());
    click(p.header(1));
    QCOMPARE(p.openPanel(), 1);
    click(p.header(1), Qt::RightButton);
    QCOMPARE(p.openPanel(), 1);
    click(p.header(1));
    QCOMPARE(p.openPanel(), -1);
}

void TestFramePanels::keyboardFoldsAPanel()
{
    PanelTest p;
    QVERIFY(p.open());
    p.fold(0)->setFocus(Qt::TabFocusReason);
    type(p.fold(0), Qt::Key_Space);
    QCOMPARE(p.openPanel(), -1);
    type(p.fold(0), Qt::Key_Return);
    QCOMPARE(p.openPanel(), 0);
}

void TestFramePanels::openHeaderIsMarked()
{
    PanelTest p;
    QVERIFY(p.open());
    const QColor mark(0x64, 0x95, 0xED);
    const auto edge = [&](int panel) {
        return QColor(p.header(panel)->grab().toImage().pixel(1, p.header(panel)->height() / 2));
    };
    QCOMPARE(edge(0), mark);
    QVERIFY(edge(1) != mark);
    click(p.header(1));
    QCOMPARE(edge(1), mark);
    QVERIFY(edge(0) != mark);
}

void TestFramePanels::sizesFollowTheWindow()
{
    PanelTest p;
    QVERIFY(p.t.open());
    for (const QSize size : {QSize(1400, 900), QSize(1000, 600), QSize(1080, 720)}) {
        p.t.gate.window.resize(size);
        QTRY_COMPARE(p.t.frame()->size(), size);
        QTRY_COMPARE(p.t.center()->height(), size.height() - 48);
        QTRY_COMPARE(p.body(0)->height(), size.height() - 48 - headersHeight);
        QTRY_COMPARE(
            p.t.viewBox()->size(), QSize(size.width() - 240, size.height() - 48 - 32 - 50));
        const std::vector<QRect> rects = windowRects(WINDOW_MOD_4, p.t.viewBox()->size());
        for (int i = 0; i < 4; ++i)
            QTRY_COMPARE(p.t.tiles().at(i)->geometry(), rects[std::size_t(i)]);
    }
}

void TestFramePanels::foldedPanelHasTheRoomOfTheNewSize()
{
    PanelTest p;
    QVERIFY(p.open());
    click(p.fold(0));
    p.t.gate.window.resize(1080, 640);
    QTRY_COMPARE(p.t.center()->height(), 592);
    click(p.fold(2));
    QTRY_COMPARE(p.body(2)->height(), 592 - headersHeight);
    QCOMPARE(FrameTest::placeIn(p.t.part("widget_menuBox"), p.header(0)).y(), 0);
}

void TestFramePanels::wallHasItsTilesFromTheStart()
{
    FrameTest t;
    QVERIFY(t.open());
    QCOMPARE(t.tiles().size(), 4);
    const QObjectList& stack = t.viewBox()->children(); // the lowest first
    for (PageBtn* key : t.viewBox()->findChildren<PageBtn*>()) {
        QVERIFY(key->isVisible());
        for (GlWidgetViewWindow* tile : t.tiles())
            QVERIFY(stack.indexOf(key) > stack.indexOf(tile));
    }
}

ORVA_TEST(TestFramePanels)
#include "tst_framepanels.moc"

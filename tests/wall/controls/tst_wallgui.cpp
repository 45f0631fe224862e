// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "link/messages.h"
#include "stage.h"
#include "testmain.h"
#include "wall/glwidgetviewwindow.h"
#include "wall/labelwinbtn.h"

#include <QSignalSpy>
#include <QTest>

#include <array>

// The wall in a window, driven by the mouse and the keyboard alone; after each step the screen is
// looked at.
class TestWallGui final : public QObject
{
    Q_OBJECT

private slots:
    void everyLayoutOfLiveIsChosenInTheMenu_data();
    void everyLayoutOfLiveIsChosenInTheMenu();
    void layoutsOfPlaybackAreChosenInTheMenu_data();
    void layoutsOfPlaybackAreChosenInTheMenu();
    void maximisedWallHasTheSamePlaces();
    void layoutsFollowEachOther();
    void menuClosesByItsKeyToo();
    void pageButtonsTurnThePages();
    void keyboardTurnsThePages();
    void doubleClickGivesATileTheWallAndTakesItBack();
    void clickSelectsATile();
    void selectedChannelShowsOnTheMirrorTile();
    void modeSwitchShowsWhatIsOpenInTheMode();
    void modeSwitchWithTheMenuOpen();
    void clickOnTheMenuDoesNotReachTheTileBelow();
    void recordKeyMarksTheSelectedTile();
    void closingAChannelLeavesItsTileEmpty();
    void deviceThatLeavesEmptiesItsTiles();
    void wallFollowsTheWindowsSize();
    void escapeLeavesFullScreen();
};

namespace {

// By WINDOW_MOD.
constexpr std::array<const char*, windowModCount> menuKeys{"label_sc1", "label_sc2", "label_sc3",
    "label_sc32", "label_sc4", "label_sc5", "label_sc6", "label_sc7", "label_sc8", "label_sc9",
    "label_sc10", "label_sc11"};

Yuv colourOf(int number)
{
    constexpr std::array<Yuv, 10> colours{
        {{120, 90, 200}, {150, 160, 90}, {90, 190, 110}, {180, 60, 150}, {70, 140, 160},
            {140, 110, 60}, {200, 128, 128}, {110, 200, 190}, {160, 80, 100}, {60, 128, 128}}};
    return colours.at(std::size_t(number));
}

// Two devices with ten channels, and the window.
class GuiTest
{
public:
    explicit GuiTest(QSize size = QSize(1080, 720))
        : stage(wall, size)
        , first(wall.addDevice(6))
        , second(wall.addDevice(4))
    {
    }

    [[nodiscard]] bool show() { return stage.open(); }
    // Ten streams in live view, all with a picture.
    [[nodiscard]] bool play()
    {
        if (!wall.open(first, 6) || !wall.open(second, 4))
            return false;
        for (int i = 0; i < 10; ++i)
            stage.decode(channel(i), colourOf(i));
        return true;
    }
    // The first streams of both devices in playback.
    void playBack(int count)
    {
        for (int i = 0; i < count; ++i) {
            channel(i)->mode(false).open = true;
            channel(i)->mode(false).playing = true;
            emit wall.io->startReplaySuccessMsg(channel(i));
            stage.decode(channel(i), colourOf(i));
        }
    }
    Channel* channel(int number) const
    {
        return number < 6 ? first->channel(number) : second->channel(number - 6);
    }
    QList<Channel*> channels(int from, int count) const
    {
        QList<Channel*> channels;
        for (int i = from; i < from + count; ++i)
            channels.append(channel(i));
        return channels;
    }

    // By the mouse.
    void choose(WINDOW_MOD mod)
    {
        click(stage.layoutKey);
        click(stage.menuKey(menuKeys.at(std::size_t(mod))));
    }
    // Lets tasks end and streams go on, and looks at the screen.
    QString look()
    {
        if (!wall.settle())
            return QStringLiteral("a task does not end");
        stage.decodeAll();
        QCoreApplication::processEvents();
        return stage.look();
    }

    WallTest wall;
    Stage stage;
    Device* first;
    Device* second;
};

QString pictureOf(WINDOW_MOD mod)
{
    return QString(QLatin1String(menuKeys.at(std::size_t(mod)))).mid(6);
}

} // namespace

void TestWallGui::everyLayoutOfLiveIsChosenInTheMenu_data()
{
    QTest::addColumn<int>("mod");
    for (int mod = 0; mod < windowModCount; ++mod)
        QTest::newRow(menuKeys.at(std::size_t(mod))) << mod;
}

void TestWallGui::everyLayoutOfLiveIsChosenInTheMenu()
{
    QFETCH(int, mod);
    const auto layout = static_cast<WINDOW_MOD>(mod);
    GuiTest t;
    t.stage.addCards(t.first);
    QVERIFY(t.show());
    QVERIFY(t.play());
    // One selected, one that records, one that waits.
    click(t.stage.tile(1));
    t.wall.viewControl.setRecord(t.channel(2), true);
    t.choose(layout);
    QVERIFY(t.stage.menu == nullptr);
    QVERIFY(!t.stage.layoutKey->isOpen());
    QVERIFY(shows(t.stage.layoutKey, pictureOf(layout)));
    QCOMPARE(t.wall.viewControl.getWindowMod(true), layout);
    QCOMPARE(t.wall.viewControl.getTileCount(), windowTiles(layout));
    QTRY_COMPARE(t.look(), QString());
    QCOMPARE(Dev::instance()->selectedChannel(), t.channel(1));
    emit t.wall.io->waitingStreamMsg(t.channel(3));
    QTRY_COMPARE(t.stage.look(), QString());
    t.stage.save(QStringLiteral("live-%1").arg(pictureOf(layout)));
}

void TestWallGui::layoutsOfPlaybackAreChosenInTheMenu_data()
{
    QTest::addColumn<int>("mod");
    for (const WINDOW_MOD mod : {WINDOW_MOD_1, WINDOW_MOD_4, WINDOW_MOD_6})
        QTest::newRow(menuKeys.at(std::size_t(mod))) << int(mod);
}

void TestWallGui::layoutsOfPlaybackAreChosenInTheMenu()
{
    QFETCH(int, mod);
    const auto layout = static_cast<WINDOW_MOD>(mod);
    GuiTest t;
    QVERIFY(t.show());
    click(t.stage.playbackKey);
    QVERIFY(!t.wall.viewControl.getIsLive());
    t.playBack(3);
    QTRY_COMPARE(t.look(), QString());
    click(t.stage.tile(0));
    t.choose(layout);
    QCOMPARE(t.wall.viewControl.getWindowMod(false), layout);
    QCOMPARE(t.wall.viewControl.getWindowMod(true), WINDOW_MOD_4);
    QVERIFY(shows(t.stage.layoutKey, pictureOf(layout)));
    QTRY_COMPARE(t.look(), QString());
    QCOMPARE(t.wall.shown(1), t.channels(0, 1));
    t.stage.save(QStringLiteral("playback-%1").arg(pictureOf(layout)));
}

void TestWallGui::maximisedWallHasTheSamePlaces()
{
    GuiTest t(QSize(1920, 1080));
    t.stage.addCards(t.first);
    QVERIFY(t.show());
    QCOMPARE(t.stage.viewBox->size(), QSize(1680, 950));
    QVERIFY(t.play());
    t.choose(WINDOW_MOD_16);
    QTRY_COMPARE(t.look(), QString());
    click(t.stage.tile(2));
    t.wall.viewControl.setRecord(t.channel(6), true);
    emit t.wall.io->waitingStreamMsg(t.channel(9));
    click(t.stage.layoutKey);
    moveTo(t.stage.menuKey("label_sc5"));
    QTRY_COMPARE(t.stage.look(), QString());
    t.stage.save("live-16-maximised");
}

void TestWallGui::layoutsFollowEachOther()
{
    GuiTest t;
    QVERIFY(t.show());
    QVERIFY(t.play());
    for (const WINDOW_MOD mod :
        {WINDOW_MOD_6_MIRROR, WINDOW_MOD_16, WINDOW_MOD_9, WINDOW_MOD_13_MIRROR, WINDOW_MOD_6,
            WINDOW_MOD_8_MIRROR, WINDOW_MOD_25, WINDOW_MOD_4}) {
        t.choose(mod);
        QTRY_COMPARE(t.look(), QString());
        QVERIFY(t.stage.leftPage->isVisible());
    }
    QCOMPARE(t.wall.shown(), t.channels(0, 4));
}

void TestWallGui::menuClosesByItsKeyToo()
{
    GuiTest t;
    QVERIFY(t.show());
    click(t.stage.layoutKey);
    QVERIFY(t.stage.menu != nullptr && t.stage.menu->isVisible());
    QVERIFY(shows(t.stage.layoutKey, "sc2-hover"));
    const QPoint key = t.stage.layoutKey->mapTo(&t.stage, QPoint(0, 0));
    const QRect menu(t.stage.menu->mapTo(&t.stage, QPoint(0, 0)), t.stage.menu->size());
    QCOMPARE(menu, QRect(1080 - 12 - 200, 670 - 6 - 60, 200, 60));
    QVERIFY(menu.bottom() < key.y() && menu.right() > key.x()); // over it
    click(t.stage.layoutKey);
    QVERIFY(t.stage.menu == nullptr);
    QVERIFY(shows(t.stage.layoutKey, "sc2"));
    QCOMPARE(t.wall.viewControl.getWindowMod(true), WINDOW_MOD_4);
    QTRY_COMPARE(t.look(), QString());
}

void TestWallGui::pageButtonsTurnThePages()
{
    GuiTest t;
    QVERIFY(t.show());
    QVERIFY(t.play());
    QTRY_COMPARE(t.look(), QString());
    t.wall.takeSent();
    click(t.stage.leftPage); // there is none
    QCOMPARE(t.wall.shown(), t.channels(0, 4));
    click(t.stage.rightPage);
    QCOMPARE(t.wall.shown(), t.channels(4, 4));
    QTRY_COMPARE(t.look(), QString());
    QCOMPARE(t.stage.pageLabel->text(), QString("Page: 2 ,Total: 3"));
    t.stage.save("page-2");
    doubleClick(t.stage.rightPage); // there is only one more
    QCOMPARE(t.wall.shown(), t.channels(8, 2) + QList<Channel*>({nullptr, nullptr}));
    QTRY_COMPARE(t.look(), QString());
    t.stage.save("page-3");
    click(t.stage.leftPage);
    click(t.stage.leftPage);
    QCOMPARE(t.wall.shown(), t.channels(0, 4));
    QTRY_COMPARE(t.look(), QString());
    QCOMPARE(Dev::instance()->selectedChannel(), nullptr);
    QCOMPARE(t.wall.takeSent(), QList<int>()); // the streams run on
}

void TestWallGui::keyboardTurnsThePages()
{
    GuiTest t;
    QVERIFY(t.show());
    QVERIFY(t.play());
    t.stage.rightPage->setFocus(Qt::TabFocusReason);
    type(&t.stage, Qt::Key_Return);
    QCOMPARE(t.wall.shown(), t.channels(4, 4));
    QTRY_COMPARE(t.look(), QString());
    QSignalSpy escapes(t.stage.videoView, &WidgetBtn::pressEscMsg);
    type(&t.stage, Qt::Key_Escape);
    QCOMPARE(escapes.count(), 1);
}

void TestWallGui::doubleClickGivesATileTheWallAndTakesItBack()
{
    GuiTest t;
    QVERIFY(t.show());
    QVERIFY(t.play());
    t.choose(WINDOW_MOD_9);
    QTRY_COMPARE(t.look(), QString());
    for (const int number : {4, 0, 8}) {
        doubleClick(t.stage.tile(number));
        QCOMPARE(t.wall.viewControl.getWindowMod(true), WINDOW_MOD_1);
        QCOMPARE(t.wall.shown(), t.channels(number, 1));
        QCOMPARE(Dev::instance()->selectedChannel(), t.channel(number));
        QTRY_COMPARE(t.look(), QString());
        QVERIFY(shows(t.stage.layoutKey, "sc1"));
        doubleClick(t.stage.tile(0));
        QCOMPARE(t.wall.viewControl.getWindowMod(true), WINDOW_MOD_9);
        QCOMPARE(Dev::instance()->selectedChannel(), nullptr);
        QCOMPARE(t.wall.shown(), t.channels(0, 9));
        QTRY_COMPARE(t.look(), QString());
        QVERIFY(shows(t.stage.layoutKey, "sc5"));
    }
}

void TestWallGui::clickSelectsATile()
{
    GuiTest t;
    t.stage.addCards(t.first);
    QVERIFY(t.show());
    QVERIFY(t.play());
    QSignalSpy clicks(t.stage.videoView, &WidgetBtn::clicked);
    for (const int number : {2, 0, 3, 1}) {
        click(t.stage.tile(number));
        QCOMPARE(Dev::instance()->selectedChannel(), t.channel(number));
        QTRY_COMPARE(t.look(), QString());
    }
    QCOMPARE(clicks.count(), 4); // the area hears of them too
}

void TestWallGui::selectedChannelShowsOnTheMirrorTile()
{
    GuiTest t;
    QVERIFY(t.show());
    QVERIFY(t.play());
    t.choose(WINDOW_MOD_13_MIRROR);
    QCOMPARE(t.wall.shown(3), t.channels(6, 1) + t.channels(0, 2)); // the last device's first
    QTRY_COMPARE(t.look(), QString());
    click(t.stage.tile(5));
    QCOMPARE(t.wall.shown(2), t.channels(4, 1) + t.channels(0, 1));
    QTRY_COMPARE(t.look(), QString()); // both are framed
    QCOMPARE(t.channel(4)->tile, t.stage.tile(5));
    doubleClick(t.stage.tile(0)); // the mirror tile gives way to what it shows
    QCOMPARE(t.wall.shown(), t.channels(4, 1));
    QTRY_COMPARE(t.look(), QString());
    doubleClick(t.stage.tile(0));
    QCOMPARE(t.wall.viewControl.getWindowMod(true), WINDOW_MOD_13_MIRROR);
    QTRY_COMPARE(t.look(), QString());
}

void TestWallGui::modeSwitchShowsWhatIsOpenInTheMode()
{
    GuiTest t;
    QVERIFY(t.show());
    QVERIFY(t.play());
    t.choose(WINDOW_MOD_9);
    click(t.stage.playbackKey);
    QVERIFY(t.stage.playbackKey->isSelected() && !t.stage.liveKey->isSelected());
    QCOMPARE(t.wall.shown(), QList<Channel*>({nullptr, nullptr, nullptr, nullptr}));
    QTRY_COMPARE(t.stage.viewBox->size(), QSize(840, 510));
    QTRY_COMPARE(t.look(), QString());
    QVERIFY(!t.channel(0)->mode(true).playing);
    click(t.stage.liveKey);
    QCOMPARE(t.wall.shown(), t.channels(0, 9));
    QTRY_COMPARE(t.stage.viewBox->size(), QSize(840, 590));
    QTRY_COMPARE(t.look(), QString());
    QVERIFY(t.channel(9)->mode(true).playing); // without a tile
    click(t.stage.liveKey); // again
    QTRY_COMPARE(t.look(), QString());
}

void TestWallGui::modeSwitchWithTheMenuOpen()
{
    GuiTest t;
    QVERIFY(t.show());
    QVERIFY(t.play());
    click(t.stage.layoutKey);
    QCOMPARE(t.stage.menu->size(), QSize(200, 60));
    QTRY_COMPARE(t.look(), QString());
    click(t.stage.playbackKey);
    QCOMPARE(t.stage.menu->size(), QSize(90, 30));
    QVERIFY(!t.stage.menuKey("label_sc11")->isVisible());
    t.playBack(2);
    QTRY_COMPARE(t.look(), QString());
    QCOMPARE(t.stage.menu->geometry().bottomRight() + QPoint(13, 7), // over its key
        QPoint(t.stage.videoView->width(), t.stage.videoView->height()));
    click(t.stage.menuKey("label_sc32"));
    QVERIFY(t.stage.menu == nullptr);
    QCOMPARE(t.wall.viewControl.getWindowMod(false), WINDOW_MOD_6);
    QTRY_COMPARE(t.look(), QString());
    click(t.stage.layoutKey);
    click(t.stage.liveKey);
    QCOMPARE(t.stage.menu->size(), QSize(200, 60));
    QVERIFY(t.stage.menuKey("label_sc11")->isVisible());
    QTRY_COMPARE(t.stage.viewBox->height(), 590);
    QTRY_COMPARE(t.look(), QString());
    QCOMPARE(t.stage.menu->geometry().bottomRight() + QPoint(13, 7),
        QPoint(t.stage.videoView->width(), t.stage.videoView->height()));
    QVERIFY(shows(t.stage.layoutKey, "sc2-hover"));
}

void TestWallGui::clickOnTheMenuDoesNotReachTheTileBelow()
{
    GuiTest t;
    QVERIFY(t.show());
    QVERIFY(t.play());
    click(t.stage.layoutKey);
    click(t.stage.menu, QPoint(3, 30)); // beside the keys
    click(t.stage.menu, QPoint(3, 30), Qt::RightButton);
    doubleClick(t.stage.menu, QPoint(3, 30));
    QCOMPARE(Dev::instance()->selectedChannel(), nullptr);
    QCOMPARE(t.wall.viewControl.getWindowMod(true), WINDOW_MOD_4);
    QVERIFY(t.stage.menu != nullptr);
}

void TestWallGui::recordKeyMarksTheSelectedTile()
{
    GuiTest t;
    QVERIFY(t.show());
    QVERIFY(t.play());
    click(t.stage.recordKey); // nothing is selected
    QTRY_COMPARE(t.look(), QString());
    click(t.stage.tile(1));
    click(t.stage.recordKey);
    QVERIFY(t.channel(1)->mode(true).record);
    const auto red = [&t] {
        const QImage mark = t.stage.screen().copy(
            QRect(t.stage.tile(1)->mapTo(&t.stage, QPoint(t.stage.tile(1)->width() - 60, 3)),
                QSize(60, 20)));
        int pixels = 0;
        for (int y = 0; y < mark.height(); ++y) {
            for (int x = 0; x < mark.width(); ++x)
                pixels += qRed(mark.pixel(x, y)) > qRed(rgbOf(colourOf(1))) + 60 ? 1 : 0;
        }
        return pixels;
    };
    QTRY_VERIFY(red() > 100);
    QTRY_COMPARE(t.look(), QString()); // nothing else has changed
    click(t.stage.shotKey);
    QVERIFY(t.channel(1)->mode(true).screenshot);
    click(t.stage.recordKey);
    QTRY_COMPARE(red(), 0);
    QTRY_COMPARE(t.look(), QString());
}

void TestWallGui::closingAChannelLeavesItsTileEmpty()
{
    GuiTest t;
    QVERIFY(t.show());
    QVERIFY(t.play());
    t.wall.viewControl.closeChannel(t.channel(1));
    QCOMPARE(t.wall.shown(3), QList<Channel*>({t.channel(0), nullptr, t.channel(2)}));
    QTRY_COMPARE(t.look(), QString());
    t.wall.viewControl.connectChannel(t.channel(1), false, true);
    QTRY_COMPARE(t.look(), QString());
    QCOMPARE(t.wall.shown(), t.channels(0, 4));
}

void TestWallGui::deviceThatLeavesEmptiesItsTiles()
{
    GuiTest t;
    t.stage.addCards(t.first);
    QVERIFY(t.show());
    QVERIFY(t.play());
    t.choose(WINDOW_MOD_16);
    click(t.stage.tile(3));
    click(t.stage.recordKey);
    Dev::instance()->removeDevice(t.first);
    t.first = nullptr;
    t.stage.forgetAll();
    QTRY_VERIFY(t.wall.settle() && t.stage.look().isEmpty());
    QVERIFY(shows(t.stage.recordKey, "screenCap"));
    click(t.stage.tile(3)); // it is empty
    QCOMPARE(Dev::instance()->selectedChannel(), nullptr);
    click(t.stage.tile(6)); // the other device's stays where it is
    QCOMPARE(Dev::instance()->selectedChannel(), t.second->channel(0));
}

void TestWallGui::wallFollowsTheWindowsSize()
{
    GuiTest t;
    QVERIFY(t.show());
    QVERIFY(t.play());
    t.choose(WINDOW_MOD_8_MIRROR);
    for (const QSize size : {QSize(901, 603), QSize(1200, 811), QSize(1080, 720)}) {
        t.stage.resize(size);
        QTRY_COMPARE(t.stage.viewBox->size(), size - QSize(240, 130));
        QTRY_COMPARE(t.look(), QString());
    }
}

void TestWallGui::escapeLeavesFullScreen()
{
    GuiTest t;
    QVERIFY(t.show());
    QVERIFY(t.play());
    QSignalSpy full(&t.wall.viewControl, &ViewControl::fullGLMsg);
    click(t.stage.fullKey);
    QVERIFY(t.wall.viewControl.getFull());
    QTRY_COMPARE(t.stage.viewBox->size(), t.stage.size());
    QTRY_COMPARE(t.look(), QString());
    t.stage.save("full");
    t.stage.leftPage->setFocus(Qt::TabFocusReason);
    type(&t.stage, Qt::Key_Escape);
    QVERIFY(!t.wall.viewControl.getFull());
    QVERIFY(!t.stage.fullKey->isFull());
    QTRY_COMPARE(t.stage.viewBox->size(), QSize(840, 590));
    QTRY_COMPARE(t.look(), QString());
    QCOMPARE(full.count(), 2);
}

ORVA_TEST(TestWallGui)
#include "tst_wallgui.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/systeminfo.h"
#include "cardtest.h"
#include "hands.h"
#include "stage.h"
#include "testmain.h"
#include "wall/glwidgetviewwindow.h"

#include <QLabel>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

// What carries text, or has several looks, in the languages that need most room or other letters.
class TestWallLook final : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { SystemInfo::instance()->setLanguage(SystemInfo::English); }

    void cardsOfAllStatesHaveRoomForTheirNames_data() { languages(); }
    void cardsOfAllStatesHaveRoomForTheirNames();
    void modeSwitchHasRoomForItsTexts_data() { languages(); }
    void modeSwitchHasRoomForItsTexts();
    void keysKeepTheirSizeInAllLooks();
    void menusStandOnTheWall_data() { languages(); }
    void menusStandOnTheWall();

private:
    static void languages();
};

namespace {

void choose(int language)
{
    SystemInfo::instance()->setLanguage(static_cast<SystemInfo::SYSTEM_TYPE_LAGNUAGE>(language));
    QCoreApplication::processEvents();
}

QString shotName(const char* what)
{
    return QStringLiteral("%1-%2").arg(QLatin1String(what), QLatin1String(QTest::currentDataTag()));
}

bool hasRoom(const QLabel* label)
{
    const int margin = label->indent() > 0 ? label->indent() : 0;
    return label->fontMetrics().horizontalAdvance(label->text()) + margin <= label->width()
        && label->fontMetrics().height() <= label->height();
}

// A column of cards: not of the selected device, of it, selected, running, failed, stopped, and with
// a picture.
struct CardColumn
{
    CardColumn();
    ChannelWindow* card(int number) const { return cards.at(number); }

    WallTest wall;
    Stage stage;
    Device* first;
    Device* second;
    QList<ChannelWindow*> cards;
    QTemporaryDir folder;
};

CardColumn::CardColumn()
    : stage(wall)
    , first(wall.addDevice(1))
    , second(wall.addDevice(4))
{
    stage.addCards(first);
    stage.addCards(second);
    cards = stage.findChildren<ChannelWindow*>();
    Dev::instance()->selectDevice(second);
    Dev::instance()->selectChannel(second->channel(0));
    second->channel(0)->mode(true).playing = true;
    emit wall.io->videoRequestSuccessMsg(second->channel(0));
    emit wall.io->connectChannelFailMsg(second->channel(1), -1, QString());
    emit wall.io->videoRequestStopSuccessMsg(second->channel(2));
    const QString path = folder.filePath("a.png");
    QImage picture(192, 108, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(60 + x, 90 + y, 160 - y));
    }
    picture.save(path);
    emit wall.decode.screenshotMsg(second->channel(0), true, path);
    emit wall.decode.screenshotMsg(second->channel(3), true, path);
}

// The keys of a wall with pages both ways, and a picture of them: a row for each look.
struct KeyLooks
{
    KeyLooks();
    bool show() { return stage.open() && wall.open(device, 9) && turnPage(); }
    bool turnPage();
    bool haveNotMoved() const;
    void take(int look, int key); // as it stands on the screen
    void takeAll(int look);

    WallTest wall;
    Device* device;
    Stage stage;
    QList<QWidget*> keys;
    QList<QRect> places; // of the keys, in their parents
    QImage sheet;
};

KeyLooks::KeyLooks()
    : device(wall.addDevice(9))
    , stage(wall)
    , keys({stage.shotKey, stage.recordKey, stage.layoutKey, stage.fullKey, stage.leftPage,
          stage.rightPage, stage.liveKey, stage.playbackKey})
    , sheet(640, 440, QImage::Format_RGB32)
{
    sheet.fill(Qt::black);
}

bool KeyLooks::turnPage()
{
    wall.viewControl.changePage(ViewControl::PageUp);
    for (const QWidget* key : qAsConst(keys))
        places.append(key->geometry());
    return wall.viewControl.getPage() == 1;
}

bool KeyLooks::haveNotMoved() const
{
    for (int i = 0; i < keys.size(); ++i) {
        if (keys.at(i)->geometry() != places.at(i))
            return false;
    }
    return true;
}

void KeyLooks::take(int look, int key)
{
    const QRect place(keys.at(key)->mapTo(&stage, QPoint(0, 0)), keys.at(key)->size());
    const QImage image = stage.screen().copy(place.adjusted(-4, -4, 4, 4));
    QPainter(&sheet).drawImage(key < 6 ? 60 * key : 360 + 140 * (key - 6), 110 * look, image);
}

void KeyLooks::takeAll(int look)
{
    for (int key = 0; key < keys.size(); ++key)
        take(look, key);
}

} // namespace

void TestWallLook::languages()
{
    QTest::addColumn<int>("language");
    QTest::newRow("en") << int(SystemInfo::English);
    QTest::newRow("de") << int(SystemInfo::German);
    QTest::newRow("ja") << int(SystemInfo::Japanese);
    QTest::newRow("ru") << int(SystemInfo::Russian);
}

void TestWallLook::cardsOfAllStatesHaveRoomForTheirNames()
{
    QFETCH(int, language);
    CardColumn t;
    QVERIFY(t.stage.open());
    choose(language);
    t.stage.setTexts();
    for (const ChannelWindow* card : qAsConst(t.cards)) {
        QVERIFY(hasRoom(CardParts(*card).name));
        QCOMPARE(card->size(), QSize(240, 120));
    }
    // The widest that there can be.
    QLabel* name = CardParts(*t.card(0)).name;
    const QString word = QCoreApplication::translate("ChannelWindow", "Channel");
    QCOMPARE(name->text(), word + '1');
    name->setText(word + "256");
    QVERIFY(hasRoom(name));
    name->setText(word + '1');
    QTRY_COMPARE(t.stage.look(), QString());
    t.stage.save(shotName("cards"));
}

void TestWallLook::modeSwitchHasRoomForItsTexts()
{
    QFETCH(int, language);
    WallTest wall;
    Stage stage(wall);
    QVERIFY(stage.open());
    choose(language);
    stage.setTexts();
    // A longer text is laid out from the label up, a round of events for each layout on the way.
    for (const WidgetBtnLive* key : {stage.liveKey, stage.playbackKey}) {
        for (const QLabel* part : key->findChildren<QLabel*>())
            QTRY_VERIFY(part->width() >= part->sizeHint().width());
        QCOMPARE(key->height(), 34);
    }
}

void TestWallLook::keysKeepTheirSizeInAllLooks()
{
    KeyLooks t;
    QVERIFY(t.show());
    moveTo(t.stage.viewBox, QPoint(200, 200));
    QTRY_COMPARE(t.stage.look(), QString());
    t.takeAll(0);
    for (int i = 0; i < t.keys.size(); ++i) {
        moveTo(t.keys.at(i));
        QTRY_VERIFY(t.keys.at(i)->underMouse());
        QTRY_COMPARE(t.stage.look(), QString());
        QVERIFY(t.haveNotMoved());
        t.take(1, i);
    }
    moveTo(t.stage.viewBox, QPoint(200, 200));
    for (int i = 0; i < t.keys.size(); ++i) {
        t.keys.at(i)->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(t.keys.at(i)->hasFocus());
        QTRY_COMPARE(t.stage.look(), QString());
        QVERIFY(t.haveNotMoved());
        t.take(2, i);
    }
    t.stage.setFocus();
    click(t.stage.tile(0));
    click(t.stage.recordKey);
    click(t.stage.layoutKey);
    t.stage.fullKey->setFull(true);
    press(t.stage.shotKey);
    moveTo(t.stage.viewBox, QPoint(200, 200));
    QTRY_COMPARE(t.stage.look(), QString());
    QVERIFY(t.haveNotMoved());
    t.takeAll(3);
    t.stage.save("keys-on-the-wall");
    release(t.stage.shotKey);
    Stage::saveShot(t.sheet.scaled(t.sheet.size() * 2), "keys");
}

void TestWallLook::menusStandOnTheWall()
{
    QFETCH(int, language);
    WallTest wall;
    Stage stage(wall);
    QVERIFY(stage.open());
    choose(language);
    stage.setTexts();
    for (const bool isLive : {true, false}) {
        click(isLive ? stage.liveKey : stage.playbackKey);
        click(stage.layoutKey);
        QTRY_COMPARE(stage.viewBox->height(), isLive ? 590 : 510);
        QTRY_COMPARE(stage.look(), QString());
        QVERIFY(stage.viewBox->geometry().contains(stage.menu->geometry()));
        stage.save(shotName(isLive ? "menu-live" : "menu-playback"));
        click(stage.layoutKey);
    }
}

ORVA_TEST(TestWallLook)
#include "tst_walllook.moc"

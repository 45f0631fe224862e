// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/systeminfo.h"
#include "cardtest.h"
#include "hands.h"
#include "picture.h"
#include "testmain.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <utility>

// The card of a channel: its name, its frame, and how it follows what becomes of the channel.
class TestChannelWindow final : public QObject
{
    Q_OBJECT

private slots:
    void isAPictureWithTheNameOverIt();
    void nameIsChannelAndItsNumberFromOne();
    void nameFollowsTheLanguage_data();
    void nameFollowsTheLanguage();
    void frameFollowsTheSelection_data();
    void frameFollowsTheSelection();
    void selectingAChannelOfAnotherDeviceTurnsTheFrameFromBlueToPale();
    void cardOfTheSelectedChannelStartsWithAThinFrame();
    void thinFrameIsOnlyOfTheSetUp();
    void cardOfADeviceIsMarkedAtSetUp();
    void nameStartsWhite();
    void successColoursTheNameGreenWhereItPlays_data();
    void successColoursTheNameGreenWhereItPlays();
    void failedStartColoursTheNameRed();
    void redStaysUntilTheNextSuccessOrStop_data();
    void redStaysUntilTheNextSuccessOrStop();
    void stopGivesAWhiteNameOnClearGround_data();
    void stopGivesAWhiteNameOnClearGround();
    void newsOfAnotherChannelChangeNothing();
    void cardOfARunningChannelStartsGreen();
    void openingAndClosingAChannelColoursItsName();
    void cardCanBeGivenAnotherChannel();
    void cardWithoutAChannelStandsEverything();
    void deviceThatLeavesIsLetGo();
    void frameAndNameArePaintedInTheirColours();
};

namespace {

const QColor idle(0xff, 0xff, 0xff);
const QColor running(0x00, 0x80, 0x00);
const QColor failed(0xff, 0x00, 0x00);
const QColor shade(0, 0, 0, 76); // 0.3 of 255

// The colour of the frame all around; invalid where it is not of one colour and this width.
QColor frameOf(const QImage& card, const QRect& frame, int width)
{
    const QRgb colour = card.pixel(frame.topLeft());
    const QRect inner = frame.adjusted(width, width, -width, -width);
    const QRegion edge = QRegion(frame) - inner;
    for (const QRect& part : edge) {
        if (!differences(card, part, colour).isEmpty())
            return {};
    }
    return card.pixel(inner.topLeft()) == colour ? QColor() : QColor(colour);
}

QColor frameOf(CardTest& t, int width = 2)
{
    return frameOf(t.painted(), t.parts().frame->geometry(), width);
}

using News = void (*)(CardTest& t, Channel* channel);

const News liveStarts = [](CardTest& t, Channel* channel) {
    emit t.wall.io->videoRequestSuccessMsg(channel);
};
const News replayStarts = [](CardTest& t, Channel* channel) {
    emit t.wall.io->startReplaySuccessMsg(channel);
};
const News startFails = [](CardTest& t, Channel* channel) {
    emit t.wall.io->connectChannelFailMsg(channel, -20016, QStringLiteral("no"));
};
const News liveStops = [](CardTest& t, Channel* channel) {
    emit t.wall.io->videoRequestStopSuccessMsg(channel);
};
const News replayStops = [](CardTest& t, Channel* channel) {
    emit t.wall.io->stopReplaySuccessMsg(channel);
};

} // namespace

Q_DECLARE_METATYPE(News)

void TestChannelWindow::isAPictureWithTheNameOverIt()
{
    CardTest t;
    const CardParts parts = t.parts();
    QCOMPARE(t.card.size(), QSize(240, 120));
    QCOMPARE(parts.frame->geometry(), QRect(32, 0, 196, 112));
    QCOMPARE(parts.image->geometry(), QRect(2, 2, 192, 108)); // inside a frame of 2
    QCOMPARE(parts.strip->geometry(), QRect(2, 88, 192, 22)); // along its bottom
    QCOMPARE(parts.name->geometry(), parts.strip->rect());
    QCOMPARE(parts.name->indent(), 20);
    QCOMPARE(parts.dot->geometry(), QRect(8, 8, 7, 7));
    const QList<QObject*> order = parts.frame->children();
    QVERIFY(order.indexOf(parts.image) < order.indexOf(parts.strip));
    QCOMPARE(parts.name->textFormat(), Qt::PlainText);
}

void TestChannelWindow::nameIsChannelAndItsNumberFromOne()
{
    CardTest t;
    QCOMPARE(t.parts().name->text(), QString("Channel1"));
    t.card.setChannel(t.device, t.channel(1));
    QCOMPARE(t.parts().name->text(), QString("Channel2"));
}

void TestChannelWindow::nameFollowsTheLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("name");
    QTest::newRow("German") << int(SystemInfo::German) << "Kanal1";
    QTest::newRow("Japanese") << int(SystemInfo::Japanese) << QString::fromUtf8("チャンネル1");
    QTest::newRow("Russian") << int(SystemInfo::Russian) << QString::fromUtf8("Канал1");
}

void TestChannelWindow::nameFollowsTheLanguage()
{
    QFETCH(int, language);
    QFETCH(QString, name);
    CardTest t;
    QVERIFY(t.show());
    SystemInfo* system = SystemInfo::instance();
    system->setLanguage(static_cast<SystemInfo::SYSTEM_TYPE_LAGNUAGE>(language));
    QTRY_COMPARE(t.parts().name->text(), name);
    system->setLanguage(SystemInfo::English);
    QTRY_COMPARE(t.parts().name->text(), QString("Channel1"));
}

void TestChannelWindow::frameFollowsTheSelection_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("channel");
    QTest::addColumn<QColor>("frame");
    const QColor pale("#eee");
    const QColor grey("#ccc");
    const QColor blue("#6495ED");
    QTest::newRow("nothing") << "none"
                             << "none" << pale;
    QTest::newRow("another device") << "other"
                                    << "none" << pale;
    QTest::newRow("another device's channel") << "other"
                                              << "others" << pale;
    QTest::newRow("its device") << "own"
                                << "none" << grey;
    QTest::newRow("another channel of its device") << "own"
                                                   << "next" << grey;
    QTest::newRow("its channel") << "own"
                                 << "own" << blue;
}

void TestChannelWindow::frameFollowsTheSelection()
{
    QFETCH(QString, device);
    QFETCH(QString, channel);
    QFETCH(QColor, frame);
    CardTest t;
    const QMap<QString, Device*> devices{{"own", t.device}, {"other", t.other}};
    const QMap<QString, Channel*> channels{
        {"own", t.channel()}, {"next", t.channel(1)}, {"others", t.other->channel(0)}};
    Dev* dev = Dev::instance();
    // Every signal is sent, whatever was selected before.
    for (const bool isSelected : {false, true}) {
        dev->selectDevice(isSelected ? nullptr : t.device);
        dev->selectChannel(isSelected ? nullptr : t.channel(1));
        dev->selectDevice(devices.value(device));
        dev->selectChannel(channels.value(channel));
        QCOMPARE(frameOf(t), frame);
        QCOMPARE(t.parts().frame->styleSheet(),
            QStringLiteral("border:2px solid ")
                + (frame == QColor("#6495ED")     ? "#6495ED"
                        : frame == QColor("#ccc") ? "#ccc"
                                                  : "#eee"));
    }
}

void TestChannelWindow::selectingAChannelOfAnotherDeviceTurnsTheFrameFromBlueToPale()
{
    CardTest t;
    Dev* dev = Dev::instance();
    dev->selectDevice(t.device);
    dev->selectChannel(t.channel());
    QCOMPARE(frameOf(t), QColor("#6495ED"));
    dev->selectDevice(t.other);
    dev->selectChannel(t.other->channel(0));
    QCOMPARE(frameOf(t), QColor("#eee"));
}

void TestChannelWindow::cardOfTheSelectedChannelStartsWithAThinFrame()
{
    CardTest t;
    Dev::instance()->selectDevice(t.device);
    Dev::instance()->selectChannel(t.channel());
    t.card.setChannel(t.device, t.channel());
    QCOMPARE(t.parts().frame->styleSheet(), QString("border:1px solid #6495ED"));
    const QImage card = t.painted();
    const QPoint corner = t.parts().frame->pos();
    QCOMPARE(QColor(card.pixel(corner)), QColor("#6495ED"));
    QVERIFY(QColor(card.pixel(corner + QPoint(1, 1))) != QColor("#6495ED"));
}

void TestChannelWindow::thinFrameIsOnlyOfTheSetUp()
{
    CardTest t;
    Dev* dev = Dev::instance();
    dev->selectDevice(t.device);
    dev->selectChannel(t.channel());
    t.card.setChannel(t.device, t.channel());
    dev->selectChannel(t.channel(1));
    QCOMPARE(frameOf(t), QColor("#ccc"));
    dev->selectChannel(t.channel());
    QCOMPARE(frameOf(t), QColor("#6495ED"));
}

// By design: it is taken for selected, until the selection changes.
void TestChannelWindow::cardOfADeviceIsMarkedAtSetUp()
{
    CardTest t;
    QCOMPARE(frameOf(t), QColor("#ccc"));
    Dev::instance()->selectDevice(t.other);
    QCOMPARE(frameOf(t), QColor("#eee"));
    t.card.setChannel(t.device, t.channel());
    QCOMPARE(frameOf(t), QColor("#ccc"));
}

void TestChannelWindow::nameStartsWhite()
{
    const CardTest t;
    QCOMPARE(t.nameColour(), idle);
    QCOMPARE(t.nameGround(), shade);
    QCOMPARE(t.parts().name->font().pixelSize(), 11);
    QVERIFY(t.parts().name->styleSheet().contains(QLatin1String("border-image:none")));
}

void TestChannelWindow::successColoursTheNameGreenWhereItPlays_data()
{
    QTest::addColumn<News>("news");
    QTest::addColumn<bool>("isLive");
    QTest::addColumn<bool>("playsLive");
    QTest::addColumn<bool>("playsBack");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("live") << liveStarts << true << true << false << running;
    QTest::newRow("playback") << replayStarts << false << false << true << running;
    QTest::newRow("live, heard of in playback") << liveStarts << false << true << false << idle;
    QTest::newRow("playback, heard of in live") << replayStarts << true << false << true << idle;
    QTest::newRow("stopped meanwhile") << liveStarts << true << false << false << idle;
}

void TestChannelWindow::successColoursTheNameGreenWhereItPlays()
{
    QFETCH(News, news);
    QFETCH(bool, isLive);
    QFETCH(bool, playsLive);
    QFETCH(bool, playsBack);
    QFETCH(QColor, colour);
    CardTest t;
    t.wall.viewControl.changeMod(isLive);
    startFails(t, t.channel());
    t.channel()->mode(true).playing = playsLive;
    t.channel()->mode(false).playing = playsBack;
    news(t, t.channel());
    QCOMPARE(t.nameColour(), colour);
    QCOMPARE(t.nameGround(), shade);
    QCOMPARE(t.parts().name->font().pixelSize(), 11);
}

void TestChannelWindow::failedStartColoursTheNameRed()
{
    CardTest t;
    startFails(t, t.channel());
    QCOMPARE(t.nameColour(), failed);
    QCOMPARE(t.nameGround(), shade);
    QCOMPARE(t.parts().name->font().pixelSize(), 11);
}

void TestChannelWindow::redStaysUntilTheNextSuccessOrStop_data()
{
    QTest::addColumn<News>("news");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("success") << liveStarts << running;
    QTest::newRow("stop") << liveStops << idle;
}

void TestChannelWindow::redStaysUntilTheNextSuccessOrStop()
{
    QFETCH(News, news);
    QFETCH(QColor, colour);
    CardTest t;
    startFails(t, t.channel());
    Dev::instance()->selectDevice(t.device);
    Dev::instance()->selectChannel(t.channel());
    Dev::instance()->selectChannel(nullptr);
    t.wall.viewControl.changeMod(false);
    t.wall.viewControl.changeMod(true);
    emit t.wall.io->waitingStreamMsg(t.channel());
    emit t.wall.io->connectDevFailMsg(t.channel(), -1, QString());
    emit t.wall.io->connectChannelSuccessMsg(t.channel());
    QCOMPARE(t.nameColour(), failed);
    t.channel()->mode(true).playing = true;
    news(t, t.channel());
    QCOMPARE(t.nameColour(), colour);
}

void TestChannelWindow::stopGivesAWhiteNameOnClearGround_data()
{
    QTest::addColumn<News>("news");
    QTest::newRow("live") << liveStops;
    QTest::newRow("playback") << replayStops;
}

void TestChannelWindow::stopGivesAWhiteNameOnClearGround()
{
    QFETCH(News, news);
    CardTest t;
    t.channel()->mode(true).playing = true;
    liveStarts(t, t.channel());
    news(t, t.channel());
    QCOMPARE(t.nameColour(), idle);
    QCOMPARE(t.nameGround().alpha(), 0);
    QCOMPARE(t.parts().name->font().pixelSize(), 11);
}

void TestChannelWindow::newsOfAnotherChannelChangeNothing()
{
    CardTest t;
    for (Channel* other : {t.channel(1), t.other->channel(0)}) {
        other->mode(true).playing = true;
        startFails(t, other);
        liveStarts(t, other);
        QCOMPARE(t.nameColour(), idle);
        liveStops(t, other);
        QCOMPARE(t.nameGround(), shade);
        startFails(t, t.channel());
        liveStarts(t, other);
        replayStarts(t, other);
        liveStops(t, other);
        replayStops(t, other);
        QCOMPARE(t.nameColour(), failed);
        liveStops(t, t.channel());
        liveStarts(t, t.channel());
    }
}

void TestChannelWindow::cardOfARunningChannelStartsGreen()
{
    CardTest t;
    t.channel(1)->mode(true).playing = true;
    t.card.setChannel(t.device, t.channel(1));
    QCOMPARE(t.nameColour(), running);
}

void TestChannelWindow::openingAndClosingAChannelColoursItsName()
{
    CardTest t;
    QVERIFY(t.wall.open(t.device, 1));
    QCOMPARE(t.nameColour(), running);
    t.wall.viewControl.closeChannel(t.channel());
    QVERIFY(t.wall.settle());
    QCOMPARE(t.nameColour(), idle);
    QCOMPARE(t.nameGround().alpha(), 0);
}

void TestChannelWindow::cardCanBeGivenAnotherChannel()
{
    CardTest t;
    startFails(t, t.channel());
    t.card.setChannel(t.other, t.other->channel(0));
    QCOMPARE(t.nameColour(), idle);
    QCOMPARE(t.parts().name->text(), QString("Channel1"));
    startFails(t, t.channel());
    QCOMPARE(t.nameColour(), idle);
    Dev::instance()->selectDevice(t.device);
    QCOMPARE(frameOf(t), QColor("#eee"));
}

void TestChannelWindow::cardWithoutAChannelStandsEverything()
{
    CardTest t;
    t.card.setChannel(nullptr, nullptr);
    QVERIFY(t.show());
    QSignalSpy menus(&t.wall.viewControl, &ViewControl::openedSubWindowMenuMsg);
    click(&t.card);
    click(&t.card, Qt::RightButton);
    doubleClick(&t.card);
    for (const News news : {liveStarts, replayStarts, startFails, liveStops, replayStops})
        news(t, t.channel());
    Dev::instance()->selectDevice(t.device);
    Dev::instance()->selectChannel(t.channel());
    Dev::instance()->selectChannel(nullptr);
    QCOMPARE(menus.count(), 0);
    QCOMPARE(t.nameColour(), idle);
    QCOMPARE(frameOf(t), QColor("#eee"));
    const Brackets brackets; // a language that comes then
}

void TestChannelWindow::deviceThatLeavesIsLetGo()
{
    CardTest t;
    QVERIFY(t.show());
    Dev::instance()->selectDevice(t.device);
    Dev::instance()->selectChannel(t.channel());
    Channel* gone = t.channel();
    Dev::instance()->removeDevice(t.device);
    QVERIFY(t.wall.settle()); // it is destroyed
    QSignalSpy menus(&t.wall.viewControl, &ViewControl::openedSubWindowMenuMsg);
    QSignalSpy selected(Dev::instance(), &Dev::selectChannelMsg);
    click(&t.card);
    click(&t.card, Qt::RightButton);
    doubleClick(&t.card);
    {
        const Brackets brackets;
        emit t.wall.decode.screenshotMsg(gone, true, QString());
        emit Dev::instance()->selectChannelMsg(nullptr);
        emit Dev::instance()->selectDevMsg(nullptr);
    }
    QCOMPARE(menus.count(), 0);
    QCOMPARE(selected.count(), 1); // the one of this test
    QCOMPARE(frameOf(t), QColor("#eee"));
}

void TestChannelWindow::frameAndNameArePaintedInTheirColours()
{
    CardTest t;
    t.channel()->mode(true).playing = true;
    liveStarts(t, t.channel());
    const QRect strip(t.parts().strip->mapTo(&t.card, QPoint(0, 0)), t.parts().strip->size());
    QImage card = t.painted();
    // The strip is opaque, the label over it darkens it.
    QCOMPARE(
        differences(card, QRect(strip.right() - 60, strip.y(), 60, 22), qRgb(7, 9, 13)), QString());
    const QPoint dot = strip.topLeft() + t.parts().dot->geometry().center();
    QCOMPARE(QColor(card.pixel(dot)), QColor("#35C26F"));
    startFails(t, t.channel());
    QCOMPARE(QColor(t.painted().pixel(dot)), QColor("#FF5A63"));
    liveStops(t, t.channel());
    card = t.painted();
    QCOMPARE(QColor(card.pixel(dot)), QColor("#9AA5B3"));
    QCOMPARE(differences(card, QRect(strip.right() - 60, strip.y(), 60, 22), qRgb(10, 13, 18)),
        QString());
}

ORVA_TEST(TestChannelWindow)
#include "tst_channelwindow.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "listtest.h"
#include "testmain.h"

#include <QTest>

// How the title of a device follows what becomes of the device and of the selection.
class TestTitleColours final : public QObject
{
    Q_OBJECT

private slots:
    void titleStartsIdle_data();
    void titleStartsIdle();
    void titleOfARunningDeviceStartsGreen_data();
    void titleOfARunningDeviceStartsGreen();
    void severalChannelsColourTheirTitle_data();
    void severalChannelsColourTheirTitle();
    void onlyChannelColoursItsTitle_data();
    void onlyChannelColoursItsTitle();
    void newsOfAnotherDeviceColourNothing_data();
    void newsOfAnotherDeviceColourNothing();
    void deviceStaysGreenUntilItsLastStreamEnds();
    void deviceInPlaybackIsIdleOnceItsLastReplayEnds();
    void disconnectedDeviceIsIdle_data();
    void disconnectedDeviceIsIdle();
    void modeDecidesWhatCountsAsPlaying_data();
    void modeDecidesWhatCountsAsPlaying();

    void openingAndClosingColourTheTitle_data();
    void openingAndClosingColourTheTitle();
    void deviceThatDoesNotConnectIsRed_data();
    void deviceThatDoesNotConnectIsRed();

    void selectedDeviceHasItsGround();
    void channelOfTheDeviceChangesTheGround();
    void blockOfTheSelectedDeviceStartsWithItsGround();
    void groundIsPaintedBehindTheWholeTitle();
};

namespace {

const QColor idle(0x4e, 0x52, 0x5a);
const QColor running(0x00, 0x80, 0x00);
const QColor failed(0xff, 0x00, 0x00);
const QColor ofDevice(200, 220, 255);
const QColor ofChannel(0xee, 0xee, 0xee);

using News = void (*)(const BlockTest& t, Channel* channel);

struct NewsRow
{
    const char* name;
    News tell;
};

constexpr NewsRow deviceConnects{"device connects",
    [](const BlockTest& t, Channel* channel) { emit t.wall.io->connectDevSuccessMsg(channel); }};
constexpr NewsRow deviceFails{"device fails", [](const BlockTest& t, Channel* channel) {
                                  emit t.wall.io->connectDevFailMsg(channel, -13, QString());
                              }};
constexpr NewsRow channelFails{"channel fails", [](const BlockTest& t, Channel* channel) {
                                   emit t.wall.io->connectChannelFailMsg(channel, -13, QString());
                               }};
constexpr NewsRow liveStarts{"live starts",
    [](const BlockTest& t, Channel* channel) { emit t.wall.io->videoRequestSuccessMsg(channel); }};
constexpr NewsRow replayStarts{"replay starts",
    [](const BlockTest& t, Channel* channel) { emit t.wall.io->startReplaySuccessMsg(channel); }};
constexpr NewsRow liveStops{"live stops", [](const BlockTest& t, Channel* channel) {
                                emit t.wall.io->videoRequestStopSuccessMsg(channel);
                            }};
constexpr NewsRow replayStops{"replay stops",
    [](const BlockTest& t, Channel* channel) { emit t.wall.io->stopReplaySuccessMsg(channel); }};
constexpr NewsRow streamFallsSilent{"stream falls silent",
    [](const BlockTest&, Channel* channel) { emit Decode::instance()->streamSilentMsg(channel); }};
constexpr NewsRow streamIsBack{"stream is back",
    [](const BlockTest&, Channel* channel) { emit Decode::instance()->streamBackMsg(channel); }};

constexpr NewsRow allNews[] = {deviceConnects, deviceFails, channelFails, liveStarts, replayStarts,
    liveStops, replayStops, streamFallsSilent, streamIsBack};

News newsOf(const QString& name)
{
    for (const NewsRow& row : allNews) {
        if (name == QLatin1String(row.name))
            return row.tell;
    }
    return nullptr;
}

// The dot goes with the name.
bool isColoured(const BlockTest& t, const QColor& colour)
{
    const QString dot = colour == idle ? QStringLiteral("idle")
        : colour == running            ? QStringLiteral("run")
                                       : QStringLiteral("fail");
    return t.parts().nameColour() == colour && t.parts().dotState() == dot;
}

void addNewsColumns()
{
    QTest::addColumn<QString>("news");
    QTest::addColumn<bool>("isPlaying"); // when the news come
    QTest::addColumn<QColor>("before");
    QTest::addColumn<QColor>("after");
}

void addNews(const NewsRow& news, bool isPlaying, const QColor& before, const QColor& after)
{
    QTest::addRow(
        "%s, %s, %s", news.name, isPlaying ? "playing" : "not playing", qPrintable(before.name()))
        << QString::fromLatin1(news.name) << isPlaying << before << after;
}

void colour(const BlockTest& t, const QColor& wanted)
{
    t.markPlaying(wanted == running);
    if (wanted == running)
        emit t.wall.io->videoRequestSuccessMsg(t.channel());
    else if (wanted == failed)
        emit t.wall.io->connectDevFailMsg(t.channel(), -13, QString());
}

// For a device of so many channels, of which none plays but the first.
void tellNews(int channels)
{
    QFETCH(QString, news);
    QFETCH(bool, isPlaying);
    QFETCH(QColor, before);
    QFETCH(QColor, after);
    const BlockTest t(channels);
    colour(t, before);
    QVERIFY(isColoured(t, before));
    t.markPlaying(isPlaying);
    newsOf(news)(t, t.channel());
    QVERIFY2(isColoured(t, after), qPrintable(t.parts().nameColour().name()));
}

} // namespace

void TestTitleColours::titleStartsIdle_data()
{
    QTest::addColumn<int>("channels");
    QTest::newRow("only channel") << 1;
    QTest::newRow("several") << 2;
}

void TestTitleColours::titleStartsIdle()
{
    QFETCH(int, channels);
    const BlockTest t(channels);
    QVERIFY(isColoured(t, idle));
    QCOMPARE(t.parts().name->styleSheet(), QString("color: #4e525a;font-size:11px;"));
}

void TestTitleColours::titleOfARunningDeviceStartsGreen_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("playing");
    QTest::newRow("only channel") << 1 << 0;
    QTest::newRow("first") << 3 << 0;
    QTest::newRow("last") << 3 << 2;
}

void TestTitleColours::titleOfARunningDeviceStartsGreen()
{
    QFETCH(int, channels);
    QFETCH(int, playing);
    const BlockTest t(channels);
    t.markPlaying(true, true, playing);
    MenuListDev late;
    late.setDevice(t.device);
    QCOMPARE(BlockParts(late).nameColour(), running);
    QCOMPARE(BlockParts(late).dotState(), QString("run"));
}

void TestTitleColours::severalChannelsColourTheirTitle_data()
{
    addNewsColumns();
    for (const QColor& before : {idle, running, failed}) {
        addNews(deviceConnects, false, before, running);
        addNews(liveStarts, true, before, running);
        addNews(replayStarts, true, before, running);
        addNews(deviceFails, false, before, failed);
        addNews(channelFails, false, before, before); // the others may well run
        addNews(liveStops, false, before, idle);
        addNews(streamFallsSilent, true, before, failed);
        addNews(streamIsBack, true, before, running);
    }
}

void TestTitleColours::severalChannelsColourTheirTitle()
{
    tellNews(2);
}

void TestTitleColours::onlyChannelColoursItsTitle_data()
{
    addNewsColumns();
    for (const QColor& before : {idle, running, failed}) {
        addNews(deviceConnects, false, before, before); // its channel is not yet
        addNews(liveStarts, true, before, running);
        addNews(liveStarts, false, before, idle);
        addNews(replayStarts, false, before, idle); // in live view
        addNews(deviceFails, false, before, failed);
        addNews(channelFails, false, before, failed);
        addNews(liveStops, false, before, idle);
        addNews(replayStops, false, before, idle);
        addNews(streamFallsSilent, true, before, failed);
        addNews(streamIsBack, true, before, running);
    }
}

void TestTitleColours::onlyChannelColoursItsTitle()
{
    tellNews(1);
}

void TestTitleColours::newsOfAnotherDeviceColourNothing_data()
{
    QTest::addColumn<QString>("news");
    QTest::addColumn<int>("channels");
    for (const NewsRow& row : allNews) {
        for (const int channels : {1, 2})
            QTest::addRow("%s, %d", row.name, channels)
                << QString::fromLatin1(row.name) << channels;
    }
}

void TestTitleColours::newsOfAnotherDeviceColourNothing()
{
    QFETCH(QString, news);
    QFETCH(int, channels);
    const BlockTest t(channels);
    for (const QColor& before : {idle, running, failed}) {
        colour(t, before);
        newsOf(news)(t, t.other->channel(0));
        QVERIFY(isColoured(t, before));
    }
}

void TestTitleColours::deviceStaysGreenUntilItsLastStreamEnds()
{
    BlockTest t(3);
    QVERIFY(t.wall.open(t.device, 3));
    QVERIFY(isColoured(t, running));
    for (const int number : {1, 0, 2}) {
        QVERIFY(isColoured(t, running));
        t.wall.viewControl.closeChannel(t.channel(number));
        QVERIFY(t.wall.settle());
    }
    QVERIFY(isColoured(t, idle));
}

void TestTitleColours::deviceInPlaybackIsIdleOnceItsLastReplayEnds()
{
    BlockTest t(2);
    t.wall.viewControl.changeMod(false);
    for (const int number : {0, 1}) {
        t.markPlaying(true, false, number);
        emit t.wall.io->startReplaySuccessMsg(t.channel(number));
    }
    QVERIFY(isColoured(t, running));
    t.markPlaying(false, false, 0);
    emit t.wall.io->stopReplaySuccessMsg(t.channel(0));
    QVERIFY(isColoured(t, running));
    t.markPlaying(false, false, 1);
    emit t.wall.io->stopReplaySuccessMsg(t.channel(1));
    QVERIFY(isColoured(t, idle));
}

void TestTitleColours::disconnectedDeviceIsIdle_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<bool>("isLive");
    for (const int channels : {1, 3}) {
        QTest::addRow("live, %d", channels) << channels << true;
        QTest::addRow("playback, %d", channels) << channels << false;
    }
}

void TestTitleColours::disconnectedDeviceIsIdle()
{
    QFETCH(int, channels);
    QFETCH(bool, isLive);
    BlockTest t(channels);
    t.wall.viewControl.changeMod(isLive);
    for (int i = 0; i < channels; ++i)
        t.markPlaying(true, isLive, i);
    emit t.wall.io->videoRequestSuccessMsg(t.channel());
    QVERIFY(isColoured(t, running));
    t.wall.viewControl.closeDevice(t.device);
    QVERIFY(isColoured(t, idle));
}

void TestTitleColours::modeDecidesWhatCountsAsPlaying_data()
{
    QTest::addColumn<int>("channels");
    QTest::newRow("only channel") << 1;
    QTest::newRow("several") << 3;
}

void TestTitleColours::modeDecidesWhatCountsAsPlaying()
{
    QFETCH(int, channels);
    BlockTest t(channels);
    t.markPlaying(true, false, channels - 1);
    t.wall.viewControl.changeMod(false);
    QVERIFY(isColoured(t, running));
    t.wall.viewControl.changeMod(true);
    QVERIFY(isColoured(t, idle));
}

void TestTitleColours::openingAndClosingColourTheTitle_data()
{
    QTest::addColumn<int>("channels");
    QTest::newRow("only channel") << 1;
    QTest::newRow("several") << 2;
}

void TestTitleColours::openingAndClosingColourTheTitle()
{
    QFETCH(int, channels);
    BlockTest t(channels, false);
    t.wall.viewControl.connectChannel(t.channel(), false, true);
    QTRY_VERIFY(t.channel()->mode(true).playing);
    QVERIFY(t.wall.settle());
    QVERIFY(isColoured(t, running));
    t.wall.viewControl.closeChannel(t.channel());
    QVERIFY(t.wall.settle());
    QVERIFY(isColoured(t, idle));
}

void TestTitleColours::deviceThatDoesNotConnectIsRed_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<QString>("uid");
    QTest::newRow("only channel") << 1 << QStringLiteral("NOBODY00000000000000");
    QTest::newRow("several") << 3 << QStringLiteral("NOBODY00000000000001");
    QTest::newRow("short UID") << 1 << QStringLiteral("X");
    QTest::newRow("long UID") << 2 << QString(300, QLatin1Char('X'));
    QTest::newRow("no UID") << 1 << QString();
}

void TestTitleColours::deviceThatDoesNotConnectIsRed()
{
    QFETCH(int, channels);
    QFETCH(QString, uid);
    BlockTest t(channels, false);
    t.device->setUid(uid);
    t.wall.link.always(LinkFn::IOTC_Connect_ByUID_ParallelNB).reports({ConnectStep::failed(-13)});
    t.wall.viewControl.connectChannel(t.channel(), false, true);
    QTRY_VERIFY(isColoured(t, failed));
    QVERIFY(!t.channel()->mode(true).open);
}

void TestTitleColours::selectedDeviceHasItsGround()
{
    const BlockTest t(2);
    QVERIFY(!t.parts().ground().isValid());
    Dev::instance()->selectDevice(t.device);
    QCOMPARE(t.parts().ground(), ofDevice);
    Dev::instance()->selectDevice(t.other);
    QVERIFY(!t.parts().ground().isValid());
    Dev::instance()->selectDevice(t.device);
    Dev::instance()->selectDevice(nullptr);
    QVERIFY(!t.parts().ground().isValid());
}

void TestTitleColours::channelOfTheDeviceChangesTheGround()
{
    const BlockTest t(2);
    Dev::instance()->selectDevice(t.device);
    Dev::instance()->selectChannel(t.channel(1));
    QCOMPARE(t.parts().ground(), ofChannel);
    Dev::instance()->selectChannel(nullptr);
    QCOMPARE(t.parts().ground(), ofDevice);
    Dev::instance()->selectChannel(t.channel(0));
    Dev::instance()->selectDevice(t.other);
    Dev::instance()->selectChannel(t.other->channel(0));
    QVERIFY(!t.parts().ground().isValid());
}

void TestTitleColours::blockOfTheSelectedDeviceStartsWithItsGround()
{
    const BlockTest t(2);
    Dev::instance()->selectDevice(t.device);
    MenuListDev late;
    late.setDevice(t.device);
    QCOMPARE(BlockParts(late).ground(), ofDevice);
    MenuListDev another;
    another.setDevice(t.other);
    QVERIFY(!BlockParts(another).ground().isValid());
}

void TestTitleColours::groundIsPaintedBehindTheWholeTitle()
{
    BlockTest t(2);
    t.device->setNickName(QStringLiteral("A"));
    t.block.setDevice(t.device);
    QVERIFY(t.show());
    Dev::instance()->selectDevice(t.device);
    const auto paintedAt = [&t](int x) {
        const QImage image = t.block.grab().toImage();
        return QColor(image.pixel(x, 12));
    };
    QTRY_COMPARE(paintedAt(2), ofDevice);
    QCOMPARE(paintedAt(230), ofDevice);
    Dev::instance()->selectChannel(t.channel());
    QTRY_COMPARE(paintedAt(230), ofChannel);
}

ORVA_TEST(TestTitleColours)
#include "tst_titlecolours.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "keywindow.h"
#include "playback/playbtn.h"
#include "replaywall.h"
#include "testmain.h"

#include <QTest>

// The key that plays and stops the selected channel.
class TestPlayBtn final : public QObject
{
    Q_OBJECT

private slots:
    void clickWithNothingSelectedDoesNothing();
    void pressPlaysAndAnotherOneStopsInLiveView();
    void pressPlaysAndAnotherOneStopsInPlayback();
    void pressActsOnTheModeOfTheWall();
    void anotherMouseButtonDoesNothing();
    void keyboardPlaysAndStops();
    void pictureFollowsTheSelection();
    void pictureFollowsTheMode();
    void pictureFollowsItsChannelOnly_data();
    void pictureFollowsItsChannelOnly();
    void keyThatComesLateShowsWhatPlays();
    void mouseOverTheKeyLightsItsPicture();
    void deviceThatLeavesLeavesTheKeyFree();
    void dayWithoutRecordingsFreesTheKey();
    void deviceThatFailsFreesTheKey();
    void hintNamesWhatAPressDoes();
};

namespace {

struct PlayTest
{
    PlayTest()
        : device(wall.addDevice(2))
    {
        replay.wall.changeMod(true);
    }
    Channel* channel(int number = 0) const { return device->channel(number); }
    static void select(Channel* channel)
    {
        Dev::instance()->selectDevice(channel != nullptr ? channel->device() : nullptr);
        Dev::instance()->selectChannel(channel);
    }
    bool shows(const char* picture) const { return ::shows(key.key, QLatin1String(picture)); }
    bool showsPlay() const { return shows("play") || shows("play-hover"); }
    bool showsStop() const { return shows("stop") || shows("stop-hover"); }
    bool settle() const { return wall.settle(); }

    ReplayWall replay;
    WallTest& wall = replay.t;
    Device* device;
    KeyWindow<PlayBtn> key;
};

} // namespace

void TestPlayBtn::clickWithNothingSelectedDoesNothing()
{
    PlayTest t;
    QVERIFY(t.key.show());
    t.wall.takeSent();
    click(t.key.key);
    type(t.key.key, Qt::Key_Tab);
    type(t.key.key, Qt::Key_Space);
    QVERIFY(t.settle());
    QVERIFY(t.showsPlay());
    QCOMPARE(t.wall.takeSent(), QList<int>());
    QCOMPARE(openOnes(true), QString());
}

void TestPlayBtn::pressPlaysAndAnotherOneStopsInLiveView()
{
    PlayTest t;
    QVERIFY(t.key.show());
    PlayTest::select(t.channel(1));
    QVERIFY(t.showsPlay());
    press(t.key.key);
    QCOMPARE(openOnes(true), QString("0.1")); // it does not wait for the release
    QVERIFY(t.showsStop());
    release(t.key.key);
    QVERIFY(t.settle());
    QCOMPARE(playingOnes(true), QString("0.1"));
    QVERIFY(t.showsStop());
    click(t.key.key);
    QVERIFY(t.showsPlay());
    QCOMPARE(openOnes(true), QString());
    QVERIFY(t.settle());
    QCOMPARE(playingOnes(true), QString());
    QVERIFY(t.showsPlay());
}

void TestPlayBtn::pressPlaysAndAnotherOneStopsInPlayback()
{
    PlayTest t;
    t.wall.viewControl.changeMod(false);
    t.replay.record(t.device, {t.replay.block(3600)});
    QVERIFY(t.key.show());
    PlayTest::select(t.channel());
    click(t.key.key);
    QCOMPARE(openOnes(false), QString("0.0"));
    QCOMPARE(openOnes(true), QString());
    QVERIFY(t.settle());
    QVERIFY(t.replay.start(t.channel()));
    QVERIFY(t.showsStop());
    click(t.key.key);
    QCOMPARE(openOnes(false), QString());
    QVERIFY(t.settle());
    QCOMPARE(playingOnes(false), QString());
    QVERIFY(t.showsPlay());
}

void TestPlayBtn::pressActsOnTheModeOfTheWall()
{
    PlayTest t;
    QVERIFY(t.key.show());
    PlayTest::select(t.channel());
    click(t.key.key);
    QVERIFY(t.settle());
    t.wall.viewControl.changeMod(false);
    QVERIFY(t.settle());
    QVERIFY(t.showsPlay());
    click(t.key.key);
    QVERIFY(t.channel()->mode(false).open);
}

void TestPlayBtn::anotherMouseButtonDoesNothing()
{
    PlayTest t;
    QVERIFY(t.key.show());
    PlayTest::select(t.channel());
    click(t.key.key, Qt::RightButton);
    click(t.key.key, Qt::MiddleButton);
    QVERIFY(t.showsPlay());
    QCOMPARE(openOnes(true), QString());
}

void TestPlayBtn::keyboardPlaysAndStops()
{
    PlayTest t;
    QVERIFY(t.key.show());
    PlayTest::select(t.channel());
    t.key.key->setFocus(Qt::TabFocusReason);
    type(t.key.key, Qt::Key_Space);
    QCOMPARE(openOnes(true), QString("0.0"));
    type(t.key.key, Qt::Key_Return);
    QCOMPARE(openOnes(true), QString());
    type(t.key.key, Qt::Key_P);
    QCOMPARE(openOnes(true), QString());
}

void TestPlayBtn::pictureFollowsTheSelection()
{
    PlayTest t;
    QVERIFY(t.wall.open(t.device, 1));
    QVERIFY(t.showsPlay());
    PlayTest::select(t.channel(0));
    QVERIFY(t.showsStop());
    PlayTest::select(t.channel(1));
    QVERIFY(t.showsPlay());
    PlayTest::select(t.channel(0));
    PlayTest::select(nullptr);
    QVERIFY(t.showsPlay());
}

void TestPlayBtn::pictureFollowsTheMode()
{
    PlayTest t;
    t.channel()->mode(false).playing = true;
    PlayTest::select(t.channel());
    QVERIFY(t.showsPlay());
    t.wall.viewControl.changeMod(false);
    QVERIFY(t.showsStop());
    t.wall.viewControl.changeMod(true);
    QVERIFY(t.showsPlay());
}

void TestPlayBtn::pictureFollowsItsChannelOnly_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::newRow("live") << true;
    QTest::newRow("playback") << false;
}

void TestPlayBtn::pictureFollowsItsChannelOnly()
{
    QFETCH(bool, isLive);
    PlayTest t;
    t.wall.viewControl.changeMod(isLive);
    PlayTest::select(t.channel());
    const auto tell = [&](Channel* channel, bool isPlaying) {
        channel->mode(isLive).open = isPlaying;
        channel->mode(isLive).playing = isPlaying;
        if (isLive && isPlaying)
            emit t.wall.io->videoRequestSuccessMsg(channel);
        else if (isLive)
            emit t.wall.io->videoRequestStopSuccessMsg(channel);
        else if (isPlaying)
            emit t.wall.io->startReplaySuccessMsg(channel);
        else
            emit t.wall.io->stopReplaySuccessMsg(channel);
    };
    tell(t.channel(1), true);
    QVERIFY(t.showsPlay());
    tell(t.channel(0), true);
    QVERIFY(t.showsStop());
    tell(t.channel(1), false);
    QVERIFY(t.showsStop());
    tell(t.channel(0), false);
    QVERIFY(t.showsPlay());
}

void TestPlayBtn::keyThatComesLateShowsWhatPlays()
{
    PlayTest t;
    QVERIFY(t.wall.open(t.device, 1));
    PlayTest::select(t.channel());
    const PlayBtn late;
    QVERIFY(shows(&late, QStringLiteral("stop")));
}

void TestPlayBtn::mouseOverTheKeyLightsItsPicture()
{
    PlayTest t;
    QVERIFY(t.key.show());
    PlayTest::select(t.channel());
    moveTo(&t.key.window, QPoint(5, 5));
    QTRY_VERIFY(t.shows("play"));
    moveTo(t.key.key);
    QTRY_VERIFY(t.shows("play-hover"));
    click(t.key.key);
    QVERIFY(t.shows("stop-hover"));
    moveTo(&t.key.window, QPoint(5, 5));
    QTRY_VERIFY(t.shows("stop"));
}

void TestPlayBtn::deviceThatLeavesLeavesTheKeyFree()
{
    PlayTest t;
    QVERIFY(t.key.show());
    PlayTest::select(t.channel());
    click(t.key.key);
    QVERIFY(t.settle());
    QVERIFY(t.showsStop());
    Dev::instance()->removeDevice(t.device);
    QVERIFY(t.settle());
    QVERIFY(t.showsPlay());
    click(t.key.key);
    QVERIFY(t.showsPlay());
}

void TestPlayBtn::dayWithoutRecordingsFreesTheKey()
{
    PlayTest t;
    QVERIFY(t.key.show());
    t.wall.viewControl.changeMod(false);
    PlayTest::select(t.channel());
    click(t.key.key);
    QVERIFY(t.settle());
    QVERIFY(t.showsStop());
    t.channel()->mode(false).open = false;
    emit t.wall.io->receiveVideoTimeEmptyMsg(t.channel(), 0, QStringLiteral("none"));
    QVERIFY(t.showsPlay());
}

void TestPlayBtn::deviceThatFailsFreesTheKey()
{
    PlayTest t;
    QVERIFY(t.key.show());
    Device* device = t.wall.addDevice(1, false);
    t.wall.link.next(LinkFn::IOTC_Connect_ByUID_ParallelNB).reports({ConnectStep::failed(-13)});
    QSignalSpy failed(t.wall.io.get(), &IoConnect::connectDevFailMsg);
    PlayTest::select(device->channel(0));
    click(t.key.key);
    QTRY_COMPARE(failed.count(), 1);
    QVERIFY(!device->channel(0)->mode(true).open);
    QVERIFY(t.showsPlay());
    click(t.key.key);
    QTRY_VERIFY(device->channel(0)->mode(true).playing);
    QVERIFY(t.settle());
    QVERIFY(t.showsStop());
}

void TestPlayBtn::hintNamesWhatAPressDoes()
{
    PlayTest t;
    QVERIFY(t.wall.open(t.device, 1));
    QCOMPARE(t.key.key->toolTip(), QString("Play"));
    PlayTest::select(t.channel());
    QCOMPARE(t.key.key->toolTip(), QString("Stop"));
    QCOMPARE(t.key.key->accessibleName(), QString("Stop"));
    {
        const Brackets brackets;
        QTRY_COMPARE(t.key.key->toolTip(), QString("[Stop]"));
    }
    QTRY_COMPARE(t.key.key->toolTip(), QString("Stop"));
}

ORVA_TEST(TestPlayBtn)
#include "tst_playbtn.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "hands.h"
#include "listtest.h"
#include "media/videorecord.h"
#include "replaywall.h"
#include "testmain.h"

#include <QDesktopServices>
#include <QDir>
#include <QPointer>
#include <QTest>
#include <QUrl>

// What the rows of the menu on a device or a channel do. Each asks for the menu to be closed.
class TestDevMenuActions final : public QObject
{
    Q_OBJECT

private slots:
    void playOpensTheChannelInLiveView();
    void playOpensTheChannelInPlayback();
    void stopClosesTheChannel_data();
    void stopClosesTheChannel();
    void playAllOpensEveryChannelInLiveView();
    void playAllOpensOneChannelAfterAnotherInPlayback();
    void stopAllClosesWhatIsConnected();
    void stopAllOnADeviceThatIsNotConnectedDoesNothing();
    void qualityIsSetAsTheRowSays_data();
    void qualityIsSetAsTheRowSays();
    void qualityOfAStoppedChannelStartsNothing();
    void resetConnectEndsTheSession();
    void deleteAsksFirst();
    void foldersOfTheDeviceAreOpened_data();
    void foldersOfTheDeviceAreOpened();
    void timelineIsSynchronizedForTheChannel();
    void timelineIsSynchronizedForTheDevice();
    void keyboardChoosesARow();
    void rowsActOnce();

private:
    Q_INVOKABLE void openUrl(const QUrl& url) { urls_.append(url); } // in the place of the desktop

    QList<QUrl> urls_;
};

namespace {

// A device of the playback that has a recording at the point of the timeline.
Device* addRecorded(ReplayWall& t, int channels)
{
    Device* device = t.addDevice(channels);
    t.record(device, {t.block(3600)});
    t.wall.setTime(QTime(1, 0));
    return device;
}

// Shows the menu, and clicks on the row: whether that asked for the menu to be closed, once.
bool choose(const WallTest& wall, Device* device, Channel* channel, const char* row)
{
    MenuTest t(wall, device, channel);
    if (!t.show() || !t.rows().contains(QLatin1String(row)))
        return false;
    click(t.row(row));
    return t.closed.count() == 1;
}

} // namespace

void TestDevMenuActions::playOpensTheChannelInLiveView()
{
    WallTest wall;
    Device* device = wall.addDevice(2);
    QVERIFY(choose(wall, device, device->channel(1), "Play"));
    QCOMPARE(openOnes(true), QString("0.1"));
    QVERIFY(wall.settle());
    QCOMPARE(playingOnes(true), QString("0.1"));
    QCOMPARE(openOnes(false), QString());
}

void TestDevMenuActions::playOpensTheChannelInPlayback()
{
    ReplayWall t;
    Device* device = addRecorded(t, 2);
    QVERIFY(choose(t.t, device, device->channel(1), "Play"));
    QVERIFY(t.settle());
    QCOMPARE(openOnes(false), QString("0.1"));
    QCOMPARE(openOnes(true), QString());
}

void TestDevMenuActions::stopClosesTheChannel_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::newRow("live") << true;
    QTest::newRow("playback") << false;
}

void TestDevMenuActions::stopClosesTheChannel()
{
    QFETCH(bool, isLive);
    ReplayWall t;
    Device* device = addRecorded(t, 2);
    t.wall.changeMod(isLive);
    for (int i = 0; i < 2; ++i) {
        if (isLive)
            QVERIFY(t.t.open(device, i + 1));
        else
            QVERIFY(t.play(device->channel(i)));
    }
    QCOMPARE(playingOnes(isLive), QString("0.0 0.1"));
    QVERIFY(choose(t.t, device, device->channel(0), "Stop"));
    QCOMPARE(openOnes(isLive), QString("0.1"));
    QVERIFY(t.settle());
    QCOMPARE(playingOnes(isLive), QString("0.1"));
    QVERIFY(!t.t.shown().contains(device->channel(0)));
}

void TestDevMenuActions::playAllOpensEveryChannelInLiveView()
{
    WallTest wall;
    Device* device = wall.addDevice(3);
    wall.addDevice(1);
    QVERIFY(choose(wall, device, nullptr, "Play All"));
    QCOMPARE(openOnes(true), QString("0.0 0.1 0.2"));
    QVERIFY(wall.settle());
    QCOMPARE(playingOnes(true), QString("0.0 0.1 0.2"));
}

void TestDevMenuActions::playAllOpensOneChannelAfterAnotherInPlayback()
{
    ReplayWall t;
    Device* device = addRecorded(t, 2);
    QVERIFY(choose(t.t, device, nullptr, "Play All"));
    QVERIFY(t.settle());
    QCOMPARE(openOnes(false), QString("0.0"));
    QVERIFY(t.start(device->channel(0)));
    QCOMPARE(openOnes(false), QString("0.0 0.1"));
}

void TestDevMenuActions::stopAllClosesWhatIsConnected()
{
    WallTest wall;
    Device* device = wall.addDevice(3);
    Device* other = wall.addDevice(1);
    QVERIFY(wall.open(device, 3));
    QVERIFY(wall.open(other, 1));
    device->channel(1)->mode(true).avIndex = -1; // not, or no longer
    QVERIFY(choose(wall, device, nullptr, "Stop All"));
    QCOMPARE(openOnes(true), QString("0.1 1.0"));
    QVERIFY(wall.settle());
    QCOMPARE(playingOnes(true), QString("0.1 1.0"));
}

void TestDevMenuActions::stopAllOnADeviceThatIsNotConnectedDoesNothing()
{
    WallTest wall;
    Device* device = wall.addDevice(3, false);
    markOpen(device, 2); // wanted, and not there yet
    wall.takeSent();
    QSignalSpy stopped(wall.io.get(), &IoConnect::videoRequestStopSuccessMsg);
    QVERIFY(choose(wall, device, nullptr, "Stop All"));
    QVERIFY(wall.settle());
    QCOMPARE(wall.takeSent(), QList<int>());
    QCOMPARE(stopped.count(), 0);
    QCOMPARE(openOnes(true), QString("0.0 0.1"));
}

void TestDevMenuActions::qualityIsSetAsTheRowSays_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("SD") << QByteArray("SD") << wire("01000000 00000000");
    QTest::newRow("HD") << QByteArray("HD") << wire("01000000 01000000");
}

void TestDevMenuActions::qualityIsSetAsTheRowSays()
{
    QFETCH(QByteArray, row);
    QFETCH(QByteArray, message);
    WallTest wall;
    Device* device = wall.addDevice(2);
    QVERIFY(wall.open(device, 2));
    QVERIFY(choose(wall, device, device->channel(1), row.constData()));
    QVERIFY(wall.settle());
    const LinkCall sent = lastSent(wall, IOCTRL_SET_QUALITY);
    QCOMPARE(sent.avIndex(), int(device->channel(1)->mode(true).avIndex));
    QVERIFY2(sent.payload().startsWith(message), sent.payload().toHex().constData());
    QVERIFY(device->channel(1)->mode(true).open);
}

void TestDevMenuActions::qualityOfAStoppedChannelStartsNothing()
{
    WallTest wall;
    Device* device = wall.addDevice(2);
    QVERIFY(wall.open(device, 2));
    QVERIFY(MenuTest(wall, device, device->channel(1)).row("HD")->isEnabled());
    wall.viewControl.closeChannel(device->channel(1));
    QVERIFY(wall.settle());
    wall.takeSent();
    for (const char* row : {"HD", "SD"}) {
        MenuTest stopped(wall, device, device->channel(1));
        QVERIFY(stopped.show());
        click(stopped.row(row));
        QVERIFY(wall.settle());
        QCOMPARE(stopped.closed.count(), 0);
    }
    QCOMPARE(wall.takeSent(), QList<int>());
    QVERIFY(!device->channel(1)->mode(true).playing);
}

void TestDevMenuActions::resetConnectEndsTheSession()
{
    WallTest wall;
    Device* device = wall.addDevice(2);
    Device* other = wall.addDevice(1);
    QVERIFY(wall.open(device, 2));
    QVERIFY(wall.open(other, 1));
    const int session = device->sid;
    QVERIFY(choose(wall, device, nullptr, "Reset Connect"));
    QVERIFY(wall.settle());
    QCOMPARE(int(device->sid), -1);
    QCOMPARE(wall.link.last(LinkFn::IOTC_Session_Close).sessionId(), session);
    QCOMPARE(playingOnes(true), QString("1.0"));
    QVERIFY(Dev::instance()->devices().contains(device));
    QVERIFY(choose(wall, device, device->channel(0), "Play")); // with a new session
    QTRY_VERIFY(device->channel(0)->mode(true).playing);
    QVERIFY(wall.settle());
}

void TestDevMenuActions::deleteAsksFirst()
{
    WallTest wall;
    Device* device = wall.addDevice(2);
    QSignalSpy alerts(&wall.viewControl, &ViewControl::openDelAlertMsg);
    QVERIFY(choose(wall, device, nullptr, "Delete Device"));
    QCOMPARE(alerts.count(), 1);
    QCOMPARE(alerts.first().first().value<Device*>(), device);
    QVERIFY(Dev::instance()->devices().contains(device));
}

void TestDevMenuActions::foldersOfTheDeviceAreOpened_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<bool>("isVideo");
    QTest::addColumn<bool>("onChannel");
    QTest::newRow("records") << QByteArray("Record Folder") << true << false;
    QTest::newRow("snapshots") << QByteArray("Screenshot Folder") << false << false;
    QTest::newRow("records of a channel") << QByteArray("Record Folder") << true << true;
    QTest::newRow("snapshots of a channel") << QByteArray("Screenshot Folder") << false << true;
}

void TestDevMenuActions::foldersOfTheDeviceAreOpened()
{
    QFETCH(QByteArray, row);
    QFETCH(bool, isVideo);
    QFETCH(bool, onChannel);
    WallTest wall;
    Device* device = wall.addDevice(2);
    const QString folder = VideoRecord::instance()->channelFolder(device, isVideo);
    urls_.clear();
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openUrl");
    const bool isChosen =
        choose(wall, device, onChannel ? device->channel(1) : nullptr, row.constData());
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QVERIFY(isChosen);
    QCOMPARE(urls_, QList<QUrl>({QUrl::fromLocalFile(folder)}));
    QVERIFY(folder.endsWith(device->uid()));
    QVERIFY(QDir(folder).exists()); // also before there is anything in it
}

void TestDevMenuActions::timelineIsSynchronizedForTheChannel()
{
    ReplayWall t;
    Device* device = addRecorded(t, 2);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(t.play(device->channel(i)));
        device->channel(i)->replayTime = QDateTime(t.day(), QTime(9, 0));
    }
    t.wall.setTime(QTime(9, 10));
    takeCommands(t.t);
    QVERIFY(choose(t.t, device, device->channel(1), "Synchronize Timeline"));
    QVERIFY(t.settle());
    QCOMPARE(takeCommands(t.t), QList<int>({IOCTRL_SET_REPLAY_TIME}));
    QVERIFY(lastSent(t.t, IOCTRL_SET_REPLAY_TIME).payload().startsWith(wire("01000000")));
}

void TestDevMenuActions::timelineIsSynchronizedForTheDevice()
{
    ReplayWall t;
    Device* device = addRecorded(t, 3);
    for (const int number : {0, 2}) {
        QVERIFY(t.play(device->channel(number)));
        device->channel(number)->replayTime = QDateTime(t.day(), QTime(9, 0));
    }
    t.wall.setTime(QTime(9, 10));
    takeCommands(t.t);
    QVERIFY(choose(t.t, device, nullptr, "Synchronize Timeline"));
    QVERIFY(t.settle());
    QCOMPARE(takeCommands(t.t), QList<int>({IOCTRL_SET_REPLAY_TIME, IOCTRL_SET_REPLAY_TIME}));
}

void TestDevMenuActions::keyboardChoosesARow()
{
    WallTest wall;
    Device* device = wall.addDevice(2);
    MenuTest t(wall, device, nullptr);
    QVERIFY(t.show());
    type(t.menu, Qt::Key_Tab);
    QVERIFY(t.row("Play All")->hasFocus());
    type(t.menu, Qt::Key_Tab);
    type(t.menu, Qt::Key_Tab); // past what is disabled
    QVERIFY(t.row("Reset Connect")->hasFocus());
    type(t.menu, Qt::Key_Return);
    QCOMPARE(int(device->sid), -1);
    QCOMPARE(t.closed.count(), 1);
}

// Whoever closes the menu may do so at once with the signal.
void TestDevMenuActions::rowsActOnce()
{
    WallTest wall;
    Device* device = wall.addDevice(1);
    QPointer<DevMenu> menu;
    connect(&wall.viewControl, &ViewControl::closeMenuMsg, this, [&menu] { menu->deleteLater(); });
    MenuTest t(wall, device, device->channel(0));
    menu = t.menu;
    QVERIFY(t.show());
    click(t.row("Play"));
    disconnect(&wall.viewControl, nullptr, this, nullptr);
    QVERIFY(wall.settle());
    QVERIFY(menu == nullptr);
    QCOMPARE(wall.link.count(LinkFn::avSendIOCtrl, ofType(IOCTRL_VIDEO_START)), 1);
}

ORVA_TEST(TestDevMenuActions)
#include "tst_devmenuactions.moc"

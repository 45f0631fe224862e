// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/location.h"
#include "testmain.h"
#include "wallwatch.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimerEvent>

#include <limits>

// Recording a channel, segment by segment.
class TestViewControlRecord final : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void recordingIsMarkedAndTold_data();
    void recordingIsMarkedAndTold();
    void endOfRecordingIsMarkedAndTold();
    void segmentLastsAsLongAsTheSettingsSay_data();
    void segmentLastsAsLongAsTheSettingsSay();
    void segmentThatIsOverEndsTheRecording();
    void recordingStartedAgainHasANewSegment();
    void recordingThatDoesNotRunEndsAllTheSame();
    void segmentEndsInTheModeOnView();
    void recordingEndsBeforeTheStreamIsStopped();
};

namespace {

constexpr int defaultMinutes = 30;

// The segment of the channel's live recording is over now.
void runOut(Channel* channel)
{
    ChannelSaveTimeout* timer = channel->mode(true).recordTimer.get();
    QTimerEvent event(timer->timerId());
    QCoreApplication::sendEvent(timer, &event);
}

QString recordText(const QList<QVariant>& arguments)
{
    return placeOf(arguments.at(0).value<Channel*>())
        + (arguments.at(1).toBool() ? QStringLiteral(" on") : QStringLiteral(" off"));
}

QStringList takeTold(QSignalSpy& spy)
{
    QStringList told;
    for (const QList<QVariant>& arguments : std::as_const(spy))
        told.append(recordText(arguments));
    spy.clear();
    return told;
}

} // namespace

void TestViewControlRecord::init()
{
    Location::instance()->setTimeLength(defaultMinutes);
}

void TestViewControlRecord::recordingIsMarkedAndTold_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::newRow("live view") << true;
    QTest::newRow("playback") << false;
}

void TestViewControlRecord::recordingIsMarkedAndTold()
{
    QFETCH(bool, isLive);
    WallTest t;
    t.viewControl.changeMod(isLive);
    Channel* channel = t.addDevice(2)->channel(1);
    channel->mode(isLive).recordStarted = true; // of a recording before
    QSignalSpy spy(&t.viewControl, &ViewControl::recordMsg);
    t.viewControl.setRecord(channel, true);
    QCOMPARE(takeTold(spy), QStringList({"0.1 on"}));
    QVERIFY(channel->mode(isLive).record);
    QVERIFY(!channel->mode(isLive).recordStarted);
    QVERIFY(channel->mode(isLive).recordTimer != nullptr);
    QVERIFY(channel->mode(isLive).recordTimer->isActive());
    QVERIFY(channel->mode(isLive).recordTimer->isSingleShot());
    QVERIFY(!channel->mode(!isLive).record);
    QVERIFY(channel->mode(!isLive).recordTimer == nullptr);
}

void TestViewControlRecord::endOfRecordingIsMarkedAndTold()
{
    WallTest t;
    Channel* channel = t.addDevice(1)->channel(0);
    t.viewControl.setRecord(channel, true);
    channel->mode(true).recordStarted = true;
    QSignalSpy spy(&t.viewControl, &ViewControl::recordMsg);
    t.viewControl.setRecord(channel, false);
    QCOMPARE(takeTold(spy), QStringList({"0.0 off"}));
    QVERIFY(!channel->mode(true).record);
    QVERIFY(!channel->mode(true).recordStarted);
    QVERIFY(channel->mode(true).recordTimer == nullptr);
}

void TestViewControlRecord::segmentLastsAsLongAsTheSettingsSay_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("ms");
    QTest::newRow("default") << defaultMinutes << 1800000;
    QTest::newRow("a minute") << 1 << 60000;
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("negative") << -5 << 0;
    QTest::newRow("as long as there is") << std::numeric_limits<int>::max() << 2147460000;
}

void TestViewControlRecord::segmentLastsAsLongAsTheSettingsSay()
{
    QFETCH(int, minutes);
    Location::instance()->setTimeLength(minutes);
    WallTest t;
    Channel* channel = t.addDevice(1)->channel(0);
    t.viewControl.setRecord(channel, true);
    QTEST(channel->mode(true).recordTimer->interval(), "ms");
}

void TestViewControlRecord::segmentThatIsOverEndsTheRecording()
{
    WallTest t;
    Channel* channel = t.addDevice(1)->channel(0);
    t.viewControl.setRecord(channel, true);
    channel->mode(true).recordStarted = true;
    QSignalSpy spy(&t.viewControl, &ViewControl::recordMsg);
    runOut(channel);
    QCOMPARE(takeTold(spy), QStringList({"0.0 off"}));
    QVERIFY(!channel->mode(true).record);
    QVERIFY(!channel->mode(true).recordTimer->isActive());
    t.viewControl.setRecord(channel, false); // by the button, late
    QVERIFY(channel->mode(true).recordTimer == nullptr);
}

void TestViewControlRecord::recordingStartedAgainHasANewSegment()
{
    WallTest t;
    Channel* channel = t.addDevice(1)->channel(0);
    t.viewControl.setRecord(channel, true);
    Location::instance()->setTimeLength(7);
    t.viewControl.setRecord(channel, true);
    QCOMPARE(channel->mode(true).recordTimer->interval(), 420000);
    QSignalSpy spy(&t.viewControl, &ViewControl::recordMsg);
    runOut(channel);
    QCOMPARE(takeTold(spy), QStringList({"0.0 off"})); // once, though it was started twice
}

void TestViewControlRecord::recordingThatDoesNotRunEndsAllTheSame()
{
    WallTest t;
    Channel* channel = t.addDevice(1)->channel(0);
    QSignalSpy spy(&t.viewControl, &ViewControl::recordMsg);
    t.viewControl.setRecord(channel, false);
    QCOMPARE(takeTold(spy), QStringList({"0.0 off"}));
    QVERIFY(!channel->mode(true).record);
}

void TestViewControlRecord::segmentEndsInTheModeOnView()
{
    WallTest t;
    Channel* channel = t.addDevice(1)->channel(0); // closed: no stop ends the recording
    t.viewControl.setRecord(channel, true);
    t.viewControl.changeMod(false);
    t.viewControl.setRecord(channel, true);
    runOut(channel);
    QVERIFY(channel->mode(true).record);
    QVERIFY(!channel->mode(false).record);
}

void TestViewControlRecord::recordingEndsBeforeTheStreamIsStopped()
{
    WallTest t;
    Device* device = t.addDevice(1);
    QVERIFY(t.open(device, 1));
    t.viewControl.setRecord(device->channel(0), true);
    QSignalSpy spy(&t.viewControl, &ViewControl::recordMsg);
    t.viewControl.closeChannel(device->channel(0));
    QCOMPARE(takeTold(spy), QStringList({"0.0 off"}));
    QVERIFY(t.settle());
    QVERIFY(!device->channel(0)->mode(true).record);
    QVERIFY(device->channel(0)->mode(true).recordTimer == nullptr);
}

ORVA_TEST(TestViewControlRecord)
#include "tst_viewcontrolrecord.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/device.h"
#include "testmain.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <numeric>

class TestChannel final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<Channel*>("Channel*"); }

    void freshChannelHasTheDefaults();
    void bothFreshModesHaveTheDefaults_data();
    void bothFreshModesHaveTheDefaults();
    void modesAreApart();
    void setRecordForgetsTheKeyFrame_data();
    void setRecordForgetsTheKeyFrame();
    void ioTimerIsSingleShotOfTwentySeconds();
    void stopIoTimerStopsIt();
    void secondCommandRestartsTheTimer();
    void timeoutNamesTheChannelBeforeTheTimersOwn();
    void timeoutComesOnce();
    void timeoutNamesTheChannelSetLast();
    void slotOfTheTimeoutMayRestartTheTimer();
    void recordTimerIsSingleShotAndPerMode();
    void setRecordTimerReplacesTheOldOne();
    void removeRecordTimerDeletesIt();
    void removeRecordTimerWithoutOneDoesNothing();
    void recordTimerNamesTheChannel();
    void slotOfTheRecordTimerMayReplaceIt();
    void slotOfTheRecordTimerMayRemoveIt();
    void versionIsNullUntilItArrives();
    void versionKeepsTheFirst64Bytes();
    void heldVersionSurvivesTheNextOne();
    void videoTimesGrowAndClear();
    void consumePcmTakesFromTheFront();
    void consumePcmStaysInItsBounds_data();
    void consumePcmStaysInItsBounds();
    void consumePcmLeavesTheOtherMode();
    void talkBuffersGoWithTheChannel();
};

namespace {

// A device of one channel.
struct OneChannel
{
    OneChannel() { device.setChannelCount(1); }
    Channel* operator->() const { return device.channel(0); }
    operator Channel*() const { return device.channel(0); }

    Device device;
};

std::array<char, 80> messageFrom(char first)
{
    std::array<char, 80> message{};
    std::iota(message.begin(), message.end(), first);
    return message;
}

} // namespace

void TestChannel::freshChannelHasTheDefaults()
{
    const OneChannel channel;
    QCOMPARE(channel->device(), const_cast<Device*>(&channel.device));
    QCOMPARE(channel->number(), 0);
    QVERIFY(channel->tile == nullptr);
    QVERIFY(channel->version() == nullptr);
    QVERIFY(!channel->replayTime.isValid());
    QCOMPARE(channel->videoTimeLoaded, false);
    QVERIFY(channel->videoTimes().isEmpty());
    QVERIFY(!channel->videoTimeDate.isValid());
    QVERIFY(channel->ioTimer() != nullptr);
    QCOMPARE(channel->ptzState, 0);
    QCOMPARE(channel->connectingChannel, false);
    QCOMPARE(bool(channel->replayPending), false);
    QCOMPARE(bool(channel->replayPaused), false);
    QCOMPARE(bool(channel->speaking), false);
    QCOMPARE(int(channel->talkIndex), -1);
    QCOMPARE(int(channel->speechChannel), -1);
    QCOMPARE(channel->talkPacket, 0);
    QVERIFY(channel->talkBuffers == nullptr);
}

void TestChannel::bothFreshModesHaveTheDefaults_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::newRow("live") << true;
    QTest::newRow("replay") << false;
}

void TestChannel::bothFreshModesHaveTheDefaults()
{
    QFETCH(bool, isLive);
    const OneChannel channel;
    const ChannelMode& mode = channel->mode(isLive);
    QCOMPARE(int(mode.avIndex), -1);
    for (const bool flag :
        {bool(mode.highQuality), bool(mode.waiting), bool(mode.open), bool(mode.playing),
            bool(mode.screenshot), bool(mode.record), bool(mode.recordStarted), bool(mode.audioOn)})
        QCOMPARE(flag, false);
    QVERIFY(mode.yuvBuffer == nullptr);
    QCOMPARE(mode.recordCodec, 0);
    QCOMPARE(mode.recordFile, QString());
    QVERIFY(mode.recordTimer == nullptr);
    QCOMPARE(mode.recordAudioOpen, 0);
    QCOMPARE(mode.recordAudioStream, 0);
    QVERIFY(mode.pcmBuffer.isEmpty());
    QCOMPARE(channel->pcmCount(isLive), 0);
}

void TestChannel::modesAreApart()
{
    const OneChannel channel;
    channel->mode(true).avIndex = 3;
    channel->mode(true).open = true;
    channel->mode(false).audioOn = true;
    QCOMPARE(int(channel->mode(true).avIndex), 3);
    QCOMPARE(int(channel->mode(false).avIndex), -1);
    QCOMPARE(bool(channel->mode(false).open), false);
    QCOMPARE(bool(channel->mode(true).audioOn), false);
    QCOMPARE(bool(channel->mode(false).audioOn), true);
}

void TestChannel::setRecordForgetsTheKeyFrame_data()
{
    QTest::addColumn<bool>("isLive");
    QTest::addColumn<bool>("on");
    QTest::newRow("live on") << true << true;
    QTest::newRow("live off") << true << false;
    QTest::newRow("replay on") << false << true;
    QTest::newRow("replay off") << false << false;
}

void TestChannel::setRecordForgetsTheKeyFrame()
{
    QFETCH(bool, isLive);
    QFETCH(bool, on);
    const OneChannel channel;
    channel->mode(true).recordStarted = true;
    channel->mode(false).recordStarted = true;
    channel->setRecord(on, isLive);
    QCOMPARE(bool(channel->mode(isLive).record), on);
    QCOMPARE(bool(channel->mode(isLive).recordStarted), false);
    QCOMPARE(bool(channel->mode(!isLive).record), false);
    QCOMPARE(bool(channel->mode(!isLive).recordStarted), true);
}

void TestChannel::ioTimerIsSingleShotOfTwentySeconds()
{
    const OneChannel channel;
    QVERIFY(!channel->ioTimer()->isActive());
    channel->startIoTimer();
    QVERIFY(channel->ioTimer()->isActive());
    QVERIFY(channel->ioTimer()->isSingleShot());
    QCOMPARE(channel->ioTimer()->interval(), 20000);
}

void TestChannel::stopIoTimerStopsIt()
{
    const OneChannel channel;
    channel->stopIoTimer();
    channel->startIoTimer();
    channel->stopIoTimer();
    QVERIFY(!channel->ioTimer()->isActive());
}

// The first command's time would be over after a millisecond; the second one's has begun anew.
void TestChannel::secondCommandRestartsTheTimer()
{
    const OneChannel channel;
    QTimer* const timer = channel->ioTimer();
    const QSignalSpy timeouts(channel->ioTimer(), SIGNAL(timeout(Channel*)));
    timer->start(1);
    channel->startIoTimer();
    QTimer later;
    later.setSingleShot(true);
    later.start(20);
    QTRY_VERIFY(!later.isActive());
    QCOMPARE(timeouts.count(), 0);
    QCOMPARE(static_cast<QTimer*>(channel->ioTimer()), timer);
    QVERIFY(timer->isActive());
    QVERIFY(timer->remainingTime() > 15000);
}

void TestChannel::timeoutNamesTheChannelBeforeTheTimersOwn()
{
    const OneChannel channel;
    QStringList order;
    Channel* named = nullptr;
    connect(channel->ioTimer(), &QTimer::timeout, this, [&] { order.append("own"); });
    connect(channel->ioTimer(), qOverload<Channel*>(&ChannelSaveTimeout::timeout), this,
        [&](Channel* which) {
            order.append("channel");
            named = which;
        });
    channel->ioTimer()->start(0);
    QTRY_COMPARE(order.size(), 2);
    QCOMPARE(order, QStringList({"channel", "own"}));
    QCOMPARE(named, static_cast<Channel*>(channel));
}

void TestChannel::timeoutComesOnce()
{
    const OneChannel channel;
    const QSignalSpy timeouts(channel->ioTimer(), SIGNAL(timeout(Channel*)));
    channel->ioTimer()->start(0);
    QTRY_COMPARE(timeouts.count(), 1);
    QVERIFY(!channel->ioTimer()->isActive());
    QCoreApplication::processEvents();
    QCOMPARE(timeouts.count(), 1);
}

void TestChannel::timeoutNamesTheChannelSetLast()
{
    const OneChannel channel;
    ChannelSaveTimeout timer;
    QVERIFY(timer.isSingleShot());
    Channel* named = nullptr;
    connect(&timer, qOverload<Channel*>(&ChannelSaveTimeout::timeout), this,
        [&](Channel* which) { named = which; });
    timer.setChannel(channel);
    timer.start(0);
    QTRY_COMPARE(named, static_cast<Channel*>(channel));
}

void TestChannel::slotOfTheTimeoutMayRestartTheTimer()
{
    const OneChannel channel;
    connect(channel->ioTimer(), qOverload<Channel*>(&ChannelSaveTimeout::timeout), this,
        [](Channel* which) { which->startIoTimer(); });
    channel->ioTimer()->start(0);
    QTRY_COMPARE(channel->ioTimer()->interval(), 20000);
    QCoreApplication::processEvents();
    QVERIFY(channel->ioTimer()->isActive());
}

void TestChannel::recordTimerIsSingleShotAndPerMode()
{
    const OneChannel channel;
    channel->setRecordTimer(1800000, true);
    QVERIFY(channel->mode(false).recordTimer == nullptr);
    const QTimer* timer = channel->mode(true).recordTimer.get();
    QVERIFY(timer != nullptr);
    QVERIFY(timer->isActive());
    QVERIFY(timer->isSingleShot());
    QCOMPARE(timer->interval(), 1800000);
}

void TestChannel::setRecordTimerReplacesTheOldOne()
{
    const OneChannel channel;
    channel->setRecordTimer(60000, false);
    const QPointer<QTimer> old = channel->mode(false).recordTimer.get();
    channel->setRecordTimer(120000, false);
    QTRY_VERIFY(!old);
    QCOMPARE(channel->mode(false).recordTimer->interval(), 120000);
    QVERIFY(channel->mode(false).recordTimer->isActive());
}

void TestChannel::removeRecordTimerDeletesIt()
{
    const OneChannel channel;
    channel->setRecordTimer(60000, true);
    channel->setRecordTimer(60000, false);
    const QPointer<QTimer> live = channel->mode(true).recordTimer.get();
    channel->removeRecordTimer(true);
    QVERIFY(channel->mode(true).recordTimer == nullptr);
    QTRY_VERIFY(!live);
    QVERIFY(channel->mode(false).recordTimer != nullptr);
}

void TestChannel::removeRecordTimerWithoutOneDoesNothing()
{
    const OneChannel channel;
    channel->removeRecordTimer(true);
    channel->removeRecordTimer(false);
    QVERIFY(channel->mode(true).recordTimer == nullptr);
}

void TestChannel::recordTimerNamesTheChannel()
{
    const OneChannel channel;
    channel->setRecordTimer(0, true);
    Channel* named = nullptr;
    connect(channel->mode(true).recordTimer.get(),
        qOverload<Channel*>(&ChannelSaveTimeout::timeout), this,
        [&](Channel* which) { named = which; });
    QTRY_COMPARE(named, static_cast<Channel*>(channel));
}

// The end of one segment is where the next one starts: the timer is replaced while it is still
// telling of its own time-out.
void TestChannel::slotOfTheRecordTimerMayReplaceIt()
{
    const OneChannel channel;
    channel->setRecordTimer(0, true);
    const QPointer<QTimer> old = channel->mode(true).recordTimer.get();
    connect(channel->mode(true).recordTimer.get(),
        qOverload<Channel*>(&ChannelSaveTimeout::timeout), this,
        [](Channel* which) { which->setRecordTimer(60000, true); });
    QTRY_VERIFY(!old);
    QVERIFY(channel->mode(true).recordTimer->isActive());
    QCOMPARE(channel->mode(true).recordTimer->interval(), 60000);
}

void TestChannel::slotOfTheRecordTimerMayRemoveIt()
{
    const OneChannel channel;
    channel->setRecordTimer(0, true);
    const QPointer<QTimer> old = channel->mode(true).recordTimer.get();
    connect(channel->mode(true).recordTimer.get(),
        qOverload<Channel*>(&ChannelSaveTimeout::timeout), this,
        [](Channel* which) { which->removeRecordTimer(true); });
    QTRY_VERIFY(!old);
    QVERIFY(channel->mode(true).recordTimer == nullptr);
}

void TestChannel::versionIsNullUntilItArrives()
{
    const OneChannel channel;
    QVERIFY(channel->version() == nullptr);
    channel->setVersion(messageFrom(0).data());
    QVERIFY(channel->version() != nullptr);
}

void TestChannel::versionKeepsTheFirst64Bytes()
{
    const OneChannel channel;
    auto message = messageFrom(7);
    channel->setVersion(message.data());
    const auto expected = QByteArray(message.data(), 64);
    message.fill(0);
    const auto version = channel->version();
    QCOMPARE(QByteArray(version->data(), static_cast<int>(version->size())), expected);
}

void TestChannel::heldVersionSurvivesTheNextOne()
{
    const OneChannel channel;
    channel->setVersion(messageFrom(1).data());
    const auto held = channel->version();
    const Channel::VersionBlock before = *held;
    channel->setVersion(messageFrom(100).data());
    QVERIFY(channel->version() != held);
    QCOMPARE(channel->version()->at(0), static_cast<char>(100));
    QVERIFY(*held == before);
    QCOMPARE(held.use_count(), 1L);
}

void TestChannel::videoTimesGrowAndClear()
{
    const OneChannel channel;
    channel->addVideoTime({3600, 60, 1700000000, 1});
    channel->addVideoTime({7200, 30, 1700003600, 0});
    QCOMPARE(channel->videoTimes().size(), 2);
    QCOMPARE(channel->videoTimes().at(1), QList<int>({7200, 30, 1700003600, 0}));
    channel->clearVideoTimes();
    QVERIFY(channel->videoTimes().isEmpty());
}

void TestChannel::consumePcmTakesFromTheFront()
{
    const OneChannel channel;
    channel->mode(true).pcmBuffer = "abcdef";
    QCOMPARE(channel->pcmCount(true), 6);
    channel->consumePcm(2, true);
    QCOMPARE(channel->mode(true).pcmBuffer, QByteArray("cdef"));
    QCOMPARE(channel->pcmCount(true), 4);
}

void TestChannel::consumePcmStaysInItsBounds_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QByteArray>("left");
    QTest::newRow("none") << 0 << QByteArray("abc");
    QTest::newRow("all but one") << 2 << QByteArray("c");
    QTest::newRow("all") << 3 << QByteArray();
    QTest::newRow("more than there is") << 4 << QByteArray();
    QTest::newRow("far more than there is") << 2147483647 << QByteArray();
    QTest::newRow("negative") << -1 << QByteArray("abc");
    QTest::newRow("most negative") << (-2147483647 - 1) << QByteArray("abc");
}

void TestChannel::consumePcmStaysInItsBounds()
{
    QFETCH(int, count);
    const OneChannel channel;
    channel->mode(false).pcmBuffer = "abc";
    channel->consumePcm(count, false);
    QTEST(channel->mode(false).pcmBuffer, "left");
}

void TestChannel::consumePcmLeavesTheOtherMode()
{
    const OneChannel channel;
    channel->consumePcm(5, true);
    channel->mode(false).pcmBuffer = "abc";
    channel->consumePcm(3, true);
    QCOMPARE(channel->pcmCount(false), 3);
    QCOMPARE(channel->pcmCount(true), 0);
}

void TestChannel::talkBuffersGoWithTheChannel()
{
    const auto buffers = std::make_shared<int>(1);
    auto channel = std::make_unique<OneChannel>();
    (*channel)->talkBuffers = buffers;
    QCOMPARE(buffers.use_count(), 2L);
    channel.reset();
    QCOMPARE(buffers.use_count(), 1L);
}

ORVA_TEST(TestChannel)

#include "tst_channel.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "mediasupport.h"
#include "testmain.h"

#include "media/framehub.h"
#include "media/framequeue.h"

#include <QTest>

#include <atomic>
#include <cstring>
#include <thread>

class TestFrameHub final : public QObject
{
    Q_OBJECT

private slots:
    void watcherBeginsWithTheRunningGroup();
    void watcherWaitsForAKeyWithoutGroup();
    void nothingIsLostOrDoubledBetweenGroupAndLive();
    void sinkMayLeaveFromItsOwnFrame();
    void sinkMayRestartFromItsOwnFrame();
    void noFrameComesAfterRemove();
    void tooLargeFramesAreRefusedUntilTheNextKey();
    void groupIsBounded();
    void soundNeedsNoKey();
    void queueDropsUpToTheNextKey();
};

namespace {

SharedFrame numbered(std::uint32_t number, bool key, std::size_t size = 4)
{
    auto frame = std::make_shared<LinkFrame>();
    frame->bytes.resize(size);
    if (size >= sizeof number)
        std::memcpy(frame->bytes.data(), &number, sizeof number);
    describe(*frame, LinkCodecH264, key, 0);
    return frame;
}

std::vector<std::uint32_t> numbers(const std::vector<SharedFrame>& frames)
{
    std::vector<std::uint32_t> all;
    for (const SharedFrame& frame : frames) {
        std::uint32_t number = 0;
        std::memcpy(&number, frame->bytes.data(), sizeof number);
        all.push_back(number);
    }
    return all;
}

struct Stay
{
    std::shared_ptr<RecordingSink> sink = std::make_shared<RecordingSink>();
    std::shared_ptr<HubWatcher> watcher = std::make_shared<HubWatcher>(sink);
};

using Numbers = std::vector<std::uint32_t>;

} // namespace

void TestFrameHub::watcherBeginsWithTheRunningGroup()
{
    FrameHub hub(FrameHub::Kind::Video, [] {});
    for (std::uint32_t i = 0; i < 8; ++i)
        hub.publish(numbered(i, i % 5 == 0));
    const Stay stay;
    hub.add(stay.watcher);
    QCOMPARE(numbers(stay.sink->video()), (Numbers{5, 6, 7}));
    hub.publish(numbered(8, false));
    QCOMPARE(numbers(stay.sink->video()), (Numbers{5, 6, 7, 8}));
    QVERIFY(!hub.takeKeyWish());
}

void TestFrameHub::watcherWaitsForAKeyWithoutGroup()
{
    int wanted = 0;
    FrameHub hub(FrameHub::Kind::Video, [&] { ++wanted; });
    const Stay stay;
    hub.add(stay.watcher);
    QCOMPARE(wanted, 1);
    QVERIFY(hub.takeKeyWish());
    QVERIFY(!hub.takeKeyWish());
    hub.publish(numbered(0, false));
    hub.publish(numbered(1, true));
    hub.publish(numbered(2, false));
    QCOMPARE(numbers(stay.sink->video()), (Numbers{1, 2}));
}

void TestFrameHub::nothingIsLostOrDoubledBetweenGroupAndLive()
{
    FrameHub hub(FrameHub::Kind::Video, [] {});
    std::atomic<bool> stop{false};
    std::thread source([&] {
        for (std::uint32_t i = 0; !stop; ++i)
            hub.publish(numbered(i, i % 20 == 0));
    });
    for (int round = 0; round < 300; ++round) {
        const Stay stay;
        hub.add(stay.watcher);
        while (stay.sink->videoCount() < 30)
            std::this_thread::yield();
        hub.remove(stay.watcher);
        const auto frames = stay.sink->video();
        const auto all = numbers(frames);
        const bool good = frames[0]->key && countByOne(all, ~0U);
        if (!good)
            stop = true;
        if (stop)
            break;
    }
    const bool good = !stop.exchange(true);
    source.join();
    QVERIFY(good);
}

void TestFrameHub::sinkMayLeaveFromItsOwnFrame()
{
    FrameHub hub(FrameHub::Kind::Video, [] {});
    for (std::uint32_t i = 0; i < 5; ++i)
        hub.publish(numbered(i, i == 0));
    const Stay stay;
    stay.sink->onVideo = [&] { hub.remove(stay.watcher); };
    hub.add(stay.watcher);
    hub.publish(numbered(5, false));
    QCOMPARE(numbers(stay.sink->video()), (Numbers{0}));
    QVERIFY(!hub.watched());
}

void TestFrameHub::sinkMayRestartFromItsOwnFrame()
{
    FrameHub hub(FrameHub::Kind::Video, [] {});
    hub.publish(numbered(0, true));
    hub.publish(numbered(1, false));
    const Stay stay;
    const auto second = std::make_shared<HubWatcher>(stay.sink);
    int calls = 0;
    stay.sink->onVideo = [&] {
        if (++calls != 1)
            return;
        hub.remove(stay.watcher);
        hub.add(second);
    };
    hub.add(stay.watcher);
    hub.publish(numbered(2, false));
    QCOMPARE(numbers(stay.sink->video()), (Numbers{0, 0, 1, 2}));
}

void TestFrameHub::noFrameComesAfterRemove()
{
    FrameHub hub(FrameHub::Kind::Video, [] {});
    std::atomic<bool> stop{false};
    std::thread source([&] {
        for (std::uint32_t i = 0; !stop; ++i)
            hub.publish(numbered(i, true));
    });
    bool late = false;
    for (int round = 0; round < 300; ++round) {
        const Stay stay;
        std::atomic<bool> over{false};
        stay.sink->onVideo = [&] { late = late || over; };
        hub.add(stay.watcher);
        hub.remove(stay.watcher);
        over = true;
    }
    stop = true;
    source.join();
    QVERIFY(!late);
}

void TestFrameHub::tooLargeFramesAreRefusedUntilTheNextKey()
{
    FrameHub hub(FrameHub::Kind::Video, [] {});
    const Stay stay;
    hub.add(stay.watcher);
    QVERIFY(hub.publish(numbered(0, true)));
    QVERIFY(!hub.publish(numbered(1, false, LinkFrame::maxBytes + 1)));
    QVERIFY(hub.publish(numbered(2, false)));
    QVERIFY(!hub.publish(numbered(3, true, 0)));
    QVERIFY(hub.publish(numbered(4, true, LinkFrame::maxBytes)));
    QCOMPARE(numbers(stay.sink->video()), (Numbers{0, 4}));
}

void TestFrameHub::groupIsBounded()
{
    FrameHub hub(FrameHub::Kind::Video, [] {});
    for (std::uint32_t i = 0; i <= FrameHub::maxGroupFrames; ++i)
        hub.publish(numbered(i, i == 0));
    const Stay many;
    hub.add(many.watcher);
    QVERIFY(many.sink->video().empty());
    QVERIFY(hub.takeKeyWish());
    for (std::uint32_t i = 0; i < 4; ++i)
        hub.publish(numbered(i, i == 0, FrameHub::maxGroupBytes / 3));
    const Stay large;
    hub.add(large.watcher);
    QVERIFY(large.sink->video().empty());
    QCOMPARE(many.sink->videoCount(), std::size_t{4});
}

void TestFrameHub::soundNeedsNoKey()
{
    FrameHub hub(FrameHub::Kind::Audio, [] {});
    hub.publish(numbered(0, false));
    const Stay stay;
    hub.add(stay.watcher);
    hub.publish(numbered(1, false));
    QCOMPARE(numbers(stay.sink->audio()), (Numbers{1}));
    QVERIFY(stay.sink->video().empty());
}

void TestFrameHub::queueDropsUpToTheNextKey()
{
    int changes = 0;
    FrameQueue queue([&] { ++changes; });
    queue.videoFrame(numbered(0, false));
    QCOMPARE(queue.size(), std::size_t{0});
    for (std::uint32_t i = 0; i < FrameQueue::maxFrames + 10; ++i)
        queue.videoFrame(numbered(i, i == 0));
    QCOMPARE(queue.size(), FrameQueue::maxFrames);
    QCOMPARE(queue.dropped(), std::uint64_t{11});
    queue.take();
    queue.videoFrame(numbered(900, false));
    QCOMPARE(queue.size(), FrameQueue::maxFrames - 1);
    queue.videoFrame(numbered(901, true));
    QCOMPARE(queue.size(), FrameQueue::maxFrames);
    QCOMPARE(changes, static_cast<int>(FrameQueue::maxFrames) + 1);
}

ORVA_TEST(TestFrameHub)
#include "tst_framehub.moc"

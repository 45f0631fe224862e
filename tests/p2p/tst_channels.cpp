// SPDX-License-Identifier: GPL-3.0-or-later
// AV channels: opening and closing them, control messages, frames.
#include "layertest.h"
#include "testdevice.h"
#include "testframes.h"
#include "testmain.h"
#include "wire/framing.h"

#include <QElapsedTimer>

#include <set>
#include <thread>

namespace {

const std::string uid = "CHANNELTESTDEVICE001";

// A device, a session with it and one open channel.
struct Link
{
    explicit Link(int number = 0, const std::string& name = uid)
        : device(name)
        , session(connectTo(name))
        , av(openChannel(session, number))
        , channel(device.awaitChannel(number))
    {
    }

    bool ok() const { return device.ok() && session >= 0 && av >= 0 && channel; }

    TestDevice device;
    const int session;
    const int av;
    const LinkChannelPtr channel;
};

// Runs `call` on a thread and tells what it gave and how long after `event` it took.
template <typename Call, typename Event>
std::pair<int, qint64> endedBy(Call call, Event event)
{
    std::atomic<bool> started{false};
    int result = 0;
    std::thread thread([&] {
        started = true;
        result = call();
    });
    while (!started)
        std::this_thread::yield();
    // The call is to be inside the library, which nothing shows from here.
    QTest::qWait(50);
    QElapsedTimer timer;
    timer.start();
    event();
    thread.join();
    return {result, timer.elapsed()};
}

} // namespace

class TestChannels : public LayerTest
{
    Q_OBJECT

private slots:
    void framesOfAnySizeArriveWhole_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {1, 1427, 1428, 1429, 1443, 1444, 1445, 100000, 2304000})
            QTest::addRow("%d bytes", size) << size;
    }
    void framesOfAnySizeArriveWhole()
    {
        QFETCH(const int, size);
        const Link link;
        QVERIFY(link.ok());
        const LinkFrame sent = pictureOf(static_cast<std::size_t>(size), true);
        QCOMPARE(link.channel->sendVideo(sent), LinkChannel::Sent::Queued);
        const ReceivedFrame frame = awaitVideo(link.av);
        QCOMPARE(frame.result, size);
        QCOMPARE(frame.actualSize, size);
        QCOMPARE(frame.expectedSize, size);
        QCOMPARE(frame.infoSize, 16);
        QVERIFY(frame.bytes == textOf(sent));
        QVERIFY(frame.info == infoOf(sent));
    }

    void frameNumbersCountUpByOne()
    {
        const Link link;
        QVERIFY(link.ok());
        for (int i = 0; i < 50; ++i)
            link.channel->sendVideo(pictureOf(3000, i == 0, static_cast<std::uint8_t>(i)));
        unsigned int last = 0;
        for (int i = 0; i < 50; ++i) {
            const ReceivedFrame frame = awaitVideo(link.av);
            QCOMPARE(frame.result, 3000);
            QVERIFY(i == 0 || frame.number == last + 1);
            last = frame.number;
        }
        QCOMPARE(receiveVideo(link.av).result, int(AV_NOTHING_READY));
    }

    void aFrameLargerThanTheCapacityIsDropped()
    {
        const Link link;
        QVERIFY(link.ok());
        link.channel->sendVideo(pictureOf(5000, true));
        link.channel->sendVideo(pictureOf(10, false));
        QCOMPARE(awaitVideo(link.av, 4999).result, int(AV_TOO_LARGE));
        QCOMPARE(awaitVideo(link.av).result, 10);
    }

    void aClientThatTakesNoFramesLosesUpToAKeyFrame()
    {
        const Link link;
        QVERIFY(link.ok());
        for (int i = 0; i < 300; ++i)
            link.channel->sendVideo(pictureOf(100, i % 100 == 0));
        link.channel->sendControl(1, "end");
        QCOMPARE(receiveMessage(link.av, 5000).bytes, std::string("end"));
        QCOMPARE(receiveVideo(link.av).result, int(AV_FRAMES_LOST));
        const ReceivedFrame first = receiveVideo(link.av);
        QCOMPARE(first.result, 100);
        QCOMPARE(int(first.info[2]), 1);
        int rest = 0;
        while (receiveVideo(link.av).result == 100)
            ++rest;
        QCOMPARE(rest, 199);
        QCOMPARE(receiveVideo(link.av).result, int(AV_NOTHING_READY));
    }

    void waitingFramesStayWithinEightMebibytes()
    {
        const Link link;
        QVERIFY(link.ok());
        constexpr int size = 1 << 20;
        for (int i = 0; i < 12; ++i) {
            link.channel->sendVideo(pictureOf(size, true));
            link.channel->sendControl(1, "sent");
            QCOMPARE(receiveMessage(link.av, 5000).bytes, std::string("sent"));
        }
        QCOMPARE(receiveVideo(link.av).result, int(AV_FRAMES_LOST));
        int frames = 0;
        while (receiveVideo(link.av).result == size)
            ++frames;
        QCOMPARE(frames, 8);
    }

    void waitingSoundsAreBoundedToSixtyFour()
    {
        const Link link;
        QVERIFY(link.ok());
        QCOMPARE(avCheckAudioBuf(link.av), 0);
        for (int i = 0; i < 100; ++i)
            link.channel->sendAudio(soundOf(320, static_cast<std::uint8_t>(i)));
        link.channel->sendControl(1, "end");
        QCOMPARE(receiveMessage(link.av, 5000).bytes, std::string("end"));
        QCOMPARE(avCheckAudioBuf(link.av), 65);
        QCOMPARE(receiveSound(link.av).result, int(AV_FRAMES_LOST));
        const ReceivedFrame first = receiveSound(link.av);
        QVERIFY(first.bytes == textOf(soundOf(320, 36)));
        QCOMPARE(receiveSound(link.av, 319).result, int(AV_TOO_LARGE));
        avClientCleanAudioBuf(link.av);
        QCOMPARE(receiveSound(link.av).result, int(AV_NOTHING_READY));
    }

    void cleaningEmptiesFramesAndKeepsMessages()
    {
        const Link link;
        QVERIFY(link.ok());
        link.channel->sendVideo(pictureOf(100, true));
        link.channel->sendAudio(soundOf(320));
        link.channel->sendControl(7, "kept");
        QTRY_COMPARE(avCheckAudioBuf(link.av), 1);
        QCOMPARE(avClientCleanBuf(link.av), 0);
        QCOMPARE(receiveVideo(link.av).result, int(AV_NOTHING_READY));
        QCOMPARE(receiveSound(link.av).result, int(AV_NOTHING_READY));
        const ReceivedMessage message = receiveMessage(link.av, 5000);
        QCOMPARE(message.type, 7U);
        QCOMPARE(message.bytes, std::string("kept"));
    }

    void aFrameThatBreaksOffComesInPart()
    {
        const Link link;
        QVERIFY(link.ok());
        const std::string info(16, '\1');
        const std::string bytes(5000, 'x');
        FragmentWriter writer(Media::Video, 0, info, bytes);
        link.channel->sendRaw(writer.next());
        link.channel->sendVideo(pictureOf(10, true));
        const ReceivedFrame part = awaitVideo(link.av);
        QCOMPARE(part.result, int(AV_FRAME_IN_PART));
        QCOMPARE(part.expectedSize, 5000);
        QVERIFY(part.actualSize > 0 && part.actualSize < 5000);
        QCOMPARE(awaitVideo(link.av).result, 10);
    }

    void aGapInTheNumbersIsOneLoss()
    {
        const Link link;
        QVERIFY(link.ok());
        const std::string info(16, '\1');
        for (const unsigned number : {5U, 9U, 10U}) {
            FragmentWriter writer(Media::Video, number, info, "picture");
            link.channel->sendRaw(writer.next());
        }
        QCOMPARE(awaitVideo(link.av).number, 5U);
        QCOMPARE(awaitVideo(link.av).result, int(AV_FRAMES_LOST));
        QCOMPARE(awaitVideo(link.av).number, 9U);
        QCOMPARE(awaitVideo(link.av).number, 10U);
    }

    void rubbishFromTheDeviceCostsItsSessionOnly()
    {
        Link link;
        TestDevice other("CHANNELTESTDEVICE002");
        const int otherSession = connectTo(other.uid());
        const int otherAv = openChannel(otherSession, 0);
        QVERIFY(link.ok() && otherAv >= 0);
        link.channel->sendRaw(std::string(700, '\xee'));
        QTRY_COMPARE(receiveVideo(link.av).result, int(AV_DEVICE_GONE));
        QCOMPARE(openChannel(link.session, 1), int(AV_DEVICE_GONE));
        QCOMPARE(sendMessage(otherAv, 1, "still here"), 0);
    }

    void messagesArriveInOrderEachOnce()
    {
        Link link;
        QVERIFY(link.ok());
        for (int i = 0; i < 300; ++i)
            QCOMPARE(sendMessage(link.av, static_cast<unsigned>(i), std::to_string(i)), 0);
        const auto messages = link.device.messages();
        QCOMPARE(messages.size(), std::size_t{300});
        for (std::size_t i = 0; i < messages.size(); ++i) {
            QCOMPARE(messages[i].type, static_cast<std::uint32_t>(i));
            QCOMPARE(messages[i].bytes, std::to_string(i));
        }
    }

    void sendersOnOneChannelDoNotDisturbEachOther()
    {
        Link link;
        QVERIFY(link.ok());
        std::atomic<int> failures{0};
        std::vector<std::thread> threads;
        threads.reserve(4);
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&, t] {
                for (int i = 0; i < 50; ++i) {
                    const auto type = static_cast<unsigned>(t * 1000 + i);
                    failures += sendMessage(link.av, type, "message") == 0 ? 0 : 1;
                }
            });
        }
        for (std::thread& thread : threads)
            thread.join();
        QCOMPARE(failures.load(), 0);
        std::vector<std::uint32_t> next{0, 0, 0, 0};
        for (const auto& message : link.device.messages())
            QCOMPARE(message.type % 1000, next[message.type / 1000]++);
        QCOMPARE(next, (std::vector<std::uint32_t>{50, 50, 50, 50}));
    }

    void aMessageHasOneTo1024Bytes()
    {
        Link link;
        QVERIFY(link.ok());
        QCOMPARE(avSendIOCtrl(link.av, 1, "x", 0), int(AV_BAD_SIZE));
        QCOMPARE(avSendIOCtrl(link.av, 1, "x", -1), int(AV_BAD_SIZE));
        QCOMPARE(sendMessage(link.av, 1, std::string(1025, 'x')), int(AV_BAD_SIZE));
        QCOMPARE(avSendIOCtrl(link.av, 1, nullptr, 4), int(AV_BAD_ARGUMENT));
        QCOMPARE(sendMessage(link.av, 2, "x"), 0);
        QCOMPARE(sendMessage(link.av, 3, std::string(1024, 'y')), 0);
        QCOMPARE(link.device.messages().size(), std::size_t{2});
    }

    void messagesFromTheDeviceComeInOrder()
    {
        Link link;
        QVERIFY(link.ok());
        // More than the window, less than what a device lets pile up.
        constexpr int count = 1000;
        for (int i = 0; i < count; ++i)
            QVERIFY(link.channel->sendControl(static_cast<std::uint32_t>(i), std::to_string(i)));
        for (int i = 0; i < count; ++i) {
            const ReceivedMessage message = receiveMessage(link.av, 5000);
            QCOMPARE(message.type, static_cast<unsigned>(i));
            QCOMPARE(message.bytes, std::to_string(i));
        }
        QCOMPARE(receiveMessage(link.av, 0).result, int(AV_NO_ANSWER));
    }

    void aMessageLargerThanTheCapacityIsDropped()
    {
        Link link;
        QVERIFY(link.ok());
        link.channel->sendControl(1, std::string(100, 'x'));
        link.channel->sendControl(2, "short");
        QCOMPARE(receiveMessage(link.av, 5000, 99).result, int(AV_TOO_LARGE));
        QCOMPARE(receiveMessage(link.av, 5000, 99).bytes, std::string("short"));
    }

    void aClientThatTakesNoMessagesLosesItsSession()
    {
        Link link;
        QVERIFY(link.ok());
        int taken = 0;
        while (taken < 5000 && link.channel->sendControl(1, "message"))
            ++taken;
        QVERIFY2(taken >= 1024 && taken < 1300, qPrintable(QString::number(taken)));
        QTRY_COMPARE(link.device.closed(), 1);
        QTRY_COMPARE(receiveVideo(link.av).result, int(AV_DEVICE_GONE));
    }

    void receivingWaitsForTheTimeGiven()
    {
        Link link;
        QVERIFY(link.ok());
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(receiveMessage(link.av, 200).result, int(AV_NO_ANSWER));
        QVERIFY(timer.elapsed() >= 199);
    }

    void exitEndsSendsInFlightAndLaterOnesWork()
    {
        Link link;
        QVERIFY(link.ok());
        link.device.takes = false;
        const auto [result, took] = endedBy([&] { return sendMessage(link.av, 1, "held"); },
            [&] { QCOMPARE(avSendIOCtrlExit(link.av), 0); });
        QCOMPARE(result, int(AV_SEND_ENDED));
        QVERIFY2(took <= 100, qPrintable(QString::number(took)));
        link.device.takes = true;
        QCOMPARE(sendMessage(link.av, 2, "works"), 0);
    }

    void closingTheSessionEndsCallsInFlight()
    {
        Link link;
        QVERIFY(link.ok());
        const auto [result, took] = endedBy([&] { return receiveMessage(link.av, 20000).result; },
            [&] { IOTC_Session_Close(link.session); });
        QCOMPARE(result, int(AV_SESSION_CLOSED));
        QVERIFY2(took <= 100, qPrintable(QString::number(took)));
        QCOMPARE(receiveVideo(link.av).result, int(AV_BAD_INDEX));
        QTRY_COMPARE(link.device.closed(), 1);
    }

    void stoppingTheChannelEndsCallsInFlight()
    {
        Link link;
        QVERIFY(link.ok());
        const auto [result, took] = endedBy(
            [&] { return receiveMessage(link.av, 20000).result; }, [&] { avClientStop(link.av); });
        QCOMPARE(result, int(AV_CLIENT_STOPPED));
        QVERIFY2(took <= 100, qPrintable(QString::number(took)));
        QTRY_COMPARE(link.device.closed(), 1);
        QCOMPARE(openChannel(link.session, 0), link.av);
    }

    void aDeviceThatClosesTheChannelIsGone()
    {
        Link link;
        QVERIFY(link.ok());
        const auto [result, took] = endedBy(
            [&] { return receiveMessage(link.av, 20000).result; }, [&] { link.channel->close(); });
        QCOMPARE(result, int(AV_DEVICE_GONE));
        QCOMPARE(receiveVideo(link.av).result, int(AV_DEVICE_GONE));
    }

    void aDeviceWhoseCableIsPulledIsGoneWithinSixSeconds()
    {
        Link link;
        QVERIFY(link.ok());
        QElapsedTimer timer;
        timer.start();
        link.device.host().setSilent(uid, true);
        QCOMPARE(receiveMessage(link.av, 20000).result, int(AV_DEVICE_GONE));
        QVERIFY2(timer.elapsed() <= 6000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(sendMessage(link.av, 1, "x"), int(AV_DEVICE_GONE));
        QCOMPARE(avCheckAudioBuf(link.av), int(AV_DEVICE_GONE));
        QCOMPARE(avClientCleanBuf(link.av), int(AV_DEVICE_GONE));
    }

    void indexesAreTheSmallestFreeOnes()
    {
        Link link(2);
        QVERIFY(link.ok());
        QCOMPARE(link.av, 0);
        QCOMPARE(openChannel(link.session, 0), 1);
        QCOMPARE(openChannel(link.session, 1), 2);
        avClientStop(1);
        QCOMPARE(openChannel(link.session, 3), 1);
    }

    void aChannelOpensOnce()
    {
        Link link(2);
        QVERIFY(link.ok());
        QCOMPARE(openChannel(link.session, 2), int(AV_CHANNEL_OPEN));
        avClientStop(link.av);
        QCOMPARE(openChannel(link.session, 2), link.av);
        QCOMPARE(sendMessage(link.av, 1, "works"), 0);
        QTRY_COMPARE(link.device.closed(), 1);
    }

    void aChannelThatTheDeviceHasNotDoesNotOpen()
    {
        Link link;
        QVERIFY(link.ok());
        QCOMPARE(openChannel(link.session, 4), int(AV_NO_ANSWER));
        QCOMPARE(openChannel(link.session, 254), int(AV_NO_ANSWER));
    }

    void aChannelThatTheDeviceOffersOpens()
    {
        Link link;
        QVERIFY(link.ok());
        const int number = link.channel->offerChannel();
        QVERIFY(number >= 64 && number <= 254);
        const int av = openChannel(link.session, number);
        QVERIFY2(av >= 0, qPrintable(QString::number(av)));
        link.device.awaitChannel(number)->sendVideo(pictureOf(500, true));
        QCOMPARE(awaitVideo(av).result, 500);
        QCOMPARE(receiveVideo(link.av).result, int(AV_NOTHING_READY));
        const int other = link.channel->offerChannel();
        link.channel->takeBackChannel(other);
        QCOMPARE(openChannel(link.session, other), int(AV_NO_ANSWER));
    }

    void aWrongAccountOrPasswordIsTold()
    {
        TestDevice device(uid);
        const int session = connectTo(uid);
        QVERIFY(session >= 0);
        QCOMPARE(openChannel(session, 0, "wrong"), int(AV_WRONG_PASSWORD));
        QCOMPARE(openChannel(session, 0, ""), int(AV_WRONG_PASSWORD));
        QCOMPARE(avClientStart2(session, "admin", "secret", 5, nullptr, 0, nullptr),
            int(AV_WRONG_PASSWORD));
        QTRY_COMPARE(device.wrongPasswords(), 3);
        QVERIFY(openChannel(session, 0) >= 0);
        QTRY_COMPARE(device.opened(), 1);
    }

    void aNewPasswordCountsFromTheNextChannelOn()
    {
        Link link;
        QVERIFY(link.ok());
        link.device.host().setPassword(uid, "changed");
        QCOMPARE(sendMessage(link.av, 1, "still open"), 0);
        QCOMPARE(openChannel(link.session, 1), int(AV_WRONG_PASSWORD));
        QVERIFY(openChannel(link.session, 1, "changed") >= 0);
    }

    void tenWrongPasswordsShutTheAddressOut()
    {
        TestDevice device("CHANNELTESTDEVICE003");
        const int session = connectTo(device.uid());
        QVERIFY(session >= 0);
        for (int i = 0; i < 10; ++i)
            QCOMPARE(openChannel(session, 0, "guess"), int(AV_WRONG_PASSWORD));
        QTRY_COMPARE(device.lockOuts(), 1);
        QCOMPARE(openChannel(session, 0), int(AV_LOCKED_OUT));
        QCOMPARE(connectTo(device.uid()), int(IOTC_LOCKED_OUT));
        // Another device of the same host has nothing to do with it.
        TestDevice other(uid);
        QVERIFY(connectTo(uid) >= 0);
    }

    void closingTheSessionWhileAChannelStartsTellsSo()
    {
        TestDevice device(uid);
        for (int i = 0; i < 20; ++i) {
            const int session = connectTo(uid);
            QVERIFY(session >= 0);
            std::atomic<bool> started{false};
            int result = 0;
            std::thread opening([&] {
                started = true;
                result = openChannel(session, 0);
            });
            while (!started)
                std::this_thread::yield();
            std::this_thread::sleep_for(std::chrono::microseconds(i * 5));
            IOTC_Session_Close(session);
            opening.join();
            // Before it has begun the session is not there; afterwards the channel is open.
            const std::set<int> sound{AV_SESSION_CLOSED, AV_BAD_INDEX, 0};
            QVERIFY2(sound.count(result) == 1, qPrintable(QString::number(result)));
        }
    }
};

ORVA_TEST(TestChannels)
#include "tst_channels.moc"

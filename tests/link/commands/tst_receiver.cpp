// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/dev.h"
#include "iotest.h"
#include "link/getmsg.h"
#include "testmain.h"

#include <QTest>
#include <QThreadPool>

// How a receiver asks for messages, and when it ends. The channel of most of these tests is number
// 1, on AV index 2.
class TestReceiver final : public QObject
{
    Q_OBJECT

private slots:
    void asksWithoutWaiting();
    void pausesAfterNoMessage();
    void takesABurstWithoutAPauseAndInOrder();
    void everyFailureCountsAsNoMessage_data();
    void everyFailureCountsAsNoMessage();
    void tooLongMessageIsPassedOver();
    void messageThatFillsTheBufferIsTaken();

    void asksNothingWithoutASession();
    void asksNothingWithoutAChannel();
    void endsWithTheSessionAndIsNotStartedAgain();
    void endsWhenItsDeviceLeavesTheRegistry();
    void goesOnWhenAnotherDeviceLeavesTheRegistry();
    void messageUnderWayIsStillTakenWhenItsDeviceLeaves();
    void unlistedNumberGoesToTheBaseClass();

    void channelsHaveReceiversOfTheirOwn();
    void secondConnectMakesNoSecondReceiver();
    void channelThatReconnectsHasOneReceiver();
    void channelThatReconnectsAtOnceHasOneReceiver();
    void thousandReconnectsLeaveOneReceiver();
};

namespace {

const QByteArray rotated = QByteArray::fromHex("01000000");
const QString rotatedLine = QStringLiteral("getRotateModeSuccessMsg 1");

QList<GetMsg*> receiversOf(const IoTest& t)
{
    return t.io->findChildren<GetMsg*>();
}

int polls(const IoTest& t, int number = 1)
{
    return t.link.count(LinkFn::avRecvIOCtrl, onIndex(t.avIndex(number)));
}

// Whether nobody asks for messages of this index while another channel connects and is asked for its
// own several times.
bool isQuietWhileOtherIsAsked(IoTest& t, int quietIndex, Channel* other)
{
    const auto pollsOf = [&t](int index) {
        return t.link.count(LinkFn::avRecvIOCtrl, onIndex(index));
    };
    const int before = pollsOf(quietIndex);
    t.io->connect(other);
    const bool asked = QTest::qWaitFor([&] { return pollsOf(other->mode(true).avIndex) >= 4; });
    return asked && pollsOf(quietIndex) == before;
}

// A connected device of its own, beside that of the fixture.
DeviceOwner otherDevice(const IoTest& t)
{
    DeviceOwner device(new Device);
    device->setUid(QStringLiteral("0123456789ABCDEFGHIJ"));
    device->setChannelCount(1);
    device->sid = t.link.openSession();
    device->channel(0)->mode(true).avIndex = t.link.openChannel(device->sid);
    return device;
}

} // namespace

void TestReceiver::asksWithoutWaiting()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QTRY_VERIFY(polls(t) >= 3);
    for (const LinkCall& call : t.link.calls(LinkFn::avRecvIOCtrl)) {
        QCOMPARE(call.avIndex(), 2);
        QCOMPARE(call.number("capacity"), 1024);
        QCOMPARE(call.number("timeoutMs"), 0);
    }
}

void TestReceiver::pausesAfterNoMessage()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QTRY_VERIFY(polls(t) >= 4);
    const auto calls = t.link.calls(LinkFn::avRecvIOCtrl);
    constexpr std::chrono::milliseconds pause(95); // timers may fire 5 % early
    for (std::size_t i = 1; i < calls.size(); ++i)
        QVERIFY(calls[i].start - calls[i - 1].start >= pause);
}

void TestReceiver::takesABurstWithoutAPauseAndInOrder()
{
    constexpr int count = 50;
    IoTest t(2);
    QList<int> modes;
    connect(
        t.io.get(), &IoConnect::getRotateModeSuccessMsg, this,
        [&](Channel*, const int* mode) { modes.append(*mode); }, Qt::DirectConnection);
    QList<int> sent;
    for (int i = 0; i < count; ++i) {
        sent.append(i);
        t.link.queueMessage(2, 13089, QByteArray(1, static_cast<char>(i)));
    }
    t.io->connect(t.channel(1));
    QVERIFY(t.settle()); // no timer fires meanwhile
    QCOMPARE(modes, sent);
    QCOMPARE(polls(t), count + 1);
}

void TestReceiver::everyFailureCountsAsNoMessage_data()
{
    QTest::addColumn<int>("result");
    for (const int result : {-1, -20000, -20001, -20010, -20011, -20015, -20016, -20019, -99999})
        QTest::addRow("%d", result) << result;
}

void TestReceiver::everyFailureCountsAsNoMessage()
{
    QFETCH(int, result);
    IoTest t(2);
    t.link.nextResults(LinkFn::avRecvIOCtrl, {result, result});
    QVERIFY(t.startReceiving(1));
    QCOMPARE(polls(t), 1); // and no second one without the pause
    QTRY_COMPARE(polls(t), 2);
    QVERIFY(t.receive(13089, rotated, 1));
    QCOMPARE(t.record.lines(), QStringList({rotatedLine}));
}

void TestReceiver::tooLongMessageIsPassedOver()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    t.link.queueMessage(2, 13089, QByteArray(1025, '\0'));
    QVERIFY(t.receive(13089, rotated, 1));
    QCOMPARE(t.record.lines(), QStringList({rotatedLine}));
}

void TestReceiver::messageThatFillsTheBufferIsTaken()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(13084, QByteArray(1024, 'v'), 1));
    QCOMPARE(t.record.lines(), QStringList({"getChannelInfoMsg 1"}));
    QCOMPARE(QByteArray(t.channel(1)->version()->data(), 64), QByteArray(64, 'v'));
}

void TestReceiver::asksNothingWithoutASession()
{
    IoTest t(2);
    const int sid = t.device->sid;
    t.device->sid = -1;
    GetMsg receiver;
    receiver.setChannel(t.channel(1));
    QVERIFY(t.settle());
    QVERIFY(!receiver.isPolling());
    t.device->sid = sid;
    QVERIFY(isQuietWhileOtherIsAsked(t, 2, t.channel(0)));
    QCOMPARE(polls(t), 0);
}

void TestReceiver::asksNothingWithoutAChannel()
{
    IoTest t(2);
    GetMsg receiver;
    QMetaObject::invokeMethod(&receiver, "getMsg");
    QVERIFY(t.settle());
    QVERIFY(!receiver.isPolling());
    QCOMPARE(t.link.count(LinkFn::avRecvIOCtrl), 0);
}

void TestReceiver::endsWithTheSessionAndIsNotStartedAgain()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    const int sid = t.device->sid;
    t.device->sid = -1;
    QTRY_VERIFY(!receiversOf(t).at(0)->isPolling());
    t.device->sid = sid;
    const DeviceOwner other = otherDevice(t);
    QVERIFY(isQuietWhileOtherIsAsked(t, 2, other->channel(0)));
    other->sid = -1;
    QVERIFY(t.settle());
}

void TestReceiver::endsWhenItsDeviceLeavesTheRegistry()
{
    IoTest t(2);
    const DeviceOwner other = otherDevice(t);
    QVERIFY(t.startReceiving(1));
    emit Dev::instance()->deleteDevMsg(t.device.get());
    QTRY_VERIFY(!receiversOf(t).at(0)->isPolling());
    QCOMPARE(receiversOf(t).at(0)->channel(), nullptr);
    QVERIFY(isQuietWhileOtherIsAsked(t, 2, other->channel(0)));
    other->sid = -1;
    QVERIFY(t.settle());
}

void TestReceiver::goesOnWhenAnotherDeviceLeavesTheRegistry()
{
    IoTest t(2);
    Device other;
    other.setChannelCount(1);
    QVERIFY(t.startReceiving(1));
    emit Dev::instance()->deleteDevMsg(&other);
    QVERIFY(t.receive(13089, rotated, 1));
    QCOMPARE(t.record.lines(), QStringList({rotatedLine}));
}

void TestReceiver::messageUnderWayIsStillTakenWhenItsDeviceLeaves()
{
    IoTest t(2);
    t.link.queueMessage(2, 13089, rotated);
    t.link.queueMessage(2, 13089, rotated);
    t.io->connect(t.channel(1));
    QVERIFY(QThreadPool::globalInstance()->waitForDone(5000)); // the first is an event by now
    emit Dev::instance()->deleteDevMsg(t.device.get());
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines().filter(rotatedLine), QStringList({rotatedLine}));
    QVERIFY(!receiversOf(t).at(0)->isPolling());
}

void TestReceiver::unlistedNumberGoesToTheBaseClass()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QObject plainObject;
    QEvent unlisted(static_cast<QEvent::Type>(1013));
    QCOMPARE(receiversOf(t).at(0)->event(&unlisted), plainObject.event(&unlisted));
    QCOMPARE(t.record.lines(), QStringList());
}

void TestReceiver::channelsHaveReceiversOfTheirOwn()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(0));
    QVERIFY(t.startReceiving(1));
    QCOMPARE(receiversOf(t).size(), 2);
    QVERIFY(t.receive(13089, rotated, 1));
    QVERIFY(t.receive(13089, rotated, 0));
    QCOMPARE(t.record.lines(), QStringList({rotatedLine, "getRotateModeSuccessMsg 0"}));
}

void TestReceiver::secondConnectMakesNoSecondReceiver()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    t.io->connect(t.channel(1));
    QVERIFY(t.settle());
    QCOMPARE(t.record.sentTypes(), QList<int>({13083, 802, 4353}));
    QCOMPARE(receiversOf(t).size(), 1);
    t.record.clear();
    QVERIFY(t.receive(13089, rotated, 1));
    QCOMPARE(t.record.lines(), QStringList({rotatedLine}));
}

void TestReceiver::channelThatReconnectsHasOneReceiver()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    t.io->disConnectDevice(t.device.get());
    QTRY_VERIFY(!receiversOf(t).at(0)->isPolling());
    QVERIFY(t.startReceiving(1));
    QCOMPARE(receiversOf(t).size(), 1);
    QVERIFY(receiversOf(t).at(0)->isPolling());
    QVERIFY(t.receive(13089, rotated, 1));
    QCOMPARE(t.record.lines(), QStringList({rotatedLine}));
}

// The receiver pauses, and has not seen that there was no session for a moment.
void TestReceiver::channelThatReconnectsAtOnceHasOneReceiver()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    t.io->disConnectDevice(t.device.get());
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.avIndex(1) >= 0);
    QCOMPARE(receiversOf(t).size(), 1);
    QVERIFY(t.receive(13089, rotated, 1));
    QCOMPARE(t.record.lines(), QStringList({rotatedLine}));
    // One receiver asks once a pause.
    const int before = polls(t);
    const auto start = std::chrono::steady_clock::now();
    QTRY_VERIFY(polls(t) >= before + 4);
    QVERIFY(std::chrono::steady_clock::now() - start >= std::chrono::milliseconds(280));
}

void TestReceiver::thousandReconnectsLeaveOneReceiver()
{
    IoTest t(2);
    for (int i = 0; i < 1000; ++i) {
        QVERIFY(t.startReceiving(1));
        t.io->disConnectDevice(t.device.get());
        if (i % 2 == 1) { // every other time the receiver sees the end
            for (GetMsg* receiver : receiversOf(t))
                QMetaObject::invokeMethod(receiver, "getMsg");
        }
        QVERIFY(receiversOf(t).size() <= 1);
    }
    QVERIFY(t.startReceiving(1));
    QCOMPARE(receiversOf(t).size(), 1);
    QVERIFY(t.receive(13089, rotated, 1));
    QCOMPARE(t.record.lines(), QStringList({rotatedLine}));
}

ORVA_TEST(TestReceiver)
#include "tst_receiver.moc"

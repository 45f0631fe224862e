// SPDX-License-Identifier: GPL-3.0-or-later
#include "iotest.h"
#include "link/getmsg.h"
#include "testmain.h"

#include <QMetaMethod>
#include <QTest>

// What becomes of each message of a device. The channel of these tests is number 1, on AV index 2.
class TestGetMsg final : public QObject
{
    Q_OBJECT

private slots:
    void messageHasItsSignal_data();
    void messageHasItsSignal();
    void unknownMessageIsLoggedAndDropped_data();
    void unknownMessageIsLoggedAndDropped();
    void shortMessageReadsAsZerosBehindItsEnd();

    void wifiListReachesTheView();
    void countOfAWifiListIsThatOfTheMessage();
    void wifiOfTheDeviceReachesTheView();
    void sensitivityReachesTheView();
    void smartModeReachesTheView();
    void rotationReachesTheView();
    void recordModeReachesTheView();

    void acceptedQualityIsReadBack();
    void refusedQualityIsSilent();
    void qualityIsKept_data();
    void qualityIsKept();
    void ptzStateIsKept();
    void versionIsKept();

    void startedReplayOpensItsChannel();
    void endOfARecordingGoesOnWithTheNextBlock();
    void endOfTheLastRecordingChangesNothing();
    void stoppedReplayIsClosed();
    void secondStopOfAReplayOnlyTellsAgain();
    void pausedReplaySaysNothing();
    void unknownPlayCommandIsLogged();

    void everySignalIsRelayedWithItsArguments_data();
    void everySignalIsRelayedWithItsArguments();
};

namespace {

QByteArray hex(const char* text)
{
    return QByteArray::fromHex(text);
}

QByteArray zeros(int count)
{
    return QByteArray(count, '\0');
}

// A text in a field of this size.
QByteArray field(const char* text, int size)
{
    return QByteArray(text).leftJustified(size, '\0');
}

// Emits a signal of the receiver with arguments of its own, and keeps what arrives.
class Emission final
{
public:
    // The line it makes.
    QString of(GetMsg* receiver, const QMetaMethod& signal, Channel* channel)
    {
        channel_ = channel;
        QString line = QString::fromLatin1(signal.name()) + QLatin1Char(' ')
            + QString::number(channel->number());
        void* arguments[5] = {};
        const QList<QByteArray> types = signal.parameterTypes();
        for (int i = 0; i < types.size(); ++i) {
            arguments[i + 1] = argument(types.at(i));
            line += text(types.at(i));
        }
        receiver->qt_metacall(QMetaObject::InvokeMetaMethod, signal.methodIndex(), arguments);
        return line;
    }

private:
    void* argument(const QByteArray& type)
    {
        if (type == "Channel*")
            return &channel_;
        if (type == "int")
            return &number_;
        if (type == "QString")
            return &text_;
        if (type == "QList<int>")
            return &list_;
        return &message_;
    }
    static QString text(const QByteArray& type)
    {
        if (type == "int")
            return QStringLiteral(" -17");
        if (type == "QString")
            return QStringLiteral(" the text");
        return type == "QList<int>" ? QStringLiteral(" [3,1,4]") : QString();
    }

    Channel* channel_ = nullptr;
    int number_ = -17;
    QString text_ = QStringLiteral("the text");
    QList<int> list_{3, 1, 4};
    void* message_ = nullptr;
};

} // namespace

void TestGetMsg::messageHasItsSignal_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char* name, int type, const QByteArray& message,
                         const QStringList& lines) {
        QTest::newRow(name) << type << message << lines;
    };
    const QByteArray success = zeros(4);
    const QByteArray refusal = hex("01000000");
    row("record mode set", 785, success, {"setRecordModeSuccessMsg 1"});
    row("record mode refused", 785, refusal, {});
    row("record mode", 787, zeros(8), {"getRecordModeSuccessMsg 1"});
    row("quality refused", 801, refusal, {});
    row("quality", 803, zeros(5), {"changeQualitySuccessMsg 1"});
    row("sensitivity set", 805, success, {"setSmartSensitivitySuccessMsg 1"});
    row("sensitivity refused", 805, refusal,
        {"setSmartSensitivityFailMsg 1 0 Failed to configure the senitivity of smart detection"});
    row("sensitivity", 807, zeros(8), {"getSmartSensitivitySuccessMsg 1"});
    row("password refused", 819, refusal, {"setPasswordFailMsg 1 0 Failed to configure password"});
    row("replay time set", 829, zeros(1), {"changeReplayTimeSuccessMsg 1"});
    row("replay time set, by its first byte alone", 829, hex("00ffffff"),
        {"changeReplayTimeSuccessMsg 1"});
    row("replay time refused", 829, hex("01"),
        {"changeReplayTimeFailMsg 1 0 Playback video data does not exist."});
    row("replay time refused, high bit", 829, hex("80"),
        {"changeReplayTimeFailMsg 1 0 Playback video data does not exist."});
    row("Wi-Fi list", 833, zeros(4), {"getWifiListSuccessMsg 1"});
    row("Wi-Fi set", 835, success, {"setWifiSuccessMsg 1"});
    row("Wi-Fi refused", 835, refusal, {"setWifiFailMsg 1 0 Failed to configure wireless network"});
    row("Wi-Fi", 837, zeros(64), {"getWifiConfigSuccessMsg 1"});
    row("replay refused", 1793, hex("0000000001"),
        {"startReplayFailMsg 1 0 Does not support simultaneous remote playback."});
    row("replay notice 0", 1793, hex("0100000000"), {});
    row("replay notice 2", 1793, hex("0000000002"), {});
    row("PTZ state", 4354, zeros(4), {"getPtzMsg 1"});
    row("version", 13084, zeros(64), {"getChannelInfoMsg 1"});
    row("rotation", 13089, zeros(4), {"getRotateModeSuccessMsg 1"});
    row("time zone set", 13103, hex("01000000"), {"setTimeZoneSuccessMsg 1"});
    row("time zone refused", 13103, success,
        {"setTimeZoneFailMsg 1 0 Device cannot modify time zone"});
    row("smart mode set", 41254, success, {"setSmartModeSuccessMsg 1"});
    row("smart mode refused", 41254, refusal,
        {"setSmartModeFailMsg 1 0 Failed to configure the mode of smart detection"});
    row("smart mode", 41255, zeros(1), {"getSmartModeSuccessMsg 1"});
    row("status that is all in its last byte", 835, hex("00000080"),
        {"setWifiFailMsg 1 0 Failed to configure wireless network"});
}

void TestGetMsg::messageHasItsSignal()
{
    QFETCH(int, type);
    QFETCH(QByteArray, message);
    QFETCH(QStringList, lines);
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(type, message, 1));
    QCOMPARE(t.record.lines(), lines);
}

void TestGetMsg::unknownMessageIsLoggedAndDropped_data()
{
    QTest::addColumn<int>("type");
    // Those that the client sends are unknown too when they come back.
    for (const int type : {0, 1, 255, 784, 794, 13083, 13088, 41253, 65535})
        QTest::addRow("%d", type) << type;
}

void TestGetMsg::unknownMessageIsLoggedAndDropped()
{
    QFETCH(int, type);
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QTest::ignoreMessage(QtDebugMsg, qPrintable(QStringLiteral("msgTask:%1").arg(type)));
    QVERIFY(t.receive(type, zeros(64), 1));
    QVERIFY(t.receive(13089, zeros(4), 1));
    QCOMPARE(t.record.lines(), QStringList({"getRotateModeSuccessMsg 1"}));
}

void TestGetMsg::shortMessageReadsAsZerosBehindItsEnd()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    t.channel(1)->mode(true).highQuality = true;
    QVERIFY(t.receive(835, {}, 1));
    QVERIFY(t.receive(803, zeros(4), 1));
    QVERIFY(t.receive(1793, hex("01"), 1));
    QCOMPARE(t.record.lines(), QStringList({"setWifiSuccessMsg 1", "changeQualitySuccessMsg 1"}));
    QVERIFY(!t.channel(1)->mode(true).highQuality);
}

void TestGetMsg::wifiListReachesTheView()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QStringList names;
    connect(
        t.io.get(), &IoConnect::getWifiListSuccessMsg, this,
        [&](Channel*, const SMsgAVIoctrlListWifiApResp* list) {
            for (int i = 0; i < list->count; ++i)
                names.append(
                    QString::fromLatin1(list->aps.at(static_cast<std::size_t>(i)).ssid.data()));
        },
        Qt::DirectConnection);
    const QByteArray list = hex("02000000") + field("Home", 32) + hex("ffffffff")
        + field("Office 5", 32) + hex("01020304");
    QVERIFY(t.receive(833, list, 1));
    QCOMPARE(names, QStringList({"Home", "Office 5"}));
}

void TestGetMsg::countOfAWifiListIsThatOfTheMessage()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QList<int> counts;
    connect(
        t.io.get(), &IoConnect::getWifiListSuccessMsg, this,
        [&](Channel*, const SMsgAVIoctrlListWifiApResp* list) { counts.append(list->count); },
        Qt::DirectConnection);
    const QByteArray ap = field("Home", 36);
    QVERIFY(t.receive(833, hex("ff000000") + ap, 1));
    QVERIFY(t.receive(833, hex("ffffffff") + ap, 1));
    QVERIFY(t.receive(833, hex("1c000000") + ap.repeated(28), 1));
    QCOMPARE(counts, QList<int>({1, 0, 28}));
}

void TestGetMsg::wifiOfTheDeviceReachesTheView()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QStringList texts;
    connect(
        t.io.get(), &IoConnect::getWifiConfigSuccessMsg, this,
        [&](Channel*, const SMsgAVIoctrlGetWifiResp* config) {
            texts.append(QString::fromLatin1(config->ssid.data()));
            texts.append(QString::fromLatin1(config->password.data()));
        },
        Qt::DirectConnection);
    QVERIFY(t.receive(837, field("Home", 32) + field("s3cret", 32), 1));
    QCOMPARE(texts, QStringList({"Home", "s3cret"}));
}

void TestGetMsg::sensitivityReachesTheView()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    int sensitivity = -1;
    connect(
        t.io.get(), &IoConnect::getSmartSensitivitySuccessMsg, this,
        [&](Channel*, const SMsgAVIoctrlGetMotionDetectResp* answer) {
            sensitivity = answer->sensitivity;
        },
        Qt::DirectConnection);
    QVERIFY(t.receive(807, hex("070000004b000000"), 1));
    QCOMPARE(sensitivity, 75);
}

void TestGetMsg::smartModeReachesTheView()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    int mode = -1;
    connect(
        t.io.get(), &IoConnect::getSmartModeSuccessMsg, this,
        [&](Channel*, const DMS_NET_MOTION_CFG* answer) { mode = answer->mode; },
        Qt::DirectConnection);
    QVERIFY(t.receive(41255, hex("01ff"), 1));
    QCOMPARE(mode, 1);
}

void TestGetMsg::rotationReachesTheView()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    int rotation = -1;
    connect(
        t.io.get(), &IoConnect::getRotateModeSuccessMsg, this,
        [&](Channel*, const int* mode) { rotation = *mode; }, Qt::DirectConnection);
    QVERIFY(t.receive(13089, hex("03000000"), 1));
    QCOMPARE(rotation, 3);
}

void TestGetMsg::recordModeReachesTheView()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    int type = -1;
    connect(
        t.io.get(), &IoConnect::getRecordModeSuccessMsg, this,
        [&](Channel*, const SMsgAVIoctrlGetRecordResq* answer) { type = answer->recordType; },
        Qt::DirectConnection);
    QVERIFY(t.receive(787, hex("0900000002000000"), 1));
    QCOMPARE(type, 2);
}

void TestGetMsg::acceptedQualityIsReadBack()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(801, zeros(4), 1));
    QCOMPARE(t.record.lines(), QStringList({"send 802"}));
    QCOMPARE(t.record.sends().at(0).payload(), hex("0100000000000000"));
    QCOMPARE(t.record.sends().at(0).avIndex(), 2);
}

void TestGetMsg::refusedQualityIsSilent()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(801, hex("ffffffff"), 1));
    QCOMPARE(t.record.lines(), QStringList());
}

void TestGetMsg::qualityIsKept_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<bool>("high");
    QTest::newRow("high") << hex("0000000001000000") << true;
    QTest::newRow("any other than 0 is high") << hex("0000000080") << true;
    QTest::newRow("low") << hex("ffffffff00ff") << false;
}

void TestGetMsg::qualityIsKept()
{
    QFETCH(QByteArray, message);
    QFETCH(bool, high);
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    t.channel(1)->mode(true).highQuality = !high;
    t.channel(1)->mode(false).highQuality = !high;
    bool bySignal = !high;
    connect(t.io.get(), &IoConnect::changeQualitySuccessMsg, this,
        [&](Channel* channel) { bySignal = channel->mode(true).highQuality; });
    QVERIFY(t.receive(803, message, 1));
    QCOMPARE(bySignal, high);
    QCOMPARE(bool(t.channel(1)->mode(false).highQuality), !high); // the live stream's alone
}

void TestGetMsg::ptzStateIsKept()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QList<int> states;
    connect(t.io.get(), &IoConnect::getPtzMsg, this,
        [&](Channel* channel) { states.append(channel->ptzState); });
    QVERIFY(t.receive(4354, hex("0201000099"), 1));
    QVERIFY(t.receive(4354, hex("feffffff"), 1));
    QCOMPARE(states, QList<int>({258, -2}));
}

void TestGetMsg::versionIsKept()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.channel(1)->version() == nullptr);
    QByteArray bySignal;
    connect(t.io.get(), &IoConnect::getChannelInfoMsg, this,
        [&](Channel* channel) { bySignal = QByteArray(channel->version()->data(), 64); });
    QVERIFY(t.receive(13084, field("2.6.1", 64) + QByteArray("not kept"), 1));
    QCOMPARE(bySignal, field("2.6.1", 64));
    QVERIFY(t.receive(13084, field("2.7", 8), 1)); // replaced whole
    QCOMPARE(bySignal, field("2.7", 64));
}

void TestGetMsg::startedReplayOpensItsChannel()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QTest::ignoreMessage(QtDebugMsg, "connectChannel:false");
    QVERIFY(t.receive(795, hex("1000000014000000"), 1));
    const LinkCall start = t.link.last(LinkFn::avClientStart2);
    QCOMPARE(start.number("channelId"), 20);
    QCOMPARE(start.sessionId(), int(t.device->sid));
    QCOMPARE(t.record.lines(),
        QStringList(
            {QStringLiteral("avClientStart2 %1").arg(t.device->sid), "startReplaySuccessMsg 1"}));
    QVERIFY(t.channel(1)->mode(false).playing);
    QVERIFY(t.channel(1)->mode(false).avIndex >= 0);
    QCOMPARE(t.avIndex(1), 2);
}

void TestGetMsg::endOfARecordingGoesOnWithTheNextBlock()
{
    IoTest t(2);
    t.viewControl.nextBlock = QDateTime(QDate(2024, 3, 9), QTime(7, 5, 2), Qt::UTC);
    QVERIFY(t.startReceiving(1));
    QTest::ignoreMessage(QtDebugMsg, "AVIOCTRL_RECORD_PLAY_END");
    QVERIFY(t.receive(795, hex("0700000000"), 1));
    QCOMPARE(t.record.lines(),
        QStringList({"ViewControl::getNextBlock", "ViewControl::setRecord 1 off",
            "Decode::removeStream 1 replay", "send 794", "stopReplaySuccessMsg 1", "send 794"}));
    const auto sends = t.record.sends();
    QCOMPARE(sends.at(0).payload().mid(4, 4), hex("01000000")); // stop
    QCOMPARE(sends.at(1).payload().mid(4, 4), hex("10000000")); // start
    QCOMPARE(sends.at(1).payload().mid(12, 8), hex("e807030900070502"));
}

void TestGetMsg::endOfTheLastRecordingChangesNothing()
{
    IoTest t(2);
    t.channel(1)->mode(false).playing = true;
    t.channel(1)->mode(false).avIndex = t.link.openChannel(t.device->sid, 20);
    QVERIFY(t.startReceiving(1));
    QTest::ignoreMessage(QtDebugMsg, "AVIOCTRL_RECORD_PLAY_END");
    QVERIFY(t.receive(795, hex("0700000000"), 1));
    QCOMPARE(t.record.lines(), QStringList({"ViewControl::getNextBlock"}));
    QVERIFY(t.channel(1)->mode(false).playing);
    QVERIFY(t.channel(1)->mode(false).avIndex >= 0);
}

void TestGetMsg::stoppedReplayIsClosed()
{
    IoTest t(2);
    ChannelMode& replay = t.channel(1)->mode(false);
    const int index = t.link.openChannel(t.device->sid, 20);
    replay.avIndex = index;
    replay.playing = true;
    t.channel(1)->replayPending = true;
    QVERIFY(t.startReceiving(1));
    QTest::ignoreMessage(QtDebugMsg, "AVIOCTRL_RECORD_PLAY_STOP");
    QVERIFY(t.receive(795, hex("0100000000"), 1));
    QCOMPARE(t.record.lines(),
        QStringList({QStringLiteral("avClientStop %1").arg(index), "stopReplaySuccessMsg 1"}));
    QCOMPARE(int(replay.avIndex), -1);
    QVERIFY(!replay.playing);
    QVERIFY(!t.channel(1)->replayPending);
}

void TestGetMsg::secondStopOfAReplayOnlyTellsAgain()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(795, hex("0100000000"), 1));
    QVERIFY(t.receive(795, hex("0100000000"), 1));
    QCOMPARE(t.record.lines(), QStringList({"stopReplaySuccessMsg 1", "stopReplaySuccessMsg 1"}));
}

void TestGetMsg::pausedReplaySaysNothing()
{
    IoTest t(2);
    t.channel(1)->mode(false).playing = true;
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(795, hex("0000000014"), 1));
    QCOMPARE(t.record.lines(), QStringList());
    QVERIFY(t.channel(1)->mode(false).playing);
}

void TestGetMsg::unknownPlayCommandIsLogged()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    for (const int command : {2, 4, 5, 17, 255}) {
        QTest::ignoreMessage(QtDebugMsg, qPrintable(QStringLiteral("command:%1").arg(command)));
        QVERIFY(t.receive(795, QByteArray(1, static_cast<char>(command)) + zeros(4), 1));
    }
    QCOMPARE(t.record.lines(), QStringList());
}

void TestGetMsg::everySignalIsRelayedWithItsArguments_data()
{
    QTest::addColumn<int>("index");
    const QMetaObject& meta = GetMsg::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            QTest::newRow(meta.method(i).name().constData()) << i;
    }
}

void TestGetMsg::everySignalIsRelayedWithItsArguments()
{
    QFETCH(int, index);
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    auto* receiver = t.io->findChild<GetMsg*>();
    const QMetaMethod signal = GetMsg::staticMetaObject.method(index);
    const QString line = Emission().of(receiver, signal, t.channel(1));
    QCOMPARE(t.record.lines(), QStringList({line}));
}

ORVA_TEST(TestGetMsg)
#include "tst_getmsg.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
// What devices answer, apart from the record list: fields, messages cut short, counts and texts
// that cannot be trusted, and rubbish.
#include "receivebuffer.h"
#include "testmain.h"

#include <QRandomGenerator>
#include <QTest>

#include <cstring>

class TestAnswers final : public QObject
{
    Q_OBJECT

private slots:
    void statusWordIsSigned();
    void statusWordOfEveryBeginning();
    void recordModeIsTheSecondWord();
    void recordListHeadHasItsFields();
    void recordListEntryHasItsFields();
    void playControlAnswerHasItsFields();
    void qualityIsTheByteBehindTheChannel();
    void sensitivityIsTheSecondWord();
    void refusalOfASecondReplayIsTheByteAtFour();
    void smartModeIsTheFirstByte();
    void everyBeginningOfAnAnswerReadsAsZerosBehindIt_data();
    void everyBeginningOfAnAnswerReadsAsZerosBehindIt();

    void deviceTimeIsReadAsUtc();
    void weekDayIsNotRead();
    void timesThatDoNotExistAreInvalid_data();
    void timesThatDoNotExistAreInvalid();

    void networksOfTheList();
    void listWithoutNetworks();
    void listOfAsManyNetworksAsAMessageHolds();
    void networkCountNeverExceedsWhatCame_data();
    void networkCountNeverExceedsWhatCame();
    void networksBeyondTheCountAreLeftOut();
    void everyBeginningOfAListHasTheNetworksThatCameWhole();
    void networkNameThatFillsItsFieldLosesNothing();
    void otherBytesOfANetworkDoNotMatter();

    void networkInUse();
    void networkInUseWhoseTextsFillTheirFields();
    void everyBeginningOfTheNetworkInUse();

    void rubbishNeverLeavesTheBuffer();
};

namespace {

QByteArray padded(const char* text, int size)
{
    return QByteArray(text).leftJustified(size, '\0');
}

QByteArray network(const char* ssid)
{
    return padded(ssid, 32) + fromHex("a1 a2 a3 a4");
}

QByteArray threeNetworks()
{
    return fromHex("03 00 00 00") + network("Home") + network("Cafe 2") + network("x");
}

SMsgAVIoctrlListWifiApResp listOf(const QByteArray& message)
{
    const ReceiveBuffer buffer(message);
    return decodeWifiList(buffer.data(), buffer.size());
}

QByteArray nameOf(const SWifiAp& ap)
{
    return textOf(ap.ssid).toLatin1();
}

using ReadBack = QByteArray (*)(const char* buffer);

// The bytes of the structure that was read.
template <class Body>
QByteArray readBack(const char* buffer)
{
    return bytesOf(bodyOf<Body>(buffer));
}

} // namespace

Q_DECLARE_METATYPE(ReadBack)

void TestAnswers::statusWordIsSigned()
{
    QCOMPARE(statusWord(ReceiveBuffer(fromHex("00 00 00 00")).data()), 0);
    QCOMPARE(statusWord(ReceiveBuffer(fromHex("01 00 00 00")).data()), 1);
    QCOMPARE(statusWord(ReceiveBuffer(fromHex("04 03 02 01")).data()), 0x01020304);
    QCOMPARE(statusWord(ReceiveBuffer(fromHex("ff ff ff ff 77")).data()), -1);
}

void TestAnswers::statusWordOfEveryBeginning()
{
    const QByteArray message = fromHex("04 03 02 01 99");
    const int expected[] = {0, 0x04, 0x0304, 0x020304, 0x01020304, 0x01020304};
    for (int length = 0; length <= message.size(); ++length)
        QCOMPARE(statusWord(ReceiveBuffer(message.left(length)).data()), expected[length]);
}

void TestAnswers::recordModeIsTheSecondWord()
{
    const ReceiveBuffer buffer(fromHex("f1 f2 f3 f4 02 00 00 00 ff"));
    const auto answer = bodyOf<SMsgAVIoctrlGetRecordResq>(buffer.data());
    QCOMPARE(static_cast<int>(answer.recordType), 2);
}

void TestAnswers::recordListHeadHasItsFields()
{
    const ReceiveBuffer buffer(fromHex("f1 f2 f3 f4 04 03 02 81 f5 01 fe f6"));
    const auto head = bodyOf<RecordListHead>(buffer.data());
    QCOMPARE(static_cast<quint32>(head.channel), 0xf4f3f2f1U);
    QCOMPARE(static_cast<quint32>(head.total), 0x81020304U);
    QCOMPARE(static_cast<int>(head.packet), 0xf5);
    QCOMPARE(static_cast<int>(head.endFlag), 1);
    QCOMPARE(static_cast<int>(head.count), 254);
}

void TestAnswers::recordListEntryHasItsFields()
{
    const ReceiveBuffer buffer(fromHex("e8 07 03 09 f1 07 05 02 f2 f3 f4 f5 10 0e 00 80"));
    const auto entry = bodyOf<RecordListEntry>(buffer.data());
    QCOMPARE(static_cast<int>(entry.start.year), 2024);
    QCOMPARE(static_cast<int>(entry.start.month), 3);
    QCOMPARE(static_cast<int>(entry.start.day), 9);
    QCOMPARE(static_cast<int>(entry.start.hour), 7);
    QCOMPARE(static_cast<int>(entry.start.minute), 5);
    QCOMPARE(static_cast<int>(entry.start.second), 2);
    QCOMPARE(static_cast<int>(entry.eventType), 0xf2);
    QCOMPARE(static_cast<quint32>(entry.duration), 0x80000e10U);
}

void TestAnswers::playControlAnswerHasItsFields()
{
    const ReceiveBuffer buffer(fromHex("10 00 00 00 fd 77 77 77"));
    const auto answer = bodyOf<PlayControlAnswer>(buffer.data());
    QCOMPARE(static_cast<quint32>(answer.command), 16U);
    QCOMPARE(static_cast<int>(answer.channelId), 253);
}

void TestAnswers::qualityIsTheByteBehindTheChannel()
{
    const ReceiveBuffer buffer(fromHex("f1 f2 f3 f4 02 ff"));
    QCOMPARE(static_cast<int>(bodyOf<GetQualityAnswer>(buffer.data()).quality), 2);
}

void TestAnswers::sensitivityIsTheSecondWord()
{
    const ReceiveBuffer buffer(fromHex("f1 f2 f3 f4 4b 00 00 00 ff"));
    const auto answer = bodyOf<SMsgAVIoctrlGetMotionDetectResp>(buffer.data());
    QCOMPARE(static_cast<int>(answer.sensitivity), 75);
}

void TestAnswers::refusalOfASecondReplayIsTheByteAtFour()
{
    const ReceiveBuffer buffer(fromHex("f1 f2 f3 f4 01 ff"));
    QCOMPARE(static_cast<int>(bodyOf<ReplayBusyNotice>(buffer.data()).reason), 1);
}

void TestAnswers::smartModeIsTheFirstByte()
{
    const ReceiveBuffer buffer(fromHex("01 ff ff ff"));
    QCOMPARE(static_cast<int>(bodyOf<DMS_NET_MOTION_CFG>(buffer.data()).mode), 1);
}

void TestAnswers::everyBeginningOfAnAnswerReadsAsZerosBehindIt_data()
{
    QTest::addColumn<ReadBack>("read");
    QTest::addColumn<int>("size");
    const auto row = [](const char* name, ReadBack read, int size) {
        QTest::newRow(name) << read << size;
    };
    row("status", readBack<WireNumber<qint32>>, 4);
    row("record mode", readBack<SMsgAVIoctrlGetRecordResq>, 8);
    row("record list head", readBack<RecordListHead>, 12);
    row("record list entry", readBack<RecordListEntry>, 16);
    row("play control", readBack<PlayControlAnswer>, 5);
    row("quality", readBack<GetQualityAnswer>, 5);
    row("sensitivity", readBack<SMsgAVIoctrlGetMotionDetectResp>, 8);
    row("network list", readBack<SMsgAVIoctrlListWifiApResp>, 1012);
    row("network in use", readBack<SMsgAVIoctrlGetWifiResp>, 64);
    row("replay busy", readBack<ReplayBusyNotice>, 5);
    row("smart mode", readBack<DMS_NET_MOTION_CFG>, 1);
}

void TestAnswers::everyBeginningOfAnAnswerReadsAsZerosBehindIt()
{
    QFETCH(ReadBack, read);
    QFETCH(int, size);
    for (int length = 0; length <= size + 1; ++length) {
        const ReceiveBuffer buffer(QByteArray(length, '\xa5'));
        const int came = std::min(length, size);
        QCOMPARE(read(buffer.data()), QByteArray(came, '\xa5') + zeros(size - came));
    }
}

void TestAnswers::deviceTimeIsReadAsUtc()
{
    const ReceiveBuffer buffer(fromHex("e8 07 02 1d 00 17 3b 3b"));
    const QDateTime time = dateTimeOf(bodyOf<DeviceTime>(buffer.data()));
    QCOMPARE(time.timeSpec(), Qt::UTC);
    QCOMPARE(time.toString(Qt::ISODate), QStringLiteral("2024-02-29T23:59:59Z"));
}

void TestAnswers::weekDayIsNotRead()
{
    const ReceiveBuffer buffer(fromHex("e8 07 03 09 ff 07 05 02"));
    QCOMPARE(dateTimeOf(bodyOf<DeviceTime>(buffer.data())),
        QDateTime(QDate(2024, 3, 9), QTime(7, 5, 2), Qt::UTC));
}

void TestAnswers::timesThatDoNotExistAreInvalid_data()
{
    QTest::addColumn<QByteArray>("time");
    QTest::newRow("zeros") << zeros(8);
    QTest::newRow("year 0") << fromHex("00 00 03 09 00 07 05 02");
    QTest::newRow("month 0") << fromHex("e8 07 00 09 00 07 05 02");
    QTest::newRow("month 13") << fromHex("e8 07 0d 09 00 07 05 02");
    QTest::newRow("day 0") << fromHex("e8 07 03 00 00 07 05 02");
    QTest::newRow("30 February") << fromHex("e8 07 02 1e 00 07 05 02");
    QTest::newRow("29 February of no leap year") << fromHex("e7 07 02 1d 00 07 05 02");
    QTest::newRow("31 April") << fromHex("e8 07 04 1f 00 07 05 02");
    QTest::newRow("hour 24") << fromHex("e8 07 03 09 00 18 00 00");
    QTest::newRow("minute 60") << fromHex("e8 07 03 09 00 07 3c 02");
    QTest::newRow("second 60") << fromHex("e8 07 03 09 00 07 05 3c");
    QTest::newRow("all bits set") << QByteArray(8, '\xff');
}

void TestAnswers::timesThatDoNotExistAreInvalid()
{
    QFETCH(QByteArray, time);
    const ReceiveBuffer buffer(time);
    QVERIFY(!dateTimeOf(bodyOf<DeviceTime>(buffer.data())).isValid());
}

void TestAnswers::networksOfTheList()
{
    const SMsgAVIoctrlListWifiApResp list = listOf(threeNetworks());
    QCOMPARE(static_cast<int>(list.count), 3);
    QCOMPARE(nameOf(list.aps[0]), QByteArray("Home"));
    QCOMPARE(nameOf(list.aps[1]), QByteArray("Cafe 2"));
    QCOMPARE(nameOf(list.aps[2]), QByteArray("x"));
}

void TestAnswers::listWithoutNetworks()
{
    QCOMPARE(static_cast<int>(listOf(fromHex("00 00 00 00")).count), 0);
    QCOMPARE(static_cast<int>(listOf(QByteArray()).count), 0);
}

void TestAnswers::listOfAsManyNetworksAsAMessageHolds()
{
    QByteArray message = fromHex("1c 00 00 00");
    for (int i = 0; i < 28; ++i)
        message += network(QByteArray("net" + QByteArray::number(i)).constData());
    QCOMPARE(message.size(), 1012);
    const SMsgAVIoctrlListWifiApResp list = listOf(message);
    QCOMPARE(static_cast<int>(list.count), 28);
    QCOMPARE(nameOf(list.aps[0]), QByteArray("net0"));
    QCOMPARE(nameOf(list.aps[27]), QByteArray("net27"));
    QCOMPARE(static_cast<int>(listOf(message + QByteArray(12, 'z')).count), 28);
}

void TestAnswers::networkCountNeverExceedsWhatCame_data()
{
    QTest::addColumn<QByteArray>("announced");
    QTest::addColumn<int>("came");
    QTest::addColumn<int>("count");
    QTest::newRow("one more than came") << fromHex("04 00 00 00") << 3 << 3;
    QTest::newRow("many more than came") << fromHex("ff ff 00 00") << 3 << 3;
    QTest::newRow("the largest number") << fromHex("ff ff ff 7f") << 3 << 3;
    QTest::newRow("none came") << fromHex("05 00 00 00") << 0 << 0;
    QTest::newRow("minus one") << fromHex("ff ff ff ff") << 3 << 0;
    QTest::newRow("the least number") << fromHex("00 00 00 80") << 3 << 0;
    QTest::newRow("29, more than a message holds") << fromHex("1d 00 00 00") << 28 << 28;
}

void TestAnswers::networkCountNeverExceedsWhatCame()
{
    QFETCH(QByteArray, announced);
    QFETCH(int, came);
    const QByteArray message = announced + network("Home").repeated(came);
    QTEST(static_cast<int>(listOf(message).count), "count");
}

void TestAnswers::networksBeyondTheCountAreLeftOut()
{
    const QByteArray message = fromHex("02 00 00 00") + network("Home").repeated(3);
    QCOMPARE(static_cast<int>(listOf(message).count), 2);
}

void TestAnswers::everyBeginningOfAListHasTheNetworksThatCameWhole()
{
    const QByteArray message = threeNetworks();
    const QByteArray names[] = {"Home", "Cafe 2", "x"};
    for (int length = 0; length < message.size(); ++length) {
        const SMsgAVIoctrlListWifiApResp list = listOf(message.left(length));
        const int whole = length < 4 ? 0 : (length - 4) / 36;
        QCOMPARE(static_cast<int>(list.count), whole);
        for (int i = 0; i < whole; ++i)
            QCOMPARE(nameOf(list.aps[i]), names[i]);
    }
}

void TestAnswers::networkNameThatFillsItsFieldLosesNothing()
{
    const QByteArray message =
        fromHex("02 00 00 00") + QByteArray(36, 'n') + QByteArray(32, 'm') + zeros(4);
    const SMsgAVIoctrlListWifiApResp list = listOf(message);
    QCOMPARE(static_cast<int>(list.count), 2);
    QCOMPARE(nameOf(list.aps[0]), QByteArray(32, 'n'));
    QCOMPARE(nameOf(list.aps[1]), QByteArray(32, 'm'));
}

void TestAnswers::otherBytesOfANetworkDoNotMatter()
{
    const QByteArray head = fromHex("01 00 00 00") + padded("Home", 32);
    for (const char* other : {"00 00 00 00", "ff ff ff ff"}) {
        const SMsgAVIoctrlListWifiApResp list = listOf(head + fromHex(other));
        QCOMPARE(static_cast<int>(list.count), 1);
        QCOMPARE(nameOf(list.aps[0]), QByteArray("Home"));
    }
}

void TestAnswers::networkInUse()
{
    const ReceiveBuffer buffer(padded("Home", 32) + padded("secret \xe4", 32));
    const SMsgAVIoctrlGetWifiResp config = bodyOf<SMsgAVIoctrlGetWifiResp>(buffer.data());
    QCOMPARE(textOf(config.ssid).toLatin1(), QByteArray("Home"));
    QCOMPARE(textOf(config.password).toLatin1(), QByteArray("secret \xe4"));
}

void TestAnswers::networkInUseWhoseTextsFillTheirFields()
{
    const ReceiveBuffer buffer(QByteArray(32, 's') + QByteArray(32, 'p') + QByteArray(64, 'z'));
    const SMsgAVIoctrlGetWifiResp config = bodyOf<SMsgAVIoctrlGetWifiResp>(buffer.data());
    QCOMPARE(textOf(config.ssid), QString(32, QLatin1Char('s')));
    QCOMPARE(textOf(config.password), QString(32, QLatin1Char('p')));
}

void TestAnswers::everyBeginningOfTheNetworkInUse()
{
    const QByteArray ssid(31, 's');
    const QByteArray password(31, 'p');
    const QByteArray message = ssid + zeros(1) + password + zeros(1);
    for (int length = 0; length <= message.size(); ++length) {
        const ReceiveBuffer buffer(message.left(length));
        const SMsgAVIoctrlGetWifiResp config = bodyOf<SMsgAVIoctrlGetWifiResp>(buffer.data());
        QCOMPARE(textOf(config.ssid).toLatin1(), ssid.left(length));
        QCOMPARE(textOf(config.password).toLatin1(), password.left(std::max(length - 32, 0)));
    }
}

void TestAnswers::rubbishNeverLeavesTheBuffer()
{
    QRandomGenerator random(20240309);
    for (int round = 0; round < 2000; ++round) {
        QByteArray message(random.bounded(ioctrlBufferBytes + 1), Qt::Uninitialized);
        for (char& byte : message)
            byte = static_cast<char>(random.bounded(256));
        const ReceiveBuffer buffer(message);
        const SMsgAVIoctrlListWifiApResp list = decodeWifiList(buffer.data(), buffer.size());
        QVERIFY(list.count >= 0 && list.count <= std::max(buffer.size() - 4, 0) / 36);
        QVERIFY(list.count <= 28);
        const SMsgAVIoctrlGetWifiResp config = bodyOf<SMsgAVIoctrlGetWifiResp>(buffer.data());
        QVERIFY(textOf(config.ssid).size() <= 32 && textOf(config.password).size() <= 32);
        auto time = bodyOf<DeviceTime>(buffer.data());
        time.weekDay = 0;
        if (const QDateTime read = dateTimeOf(time); read.isValid())
            QCOMPARE(hexOf(deviceTime(read)), hexOf(time));
    }
}

ORVA_TEST(TestAnswers)

#include "tst_answers.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "answers.h"
#include "bytes.h"
#include "messages.h"
#include "testmain.h"

#include <QTest>

#include <vector>

class TestMessages final : public QObject
{
    Q_OBJECT

private slots:
    void everyPrefixAndOneByteMoreIsRefused();
    void unknownTypesAreRefused();
    void channelStandsInItsPlace_data();
    void channelStandsInItsPlace();
    void channelAbove63IsRefused_data();
    void channelAbove63IsRefused();
    void valuesOutOfRangeAreRefused_data();
    void valuesOutOfRangeAreRefused();
    void cameraCommandMoves_data();
    void cameraCommandMoves();
    void recorderCommandMoves_data();
    void recorderCommandMoves();
    void commandActs_data();
    void commandActs();
    void speedIsKeptWithinItsRange();
    void passwordsComeInUtf8();
    void clockTextIsRead();
    void rotateTenAsks();
    void replayMessagesAreRead();
    void secondsCountFrom1970();
    void answersHaveTheirLayout();
    void wifiListFitsIntoAMessage();
    void textsInAnswersEndWithAZero();
};

namespace {

struct Sample
{
    quint32 type;
    std::string bytes;
};

std::string day(int year, int month, int date)
{
    std::string time{static_cast<char>(year & 0xff), static_cast<char>(year >> 8),
        static_cast<char>(month), static_cast<char>(date)};
    return time + std::string("\0\x0a\x1e\x0f", 4); // 10:30:15
}

std::string camera(int command, int speed, quint32 channel, int preset)
{
    const std::string head{static_cast<char>(command), static_cast<char>(speed), 0, 0};
    return head + words({channel, static_cast<quint32>(preset)});
}

std::string recorder(int command, int speed, int channel)
{
    return {static_cast<char>(command), static_cast<char>(speed), 0, 0, 0,
        static_cast<char>(channel), 0, 0};
}

// One valid message of each type, as a client sends them.
std::vector<Sample> samples()
{
    return {
        {255, std::string(2, '\0')},
        {511, words({3, 0})},
        {767, words({3, 0})},
        {768, words({0})},
        {769, words({0})},
        {784, words({3, 2, 0})},
        {786, words({0, 0, 0})},
        {792, words({3}) + day(2024, 3, 9) + day(2024, 3, 9) + words({0})},
        {794, words({3, 16, 0}) + day(2024, 2, 29) + std::string("\3\0\5\0", 4)},
        {800, words({3, 1})},
        {802, words({3, 0})},
        {804, words({0, 75})},
        {806, words({0})},
        {818, field("old", 32) + field("new", 32)},
        {828, words({3}) + day(2024, 3, 9) + words({90, 0})},
        {832, words({0})},
        {834, field("net", 32) + field("pass", 32) + words({0, 0, 0})},
        {836, words({0})},
        {848, words({31, 0})},
        {849, words({31, 0})},
        {4097, recorder(1, 5, 3)},
        {4114, camera(1, 5, 3, 0)},
        {4353, words({0, 0})},
        {13083, std::string(64, '\0')},
        {13086, "2024-12-31-23-59-59"},
        {13088, words({10, 0})},
        {13102, "Europe/Berlin"},
        {41253, "1"},
        {41254, words({0})},
    };
}

bool isRefused(quint32 type, const std::string& bytes)
{
    return std::holds_alternative<BadRequest>(decodeRequest(type, bytes));
}

template <typename Message>
Message decoded(quint32 type, const std::string& bytes)
{
    const auto result = decodeRequest(type, bytes);
    const auto* request = std::get_if<Request>(&result);
    const auto* message = request != nullptr ? std::get_if<Message>(request) : nullptr;
    if (message == nullptr)
        QTest::qFail("no message of the expected kind", __FILE__, __LINE__);
    return message != nullptr ? *message : Message{};
}

// The two whose text may have any length: their prefixes may be valid too.
bool isText(quint32 type)
{
    return type == 13086 || type == 13102;
}

QByteArray bytesOf(const std::string& text)
{
    return QByteArray::fromStdString(text);
}

} // namespace

void TestMessages::everyPrefixAndOneByteMoreIsRefused()
{
    for (const Sample& sample : samples()) {
        QVERIFY2(!isRefused(sample.type, sample.bytes), std::to_string(sample.type).c_str());
        if (isText(sample.type))
            continue;
        for (std::size_t size = 0; size < sample.bytes.size(); ++size)
            QVERIFY2(isRefused(sample.type, sample.bytes.substr(0, size)),
                std::to_string(sample.type).c_str());
        QVERIFY2(isRefused(sample.type, sample.bytes + '\0'), std::to_string(sample.type).c_str());
    }
    QVERIFY(isRefused(13086, ""));
    QVERIFY(isRefused(13086,
        "2024-12-31-23-59-5"
        "99"));
    QVERIFY(isRefused(13102, ""));
    QVERIFY(isRefused(13102, std::string(65, 'A')));
}

void TestMessages::unknownTypesAreRefused()
{
    for (const quint32 type : {0u, 256u, 785u, 1793u, 41255u, 0xffffffffu})
        QVERIFY(isRefused(type, words({0})));
}

void TestMessages::channelStandsInItsPlace_data()
{
    QTest::addColumn<quint32>("type");
    QTest::addColumn<int>("offset");
    for (const quint32 type : {511u, 767u, 784u, 792u, 794u, 800u, 802u, 828u})
        QTest::addRow("%u", type) << type << 0;
    QTest::addRow("4097") << 4097u << 5;
    QTest::addRow("4114") << 4114u << 4;
}

namespace {

std::string sampleWithChannel(quint32 type, int offset, char channel)
{
    for (const Sample& sample : samples()) {
        if (sample.type != type)
            continue;
        std::string bytes = sample.bytes;
        bytes[static_cast<std::size_t>(offset)] = channel;
        return bytes;
    }
    return {};
}

int channelOf(const Request& request)
{
    if (const auto* start = std::get_if<VideoStart>(&request))
        return start->channel;
    if (const auto* stop = std::get_if<VideoStop>(&request))
        return stop->channel;
    if (const auto* mode = std::get_if<SetRecordMode>(&request))
        return mode->channel;
    if (const auto* list = std::get_if<ListRecords>(&request))
        return list->channel;
    if (const auto* play = std::get_if<PlayControl>(&request))
        return play->channel;
    if (const auto* quality = std::get_if<SetQuality>(&request))
        return quality->channel;
    if (const auto* quality = std::get_if<GetQuality>(&request))
        return quality->channel;
    if (const auto* time = std::get_if<SetReplayTime>(&request))
        return time->channel;
    if (const auto* move = std::get_if<PtzMove>(&request))
        return move->channel;
    return -1;
}

} // namespace

void TestMessages::channelStandsInItsPlace()
{
    QFETCH(quint32, type);
    QFETCH(int, offset);
    const auto result = decodeRequest(type, sampleWithChannel(type, offset, 63));
    QVERIFY(std::holds_alternative<Request>(result));
    QCOMPARE(channelOf(std::get<Request>(result)), 63);
}

void TestMessages::channelAbove63IsRefused_data()
{
    channelStandsInItsPlace_data();
}

void TestMessages::channelAbove63IsRefused()
{
    QFETCH(quint32, type);
    QFETCH(int, offset);
    QVERIFY(isRefused(type, sampleWithChannel(type, offset, 64)));
    QVERIFY(isRefused(type, sampleWithChannel(type, offset, '\xff')));
}

void TestMessages::valuesOutOfRangeAreRefused_data()
{
    QTest::addColumn<quint32>("type");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char* name, quint32 type, const std::string& bytes) {
        QTest::newRow(name) << type << bytesOf(bytes);
    };
    row("channel of four bytes", 511, words({0x100, 0}));
    row("record mode", 784, words({0, 3, 0}));
    row("quality", 800, words({0, 2}));
    row("sensitivity", 804, words({0, 60}));
    row("sensitivity of four bytes", 804, words({0, 0x100 + 25}));
    row("empty new password", 818, field("old", 32) + field("", 32));
    row("control character in a password", 818, field("old", 32) + field("a\nb", 32));
    row("empty network name", 834, std::string(76, '\0'));
    row("speech channel", 848, words({30, 0}));
    row("camera command", 4114, camera(99, 1, 0, 0));
    row("camera command of recorders only", 4114, camera(31, 1, 0, 0));
    row("preset 0", 4114, camera(15, 1, 0, 0));
    row("recorder command", 4097, recorder(9, 1, 0));
    row("rotate mode", 13088, words({4, 0}));
    row("smart mode", 41253, "2");
    row("smart mode as a number", 41253, std::string(1, '\1'));
    row("month 13", 792, words({0}) + day(2024, 13, 1) + day(2024, 3, 1) + words({0}));
    row("29 February of a common year", 792,
        words({0}) + day(2023, 2, 29) + day(2024, 3, 1) + words({0}));
    row("play command", 794, words({0, 256, 0}) + day(2024, 3, 1) + words({0}));
    row("play time", 794, words({0, 16, 0}) + day(2024, 3, 32) + words({0}));
    row("five numbers", 13086, "2024-12-31-23-59");
    row("seven numbers", 13086, "2024-1-1-1-1-1-1");
    row("sign", 13086, "2024-1-1-1-1--1");
    row("letters", 13086, "2024-1-1-1-1-1a");
    row("no number at the end", 13086, "2024-12-31-23-");
    row("hour 24", 13086, "2024-1-1-24-0-0");
    row("month 0", 13086, "2024-0-10-1-0-0");
    row("number beyond all bounds", 13086, "99999999999-1-1-0-0");
}

void TestMessages::valuesOutOfRangeAreRefused()
{
    QFETCH(quint32, type);
    QFETCH(QByteArray, bytes);
    QVERIFY(isRefused(type, bytes.toStdString()));
}

void TestMessages::cameraCommandMoves_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<QList<int>>("towards"); // pan, tilt, zoom, focus, iris
    QTest::newRow("left") << 1 << QList<int>{-1, 0, 0, 0, 0};
    QTest::newRow("right") << 2 << QList<int>{1, 0, 0, 0, 0};
    QTest::newRow("up") << 3 << QList<int>{0, 1, 0, 0, 0};
    QTest::newRow("down") << 4 << QList<int>{0, -1, 0, 0, 0};
    QTest::newRow("up and left") << 5 << QList<int>{-1, 1, 0, 0, 0};
    QTest::newRow("down and left") << 6 << QList<int>{-1, -1, 0, 0, 0};
    QTest::newRow("up and right") << 7 << QList<int>{1, 1, 0, 0, 0};
    QTest::newRow("down and right") << 8 << QList<int>{1, -1, 0, 0, 0};
    QTest::newRow("focus up") << 9 << QList<int>{0, 0, 0, 1, 0};
    QTest::newRow("focus down") << 10 << QList<int>{0, 0, 0, -1, 0};
    QTest::newRow("zoom in") << 11 << QList<int>{0, 0, 1, 0, 0};
    QTest::newRow("zoom out") << 12 << QList<int>{0, 0, -1, 0, 0};
    QTest::newRow("iris up") << 13 << QList<int>{0, 0, 0, 0, 1};
    QTest::newRow("iris down") << 14 << QList<int>{0, 0, 0, 0, -1};
}

void TestMessages::cameraCommandMoves()
{
    QFETCH(int, command);
    QFETCH(QList<int>, towards);
    const auto move = decoded<PtzMove>(4114, camera(command, 5, 7, 0));
    QCOMPARE((QList<int>{move.pan, move.tilt, move.zoom, move.focus, move.iris}), towards);
    QCOMPARE(move.speed, 5);
    QCOMPARE(move.channel, 7);
}

void TestMessages::recorderCommandMoves_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<int>("pan");
    QTest::addColumn<int>("tilt");
    QTest::newRow("up") << 1 << 0 << 1;
    QTest::newRow("down") << 2 << 0 << -1;
    QTest::newRow("left") << 3 << -1 << 0;
    QTest::newRow("right") << 4 << 1 << 0;
}

void TestMessages::recorderCommandMoves()
{
    QFETCH(int, command);
    const auto move = decoded<PtzMove>(4097, recorder(command, 3, 7));
    QTEST(move.pan, "pan");
    QTEST(move.tilt, "tilt");
    QCOMPARE(move.speed, 3);
    QCOMPARE(move.channel, 7);
}

void TestMessages::commandActs_data()
{
    using Kind = PtzAction::Kind;
    QTest::addColumn<quint32>("type");
    QTest::addColumn<int>("command");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("preset");
    const auto row = [](const char* name, quint32 type, int command, Kind kind, int preset) {
        QTest::newRow(name) << type << command << static_cast<int>(kind) << preset;
    };
    row("camera stop", 4114, 0, Kind::Stop, 9);
    row("camera set preset", 4114, 15, Kind::SetPreset, 9);
    row("camera go to preset", 4114, 16, Kind::GoPreset, 9);
    row("camera cruise", 4114, 22, Kind::Cruise, 9);
    row("camera cruise end", 4114, 23, Kind::Stop, 9);
    row("camera auto cruise", 4114, 29, Kind::AutoCruise, 9);
    row("camera auto cruise end", 4114, 30, Kind::Stop, 9);
    row("recorder stop", 4097, 0, Kind::Stop, 0);
    row("recorder set first preset", 4097, 5, Kind::SetPreset, 1);
    row("recorder set second preset", 4097, 6, Kind::SetPreset, 2);
    row("recorder go to first preset", 4097, 7, Kind::GoPreset, 1);
    row("recorder go to second preset", 4097, 8, Kind::GoPreset, 2);
    row("recorder cruise", 4097, 11, Kind::Cruise, 0);
    row("recorder auto cruise", 4097, 12, Kind::AutoCruise, 0);
}

void TestMessages::commandActs()
{
    QFETCH(quint32, type);
    QFETCH(int, command);
    const auto bytes = type == 4114 ? camera(command, 5, 7, 9) : recorder(command, 5, 7);
    const auto action = decoded<PtzAction>(type, bytes);
    QTEST(static_cast<int>(action.kind), "kind");
    QTEST(action.preset, "preset");
    QCOMPARE(action.channel, 7);
}

void TestMessages::speedIsKeptWithinItsRange()
{
    QCOMPARE(decoded<PtzMove>(4114, camera(1, 0, 0, 0)).speed, 1);
    QCOMPARE(decoded<PtzMove>(4114, camera(1, 255, 0, 0)).speed, 8);
    QCOMPARE(decoded<PtzMove>(4097, recorder(1, 9, 0)).speed, 8);
}

void TestMessages::passwordsComeInUtf8()
{
    const std::string whole(32, 'x');
    const auto change = decoded<SetPassword>(818, field("gr\xfcn", 32) + whole);
    QCOMPARE(change.from, std::string("gr\xc3\xbcn"));
    QCOMPARE(change.to, whole);
}

void TestMessages::clockTextIsRead()
{
    const DeviceTime time = decoded<SetTime>(13086, "2024-3-9-7-5-2").local;
    QCOMPARE((QList<int>{time.year, time.month, time.day, time.hour, time.minute, time.second}),
        (QList<int>{2024, 3, 9, 7, 5, 2}));
}

void TestMessages::rotateTenAsks()
{
    decoded<GetRotate>(13088, words({10, 0}));
    QCOMPARE(decoded<Rotate>(13088, words({3, 0})).mode, 3);
}

void TestMessages::replayMessagesAreRead()
{
    const auto list =
        decoded<ListRecords>(792, words({1}) + day(2024, 3, 9) + day(2024, 3, 10) + words({0}));
    QCOMPARE(list.from.day, 9);
    QCOMPARE(list.to.day, 10);
    QCOMPARE(list.to.second, 15);
    const auto play =
        decoded<PlayControl>(794, words({1, 16, 0}) + day(2024, 3, 9) + std::string("\1\0\5\0", 4));
    QCOMPARE(play.command, 16);
    QCOMPARE(play.speed, 5);
    QCOMPARE(play.time.hour, 10);
    // Commands that start nothing carry no time.
    QCOMPARE(decoded<PlayControl>(794, words({1, 1, 0, 0, 0, 0})).command, 1);
    QCOMPARE(
        decoded<SetReplayTime>(828, words({1}) + day(2024, 3, 9) + words({0xffffffff, 0})).seconds,
        -1);
}

void TestMessages::secondsCountFrom1970()
{
    QCOMPARE(secondsSince1970({1970, 1, 1, 0, 0, 0}), std::int64_t{0});
    QCOMPARE(secondsSince1970({2024, 2, 29, 12, 30, 15}), std::int64_t{1709209815});
    QCOMPARE(secondsSince1970({2099, 12, 31, 23, 59, 59}), std::int64_t{4102444799});
}

void TestMessages::answersHaveTheirLayout()
{
    QCOMPARE(bytesOf(statusAnswer(1)), wordBytes({1}));
    QCOMPARE(bytesOf(recordModeAnswer(3, 2)), wordBytes({3, 2}));
    QCOMPARE(bytesOf(noRecordsAnswer(3)), wordBytes({3, 0}) + QByteArray("\0\1\0\0", 4));
    QCOMPARE(bytesOf(qualityAnswer(3, true)), wordBytes({3, 1}));
    QCOMPARE(bytesOf(sensitivityAnswer(3, 75)), wordBytes({3, 75}));
    QCOMPARE(bytesOf(replayTimeAnswer(1)), QByteArray("\1"));
    QCOMPARE(bytesOf(wifiAnswer("net", "secret")), bytesOf(field("net", 32) + field("secret", 32)));
    QCOMPARE(bytesOf(ptzAnswer(2)), wordBytes({2}));
    QCOMPARE(bytesOf(versionAnswer("1.5.0.IPC1")), bytesOf(field("1.5.0.IPC1", 64)));
    QCOMPARE(bytesOf(rotateAnswer(3)), wordBytes({3}));
    QCOMPARE(bytesOf(smartModeAnswer(1)), QByteArray("\1"));
    QCOMPARE(bytesOf(wifiListAnswer({"a", "bc"})),
        wordBytes({2}) + bytesOf(field("a", 36) + field("bc", 36)));
}

void TestMessages::wifiListFitsIntoAMessage()
{
    const std::string many = wifiListAnswer(std::vector<std::string>(100, "net"));
    QVERIFY(many.size() <= 1024);
    QCOMPARE(bytesOf(many.substr(0, 4)), wordBytes({28}));
    QCOMPARE(many.size(), std::size_t{4 + 28 * 36});
    QCOMPARE(bytesOf(wifiListAnswer({})), wordBytes({0}));
}

void TestMessages::textsInAnswersEndWithAZero()
{
    const std::string whole(64, 'x');
    QCOMPARE(bytesOf(versionAnswer(whole)), bytesOf(field(std::string(63, 'x'), 64)));
    QCOMPARE(bytesOf(wifiAnswer(whole, whole)),
        bytesOf(field(std::string(31, 'x'), 32) + field(std::string(31, 'x'), 32)));
}

ORVA_TEST(TestMessages)
#include "tst_messages.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "iotest.h"
#include "testmain.h"

#include <QTest>

#include <functional>

using Operation = std::function<void(IoConnect& io, Channel* channel)>;

// The commands behind the settings of a device: what is sent, what comes back, what is told. The
// channel of these tests is number 2, on AV index 3.
class TestSettings final : public QObject
{
    Q_OBJECT

private slots:
    void commandSendsItsMessage_data() { addRows(); }
    void commandSendsItsMessage();
    void onlyTimeZoneAndVersionArmTheIoTimer_data() { addRows(); }
    void onlyTimeZoneAndVersionArmTheIoTimer();
    void messageThatDoesNotGoOutHasItsSignal_data() { addRows(); }
    void messageThatDoesNotGoOutHasItsSignal();
    void withoutAnAnswerNothingIsTold_data() { addRows(); }
    void withoutAnAnswerNothingIsTold();
    void answerHasItsSignal_data();
    void answerHasItsSignal();
    void refusalHasItsText_data();
    void refusalHasItsText();
    void channelThatIsNotConnectedTellsAFailure();

    void timeIsSetAsSoonAsTheMessageIsOut();
    void timeIsSentAsItStandsWhateverItsZone();
    void timeIsSentWithoutPadding();
    void refusedRecordModeIsSilent();
    void setRotationIsConfirmedAsAReadOne();
    void smartModeNumberIsAQuestionOneWayAndAnOutcomeTheOther();
    void smartModeIsCutToOneDigit();
    void onlyTheSetOfRecordModeNamesTheChannel();

    void acceptedPasswordDisconnectsTheDeviceFirst();
    void refusedPasswordLeavesTheDeviceConnected();

    void textsAreSentAsLatin1();
    void textsAreCutAtThirtyTwoBytes();
    void timeZoneIsSentWithoutATerminator();

private:
    static void addRows();
};

namespace {

// `count` zero bytes in hex.
QByteArray zeros(int count)
{
    return QByteArray(2 * count, '0');
}

struct Answer
{
    int type; // 0: none
    QByteArray hex;
    const char* line;
};

struct Row
{
    const char* name;
    Operation operation;
    int type;
    QByteArray hex;
    bool arms;
    const char* failure; // what is told where the message does not go out
    const char* told; // what is told as soon as it is out; null: nothing
    Answer answer;
};

QVector<Row> rows()
{
    return {
        {"getWifiList", [](IoConnect& io, Channel* c) { io.getWifiList(c); }, 832, zeros(4), false,
            "getWifiListFailMsg", nullptr, {833, zeros(4), "getWifiListSuccessMsg 2"}},
        {"getWifiConfig", [](IoConnect& io, Channel* c) { io.getWifiConfig(c); }, 836, zeros(4),
            false, "getWifiConfigFailMsg", nullptr, {837, zeros(64), "getWifiConfigSuccessMsg 2"}},
        {"setWifi", [](IoConnect& io, Channel* c) { io.setWifi(c, "Home", "s3cret"); }, 834,
            "486f6d65" + zeros(28) + "733363726574" + zeros(26) + zeros(12), false,
            "setWifiFailMsg", nullptr, {835, zeros(4), "setWifiSuccessMsg 2"}},
        {"setPassword", [](IoConnect& io, Channel* c) { io.setPassword(c, "old", "new1"); }, 818,
            "6f6c64" + zeros(29) + "6e657731" + zeros(28), false, "setPasswordFailMsg", nullptr,
            {819, zeros(4), "setPasswordSuccessMsg 2"}},
        {"setTime",
            [](IoConnect& io, Channel* c) {
                io.setTime(c, QDateTime(QDate(2024, 3, 9), QTime(7, 5, 2)));
            },
            13086, "323032342d332d392d372d352d32", false, "setTimeFailMsg", "setTimeSuccessMsg 2",
            {0, {}, nullptr}},
        {"setTimeZone", [](IoConnect& io, Channel* c) { io.setTimeZone(c, "Europe/Berlin"); },
            13102, "4575726f70652f4265726c696e", true, "setTimeZoneFailMsg", nullptr,
            {13103, "01000000", "setTimeZoneSuccessMsg 2"}},
        {"getSmartSensitivity", [](IoConnect& io, Channel* c) { io.getSmartSensitivity(c); }, 806,
            zeros(4), false, "getSmartSensitivityFailMsg", nullptr,
            {807, zeros(8), "getSmartSensitivitySuccessMsg 2"}},
        {"sendSmartSensitivity", [](IoConnect& io, Channel* c) { io.sendSmartSensitivity(c, 75); },
            804, "000000004b000000", false, "setSmartSensitivityFailMsg", nullptr,
            {805, zeros(4), "setSmartSensitivitySuccessMsg 2"}},
        {"getSmartMode", [](IoConnect& io, Channel* c) { io.getSmartMode(c); }, 41254, zeros(4),
            false, "getSmartModeFailMsg", nullptr, {41255, "01", "getSmartModeSuccessMsg 2"}},
        {"sendSmartMode", [](IoConnect& io, Channel* c) { io.sendSmartMode(c, 1); }, 41253, "31",
            false, "setSmartModeFailMsg", nullptr, {41254, zeros(4), "setSmartModeSuccessMsg 2"}},
        {"getRotateMode", [](IoConnect& io, Channel* c) { io.getRotateMode(c); }, 13088,
            "0a00000000000000", false, "getRotateModeFailMsg", nullptr,
            {13089, zeros(4), "getRotateModeSuccessMsg 2"}},
        {"sendRotateMode", [](IoConnect& io, Channel* c) { io.sendRotateMode(c, 3); }, 13088,
            "0300000000000000", false, "setRotateModeFailMsg", nullptr,
            {13089, "03000000", "getRotateModeSuccessMsg 2"}},
        {"getRecordMode", [](IoConnect& io, Channel* c) { io.getRecordMode(c); }, 786, zeros(12),
            false, "getRecordModeFailMsg", nullptr, {787, zeros(8), "getRecordModeSuccessMsg 2"}},
        {"sendRecordMode", [](IoConnect& io, Channel* c) { io.sendRecordMode(c, 1); }, 784,
            "020000000100000000000000", false, "sendRecordModeFailMsg", nullptr,
            {785, zeros(4), "setRecordModeSuccessMsg 2"}},
        {"getChannelVersion", [](IoConnect& io, Channel* c) { io.getChannelVersion(c); }, 13083,
            zeros(64), true, nullptr, "connectChannelSuccessMsg 2",
            {13084, zeros(64), "getChannelInfoMsg 2"}},
    };
}

QString line(const char* text)
{
    return QString::fromLatin1(text);
}

} // namespace

Q_DECLARE_METATYPE(Row)

void TestSettings::addRows()
{
    QTest::addColumn<Row>("row");
    for (const Row& row : rows())
        QTest::newRow(row.name) << row;
}

void TestSettings::commandSendsItsMessage()
{
    QFETCH(Row, row);
    IoTest t(3);
    row.operation(*t.io, t.channel(2));
    QVERIFY(t.settle());
    const auto sends = t.record.sends();
    QCOMPARE(sends.size(), std::size_t(1));
    QCOMPARE(sends[0].type(), row.type);
    QCOMPARE(sends[0].avIndex(), 3);
    QCOMPARE(sends[0].payload().toHex(), row.hex);
    QCOMPARE(2 * sends[0].number("size"), row.hex.size());
}

void TestSettings::onlyTimeZoneAndVersionArmTheIoTimer()
{
    QFETCH(Row, row);
    IoTest t(3);
    row.operation(*t.io, t.channel(2));
    QCOMPARE(IoTest::isArmed(t.channel(2)), row.arms);
    QVERIFY(t.settle());
    QVERIFY(!t.channel(2)->ioTimer()->isActive());
}

void TestSettings::messageThatDoesNotGoOutHasItsSignal()
{
    QFETCH(Row, row);
    IoTest t(3);
    t.link.next(LinkFn::avSendIOCtrl).answers(-20016);
    row.operation(*t.io, t.channel(2));
    QVERIFY(t.settle());
    // A channel is connected whether or not it could be asked for its version.
    const QString told = row.failure != nullptr
        ? line(row.failure) + QStringLiteral(" 2 -20016 Session is disconnected")
        : line(row.told);
    QCOMPARE(t.record.lines(), QStringList({QStringLiteral("send %1").arg(row.type), told}));
}

void TestSettings::withoutAnAnswerNothingIsTold()
{
    QFETCH(Row, row);
    IoTest t(3);
    QVERIFY(t.startReceiving(2));
    row.operation(*t.io, t.channel(2));
    QVERIFY(t.settle());
    QStringList lines{QStringLiteral("send %1").arg(row.type)};
    if (row.told != nullptr)
        lines.append(line(row.told));
    QCOMPARE(t.record.lines(), lines);
}

void TestSettings::answerHasItsSignal_data()
{
    QTest::addColumn<Row>("row");
    for (const Row& row : rows()) {
        if (row.answer.type != 0)
            QTest::newRow(row.name) << row;
    }
}

void TestSettings::answerHasItsSignal()
{
    QFETCH(Row, row);
    IoTest t(3);
    QVERIFY(t.startReceiving(2));
    row.operation(*t.io, t.channel(2));
    QVERIFY(t.settle());
    t.record.clear();
    QVERIFY(t.receive(row.answer.type, QByteArray::fromHex(row.answer.hex), 2));
    if (row.answer.type == 819) // ends the session too
        QCOMPARE(t.record.lines().last(), line(row.answer.line));
    else
        QCOMPARE(t.record.lines(), QStringList({line(row.answer.line)}));
}

void TestSettings::refusalHasItsText_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<QString>("told");
    QTest::newRow("Wi-Fi") << 835 << QByteArray("ffffffff")
                           << "setWifiFailMsg 2 0 Failed to configure wireless network";
    QTest::newRow("password") << 819 << QByteArray("01000000")
                              << "setPasswordFailMsg 2 0 Failed to configure password";
    QTest::newRow("time zone, 0") << 13103 << QByteArray("00000000")
                                  << "setTimeZoneFailMsg 2 0 Device cannot modify time zone";
    QTest::newRow("time zone, 2") << 13103 << QByteArray("02000000")
                                  << "setTimeZoneFailMsg 2 0 Device cannot modify time zone";
    QTest::newRow("sensitivity")
        << 805 << QByteArray("01000000")
        << "setSmartSensitivityFailMsg 2 0 Failed to configure the senitivity of smart detection";
    QTest::newRow("smart mode")
        << 41254 << QByteArray("00000001")
        << "setSmartModeFailMsg 2 0 Failed to configure the mode of smart detection";
}

void TestSettings::refusalHasItsText()
{
    QFETCH(int, type);
    QFETCH(QByteArray, hex);
    QFETCH(QString, told);
    IoTest t(3);
    QVERIFY(t.startReceiving(2));
    QVERIFY(t.receive(type, QByteArray::fromHex(hex), 2));
    QCOMPARE(t.record.lines(), QStringList({told}));
}

void TestSettings::channelThatIsNotConnectedTellsAFailure()
{
    IoTest t(3);
    t.channel(2)->mode(true).avIndex = -1;
    t.io->getWifiList(t.channel(2));
    QVERIFY(t.settle());
    QCOMPARE(t.record.sends().at(0).avIndex(), -1);
    QVERIFY(t.record.lines().last().startsWith(QStringLiteral("getWifiListFailMsg 2 -")));
}

void TestSettings::timeIsSetAsSoonAsTheMessageIsOut()
{
    IoTest t(3);
    t.io->setTime(t.channel(2), QDateTime(QDate(2024, 12, 31), QTime(23, 59, 58)));
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), QStringList({"send 13086", "setTimeSuccessMsg 2"}));
    QCOMPARE(t.record.sends().at(0).payload(), QByteArray("2024-12-31-23-59-58"));
}

void TestSettings::timeIsSentAsItStandsWhateverItsZone()
{
    IoTest t(3);
    const QDate date(2024, 3, 9);
    const QTime time(7, 5, 2);
    for (const QDateTime& panelTime : {QDateTime(date, time), QDateTime(date, time, Qt::UTC),
             QDateTime(date, time, Qt::OffsetFromUTC, 5 * 3600)})
        t.io->setTime(t.channel(2), panelTime);
    QVERIFY(t.settle());
    QCOMPARE(t.record.sends().size(), std::size_t(3));
    for (const LinkCall& call : t.record.sends())
        QCOMPARE(call.payload(), QByteArray("2024-3-9-7-5-2"));
}

void TestSettings::timeIsSentWithoutPadding()
{
    IoTest t(3);
    t.io->setTime(t.channel(2), QDateTime(QDate(2025, 1, 1), QTime(0, 0, 0)));
    QVERIFY(t.settle());
    QCOMPARE(t.record.sends().at(0).payload(), QByteArray("2025-1-1-0-0-0"));
    QCOMPARE(t.record.sends().at(0).number("size"), 14);
}

void TestSettings::refusedRecordModeIsSilent()
{
    IoTest t(3);
    QVERIFY(t.startReceiving(2));
    QVERIFY(t.receive(785, QByteArray::fromHex("01000000"), 2));
    QVERIFY(t.receive(785, QByteArray::fromHex("ffffffff"), 2));
    QCOMPARE(t.record.lines(), QStringList());
}

void TestSettings::setRotationIsConfirmedAsAReadOne()
{
    IoTest t(3);
    QVERIFY(t.startReceiving(2));
    int told = -1;
    connect(
        t.io.get(), &IoConnect::getRotateModeSuccessMsg, this,
        [&](Channel*, const int* mode) { told = *mode; }, Qt::DirectConnection);
    t.link.next(LinkFn::avSendIOCtrl, ofType(13088))
        .replies(13089, QByteArray::fromHex("02000000"));
    t.io->sendRotateMode(t.channel(2), 2);
    QTRY_COMPARE(told, 2);
    QVERIFY(t.settle());
    QCOMPARE(t.record.lines(), QStringList({"send 13088", "getRotateModeSuccessMsg 2"}));
}

void TestSettings::smartModeNumberIsAQuestionOneWayAndAnOutcomeTheOther()
{
    IoTest t(3);
    QVERIFY(t.startReceiving(2));
    t.link.next(LinkFn::avSendIOCtrl, ofType(41254)).replies(41255, QByteArray("\1", 1));
    t.io->getSmartMode(t.channel(2));
    QTRY_VERIFY(t.record.lines().contains(QStringLiteral("getSmartModeSuccessMsg 2")));
    t.link.next(LinkFn::avSendIOCtrl, ofType(41253)).replies(41254, QByteArray(4, '\0'));
    t.io->sendSmartMode(t.channel(2), 0);
    QTRY_VERIFY(t.record.lines().contains(QStringLiteral("setSmartModeSuccessMsg 2")));
    QCOMPARE(t.record.lines(),
        QStringList(
            {"send 41254", "getSmartModeSuccessMsg 2", "send 41253", "setSmartModeSuccessMsg 2"}));
    QCOMPARE(t.record.sends().at(1).payload(), QByteArray("0"));
}

void TestSettings::smartModeIsCutToOneDigit()
{
    IoTest t(3);
    t.io->sendSmartMode(t.channel(2), 10);
    QVERIFY(t.settle());
    QCOMPARE(t.record.sends().at(0).payload(), QByteArray("1"));
}

void TestSettings::onlyTheSetOfRecordModeNamesTheChannel()
{
    IoTest t(3);
    t.io->sendRecordMode(t.channel(2), 2);
    t.io->getRecordMode(t.channel(2));
    t.io->sendSmartSensitivity(t.channel(2), 100);
    QVERIFY(t.settle());
    const auto sends = t.record.sends();
    QCOMPARE(sends.at(0).payload().toHex(), QByteArray("020000000200000000000000"));
    QCOMPARE(sends.at(1).payload().toHex(), zeros(12));
    QCOMPARE(sends.at(2).payload().toHex(), QByteArray("0000000064000000"));
}

void TestSettings::acceptedPasswordDisconnectsTheDeviceFirst()
{
    IoTest t(2);
    QVERIFY(t.startReceiving(1));
    const int sid = t.device->sid;
    int sidBySignal = 0;
    connect(t.io.get(), &IoConnect::setPasswordSuccessMsg, this,
        [&](Channel* channel) { sidBySignal = channel->device()->sid; });
    QVERIFY(t.receive(819, QByteArray(4, '\0'), 1));
    const QStringList lines = t.record.lines();
    QCOMPARE(lines.first(), QStringLiteral("ViewControl::closeDevice"));
    QVERIFY(lines.contains(QStringLiteral("IOTC_Session_Close %1").arg(sid)));
    QVERIFY(lines.contains(QStringLiteral("stopReplaySuccessMsg 0")));
    QCOMPARE(lines.last(), QStringLiteral("setPasswordSuccessMsg 1"));
    QCOMPARE(lines.filter(QStringLiteral("setPasswordSuccessMsg")).size(), 1);
    QCOMPARE(sidBySignal, -1);
    QCOMPARE(int(t.device->sid), -1);
}

void TestSettings::refusedPasswordLeavesTheDeviceConnected()
{
    IoTest t(2);
    const int sid = t.device->sid;
    QVERIFY(t.startReceiving(1));
    QVERIFY(t.receive(819, QByteArray::fromHex("05000000"), 1));
    QCOMPARE(
        t.record.lines(), QStringList({"setPasswordFailMsg 1 0 Failed to configure password"}));
    QCOMPARE(int(t.device->sid), sid);
}

void TestSettings::textsAreSentAsLatin1()
{
    IoTest t(3);
    // u umlaut, sharp s; a Greek letter has no place in it.
    t.io->setWifi(t.channel(2), QStringLiteral("\u00fcb"), QStringLiteral("\u00df\u03b1"));
    t.io->setPassword(t.channel(2), QStringLiteral("\u00fc"), QStringLiteral("\u00e9"));
    QVERIFY(t.settle());
    const auto sends = t.record.sends();
    QCOMPARE(sends.at(0).payload().toHex(), "fc62" + zeros(30) + "df3f" + zeros(30) + zeros(12));
    QCOMPARE(sends.at(1).payload().toHex(), "fc" + zeros(31) + "e9" + zeros(31));
}

void TestSettings::textsAreCutAtThirtyTwoBytes()
{
    IoTest t(3);
    const QString longText = QString(32, 'a') + QStringLiteral("bcdefgh");
    const QString full = QString(32, 'z');
    const QByteArray as = QByteArray(32, 'a').toHex();
    const QByteArray zs = QByteArray(32, 'z').toHex();
    t.io->setWifi(t.channel(2), longText, full);
    t.io->setPassword(t.channel(2), full, longText);
    QVERIFY(t.settle());
    const auto sends = t.record.sends();
    QCOMPARE(sends.at(0).payload().toHex(), as + zs + zeros(12));
    QCOMPARE(sends.at(1).payload().toHex(), zs + as);
}

void TestSettings::timeZoneIsSentWithoutATerminator()
{
    IoTest t(3);
    t.io->setTimeZone(t.channel(2), QStringLiteral("UTC"));
    QVERIFY(t.settle());
    QCOMPARE(t.record.sends().at(0).payload(), QByteArray("UTC"));
    QCOMPARE(t.record.sends().at(0).number("size"), 3);
}

ORVA_TEST(TestSettings)
#include "tst_settings.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
// What is sent: the numbers of the messages and their bytes.
#include "localzone.h"
#include "receivebuffer.h"
#include "testmain.h"

#include <QTest>
#include <QTimeZone>

class TestMessages final : public QObject
{
    Q_OBJECT

private slots:
    void everyTypeHasItsNumber_data();
    void everyTypeHasItsNumber();
    void playCommandsHaveTheirNumbers();
    void fixedNumbersOfTheMessages();

    void numbersAreLittleEndian();
    void channelRequestNamesTheChannel();
    void setQualitySendsTheWishAsAWord();
    void setRecordModeNamesTheChannel();
    void setSensitivityNamesNoChannel();
    void rotateSendsAModeOrTheQuestionForIt();
    void ipcPtzHasTheChannelAsAByteAtFive();
    void dvrPtzHasTheChannelAsAWordAtFourAndThePointAtEight();
    void structuresStartAsZeros();

    void setPasswordFillsBothFieldsWithZeros();
    void setWifiFillsBothFieldsWithZeros();
    void emptyTextsAreZeros();
    void textsAreCutToTheirField_data();
    void textsAreCutToTheirField();
    void lettersOfLatin1AreOneByteEach();
    void lettersBeyondLatin1BecomeQuestionMarks();

    void playControlWithoutATime_data();
    void playControlWithoutATime();
    void playControlWithTimeAndSpeed_data();
    void playControlWithTimeAndSpeed();
    void stopLeavesTheChannelByteZero();
    void channelByteIsTheLowestOfTheNumber();
    void setReplayTimeSendsBaseAndOffset();
    void setReplayTimeSendsOffsetsBackwards();

    void timesAreSentInUtcFromWhateverZone_data();
    void timesAreSentInUtcFromWhateverZone();
    void localTimesOfTwoZonesAreSentInUtc();
    void aLocalDayIsAskedForAsASpanOfUtc_data();
    void aLocalDayIsAskedForAsASpanOfUtc();

    void setTimeTextHasNoPadding();
    void setTimeTextStaysInItsZone();
    void smartModeIsItsFirstDigit();
};

namespace {

// Each of its four bytes differs.
constexpr int channelNumber = 0x01020304;

QDateTime utc(int year, int month, int day, int hour, int minute, int second)
{
    return {QDate(year, month, day), QTime(hour, minute, second), Qt::UTC};
}

void addSentTypes()
{
    const auto row = [](const char* name, IoctrlType type, unsigned number) {
        QTest::newRow(name) << static_cast<unsigned>(type) << number;
    };
    row("VIDEO_PREPARE", IOCTRL_VIDEO_PREPARE, 255);
    row("VIDEO_START", IOCTRL_VIDEO_START, 511);
    row("VIDEO_STOP", IOCTRL_VIDEO_STOP, 767);
    row("AUDIO_START", IOCTRL_AUDIO_START, 768);
    row("AUDIO_STOP", IOCTRL_AUDIO_STOP, 769);
    row("SET_RECORD_MODE", IOCTRL_SET_RECORD_MODE, 784);
    row("GET_RECORD_MODE", IOCTRL_GET_RECORD_MODE, 786);
    row("LIST_RECORDS", IOCTRL_LIST_RECORDS, 792);
    row("PLAY_CONTROL", IOCTRL_PLAY_CONTROL, 794);
    row("SET_QUALITY", IOCTRL_SET_QUALITY, 800);
    row("GET_QUALITY", IOCTRL_GET_QUALITY, 802);
    row("SET_SENSITIVITY", IOCTRL_SET_SENSITIVITY, 804);
    row("GET_SENSITIVITY", IOCTRL_GET_SENSITIVITY, 806);
    row("SET_PASSWORD", IOCTRL_SET_PASSWORD, 818);
    row("SET_REPLAY_TIME", IOCTRL_SET_REPLAY_TIME, 828);
    row("LIST_WIFI", IOCTRL_LIST_WIFI, 832);
    row("SET_WIFI", IOCTRL_SET_WIFI, 834);
    row("GET_WIFI", IOCTRL_GET_WIFI, 836);
    row("SPEAKER_START", IOCTRL_SPEAKER_START, 848);
    row("SPEAKER_STOP", IOCTRL_SPEAKER_STOP, 849);
    row("PTZ_IPC", IOCTRL_PTZ_IPC, 4097);
    row("PTZ_DVR", IOCTRL_PTZ_DVR, 4114);
    row("GET_PTZ", IOCTRL_GET_PTZ, 4353);
    row("GET_VERSION", IOCTRL_GET_VERSION, 13083);
    row("SET_TIME", IOCTRL_SET_TIME, 13086);
    row("ROTATE", IOCTRL_ROTATE, 13088);
    row("SET_TIME_ZONE", IOCTRL_SET_TIME_ZONE, 13102);
    row("SET_SMART_MODE", IOCTRL_SET_SMART_MODE, 41253);
}

void addReceivedTypes()
{
    const auto row = [](const char* name, IoctrlType type, unsigned number) {
        QTest::newRow(name) << static_cast<unsigned>(type) << number;
    };
    row("SET_RECORD_MODE_RESP", IOCTRL_SET_RECORD_MODE_RESP, 785);
    row("GET_RECORD_MODE_RESP", IOCTRL_GET_RECORD_MODE_RESP, 787);
    row("LIST_RECORDS_RESP", IOCTRL_LIST_RECORDS_RESP, 793);
    row("PLAY_CONTROL_RESP", IOCTRL_PLAY_CONTROL_RESP, 795);
    row("SET_QUALITY_RESP", IOCTRL_SET_QUALITY_RESP, 801);
    row("GET_QUALITY_RESP", IOCTRL_GET_QUALITY_RESP, 803);
    row("SET_SENSITIVITY_RESP", IOCTRL_SET_SENSITIVITY_RESP, 805);
    row("GET_SENSITIVITY_RESP", IOCTRL_GET_SENSITIVITY_RESP, 807);
    row("SET_PASSWORD_RESP", IOCTRL_SET_PASSWORD_RESP, 819);
    row("SET_REPLAY_TIME_RESP", IOCTRL_SET_REPLAY_TIME_RESP, 829);
    row("LIST_WIFI_RESP", IOCTRL_LIST_WIFI_RESP, 833);
    row("SET_WIFI_RESP", IOCTRL_SET_WIFI_RESP, 835);
    row("GET_WIFI_RESP", IOCTRL_GET_WIFI_RESP, 837);
    row("REPLAY_BUSY", IOCTRL_REPLAY_BUSY, 1793);
    row("GET_PTZ_RESP", IOCTRL_GET_PTZ_RESP, 4354);
    row("GET_VERSION_RESP", IOCTRL_GET_VERSION_RESP, 13084);
    row("ROTATE_RESP", IOCTRL_ROTATE_RESP, 13089);
    row("SET_TIME_ZONE_RESP", IOCTRL_SET_TIME_ZONE_RESP, 13103);
    row("SMART_MODE", IOCTRL_SMART_MODE, 41254);
    row("GET_SMART_MODE_RESP", IOCTRL_GET_SMART_MODE_RESP, 41255);
}

} // namespace

void TestMessages::everyTypeHasItsNumber_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<unsigned>("number");
    addSentTypes();
    addReceivedTypes();
}

void TestMessages::everyTypeHasItsNumber()
{
    QFETCH(unsigned, type);
    QTEST(type, "number");
}

void TestMessages::playCommandsHaveTheirNumbers()
{
    QCOMPARE(static_cast<unsigned>(AVIOCTRL_RECORD_PLAY_PAUSE), 0U);
    QCOMPARE(static_cast<unsigned>(AVIOCTRL_RECORD_PLAY_STOP), 1U);
    QCOMPARE(static_cast<unsigned>(AVIOCTRL_RECORD_PLAY_FORWARD), 4U);
    QCOMPARE(static_cast<unsigned>(AVIOCTRL_RECORD_PLAY_BACKWARD), 5U);
    QCOMPARE(static_cast<unsigned>(AVIOCTRL_RECORD_PLAY_END), 7U);
    QCOMPARE(static_cast<unsigned>(AVIOCTRL_RECORD_PLAY_START), 16U);
}

void TestMessages::fixedNumbersOfTheMessages()
{
    QCOMPARE(ioctrlBufferBytes, 1024);
    QCOMPARE(speechChannelId, 31);
    QCOMPARE(askRotateMode, 10);
}

void TestMessages::numbersAreLittleEndian()
{
    QCOMPARE(hexOf(WireNumber<quint16>(0x0102)), QByteArray("02 01"));
    QCOMPARE(hexOf(WireNumber<quint32>(0x01020304)), QByteArray("04 03 02 01"));
    QCOMPARE(hexOf(WireNumber<qint32>(-2)), QByteArray("fe ff ff ff"));
}

void TestMessages::channelRequestNamesTheChannel()
{
    QCOMPARE(hexOf(channelRequest(0)), QByteArray("00 00 00 00 00 00 00 00"));
    QCOMPARE(hexOf(channelRequest(7)), QByteArray("07 00 00 00 00 00 00 00"));
    QCOMPARE(hexOf(channelRequest(channelNumber)), QByteArray("04 03 02 01 00 00 00 00"));
    QCOMPARE(hexOf(channelRequest(speechChannelId)), QByteArray("1f 00 00 00 00 00 00 00"));
}

void TestMessages::setQualitySendsTheWishAsAWord()
{
    QCOMPARE(hexOf(setQualityRequest(channelNumber, true)), QByteArray("04 03 02 01 01 00 00 00"));
    QCOMPARE(hexOf(setQualityRequest(channelNumber, false)), QByteArray("04 03 02 01 00 00 00 00"));
}

void TestMessages::setRecordModeNamesTheChannel()
{
    QCOMPARE(hexOf(setRecordModeRequest(channelNumber, 2)),
        QByteArray("04 03 02 01 02 00 00 00 00 00 00 00"));
    QCOMPARE(hexOf(setRecordModeRequest(3, 0)), QByteArray("03 00 00 00 00 00 00 00 00 00 00 00"));
}

void TestMessages::setSensitivityNamesNoChannel()
{
    QCOMPARE(hexOf(setSensitivityRequest(25)), QByteArray("00 00 00 00 19 00 00 00"));
    QCOMPARE(hexOf(setSensitivityRequest(50)), QByteArray("00 00 00 00 32 00 00 00"));
    QCOMPARE(hexOf(setSensitivityRequest(75)), QByteArray("00 00 00 00 4b 00 00 00"));
    QCOMPARE(hexOf(setSensitivityRequest(100)), QByteArray("00 00 00 00 64 00 00 00"));
}

void TestMessages::rotateSendsAModeOrTheQuestionForIt()
{
    QCOMPARE(hexOf(rotateRequest(0)), QByteArray("00 00 00 00 00 00 00 00"));
    QCOMPARE(hexOf(rotateRequest(3)), QByteArray("03 00 00 00 00 00 00 00"));
    QCOMPARE(hexOf(rotateRequest(askRotateMode)), QByteArray("0a 00 00 00 00 00 00 00"));
}

void TestMessages::ipcPtzHasTheChannelAsAByteAtFive()
{
    SMsgAVIoctrlIPCPtzCmd command;
    command.control = 0x11;
    command.speed = 0x22;
    command.channel = 0xf3;
    QCOMPARE(hexOf(command), QByteArray("11 22 00 00 00 f3 00 00"));
}

void TestMessages::dvrPtzHasTheChannelAsAWordAtFourAndThePointAtEight()
{
    SMsgAVIoctrlPtzCmd command;
    command.control = 0x11;
    command.speed = 0x22;
    command.channel = channelNumber;
    command.point = 0x33;
    QCOMPARE(hexOf(command), QByteArray("11 22 00 00 04 03 02 01 33 00 00 00"));
}

void TestMessages::structuresStartAsZeros()
{
    QCOMPARE(bytesOf(SMsgAVIoctrlIPCPtzCmd()), zeros(8));
    QCOMPARE(bytesOf(SMsgAVIoctrlPtzCmd()), zeros(12));
    QCOMPARE(bytesOf(SetRecordModeRequest()), zeros(12));
    QCOMPARE(bytesOf(ListRecordsRequest()), zeros(24));
    QCOMPARE(bytesOf(PlayControlRequest()), zeros(24));
    QCOMPARE(bytesOf(SetReplayTimeRequest()), zeros(20));
    QCOMPARE(bytesOf(SetWifiRequest()), zeros(76));
}

void TestMessages::setPasswordFillsBothFieldsWithZeros()
{
    QCOMPARE(bytesOf(setPasswordRequest(QStringLiteral("old-1"), QStringLiteral("n\"w 2"))),
        fromHex("6f 6c 64 2d 31") + zeros(27) + fromHex("6e 22 77 20 32") + zeros(27));
}

void TestMessages::setWifiFillsBothFieldsWithZeros()
{
    QCOMPARE(bytesOf(setWifiRequest(QStringLiteral("Net"), QStringLiteral("key!"))),
        fromHex("4e 65 74") + zeros(29) + fromHex("6b 65 79 21") + zeros(28) + zeros(12));
}

void TestMessages::emptyTextsAreZeros()
{
    QCOMPARE(bytesOf(setPasswordRequest(QString(), QString())), zeros(64));
    QCOMPARE(bytesOf(setWifiRequest(QString(), QString())), zeros(76));
}

void TestMessages::textsAreCutToTheirField_data()
{
    QTest::addColumn<int>("letters");
    QTest::addColumn<int>("sent");
    QTest::newRow("31 letters leave a zero") << 31 << 31;
    QTest::newRow("32 letters fill the field") << 32 << 32;
    QTest::newRow("33 letters lose one") << 33 << 32;
    QTest::newRow("1000 letters") << 1000 << 32;
}

void TestMessages::textsAreCutToTheirField()
{
    QFETCH(int, letters);
    QFETCH(int, sent);
    const QString first(letters, QLatin1Char('a'));
    const QString second(letters, QLatin1Char('b'));
    const QByteArray fields =
        QByteArray(sent, 'a') + zeros(32 - sent) + QByteArray(sent, 'b') + zeros(32 - sent);
    QCOMPARE(bytesOf(setPasswordRequest(first, second)), fields);
    QCOMPARE(bytesOf(setWifiRequest(first, second)), fields + zeros(12));
}

void TestMessages::lettersOfLatin1AreOneByteEach()
{
    const QString text = QStringLiteral("\u00e4\u00df\u00ff");
    const QByteArray field = fromHex("e4 df ff") + zeros(29);
    QCOMPARE(bytesOf(setPasswordRequest(text, text)), field + field);
    QCOMPARE(bytesOf(setWifiRequest(text, text)), field + field + zeros(12));
    const QString many(33, QChar(0xe4));
    QCOMPARE(bytesOf(setPasswordRequest(many, QString())), QByteArray(32, '\xe4') + zeros(32));
}

void TestMessages::lettersBeyondLatin1BecomeQuestionMarks()
{
    const QString text = QStringLiteral("a\u03a9\u4e2db");
    const QByteArray field = fromHex("61 3f 3f 62") + zeros(28);
    QCOMPARE(bytesOf(setPasswordRequest(text, text)), field + field);
    QCOMPARE(bytesOf(setWifiRequest(text, text)), field + field + zeros(12));
}

void TestMessages::playControlWithoutATime_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("pause") << int(AVIOCTRL_RECORD_PLAY_PAUSE)
                           << fromHex("05 00 00 00  00 00 00 00  00 00 00 00"
                                      "00 00 00 00 00 00 00 00  05 00 00 00");
    QTest::newRow("resume by a start") << int(AVIOCTRL_RECORD_PLAY_START)
                                       << fromHex("05 00 00 00  10 00 00 00  00 00 00 00"
                                                  "00 00 00 00 00 00 00 00  05 00 00 00");
    QTest::newRow("stop") << int(AVIOCTRL_RECORD_PLAY_STOP)
                          << fromHex("05 00 00 00  01 00 00 00  00 00 00 00"
                                     "00 00 00 00 00 00 00 00  00 00 00 00");
}

void TestMessages::playControlWithoutATime()
{
    QFETCH(int, command);
    const PlayControlRequest request =
        playControlRequest(5, static_cast<RecordPlayCommand>(command));
    QTEST(bytesOf(request), "bytes");
}

void TestMessages::playControlWithTimeAndSpeed_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<int>("speed");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("start at normal speed") << int(AVIOCTRL_RECORD_PLAY_START) << 5
                                           << fromHex("05 00 00 00  10 00 00 00  00 00 00 00"
                                                      "e8 07 03 09 00 07 05 02  05 00 05 00");
    QTest::newRow("forward, fastest") << int(AVIOCTRL_RECORD_PLAY_FORWARD) << 10
                                      << fromHex("05 00 00 00  04 00 00 00  00 00 00 00"
                                                 "e8 07 03 09 00 07 05 02  05 00 0a 00");
    QTest::newRow("backward, slowest") << int(AVIOCTRL_RECORD_PLAY_BACKWARD) << 0
                                       << fromHex("05 00 00 00  05 00 00 00  00 00 00 00"
                                                  "e8 07 03 09 00 07 05 02  05 00 00 00");
}

void TestMessages::playControlWithTimeAndSpeed()
{
    QFETCH(int, command);
    QFETCH(int, speed);
    const PlayControlRequest request =
        playControlRequest(5, static_cast<RecordPlayCommand>(command), utc(2024, 3, 9, 7, 5, 2),
            static_cast<PLAY_SPEED>(speed));
    QTEST(bytesOf(request), "bytes");
}

void TestMessages::stopLeavesTheChannelByteZero()
{
    QCOMPARE(bytesOf(playControlRequest(channelNumber, AVIOCTRL_RECORD_PLAY_STOP)),
        fromHex("04 03 02 01  01 00 00 00") + zeros(16));
}

void TestMessages::channelByteIsTheLowestOfTheNumber()
{
    QCOMPARE(bytesOf(playControlRequest(channelNumber, AVIOCTRL_RECORD_PLAY_PAUSE)),
        fromHex("04 03 02 01  00 00 00 00") + zeros(12) + fromHex("04 00 00 00"));
}

void TestMessages::setReplayTimeSendsBaseAndOffset()
{
    const QDateTime base = utc(2023, 12, 31, 23, 59, 58);
    QCOMPARE(bytesOf(setReplayTimeRequest(channelNumber, base, 0x00010203)),
        fromHex("04 03 02 01  e7 07 0c 1f 00 17 3b 3a  03 02 01 00  00 00 00 00"));
}

void TestMessages::setReplayTimeSendsOffsetsBackwards()
{
    const QDateTime base = utc(2024, 2, 29, 0, 0, 0);
    QCOMPARE(bytesOf(setReplayTimeRequest(1, base, -90)),
        fromHex("01 00 00 00  e8 07 02 1d 00 00 00 00  a6 ff ff ff  00 00 00 00"));
}

// 9 March 2024, 07:05:02 UTC, in four ways.
void TestMessages::timesAreSentInUtcFromWhateverZone_data()
{
    QTest::addColumn<QDateTime>("time");
    QTest::newRow("UTC") << utc(2024, 3, 9, 7, 5, 2);
    QTest::newRow("an offset") << QDateTime(
        QDate(2024, 3, 9), QTime(12, 35, 2), Qt::OffsetFromUTC, 19800);
    QTest::newRow("another zone, the day before")
        << QDateTime(QDate(2024, 3, 8), QTime(21, 5, 2), QTimeZone("Pacific/Honolulu"));
}

void TestMessages::timesAreSentInUtcFromWhateverZone()
{
    QFETCH(QDateTime, time);
    const LocalZone tokyo("Asia/Tokyo");
    QCOMPARE(hexOf(deviceTime(time)), QByteArray("e8 07 03 09 00 07 05 02"));
    QCOMPARE(hexOf(deviceTime(time.toLocalTime())), QByteArray("e8 07 03 09 00 07 05 02"));
}

void TestMessages::localTimesOfTwoZonesAreSentInUtc()
{
    {
        const LocalZone tokyo("Asia/Tokyo");
        const QDateTime time(QDate(2024, 1, 1), QTime(8, 59, 59));
        QCOMPARE(hexOf(deviceTime(time)), QByteArray("e7 07 0c 1f 00 17 3b 3b"));
    }
    {
        const LocalZone newYork("America/New_York");
        const QDateTime winter(QDate(2023, 12, 31), QTime(18, 59, 59));
        QCOMPARE(hexOf(deviceTime(winter)), QByteArray("e7 07 0c 1f 00 17 3b 3b"));
        const QDateTime summer(QDate(2024, 6, 30), QTime(20, 0, 0));
        QCOMPARE(hexOf(deviceTime(summer)), QByteArray("e8 07 07 01 00 00 00 00"));
    }
}

void TestMessages::aLocalDayIsAskedForAsASpanOfUtc_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<QByteArray>("span");
    QTest::newRow("UTC") << QByteArray("UTC") << QDate(2024, 3, 9)
                         << fromHex("e8 07 03 09 00 00 00 00  e8 07 03 09 00 17 3b 3b");
    QTest::newRow("Tokyo, New Year") << QByteArray("Asia/Tokyo") << QDate(2024, 1, 1)
                                     << fromHex("e7 07 0c 1f 00 0f 00 00  e8 07 01 01 00 0e 3b 3b");
    QTest::newRow("New York, leap day")
        << QByteArray("America/New_York") << QDate(2024, 2, 29)
        << fromHex("e8 07 02 1d 00 05 00 00  e8 07 03 01 00 04 3b 3b");
    QTest::newRow("New York, the day of 23 hours")
        << QByteArray("America/New_York") << QDate(2024, 3, 10)
        << fromHex("e8 07 03 0a 00 05 00 00  e8 07 03 0b 00 03 3b 3b");
    QTest::newRow("New York, the day of 25 hours")
        << QByteArray("America/New_York") << QDate(2024, 11, 3)
        << fromHex("e8 07 0b 03 00 04 00 00  e8 07 0b 04 00 04 3b 3b");
    QTest::newRow("Sao Paulo, a day that began at 01:00")
        << QByteArray("America/Sao_Paulo") << QDate(2018, 11, 4)
        << fromHex("e2 07 0b 04 00 03 00 00  e2 07 0b 05 00 01 3b 3b");
}

void TestMessages::aLocalDayIsAskedForAsASpanOfUtc()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, day);
    QFETCH(QByteArray, span);
    const LocalZone here(zone.constData());
    QCOMPARE(
        bytesOf(listRecordsRequest(channelNumber, day)), fromHex("04 03 02 01") + span + zeros(4));
}

void TestMessages::setTimeTextHasNoPadding()
{
    QCOMPARE(
        setTimeText(QDateTime(QDate(2024, 3, 9), QTime(7, 5, 2))), QByteArray("2024-3-9-7-5-2"));
    QCOMPARE(
        setTimeText(QDateTime(QDate(2025, 1, 1), QTime(0, 0, 0))), QByteArray("2025-1-1-0-0-0"));
    QCOMPARE(setTimeText(QDateTime(QDate(2024, 12, 31), QTime(23, 59, 59))),
        QByteArray("2024-12-31-23-59-59"));
}

void TestMessages::setTimeTextStaysInItsZone()
{
    const LocalZone tokyo("Asia/Tokyo");
    const QDate date(2024, 3, 9);
    const QTime time(7, 5, 2, 999);
    for (const QDateTime& moment : {QDateTime(date, time), QDateTime(date, time, Qt::UTC),
             QDateTime(date, time, QTimeZone("America/New_York"))})
        QCOMPARE(setTimeText(moment), QByteArray("2024-3-9-7-5-2"));
}

void TestMessages::smartModeIsItsFirstDigit()
{
    QCOMPARE(smartModeText(0), QByteArray("0"));
    QCOMPARE(smartModeText(1), QByteArray("1"));
    QCOMPARE(smartModeText(27), QByteArray("2"));
}

ORVA_TEST(TestMessages)

#include "tst_messages.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
// Each setting of a real device program, written and read back.
#include "linktest.h"
#include "testmain.h"

namespace {

const QByteArray uid = "LINKSETTINGSDEVICE01";
const QByteArray passwordUid = "LINKSETTINGSDEVICE02";

QByteArray devices()
{
    return BridgeProcess::device(uid, 1, "    wifi: [workshop, \"front office\"]\n")
        + BridgeProcess::device(passwordUid, 2);
}

} // namespace

class TestSettings final : public LinkTest
{
    Q_OBJECT

public:
    TestSettings()
        : LinkTest(devices())
    {
    }

private slots:
    void init();

    void networksAreListed();
    void networkIsSetAndReadBack();
    void sensitivityIsSetAndReadBack();
    void smartModeIsSetAndReadBack();
    void rotationIsSetAndReadBack();
    void recordModeIsSetAndReadBack();
    void timeIsSet();
    void timeZoneIsSet();
    void unknownTimeZoneIsRefusedWithItsText();
    void versionIsAskedAgain();

    void refusalCarriesItsText_data();
    void refusalCarriesItsText();
    void refusedRecordModeIsSilent();

    void wrongOldPasswordIsRefusedWithItsText();
    void newPasswordEndsTheSessionAndCountsFromThenOn();

private:
    Channel* channel_ = nullptr;
};

void TestSettings::init()
{
    channel_ = connectedChannel(QString::fromLatin1(uid));
    QVERIFY(channel_);
}

void TestSettings::networksAreListed()
{
    QStringList names;
    connect(
        io(), &IoConnect::getWifiListSuccessMsg, this,
        [&names](Channel*, SMsgAVIoctrlListWifiApResp* list) {
            for (int i = 0; i < list->count; ++i)
                names.append(latin1(list->aps[static_cast<std::size_t>(i)].ssid.data()));
        },
        Qt::DirectConnection);
    io()->getWifiList(channel_);
    QTRY_COMPARE_WITH_TIMEOUT(names,
        QStringList({QStringLiteral("workshop"), QStringLiteral("front office")}), patienceMs);
    QVERIFY(disconnect(io(), &IoConnect::getWifiListSuccessMsg, this, nullptr));
}

void TestSettings::networkIsSetAndReadBack()
{
    QStringList read;
    connect(
        io(), &IoConnect::getWifiConfigSuccessMsg, this,
        [&read](Channel*, SMsgAVIoctrlGetWifiResp* config) {
            read.append(latin1(config->ssid.data()));
            read.append(latin1(config->password.data()));
        },
        Qt::DirectConnection);
    QSignalSpy written(io(), &IoConnect::setWifiSuccessMsg);
    io()->setWifi(channel_, QStringLiteral("front office"), QStringLiteral("K\u00e4se 42"));
    QTRY_COMPARE_WITH_TIMEOUT(written.size(), 1, patienceMs);
    io()->getWifiConfig(channel_);
    QTRY_COMPARE_WITH_TIMEOUT(read,
        QStringList({QStringLiteral("front office"), QStringLiteral("K\u00e4se 42")}), patienceMs);
    QVERIFY(disconnect(io(), &IoConnect::getWifiConfigSuccessMsg, this, nullptr));
}

void TestSettings::sensitivityIsSetAndReadBack()
{
    int read = -1;
    connect(
        io(), &IoConnect::getSmartSensitivitySuccessMsg, this,
        [&read](Channel*, SMsgAVIoctrlGetMotionDetectResp* answer) { read = answer->sensitivity; },
        Qt::DirectConnection);
    for (const int value : {100, 25}) {
        QSignalSpy written(io(), &IoConnect::setSmartSensitivitySuccessMsg);
        io()->sendSmartSensitivity(channel_, value);
        QTRY_COMPARE_WITH_TIMEOUT(written.size(), 1, patienceMs);
        io()->getSmartSensitivity(channel_);
        QTRY_COMPARE_WITH_TIMEOUT(read, value, patienceMs);
    }
    QVERIFY(disconnect(io(), &IoConnect::getSmartSensitivitySuccessMsg, this, nullptr));
}

void TestSettings::smartModeIsSetAndReadBack()
{
    int read = -1;
    connect(
        io(), &IoConnect::getSmartModeSuccessMsg, this,
        [&read](Channel*, DMS_NET_MOTION_CFG* answer) { read = answer->mode; },
        Qt::DirectConnection);
    for (const int mode : {1, 0}) {
        QSignalSpy written(io(), &IoConnect::setSmartModeSuccessMsg);
        io()->sendSmartMode(channel_, mode);
        QTRY_COMPARE_WITH_TIMEOUT(written.size(), 1, patienceMs);
        io()->getSmartMode(channel_);
        QTRY_COMPARE_WITH_TIMEOUT(read, mode, patienceMs);
    }
    QVERIFY(disconnect(io(), &IoConnect::getSmartModeSuccessMsg, this, nullptr));
}

// A write is confirmed through the signal of a read.
void TestSettings::rotationIsSetAndReadBack()
{
    QList<int> modes;
    connect(
        io(), &IoConnect::getRotateModeSuccessMsg, this,
        [&modes](Channel*, const int* mode) { modes.append(*mode); }, Qt::DirectConnection);
    QList<int> expected;
    for (const int mode : {1, 2, 3, 0}) {
        io()->sendRotateMode(channel_, mode);
        io()->getRotateMode(channel_);
        expected << mode << mode;
        QTRY_COMPARE_WITH_TIMEOUT(modes, expected, patienceMs);
    }
    QVERIFY(disconnect(io(), &IoConnect::getRotateModeSuccessMsg, this, nullptr));
}

void TestSettings::recordModeIsSetAndReadBack()
{
    int read = -1;
    connect(
        io(), &IoConnect::getRecordModeSuccessMsg, this,
        [&read](Channel*, SMsgAVIoctrlGetRecordResq* answer) { read = answer->recordType; },
        Qt::DirectConnection);
    for (const int type : {2, 1}) {
        QSignalSpy written(io(), &IoConnect::setRecordModeSuccessMsg);
        io()->sendRecordMode(channel_, type);
        QTRY_COMPARE_WITH_TIMEOUT(written.size(), 1, patienceMs);
        io()->getRecordMode(channel_);
        QTRY_COMPARE_WITH_TIMEOUT(read, type, patienceMs);
    }
    QVERIFY(disconnect(io(), &IoConnect::getRecordModeSuccessMsg, this, nullptr));
}

// No message reads time and zone back: the device's log tells that they have arrived.
void TestSettings::timeIsSet()
{
    QSignalSpy sent(io(), &IoConnect::setTimeSuccessMsg);
    io()->setTime(channel_, QDateTime({2024, 3, 9}, {7, 5, 2}));
    QTRY_COMPARE_WITH_TIMEOUT(sent.size(), 1, patienceMs);
    QTRY_VERIFY(bridge().log().contains("clock set by"));
}

void TestSettings::timeZoneIsSet()
{
    QSignalSpy written(io(), &IoConnect::setTimeZoneSuccessMsg);
    io()->setTimeZone(channel_, QStringLiteral("Europe/Berlin"));
    QTRY_COMPARE_WITH_TIMEOUT(written.size(), 1, patienceMs);
    QTRY_VERIFY(bridge().log().contains("zone set to \"Europe/Berlin\" by"));
}

void TestSettings::unknownTimeZoneIsRefusedWithItsText()
{
    QSignalSpy refused(io(), &IoConnect::setTimeZoneFailMsg);
    io()->setTimeZone(channel_, QStringLiteral("Europe/Atlantis"));
    QTRY_COMPARE_WITH_TIMEOUT(refused.size(), 1, patienceMs);
    QCOMPARE(refused.first(), failure(channel_, 0, "Device cannot modify time zone"));
}

void TestSettings::versionIsAskedAgain()
{
    QSignalSpy versions(io(), &IoConnect::getChannelInfoMsg);
    QSignalSpy ready(io(), &IoConnect::connectChannelSuccessMsg);
    io()->getChannelVersion(channel_);
    QTRY_COMPARE_WITH_TIMEOUT(versions.size(), 1, patienceMs);
    QCOMPARE(ready.size(), 1);
}

using Command = void (*)(IoConnect* io, Channel* channel);
using FailSignal = void (IoConnect::*)(Channel* channel, int result, const QString& text);
Q_DECLARE_METATYPE(Command)
Q_DECLARE_METATYPE(FailSignal)

void TestSettings::refusalCarriesItsText_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<Command>("command");
    QTest::addColumn<FailSignal>("signal");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char* name, const char* fault, Command command, FailSignal signal,
                         const char* text) {
        QTest::newRow(name) << QByteArray(fault) << command << signal << QByteArray(text);
    };
    row(
        "network", "answer 835 1",
        [](IoConnect* io, Channel* channel) {
            io->setWifi(channel, QStringLiteral("workshop"), QString());
        },
        &IoConnect::setWifiFailMsg, "Failed to configure wireless network");
    row(
        "sensitivity", "answer 805 1",
        [](IoConnect* io, Channel* channel) { io->sendSmartSensitivity(channel, 50); },
        &IoConnect::setSmartSensitivityFailMsg,
        "Failed to configure the senitivity of smart detection");
    row(
        "sensitivity that no device has", "mute off",
        [](IoConnect* io, Channel* channel) { io->sendSmartSensitivity(channel, 51); },
        &IoConnect::setSmartSensitivityFailMsg,
        "Failed to configure the senitivity of smart detection");
    row(
        "smart mode", "answer 41254 1",
        [](IoConnect* io, Channel* channel) { io->sendSmartMode(channel, 1); },
        &IoConnect::setSmartModeFailMsg, "Failed to configure the mode of smart detection");
    row(
        "time zone", "answer 13103 0",
        [](IoConnect* io, Channel* channel) {
            io->setTimeZone(channel, QStringLiteral("Europe/Paris"));
        },
        &IoConnect::setTimeZoneFailMsg, "Device cannot modify time zone");
}

void TestSettings::refusalCarriesItsText()
{
    QFETCH(QByteArray, fault);
    QFETCH(Command, command);
    QFETCH(FailSignal, signal);
    QFETCH(QByteArray, text);
    QVERIFY(bridge().fault(uid, fault));
    QSignalSpy refused(io(), signal);
    command(io(), channel_);
    QTRY_COMPARE_WITH_TIMEOUT(refused.size(), 1, patienceMs);
    QCOMPARE(refused.first(), failure(channel_, 0, text.constData()));
    if (fault.startsWith("answer"))
        QVERIFY(bridge().fault(uid, fault.left(fault.lastIndexOf(' ')) + " off"));
}

void TestSettings::refusedRecordModeIsSilent()
{
    QVERIFY(bridge().fault(uid, "answer 785 1"));
    QSignalSpy written(io(), &IoConnect::setRecordModeSuccessMsg);
    QSignalSpy failed(io(), &IoConnect::sendRecordModeFailMsg);
    QSignalSpy later(io(), &IoConnect::setWifiSuccessMsg);
    io()->sendRecordMode(channel_, 1);
    // Its answer comes behind that of the record mode.
    io()->setWifi(channel_, QStringLiteral("workshop"), QString());
    QTRY_COMPARE_WITH_TIMEOUT(later.size(), 1, patienceMs);
    QCOMPARE(written.size(), 0);
    QCOMPARE(failed.size(), 0);
    QVERIFY(bridge().fault(uid, "answer 785 off"));
}

void TestSettings::wrongOldPasswordIsRefusedWithItsText()
{
    QSignalSpy refused(io(), &IoConnect::setPasswordFailMsg);
    io()->setPassword(channel_, QStringLiteral("guess"), QStringLiteral("anew"));
    QTRY_COMPARE_WITH_TIMEOUT(refused.size(), 1, patienceMs);
    QCOMPARE(refused.first(), failure(channel_, 0, "Failed to configure password"));
    QVERIFY(channel_->device()->sid >= 0);
}

void TestSettings::newPasswordEndsTheSessionAndCountsFromThenOn()
{
    Device* device = addDevice(QString::fromLatin1(passwordUid), 2);
    Channel* channel = device->channel(0);
    QVERIFY(bringUp(channel));
    QVERIFY(bringUp(device->channel(1)));
    QSignalSpy ended(io(), &IoConnect::videoRequestStopSuccessMsg);
    QSignalSpy written(io(), &IoConnect::setPasswordSuccessMsg);
    io()->setPassword(channel, latin1(BridgeProcess::password), QStringLiteral("K\u00e4se 42"));
    QTRY_COMPARE_WITH_TIMEOUT(written.size(), 1, patienceMs);
    QCOMPARE(int(device->sid), -1);
    QCOMPARE(ended.size(), 2); // one for each channel

    QSignalSpy refused(io(), &IoConnect::connectChannelFailMsg);
    io()->connect(channel);
    QTRY_COMPARE_WITH_TIMEOUT(refused.size(), 1, patienceMs);
    QCOMPARE(refused.first(), failure(channel, -20009, "Incorrect view account or password"));

    device->setViewPassword(QStringLiteral("K\u00e4se 42"));
    QVERIFY(bringUp(channel));
}

ORVA_TEST(TestSettings)
#include "tst_settings.moc"

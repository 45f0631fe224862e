// SPDX-License-Identifier: GPL-3.0-or-later
#include "bytes.h"
#include "device.h"
#include "fakelink.h"
#include "testmain.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <nlohmann/json.hpp>
#include <optional>

// Each message as a device answers it, between a link and feeds that only remember.
class TestDevice final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void isPublishedAsConfigured();
    void startBeginsWithAPictureAtOnce();
    void stopEndsPictureAndSound();
    void soundStartsAndStops();
    void clientsHaveStatesOfTheirOwn();
    void closedChannelIsLeftAlone();
    void qualityCountsFromTheNextStart();
    void versionIsAnswered();
    void recordModeIsKept();
    void sensitivityIsKept();
    void smartModeIsKept();
    void rotationTurnsThePicture_data();
    void rotationTurnsThePicture();
    void wifiIsListedAndKept();
    void clockIsSetInTheDevicesZone();
    void clockThatComesRightAfterTheZoneIsInThatZone();
    void zoneIsCheckedAndShown();
    void passwordNeedsTheOldOne();
    void configuredPasswordThatChangedCounts();
    void headMovesAndStops();
    void presetsAndPositionLiveThroughARestart();
    void cruiseIsToldAndShown();
    void recordingsAreEmpty();
    void replayIsRefused();
    void speechIsWrittenDown();
    void secondSpeakerIsRefused();
    void otherChannelThanTheMessagesOwnIsRefused_data();
    void otherChannelThanTheMessagesOwnIsRefused();
    void malformedMessagesAreRefused();
    void settingsLiveThroughARestart();
    void faultsAreObeyed();
    void faultsComeFromTheConfiguration();
    void statusTellsNoSecret();

private:
    void start();
    void restart();
    std::shared_ptr<FakeChannel> open(int channel, std::uint64_t session = 1);
    void send(const std::shared_ptr<FakeChannel>& from, quint32 type, const std::string& bytes);
    QByteArray answer(
        const std::shared_ptr<FakeChannel>& from, quint32 type, const std::string& bytes);
    void fault(const char* line);

    std::unique_ptr<QTemporaryDir> folder_;
    DeviceConfig config_;
    FakeHost host_;
    std::unique_ptr<StateFile> state_;
    std::unique_ptr<JobQueue> jobs_;
    std::vector<FakeFeed*> feeds_;
    int wakes_ = 0;
    std::unique_ptr<BridgeDevice> device_;
};

namespace {

std::string move(int command, int channel)
{
    return std::string{static_cast<char>(command), 5, 0, 0}
    + words({static_cast<quint32>(channel), 7});
}

} // namespace

void TestDevice::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    config_ = {};
    config_.uid = "ABCDEFGHIJ0123456789";
    config_.version = "1.5.0.IPC4";
    config_.type = "camera";
    config_.password = "secret";
    config_.wifi = {"one", "two"};
    config_.speechFile = folder_->filePath("speech.wav").toStdString();
    config_.channels.resize(4);
    start();
}

void TestDevice::start()
{
    std::string error;
    state_ = StateFile::open(folder_->filePath("state.db").toStdString(), error);
    QVERIFY2(state_, error.c_str());
    jobs_ = std::make_unique<JobQueue>();
    feeds_.clear();
    const DeviceServices services{host_, *jobs_, *state_, [this] { ++wakes_; },
        [this](const FeedSettings& settings, std::shared_ptr<SceneState> scene) {
            auto feed = std::make_unique<FakeFeed>(settings, std::move(scene));
            feeds_.push_back(feed.get());
            return feed;
        }};
    device_ = std::make_unique<BridgeDevice>(config_, services);
    QVERIFY(device_->publish());
}

void TestDevice::cleanup()
{
    device_->withdraw();
    jobs_.reset();
    device_.reset();
    state_.reset();
}

void TestDevice::restart()
{
    cleanup();
    start();
}

std::shared_ptr<FakeChannel> TestDevice::open(int channel, std::uint64_t session)
{
    auto link = std::make_shared<FakeChannel>(channel, session);
    device_->channelOpened(link);
    return link;
}

void TestDevice::send(
    const std::shared_ptr<FakeChannel>& from, quint32 type, const std::string& bytes)
{
    QVERIFY(device_->controlReceived(from, type, bytes));
}

// The bytes of the one answer, which has the type that follows the request's.
QByteArray TestDevice::answer(
    const std::shared_ptr<FakeChannel>& from, quint32 type, const std::string& bytes)
{
    from->takeSent();
    send(from, type, bytes);
    const bool came = QTest::qWaitFor([&] { return !from->sent().isEmpty(); });
    const auto sent = from->takeSent();
    const bool right = came && sent.size() == 1 && sent[0].first == type + 1;
    return right ? sent[0].second : QByteArray("no answer");
}

void TestDevice::fault(const char* line)
{
    device_->fault(std::get<Fault>(parseFault(line)));
}

void TestDevice::isPublishedAsConfigured()
{
    const LinkDevice& device = host_.published.back();
    QCOMPARE(device.uid, config_.uid);
    QCOMPARE(device.version, config_.version);
    QCOMPARE(device.account, std::string("Admin"));
    QCOMPARE(device.password, std::string("secret"));
    QCOMPARE(device.channels, 4);
    QCOMPARE(feeds_.size(), std::size_t{4});
    QCOMPARE(feeds_[3]->settings().channel, 3);
    QCOMPARE(feeds_[3]->settings().name, config_.uid + "/3");
}

void TestDevice::startBeginsWithAPictureAtOnce()
{
    const auto link = open(2);
    send(link, 255, std::string(2, '\0'));
    QCOMPARE(link->pictures(), 0);
    send(link, 511, words({2, 0}));
    QCOMPARE(link->pictures(), 1);
    QVERIFY(feeds_[2]->quality() == Quality::High);
    QVERIFY(link->sent().isEmpty());
    feeds_[2]->sendPicture();
    QCOMPARE(link->pictures(), 2);
}

void TestDevice::stopEndsPictureAndSound()
{
    const auto link = open(0);
    send(link, 511, words({0, 0}));
    send(link, 768, words({0}));
    send(link, 767, words({0, 0}));
    QVERIFY(!feeds_[0]->isWatched());
    QVERIFY(!feeds_[0]->isHeard());
}

void TestDevice::soundStartsAndStops()
{
    const auto link = open(3);
    send(link, 768, words({0}));
    QVERIFY(feeds_[3]->isHeard());
    QCOMPARE(link->sounds(), 1);
    QVERIFY(!feeds_[3]->isWatched());
    send(link, 769, words({0}));
    QVERIFY(!feeds_[3]->isHeard());
}

void TestDevice::clientsHaveStatesOfTheirOwn()
{
    const auto first = open(0, 1);
    const auto second = open(0, 2);
    send(first, 511, words({0, 0}));
    send(second, 511, words({0, 0}));
    send(first, 767, words({0, 0}));
    feeds_[0]->sendPicture();
    QCOMPARE(first->pictures(), 1);
    QCOMPARE(second->pictures(), 2);
}

void TestDevice::closedChannelIsLeftAlone()
{
    const auto link = open(0);
    send(link, 511, words({0, 0}));
    send(link, 768, words({0}));
    device_->channelClosed(link);
    QVERIFY(!feeds_[0]->isWatched());
    QVERIFY(!feeds_[0]->isHeard());
    send(link, 13083, std::string(64, '\0'));
    QVERIFY(link->sent().isEmpty());
}

void TestDevice::qualityCountsFromTheNextStart()
{
    const auto link = open(0);
    send(link, 511, words({0, 0}));
    QCOMPARE(answer(link, 800, words({0, 0})), wordBytes({0}));
    QVERIFY(feeds_[0]->quality() == Quality::High);
    QCOMPARE(answer(link, 802, words({0, 0})), wordBytes({0, 0}));
    send(link, 767, words({0, 0}));
    send(link, 511, words({0, 0}));
    QVERIFY(feeds_[0]->quality() == Quality::Low);
    QCOMPARE(answer(open(1), 802, words({1, 0})), wordBytes({1, 1}));
}

void TestDevice::versionIsAnswered()
{
    QCOMPARE(answer(open(1), 13083, std::string(64, '\0')),
        QByteArray::fromStdString(field("1.5.0.IPC4", 64)));
}

void TestDevice::recordModeIsKept()
{
    const auto link = open(1);
    QCOMPARE(answer(link, 784, words({1, 2, 0})), wordBytes({0}));
    QCOMPARE(answer(link, 786, words({0, 0, 0})), wordBytes({1, 2}));
    QCOMPARE(answer(open(0), 786, words({0, 0, 0})), wordBytes({0, 0}));
}

void TestDevice::sensitivityIsKept()
{
    const auto link = open(1);
    QCOMPARE(answer(link, 804, words({0, 75})), wordBytes({0}));
    QCOMPARE(answer(link, 806, words({0})), wordBytes({1, 75}));
    QCOMPARE(answer(link, 804, words({0, 60})), wordBytes({1}));
    QCOMPARE(answer(link, 806, words({0})), wordBytes({1, 75}));
}

void TestDevice::smartModeIsKept()
{
    const auto link = open(0);
    QCOMPARE(answer(link, 41254, words({0})), QByteArray("\0", 1));
    QCOMPARE(answer(link, 41253, "1"), wordBytes({0}));
    QCOMPARE(answer(link, 41254, words({0})), QByteArray("\1"));
    QCOMPARE(answer(link, 41253, "7"), wordBytes({1}));
}

void TestDevice::rotationTurnsThePicture_data()
{
    QTest::addColumn<quint32>("mode");
    QTest::addColumn<int>("shown");
    QTest::newRow("upright") << 0u << 0;
    QTest::newRow("mirrored") << 1u << 2;
    QTest::newRow("flipped") << 2u << 3;
    QTest::newRow("turned") << 3u << 1;
}

void TestDevice::rotationTurnsThePicture()
{
    QFETCH(quint32, mode);
    const auto link = open(1);
    QCOMPARE(answer(link, 13088, words({mode, 0})), wordBytes({mode}));
    QCOMPARE(answer(link, 13088, words({10, 0})), wordBytes({mode}));
    QTEST(feeds_[1]->scene().rotation.load(), "shown");
    QCOMPARE(feeds_[0]->scene().rotation.load(), 0);
}

void TestDevice::wifiIsListedAndKept()
{
    const auto link = open(0);
    QCOMPARE(answer(link, 832, words({0})),
        wordBytes({2}) + QByteArray::fromStdString(field("one", 36) + field("two", 36)));
    QCOMPARE(answer(link, 836, words({0})), QByteArray(64, '\0'));
    QCOMPARE(answer(link, 834, field("two", 32) + field("word", 44)), wordBytes({0}));
    QCOMPARE(answer(link, 836, words({0})),
        QByteArray::fromStdString(field("two", 32) + field("word", 32)));
}

void TestDevice::clockIsSetInTheDevicesZone()
{
    const auto link = open(0);
    QCOMPARE(answer(link, 13102, "UTC+02:00"), wordBytes({1}));
    const auto wanted = QDateTime::currentDateTimeUtc().addSecs(7200 + 1000);
    send(link, 13086, wanted.toString("yyyy-M-d-h-m-s").toStdString());
    QTRY_VERIFY(feeds_[3]->scene().clockOffsetSeconds.load() != 0);
    QVERIFY(link->sent().isEmpty());
    const auto offset = feeds_[3]->scene().clockOffsetSeconds.load();
    QVERIFY2(offset > 990 && offset <= 1000, std::to_string(offset).c_str());
}

// A client that changes both sends both, and waits for nothing in between.
void TestDevice::clockThatComesRightAfterTheZoneIsInThatZone()
{
    const auto link = open(0);
    const auto wanted = QDateTime::currentDateTimeUtc().addSecs(7200 + 1000);
    send(link, 13102, "UTC+02:00");
    send(link, 13086, wanted.toString("yyyy-M-d-h-m-s").toStdString());
    QTRY_VERIFY(feeds_[3]->scene().clockOffsetSeconds.load() != 0);
    const auto offset = feeds_[3]->scene().clockOffsetSeconds.load();
    QVERIFY2(offset > 980 && offset <= 1000, std::to_string(offset).c_str());
}

void TestDevice::zoneIsCheckedAndShown()
{
    const auto link = open(0);
    QCOMPARE(answer(link, 13102, "Asia/Kolkata"), wordBytes({1}));
    QCOMPARE(feeds_[3]->scene().zoneOffsetSeconds.load(), 19800);
    for (const char* name : {"../../etc/passwd", "/usr/share/zoneinfo/UTC", "Nowhere"})
        QCOMPARE(answer(link, 13102, name), wordBytes({0}));
    QCOMPARE(answer(link, 13102, std::string(65, 'A')), wordBytes({0}));
    QCOMPARE(feeds_[3]->scene().zoneOffsetSeconds.load(), 19800);
}

void TestDevice::passwordNeedsTheOldOne()
{
    const auto link = open(0);
    QCOMPARE(answer(link, 818, field("wrong", 32) + field("new", 32)), wordBytes({1}));
    QCOMPARE(host_.lastPassword(), std::string());
    QCOMPARE(answer(link, 818, field("secret", 32) + field("new", 32)), wordBytes({0}));
    QCOMPARE(host_.lastPassword(), std::string("new"));
    QCOMPARE(answer(link, 818, field("secret", 32) + field("other", 32)), wordBytes({1}));
    QCOMPARE(answer(link, 818, field("new", 32) + field("", 32)), wordBytes({1}));
    restart();
    QCOMPARE(host_.published.back().password, std::string("new"));
}

void TestDevice::configuredPasswordThatChangedCounts()
{
    QCOMPARE(answer(open(0), 818, field("secret", 32) + field("new", 32)), wordBytes({0}));
    config_.password = "reset";
    restart();
    QCOMPARE(host_.published.back().password, std::string("reset"));
}

void TestDevice::headMovesAndStops()
{
    const auto link = open(1);
    const auto& scene = feeds_[1]->scene();
    send(link, 4114, move(2, 1));
    QVERIFY(wakes_ > 0);
    QTRY_VERIFY(device_->tick() && scene.pan > 0.02F);
    send(link, 4114, move(0, 1));
    const float stopped = scene.pan;
    device_->tick();
    QVERIFY(!device_->tick());
    QCOMPARE(scene.pan.load(), stopped);
    QCOMPARE(feeds_[0]->scene().pan.load(), 0.0F);
    // A recorder's command on the same channel: up.
    send(link, 4097, std::string{1, 8, 0, 0, 0, 1, 0, 0});
    QTRY_VERIFY(device_->tick() && scene.tilt > 0.02F);
    QVERIFY(link->sent().isEmpty());
}

void TestDevice::presetsAndPositionLiveThroughARestart()
{
    auto link = open(1);
    send(link, 4114, move(2, 1));
    QTRY_VERIFY(device_->tick() && feeds_[1]->scene().pan > 0.02F);
    send(link, 4114, move(15, 1));
    send(link, 4114, move(0, 1));
    const float place = feeds_[1]->scene().pan;
    restart();
    QCOMPARE(feeds_[1]->scene().pan.load(), place);
    link = open(1);
    send(link, 4114, move(1, 1));
    QTRY_VERIFY(device_->tick() && feeds_[1]->scene().pan < 0);
    send(link, 4114, move(16, 1));
    QTRY_VERIFY(!device_->tick());
    // A head that moves saves where it was when the preset was set.
    QVERIFY(std::abs(feeds_[1]->scene().pan - place) < 0.05F);
}

void TestDevice::cruiseIsToldAndShown()
{
    const auto link = open(0);
    QCOMPARE(answer(link, 4353, words({0, 0})), wordBytes({0}));
    send(link, 4114, move(29, 0));
    QCOMPARE(answer(link, 4353, words({0, 0})), wordBytes({1}));
    QCOMPARE(feeds_[0]->scene().cruise.load(), 1);
    QTRY_VERIFY(device_->tick() && feeds_[0]->scene().pan > 0.02F);
    send(link, 4114, move(22, 0));
    QCOMPARE(answer(link, 4353, words({0, 0})), wordBytes({2}));
    send(link, 4114, move(23, 0));
    QCOMPARE(answer(link, 4353, words({0, 0})), wordBytes({0}));
}

void TestDevice::recordingsAreEmpty()
{
    const std::string day("\xe8\x07\x03\x09\0\0\0\0", 8);
    QCOMPARE(answer(open(2), 792, words({2}) + day + day + words({0})),
        wordBytes({2, 0}) + QByteArray("\0\1\0\0", 4));
}

void TestDevice::replayIsRefused()
{
    const auto link = open(0);
    const std::string day("\xe8\x07\x03\x09\0\0\0\0", 8);
    send(link, 794, words({0, 16, 0}) + day + words({0}));
    QVERIFY(link->sent().isEmpty());
    QCOMPARE(answer(link, 828, words({0}) + day + words({0, 0})), QByteArray("\1"));
}

void TestDevice::speechIsWrittenDown()
{
    const auto link = open(0);
    send(link, 848, words({31, 0}));
    QCOMPARE(link->speechChannel(), 31);
    LinkFrame frame;
    describe(frame, LinkCodecALaw, false, 0);
    frame.bytes.assign(320, 0x55);
    device_->speechReceived(link, frame);
    send(link, 849, words({31, 0}));
    QCOMPARE(link->speechChannel(), -1);
    const QString path = QString::fromStdString(config_.speechFile);
    QTRY_COMPARE(QFileInfo(path).size(), qint64{44 + 640});
    device_->speechReceived(link, frame);
    cleanup();
    QCOMPARE(QFileInfo(path).size(), qint64{44 + 640});
    start();
}

void TestDevice::secondSpeakerIsRefused()
{
    const auto first = open(0, 1);
    const auto second = open(0, 2);
    send(first, 848, words({31, 0}));
    send(second, 848, words({31, 0}));
    QCOMPARE(second->speechChannel(), -1);
    send(second, 849, words({31, 0}));
    QCOMPARE(first->speechChannel(), 31);
    device_->channelClosed(first);
    send(second, 848, words({31, 0}));
    QCOMPARE(second->speechChannel(), 31);
}

void TestDevice::otherChannelThanTheMessagesOwnIsRefused_data()
{
    const std::string day("\xe8\x07\x03\x09\0\0\0\0", 8);
    QTest::addColumn<quint32>("type");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("answer"); // empty: none
    const auto row = [](quint32 type, const std::string& bytes, const QByteArray& answer = {}) {
        QTest::addRow("%u", type) << type << QByteArray::fromStdString(bytes) << answer;
    };
    row(511, words({1, 0}));
    row(767, words({1, 0}));
    row(784, words({1, 2, 0}), wordBytes({1}));
    row(792, words({1}) + day + day + words({0}));
    row(800, words({1, 0}), wordBytes({1}));
    row(802, words({1, 0}));
    row(4114, move(2, 1));
    row(4097, std::string{1, 8, 0, 0, 0, 1, 0, 0});
}

void TestDevice::otherChannelThanTheMessagesOwnIsRefused()
{
    QFETCH(quint32, type);
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, answer);
    const auto link = open(0);
    send(link, type, bytes.toStdString());
    const auto sent = link->sent();
    QCOMPARE(sent.isEmpty() ? QByteArray() : sent[0].second, answer);
    QVERIFY(!feeds_[0]->isWatched() && !feeds_[1]->isWatched());
    QVERIFY(!device_->tick());
    const auto status = device_->status();
    for (const auto& channel : status["channels"]) {
        QVERIFY(channel["quality"] == "high");
        QVERIFY(channel["recordMode"] == 0);
    }
}

void TestDevice::malformedMessagesAreRefused()
{
    const auto link = open(0);
    send(link, 511, words({0}));
    send(link, 9999, words({0}));
    send(link, 4114, std::string(11, '\0'));
    QVERIFY(link->sent().isEmpty());
    QVERIFY(!feeds_[0]->isWatched());
    QCOMPARE(answer(link, 800, words({0, 0, 0})), wordBytes({1}));
    // Refusing goes on when the log has had enough of it.
    for (int i = 0; i < 100; ++i)
        QCOMPARE(answer(link, 818, "x"), wordBytes({1}));
}

void TestDevice::settingsLiveThroughARestart()
{
    const auto link = open(1);
    QCOMPARE(answer(link, 800, words({1, 0})), wordBytes({0}));
    QCOMPARE(answer(link, 784, words({1, 1, 0})), wordBytes({0}));
    QCOMPARE(answer(link, 804, words({0, 25})), wordBytes({0}));
    QCOMPARE(answer(link, 41253, "1"), wordBytes({0}));
    QCOMPARE(answer(link, 13088, words({3, 0})), wordBytes({3}));
    QCOMPARE(answer(link, 834, field("two", 76)), wordBytes({0}));
    QCOMPARE(answer(link, 13102, "Asia/Kolkata"), wordBytes({1}));
    send(link, 13086, "2030-1-1-0-0-0");
    QTRY_VERIFY(feeds_[1]->scene().clockOffsetSeconds.load() != 0);
    const auto clockOffset = feeds_[1]->scene().clockOffsetSeconds.load();
    restart();
    const auto again = open(1);
    QCOMPARE(answer(again, 802, words({1, 0})), wordBytes({1, 0}));
    QCOMPARE(answer(again, 786, words({0, 0, 0})), wordBytes({1, 1}));
    QCOMPARE(answer(again, 806, words({0})), wordBytes({1, 25}));
    QCOMPARE(answer(again, 41254, words({0})), QByteArray("\1"));
    QCOMPARE(answer(again, 13088, words({10, 0})), wordBytes({3}));
    QCOMPARE(answer(again, 836, words({0})), QByteArray::fromStdString(field("two", 64)));
    QCOMPARE(feeds_[1]->scene().zoneOffsetSeconds.load(), 19800);
    QCOMPARE(feeds_[1]->scene().clockOffsetSeconds.load(), clockOffset);
    QCOMPARE(feeds_[1]->scene().rotation.load(), 1);
}

void TestDevice::faultsAreObeyed()
{
    QVERIFY(device_->admit("127.0.0.1:9"));
    fault("refuse 1");
    QVERIFY(!device_->admit("127.0.0.1:9"));
    QVERIFY(device_->admit("127.0.0.1:9"));
    fault("silent on");
    QVERIFY(host_.silent);
    fault("silent off");
    QVERIFY(!host_.silent);
    const auto link = open(0);
    fault("hold on");
    QVERIFY(!device_->controlReceived(link, 800, words({0, 0})));
    fault("hold off");
    fault("answer 801 5");
    QCOMPARE(answer(link, 800, words({0, 0})), wordBytes({5}));
}

void TestDevice::faultsComeFromTheConfiguration()
{
    config_.faults = {
        std::get<Fault>(parseFault("refuse 1")), std::get<Fault>(parseFault("silent on"))};
    restart();
    QVERIFY(host_.silent);
    QVERIFY(!device_->admit("127.0.0.1:9"));
}

void TestDevice::statusTellsNoSecret()
{
    const auto link = open(2, 77);
    send(link, 511, words({2, 0}));
    send(link, 834, field("two", 32) + field("wifiword", 44));
    const auto status = device_->status();
    QVERIFY(status["uid"] == config_.uid);
    QVERIFY(status["channels"].size() == 4);
    QVERIFY(status["clients"].size() == 1);
    QVERIFY(status["clients"][0]["channel"] == 2);
    QVERIFY(status["clients"][0]["watching"] == true);
    QVERIFY(status.dump().find("secret") == std::string::npos);
    QVERIFY(status.dump().find("wifiword") == std::string::npos);
}

ORVA_TEST(TestDevice)
#include "tst_device.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/events.h"
#include "testmain.h"

#include <QTest>

#include <algorithm>
#include <set>
#include <type_traits>

class TestEvents final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyNumberBelongsToItsClass();
    void numbersAreUniqueAndWithoutGap();
    void everyClassDerivesDirectlyFromQEvent();
    void resultEventsCarryTheirResult();
    void channelEventsCarryChannelAndResult();
    void valueEventsCarryTheirValue();
    void replayRequestIsCopied();
    void avIndexEventCarriesItsMode();
    void stopReplayCarriesTheTime();
    void messageEventHandsItsBufferOver();
    void frameEventsCarryFrameAndInformation();
    void decodedPictureCarriesItsSize();
    void decodedSoundHandsItsSamplesOver();
    void dormantEventsExist();
    void screenshotCarriesItsPath();
    void logLineCarriesTypeAndText();
    void nullChannelIsAllowed();
    void unhandledSearchResultFreesItsRecords();
    void unhandledEventFreesItsBuffer();
    void droppedEventFreesItsBuffer();

private:
    Device* device_ = nullptr;
    Channel* channel_ = nullptr;
};

namespace {

template <typename... Events>
struct Catalogue
{
    static QList<int> numbers() { return {static_cast<int>(Events::number)...}; }
    static constexpr bool direct = (std::is_base_of_v<QEvent, Events> && ...);
    static constexpr bool closed = (std::is_final_v<Events> && ...);
};

// In the order of their numbers.
using All = Catalogue<ProgressEvent_Connect, ProgressEvent_LanSearch, ProgressEvent_StopStream,
    ProgressEvent_StartStream, ProgressEvent_getReplayVideoTime, ProgressEvent_GetAvIndex,
    ProgressEvent_playReplay, ProgressEvent_playReplayIo, ProgressEvent_stopReplay,
    ProgressEvent_changeQuality, ProgressEvent_audioControl, ProgressEvent_ptz,
    ProgressEvent_getMsg, ProgressEvent_audioSendControl, ProgressEvent_audioSendServiceStart,
    ProgressEvent_audioSendSpeechStart, ProgressEvent_LanSearchStart,
    ProgressEvent_getChannelVersion, DecodeEvent_getVideo, DecodeEvent_getAudio, VideoEvent_decoede,
    AudioEvent_decoede, ProgressEvent_pauseReplay, ProgressEvent_stopPauseReplay,
    ProgressEvent_setTime, ProgressEvent_setTimeZone, VideoEvent_icomming,
    ProgressEvent_changeReplayTime, ProgressEvent_setWifi, DebugEvent_getDebug,
    ProgressEvent_getWifiList, VideoEvent_screenShot, ProgressEvent_setPassword,
    ProgressEvent_getWifiConfig, ProgressEvent_getSmartSensitivity, ProgressEvent_getSmartMode,
    ProgressEvent_getRotateMode, ProgressEvent_getRecordMode, ProgressEvent_setSmartSensitivity,
    ProgressEvent_sendSmartMode, ProgressEvent_sendRotateMode, ProgressEvent_sendRecordMode,
    ProgressEvent_getQuality, ProgressEvent_initTutk>;

constexpr int firstNumber = 1000;
constexpr int eventCount = 44;

// Counts what it is sent and handles nothing.
class Ignorer final : public QObject
{
public:
    bool event(QEvent* event) override
    {
        ++seen;
        return QObject::event(event);
    }

    int seen = 0;
};

std::unique_ptr<char[]> bufferOf(const char* text)
{
    auto buffer = std::make_unique<char[]>(qstrlen(text) + 1);
    qstrcpy(buffer.get(), text);
    return buffer;
}

template <typename Event>
void checkChannelEvent(Channel* channel)
{
    const Event event(channel, -20015);
    QCOMPARE(event.type(), Event::number);
    QCOMPARE(static_cast<Channel*>(event.channel), channel);
    QCOMPARE(event.result, -20015);
}

template <typename Event, typename Value>
void checkValueEvent(Channel* channel, Value value)
{
    const Event event(channel, -7, value);
    QCOMPARE(event.type(), Event::number);
    QCOMPARE(static_cast<Channel*>(event.channel), channel);
    QCOMPARE(event.result, -7);
    QVERIFY(event.value == value);
}

template <typename Event>
void checkFrameEvent()
{
    MyFrameInfo_t info{};
    info.codecId = 78;
    info.flags = 1;
    info.timestamp = 1700000000;
    info.frameNumber = 4294967295U;
    Event event(5, bufferOf("frame"), info);
    info.codecId = 0;
    QCOMPARE(event.type(), Event::number);
    QCOMPARE(event.result, 5);
    QCOMPARE(event.info.codecId, std::uint16_t(78));
    QCOMPARE(event.info.flags, std::uint8_t(1));
    QCOMPARE(event.info.timestamp, 1700000000U);
    QCOMPARE(event.info.frameNumber, 4294967295U);
    const auto taken = std::move(event.buffer);
    QCOMPARE(taken.get(), "frame");
    QVERIFY(event.buffer == nullptr);
}

} // namespace

void TestEvents::init()
{
    device_ = new Device;
    device_->setChannelCount(2);
    channel_ = device_->channel(1);
}

void TestEvents::cleanup()
{
    device_->retire();
    QCoreApplication::sendPostedEvents();
}

void TestEvents::everyNumberBelongsToItsClass()
{
    const QList<int> numbers = All::numbers();
    QCOMPARE(numbers.size(), eventCount);
    for (int i = 0; i < numbers.size(); ++i)
        QCOMPARE(numbers.at(i), firstNumber + i);
}

void TestEvents::numbersAreUniqueAndWithoutGap()
{
    const QList<int> numbers = All::numbers();
    const std::set<int> unique(numbers.begin(), numbers.end());
    QCOMPARE(static_cast<int>(unique.size()), eventCount);
    QCOMPARE(*unique.begin(), 1000);
    QCOMPARE(*unique.rbegin(), 1043);
    QCOMPARE(static_cast<int>(QEvent::User), firstNumber);
}

void TestEvents::everyClassDerivesDirectlyFromQEvent()
{
    QVERIFY(All::direct);
    QVERIFY(All::closed);
}

void TestEvents::resultEventsCarryTheirResult()
{
    const ProgressEvent_initTutk init(-5);
    QCOMPARE(static_cast<int>(init.type()), 1043);
    QCOMPARE(init.result, -5);
    const ProgressEvent_LanSearchStart search(0);
    QCOMPARE(static_cast<int>(search.type()), 1016);
    QCOMPARE(search.result, 0);
}

void TestEvents::channelEventsCarryChannelAndResult()
{
    checkChannelEvent<ProgressEvent_StartStream>(channel_);
    checkChannelEvent<ProgressEvent_getReplayVideoTime>(channel_);
    checkChannelEvent<ProgressEvent_audioSendServiceStart>(channel_);
    checkChannelEvent<ProgressEvent_audioSendSpeechStart>(channel_);
    checkChannelEvent<ProgressEvent_getChannelVersion>(channel_);
    checkChannelEvent<ProgressEvent_stopPauseReplay>(channel_);
    checkChannelEvent<ProgressEvent_setTime>(channel_);
    checkChannelEvent<ProgressEvent_setTimeZone>(channel_);
    checkChannelEvent<ProgressEvent_changeReplayTime>(channel_);
    checkChannelEvent<ProgressEvent_setWifi>(channel_);
    checkChannelEvent<ProgressEvent_getWifiList>(channel_);
    checkChannelEvent<ProgressEvent_setPassword>(channel_);
    checkChannelEvent<ProgressEvent_getWifiConfig>(channel_);
    checkChannelEvent<ProgressEvent_getSmartSensitivity>(channel_);
    checkChannelEvent<ProgressEvent_getSmartMode>(channel_);
    checkChannelEvent<ProgressEvent_getRotateMode>(channel_);
    checkChannelEvent<ProgressEvent_getRecordMode>(channel_);
    checkChannelEvent<ProgressEvent_setSmartSensitivity>(channel_);
    checkChannelEvent<ProgressEvent_sendSmartMode>(channel_);
    checkChannelEvent<ProgressEvent_sendRotateMode>(channel_);
    checkChannelEvent<ProgressEvent_sendRecordMode>(channel_);
    checkChannelEvent<ProgressEvent_getQuality>(channel_);
}

void TestEvents::valueEventsCarryTheirValue()
{
    checkValueEvent<ProgressEvent_Connect>(channel_, 12);
    checkValueEvent<ProgressEvent_ptz>(channel_, -3);
    for (const bool value : {false, true}) {
        checkValueEvent<ProgressEvent_StopStream>(channel_, value);
        checkValueEvent<ProgressEvent_changeQuality>(channel_, value);
        checkValueEvent<ProgressEvent_audioControl>(channel_, value);
        checkValueEvent<ProgressEvent_audioSendControl>(channel_, value);
        checkValueEvent<ProgressEvent_pauseReplay>(channel_, value);
    }
}

void TestEvents::replayRequestIsCopied()
{
    ReplayRequest request{};
    QCOMPARE(request.size(), std::size_t(24));
    for (std::size_t i = 0; i < request.size(); ++i)
        request[i] = static_cast<std::uint8_t>(200 + i);
    const ReplayRequest sent = request;
    const ProgressEvent_playReplay event(channel_, 0, request);
    request.fill(0);
    QVERIFY(event.value == sent);
}

void TestEvents::avIndexEventCarriesItsMode()
{
    for (const bool isLive : {false, true}) {
        const ProgressEvent_GetAvIndex event(channel_, -20009, isLive);
        QCOMPARE(static_cast<int>(event.type()), 1005);
        QCOMPARE(static_cast<Channel*>(event.channel), channel_);
        QCOMPARE(event.avIndex, -20009);
        QCOMPARE(event.isLive, isLive);
    }
}

void TestEvents::stopReplayCarriesTheTime()
{
    const QDateTime time(QDate(2024, 2, 29), QTime(23, 59, 59), Qt::UTC);
    const ProgressEvent_stopReplay event(channel_, 1, true, time);
    QCOMPARE(static_cast<int>(event.type()), 1008);
    QCOMPARE(static_cast<Channel*>(event.channel), channel_);
    QCOMPARE(event.result, 1);
    QCOMPARE(event.restart, true);
    QCOMPARE(event.time, time);
}

void TestEvents::messageEventHandsItsBufferOver()
{
    ProgressEvent_getMsg event(channel_, 8, 0xFFFFFFFFU, bufferOf("message"), false);
    QCOMPARE(static_cast<int>(event.type()), 1012);
    QCOMPARE(static_cast<Channel*>(event.channel), channel_);
    QCOMPARE(event.result, 8);
    QCOMPARE(event.ioType, 0xFFFFFFFFU);
    QCOMPARE(event.isLive, false);
    const auto taken = std::move(event.buffer);
    QCOMPARE(taken.get(), "message");
}

void TestEvents::frameEventsCarryFrameAndInformation()
{
    checkFrameEvent<DecodeEvent_getVideo>();
    checkFrameEvent<DecodeEvent_getAudio>();
    const DecodeEvent_getVideo nothing(-20012, nullptr, MyFrameInfo_t{});
    QCOMPARE(nothing.result, -20012);
    QVERIFY(nothing.buffer == nullptr);
}

void TestEvents::decodedPictureCarriesItsSize()
{
    const VideoEvent_decoede event(channel_, true, 0, 1920, 1080, 4000000000U);
    QCOMPARE(static_cast<int>(event.type()), 1020);
    QCOMPARE(static_cast<Channel*>(event.channel), channel_);
    QCOMPARE(event.isLive, true);
    QCOMPARE(event.result, 0);
    QCOMPARE(event.width, 1920);
    QCOMPARE(event.height, 1080);
    QCOMPARE(event.timestamp, 4000000000U);
}

void TestEvents::decodedSoundHandsItsSamplesOver()
{
    AudioEvent_decoede event(channel_, false, bufferOf("pcm"), -1, 3);
    QCOMPARE(static_cast<int>(event.type()), 1021);
    QCOMPARE(static_cast<Channel*>(event.channel), channel_);
    QCOMPARE(event.isLive, false);
    QCOMPARE(event.result, -1);
    QCOMPARE(event.size, 3);
    const auto taken = std::move(event.samples);
    QCOMPARE(taken.get(), "pcm");
}

void TestEvents::dormantEventsExist()
{
    checkChannelEvent<ProgressEvent_playReplayIo>(channel_);
    const VideoEvent_icomming event(channel_, true);
    QCOMPARE(static_cast<int>(event.type()), 1026);
    QCOMPARE(static_cast<Channel*>(event.channel), channel_);
    QCOMPARE(event.isLive, true);
}

void TestEvents::screenshotCarriesItsPath()
{
    QString path("/tmp/a.jpg");
    const VideoEvent_screenShot event(channel_, true, path);
    path.clear();
    QCOMPARE(static_cast<int>(event.type()), 1031);
    QCOMPARE(static_cast<Channel*>(event.channel), channel_);
    QCOMPARE(event.isPlaceholder, true);
    QCOMPARE(event.path, QString("/tmp/a.jpg"));
}

void TestEvents::logLineCarriesTypeAndText()
{
    const DebugEvent_getDebug event(QtCriticalMsg, "text");
    QCOMPARE(static_cast<int>(static_cast<const QEvent&>(event).type()), 1029);
    QCOMPARE(event.type, QtCriticalMsg);
    QCOMPARE(event.text, QString("text"));
}

void TestEvents::nullChannelIsAllowed()
{
    checkChannelEvent<ProgressEvent_setTime>(nullptr);
    checkValueEvent<ProgressEvent_Connect>(nullptr, 0);
}

void TestEvents::unhandledSearchResultFreesItsRecords()
{
    Ignorer ignorer;
    auto storage = std::make_shared<QByteArray>(2 * 208, '\0');
    const std::weak_ptr<QByteArray> alive = storage;
    const auto* first = reinterpret_cast<const IOTC_SearchRecord*>(storage->constData());
    const std::shared_ptr<const IOTC_SearchRecord> records(storage, first);
    storage.reset();
    postResult(&ignorer, new ProgressEvent_LanSearch(2, records));
    QCOMPARE(records.use_count(), 2L);
    QCoreApplication::sendPostedEvents(&ignorer);
    QCOMPARE(ignorer.seen, 1);
    QCOMPARE(alive.use_count(), 1L);
}

// That the buffers themselves go is for the leak checker of the address sanitizer to see.
void TestEvents::unhandledEventFreesItsBuffer()
{
    Ignorer ignorer;
    postResult(&ignorer, new ProgressEvent_getMsg(channel_, 1, 0, bufferOf("a"), true));
    postResult(&ignorer, new DecodeEvent_getVideo(1, bufferOf("b"), MyFrameInfo_t{}));
    postResult(&ignorer, new AudioEvent_decoede(channel_, true, bufferOf("c"), 0, 1));
    QCoreApplication::sendPostedEvents(&ignorer);
    QCOMPARE(ignorer.seen, 3);
}

void TestEvents::droppedEventFreesItsBuffer()
{
    auto ignorer = std::make_unique<Ignorer>();
    postResult(ignorer.get(), new ProgressEvent_getMsg(channel_, 1, 0, bufferOf("a"), true));
    postResult(ignorer.get(), new DecodeEvent_getAudio(1, bufferOf("b"), MyFrameInfo_t{}));
    QCOMPARE(ignorer->seen, 0);
    ignorer.reset();
    QCoreApplication::sendPostedEvents();
}

ORVA_TEST(TestEvents)

#include "tst_events.moc"

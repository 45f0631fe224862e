// SPDX-License-Identifier: GPL-3.0-or-later
// The wall over a real device program: streams run, pages and layouts only decide what is seen.
#include "bridgeprocess.h"
#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "media/decode.h"
#include "model/device.h"
#include "store/location.h"
#include "testmain.h"
#include "wall/glwidgetviewwindow.h"
#include "wall/viewcontrol.h"

#include <QHash>
#include <QLabel>
#include <QTest>
#include <QWidget>

#include <chrono>

using namespace std::chrono_literals;

namespace {

const QByteArray uid = "LIVEWALLDEVICE000001";
constexpr int channelCount = 6;
constexpr int patienceMs = 20000;

} // namespace

class TestLiveWall final : public QObject
{
    Q_OBJECT

public:
    TestLiveWall()
        : bridge_(BridgeProcess::device(uid, channelCount))
    {
    }

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void streamsWithoutATileRunOn();
    void pageTurnShowsWhatRanUnseen();
    void everyLayoutShowsPictures_data();
    void everyLayoutShowsPictures();
    void liveViewComesBackAfterPlayback();
    void closedChannelEndsAtTheDevice();
    void resetConnectAndPlayBringsPicturesBack();

private:
    Channel* channel(int number) const { return device_->channel(number); }
    void openAll() const;
    // Pictures of each of these channels have been decoded since this call.
    bool picturesCome(const QList<Channel*>& channels);
    // The channel's tile shows a picture: nothing covers it.
    static bool isSeen(const Channel* channel);
    QList<Channel*> shown() const;

    BridgeProcess bridge_;
    std::unique_ptr<QWidget> window_;
    Device* device_ = nullptr;
    QHash<Channel*, int> decoded_;
};

void TestLiveWall::initTestCase()
{
    QVERIFY(bridge_.start());
    Location::instance()->setWindowNum(WINDOW_MOD_4);
    window_ = std::make_unique<QWidget>();
    window_->setWindowFlags(Qt::FramelessWindowHint);
    window_->setGeometry(0, 0, 840, 590);
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    ViewControl::instance()->createWindows(window_.get());
    connect(Decode::instance(), &Decode::decodeSuccess, this,
        [this](Channel* channel) { ++decoded_[channel]; });
}

void TestLiveWall::init()
{
    DeviceOwner device(new Device);
    device->setUid(QString::fromLatin1(uid));
    device->setViewPassword(QString::fromLatin1(BridgeProcess::password));
    device->setChannelCount(channelCount);
    device_ = device.get();
    Dev::instance()->addDevice(std::move(device));
    ViewControl::instance()->setWindowMod(WINDOW_MOD_4, true);
}

void TestLiveWall::cleanup()
{
    ViewControl::instance()->changeMod(true);
    ViewControl::instance()->setPage(0);
    ViewControl::instance()->closeAll();
    decoded_.clear();
    Dev::instance()->removeDevice(device_);
    device_ = nullptr;
}

void TestLiveWall::cleanupTestCase()
{
    window_.reset();
}

void TestLiveWall::openAll() const
{
    for (int i = 0; i < channelCount; ++i)
        ViewControl::instance()->connectChannel(channel(i), false, true);
}

bool TestLiveWall::picturesCome(const QList<Channel*>& channels)
{
    decoded_.clear();
    return QTest::qWaitFor(
        [&] {
            return std::all_of(channels.begin(), channels.end(),
                [this](Channel* channel) { return decoded_.value(channel) >= 3; });
        },
        patienceMs);
}

bool TestLiveWall::isSeen(const Channel* channel)
{
    if (channel->tile == nullptr)
        return false;
    const auto labels = channel->tile->findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->styleSheet().contains(QLatin1String("opengl_background"))
            && label->isHidden();
    });
}

QList<Channel*> TestLiveWall::shown() const
{
    QList<Channel*> channels;
    for (int i = 0; i < ViewControl::instance()->getTileCount(); ++i)
        channels.append(ViewControl::instance()->getTileChannel(i));
    return channels;
}

void TestLiveWall::streamsWithoutATileRunOn()
{
    openAll();
    QVERIFY(picturesCome({channel(0), channel(1), channel(2), channel(3), channel(4), channel(5)}));
    QCOMPARE(ViewControl::instance()->getPageCount(), 2);
    int tiles = 0;
    for (int i = 0; i < channelCount; ++i)
        tiles += channel(i)->tile != nullptr ? 1 : 0;
    QCOMPARE(tiles, 4);
}

void TestLiveWall::pageTurnShowsWhatRanUnseen()
{
    openAll();
    QVERIFY(picturesCome({channel(4), channel(5)}));
    ViewControl::instance()->changePage(ViewControl::PageUp);
    QCOMPARE(shown(), (QList<Channel*>{channel(4), channel(5), nullptr, nullptr}));
    QVERIFY(channel(4)->mode(true).playing);
    QTRY_VERIFY_WITH_TIMEOUT(isSeen(channel(4)) && isSeen(channel(5)), patienceMs);

    ViewControl::instance()->changePage(ViewControl::PageDown);
    QCOMPARE(shown(), (QList<Channel*>{channel(0), channel(1), channel(2), channel(3)}));
    QTRY_VERIFY_WITH_TIMEOUT(isSeen(channel(0)) && isSeen(channel(3)), patienceMs);
}

void TestLiveWall::everyLayoutShowsPictures_data()
{
    QTest::addColumn<int>("mod");
    for (int mod = 0; mod < windowModCount; ++mod)
        QTest::addRow("%d", mod) << mod;
}

void TestLiveWall::everyLayoutShowsPictures()
{
    QFETCH(int, mod);
    openAll();
    QVERIFY(picturesCome({channel(0), channel(1), channel(2), channel(3), channel(4), channel(5)}));
    ViewControl::instance()->setWindowMod(static_cast<WINDOW_MOD>(mod), true);
    const int seen = std::min(channelCount, windowCapacity(static_cast<WINDOW_MOD>(mod)));
    QCOMPARE(ViewControl::instance()->getTileCount(), windowTiles(static_cast<WINDOW_MOD>(mod)));
    for (int i = 0; i < seen; ++i)
        QTRY_VERIFY_WITH_TIMEOUT(isSeen(channel(i)), patienceMs);
}

void TestLiveWall::liveViewComesBackAfterPlayback()
{
    openAll();
    QVERIFY(picturesCome({channel(0), channel(3), channel(5)}));
    ViewControl::instance()->changeMod(false);
    QTRY_VERIFY_WITH_TIMEOUT(!channel(0)->mode(true).playing, patienceMs);
    QTRY_VERIFY_WITH_TIMEOUT(!channel(5)->mode(true).playing, patienceMs);
    QCOMPARE(shown(), (QList<Channel*>{nullptr, nullptr, nullptr, nullptr}));

    ViewControl::instance()->changeMod(true);
    QCOMPARE(shown(), (QList<Channel*>{channel(0), channel(1), channel(2), channel(3)}));
    QVERIFY(picturesCome({channel(0), channel(3), channel(5)}));
    QVERIFY(isSeen(channel(0)));
}

void TestLiveWall::closedChannelEndsAtTheDevice()
{
    openAll();
    QVERIFY(picturesCome({channel(0), channel(1)}));
    ViewControl::instance()->closeChannel(channel(1));
    QCOMPARE(channel(1)->tile, nullptr);
    QTRY_VERIFY_WITH_TIMEOUT(!channel(1)->mode(true).playing, patienceMs);
    QVERIFY(picturesCome({channel(0)}));
    QCOMPARE(decoded_.value(channel(1)), 0);
}

void TestLiveWall::resetConnectAndPlayBringsPicturesBack()
{
    openAll();
    QVERIFY(picturesCome({channel(0)}));
    ViewControl::instance()->deleteDevice(device_);
    QCOMPARE(int(device_->sid), -1);
    QCOMPARE(shown(), (QList<Channel*>{nullptr, nullptr, nullptr, nullptr}));
    QCOMPARE(ViewControl::instance()->getPageCount(), 0);

    ViewControl::instance()->connectChannel(channel(2), false, true);
    QVERIFY(picturesCome({channel(2)}));
    QVERIFY(isSeen(channel(2)));
    QCOMPARE(shown(), (QList<Channel*>{channel(2), nullptr, nullptr, nullptr}));
}

ORVA_TEST(TestLiveWall)
#include "tst_livewall.moc"

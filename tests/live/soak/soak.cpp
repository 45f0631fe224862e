// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak.h"

#include "link/ioconnect.h"
#include "media/decode.h"
#include "media/stream.h"
#include "wall/glwidgetviewwindow.h"

#include <cstdio>

using namespace std::chrono_literals;

namespace {

constexpr auto actPause = 250ms;
constexpr auto lookPause = 5s;
// The first minutes fill caches: of the allocator, of OpenGL, of threads.
constexpr int warmUpShare = 5;
constexpr int mostWarmUpSeconds = 180;
// For what was under way, a device that is dead by then, and a command that the link gives up.
constexpr auto restTime = 45s;
constexpr auto lastLook = 5s;
constexpr auto closeTime = 5s;
constexpr int threadsOfDecoder = 4;
constexpr int tilesAcross = 4;
constexpr QSize tileSize(160, 90);

} // namespace

Soak::Soak(std::chrono::minutes length, unsigned seed)
    : length_(length)
    , random_(seed)
{
    setWindowFlags(Qt::FramelessWindowHint);
    for (int i = 0; i < deviceCount; ++i)
        devices_.push_back(std::make_unique<SoakDevice>(i));
    buildTiles();
    connect(IoConnect::instance(), &IoConnect::tutkInitSuccessMsg, this, [this] {
        for (const auto& device : devices_)
            device->connectAll();
    });
    connect(Decode::instance(), &Decode::decodeSuccess, this, [this](Channel* channel) {
        ++pictures_;
        ++picturesOf_[channel];
    });
    connect(&actTimer_, &QTimer::timeout, this, &Soak::act);
    connect(&lookTimer_, &QTimer::timeout, this, &Soak::look);
}

Soak::~Soak() = default;

void Soak::buildTiles()
{
    for (int i = 0; i < deviceCount * SoakDevice::channels; ++i) {
        const SoakDevice& device = *devices_[std::size_t(i / SoakDevice::channels)];
        auto* tile = new GlWidgetViewWindow(this);
        tile->setChannel(device.device(), device.channel(i % SoakDevice::channels));
        tile->resize(tileSize.width(), tileSize.height(), i % tilesAcross * tileSize.width(),
            i / tilesAcross * tileSize.height());
    }
    setGeometry(0, 0, tilesAcross * tileSize.width(), tilesAcross * tileSize.height());
}

bool Soak::start()
{
    for (const auto& device : devices_) {
        if (!device->startProgram()) {
            std::fprintf(stderr, "orva_soak: %s\n", device->log().constData());
            return false;
        }
    }
    printSampleHead();
    clock_.start();
    actTimer_.start(actPause);
    lookTimer_.start(lookPause);
    const std::chrono::milliseconds acting = length_ - restTime - lastLook - closeTime;
    QTimer::singleShot(acting, this, &Soak::comeToRest);
    return true;
}

int Soak::draw(int from, int to)
{
    return std::uniform_int_distribution<int>(from, to)(random_);
}

void Soak::act()
{
    SoakDevice& device = *devices_[std::size_t(draw(0, deviceCount - 1))];
    const int channel = draw(0, SoakDevice::channels - 1);
    if (draw(1, 100) <= 3)
        strike(device);
    else if (device.isConnected(channel))
        actOn(device, channel);
}

void Soak::actOn(SoakDevice& device, int channel)
{
    const int deed = draw(1, 100);
    if (!device.isWanted(channel)) {
        ++deeds_["starts"];
        device.want(channel, true);
    } else if (deed <= 30) {
        ++deeds_["stops"];
        device.want(channel, false);
    } else if (deed <= 60) {
        ++deeds_["quality changes"];
        device.setQuality(channel, draw(0, 1) == 1);
    } else if (deed <= 65) {
        ++deeds_["losses of pictures"];
        device.losePictures(draw(0, 1) * draw(2, 9));
    }
}

void Soak::strike(SoakDevice& device)
{
    if (device.isDead())
        return;
    const std::chrono::milliseconds pause(draw(200, 8000));
    const int deed = draw(1, 4);
    if (deed == 1) {
        ++deeds_["plugs pulled"];
        device.die(pause);
    } else if (deed == 2) {
        ++deeds_["silences"];
        device.fallSilent(pause);
    } else {
        ++deeds_["reconnects"];
        device.reconnect();
    }
}

void Soak::look()
{
    SoakSample sample = sampleProcess();
    sample.seconds = static_cast<int>(clock_.elapsed() / 1000);
    sample.streams = Decode::instance()->findChildren<Stream*>().size();
    sample.otherThreads = sample.threads - threadsOfDecoder * sample.streams;
    sample.pictures = pictures_;
    for (const auto& device : devices_)
        sample.failures += device->failures;
    const bool newMinute = samples_.empty() || sample.seconds / 60 != samples_.back().seconds / 60;
    samples_.push_back(sample);
    if (!newMinute)
        return;
    printSample(sample, picturesTold_);
    picturesTold_ = sample.pictures;
}

// Nothing more happens to anybody. From here on other streams are open than before, so what this
// takes is not compared.
void Soak::comeToRest()
{
    actTimer_.stop();
    lookTimer_.stop();
    for (const auto& device : devices_) {
        if (!device->isDead())
            device->losePictures(0);
    }
    QTimer::singleShot(restTime / 2, this, [this] {
        for (const auto& device : devices_) {
            device->losePictures(0);
            device->settle();
        }
    });
    QTimer::singleShot(restTime, this, [this] {
        picturesAtRest_ = picturesOf_;
        QTimer::singleShot(lastLook, this, &Soak::judge);
    });
}

void Soak::judge()
{
    for (auto deed = deeds_.cbegin(); deed != deeds_.cend(); ++deed)
        std::printf("%d %s, ", deed.value(), deed.key().constData());
    std::printf("%lld pictures\n", static_cast<long long>(pictures_));
    const int warmUp = std::min(
        static_cast<int>(std::chrono::seconds(length_).count()) / warmUpShare, mostWarmUpSeconds);
    good_ = SoakVerdict(samples_, warmUp).print();
    good_ = tellStillChannels() && good_;
    closeAll();
}

bool Soak::tellStillChannels() const
{
    int open = 0;
    int still = 0;
    for (const auto& device : devices_) {
        for (int i = 0; i < SoakDevice::channels; ++i) {
            const Channel* channel = device->channel(i);
            if (!device->isWanted(i))
                continue;
            ++open;
            if (picturesOf_.value(channel) > picturesAtRest_.value(channel))
                continue;
            ++still;
            std::printf("channel %d of %s STANDS STILL (%s)\n", i + 1,
                qPrintable(device->device()->uid()),
                device->isConnected(i) ? "connected" : "not connected");
        }
    }
    std::printf("%d open channels, %d of them stand still\n", open, still);
    return still == 0;
}

// No stream may stay behind.
void Soak::closeAll()
{
    for (const auto& device : devices_)
        IoConnect::instance()->disConnectDevice(device->device());
    QTimer::singleShot(closeTime, this, [this] {
        const int left = Decode::instance()->findChildren<Stream*>().size();
        std::printf("%d streams left after all devices were closed\n", left);
        emit finished(good_ && left == 0);
    });
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "soakdevice.h"

#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "wall/viewcontrol.h"

#include <QTimer>

#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto retryPause = 2s;

QByteArray uidOf(int number)
{
    return "SOAKDEVICENUMBER000" + QByteArray::number(number);
}

// A device has one codec for both qualities: frames of the quality before may still wait at a start, and
// the first frame of a stream chooses its decoder.
QByteArray entry(int number)
{
    const QByteArray codec = number % 2 == 0 ? "h264" : "h265";
    const QByteArray source =
        "{url: \"test:\", rate: 10, bitrate: 128, key-interval: 20, sound: false, ";
    return "  - uid: " + uidOf(number)
        + "\n    version: 1.5.0.IPC1\n    password: " + BridgeProcess::password
        + "\n    channels:\n      - count: " + QByteArray::number(SoakDevice::channels)
        + "\n        main: " + source + "width: 320, height: 180, codec: " + codec
        + "}\n        sub: " + source + "width: 160, height: 90, codec: " + codec + "}\n";
}

} // namespace

SoakDevice::SoakDevice(int number)
    : bridge_(entry(number))
    , device_(new Device)
{
    wanted_.fill(true);
    device_->setUid(QString::fromLatin1(uidOf(number)));
    device_->setViewPassword(QString::fromLatin1(BridgeProcess::password));
    device_->setChannelCount(channels);
    const IoConnect* io = IoConnect::instance();
    disconnect(io, nullptr, ViewControl::instance(), nullptr); // the wall would start them too
    connect(io, &IoConnect::connectChannelSuccessMsg, this, &SoakDevice::channelConnected);
    connect(io, &IoConnect::videoRequestSuccessMsg, this, &SoakDevice::streamStarted);
    for (const auto fail : {&IoConnect::connectDevFailMsg, &IoConnect::connectChannelFailMsg,
             &IoConnect::videoRequestFailMsg, &IoConnect::videoRequestStopFailMsg,
             &IoConnect::setQualityFailMsg})
        connect(io, fail, this, &SoakDevice::tryAgain);
}

SoakDevice::~SoakDevice()
{
    disconnect(IoConnect::instance(), nullptr, this, nullptr);
    emit Dev::instance()->deleteDevMsg(device_.get());
}

bool SoakDevice::isConnected(int number) const
{
    return device_->sid >= 0 && channel(number)->mode(true).avIndex >= 0;
}

bool SoakDevice::startProgram()
{
    return bridge_.start();
}

void SoakDevice::connectAll()
{
    for (int i = 0; i < channels; ++i) {
        channel(i)->mode(true).open = isWanted(i);
        IoConnect::instance()->connect(channel(i));
    }
}

void SoakDevice::want(int number, bool wanted)
{
    wanted_[std::size_t(number)] = wanted;
    channel(number)->mode(true).open = wanted;
    if (wanted)
        IoConnect::instance()->startLive(channel(number));
    else
        IoConnect::instance()->stopLife(channel(number), false);
}

void SoakDevice::setQuality(int number, bool high) const
{
    IoConnect::instance()->setQuality(channel(number), high);
}

void SoakDevice::reconnect()
{
    IoConnect::instance()->disConnectDevice(device_.get());
    connectAll();
}

void SoakDevice::die(std::chrono::milliseconds pause)
{
    dead_ = true;
    bridge_.kill();
    QTimer::singleShot(pause, this, [this] { comeBack(true); });
}

void SoakDevice::fallSilent(std::chrono::milliseconds pause)
{
    dead_ = true;
    bridge_.fault(device_->uid().toLatin1(), "silent on");
    QTimer::singleShot(pause, this, [this] { comeBack(false); });
}

void SoakDevice::comeBack(bool startsProgram)
{
    const bool serves =
        startsProgram ? bridge_.start() : bridge_.fault(device_->uid().toLatin1(), "silent off");
    if (!serves)
        qWarning("%s does not come back", qPrintable(device_->uid()));
    dead_ = false;
    reconnect();
}

void SoakDevice::losePictures(int every) const
{
    bridge_.fault(device_->uid().toLatin1(), "drop " + QByteArray::number(every));
}

void SoakDevice::tryAgain(Channel* channel)
{
    if (channel->device() != device_.get())
        return;
    ++failures;
    if (dead_ || std::exchange(retryPending_, true))
        return;
    QTimer::singleShot(retryPause, this, [this] {
        retryPending_ = false;
        if (!dead_)
            reconnect();
    });
}

void SoakDevice::channelConnected(Channel* channel)
{
    if (channel->device() == device_.get() && isWanted(channel->number()))
        IoConnect::instance()->startLive(channel);
}

// A change of quality starts the stream again, even one that was stopped meanwhile.
void SoakDevice::streamStarted(Channel* channel)
{
    if (channel->device() == device_.get() && !isWanted(channel->number()))
        IoConnect::instance()->stopLife(channel, false);
}

void SoakDevice::settle()
{
    for (int i = 0; i < channels; ++i) {
        if (isConnected(i) && isWanted(i) != channel(i)->mode(true).playing)
            want(i, isWanted(i));
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bridgeprocess.h"
#include "model/device.h"

#include <QObject>

#include <array>
#include <chrono>

// A device that dies now and then, with a process of its own, and what a user wants of its channels.
// Whatever ends the session, it is connected again, and the wanted channels start again. Main thread.
class SoakDevice final : public QObject
{
    Q_OBJECT

public:
    static constexpr int channels = 4;

    // Even ones send H.264, in low quality H.265; odd ones the other way round.
    explicit SoakDevice(int number);
    ~SoakDevice() override;

    Device* device() const { return device_.get(); }
    Channel* channel(int number) const { return device_->channel(number); }
    bool isWanted(int number) const { return wanted_[std::size_t(number)]; }
    // Such that a command would reach the layer.
    bool isConnected(int number) const;
    bool isDead() const { return dead_; }

    // False when its program does not start: `log` tells why. Waits for it.
    bool startProgram();
    QByteArray log() { return bridge_.log(); }

    // What a user does.
    void connectAll();
    void want(int number, bool wanted);
    void setQuality(int number, bool high) const;
    void reconnect();
    // What happens to it; it comes back after `pause`.
    void die(std::chrono::milliseconds pause);
    void fallSilent(std::chrono::milliseconds pause);
    void losePictures(int every) const; // 0: none

    // Brings what runs in line with what is wanted, where commands have overtaken each other.
    void settle();

    // Of the link, all kinds.
    int failures = 0;

private:
    void comeBack(bool startsProgram);
    void tryAgain(Channel* channel);
    void channelConnected(Channel* channel);
    void streamStarted(Channel* channel);

    BridgeProcess bridge_;
    DeviceOwner device_;
    std::array<bool, channels> wanted_;
    bool dead_ = false;
    bool retryPending_ = false;
};

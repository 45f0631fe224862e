// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/channel.h"

#include <algorithm>
#include <cstring>

Channel::Channel(Device* device, int number)
    : device_(device)
    , number_(number)
    , ioTimer_(this)
{
}

Channel::~Channel() = default;

void Channel::setRecord(bool on, bool isLive)
{
    mode(isLive).record = on;
    mode(isLive).recordStarted = false;
}

void Channel::startIoTimer()
{
    constexpr int commandTimeoutMs = 20000;
    ioTimer_.start(commandTimeoutMs);
}

void Channel::stopIoTimer()
{
    ioTimer_.stop();
}

void Channel::setRecordTimer(int ms, bool isLive)
{
    auto timer = std::make_unique<ChannelSaveTimeout>(this);
    timer->start(ms);
    mode(isLive).recordTimer = std::move(timer);
}

void Channel::removeRecordTimer(bool isLive)
{
    mode(isLive).recordTimer.reset();
}

void Channel::setVersion(const void* message)
{
    auto block = std::make_shared<VersionBlock>();
    std::memcpy(block->data(), message, block->size());
    std::atomic_store(&version_, std::shared_ptr<const VersionBlock>(std::move(block)));
}

std::shared_ptr<const Channel::VersionBlock> Channel::version() const
{
    return std::atomic_load(&version_);
}

void Channel::consumePcm(int count, bool isLive)
{
    QByteArray& pcm = mode(isLive).pcmBuffer;
    pcm.remove(0, std::clamp(count, 0, pcm.size()));
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/device.h"

#include "model/task.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>

namespace {

int lastHoldNumber()
{
    static const int registered = QEvent::registerEventType();
    return registered;
}

} // namespace

// Carries the last hold on a device to the main thread and lets it go there, when the event is
// delivered or dropped. Work that has taken a new hold in the meantime keeps the device.
class LastHoldEvent final : public QEvent
{
public:
    explicit LastHoldEvent(Device* device)
        : QEvent(static_cast<Type>(lastHoldNumber()))
        , device_(device)
    {
    }
    ~LastHoldEvent() override
    {
        HandOver::take(this);
        if (device_->holds_.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete device_;
    }

private:
    Device* const device_;
};

Device::~Device()
{
    Q_ASSERT_X(holds_ <= 1, "Device", "destroyed while a task or an event carries a channel of it");
    // In list order, as they were made.
    for (auto& channel : channels_)
        channel.reset();
}

QString Device::viewAccount() const
{
    return viewAccount_.isEmpty() ? QStringLiteral("Admin") : viewAccount_;
}

QString Device::shownName() const
{
    constexpr int most = 200;
    const QString& name = nickName_.isEmpty() ? uid_ : nickName_;
    return name.size() > most ? name.left(most) + QStringLiteral("...") : name;
}

void Device::setChannelCount(int count)
{
    channelCount_ = count == 0 ? 1 : std::min(count, maxChannels);
    while (channelListSize() < channelCount_)
        channels_.push_back(std::make_unique<Channel>(this, channelListSize()));
}

Channel* Device::channel(int index) const
{
    return index >= 0 && index < channelListSize()
        ? channels_[static_cast<std::size_t>(index)].get()
        : nullptr;
}

void Device::retire()
{
    retired_ = true;
    release();
}

void Device::release()
{
    int holds = holds_.load(std::memory_order_acquire);
    while (holds > 1) {
        if (holds_.compare_exchange_weak(holds, holds - 1, std::memory_order_acq_rel))
            return;
    }
    // Not at once: the last hold may go on a worker thread, and whoever retires the device may
    // still be inside a signal that carries one of its channels. Without an application the
    // process is ending, and the device stays.
    if (QCoreApplication* app = QCoreApplication::instance())
        postResult(app, new LastHoldEvent(this));
}

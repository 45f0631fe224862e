// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/device.h"

#include "model/task.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>

namespace {

// Carries a device whose last hold has gone to the main thread, where it dies with the event:
// delivered, or dropped at the end of the program.
class LastHoldEvent final : public QEvent
{
public:
    explicit LastHoldEvent(Device* device)
        : QEvent(static_cast<Type>(number()))
        , device_(device)
    {
    }
    ~LastHoldEvent() override { TaskPrivate::takeOver(this); }

private:
    static int number()
    {
        static const int registered = QEvent::registerEventType();
        return registered;
    }

    const std::unique_ptr<Device> device_;
};

} // namespace

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

void Device::release()
{
    if (holds_.fetch_sub(1, std::memory_order_acq_rel) != 1)
        return;
    // Not at once: the last hold may go on a worker thread, and whoever retires the device may
    // still be inside a signal that carries one of its channels.
    if (QCoreApplication* app = QCoreApplication::instance())
        postResult(app, new LastHoldEvent(this));
    else
        delete this;
}

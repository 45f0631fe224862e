// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure.h"

#include "model/events.h"
#include "model/task.h"

#include <QApplication>
#include <QEventLoop>

namespace {

// Counts results down and ends the loop with the last.
class Receiver final : public QObject
{
public:
    void await(int count)
    {
        left_ = count;
        loop_.exec();
    }
    void take()
    {
        if (--left_ == 0)
            loop_.quit();
    }
    bool event(QEvent* event) override
    {
        if (event->type() != ProgressEvent_setTime::number)
            return QObject::event(event);
        sum_ += eventCast<ProgressEvent_setTime>(event).result;
        take();
        return true;
    }

private:
    QEventLoop loop_;
    int left_ = 0;
    int sum_ = 0;
};

// A task and its result event, against the thinnest way that Qt offers for the same round trip.
void benchTask()
{
    Receiver receiver;
    Device device;
    device.setChannelCount(1);
    Channel* channel = device.channel(0);
    const auto ours = [&](int operations) {
        for (int i = 0; i < operations; ++i) {
            runTask(channel, [&receiver, channel] {
                postResult(&receiver, new ProgressEvent_setTime(channel, 1));
            });
        }
        receiver.await(operations);
    };
    const auto bare = [&](int operations) {
        for (int i = 0; i < operations; ++i) {
            QThreadPool::globalInstance()->start([&receiver] {
                QMetaObject::invokeMethod(
                    &receiver, [&receiver] { receiver.take(); }, Qt::QueuedConnection);
            });
        }
        receiver.await(operations);
    };
    compare("task and result event, round trip", "thread pool and queued call", 2000, ours, bare);
}

// Two in turns: taking again what is held already would be no work.
void benchHold()
{
    Device device;
    device.setChannelCount(2);
    const ChannelHold holds[] = {ChannelHold(device.channel(0)), ChannelHold(device.channel(1))};
    const std::shared_ptr<int> shared[] = {std::make_shared<int>(0), std::make_shared<int>(1)};
    const auto ours = [&holds](int operations) {
        ChannelHold copy;
        for (int i = 0; i < operations; ++i)
            copy = holds[i % 2];
    };
    const auto theirs = [&shared](int operations) {
        std::shared_ptr<int> copy;
        for (int i = 0; i < operations; ++i)
            copy = shared[i % 2];
    };
    compare("hold on a channel, taken and let go", "std::shared_ptr taken and let go", 1000000,
        ours, theirs);
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    benchTask();
    benchHold();
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "walltest.h"

#include "freshlayer.h"
#include "model/channelhold.h"
#include "store/location.h"
#include "wall/glwidgetviewwindow.h"

#include <QCoreApplication>
#include <QThreadPool>

namespace {

ScriptedLink& freshLayerAndSettings()
{
    Location::instance()->setWindowNum(WINDOW_MOD_4);
    Location::instance()->setReplayWindowNum(WINDOW_MOD_4);
    Location::instance()->setScale(0);
    Location::instance()->setDeviceChannel(QStringLiteral("[]"));
    return freshLink();
}

} // namespace

WallTest::WallTest()
    : link(freshLayerAndSettings())
    , io(IoConnect::instance()) // which the wall has built
{
    qRegisterMetaType<Channel*>("Channel*");
    qRegisterMetaType<Device*>("Device*");
    QObject::disconnect(io.get(), nullptr, &decode, nullptr);
    if (!settle())
        qFatal("the layer does not come up");
    link.openChannel(link.openSession()); // another device's: neither number of ours is 0
}

WallTest::~WallTest()
{
    link.reset();
    const QList<Device*> devices = Dev::instance()->devices();
    for (Device* device : devices)
        Dev::instance()->removeDevice(device);
    if (!settle())
        qFatal("a task does not end");
    io.reset();
    QThreadPool::globalInstance()->waitForDone(); // the layer goes down by a task
    link.reset();
    QCoreApplication::sendPostedEvents();
}

Device* WallTest::addDevice(int channelCount, bool isConnected)
{
    static int number = 0;
    DeviceOwner device(new Device);
    device->setUid(QStringLiteral("WALL%1").arg(++number, 16, 10, QLatin1Char('0')));
    device->setChannelCount(channelCount);
    Device* added = device.get();
    Dev::instance()->addDevice(std::move(device));
    if (isConnected)
        connectDevice(added);
    return added;
}

void WallTest::connectDevice(Device* device)
{
    device->sid = link.openSession();
    for (int i = 0; i < device->channelCount(); ++i)
        device->channel(i)->mode(true).avIndex = link.openChannel(device->sid, i);
}

bool WallTest::open(Device* device, int count)
{
    for (int i = 0; i < count; ++i) {
        if (viewControl.getIsLive())
            viewControl.connectChannel(device->channel(i), false, true);
        else
            viewControl.openReplayChannel(device->channel(i));
    }
    return settle();
}

bool WallTest::settle() const
{
    Deliveries deliveries;
    do {
        deliveries.count = 0;
        constexpr int patienceMs = 5000;
        if (!QThreadPool::globalInstance()->waitForDone(patienceMs))
            return false;
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } while (deliveries.count > 0);
    return true;
}

QList<Channel*> WallTest::shown() const
{
    QList<Channel*> channels;
    for (int i = 0; i < viewControl.getTileCount(); ++i)
        channels.append(viewControl.getTileChannel(i));
    return channels;
}

QList<int> WallTest::takeSent()
{
    const std::vector<LinkCall> calls = link.calls(LinkFn::avSendIOCtrl);
    QList<int> types;
    for (auto call = calls.begin() + sentBefore_; call != calls.end(); ++call)
        types.append(call->type());
    sentBefore_ = static_cast<int>(calls.size());
    return types;
}

void WallTest::makeTiles(QSize size)
{
    screen.resize(size);
    viewControl.createWindows(&screen);
}

GlWidgetViewWindow* WallTest::tile(int number) const
{
    return tiles().at(number);
}

QList<GlWidgetViewWindow*> WallTest::tiles() const
{
    QList<GlWidgetViewWindow*> tiles = screen.findChildren<GlWidgetViewWindow*>();
    while (tiles.size() > viewControl.getTileCount()) // those that go are deleted later
        tiles.removeLast();
    return tiles;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "media/decode.h"
#include "model/device.h"
#include "scriptedlink.h"
#include "wall/viewcontrol.h"

#include <QList>
#include <QWidget>

#include <memory>

// The wall between the registry and the scripted layer, with default settings; no stream asks for
// frames. Lives within one test function.
//
//     WallTest t;
//     Device* device = t.addDevice(4); // connected: opening a channel starts it at once
//     t.viewControl.connectChannel(device->channel(0), false, true);
//     QVERIFY(t.settle());
//     QCOMPARE(t.shown(), t.channels({{device, 0}, ...}));
class WallTest final
{
public:
    WallTest();
    ~WallTest(); // removes all devices; lets calls that hang in the layer go
    Q_DISABLE_COPY_MOVE(WallTest)

    // Puts a device into the registry. Connected: with a session and an AV channel for each channel.
    Device* addDevice(int channelCount, bool isConnected = true);
    // Gives a device its session and its AV channels; again, after it was disconnected.
    void connectDevice(Device* device);

    // Opens the first `count` channels of the device in the current mode, and settles.
    [[nodiscard]] bool open(Device* device, int count);

    // Runs tasks and delivers their results until nothing is left to do but what a timer starts.
    [[nodiscard]] bool settle() const;

    // By tile; null for an empty one. And the first `count` of them.
    QList<Channel*> shown() const;
    QList<Channel*> shown(int count) const { return shown().mid(0, count); }
    // The messages that were sent to devices since the last call of it, by their types.
    QList<int> takeSent();

    // Gives the wall its tiles, which need no window on the screen: inside `screen`.
    void makeTiles(QSize size = QSize(640, 360));
    GlWidgetViewWindow* tile(int number) const;
    QList<GlWidgetViewWindow*> tiles() const; // in the order of the wall

    ScriptedLink& link;
    ViewControl viewControl;
    Decode decode;
    std::unique_ptr<IoConnect> io;
    QWidget screen;

private:
    int sentBefore_ = 0;
};

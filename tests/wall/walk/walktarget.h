// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "walkstate.h"
#include "walltest.h"

#include <QHash>
#include <QObject>
#include <QThreadPool>

#include <memory>
#include <mutex>
#include <utility>
#include <vector>

// The program's wall over the scripted layer, for a walk: devices and channels by the names of the
// model, with devices that fail as a step's faults say, and a record of what was sent and told.
//
// Tasks run one at a time, so that the same walk always comes to the same.
class WalkTarget final
{
public:
    explicit WalkTarget(bool withTiles);
    ~WalkTarget();
    Q_DISABLE_COPY_MOVE(WalkTarget)

    void addDevice(int id, int channelCount, bool isConnected);
    void growDevice(int id, int channelCount);
    void removeDevice(int id);
    Device* device(int id) const;
    Channel* channel(const ChannelName& name) const; // none: null

    // Attempts to reach this device, or none, do not end by themselves; and what ends one.
    void setSlow(int id) { slow_ = id; }
    [[nodiscard]] bool endAttempt(int id, bool isReached);

    // For the next step, whose record begins here.
    void begin(const WalkFaults& faults);
    // As the fixture's, but it leaves the pool its thread.
    [[nodiscard]] bool settle();
    WalkState state() const;
    void paint(); // with widgets: what waits for the event loop
    QSize size() const { return withTiles_ ? test_->screen.size() : QSize(); }

    ViewControl& wall() { return test_->viewControl; }
    IoConnect& io() { return *test_->io; }
    WallTest& test() { return *test_; }

private:
    struct Known
    {
        int id;
        Device* device;
    };

    void nameChannels(int id);
    void scriptLayer();
    void listen();
    ChannelName nameOf(const Channel* channel) const;
    ChannelName nameAt(int avIndex) const;
    bool failsToSend(const LinkCall& call) const;
    bool failsToStart(const LinkCall& call) const;
    bool failsToConnect(const LinkCall& call) const;
    void note(const LinkCall& call);
    void answerStart(const ChannelName& name);
    void showDay(Channel* channel);
    bool isConnecting() const;
    ChannelState stateOf(const Channel* channel, const QList<GlWidgetViewWindow*>& tiles) const;
    void addWidgets(WalkState& state, const QList<GlWidgetViewWindow*>& tiles) const;
    void readSettings(WalkState& state) const;

    const bool withTiles_;
    const QString settingsPath_;
    QWidget window_; // which the wall stands in; goes after it
    std::unique_ptr<WallTest> test_;
    std::unique_ptr<QObject> context_; // of the connections
    // Change only while no task runs.
    std::vector<Known> devices_;
    QHash<const Channel*, ChannelName> names_;
    QHash<QString, int> idOfUid_; // of those that have left too
    WalkFaults faults_;
    int slow_ = -1;

    mutable std::mutex mutex_;
    std::vector<WalkMessage> sent_; // guarded by it

    std::vector<std::pair<int, int>> pagesTold_;
    std::vector<bool> modesTold_;
    int tileCountsTold_ = 0;
};

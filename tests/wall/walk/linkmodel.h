// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wallmodel.h"

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

// A channel without its object. None: both are negative.
struct ChannelName
{
    int device = -1;
    int channel = -1;

    bool operator==(const ChannelName& other) const
    {
        return device == other.device && channel == other.channel;
    }
    bool operator!=(const ChannelName& other) const { return !(*this == other); }
    bool operator<(const ChannelName& other) const
    {
        return std::make_pair(device, channel) < std::make_pair(other.device, other.channel);
    }
};

ChannelName nameOf(const ModelChannel* channel); // or null

// A message on its way to a device. `command` is that of a playback control, else -1.
struct WalkMessage
{
    ChannelName channel;
    int type = 0;
    int command = -1;

    bool operator==(const WalkMessage& other) const
    {
        return channel == other.channel && type == other.type && command == other.command;
    }
    bool operator<(const WalkMessage& other) const
    {
        return std::make_pair(channel, std::make_pair(type, command))
            < std::make_pair(other.channel, std::make_pair(other.type, other.command));
    }
};

// What goes wrong in one step of the walk.
struct WalkFaults
{
    std::set<int> withoutSession; // devices that cannot be reached
    std::set<std::pair<ChannelName, bool>> withoutAv; // for live view: true, for a replay: false
    std::set<WalkMessage> unsent;
    std::set<ChannelName> emptyDays;
    std::set<ChannelName> refusedReplays;
    std::set<ChannelName> silentReplays; // no answer to a start
};

// The link as the wall knows it, above devices that do as they are told: results come one after the
// other, in the order in which they were asked for. And the timeline: in playback it asks each channel
// that has connected for its day, and gets it at once.
class LinkModel final : public WallLink
{
public:
    void tells(WallModel* wall) { wall_ = wall; }
    // Delivers results until there are none.
    void settle();
    void forget(ModelDevice* device);

    void connect(ModelChannel* channel) override;
    void startLive(ModelChannel* channel) override;
    void stopLive(ModelChannel* channel) override;
    void pauseReplay(ModelChannel* channel, bool isModeChange) override;
    void resumeReplay(ModelChannel* channel, bool isModeChange) override;
    void playReplay(ModelChannel* channel, bool forward) override;
    void stopReplay(ModelChannel* channel) override;
    void disconnect(ModelDevice* device) override;

    // An attempt for the slow device came to its end.
    void endAttempt(ModelDevice* device, bool isReached);

    // Then the order of results is for the threads to decide, and no walk may come to it.
    bool isAmbiguous() const { return waitingDevices_.size() > 1; }

    WalkFaults faults;
    const ModelDevice* slow = nullptr; // attempts for it do not end by themselves
    std::vector<WalkMessage> sent;
    std::map<std::string, int> failures; // that have really happened

private:
    bool send(ModelChannel* channel, int type, int command = -1);
    void later(std::function<void()> result) { results_.push_back(std::move(result)); }
    void connectNext();
    void openSession(ModelDevice* device);
    void sessionDone();
    void openAv(ModelChannel* channel, bool isLive);
    void takeAv(ModelChannel* channel, bool isLive, bool isOpen);
    void channelConnected(ModelChannel* channel, bool isLive);
    void tellConnected(ModelChannel* channel);
    void takeStart(ModelChannel* channel);

    WallModel* wall_ = nullptr;
    std::vector<ModelChannel*> waiting_; // for their AV channel
    std::deque<ModelDevice*> waitingDevices_; // for their session
    std::deque<std::function<void()>> results_;
};

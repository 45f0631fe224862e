// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "config.h"
#include "device/linkhost.h"
#include "faults.h"
#include "jobqueue.h"
#include "media/feed.h"
#include "requests.h"
#include "settings.h"
#include "speech.h"
#include "state.h"
#include "viewer.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <nlohmann/json_fwd.hpp>
#include <vector>

// What the devices of a bridge share. All of it outlives them.
struct DeviceServices
{
    LinkHost& host;
    JobQueue& jobs;
    StateFile& state; // used on the queue's thread once a device is published
    std::function<void()> wakeTicker; // a head has begun to move; any thread
    std::function<std::unique_ptr<Feed>(const FeedSettings&, std::shared_ptr<SceneState>)> makeFeed;
};

// One published device: knows its clients and hands their messages to the request handler.
// A device must be withdrawn, and the jobs be done, before it goes.
//
// Threads: the handler's calls come from the host's event thread, tick() from the ticker, fault()
// and status() from the control socket; the rest is for the thread that made the device.
class BridgeDevice final : public LinkDeviceHandler
{
public:
    BridgeDevice(const DeviceConfig& config, const DeviceServices& services);

    const std::string& uid() const { return config_.uid; }

    // False when the host does not take it.
    bool publish();
    // Ends its sessions and gives what is still to be saved to the job queue.
    void withdraw();

    // Moves the heads. Whether one goes on moving.
    bool tick() { return settings_.tick(DeviceSettings::Clock::now()); }
    void fault(const Fault& fault);
    nlohmann::json status() const;

    bool admit(const std::string& peer) override;
    void channelOpened(const LinkChannelPtr& link) override;
    void channelClosed(const LinkChannelPtr& link) override;
    bool controlReceived(
        const LinkChannelPtr& link, std::uint32_t type, std::string_view bytes) override;
    void speechReceived(const LinkChannelPtr& link, const LinkFrame& frame) override;
    void wrongPassword(const std::string& peer, bool lockedOut) override;

private:
    void makeFeeds(const DeviceServices& services);
    std::shared_ptr<Viewer> viewerOf(const LinkChannelPtr& link) const;
    nlohmann::json channelStatus(int number) const;
    nlohmann::json clientsStatus() const;

    const DeviceConfig config_;
    LinkHost& host_;
    Faults faults_;
    DeviceSettings settings_;
    SpeechFile speech_;
    std::vector<std::unique_ptr<Feed>> feeds_; // by channel; set once
    RequestHandler requests_; // event thread

    mutable std::mutex mutex_;
    std::map<const LinkChannel*, std::shared_ptr<Viewer>> viewers_; // guarded by mutex_
};

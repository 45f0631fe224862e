// SPDX-License-Identifier: GPL-3.0-or-later
#include "device.h"

#include "log.h"

#include <nlohmann/json.hpp>
#include <unistd.h>

namespace {

constexpr int diedExitCode = 70; // of the fault "die"; none that the program ends with otherwise

} // namespace

BridgeDevice::BridgeDevice(const DeviceConfig& config, const DeviceServices& services)
    : config_(config)
    , host_(services.host)
    , settings_(config_.uid, static_cast<int>(config_.channels.size()), config_.password,
          services.state, services.jobs)
    , speech_(config_.speechFile, config_.uid, services.jobs)
    , requests_(
          {config_, services.host, services.jobs, settings_, speech_, feeds_, services.wakeTicker})
{
    makeFeeds(services);
    for (const Fault& fault : config_.faults)
        faults_.apply(fault);
}

void BridgeDevice::makeFeeds(const DeviceServices& services)
{
    for (int number = 0; number < settings_.channels(); ++number) {
        const auto& channel = config_.channels[static_cast<std::size_t>(number)];
        FeedSettings feed;
        feed.name = config_.uid + '/' + std::to_string(number);
        feed.channel = number;
        feed.main = channel.main;
        feed.sub = channel.sub;
        feeds_.push_back(services.makeFeed(feed, settings_.scene(number)));
    }
}

bool BridgeDevice::publish()
{
    LinkDevice device;
    device.uid = config_.uid;
    device.version = config_.version;
    device.account = config_.account;
    device.password = settings_.password();
    device.channels = settings_.channels();
    if (!host_.publish(device, *this))
        return false;
    logEvent(LogLevel::Info, config_.uid, -1,
        "published with " + std::to_string(device.channels) + " channels"
            + (config_.faults.empty() ? "" : " and faults on demand"));
    // The rest of the configured faults counts already; these two need the host.
    for (const Fault& fault : config_.faults)
        if (fault.kind == Fault::Kind::Silent || fault.kind == Fault::Kind::Die)
            this->fault(fault);
    return true;
}

void BridgeDevice::withdraw()
{
    host_.withdraw(config_.uid);
    settings_.saveSoon();
}

void BridgeDevice::fault(const Fault& fault)
{
    if (fault.kind == Fault::Kind::Die)
        ::_exit(diedExitCode);
    if (fault.kind == Fault::Kind::Silent)
        host_.setSilent(config_.uid, fault.count == 1);
    faults_.apply(fault);
}

bool BridgeDevice::admit(const std::string& peer)
{
    const bool refused = faults_.refuseSession();
    logEvent(LogLevel::Info, config_.uid, -1,
        (refused ? "session refused to " : "session opened by ") + peer);
    return !refused;
}

void BridgeDevice::channelOpened(const LinkChannelPtr& link)
{
    logEvent(LogLevel::Info, config_.uid, link->number(), "opened by " + link->peer());
    const std::lock_guard lock(mutex_);
    viewers_[link.get()] = std::make_shared<Viewer>(link, faults_);
}

void BridgeDevice::channelClosed(const LinkChannelPtr& link)
{
    const auto viewer = viewerOf(link);
    if (!viewer)
        return;
    logEvent(LogLevel::Info, config_.uid, link->number(), "closed, was open to " + link->peer());
    requests_.closed(*viewer);
    const std::lock_guard lock(mutex_);
    viewers_.erase(link.get());
}

std::shared_ptr<Viewer> BridgeDevice::viewerOf(const LinkChannelPtr& link) const
{
    const std::lock_guard lock(mutex_);
    const auto found = viewers_.find(link.get());
    return found == viewers_.end() ? nullptr : found->second;
}

bool BridgeDevice::controlReceived(
    const LinkChannelPtr& link, std::uint32_t type, std::string_view bytes)
{
    if (faults_.holdsControl())
        return false;
    if (const auto viewer = viewerOf(link))
        requests_.received(viewer, type, bytes);
    return true;
}

void BridgeDevice::speechReceived(const LinkChannelPtr& link, const LinkFrame& frame)
{
    requests_.speech(*link, frame);
}

void BridgeDevice::wrongPassword(const std::string& peer, bool lockedOut)
{
    logEvent(LogLevel::Warning, config_.uid, -1,
        "wrong account or password from " + peer + (lockedOut ? ", who is locked out now" : ""));
}

nlohmann::json BridgeDevice::channelStatus(int number) const
{
    const auto state = settings_.channel(number);
    return {{"number", number}, {"quality", state.high ? "high" : "low"},
        {"recordMode", state.recordMode}, {"sensitivity", state.sensitivity},
        {"smartMode", state.smartMode}, {"rotation", state.rotation}, {"pan", state.position.pan},
        {"tilt", state.position.tilt}, {"zoom", state.position.zoom},
        {"cruise", static_cast<int>(settings_.cruising(number))}};
}

nlohmann::json BridgeDevice::clientsStatus() const
{
    auto clients = nlohmann::json::array();
    const std::lock_guard lock(mutex_);
    for (const auto& [link, viewer] : viewers_)
        clients.push_back(
            {{"peer", link->peer()}, {"session", link->session()}, {"channel", link->number()},
                {"watching", viewer->watching.load()}, {"listening", viewer->listening.load()}});
    return clients;
}

nlohmann::json BridgeDevice::status() const
{
    auto channels = nlohmann::json::array();
    for (int number = 0; number < settings_.channels(); ++number)
        channels.push_back(channelStatus(number));
    return {{"uid", config_.uid}, {"version", config_.version}, {"type", config_.type},
        {"channels", channels}, {"clients", clientsStatus()}};
}

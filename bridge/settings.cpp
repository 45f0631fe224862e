// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings.h"

#include "log.h"

#include <chrono>
#include <optional>
#include <utility>

namespace {

// A full disk is not tried with every step of a moving head.
constexpr std::chrono::seconds saveRetryInterval{30};

std::int64_t secondsNow()
{
    using namespace std::chrono;
    return duration_cast<seconds>(system_clock::now().time_since_epoch()).count();
}

// Clients count: upright, mirrored, flipped, turned by 180 degrees.
int sceneRotation(int mode)
{
    switch (mode) {
    case 1:
        return 2;
    case 2:
        return 3;
    case 3:
        return 1;
    default:
        return 0;
    }
}

} // namespace

DeviceSettings::DeviceSettings(
    std::string uid, int channels, std::string configuredPassword, StateFile& file, JobQueue& jobs)
    : uid_(std::move(uid))
    , configuredPassword_(std::move(configuredPassword))
    , file_(file)
    , jobs_(jobs)
    , channels_(static_cast<std::size_t>(channels))
    , device_(file_.load(uid_))
{
    if (!device_.zone.empty())
        zone_ = Zone::load(device_.zone);
    for (int number = 0; number < channels; ++number) {
        Channel& channel = at(number);
        channel.state = device_.channels[number];
        channel.head = PtzHead(channel.state.position, channel.state.presets);
        channel.scene = std::make_shared<SceneState>();
        channel.scene->rotation = sceneRotation(channel.state.rotation);
        showHead(channel);
    }
    device_.channels.clear();
    showClock();
}

const std::shared_ptr<SceneState>& DeviceSettings::scene(int channel) const
{
    return at(channel).scene;
}

ChannelState DeviceSettings::snapshot(const Channel& channel) const
{
    ChannelState state = channel.state;
    state.position = channel.head.position();
    state.presets = channel.head.presets();
    return state;
}

ChannelState DeviceSettings::channel(int number) const
{
    const std::lock_guard lock(mutex_);
    return snapshot(at(number));
}

void DeviceSettings::change(int channel, const std::function<void(ChannelState&)>& edit)
{
    const std::lock_guard lock(mutex_);
    edit(at(channel).state);
    at(channel).scene->rotation = sceneRotation(at(channel).state.rotation);
    unsaved_.insert(channel);
    postSave();
}

std::string DeviceSettings::wifiName() const
{
    const std::lock_guard lock(mutex_);
    return device_.wifiName;
}

std::string DeviceSettings::wifiPassword() const
{
    const std::lock_guard lock(mutex_);
    return device_.wifiPassword;
}

void DeviceSettings::setWifi(const std::string& name, const std::string& password)
{
    const std::lock_guard lock(mutex_);
    device_.wifiName = name;
    device_.wifiPassword = password;
    deviceUnsaved_ = true;
    postSave();
}

void DeviceSettings::setTime(const DeviceTime& local)
{
    const std::lock_guard lock(mutex_);
    const std::int64_t wanted = secondsSince1970(local);
    // The offset depends on the time that it leads to; a second look settles the days of a change.
    std::int64_t utc = wanted - (zone_ ? zone_->offsetAt(wanted) : 0);
    utc = wanted - (zone_ ? zone_->offsetAt(utc) : 0);
    device_.clockOffset = utc - secondsNow();
    deviceUnsaved_ = true;
    showClock();
    postSave();
}

bool DeviceSettings::setZone(const std::string& name)
{
    auto zone = Zone::load(name);
    if (!zone)
        return false;
    const auto put = [this](const std::string& zoneName, std::optional<Zone> known) {
        const std::lock_guard lock(mutex_);
        std::swap(zone_, known);
        deviceUnsaved_ = true;
        showClock();
        return std::pair(std::exchange(device_.zone, zoneName), std::move(known));
    };
    auto before = put(name, std::move(zone));
    if (save())
        return true;
    put(before.first, std::move(before.second));
    return false;
}

// A stored password counts until somebody writes another one into the configuration.
std::string DeviceSettings::password() const
{
    const std::lock_guard lock(mutex_);
    const bool stored =
        !device_.password.empty() && device_.passwordReplaced == configuredPassword_;
    return stored ? device_.password : configuredPassword_;
}

bool DeviceSettings::setPassword(const std::string& from, const std::string& to)
{
    if (from != password())
        return false;
    DeviceState before;
    {
        const std::lock_guard lock(mutex_);
        before = device_;
        device_.password = to;
        device_.passwordReplaced = configuredPassword_;
        deviceUnsaved_ = true;
    }
    if (save())
        return true;
    const std::lock_guard lock(mutex_);
    device_.password = before.password;
    device_.passwordReplaced = before.passwordReplaced;
    return false;
}

void DeviceSettings::move(const PtzMove& towards, Clock::time_point now)
{
    const std::lock_guard lock(mutex_);
    Channel& channel = at(towards.channel);
    channel.head.move(towards, now);
    channel.moving = true;
    showHead(channel);
}

bool DeviceSettings::act(const PtzAction& action, Clock::time_point now)
{
    using Kind = PtzAction::Kind;
    const std::lock_guard lock(mutex_);
    Channel& channel = at(action.channel);
    PtzHead& head = channel.head;
    bool known = true;
    if (action.kind == Kind::Stop)
        head.stop(now);
    else if (action.kind == Kind::SetPreset)
        head.setPreset(action.preset, now);
    else if (action.kind == Kind::GoPreset)
        known = head.goPreset(action.preset, now);
    else if (action.kind == Kind::Cruise)
        head.cruise(PtzHead::Cruise::Presets, action.speed, now);
    else
        head.cruise(PtzHead::Cruise::Auto, action.speed, now);
    channel.moving = true; // the next tick finds out, and saves where the head has come to
    showHead(channel);
    return known;
}

PtzHead::Cruise DeviceSettings::cruising(int channel) const
{
    const std::lock_guard lock(mutex_);
    return at(channel).head.cruising();
}

bool DeviceSettings::tick(Clock::time_point now)
{
    const std::lock_guard lock(mutex_);
    bool anyMoving = false;
    for (int number = 0; number < channels(); ++number) {
        Channel& channel = at(number);
        if (!channel.moving)
            continue;
        channel.moving = channel.head.advance(now);
        showHead(channel);
        if (!channel.moving)
            unsaved_.insert(number);
        anyMoving = anyMoving || channel.moving;
    }
    showClock();
    if ((deviceUnsaved_ || !unsaved_.empty()) && now >= retrySave_)
        postSave();
    return anyMoving;
}

void DeviceSettings::saveSoon()
{
    const std::lock_guard lock(mutex_);
    for (int number = 0; number < channels(); ++number)
        if (at(number).moving)
            unsaved_.insert(number);
    if (deviceUnsaved_ || !unsaved_.empty())
        postSave();
}

void DeviceSettings::showHead(Channel& channel)
{
    const HeadPosition& position = channel.head.position();
    channel.scene->pan = position.pan;
    channel.scene->tilt = position.tilt;
    channel.scene->zoom = position.zoom;
    channel.scene->focus = position.focus;
    channel.scene->iris = position.iris;
    channel.scene->cruise = static_cast<int>(channel.head.cruising());
}

void DeviceSettings::showClock()
{
    const std::int64_t now = secondsNow() + device_.clockOffset;
    for (Channel& channel : channels_) {
        channel.scene->clockOffsetSeconds = device_.clockOffset;
        channel.scene->zoneOffsetSeconds = zone_ ? zone_->offsetAt(now) : 0;
    }
}

// One save at a time waits; it takes all that has changed when its turn comes. With a full queue
// the next tick tries again.
void DeviceSettings::postSave()
{
    if (!savePosted_)
        savePosted_ = jobs_.post([this] { save(); });
}

DeviceState DeviceSettings::takeUnsaved()
{
    DeviceState state = device_;
    for (const int number : unsaved_)
        state.channels[number] = snapshot(at(number));
    unsaved_.clear();
    deviceUnsaved_ = false;
    savePosted_ = false;
    return state;
}

bool DeviceSettings::save()
{
    DeviceState state;
    {
        const std::lock_guard lock(mutex_);
        state = takeUnsaved();
    }
    if (file_.save(uid_, state))
        return true;
    logEvent(LogLevel::Error, uid_, -1, "cannot save the settings: " + file_.lastError());
    const std::lock_guard lock(mutex_);
    retrySave_ = Clock::now() + saveRetryInterval;
    deviceUnsaved_ = true;
    for (const auto& [number, channel] : state.channels)
        unsaved_.insert(number);
    return false;
}

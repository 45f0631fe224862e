// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "jobqueue.h"
#include "media/feed.h"
#include "messages.h"
#include "ptzhead.h"
#include "state.h"
#include "zone.h"

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

// What clients set on one device: settings, password, clock, and where its heads look. Shows it in
// the test pictures and keeps it in the state file, which is written on the job queue.
// Threads: any, except where a function says "queue's thread". The file must have been handed to
// no job when an object is made, and the jobs have been done when it goes.
class DeviceSettings
{
public:
    using Clock = PtzHead::Clock;

    DeviceSettings(std::string uid, int channels, std::string configuredPassword, StateFile& file,
        JobQueue& jobs);

    int channels() const { return static_cast<int>(channels_.size()); }
    // What the picture of a channel shows.
    const std::shared_ptr<SceneState>& scene(int channel) const;

    ChannelState channel(int number) const;
    // Changes a channel's settings, but not its head, and saves them soon.
    void change(int channel, const std::function<void(ChannelState&)>& edit);

    std::string wifiName() const;
    std::string wifiPassword() const;
    void setWifi(const std::string& name, const std::string& password);

    // Sets the device's clock; `local` in its zone.
    void setTime(const DeviceTime& local);
    // Reads the zone from the system's files. False when there is none of that name, or it cannot
    // be saved. Queue's thread.
    bool setZone(const std::string& name);

    std::string password() const;
    // False when `from` is not the present one, or the new one cannot be saved. Queue's thread.
    bool setPassword(const std::string& from, const std::string& to);

    void move(const PtzMove& towards, Clock::time_point now);
    // False for a preset that was never set.
    bool act(const PtzAction& action, Clock::time_point now);
    PtzHead::Cruise cruising(int channel) const;

    // Takes the heads to where they are at `now`. Whether one goes on moving.
    bool tick(Clock::time_point now);
    // Saves what has changed and where the heads look.
    void saveSoon();

private:
    struct Channel
    {
        std::shared_ptr<SceneState> scene;
        PtzHead head;
        bool moving = false;
        ChannelState state; // without position and presets, which the head has
    };

    // All with mutex_ held.
    Channel& at(int channel) { return channels_[static_cast<std::size_t>(channel)]; }
    const Channel& at(int channel) const { return channels_[static_cast<std::size_t>(channel)]; }
    ChannelState snapshot(const Channel& channel) const;
    DeviceState takeUnsaved();
    void showHead(Channel& channel);
    void showClock();
    void postSave();

    bool save(); // queue's thread

    const std::string uid_;
    const std::string configuredPassword_;
    StateFile& file_;
    JobQueue& jobs_;

    mutable std::mutex mutex_;
    // guarded by mutex_
    std::vector<Channel> channels_; // the vector itself and `scene` never change
    DeviceState device_; // without channels
    std::optional<Zone> zone_; // nothing: UTC
    std::set<int> unsaved_; // channels
    Clock::time_point retrySave_; // after a save that failed
    bool deviceUnsaved_ = false;
    bool savePosted_ = false;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/linkhost.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

// A device for tests: publishes one UID and records what its clients do. By default it admits
// everybody and takes every message.
class TestDevice final : public LinkDeviceHandler
{
public:
    struct Message
    {
        LinkChannelPtr channel;
        std::uint32_t type;
        std::string bytes;
    };

    explicit TestDevice(
        std::string uid, int channels = 4, const LinkHostSettings& settings = onLoopback())
    {
        device_.uid = std::move(uid);
        device_.version = "C1.IPC-" + std::to_string(channels);
        device_.account = "Admin";
        device_.password = "secret";
        device_.channels = channels;
        host_ = LinkHost::start(settings, error_);
        published_ = host_ && host_->publish(device_, *this);
    }
    ~TestDevice() override { host_.reset(); }

    static LinkHostSettings onLoopback()
    {
        LinkHostSettings settings;
        settings.address = "127.0.0.1";
        settings.loopbackOnly = true;
        return settings;
    }

    bool ok() const { return published_; }
    LinkHost& host() { return *host_; }
    const std::string& uid() const { return device_.uid; }
    // Ends the host, as a device does that is switched off.
    void switchOff() { host_.reset(); }

    std::atomic<bool> admits{true};
    std::atomic<bool> takes{true};

    std::vector<LinkChannelPtr> channels()
    {
        const std::lock_guard lock(mutex_);
        return channels_;
    }
    LinkChannelPtr channel(int number)
    {
        for (const LinkChannelPtr& channel : channels()) {
            if (channel->number() == number)
                return channel;
        }
        return nullptr;
    }
    // Waits for it, for ten seconds at most.
    LinkChannelPtr awaitChannel(int number)
    {
        for (int i = 0; i < 1000; ++i) {
            if (LinkChannelPtr found = channel(number))
                return found;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return nullptr;
    }
    std::vector<Message> messages()
    {
        const std::lock_guard lock(mutex_);
        return messages_;
    }
    std::vector<LinkFrame> speech()
    {
        const std::lock_guard lock(mutex_);
        return speech_;
    }
    int opened() const { return opened_; }
    int closed() const { return closed_; }
    int wrongPasswords() const { return wrongPasswords_; }
    int lockOuts() const { return lockOuts_; }

    // Runs on the host's thread for each message that was taken.
    std::function<void(const LinkChannelPtr&, std::uint32_t, std::string_view)> onControl;

    bool admit(const std::string& /*peer*/) override { return admits; }
    void channelOpened(const LinkChannelPtr& channel) override
    {
        const std::lock_guard lock(mutex_);
        channels_.push_back(channel);
        ++opened_;
    }
    void channelClosed(const LinkChannelPtr& channel) override
    {
        const std::lock_guard lock(mutex_);
        for (auto it = channels_.begin(); it != channels_.end(); ++it) {
            if (*it == channel) {
                channels_.erase(it);
                break;
            }
        }
        ++closed_;
    }
    bool controlReceived(
        const LinkChannelPtr& channel, std::uint32_t type, std::string_view bytes) override
    {
        if (!takes)
            return false;
        {
            const std::lock_guard lock(mutex_);
            messages_.push_back({channel, type, std::string(bytes)});
        }
        if (onControl)
            onControl(channel, type, bytes);
        return true;
    }
    void speechReceived(const LinkChannelPtr& /*channel*/, const LinkFrame& frame) override
    {
        const std::lock_guard lock(mutex_);
        speech_.push_back(frame);
    }
    void wrongPassword(const std::string& /*peer*/, bool lockedOut) override
    {
        ++wrongPasswords_;
        lockOuts_ += lockedOut ? 1 : 0;
    }

private:
    LinkDevice device_;
    std::string error_;
    bool published_ = false;
    std::unique_ptr<LinkHost> host_;
    std::mutex mutex_;
    std::vector<LinkChannelPtr> channels_; // guarded by mutex_
    std::vector<Message> messages_; // guarded by mutex_
    std::vector<LinkFrame> speech_; // guarded by mutex_
    std::atomic<int> opened_{0};
    std::atomic<int> closed_{0};
    std::atomic<int> wrongPasswords_{0};
    std::atomic<int> lockOuts_{0};
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/linkhost.h"
#include "media/feed.h"

#include <QByteArray>
#include <QList>
#include <QPair>

#include <algorithm>
#include <map>
#include <mutex>
#include <set>
#include <vector>

// A link layer and a feed that only remember what they were told. The channel may be used from
// any thread, the others from the test's.

class FakeChannel final : public LinkChannel
{
public:
    using Message = QPair<quint32, QByteArray>;

    explicit FakeChannel(int number, std::uint64_t session = 1)
        : number_(number)
        , session_(session)
    {
    }

    QList<Message> sent() const
    {
        const std::lock_guard lock(mutex_);
        return sent_;
    }
    // The messages sent since the last call.
    QList<Message> takeSent()
    {
        const std::lock_guard lock(mutex_);
        return std::exchange(sent_, {});
    }
    QList<QByteArray> raw() const
    {
        const std::lock_guard lock(mutex_);
        return raw_;
    }
    int pictures() const { return pictures_; }
    int sounds() const { return sounds_; }
    int speechChannel() const { return speechChannel_; }

    int number() const override { return number_; }
    std::uint64_t session() const override { return session_; }
    std::string peer() const override { return "127.0.0.1:9"; }
    Sent sendVideo(const LinkFrame&) override
    {
        ++pictures_;
        return Sent::Queued;
    }
    Sent sendAudio(const LinkFrame&) override
    {
        ++sounds_;
        return Sent::Queued;
    }
    bool sendControl(std::uint32_t type, std::string_view bytes) override
    {
        const std::lock_guard lock(mutex_);
        sent_.append({type, QByteArray(bytes.data(), static_cast<int>(bytes.size()))});
        return true;
    }
    void joinSpeech(int number) override { speechChannel_ = number; }
    void leaveSpeech() override { speechChannel_ = -1; }
    int offerChannel() override { return -1; }
    void takeBackChannel(int) override { }
    void close() override { }
    void closeSession() override { }
    void sendRaw(std::string_view datagram) override
    {
        const std::lock_guard lock(mutex_);
        raw_.append(QByteArray(datagram.data(), static_cast<int>(datagram.size())));
    }
    void loseVideo() override { ++lost_; }
    int lost() const { return lost_; }

private:
    const int number_;
    const std::uint64_t session_;
    mutable std::mutex mutex_;
    QList<Message> sent_;
    QList<QByteArray> raw_;
    std::atomic<int> pictures_{0};
    std::atomic<int> sounds_{0};
    std::atomic<int> lost_{0};
    std::atomic<int> speechChannel_{-1};
};

// Gives its frames at once to whoever watches, as a feed with a cached picture does.
class FakeFeed final : public Feed
{
public:
    explicit FakeFeed(FeedSettings settings, std::shared_ptr<SceneState> scene)
        : settings_(std::move(settings))
        , scene_(std::move(scene))
    {
    }

    const FeedSettings& settings() const { return settings_; }
    const SceneState& scene() const { return *scene_; }
    bool isWatched() const { return !watchers_.empty(); }
    bool isHeard() const { return !listeners_.empty(); }
    Quality quality() const { return quality_; }

    void sendPicture()
    {
        for (const auto& [key, sink] : watchers_)
            sink->videoFrame(std::make_shared<LinkFrame>());
    }

    void watch(const std::shared_ptr<FrameSink>& sink, Quality quality) override
    {
        watchers_[sink.get()] = sink;
        quality_ = quality;
        sink->videoFrame(std::make_shared<LinkFrame>());
    }
    void unwatch(const FrameSink* sink) override { watchers_.erase(sink); }
    void listen(const std::shared_ptr<FrameSink>& sink) override
    {
        listeners_[sink.get()] = sink;
        sink->audioFrame(std::make_shared<LinkFrame>());
    }
    void unlisten(const FrameSink* sink) override { listeners_.erase(sink); }

private:
    const FeedSettings settings_;
    const std::shared_ptr<SceneState> scene_;
    std::map<const FrameSink*, std::shared_ptr<FrameSink>> watchers_;
    std::map<const FrameSink*, std::shared_ptr<FrameSink>> listeners_;
    Quality quality_ = Quality::High;
};

class FakeHost final : public LinkHost
{
public:
    std::uint16_t port() const override { return 1; }
    bool publish(const LinkDevice& device, LinkDeviceHandler&) override
    {
        published.push_back(device);
        return accepts;
    }
    void withdraw(const std::string& uid) override { withdrawn.push_back(uid); }
    void setPassword(const std::string&, const std::string& text) override
    {
        const std::lock_guard lock(mutex_);
        password_ = text;
    }
    void setSilent(const std::string&, bool on) override { silent = on; }

    std::string lastPassword()
    {
        const std::lock_guard lock(mutex_);
        return password_;
    }

    bool accepts = true;
    bool silent = false;
    std::vector<LinkDevice> published;
    std::vector<std::string> withdrawn;

private:
    std::mutex mutex_;
    std::string password_; // guarded by mutex_
};

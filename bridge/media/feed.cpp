// SPDX-License-Identifier: GPL-3.0-or-later
#include "media/feed.h"

#include "framehub.h"
#include "inputsource.h"
#include "medialog.h"
#include "testsource.h"

#include <map>
#include <mutex>

namespace {

bool isTest(const SourceSettings& settings)
{
    return settings.url.compare(0, 5, "test:") == 0;
}

std::shared_ptr<Source> makeSource(const FeedSettings& feed, const SourceSettings& settings,
    const std::shared_ptr<SceneState>& state, bool always)
{
    if (isTest(settings))
        return testSourceFor(feed, settings, state);
    return std::make_shared<InputSource>(feed, settings, always);
}

// The sinks of one kind and where each of them is.
class Stays
{
public:
    ~Stays()
    {
        while (!stays_.empty())
            end(stays_.begin()->first);
    }

    void begin(const std::shared_ptr<FrameSink>& sink, FrameHub& hub)
    {
        end(sink.get());
        const auto watcher = std::make_shared<HubWatcher>(sink);
        {
            const std::lock_guard lock(mutex_);
            stays_[sink.get()] = {&hub, watcher};
        }
        hub.add(watcher);
    }

    void end(const FrameSink* sink)
    {
        Stay stay;
        {
            const std::lock_guard lock(mutex_);
            const auto found = stays_.find(sink);
            if (found == stays_.end())
                return;
            stay = found->second;
            stays_.erase(found);
        }
        stay.hub->remove(stay.watcher);
    }

private:
    struct Stay
    {
        FrameHub* hub = nullptr;
        std::shared_ptr<HubWatcher> watcher;
    };

    std::mutex mutex_; // not held while a hub is called, which calls sinks
    std::map<const FrameSink*, Stay> stays_; // guarded by mutex_
};

class ChannelFeed final : public Feed
{
public:
    ChannelFeed(const FeedSettings& settings, const std::shared_ptr<SceneState>& state)
        : main_(makeSource(settings, settings.main, state, true))
        , sub_(settings.sub ? makeSource(settings, *settings.sub, state, false) : nullptr)
    {
    }

    void watch(const std::shared_ptr<FrameSink>& sink, Quality quality) override
    {
        watching_.begin(sink, quality == Quality::High ? main_->video() : lowVideo());
    }
    void unwatch(const FrameSink* sink) override { watching_.end(sink); }
    void listen(const std::shared_ptr<FrameSink>& sink) override
    {
        listening_.begin(sink, main_->audio());
    }
    void unlisten(const FrameSink* sink) override { listening_.end(sink); }

private:
    FrameHub& lowVideo() { return sub_ ? sub_->video() : main_->lowVideo(); }

    const std::shared_ptr<Source> main_;
    const std::shared_ptr<Source> sub_;
    // After the sources: the sinks leave them first, which may go on for another feed.
    Stays watching_;
    Stays listening_;
};

} // namespace

std::unique_ptr<Feed> Feed::create(
    const FeedSettings& settings, const std::shared_ptr<SceneState>& state)
{
    routeFfmpegLog();
    return std::make_unique<ChannelFeed>(settings, state);
}

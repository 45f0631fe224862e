// SPDX-License-Identifier: GPL-3.0-or-later
#include "testsource.h"

#include "medialog.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <sstream>

namespace {

constexpr std::chrono::seconds retryTime{30};

SourceSettings withinLimits(SourceSettings settings)
{
    settings.width = std::clamp(settings.width, 64, 3840) / 2 * 2;
    settings.height = std::clamp(settings.height, 64, 2160) / 2 * 2;
    settings.framesPerSecond = std::clamp(settings.framesPerSecond, 1, 60);
    settings.kilobitsPerSecond = std::clamp(settings.kilobitsPerSecond, 16, 100'000);
    settings.keyInterval = std::clamp(settings.keyInterval, 1, 3600);
    return settings;
}

// Frame `number` is due this long after the first; computed from the number each time, so that
// rounding never adds up.
Worker::Clock::duration dueAfter(std::int64_t number, int framesPerSecond)
{
    return std::chrono::nanoseconds(number * 1'000'000'000 / framesPerSecond);
}

std::string shareKey(const SourceSettings& settings)
{
    std::ostringstream key;
    key << settings.shared << '\n'
        << settings.scene << ' ' << settings.width << ' ' << settings.height << ' '
        << settings.framesPerSecond << ' ' << settings.kilobitsPerSecond << ' '
        << settings.keyInterval << ' ' << static_cast<int>(settings.codec) << ' '
        << static_cast<int>(settings.stamp) << ' ' << settings.sound;
    return key.str();
}

} // namespace

TestSource::TestSource(
    const FeedSettings& feed, const SourceSettings& settings, std::shared_ptr<SceneState> state)
    : name_(feed.name)
    , channel_(feed.channel)
    , settings_(withinLimits(settings))
    , state_(std::move(state))
    , video_(FrameHub::Kind::Video, [this] { worker_.wake(); })
    , worker_([this] { run(); })
{
    video_.framesPerSecond = settings_.framesPerSecond;
}

void TestSource::run()
{
    while (worker_.waitFor([this] { return video_.watched(); }))
        showWhileWatched();
}

bool TestSource::openEncoder()
{
    if (encoder_)
        return true;
    EncoderSettings wanted;
    wanted.codec = settings_.codec;
    wanted.width = settings_.width;
    wanted.height = settings_.height;
    wanted.framesPerSecond = settings_.framesPerSecond;
    wanted.kilobitsPerSecond = settings_.kilobitsPerSecond;
    wanted.keyInterval = settings_.keyInterval;
    std::string error;
    encoder_ = VideoEncoder::open(wanted, error);
    if (!encoder_)
        logMedia(LogLevel::Error, name_, "test picture: " + error);
    return encoder_ != nullptr;
}

void TestSource::showWhileWatched()
{
    if (!openEncoder() || !showPictures())
        worker_.sleepUntil(Worker::Clock::now() + retryTime);
    // libx265 3.5 loses some kilobytes with each encoder that is closed: the one of this source
    // stays, which costs memory while nobody watches, but does not grow with each viewer.
    if (settings_.codec == VideoCodec::H264)
        encoder_.reset();
}

// False when pictures cannot be made.
bool TestSource::showPictures()
{
    TestPicture picture(settings_, channel_, state_);
    const int rate = settings_.framesPerSecond;
    const auto start = Worker::Clock::now();
    std::int64_t number = 0;
    while (!video_.resetIfUnwatched()) {
        if (!show(picture))
            return false;
        const auto passed = std::chrono::nanoseconds(Worker::Clock::now() - start).count();
        number = std::max(number + 1, passed / 1'000'000 * rate / 1000);
        const auto due = start + dueAfter(number, rate);
        if (!worker_.waitFor([&] { return Worker::Clock::now() >= due; }, due))
            break;
    }
    return true;
}

bool TestSource::show(TestPicture& picture)
{
    const PictureMoment moment{
        std::chrono::steady_clock::now(), std::chrono::system_clock::now(), encoded_};
    AVFrame* drawn = picture.draw(moment);
    if (drawn == nullptr)
        return false;
    const auto frame = encoder_->encode(*drawn, video_.takeKeyWish());
    ++encoded_;
    if (frame && !video_.publish(frame))
        logMedia(LogLevel::Warning, name_, "test picture: a frame was too large");
    return true;
}

std::shared_ptr<TestSource> testSourceFor(
    const FeedSettings& feed, const SourceSettings& settings, std::shared_ptr<SceneState> state)
{
    if (settings.shared.empty())
        return std::make_shared<TestSource>(feed, settings, std::move(state));
    static std::mutex mutex;
    static std::map<std::string, std::weak_ptr<TestSource>> sources; // guarded by mutex
    const std::lock_guard lock(mutex);
    for (auto it = sources.begin(); it != sources.end();)
        it = it->second.expired() ? sources.erase(it) : std::next(it);
    auto& known = sources[shareKey(settings)];
    auto source = known.lock();
    if (!source) {
        source = std::make_shared<TestSource>(feed, settings, std::move(state));
        known = source;
    }
    return source;
}

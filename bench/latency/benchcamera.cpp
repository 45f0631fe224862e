// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchcamera.h"

#include "bridge.h"
#include "config.h"
#include "log.h"
#include "media/testsource.h"

#include <mutex>
#include <utility>

namespace {

std::string configText(int count)
{
    std::string text =
        "address: 127.0.0.1\nloopback-only: true\nstate: state.db\ndevices:\n  - uid: ";
    text += BenchCamera::uid;
    text += "\n    version: 2.6.0.N02A-" + std::to_string(count) + "\n    password: ";
    text += BenchCamera::password;
    // By the name of what is shared we find the source too.
    text += "\n    channels:\n      - count: " + std::to_string(count)
        + "\n        main: {url: \"test:\", width: 1280, height: 720, rate: 25, bitrate: 2000, "
          "codec: h264, stamp: time, shared: camera}\n";
    return text;
}

} // namespace

// Keeps the frames of one camera.
class BenchCamera::Recorder final : public FrameSink
{
public:
    explicit Recorder(Also also)
        : also_(std::move(also))
    {
    }

    void videoFrame(const std::shared_ptr<const LinkFrame>& frame) override
    {
        const auto now = std::chrono::steady_clock::now();
        {
            const std::lock_guard lock(mutex_);
            frames_.push_back({now, frame});
        }
        if (also_)
            also_(*frame);
    }
    void audioFrame(const std::shared_ptr<const LinkFrame>&) override { }

    std::vector<SentFrame> take()
    {
        const std::lock_guard lock(mutex_);
        return std::exchange(frames_, {});
    }

private:
    const Also also_;
    std::mutex mutex_;
    std::vector<SentFrame> frames_; // guarded by mutex_; 250 kB for each second
};

std::unique_ptr<BenchCamera> BenchCamera::start(int count, std::string& error)
{
    setLogLevel(LogLevel::Warning);
    std::unique_ptr<BenchCamera> camera(new BenchCamera);
    const auto path = camera->folder_.filePath(QStringLiteral("config.yaml")).toStdString();
    const auto parsed = parseConfig(configText(count), ConfigFiles::real(path));
    if (const auto* errors = std::get_if<std::vector<ConfigError>>(&parsed)) {
        error = errors->front().text;
        return nullptr;
    }
    return camera->serve(std::get<Config>(parsed), error) ? std::move(camera) : nullptr;
}

BenchCamera::~BenchCamera()
{
    rest();
}

bool BenchCamera::serve(const Config& config, std::string& error)
{
    ExitCode failure = ExitCode::Ok;
    bridge_ = Bridge::start(
        config, [] {}, failure);
    if (!bridge_) {
        error = "the bridge does not start";
        return false;
    }
    source_ = testSourceFor({}, config.devices.front().channels.front().main, nullptr);
    return true;
}

void BenchCamera::run(const Also& also)
{
    recorder_ = std::make_shared<Recorder>(also);
    watcher_ = std::make_shared<HubWatcher>(recorder_);
    source_->video().add(watcher_);
}

std::vector<SentFrame> BenchCamera::rest()
{
    if (!watcher_)
        return {};
    source_->video().remove(watcher_);
    watcher_.reset();
    return recorder_->take();
}

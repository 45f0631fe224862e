// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "media/feed.h"

#include <QTemporaryDir>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class Bridge;
class TestSource;
struct Config;
struct HubWatcher;

// An encoded picture and when it left the encoder.
struct SentFrame
{
    std::chrono::steady_clock::time_point published;
    std::shared_ptr<const LinkFrame> frame;
};

// A device with a test picture, served by the bridge's own code in this process, so that we see each
// frame as the encoder gives it away: 1280x720, 25 a second, H.264 of 2 Mb/s, stamped with the time at
// which the drawing began. All its channels show the one picture: drawing and encoding takes more than
// showing, and many would leave nothing for who is measured. One thread.
class BenchCamera
{
public:
    static constexpr char uid[] = "BENCHLATENCYDEVICE01";
    static constexpr char password[] = "secret";

    // Null: `error` tells why.
    static std::unique_ptr<BenchCamera> start(int channels, std::string& error);
    BenchCamera(const BenchCamera&) = delete;
    BenchCamera& operator=(const BenchCamera&) = delete;
    ~BenchCamera();

    // It runs from here on, and what it sends is kept. `also` is called for each frame too, on the
    // camera's thread, and must not wait.
    using Also = std::function<void(const LinkFrame& frame)>;
    void run(const Also& also = {});
    // It runs only while a client watches. What was kept since run().
    std::vector<SentFrame> rest();

private:
    class Recorder;

    BenchCamera() = default;
    bool serve(const Config& config, std::string& error);

    QTemporaryDir folder_;
    std::unique_ptr<Bridge> bridge_;
    std::shared_ptr<TestSource> source_;
    std::shared_ptr<Recorder> recorder_;
    std::shared_ptr<HubWatcher> watcher_;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#include "beepsource.h"

#include "alawencoder.h"
#include "testpicture.h"

#include <array>
#include <cmath>

namespace {

constexpr double toneHertz = 880;
constexpr double toneLevel = 9000;
constexpr std::chrono::milliseconds frameTime{40};

double secondsNow()
{
    return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch())
        .count();
}

// `time`: of the sample, by the wall clock. Rises and falls within the beep, without a click.
std::int16_t toneAt(double time)
{
    const double within = time - std::floor(time);
    if (within >= beepShare)
        return 0;
    const double level = toneLevel * std::sin(M_PI * within / beepShare);
    return static_cast<std::int16_t>(level * std::sin(2 * M_PI * toneHertz * within));
}

} // namespace

BeepSource::BeepSource()
    : hub_(FrameHub::Kind::Audio, [this] { worker_.wake(); })
    , worker_([this] { run(); })
{
}

void BeepSource::run()
{
    while (worker_.waitFor([this] { return hub_.watched(); }))
        beepWhileWatched();
}

void BeepSource::beepWhileWatched()
{
    const double began = secondsNow();
    const auto start = Worker::Clock::now();
    for (std::int64_t frame = 0; hub_.watched(); ++frame) {
        if (!worker_.sleepUntil(start + frame * frameTime))
            return;
        std::array<std::int16_t, alawFrameSamples> samples{};
        for (int i = 0; i < alawFrameSamples; ++i)
            samples[static_cast<std::size_t>(i)] =
                toneAt(began + double(frame * alawFrameSamples + i) / alawRate);
        hub_.publish(makeSoundFrame(samples.data()));
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cairo.h"
#include "ffmpeg.h"
#include "media/feed.h"
#include "scene.h"

#include <chrono>
#include <cstdint>
#include <memory>

// When a test picture is drawn, by the two clocks.
struct PictureMoment
{
    std::chrono::steady_clock::time_point steady;
    std::chrono::system_clock::time_point wall;
    std::uint64_t frame = 0;
};

// Share of each second of the wall clock, from its begin, that the sound beeps and the picture
// shows its flash.
constexpr double beepShare = 0.12;

// Draws the pictures of one test source: a scene, the texts over it, the stamp. One thread at a
// time.
class TestPicture
{
public:
    TestPicture(const SourceSettings& settings, int channel, std::shared_ptr<SceneState> state);

    // The picture of this moment, planar 4:2:0; null without memory. It counts until the next call.
    AVFrame* draw(const PictureMoment& moment);
    // The same without stamp, as drawn last: cairo's 32 bits a point.
    cairo_surface_t* surface() const { return surface_.get(); }

private:
    struct View
    {
        float pan;
        float tilt;
        float zoom;

        bool operator!=(const View& other) const
        {
            return pan != other.pan || tilt != other.tilt || zoom != other.zoom;
        }
    };

    void drawScene(double seconds);
    void refreshStill(double seconds, const Camera& camera, const View& view);
    void resizeScene(double blur);
    void turn(cairo_t* cairo) const;
    void drawIris(cairo_t* cairo) const;
    Camera camera(const View& view) const;
    bool convert();

    const SourceSettings settings_;
    const int channel_;
    const std::shared_ptr<SceneState> state_;
    const std::unique_ptr<Scene> scene_;
    const SurfacePtr surface_;
    FramePtr frame_;
    ScalerPtr scaler_;
    // The scene before it is turned and brightened; smaller than the picture when out of focus.
    SurfacePtr sceneSurface_;
    SurfacePtr still_;
    View stillView_{};
    double stillTime_ = -1;
};

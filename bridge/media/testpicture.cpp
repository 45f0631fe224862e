// SPDX-License-Identifier: GPL-3.0-or-later
#include "testpicture.h"

#include "caption.h"
#include "stamp.h"
#include "videoencoder.h"

#include <algorithm>

namespace {

// Clouds move less than a point within it.
constexpr double stillSeconds = 1;

SurfacePtr makeSurface(int width, int height)
{
    return SurfacePtr(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height));
}

int sceneKind(const SourceSettings& settings, int channel)
{
    return settings.scene >= 0 && settings.scene < sceneKinds ? settings.scene
                                                              : channel % sceneKinds;
}

double secondsOf(std::chrono::steady_clock::time_point time)
{
    return std::chrono::duration<double>(time.time_since_epoch()).count();
}

} // namespace

TestPicture::TestPicture(
    const SourceSettings& settings, int channel, std::shared_ptr<SceneState> state)
    : settings_(settings)
    , channel_(channel)
    , state_(std::move(state))
    , scene_(makeScene(sceneKind(settings, channel), channel / sceneKinds))
    , surface_(makeSurface(settings.width, settings.height))
    , frame_(makePicture(settings.width, settings.height))
{
}

AVFrame* TestPicture::draw(const PictureMoment& moment)
{
    drawScene(secondsOf(moment.steady) + 13.0 * channel_);
    const CairoPtr cairo(cairo_create(surface_.get()));
    cairo_save(cairo.get());
    turn(cairo.get());
    const double scale =
        double{1} * settings_.width / cairo_image_surface_get_width(sceneSurface_.get());
    cairo_scale(cairo.get(), scale,
        double{1} * settings_.height / cairo_image_surface_get_height(sceneSurface_.get()));
    cairo_set_source_surface(cairo.get(), sceneSurface_.get(), 0, 0);
    cairo_pattern_set_filter(cairo_get_source(cairo.get()), CAIRO_FILTER_BILINEAR);
    cairo_pattern_set_extend(cairo_get_source(cairo.get()), CAIRO_EXTEND_PAD);
    cairo_paint(cairo.get());
    cairo_restore(cairo.get());
    drawIris(cairo.get());
    drawCaption(cairo.get(), settings_.width, settings_.height,
        makeCaption(*state_, moment, channel_, scene_->name()));
    if (!convert())
        return nullptr;
    if (settings_.stamp == StampKind::Time)
        drawStamp(*frame_, timeStampValue(moment.steady));
    else if (settings_.stamp == StampKind::Frame)
        drawStamp(*frame_, static_cast<std::uint32_t>(moment.frame % 500));
    return frame_.get();
}

void TestPicture::drawScene(double seconds)
{
    resizeScene(std::abs(state_->focus - 0.5F) * 2);
    const View view{state_->pan, state_->tilt, state_->zoom};
    const Camera seen = camera(view);
    refreshStill(seconds, seen, view);
    const CairoPtr cairo(cairo_create(sceneSurface_.get()));
    cairo_set_source_surface(cairo.get(), still_.get(), 0, 0);
    cairo_paint(cairo.get());
    Painter painter(cairo.get(), cairo_image_surface_get_width(sceneSurface_.get()),
        cairo_image_surface_get_height(sceneSurface_.get()), seen, scene_->light());
    scene_->drawMoving(painter, seconds);
}

void TestPicture::refreshStill(double seconds, const Camera& camera, const View& view)
{
    const bool fresh = stillTime_ >= 0 && seconds - stillTime_ < stillSeconds;
    if (fresh && !(view != stillView_))
        return;
    stillTime_ = seconds;
    stillView_ = view;
    const CairoPtr cairo(cairo_create(still_.get()));
    Painter painter(cairo.get(), cairo_image_surface_get_width(still_.get()),
        cairo_image_surface_get_height(still_.get()), camera, scene_->light());
    scene_->drawStill(painter, seconds);
}

// `blur`: 0 sharp to 1. A scene out of focus is drawn small and shown large.
void TestPicture::resizeScene(double blur)
{
    const double part = 1 + (blur > 0.04 ? blur * 11 : 0);
    const int width = std::max(16, static_cast<int>(settings_.width / part));
    const int height = std::max(16, static_cast<int>(settings_.height / part));
    if (sceneSurface_ && cairo_image_surface_get_width(sceneSurface_.get()) == width
        && cairo_image_surface_get_height(sceneSurface_.get()) == height)
        return;
    sceneSurface_ = makeSurface(width, height);
    still_ = makeSurface(width, height);
    stillTime_ = -1;
}

Camera TestPicture::camera(const View& view) const
{
    Camera camera = scene_->home();
    camera.yaw += 0.55 * view.pan;
    camera.pitch += 0.28 * view.tilt;
    camera.focal *= 1 + 3 * std::max(0.0F, view.zoom);
    return camera;
}

void TestPicture::turn(cairo_t* cairo) const
{
    const int rotation = state_->rotation;
    const bool across = rotation == 1 || rotation == 2;
    const bool down = rotation == 1 || rotation == 3;
    cairo_translate(cairo, across ? settings_.width : 0, down ? settings_.height : 0);
    cairo_scale(cairo, across ? -1 : 1, down ? -1 : 1);
}

void TestPicture::drawIris(cairo_t* cairo) const
{
    const double change = std::clamp(state_->iris - 0.5, -0.5, 0.5);
    if (change > 0) {
        cairo_set_operator(cairo, CAIRO_OPERATOR_ADD);
        cairo_set_source_rgb(cairo, change * 0.8, change * 0.8, change * 0.8);
    } else {
        cairo_set_source_rgba(cairo, 0, 0, 0, -change * 1.6);
    }
    if (std::abs(change) > 0.005)
        cairo_paint(cairo);
    cairo_set_operator(cairo, CAIRO_OPERATOR_OVER);
}

bool TestPicture::convert()
{
    if (!frame_ || av_frame_make_writable(frame_.get()) < 0)
        return false;
    scaler_.reset(sws_getCachedContext(scaler_.release(), settings_.width, settings_.height,
        AV_PIX_FMT_BGR0, settings_.width, settings_.height, AV_PIX_FMT_YUV420P, SWS_FAST_BILINEAR,
        nullptr, nullptr, nullptr));
    if (!scaler_)
        return false;
    cairo_surface_flush(surface_.get());
    const std::uint8_t* const data[]{cairo_image_surface_get_data(surface_.get())};
    const int stride[]{cairo_image_surface_get_stride(surface_.get())};
    return sws_scale(
               scaler_.get(), data, stride, 0, settings_.height, frame_->data, frame_->linesize)
        == settings_.height;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "screenwatch.h"

#include "stampreader.h"
#include "xcbowners.h"

#include <algorithm>

using Clock = std::chrono::steady_clock;

namespace {

// Two lines around the middle of each of the two rows of blocks: as a picture of 24 lines has them.
constexpr int linesPerRow = 2;
constexpr int lines = 2 * linesPerRow;
constexpr int stripHeight = 24;
constexpr std::size_t bytesPerPoint = 4;
constexpr std::size_t greenByte = 1;

// The first of the two lines, counted from the top of a picture of `height`.
int lineOf(int height, int row)
{
    return height * (2 * row + 1) / stripHeight - 1;
}

std::size_t stripBytes(const QRect& rectangle)
{
    return static_cast<std::size_t>(rectangle.width()) * lines * bytesPerPoint;
}

} // namespace

// The connection to the X server and what is fetched from it.
class ScreenWatch::Screen
{
public:
    explicit Screen(const std::vector<QRect>& rectangles)
        : rectangles_(rectangles)
        , connection_(xcb_connect(nullptr, &number_))
    {
    }

    bool open(std::string& error);
    // The stamps of all rectangles, now. False when the server is gone.
    bool read(std::vector<std::optional<std::uint32_t>>& stamps);

private:
    bool isUsable(const xcb_screen_t& screen) const;
    std::optional<std::uint32_t> stampAt(std::size_t offset, int width);

    const std::vector<QRect> rectangles_;
    int number_ = 0;
    const XcbConnectionPtr connection_;
    SharedSegment segment_;
    xcb_window_t root_ = 0;
    std::vector<xcb_shm_get_image_cookie_t> asked_;
    std::vector<std::uint8_t> luma_;
};

bool ScreenWatch::Screen::open(std::string& error)
{
    if (xcb_connection_has_error(connection_.get()) != 0) {
        error = "no X display";
        return false;
    }
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection_.get()));
    for (int i = 0; i < number_; ++i)
        xcb_screen_next(&screen);
    root_ = screen.data->root;
    if (!isUsable(*screen.data)) {
        error = "the X display has not 32 bits a point, or a rectangle lies outside of it";
        return false;
    }
    std::size_t size = 0;
    for (const QRect& rectangle : rectangles_)
        size += stripBytes(rectangle);
    if (segment_.create(connection_.get(), size))
        return true;
    error = "no memory can be shared with the X server";
    return false;
}

bool ScreenWatch::Screen::isUsable(const xcb_screen_t& screen) const
{
    const QRect whole(0, 0, screen.width_in_pixels, screen.height_in_pixels);
    return (screen.root_depth == 24 || screen.root_depth == 32) && !rectangles_.empty()
        && std::all_of(rectangles_.begin(), rectangles_.end(), [&whole](const QRect& rectangle) {
               return whole.contains(rectangle) && rectangle.width() >= 48
                   && rectangle.height() >= stripHeight;
           });
}

bool ScreenWatch::Screen::read(std::vector<std::optional<std::uint32_t>>& stamps)
{
    asked_.clear();
    std::size_t offset = 0;
    for (const QRect& at : rectangles_) {
        for (int row = 0; row < 2; ++row) {
            asked_.push_back(xcb_shm_get_image(connection_.get(), root_,
                static_cast<std::int16_t>(at.x()),
                static_cast<std::int16_t>(at.y() + lineOf(at.height(), row)),
                static_cast<std::uint16_t>(at.width()), linesPerRow, ~0U, XCB_IMAGE_FORMAT_Z_PIXMAP,
                segment_.name(), static_cast<std::uint32_t>(offset)));
            offset += stripBytes(at) / 2;
        }
    }
    for (const auto cookie : asked_) {
        const XcbAnswerPtr<xcb_shm_get_image_reply_t> answer(
            xcb_shm_get_image_reply(connection_.get(), cookie, nullptr));
        if (!answer)
            return false;
    }
    stamps.clear();
    offset = 0;
    for (const QRect& rectangle : rectangles_) {
        stamps.push_back(stampAt(offset, rectangle.width()));
        offset += stripBytes(rectangle);
    }
    return true;
}

// Stamps are neutral in colour, so that green says what luma would.
std::optional<std::uint32_t> ScreenWatch::Screen::stampAt(std::size_t offset, int width)
{
    luma_.resize(static_cast<std::size_t>(width) * lines);
    const std::uint8_t* green = segment_.data() + offset + greenByte;
    for (std::uint8_t& sample : luma_) {
        sample = *green;
        green += bytesPerPoint;
    }
    return readStamp(luma_.data(), width, width, stripHeight);
}

std::unique_ptr<ScreenWatch> ScreenWatch::start(
    const std::vector<QRect>& rectangles, std::chrono::milliseconds interval, std::string& error)
{
    auto screen = std::make_unique<Screen>(rectangles);
    if (!screen->open(error))
        return nullptr;
    std::unique_ptr<ScreenWatch> watch(new ScreenWatch(std::move(screen), interval));
    watch->sights_.resize(rectangles.size());
    watch->thread_ = std::thread([watch = watch.get()] { watch->run(); });
    return watch;
}

ScreenWatch::ScreenWatch(std::unique_ptr<Screen> screen, std::chrono::milliseconds interval)
    : screen_(std::move(screen))
    , interval_(interval)
{
}

ScreenWatch::~ScreenWatch()
{
    stopping_ = true;
    if (thread_.joinable())
        thread_.join();
}

std::vector<std::vector<Sight>> ScreenWatch::sights() const
{
    const std::lock_guard lock(mutex_);
    return sights_;
}

void ScreenWatch::run()
{
    std::vector<std::optional<std::uint32_t>> stamps;
    auto due = Clock::now();
    while (!stopping_ && screen_->read(stamps)) {
        note(stamps);
        // Looks that were missed are not made up for.
        due = std::max(due + interval_, Clock::now());
        std::this_thread::sleep_until(due);
    }
}

void ScreenWatch::note(const std::vector<std::optional<std::uint32_t>>& stamps)
{
    const auto now = Clock::now();
    const std::lock_guard lock(mutex_);
    for (std::size_t i = 0; i < stamps.size(); ++i) {
        if (stamps[i] && (sights_[i].empty() || sights_[i].back().stamp != *stamps[i]))
            sights_[i].push_back({*stamps[i], now});
    }
}

Showing summarise(const std::vector<Sight>& sights, std::uint32_t period, Clock::time_point from,
    Clock::time_point to)
{
    Showing showing;
    auto before = from;
    std::uint32_t newest = 0;
    const auto stalled = [&showing](Clock::duration time) {
        showing.longestStall = std::max(
            showing.longestStall, std::chrono::duration_cast<std::chrono::microseconds>(time));
    };
    for (const Sight& sight : sights) {
        if (sight.seen < from || sight.seen >= to)
            continue;
        const std::uint32_t step =
            showing.shown == 0 ? 1 : (sight.stamp + period - newest) % period;
        if (step == 0 || step > period / 2)
            continue;
        stalled(sight.seen - before);
        before = sight.seen;
        newest = sight.stamp;
        ++showing.shown;
        showing.passed += static_cast<int>(step);
    }
    stalled(to - before);
    return showing;
}

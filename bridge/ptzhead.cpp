// SPDX-License-Identifier: GPL-3.0-or-later
#include "ptzhead.h"

#include <algorithm>
#include <cmath>

namespace {

using namespace std::chrono_literals;

// A client repeats its command every 500 ms; one of them may be late.
constexpr auto repeatLimit = 1s;

// Units of a range per second, for each step of speed: at speed 5 the head pans from end to end
// in four seconds.
constexpr float turnPerSpeed = 0.1F;
constexpr float lensPerSpeed = 0.05F;

constexpr float presetSpeed = 1;
constexpr float restAtStop = 2; // seconds
constexpr float longestStep = 0.05F; // seconds; so that turning points are met closely

float within(float value, float low)
{
    return std::clamp(value, low, 1.0F);
}

HeadPosition limited(const HeadPosition& position)
{
    return {within(position.pan, -1), within(position.tilt, -1), within(position.zoom, 0),
        within(position.focus, 0), within(position.iris, 0)};
}

// One axis on its way to `target`. Whether it has arrived.
bool approach(float& value, float target, float distance)
{
    const float rest = target - value;
    if (std::abs(rest) <= distance) {
        value = target;
        return true;
    }
    value += rest > 0 ? distance : -distance;
    return false;
}

} // namespace

PtzHead::PtzHead(const HeadPosition& position, HeadPresets presets)
    : position_(limited(position))
    , presets_(std::move(presets))
{
}

void PtzHead::halt()
{
    move_.reset();
    target_.reset();
    cruise_ = Cruise::None;
}

void PtzHead::move(const PtzMove& towards, Clock::time_point now)
{
    advance(now);
    halt();
    move_ = towards;
    moveUntil_ = now + repeatLimit;
}

void PtzHead::stop(Clock::time_point now)
{
    advance(now);
    halt();
}

void PtzHead::setPreset(int number, Clock::time_point now)
{
    advance(now);
    presets_[number] = position_;
}

bool PtzHead::goPreset(int number, Clock::time_point now)
{
    const auto preset = presets_.find(number);
    if (preset == presets_.end())
        return false;
    advance(now);
    halt();
    target_ = limited(preset->second);
    return true;
}

void PtzHead::cruise(Cruise kind, int speed, Clock::time_point now)
{
    advance(now);
    halt();
    cruise_ = kind;
    cruiseSpeed_ = turnPerSpeed * static_cast<float>(speed);
    tourStop_ = 0;
    restSeconds_ = 0;
}

bool PtzHead::advance(Clock::time_point now)
{
    const auto until = move_ ? std::min(now, moveUntil_) : now;
    float left = std::chrono::duration<float>(until - at_).count();
    const bool still = !move_ && !target_ && cruise_ == Cruise::None;
    while (!still && left > 0) {
        step(std::min(left, longestStep));
        left -= longestStep;
    }
    at_ = now;
    if (move_ && now >= moveUntil_)
        move_.reset();
    return move_ || target_ || cruise_ != Cruise::None;
}

void PtzHead::step(float seconds)
{
    if (move_)
        stepMove(seconds);
    else if (target_ && stepTo(*target_, seconds, presetSpeed))
        target_.reset();
    else if (cruise_ == Cruise::Auto)
        stepAuto(seconds);
    else if (cruise_ == Cruise::Presets)
        stepTour(seconds);
}

void PtzHead::stepMove(float seconds)
{
    const float speed = static_cast<float>(move_->speed) * seconds;
    const auto turn = [speed](int sign) { return static_cast<float>(sign) * turnPerSpeed * speed; };
    const auto lens = [speed](int sign) { return static_cast<float>(sign) * lensPerSpeed * speed; };
    position_ = limited({position_.pan + turn(move_->pan), position_.tilt + turn(move_->tilt),
        position_.zoom + lens(move_->zoom), position_.focus + lens(move_->focus),
        position_.iris + lens(move_->iris)});
}

void PtzHead::stepAuto(float seconds)
{
    if (approach(position_.pan, autoDirection_, cruiseSpeed_ * seconds))
        autoDirection_ = -autoDirection_;
}

std::vector<HeadPosition> PtzHead::tour() const
{
    std::vector<HeadPosition> stops;
    for (const auto& [number, preset] : presets_)
        stops.push_back(limited(preset));
    if (stops.size() >= 2)
        return stops;
    stops.assign(2, position_);
    stops[0].pan = -0.5F;
    stops[1].pan = 0.5F;
    return stops;
}

void PtzHead::stepTour(float seconds)
{
    if (restSeconds_ > 0) {
        restSeconds_ -= seconds;
        return;
    }
    const auto stops = tour();
    const auto stop = tourStop_ % stops.size();
    if (!stepTo(stops[stop], seconds, cruiseSpeed_))
        return;
    tourStop_ = (stop + 1) % stops.size();
    restSeconds_ = restAtStop;
}

bool PtzHead::stepTo(const HeadPosition& target, float seconds, float speed)
{
    const float distance = speed * seconds;
    const bool arrived[] = {approach(position_.pan, target.pan, distance),
        approach(position_.tilt, target.tilt, distance),
        approach(position_.zoom, target.zoom, distance),
        approach(position_.focus, target.focus, distance),
        approach(position_.iris, target.iris, distance)};
    return std::all_of(std::begin(arrived), std::end(arrived), [](bool there) { return there; });
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "messages.h"

#include <chrono>
#include <cstddef>
#include <map>
#include <optional>
#include <vector>

// Where a head looks; the ranges of SceneState.
struct HeadPosition
{
    float pan = 0;
    float tilt = 0;
    float zoom = 0;
    float focus = 0.5F;
    float iris = 0.5F;
};

using HeadPresets = std::map<int, HeadPosition>; // by number, 1 to 255

// The virtual pan-tilt head of a channel. A move turns it at a speed until it is stopped or not
// repeated for a second, as clients repeat it while a button is held; a preset is gone to and a
// cruise is run until something else is commanded. Pure: time comes in as an argument and must
// not go back. Not for use from two threads at once.
class PtzHead
{
public:
    using Clock = std::chrono::steady_clock;

    enum class Cruise { None = 0, Auto = 1, Presets = 2 };

    PtzHead() = default;
    PtzHead(const HeadPosition& position, HeadPresets presets);

    void move(const PtzMove& towards, Clock::time_point now);
    void stop(Clock::time_point now);
    void setPreset(int number, Clock::time_point now);
    // False for a preset that was never set.
    bool goPreset(int number, Clock::time_point now);
    // Auto: to and fro over the whole range. Presets: from one to the next, with a rest at each;
    // with fewer than two of them, between the two halves of the range.
    void cruise(Cruise kind, int speed, Clock::time_point now);

    // Takes the head to where it is at `now`. Whether it goes on moving.
    bool advance(Clock::time_point now);

    const HeadPosition& position() const { return position_; }
    const HeadPresets& presets() const { return presets_; }
    Cruise cruising() const { return cruise_; }

private:
    void step(float seconds);
    void stepMove(float seconds);
    void stepAuto(float seconds);
    void stepTour(float seconds);
    bool stepTo(const HeadPosition& target, float seconds, float speed);
    std::vector<HeadPosition> tour() const;
    void halt();

    HeadPosition position_;
    HeadPresets presets_;
    Clock::time_point at_{}; // the moment that position_ belongs to
    std::optional<PtzMove> move_;
    Clock::time_point moveUntil_{};
    std::optional<HeadPosition> target_;
    Cruise cruise_ = Cruise::None;
    float cruiseSpeed_ = 0; // of the range per second
    float autoDirection_ = 1;
    std::size_t tourStop_ = 0;
    float restSeconds_ = 0; // left at the present stop of the tour
};

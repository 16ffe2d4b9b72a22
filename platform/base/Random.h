#pragma once

#include "platform/base/NonMovable.h"

#include <chrono>
#include <functional>
#include <random>
#include <utility>

namespace tumble {

/// A pseudo-random generator.
class Random : private NonMovable {
public:
    virtual ~Random() = default;

    /// Seeds the generator from the system clock.
    virtual void Randomize() = 0;
    /// The next value r, 0 <= r < 1.
    virtual float Rnd() = 0;
};

/// The generator of the real desktop.
class ClockRandom : public Random {
public:
    using Clock = std::function<std::chrono::system_clock::time_point()>;

    explicit ClockRandom(Clock clock = std::chrono::system_clock::now) : clock_(std::move(clock)) {}

    void Randomize() override {
        engine_.seed(static_cast<std::mt19937::result_type>(clock_().time_since_epoch().count()));
    }
    // Single precision holds 24 bits exactly, so that rounding never yields 1.
    float Rnd() override { return static_cast<float>(engine_() >> 8) / 16777216.0F; }

private:
    Clock clock_;
    std::mt19937 engine_;
};

} // namespace tumble

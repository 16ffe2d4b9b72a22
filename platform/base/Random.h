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

    void Randomize() override;
    float Rnd() override;

private:
    Clock clock_;
    std::mt19937 engine_;
};

} // namespace tumble

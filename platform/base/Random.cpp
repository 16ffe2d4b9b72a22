#include "platform/base/Random.h"

namespace tumble {

void ClockRandom::Randomize() {
    engine_.seed(static_cast<std::mt19937::result_type>(clock_().time_since_epoch().count()));
}

// 24 bits are what single precision holds exactly, so that 1 is never reached by rounding.
float ClockRandom::Rnd() {
    return static_cast<float>(engine_() >> 8) / 16777216.0F;
}

} // namespace tumble

#pragma once

#include "platform/base/Geometry.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <span>

namespace tumble {

/// Converts to a value of any enumeration, inside its set or not.
struct Number {
    std::int32_t value;
    template<class Set>
    operator Set() const {
        return static_cast<Set>(value);
    }
};

/// The values of a session, read from its bytes in turn.
class SessionBytes {
public:
    explicit SessionBytes(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    bool done() const { return at_ >= bytes_.size(); }
    /// The next byte; zero when there is none left.
    unsigned next() { return done() ? 0 : bytes_[at_++]; }
    unsigned next16() { return next() << 8U | next(); }

    /// Usually from -1 to `limit`.
    Number number(unsigned limit) {
        const unsigned byte = next();
        return {static_cast<std::int32_t>(byte < 240 ? byte % (limit + 2) - 1 : next16() << 16U | next16())};
    }

    /// Usually within or near the table, at times a limit of the type or of any magnitude.
    float length() {
        using limits = std::numeric_limits<float>;
        constexpr std::array odd{limits::infinity(), -limits::infinity(),  limits::quiet_NaN(), limits::max(),
                                 limits::lowest(),   limits::denorm_min(), 8388607.5F,          2147483648.0F};
        const unsigned byte = next();
        if (byte < 230) {
            return byte < 200 ? static_cast<float>(next16() % 20000) / 2 - 500 : odd.at(byte % odd.size());
        }
        const float mantissa = static_cast<float>(next16()) - 32768;
        return std::ldexp(mantissa, static_cast<int>(next16() % 300) - 160);
    }

    /// On the table or beyond its edges, often on a pile.
    Point place() {
        constexpr std::array<Point, 5> piles{{{300, 300}, {8644, 300}, {300, 5644}, {8644, 5644}, {4507, 3007}}};
        const unsigned byte = next();
        const auto x = static_cast<float>(next16() % 10400) - 700;
        const auto y = static_cast<float>(next16() % 7400) - 700;
        return byte < 100 ? piles.at(byte % piles.size()) : Point{x, y};
    }

private:
    std::span<const std::uint8_t> bytes_;
    std::size_t at_ = 0;
};

} // namespace tumble

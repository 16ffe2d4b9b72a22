#pragma once

#include "platform/base/Path.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace tumble::art {

/// An outline written as commands and numbers, with absolute coordinates: M x y moves, L x y draws a line,
/// Q bx by x y and C bx by cx cy x y draw curves, O x y r adds a circle, Z closes. It begins with M or O. One that
/// cannot be read does not compile.
class Outline {
public:
    // NOLINTNEXTLINE(google-explicit-constructor,hicpp-explicit-conversions): a text is how it is written
    consteval Outline(const char* text) : text_(text) {
        if (!text_.empty() && text_.front() != 'M' && text_.front() != 'O') {
            throw std::invalid_argument("an outline begins nowhere");
        }
        for (std::string_view rest = text_; !rest.empty();) {
            takeCommand(rest);
        }
    }

    Path path() const;

private:
    struct Command {
        char name;
        std::array<double, 6> numbers;
    };

    /// Takes the first command off.
    static constexpr Command takeCommand(std::string_view& text) {
        constexpr std::string_view commands = "ZMLOQC";
        constexpr std::array<std::size_t, commands.size()> counts{0, 2, 2, 3, 4, 6};
        Command command{text.front(), {}};
        take(1, text);
        for (std::size_t i = 0; i < counts.at(commands.find(command.name)); ++i) {
            command.numbers.at(i) = takeNumber(text);
        }
        return command;
    }

    /// A decimal number: its digits as a whole number are exact, and so is the power of ten that divides them.
    static constexpr double takeNumber(std::string_view& text) {
        const double sign = text.starts_with('-') ? -1 : 1;
        text.remove_prefix(sign < 0 ? 1 : 0);
        const std::string_view digits = text.substr(0, text.find_first_not_of("0123456789."));
        double whole = 0;
        double divisor = 0;
        for (const char digit : digits) {
            whole = digit == '.' ? whole : whole * 10 + (digit - '0');
            divisor = digit == '.' ? 1 : divisor * 10;
        }
        if (digits.empty()) {
            throw std::invalid_argument("an outline lacks a number");
        }
        take(digits.size(), text);
        return sign * (divisor > 0 ? whole / divisor : whole);
    }

    /// Takes so many characters off, and the spaces after them.
    static constexpr void take(std::size_t length, std::string_view& text) {
        text.remove_prefix(length);
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    }

    std::string_view text_;
};

/// The path of an outline.
inline Path outline(Outline written) {
    return written.path();
}

} // namespace tumble::art

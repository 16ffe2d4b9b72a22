#pragma once

#include "platform/base/Path.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace tumble::art {

/// Path data as in an SVG file, with absolute coordinates: M x y moves, L x y draws a line, Q x1 y1 x y and
/// C x1 y1 x2 y2 x y draw quadratic and cubic curves, Z closes. Besides, O x y r adds a circle. The data begins with M
/// or O. Data that cannot be read does not compile.
class PathData {
public:
    // NOLINTNEXTLINE(google-explicit-constructor,hicpp-explicit-conversions): a literal stands for its data
    consteval PathData(const char* text) : text_(text) {
        if (!text_.empty() && text_.front() != 'M' && text_.front() != 'O') {
            throw std::invalid_argument("path data begins with M or O");
        }
        for (std::string_view rest = text_; !rest.empty();) {
            parseCommand(rest);
        }
    }

    Path path() const;

private:
    struct Command {
        char name;
        std::array<double, 6> numbers;
    };

    /// Removes the first command from the text and returns it.
    static constexpr Command parseCommand(std::string_view& text) {
        constexpr std::string_view commands = "ZMLOQC";
        constexpr std::array<std::size_t, commands.size()> counts{0, 2, 2, 3, 4, 6};
        Command command{text.front(), {}};
        skip(1, text);
        for (std::size_t i = 0; i < counts.at(commands.find(command.name)); ++i) {
            command.numbers.at(i) = parseNumber(text);
        }
        return command;
    }

    /// Removes a decimal number from the text and returns it. Its digits as a whole number are exact, and so is the
    /// power of ten that divides them: the quotient is the nearest number.
    static constexpr double parseNumber(std::string_view& text) {
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
            throw std::invalid_argument("path data lacks a number");
        }
        skip(digits.size(), text);
        return sign * (divisor > 0 ? whole / divisor : whole);
    }

    /// Removes so many characters, and the spaces after them.
    static constexpr void skip(std::size_t length, std::string_view& text) {
        text.remove_prefix(length);
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    }

    std::string_view text_;
};

} // namespace tumble::art

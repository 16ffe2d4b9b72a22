#pragma once

#include "platform/Path.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace tumble {

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
            readCommand(rest);
        }
    }

    Path path() const;

private:
    struct Command {
        char name;
        std::array<double, 6> numbers;
    };

    /// Reads the command at the beginning of a text and takes it off.
    static constexpr Command readCommand(std::string_view& text) {
        Command command{text.front(), {}};
        text.remove_prefix(1);
        for (std::size_t i = 0; i < numberCount(command.name); ++i) {
            command.numbers.at(i) = readNumber(text);
        }
        skipSpaces(text);
        return command;
    }

    static constexpr std::size_t numberCount(char command) {
        constexpr std::string_view commands = "ZMLOQC";
        constexpr std::array<std::size_t, commands.size()> counts{0, 2, 2, 3, 4, 6};
        return counts.at(commands.find(command));
    }

    /// A decimal number: its digits as a whole number are exact, and so is the power of ten that divides them.
    static constexpr double readNumber(std::string_view& text) {
        skipSpaces(text);
        const bool isNegative = text.starts_with('-');
        text.remove_prefix(isNegative ? 1 : 0);
        double digits = 0;
        double divisor = 0;
        const std::size_t length = std::min(text.find_first_not_of("0123456789."), text.size());
        for (const char digit : text.substr(0, length)) {
            if (digit == '.') {
                divisor = 1;
            } else {
                digits = digits * 10 + (digit - '0');
                divisor *= 10;
            }
        }
        if (length == 0) {
            throw std::invalid_argument("an outline lacks a number");
        }
        text.remove_prefix(length);
        const double value = divisor > 0 ? digits / divisor : digits;
        return isNegative ? -value : value;
    }

    static constexpr void skipSpaces(std::string_view& text) {
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    }

    std::string_view text_;
};

/// The path of an outline.
inline Path outline(Outline written) {
    return written.path();
}

} // namespace tumble

#pragma once

#include <cstdint>

namespace tumble {

/// The keys that have a meaning. Those up to F10 are the keyboard pointer's, and the first eight of them repeat while
/// they are held; those from Enter on have one meaning wherever the focus is. F is the letter's key, wherever it lies.
/// `Other` has no meaning of its own.
enum class Key { Left, Up, Right, Down, Home, PageUp, End, PageDown, Space, F, Menu, F10, Enter, Esc, F1, F11, Other };

// Modifiers. A picture box receives all but the last.
inline constexpr std::int16_t shiftKey = 1;
inline constexpr std::int16_t controlKey = 2;
inline constexpr std::int16_t altKey = 4;
inline constexpr std::int16_t metaKey = 8;

struct KeyPress {
    Key key;
    std::int16_t Shift = 0; // the sum of the modifiers
    bool repeated = false;  // by the keyboard, while the key is held
    char letter = 0;        // the capital letter of the access key, if the keys together are one

    bool with(std::int16_t keys) const { return (Shift & keys) != 0; }
};

/// Whether the key does not repeat while it is held.
constexpr bool actsOnce(Key key) {
    return key >= Key::Space;
}

} // namespace tumble

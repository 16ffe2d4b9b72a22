#pragma once

#include <cstdint>

namespace tumble {

/// The keys that mean something: those of the keyboard's pointer, of which the first eight do the same again as the
/// keyboard repeats them, and those that mean the same wherever the focus is. Space and F by the letter, the others
/// wherever they lie. `Other` is any that means nothing by itself.
enum class Key { Left, Up, Right, Down, Home, PageUp, End, PageDown, Space, F, Menu, F10, Enter, Esc, F1, F11, Other };

// Those held with others, as a picture box is told of them; of the last one it is not.
inline constexpr std::int16_t shiftKey = 1;
inline constexpr std::int16_t controlKey = 2;
inline constexpr std::int16_t altKey = 4;
inline constexpr std::int16_t metaKey = 8;

struct KeyPress {
    Key key;
    std::int16_t Shift = 0; // the sum of those held with it
    bool repeated = false;  // by the keyboard, as the key is held
    char letter = 0;        // an access key's, a capital, if that is what the keys together stand for

    bool with(std::int16_t keys) const { return (Shift & keys) != 0; }
};

/// Whether the key acts once, however long it is held.
constexpr bool actsOnce(Key key) {
    return key >= Key::Space;
}

} // namespace tumble

#pragma once

#include "tests/Table.h"

#include <array>

namespace tumble {

/// Throws `what` unless `holds`; the tests and the fuzzer both stop there.
void require(bool holds, const std::string& what);

/// The six settings of a game, each counted from 0 in the dialog's order.
struct Settings {
    std::size_t deck;
    std::size_t size;
    std::size_t order;
    std::size_t layout;
    std::size_t back;
    std::size_t face;
};
inline constexpr std::array cardsOfDeck{52, 54, 36, 32, 24, 104, 48, 64};
void choose(frmTumbleOptions& dialog, const Settings& settings);

enum class PlayedBy { Mouse, Keys };

/// Plays a game as a person does, by the dialog, the name under the pointer, the left button or Space, and the rules.
/// Requires after each drop that the piles show the right cards, and that only the last card wins. `shuffle` holds the
/// random generator's values.
void playToTheWin(const Settings& settings, std::vector<float> shuffle, PlayedBy playedBy = PlayedBy::Mouse);

} // namespace tumble

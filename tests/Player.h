#pragma once

#include "tests/Table.h"

#include <array>

namespace tumble {

/// Throws `what` when it does not hold; the tests and the fuzzer both stop at that.
void require(bool holds, const std::string& what);

/// The six choices of a game, each counted from 0 in the order in which the dialog offers them.
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

/// Plays a game as a person does: chooses in the dialog, sees what lies where only by the name under the pointer, drags
/// with the left button, or with Space, and knows the rules. Requires after each drop that cards and piles show where
/// they should, and that the last card, no other, wins. `shuffle` are the values that the generator hands out.
void playToTheWin(const Settings& settings, std::vector<float> shuffle, PlayedBy playedBy = PlayedBy::Mouse);

} // namespace tumble
